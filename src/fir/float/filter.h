// FIR filters with floating-point taps over blocks of samples: by inner products, or by overlap-save with a
// transform. Which of the two is chosen at each call; the delay line crosses calls on both.
#ifndef ORBS_FIR_FLOAT_FILTER_H
#define ORBS_FIR_FLOAT_FILTER_H

#include <cstring>

#include "core/checks.h"
#include "fir/deliver.h"
#include "fir/float/state.h"
#include "fir/stream.h"
#include "simd/sliding_products.h"

namespace orbs::ORBS_VARIANT::fir {

// A state with floating-point taps, for the stream.
template <class Kind>
struct FloatEngine : FirView<Kind> {
  using Sample = typename Kind::Tap;
  using Data = typename Kind::Data;
  static constexpr Orb32s kVector = kFirElements<Sample>;
  // Samples before, sums of a chunk at the end: both stay in the first-level cache together.
  static constexpr Orb32s kBlock = kFirBlock - kFirChunk;

  Orb32s scaleFactor;

  Orb32s TapCount() const { return this->state->tapCount; }
  Orb32s& DelayIndex() const { return this->state->delayIndex; }
  void Widen(const Data* src, Sample* dst, Orb32s n) const { WidenSamples<Kind>(src, dst, n); }
  void Outputs(const Sample* x, Data* dst, Orb32s count) const {
    if constexpr (Kind::kWidens) {
      Sample* const sums = this->Block() + kBlock;
      SlidingProducts(x, this->Taps(), TapCount(), sums, static_cast<size_t>(count));
      Deliver(Parts(sums), Parts(dst), count * Kind::kParts, scaleFactor);
    } else {
      SlidingProducts(x, this->Taps(), TapCount(), dst, static_cast<size_t>(count));
    }
  }
};

// ---- Overlap-save ----

// Each transform of L points makes B = L-n+1 outputs: the n-1 last samples stand before B new ones, and of
// the circular convolution the first n-1 values, which have wrapped, are thrown away. In place is safe, since
// the history comes from the delay line.
template <class Kind>
OrbStatus FilterByTransform(FloatEngine<Kind> engine, const typename Kind::Data* src,
                            typename Kind::Data* dst, Orb32s count) {
  using Tap = typename Kind::Tap;
  using Fft = FirFft<Tap>;
  const Orb32s n = engine.state->tapCount;
  const Orb32s length = engine.state->fftLen;
  const Orb32s outputs = length - n + 1;
  Tap* const delay = PullDelay(engine);
  Tap* const work = engine.Work();
  while (count > 0) {
    const Orb32s c = count < outputs ? count : outputs;
    Copy(delay + 1, work, n - 1);
    WidenSamples<Kind>(src, work + (n - 1), c);
    Copy(work + (c - 1), delay, n);
    std::memset(static_cast<void*>(work + (n - 1 + c)), 0, static_cast<size_t>(outputs - c) * sizeof(Tap));
    ORBS_RETURN_IF_BAD(Fft::Forward(work, work, engine.FftPlan(), engine.FftBuffer()));
    Fft::Multiply(engine.Spectrum(), work, length);
    ORBS_RETURN_IF_BAD(Fft::Inverse(work, work, engine.FftPlan(), engine.FftBuffer()));
    Deliver(Parts(work + (n - 1)), Parts(dst), c * Kind::kParts, engine.scaleFactor);
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
  const FloatEngine<Kind> engine{{state}, scaleFactor};
  const auto byTransform = [&](Orb32s samples) {
    return engine.HasFft() && samples >= kFftFromSamples<Kind::kComplex>;
  };
  if constexpr (!Kind::kWidens) {
    if (src != dst) {
      if (byTransform(count)) return FilterByTransform(engine, src, dst, count);
      FilterFromSource(engine, src, dst, count);
      return StatusOk;
    }
    // In place the samples behind a chunk decide on its path.
    while (count > 0) {
      const Orb32s c = count < kInPlaceChunk ? count : kInPlaceChunk;
      if (byTransform(count - c)) {
        ORBS_RETURN_IF_BAD(FilterByTransform(engine, src, dst, c));
      } else {
        FilterThroughBuffer(engine, src, dst, c);
      }
      src += c;
      dst += c;
      count -= c;
    }
    return StatusOk;
  } else {
    if (byTransform(count)) return FilterByTransform(engine, src, dst, count);
    FilterThroughBuffer(engine, src, dst, count);
    return StatusOk;
  }
}

template <class Kind>
OrbStatus FilterInPlace(typename Kind::Data* srcDst, Orb32s count, FIRFloatState* state,
                        Orb32s scaleFactor = 0) {
  return Filter<Kind>(srcDst, srcDst, count, state, scaleFactor);
}

}  // namespace orbs::ORBS_VARIANT::fir

#endif
