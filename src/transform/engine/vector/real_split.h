// The real split on vectors.
//
// A vector of neighbours k, k+1, ... stands against the reversed vector of m, m-1, ...; the tables begin with
// k = 1, so N/4 entries are whole vectors, the last of which holds the middle pair against itself. That one
// is written again afterwards, exactly.
//
// With a = z[k], b = z[m], D + iE = a - conj b and a table entry c, s:  T + iU = (s D + c E) + i (s E - c D),
// X[k] = conj b + (T + iU), X[m] = conj(a - (T + iU)). The inverse has the signs of c turned, and a + conj b
// in the place of both a and conj b.
#ifndef ORBS_TRANSFORM_ENGINE_VECTOR_REAL_SPLIT_H
#define ORBS_TRANSFORM_ENGINE_VECTOR_REAL_SPLIT_H

#include "transform/engine/data.h"
#include "transform/engine/tables/tables.h"
#include "transform/engine/vector/passes.h"
#include "transform/spectrum/layouts.h"

namespace orbs::ORBS_VARIANT::transform {

template <class V>
struct PairOfVectors {
  V k;
  V m;
};

template <class V>
ORBS_INLINE PairOfVectors<V> RealVectorForward(V a, V b, V entry) {
  const V x = a - Conjugate(b);
  const V t = MulSubAdd(DupOdd(entry), x, DupEven(entry) * SwapPairs(x));
  return {Conjugate(b) + t, Conjugate(a - t)};
}

template <class V>
ORBS_INLINE PairOfVectors<V> RealVectorForwardByTwiddle(V a, V b, V w) {
  const V half = V::All(static_cast<typename V::Lane>(0.5));
  const V conjugate = Conjugate(b);
  const V x = (a - conjugate) * half;
  const V p = (a + conjugate) * half;
  const V t = MulSubAdd(DupOdd(w), x, DupEven(w) * SwapPairs(x));
  return {p + t, Conjugate(p - t)};
}

template <class V>
ORBS_INLINE PairOfVectors<V> RealVectorInverse(V a, V b, V w) {
  const V conjugate = Conjugate(b);
  const V x = a - conjugate;
  const V p = a + conjugate;
  const V t = MulAddSub(DupOdd(w), x, DupEven(w) * SwapPairs(x));
  return {p + t, Conjugate(p - t)};
}

// step(a, b, table entry) for k = 1 to N/4 and m = N/2 - k. src and dst are data from point 1 on. dst may be
// src, also when its pairs lie one real further along, as in Pack: each pair of vectors is loaded before the
// one before it is stored.
template <class T, class Source, class Result, class Step>
ORBS_INLINE void ForRealPairs(Source src, Result dst, int order, const T* table, Step step) {
  using V = VectorOf<T>;
  constexpr size_t kWidth = V::kLanes / 2;
  const size_t entries = (size_t{1} << order) / 4;
  const size_t back = 2 * entries - 1 - kWidth;
  V a = LoadPoints(src, 0);
  V b = LoadPoints(src, back);
  const auto pass = [&](size_t i, V entry) ORBS_INLINE_CLOSURE {  // the entries i on, which are k = i + 1 on
    const PairOfVectors<V> result = step(a, ReversePairs(b), entry);
    a = LoadPoints(src, i + kWidth);
    b = LoadPoints(src, back - i - kWidth);
    StorePoints(dst, i, result.k);
    StorePoints(dst, back - i, ReversePairs(result.m));
  };
  if (!HasTwoRealLevels<T>(order)) {
    for (size_t i = 0; i < entries; i += kWidth) pass(i, V::Load(table + 2 * i));
    return;
  }
  constexpr auto kFineStep = static_cast<size_t>(kRealFineEntries<T>);
  const T* coarse = table + 2 * kFineStep;
  for (size_t i = 0; i < entries; i += kFineStep, coarse += 2) {
    const V coarseRe = V::All(coarse[0]);
    const V coarseIm = V::All(coarse[1]);
    for (size_t j = 0; j < kFineStep; j += kWidth) {
      const V fine = V::Load(table + 2 * j);
      pass(i + j, MulAddSub(coarseRe, fine, coarseIm * SwapPairs(fine)));
    }
  }
}

// The points 1 to N/2 - 1 of N = 2^order reals, order >= 5, but for the middle one.
template <class T, class Source, class Result>
ORBS_INLINE void SplitPairsForward(Source src, Result dst, int order, const T* table) {
  using V = VectorOf<T>;
  if (HasTwoRealLevels<T>(order)) {
    ForRealPairs(src, dst, order, table, [](V a, V b, V w) { return RealVectorForwardByTwiddle(a, b, w); });
  } else {
    ForRealPairs(src, dst, order, table, [](V a, V b, V entry) { return RealVectorForward(a, b, entry); });
  }
}
template <class T, class Source, class Result>
ORBS_INLINE void SplitPairsInverse(Source src, Result dst, int order, const T* table) {
  using V = VectorOf<T>;
  ForRealPairs(src, dst, order, table, [](V a, V b, V w) { return RealVectorInverse(a, b, w); });
}

// In place.
template <SpectrumLayout layout, class T>
void FFTRealSplitFwd(T* data, int order, const T* table) {
  const Index n = Index{1} << order;
  const RealPoints<T> ends = {data[0] + data[1], data[0] - data[1]};
  const T re = data[n / 2];
  const T im = data[n / 2 + 1];
  T* const pairs = data + kFirstPairAt<layout>;
  SplitPairsForward(Interleaved<T>{data + 2}, Interleaved<T>{pairs}, order, table);
  pairs[n / 2 - 2] = re;
  pairs[n / 2 - 1] = -im;
  PutRealPoints<layout>(data, n, ends);
}

// To dst, which may be src.
template <SpectrumLayout layout, class T>
void FFTRealSplitInv(const T* src, T* dst, int order, const T* table) {
  const Index n = Index{1} << order;
  const RealPoints<T> ends = GetRealPoints<layout>(src, n);
  const T* const pairs = src + kFirstPairAt<layout>;
  const T re = pairs[n / 2 - 2];
  const T im = pairs[n / 2 - 1];
  SplitPairsInverse(Interleaved<const T>{pairs}, Interleaved<T>{dst + 2}, order, table);
  dst[n / 2] = 2 * re;
  dst[n / 2 + 1] = -2 * im;
  dst[0] = ends.first + ends.last;
  dst[1] = ends.first - ends.last;
}

}  // namespace orbs::ORBS_VARIANT::transform

#endif
