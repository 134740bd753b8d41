// On 32-bit integers, and between 16 and 32 bits.
#include "transform/integer/real.h"

#define ORBS_SLICE "boundary/exports/transform.def"
#include "boundary/declare_exports.h"

namespace orbs::ORBS_VARIANT {
using namespace transform;

OrbStatus legacy90orbsFFTFwd_RToCCS_32s_Sfs(const Orb32s* src, Orb32s* dst, const FFTSpec_R_32s* plan,
                                            Orb32s scaleFactor, void* work) {
  return Transform<Forward<SpectrumLayout::ccs>>(src, dst, plan, scaleFactor, work);
}

OrbStatus legacy90orbsFFTFwd_RToCCS_32s_ISfs(Orb32s* srcDst, const FFTSpec_R_32s* plan, Orb32s scaleFactor,
                                             void* work) {
  return legacy90orbsFFTFwd_RToCCS_32s_Sfs(srcDst, srcDst, plan, scaleFactor, work);
}

OrbStatus legacy90orbsFFTInv_CCSToR_32s_Sfs(const Orb32s* src, Orb32s* dst, const FFTSpec_R_32s* plan,
                                            Orb32s scaleFactor, void* work) {
  return Transform<Inverse<SpectrumLayout::ccs>>(src, dst, plan, scaleFactor, work);
}

OrbStatus legacy90orbsFFTInv_CCSToR_32s_ISfs(Orb32s* srcDst, const FFTSpec_R_32s* plan, Orb32s scaleFactor,
                                             void* work) {
  return legacy90orbsFFTInv_CCSToR_32s_Sfs(srcDst, srcDst, plan, scaleFactor, work);
}

OrbStatus legacy90orbsFFTFwd_RToPack_32s_Sfs(const Orb32s* src, Orb32s* dst, const FFTSpec_R_32s* plan,
                                             Orb32s scaleFactor, void* work) {
  return Transform<Forward<SpectrumLayout::pack>>(src, dst, plan, scaleFactor, work);
}

OrbStatus legacy90orbsFFTFwd_RToPack_32s_ISfs(Orb32s* srcDst, const FFTSpec_R_32s* plan, Orb32s scaleFactor,
                                              void* work) {
  return legacy90orbsFFTFwd_RToPack_32s_Sfs(srcDst, srcDst, plan, scaleFactor, work);
}

OrbStatus legacy90orbsFFTInv_PackToR_32s_Sfs(const Orb32s* src, Orb32s* dst, const FFTSpec_R_32s* plan,
                                             Orb32s scaleFactor, void* work) {
  return Transform<Inverse<SpectrumLayout::pack>>(src, dst, plan, scaleFactor, work);
}

OrbStatus legacy90orbsFFTInv_PackToR_32s_ISfs(Orb32s* srcDst, const FFTSpec_R_32s* plan, Orb32s scaleFactor,
                                              void* work) {
  return legacy90orbsFFTInv_PackToR_32s_Sfs(srcDst, srcDst, plan, scaleFactor, work);
}

OrbStatus legacy90orbsFFTFwd_RToPerm_32s_Sfs(const Orb32s* src, Orb32s* dst, const FFTSpec_R_32s* plan,
                                             Orb32s scaleFactor, void* work) {
  return Transform<Forward<SpectrumLayout::perm>>(src, dst, plan, scaleFactor, work);
}

OrbStatus legacy90orbsFFTFwd_RToPerm_32s_ISfs(Orb32s* srcDst, const FFTSpec_R_32s* plan, Orb32s scaleFactor,
                                              void* work) {
  return legacy90orbsFFTFwd_RToPerm_32s_Sfs(srcDst, srcDst, plan, scaleFactor, work);
}

OrbStatus legacy90orbsFFTInv_PermToR_32s_Sfs(const Orb32s* src, Orb32s* dst, const FFTSpec_R_32s* plan,
                                             Orb32s scaleFactor, void* work) {
  return Transform<Inverse<SpectrumLayout::perm>>(src, dst, plan, scaleFactor, work);
}

OrbStatus legacy90orbsFFTInv_PermToR_32s_ISfs(Orb32s* srcDst, const FFTSpec_R_32s* plan, Orb32s scaleFactor,
                                              void* work) {
  return legacy90orbsFFTInv_PermToR_32s_Sfs(srcDst, srcDst, plan, scaleFactor, work);
}

OrbStatus legacy90orbsFFTFwd_RToCCS_16s32s_Sfs(const Orb16s* src, Orb32s* dst, const FFTSpec_R_16s32s* plan,
                                               Orb32s scaleFactor, void* work) {
  return Transform<Forward<SpectrumLayout::ccs>>(src, dst, plan, scaleFactor, work);
}

OrbStatus legacy90orbsFFTInv_CCSToR_32s16s_Sfs(const Orb32s* src, Orb16s* dst, const FFTSpec_R_16s32s* plan,
                                               Orb32s scaleFactor, void* work) {
  return Transform<Inverse<SpectrumLayout::ccs>>(src, dst, plan, scaleFactor, work);
}

}  // namespace orbs::ORBS_VARIANT
