// The inner product of one output with taps and samples as a caller of the direct forms keeps them: taps in
// natural order, so that they are turned around on the way, no element behind either array that could be
// read, and samples that were stored a moment ago.
#ifndef ORBS_FIR_DIRECT_KERNELS_H
#define ORBS_FIR_DIRECT_KERNELS_H

#include "fir/one_kernels.h"
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
// Eight lanes in every variant: wider vectors leave more samples to go one by one, and gain nothing below
// some hundred taps.
template <>
struct DotVector<Orb16s> {
  using Type = I16x8;
};

// Neighbouring products of 16 bits are added in 32.
template <class V>
struct DotSum {
  using Type = V;
};
template <>
struct DotSum<I16x8> {
  using Type = I32x4;
};

ORBS_INLINE N32 AddTerm(N32 sum, N32 tap, N32 sample) { return sum + tap * sample; }
ORBS_INLINE I32x4 AddTerm(I32x4 sum, I16x8 tap, I16x8 sample) { return sum + MulAddPairs(tap, sample); }

// ---- Order of lanes; 32-bit integers take the shuffles of binary32 ----

template <int kParts, class V>
ORBS_INLINE V Reversed(V a) {
  return kParts == 1 ? Reverse(a) : ReversePairs(a);
}
template <int kParts>
ORBS_INLINE N32 Reversed(N32 a) {
  return AsInt(Reversed<kParts>(AsFloat(a)));
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
ORBS_INLINE void LoadSamples(const Orb16s* p, I16x8* out) { *out = I16x8::Load(p); }

// ---- The inner product ----

// The terms of at most a vector of samples, one by one, in two sums in turn. 32-bit integers wrap.
template <int kParts, class Sample, class Part, class Y>
ORBS_INLINE void FirDotOfFew(const Sample* x, const Part* taps, size_t parts, Y (&y)[kParts]) {
  using Sum = std::conditional_t<std::is_integral_v<Y>, Orb32u, Y>;
  const auto product = [](Part h, Sample s) { return static_cast<Sum>(h) * static_cast<Sum>(s); };
  const auto add = [&](Sum(&sum)[kParts], size_t k) {
    const Part* const h = taps + (parts - kParts - k);
    sum[0] += product(h[0], x[k]);
    if constexpr (kParts == 2) {
      sum[0] -= product(h[1], x[k + 1]);
      sum[1] += product(h[0], x[k + 1]) + product(h[1], x[k]);
    }
  };
  Sum even[kParts] = {};
  Sum odd[kParts] = {};
  size_t k = 0;
  for (; k + 2 * kParts <= parts; k += 2 * kParts) {
    add(even, k);
    add(odd, k + kParts);
  }
  if (k < parts) add(even, k);
  for (int part = 0; part < kParts; ++part) y[part] = static_cast<Y>(even[part] + odd[part]);
}

// y = sum over k of taps[n-1-k] x[k]; y[0], and y[1] for complex terms.
//
// Whole vectors of the oldest samples. The newest, at least one, go one by one: a load of a vector waits
// until every store to its place has reached the cache, so that the sample of this call and those of the
// calls just before would cost more than all the arithmetic; and what fills no vector needs no mask.
template <int kParts, class Sample, class Part, class Y>
ORBS_INLINE void FirDotNatural(const Sample* x, const Part* taps, Orb32s tapCount, Y (&y)[kParts]) {
  using V = typename DotVector<Part>::Type;
  using Sums = DotSums<kParts, typename DotSum<V>::Type>;
  constexpr size_t kLanes = V::kLanes;
  const size_t parts = static_cast<size_t>(tapCount) * kParts;
  const size_t whole = (parts - 1) / kLanes * kLanes;
  FirDotOfFew(x + whole, taps, parts - whole, y);
  if (whole == 0) return;
  Sums sums;
  V sample;
  const Part* const oldest = taps + (parts - kLanes);
  const auto tapsOf = [oldest](size_t k) { return Reversed<kParts>(V::Load(oldest - k)); };
  size_t k = 0;
  for (; k + Sums::kSums * kLanes <= whole; k += Sums::kSums * kLanes) {
    ORBS_UNROLL
    for (size_t j = 0; j < Sums::kSums; ++j) {
      LoadSamples(x + k + j * kLanes, &sample);
      sums.Add(j, tapsOf(k + j * kLanes), sample);
    }
  }
  for (; k < whole; k += kLanes) {
    LoadSamples(x + k, &sample);
    sums.Add(0, tapsOf(k), sample);
  }
  Y total[kParts];
  sums.Total(total);
  for (int part = 0; part < kParts; ++part) {
    if constexpr (std::is_integral_v<Y>) {
      y[part] = AddWrapping(y[part], total[part]);
    } else {
      y[part] += total[part];
    }
  }
}

}  // namespace orbs::ORBS_VARIANT

#endif
#endif
