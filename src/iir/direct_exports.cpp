#include "iir/direct.h"

#define ORBS_SLICE "boundary/exports/iir.def"
#include "boundary/declare_exports.h"

namespace orbs::ORBS_VARIANT {
using namespace iir;

OrbStatus legacy90orbsIIROne_Direct_16s(Orb16s src, Orb16s* dst, const Orb16s* taps, Orb32s order,
                                        Orb32s* delayLine) {
  return FilterOne(src, dst, taps, order, delayLine);
}

OrbStatus legacy90orbsIIROne_Direct_16s_I(Orb16s* srcDst, const Orb16s* taps, Orb32s order,
                                          Orb32s* delayLine) {
  return srcDst == nullptr ? StatusNullPointer : FilterOne(*srcDst, srcDst, taps, order, delayLine);
}

OrbStatus legacy90orbsIIROne_BiQuadDirect_16s(Orb16s src, Orb16s* dst, const Orb16s* taps,
                                              Orb32s sectionCount, Orb32s* delayLine) {
  return FilterOneBiQuad(src, dst, taps, sectionCount, delayLine);
}

OrbStatus legacy90orbsIIROne_BiQuadDirect_16s_I(Orb16s* srcDst, const Orb16s* taps, Orb32s sectionCount,
                                                Orb32s* delayLine) {
  return srcDst == nullptr ? StatusNullPointer
                           : FilterOneBiQuad(*srcDst, srcDst, taps, sectionCount, delayLine);
}

OrbStatus legacy90orbsIIR_Direct_16s(const Orb16s* src, Orb16s* dst, Orb32s sampleCount, const Orb16s* taps,
                                     Orb32s order, Orb32s* delayLine) {
  return Filter(src, dst, sampleCount, taps, order, delayLine);
}

OrbStatus legacy90orbsIIR_Direct_16s_I(Orb16s* srcDst, Orb32s sampleCount, const Orb16s* taps, Orb32s order,
                                       Orb32s* delayLine) {
  return Filter(srcDst, srcDst, sampleCount, taps, order, delayLine);
}

OrbStatus legacy90orbsIIR_BiQuadDirect_16s(const Orb16s* src, Orb16s* dst, Orb32s sampleCount,
                                           const Orb16s* taps, Orb32s sectionCount, Orb32s* delayLine) {
  return FilterBiQuad(src, dst, sampleCount, taps, sectionCount, delayLine);
}

OrbStatus legacy90orbsIIR_BiQuadDirect_16s_I(Orb16s* srcDst, Orb32s sampleCount, const Orb16s* taps,
                                             Orb32s sectionCount, Orb32s* delayLine) {
  return FilterBiQuad(srcDst, srcDst, sampleCount, taps, sectionCount, delayLine);
}

}  // namespace orbs::ORBS_VARIANT
