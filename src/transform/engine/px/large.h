// The transform of px above the codelets: bit reversal, the core, and for more points than the core takes
// either radix-2 layers or rows and columns.
#ifndef ORBS_TRANSFORM_ENGINE_PX_LARGE_H
#define ORBS_TRANSFORM_ENGINE_PX_LARGE_H

#include "core/variant.h"
#include "toolkit/toolkit.h"
#include "transform/engine/data.h"
#include "transform/engine/plan.h"
#include "transform/engine/px/core.h"
#include "transform/engine/tables/bit_reversal.h"
#include "transform/tuning.h"

namespace orbs::ORBS_VARIANT::transform {

inline void ScaleArray(Orb32f scale, Orb32f* x, Index n) { VecMulC_32f_I(scale, x, static_cast<Orb32s>(n)); }
inline void ScaleArray(Orb64f scale, Orb64f* x, Index n) { VecMulC_64f_I(scale, x, static_cast<Orb32s>(n)); }

template <class T>
void ScaleData(T scale, Interleaved<T> data, Index n) {
  ScaleArray(scale, data.pairs, 2 * n);
}
template <class T>
void ScaleData(T scale, Split<T> data, Index n) {
  ScaleArray(scale, data.re, n);
  ScaleArray(scale, data.im, n);
}

// One call's transform: what all levels share.
template <bool kForward, template <class> class Data, class T>
class LargeTransform {
 public:
  // Multiplying by a scale of 1 changes nothing.
  LargeTransform(const FftPlan<T>& plan, T scale, void* work)
      : plan_(plan), scale_(scale), work_(static_cast<T*>(work)) {}

  // The transform of bit-reversed data. The scale goes in right behind each innermost core; columns and
  // layers never scale.
  void Run(Data<T> data, int order) {
    if (order <= kCoreOrder) {
      Core(data, order);
    } else if (FftSplitOrder<T>(order) == 0) {
      Rows(data, order);
    } else {
      FourStep(data, order, 0);
    }
  }

  // Blocks of 1024 points and the layers above them.
  void Rows(Data<T> data, int order) {
    const Index n = Index{1} << order;
    for (Index i = 0; i < n; i += Index{1} << kCoreOrder) Core(data.At(i), kCoreOrder);
    FFTLayers<kForward>(data, kCoreOrder, order, plan_.tables.layerTw.In(&plan_));
  }

 private:
  void Core(Data<T> data, int order) {
    FFTCore<kForward>(data, order, plan_.tables.coreTw.In(&plan_));
    ScaleData(scale_, data, Index{1} << order);
  }

  // The data as 2^t rows: each row transformed, then the columns, four at a time through the work buffer.
  void FourStep(Data<T> data, int order, int level) {
    const int columnOrder = FftSplitOrder<T>(order);
    const int rowOrder = order - columnOrder;
    const Index rows = Index{1} << columnOrder;
    const Index rowLength = Index{1} << rowOrder;
    for (Index i = 0; i < rows; ++i) {
      const Data<T> row = data.At(i * rowLength);
      if (rowOrder <= kCoreOrder) {
        Core(row, rowOrder);
      } else if (FftSplitOrder<T>(rowOrder) == 0) {
        Rows(row, rowOrder);
      } else {
        FourStep(row, rowOrder, level + 1);
      }
    }

    const T* columnTable = plan_.tables.colCoreTw[level].In(&plan_);
    Interleaved<const T> step = {plan_.tables.stepTw[level].In(&plan_)};
    const Interleaved<T> columns = {work_};
    for (Index j = 0; j < rowLength; j += 4) {
      for (Index i = 0; i < rows; ++i) {
        const Data<T> row = data.At(i * rowLength + j);
        for (Index c = 0; c < 4; ++c) {
          Put(columns, c * rows + i, Turn<kForward>(Get(row, c), Get(step, c)));
        }
        step = step.At(4);
      }
      // The rows are in bit-reversed order, and so the columns are what the core takes.
      for (Index c = 0; c < 4; ++c) FFTCore<kForward>(columns.At(c * rows), columnOrder, columnTable);
      for (Index i = 0; i < rows; ++i) {
        const Data<T> row = data.At(i * rowLength + j);
        for (Index c = 0; c < 4; ++c) Put(row, c, Get(columns, c * rows + i));
      }
    }
  }

  const FftPlan<T>& plan_;
  T scale_;
  T* work_;
};

// The transform of 2^order points, from src to dst or in place.
template <bool kForward, template <class> class Data, class T>
void FFTLarge(const FftPlan<T>& plan, int order, Data<const T> src, Data<T> dst, T scale, void* work) {
  BitReverse(src, dst, order, plan.tables.bitRev.In(&plan));
  LargeTransform<kForward, Data, T>(plan, scale, work).Run(dst, order);
}

}  // namespace orbs::ORBS_VARIANT::transform

#endif
