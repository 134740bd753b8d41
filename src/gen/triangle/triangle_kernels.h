// The loops of the triangles: GenerateTriangle, StartTriangle and ContinueTriangle.
#ifndef ORBS_GEN_TRIANGLE_TRIANGLE_KERNELS_H
#define ORBS_GEN_TRIANGLE_TRIANGLE_KERNELS_H

#include "gen/triangle/triangle_scalar.h"
#include "gen/triangle/triangle_vector.h"

#endif
