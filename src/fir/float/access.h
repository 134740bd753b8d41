// Taps and delay line of FIR states with floating-point taps, read and replaced.
#ifndef ORBS_FIR_FLOAT_ACCESS_H
#define ORBS_FIR_FLOAT_ACCESS_H

#include "core/checks.h"
#include "fir/float/state.h"

namespace orbs::ORBS_VARIANT::fir {

// ---- Accessors ----

template <class Kind, class Given>
OrbStatus GetTaps(const FIRFloatState* state, Given* taps) {
  ORBS_RETURN_IF_BAD(CheckStateOnly(state, Kind::kId, taps));
  ReverseConvert(static_cast<const typename Kind::Tap*>(state->taps.In(state)), taps, state->tapCount);
  return StatusOk;
}

template <class Kind, class Given>
OrbStatus SetTaps(const Given* taps, FIRFloatState* state) {
  ORBS_RETURN_IF_BAD(CheckStateOnly(state, Kind::kId, taps));
  return StoreTaps(FirView<Kind>{state}, taps);
}

template <class Kind>
OrbStatus GetDlyLine(const FIRFloatState* state, typename Kind::Data* delayLine) {
  ORBS_RETURN_IF_BAD(CheckStateOnly(state, Kind::kId, delayLine));
  const auto* delay = static_cast<const typename Kind::Tap*>(state->delayLine.In(state));
  ReverseConvert(delay + state->delayIndex, delayLine, state->delayLen);
  return StatusOk;
}

template <class Kind>
OrbStatus SetDlyLine(FIRFloatState* state, const typename Kind::Data* delayLine) {
  ORBS_RETURN_IF_BAD(CheckStateOnly(state, Kind::kId));
  StoreDelay(FirView<Kind>{state}, delayLine);
  return StatusOk;
}

}  // namespace orbs::ORBS_VARIANT::fir

#endif
