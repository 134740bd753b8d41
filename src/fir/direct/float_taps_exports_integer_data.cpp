// On integers.
#include "fir/direct/float_taps.h"

#define ORBS_SLICE "boundary/exports/fir.def"
#include "boundary/declare_exports.h"

namespace orbs::ORBS_VARIANT {
using namespace fir;

OrbStatus legacy90orbsFIR32f_Direct_16s_Sfs(const Orb16s* src, Orb16s* dst, Orb32s sampleCount,
                                            const Orb32f* taps, Orb32s tapCount, Orb16s* delayLine,
                                            Orb32s* delayIndex, Orb32s scaleFactor) {
  return FilterDirect(FloatDirect<Fir32f_16s>{taps, tapCount, scaleFactor}, src, dst, sampleCount, delayLine,
                      delayIndex);
}

OrbStatus legacy90orbsFIR32f_Direct_16s_ISfs(Orb16s* srcDst, Orb32s sampleCount, const Orb32f* taps,
                                             Orb32s tapCount, Orb16s* delayLine, Orb32s* delayIndex,
                                             Orb32s scaleFactor) {
  return FilterDirect(FloatDirect<Fir32f_16s>{taps, tapCount, scaleFactor}, srcDst, srcDst, sampleCount,
                      delayLine, delayIndex);
}

OrbStatus legacy90orbsFIROne32f_Direct_16s_Sfs(Orb16s src, Orb16s* dst, const Orb32f* taps, Orb32s tapCount,
                                               Orb16s* delayLine, Orb32s* delayIndex, Orb32s scaleFactor) {
  return FilterDirectOne(FloatDirect<Fir32f_16s>{taps, tapCount, scaleFactor}, &src, dst, delayLine,
                         delayIndex);
}

OrbStatus legacy90orbsFIROne32f_Direct_16s_ISfs(Orb16s* srcDst, const Orb32f* taps, Orb32s tapCount,
                                                Orb16s* delayLine, Orb32s* delayIndex, Orb32s scaleFactor) {
  return FilterDirectOne(FloatDirect<Fir32f_16s>{taps, tapCount, scaleFactor}, srcDst, srcDst, delayLine,
                         delayIndex);
}

OrbStatus legacy90orbsFIR32fc_Direct_16sc_Sfs(const Orb16sc* src, Orb16sc* dst, Orb32s sampleCount,
                                              const Orb32fc* taps, Orb32s tapCount, Orb16sc* delayLine,
                                              Orb32s* delayIndex, Orb32s scaleFactor) {
  return FilterDirect(FloatDirect<Fir32fc_16sc>{taps, tapCount, scaleFactor}, src, dst, sampleCount,
                      delayLine, delayIndex);
}

OrbStatus legacy90orbsFIR32fc_Direct_16sc_ISfs(Orb16sc* srcDst, Orb32s sampleCount, const Orb32fc* taps,
                                               Orb32s tapCount, Orb16sc* delayLine, Orb32s* delayIndex,
                                               Orb32s scaleFactor) {
  return FilterDirect(FloatDirect<Fir32fc_16sc>{taps, tapCount, scaleFactor}, srcDst, srcDst, sampleCount,
                      delayLine, delayIndex);
}

OrbStatus legacy90orbsFIROne32fc_Direct_16sc_Sfs(Orb16sc src, Orb16sc* dst, const Orb32fc* taps,
                                                 Orb32s tapCount, Orb16sc* delayLine, Orb32s* delayIndex,
                                                 Orb32s scaleFactor) {
  return FilterDirectOne(FloatDirect<Fir32fc_16sc>{taps, tapCount, scaleFactor}, &src, dst, delayLine,
                         delayIndex);
}

OrbStatus legacy90orbsFIROne32fc_Direct_16sc_ISfs(Orb16sc* srcDst, const Orb32fc* taps, Orb32s tapCount,
                                                  Orb16sc* delayLine, Orb32s* delayIndex,
                                                  Orb32s scaleFactor) {
  return FilterDirectOne(FloatDirect<Fir32fc_16sc>{taps, tapCount, scaleFactor}, srcDst, srcDst, delayLine,
                         delayIndex);
}

OrbStatus legacy90orbsFIR64f_Direct_16s_Sfs(const Orb16s* src, Orb16s* dst, Orb32s sampleCount,
                                            const Orb64f* taps, Orb32s tapCount, Orb16s* delayLine,
                                            Orb32s* delayIndex, Orb32s scaleFactor) {
  return FilterDirect(FloatDirect<Fir64f_16s>{taps, tapCount, scaleFactor}, src, dst, sampleCount, delayLine,
                      delayIndex);
}

OrbStatus legacy90orbsFIR64f_Direct_16s_ISfs(Orb16s* srcDst, Orb32s sampleCount, const Orb64f* taps,
                                             Orb32s tapCount, Orb16s* delayLine, Orb32s* delayIndex,
                                             Orb32s scaleFactor) {
  return FilterDirect(FloatDirect<Fir64f_16s>{taps, tapCount, scaleFactor}, srcDst, srcDst, sampleCount,
                      delayLine, delayIndex);
}

OrbStatus legacy90orbsFIROne64f_Direct_16s_Sfs(Orb16s src, Orb16s* dst, const Orb64f* taps, Orb32s tapCount,
                                               Orb16s* delayLine, Orb32s* delayIndex, Orb32s scaleFactor) {
  return FilterDirectOne(FloatDirect<Fir64f_16s>{taps, tapCount, scaleFactor}, &src, dst, delayLine,
                         delayIndex);
}

OrbStatus legacy90orbsFIROne64f_Direct_16s_ISfs(Orb16s* srcDst, const Orb64f* taps, Orb32s tapCount,
                                                Orb16s* delayLine, Orb32s* delayIndex, Orb32s scaleFactor) {
  return FilterDirectOne(FloatDirect<Fir64f_16s>{taps, tapCount, scaleFactor}, srcDst, srcDst, delayLine,
                         delayIndex);
}

OrbStatus legacy90orbsFIR64fc_Direct_16sc_Sfs(const Orb16sc* src, Orb16sc* dst, Orb32s sampleCount,
                                              const Orb64fc* taps, Orb32s tapCount, Orb16sc* delayLine,
                                              Orb32s* delayIndex, Orb32s scaleFactor) {
  return FilterDirect(FloatDirect<Fir64fc_16sc>{taps, tapCount, scaleFactor}, src, dst, sampleCount,
                      delayLine, delayIndex);
}

OrbStatus legacy90orbsFIR64fc_Direct_16sc_ISfs(Orb16sc* srcDst, Orb32s sampleCount, const Orb64fc* taps,
                                               Orb32s tapCount, Orb16sc* delayLine, Orb32s* delayIndex,
                                               Orb32s scaleFactor) {
  return FilterDirect(FloatDirect<Fir64fc_16sc>{taps, tapCount, scaleFactor}, srcDst, srcDst, sampleCount,
                      delayLine, delayIndex);
}

OrbStatus legacy90orbsFIROne64fc_Direct_16sc_Sfs(Orb16sc src, Orb16sc* dst, const Orb64fc* taps,
                                                 Orb32s tapCount, Orb16sc* delayLine, Orb32s* delayIndex,
                                                 Orb32s scaleFactor) {
  return FilterDirectOne(FloatDirect<Fir64fc_16sc>{taps, tapCount, scaleFactor}, &src, dst, delayLine,
                         delayIndex);
}

OrbStatus legacy90orbsFIROne64fc_Direct_16sc_ISfs(Orb16sc* srcDst, const Orb64fc* taps, Orb32s tapCount,
                                                  Orb16sc* delayLine, Orb32s* delayIndex,
                                                  Orb32s scaleFactor) {
  return FilterDirectOne(FloatDirect<Fir64fc_16sc>{taps, tapCount, scaleFactor}, srcDst, srcDst, delayLine,
                         delayIndex);
}

OrbStatus legacy90orbsFIR64f_Direct_32s_Sfs(const Orb32s* src, Orb32s* dst, Orb32s sampleCount,
                                            const Orb64f* taps, Orb32s tapCount, Orb32s* delayLine,
                                            Orb32s* delayIndex, Orb32s scaleFactor) {
  return FilterDirect(FloatDirect<Fir64f_32s>{taps, tapCount, scaleFactor}, src, dst, sampleCount, delayLine,
                      delayIndex);
}

OrbStatus legacy90orbsFIR64f_Direct_32s_ISfs(Orb32s* srcDst, Orb32s sampleCount, const Orb64f* taps,
                                             Orb32s tapCount, Orb32s* delayLine, Orb32s* delayIndex,
                                             Orb32s scaleFactor) {
  return FilterDirect(FloatDirect<Fir64f_32s>{taps, tapCount, scaleFactor}, srcDst, srcDst, sampleCount,
                      delayLine, delayIndex);
}

OrbStatus legacy90orbsFIROne64f_Direct_32s_Sfs(Orb32s src, Orb32s* dst, const Orb64f* taps, Orb32s tapCount,
                                               Orb32s* delayLine, Orb32s* delayIndex, Orb32s scaleFactor) {
  return FilterDirectOne(FloatDirect<Fir64f_32s>{taps, tapCount, scaleFactor}, &src, dst, delayLine,
                         delayIndex);
}

OrbStatus legacy90orbsFIROne64f_Direct_32s_ISfs(Orb32s* srcDst, const Orb64f* taps, Orb32s tapCount,
                                                Orb32s* delayLine, Orb32s* delayIndex, Orb32s scaleFactor) {
  return FilterDirectOne(FloatDirect<Fir64f_32s>{taps, tapCount, scaleFactor}, srcDst, srcDst, delayLine,
                         delayIndex);
}

OrbStatus legacy90orbsFIR64fc_Direct_32sc_Sfs(const Orb32sc* src, Orb32sc* dst, Orb32s sampleCount,
                                              const Orb64fc* taps, Orb32s tapCount, Orb32sc* delayLine,
                                              Orb32s* delayIndex, Orb32s scaleFactor) {
  return FilterDirect(FloatDirect<Fir64fc_32sc>{taps, tapCount, scaleFactor}, src, dst, sampleCount,
                      delayLine, delayIndex);
}

OrbStatus legacy90orbsFIR64fc_Direct_32sc_ISfs(Orb32sc* srcDst, Orb32s sampleCount, const Orb64fc* taps,
                                               Orb32s tapCount, Orb32sc* delayLine, Orb32s* delayIndex,
                                               Orb32s scaleFactor) {
  return FilterDirect(FloatDirect<Fir64fc_32sc>{taps, tapCount, scaleFactor}, srcDst, srcDst, sampleCount,
                      delayLine, delayIndex);
}

OrbStatus legacy90orbsFIROne64fc_Direct_32sc_Sfs(Orb32sc src, Orb32sc* dst, const Orb64fc* taps,
                                                 Orb32s tapCount, Orb32sc* delayLine, Orb32s* delayIndex,
                                                 Orb32s scaleFactor) {
  return FilterDirectOne(FloatDirect<Fir64fc_32sc>{taps, tapCount, scaleFactor}, &src, dst, delayLine,
                         delayIndex);
}

OrbStatus legacy90orbsFIROne64fc_Direct_32sc_ISfs(Orb32sc* srcDst, const Orb64fc* taps, Orb32s tapCount,
                                                  Orb32sc* delayLine, Orb32s* delayIndex,
                                                  Orb32s scaleFactor) {
  return FilterDirectOne(FloatDirect<Fir64fc_32sc>{taps, tapCount, scaleFactor}, srcDst, srcDst, delayLine,
                         delayIndex);
}

}  // namespace orbs::ORBS_VARIANT
