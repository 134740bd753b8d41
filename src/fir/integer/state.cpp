// The life of FIR states with integer taps, and their accessors.
#include "fir/integer/state.h"

#include "core/checks.h"
#include "boundary/exports.h"
#include "core/memory.h"
#include "core/owned_state.h"

namespace orbs::ORBS_VARIANT {
namespace {

template <class Kind>
OrbStatus GetStateSize(Orb32s tapCount, Orb32s* size) {
  ORBS_RETURN_IF_BAD(CheckResults(size));
  if (tapCount < 1) return StatusFirLength;
  const int64_t bytes = FirIntStateBytes<Kind>(tapCount);
  *size = bytes > INT32_MAX ? INT32_MAX : static_cast<Orb32s>(bytes);
  return StatusOk;
}

// ---- Building: in memory of the caller, and in the library's own. `store` puts the taps in. ----

template <class Kind, class Given, class Store>
OrbStatus InitWith(FIRIntState** stateOut, const Given* taps, Orb32s tapCount,
                   const typename Kind::Data* delayLine, void* buffer, Store store) {
  if (AnyNull(stateOut, taps, buffer)) return StatusNullPointer;
  if (tapCount < 1) return StatusFirLength;
  auto* state = reinterpret_cast<FIRIntState*>(AlignUp(static_cast<unsigned char*>(buffer), 16));
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

// ---- Accessors ----

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

}  // namespace

OrbStatus legacy90orbsFIRGetStateSize_16s(Orb32s tapCount, Orb32s* size) {
  return GetStateSize<Fir16s>(tapCount, size);
}

OrbStatus legacy90orbsFIRGetStateSize32s_16s(Orb32s tapCount, Orb32s* size) {
  return GetStateSize<Fir32s_16s>(tapCount, size);
}

OrbStatus legacy90orbsFIRGetStateSize32sc_16sc(Orb32s tapCount, Orb32s* size) {
  return GetStateSize<Fir32sc_16sc>(tapCount, size);
}

OrbStatus legacy90orbsFIRGetStateSize32s_16s32f(Orb32s tapCount, Orb32s* size) {
  return GetStateSize<Fir32s_16s>(tapCount, size);
}

OrbStatus legacy90orbsFIRGetStateSize32sc_16sc32fc(Orb32s tapCount, Orb32s* size) {
  return GetStateSize<Fir32sc_16sc>(tapCount, size);
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

OrbStatus legacy90orbsFIRGetTaps_16s(const FIRIntState* state, Orb16s* taps, Orb32s* tapsFactor) {
  return GetTaps<Fir16s>(state, taps, tapsFactor);
}

OrbStatus legacy90orbsFIRGetTaps32s_16s(const FIRIntState* state, Orb32s* taps, Orb32s* tapsFactor) {
  return GetTaps<Fir32s_16s>(state, taps, tapsFactor);
}

OrbStatus legacy90orbsFIRGetTaps32sc_16sc(const FIRIntState* state, Orb32sc* taps, Orb32s* tapsFactor) {
  return GetTaps<Fir32sc_16sc>(state, taps, tapsFactor);
}

OrbStatus legacy90orbsFIRGetTaps32s_16s32f(const FIRIntState* state, Orb32f* taps) {
  return GetQuantisedTaps<Fir32s_16s, Orb32f>(state, taps);
}

OrbStatus legacy90orbsFIRGetTaps32sc_16sc32fc(const FIRIntState* state, Orb32fc* taps) {
  return GetQuantisedTaps<Fir32sc_16sc, Orb32fc>(state, taps);
}

OrbStatus legacy90orbsFIRSetTaps_16s(const Orb16s* taps, FIRIntState* state, Orb32s tapsFactor) {
  return SetTaps<Fir16s>(taps, state, tapsFactor);
}

OrbStatus legacy90orbsFIRSetTaps32s_16s(const Orb32s* taps, FIRIntState* state, Orb32s tapsFactor) {
  return SetTaps<Fir32s_16s>(taps, state, tapsFactor);
}

OrbStatus legacy90orbsFIRSetTaps32sc_16sc(const Orb32sc* taps, FIRIntState* state, Orb32s tapsFactor) {
  return SetTaps<Fir32sc_16sc>(taps, state, tapsFactor);
}

OrbStatus legacy90orbsFIRSetTaps32s_16s32f(const Orb32f* taps, FIRIntState* state) {
  return SetQuantisedTaps<Fir32s_16s, Orb32f>(taps, state);
}

OrbStatus legacy90orbsFIRSetTaps32sc_16sc32fc(const Orb32fc* taps, FIRIntState* state) {
  return SetQuantisedTaps<Fir32sc_16sc, Orb32fc>(taps, state);
}

OrbStatus legacy90orbsFIRGetDlyLine_16s(const FIRIntState* state, Orb16s* delayLine) {
  return GetDlyLine<Fir16s>(state, delayLine);
}

OrbStatus legacy90orbsFIRGetDlyLine32s_16s(const FIRIntState* state, Orb16s* delayLine) {
  return GetDlyLine<Fir32s_16s>(state, delayLine);
}

OrbStatus legacy90orbsFIRGetDlyLine32sc_16sc(const FIRIntState* state, Orb16sc* delayLine) {
  return GetDlyLine<Fir32sc_16sc>(state, delayLine);
}

OrbStatus legacy90orbsFIRSetDlyLine_16s(FIRIntState* state, const Orb16s* delayLine) {
  return SetDlyLine<Fir16s>(state, delayLine);
}

OrbStatus legacy90orbsFIRSetDlyLine32s_16s(FIRIntState* state, const Orb16s* delayLine) {
  return SetDlyLine<Fir32s_16s>(state, delayLine);
}

OrbStatus legacy90orbsFIRSetDlyLine32sc_16sc(FIRIntState* state, const Orb16sc* delayLine) {
  return SetDlyLine<Fir32sc_16sc>(state, delayLine);
}

}  // namespace orbs::ORBS_VARIANT
