// Tones from Q15 parameters: one block, and the state.
#include "core/checks.h"
#include "boundary/exports.h"
#include "core/owned_state.h"
#include "gen/tone/tone_kernels.h"

// In the caller's memory at any address, and of the same size on all targets: so packed, with the gaps that
// the alignment of its numbers would leave.
struct [[gnu::packed]] ToneState {
  Orb32s identity;  // first in every record
  Orb32s gap;
  Orb64f magn;
  Orb64f rFreq;
  Orb64f phase;
  Orb32s position;  // of the next sample, below 2^31; read once started
  Orb32s owned;     // 1 if InitAlloc made the record
  Orb32s started;
  Orb32s gapAtEnd;
};
static_assert(sizeof(ToneState) == 48);

namespace orbs::ORBS_VARIANT {
namespace {

constexpr Orb32s kToneIdentity = 0x434D4148;  // H, A, M, C

OrbStatus CheckParameters(Orb16s magn, Orb16s rFreqQ15, Orb32s phaseQ15) {
  if (magn <= 0) return StatusToneMagnitude;
  if (rFreqQ15 < 0 || rFreqQ15 > kMaxFrequencyQ15) return StatusToneFrequency;
  if (!IsPhaseQ15(phaseQ15)) return StatusTonePhase;
  return StatusOk;
}

void Build(ToneState* state, Orb16s magn, Orb16s rFreqQ15, Orb32s phaseQ15) {
  *state = {kToneIdentity, 0, static_cast<Orb64f>(magn), rFreqQ15 * kQ15, phaseQ15 * kQ15, 0, 0, 0, 0};
}

}  // namespace

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
