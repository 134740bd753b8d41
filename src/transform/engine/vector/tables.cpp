// The tables of the vector variants.
#include "core/variant.h"

#if ORBS_VECTOR

#include "core/record.h"
#include "transform/engine/vector/large.h"
#include "transform/engine/vector/steps.h"
#include "transform/engine/vector/transform.h"
#include "transform/tuning.h"

namespace orbs::ORBS_VARIANT::transform {
namespace {

Orb32s ReverseBits(Orb32s value, int bits) {
  Orb32s reversed = 0;
  for (int bit = 0; bit < bits; ++bit) reversed = reversed << 1 | (value >> bit & 1);
  return reversed;
}

// exp(-2 pi i index / circle) as the next pair.
template <class T>
ORBS_INLINE void PutTwiddle(SineTable<T> circle, Index index, T** w) {
  *(*w)++ = circle.Cos(index);
  *(*w)++ = -circle.Sin(index);
}

// The twiddles of a pass of this radix over the points k in vectors, in reading order.
template <class T>
void BuildReadingOrder(SineTable<T> circle, Index radix, Index points, T* w) {
  for (Index k = 0; k < points; k += kPairs<T>) {
    for (Index m = 1; m < radix; ++m) {
      for (Index lane = 0; lane < kPairs<T>; ++lane) PutTwiddle(circle, m * (k + lane), &w);
    }
  }
}

template <class T>
void BuildPassTwiddles(int order, SineTable<T> sine, T* coreTw) {
  const PassSteps<T> passes(order, coreTw);
  T* w = coreTw;
  int done = passes.firstBits;
  for (int i = 0; i < passes.count; ++i) {
    const PassStep<T>& step = passes.steps[i];
    done += step.radix == 4 ? 2 : 3;
    BuildReadingOrder<T>(sine.Of(done), step.radix, static_cast<Index>(step.q), w);
    w += 2 * static_cast<size_t>(step.radix - 1) * step.q;
  }
}

template <class T>
void BuildLongTables(int order, SineTable<T> sine, T* table) {
  for (int row = LargeRowOrder<T>(order); row < order; row += 3) {
    const SineTable<T> circle = sine.Of(row + 3);
    const Index q = Index{1} << row;
    constexpr Index kFineStep = static_cast<Index>(kFine);
    BuildReadingOrder<T>(circle, 8, kFineStep, table);
    T* coarse = table + 2 * 7 * kFine;
    for (Index k = 0; k < q; k += kFineStep) {
      for (Index m = 1; m < 8; ++m) PutTwiddle(circle, m * k, &coarse);
    }
    table += LongTableReals<T>(q);
  }
}

}  // namespace

template <class T>
void BuildVectorTables(int order, SineTable<T> sine, Orb32s* bitRev, T* coreTw) {
  constexpr int kWidthBits = kPairs<T> == 4 ? 2 : kPairs<T> == 2 ? 1 : 0;
  constexpr int kFirstBits = 3;  // of every order that has tables
  const int entryBits = order - kFirstBits - kWidthBits;
  for (Orb32s i = 0; i < (1 << entryBits); ++i) bitRev[i] = ReverseBits(i, entryBits) << kFirstBits;
  BuildPassTwiddles(order, sine, coreTw);
}

template <class T>
void DescribeVectorLarge(int order, FftLayout<T>* layout) {
  const int64_t rowReals = int64_t{2} << LargeRowOrder<T>(order);
  layout->tables.coreTw = layout->plan.template Add<T>(rowReals, 64);
  layout->tables.layerTw = layout->plan.template Add<T>(AllLongTableReals<T>(order), 64);
  layout->workSize = kLargeWorkBytes<T>;
}

template <class T>
void BuildVectorLarge(int order, SineTable<T> sine, FftPlan<T>* plan) {
  const int rowOrder = LargeRowOrder<T>(order);
  BuildPassTwiddles(rowOrder, sine.Of(rowOrder), plan->tables.coreTw.In(plan));
  BuildLongTables(order, sine, plan->tables.layerTw.In(plan));
}

#define ORBS_INSTANTIATE(T)                                           \
  template void BuildVectorTables<T>(int, SineTable<T>, Orb32s*, T*); \
  template void DescribeVectorLarge<T>(int, FftLayout<T>*);           \
  template void BuildVectorLarge<T>(int, SineTable<T>, FftPlan<T>*);
ORBS_INSTANTIATE(Orb32f)
ORBS_INSTANTIATE(Orb64f)
#undef ORBS_INSTANTIATE

}  // namespace orbs::ORBS_VARIANT::transform

#endif
