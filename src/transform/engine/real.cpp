// The real transforms: N reals as N/2 complex points, the real split, and the three layouts of the spectrum.
#include "core/checks.h"
#include "core/work_buffer.h"
#include "transform/engine/by_tables.h"
#include "transform/engine/codelets.h"
#include "transform/engine/real_split.h"
#include "transform/fft.h"
#include "transform/spectrum/layouts.h"

namespace orbs::ORBS_VARIANT::transform {
namespace {

// ---- Transforms ----

// The complex transform of N/2 points on the pairs of a real array.
template <bool kForward, class T>
ORBS_INLINE void TransformHalf(const FftPlan<T>& plan, const T* src, T* dst, void* work) {
  const int order = plan.order - 1;
  if (ChooseEngine<T>(order) == FftEngine::codelet) {
    RunCodelet<kForward, Interleaved, T>(plan, order, {src}, {dst});
  } else {
    TransformByTables<kForward, Interleaved, T>(plan, order, {src}, {dst}, work);
  }
}

template <SpectrumLayout layout, class T>
OrbStatus ForwardTo(const FftPlan<T>& plan, const T* src, T* dst, void* work) {
  if (IsRealCodelet<T>(plan.order)) {
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
  if (IsRealCodelet<T>(plan.order)) {
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

}  // namespace

template <class T>
template <SpectrumLayout layout>
OrbStatus Fft<T, FftForm::real>::Forward(const T* src, T* dst, const Plan* plan, void* work) {
  ORBS_RETURN_IF_BAD(CheckPlan(plan, Plan::kId, src, dst));
  return ForwardTo<layout, T>(*plan, src, dst, work);
}

template <class T>
template <SpectrumLayout layout>
OrbStatus Fft<T, FftForm::real>::Inverse(const T* src, T* dst, const Plan* plan, void* work) {
  ORBS_RETURN_IF_BAD(CheckPlan(plan, Plan::kId, src, dst));
  return InverseFrom<layout, T>(*plan, src, dst, work);
}

#define ORBS_INSTANTIATE(T, layout)                                                            \
  template OrbStatus Fft<T, FftForm::real>::Forward<layout>(const T*, T*, const Plan*, void*); \
  template OrbStatus Fft<T, FftForm::real>::Inverse<layout>(const T*, T*, const Plan*, void*);
ORBS_INSTANTIATE(Orb32f, SpectrumLayout::perm)
ORBS_INSTANTIATE(Orb32f, SpectrumLayout::pack)
ORBS_INSTANTIATE(Orb32f, SpectrumLayout::ccs)
ORBS_INSTANTIATE(Orb64f, SpectrumLayout::perm)
ORBS_INSTANTIATE(Orb64f, SpectrumLayout::pack)
ORBS_INSTANTIATE(Orb64f, SpectrumLayout::ccs)
#undef ORBS_INSTANTIATE

}  // namespace orbs::ORBS_VARIANT::transform
