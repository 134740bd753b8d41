/**
 * @file fir_lms.h
 * @brief Adaptive FIR filters, one sample a call: the taps follow a reference by the least-mean-squares rule.
 *
 * A call takes the newest sample into the delay line, makes the filter's output y from the taps as they are,
 * and then moves the taps so that the next output of the same samples would lie closer to `reference`:
 *
 *     y = sum over k = 0 to n-1 of taps[k] x[k]
 *     taps[k] = taps[k] + 2 mu (reference - y) x[k]
 *
 * (B. Widrow and M. E. Hoff, "Adaptive switching circuits", 1960). legacy90orbsFIRLMSOne_DirectQ15_16s()
 * divides the step by the energy of the samples and leaves out the 2: the normalised rule (J. Nagumo and
 * A. Noda, "A learning method for system identification", 1967), which needs no knowledge of the signal's
 * level.
 *
 * There is no state; everything belongs to the caller:
 *
 * - `taps`: n = `tapCount` elements, changed by each call. x[0] is the oldest sample and x[n-1] the newest,
 *   so taps[n-1] applies to the newest sample. That is the reverse of the order of the other filters.
 * - `delayLine`: 2n elements, a ring that holds each sample twice, so that the n newest always stand in a
 *   row. With i = `*delayIndex` a call writes the sample at delayLine[i] and at delayLine[i+n], moves i on by
 *   one, from n-1 to 0, and then has x[k] = delayLine[i+k].
 * - `delayIndex`: i, 0 to n-1.
 *
 * Before the first call delay line and index are zero, and the taps whatever the search starts from, often
 * zero too. Arrays of one call must not overlap.
 *
 * The plain rule converges in the mean for 0 < mu < 1 / (n P), with P the mean power of the samples, squares
 * of Orb16s samples included: for full-scale 16-bit noise and 32 taps, mu lies below 1e-10. The normalised
 * rule converges for 0 < mu < 2 in the scale of the taps, that is below 65536.
 */
#ifndef ORBS90LGC_FIR_LMS_H
#define ORBS90LGC_FIR_LMS_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @name One step of the adaptive filter
 *
 * Takes in `src`, writes the output to `*output`, moves the taps toward `reference`.
 *
 * - ::StatusNullPointer: `taps`, `delayLine`, `delayIndex` or `output` is null;
 * - ::StatusSize: `tapCount` is below 1;
 * - ::StatusDelayIndex: `*delayIndex` is below 0 or not below `tapCount`;
 * - ::StatusOk.
 *
 * On a negative status nothing has changed.
 * @{
 */

/**
 * Binary32. `*output` is y.
 *
 * Computed in extended precision in `px`, in binary32 in the other variants; taps are stored rounded.
 */
OrbStatus legacy90orbsFIRLMSOne_Direct_32f(Orb32f src, Orb32f reference, Orb32f* output, Orb32f* taps,
                                           Orb32s tapCount, Orb32f mu, Orb32f* delayLine, Orb32s* delayIndex);

/**
 * Taps: binary32; samples, reference and output: 16-bit integers.
 *
 * `*output` is y saturated to 16 bits: truncated toward zero in `px`, rounded to the nearest with ties to
 * even in the other variants. The step is made from y before that. Precision as in
 * legacy90orbsFIRLMSOne_Direct_32f().
 */
OrbStatus legacy90orbsFIRLMSOne_Direct32f_16s(Orb16s src, Orb16s reference, Orb16s* output, Orb32f* taps,
                                              Orb32s tapCount, Orb32f mu, Orb16s* delayLine,
                                              Orb32s* delayIndex);

/**
 * The normalised rule in integers. Taps are numbers with 15 fractional bits: a tap of 32768 means 1. So is
 * `mu`, the whole step being 32768: then the next output of the same samples would be the reference itself.
 *
 *     y = 2^-15 sum over k of taps[k] x[k],   E = sum over k of x[k]^2
 *     taps[k] = taps[k] + mu (reference - y) x[k] / E
 *
 * `*output` is y rounded to the nearest integer with ties to even and saturated to 16 bits. With E = 0 the
 * taps stay as they are. Taps saturate to 32 bits.
 *
 * `px` computes in 64-bit integers: of each product taps[k] x[k] the low 32 bits count, the step is made from
 * the rounded, unsaturated y, and the quotient is truncated toward zero. Intermediate results wrap; that
 * takes |mu (reference - y)| of 2^48 and more.
 *
 * The other variants compute in binary64: products in full, the step from the exact y, as
 * taps[k] + (mu (reference - y) (1/E)) x[k] rounded to the nearest with ties to even. They agree with one
 * another bit for bit as long as the sums stay within 2^53.
 */
OrbStatus legacy90orbsFIRLMSOne_DirectQ15_16s(Orb16s src, Orb16s reference, Orb16s* output, Orb32s* taps,
                                              Orb32s tapCount, Orb32s mu, Orb16s* delayLine,
                                              Orb32s* delayIndex);

/** @} */

#ifdef __cplusplus
}
#endif

#endif
