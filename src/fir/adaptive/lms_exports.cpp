#include "fir/adaptive/lms.h"

#define ORBS_SLICE "boundary/exports/fir.def"
#include "boundary/declare_exports.h"

namespace orbs::ORBS_VARIANT {
using namespace fir;

OrbStatus legacy90orbsFIRLMSOne_Direct_32f(Orb32f src, Orb32f reference, Orb32f* output, Orb32f* taps,
                                           Orb32s tapCount, Orb32f mu, Orb32f* delayLine,
                                           Orb32s* delayIndex) {
  ORBS_RETURN_IF_BAD(CheckStep(output, taps, tapCount, delayLine, delayIndex));
  const FirRing<Orb32f> ring = {delayLine, delayIndex, tapCount};
  *output = static_cast<Orb32f>(LmsStep(ring, src, reference, taps, mu));
  return StatusOk;
}

OrbStatus legacy90orbsFIRLMSOne_Direct32f_16s(Orb16s src, Orb16s reference, Orb16s* output, Orb32f* taps,
                                              Orb32s tapCount, Orb32f mu, Orb16s* delayLine,
                                              Orb32s* delayIndex) {
  ORBS_RETURN_IF_BAD(CheckStep(output, taps, tapCount, delayLine, delayIndex));
  const FirRing<Orb16s> ring = {delayLine, delayIndex, tapCount};
  *output = DeliverSum(LmsStep(ring, src, static_cast<Orb32f>(reference), taps, mu));
  return StatusOk;
}

OrbStatus legacy90orbsFIRLMSOne_DirectQ15_16s(Orb16s src, Orb16s reference, Orb16s* output, Orb32s* taps,
                                              Orb32s tapCount, Orb32s mu, Orb16s* delayLine,
                                              Orb32s* delayIndex) {
  ORBS_RETURN_IF_BAD(CheckStep(output, taps, tapCount, delayLine, delayIndex));
  const FirRing<Orb16s> ring = {delayLine, delayIndex, tapCount};
  *output = DeliverQ15(LmsStepQ15(ring, src, reference, taps, mu));
  return StatusOk;
}

}  // namespace orbs::ORBS_VARIANT
