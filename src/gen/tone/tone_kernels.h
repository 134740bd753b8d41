// The loops of the tones: GenerateTone and GenerateIndexedTone.
#ifndef ORBS_GEN_TONE_TONE_KERNELS_H
#define ORBS_GEN_TONE_TONE_KERNELS_H

#include "gen/tone/tone_scalar.h"
#include "gen/tone/tone_vector.h"

#endif
