#include "fir/integer/init.h"

#define ORBS_SLICE "boundary/exports/fir.def"
#include "boundary/declare_exports.h"

namespace orbs::ORBS_VARIANT {
using namespace fir;

OrbStatus legacy90orbsFIRGetStateSize_16s(Orb32s tapCount, Orb32s* size) {
  return GetIntStateSize<Fir16s>(tapCount, size);
}

OrbStatus legacy90orbsFIRGetStateSize32s_16s(Orb32s tapCount, Orb32s* size) {
  return GetIntStateSize<Fir32s_16s>(tapCount, size);
}

OrbStatus legacy90orbsFIRGetStateSize32sc_16sc(Orb32s tapCount, Orb32s* size) {
  return GetIntStateSize<Fir32sc_16sc>(tapCount, size);
}

OrbStatus legacy90orbsFIRGetStateSize32s_16s32f(Orb32s tapCount, Orb32s* size) {
  return GetIntStateSize<Fir32s_16s>(tapCount, size);
}

OrbStatus legacy90orbsFIRGetStateSize32sc_16sc32fc(Orb32s tapCount, Orb32s* size) {
  return GetIntStateSize<Fir32sc_16sc>(tapCount, size);
}

OrbStatus legacy90orbsFIRInit_16s(FIRIntState** stateOut, const Orb16s* taps, Orb32s tapCount,
                                  Orb32s tapsFactor, const Orb16s* delayLine, void* buffer) {
  return Init<Fir16s>(stateOut, taps, tapCount, tapsFactor, delayLine, buffer);
}

OrbStatus legacy90orbsFIRInit32s_16s(FIRIntState** stateOut, const Orb32s* taps, Orb32s tapCount,
                                     Orb32s tapsFactor, const Orb16s* delayLine, void* buffer) {
  return Init<Fir32s_16s>(stateOut, taps, tapCount, tapsFactor, delayLine, buffer);
}

OrbStatus legacy90orbsFIRInit32sc_16sc(FIRIntState** stateOut, const Orb32sc* taps, Orb32s tapCount,
                                       Orb32s tapsFactor, const Orb16sc* delayLine, void* buffer) {
  return Init<Fir32sc_16sc>(stateOut, taps, tapCount, tapsFactor, delayLine, buffer);
}

OrbStatus legacy90orbsFIRInit32s_16s32f(FIRIntState** stateOut, const Orb32f* taps, Orb32s tapCount,
                                        const Orb16s* delayLine, void* buffer) {
  return InitQuantised<Fir32s_16s, Orb32f>(stateOut, taps, tapCount, delayLine, buffer);
}

OrbStatus legacy90orbsFIRInit32sc_16sc32fc(FIRIntState** stateOut, const Orb32fc* taps, Orb32s tapCount,
                                           const Orb16sc* delayLine, void* buffer) {
  return InitQuantised<Fir32sc_16sc, Orb32fc>(stateOut, taps, tapCount, delayLine, buffer);
}

OrbStatus legacy90orbsFIRInitAlloc_16s(FIRIntState** stateOut, const Orb16s* taps, Orb32s tapCount,
                                       Orb32s tapsFactor, const Orb16s* delayLine) {
  return InitAlloc<Fir16s>(stateOut, taps, tapCount, tapsFactor, delayLine);
}

OrbStatus legacy90orbsFIRInitAlloc32s_16s(FIRIntState** stateOut, const Orb32s* taps, Orb32s tapCount,
                                          Orb32s tapsFactor, const Orb16s* delayLine) {
  return InitAlloc<Fir32s_16s>(stateOut, taps, tapCount, tapsFactor, delayLine);
}

OrbStatus legacy90orbsFIRInitAlloc32sc_16sc(FIRIntState** stateOut, const Orb32sc* taps, Orb32s tapCount,
                                            Orb32s tapsFactor, const Orb16sc* delayLine) {
  return InitAlloc<Fir32sc_16sc>(stateOut, taps, tapCount, tapsFactor, delayLine);
}

OrbStatus legacy90orbsFIRInitAlloc32s_16s32f(FIRIntState** stateOut, const Orb32f* taps, Orb32s tapCount,
                                             const Orb16s* delayLine) {
  return InitAllocQuantised<Fir32s_16s, Orb32f>(stateOut, taps, tapCount, delayLine);
}

OrbStatus legacy90orbsFIRInitAlloc32sc_16sc32fc(FIRIntState** stateOut, const Orb32fc* taps, Orb32s tapCount,
                                                const Orb16sc* delayLine) {
  return InitAllocQuantised<Fir32sc_16sc, Orb32fc>(stateOut, taps, tapCount, delayLine);
}

OrbStatus legacy90orbsFIRFree_16s(FIRIntState* state) { return Free<Fir16s>(state); }

OrbStatus legacy90orbsFIRFree32s_16s(FIRIntState* state) { return Free<Fir32s_16s>(state); }

OrbStatus legacy90orbsFIRFree32sc_16sc(FIRIntState* state) { return Free<Fir32sc_16sc>(state); }

}  // namespace orbs::ORBS_VARIANT
