// Access to the parts of a FIR state with floating-point taps, and the conversions between the type of the
// data and that of the taps.
#ifndef ORBS_FIR_FLOAT_STATE_H
#define ORBS_FIR_FLOAT_STATE_H

#include <cstring>

#include "core/checks.h"
#include "fir/layout.h"
#include "toolkit/toolkit.h"

namespace orbs::ORBS_VARIANT::fir {

template <class Kind>
struct FirView {
  using Tap = typename Kind::Tap;
  using Plan = typename FirFft<Tap>::Plan;

  FIRFloatState* state;

  Tap* Taps() const { return static_cast<Tap*>(state->taps.In(state)); }
  Tap* Delay() const { return static_cast<Tap*>(state->delayLine.In(state)); }
  Tap* Spectrum() const { return static_cast<Tap*>(state->tapsSpectrum.In(state)); }
  Tap* Work() const { return static_cast<Tap*>(state->fftWork.In(state)); }
  Tap* Block() const { return static_cast<Tap*>(state->blockBuf.In(state)); }
  const Plan* FftPlan() const { return static_cast<const Plan*>(state->fftSpec.In(state)); }
  void* FftBuffer() const { return state->fftBuffer.In(state); }
  bool HasFft() const { return state->fftLen >= 1; }
};

// ---- Samples on their way into the delay line; exact ----

inline void Widen(const Orb32f* src, Orb32f* dst, Orb32s n) { VecCopy_32s(src, dst, n); }
inline void Widen(const Orb64f* src, Orb64f* dst, Orb32s n) { VecCopy_64s(src, dst, n); }
inline void Widen(const Orb16s* src, Orb32f* dst, Orb32s n) { VecConvert_16s32f(src, dst, n); }
inline void Widen(const Orb16s* src, Orb64f* dst, Orb32s n) { VecConvert_16s64f_Sfs(src, dst, n, 0); }
inline void Widen(const Orb32s* src, Orb64f* dst, Orb32s n) { VecConvert_32s64f(src, dst, n); }
inline void Widen(const Orb32f* src, Orb64f* dst, Orb32s n) { VecConvert_32f64f(src, dst, n); }

// n elements of the data type. The count of parts may pass 2^31, so that it goes in pieces.
template <class Kind>
void WidenSamples(const typename Kind::Data* src, typename Kind::Tap* dst, Orb32s n) {
  constexpr Orb32s kPiece = 1 << 29;
  for (; n > kPiece; n -= kPiece, src += kPiece, dst += kPiece)
    Widen(Parts(src), Parts(dst), kPiece * Kind::kParts);
  Widen(Parts(src), Parts(dst), n * Kind::kParts);
}

// ---- Conversions, element by element ----

template <class To, class From>
To ConvertPart(From x) {
  if constexpr (std::is_integral_v<To> && std::is_floating_point_v<From>) {
    // Integer data come back as the whole numbers that they are. Taps that never were integers may be asked
    // for as integers too: what has no 32-bit integer gives the lower bound, as the processor's own
    // conversion does.
    const bool inRange = x > From(-2147483648.0) - From(1) && x < From(2147483648.0);
    return static_cast<To>(inRange ? static_cast<Orb32s>(x) : INT32_MIN);
  } else {
    return static_cast<To>(x);
  }
}

// dst[i] = src[n-1-i].
template <class To, class From>
void ReverseConvert(const From* src, To* dst, Orb32s n) {
  constexpr int kParts = PartsOf<To>::kCount;
  const auto* from = Parts(src) + (int64_t{n} - 1) * kParts;
  auto* to = Parts(dst);
  for (Orb32s i = 0; i < n; ++i, from -= kParts, to += kParts) {
    for (int part = 0; part < kParts; ++part) to[part] = ConvertPart<PartOf<To>>(from[part]);
  }
}

template <class To, class From>
void CopyConvert(const From* src, To* dst, Orb32s n) {
  constexpr int kParts = PartsOf<To>::kCount;
  for (int64_t i = 0; i < int64_t{n} * kParts; ++i) Parts(dst)[i] = ConvertPart<PartOf<To>>(Parts(src)[i]);
}

// ---- Taps and delay line ----

template <class Kind>
OrbStatus TransformTaps(FirView<Kind> view) {
  return FirFft<typename Kind::Tap>::Forward(view.Spectrum(), view.Spectrum(), view.FftPlan(),
                                             view.FftBuffer());
}

// `Given` is the tap type or, for taps that come as integers, Orb32s.
template <class Kind, class Given>
OrbStatus StoreTaps(FirView<Kind> view, const Given* taps) {
  FIRFloatState* const state = view.state;
  const Orb32s n = state->tapCount;
  ReverseConvert(taps, view.Taps(), n);
  if constexpr (std::is_same_v<typename Kind::Tap, Orb32f>) {
    if (Orb64f* precise = state->preciseTaps.In(state)) ReverseConvert(taps, precise, n);
  }
  // A state below the threshold has no plan, and one whose transform has failed does not try again.
  if (state->fftSpec.bytes == 0 || state->fftLen < 1) return StatusOk;
  auto* const spectrum = view.Spectrum();
  CopyConvert(taps, spectrum, n);
  std::memset(static_cast<void*>(spectrum + n), 0, static_cast<size_t>(state->fftLen - n) * sizeof *spectrum);
  const OrbStatus status = TransformTaps(view);
  if (status != StatusOk) state->fftLen = -1;
  return status;
}

template <class Kind>
void StoreDelay(FirView<Kind> view, const typename Kind::Data* delayLine) {
  const Orb32s n = view.state->delayLen;
  view.state->delayIndex = 0;
  if (delayLine == nullptr) {
    std::memset(static_cast<void*>(view.Delay()), 0, static_cast<size_t>(n) * sizeof(typename Kind::Tap));
  } else {
    ReverseConvert(delayLine, view.Delay(), n);
  }
}

// ---- Building ----

// In a block that is large enough. If the plan or the transform of the taps fails, the state works without
// its FFT path, and the status says so.
template <class Kind, class Given>
OrbStatus Build(FIRFloatState* state, const Given* taps, Orb32s n, const typename Kind::Data* delayLine,
                const FirFftSizes& fft) {
  using Tap = typename Kind::Tap;
  const FirLayout layout = DescribeFir<Tap>(n, fft);
  // All of it, since vectors are read from behind the samples too.
  std::memset(static_cast<void*>(state), 0, static_cast<size_t>(layout.block.Bytes() - fft.Total()));
  *state = layout.offsets;
  state->id = Kind::kId;
  state->tapCount = n;
  state->delayLen = n;
  const FirView<Kind> view{state};
  StoreDelay(view, delayLine);
  OrbStatus status = StatusOk;
  if (fft.length != 0) {
    typename FirFft<Tap>::Plan* plan = nullptr;
    status = FirFft<Tap>::Init(&plan, fft.order, FftScaleInvByN, HintNone, layout.plan.In(state),
                               layout.init.In(state));
    if (status == StatusOk) {
      state->fftSpec.bytes = static_cast<Orb32s>(reinterpret_cast<unsigned char*>(plan) -
                                                 reinterpret_cast<unsigned char*>(state));
    }
  }
  const OrbStatus stored = StoreTaps(view, taps);
  if (status == StatusOk) status = stored;
  if (status != StatusOk) {
    state->fftLen = -1;
    state->fftSpec.bytes = 0;
    state->tapsSpectrum.bytes = 0;
  }
  return status;
}

}  // namespace orbs::ORBS_VARIANT::fir

#endif
