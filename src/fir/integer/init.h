// The life of FIR states with integer taps: size, Init, InitAlloc, Free.
#ifndef ORBS_FIR_INTEGER_INIT_H
#define ORBS_FIR_INTEGER_INIT_H

#include "fir/integer/state.h"

#include "core/checks.h"
#include "core/memory.h"
#include "core/owned_state.h"

namespace orbs::ORBS_VARIANT::fir {

template <class Kind>
OrbStatus GetIntStateSize(Orb32s tapCount, Orb32s* size) {
  ORBS_RETURN_IF_BAD(CheckResults(size));
  if (tapCount < 1) return StatusFirLength;
  *size = ReportedBytes(FirIntStateBytes<Kind>(tapCount));
  return StatusOk;
}

// ---- Building: in memory of the caller, and in the library's own. `store` puts the taps in. ----

template <class Kind, class Given, class Store>
OrbStatus InitWith(FIRIntState** stateOut, const Given* taps, Orb32s tapCount,
                   const typename Kind::Data* delayLine, void* buffer, Store store) {
  if (AnyNull(stateOut, taps, buffer)) return StatusNullPointer;
  if (tapCount < 1) return StatusFirLength;
  auto* state =
      reinterpret_cast<FIRIntState*>(AlignUp(static_cast<unsigned char*>(buffer), kFirIntAlignment));
  *stateOut = state;
  store(BuildFirInt<Kind>(state, tapCount, delayLine));
  return StatusOk;
}

template <class Kind, class Given, class Store>
OrbStatus AllocateWith(FIRIntState** stateOut, const Given* taps, Orb32s tapCount,
                       const typename Kind::Data* delayLine, Store store) {
  if (AnyNull(stateOut, taps)) return StatusNullPointer;
  if (tapCount < 1) return StatusFirLength;
  return AllocateState(stateOut, FirIntStateBytes<Kind>(tapCount), [&](FIRIntState* state) {
    store(BuildFirInt<Kind>(state, tapCount, delayLine));
    return StatusOk;
  });
}

template <class Kind>
OrbStatus Init(FIRIntState** stateOut, const typename Kind::Tap* taps, Orb32s tapCount, Orb32s tapsFactor,
               const typename Kind::Data* delayLine, void* buffer) {
  return InitWith<Kind>(stateOut, taps, tapCount, delayLine, buffer,
                        [=](FirIntView<Kind> view) { StoreShiftedTaps(view, taps, tapsFactor); });
}

template <class Kind>
OrbStatus InitAlloc(FIRIntState** stateOut, const typename Kind::Tap* taps, Orb32s tapCount,
                    Orb32s tapsFactor, const typename Kind::Data* delayLine) {
  return AllocateWith<Kind>(stateOut, taps, tapCount, delayLine,
                            [=](FirIntView<Kind> view) { StoreShiftedTaps(view, taps, tapsFactor); });
}

template <class Kind, class Given>
OrbStatus InitQuantised(FIRIntState** stateOut, const Given* taps, Orb32s tapCount,
                        const typename Kind::Data* delayLine, void* buffer) {
  return InitWith<Kind>(stateOut, taps, tapCount, delayLine, buffer,
                        [=](FirIntView<Kind> view) { StoreQuantisedTaps(view, taps); });
}

template <class Kind, class Given>
OrbStatus InitAllocQuantised(FIRIntState** stateOut, const Given* taps, Orb32s tapCount,
                             const typename Kind::Data* delayLine) {
  return AllocateWith<Kind>(stateOut, taps, tapCount, delayLine,
                            [=](FirIntView<Kind> view) { StoreQuantisedTaps(view, taps); });
}

template <class Kind>
OrbStatus Free(FIRIntState* state) {
  ORBS_RETURN_IF_BAD(CheckStateOnly(state, Kind::kId));
  ReleaseState(state);
  return StatusOk;
}

}  // namespace orbs::ORBS_VARIANT::fir

#endif
