#include "iir/filter.h"

#define ORBS_SLICE "boundary/exports/iir.def"
#include "boundary/declare_exports.h"

namespace orbs::ORBS_VARIANT {
using namespace iir;

OrbStatus legacy90orbsIIR32s_16s_Sfs(const Orb16s* src, Orb16s* dst, Orb32s sampleCount, IIRState* state,
                                     Orb32s scaleFactor) {
  return Filter<RealNumbers>(src, dst, sampleCount, state, scaleFactor);
}

OrbStatus legacy90orbsIIR32s_16s_ISfs(Orb16s* srcDst, Orb32s sampleCount, IIRState* state,
                                      Orb32s scaleFactor) {
  return Filter<RealNumbers, Orb16s>(srcDst, srcDst, sampleCount, state, scaleFactor);
}

OrbStatus legacy90orbsIIR32sc_16sc_Sfs(const Orb16sc* src, Orb16sc* dst, Orb32s sampleCount, IIRState* state,
                                       Orb32s scaleFactor) {
  return Filter<ComplexNumbers>(src, dst, sampleCount, state, scaleFactor);
}

OrbStatus legacy90orbsIIR32sc_16sc_ISfs(Orb16sc* srcDst, Orb32s sampleCount, IIRState* state,
                                        Orb32s scaleFactor) {
  return Filter<ComplexNumbers, Orb16sc>(srcDst, srcDst, sampleCount, state, scaleFactor);
}

OrbStatus legacy90orbsIIROne32s_16s_Sfs(Orb16s src, Orb16s* dst, IIRState* state, Orb32s scaleFactor) {
  return FilterOne<RealNumbers>(src, dst, state, scaleFactor);
}

OrbStatus legacy90orbsIIROne32sc_16sc_Sfs(Orb16sc src, Orb16sc* dst, IIRState* state, Orb32s scaleFactor) {
  return FilterOne<ComplexNumbers>(src, dst, state, scaleFactor);
}

}  // namespace orbs::ORBS_VARIANT
