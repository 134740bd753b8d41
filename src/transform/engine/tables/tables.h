// The tables of px and what all variants share of them. All values are values of a sine table or its
// negatives.
#ifndef ORBS_TRANSFORM_ENGINE_TABLES_TABLES_H
#define ORBS_TRANSFORM_ENGINE_TABLES_TABLES_H

#include "core/variant.h"
#include "transform/engine/data.h"
#include "transform/engine/tables/bit_reversal.h"
#include "transform/engine/tables/sine.h"
#include "transform/tuning.h"

namespace orbs::ORBS_VARIANT::transform {

// How many elements of T each table of a circle of 2^order steps takes: the room that plans give it, which
// for the core table is more than px uses.
inline constexpr Index BitRevEntries(int order) { return (Index{1} << order) / 4 + 1; }
inline constexpr Index SineEntries(int order) { return (Index{1} << order) / 4 + 1; }
inline constexpr Index CoreReals(int order) { return 2 * (Index{1} << order) + 2; }
inline constexpr Index LayerReals(int order) { return (Index{1} << order) / 2; }
inline constexpr Index StepReals(int order) { return 2 * (Index{1} << order); }
inline constexpr Index ColumnReals(int columnOrder) { return 8 * (Index{1} << columnOrder); }

// cos a, -sin a, cos 2a, -sin 2a, cos 3a, -sin 3a with a = 2 pi k / N, for k = 0 to N/4.
template <class T>
void BuildCoreTable(SineTable<T> sine, T* table) {
  const Index quarter = (Index{1} << sine.order) / 4;
  for (Index k = 0; k <= quarter; ++k) {
    for (Index power = 1; power <= 3; ++power) {
      *table++ = sine.Cos(power * k);
      *table++ = -sine.Sin(power * k);
    }
  }
}

// cos a, -sin a with a = 2 pi k / N, for k = 0 to N/4 - 1.
template <class T>
void BuildLayerTable(SineTable<T> sine, T* table) {
  const Index quarter = (Index{1} << sine.order) / 4;
  for (Index k = 0; k < quarter; ++k) {
    *table++ = sine.Cos(k);
    *table++ = -sine.Sin(k);
  }
}

// W^((j+c) rev(i)) with W = exp(-2 pi i / N), in the order in which the columns of 2^columnOrder rows are
// read: j in steps of four, rows i, c = 0 to 3. Each column is made in natural order and then bit-reversed.
template <class T>
void BuildStepTable(SineTable<T> sine, int columnOrder, Orb32s* bitRev, T* columns, T* table) {
  const Index rows = Index{1} << columnOrder;
  const Index rowLength = Index{1} << (sine.order - columnOrder);
  BuildBitRevTable(columnOrder, bitRev);
  for (Index j = 0; j < rowLength; j += 4) {
    for (Index c = 0; c < 4; ++c) {
      T* column = columns + 2 * rows * c;
      for (Index i = 0; i < rows; ++i) {
        column[2 * i] = sine.Cos((j + c) * i);
        column[2 * i + 1] = -sine.Sin((j + c) * i);
      }
      BitRevInPlace(Interleaved<T>{column}, columnOrder, bitRev);
    }
    for (Index i = 0; i < rows; ++i) {
      for (Index c = 0; c < 4; ++c) {
        *table++ = columns[2 * (rows * c + i)];
        *table++ = columns[2 * (rows * c + i) + 1];
      }
    }
  }
}

// ---- The real split ----

// px keeps the entries of k = 0 to N/4 - 1 and does not use the first. The vector variants keep those of
// k = 1 to N/4, which are whole vectors.
inline constexpr Index kFirstRealEntry = ORBS_VECTOR ? 1 : 0;

template <class T>
inline bool HasTwoRealLevels(int order) {
  return order >= Pick<T>(kFftTuning.twoLevelRealFrom);
}

template <class T>
inline Index RealReals(int order) {
  const Index quarter = (Index{1} << order) / 4;
  return HasTwoRealLevels<T>(order) ? 2 * (kRealFineEntries<T> + quarter / kRealFineEntries<T>) : 2 * quarter;
}

// cos a, -sin a for the fine steps a = 2 pi k / N, then for the coarse ones, k a multiple of the fine
// entries. A twiddle is the product of one of each.
template <class T>
void BuildTwoRealLevels(SineTable<T> sine, T* table) {
  const Index quarter = (Index{1} << sine.order) / 4;
  const Index fine = kRealFineEntries<T>;
  for (Index k = kFirstRealEntry; k < fine + kFirstRealEntry; ++k) {
    *table++ = sine.Cos(k);
    *table++ = -sine.Sin(k);
  }
  for (Index k = 0; k < quarter; k += fine) {
    *table++ = sine.Cos(k);
    *table++ = -sine.Sin(k);
  }
}

// Forward 0.5 cos a, 0.5 - 0.5 sin a: the halves of the split are in the table. Inverse cos a, -sin a.
template <class T>
void BuildRealTables(SineTable<T> sine, T* forward, T* inverse) {
  if (HasTwoRealLevels<T>(sine.order)) {
    BuildTwoRealLevels(sine, forward);
    BuildTwoRealLevels(sine, inverse);
    return;
  }
  const Index quarter = (Index{1} << sine.order) / 4;
  for (Index k = kFirstRealEntry; k < quarter + kFirstRealEntry; ++k) {
    const T cosine = sine.Cos(k);
    const T sineOfK = sine.Sin(k);
    *forward++ = static_cast<T>(0.5) * cosine;
    *forward++ = static_cast<T>(Wide<T>(0.5) - Wide<T>(0.5) * sineOfK);
    *inverse++ = cosine;
    *inverse++ = -sineOfK;
  }
}

}  // namespace orbs::ORBS_VARIANT::transform

#endif
