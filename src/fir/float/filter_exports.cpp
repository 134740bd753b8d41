#include "fir/float/filter.h"

#define ORBS_SLICE "boundary/exports/fir.def"
#include "boundary/declare_exports.h"

namespace orbs::ORBS_VARIANT {
using namespace fir;

OrbStatus legacy90orbsFIR_32f(const Orb32f* src, Orb32f* dst, Orb32s sampleCount, FIRFloatState* state) {
  return Filter<Fir32f>(src, dst, sampleCount, state);
}

OrbStatus legacy90orbsFIR_32f_I(Orb32f* srcDst, Orb32s sampleCount, FIRFloatState* state) {
  return FilterInPlace<Fir32f>(srcDst, sampleCount, state);
}

OrbStatus legacy90orbsFIR_32fc(const Orb32fc* src, Orb32fc* dst, Orb32s sampleCount, FIRFloatState* state) {
  return Filter<Fir32fc>(src, dst, sampleCount, state);
}

OrbStatus legacy90orbsFIR_32fc_I(Orb32fc* srcDst, Orb32s sampleCount, FIRFloatState* state) {
  return FilterInPlace<Fir32fc>(srcDst, sampleCount, state);
}

OrbStatus legacy90orbsFIR_64f(const Orb64f* src, Orb64f* dst, Orb32s sampleCount, FIRFloatState* state) {
  return Filter<Fir64f>(src, dst, sampleCount, state);
}

OrbStatus legacy90orbsFIR_64f_I(Orb64f* srcDst, Orb32s sampleCount, FIRFloatState* state) {
  return FilterInPlace<Fir64f>(srcDst, sampleCount, state);
}

OrbStatus legacy90orbsFIR_64fc(const Orb64fc* src, Orb64fc* dst, Orb32s sampleCount, FIRFloatState* state) {
  return Filter<Fir64fc>(src, dst, sampleCount, state);
}

OrbStatus legacy90orbsFIR_64fc_I(Orb64fc* srcDst, Orb32s sampleCount, FIRFloatState* state) {
  return FilterInPlace<Fir64fc>(srcDst, sampleCount, state);
}

OrbStatus legacy90orbsFIR32f_16s_Sfs(const Orb16s* src, Orb16s* dst, Orb32s sampleCount, FIRFloatState* state,
                                     Orb32s scaleFactor) {
  return Filter<Fir32f_16s>(src, dst, sampleCount, state, scaleFactor);
}

OrbStatus legacy90orbsFIR32f_16s_ISfs(Orb16s* srcDst, Orb32s sampleCount, FIRFloatState* state,
                                      Orb32s scaleFactor) {
  return FilterInPlace<Fir32f_16s>(srcDst, sampleCount, state, scaleFactor);
}

OrbStatus legacy90orbsFIR32fc_16sc_Sfs(const Orb16sc* src, Orb16sc* dst, Orb32s sampleCount,
                                       FIRFloatState* state, Orb32s scaleFactor) {
  return Filter<Fir32fc_16sc>(src, dst, sampleCount, state, scaleFactor);
}

OrbStatus legacy90orbsFIR32fc_16sc_ISfs(Orb16sc* srcDst, Orb32s sampleCount, FIRFloatState* state,
                                        Orb32s scaleFactor) {
  return FilterInPlace<Fir32fc_16sc>(srcDst, sampleCount, state, scaleFactor);
}

OrbStatus legacy90orbsFIR64f_32f(const Orb32f* src, Orb32f* dst, Orb32s sampleCount, FIRFloatState* state) {
  return Filter<Fir64f_32f>(src, dst, sampleCount, state);
}

OrbStatus legacy90orbsFIR64f_32f_I(Orb32f* srcDst, Orb32s sampleCount, FIRFloatState* state) {
  return FilterInPlace<Fir64f_32f>(srcDst, sampleCount, state);
}

OrbStatus legacy90orbsFIR64fc_32fc(const Orb32fc* src, Orb32fc* dst, Orb32s sampleCount,
                                   FIRFloatState* state) {
  return Filter<Fir64fc_32fc>(src, dst, sampleCount, state);
}

OrbStatus legacy90orbsFIR64fc_32fc_I(Orb32fc* srcDst, Orb32s sampleCount, FIRFloatState* state) {
  return FilterInPlace<Fir64fc_32fc>(srcDst, sampleCount, state);
}

OrbStatus legacy90orbsFIR64f_32s_Sfs(const Orb32s* src, Orb32s* dst, Orb32s sampleCount, FIRFloatState* state,
                                     Orb32s scaleFactor) {
  return Filter<Fir64f_32s>(src, dst, sampleCount, state, scaleFactor);
}

OrbStatus legacy90orbsFIR64f_32s_ISfs(Orb32s* srcDst, Orb32s sampleCount, FIRFloatState* state,
                                      Orb32s scaleFactor) {
  return FilterInPlace<Fir64f_32s>(srcDst, sampleCount, state, scaleFactor);
}

OrbStatus legacy90orbsFIR64fc_32sc_Sfs(const Orb32sc* src, Orb32sc* dst, Orb32s sampleCount,
                                       FIRFloatState* state, Orb32s scaleFactor) {
  return Filter<Fir64fc_32sc>(src, dst, sampleCount, state, scaleFactor);
}

OrbStatus legacy90orbsFIR64fc_32sc_ISfs(Orb32sc* srcDst, Orb32s sampleCount, FIRFloatState* state,
                                        Orb32s scaleFactor) {
  return FilterInPlace<Fir64fc_32sc>(srcDst, sampleCount, state, scaleFactor);
}

OrbStatus legacy90orbsFIR64f_16s_Sfs(const Orb16s* src, Orb16s* dst, Orb32s sampleCount, FIRFloatState* state,
                                     Orb32s scaleFactor) {
  return Filter<Fir64f_16s>(src, dst, sampleCount, state, scaleFactor);
}

OrbStatus legacy90orbsFIR64f_16s_ISfs(Orb16s* srcDst, Orb32s sampleCount, FIRFloatState* state,
                                      Orb32s scaleFactor) {
  return FilterInPlace<Fir64f_16s>(srcDst, sampleCount, state, scaleFactor);
}

OrbStatus legacy90orbsFIR64fc_16sc_Sfs(const Orb16sc* src, Orb16sc* dst, Orb32s sampleCount,
                                       FIRFloatState* state, Orb32s scaleFactor) {
  return Filter<Fir64fc_16sc>(src, dst, sampleCount, state, scaleFactor);
}

OrbStatus legacy90orbsFIR64fc_16sc_ISfs(Orb16sc* srcDst, Orb32s sampleCount, FIRFloatState* state,
                                        Orb32s scaleFactor) {
  return FilterInPlace<Fir64fc_16sc>(srcDst, sampleCount, state, scaleFactor);
}

OrbStatus legacy90orbsFIR_32s_Sfs(const Orb32s* src, Orb32s* dst, Orb32s sampleCount, FIRFloatState* state,
                                  Orb32s scaleFactor) {
  return Filter<Fir64f_32s>(src, dst, sampleCount, state, scaleFactor);
}

OrbStatus legacy90orbsFIR_32s_ISfs(Orb32s* srcDst, Orb32s sampleCount, FIRFloatState* state,
                                   Orb32s scaleFactor) {
  return FilterInPlace<Fir64f_32s>(srcDst, sampleCount, state, scaleFactor);
}

}  // namespace orbs::ORBS_VARIANT
