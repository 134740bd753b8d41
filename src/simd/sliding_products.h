// The inner products of a run of outputs: y[i] = sum over k of taps[k] x[i + k], real or complex.
//
// A vector holds neighbouring outputs, each tap is broadcast: no sum runs across a vector.
//
// kTapStep is 1 where the taps are stored reversed, and -1 for taps in natural order, of which the last is
// given.
#ifndef ORBS_SIMD_SLIDING_PRODUCTS_H
#define ORBS_SIMD_SLIDING_PRODUCTS_H

#include <cstring>

#include "core/parts.h"
#include "simd/product_sum.h"
#include "simd/simd.h"

namespace orbs::ORBS_VARIANT {

#if ORBS_VECTOR

// 16 vector registers: eight sums of a real tile leave room for the taps and the loads, and eight in flight
// keep two multiply-adders of four cycles busy. A complex tile of four vectors has eight sums too.
template <int kParts>
inline constexpr int kSlidingTileVectors = kParts == 1 ? 8 : 4;

// The sums of a tile: kVectors vectors of outputs. A tile of half the size has them twice, to keep as many in
// flight.
template <int kParts, int kTapStep, int kVectors, class V>
struct SlidingTileSums {
  using Part = typename V::Lane;
  static constexpr size_t kLanes = V::kLanes;
  static constexpr int kSets = kSlidingTileVectors<kParts> / kVectors;

  ProductSum<V, kParts> sums[kSets][kVectors];

  ORBS_INLINE SlidingTileSums() {
    ORBS_UNROLL
    for (int v = 0; v < kSets * kVectors; ++v)
      sums[v / kVectors][v % kVectors] = ProductSum<V, kParts>::Zero();
  }

  ORBS_INLINE V Output(int v) const {
    ProductSum<V, kParts> sum = sums[0][v];
    ORBS_UNROLL
    for (int set = 1; set < kSets; ++set) sum = sum + sums[set][v];
    return sum.Value();
  }

  // kShared terms of each output whose samples lie one vector apart: what is the second term's sample for one
  // vector of outputs is the first term's for the next, so that a load serves kShared multiply-adds.
  template <int kShared>
  ORBS_INLINE void Add(const Part* x, const Part* taps) {
    Factor<V, kParts> tap[kShared];
    ORBS_UNROLL
    for (int s = 0; s < kShared; ++s) {
      tap[s] = Factor<V, kParts>::Load(taps + s * kTapStep * static_cast<ptrdiff_t>(kLanes));
    }
    ORBS_UNROLL
    for (int load = 0; load < kVectors + kShared - 1; ++load) {
      const V samples = LoadOnce<V>(x + static_cast<size_t>(load) * kLanes);
      ORBS_UNROLL
      for (int s = 0; s < kShared; ++s) {
        const int v = load - s;
        if (v < 0 || v >= kVectors) continue;
        sums[s % kSets][v].Add(tap[s], samples);
      }
    }
  }
};

// kVectors vectors of outputs from x on; stride between terms is one element, kParts parts. Loads of samples
// cross cache lines half of the time and then count twice: with a load for each multiply-add they are the
// limit, with one for two they are not.
template <int kParts, int kTapStep, int kVectors, class V, class Part>
ORBS_INLINE void SlidingTile(const Part* x, const Part* taps, size_t n, V (&y)[kVectors]) {
  constexpr size_t kShared = 2;
  constexpr size_t kElements = V::kLanes / kParts;
  SlidingTileSums<kParts, kTapStep, kVectors, V> sums;
  constexpr ptrdiff_t kStep = kTapStep * kParts;
  ptrdiff_t tap = 0;  // an index: behind the last term a pointer would leave the caller's array
  for (; n >= kShared * kElements; n -= kShared * kElements) {
    for (size_t j = 0; j < kElements; ++j, x += kParts, tap += kStep)
      sums.template Add<kShared>(x, taps + tap);
    x += (kShared - 1) * V::kLanes;
    tap += static_cast<ptrdiff_t>(kShared - 1) * kTapStep * V::kLanes;
  }
  size_t singles = n;
  if (n > kElements) {
    singles = 2 * kElements - n;
    for (; n > kElements; --n, x += kParts, tap += kStep) sums.template Add<kShared>(x, taps + tap);
  }
  for (; singles > 0; --singles, x += kParts, tap += kStep) sums.template Add<1>(x, taps + tap);
  ORBS_UNROLL
  for (int v = 0; v < kVectors; ++v) y[v] = sums.Output(v);
}

// One vector of outputs leaves the multiply-adders waiting for each other: the terms take turns in four sums.
template <int kParts, int kTapStep, class V, class Part>
ORBS_INLINE V SlidingVector(const Part* x, const Part* taps, size_t n) {
  constexpr size_t kSums = 4;
  using Sum = ProductSum<V, kParts>;
  Sum sums[kSums];
  ORBS_UNROLL
  for (Sum& sum : sums) sum = Sum::Zero();
  const auto add = [&](size_t j, size_t k) {
    const Part* const tap = taps + static_cast<ptrdiff_t>(k) * kTapStep * kParts;
    sums[j].Add(Factor<V, kParts>::Load(tap), V::Load(x + k * kParts));
  };
  size_t k = 0;
  for (; k + kSums <= n; k += kSums) {
    ORBS_UNROLL
    for (size_t j = 0; j < kSums; ++j) add(j, k + j);
  }
  for (; k < n; ++k) add(0, k);
  return ((sums[0] + sums[1]) + (sums[2] + sums[3])).Value();
}

// `count` outputs. Reads whole vectors: where count is below a vector, up to a vector's end behind x[n-1].
template <int kTapStep = 1, class Tap>
void SlidingProducts(const Tap* src, const Tap* tapArray, Orb32s tapCount, Tap* dst, size_t count) {
  using Part = PartOf<Tap>;
  using V = VectorOf<Part>;
  constexpr int kParts = PartsOf<Tap>::kCount;
  constexpr int kTile = kSlidingTileVectors<kParts>;
  constexpr size_t kLanes = V::kLanes;
  const Part* const x = Parts(src);
  const Part* const taps = Parts(tapArray);
  Part* const y = Parts(dst);
  const auto n = static_cast<size_t>(tapCount);
  const size_t parts = count * kParts;
  size_t i = 0;
  for (; i + kTile * kLanes <= parts; i += kTile * kLanes) {
    V sums[kTile];
    SlidingTile<kParts, kTapStep>(x + i, taps, n, sums);
    ORBS_UNROLL
    for (int v = 0; v < kTile; ++v) sums[v].Store(y + i + static_cast<size_t>(v) * kLanes);
  }
  if (i + kTile / 2 * kLanes <= parts) {
    V sums[kTile / 2];
    SlidingTile<kParts, kTapStep>(x + i, taps, n, sums);
    ORBS_UNROLL
    for (int v = 0; v < kTile / 2; ++v) sums[v].Store(y + i + static_cast<size_t>(v) * kLanes);
    i += kTile / 2 * kLanes;
  }
  for (; i + kLanes <= parts; i += kLanes) SlidingVector<kParts, kTapStep, V>(x + i, taps, n).Store(y + i);
  if (i == parts) return;
  if (parts >= kLanes) {
    SlidingVector<kParts, kTapStep, V>(x + parts - kLanes, taps, n).Store(y + parts - kLanes);
    return;
  }
  Part few[kLanes];
  SlidingVector<kParts, kTapStep, V>(x, taps, n).Store(few);
  std::memcpy(y, few, parts * sizeof(Part));
}

#else

template <class Tap>
void SlidingProducts(const Tap* src, const Tap* tapArray, Orb32s tapCount, Tap* dst, size_t count) {
  using Part = PartOf<Tap>;
  constexpr int kParts = PartsOf<Tap>::kCount;
  for (size_t i = 0; i < count; ++i) {
    const Part* x = Parts(src + i);
    const Part* taps = Parts(tapArray);
    Wide<Part> re = 0;
    Wide<Part> im = 0;
    for (Orb32s k = 0; k < tapCount; ++k, x += kParts, taps += kParts) {
      const Wide<Part> h = taps[0];
      if constexpr (kParts == 1) {
        re += h * x[0];
      } else {
        re += h * x[0] - Wide<Part>(taps[1]) * x[1];
        im += h * x[1] + Wide<Part>(taps[1]) * x[0];
      }
    }
    Parts(dst + i)[0] = static_cast<Part>(re);
    if constexpr (kParts == 2) Parts(dst + i)[1] = static_cast<Part>(im);
  }
}

#endif

}  // namespace orbs::ORBS_VARIANT

#endif
