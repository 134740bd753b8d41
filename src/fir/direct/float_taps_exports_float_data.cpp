// On floating-point data.
#include "fir/direct/float_taps.h"

#define ORBS_SLICE "boundary/exports/fir.def"
#include "boundary/declare_exports.h"

namespace orbs::ORBS_VARIANT {
using namespace fir;

OrbStatus legacy90orbsFIR_Direct_32f(const Orb32f* src, Orb32f* dst, Orb32s sampleCount, const Orb32f* taps,
                                     Orb32s tapCount, Orb32f* delayLine, Orb32s* delayIndex) {
  return FilterDirect(FloatDirect<Fir32f>{taps, tapCount, 0}, src, dst, sampleCount, delayLine, delayIndex);
}

OrbStatus legacy90orbsFIR_Direct_32f_I(Orb32f* srcDst, Orb32s sampleCount, const Orb32f* taps,
                                       Orb32s tapCount, Orb32f* delayLine, Orb32s* delayIndex) {
  return FilterDirect(FloatDirect<Fir32f>{taps, tapCount, 0}, srcDst, srcDst, sampleCount, delayLine,
                      delayIndex);
}

OrbStatus legacy90orbsFIROne_Direct_32f(Orb32f src, Orb32f* dst, const Orb32f* taps, Orb32s tapCount,
                                        Orb32f* delayLine, Orb32s* delayIndex) {
  return FilterDirectOne(FloatDirect<Fir32f>{taps, tapCount, 0}, &src, dst, delayLine, delayIndex);
}

OrbStatus legacy90orbsFIROne_Direct_32f_I(Orb32f* srcDst, const Orb32f* taps, Orb32s tapCount,
                                          Orb32f* delayLine, Orb32s* delayIndex) {
  return FilterDirectOne(FloatDirect<Fir32f>{taps, tapCount, 0}, srcDst, srcDst, delayLine, delayIndex);
}

OrbStatus legacy90orbsFIR_Direct_32fc(const Orb32fc* src, Orb32fc* dst, Orb32s sampleCount,
                                      const Orb32fc* taps, Orb32s tapCount, Orb32fc* delayLine,
                                      Orb32s* delayIndex) {
  return FilterDirect(FloatDirect<Fir32fc>{taps, tapCount, 0}, src, dst, sampleCount, delayLine, delayIndex);
}

OrbStatus legacy90orbsFIR_Direct_32fc_I(Orb32fc* srcDst, Orb32s sampleCount, const Orb32fc* taps,
                                        Orb32s tapCount, Orb32fc* delayLine, Orb32s* delayIndex) {
  return FilterDirect(FloatDirect<Fir32fc>{taps, tapCount, 0}, srcDst, srcDst, sampleCount, delayLine,
                      delayIndex);
}

OrbStatus legacy90orbsFIROne_Direct_32fc(Orb32fc src, Orb32fc* dst, const Orb32fc* taps, Orb32s tapCount,
                                         Orb32fc* delayLine, Orb32s* delayIndex) {
  return FilterDirectOne(FloatDirect<Fir32fc>{taps, tapCount, 0}, &src, dst, delayLine, delayIndex);
}

OrbStatus legacy90orbsFIROne_Direct_32fc_I(Orb32fc* srcDst, const Orb32fc* taps, Orb32s tapCount,
                                           Orb32fc* delayLine, Orb32s* delayIndex) {
  return FilterDirectOne(FloatDirect<Fir32fc>{taps, tapCount, 0}, srcDst, srcDst, delayLine, delayIndex);
}

OrbStatus legacy90orbsFIR_Direct_64f(const Orb64f* src, Orb64f* dst, Orb32s sampleCount, const Orb64f* taps,
                                     Orb32s tapCount, Orb64f* delayLine, Orb32s* delayIndex) {
  return FilterDirect(FloatDirect<Fir64f>{taps, tapCount, 0}, src, dst, sampleCount, delayLine, delayIndex);
}

OrbStatus legacy90orbsFIR_Direct_64f_I(Orb64f* srcDst, Orb32s sampleCount, const Orb64f* taps,
                                       Orb32s tapCount, Orb64f* delayLine, Orb32s* delayIndex) {
  return FilterDirect(FloatDirect<Fir64f>{taps, tapCount, 0}, srcDst, srcDst, sampleCount, delayLine,
                      delayIndex);
}

OrbStatus legacy90orbsFIROne_Direct_64f(Orb64f src, Orb64f* dst, const Orb64f* taps, Orb32s tapCount,
                                        Orb64f* delayLine, Orb32s* delayIndex) {
  return FilterDirectOne(FloatDirect<Fir64f>{taps, tapCount, 0}, &src, dst, delayLine, delayIndex);
}

OrbStatus legacy90orbsFIROne_Direct_64f_I(Orb64f* srcDst, const Orb64f* taps, Orb32s tapCount,
                                          Orb64f* delayLine, Orb32s* delayIndex) {
  return FilterDirectOne(FloatDirect<Fir64f>{taps, tapCount, 0}, srcDst, srcDst, delayLine, delayIndex);
}

OrbStatus legacy90orbsFIR_Direct_64fc(const Orb64fc* src, Orb64fc* dst, Orb32s sampleCount,
                                      const Orb64fc* taps, Orb32s tapCount, Orb64fc* delayLine,
                                      Orb32s* delayIndex) {
  return FilterDirect(FloatDirect<Fir64fc>{taps, tapCount, 0}, src, dst, sampleCount, delayLine, delayIndex);
}

OrbStatus legacy90orbsFIR_Direct_64fc_I(Orb64fc* srcDst, Orb32s sampleCount, const Orb64fc* taps,
                                        Orb32s tapCount, Orb64fc* delayLine, Orb32s* delayIndex) {
  return FilterDirect(FloatDirect<Fir64fc>{taps, tapCount, 0}, srcDst, srcDst, sampleCount, delayLine,
                      delayIndex);
}

OrbStatus legacy90orbsFIROne_Direct_64fc(Orb64fc src, Orb64fc* dst, const Orb64fc* taps, Orb32s tapCount,
                                         Orb64fc* delayLine, Orb32s* delayIndex) {
  return FilterDirectOne(FloatDirect<Fir64fc>{taps, tapCount, 0}, &src, dst, delayLine, delayIndex);
}

OrbStatus legacy90orbsFIROne_Direct_64fc_I(Orb64fc* srcDst, const Orb64fc* taps, Orb32s tapCount,
                                           Orb64fc* delayLine, Orb32s* delayIndex) {
  return FilterDirectOne(FloatDirect<Fir64fc>{taps, tapCount, 0}, srcDst, srcDst, delayLine, delayIndex);
}

OrbStatus legacy90orbsFIR64f_Direct_32f(const Orb32f* src, Orb32f* dst, Orb32s sampleCount,
                                        const Orb64f* taps, Orb32s tapCount, Orb32f* delayLine,
                                        Orb32s* delayIndex) {
  return FilterDirect(FloatDirect<Fir64f_32f>{taps, tapCount, 0}, src, dst, sampleCount, delayLine,
                      delayIndex);
}

OrbStatus legacy90orbsFIR64f_Direct_32f_I(Orb32f* srcDst, Orb32s sampleCount, const Orb64f* taps,
                                          Orb32s tapCount, Orb32f* delayLine, Orb32s* delayIndex) {
  return FilterDirect(FloatDirect<Fir64f_32f>{taps, tapCount, 0}, srcDst, srcDst, sampleCount, delayLine,
                      delayIndex);
}

OrbStatus legacy90orbsFIROne64f_Direct_32f(Orb32f src, Orb32f* dst, const Orb64f* taps, Orb32s tapCount,
                                           Orb32f* delayLine, Orb32s* delayIndex) {
  return FilterDirectOne(FloatDirect<Fir64f_32f>{taps, tapCount, 0}, &src, dst, delayLine, delayIndex);
}

OrbStatus legacy90orbsFIROne64f_Direct_32f_I(Orb32f* srcDst, const Orb64f* taps, Orb32s tapCount,
                                             Orb32f* delayLine, Orb32s* delayIndex) {
  return FilterDirectOne(FloatDirect<Fir64f_32f>{taps, tapCount, 0}, srcDst, srcDst, delayLine, delayIndex);
}

OrbStatus legacy90orbsFIR64fc_Direct_32fc(const Orb32fc* src, Orb32fc* dst, Orb32s sampleCount,
                                          const Orb64fc* taps, Orb32s tapCount, Orb32fc* delayLine,
                                          Orb32s* delayIndex) {
  return FilterDirect(FloatDirect<Fir64fc_32fc>{taps, tapCount, 0}, src, dst, sampleCount, delayLine,
                      delayIndex);
}

OrbStatus legacy90orbsFIR64fc_Direct_32fc_I(Orb32fc* srcDst, Orb32s sampleCount, const Orb64fc* taps,
                                            Orb32s tapCount, Orb32fc* delayLine, Orb32s* delayIndex) {
  return FilterDirect(FloatDirect<Fir64fc_32fc>{taps, tapCount, 0}, srcDst, srcDst, sampleCount, delayLine,
                      delayIndex);
}

OrbStatus legacy90orbsFIROne64fc_Direct_32fc(Orb32fc src, Orb32fc* dst, const Orb64fc* taps, Orb32s tapCount,
                                             Orb32fc* delayLine, Orb32s* delayIndex) {
  return FilterDirectOne(FloatDirect<Fir64fc_32fc>{taps, tapCount, 0}, &src, dst, delayLine, delayIndex);
}

OrbStatus legacy90orbsFIROne64fc_Direct_32fc_I(Orb32fc* srcDst, const Orb64fc* taps, Orb32s tapCount,
                                               Orb32fc* delayLine, Orb32s* delayIndex) {
  return FilterDirectOne(FloatDirect<Fir64fc_32fc>{taps, tapCount, 0}, srcDst, srcDst, delayLine, delayIndex);
}

}  // namespace orbs::ORBS_VARIANT
