// TEMPORARY: the scalar routines of px behind the seam of fft_vector.h, until the vector core takes their
// place. Above the one-pass ceiling: 1024-point cores and radix-2 layers, which need one table of N/4
// twiddles.
#ifndef ORBS_TRANSFORM_FFT_VECTOR_TEMPORARY_H
#define ORBS_TRANSFORM_FFT_VECTOR_TEMPORARY_H

#include "transform/fft_large.h"
#include "transform/fft_tables.h"
#include "transform/fft_vector.h"

namespace orbs::ORBS_VARIANT {

template <bool kForward, template <class> class Data, class T>
void VectorTransform(const FftPlan<T>& plan, int order, Data<const T> src, Data<T> dst, T scale, void* work) {
  BitReverse(src, dst, order, plan.tables.bitRev.In(&plan));
  if (order <= Pick<T>(kFftTuning.onePassCeiling)) {
    FFTCore<kForward>(dst, order, plan.tables.coreTw.In(&plan));
    ScaleData(scale, dst, Index{1} << order);
  } else {
    LargeTransform<kForward, Data, T>(plan, scale, work).Rows(dst, order);
  }
}

template <class T>
void BuildVectorTables(int order, SineTable<T> sine, Orb32s* bitRev, T* coreTw) {
  BuildBitRevTable(order, bitRev);
  BuildCoreTable(sine.Of(order), coreTw);
}

template <class T>
void DescribeVectorLarge(int order, FftForm, FftLayout<T>* layout) {
  layout->tables.bitRev = layout->plan.template Add<Orb32s>(BitRevEntries(order), 64);
  layout->tables.coreTw = layout->plan.template Add<T>(CoreReals(kCoreOrder), 64);
  layout->tables.layerTw = layout->plan.template Add<T>(LayerReals(order), 64);
  const int64_t copy = static_cast<int64_t>(2 * sizeof(T)) << order;
  layout->workSize = copy <= (int64_t{1} << 30) ? copy : 0;
}

template <class T>
void BuildVectorLarge(int order, SineTable<T> sine, const FftLayout<T>&, FftPlan<T>* plan, void*) {
  BuildBitRevTable(order, plan->tables.bitRev.In(plan));
  BuildCoreTable(sine.Of(kCoreOrder), plan->tables.coreTw.In(plan));
  BuildLayerTable(sine, plan->tables.layerTw.In(plan));
}

}  // namespace orbs::ORBS_VARIANT

#endif
