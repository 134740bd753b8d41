// The natural logarithm of binary64 lanes that are positive and normal.
#ifndef ORBS_SIMD_LOGARITHM_H
#define ORBS_SIMD_LOGARITHM_H

#include "core/scaling.h"
#include "simd/simd.h"

#if ORBS_VECTOR

namespace orbs::ORBS_VARIANT {

ORBS_INLINE F64 Ln(F64 x) {
  // x = 2^k m with m from sqrt(1/2) to sqrt(2): adding the distance of sqrt(1/2) from 1 carries into the
  // exponent exactly where m would leave that range.
  const F64 sqrtHalf = F64::All(DoubleFromBits(0x3FE6A09E00000000u));
  const F64 shifted = Add64(x, F64::All(DoubleFromBits(0x3FF0000000000000u - 0x3FE6A09E00000000u)));
  // The exponent field as a number: in the low bits of 2^52.
  const F64 twoTo52 = F64::All(4503599627370496.0);
  const F64 k = (ShiftRight64(shifted, 52) | twoTo52) - (twoTo52 + F64::All(1023));
  const F64 m = Add64(shifted & F64::All(DoubleFromBits(0x000FFFFFFFFFFFFFu)), sqrtHalf);

  // ln m = 2 artanh u = 2 u (1 + t/3 + t^2/5 + ...) with u = (m - 1)/(m + 1), t = u^2 <= 0.0295: nine terms
  // leave less than 1e-15 of it.
  const F64 one = F64::All(1);
  const F64 u = (m - one) / (m + one);
  const F64 t = u * u;
  F64 series = F64::All(1.0 / 17);
  // Unrolled, or the quotients are divisions at run time.
  ORBS_UNROLL for (int term = 15; term >= 3; term -= 2) series = MulAdd(series, t, F64::All(1.0 / term));
  const F64 twoU = u + u;
  const F64 lnM = MulAdd(twoU * t, series, twoU);
  return MulAdd(k, F64::All(0.6931471805599453), lnM);
}

}  // namespace orbs::ORBS_VARIANT

#endif
#endif
