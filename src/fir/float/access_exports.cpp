#include "fir/float/access.h"

#define ORBS_SLICE "boundary/exports/fir.def"
#include "boundary/declare_exports.h"

namespace orbs::ORBS_VARIANT {
using namespace fir;

OrbStatus legacy90orbsFIRGetTaps_32f(const FIRFloatState* state, Orb32f* taps) {
  return GetTaps<Fir32f>(state, taps);
}

OrbStatus legacy90orbsFIRGetTaps_32fc(const FIRFloatState* state, Orb32fc* taps) {
  return GetTaps<Fir32fc>(state, taps);
}

OrbStatus legacy90orbsFIRGetTaps_64f(const FIRFloatState* state, Orb64f* taps) {
  return GetTaps<Fir64f>(state, taps);
}

OrbStatus legacy90orbsFIRGetTaps_64fc(const FIRFloatState* state, Orb64fc* taps) {
  return GetTaps<Fir64fc>(state, taps);
}

OrbStatus legacy90orbsFIRGetTaps32f_16s(const FIRFloatState* state, Orb32f* taps) {
  return GetTaps<Fir32f_16s>(state, taps);
}

OrbStatus legacy90orbsFIRGetTaps32fc_16sc(const FIRFloatState* state, Orb32fc* taps) {
  return GetTaps<Fir32fc_16sc>(state, taps);
}

OrbStatus legacy90orbsFIRGetTaps64f_32f(const FIRFloatState* state, Orb64f* taps) {
  return GetTaps<Fir64f_32f>(state, taps);
}

OrbStatus legacy90orbsFIRGetTaps64fc_32fc(const FIRFloatState* state, Orb64fc* taps) {
  return GetTaps<Fir64fc_32fc>(state, taps);
}

OrbStatus legacy90orbsFIRGetTaps64f_32s(const FIRFloatState* state, Orb64f* taps) {
  return GetTaps<Fir64f_32s>(state, taps);
}

OrbStatus legacy90orbsFIRGetTaps64fc_32sc(const FIRFloatState* state, Orb64fc* taps) {
  return GetTaps<Fir64fc_32sc>(state, taps);
}

OrbStatus legacy90orbsFIRGetTaps64f_16s(const FIRFloatState* state, Orb64f* taps) {
  return GetTaps<Fir64f_16s>(state, taps);
}

OrbStatus legacy90orbsFIRGetTaps64fc_16sc(const FIRFloatState* state, Orb64fc* taps) {
  return GetTaps<Fir64fc_16sc>(state, taps);
}

OrbStatus legacy90orbsFIRGetTaps_32s(const FIRFloatState* state, Orb32s* taps) {
  return GetTaps<Fir64f_32s>(state, taps);
}

OrbStatus legacy90orbsFIRSetTaps_32f(const Orb32f* taps, FIRFloatState* state) {
  return SetTaps<Fir32f>(taps, state);
}

OrbStatus legacy90orbsFIRSetTaps_32fc(const Orb32fc* taps, FIRFloatState* state) {
  return SetTaps<Fir32fc>(taps, state);
}

OrbStatus legacy90orbsFIRSetTaps_64f(const Orb64f* taps, FIRFloatState* state) {
  return SetTaps<Fir64f>(taps, state);
}

OrbStatus legacy90orbsFIRSetTaps_64fc(const Orb64fc* taps, FIRFloatState* state) {
  return SetTaps<Fir64fc>(taps, state);
}

OrbStatus legacy90orbsFIRSetTaps32f_16s(const Orb32f* taps, FIRFloatState* state) {
  return SetTaps<Fir32f_16s>(taps, state);
}

OrbStatus legacy90orbsFIRSetTaps32fc_16sc(const Orb32fc* taps, FIRFloatState* state) {
  return SetTaps<Fir32fc_16sc>(taps, state);
}

OrbStatus legacy90orbsFIRSetTaps64f_32f(const Orb64f* taps, FIRFloatState* state) {
  return SetTaps<Fir64f_32f>(taps, state);
}

OrbStatus legacy90orbsFIRSetTaps64fc_32fc(const Orb64fc* taps, FIRFloatState* state) {
  return SetTaps<Fir64fc_32fc>(taps, state);
}

OrbStatus legacy90orbsFIRSetTaps64f_32s(const Orb64f* taps, FIRFloatState* state) {
  return SetTaps<Fir64f_32s>(taps, state);
}

OrbStatus legacy90orbsFIRSetTaps64fc_32sc(const Orb64fc* taps, FIRFloatState* state) {
  return SetTaps<Fir64fc_32sc>(taps, state);
}

OrbStatus legacy90orbsFIRSetTaps64f_16s(const Orb64f* taps, FIRFloatState* state) {
  return SetTaps<Fir64f_16s>(taps, state);
}

OrbStatus legacy90orbsFIRSetTaps64fc_16sc(const Orb64fc* taps, FIRFloatState* state) {
  return SetTaps<Fir64fc_16sc>(taps, state);
}

OrbStatus legacy90orbsFIRSetTaps_32s(const Orb32s* taps, FIRFloatState* state) {
  return SetTaps<Fir64f_32s>(taps, state);
}

OrbStatus legacy90orbsFIRGetDlyLine_32f(const FIRFloatState* state, Orb32f* delayLine) {
  return GetDlyLine<Fir32f>(state, delayLine);
}

OrbStatus legacy90orbsFIRGetDlyLine_32fc(const FIRFloatState* state, Orb32fc* delayLine) {
  return GetDlyLine<Fir32fc>(state, delayLine);
}

OrbStatus legacy90orbsFIRGetDlyLine_64f(const FIRFloatState* state, Orb64f* delayLine) {
  return GetDlyLine<Fir64f>(state, delayLine);
}

OrbStatus legacy90orbsFIRGetDlyLine_64fc(const FIRFloatState* state, Orb64fc* delayLine) {
  return GetDlyLine<Fir64fc>(state, delayLine);
}

OrbStatus legacy90orbsFIRGetDlyLine32f_16s(const FIRFloatState* state, Orb16s* delayLine) {
  return GetDlyLine<Fir32f_16s>(state, delayLine);
}

OrbStatus legacy90orbsFIRGetDlyLine32fc_16sc(const FIRFloatState* state, Orb16sc* delayLine) {
  return GetDlyLine<Fir32fc_16sc>(state, delayLine);
}

OrbStatus legacy90orbsFIRGetDlyLine64f_32f(const FIRFloatState* state, Orb32f* delayLine) {
  return GetDlyLine<Fir64f_32f>(state, delayLine);
}

OrbStatus legacy90orbsFIRGetDlyLine64fc_32fc(const FIRFloatState* state, Orb32fc* delayLine) {
  return GetDlyLine<Fir64fc_32fc>(state, delayLine);
}

OrbStatus legacy90orbsFIRGetDlyLine64f_32s(const FIRFloatState* state, Orb32s* delayLine) {
  return GetDlyLine<Fir64f_32s>(state, delayLine);
}

OrbStatus legacy90orbsFIRGetDlyLine64fc_32sc(const FIRFloatState* state, Orb32sc* delayLine) {
  return GetDlyLine<Fir64fc_32sc>(state, delayLine);
}

OrbStatus legacy90orbsFIRGetDlyLine64f_16s(const FIRFloatState* state, Orb16s* delayLine) {
  return GetDlyLine<Fir64f_16s>(state, delayLine);
}

OrbStatus legacy90orbsFIRGetDlyLine64fc_16sc(const FIRFloatState* state, Orb16sc* delayLine) {
  return GetDlyLine<Fir64fc_16sc>(state, delayLine);
}

OrbStatus legacy90orbsFIRSetDlyLine_32f(FIRFloatState* state, const Orb32f* delayLine) {
  return SetDlyLine<Fir32f>(state, delayLine);
}

OrbStatus legacy90orbsFIRSetDlyLine_32fc(FIRFloatState* state, const Orb32fc* delayLine) {
  return SetDlyLine<Fir32fc>(state, delayLine);
}

OrbStatus legacy90orbsFIRSetDlyLine_64f(FIRFloatState* state, const Orb64f* delayLine) {
  return SetDlyLine<Fir64f>(state, delayLine);
}

OrbStatus legacy90orbsFIRSetDlyLine_64fc(FIRFloatState* state, const Orb64fc* delayLine) {
  return SetDlyLine<Fir64fc>(state, delayLine);
}

OrbStatus legacy90orbsFIRSetDlyLine32f_16s(FIRFloatState* state, const Orb16s* delayLine) {
  return SetDlyLine<Fir32f_16s>(state, delayLine);
}

OrbStatus legacy90orbsFIRSetDlyLine32fc_16sc(FIRFloatState* state, const Orb16sc* delayLine) {
  return SetDlyLine<Fir32fc_16sc>(state, delayLine);
}

OrbStatus legacy90orbsFIRSetDlyLine64f_32f(FIRFloatState* state, const Orb32f* delayLine) {
  return SetDlyLine<Fir64f_32f>(state, delayLine);
}

OrbStatus legacy90orbsFIRSetDlyLine64fc_32fc(FIRFloatState* state, const Orb32fc* delayLine) {
  return SetDlyLine<Fir64fc_32fc>(state, delayLine);
}

OrbStatus legacy90orbsFIRSetDlyLine64f_32s(FIRFloatState* state, const Orb32s* delayLine) {
  return SetDlyLine<Fir64f_32s>(state, delayLine);
}

OrbStatus legacy90orbsFIRSetDlyLine64fc_32sc(FIRFloatState* state, const Orb32sc* delayLine) {
  return SetDlyLine<Fir64fc_32sc>(state, delayLine);
}

OrbStatus legacy90orbsFIRSetDlyLine64f_16s(FIRFloatState* state, const Orb16s* delayLine) {
  return SetDlyLine<Fir64f_16s>(state, delayLine);
}

OrbStatus legacy90orbsFIRSetDlyLine64fc_16sc(FIRFloatState* state, const Orb16sc* delayLine) {
  return SetDlyLine<Fir64fc_16sc>(state, delayLine);
}

}  // namespace orbs::ORBS_VARIANT
