/**
 * @file ramp.h
 * @brief Test signals without a state: ramps, saturated slopes, Jaehne chirps.
 *
 * All functions write `len` elements and check in this order:
 *  - ::StatusNullPointer: `dst` is null;
 *  - ::StatusSize: `len` is below 1;
 *  - ::StatusJaehneMagnitude (legacy90orbsVectorJaehne_8s() only): `magn` is below 0;
 *  - ::StatusOk.
 *
 * On a failed check nothing is written.
 */
#ifndef ORBS90LGC_RAMP_H
#define ORBS90LGC_RAMP_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @name Ramps
 *
 * The straight line y[n] = `offset` + n `slope` for n = 0 ... `len` - 1. Each element is computed from its
 * own n, so that no error accumulates.
 *
 * Integer types get y rounded to the nearest integer, ties away from zero, and limited to the range of the
 * type. The floating-point types get y itself. NaN, which only an infinite or NaN argument can bring about,
 * gives the lower bound of an integer type.
 *
 * Variant `px` evaluates the line in extended precision. The other variants evaluate it in binary32, also
 * for binary64 results: n, the product and the sum are each rounded to 24 significant bits. Ramps whose
 * values fit those bits are the same in all variants.
 * @{
 */

/** 8-bit integers, 0 to 255. */
OrbStatus legacy90orbsVectorRamp_8u(Orb8u* dst, Orb32s len, Orb32f offset, Orb32f slope);

/** 8-bit integers, -128 to 127. */
OrbStatus legacy90orbsVectorRamp_8s(Orb8s* dst, Orb32s len, Orb32f offset, Orb32f slope);

/** 16-bit integers, 0 to 65535. */
OrbStatus legacy90orbsVectorRamp_16u(Orb16u* dst, Orb32s len, Orb32f offset, Orb32f slope);

/** 16-bit integers, -32768 to 32767. */
OrbStatus legacy90orbsVectorRamp_16s(Orb16s* dst, Orb32s len, Orb32f offset, Orb32f slope);

/** 32-bit integers, 0 to 2^32-1. */
OrbStatus legacy90orbsVectorRamp_32u(Orb32u* dst, Orb32s len, Orb32f offset, Orb32f slope);

/** 32-bit integers, -2^31 to 2^31-1. */
OrbStatus legacy90orbsVectorRamp_32s(Orb32s* dst, Orb32s len, Orb32f offset, Orb32f slope);

/** Binary32. */
OrbStatus legacy90orbsVectorRamp_32f(Orb32f* dst, Orb32s len, Orb32f offset, Orb32f slope);

/** Binary64. */
OrbStatus legacy90orbsVectorRamp_64f(Orb64f* dst, Orb32s len, Orb32f offset, Orb32f slope);

/** @} */

/**
 * A ramp of 8 bits whose stretches at -128 and 127 are filled in bulk: the elements before the line enters
 * the range and those after it has left it cost no arithmetic. A line that starts beyond a bound and runs
 * away from the range stays at that bound; a `slope` of 0 gives `len` times the rounded `offset`; NaN gives
 * -128.
 *
 * The bounds are crossed at the indices k(b) = floor(1 + (b - `offset`) / `slope`), b = 127 and -128, in all
 * variants alike. Between them `px` rounds ties away from zero, like legacy90orbsVectorRamp_8s(); the other
 * variants evaluate the line in binary32 and round ties to even.
 */
OrbStatus legacy90orbsVectorSlope_8s(Orb8s* dst, Orb32s len, Orb32f offset, Orb32f slope);

/**
 * Jaehne chirp y[n] = `magn` sin(pi n^2 / (2 `len`)): its frequency grows linearly from 0 to half the
 * sampling rate. Rounded to the nearest integer, ties away from zero. `len` = 1 gives 0.
 *
 * @param[out] dst receives the chirp
 * @param len number of samples
 * @param magn peak value, 0 to 127
 */
OrbStatus legacy90orbsVectorJaehne_8s(Orb8s* dst, Orb32s len, Orb8s magn);

/**
 * Jaehne chirp for unsigned results: y[n] = (`magn` / 2) sin(pi n^2 / (2 `len`)), rounded to the nearest
 * signed 32-bit integer, ties away from zero; then m, the smallest of these integers and 0, is added to each,
 * modulo 2^32. `len` = 1 gives 0.
 *
 * The results thus run from about -`magn` to 0, the negative ones seen modulo 2^32 at the upper end of the
 * range. Adding `magn` modulo 2^32 moves them to 0 ... `magn`.
 *
 * @param[out] dst receives the chirp
 * @param len number of samples
 * @param magn distance between the peaks, any value
 */
OrbStatus legacy90orbsVectorJaehne_32u(Orb32u* dst, Orb32s len, Orb32u magn);

#ifdef __cplusplus
}
#endif

#endif
