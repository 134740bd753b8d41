// The real split on vectors.
//
// A vector of neighbours k, k+1, ... stands against the reversed vector of m, m-1, ...; the tables begin with
// k = 1, so N/4 entries are whole vectors, the last of which holds the middle pair against itself. That one
// is written again afterwards, exactly.
//
// With a = z[k], b = z[m], D + iE = a - conj b and a table entry c, s:  T + iU = (s D + c E) + i (s E - c D),
// X[k] = conj b + (T + iU), X[m] = conj(a - (T + iU)). The inverse has the signs of c turned, and a + conj b
// in the place of both a and conj b.
#ifndef ORBS_TRANSFORM_FFT_REAL_SPLIT_VECTOR_H
#define ORBS_TRANSFORM_FFT_REAL_SPLIT_VECTOR_H

#include "frame/simd.h"
#include "transform/fft_data.h"
#include "transform/fft_tables.h"

namespace orbs::ORBS_VARIANT {

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

// step(a, b, table entry) for k = 1 to N/4 and m = N/2 - k.
template <class T, class Step>
ORBS_INLINE void ForRealPairs(const T* src, T* dst, int order, const T* table, Step step) {
  using V = VectorOf<T>;
  constexpr Index kPairs = V::kLanes / 2;
  const Index n = Index{1} << order;
  const auto pass = [=](Index i, V entry) {  // the entries i on, which are k = i + 1 on
    const Index front = 2 + 2 * i;
    const Index back = n - V::kLanes - 2 * i;
    const V a = V::Load(src + front);
    const V b = ReversePairs(V::Load(src + back));
    const PairOfVectors<V> result = step(a, b, entry);
    result.k.Store(dst + front);
    ReversePairs(result.m).Store(dst + back);
  };
  const Index entries = n / 4;
  if (!HasTwoRealLevels<T>(order)) {
    for (Index i = 0; i < entries; i += kPairs) pass(i, V::Load(table + 2 * i));
    return;
  }
  constexpr Index kFine = kRealFineEntries<T>;
  const T* coarse = table + 2 * kFine;
  for (Index i = 0; i < entries; i += kFine, coarse += 2) {
    const V coarseRe = V::All(coarse[0]);
    const V coarseIm = V::All(coarse[1]);
    for (Index j = 0; j < kFine; j += kPairs) {
      const V fine = V::Load(table + 2 * j);
      pass(i + j, MulAddSub(coarseRe, fine, coarseIm * SwapPairs(fine)));
    }
  }
}

// In place on 2^order reals, order >= 5.
template <class T>
void FFTRealSplitFwd(T* data, int order, const T* table) {
  using V = VectorOf<T>;
  const Index middle = (Index{1} << order) / 2;
  const T re = data[middle];
  const T im = data[middle + 1];
  if (HasTwoRealLevels<T>(order)) {
    ForRealPairs(data, data, order, table, [](V a, V b, V w) { return RealVectorForwardByTwiddle(a, b, w); });
  } else {
    ForRealPairs(data, data, order, table, [](V a, V b, V entry) { return RealVectorForward(a, b, entry); });
  }
  data[middle] = re;
  data[middle + 1] = -im;
}

// From the pairs of a spectrum to dst, which may be src.
template <class T>
void FFTRealSplitInv(const T* src, T* dst, int order, const T* table) {
  using V = VectorOf<T>;
  const Index middle = (Index{1} << order) / 2;
  const T re = src[middle];
  const T im = src[middle + 1];
  ForRealPairs(src, dst, order, table, [](V a, V b, V w) { return RealVectorInverse(a, b, w); });
  dst[middle] = 2 * re;
  dst[middle + 1] = -2 * im;
}

}  // namespace orbs::ORBS_VARIANT

#endif
