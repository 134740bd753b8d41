// Cosine and sine of angles given in turns, in vectors of binary64.
#ifndef ORBS_SIMD_SINE_COSINE_H
#define ORBS_SIMD_SINE_COSINE_H

#include "core/constants.h"
#include "simd/simd.h"

#if ORBS_VECTOR

namespace orbs::ORBS_VARIANT {

// Taylor coefficients in z = x^2. At the largest x, pi/4, the first term left out is 2e-18 of the cosine and
// 5e-17 of the sine.
inline constexpr Orb64f kCosineTerms[] = {1.0,
                                          -1.0 / 2,
                                          1.0 / 24,
                                          -1.0 / 720,
                                          1.0 / 40320,
                                          -1.0 / 3628800,
                                          1.0 / 479001600,
                                          -1.0 / 87178291200,
                                          1.0 / 20922789888000};
inline constexpr Orb64f kSineTerms[] = {-1.0 / 6,        1.0 / 120,        -1.0 / 5040,         1.0 / 362880,
                                        -1.0 / 39916800, 1.0 / 6227020800, -1.0 / 1307674368000};

// Adding it to |x| < 2^51 rounds x to the nearest integer and leaves that in the low bits of the sum.
ORBS_INLINE F64 RoundingBias() { return F64::All(0x1.8p52); }

ORBS_INLINE F64 RoundToWhole(F64 x) { return (x + RoundingBias()) - RoundingBias(); }

// Even and odd powers apart: two chains of half the length, since a short call waits for this one after the
// other.
template <int n>
ORBS_INLINE F64 Polynomial(const Orb64f (&terms)[n], F64 z) {
  const F64 square = z * z;
  F64 sums[2] = {F64::All(terms[(n - 1) / 2 * 2]), F64::All(terms[n / 2 * 2 - 1])};
  ORBS_UNROLL
  for (int i = n - 3; i >= 0; --i) sums[i % 2] = MulAdd(sums[i % 2], square, F64::All(terms[i]));
  return MulAdd(sums[1], z, sums[0]);
}

// Turns, |t| < 2^49, are exact where radians are not: the distance to the nearest quarter has no rounding
// error, and at whole quarters the results are exactly 0, 1 or -1.
ORBS_INLINE void CosineAndSineOfTurns(F64 t, F64* cosine, F64* sine) {
  const F64 biased = t * F64::All(4) + RoundingBias();
  const F64 nearest = (biased - RoundingBias()) * F64::All(0.25);
  const F64 x = (t - nearest) * F64::All(kTwoPi);
  const F64 z = x * x;
  const F64 c = Polynomial(kCosineTerms, z);
  const F64 s = MulAdd(x * z, Polynomial(kSineTerms, z), x);

  // The quarter's lowest bit exchanges sine and cosine; the next one gives the sine's sign, and both together
  // the cosine's.
  const F64 signs = F64::All(-0.0);
  const F64 lowest = ShiftLeft64(biased, 63);
  const F64 next = ShiftLeft64(biased, 62) & signs;
  const F64 isOdd = Less(lowest | F64::All(1), F64::Zero());
  *cosine = Select(isOdd, s, c) ^ lowest ^ next;
  *sine = Select(isOdd, c, s) ^ next;
}

ORBS_INLINE void StoreCosineAndSine(F64 turns, Orb64f* cosines, Orb64f* sines) {
  F64 c;
  F64 s;
  CosineAndSineOfTurns(turns, &c, &s);
  c.Store(cosines);
  s.Store(sines);
}

}  // namespace orbs::ORBS_VARIANT

#endif
#endif
