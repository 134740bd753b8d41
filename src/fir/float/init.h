// The life of FIR states with floating-point taps: size, Init, InitAlloc, Free.
#ifndef ORBS_FIR_FLOAT_INIT_H
#define ORBS_FIR_FLOAT_INIT_H

#include "core/checks.h"
#include "core/memory.h"
#include "core/owned_state.h"
#include "fir/float/state.h"

namespace orbs::ORBS_VARIANT::fir {

template <class Kind>
FirFftSizes SizeFirFftOf(Orb32s n) {
  return SizeFirFft<typename Kind::Tap>(n, FirTuning<typename Kind::Tap>::kFftFromTaps);
}

template <class Kind>
OrbStatus GetStateSize(Orb32s tapCount, Orb32s* size) {
  ORBS_RETURN_IF_BAD(CheckResults(size));
  if (tapCount < 1) return StatusFirLength;
  *size = ReportedBytes(FirStateBytes<typename Kind::Tap>(tapCount, SizeFirFftOf<Kind>(tapCount)));
  return StatusOk;
}

template <class Kind>
OrbStatus Init(FIRFloatState** stateOut, const typename Kind::Tap* taps, Orb32s tapCount,
               const typename Kind::Data* delayLine, void* buffer) {
  if (AnyNull(stateOut, taps, buffer)) return StatusNullPointer;
  if (tapCount < 1) return StatusFirLength;
  auto* state = reinterpret_cast<FIRFloatState*>(
      AlignUp(static_cast<unsigned char*>(buffer), kFirAlignment<typename Kind::Tap>));
  *stateOut = state;
  Build<Kind>(state, taps, tapCount, delayLine, SizeFirFftOf<Kind>(tapCount));
  return StatusOk;
}

// A state in a block of the library's own; unlike Init, it tells of an FFT path that cannot be had.
template <class Kind, class Given>
OrbStatus Allocate(FIRFloatState** stateOut, const Given* taps, Orb32s tapCount,
                   const typename Kind::Data* delayLine, const FirFftSizes& fft, int64_t bytes) {
  return AllocateState(stateOut, bytes, [&](FIRFloatState* state) {
    return Build<Kind>(state, taps, tapCount, delayLine, fft);
  });
}

template <class Kind>
OrbStatus InitAlloc(FIRFloatState** stateOut, const typename Kind::Tap* taps, Orb32s tapCount,
                    const typename Kind::Data* delayLine) {
  if (AnyNull(stateOut, taps)) return StatusNullPointer;
  if (tapCount < 1) return StatusFirLength;
  const FirFftSizes fft = SizeFirFftOf<Kind>(tapCount);
  return Allocate<Kind>(stateOut, taps, tapCount, delayLine, fft,
                        FirStateBytes<typename Kind::Tap>(tapCount, fft));
}

template <class Kind>
OrbStatus Free(FIRFloatState* state) {
  ORBS_RETURN_IF_BAD(CheckStateOnly(state, Kind::kId));
  ReleaseState(state);
  return StatusOk;
}

// ---- 32-bit integer taps, held as 64f: a state of the kind of 64f taps and 32s data ----

inline OrbStatus GetStateSize_32s(Orb32s tapCount, Orb32s* size) {
  ORBS_RETURN_IF_BAD(CheckResults(size));
  if (tapCount < 1) return StatusFirLength;
  *size = ReportedBytes(FirBytes_32s(tapCount));
  return StatusOk;
}

// Without an FFT path, however many taps.
inline OrbStatus Init_32s(FIRFloatState** stateOut, const Orb32s* taps, Orb32s tapCount,
                          const Orb32s* delayLine, void* buffer) {
  if (AnyNull(stateOut, taps, buffer)) return StatusNullPointer;
  if (tapCount < 1) return StatusFirLength;
  auto* state =
      reinterpret_cast<FIRFloatState*>(AlignUp(static_cast<unsigned char*>(buffer), kFirAlignment_32s));
  *stateOut = state;
  Build<Fir64f_32s>(state, taps, tapCount, delayLine, FirFftSizes{});
  return StatusOk;
}

inline OrbStatus InitAlloc_32s(FIRFloatState** stateOut, const Orb32s* taps, Orb32s tapCount,
                               const Orb32s* delayLine) {
  if (AnyNull(stateOut, taps)) return StatusNullPointer;
  if (tapCount < 1) return StatusFirLength;
  const FirFftSizes fft = SizeFirFft<Orb64f>(tapCount, kFftFromTaps_32s);
  return Allocate<Fir64f_32s>(stateOut, taps, tapCount, delayLine, fft, FirStateBytes<Orb64f>(tapCount, fft));
}

}  // namespace orbs::ORBS_VARIANT::fir

#endif
