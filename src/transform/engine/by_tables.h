// The complex transform above the codelets: the one place where px and the vector variants part.
#ifndef ORBS_TRANSFORM_ENGINE_BY_TABLES_H
#define ORBS_TRANSFORM_ENGINE_BY_TABLES_H

#include "core/variant.h"
#include "transform/engine/plan.h"

#if ORBS_VECTOR
#include "transform/engine/vector/transform.h"
#else
#include "transform/engine/px/large.h"
#endif

namespace orbs::ORBS_VARIANT::transform {

// 2^order points, from src to dst or in place; `work` is aligned and as large as the plan says.
template <bool kForward, template <class> class Data, class T>
ORBS_INLINE void TransformByTables(const FftPlan<T>& plan, int order, Data<const T> src, Data<T> dst,
                                   void* work) {
  const bool scaled = (kForward ? plan.scaleFwd : plan.scaleInv) != 0;
  const T scale = scaled ? plan.scale : T{1};
#if ORBS_VECTOR
  VectorTransform<kForward>(plan, order, src, dst, scale, work);
#else
  FFTLarge<kForward>(plan, order, src, dst, scale, work);
#endif
}

}  // namespace orbs::ORBS_VARIANT::transform

#endif
