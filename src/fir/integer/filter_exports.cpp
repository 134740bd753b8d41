#include "fir/integer/filter.h"

#define ORBS_SLICE "boundary/exports/fir.def"
#include "boundary/declare_exports.h"

namespace orbs::ORBS_VARIANT {
using namespace fir;

OrbStatus legacy90orbsFIR_16s_Sfs(const Orb16s* src, Orb16s* dst, Orb32s sampleCount, FIRIntState* state,
                                  Orb32s scaleFactor) {
  return Filter<Fir16s>(src, dst, sampleCount, state, scaleFactor);
}

OrbStatus legacy90orbsFIR_16s_ISfs(Orb16s* srcDst, Orb32s sampleCount, FIRIntState* state,
                                   Orb32s scaleFactor) {
  return FilterInPlace<Fir16s>(srcDst, sampleCount, state, scaleFactor);
}

OrbStatus legacy90orbsFIROne_16s_Sfs(Orb16s src, Orb16s* dst, FIRIntState* state, Orb32s scaleFactor) {
  return FilterOne<Fir16s>(src, dst, state, scaleFactor);
}

OrbStatus legacy90orbsFIR32s_16s_Sfs(const Orb16s* src, Orb16s* dst, Orb32s sampleCount, FIRIntState* state,
                                     Orb32s scaleFactor) {
  return Filter<Fir32s_16s>(src, dst, sampleCount, state, scaleFactor);
}

OrbStatus legacy90orbsFIR32s_16s_ISfs(Orb16s* srcDst, Orb32s sampleCount, FIRIntState* state,
                                      Orb32s scaleFactor) {
  return FilterInPlace<Fir32s_16s>(srcDst, sampleCount, state, scaleFactor);
}

OrbStatus legacy90orbsFIROne32s_16s_Sfs(Orb16s src, Orb16s* dst, FIRIntState* state, Orb32s scaleFactor) {
  return FilterOne<Fir32s_16s>(src, dst, state, scaleFactor);
}

OrbStatus legacy90orbsFIR32sc_16sc_Sfs(const Orb16sc* src, Orb16sc* dst, Orb32s sampleCount,
                                       FIRIntState* state, Orb32s scaleFactor) {
  return Filter<Fir32sc_16sc>(src, dst, sampleCount, state, scaleFactor);
}

OrbStatus legacy90orbsFIR32sc_16sc_ISfs(Orb16sc* srcDst, Orb32s sampleCount, FIRIntState* state,
                                        Orb32s scaleFactor) {
  return FilterInPlace<Fir32sc_16sc>(srcDst, sampleCount, state, scaleFactor);
}

OrbStatus legacy90orbsFIROne32sc_16sc_Sfs(Orb16sc src, Orb16sc* dst, FIRIntState* state, Orb32s scaleFactor) {
  return FilterOne<Fir32sc_16sc>(src, dst, state, scaleFactor);
}

}  // namespace orbs::ORBS_VARIANT
