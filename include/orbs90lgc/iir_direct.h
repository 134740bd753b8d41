/**
 * @file iir_direct.h
 * @brief IIR filters on 16-bit samples without a state: taps and delay line come with each call.
 *
 * `taps` are 16-bit numbers with s fractional bits. In the place of the leading denominator coefficient
 * stands s itself, so that a[0] is understood to be 2^s:
 *
 *     order N      b[0] to b[N], s, a[1] to a[N]                 2N+2 values
 *     B biquads    b[0], b[1], b[2], s, a[1], a[2] per section   6B values, each section with an s of its own
 *
 * `delayLine` belongs to the caller: N elements, or two for each section, in the transposed direct form II.
 * Its values are integers of the scale of the sums, 2^s times that of the samples. Zeros begin a stream. The
 * one-sample and the block forms read and write the same values, so that they can be mixed on one delay line,
 * but not with the same arithmetic: their results can differ in the low bits.
 *
 * The one-sample forms are exact in 32 bits, and all products and sums wrap there:
 *
 *     y = (b[0] x + d[0]) / 2^s,  rounded to nearest with ties to even; only the low five bits of s count
 *     d[i] = b[i+1] x - a[i+1] y + d[i+1]   for i = 0 to N-1, with d[N] = 0
 *
 * A biquad is a filter of order 2. y goes on as 32 bits, into the recursion and to the next section; only the
 * result is saturated to 16 bits.
 *
 * The block forms turn taps and delay line into binary32, times 2^-s (only the low seven bits of s count),
 * filter as iir.h tells with a scale factor of 0, and write the delay line back times 2^s, saturated to 32
 * bits and rounded to the nearest integer: ties go away from zero for order N, to even for biquads. A
 * binary32 number has 24 significant bits, so that a large delay element loses its low bits. Each call
 * allocates memory and releases it: long blocks are what they are for.
 */
#ifndef ORBS90LGC_IIR_DIRECT_H
#define ORBS90LGC_IIR_DIRECT_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @name One sample
 *
 * Filters the sample `src` into `*dst` or, in place, the sample `*srcDst`.
 *
 * - ::StatusNullPointer: `srcDst` is null (in place, before all else);
 * - ::StatusIirOrder: `order` or `sectionCount` is below 1;
 * - ::StatusNullPointer: another pointer is null;
 * - ::StatusTapValue: s is negative; with biquads the sections before that one have moved their delay
 *   elements, and nothing is stored in `*dst`;
 * - ::StatusOk.
 * @{
 */

/** Order N. */
OrbStatus legacy90orbsIIROne_Direct_16s(Orb16s src, Orb16s* dst, const Orb16s* taps, Orb32s order,
                                        Orb32s* delayLine);

/** Order N, in place. */
OrbStatus legacy90orbsIIROne_Direct_16s_I(Orb16s* srcDst, const Orb16s* taps, Orb32s order,
                                          Orb32s* delayLine);

/** Biquads. */
OrbStatus legacy90orbsIIROne_BiQuadDirect_16s(Orb16s src, Orb16s* dst, const Orb16s* taps,
                                              Orb32s sectionCount, Orb32s* delayLine);

/** Biquads, in place. */
OrbStatus legacy90orbsIIROne_BiQuadDirect_16s_I(Orb16s* srcDst, const Orb16s* taps, Orb32s sectionCount,
                                                Orb32s* delayLine);

/** @} */

/**
 * @name Blocks of samples
 *
 * Filters `sampleCount` samples. `src` and `dst` are the same array, which is the in-place form, or do not
 * overlap. A failed call changes neither `dst` nor `delayLine`.
 *
 * - ::StatusIirOrder: `order` or `sectionCount` is below 1;
 * - ::StatusNullPointer: a pointer is null;
 * - ::StatusTapValue: s is negative (order N);
 * - ::StatusSize: `sampleCount` is below 1;
 * - ::StatusMemAlloc: no memory;
 * - ::StatusTapValue: s of a section is negative (biquads);
 * - ::StatusOk.
 * @{
 */

/** Order N. */
OrbStatus legacy90orbsIIR_Direct_16s(const Orb16s* src, Orb16s* dst, Orb32s sampleCount, const Orb16s* taps,
                                     Orb32s order, Orb32s* delayLine);

/** Order N, in place. */
OrbStatus legacy90orbsIIR_Direct_16s_I(Orb16s* srcDst, Orb32s sampleCount, const Orb16s* taps, Orb32s order,
                                       Orb32s* delayLine);

/** Biquads. */
OrbStatus legacy90orbsIIR_BiQuadDirect_16s(const Orb16s* src, Orb16s* dst, Orb32s sampleCount,
                                           const Orb16s* taps, Orb32s sectionCount, Orb32s* delayLine);

/** Biquads, in place. */
OrbStatus legacy90orbsIIR_BiQuadDirect_16s_I(Orb16s* srcDst, Orb32s sampleCount, const Orb16s* taps,
                                             Orb32s sectionCount, Orb32s* delayLine);

/** @} */

#ifdef __cplusplus
}
#endif

#endif
