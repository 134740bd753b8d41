// The delay line of an IIR state as it crosses the interface, and which states a function takes.
#ifndef ORBS_IIR_INTERFACE_H
#define ORBS_IIR_INTERFACE_H

#include <cstring>

#include "core/checks.h"
#include "iir/state/state.h"

namespace orbs::ORBS_VARIANT::iir {

// The words at the interface are the bits of the elements. Null stands for zeros.
template <class Kind>
void StoreDelay(IirView<Kind> view, const typename Kind::IntegerTap* delayLine) {
  static_assert(sizeof(typename Kind::IntegerTap) == sizeof(typename Kind::Work));
  const size_t bytes = static_cast<size_t>(view.state->delayLen) * sizeof(typename Kind::Work);
  if (delayLine == nullptr) {
    std::memset(static_cast<void*>(view.Delay()), 0, bytes);
  } else {
    std::memcpy(static_cast<void*>(view.Delay()), delayLine, bytes);
  }
}

template <class Numbers>
ORBS_INLINE bool IsCascade(const IIRState* state) {
  return HasIdentity(state, CascadeOf<Numbers>::kId);
}

// One function serves both kinds of its data type: pointers, count, identity.
template <class Numbers, class... Data>
ORBS_INLINE OrbStatus CheckKinds(const IIRState* state, Orb32s count, const Data*... data) {
  if (state == nullptr || AnyNull(data...)) return StatusNullPointer;
  return CheckState(state,
                    IsCascade<Numbers>(state) ? CascadeOf<Numbers>::kId : ArbitraryOrderOf<Numbers>::kId,
                    count, data...);
}
template <class Numbers>
ORBS_INLINE OrbStatus CheckKinds(const IIRState* state) {
  return CheckKinds<Numbers>(state, 1);
}

}  // namespace orbs::ORBS_VARIANT::iir

#endif
