// Vector transforms above the one-pass ceiling: in place on the result, with little work space and small
// tables.
//
//   1. The first pass takes tiles of 32 by 32 points and puts each down where its reversed number says,
//      by way of the work buffer; in place, two tiles change places.
//   2. Rows of 2^m points, m at most the one-pass ceiling, run their passes one after the other.
//   3. Long passes of radix 8 over q = 2^m, 2^(m+3), ... points a block finish the transform. A table
//      of their twiddles would be as large as the data, so it has two levels: the factor of
//      k = kFine a + b is the product of coarse entry a and fine entry b. The arithmetic hides behind
//      the memory.
#ifndef ORBS_TRANSFORM_ENGINE_VECTOR_LARGE_H
#define ORBS_TRANSFORM_ENGINE_VECTOR_LARGE_H

#include "core/record.h"
#include "transform/engine/plan.h"
#include "transform/engine/vector/steps.h"
#include "transform/tuning.h"

namespace orbs::ORBS_VARIANT::transform {

// The order of the rows: what is left when the long passes take three levels each.
template <class T>
constexpr int LargeRowOrder(int order) {
  return order - (order - Pick<T>(kFftTuning.onePassCeiling) + 2) / 3 * 3;
}

// Entries of the fine level: seven factors each, 14 KB of binary32, which stay in the first-level cache.
inline constexpr size_t kFine = 256;

// Reals in the table of a long pass: the fine level in reading order, then seven factors for each coarse
// step.
template <class T>
constexpr int64_t LongTableReals(int64_t q) {
  constexpr auto kFineStep = static_cast<int64_t>(kFine);
  return RoundUp(2 * 7 * (kFineStep + q / kFineStep), 64 / static_cast<int64_t>(sizeof(T)));
}

// The tables of all long passes, one behind the other in rising order of q.
template <class T>
int64_t AllLongTableReals(int order) {
  int64_t reals = 0;
  for (int row = LargeRowOrder<T>(order); row < order; row += 3) {
    reals += LongTableReals<T>(int64_t{1} << row);
  }
  return reals;
}

// One row: 8 blocks of q points become one block.
template <bool kForward, class Source, class Result, class T>
void LongRowPass(Source src, Result dst, size_t q, const T* table) {
  using V = VectorOf<T>;
  const T* coarse = table + 2 * 7 * kFine;
  for (size_t start = 0; start < q; start += kFine) {
    V base[7];
    ORBS_UNROLL for (int m = 0; m < 7; ++m) LoadPairToAll(coarse + 2 * m, &base[m]);
    coarse += 2 * 7;
    const T* fine = table;
    for (size_t k = start; k < start + kFine; k += kPairs<T>) {
      V x[8];
      x[0] = LoadPoints(src, k);
      ORBS_UNROLL for (int m = 1; m < 8; ++m) {
        const V w = MulComplex(base[m - 1], V::Load(fine + (m - 1) * V::kLanes));
        x[m] = Twiddle<kForward>(LoadPoints(src, k + kReversedDigit[8][m] * q), w);
      }
      fine += 7 * V::kLanes;
      Butterfly<kForward>(x);
      ORBS_UNROLL for (size_t m = 0; m < 8; ++m) StorePoints(dst, k + m * q, x[m]);
    }
  }
}

// ---- The first pass by tiles ----

inline constexpr int kTileBits = 5;
inline constexpr size_t kTileSide = size_t{1} << kTileBits;
inline constexpr size_t kTilePoints = kTileSide * kTileSide;

// Two tiles, for the exchange in place.
template <class T>
inline constexpr int64_t kLargeWorkBytes = static_cast<int64_t>(2 * kTilePoints * 2 * sizeof(T));

constexpr size_t ReverseTileBits(size_t value) {
  return (value & 1) << 4 | (value & 2) << 2 | (value & 4) | (value & 8) >> 2 | (value & 16) >> 4;
}

// The tile with number `middle` (the index bits between the top and the bottom five): its groups of 8 points
// through the butterfly into `tile`, reversed within the tile.
template <bool kForward, class Data, class T>
void ReadTile(Data src, size_t n, size_t middle, T scale, T* tile) {
  const VectorOf<T> factor = VectorOf<T>::All(scale);
  constexpr size_t kWidth = static_cast<size_t>(kPairs<T>);
  for (size_t row = 0; row < kTileSide / 8; ++row) {
    const size_t column = 8 * kReversedDigit[4][row];
    for (size_t i = 0; i < kTileSide; i += kWidth) {
      T* place = tile + 2 * (ReverseTileBits(i) * kTileSide + column);
      FirstButterfly<8, kForward>(src, row * (n / kTileSide) + middle * kTileSide + i, n / 8, place,
                                  kTilePoints / kWidth, factor);
    }
  }
}

template <class Data, class T>
void WriteTile(Data dst, size_t n, size_t middle, const T* tile) {
  for (size_t row = 0; row < kTileSide; ++row) {
    const Interleaved<const T> from = {tile + 2 * row * kTileSide};
    const Data to = dst.At(static_cast<Index>(row * (n / kTileSide) + middle * kTileSide));
    for (size_t i = 0; i < kTileSide; i += kPairs<T>) StorePoints(to, i, LoadPoints(from, i));
  }
}

template <class Source, class Result>
bool SameArray(Source, Result) {
  return false;  // integers
}
template <class T>
bool SameArray(Interleaved<const T> a, Interleaved<T> b) {
  return a.pairs == b.pairs;
}
// One shared array of the two is enough: an exchange in place is right for separate arrays as well.
template <class T>
bool SameArray(Split<const T> a, Split<T> b) {
  return a.re == b.re || a.im == b.im;
}

template <bool kForward, class Source, class Result, class T>
void LargeFirstPass(Source src, Result dst, size_t n, T scale, T* work) {
  const size_t tiles = n / kTilePoints;
  const bool inPlace = SameArray(src, dst);
  size_t reversed = 0;
  for (size_t middle = 0; middle < tiles; ++middle) {
    if (!inPlace || middle <= reversed) {
      T* other = work + 2 * kTilePoints;
      ReadTile<kForward>(src, n, middle, scale, work);
      if (inPlace && middle != reversed) {
        ReadTile<kForward>(src, n, reversed, scale, other);
        WriteTile(dst, n, middle, other);
      }
      WriteTile(dst, n, reversed, work);
    }
    // The next number in reversed order: a carry that runs downward.
    size_t bit = tiles >> 1;
    for (; (reversed & bit) != 0; bit >>= 1) reversed ^= bit;
    reversed |= bit;
  }
}

// ---- The whole ----

// Depth first: an eighth at a time until it is a row. The tables stand in the order of q. The last pass goes
// to dst, which may be data.
template <bool kForward, class Data, class Result, class T>
void RunLongPasses(Data data, Result dst, size_t n, const PassSteps<T>& rows, size_t rowPoints,
                   const T* longTables, int64_t tableReals) {
  const size_t q = n / 8;
  const int64_t ownReals = LongTableReals<T>(static_cast<int64_t>(q));
  for (size_t block = 0; block < n; block += q) {
    const Data part = data.At(static_cast<Index>(block));
    if (q == rowPoints) {
      RunPasses<kForward>(rows.steps, rows.count, part, q);
    } else {
      RunLongPasses<kForward>(part, part, q, rows, rowPoints, longTables, tableReals - ownReals);
    }
  }
  LongRowPass<kForward>(data, dst, q, longTables + tableReals - ownReals);
}

// By way of `middle`, which may be src or dst.
template <bool kForward, class Source, class Data, class Result, class T>
void RunLargeTransform(const FftPlan<T>& plan, int order, Source src, Data middle, Result dst, T scale,
                       T* work) {
  const int rowOrder = LargeRowOrder<T>(order);
  const size_t n = size_t{1} << order;
  const PassSteps<T> rows(rowOrder, plan.tables.coreTw.In(&plan));
  LargeFirstPass<kForward>(src, middle, n, scale, work);
  RunLongPasses<kForward>(middle, dst, n, rows, size_t{1} << rowOrder, plan.tables.layerTw.In(&plan),
                          AllLongTableReals<T>(order));
}

}  // namespace orbs::ORBS_VARIANT::transform

#endif
