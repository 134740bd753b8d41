// Compiled once per variant.
#include "tests/transform/engine/access.h"
#include "transform/fft.h"
#include "transform/engine/sine.h"

namespace orbs::ORBS_VARIANT {

extern const test::FftAccess kAccess;

namespace {

// The plan operations with untyped plans.
template <class Plan, OrbStatus (*init)(Plan**, Orb32s, Orb32s, OrbAlgHint, void*, void*)>
OrbStatus Init(void** planOut, Orb32s order, Orb32s flag, OrbAlgHint hint, void* memory, void* buffer) {
  if (planOut == nullptr) return init(nullptr, order, flag, hint, memory, buffer);
  auto* plan = static_cast<Plan*>(*planOut);
  const OrbStatus status = init(&plan, order, flag, hint, memory, buffer);
  *planOut = plan;
  return status;
}
template <class Plan, OrbStatus (*initAlloc)(Plan**, Orb32s, Orb32s, OrbAlgHint)>
OrbStatus InitAlloc(void** planOut, Orb32s order, Orb32s flag, OrbAlgHint hint) {
  if (planOut == nullptr) return initAlloc(nullptr, order, flag, hint);
  auto* plan = static_cast<Plan*>(*planOut);
  const OrbStatus status = initAlloc(&plan, order, flag, hint);
  *planOut = plan;
  return status;
}
template <class Plan, OrbStatus (*free)(Plan*)>
OrbStatus Free(void* plan) {
  return free(static_cast<Plan*>(plan));
}
template <class Plan, OrbStatus (*getBufSize)(const Plan*, Orb32s*)>
OrbStatus GetBufSize(const void* plan, Orb32s* size) {
  return getBufSize(static_cast<const Plan*>(plan), size);
}

template <class Element, class Plan, OrbStatus (*transform)(const Element*, Element*, const Plan*, void*)>
OrbStatus One(const void* src, void* dst, const void* plan, void* work) {
  return transform(static_cast<const Element*>(src), static_cast<Element*>(dst),
                   static_cast<const Plan*>(plan), work);
}
template <class T, class Plan, OrbStatus (*transform)(const T*, const T*, T*, T*, const Plan*, void*)>
OrbStatus Two(const void* srcRe, const void* srcIm, void* dstRe, void* dstIm, const void* plan, void* work) {
  return transform(static_cast<const T*>(srcRe), static_cast<const T*>(srcIm), static_cast<T*>(dstRe),
                   static_cast<T*>(dstIm), static_cast<const Plan*>(plan), work);
}

#define ORBS_PLAN(kind)                                                                                      \
  {                                                                                                          \
    FFTGetSize_##kind, Init<FFTSpec_##kind, FFTInit_##kind>, InitAlloc<FFTSpec_##kind, FFTInitAlloc_##kind>, \
        Free<FFTSpec_##kind, FFTFree_##kind>, GetBufSize<FFTSpec_##kind, FFTGetBufSize_##kind>               \
  }
#define ORBS_PAIRS(direction) \
  { One<Orb32fc, FFTSpec_C_32fc, direction##_32fc>, One<Orb64fc, FFTSpec_C_64fc, direction##_64fc> }
#define ORBS_SPLIT(direction) \
  { Two<Orb32f, FFTSpec_C_32f, direction##_32f>, Two<Orb64f, FFTSpec_C_64f, direction##_64f> }
#define ORBS_REAL(transform) \
  { One<Orb32f, FFTSpec_R_32f, transform##_32f>, One<Orb64f, FFTSpec_R_64f, transform##_64f> }

}  // namespace

const test::FftAccess kAccess = {
    {ORBS_PLAN(C_32fc), ORBS_PLAN(C_32f), ORBS_PLAN(R_32f), ORBS_PLAN(C_64fc), ORBS_PLAN(C_64f),
     ORBS_PLAN(R_64f)},
    {ORBS_PAIRS(FFTFwd_CToC), ORBS_PAIRS(FFTInv_CToC)},
    {ORBS_SPLIT(FFTFwd_CToC), ORBS_SPLIT(FFTInv_CToC)},
    {ORBS_REAL(FFTFwd_RToPerm),
     ORBS_REAL(FFTFwd_RToPack),
     {One<Orb32f, FFTSpec_R_32f, FFTFwd_RToCCS_32f>, nullptr}},
    {ORBS_REAL(FFTInv_PermToR), ORBS_REAL(FFTInv_PackToR), ORBS_REAL(FFTInv_CCSToR)},
    SinQuarter_32f.sines,
    SinQuarter_64f.sines,
    BuildSineTable<Orb32f>,
    BuildSineTable<Orb64f>,
};

}  // namespace orbs::ORBS_VARIANT
