#include "gen/tone/tone_q15.h"

#define ORBS_SLICE "boundary/exports/gen.def"
#include "boundary/declare_exports.h"

namespace orbs::ORBS_VARIANT {
using namespace gen;

OrbStatus legacy90orbsToneQ15_Direct_16s(Orb16s* dst, Orb32s len, Orb16s magn, Orb16s rFreqQ15,
                                         Orb32s phaseQ15) {
  ORBS_RETURN_IF_BAD(CheckArrays(len, dst));
  ORBS_RETURN_IF_BAD(CheckParameters(magn, rFreqQ15, phaseQ15));
  GenerateIndexedTone(dst, len, magn, rFreqQ15 * kQ15, phaseQ15 * kQ15, 0);
  return StatusOk;
}

OrbStatus legacy90orbsToneGetStateSizeQ15_16s(Orb32s* size) {
  ORBS_RETURN_IF_BAD(CheckResults(size));
  *size = sizeof(ToneState);
  return StatusOk;
}

OrbStatus legacy90orbsToneInitQ15_16s(ToneState* state, Orb16s magn, Orb16s rFreqQ15, Orb32s phaseQ15) {
  ORBS_RETURN_IF_BAD(CheckResults(state));
  ORBS_RETURN_IF_BAD(CheckParameters(magn, rFreqQ15, phaseQ15));
  Build(state, magn, rFreqQ15, phaseQ15);
  return StatusOk;
}

OrbStatus legacy90orbsToneInitAllocQ15_16s(ToneState** stateOut, Orb16s magn, Orb16s rFreqQ15,
                                           Orb32s phaseQ15) {
  ORBS_RETURN_IF_BAD(CheckResults(stateOut));
  ORBS_RETURN_IF_BAD(CheckParameters(magn, rFreqQ15, phaseQ15));
  return AllocateState(stateOut, sizeof(ToneState), [=](ToneState* state) {
    Build(state, magn, rFreqQ15, phaseQ15);
    return StatusOk;
  });
}

OrbStatus legacy90orbsToneQ15_16s(Orb16s* dst, Orb32s len, ToneState* state) {
  ORBS_RETURN_IF_BAD(CheckState(state, kToneIdentity, len, dst));
  const Orb32s first = state->started != 0 ? state->position : 0;
  GenerateIndexedTone(dst, len, state->magn, state->rFreq, state->phase, first);
  // 2^31 samples are a whole number of periods of every frequency that is a multiple of 2^-15.
  const Orb32u end = static_cast<Orb32u>(first) + static_cast<Orb32u>(len);
  state->position = static_cast<Orb32s>(end & INT32_MAX);
  state->started = 1;
  return StatusOk;
}

OrbStatus legacy90orbsToneFree(ToneState* state) {
  ORBS_RETURN_IF_BAD(CheckStateOnly(state, kToneIdentity));
  ReleaseState(state);
  return StatusOk;
}

}  // namespace orbs::ORBS_VARIANT
