// Transforms of the vector variants that pass over the whole array, by the tables of a plan.
#ifndef ORBS_TRANSFORM_ENGINE_VECTOR_ONE_PASS_H
#define ORBS_TRANSFORM_ENGINE_VECTOR_ONE_PASS_H

#include <cstdint>
#include <type_traits>

#include "transform/engine/plan.h"
#include "transform/engine/vector/steps.h"

namespace orbs::ORBS_VARIANT::transform {

template <class T>
bool IsVectorAligned(const T* p) {
  return reinterpret_cast<uintptr_t>(p) % sizeof(VectorOf<T>) == 0;
}

// Where the passes work: in dst when they can, since then the work buffer stays out of the cache. Not when
// dst is the source, which the first pass would overwrite, and not when every vector of dst would straddle.
template <class T>
T* Middle(Interleaved<const T> src, Interleaved<T> dst, T* work) {
  return src.pairs != dst.pairs && (work == nullptr || IsVectorAligned(dst.pairs)) ? dst.pairs : work;
}
template <class T>
T* Middle(Split<const T>, Split<T>, T* work) {
  return work;
}

// Without a work buffer, in place: the points are exchanged first.
template <bool kForward, class T>
void TransformInPlace(const PassSteps<T>& plan, const Orb32s* reversal, int order, T* data, T scale) {
  using V = VectorOf<T>;
  if constexpr (kPairs<T> == 1) {
    const size_t n = size_t{1} << order;
    const size_t step = n / 8;
    for (size_t m = 0; m < 8; ++m) {
      for (size_t j = 0; j < step; ++j) {
        T* here = data + 2 * (m * step + j);
        T* there = data + 2 * (static_cast<size_t>(reversal[j]) + kReversedDigit[8][m]);
        if (here < there) {
          const V v = V::Load(here);
          V::Load(there).Store(here);
          v.Store(there);
        }
      }
    }
    FirstPassOfReversed<8, kForward>(data, n, scale);
    RunPasses<kForward>(plan.steps, plan.count, Interleaved<T>{data}, n);
  }
}

template <bool kForward, template <class> class Data, class T>
void TransformInOnePass(const FftPlan<T>& plan, int order, Data<const T> src, Data<T> dst, T scale, T* work) {
  const PassSteps<T> passes(order, plan.tables.coreTw.In(&plan));
  const Orb32s* reversal = plan.tables.bitRev.In(&plan);
  T* middle = Middle(src, dst, work);
  if (middle != nullptr) {
    RunTransform<kForward>(passes, reversal, order, src, dst, middle, scale);
  } else if constexpr (std::is_same_v<Data<T>, Interleaved<T>>) {
    TransformInPlace<kForward>(passes, reversal, order, dst.pairs, scale);
  }
}

}  // namespace orbs::ORBS_VARIANT::transform

#endif
