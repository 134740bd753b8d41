// The inner product of one output: taps and samples walk together, y = sum over k of taps[k] x[k]; y[0], and
// y[1] for complex terms.
//
// kTapStep is 1 where the taps are stored reversed, as the states have them, and -1 for taps in natural
// order, of which the last is given: taps[-k] x[k].
#ifndef ORBS_SIMD_DOT_PRODUCT_H
#define ORBS_SIMD_DOT_PRODUCT_H

#include <cstddef>

#include "core/parts.h"
#include "core/scaling.h"
#include "simd/load.h"
#include "simd/product_sum.h"
#include "simd/reduce.h"
#include "simd/simd.h"

namespace orbs::ORBS_VARIANT {

#if ORBS_VECTOR

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

// 32-bit integers take the shuffles of binary32.
template <int kParts, class V>
ORBS_INLINE V Reversed(V a) {
  return kParts == 1 ? Reverse(a) : ReversePairs(a);
}
template <int kParts>
ORBS_INLINE N32 Reversed(N32 a) {
  return AsInt(Reversed<kParts>(AsFloat(a)));
}
// The sums of a dot product: vectors of terms go to four in turn.
template <int kParts, class Sum>
struct DotSums {
  static constexpr size_t kSums = 4;
  ProductSum<Sum, kParts> sums[kSums];

  ORBS_INLINE DotSums() {
    ORBS_UNROLL
    for (auto& sum : sums) sum = sum.Zero();
  }
  template <class V>
  ORBS_INLINE void Add(size_t j, V tap, V sample) {
    sums[j].Add(Factor<V, kParts>::Each(tap), sample);
  }
  ORBS_INLINE void Total(typename Sum::Lane (&y)[kParts]) const {
    SumLanes(((sums[0] + sums[1]) + (sums[2] + sums[3])).Value(), y);
  }
};

// The terms of 1 to a vector of samples, one by one, in two sums in turn. 32-bit integers wrap.
template <int kTapStep, int kParts, class Sample, class Part, class Y>
ORBS_INLINE void DotProductOfFew(const Sample* x, const Part* taps, size_t parts, Y (&y)[kParts]) {
  using Sum = std::conditional_t<std::is_integral_v<Y>, Orb32u, Y>;
  const auto product = [](Part h, Sample s) { return static_cast<Sum>(h) * static_cast<Sum>(s); };
  const auto add = [&](Sum(&sum)[kParts], size_t k) {
    const Part* const h = taps + kTapStep * static_cast<ptrdiff_t>(k);
    sum[0] += product(h[0], x[k]);
    if constexpr (kParts == 2) {
      sum[0] -= product(h[1], x[k + 1]);
      sum[1] += product(h[0], x[k + 1]) + product(h[1], x[k]);
    }
  };
  Sum even[kParts] = {};
  Sum odd[kParts] = {};
  // The exit between the two keeps the compiler from loading their samples as one vector.
  for (size_t k = 0;;) {
    add(even, k);
    k += kParts;
    if (k == parts) break;
    add(odd, k);
    k += kParts;
    if (k == parts) break;
  }
  for (int part = 0; part < kParts; ++part) y[part] = static_cast<Y>(even[part] + odd[part]);
}

// Whole vectors of the oldest samples. The newest, at least one, go one by one: a load of a vector waits
// until every store to its place has reached the cache, so that the sample of this call and those of the
// calls just before would cost more than all the arithmetic; and what fills no vector needs no mask, and no
// room behind the arrays.
template <int kTapStep = 1, int kParts, class Sample, class Part, class Y>
ORBS_INLINE void DotProduct(const Sample* x, const Part* taps, Orb32s tapCount, Y (&y)[kParts]) {
  using V = typename DotVector<Part>::Type;
  using Sums = DotSums<kParts, typename DotSum<V>::Type>;
  constexpr size_t kLanes = V::kLanes;
  const size_t parts = static_cast<size_t>(tapCount) * kParts;
  const size_t whole = (parts - 1) / kLanes * kLanes;
  DotProductOfFew<kTapStep>(x + whole, taps + kTapStep * static_cast<ptrdiff_t>(whole), parts - whole, y);
  if (whole == 0) return;
  Sums sums;
  const auto tapsOf = [taps](size_t k) {
    if constexpr (kTapStep == 1) {
      return V::Load(taps + k);
    } else {
      return Reversed<kParts>(V::Load(taps - static_cast<ptrdiff_t>(k + kLanes - kParts)));
    }
  };
  size_t k = 0;
  for (; k + Sums::kSums * kLanes <= whole; k += Sums::kSums * kLanes) {
    ORBS_UNROLL
    for (size_t j = 0; j < Sums::kSums; ++j) {
      sums.Add(j, tapsOf(k + j * kLanes), LoadAs<V>(x + k + j * kLanes));
    }
  }
  for (; k < whole; k += kLanes) sums.Add(0, tapsOf(k), LoadAs<V>(x + k));
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

#else

// The terms are taken in pairs, in rising k.
template <int kTapStep = 1, int kParts, class Sample, class Part>
void DotProduct(const Sample* x, const Part* taps, Orb32s tapCount, Wide<Part> (&y)[kParts]) {
  using W = Wide<Part>;
  const auto term = [&](size_t k, W(&t)[kParts]) {
    const Part* h = taps + static_cast<ptrdiff_t>(k) * kTapStep * kParts;
    const Sample* s = x + k * kParts;
    if constexpr (kParts == 1) {
      t[0] = W(h[0]) * s[0];
    } else {
      t[0] = W(h[0]) * s[0] - W(h[1]) * s[1];
      t[1] = W(h[0]) * s[1] + W(h[1]) * s[0];
    }
  };
  for (W& part : y) part = 0;
  const auto n = static_cast<size_t>(tapCount);
  for (size_t k = 0; k < n; k += 2) {
    W even[kParts];
    W odd[kParts] = {};
    term(k, even);
    if (k + 1 < n) term(k + 1, odd);
    for (int part = 0; part < kParts; ++part) y[part] += even[part] + odd[part];
  }
}

#endif

}  // namespace orbs::ORBS_VARIANT

#endif
