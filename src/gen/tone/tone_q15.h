// Tones from Q15 parameters: one block, and the state.
#ifndef ORBS_GEN_TONE_TONE_Q15_H
#define ORBS_GEN_TONE_TONE_Q15_H

#include "core/checks.h"
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

namespace orbs::ORBS_VARIANT::gen {

inline constexpr Orb32s kToneIdentity = 0x434D4148;  // H, A, M, C

inline OrbStatus CheckParameters(Orb16s magn, Orb16s rFreqQ15, Orb32s phaseQ15) {
  if (magn <= 0) return StatusToneMagnitude;
  if (rFreqQ15 < 0 || rFreqQ15 > kMaxFrequencyQ15) return StatusToneFrequency;
  if (!IsPhaseQ15(phaseQ15)) return StatusTonePhase;
  return StatusOk;
}

inline void Build(ToneState* state, Orb16s magn, Orb16s rFreqQ15, Orb32s phaseQ15) {
  *state = {kToneIdentity, 0, static_cast<Orb64f>(magn), rFreqQ15 * kQ15, phaseQ15 * kQ15, 0, 0, 0, 0};
}

}  // namespace orbs::ORBS_VARIANT::gen

#endif
