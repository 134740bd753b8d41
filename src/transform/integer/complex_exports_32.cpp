// On 32-bit integers.
#include "transform/integer/complex.h"

#define ORBS_SLICE "boundary/exports/transform.def"
#include "boundary/declare_exports.h"

namespace orbs::ORBS_VARIANT {
using namespace transform;

OrbStatus legacy90orbsFFTFwd_CToC_32sc_Sfs(const Orb32sc* src, Orb32sc* dst, const FFTSpec_C_32sc* plan,
                                           Orb32s scaleFactor, void* work) {
  return TransformPairs<true>(src, dst, plan, scaleFactor, work);
}

OrbStatus legacy90orbsFFTFwd_CToC_32sc_ISfs(Orb32sc* srcDst, const FFTSpec_C_32sc* plan, Orb32s scaleFactor,
                                            void* work) {
  return legacy90orbsFFTFwd_CToC_32sc_Sfs(srcDst, srcDst, plan, scaleFactor, work);
}

OrbStatus legacy90orbsFFTFwd_CToC_32s_Sfs(const Orb32s* srcRe, const Orb32s* srcIm, Orb32s* dstRe,
                                          Orb32s* dstIm, const FFTSpec_C_32s* plan, Orb32s scaleFactor,
                                          void* work) {
  return TransformParts<true>(srcRe, srcIm, dstRe, dstIm, plan, scaleFactor, work);
}

OrbStatus legacy90orbsFFTFwd_CToC_32s_ISfs(Orb32s* srcDstRe, Orb32s* srcDstIm, const FFTSpec_C_32s* plan,
                                           Orb32s scaleFactor, void* work) {
  return legacy90orbsFFTFwd_CToC_32s_Sfs(srcDstRe, srcDstIm, srcDstRe, srcDstIm, plan, scaleFactor, work);
}

OrbStatus legacy90orbsFFTInv_CToC_32sc_Sfs(const Orb32sc* src, Orb32sc* dst, const FFTSpec_C_32sc* plan,
                                           Orb32s scaleFactor, void* work) {
  return TransformPairs<false>(src, dst, plan, scaleFactor, work);
}

OrbStatus legacy90orbsFFTInv_CToC_32sc_ISfs(Orb32sc* srcDst, const FFTSpec_C_32sc* plan, Orb32s scaleFactor,
                                            void* work) {
  return legacy90orbsFFTInv_CToC_32sc_Sfs(srcDst, srcDst, plan, scaleFactor, work);
}

OrbStatus legacy90orbsFFTInv_CToC_32s_Sfs(const Orb32s* srcRe, const Orb32s* srcIm, Orb32s* dstRe,
                                          Orb32s* dstIm, const FFTSpec_C_32s* plan, Orb32s scaleFactor,
                                          void* work) {
  return TransformParts<false>(srcRe, srcIm, dstRe, dstIm, plan, scaleFactor, work);
}

OrbStatus legacy90orbsFFTInv_CToC_32s_ISfs(Orb32s* srcDstRe, Orb32s* srcDstIm, const FFTSpec_C_32s* plan,
                                           Orb32s scaleFactor, void* work) {
  return legacy90orbsFFTInv_CToC_32s_Sfs(srcDstRe, srcDstIm, srcDstRe, srcDstIm, plan, scaleFactor, work);
}

}  // namespace orbs::ORBS_VARIANT
