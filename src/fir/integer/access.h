// Taps and delay line of FIR states with integer taps, read and replaced.
#ifndef ORBS_FIR_INTEGER_ACCESS_H
#define ORBS_FIR_INTEGER_ACCESS_H

#include "core/checks.h"
#include "fir/integer/state.h"

namespace orbs::ORBS_VARIANT::fir {

// dst[i] = convert(stored tap n-1-i), part by part.
template <class Kind, class Given, class Convert>
void ReadTaps(const FIRIntState* state, Given* taps, Convert convert) {
  const auto* stored = Parts(static_cast<const typename Kind::Tap*>(state->taps.In(state)));
  const Orb32s n = state->tapCount;
  for (Orb32s i = 0; i < n; ++i) {
    for (int part = 0; part < Kind::kParts; ++part) {
      Parts(taps)[int64_t{i} * Kind::kParts + part] =
          convert(stored[int64_t{n - 1 - i} * Kind::kParts + part]);
    }
  }
}

template <class Kind>
OrbStatus GetTaps(const FIRIntState* state, typename Kind::Tap* taps, Orb32s* tapsFactor) {
  ORBS_RETURN_IF_BAD(CheckStateOnly(state, Kind::kId, taps, tapsFactor));
  ReadTaps<Kind>(state, taps, [](auto tap) { return tap; });
  *tapsFactor = state->tapsFactor;
  return StatusOk;
}

template <class Kind, class Given>
OrbStatus GetQuantisedTaps(const FIRIntState* state, Given* taps) {
  ORBS_RETURN_IF_BAD(CheckStateOnly(state, Kind::kId, taps));
  const auto negated = static_cast<Orb32s>(0 - static_cast<Orb32u>(state->tapsFactor));
  const float factor = InversePowerOfTwoModulo128(negated);
  ReadTaps<Kind>(state, taps, [factor](auto tap) { return static_cast<Orb32f>(tap) * factor; });
  return StatusOk;
}

template <class Kind>
OrbStatus SetTaps(const typename Kind::Tap* taps, FIRIntState* state, Orb32s tapsFactor) {
  ORBS_RETURN_IF_BAD(CheckStateOnly(state, Kind::kId, taps));
  StoreShiftedTaps(FirIntView<Kind>{state}, taps, tapsFactor);
  return StatusOk;
}

template <class Kind, class Given>
OrbStatus SetQuantisedTaps(const Given* taps, FIRIntState* state) {
  ORBS_RETURN_IF_BAD(CheckStateOnly(state, Kind::kId, taps));
  StoreQuantisedTaps(FirIntView<Kind>{state}, taps);
  return StatusOk;
}

template <class Kind>
OrbStatus GetDlyLine(const FIRIntState* state, typename Kind::Data* delayLine) {
  ORBS_RETURN_IF_BAD(CheckStateOnly(state, Kind::kId, delayLine));
  const auto* recent =
      static_cast<const typename Kind::Data*>(state->delayLine.In(state)) + state->delayIndex;
  const Orb32s n = state->tapCount;
  for (Orb32s j = 0; j < n; ++j) delayLine[n - 1 - j] = recent[j];
  return StatusOk;
}

template <class Kind>
OrbStatus SetDlyLine(FIRIntState* state, const typename Kind::Data* delayLine) {
  ORBS_RETURN_IF_BAD(CheckStateOnly(state, Kind::kId));
  StoreIntDelay(FirIntView<Kind>{state}, delayLine);
  return StatusOk;
}

}  // namespace orbs::ORBS_VARIANT::fir

#endif
