#include "gen/triangle/triangle_q15.h"

#define ORBS_SLICE "boundary/exports/gen.def"
#include "boundary/declare_exports.h"

namespace orbs::ORBS_VARIANT {
using namespace gen;

OrbStatus legacy90orbsTriangleQ15_Direct_16s(Orb16s* dst, Orb32s len, Orb16s magn, Orb16s rFreqQ15,
                                             Orb32s phaseQ15, Orb32s asymQ15) {
  ORBS_RETURN_IF_BAD(CheckArrays(len, dst));
  ORBS_RETURN_IF_BAD(CheckParameters(magn, rFreqQ15, phaseQ15, asymQ15));
  // 18 bits: exact in binary32.
  auto phase = static_cast<Orb32f>(phaseQ15 * kQ15);
  return legacy90orbsTriangle_Direct_16s(dst, len, magn, static_cast<Orb32f>(rFreqQ15 * kQ15),
                                         static_cast<Orb32f>(asymQ15 * kQ15), &phase);
}

OrbStatus legacy90orbsTriangleGetStateSizeQ15_16s(Orb32s* size) {
  ORBS_RETURN_IF_BAD(CheckResults(size));
  *size = sizeof(TriangleState);
  return StatusOk;
}

OrbStatus legacy90orbsTriangleInitQ15_16s(TriangleState* state, Orb16s magn, Orb16s rFreqQ15, Orb32s phaseQ15,
                                          Orb32s asymQ15) {
  ORBS_RETURN_IF_BAD(CheckResults(state));
  ORBS_RETURN_IF_BAD(CheckParameters(magn, rFreqQ15, phaseQ15, asymQ15));
  Build(state, magn, rFreqQ15, phaseQ15, asymQ15);
  return StatusOk;
}

OrbStatus legacy90orbsTriangleInitAllocQ15_16s(TriangleState** stateOut, Orb16s magn, Orb16s rFreqQ15,
                                               Orb32s phaseQ15, Orb32s asymQ15) {
  ORBS_RETURN_IF_BAD(CheckResults(stateOut));
  ORBS_RETURN_IF_BAD(CheckParameters(magn, rFreqQ15, phaseQ15, asymQ15));
  return AllocateState(stateOut, sizeof(TriangleState), [=](TriangleState* state) {
    Build(state, magn, rFreqQ15, phaseQ15, asymQ15);
    return StatusOk;
  });
}

OrbStatus legacy90orbsTriangleQ15_16s(Orb16s* dst, Orb32s len, TriangleState* state) {
  ORBS_RETURN_IF_BAD(CheckState(state, kTriangleIdentity, len, dst));
  const TriangleParameters wave = {state->magn, state->rFreq, state->asym};
  TriangleSlopes<Orb64f> slopes;
  TrianglePlace<Orb64f> place;
  if (state->started != 0) {
    slopes = state->slopes;
    place = {state->value, state->delta, state->rising != 0};
  } else {
    slopes = SlopesOf<Orb64f>(wave);
    place = StartTriangle(wave, slopes, state->phase);
    state->slopes = slopes;
    state->started = 1;
  }
  place = ContinueTriangle(dst, len, wave, slopes, place);
  state->value = place.value;
  state->delta = place.delta;
  state->rising = place.rising;
  return StatusOk;
}

OrbStatus legacy90orbsTriangleFree(TriangleState* state) {
  ORBS_RETURN_IF_BAD(CheckStateOnly(state, kTriangleIdentity));
  ReleaseState(state);
  return StatusOk;
}

}  // namespace orbs::ORBS_VARIANT
