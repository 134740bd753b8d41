// On 16-bit integers.
#include "transform/integer/real.h"

#define ORBS_SLICE "boundary/exports/transform.def"
#include "boundary/declare_exports.h"

namespace orbs::ORBS_VARIANT {
using namespace transform;

OrbStatus legacy90orbsFFTFwd_RToCCS_16s_Sfs(const Orb16s* src, Orb16s* dst, const FFTSpec_R_16s* plan,
                                            Orb32s scaleFactor, void* work) {
  return Transform<Forward<SpectrumLayout::ccs>>(src, dst, plan, scaleFactor, work);
}

OrbStatus legacy90orbsFFTFwd_RToCCS_16s_ISfs(Orb16s* srcDst, const FFTSpec_R_16s* plan, Orb32s scaleFactor,
                                             void* work) {
  return legacy90orbsFFTFwd_RToCCS_16s_Sfs(srcDst, srcDst, plan, scaleFactor, work);
}

OrbStatus legacy90orbsFFTInv_CCSToR_16s_Sfs(const Orb16s* src, Orb16s* dst, const FFTSpec_R_16s* plan,
                                            Orb32s scaleFactor, void* work) {
  return Transform<Inverse<SpectrumLayout::ccs>>(src, dst, plan, scaleFactor, work);
}

OrbStatus legacy90orbsFFTInv_CCSToR_16s_ISfs(Orb16s* srcDst, const FFTSpec_R_16s* plan, Orb32s scaleFactor,
                                             void* work) {
  return legacy90orbsFFTInv_CCSToR_16s_Sfs(srcDst, srcDst, plan, scaleFactor, work);
}

OrbStatus legacy90orbsFFTFwd_RToPack_16s_Sfs(const Orb16s* src, Orb16s* dst, const FFTSpec_R_16s* plan,
                                             Orb32s scaleFactor, void* work) {
  return Transform<Forward<SpectrumLayout::pack>>(src, dst, plan, scaleFactor, work);
}

OrbStatus legacy90orbsFFTFwd_RToPack_16s_ISfs(Orb16s* srcDst, const FFTSpec_R_16s* plan, Orb32s scaleFactor,
                                              void* work) {
  return legacy90orbsFFTFwd_RToPack_16s_Sfs(srcDst, srcDst, plan, scaleFactor, work);
}

OrbStatus legacy90orbsFFTInv_PackToR_16s_Sfs(const Orb16s* src, Orb16s* dst, const FFTSpec_R_16s* plan,
                                             Orb32s scaleFactor, void* work) {
  return Transform<Inverse<SpectrumLayout::pack>>(src, dst, plan, scaleFactor, work);
}

OrbStatus legacy90orbsFFTInv_PackToR_16s_ISfs(Orb16s* srcDst, const FFTSpec_R_16s* plan, Orb32s scaleFactor,
                                              void* work) {
  return legacy90orbsFFTInv_PackToR_16s_Sfs(srcDst, srcDst, plan, scaleFactor, work);
}

OrbStatus legacy90orbsFFTFwd_RToPerm_16s_Sfs(const Orb16s* src, Orb16s* dst, const FFTSpec_R_16s* plan,
                                             Orb32s scaleFactor, void* work) {
  return Transform<Forward<SpectrumLayout::perm>>(src, dst, plan, scaleFactor, work);
}

OrbStatus legacy90orbsFFTFwd_RToPerm_16s_ISfs(Orb16s* srcDst, const FFTSpec_R_16s* plan, Orb32s scaleFactor,
                                              void* work) {
  return legacy90orbsFFTFwd_RToPerm_16s_Sfs(srcDst, srcDst, plan, scaleFactor, work);
}

OrbStatus legacy90orbsFFTInv_PermToR_16s_Sfs(const Orb16s* src, Orb16s* dst, const FFTSpec_R_16s* plan,
                                             Orb32s scaleFactor, void* work) {
  return Transform<Inverse<SpectrumLayout::perm>>(src, dst, plan, scaleFactor, work);
}

OrbStatus legacy90orbsFFTInv_PermToR_16s_ISfs(Orb16s* srcDst, const FFTSpec_R_16s* plan, Orb32s scaleFactor,
                                              void* work) {
  return legacy90orbsFFTInv_PermToR_16s_Sfs(srcDst, srcDst, plan, scaleFactor, work);
}

}  // namespace orbs::ORBS_VARIANT
