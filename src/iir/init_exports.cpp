#include "iir/init.h"

#define ORBS_SLICE "boundary/exports/iir.def"
#include "boundary/declare_exports.h"

namespace orbs::ORBS_VARIANT {
using namespace iir;

OrbStatus legacy90orbsIIRGetStateSize32s_16s(Orb32s order, Orb32s* size) {
  return GetStateSize<RealArbitraryOrder>(order, size);
}

OrbStatus legacy90orbsIIRGetStateSize32s_16s32f(Orb32s order, Orb32s* size) {
  return GetStateSize<RealArbitraryOrder>(order, size);
}

OrbStatus legacy90orbsIIRGetStateSize32sc_16sc(Orb32s order, Orb32s* size) {
  return GetStateSize<ComplexArbitraryOrder>(order, size);
}

OrbStatus legacy90orbsIIRGetStateSize32sc_16sc32fc(Orb32s order, Orb32s* size) {
  return GetStateSize<ComplexArbitraryOrder>(order, size);
}

OrbStatus legacy90orbsIIRGetStateSize32s_BiQuad_16s(Orb32s sectionCount, Orb32s* size) {
  return GetStateSize<RealBiQuad>(sectionCount, size);
}

OrbStatus legacy90orbsIIRGetStateSize32s_BiQuad_16s32f(Orb32s sectionCount, Orb32s* size) {
  return GetStateSize<RealBiQuad>(sectionCount, size);
}

OrbStatus legacy90orbsIIRGetStateSize32sc_BiQuad_16sc(Orb32s sectionCount, Orb32s* size) {
  return GetStateSize<ComplexBiQuad>(sectionCount, size);
}

OrbStatus legacy90orbsIIRGetStateSize32sc_BiQuad_16sc32fc(Orb32s sectionCount, Orb32s* size) {
  return GetStateSize<ComplexBiQuad>(sectionCount, size);
}

OrbStatus legacy90orbsIIRInit32s_16s(IIRState** stateOut, const Orb32s* taps, Orb32s order, Orb32s tapsFactor,
                                     const Orb32s* delayLine, void* buffer) {
  return Init<RealArbitraryOrder>(stateOut, taps, order, delayLine, buffer, tapsFactor);
}

OrbStatus legacy90orbsIIRInit32s_16s32f(IIRState** stateOut, const Orb32f* taps, Orb32s order,
                                        const Orb32s* delayLine, void* buffer) {
  return Init<RealArbitraryOrder>(stateOut, taps, order, delayLine, buffer);
}

OrbStatus legacy90orbsIIRInit32sc_16sc(IIRState** stateOut, const Orb32sc* taps, Orb32s order,
                                       Orb32s tapsFactor, const Orb32sc* delayLine, void* buffer) {
  return Init<ComplexArbitraryOrder>(stateOut, taps, order, delayLine, buffer, tapsFactor);
}

OrbStatus legacy90orbsIIRInit32sc_16sc32fc(IIRState** stateOut, const Orb32fc* taps, Orb32s order,
                                           const Orb32sc* delayLine, void* buffer) {
  return Init<ComplexArbitraryOrder>(stateOut, taps, order, delayLine, buffer);
}

OrbStatus legacy90orbsIIRInit32s_BiQuad_16s(IIRState** stateOut, const Orb32s* taps, Orb32s sectionCount,
                                            Orb32s tapsFactor, const Orb32s* delayLine, void* buffer) {
  return Init<RealBiQuad>(stateOut, taps, sectionCount, delayLine, buffer, tapsFactor);
}

OrbStatus legacy90orbsIIRInit32s_BiQuad_16s32f(IIRState** stateOut, const Orb32f* taps, Orb32s sectionCount,
                                               const Orb32s* delayLine, void* buffer) {
  return Init<RealBiQuad>(stateOut, taps, sectionCount, delayLine, buffer);
}

OrbStatus legacy90orbsIIRInit32sc_BiQuad_16sc(IIRState** stateOut, const Orb32sc* taps, Orb32s sectionCount,
                                              Orb32s tapsFactor, const Orb32sc* delayLine, void* buffer) {
  return Init<ComplexBiQuad>(stateOut, taps, sectionCount, delayLine, buffer, tapsFactor);
}

OrbStatus legacy90orbsIIRInit32sc_BiQuad_16sc32fc(IIRState** stateOut, const Orb32fc* taps,
                                                  Orb32s sectionCount, const Orb32sc* delayLine,
                                                  void* buffer) {
  return Init<ComplexBiQuad>(stateOut, taps, sectionCount, delayLine, buffer);
}

OrbStatus legacy90orbsIIRInitAlloc32s_16s(IIRState** stateOut, const Orb32s* taps, Orb32s order,
                                          Orb32s tapsFactor, const Orb32s* delayLine) {
  return InitAlloc<RealArbitraryOrder>(stateOut, taps, order, delayLine, tapsFactor);
}

OrbStatus legacy90orbsIIRInitAlloc32s_16s32f(IIRState** stateOut, const Orb32f* taps, Orb32s order,
                                             const Orb32s* delayLine) {
  return InitAlloc<RealArbitraryOrder>(stateOut, taps, order, delayLine);
}

OrbStatus legacy90orbsIIRInitAlloc32sc_16sc(IIRState** stateOut, const Orb32sc* taps, Orb32s order,
                                            Orb32s tapsFactor, const Orb32sc* delayLine) {
  return InitAlloc<ComplexArbitraryOrder>(stateOut, taps, order, delayLine, tapsFactor);
}

OrbStatus legacy90orbsIIRInitAlloc32sc_16sc32fc(IIRState** stateOut, const Orb32fc* taps, Orb32s order,
                                                const Orb32sc* delayLine) {
  return InitAlloc<ComplexArbitraryOrder>(stateOut, taps, order, delayLine);
}

OrbStatus legacy90orbsIIRInitAlloc32s_BiQuad_16s(IIRState** stateOut, const Orb32s* taps, Orb32s sectionCount,
                                                 Orb32s tapsFactor, const Orb32s* delayLine) {
  return InitAlloc<RealBiQuad>(stateOut, taps, sectionCount, delayLine, tapsFactor);
}

OrbStatus legacy90orbsIIRInitAlloc32s_BiQuad_16s32f(IIRState** stateOut, const Orb32f* taps,
                                                    Orb32s sectionCount, const Orb32s* delayLine) {
  return InitAlloc<RealBiQuad>(stateOut, taps, sectionCount, delayLine);
}

OrbStatus legacy90orbsIIRInitAlloc32sc_BiQuad_16sc(IIRState** stateOut, const Orb32sc* taps,
                                                   Orb32s sectionCount, Orb32s tapsFactor,
                                                   const Orb32sc* delayLine) {
  return InitAlloc<ComplexBiQuad>(stateOut, taps, sectionCount, delayLine, tapsFactor);
}

OrbStatus legacy90orbsIIRInitAlloc32sc_BiQuad_16sc32fc(IIRState** stateOut, const Orb32fc* taps,
                                                       Orb32s sectionCount, const Orb32sc* delayLine) {
  return InitAlloc<ComplexBiQuad>(stateOut, taps, sectionCount, delayLine);
}

OrbStatus legacy90orbsIIRFree32s_16s(IIRState* state) { return Free<RealNumbers>(state); }

OrbStatus legacy90orbsIIRFree32sc_16sc(IIRState* state) { return Free<ComplexNumbers>(state); }

}  // namespace orbs::ORBS_VARIANT
