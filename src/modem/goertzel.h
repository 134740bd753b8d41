// Goertzel detectors.
#ifndef ORBS_MODEM_GOERTZEL_H
#define ORBS_MODEM_GOERTZEL_H

#include "core/checks.h"
#include "modem/goertzel_kernels.h"

namespace orbs::ORBS_VARIANT::modem {

// A NaN is neither below 0 nor 1 or above: it passes and makes a NaN of its sum.
template <class Real, int kCount>
ORBS_INLINE OrbStatus CheckFrequencies(const Real (&frequencies)[kCount]) {
  for (const Real f : frequencies) {
    if (f < 0 || f >= 1) return StatusRelFreq;
  }
  return StatusOk;
}

template <class Real, int kCount>
struct Steps {
  Rotation r[kCount];

  explicit ORBS_INLINE Steps(const Real (&frequencies)[kCount]) {
    for (int k = 0; k < kCount; ++k) r[k] = RotationOf(static_cast<Orb64f>(frequencies[k]));
  }
};

#if ORBS_VECTOR
// To the nearest integer, ties to even, also in a process that has changed the rounding mode.
ORBS_INLINE Orb32s RoundNearEvenToInt(Orb64f y) {
  const Orb32s whole = TruncateToInt(y);
  const Orb64f fraction = y - whole;
  const Orb64f carried = (whole & 1) != 0 ? 0.5 : 0.50000000000000011;  // an even number keeps its ties
  return whole + (fraction >= carried ? 1 : 0) - (fraction <= -carried ? 1 : 0);
}
ORBS_INLINE Orb16s RoundAndSaturate(Orb64f y) {
  return ClampAndConvert<Orb16s>(y, [](Orb64f v) { return RoundNearEvenToInt(v); });
}
#else
ORBS_INLINE Orb16s RoundAndSaturate(Wide<Orb64f> y) { return FloatHalfAway<Orb16s>(y); }
#endif

template <class Sample>
ORBS_INLINE OrbStatus GoertzTwo(const Sample* src, Orb32s len, Orb32fc* result, const Orb32f* rFreqs) {
  ORBS_RETURN_IF_BAD(CheckArrays(len, src, result, rFreqs));
  const Orb32f frequencies[2] = {rFreqs[0], rFreqs[1]};
  ORBS_RETURN_IF_BAD(CheckFrequencies(frequencies));
  FourierSum sums[2];
  SumFourier(src, len, Steps(frequencies).r, sums);
  for (int k = 0; k < 2; ++k) {
    result[k] = {static_cast<Orb32f>(sums[k].re), static_cast<Orb32f>(sums[k].im)};
  }
  return StatusOk;
}

// At any number of frequencies, arrays and length checked.
template <int kCount>
ORBS_INLINE OrbStatus GoertzScaled(const Orb16sc* src, Orb32s len, Orb16sc* result,
                                   const Orb32f (&frequencies)[kCount], Orb32s scaleFactor) {
  ORBS_RETURN_IF_BAD(CheckFrequencies(frequencies));
  FourierSum sums[kCount];
  SumFourier(src, len, Steps(frequencies).r, sums);
  // Where the scale factor is limited here, whatever is not 0 has long become 0 or saturated.
  const Wide<Orb64f> factor = InversePowerOfTwo_16s64f(scaleFactor);
  for (int k = 0; k < kCount; ++k) {
    result[k] = {RoundAndSaturate(factor * sums[k].re), RoundAndSaturate(factor * sums[k].im)};
  }
  return StatusOk;
}

template <class Sample>
ORBS_INLINE OrbStatus GoertzTwoTurned(const Sample* src, Orb32s len, Orb64fc* result, const Orb64f* rFreqs) {
  ORBS_RETURN_IF_BAD(CheckArrays(len, src, result, rFreqs));
  const Orb64f frequencies[2] = {rFreqs[0], rFreqs[1]};
  ORBS_RETURN_IF_BAD(CheckFrequencies(frequencies));
  SumTurned(src, len, Steps(frequencies).r, result);
  return StatusOk;
}

ORBS_INLINE Orb32f FromQ15(Orb16s frequency) { return static_cast<Orb32f>(frequency) * (1.0f / 32768); }

}  // namespace orbs::ORBS_VARIANT::modem

#endif
