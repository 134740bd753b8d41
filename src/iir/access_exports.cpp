#include "iir/access.h"

#define ORBS_SLICE "boundary/exports/iir.def"
#include "boundary/declare_exports.h"

namespace orbs::ORBS_VARIANT {
using namespace iir;

OrbStatus legacy90orbsIIRGetDlyLine32s_16s(const IIRState* state, Orb32s* delayLine) {
  return GetDlyLine<RealNumbers>(state, delayLine);
}

OrbStatus legacy90orbsIIRGetDlyLine32sc_16sc(const IIRState* state, Orb32sc* delayLine) {
  return GetDlyLine<ComplexNumbers>(state, delayLine);
}

OrbStatus legacy90orbsIIRSetDlyLine32s_16s(IIRState* state, const Orb32s* delayLine) {
  return SetDlyLine<RealNumbers>(state, delayLine);
}

OrbStatus legacy90orbsIIRSetDlyLine32sc_16sc(IIRState* state, const Orb32sc* delayLine) {
  return SetDlyLine<ComplexNumbers>(state, delayLine);
}

OrbStatus legacy90orbsIIRSetTaps32s_16s(const Orb32s* taps, IIRState* state, Orb32s tapsFactor) {
  return SetTaps<RealNumbers>(taps, state, tapsFactor);
}

OrbStatus legacy90orbsIIRSetTaps32s_16s32f(const Orb32f* taps, IIRState* state) {
  return SetTaps<RealNumbers>(taps, state);
}

OrbStatus legacy90orbsIIRSetTaps32sc_16sc(const Orb32sc* taps, IIRState* state, Orb32s tapsFactor) {
  return SetTaps<ComplexNumbers>(taps, state, tapsFactor);
}

OrbStatus legacy90orbsIIRSetTaps32sc_16sc32fc(const Orb32fc* taps, IIRState* state) {
  return SetTaps<ComplexNumbers>(taps, state);
}

}  // namespace orbs::ORBS_VARIANT
