#include "fir/float/init.h"

#define ORBS_SLICE "boundary/exports/fir.def"
#include "boundary/declare_exports.h"

namespace orbs::ORBS_VARIANT {
using namespace fir;

OrbStatus legacy90orbsFIRGetStateSize_32f(Orb32s tapCount, Orb32s* size) {
  return GetStateSize<Fir32f>(tapCount, size);
}

OrbStatus legacy90orbsFIRGetStateSize_32fc(Orb32s tapCount, Orb32s* size) {
  return GetStateSize<Fir32fc>(tapCount, size);
}

OrbStatus legacy90orbsFIRGetStateSize_64f(Orb32s tapCount, Orb32s* size) {
  return GetStateSize<Fir64f>(tapCount, size);
}

OrbStatus legacy90orbsFIRGetStateSize_64fc(Orb32s tapCount, Orb32s* size) {
  return GetStateSize<Fir64fc>(tapCount, size);
}

OrbStatus legacy90orbsFIRGetStateSize32f_16s(Orb32s tapCount, Orb32s* size) {
  return GetStateSize<Fir32f_16s>(tapCount, size);
}

OrbStatus legacy90orbsFIRGetStateSize32fc_16sc(Orb32s tapCount, Orb32s* size) {
  return GetStateSize<Fir32fc_16sc>(tapCount, size);
}

OrbStatus legacy90orbsFIRGetStateSize64f_32f(Orb32s tapCount, Orb32s* size) {
  return GetStateSize<Fir64f_32f>(tapCount, size);
}

OrbStatus legacy90orbsFIRGetStateSize64fc_32fc(Orb32s tapCount, Orb32s* size) {
  return GetStateSize<Fir64fc_32fc>(tapCount, size);
}

OrbStatus legacy90orbsFIRGetStateSize64f_32s(Orb32s tapCount, Orb32s* size) {
  return GetStateSize<Fir64f_32s>(tapCount, size);
}

OrbStatus legacy90orbsFIRGetStateSize64fc_32sc(Orb32s tapCount, Orb32s* size) {
  return GetStateSize<Fir64fc_32sc>(tapCount, size);
}

OrbStatus legacy90orbsFIRGetStateSize64f_16s(Orb32s tapCount, Orb32s* size) {
  return GetStateSize<Fir64f_16s>(tapCount, size);
}

OrbStatus legacy90orbsFIRGetStateSize64fc_16sc(Orb32s tapCount, Orb32s* size) {
  return GetStateSize<Fir64fc_16sc>(tapCount, size);
}

OrbStatus legacy90orbsFIRGetStateSize_32s(Orb32s tapCount, Orb32s* size) {
  return GetStateSize_32s(tapCount, size);
}

OrbStatus legacy90orbsFIRInit_32f(FIRFloatState** stateOut, const Orb32f* taps, Orb32s tapCount,
                                  const Orb32f* delayLine, void* buffer) {
  return Init<Fir32f>(stateOut, taps, tapCount, delayLine, buffer);
}

OrbStatus legacy90orbsFIRInit_32fc(FIRFloatState** stateOut, const Orb32fc* taps, Orb32s tapCount,
                                   const Orb32fc* delayLine, void* buffer) {
  return Init<Fir32fc>(stateOut, taps, tapCount, delayLine, buffer);
}

OrbStatus legacy90orbsFIRInit_64f(FIRFloatState** stateOut, const Orb64f* taps, Orb32s tapCount,
                                  const Orb64f* delayLine, void* buffer) {
  return Init<Fir64f>(stateOut, taps, tapCount, delayLine, buffer);
}

OrbStatus legacy90orbsFIRInit_64fc(FIRFloatState** stateOut, const Orb64fc* taps, Orb32s tapCount,
                                   const Orb64fc* delayLine, void* buffer) {
  return Init<Fir64fc>(stateOut, taps, tapCount, delayLine, buffer);
}

OrbStatus legacy90orbsFIRInit32f_16s(FIRFloatState** stateOut, const Orb32f* taps, Orb32s tapCount,
                                     const Orb16s* delayLine, void* buffer) {
  return Init<Fir32f_16s>(stateOut, taps, tapCount, delayLine, buffer);
}

OrbStatus legacy90orbsFIRInit32fc_16sc(FIRFloatState** stateOut, const Orb32fc* taps, Orb32s tapCount,
                                       const Orb16sc* delayLine, void* buffer) {
  return Init<Fir32fc_16sc>(stateOut, taps, tapCount, delayLine, buffer);
}

OrbStatus legacy90orbsFIRInit64f_32f(FIRFloatState** stateOut, const Orb64f* taps, Orb32s tapCount,
                                     const Orb32f* delayLine, void* buffer) {
  return Init<Fir64f_32f>(stateOut, taps, tapCount, delayLine, buffer);
}

OrbStatus legacy90orbsFIRInit64fc_32fc(FIRFloatState** stateOut, const Orb64fc* taps, Orb32s tapCount,
                                       const Orb32fc* delayLine, void* buffer) {
  return Init<Fir64fc_32fc>(stateOut, taps, tapCount, delayLine, buffer);
}

OrbStatus legacy90orbsFIRInit64f_32s(FIRFloatState** stateOut, const Orb64f* taps, Orb32s tapCount,
                                     const Orb32s* delayLine, void* buffer) {
  return Init<Fir64f_32s>(stateOut, taps, tapCount, delayLine, buffer);
}

OrbStatus legacy90orbsFIRInit64fc_32sc(FIRFloatState** stateOut, const Orb64fc* taps, Orb32s tapCount,
                                       const Orb32sc* delayLine, void* buffer) {
  return Init<Fir64fc_32sc>(stateOut, taps, tapCount, delayLine, buffer);
}

OrbStatus legacy90orbsFIRInit64f_16s(FIRFloatState** stateOut, const Orb64f* taps, Orb32s tapCount,
                                     const Orb16s* delayLine, void* buffer) {
  return Init<Fir64f_16s>(stateOut, taps, tapCount, delayLine, buffer);
}

OrbStatus legacy90orbsFIRInit64fc_16sc(FIRFloatState** stateOut, const Orb64fc* taps, Orb32s tapCount,
                                       const Orb16sc* delayLine, void* buffer) {
  return Init<Fir64fc_16sc>(stateOut, taps, tapCount, delayLine, buffer);
}

OrbStatus legacy90orbsFIRInit_32s(FIRFloatState** stateOut, const Orb32s* taps, Orb32s tapCount,
                                  const Orb32s* delayLine, void* buffer) {
  return Init_32s(stateOut, taps, tapCount, delayLine, buffer);
}

OrbStatus legacy90orbsFIRInitAlloc_32f(FIRFloatState** stateOut, const Orb32f* taps, Orb32s tapCount,
                                       const Orb32f* delayLine) {
  return InitAlloc<Fir32f>(stateOut, taps, tapCount, delayLine);
}

OrbStatus legacy90orbsFIRInitAlloc_32fc(FIRFloatState** stateOut, const Orb32fc* taps, Orb32s tapCount,
                                        const Orb32fc* delayLine) {
  return InitAlloc<Fir32fc>(stateOut, taps, tapCount, delayLine);
}

OrbStatus legacy90orbsFIRInitAlloc_64f(FIRFloatState** stateOut, const Orb64f* taps, Orb32s tapCount,
                                       const Orb64f* delayLine) {
  return InitAlloc<Fir64f>(stateOut, taps, tapCount, delayLine);
}

OrbStatus legacy90orbsFIRInitAlloc_64fc(FIRFloatState** stateOut, const Orb64fc* taps, Orb32s tapCount,
                                        const Orb64fc* delayLine) {
  return InitAlloc<Fir64fc>(stateOut, taps, tapCount, delayLine);
}

OrbStatus legacy90orbsFIRInitAlloc32f_16s(FIRFloatState** stateOut, const Orb32f* taps, Orb32s tapCount,
                                          const Orb16s* delayLine) {
  return InitAlloc<Fir32f_16s>(stateOut, taps, tapCount, delayLine);
}

OrbStatus legacy90orbsFIRInitAlloc32fc_16sc(FIRFloatState** stateOut, const Orb32fc* taps, Orb32s tapCount,
                                            const Orb16sc* delayLine) {
  return InitAlloc<Fir32fc_16sc>(stateOut, taps, tapCount, delayLine);
}

OrbStatus legacy90orbsFIRInitAlloc64f_32f(FIRFloatState** stateOut, const Orb64f* taps, Orb32s tapCount,
                                          const Orb32f* delayLine) {
  return InitAlloc<Fir64f_32f>(stateOut, taps, tapCount, delayLine);
}

OrbStatus legacy90orbsFIRInitAlloc64fc_32fc(FIRFloatState** stateOut, const Orb64fc* taps, Orb32s tapCount,
                                            const Orb32fc* delayLine) {
  return InitAlloc<Fir64fc_32fc>(stateOut, taps, tapCount, delayLine);
}

OrbStatus legacy90orbsFIRInitAlloc64f_32s(FIRFloatState** stateOut, const Orb64f* taps, Orb32s tapCount,
                                          const Orb32s* delayLine) {
  return InitAlloc<Fir64f_32s>(stateOut, taps, tapCount, delayLine);
}

OrbStatus legacy90orbsFIRInitAlloc64fc_32sc(FIRFloatState** stateOut, const Orb64fc* taps, Orb32s tapCount,
                                            const Orb32sc* delayLine) {
  return InitAlloc<Fir64fc_32sc>(stateOut, taps, tapCount, delayLine);
}

OrbStatus legacy90orbsFIRInitAlloc64f_16s(FIRFloatState** stateOut, const Orb64f* taps, Orb32s tapCount,
                                          const Orb16s* delayLine) {
  return InitAlloc<Fir64f_16s>(stateOut, taps, tapCount, delayLine);
}

OrbStatus legacy90orbsFIRInitAlloc64fc_16sc(FIRFloatState** stateOut, const Orb64fc* taps, Orb32s tapCount,
                                            const Orb16sc* delayLine) {
  return InitAlloc<Fir64fc_16sc>(stateOut, taps, tapCount, delayLine);
}

OrbStatus legacy90orbsFIRInitAlloc_32s(FIRFloatState** stateOut, const Orb32s* taps, Orb32s tapCount,
                                       const Orb32s* delayLine) {
  return InitAlloc_32s(stateOut, taps, tapCount, delayLine);
}

OrbStatus legacy90orbsFIRFree_32f(FIRFloatState* state) { return Free<Fir32f>(state); }

OrbStatus legacy90orbsFIRFree_32fc(FIRFloatState* state) { return Free<Fir32fc>(state); }

OrbStatus legacy90orbsFIRFree_64f(FIRFloatState* state) { return Free<Fir64f>(state); }

OrbStatus legacy90orbsFIRFree_64fc(FIRFloatState* state) { return Free<Fir64fc>(state); }

OrbStatus legacy90orbsFIRFree32f_16s(FIRFloatState* state) { return Free<Fir32f_16s>(state); }

OrbStatus legacy90orbsFIRFree32fc_16sc(FIRFloatState* state) { return Free<Fir32fc_16sc>(state); }

OrbStatus legacy90orbsFIRFree64f_32f(FIRFloatState* state) { return Free<Fir64f_32f>(state); }

OrbStatus legacy90orbsFIRFree64fc_32fc(FIRFloatState* state) { return Free<Fir64fc_32fc>(state); }

OrbStatus legacy90orbsFIRFree64f_32s(FIRFloatState* state) { return Free<Fir64f_32s>(state); }

OrbStatus legacy90orbsFIRFree64fc_32sc(FIRFloatState* state) { return Free<Fir64fc_32sc>(state); }

OrbStatus legacy90orbsFIRFree64f_16s(FIRFloatState* state) { return Free<Fir64f_16s>(state); }

OrbStatus legacy90orbsFIRFree64fc_16sc(FIRFloatState* state) { return Free<Fir64fc_16sc>(state); }

OrbStatus legacy90orbsFIRFree_32s(FIRFloatState* state) { return Free<Fir64f_32s>(state); }

}  // namespace orbs::ORBS_VARIANT
