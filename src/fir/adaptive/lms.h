// Adaptive FIR filters without a state, a sample at a time.
#ifndef ORBS_FIR_ADAPTIVE_LMS_H
#define ORBS_FIR_ADAPTIVE_LMS_H

#include "core/checks.h"
#include "core/scaling.h"
#include "fir/adaptive/lms_kernels.h"
#include "fir/ring.h"
#include "fir/tuning.h"

namespace orbs::ORBS_VARIANT::fir {

template <class Sample, class Tap>
OrbStatus CheckStep(const Sample* output, const Tap* taps, Orb32s tapCount, const Sample* delayLine,
                    const Orb32s* delayIndex) {
  ORBS_RETURN_IF_BAD(CheckArrays(tapCount, output, taps, delayLine, delayIndex));
  if (*delayIndex < 0 || *delayIndex >= tapCount) return StatusDelayIndex;
  return StatusOk;
}

// px truncates the result of the plain rule.
template <class Sum>
Orb16s DeliverSum(Sum y) {
  return kIsPx ? ClampAndConvert<Orb16s>(y, [](Sum v) { return TruncateToInt(v); })
               : FloatNearEven<Orb16s>(y);
}

// In px y is an integer already.
template <class Sum>
Orb16s DeliverQ15(Sum y) {
  if constexpr (kIsPx) {
    return Saturate<Orb16s>(y);
  } else {
    return FloatNearEven<Orb16s>(y);
  }
}

}  // namespace orbs::ORBS_VARIANT::fir

#endif
