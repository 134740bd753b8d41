// The life of IIR states: size, Init, InitAlloc, Free.
#include "core/checks.h"
#include "boundary/exports.h"
#include "core/owned_state.h"
#include "iir/access.h"
#include "iir/given_taps.h"

namespace orbs::ORBS_VARIANT {
namespace {

template <class Kind>
OrbStatus GetStateSize(Orb32s units, Orb32s* size) {
  ORBS_RETURN_IF_BAD(CheckResults(size));
  if (units < 1) return StatusIirOrder;
  *size = ReportedBytes(IirStateBytes<Kind>(units));
  return StatusOk;
}

// In a block that is large enough.
template <class Kind>
OrbStatus Build(IIRState* state, const IirLayout& layout, const typename Kind::Work* taps, Orb32s units,
                const typename Kind::IntegerTap* delayLine) {
  *state = layout.offsets;
  state->id = Kind::kId;
  state->delayLen = Kind::kCascade ? 2 * units : units;
  state->sectionCount = Kind::kCascade ? units : 0;
  const IirView<Kind> view{state};
  StoreDelay(view, delayLine);
  if (!Kind::kCascade) view.Delay()[units] = {};
  return StoreTaps(view, taps);
}

// `Given` is the type of the taps; integers come with their factor.
template <class Kind, class Given>
OrbStatus Init(IIRState** stateOut, const Given* taps, Orb32s units,
               const typename Kind::IntegerTap* delayLine, void* buffer, Orb32s tapsFactor = 0) {
  if (AnyNull(stateOut, taps, buffer)) return StatusNullPointer;
  if (units < 1) return StatusIirOrder;
  const IirLayout layout = DescribeIir<Kind>(units);
  if (!layout.block.Fits()) return StatusMemAlloc;
  const GivenTaps<Kind, Given> given(taps, units, tapsFactor);
  if (given.Get() == nullptr) return StatusMemAlloc;
  auto* state = reinterpret_cast<IIRState*>(AlignUp(static_cast<unsigned char*>(buffer), kIirAlignment));
  *stateOut = state;
  return Build<Kind>(state, layout, given.Get(), units, delayLine);
}

template <class Kind, class Given>
OrbStatus InitAlloc(IIRState** stateOut, const Given* taps, Orb32s units,
                    const typename Kind::IntegerTap* delayLine, Orb32s tapsFactor = 0) {
  if (AnyNull(stateOut, taps)) return StatusNullPointer;
  if (units < 1) return StatusIirOrder;
  return AllocateState(stateOut, IirStateBytes<Kind>(units), [=](IIRState* state) {
    return Init<Kind>(&state, taps, units, delayLine, state, tapsFactor);
  });
}

template <class Numbers>
OrbStatus Free(IIRState* state) {
  ORBS_RETURN_IF_BAD(CheckKinds<Numbers>(state));
  ReleaseState(state);
  return StatusOk;
}

using Real = ArbitraryOrderOf<RealNumbers>;
using RealBiQuad = CascadeOf<RealNumbers>;
using Complex = ArbitraryOrderOf<ComplexNumbers>;
using ComplexBiQuad = CascadeOf<ComplexNumbers>;

}  // namespace

OrbStatus legacy90orbsIIRGetStateSize32s_16s(Orb32s order, Orb32s* size) {
  return GetStateSize<Real>(order, size);
}

OrbStatus legacy90orbsIIRGetStateSize32s_16s32f(Orb32s order, Orb32s* size) {
  return GetStateSize<Real>(order, size);
}

OrbStatus legacy90orbsIIRGetStateSize32sc_16sc(Orb32s order, Orb32s* size) {
  return GetStateSize<Complex>(order, size);
}

OrbStatus legacy90orbsIIRGetStateSize32sc_16sc32fc(Orb32s order, Orb32s* size) {
  return GetStateSize<Complex>(order, size);
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
  return Init<Real>(stateOut, taps, order, delayLine, buffer, tapsFactor);
}

OrbStatus legacy90orbsIIRInit32s_16s32f(IIRState** stateOut, const Orb32f* taps, Orb32s order,
                                        const Orb32s* delayLine, void* buffer) {
  return Init<Real>(stateOut, taps, order, delayLine, buffer);
}

OrbStatus legacy90orbsIIRInit32sc_16sc(IIRState** stateOut, const Orb32sc* taps, Orb32s order,
                                       Orb32s tapsFactor, const Orb32sc* delayLine, void* buffer) {
  return Init<Complex>(stateOut, taps, order, delayLine, buffer, tapsFactor);
}

OrbStatus legacy90orbsIIRInit32sc_16sc32fc(IIRState** stateOut, const Orb32fc* taps, Orb32s order,
                                           const Orb32sc* delayLine, void* buffer) {
  return Init<Complex>(stateOut, taps, order, delayLine, buffer);
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
  return InitAlloc<Real>(stateOut, taps, order, delayLine, tapsFactor);
}

OrbStatus legacy90orbsIIRInitAlloc32s_16s32f(IIRState** stateOut, const Orb32f* taps, Orb32s order,
                                             const Orb32s* delayLine) {
  return InitAlloc<Real>(stateOut, taps, order, delayLine);
}

OrbStatus legacy90orbsIIRInitAlloc32sc_16sc(IIRState** stateOut, const Orb32sc* taps, Orb32s order,
                                            Orb32s tapsFactor, const Orb32sc* delayLine) {
  return InitAlloc<Complex>(stateOut, taps, order, delayLine, tapsFactor);
}

OrbStatus legacy90orbsIIRInitAlloc32sc_16sc32fc(IIRState** stateOut, const Orb32fc* taps, Orb32s order,
                                                const Orb32sc* delayLine) {
  return InitAlloc<Complex>(stateOut, taps, order, delayLine);
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
