#include "fir/integer/access.h"

#define ORBS_SLICE "boundary/exports/fir.def"
#include "boundary/declare_exports.h"

namespace orbs::ORBS_VARIANT {
using namespace fir;

OrbStatus legacy90orbsFIRGetTaps_16s(const FIRIntState* state, Orb16s* taps, Orb32s* tapsFactor) {
  return GetTaps<Fir16s>(state, taps, tapsFactor);
}

OrbStatus legacy90orbsFIRGetTaps32s_16s(const FIRIntState* state, Orb32s* taps, Orb32s* tapsFactor) {
  return GetTaps<Fir32s_16s>(state, taps, tapsFactor);
}

OrbStatus legacy90orbsFIRGetTaps32sc_16sc(const FIRIntState* state, Orb32sc* taps, Orb32s* tapsFactor) {
  return GetTaps<Fir32sc_16sc>(state, taps, tapsFactor);
}

OrbStatus legacy90orbsFIRGetTaps32s_16s32f(const FIRIntState* state, Orb32f* taps) {
  return GetQuantisedTaps<Fir32s_16s, Orb32f>(state, taps);
}

OrbStatus legacy90orbsFIRGetTaps32sc_16sc32fc(const FIRIntState* state, Orb32fc* taps) {
  return GetQuantisedTaps<Fir32sc_16sc, Orb32fc>(state, taps);
}

OrbStatus legacy90orbsFIRSetTaps_16s(const Orb16s* taps, FIRIntState* state, Orb32s tapsFactor) {
  return SetTaps<Fir16s>(taps, state, tapsFactor);
}

OrbStatus legacy90orbsFIRSetTaps32s_16s(const Orb32s* taps, FIRIntState* state, Orb32s tapsFactor) {
  return SetTaps<Fir32s_16s>(taps, state, tapsFactor);
}

OrbStatus legacy90orbsFIRSetTaps32sc_16sc(const Orb32sc* taps, FIRIntState* state, Orb32s tapsFactor) {
  return SetTaps<Fir32sc_16sc>(taps, state, tapsFactor);
}

OrbStatus legacy90orbsFIRSetTaps32s_16s32f(const Orb32f* taps, FIRIntState* state) {
  return SetQuantisedTaps<Fir32s_16s, Orb32f>(taps, state);
}

OrbStatus legacy90orbsFIRSetTaps32sc_16sc32fc(const Orb32fc* taps, FIRIntState* state) {
  return SetQuantisedTaps<Fir32sc_16sc, Orb32fc>(taps, state);
}

OrbStatus legacy90orbsFIRGetDlyLine_16s(const FIRIntState* state, Orb16s* delayLine) {
  return GetDlyLine<Fir16s>(state, delayLine);
}

OrbStatus legacy90orbsFIRGetDlyLine32s_16s(const FIRIntState* state, Orb16s* delayLine) {
  return GetDlyLine<Fir32s_16s>(state, delayLine);
}

OrbStatus legacy90orbsFIRGetDlyLine32sc_16sc(const FIRIntState* state, Orb16sc* delayLine) {
  return GetDlyLine<Fir32sc_16sc>(state, delayLine);
}

OrbStatus legacy90orbsFIRSetDlyLine_16s(FIRIntState* state, const Orb16s* delayLine) {
  return SetDlyLine<Fir16s>(state, delayLine);
}

OrbStatus legacy90orbsFIRSetDlyLine32s_16s(FIRIntState* state, const Orb16s* delayLine) {
  return SetDlyLine<Fir32s_16s>(state, delayLine);
}

OrbStatus legacy90orbsFIRSetDlyLine32sc_16sc(FIRIntState* state, const Orb16sc* delayLine) {
  return SetDlyLine<Fir32sc_16sc>(state, delayLine);
}

}  // namespace orbs::ORBS_VARIANT
