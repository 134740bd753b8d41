// On 16-bit integers.
#include "transform/integer/complex.h"

#define ORBS_SLICE "boundary/exports/transform.def"
#include "boundary/declare_exports.h"

namespace orbs::ORBS_VARIANT {
using namespace transform;

OrbStatus legacy90orbsFFTFwd_CToC_16sc_Sfs(const Orb16sc* src, Orb16sc* dst, const FFTSpec_C_16sc* plan,
                                           Orb32s scaleFactor, void* work) {
  return TransformPairs<true>(src, dst, plan, scaleFactor, work);
}

OrbStatus legacy90orbsFFTFwd_CToC_16sc_ISfs(Orb16sc* srcDst, const FFTSpec_C_16sc* plan, Orb32s scaleFactor,
                                            void* work) {
  return legacy90orbsFFTFwd_CToC_16sc_Sfs(srcDst, srcDst, plan, scaleFactor, work);
}

OrbStatus legacy90orbsFFTFwd_CToC_16s_Sfs(const Orb16s* srcRe, const Orb16s* srcIm, Orb16s* dstRe,
                                          Orb16s* dstIm, const FFTSpec_C_16s* plan, Orb32s scaleFactor,
                                          void* work) {
  return TransformParts<true>(srcRe, srcIm, dstRe, dstIm, plan, scaleFactor, work);
}

OrbStatus legacy90orbsFFTFwd_CToC_16s_ISfs(Orb16s* srcDstRe, Orb16s* srcDstIm, const FFTSpec_C_16s* plan,
                                           Orb32s scaleFactor, void* work) {
  return legacy90orbsFFTFwd_CToC_16s_Sfs(srcDstRe, srcDstIm, srcDstRe, srcDstIm, plan, scaleFactor, work);
}

OrbStatus legacy90orbsFFTInv_CToC_16sc_Sfs(const Orb16sc* src, Orb16sc* dst, const FFTSpec_C_16sc* plan,
                                           Orb32s scaleFactor, void* work) {
  return TransformPairs<false>(src, dst, plan, scaleFactor, work);
}

OrbStatus legacy90orbsFFTInv_CToC_16sc_ISfs(Orb16sc* srcDst, const FFTSpec_C_16sc* plan, Orb32s scaleFactor,
                                            void* work) {
  return legacy90orbsFFTInv_CToC_16sc_Sfs(srcDst, srcDst, plan, scaleFactor, work);
}

OrbStatus legacy90orbsFFTInv_CToC_16s_Sfs(const Orb16s* srcRe, const Orb16s* srcIm, Orb16s* dstRe,
                                          Orb16s* dstIm, const FFTSpec_C_16s* plan, Orb32s scaleFactor,
                                          void* work) {
  return TransformParts<false>(srcRe, srcIm, dstRe, dstIm, plan, scaleFactor, work);
}

OrbStatus legacy90orbsFFTInv_CToC_16s_ISfs(Orb16s* srcDstRe, Orb16s* srcDstIm, const FFTSpec_C_16s* plan,
                                           Orb32s scaleFactor, void* work) {
  return legacy90orbsFFTInv_CToC_16s_Sfs(srcDstRe, srcDstIm, srcDstRe, srcDstIm, plan, scaleFactor, work);
}

}  // namespace orbs::ORBS_VARIANT
