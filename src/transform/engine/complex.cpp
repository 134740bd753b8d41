// The complex transforms: checks, choice of path, work buffer.
#include "core/checks.h"
#include "transform/fft.h"
#include "transform/engine/px/codelets.h"
#include "transform/engine/engine.h"
#include "transform/tuning.h"
#include "core/work_buffer.h"

namespace orbs::ORBS_VARIANT {
namespace {

template <bool kForward, template <class> class Data, class T>
OrbStatus ComplexTransform(const FftPlan<T>& plan, Data<const T> src, Data<T> dst, void* work) {
  if (plan.order <= kFftTuning.codeletCeiling) {
    using Codelets = ComplexCodelets<kForward, Data, T>;
    const bool scaled = (kForward ? plan.scaleFwd : plan.scaleInv) != 0;
    (scaled ? Codelets::scaled : Codelets::plain)[plan.order](src, dst, plan.scale);
    return StatusOk;
  }
  const WorkBuffer buffer(plan.workSize, work);
  if (buffer.Failed()) return StatusMemAlloc;
  TransformByTables<kForward>(plan, plan.order, src, dst, buffer.Data());
  return StatusOk;
}

template <class Pair>
using RealOf = decltype(Pair::re);

template <bool kForward, class Pair, class Plan>
ORBS_INLINE OrbStatus TransformPairs(const Pair* src, Pair* dst, const Plan* plan, void* work) {
  using T = RealOf<Pair>;
  ORBS_RETURN_IF_BAD(CheckPlan(plan, Plan::kId, src, dst));
  return ComplexTransform<kForward, Interleaved, T>(*plan, {&src->re}, {&dst->re}, work);
}

template <bool kForward, class T, class Plan>
ORBS_INLINE OrbStatus TransformSplit(const T* srcRe, const T* srcIm, T* dstRe, T* dstIm, const Plan* plan,
                                     void* work) {
  ORBS_RETURN_IF_BAD(CheckPlan(plan, Plan::kId, srcRe, srcIm, dstRe, dstIm));
  return ComplexTransform<kForward, Split, T>(*plan, {srcRe, srcIm}, {dstRe, dstIm}, work);
}

}  // namespace

OrbStatus FFTFwd_CToC_32fc(const Orb32fc* src, Orb32fc* dst, const FFTSpec_C_32fc* plan, void* work) {
  return TransformPairs<true>(src, dst, plan, work);
}

OrbStatus FFTInv_CToC_32fc(const Orb32fc* src, Orb32fc* dst, const FFTSpec_C_32fc* plan, void* work) {
  return TransformPairs<false>(src, dst, plan, work);
}

OrbStatus FFTFwd_CToC_64fc(const Orb64fc* src, Orb64fc* dst, const FFTSpec_C_64fc* plan, void* work) {
  return TransformPairs<true>(src, dst, plan, work);
}

OrbStatus FFTInv_CToC_64fc(const Orb64fc* src, Orb64fc* dst, const FFTSpec_C_64fc* plan, void* work) {
  return TransformPairs<false>(src, dst, plan, work);
}

OrbStatus FFTFwd_CToC_32f(const Orb32f* srcRe, const Orb32f* srcIm, Orb32f* dstRe, Orb32f* dstIm,
                          const FFTSpec_C_32f* plan, void* work) {
  return TransformSplit<true>(srcRe, srcIm, dstRe, dstIm, plan, work);
}

OrbStatus FFTInv_CToC_32f(const Orb32f* srcRe, const Orb32f* srcIm, Orb32f* dstRe, Orb32f* dstIm,
                          const FFTSpec_C_32f* plan, void* work) {
  return TransformSplit<false>(srcRe, srcIm, dstRe, dstIm, plan, work);
}

OrbStatus FFTFwd_CToC_64f(const Orb64f* srcRe, const Orb64f* srcIm, Orb64f* dstRe, Orb64f* dstIm,
                          const FFTSpec_C_64f* plan, void* work) {
  return TransformSplit<true>(srcRe, srcIm, dstRe, dstIm, plan, work);
}

OrbStatus FFTInv_CToC_64f(const Orb64f* srcRe, const Orb64f* srcIm, Orb64f* dstRe, Orb64f* dstIm,
                          const FFTSpec_C_64f* plan, void* work) {
  return TransformSplit<false>(srcRe, srcIm, dstRe, dstIm, plan, work);
}

}  // namespace orbs::ORBS_VARIANT
