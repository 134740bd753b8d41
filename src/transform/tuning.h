// What differs between the variants in the transforms: limits, ceilings, thresholds, one row a variant.
#ifndef ORBS_TRANSFORM_TUNING_H
#define ORBS_TRANSFORM_TUNING_H

#include <type_traits>

#include "core/variant.h"
#include "orbs90lgc/types.h"

namespace orbs::ORBS_VARIANT::transform {

// A pair of numbers, one for binary32 and one for binary64.
struct ByWidth {
  int for32f;
  int for64f;
};

template <class T>
constexpr int Pick(ByWidth pair) {
  return std::is_same_v<T, Orb32f> ? pair.for32f : pair.for64f;
}

struct FftTuning {
  ByWidth maxComplexOrder;
  ByWidth maxRealOrder;
  int codeletCeiling;          // the largest complex order done by a codelet, without any table
  ByWidth realCodeletCeiling;  // the same for real orders
  ByWidth onePassCeiling;      // the largest complex order that is not cut into rows and columns
  ByWidth twoLevelRealFrom;    // the real order from which the tables of the real split have two levels
};

// clang-format off
inline constexpr FftTuning kFftTunings[kVariantCount] = {
    // complex   real      codelet  real     one pass  two-level
    //                              codelet            real from
    {{27, 26}, {28, 27},   5,      {5, 5},   {10, 10}, {19, 18}},  // px
    {{28, 27}, {29, 28},   5,      {4, 5},   {15, 13}, {19, 18}},  // w7
    {{28, 27}, {29, 28},   5,      {4, 5},   {17, 16}, {19, 18}},  // v8
    {{28, 26}, {29, 27},   5,      {4, 5},   {15, 12}, {18, 18}},  // s8
    {{28, 27}, {29, 28},   5,      {4, 5},   {17, 16}, {20, 19}},  // p8
    {{28, 27}, {29, 28},   6,      {4, 4},   {18, 17}, {18, 18}},  // g9
    {{28, 27}, {29, 28},   6,      {4, 4},   {18, 17}, {18, 18}},  // h9
};
// clang-format on
inline constexpr FftTuning kFftTuning = kFftTunings[static_cast<int>(kVariant)];

// What computes 2^order complex points: those of a complex plan, or the half of a real one.
enum class FftEngine {
  codelet,  // straight code for each order, without any table
  onePass,  // passes over the whole array
  large     // rows and columns, so that each stays in the cache
};
template <class T>
constexpr FftEngine ChooseEngine(int order) {
  return order <= kFftTuning.codeletCeiling            ? FftEngine::codelet
         : order <= Pick<T>(kFftTuning.onePassCeiling) ? FftEngine::onePass
                                                       : FftEngine::large;
}

// Real transforms that are codelets as a whole have no tables either.
template <class T>
constexpr bool IsRealCodelet(int order) {
  return order <= Pick<T>(kFftTuning.realCodeletCeiling);
}

// The in-order processors of s8 reverse interleaved 64f data in place: such a plan needs no work buffer up to
// the one-pass ceiling, where all others take one copy of the data.
inline constexpr bool kReversesPairs64fInPlace = kVariant == Variant::s8;

// From this order on the 16-bit integer plans always take the floating-point path.
inline constexpr Orb32s kFixedPathLimit = kIsPx ? 9 : 4;

// Entries of the fine level of the two-level real tables.
template <class T>
inline constexpr int kRealFineEntries = Pick<T>({1024, 512});

// px above the one-pass ceiling: the order of the column transforms by the order of the whole; 0 means no
// columns. Rows and columns each fit the cache, and the scheme nests at most two deep.
inline constexpr int kFirstSplitOrder = 11;
inline constexpr int kLastSplitOrder = 27;
// clang-format off
using FftSplitTable = int[kLastSplitOrder - kFirstSplitOrder + 1];
// order                                          11 12 13 14 15 16 17 18  19  20  21  22 23 24  25  26  27
inline constexpr FftSplitTable FFTSplitOrder_32f = {0, 0, 5, 6, 7, 8, 8, 8, 10, 10, 10, 10, 8, 8, 10, 10, 10};
inline constexpr FftSplitTable FFTSplitOrder_64f = {0, 4, 5, 6, 7, 7, 8, 9,  9,  9,  8,  8, 9, 9,  9,  9,  0};
// clang-format on

template <class T>
constexpr int FftSplitOrder(int order) {
  const int i = order - kFirstSplitOrder;
  return std::is_same_v<T, Orb32f> ? FFTSplitOrder_32f[i] : FFTSplitOrder_64f[i];
}

}  // namespace orbs::ORBS_VARIANT::transform

#endif
