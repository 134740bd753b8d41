#include "transform/engine/layout.h"

#include "transform/engine/px/core.h"
#include "transform/engine/tables/tables.h"
#include "transform/tuning.h"
#if ORBS_VECTOR
#include "transform/engine/vector/transform.h"
#endif

namespace orbs::ORBS_VARIANT::transform {
namespace {

#if ORBS_VECTOR

template <class T>
void DescribeOnePass(int order, FftForm form, FftLayout<T>* layout) {
  layout->tables.bitRev = layout->plan.template Add<Orb32s>(BitRevEntries(order), 64);
  layout->tables.coreTw = layout->plan.template Add<T>(CoreReals(order), 64);
  const bool inPlace = kReversesPairs64fInPlace && sizeof(T) == 8 && form == FftForm::interleaved;
  layout->workSize = inPlace ? 0 : RoundUp(static_cast<int64_t>(2 * sizeof(T)) << order, 64);
}

template <class T>
void DescribeComplexTables(int order, FftForm form, FftLayout<T>* layout) {
  if (ChooseEngine<T>(order) == FftEngine::onePass) {
    DescribeOnePass(order, form, layout);
  } else {
    DescribeVectorLarge(order, layout);
  }
}

#else

template <class T>
void DescribeLayers(int order, FftLayout<T>* layout) {
  layout->tables.coreTw = layout->plan.template Add<T>(CoreReals(kCoreOrder), 64);
  layout->tables.layerTw = layout->plan.template Add<T>(LayerReals(order), 64);
}

template <class T>
void DescribeSplit(int order, int level, FftLayout<T>* layout) {
  const int columnOrder = FftSplitOrder<T>(order);
  const int rowOrder = order - columnOrder;
  if (columnOrder == 0) {
    DescribeLayers(order, layout);
    return;
  }
  if (rowOrder <= kCoreOrder) {
    layout->tables.coreTw = layout->plan.template Add<T>(CoreReals(rowOrder), 64);
  } else {
    DescribeSplit(rowOrder, level + 1, layout);
  }
  layout->tables.colCoreTw[level] = layout->plan.template Add<T>(CoreReals(columnOrder), 64);
  layout->tables.stepTw[level] = layout->plan.template Add<T>(StepReals(order), 64);
  layout->initBitRev[level] = layout->init.template Add<Orb32s>(BitRevEntries(columnOrder), 64);
  layout->initColumns[level] = layout->init.template Add<T>(ColumnReals(columnOrder), 64);
  const int64_t columnBytes = ColumnReals(columnOrder) * static_cast<int64_t>(sizeof(T));
  if (layout->workSize < columnBytes) layout->workSize = columnBytes;
}

template <class T>
void DescribeComplexTables(int order, FftForm, FftLayout<T>* layout) {
  layout->tables.bitRev = layout->plan.template Add<Orb32s>(BitRevEntries(order), 64);
  if (order <= kCoreOrder) {
    layout->tables.coreTw = layout->plan.template Add<T>(CoreReals(order), 64);
  } else {
    DescribeSplit(order, 0, layout);
  }
}

#endif

template <class T>
FftLayout<T> Describe(FftForm form, int order) {
  FftLayout<T> layout;
  const bool real = form == FftForm::real;
  if (real ? IsRealCodelet<T>(order) : ChooseEngine<T>(order) == FftEngine::codelet) return layout;
  layout.plan = BlockLayout(sizeof(FftPlan<T>), 64);
  if (order > kSinQuarterOrder) layout.init.template Add<T>(SineEntries(order), 64);
  if (!real) {
    DescribeComplexTables(order, form, &layout);
    return layout;
  }
  if (ChooseEngine<T>(order - 1) != FftEngine::codelet) DescribeComplexTables(order - 1, form, &layout);
  layout.tables.realFwdTw = layout.plan.template Add<T>(RealReals<T>(order), 64);
  layout.tables.realInvTw = layout.plan.template Add<T>(RealReals<T>(order), 64);
  return layout;
}

}  // namespace

template <>
FftLayout<Orb32f> DescribeFft(FftForm form, int order) {
  return Describe<Orb32f>(form, order);
}
template <>
FftLayout<Orb64f> DescribeFft(FftForm form, int order) {
  return Describe<Orb64f>(form, order);
}

}  // namespace orbs::ORBS_VARIANT::transform
