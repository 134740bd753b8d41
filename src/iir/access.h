// Coefficients and delay lines of IIR states, replaced and read while the filter runs.
#ifndef ORBS_IIR_ACCESS_H
#define ORBS_IIR_ACCESS_H

#include "iir/interface.h"

#include "iir/given_taps.h"

namespace orbs::ORBS_VARIANT::iir {

template <class Kind, class Given>
OrbStatus SetTapsOf(IIRState* state, const Given* taps, Orb32s tapsFactor) {
  const IirView<Kind> view{state};
  const GivenTaps<Kind, Given> given(taps, view.Units(), tapsFactor);
  if (given.Get() == nullptr) return StatusMemAlloc;
  return StoreTaps(view, given.Get());
}

template <class Numbers, class Given>
OrbStatus SetTaps(const Given* taps, IIRState* state, Orb32s tapsFactor = 0) {
  ORBS_RETURN_IF_BAD(CheckKinds<Numbers>(state, 1, taps));
  return IsCascade<Numbers>(state) ? SetTapsOf<CascadeOf<Numbers>>(state, taps, tapsFactor)
                                   : SetTapsOf<ArbitraryOrderOf<Numbers>>(state, taps, tapsFactor);
}

// Both kinds of a data type keep their delay line alike.
template <class Numbers>
OrbStatus GetDlyLine(const IIRState* state, typename Numbers::IntegerTap* delayLine) {
  ORBS_RETURN_IF_BAD(CheckKinds<Numbers>(state, 1, delayLine));
  std::memcpy(delayLine, state->delayLine.In(state),
              static_cast<size_t>(state->delayLen) * sizeof(typename Numbers::Work));
  return StatusOk;
}

template <class Numbers>
OrbStatus SetDlyLine(IIRState* state, const typename Numbers::IntegerTap* delayLine) {
  ORBS_RETURN_IF_BAD(CheckKinds<Numbers>(state));
  StoreDelay(IirView<ArbitraryOrderOf<Numbers>>{state}, delayLine);
  return StatusOk;
}

}  // namespace orbs::ORBS_VARIANT::iir

#endif
