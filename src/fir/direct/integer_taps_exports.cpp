#include "fir/direct/integer_taps.h"

#define ORBS_SLICE "boundary/exports/fir.def"
#include "boundary/declare_exports.h"

namespace orbs::ORBS_VARIANT {
using namespace fir;

OrbStatus legacy90orbsFIR32s_Direct_16s_Sfs(const Orb16s* src, Orb16s* dst, Orb32s sampleCount,
                                            const Orb32s* taps, Orb32s tapCount, Orb32s tapsFactor,
                                            Orb16s* delayLine, Orb32s* delayIndex, Orb32s scaleFactor) {
  return FilterDirect(IntegerDirect<Fir32s_16s>{taps, tapCount, FirIntScale::Of(tapsFactor, scaleFactor)},
                      src, dst, sampleCount, delayLine, delayIndex);
}

OrbStatus legacy90orbsFIR32s_Direct_16s_ISfs(Orb16s* srcDst, Orb32s sampleCount, const Orb32s* taps,
                                             Orb32s tapCount, Orb32s tapsFactor, Orb16s* delayLine,
                                             Orb32s* delayIndex, Orb32s scaleFactor) {
  return FilterDirect(IntegerDirect<Fir32s_16s>{taps, tapCount, FirIntScale::Of(tapsFactor, scaleFactor)},
                      srcDst, srcDst, sampleCount, delayLine, delayIndex);
}

OrbStatus legacy90orbsFIROne32s_Direct_16s_Sfs(Orb16s src, Orb16s* dst, const Orb32s* taps, Orb32s tapCount,
                                               Orb32s tapsFactor, Orb16s* delayLine, Orb32s* delayIndex,
                                               Orb32s scaleFactor) {
  return FilterDirectOne(IntegerDirect<Fir32s_16s>{taps, tapCount, FirIntScale::Of(tapsFactor, scaleFactor)},
                         &src, dst, delayLine, delayIndex);
}

OrbStatus legacy90orbsFIROne32s_Direct_16s_ISfs(Orb16s* srcDst, const Orb32s* taps, Orb32s tapCount,
                                                Orb32s tapsFactor, Orb16s* delayLine, Orb32s* delayIndex,
                                                Orb32s scaleFactor) {
  return FilterDirectOne(IntegerDirect<Fir32s_16s>{taps, tapCount, FirIntScale::Of(tapsFactor, scaleFactor)},
                         srcDst, srcDst, delayLine, delayIndex);
}

OrbStatus legacy90orbsFIR32sc_Direct_16sc_Sfs(const Orb16sc* src, Orb16sc* dst, Orb32s sampleCount,
                                              const Orb32sc* taps, Orb32s tapCount, Orb32s tapsFactor,
                                              Orb16sc* delayLine, Orb32s* delayIndex, Orb32s scaleFactor) {
  return FilterDirect(IntegerDirect<Fir32sc_16sc>{taps, tapCount, FirIntScale::Of(tapsFactor, scaleFactor)},
                      src, dst, sampleCount, delayLine, delayIndex);
}

OrbStatus legacy90orbsFIR32sc_Direct_16sc_ISfs(Orb16sc* srcDst, Orb32s sampleCount, const Orb32sc* taps,
                                               Orb32s tapCount, Orb32s tapsFactor, Orb16sc* delayLine,
                                               Orb32s* delayIndex, Orb32s scaleFactor) {
  return FilterDirect(IntegerDirect<Fir32sc_16sc>{taps, tapCount, FirIntScale::Of(tapsFactor, scaleFactor)},
                      srcDst, srcDst, sampleCount, delayLine, delayIndex);
}

OrbStatus legacy90orbsFIROne32sc_Direct_16sc_Sfs(Orb16sc src, Orb16sc* dst, const Orb32sc* taps,
                                                 Orb32s tapCount, Orb32s tapsFactor, Orb16sc* delayLine,
                                                 Orb32s* delayIndex, Orb32s scaleFactor) {
  return FilterDirectOne(
      IntegerDirect<Fir32sc_16sc>{taps, tapCount, FirIntScale::Of(tapsFactor, scaleFactor)}, &src, dst,
      delayLine, delayIndex);
}

OrbStatus legacy90orbsFIROne32sc_Direct_16sc_ISfs(Orb16sc* srcDst, const Orb32sc* taps, Orb32s tapCount,
                                                  Orb32s tapsFactor, Orb16sc* delayLine, Orb32s* delayIndex,
                                                  Orb32s scaleFactor) {
  return FilterDirectOne(
      IntegerDirect<Fir32sc_16sc>{taps, tapCount, FirIntScale::Of(tapsFactor, scaleFactor)}, srcDst, srcDst,
      delayLine, delayIndex);
}

OrbStatus legacy90orbsFIR_Direct_16s_Sfs(const Orb16s* src, Orb16s* dst, Orb32s sampleCount,
                                         const Orb16s* taps, Orb32s tapCount, Orb16s* delayLine,
                                         Orb32s* delayIndex, Orb32s scaleFactor) {
  return FilterQ15(src, dst, sampleCount, taps, tapCount, delayLine, delayIndex, scaleFactor);
}

OrbStatus legacy90orbsFIR_Direct_16s_ISfs(Orb16s* srcDst, Orb32s sampleCount, const Orb16s* taps,
                                          Orb32s tapCount, Orb16s* delayLine, Orb32s* delayIndex,
                                          Orb32s scaleFactor) {
  return FilterQ15(srcDst, srcDst, sampleCount, taps, tapCount, delayLine, delayIndex, scaleFactor);
}

OrbStatus legacy90orbsFIROne_Direct_16s_Sfs(Orb16s src, Orb16s* dst, const Orb16s* taps, Orb32s tapCount,
                                            Orb16s* delayLine, Orb32s* delayIndex, Orb32s scaleFactor) {
  return FilterQ15One(&src, dst, taps, tapCount, delayLine, delayIndex, scaleFactor);
}

OrbStatus legacy90orbsFIROne_Direct_16s_ISfs(Orb16s* srcDst, const Orb16s* taps, Orb32s tapCount,
                                             Orb16s* delayLine, Orb32s* delayIndex, Orb32s scaleFactor) {
  return FilterQ15One(srcDst, srcDst, taps, tapCount, delayLine, delayIndex, scaleFactor);
}

}  // namespace orbs::ORBS_VARIANT
