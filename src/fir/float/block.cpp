// FIR filters with floating-point taps over blocks of samples: by inner products, or by overlap-save with a
// transform. Which of the two is chosen at each call; the delay line crosses calls on both.
#include <cstring>

#include "fir/deliver.h"
#include "fir/float/state.h"
#include "fir/stream.h"
#include "core/checks.h"
#include "boundary/exports.h"
#include "simd/sliding_products.h"

namespace orbs::ORBS_VARIANT {
namespace {

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
    ORBS_RETURN_IF_BAD(Fft::Inverse(work, engine.FftPlan(), engine.FftBuffer()));
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
  const auto byTransform = [&](Orb32s deciding) {
    return engine.HasFft() && deciding >= kFftFromSamples<Kind::kComplex>;
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
