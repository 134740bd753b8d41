// Adaptive FIR filters without a state, a sample at a time.
#include "fir/adaptive/lms_kernels.h"
#include "fir/ring.h"
#include "fir/tuning.h"
#include "core/checks.h"
#include "boundary/exports.h"
#include "core/scaling.h"

namespace orbs::ORBS_VARIANT {
namespace {

template <class Sample, class Tap>
OrbStatus CheckStep(const Sample* output, const Tap* taps, Orb32s tapCount, const Sample* delayLine,
                    const Orb32s* delayIndex) {
  ORBS_RETURN_IF_BAD(CheckArrays(tapCount, output, taps, delayLine, delayIndex));
  if (*delayIndex < 0 || *delayIndex >= tapCount) return StatusDelayIndex;
  return StatusOk;
}

// What px delivers of the plain rule has its fraction cut off.
template <class Sum>
Orb16s DeliverSum(Sum y) {
  return kIsPx ? ClampAndConvert<Orb16s>(y, [](Sum v) { return TruncateToInt(v); })
               : FloatNearEven<Orb16s>(y);
}

// px has rounded by now.
template <class Sum>
Orb16s DeliverQ15(Sum y) {
  if constexpr (kIsPx) {
    return Saturate<Orb16s>(y);
  } else {
    return FloatNearEven<Orb16s>(y);
  }
}

}  // namespace

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
