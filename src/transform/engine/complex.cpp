// The complex transforms: checks, choice of path, work buffer.
#include "core/checks.h"
#include "core/work_buffer.h"
#include "transform/engine/by_tables.h"
#include "transform/engine/codelets.h"
#include "transform/fft.h"
#include "transform/tuning.h"

namespace orbs::ORBS_VARIANT::transform {
namespace {

template <bool kForward, template <class> class Data, class T>
OrbStatus TransformPoints(const FftPlan<T>& plan, Data<const T> src, Data<T> dst, void* work) {
  if (ChooseEngine<T>(plan.order) == FftEngine::codelet) {
    RunCodelet<kForward>(plan, plan.order, src, dst);
    return StatusOk;
  }
  const WorkBuffer buffer(plan.workSize, work);
  if (buffer.Failed()) return StatusMemAlloc;
  TransformByTables<kForward>(plan, plan.order, src, dst, buffer.Data());
  return StatusOk;
}

}  // namespace

template <class T>
template <bool kForward>
OrbStatus Fft<T, FftForm::interleaved>::Transform(const Point* src, Point* dst, const Plan* plan,
                                                  void* work) {
  ORBS_RETURN_IF_BAD(CheckPlan(plan, Plan::kId, src, dst));
  return TransformPoints<kForward, Interleaved, T>(*plan, {&src->re}, {&dst->re}, work);
}

template <class T>
template <bool kForward>
OrbStatus Fft<T, FftForm::split>::Transform(const T* srcRe, const T* srcIm, T* dstRe, T* dstIm,
                                            const Plan* plan, void* work) {
  ORBS_RETURN_IF_BAD(CheckPlan(plan, Plan::kId, srcRe, srcIm, dstRe, dstIm));
  return TransformPoints<kForward, Split, T>(*plan, {srcRe, srcIm}, {dstRe, dstIm}, work);
}

#define ORBS_INSTANTIATE(T, kForward)                                                                     \
  template OrbStatus Fft<T, FftForm::interleaved>::Transform<kForward>(const Point*, Point*, const Plan*, \
                                                                       void*);                            \
  template OrbStatus Fft<T, FftForm::split>::Transform<kForward>(const T*, const T*, T*, T*, const Plan*, \
                                                                 void*);
ORBS_INSTANTIATE(Orb32f, true)
ORBS_INSTANTIATE(Orb32f, false)
ORBS_INSTANTIATE(Orb64f, true)
ORBS_INSTANTIATE(Orb64f, false)
#undef ORBS_INSTANTIATE

}  // namespace orbs::ORBS_VARIANT::transform
