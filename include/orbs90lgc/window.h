/**
 * @file window.h
 * @brief Blackman and Kaiser windows on 16-bit samples, with a parameter in Q15.
 *
 * Each function multiplies an array of `len` samples by a window of the same length. The window is made on
 * the way, from both ends to the middle, and is exactly symmetrical; no memory is allocated. The parameter is
 * alpha = `alphaQ15` / 32768, any 32-bit number. For complex samples both parts get the same window value.
 * The `_I` forms work in place; otherwise `src` and `dst` may be the same array but must not overlap in part.
 * Results are rounded and limited to -32768 and 32767.
 *
 * Of an odd `len`, where the window is 1 in the middle, the middle sample is copied.
 *
 * Checks, in this order; on a failed one nothing is written:
 *  - ::StatusNullPointer: an array is null;
 *  - ::StatusSize: `len` is below 3 (Blackman) or below 1 (Kaiser);
 *  - ::StatusKaiserAlpha (Kaiser only): |alpha| (`len` - 1) / 2 is above 308;
 *  - ::StatusOk.
 *
 * Variant `px` makes the Blackman window in fixed point by a rotation of 30 bits, the others in binary32;
 * `px` makes the Kaiser window in binary64, the others in binary32. The results can differ by a unit.
 */
#ifndef ORBS90LGC_WINDOW_H
#define ORBS90LGC_WINDOW_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @name Blackman windows
 *
 * w(n) = (alpha + 1) / 2 - cos(2 pi n / (N-1)) / 2 - (alpha / 2) cos(4 pi n / (N-1)), N = `len`.
 *
 * The first and the last sample become 0. `alphaQ15` = -5243, alpha = -0.16, gives the coefficients 0.42, 0.5
 * and 0.08 of Blackman and Tukey, The Measurement of Power Spectra (1958); `alphaQ15` = 0 the Hann window.
 * Variant `px` rounds the Q15 window value and then the product to nearest, ties up; the other variants round
 * the product to nearest, ties to even.
 * @{
 */

/** Real. */
OrbStatus legacy90orbsWinBlackmanQ15_16s(const Orb16s* src, Orb16s* dst, Orb32s len, Orb32s alphaQ15);

/** Real, in place. */
OrbStatus legacy90orbsWinBlackmanQ15_16s_I(Orb16s* srcDst, Orb32s len, Orb32s alphaQ15);

/** Complex. */
OrbStatus legacy90orbsWinBlackmanQ15_16sc(const Orb16sc* src, Orb16sc* dst, Orb32s len, Orb32s alphaQ15);

/** Complex, in place. */
OrbStatus legacy90orbsWinBlackmanQ15_16sc_I(Orb16sc* srcDst, Orb32s len, Orb32s alphaQ15);

/** @} */

/**
 * Blackman window, in place, with a scale factor: the result is x w 2^-`scaleFactor`, also for the sample in
 * the middle. Any `scaleFactor` is accepted. Variant `px` makes the window in binary64 and rounds to nearest,
 * ties away from zero; the other variants round ties to even, except in the middle.
 */
OrbStatus legacy90orbsWinBlackmanQ15_16s_ISfs(Orb16s* srcDst, Orb32s len, Orb32s alphaQ15,
                                              Orb32s scaleFactor);

/**
 * @name Kaiser windows
 *
 * w(n) = I0(alpha sqrt(n (N-1-n))) / I0(alpha (N-1) / 2), N = `len`, I0 the modified Bessel function of order
 * 0: the window of Kaiser with beta = alpha (N-1) / 2. I0 is evaluated by the polynomials 9.8.1 and 9.8.2 of
 * Abramowitz and Stegun, Handbook of Mathematical Functions (1964), whose relative error is below 2e-7.
 *
 * The sign of alpha makes no difference. `alphaQ15` = 0 changes nothing, nor does `len` = 1. Variant `px`
 * rounds to nearest, ties away from zero; the other variants round ties to even.
 * @{
 */

/** Real. */
OrbStatus legacy90orbsWinKaiserQ15_16s(const Orb16s* src, Orb16s* dst, Orb32s len, Orb32s alphaQ15);

/** Real, in place. */
OrbStatus legacy90orbsWinKaiserQ15_16s_I(Orb16s* srcDst, Orb32s len, Orb32s alphaQ15);

/** Complex. */
OrbStatus legacy90orbsWinKaiserQ15_16sc(const Orb16sc* src, Orb16sc* dst, Orb32s len, Orb32s alphaQ15);

/** Complex, in place. */
OrbStatus legacy90orbsWinKaiserQ15_16sc_I(Orb16sc* srcDst, Orb32s len, Orb32s alphaQ15);

/** @} */

#ifdef __cplusplus
}
#endif

#endif
