// VectorTransform, for the two files that instantiate it: one a number type, since it is much code.
#ifndef ORBS_TRANSFORM_ENGINE_VECTOR_TRANSFORM_BY_TABLES_H
#define ORBS_TRANSFORM_ENGINE_VECTOR_TRANSFORM_BY_TABLES_H

#include "transform/engine/vector/large.h"
#include "transform/engine/vector/one_pass.h"
#include "transform/engine/vector/transform.h"
#include "transform/tuning.h"

namespace orbs::ORBS_VARIANT::transform {

template <bool kForward, template <class> class Data, class T>
void VectorTransform(const FftPlan<T>& plan, int order, Data<const T> src, Data<T> dst, T scale, void* work) {
  T* space = static_cast<T*>(work);
  if (ChooseEngine<T>(order) == FftEngine::onePass) {
    TransformInOnePass<kForward>(plan, order, src, dst, scale, space);
  } else {
    RunLargeTransform<kForward>(plan, order, src, dst, dst, scale, space);
  }
}

#define ORBS_INSTANTIATE_FOR(kForward, Data, T) \
  template void VectorTransform<kForward, Data, T>(const FftPlan<T>&, int, Data<const T>, Data<T>, T, void*);
#define ORBS_INSTANTIATE_VECTOR_TRANSFORM(T)  \
  ORBS_INSTANTIATE_FOR(true, Interleaved, T)  \
  ORBS_INSTANTIATE_FOR(false, Interleaved, T) \
  ORBS_INSTANTIATE_FOR(true, Split, T)        \
  ORBS_INSTANTIATE_FOR(false, Split, T)

}  // namespace orbs::ORBS_VARIANT::transform

#endif
