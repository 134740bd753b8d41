// Compiled once per variant.
#include "bench/transform/accuracy.h"
#include "core/variant.h"
#include "transform/fft.h"

namespace orbs::ORBS_VARIANT {
namespace {

using bench::Transform;

template <class Element, class Plan>
using Direction = OrbStatus (*)(const Element* src, Element* dst, const Plan* plan, void* work);

template <class Element, class Plan>
void RunPlan(OrbStatus (*make)(Plan**, Orb32s, Orb32s, OrbAlgHint), OrbStatus (*release)(Plan*),
             Direction<Element, Plan> transform, int order, const void* src, void* dst) {
  Plan* plan = nullptr;
  if (make(&plan, order, FftScaleNone, HintNone) != StatusOk) return;
  transform(static_cast<const Element*>(src), static_cast<Element*>(dst), plan, nullptr);
  release(plan);
}

void Run(Transform transform, bool forward, int order, const void* src, void* dst) {
  switch (transform) {
    case Transform::complex32:
      return RunPlan(FFTInitAlloc_C_32fc, FFTFree_C_32fc, forward ? FFTFwd_CToC_32fc : FFTInv_CToC_32fc,
                     order, src, dst);
    case Transform::complex64:
      return RunPlan(FFTInitAlloc_C_64fc, FFTFree_C_64fc, forward ? FFTFwd_CToC_64fc : FFTInv_CToC_64fc,
                     order, src, dst);
    case Transform::real32:
      return RunPlan(FFTInitAlloc_R_32f, FFTFree_R_32f, forward ? FFTFwd_RToPerm_32f : FFTInv_PermToR_32f,
                     order, src, dst);
    case Transform::real64:
      return RunPlan(FFTInitAlloc_R_64f, FFTFree_R_64f, forward ? FFTFwd_RToPerm_64f : FFTInv_PermToR_64f,
                     order, src, dst);
  }
}

#define ORBS_NAME_OF(variant) #variant
#define ORBS_NAME(variant) ORBS_NAME_OF(variant)
const bench::VariantTransforms transforms(ORBS_NAME(ORBS_VARIANT), Run);

}  // namespace
}  // namespace orbs::ORBS_VARIANT
