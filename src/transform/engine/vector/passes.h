// The passes of the vector transform: decimation in time on interleaved pairs.
//
// A transform of N = 2^n points is a first pass that reads the input in strides and writes the groups of its
// butterflies to their bit-reversed places, and further passes that work in place. The first pass moves whole
// groups of 4 or 8 points: a reversal of single points would touch every cache line as often as it has
// points.
//
// A further pass turns r finished blocks of q points, which lie one behind the other in bit-reversed order of
// their residue, into one of r q. Its twiddles lie in reading order: for each vector of k the factors
// exp(-2 pi i m k / (r q)) for m = 1 to r-1. The inverse reads the same tables and conjugates as it
// multiplies.
#ifndef ORBS_TRANSFORM_ENGINE_VECTOR_PASSES_H
#define ORBS_TRANSFORM_ENGINE_VECTOR_PASSES_H

#include <cstddef>

#include "simd/simd.h"
#include "transform/engine/data.h"

namespace orbs::ORBS_VARIANT::transform {

// Pairs in a vector of T.
template <class T>
inline constexpr int kPairs = VectorOf<T>::kLanes / 2;

// ---- Butterflies ----

// v times the twiddle with these parts, each in both lanes of a pair, or times its conjugate.
template <bool kForward, class V>
ORBS_INLINE V TwiddleByParts(V v, V re, V im) {
  const V cross = im * SwapPairs(v);
  return kForward ? MulAddSub(re, v, cross) : MulSubAdd(re, v, cross);
}
template <bool kForward, class V>
ORBS_INLINE V Twiddle(V v, V w) {
  return TwiddleByParts<kForward>(v, DupEven(w), DupOdd(w));
}

// Twiddles are read twice, once for the real and once for the imaginary part of each pair: from AVX on a load
// that doubles lanes takes no shuffle unit, and those are the units that a pass waits for. The compiler, left
// to itself, loads once and shuffles twice; two pointers that it cannot know to be equal keep it from that.
template <class T>
struct TwiddleReader {
  using V = VectorOf<T>;
  const T* forReal;
  const T* forImaginary;

  ORBS_INLINE explicit TwiddleReader(const T* twiddles) : forReal(twiddles), forImaginary(twiddles) {
    if constexpr (kHasAvx) asm("" : "+r"(forImaginary));
  }

  // v times the vector of twiddles at `entry`, or their conjugates.
  template <bool kForward>
  ORBS_INLINE V Times(V v, int entry) const {
    const V re = DupEven(V::Load(forReal + entry * V::kLanes));
    const V im = DupOdd(V::Load(forImaginary + entry * V::kLanes));
    return TwiddleByParts<kForward>(v, re, im);
  }

  ORBS_INLINE void Advance(int entries) {
    forReal += entries * V::kLanes;
    forImaginary += entries * V::kLanes;
  }
};

// v times -i, or i.
template <bool kForward, class V>
ORBS_INLINE V TurnQuarter(V v) {
  V* const type = nullptr;
  return SwapPairs(v) ^ (kForward ? OddSigns(type) : EvenSigns(type));
}

// a + t and a - t, t being v times -i, or i. A fused multiply-add by 1 has the alternating signs at hand.
template <class V>
struct Turned {
  V sum;
  V difference;
};
template <bool kForward, class V>
ORBS_INLINE Turned<V> AddTurned(V a, V v) {
  if constexpr (kHasFma) {
    const V one = V::All(1);
    const V swapped = SwapPairs(v);
    const V plus = MulSubAdd(a, one, swapped);   // a - i v
    const V minus = MulAddSub(a, one, swapped);  // a + i v
    return kForward ? Turned<V>{plus, minus} : Turned<V>{minus, plus};
  } else {
    const V t = TurnQuarter<kForward>(v);
    return {a + t, a - t};
  }
}

// In: x[m], residue m of the index; out: x[k], frequency k.
template <bool kForward, class V>
ORBS_INLINE void Butterfly(V (&x)[4]) {
  const V s = x[0] + x[2];
  const V d = x[0] - x[2];
  const V u = x[1] + x[3];
  const Turned<V> odd = AddTurned<kForward>(d, x[1] - x[3]);
  x[0] = s + u;
  x[1] = odd.sum;
  x[2] = s - u;
  x[3] = odd.difference;
}

template <bool kForward, class V>
ORBS_INLINE void Butterfly(V (&x)[8]) {
  V even[4] = {x[0], x[2], x[4], x[6]};
  V odd[4] = {x[1], x[3], x[5], x[7]};
  Butterfly<kForward>(even);
  Butterfly<kForward>(odd);
  // Eighth turns are (1 -+ i)/sqrt(2) and -(1 +- i)/sqrt(2): a quarter turn, a sum and one constant.
  const V rootHalf = V::All(static_cast<typename V::Lane>(0.70710678118654752440));
  const V eighth = AddTurned<kForward>(odd[1], odd[1]).sum;
  const Turned<V> quarter = AddTurned<kForward>(even[2], odd[2]);
  const V minusThreeEighths = AddTurned<kForward>(odd[3], odd[3]).difference;
  x[0] = even[0] + odd[0];
  x[4] = even[0] - odd[0];
  x[1] = MulAdd(rootHalf, eighth, even[1]);
  x[5] = NegMulAdd(rootHalf, eighth, even[1]);
  x[2] = quarter.sum;
  x[6] = quarter.difference;
  x[3] = NegMulAdd(rootHalf, minusThreeEighths, even[3]);
  x[7] = MulAdd(rootHalf, minusThreeEighths, even[3]);
}

// ---- A vector of pairs at point i ----

template <class T>
ORBS_INLINE auto LoadPoints(Interleaved<T> data, size_t i) {
  return VectorOf<std::remove_const_t<T>>::Load(data.pairs + 2 * i);
}
template <class T>
ORBS_INLINE auto LoadPoints(Split<T> data, size_t i) {
  VectorOf<std::remove_const_t<T>> v;
  LoadPairs(data.re + i, data.im + i, &v);
  return v;
}
template <class T>
ORBS_INLINE void StorePoints(Interleaved<T> data, size_t i, VectorOf<T> v) {
  v.Store(data.pairs + 2 * i);
}
template <class T>
ORBS_INLINE void StorePoints(Split<T> data, size_t i, VectorOf<T> v) {
  StorePairs(data.re + i, data.im + i, v);
}

// ---- The first pass ----

// The reversal of 1, 2 and 3 bits by number of values. Tables, since a loop over bits would not fold away.
inline constexpr size_t kReversedDigit[9][8] = {
    {}, {0}, {0, 1}, {}, {0, 2, 1, 3}, {}, {}, {}, {0, 4, 2, 6, 1, 5, 3, 7}};

// A butterfly of kRadix points in each pair of the vectors at i, i + step, ...; the groups, which lie across
// the vectors, are turned into rows and put down at their places.
template <int kRadix, bool kForward, class Source, class T>
ORBS_INLINE void FirstButterfly(Source src, size_t i, size_t step, T* place, size_t nextPlace,
                                VectorOf<T> scale) {
  using V = VectorOf<T>;
  constexpr int kWidth = kPairs<T>;
  V x[kRadix];
  ORBS_UNROLL for (size_t m = 0; m < kRadix; ++m) x[m] = LoadPoints(src, i + m * step) * scale;
  Butterfly<kForward>(x);
  ORBS_UNROLL for (int part = 0; part < kRadix; part += kWidth) {
    V square[kWidth];
    ORBS_UNROLL for (int k = 0; k < kWidth; ++k) square[k] = x[part + k];
    TransposePairs(square);
    ORBS_UNROLL for (int group = 0; group < kWidth; ++group) {
      square[group].Store(place +
                          2 * (nextPlace * kReversedDigit[kWidth][group] + static_cast<size_t>(part)));
    }
  }
}

// All groups of kRadix points, which lie in steps of n / kRadix in src, to dst, times `scale`. Entry i of
// `reversal` is the place of the group that begins with point i * kPairs: kRadix times the reversal of its
// number.
//
// Groups that follow one another in src lie at great powers of two from each other in dst, all in the same
// few sets of the cache. In large arrays the walk therefore takes tiles: 8 runs of 8 groups, the runs at
// distances that make their places neighbours. The destination then fills 8 stretches of half a kilobyte at a
// time (with 8 a pass of 2^14 points of binary32 took 4.2 us, with 32 or without tiles 19 us, where a copy
// takes 1.2).
template <int kRadix, bool kForward, class Source, class T>
ORBS_INLINE void FirstPass(Source src, T* dst, size_t n, const Orb32s* reversal, T scale) {
  constexpr size_t kWidth = static_cast<size_t>(kPairs<T>);
  constexpr size_t kTile = 8;
  constexpr size_t kFewGroups = 512;  // below that all of dst fits the first-level cache
  const size_t step = n / kRadix;
  const size_t rows = step > kFewGroups ? kTile : 1;
  const size_t run = step > kFewGroups ? kTile : step;
  const VectorOf<T> factor = VectorOf<T>::All(scale);
  for (size_t first = 0; first < step / rows; first += run) {
    for (size_t row = 0; row < step; row += step / rows) {
      for (size_t i = row + first; i < row + first + run; i += kWidth) {
        T* place = dst + 2 * static_cast<size_t>(reversal[i / kWidth]);
        FirstButterfly<kRadix, kForward>(src, i, step, place, n / kWidth, factor);
      }
    }
  }
}

// The first pass where the points have been reversed in place already: groups of neighbours. For one pair a
// vector.
template <int kRadix, bool kForward, class T>
ORBS_INLINE void FirstPassOfReversed(T* data, size_t n, T scale) {
  static_assert(kPairs<T> == 1);
  using V = VectorOf<T>;
  const V factor = V::All(scale);
  for (T* group = data; group != data + 2 * n; group += 2 * kRadix) {
    V x[kRadix];
    ORBS_UNROLL for (int m = 0; m < kRadix; ++m) x[m] =
        V::Load(group + 2 * kReversedDigit[kRadix][m]) * factor;
    Butterfly<kForward>(x);
    ORBS_UNROLL for (int m = 0; m < kRadix; ++m) x[m].Store(group + 2 * m);
  }
}

// ---- Further passes ----

// One row: kRadix blocks of q points become one block.
template <int kRadix, bool kForward, class Source, class Result, class T>
ORBS_INLINE void RowPass(Source src, Result dst, size_t q, const T* twiddles) {
  TwiddleReader<T> reader(twiddles);
  for (size_t k = 0; k < q; k += kPairs<T>) {
    VectorOf<T> x[kRadix];
    x[0] = LoadPoints(src, k);
    ORBS_UNROLL for (int m = 1; m < kRadix; ++m) x[m] =
        reader.template Times<kForward>(LoadPoints(src, k + kReversedDigit[kRadix][m] * q), m - 1);
    reader.Advance(kRadix - 1);
    Butterfly<kForward>(x);
    ORBS_UNROLL for (size_t m = 0; m < kRadix; ++m) StorePoints(dst, k + m * q, x[m]);
  }
}

// The same points of all rows of n points: their three twiddles stay in registers.
template <bool kForward, class Data, class T>
ORBS_INLINE void ColumnOfFours(Data data, size_t n, size_t q, const T* twiddles) {
  using V = VectorOf<T>;
  V re[3];
  V im[3];
  ORBS_UNROLL for (int m = 0; m < 3; ++m) {
    const V w = V::Load(twiddles + m * V::kLanes);
    re[m] = DupEven(w);
    im[m] = DupOdd(w);
  }
  for (size_t i = 0; i < n; i += 4 * q) {
    V x[4];
    x[0] = LoadPoints(data, i);
    ORBS_UNROLL for (int m = 1; m < 4; ++m) x[m] =
        TwiddleByParts<kForward>(LoadPoints(data, i + kReversedDigit[4][m] * q), re[m - 1], im[m - 1]);
    Butterfly<kForward>(x);
    ORBS_UNROLL for (size_t m = 0; m < 4; ++m) StorePoints(data, i + m * q, x[m]);
  }
}

// All rows of n points, in place. Passes of radix 4 come where rows are short and many: they go by columns.
template <int kRadix, bool kForward, class Data, class T>
ORBS_INLINE void Pass(Data data, size_t n, size_t q, const T* twiddles) {
  if constexpr (kRadix == 4) {
    for (size_t k = 0; k < q; k += kPairs<T>, twiddles += 3 * VectorOf<T>::kLanes) {
      ColumnOfFours<kForward>(data.At(static_cast<Index>(k)), n, q, twiddles);
    }
    return;
  }
  for (size_t row = 0; row < n; row += kRadix * q) {
    const Data points = data.At(static_cast<Index>(row));
    RowPass<kRadix, kForward>(points, points, q, twiddles);
  }
}

}  // namespace orbs::ORBS_VARIANT::transform

#endif
