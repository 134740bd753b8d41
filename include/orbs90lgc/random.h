/**
 * @file random.h
 * @brief Uniform and Gaussian pseudo-random numbers.
 *
 * The caller owns the seed: a call starts the generator from it and writes back a new one. Two calls give
 * other numbers than one call of the summed length. The same seed, length and range give the same array in
 * every call, and the same new seed in every variant. Not for cryptography.
 *
 * The generator adds a subtract-with-borrow sequence to a linear congruential one, after Marsaglia and Zaman,
 * Some portable very-long-period random number generators, Computers in Physics 8 (1994). All arithmetic is
 * modulo 2^32; "negative" means that the top bit is set. From the seed s:
 *
 *     x1 = 69069 s + 1013904243, x2 = 69069 x1 + 1013904243
 *     W[0] = x2, W[1] = x1, W[2] = s, c = -1, L = 1131199209
 *
 * and for n = 3, 4 ...
 *
 *     t = W[n-2] - W[n-3] + c
 *     W[n] = t - 18, c = -1 if t is negative, else W[n] = t, c = 0
 *     L = 69069 L + 1013904243
 *     o = W[n] + L, a signed number from -2^31 to 2^31-1
 *
 * The new seed is the last W[n].
 *
 * All six functions check in this order; on a failed check neither the array nor the seed changes:
 *  - ::StatusNullPointer: `dst` or `seed` is null;
 *  - ::StatusSize: `len` is below 1;
 *  - ::StatusOk.
 */
#ifndef ORBS90LGC_RANDOM_H
#define ORBS90LGC_RANDOM_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @name Uniform
 *
 * o (`high` - `low`) 2^-32 + (`low` + `high`) / 2: evenly spread from `low` to `high`, one number o an
 * element. `low` may be above `high`. Evaluated in binary64 at least; 2^-32 is the
 * constant 2.3283064365387e-10.
 *
 * The 16-bit form truncates toward zero in `px` and rounds to nearest in the other variants; a last element
 * without a neighbour, where `len` is odd, is truncated in `s8`, `p8`, `g9` and `h9` as well.
 * @{
 */

/** 16-bit integers. */
OrbStatus legacy90orbsRandUniform_Direct_16s(Orb16s* dst, Orb32s len, Orb16s low, Orb16s high, Orb32u* seed);

/** Binary32. */
OrbStatus legacy90orbsRandUniform_Direct_32f(Orb32f* dst, Orb32s len, Orb32f low, Orb32f high, Orb32u* seed);

/** Binary64. */
OrbStatus legacy90orbsRandUniform_Direct_64f(Orb64f* dst, Orb32s len, Orb64f low, Orb64f high, Orb32u* seed);

/** @} */

/**
 * @name Gauss
 *
 * Normally distributed with the given mean and standard deviation, by the polar method of Marsaglia: two
 * numbers in a row are u1 and u2, scaled to -1 ... 1 by 4.656612873077e-10 for 2^-31; pairs with
 * r = u1^2 + u2^2 at or above 1, or exactly 0, are dropped. With w = sqrt(-2 ln(r) / r) a pair gives the
 * elements `mean` + `stdDev` u2 w and `mean` + `stdDev` u1 w, in this order. An odd `len` uses the first of
 * its last pair. Evaluated in binary64 at least.
 *
 * The 16-bit form truncates toward zero and limits to -32768 and 32767. No value of `mean` and `stdDev` is
 * refused; a negative `stdDev` mirrors.
 * @{
 */

/** 16-bit integers. */
OrbStatus legacy90orbsRandGauss_Direct_16s(Orb16s* dst, Orb32s len, Orb16s mean, Orb16s stdDev, Orb32u* seed);

/** Binary32. */
OrbStatus legacy90orbsRandGauss_Direct_32f(Orb32f* dst, Orb32s len, Orb32f mean, Orb32f stdDev, Orb32u* seed);

/** Binary64. */
OrbStatus legacy90orbsRandGauss_Direct_64f(Orb64f* dst, Orb32s len, Orb64f mean, Orb64f stdDev, Orb32u* seed);

/** @} */

#ifdef __cplusplus
}
#endif

#endif
