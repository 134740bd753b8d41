// The life of IIR states: size, Init, InitAlloc, Free.
#ifndef ORBS_IIR_INIT_H
#define ORBS_IIR_INIT_H

#include "core/checks.h"
#include "core/owned_state.h"
#include "iir/given_taps.h"
#include "iir/interface.h"

namespace orbs::ORBS_VARIANT::iir {

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

using RealArbitraryOrder = ArbitraryOrderOf<RealNumbers>;
using RealBiQuad = CascadeOf<RealNumbers>;
using ComplexArbitraryOrder = ArbitraryOrderOf<ComplexNumbers>;
using ComplexBiQuad = CascadeOf<ComplexNumbers>;

}  // namespace orbs::ORBS_VARIANT::iir

#endif
