// The life of FIR states with floating-point taps: size, Init, InitAlloc, Free.
#include "fir/float/state.h"
#include "core/checks.h"
#include "boundary/exports.h"
#include "core/memory.h"
#include "core/owned_state.h"

namespace orbs::ORBS_VARIANT {
namespace {

template <class Tap>
inline constexpr uintptr_t kFirAlignment = sizeof(PartOf<Tap>) == 8 ? 32 : 16;

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

OrbStatus GetStateSize_32s(Orb32s tapCount, Orb32s* size) {
  ORBS_RETURN_IF_BAD(CheckResults(size));
  if (tapCount < 1) return StatusFirLength;
  *size = ReportedBytes(FirBytes_32s(tapCount));
  return StatusOk;
}

// Without an FFT path, however many taps.
OrbStatus Init_32s(FIRFloatState** stateOut, const Orb32s* taps, Orb32s tapCount, const Orb32s* delayLine,
                   void* buffer) {
  if (AnyNull(stateOut, taps, buffer)) return StatusNullPointer;
  if (tapCount < 1) return StatusFirLength;
  auto* state = reinterpret_cast<FIRFloatState*>(AlignUp(static_cast<unsigned char*>(buffer), 16));
  *stateOut = state;
  Build<Fir64f_32s>(state, taps, tapCount, delayLine, FirFftSizes{});
  return StatusOk;
}

OrbStatus InitAlloc_32s(FIRFloatState** stateOut, const Orb32s* taps, Orb32s tapCount,
                        const Orb32s* delayLine) {
  if (AnyNull(stateOut, taps)) return StatusNullPointer;
  if (tapCount < 1) return StatusFirLength;
  const FirFftSizes fft = SizeFirFft<Orb64f>(tapCount, kFftFromTaps_32s);
  return Allocate<Fir64f_32s>(stateOut, taps, tapCount, delayLine, fft, FirStateBytes<Orb64f>(tapCount, fft));
}

}  // namespace

OrbStatus legacy90orbsFIRGetStateSize_32f(Orb32s tapCount, Orb32s* size) {
  return GetStateSize<Fir32f>(tapCount, size);
}

OrbStatus legacy90orbsFIRGetStateSize_32fc(Orb32s tapCount, Orb32s* size) {
  return GetStateSize<Fir32fc>(tapCount, size);
}

OrbStatus legacy90orbsFIRGetStateSize_64f(Orb32s tapCount, Orb32s* size) {
  return GetStateSize<Fir64f>(tapCount, size);
}

OrbStatus legacy90orbsFIRGetStateSize_64fc(Orb32s tapCount, Orb32s* size) {
  return GetStateSize<Fir64fc>(tapCount, size);
}

OrbStatus legacy90orbsFIRGetStateSize32f_16s(Orb32s tapCount, Orb32s* size) {
  return GetStateSize<Fir32f_16s>(tapCount, size);
}

OrbStatus legacy90orbsFIRGetStateSize32fc_16sc(Orb32s tapCount, Orb32s* size) {
  return GetStateSize<Fir32fc_16sc>(tapCount, size);
}

OrbStatus legacy90orbsFIRGetStateSize64f_32f(Orb32s tapCount, Orb32s* size) {
  return GetStateSize<Fir64f_32f>(tapCount, size);
}

OrbStatus legacy90orbsFIRGetStateSize64fc_32fc(Orb32s tapCount, Orb32s* size) {
  return GetStateSize<Fir64fc_32fc>(tapCount, size);
}

OrbStatus legacy90orbsFIRGetStateSize64f_32s(Orb32s tapCount, Orb32s* size) {
  return GetStateSize<Fir64f_32s>(tapCount, size);
}

OrbStatus legacy90orbsFIRGetStateSize64fc_32sc(Orb32s tapCount, Orb32s* size) {
  return GetStateSize<Fir64fc_32sc>(tapCount, size);
}

OrbStatus legacy90orbsFIRGetStateSize64f_16s(Orb32s tapCount, Orb32s* size) {
  return GetStateSize<Fir64f_16s>(tapCount, size);
}

OrbStatus legacy90orbsFIRGetStateSize64fc_16sc(Orb32s tapCount, Orb32s* size) {
  return GetStateSize<Fir64fc_16sc>(tapCount, size);
}

OrbStatus legacy90orbsFIRGetStateSize_32s(Orb32s tapCount, Orb32s* size) {
  return GetStateSize_32s(tapCount, size);
}

OrbStatus legacy90orbsFIRInit_32f(FIRFloatState** stateOut, const Orb32f* taps, Orb32s tapCount,
                                  const Orb32f* delayLine, void* buffer) {
  return Init<Fir32f>(stateOut, taps, tapCount, delayLine, buffer);
}

OrbStatus legacy90orbsFIRInit_32fc(FIRFloatState** stateOut, const Orb32fc* taps, Orb32s tapCount,
                                   const Orb32fc* delayLine, void* buffer) {
  return Init<Fir32fc>(stateOut, taps, tapCount, delayLine, buffer);
}

OrbStatus legacy90orbsFIRInit_64f(FIRFloatState** stateOut, const Orb64f* taps, Orb32s tapCount,
                                  const Orb64f* delayLine, void* buffer) {
  return Init<Fir64f>(stateOut, taps, tapCount, delayLine, buffer);
}

OrbStatus legacy90orbsFIRInit_64fc(FIRFloatState** stateOut, const Orb64fc* taps, Orb32s tapCount,
                                   const Orb64fc* delayLine, void* buffer) {
  return Init<Fir64fc>(stateOut, taps, tapCount, delayLine, buffer);
}

OrbStatus legacy90orbsFIRInit32f_16s(FIRFloatState** stateOut, const Orb32f* taps, Orb32s tapCount,
                                     const Orb16s* delayLine, void* buffer) {
  return Init<Fir32f_16s>(stateOut, taps, tapCount, delayLine, buffer);
}

OrbStatus legacy90orbsFIRInit32fc_16sc(FIRFloatState** stateOut, const Orb32fc* taps, Orb32s tapCount,
                                       const Orb16sc* delayLine, void* buffer) {
  return Init<Fir32fc_16sc>(stateOut, taps, tapCount, delayLine, buffer);
}

OrbStatus legacy90orbsFIRInit64f_32f(FIRFloatState** stateOut, const Orb64f* taps, Orb32s tapCount,
                                     const Orb32f* delayLine, void* buffer) {
  return Init<Fir64f_32f>(stateOut, taps, tapCount, delayLine, buffer);
}

OrbStatus legacy90orbsFIRInit64fc_32fc(FIRFloatState** stateOut, const Orb64fc* taps, Orb32s tapCount,
                                       const Orb32fc* delayLine, void* buffer) {
  return Init<Fir64fc_32fc>(stateOut, taps, tapCount, delayLine, buffer);
}

OrbStatus legacy90orbsFIRInit64f_32s(FIRFloatState** stateOut, const Orb64f* taps, Orb32s tapCount,
                                     const Orb32s* delayLine, void* buffer) {
  return Init<Fir64f_32s>(stateOut, taps, tapCount, delayLine, buffer);
}

OrbStatus legacy90orbsFIRInit64fc_32sc(FIRFloatState** stateOut, const Orb64fc* taps, Orb32s tapCount,
                                       const Orb32sc* delayLine, void* buffer) {
  return Init<Fir64fc_32sc>(stateOut, taps, tapCount, delayLine, buffer);
}

OrbStatus legacy90orbsFIRInit64f_16s(FIRFloatState** stateOut, const Orb64f* taps, Orb32s tapCount,
                                     const Orb16s* delayLine, void* buffer) {
  return Init<Fir64f_16s>(stateOut, taps, tapCount, delayLine, buffer);
}

OrbStatus legacy90orbsFIRInit64fc_16sc(FIRFloatState** stateOut, const Orb64fc* taps, Orb32s tapCount,
                                       const Orb16sc* delayLine, void* buffer) {
  return Init<Fir64fc_16sc>(stateOut, taps, tapCount, delayLine, buffer);
}

OrbStatus legacy90orbsFIRInit_32s(FIRFloatState** stateOut, const Orb32s* taps, Orb32s tapCount,
                                  const Orb32s* delayLine, void* buffer) {
  return Init_32s(stateOut, taps, tapCount, delayLine, buffer);
}

OrbStatus legacy90orbsFIRInitAlloc_32f(FIRFloatState** stateOut, const Orb32f* taps, Orb32s tapCount,
                                       const Orb32f* delayLine) {
  return InitAlloc<Fir32f>(stateOut, taps, tapCount, delayLine);
}

OrbStatus legacy90orbsFIRInitAlloc_32fc(FIRFloatState** stateOut, const Orb32fc* taps, Orb32s tapCount,
                                        const Orb32fc* delayLine) {
  return InitAlloc<Fir32fc>(stateOut, taps, tapCount, delayLine);
}

OrbStatus legacy90orbsFIRInitAlloc_64f(FIRFloatState** stateOut, const Orb64f* taps, Orb32s tapCount,
                                       const Orb64f* delayLine) {
  return InitAlloc<Fir64f>(stateOut, taps, tapCount, delayLine);
}

OrbStatus legacy90orbsFIRInitAlloc_64fc(FIRFloatState** stateOut, const Orb64fc* taps, Orb32s tapCount,
                                        const Orb64fc* delayLine) {
  return InitAlloc<Fir64fc>(stateOut, taps, tapCount, delayLine);
}

OrbStatus legacy90orbsFIRInitAlloc32f_16s(FIRFloatState** stateOut, const Orb32f* taps, Orb32s tapCount,
                                          const Orb16s* delayLine) {
  return InitAlloc<Fir32f_16s>(stateOut, taps, tapCount, delayLine);
}

OrbStatus legacy90orbsFIRInitAlloc32fc_16sc(FIRFloatState** stateOut, const Orb32fc* taps, Orb32s tapCount,
                                            const Orb16sc* delayLine) {
  return InitAlloc<Fir32fc_16sc>(stateOut, taps, tapCount, delayLine);
}

OrbStatus legacy90orbsFIRInitAlloc64f_32f(FIRFloatState** stateOut, const Orb64f* taps, Orb32s tapCount,
                                          const Orb32f* delayLine) {
  return InitAlloc<Fir64f_32f>(stateOut, taps, tapCount, delayLine);
}

OrbStatus legacy90orbsFIRInitAlloc64fc_32fc(FIRFloatState** stateOut, const Orb64fc* taps, Orb32s tapCount,
                                            const Orb32fc* delayLine) {
  return InitAlloc<Fir64fc_32fc>(stateOut, taps, tapCount, delayLine);
}

OrbStatus legacy90orbsFIRInitAlloc64f_32s(FIRFloatState** stateOut, const Orb64f* taps, Orb32s tapCount,
                                          const Orb32s* delayLine) {
  return InitAlloc<Fir64f_32s>(stateOut, taps, tapCount, delayLine);
}

OrbStatus legacy90orbsFIRInitAlloc64fc_32sc(FIRFloatState** stateOut, const Orb64fc* taps, Orb32s tapCount,
                                            const Orb32sc* delayLine) {
  return InitAlloc<Fir64fc_32sc>(stateOut, taps, tapCount, delayLine);
}

OrbStatus legacy90orbsFIRInitAlloc64f_16s(FIRFloatState** stateOut, const Orb64f* taps, Orb32s tapCount,
                                          const Orb16s* delayLine) {
  return InitAlloc<Fir64f_16s>(stateOut, taps, tapCount, delayLine);
}

OrbStatus legacy90orbsFIRInitAlloc64fc_16sc(FIRFloatState** stateOut, const Orb64fc* taps, Orb32s tapCount,
                                            const Orb16sc* delayLine) {
  return InitAlloc<Fir64fc_16sc>(stateOut, taps, tapCount, delayLine);
}

OrbStatus legacy90orbsFIRInitAlloc_32s(FIRFloatState** stateOut, const Orb32s* taps, Orb32s tapCount,
                                       const Orb32s* delayLine) {
  return InitAlloc_32s(stateOut, taps, tapCount, delayLine);
}

OrbStatus legacy90orbsFIRFree_32f(FIRFloatState* state) { return Free<Fir32f>(state); }

OrbStatus legacy90orbsFIRFree_32fc(FIRFloatState* state) { return Free<Fir32fc>(state); }

OrbStatus legacy90orbsFIRFree_64f(FIRFloatState* state) { return Free<Fir64f>(state); }

OrbStatus legacy90orbsFIRFree_64fc(FIRFloatState* state) { return Free<Fir64fc>(state); }

OrbStatus legacy90orbsFIRFree32f_16s(FIRFloatState* state) { return Free<Fir32f_16s>(state); }

OrbStatus legacy90orbsFIRFree32fc_16sc(FIRFloatState* state) { return Free<Fir32fc_16sc>(state); }

OrbStatus legacy90orbsFIRFree64f_32f(FIRFloatState* state) { return Free<Fir64f_32f>(state); }

OrbStatus legacy90orbsFIRFree64fc_32fc(FIRFloatState* state) { return Free<Fir64fc_32fc>(state); }

OrbStatus legacy90orbsFIRFree64f_32s(FIRFloatState* state) { return Free<Fir64f_32s>(state); }

OrbStatus legacy90orbsFIRFree64fc_32sc(FIRFloatState* state) { return Free<Fir64fc_32sc>(state); }

OrbStatus legacy90orbsFIRFree64f_16s(FIRFloatState* state) { return Free<Fir64f_16s>(state); }

OrbStatus legacy90orbsFIRFree64fc_16sc(FIRFloatState* state) { return Free<Fir64fc_16sc>(state); }

OrbStatus legacy90orbsFIRFree_32s(FIRFloatState* state) { return Free<Fir64f_32s>(state); }

}  // namespace orbs::ORBS_VARIANT
