// The inner product of one output with taps and samples as a caller of the direct forms keeps them: taps in
// natural order, so that they are turned around on the way, and no element behind either array that could be
// read.
#ifndef ORBS_FIR_DIRECT_KERNELS_H
#define ORBS_FIR_DIRECT_KERNELS_H

#include "fir/one_kernels.h"
#include "frame/blocks.h"
#include "frame/simd.h"

#if ORBS_VECTOR

namespace orbs::ORBS_VARIANT {

// ---- The vectors that a part of a tap is multiplied in, and those of its sums ----

template <class Part>
struct DotVector : VectorFor<Part> {};
template <>
struct DotVector<Orb32s> {
  using Type = N32;
};
template <>
struct DotVector<Orb16s> {
  using Type = I16;
};

// Neighbouring products of 16 bits are added in 32.
template <class V>
struct DotSum {
  using Type = V;
};
template <>
struct DotSum<I16> {
  using Type = N32;
};

ORBS_INLINE N32 AddTerm(N32 sum, N32 tap, N32 sample) { return sum + tap * sample; }
ORBS_INLINE N32 AddTerm(N32 sum, I16 tap, I16 sample) { return sum + MulAddPairs(tap, sample); }

// ---- Order of lanes; 32-bit integers take the shuffles of binary32 ----

template <int kParts, class V>
ORBS_INLINE V Reversed(V a) {
  return kParts == 1 ? Reverse(a) : ReversePairs(a);
}
template <int kParts>
ORBS_INLINE N32 Reversed(N32 a) {
  return AsInt(Reversed<kParts>(AsFloat(a)));
}
template <int kParts>
ORBS_INLINE I16 Reversed(I16 a) {
  static_assert(kParts == 1);
  return SwapPairs(ReversePairs(a));
}
ORBS_INLINE N32 DupEven(N32 a) { return AsInt(DupEven(AsFloat(a))); }
ORBS_INLINE N32 DupOdd(N32 a) { return AsInt(DupOdd(AsFloat(a))); }
ORBS_INLINE N32 AddRotated(N32 a, N32 b) {
  auto swapped = SwapPairs(AsFloat(b));
  const N32 evenLanes = ShiftRight(AsInt(EvenSigns(&swapped)), 31);
  // Minus x is the complement of x - 1.
  return a + ((AsInt(swapped) ^ evenLanes) - evenLanes);
}

// ---- Samples as lanes of the taps' vector; exact ----

ORBS_INLINE void LoadSamples(const Orb16s* p, F32* out) {
  I32 x;
  LoadWiden(p, &x);
  *out = ToFloat(x);
}
ORBS_INLINE void LoadSamples(const Orb16s* p, F64* out) { LoadWiden(p, out); }
ORBS_INLINE void LoadSamples(const Orb32s* p, F64* out) { LoadWiden(p, out); }
ORBS_INLINE void LoadSamples(const Orb16s* p, N32* out) { LoadWiden(p, out); }
ORBS_INLINE void LoadSamples(const Orb16s* p, I16* out) { *out = I16::Load(p); }

// ---- The inner product ----

// y = sum over k of taps[n-1-k] x[k]; y[0], and y[1] for complex terms.
template <int kParts, class Sample, class Part, class Y>
ORBS_INLINE void FirDotNatural(const Sample* x, const Part* taps, Orb32s tapCount, Y (&y)[kParts]) {
  using V = typename DotVector<Part>::Type;
  using Sums = DotSums<kParts, typename DotSum<V>::Type>;
  constexpr size_t kLanes = V::kLanes;
  const size_t parts = static_cast<size_t>(tapCount) * kParts;
  Sums sums;
  V sample;
  if (parts >= kLanes) {
    const Part* const lastTaps = taps + (parts - kLanes);
    const auto tapsOf = [lastTaps](size_t k) { return Reversed<kParts>(V::Load(lastTaps - k)); };
    size_t k = 0;
    for (; k + Sums::kSums * kLanes <= parts; k += Sums::kSums * kLanes) {
      ORBS_UNROLL
      for (size_t j = 0; j < Sums::kSums; ++j) {
        LoadSamples(x + k + j * kLanes, &sample);
        sums.Add(j, tapsOf(k + j * kLanes), sample);
      }
    }
    for (; k + kLanes <= parts; k += kLanes) {
      LoadSamples(x + k, &sample);
      sums.Add(0, tapsOf(k), sample);
    }
    if (k < parts) {
      // The last vector once more, without the terms that are in the sums already.
      LoadSamples(x + (parts - kLanes), &sample);
      sums.Add(1, LastLanes(tapsOf(parts - kLanes), parts - k), LastLanes(sample, parts - k));
    }
  } else {
    Sample samples[kLanes] = {};
    Part padded[kLanes] = {};
    CopyFew<kLanes * sizeof(Sample) / 2>(samples, x, parts);
    CopyFew<kLanes * sizeof(Part) / 2>(padded + (kLanes - parts), taps, parts);
    LoadSamples(samples, &sample);
    sums.Add(0, Reversed<kParts>(V::Load(padded)), sample);
  }
  sums.Total(y);
}

}  // namespace orbs::ORBS_VARIANT

#endif
#endif
