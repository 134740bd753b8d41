/**
 * @file fir_direct.h
 * @brief FIR filters without a state: taps, delay line and index are the caller's at every call.
 *
 * A call walks the stream
 *
 *     y[i] = sum over k = 0 to n-1 of h[k] x[i-k],    h = taps, n = tapCount
 *
 * with the complex product, without conjugation, for complex data. What carries the stream from one call to
 * the next is a doubled ring of the caller's: `delayLine` has 2n elements of the data type and `*delayIndex`
 * is 0 to n-1. A sample s goes into it by
 *
 *     delayLine[i] = delayLine[i+n] = s,    i = *delayIndex;    *delayIndex = (i+1) modulo n
 *
 * so that the last n samples always stand in a row, the oldest first, at delayLine[*delayIndex]. Both are
 * zeroed before the first call of a stream. The taps are in natural order: h[0] belongs to the newest sample.
 * legacy90orbsFIR_Direct_16s_Sfs() and legacy90orbsFIR_Direct_16s_ISfs() keep the delay line in another way,
 * see there.
 *
 * These forms are meant for short filters and for single samples: they have no path through a transform and,
 * but for the two just named, allocate nothing. A stream can be cut into calls of any sizes, blocks and
 * single samples mixed; the results are the same up to the rounding of floating-point sums, the delay line
 * and the index exactly.
 *
 * | Infix                | Taps    | Data and delay line | Sum             | Result                       |
 * |----------------------|---------|---------------------|-----------------|------------------------------|
 * | `_Direct_32f`        | Orb32f  | Orb32f              | binary32        | as summed                    |
 * | `_Direct_32fc`       | Orb32fc | Orb32fc             | binary32        | as summed                    |
 * | `_Direct_64f`        | Orb64f  | Orb64f              | binary64        | as summed                    |
 * | `_Direct_64fc`       | Orb64fc | Orb64fc             | binary64        | as summed                    |
 * | `64f_Direct_32f`     | Orb64f  | Orb32f              | binary64        | rounded; may become infinite |
 * | `64fc_Direct_32fc`   | Orb64fc | Orb32fc             | binary64        | rounded; may become infinite |
 * | `32f_Direct_16s`     | Orb32f  | Orb16s              | binary32        | scaled, ties away from zero  |
 * | `32fc_Direct_16sc`   | Orb32fc | Orb16sc             | binary32        | scaled, ties away from zero  |
 * | `64f_Direct_16s`     | Orb64f  | Orb16s              | binary64        | scaled, ties away from zero  |
 * | `64fc_Direct_16sc`   | Orb64fc | Orb16sc             | binary64        | scaled, ties away from zero  |
 * | `64f_Direct_32s`     | Orb64f  | Orb32s              | binary64        | scaled, ties away from zero  |
 * | `64fc_Direct_32sc`   | Orb64fc | Orb32sc             | binary64        | scaled, ties away from zero  |
 * | `32s_Direct_16s`     | Orb32s  | Orb16s              | 32-bit integers | shifted, ties to even        |
 * | `32sc_Direct_16sc`   | Orb32sc | Orb16sc             | 32-bit integers | shifted, ties to even        |
 * | `_Direct_16s`        | Orb16s  | Orb16s              | 32-bit integers | shifted, ties to even        |
 *
 * - Floating-point sums are made in the tap type, in `px` wider.
 * - "scaled": the sum times 2^-scaleFactor, rounded to the nearest integer with ties away from zero in all
 *   variants, and saturated; each component for complex data. The factor comes from the exponent field of
 *   binary32 with the magnitude of scaleFactor taken modulo 128; where that leaves 127 of a positive
 *   scaleFactor, it is 0.
 * - "shifted": each product is the low 32 bits of tap times sample, and the sum wraps. It is multiplied by
 *   2^d, d = tapsFactor - scaleFactor limited to -31 to 31. d below 0 divides by 2^-d and rounds to nearest,
 *   ties to even, the rounding addition wrapping too; d above 0 shifts left in 32 bits, bits above falling
 *   away. Then the result is saturated to 16 bits. All variants give the same numbers. Taps of Orb16s are
 *   Q15 numbers: their tapsFactor is -15.
 *
 * Any scale factor is legal. `*delayIndex` is not tested, but by the functions on Orb16s with Orb16s taps:
 * elsewhere an index outside 0 to n-1 is a write outside the delay line.
 *
 * Only what the caller passes is touched: calls on different delay lines are independent, and threads may
 * share taps.
 */
#ifndef ORBS90LGC_FIR_DIRECT_H
#define ORBS90LGC_FIR_DIRECT_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @name Blocks of samples, floating-point taps
 *
 * Filters `sampleCount` samples. `src` and `dst` are the same array, which is the in-place form, or do not
 * overlap. In this order:
 *
 * - ::StatusNullPointer: `src` or `dst` (`srcDst`) is null;
 * - ::StatusSize: `sampleCount` is below 1;
 * - ::StatusNullPointer: `taps` is null;
 * - ::StatusFirLength: `tapCount` is below 1;
 * - ::StatusNullPointer: `delayLine` or `delayIndex` is null;
 * - ::StatusOk.
 * @{
 */

/** Binary32. */
OrbStatus legacy90orbsFIR_Direct_32f(const Orb32f* src, Orb32f* dst, Orb32s sampleCount, const Orb32f* taps,
                                     Orb32s tapCount, Orb32f* delayLine, Orb32s* delayIndex);

/** In place. */
OrbStatus legacy90orbsFIR_Direct_32f_I(Orb32f* srcDst, Orb32s sampleCount, const Orb32f* taps,
                                       Orb32s tapCount, Orb32f* delayLine, Orb32s* delayIndex);

/** Complex binary32. */
OrbStatus legacy90orbsFIR_Direct_32fc(const Orb32fc* src, Orb32fc* dst, Orb32s sampleCount,
                                      const Orb32fc* taps, Orb32s tapCount, Orb32fc* delayLine,
                                      Orb32s* delayIndex);

/** In place. */
OrbStatus legacy90orbsFIR_Direct_32fc_I(Orb32fc* srcDst, Orb32s sampleCount, const Orb32fc* taps,
                                        Orb32s tapCount, Orb32fc* delayLine, Orb32s* delayIndex);

/** Binary64. */
OrbStatus legacy90orbsFIR_Direct_64f(const Orb64f* src, Orb64f* dst, Orb32s sampleCount, const Orb64f* taps,
                                     Orb32s tapCount, Orb64f* delayLine, Orb32s* delayIndex);

/** In place. */
OrbStatus legacy90orbsFIR_Direct_64f_I(Orb64f* srcDst, Orb32s sampleCount, const Orb64f* taps,
                                       Orb32s tapCount, Orb64f* delayLine, Orb32s* delayIndex);

/** Complex binary64. */
OrbStatus legacy90orbsFIR_Direct_64fc(const Orb64fc* src, Orb64fc* dst, Orb32s sampleCount,
                                      const Orb64fc* taps, Orb32s tapCount, Orb64fc* delayLine,
                                      Orb32s* delayIndex);

/** In place. */
OrbStatus legacy90orbsFIR_Direct_64fc_I(Orb64fc* srcDst, Orb32s sampleCount, const Orb64fc* taps,
                                        Orb32s tapCount, Orb64fc* delayLine, Orb32s* delayIndex);

/** Taps: binary64; samples: binary32. */
OrbStatus legacy90orbsFIR64f_Direct_32f(const Orb32f* src, Orb32f* dst, Orb32s sampleCount,
                                        const Orb64f* taps, Orb32s tapCount, Orb32f* delayLine,
                                        Orb32s* delayIndex);

/** In place. */
OrbStatus legacy90orbsFIR64f_Direct_32f_I(Orb32f* srcDst, Orb32s sampleCount, const Orb64f* taps,
                                          Orb32s tapCount, Orb32f* delayLine, Orb32s* delayIndex);

/** Taps: complex binary64; samples: complex binary32. */
OrbStatus legacy90orbsFIR64fc_Direct_32fc(const Orb32fc* src, Orb32fc* dst, Orb32s sampleCount,
                                          const Orb64fc* taps, Orb32s tapCount, Orb32fc* delayLine,
                                          Orb32s* delayIndex);

/** In place. */
OrbStatus legacy90orbsFIR64fc_Direct_32fc_I(Orb32fc* srcDst, Orb32s sampleCount, const Orb64fc* taps,
                                            Orb32s tapCount, Orb32fc* delayLine, Orb32s* delayIndex);

/** Taps: binary32; samples: 16-bit integers. */
OrbStatus legacy90orbsFIR32f_Direct_16s_Sfs(const Orb16s* src, Orb16s* dst, Orb32s sampleCount,
                                            const Orb32f* taps, Orb32s tapCount, Orb16s* delayLine,
                                            Orb32s* delayIndex, Orb32s scaleFactor);

/** In place. */
OrbStatus legacy90orbsFIR32f_Direct_16s_ISfs(Orb16s* srcDst, Orb32s sampleCount, const Orb32f* taps,
                                             Orb32s tapCount, Orb16s* delayLine, Orb32s* delayIndex,
                                             Orb32s scaleFactor);

/** Taps: complex binary32; samples: complex 16-bit integers. */
OrbStatus legacy90orbsFIR32fc_Direct_16sc_Sfs(const Orb16sc* src, Orb16sc* dst, Orb32s sampleCount,
                                              const Orb32fc* taps, Orb32s tapCount, Orb16sc* delayLine,
                                              Orb32s* delayIndex, Orb32s scaleFactor);

/** In place. */
OrbStatus legacy90orbsFIR32fc_Direct_16sc_ISfs(Orb16sc* srcDst, Orb32s sampleCount, const Orb32fc* taps,
                                               Orb32s tapCount, Orb16sc* delayLine, Orb32s* delayIndex,
                                               Orb32s scaleFactor);

/** Taps: binary64; samples: 16-bit integers. */
OrbStatus legacy90orbsFIR64f_Direct_16s_Sfs(const Orb16s* src, Orb16s* dst, Orb32s sampleCount,
                                            const Orb64f* taps, Orb32s tapCount, Orb16s* delayLine,
                                            Orb32s* delayIndex, Orb32s scaleFactor);

/** In place. */
OrbStatus legacy90orbsFIR64f_Direct_16s_ISfs(Orb16s* srcDst, Orb32s sampleCount, const Orb64f* taps,
                                             Orb32s tapCount, Orb16s* delayLine, Orb32s* delayIndex,
                                             Orb32s scaleFactor);

/** Taps: complex binary64; samples: complex 16-bit integers. */
OrbStatus legacy90orbsFIR64fc_Direct_16sc_Sfs(const Orb16sc* src, Orb16sc* dst, Orb32s sampleCount,
                                              const Orb64fc* taps, Orb32s tapCount, Orb16sc* delayLine,
                                              Orb32s* delayIndex, Orb32s scaleFactor);

/** In place. */
OrbStatus legacy90orbsFIR64fc_Direct_16sc_ISfs(Orb16sc* srcDst, Orb32s sampleCount, const Orb64fc* taps,
                                               Orb32s tapCount, Orb16sc* delayLine, Orb32s* delayIndex,
                                               Orb32s scaleFactor);

/** Taps: binary64; samples: 32-bit integers. */
OrbStatus legacy90orbsFIR64f_Direct_32s_Sfs(const Orb32s* src, Orb32s* dst, Orb32s sampleCount,
                                            const Orb64f* taps, Orb32s tapCount, Orb32s* delayLine,
                                            Orb32s* delayIndex, Orb32s scaleFactor);

/** In place. */
OrbStatus legacy90orbsFIR64f_Direct_32s_ISfs(Orb32s* srcDst, Orb32s sampleCount, const Orb64f* taps,
                                             Orb32s tapCount, Orb32s* delayLine, Orb32s* delayIndex,
                                             Orb32s scaleFactor);

/** Taps: complex binary64; samples: complex 32-bit integers. */
OrbStatus legacy90orbsFIR64fc_Direct_32sc_Sfs(const Orb32sc* src, Orb32sc* dst, Orb32s sampleCount,
                                              const Orb64fc* taps, Orb32s tapCount, Orb32sc* delayLine,
                                              Orb32s* delayIndex, Orb32s scaleFactor);

/** In place. */
OrbStatus legacy90orbsFIR64fc_Direct_32sc_ISfs(Orb32sc* srcDst, Orb32s sampleCount, const Orb64fc* taps,
                                               Orb32s tapCount, Orb32sc* delayLine, Orb32s* delayIndex,
                                               Orb32s scaleFactor);

/** @} */

/**
 * @name Blocks of samples, integer taps
 *
 * Filters `sampleCount` samples. `src` and `dst` are the same array, which is the in-place form, or do not
 * overlap. In this order:
 *
 * - ::StatusNullPointer: `src` or `dst` (`srcDst`) is null;
 * - ::StatusSize: `sampleCount` is below 1;
 * - ::StatusNullPointer: `taps` is null;
 * - ::StatusFirLength: `tapCount` is below 1;
 * - ::StatusNullPointer: `delayLine` or `delayIndex` is null;
 * - ::StatusOk.
 * @{
 */

/** Taps: 32-bit integers; samples: 16-bit integers. */
OrbStatus legacy90orbsFIR32s_Direct_16s_Sfs(const Orb16s* src, Orb16s* dst, Orb32s sampleCount,
                                            const Orb32s* taps, Orb32s tapCount, Orb32s tapsFactor,
                                            Orb16s* delayLine, Orb32s* delayIndex, Orb32s scaleFactor);

/** In place. */
OrbStatus legacy90orbsFIR32s_Direct_16s_ISfs(Orb16s* srcDst, Orb32s sampleCount, const Orb32s* taps,
                                             Orb32s tapCount, Orb32s tapsFactor, Orb16s* delayLine,
                                             Orb32s* delayIndex, Orb32s scaleFactor);

/** Taps: complex 32-bit integers; samples: complex 16-bit integers. */
OrbStatus legacy90orbsFIR32sc_Direct_16sc_Sfs(const Orb16sc* src, Orb16sc* dst, Orb32s sampleCount,
                                              const Orb32sc* taps, Orb32s tapCount, Orb32s tapsFactor,
                                              Orb16sc* delayLine, Orb32s* delayIndex, Orb32s scaleFactor);

/** In place. */
OrbStatus legacy90orbsFIR32sc_Direct_16sc_ISfs(Orb16sc* srcDst, Orb32s sampleCount, const Orb32sc* taps,
                                               Orb32s tapCount, Orb32s tapsFactor, Orb16sc* delayLine,
                                               Orb32s* delayIndex, Orb32s scaleFactor);

/** @} */

/**
 * @name One sample, floating-point taps
 *
 * Filters the sample `src`, or the one at `srcDst`, where the result goes. In this order:
 *
 * - ::StatusNullPointer: `dst` (`srcDst`) or `taps` is null;
 * - ::StatusFirLength: `tapCount` is below 1;
 * - ::StatusNullPointer: `delayLine` or `delayIndex` is null;
 * - ::StatusOk.
 * @{
 */

/** Binary32. */
OrbStatus legacy90orbsFIROne_Direct_32f(Orb32f src, Orb32f* dst, const Orb32f* taps, Orb32s tapCount,
                                        Orb32f* delayLine, Orb32s* delayIndex);

/** In place. */
OrbStatus legacy90orbsFIROne_Direct_32f_I(Orb32f* srcDst, const Orb32f* taps, Orb32s tapCount,
                                          Orb32f* delayLine, Orb32s* delayIndex);

/** Complex binary32. */
OrbStatus legacy90orbsFIROne_Direct_32fc(Orb32fc src, Orb32fc* dst, const Orb32fc* taps, Orb32s tapCount,
                                         Orb32fc* delayLine, Orb32s* delayIndex);

/** In place. */
OrbStatus legacy90orbsFIROne_Direct_32fc_I(Orb32fc* srcDst, const Orb32fc* taps, Orb32s tapCount,
                                           Orb32fc* delayLine, Orb32s* delayIndex);

/** Binary64. */
OrbStatus legacy90orbsFIROne_Direct_64f(Orb64f src, Orb64f* dst, const Orb64f* taps, Orb32s tapCount,
                                        Orb64f* delayLine, Orb32s* delayIndex);

/** In place. */
OrbStatus legacy90orbsFIROne_Direct_64f_I(Orb64f* srcDst, const Orb64f* taps, Orb32s tapCount,
                                          Orb64f* delayLine, Orb32s* delayIndex);

/** Complex binary64. */
OrbStatus legacy90orbsFIROne_Direct_64fc(Orb64fc src, Orb64fc* dst, const Orb64fc* taps, Orb32s tapCount,
                                         Orb64fc* delayLine, Orb32s* delayIndex);

/** In place. */
OrbStatus legacy90orbsFIROne_Direct_64fc_I(Orb64fc* srcDst, const Orb64fc* taps, Orb32s tapCount,
                                           Orb64fc* delayLine, Orb32s* delayIndex);

/** Taps: binary64; samples: binary32. */
OrbStatus legacy90orbsFIROne64f_Direct_32f(Orb32f src, Orb32f* dst, const Orb64f* taps, Orb32s tapCount,
                                           Orb32f* delayLine, Orb32s* delayIndex);

/** In place. */
OrbStatus legacy90orbsFIROne64f_Direct_32f_I(Orb32f* srcDst, const Orb64f* taps, Orb32s tapCount,
                                             Orb32f* delayLine, Orb32s* delayIndex);

/** Taps: complex binary64; samples: complex binary32. */
OrbStatus legacy90orbsFIROne64fc_Direct_32fc(Orb32fc src, Orb32fc* dst, const Orb64fc* taps, Orb32s tapCount,
                                             Orb32fc* delayLine, Orb32s* delayIndex);

/** In place. */
OrbStatus legacy90orbsFIROne64fc_Direct_32fc_I(Orb32fc* srcDst, const Orb64fc* taps, Orb32s tapCount,
                                               Orb32fc* delayLine, Orb32s* delayIndex);

/** Taps: binary32; samples: 16-bit integers. */
OrbStatus legacy90orbsFIROne32f_Direct_16s_Sfs(Orb16s src, Orb16s* dst, const Orb32f* taps, Orb32s tapCount,
                                               Orb16s* delayLine, Orb32s* delayIndex, Orb32s scaleFactor);

/** In place. */
OrbStatus legacy90orbsFIROne32f_Direct_16s_ISfs(Orb16s* srcDst, const Orb32f* taps, Orb32s tapCount,
                                                Orb16s* delayLine, Orb32s* delayIndex, Orb32s scaleFactor);

/** Taps: complex binary32; samples: complex 16-bit integers. */
OrbStatus legacy90orbsFIROne32fc_Direct_16sc_Sfs(Orb16sc src, Orb16sc* dst, const Orb32fc* taps,
                                                 Orb32s tapCount, Orb16sc* delayLine, Orb32s* delayIndex,
                                                 Orb32s scaleFactor);

/** In place. */
OrbStatus legacy90orbsFIROne32fc_Direct_16sc_ISfs(Orb16sc* srcDst, const Orb32fc* taps, Orb32s tapCount,
                                                  Orb16sc* delayLine, Orb32s* delayIndex, Orb32s scaleFactor);

/** Taps: binary64; samples: 16-bit integers. */
OrbStatus legacy90orbsFIROne64f_Direct_16s_Sfs(Orb16s src, Orb16s* dst, const Orb64f* taps, Orb32s tapCount,
                                               Orb16s* delayLine, Orb32s* delayIndex, Orb32s scaleFactor);

/** In place. */
OrbStatus legacy90orbsFIROne64f_Direct_16s_ISfs(Orb16s* srcDst, const Orb64f* taps, Orb32s tapCount,
                                                Orb16s* delayLine, Orb32s* delayIndex, Orb32s scaleFactor);

/** Taps: complex binary64; samples: complex 16-bit integers. */
OrbStatus legacy90orbsFIROne64fc_Direct_16sc_Sfs(Orb16sc src, Orb16sc* dst, const Orb64fc* taps,
                                                 Orb32s tapCount, Orb16sc* delayLine, Orb32s* delayIndex,
                                                 Orb32s scaleFactor);

/** In place. */
OrbStatus legacy90orbsFIROne64fc_Direct_16sc_ISfs(Orb16sc* srcDst, const Orb64fc* taps, Orb32s tapCount,
                                                  Orb16sc* delayLine, Orb32s* delayIndex, Orb32s scaleFactor);

/** Taps: binary64; samples: 32-bit integers. */
OrbStatus legacy90orbsFIROne64f_Direct_32s_Sfs(Orb32s src, Orb32s* dst, const Orb64f* taps, Orb32s tapCount,
                                               Orb32s* delayLine, Orb32s* delayIndex, Orb32s scaleFactor);

/** In place. */
OrbStatus legacy90orbsFIROne64f_Direct_32s_ISfs(Orb32s* srcDst, const Orb64f* taps, Orb32s tapCount,
                                                Orb32s* delayLine, Orb32s* delayIndex, Orb32s scaleFactor);

/** Taps: complex binary64; samples: complex 32-bit integers. */
OrbStatus legacy90orbsFIROne64fc_Direct_32sc_Sfs(Orb32sc src, Orb32sc* dst, const Orb64fc* taps,
                                                 Orb32s tapCount, Orb32sc* delayLine, Orb32s* delayIndex,
                                                 Orb32s scaleFactor);

/** In place. */
OrbStatus legacy90orbsFIROne64fc_Direct_32sc_ISfs(Orb32sc* srcDst, const Orb64fc* taps, Orb32s tapCount,
                                                  Orb32sc* delayLine, Orb32s* delayIndex, Orb32s scaleFactor);

/** @} */

/**
 * @name One sample, integer taps
 *
 * Filters the sample `src`, or the one at `srcDst`, where the result goes. In this order:
 *
 * - ::StatusNullPointer: `dst` (`srcDst`) or `taps` is null;
 * - ::StatusFirLength: `tapCount` is below 1;
 * - ::StatusNullPointer: `delayLine` or `delayIndex` is null;
 * - ::StatusOk.
 * @{
 */

/** Taps: 32-bit integers; samples: 16-bit integers. */
OrbStatus legacy90orbsFIROne32s_Direct_16s_Sfs(Orb16s src, Orb16s* dst, const Orb32s* taps, Orb32s tapCount,
                                               Orb32s tapsFactor, Orb16s* delayLine, Orb32s* delayIndex,
                                               Orb32s scaleFactor);

/** In place. */
OrbStatus legacy90orbsFIROne32s_Direct_16s_ISfs(Orb16s* srcDst, const Orb32s* taps, Orb32s tapCount,
                                                Orb32s tapsFactor, Orb16s* delayLine, Orb32s* delayIndex,
                                                Orb32s scaleFactor);

/** Taps: complex 32-bit integers; samples: complex 16-bit integers. */
OrbStatus legacy90orbsFIROne32sc_Direct_16sc_Sfs(Orb16sc src, Orb16sc* dst, const Orb32sc* taps,
                                                 Orb32s tapCount, Orb32s tapsFactor, Orb16sc* delayLine,
                                                 Orb32s* delayIndex, Orb32s scaleFactor);

/** In place. */
OrbStatus legacy90orbsFIROne32sc_Direct_16sc_ISfs(Orb16sc* srcDst, const Orb32sc* taps, Orb32s tapCount,
                                                  Orb32s tapsFactor, Orb16sc* delayLine, Orb32s* delayIndex,
                                                  Orb32s scaleFactor);

/** @} */

/**
 * @name 16-bit samples and Q15 taps
 *
 * - ::StatusNullPointer: a pointer is null;
 * - ::StatusSize: `sampleCount` is below 1;
 * - ::StatusFirLength: `tapCount` is below 1;
 * - ::StatusDelayIndex: `*delayIndex` is below 0 or not below `tapCount`;
 * - ::StatusMemAlloc: the block forms have no memory for the call;
 * - ::StatusOk.
 *
 * The block forms build a state of legacy90orbsFIRInit32s_16s() for the call and run
 * legacy90orbsFIR32s_16s_Sfs() on it. Their delay line is that of a state's accessors, n elements with the
 * newest sample first: a call reads them at delayLine[*delayIndex], so that the array has *delayIndex + n
 * elements, and leaves the n newest samples at delayLine[0] and 0 in `*delayIndex`. The one-sample forms have
 * the doubled ring: one array does not serve both.
 * @{
 */

/** Blocks. */
OrbStatus legacy90orbsFIR_Direct_16s_Sfs(const Orb16s* src, Orb16s* dst, Orb32s sampleCount,
                                         const Orb16s* taps, Orb32s tapCount, Orb16s* delayLine,
                                         Orb32s* delayIndex, Orb32s scaleFactor);

/** In place. */
OrbStatus legacy90orbsFIR_Direct_16s_ISfs(Orb16s* srcDst, Orb32s sampleCount, const Orb16s* taps,
                                          Orb32s tapCount, Orb16s* delayLine, Orb32s* delayIndex,
                                          Orb32s scaleFactor);

/** One sample. */
OrbStatus legacy90orbsFIROne_Direct_16s_Sfs(Orb16s src, Orb16s* dst, const Orb16s* taps, Orb32s tapCount,
                                            Orb16s* delayLine, Orb32s* delayIndex, Orb32s scaleFactor);

/** In place. */
OrbStatus legacy90orbsFIROne_Direct_16s_ISfs(Orb16s* srcDst, const Orb16s* taps, Orb32s tapCount,
                                             Orb16s* delayLine, Orb32s* delayIndex, Orb32s scaleFactor);

/** @} */

#ifdef __cplusplus
}
#endif

#endif
