/**
 * @file fir.h
 * @brief FIR filters: states, blocks of samples, one sample at a time; floating-point taps.
 *
 * A filter with the taps h[0] to h[n-1] makes from the stream x the stream
 *
 *     y[i] = sum over k = 0 to n-1 of h[k] x[i-k]
 *
 * with the complex product, without conjugation, for complex data. Everything of one stream is in a state:
 * the taps, the delay line (the last n samples, which continue the stream into the past), and scratch. A
 * stream can be cut into calls of any sizes, blocks and single samples mixed: the results are those of one
 * call up to the rounding of sums.
 *
 * | Suffix       | Taps    | Data    | Block results                         | One-sample results    |
 * |--------------|---------|---------|---------------------------------------|-----------------------|
 * | `_32f`       | Orb32f  | Orb32f  | as summed                             | summed in binary64    |
 * | `_32fc`      | Orb32fc | Orb32fc | as summed                             | as summed             |
 * | `_64f`       | Orb64f  | Orb64f  | as summed                             | as summed             |
 * | `_64fc`      | Orb64fc | Orb64fc | as summed                             | as summed             |
 * | `32f_16s`    | Orb32f  | Orb16s  | scaled, nearest, ties to even         | scaled, see below     |
 * | `32fc_16sc`  | Orb32fc | Orb16sc | scaled, nearest, ties to even         | scaled, see below     |
 * | `64f_16s`    | Orb64f  | Orb16s  | scaled, see below                     | scaled, see below     |
 * | `64fc_16sc`  | Orb64fc | Orb16sc | scaled, see below                     | scaled, see below     |
 * | `64f_32s`    | Orb64f  | Orb32s  | scaled, nearest, ties to even         | scaled, see below     |
 * | `64fc_32sc`  | Orb64fc | Orb32sc | scaled, nearest, ties to even         | scaled, see below     |
 * | `_32s`       | Orb32s  | Orb32s  | as `64f_32s`; taps are held as Orb64f | as `64f_32s`          |
 * | `64f_32f`    | Orb64f  | Orb32f  | limited to the finite range           | rounded on store      |
 * | `64fc_32fc`  | Orb64fc | Orb32fc | limited to the finite range           | rounded on store      |
 *
 * Sums are made in the tap type, in `px` wider. Scaled results are the sum times 2^-scaleFactor, rounded to
 * the nearest integer and saturated; any scale factor is legal. Where the table says "see below", ties go
 * away from zero in `px` and to even in the other variants, and the factor comes from the exponent field of
 * binary32 with the magnitude of scaleFactor taken modulo 128; legacy90orbsFIROne64fc_16sc_Sfs() and
 * legacy90orbsFIROne64fc_32sc_Sfs() with fewer than 5 taps send ties away from zero in `g9` and `h9` too.
 *
 * States with many taps have a transform as well, and long blocks go through it by overlap-save (T. G.
 * Stockham, "High-speed convolution and correlation", 1966): from 512 real or 256 complex samples a call,
 * given 64 taps of Orb32f, 16 of Orb32fc, 64 of Orb64f (32 in `px` and `w7`) or 32 of Orb64fc (16 in `px` and
 * `w7`). In place, forms whose data type is their tap type decide for each 4096 samples (4224 in `g9` and
 * `h9`), by the count that is left behind them.
 *
 * A state belongs to one thread at a time; it must not be copied or moved. It is valid in the variant that
 * made it, which never changes within a process.
 */
#ifndef ORBS90LGC_FIR_H
#define ORBS90LGC_FIR_H

#include "fir_state.h"
#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @name Blocks of samples
 *
 * Filters `sampleCount` samples; the delay line takes them in. `src` and `dst` are the same array, which is
 * the in-place form, or do not overlap.
 *
 * - ::StatusNullPointer: a pointer is null;
 * - ::StatusSize: `sampleCount` is below 1;
 * - ::StatusContextMismatch: the state is of another kind;
 * - ::StatusOk.
 * @{
 */

/** Real, binary32. */
OrbStatus legacy90orbsFIR_32f(const Orb32f* src, Orb32f* dst, Orb32s sampleCount, FIRFloatState* state);

/** In place. */
OrbStatus legacy90orbsFIR_32f_I(Orb32f* srcDst, Orb32s sampleCount, FIRFloatState* state);

/** Complex, binary32. */
OrbStatus legacy90orbsFIR_32fc(const Orb32fc* src, Orb32fc* dst, Orb32s sampleCount, FIRFloatState* state);

/** In place. */
OrbStatus legacy90orbsFIR_32fc_I(Orb32fc* srcDst, Orb32s sampleCount, FIRFloatState* state);

/** Real, binary64. */
OrbStatus legacy90orbsFIR_64f(const Orb64f* src, Orb64f* dst, Orb32s sampleCount, FIRFloatState* state);

/** In place. */
OrbStatus legacy90orbsFIR_64f_I(Orb64f* srcDst, Orb32s sampleCount, FIRFloatState* state);

/** Complex, binary64. */
OrbStatus legacy90orbsFIR_64fc(const Orb64fc* src, Orb64fc* dst, Orb32s sampleCount, FIRFloatState* state);

/** In place. */
OrbStatus legacy90orbsFIR_64fc_I(Orb64fc* srcDst, Orb32s sampleCount, FIRFloatState* state);

/** 32-bit integer taps and samples. */
OrbStatus legacy90orbsFIR_32s_Sfs(const Orb32s* src, Orb32s* dst, Orb32s sampleCount, FIRFloatState* state,
                                  Orb32s scaleFactor);

/** In place. */
OrbStatus legacy90orbsFIR_32s_ISfs(Orb32s* srcDst, Orb32s sampleCount, FIRFloatState* state,
                                   Orb32s scaleFactor);

/** Taps: real binary32; samples: 16-bit integers. */
OrbStatus legacy90orbsFIR32f_16s_Sfs(const Orb16s* src, Orb16s* dst, Orb32s sampleCount, FIRFloatState* state,
                                     Orb32s scaleFactor);

/** In place. */
OrbStatus legacy90orbsFIR32f_16s_ISfs(Orb16s* srcDst, Orb32s sampleCount, FIRFloatState* state,
                                      Orb32s scaleFactor);

/** Taps: complex binary32; samples: complex 16-bit integers. */
OrbStatus legacy90orbsFIR32fc_16sc_Sfs(const Orb16sc* src, Orb16sc* dst, Orb32s sampleCount,
                                       FIRFloatState* state, Orb32s scaleFactor);

/** In place. */
OrbStatus legacy90orbsFIR32fc_16sc_ISfs(Orb16sc* srcDst, Orb32s sampleCount, FIRFloatState* state,
                                        Orb32s scaleFactor);

/** Taps: real binary64; samples: real binary32. */
OrbStatus legacy90orbsFIR64f_32f(const Orb32f* src, Orb32f* dst, Orb32s sampleCount, FIRFloatState* state);

/** In place. */
OrbStatus legacy90orbsFIR64f_32f_I(Orb32f* srcDst, Orb32s sampleCount, FIRFloatState* state);

/** Taps: complex binary64; samples: complex binary32. */
OrbStatus legacy90orbsFIR64fc_32fc(const Orb32fc* src, Orb32fc* dst, Orb32s sampleCount,
                                   FIRFloatState* state);

/** In place. */
OrbStatus legacy90orbsFIR64fc_32fc_I(Orb32fc* srcDst, Orb32s sampleCount, FIRFloatState* state);

/** Taps: real binary64; samples: 32-bit integers. */
OrbStatus legacy90orbsFIR64f_32s_Sfs(const Orb32s* src, Orb32s* dst, Orb32s sampleCount, FIRFloatState* state,
                                     Orb32s scaleFactor);

/** In place. */
OrbStatus legacy90orbsFIR64f_32s_ISfs(Orb32s* srcDst, Orb32s sampleCount, FIRFloatState* state,
                                      Orb32s scaleFactor);

/** Taps: complex binary64; samples: complex 32-bit integers. */
OrbStatus legacy90orbsFIR64fc_32sc_Sfs(const Orb32sc* src, Orb32sc* dst, Orb32s sampleCount,
                                       FIRFloatState* state, Orb32s scaleFactor);

/** In place. */
OrbStatus legacy90orbsFIR64fc_32sc_ISfs(Orb32sc* srcDst, Orb32s sampleCount, FIRFloatState* state,
                                        Orb32s scaleFactor);

/** Taps: real binary64; samples: 16-bit integers. */
OrbStatus legacy90orbsFIR64f_16s_Sfs(const Orb16s* src, Orb16s* dst, Orb32s sampleCount, FIRFloatState* state,
                                     Orb32s scaleFactor);

/** In place. */
OrbStatus legacy90orbsFIR64f_16s_ISfs(Orb16s* srcDst, Orb32s sampleCount, FIRFloatState* state,
                                      Orb32s scaleFactor);

/** Taps: complex binary64; samples: complex 16-bit integers. */
OrbStatus legacy90orbsFIR64fc_16sc_Sfs(const Orb16sc* src, Orb16sc* dst, Orb32s sampleCount,
                                       FIRFloatState* state, Orb32s scaleFactor);

/** In place. */
OrbStatus legacy90orbsFIR64fc_16sc_ISfs(Orb16sc* srcDst, Orb32s sampleCount, FIRFloatState* state,
                                        Orb32s scaleFactor);

/** @} */

/**
 * @name One sample
 *
 * Filters one sample, given by value, into `*dst`.
 *
 * - ::StatusNullPointer: `state` or `dst` is null;
 * - ::StatusContextMismatch: the state is of another kind;
 * - ::StatusOk.
 * @{
 */

/** Real, binary32. */
OrbStatus legacy90orbsFIROne_32f(Orb32f src, Orb32f* dst, FIRFloatState* state);

/** Complex, binary32. */
OrbStatus legacy90orbsFIROne_32fc(Orb32fc src, Orb32fc* dst, FIRFloatState* state);

/** Real, binary64. */
OrbStatus legacy90orbsFIROne_64f(Orb64f src, Orb64f* dst, FIRFloatState* state);

/** Complex, binary64. */
OrbStatus legacy90orbsFIROne_64fc(Orb64fc src, Orb64fc* dst, FIRFloatState* state);

/** 32-bit integer taps and samples. */
OrbStatus legacy90orbsFIROne_32s_Sfs(Orb32s src, Orb32s* dst, FIRFloatState* state, Orb32s scaleFactor);

/** Taps: real binary32; samples: 16-bit integers. */
OrbStatus legacy90orbsFIROne32f_16s_Sfs(Orb16s src, Orb16s* dst, FIRFloatState* state, Orb32s scaleFactor);

/** Taps: complex binary32; samples: complex 16-bit integers. */
OrbStatus legacy90orbsFIROne32fc_16sc_Sfs(Orb16sc src, Orb16sc* dst, FIRFloatState* state,
                                          Orb32s scaleFactor);

/** Taps: real binary64; samples: real binary32. */
OrbStatus legacy90orbsFIROne64f_32f(Orb32f src, Orb32f* dst, FIRFloatState* state);

/** Taps: complex binary64; samples: complex binary32. */
OrbStatus legacy90orbsFIROne64fc_32fc(Orb32fc src, Orb32fc* dst, FIRFloatState* state);

/** Taps: real binary64; samples: 32-bit integers. */
OrbStatus legacy90orbsFIROne64f_32s_Sfs(Orb32s src, Orb32s* dst, FIRFloatState* state, Orb32s scaleFactor);

/** Taps: complex binary64; samples: complex 32-bit integers. */
OrbStatus legacy90orbsFIROne64fc_32sc_Sfs(Orb32sc src, Orb32sc* dst, FIRFloatState* state,
                                          Orb32s scaleFactor);

/** Taps: real binary64; samples: 16-bit integers. */
OrbStatus legacy90orbsFIROne64f_16s_Sfs(Orb16s src, Orb16s* dst, FIRFloatState* state, Orb32s scaleFactor);

/** Taps: complex binary64; samples: complex 16-bit integers. */
OrbStatus legacy90orbsFIROne64fc_16sc_Sfs(Orb16sc src, Orb16sc* dst, FIRFloatState* state,
                                          Orb32s scaleFactor);

/** @} */

#ifdef __cplusplus
}
#endif

#endif
