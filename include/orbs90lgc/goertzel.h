/**
 * @file goertzel.h
 * @brief Goertzel detectors: the Fourier sum of a block at one or two freely chosen frequencies.
 *
 * For a relative frequency f (cycles per sample, 0 <= f < 1, not limited to the centres of transform bins)
 * and a block x[0] ... x[len-1]:
 *
 *     X(f) = sum over n of x[n] exp(-j 2 pi f n)
 *
 * That is what the `16sc`, `32f` and `32fc` functions give. The `64f` and `64fc` functions give the same sum
 * turned by the phase of the whole block:
 *
 *     Y(f) = exp(j 2 pi f len) X(f) = sum over n of x[n] exp(j 2 pi f (len - n))
 *
 * so that |Y| = |X|, which is what a detector of tones looks at. Nothing is kept from call to call and
 * nothing is allocated. Results do not overlap sources.
 *
 * The `16sc` functions multiply each part of X by 2^-scaleFactor, round it to the nearest integer and
 * saturate it to -32768 ... 32767. Any scale factor is accepted. At ties `px` rounds away from zero and the
 * other variants to even. A NaN becomes -32768.
 *
 * The variant `px` evaluates in at least double precision. The others compute the `16sc`, `32f` and `32fc`
 * sums in single precision, which is good to 1e-5 of the sum of the magnitudes of the block, for blocks of
 * any length, and to about 2e-6 where the signal does not gather in the last samples of 1024. The `64f` and
 * `64fc` functions work in double precision everywhere.
 *
 * The recursions: G. Goertzel, "An Algorithm for the Evaluation of Finite Trigonometric Series", The American
 * Mathematical Monthly 65 (1958), 34-35.
 */
#ifndef ORBS90LGC_GOERTZEL_H
#define ORBS90LGC_GOERTZEL_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * X at one frequency, as a Q15 number: f = rFreqQ15 / 32768.
 *
 * @param src          complex samples
 * @param len          number of samples
 * @param result       one value
 * @param rFreqQ15     frequency, 0 to 32767
 * @param scaleFactor  the result is X times 2^-scaleFactor
 *
 * In this order, with nothing written except for the last:
 *  - ::StatusRelFreq: `rFreqQ15` is negative;
 *  - ::StatusNullPointer: `src` or `result` is null;
 *  - ::StatusSize: `len` is below 1;
 *  - ::StatusOk.
 */
OrbStatus legacy90orbsGoertzQ15_16sc_Sfs(const Orb16sc* src, Orb32s len, Orb16sc* result, Orb16s rFreqQ15,
                                         Orb32s scaleFactor);

/**
 * X at two frequencies given as Q15 numbers; `result[0]` belongs to `rFreqsQ15[0]`, `result[1]` to
 * `rFreqsQ15[1]`. The same numbers as legacy90orbsGoertzTwo_16sc_Sfs() with both divided by 32768.
 *
 * In this order, with nothing written except for the last:
 *  - ::StatusNullPointer: `rFreqsQ15` is null;
 *  - ::StatusRelFreq: a frequency is negative;
 *  - ::StatusNullPointer: `src` or `result` is null;
 *  - ::StatusSize: `len` is below 1;
 *  - ::StatusOk.
 */
OrbStatus legacy90orbsGoertzTwoQ15_16sc_Sfs(const Orb16sc* src, Orb32s len, Orb16sc* result,
                                            const Orb16s* rFreqsQ15, Orb32s scaleFactor);

/**
 * X at two frequencies, scaled, rounded and saturated: `result[k]` belongs to `rFreqs[k]`.
 *
 * In this order, here and in the four functions below, with nothing written except for the last:
 *  - ::StatusNullPointer: `src`, `result` or `rFreqs` is null;
 *  - ::StatusSize: `len` is below 1;
 *  - ::StatusRelFreq: a frequency is below 0, or 1 or above. A NaN is not; it makes a NaN of its result;
 *  - ::StatusOk.
 */
OrbStatus legacy90orbsGoertzTwo_16sc_Sfs(const Orb16sc* src, Orb32s len, Orb16sc* result,
                                         const Orb32f* rFreqs, Orb32s scaleFactor);

/** X of a real block at two frequencies. Statuses as in legacy90orbsGoertzTwo_16sc_Sfs(). */
OrbStatus legacy90orbsGoertzTwo_32f(const Orb32f* src, Orb32s len, Orb32fc* result, const Orb32f* rFreqs);

/** X of a complex block at two frequencies. Statuses as in legacy90orbsGoertzTwo_16sc_Sfs(). */
OrbStatus legacy90orbsGoertzTwo_32fc(const Orb32fc* src, Orb32s len, Orb32fc* result, const Orb32f* rFreqs);

/**
 * Y of a real block at two frequencies, by the second-order recursion
 * w[n] = x[n] + 2 cos(2 pi f) w[n-1] - w[n-2], Y = exp(j 2 pi f) w[len-1] - w[len-2].
 * Statuses as in legacy90orbsGoertzTwo_16sc_Sfs().
 */
OrbStatus legacy90orbsGoertzTwo_64f(const Orb64f* src, Orb32s len, Orb64fc* result, const Orb64f* rFreqs);

/** Y of a complex block at two frequencies, as legacy90orbsGoertzTwo_64f() does it. The same statuses. */
OrbStatus legacy90orbsGoertzTwo_64fc(const Orb64fc* src, Orb32s len, Orb64fc* result, const Orb64f* rFreqs);

#ifdef __cplusplus
}
#endif

#endif
