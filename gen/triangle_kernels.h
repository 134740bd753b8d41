// The loops of the triangles: GenerateTriangle, StartTriangle and ContinueTriangle.
#ifndef ORBS_GEN_TRIANGLE_KERNELS_H
#define ORBS_GEN_TRIANGLE_KERNELS_H

#include "gen/triangle_scalar.h"
#include "gen/triangle_vector.h"

#endif
