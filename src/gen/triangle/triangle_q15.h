// Triangles from Q15 parameters: one block, and the state.
#ifndef ORBS_GEN_TRIANGLE_TRIANGLE_Q15_H
#define ORBS_GEN_TRIANGLE_TRIANGLE_Q15_H

#include "core/checks.h"
#include "core/owned_state.h"
#include "gen/triangle/triangle_kernels.h"

// In the caller's memory at any address, and of the same size on all targets: so packed, with the gaps that
// the alignment of its numbers would leave.
struct [[gnu::packed]] TriangleState {
  Orb32s identity;  // first in every record
  Orb32s gap;
  Orb64f magn;
  Orb64f rFreq;
  Orb64f phase;
  Orb64f asym;
  orbs::TriangleSlopes<Orb64f> slopes;  // these and what follows up to rising: once started
  Orb64f delta;
  Orb64f value;
  Orb32s rising;
  Orb32s owned;  // 1 if InitAlloc made the record
  Orb32s started;
  Orb32s gapAtEnd;
};
static_assert(sizeof(TriangleState) == 136);

namespace orbs::ORBS_VARIANT::gen {

inline constexpr Orb32s kTriangleIdentity = 0x434D4149;  // I, A, M, C

inline OrbStatus CheckParameters(Orb16s magn, Orb16s rFreqQ15, Orb32s phaseQ15, Orb32s asymQ15) {
  if (magn <= 0) return StatusTriangleMagnitude;
  if (rFreqQ15 < 0 || rFreqQ15 > kMaxFrequencyQ15) return StatusTriangleFrequency;
  if (!IsPhaseQ15(phaseQ15)) return StatusTrianglePhase;
  if (asymQ15 < -kMaxAsymmetryQ15 || asymQ15 > kMaxAsymmetryQ15) return StatusTriangleAsymmetry;
  return StatusOk;
}

inline void Build(TriangleState* state, Orb16s magn, Orb16s rFreqQ15, Orb32s phaseQ15, Orb32s asymQ15) {
  *state = {};
  state->identity = kTriangleIdentity;
  state->magn = magn;
  state->rFreq = rFreqQ15 * kQ15;
  state->phase = phaseQ15 * kQ15;
  state->asym = asymQ15 * kQ15;
}

}  // namespace orbs::ORBS_VARIANT::gen

#endif
