// Complex transforms of the vector variants from and to data of any type that LoadPoints and StorePoints
// know, by the tables of a floating-point plan.
#ifndef ORBS_TRANSFORM_ENGINE_VECTOR_BETWEEN_H
#define ORBS_TRANSFORM_ENGINE_VECTOR_BETWEEN_H

#include "transform/engine/plan.h"
#include "transform/engine/vector/codelets.h"
#include "transform/engine/vector/large.h"
#include "transform/engine/vector/steps.h"
#include "transform/tuning.h"

namespace orbs::ORBS_VARIANT::transform {

// 2^order points, order >= kFirstVectorCodelet; `order` is the plan's own, or one less for a real plan. The
// points in between stand in `middle`, which is aligned and may be dst, but not src; above the one-pass
// ceiling it may be src, and `tiles` has kLargeWorkBytes.
template <bool kForward, class Source, class Result, class T>
void TransformBetween(const FftPlan<T>& plan, int order, Source src, Result dst, T* middle, T* tiles) {
  const bool scaled = (kForward ? plan.scaleFwd : plan.scaleInv) != 0;
  const T scale = scaled ? plan.scale : T{1};
  switch (ChooseEngine<T>(order)) {
    case FftEngine::codelet:
      if (order == 4) RunVectorCodelet<4, kForward>(src, dst, scale);
      if (order == 5) RunVectorCodelet<5, kForward>(src, dst, scale);
      if constexpr (kFftTuning.codeletCeiling >= 6) {
        if (order == 6) RunVectorCodelet<6, kForward>(src, dst, scale);
      }
      return;
    case FftEngine::onePass:
      return RunTransform<kForward>(PassSteps<T>(order, plan.tables.coreTw.In(&plan)),
                                    plan.tables.bitRev.In(&plan), order, src, dst, middle, scale);
    case FftEngine::large:
      return RunLargeTransform<kForward>(plan, order, src, Interleaved<T>{middle}, dst, scale, tiles);
  }
}

}  // namespace orbs::ORBS_VARIANT::transform

#endif
