// The real transforms: N reals as N/2 complex points, the real split, and the three layouts of the spectrum.
#include "core/checks.h"
#include "transform/fft.h"
#include "transform/engine/px/codelets.h"
#include "transform/engine/engine.h"
#include "transform/engine/px/real_split.h"
#include "transform/spectrum/layouts.h"
#include "core/work_buffer.h"

namespace orbs::ORBS_VARIANT {
namespace {

// ---- Transforms ----

// The complex transform of N/2 points on the pairs of a real array.
template <bool kForward, class T>
ORBS_INLINE void TransformHalf(const FftPlan<T>& plan, const T* src, T* dst, void* work) {
  if (plan.order <= kFftTuning.halfCodeletCeiling) {
    using Codelets = ComplexCodelets<kForward, Interleaved, T>;
    const bool scaled = (kForward ? plan.scaleFwd : plan.scaleInv) != 0;
    (scaled ? Codelets::scaled : Codelets::plain)[plan.order - 1]({src}, {dst}, plan.scale);
  } else {
    TransformByTables<kForward, Interleaved, T>(plan, plan.order - 1, {src}, {dst}, work);
  }
}

// Needs no work buffer, and has none of the tables.
template <class T>
ORBS_INLINE bool IsRealCodelet(const FftPlan<T>& plan) {
  return plan.order <= Pick<T>(kFftTuning.realCodeletCeiling);
}

template <SpectrumLayout layout, class T>
OrbStatus ForwardTo(const FftPlan<T>& plan, const T* src, T* dst, void* work) {
  if (IsRealCodelet(plan)) {
    using Codelets = RealCodelets<true, T>;
    (plan.scaleFwd != 0 ? Codelets::scaled : Codelets::plain)[plan.order](src, dst, plan.scale);
    ArrangeFromPerm<layout>(dst, Index{1} << plan.order);
    return StatusOk;
  }
  const WorkBuffer buffer(plan.workSize, work);
  if (buffer.Failed()) return StatusMemAlloc;
  TransformHalf<true>(plan, src, dst, buffer.Data());
  FFTRealSplitFwd<layout>(dst, plan.order, plan.tables.realFwdTw.In(&plan));
  return StatusOk;
}

template <SpectrumLayout layout, class T>
OrbStatus InverseFrom(const FftPlan<T>& plan, const T* src, T* dst, void* work) {
  if (IsRealCodelet(plan)) {
    const T* perm = src;
    if constexpr (layout != SpectrumLayout::perm) {
      ArrangeToPerm<layout>(src, dst, Index{1} << plan.order);
      perm = dst;
    }
    using Codelets = RealCodelets<false, T>;
    (plan.scaleInv != 0 ? Codelets::scaled : Codelets::plain)[plan.order](perm, dst, plan.scale);
    return StatusOk;
  }
  const WorkBuffer buffer(plan.workSize, work);
  if (buffer.Failed()) return StatusMemAlloc;
  FFTRealSplitInv<layout>(src, dst, plan.order, plan.tables.realInvTw.In(&plan));
  TransformHalf<false>(plan, dst, dst, buffer.Data());
  return StatusOk;
}

template <SpectrumLayout layout, class Plan, class T>
ORBS_INLINE OrbStatus Forward(const T* src, T* dst, const Plan* plan, void* work) {
  ORBS_RETURN_IF_BAD(CheckPlan(plan, Plan::kId, src, dst));
  return ForwardTo<layout, T>(*plan, src, dst, work);
}

template <SpectrumLayout layout, class Plan, class T>
ORBS_INLINE OrbStatus Inverse(const T* src, T* dst, const Plan* plan, void* work) {
  ORBS_RETURN_IF_BAD(CheckPlan(plan, Plan::kId, src, dst));
  return InverseFrom<layout, T>(*plan, src, dst, work);
}

}  // namespace

OrbStatus FFTFwd_RToPerm_32f(const Orb32f* src, Orb32f* dst, const FFTSpec_R_32f* plan, void* work) {
  return Forward<SpectrumLayout::perm>(src, dst, plan, work);
}

OrbStatus FFTFwd_RToPack_32f(const Orb32f* src, Orb32f* dst, const FFTSpec_R_32f* plan, void* work) {
  return Forward<SpectrumLayout::pack>(src, dst, plan, work);
}

OrbStatus FFTFwd_RToCCS_32f(const Orb32f* src, Orb32f* dst, const FFTSpec_R_32f* plan, void* work) {
  return Forward<SpectrumLayout::ccs>(src, dst, plan, work);
}

OrbStatus FFTFwd_RToPerm_64f(const Orb64f* src, Orb64f* dst, const FFTSpec_R_64f* plan, void* work) {
  return Forward<SpectrumLayout::perm>(src, dst, plan, work);
}

OrbStatus FFTFwd_RToPack_64f(const Orb64f* src, Orb64f* dst, const FFTSpec_R_64f* plan, void* work) {
  return Forward<SpectrumLayout::pack>(src, dst, plan, work);
}

OrbStatus FFTInv_PermToR_32f(const Orb32f* src, Orb32f* dst, const FFTSpec_R_32f* plan, void* work) {
  return Inverse<SpectrumLayout::perm>(src, dst, plan, work);
}

OrbStatus FFTInv_PackToR_32f(const Orb32f* src, Orb32f* dst, const FFTSpec_R_32f* plan, void* work) {
  return Inverse<SpectrumLayout::pack>(src, dst, plan, work);
}

OrbStatus FFTInv_CCSToR_32f(const Orb32f* src, Orb32f* dst, const FFTSpec_R_32f* plan, void* work) {
  return Inverse<SpectrumLayout::ccs>(src, dst, plan, work);
}

OrbStatus FFTInv_PermToR_64f(const Orb64f* src, Orb64f* dst, const FFTSpec_R_64f* plan, void* work) {
  return Inverse<SpectrumLayout::perm>(src, dst, plan, work);
}

OrbStatus FFTInv_PackToR_64f(const Orb64f* src, Orb64f* dst, const FFTSpec_R_64f* plan, void* work) {
  return Inverse<SpectrumLayout::pack>(src, dst, plan, work);
}

OrbStatus FFTInv_CCSToR_64f(const Orb64f* src, Orb64f* dst, const FFTSpec_R_64f* plan, void* work) {
  return Inverse<SpectrumLayout::ccs>(src, dst, plan, work);
}

}  // namespace orbs::ORBS_VARIANT
