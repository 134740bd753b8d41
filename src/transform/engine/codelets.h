// Transforms of 1 to 32 points (64 in the variants that have it) without tables: one straight-line routine
// per order, direction, layout and width, with and without a scale. Natural order in and out; all input is
// read before anything is written, so dst may be src. A call is table[order](src, dst, scale).
#ifndef ORBS_TRANSFORM_ENGINE_CODELETS_H
#define ORBS_TRANSFORM_ENGINE_CODELETS_H

#include "core/variant.h"
#include "transform/engine/data.h"
#include "transform/engine/plan.h"

namespace orbs::ORBS_VARIANT::transform {

// Complex transforms; orders above the variant's ceiling have no entry. The plain ones do not look at the
// scale.
inline constexpr int kLargestComplexCodelet = 6;
template <bool kForward, template <class> class Data, class T>
struct ComplexCodelets {
  using Function = void (*)(Data<const T> src, Data<T> dst, T scale);
  static const Function plain[kLargestComplexCodelet + 1];
  static const Function scaled[kLargestComplexCodelet + 1];
};

// Real transforms of 2^order points: N reals to Perm (R0, R(N/2), R1, I1, ...) and back.
inline constexpr int kLargestRealCodelet = 5;
template <bool kForward, class T>
struct RealCodelets {
  using Function = void (*)(const T* src, T* dst, T scale);
  static const Function plain[kLargestRealCodelet + 1];
  static const Function scaled[kLargestRealCodelet + 1];
};

#define ORBS_INSTANTIATE_CODELETS(storage, T)                     \
  storage template struct ComplexCodelets<true, Interleaved, T>;  \
  storage template struct ComplexCodelets<false, Interleaved, T>; \
  storage template struct ComplexCodelets<true, Split, T>;        \
  storage template struct ComplexCodelets<false, Split, T>;       \
  storage template struct RealCodelets<true, T>;                  \
  storage template struct RealCodelets<false, T>;
// All that are used; codelets_32f.cpp and codelets_64f.cpp have their tables.
ORBS_INSTANTIATE_CODELETS(extern, Orb32f)
ORBS_INSTANTIATE_CODELETS(extern, Orb64f)

// 2^order points of a plan, which is used for the scale alone; ChooseEngine has said codelet.
template <bool kForward, template <class> class Data, class T>
ORBS_INLINE void RunCodelet(const FftPlan<T>& plan, int order, Data<const T> src, Data<T> dst) {
  using Codelets = ComplexCodelets<kForward, Data, T>;
  const bool scaled = (kForward ? plan.scaleFwd : plan.scaleInv) != 0;
  (scaled ? Codelets::scaled : Codelets::plain)[order](src, dst, plan.scale);
}

}  // namespace orbs::ORBS_VARIANT::transform

#endif
