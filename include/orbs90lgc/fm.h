/**
 * @file fm.h
 * @brief FM demodulation: the phase step from each complex sample to the next.
 */
#ifndef ORBS90LGC_FM_H
#define ORBS90LGC_FM_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Demodulates a complex baseband signal whose real and imaginary parts lie in arrays of their own. Each
 * result is the phase of a sample times the conjugate of the one before it,
 *
 *     dst[n] = arg(z[n] conj(z[n-1])) * 32768 / pi,  z[n] = srcRe[n] + j srcIm[n],
 *
 * rounded to the nearest integer: full scale is half a turn a sample, so that a tone of the relative
 * frequency f (cycles per sample, -0.5 to 0.5) gives 65536 f. Half a turn gives 32767, and a product of 0, as
 * next to a sample of 0, gives 0. The amplitude of the signal does not matter.
 *
 * The arctangent is a rational approximation with an error far below one unit of the result. At ties `px`
 * rounds away from zero and the other variants to even; their single precision may give a neighbouring
 * integer where `px` is within about 0.005 of a tie.
 *
 * A sample of (-32768, -32768) after another one has a product of 2^31, which is taken as positive and real:
 * the result is 0.
 *
 * @param srcRe       real parts
 * @param srcIm       imaginary parts
 * @param dst         phase steps; may be `srcRe` or `srcIm` itself, and must not overlap them otherwise
 * @param len         number of samples
 * @param delayPoint  the sample before the first one; receives the last one, so that a stream can be
 *                    demodulated block by block. Begin with (0, 0): the first result is then 0.
 *
 * In this order, with nothing written except for the last:
 *  - ::StatusNullPointer: a pointer is null;
 *  - ::StatusSize: `len` is below 1;
 *  - ::StatusOk.
 */
OrbStatus legacy90orbsDemodulateFM_CToR_16s(const Orb16s* srcRe, const Orb16s* srcIm, Orb16s* dst, Orb32s len,
                                            Orb16sc* delayPoint);

#ifdef __cplusplus
}
#endif

#endif
