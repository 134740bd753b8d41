// Compiled once per variant.
#include "bench/transform/accuracy.h"
#include "core/variant.h"
#include "transform/fft.h"

namespace orbs::ORBS_VARIANT {
namespace {

using bench::Transform;

using transform::Fft;
using transform::FftForm;

template <class Kind, class Element>
void RunPlan(bool forward, int order, const void* src, void* dst) {
  typename Kind::Plan* plan = nullptr;
  if (Kind::InitAlloc(&plan, order, FftScaleNone, HintNone) != StatusOk) return;
  const auto* from = static_cast<const Element*>(src);
  auto* to = static_cast<Element*>(dst);
  if (forward) {
    Kind::Forward(from, to, plan, nullptr);
  } else {
    Kind::Inverse(from, to, plan, nullptr);
  }
  Kind::Free(plan);
}

void Run(Transform transform, bool forward, int order, const void* src, void* dst) {
  switch (transform) {
    case Transform::complex32:
      return RunPlan<Fft<Orb32f, FftForm::interleaved>, Orb32fc>(forward, order, src, dst);
    case Transform::complex64:
      return RunPlan<Fft<Orb64f, FftForm::interleaved>, Orb64fc>(forward, order, src, dst);
    case Transform::real32:
      return RunPlan<Fft<Orb32f, FftForm::real>, Orb32f>(forward, order, src, dst);
    case Transform::real64:
      return RunPlan<Fft<Orb64f, FftForm::real>, Orb64f>(forward, order, src, dst);
  }
}

#define ORBS_NAME_OF(variant) #variant
#define ORBS_NAME(variant) ORBS_NAME_OF(variant)
const bench::VariantTransforms transforms(ORBS_NAME(ORBS_VARIANT), Run);

}  // namespace
}  // namespace orbs::ORBS_VARIANT
