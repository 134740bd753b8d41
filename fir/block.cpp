// FIR filters with floating-point taps over blocks of samples: by inner products, or by overlap-save with a
// transform. Which of the two is chosen at each call; the delay line crosses calls on both.
#include <cstring>

#include "fir/block_kernels.h"
#include "fir/deliver.h"
#include "fir/float_state.h"
#include "frame/checks.h"
#include "frame/exports.h"

namespace orbs::ORBS_VARIANT {
namespace {

template <class T>
ORBS_INLINE void Copy(const T* src, T* dst, int64_t n) {
  std::memcpy(static_cast<void*>(dst), src, static_cast<size_t>(n) * sizeof(T));
}

// Brings the n most recent samples to the start of the delay line.
template <class Kind>
typename Kind::Tap* PullDelay(FirView<Kind> view) {
  auto* const delay = view.Delay();
  const Orb32s index = view.state->delayIndex;
  if (index != 0) {
    std::memmove(static_cast<void*>(delay), delay + index,
                 static_cast<size_t>(view.state->tapCount) * sizeof *delay);
    view.state->delayIndex = 0;
  }
  return delay;
}

// ---- Inner products ----

// Taps and data of one type, results elsewhere than the source: all but the first outputs are made straight
// from the source.
template <class Kind>
void FilterFromSource(FirView<Kind> view, const typename Kind::Tap* src, typename Kind::Tap* dst,
                      Orb32s count) {
  using Tap = typename Kind::Tap;
  const Orb32s n = view.state->tapCount;
  Tap* const delay = view.Delay();
  Tap* const recent = delay + view.state->delayIndex;
  view.state->delayIndex = 0;
  const int64_t room = FirDelayRoom<Tap>(n);
  if (count <= room) {
    Copy(src, recent + n, count);
    FirSums(recent + 1, view.Taps(), n, dst, static_cast<size_t>(count));
    std::memmove(static_cast<void*>(delay), recent + count, static_cast<size_t>(n) * sizeof(Tap));
    return;
  }
  // In the vector variants a vector of outputs fewer than room, so that at least a vector is left to the
  // source.
  const int64_t first = kIsPx ? (int64_t{n} + 3) & ~3 : int64_t{n} + kFirElements<Tap>;
  Copy(src, recent + n, room);
  FirSums(recent + 1, view.Taps(), n, dst, static_cast<size_t>(first));
  Copy(src + count - n, delay, n);
  FirSums(src + (first - n + 1), view.Taps(), n, dst + first, static_cast<size_t>(count - first));
}

// Everything else: the samples of a chunk go, widened, behind their history into an array of the state's own.
// In place is safe, since a chunk has been read when its results are written.
template <class Kind>
void FilterThroughBuffer(FirView<Kind> view, const typename Kind::Data* src, typename Kind::Data* dst,
                         Orb32s count, [[maybe_unused]] Orb32s scaleFactor) {
  using Tap = typename Kind::Tap;
  // Samples and sums of a chunk stay in the first-level cache together.
  constexpr Orb32s kChunk = 1024;
  constexpr Orb32s kSpare = 3 * kFirElements<Tap>;  // read in whole vectors, never used
  const Orb32s n = view.state->tapCount;
  Tap* const delay = PullDelay(view);
  // Sums at the end of the block buffer, samples before them; a history too long for that stays in the delay
  // line, which has room for as many again.
  [[maybe_unused]] Tap* const sums = view.Block() + (kFirBlock - kChunk);
  const bool inBlock = n <= kFirBlock - 2 * kChunk - kSpare;
  Tap* const samples = inBlock ? view.Block() : delay;
  const Orb32s chunk =
      inBlock ? kChunk : static_cast<Orb32s>(FirDelayRoom<Tap>(n) < kChunk ? FirDelayRoom<Tap>(n) : kChunk);
  if (inBlock) Copy(delay, samples, n);
  while (count > 0) {
    const Orb32s c = count < chunk ? count : chunk;
    WidenSamples<Kind>(src, samples + n, c);
    if constexpr (Kind::kWidens) {
      FirSums(samples + 1, view.Taps(), n, sums, static_cast<size_t>(c));
      Deliver(Parts(sums), Parts(dst), c * Kind::kParts, scaleFactor);
    } else {
      FirSums(samples + 1, view.Taps(), n, dst, static_cast<size_t>(c));
    }
    std::memmove(static_cast<void*>(samples), samples + c, static_cast<size_t>(n) * sizeof(Tap));
    src += c;
    dst += c;
    count -= c;
  }
  if (inBlock) Copy(samples, delay, n);
}

// ---- Overlap-save ----

// Each transform of L points makes B = L-n+1 outputs: the n-1 last samples stand before B new ones, and of
// the circular convolution the first n-1 values, which have wrapped, are thrown away. In place is safe, since
// the history comes from the delay line.
template <class Kind>
OrbStatus FilterByTransform(FirView<Kind> view, const typename Kind::Data* src, typename Kind::Data* dst,
                            Orb32s count, Orb32s scaleFactor) {
  using Tap = typename Kind::Tap;
  using Fft = FirFft<Tap>;
  const Orb32s n = view.state->tapCount;
  const Orb32s length = view.state->fftLen;
  const Orb32s outputs = length - n + 1;
  Tap* const delay = PullDelay(view);
  Tap* const work = view.Work();
  while (count > 0) {
    const Orb32s c = count < outputs ? count : outputs;
    Copy(delay + 1, work, n - 1);
    WidenSamples<Kind>(src, work + (n - 1), c);
    Copy(work + (c - 1), delay, n);
    std::memset(static_cast<void*>(work + (n - 1 + c)), 0, static_cast<size_t>(outputs - c) * sizeof(Tap));
    ORBS_RETURN_IF_BAD(Fft::Forward(work, work, view.FftPlan(), view.FftBuffer()));
    Fft::Multiply(view.Spectrum(), work, length);
    ORBS_RETURN_IF_BAD(Fft::Inverse(work, view.FftPlan(), view.FftBuffer()));
    Deliver(Parts(work + (n - 1)), Parts(dst), c * Kind::kParts, scaleFactor);
    src += c;
    dst += c;
    count -= c;
  }
  return StatusOk;
}

// ---- The choice ----

template <class Kind>
OrbStatus Filter(const typename Kind::Data* src, typename Kind::Data* dst, Orb32s count, FIRFloatState* state,
                 Orb32s scaleFactor = 0) {
  ORBS_RETURN_IF_BAD(CheckState(state, Kind::kId, count, src, dst));
  const FirView<Kind> view{state};
  const auto byTransform = [&](Orb32s deciding) {
    return view.HasFft() && deciding >= kFftFromSamples<Kind::kComplex>;
  };
  if constexpr (!Kind::kWidens) {
    if (src != dst) {
      if (byTransform(count)) return FilterByTransform(view, src, dst, count, 0);
      FilterFromSource(view, src, dst, count);
      return StatusOk;
    }
    // In place the samples behind a chunk decide on its path.
    while (count > 0) {
      const Orb32s c = count < kInPlaceChunk ? count : kInPlaceChunk;
      if (byTransform(count - c)) {
        ORBS_RETURN_IF_BAD(FilterByTransform(view, src, dst, c, 0));
      } else {
        FilterThroughBuffer(view, src, dst, c, 0);
      }
      src += c;
      dst += c;
      count -= c;
    }
    return StatusOk;
  } else {
    if (byTransform(count)) return FilterByTransform(view, src, dst, count, scaleFactor);
    FilterThroughBuffer(view, src, dst, count, scaleFactor);
    return StatusOk;
  }
}

template <class Kind>
OrbStatus FilterInPlace(typename Kind::Data* srcDst, Orb32s count, FIRFloatState* state,
                        Orb32s scaleFactor = 0) {
  return Filter<Kind>(srcDst, srcDst, count, state, scaleFactor);
}

}  // namespace

OrbStatus legacy90orbsFIR_32f(const Orb32f* src, Orb32f* dst, Orb32s sampleCount, FIRFloatState* state) {
  return Filter<Fir32f>(src, dst, sampleCount, state);
}

OrbStatus legacy90orbsFIR_32f_I(Orb32f* srcDst, Orb32s sampleCount, FIRFloatState* state) {
  return FilterInPlace<Fir32f>(srcDst, sampleCount, state);
}

OrbStatus legacy90orbsFIR_32fc(const Orb32fc* src, Orb32fc* dst, Orb32s sampleCount, FIRFloatState* state) {
  return Filter<Fir32fc>(src, dst, sampleCount, state);
}

OrbStatus legacy90orbsFIR_32fc_I(Orb32fc* srcDst, Orb32s sampleCount, FIRFloatState* state) {
  return FilterInPlace<Fir32fc>(srcDst, sampleCount, state);
}

OrbStatus legacy90orbsFIR_64f(const Orb64f* src, Orb64f* dst, Orb32s sampleCount, FIRFloatState* state) {
  return Filter<Fir64f>(src, dst, sampleCount, state);
}

OrbStatus legacy90orbsFIR_64f_I(Orb64f* srcDst, Orb32s sampleCount, FIRFloatState* state) {
  return FilterInPlace<Fir64f>(srcDst, sampleCount, state);
}

OrbStatus legacy90orbsFIR_64fc(const Orb64fc* src, Orb64fc* dst, Orb32s sampleCount, FIRFloatState* state) {
  return Filter<Fir64fc>(src, dst, sampleCount, state);
}

OrbStatus legacy90orbsFIR_64fc_I(Orb64fc* srcDst, Orb32s sampleCount, FIRFloatState* state) {
  return FilterInPlace<Fir64fc>(srcDst, sampleCount, state);
}

OrbStatus legacy90orbsFIR32f_16s_Sfs(const Orb16s* src, Orb16s* dst, Orb32s sampleCount, FIRFloatState* state,
                                     Orb32s scaleFactor) {
  return Filter<Fir32f_16s>(src, dst, sampleCount, state, scaleFactor);
}

OrbStatus legacy90orbsFIR32f_16s_ISfs(Orb16s* srcDst, Orb32s sampleCount, FIRFloatState* state,
                                      Orb32s scaleFactor) {
  return FilterInPlace<Fir32f_16s>(srcDst, sampleCount, state, scaleFactor);
}

OrbStatus legacy90orbsFIR32fc_16sc_Sfs(const Orb16sc* src, Orb16sc* dst, Orb32s sampleCount,
                                       FIRFloatState* state, Orb32s scaleFactor) {
  return Filter<Fir32fc_16sc>(src, dst, sampleCount, state, scaleFactor);
}

OrbStatus legacy90orbsFIR32fc_16sc_ISfs(Orb16sc* srcDst, Orb32s sampleCount, FIRFloatState* state,
                                        Orb32s scaleFactor) {
  return FilterInPlace<Fir32fc_16sc>(srcDst, sampleCount, state, scaleFactor);
}

OrbStatus legacy90orbsFIR64f_32f(const Orb32f* src, Orb32f* dst, Orb32s sampleCount, FIRFloatState* state) {
  return Filter<Fir64f_32f>(src, dst, sampleCount, state);
}

OrbStatus legacy90orbsFIR64f_32f_I(Orb32f* srcDst, Orb32s sampleCount, FIRFloatState* state) {
  return FilterInPlace<Fir64f_32f>(srcDst, sampleCount, state);
}

OrbStatus legacy90orbsFIR64fc_32fc(const Orb32fc* src, Orb32fc* dst, Orb32s sampleCount,
                                   FIRFloatState* state) {
  return Filter<Fir64fc_32fc>(src, dst, sampleCount, state);
}

OrbStatus legacy90orbsFIR64fc_32fc_I(Orb32fc* srcDst, Orb32s sampleCount, FIRFloatState* state) {
  return FilterInPlace<Fir64fc_32fc>(srcDst, sampleCount, state);
}

OrbStatus legacy90orbsFIR64f_32s_Sfs(const Orb32s* src, Orb32s* dst, Orb32s sampleCount, FIRFloatState* state,
                                     Orb32s scaleFactor) {
  return Filter<Fir64f_32s>(src, dst, sampleCount, state, scaleFactor);
}

OrbStatus legacy90orbsFIR64f_32s_ISfs(Orb32s* srcDst, Orb32s sampleCount, FIRFloatState* state,
                                      Orb32s scaleFactor) {
  return FilterInPlace<Fir64f_32s>(srcDst, sampleCount, state, scaleFactor);
}

OrbStatus legacy90orbsFIR64fc_32sc_Sfs(const Orb32sc* src, Orb32sc* dst, Orb32s sampleCount,
                                       FIRFloatState* state, Orb32s scaleFactor) {
  return Filter<Fir64fc_32sc>(src, dst, sampleCount, state, scaleFactor);
}

OrbStatus legacy90orbsFIR64fc_32sc_ISfs(Orb32sc* srcDst, Orb32s sampleCount, FIRFloatState* state,
                                        Orb32s scaleFactor) {
  return FilterInPlace<Fir64fc_32sc>(srcDst, sampleCount, state, scaleFactor);
}

OrbStatus legacy90orbsFIR64f_16s_Sfs(const Orb16s* src, Orb16s* dst, Orb32s sampleCount, FIRFloatState* state,
                                     Orb32s scaleFactor) {
  return Filter<Fir64f_16s>(src, dst, sampleCount, state, scaleFactor);
}

OrbStatus legacy90orbsFIR64f_16s_ISfs(Orb16s* srcDst, Orb32s sampleCount, FIRFloatState* state,
                                      Orb32s scaleFactor) {
  return FilterInPlace<Fir64f_16s>(srcDst, sampleCount, state, scaleFactor);
}

OrbStatus legacy90orbsFIR64fc_16sc_Sfs(const Orb16sc* src, Orb16sc* dst, Orb32s sampleCount,
                                       FIRFloatState* state, Orb32s scaleFactor) {
  return Filter<Fir64fc_16sc>(src, dst, sampleCount, state, scaleFactor);
}

OrbStatus legacy90orbsFIR64fc_16sc_ISfs(Orb16sc* srcDst, Orb32s sampleCount, FIRFloatState* state,
                                        Orb32s scaleFactor) {
  return FilterInPlace<Fir64fc_16sc>(srcDst, sampleCount, state, scaleFactor);
}

OrbStatus legacy90orbsFIR_32s_Sfs(const Orb32s* src, Orb32s* dst, Orb32s sampleCount, FIRFloatState* state,
                                  Orb32s scaleFactor) {
  return Filter<Fir64f_32s>(src, dst, sampleCount, state, scaleFactor);
}

OrbStatus legacy90orbsFIR_32s_ISfs(Orb32s* srcDst, Orb32s sampleCount, FIRFloatState* state,
                                   Orb32s scaleFactor) {
  return FilterInPlace<Fir64f_32s>(srcDst, sampleCount, state, scaleFactor);
}

}  // namespace orbs::ORBS_VARIANT
