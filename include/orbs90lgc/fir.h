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

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @name Size of a state
 *
 * The bytes of memory that the FIRInit function of the same suffix needs for `tapCount` taps, with room for
 * its alignment. More than 2^31-1 bytes are reported as 2^31-1.
 *
 * - ::StatusNullPointer: `size` is null;
 * - ::StatusFirLength: `tapCount` is below 1;
 * - ::StatusOk.
 * @{
 */

/** Real, binary32. */
OrbStatus legacy90orbsFIRGetStateSize_32f(Orb32s tapCount, Orb32s* size);

/** Complex, binary32. */
OrbStatus legacy90orbsFIRGetStateSize_32fc(Orb32s tapCount, Orb32s* size);

/** Real, binary64. */
OrbStatus legacy90orbsFIRGetStateSize_64f(Orb32s tapCount, Orb32s* size);

/** Complex, binary64. */
OrbStatus legacy90orbsFIRGetStateSize_64fc(Orb32s tapCount, Orb32s* size);

/** 32-bit integer taps and samples. */
OrbStatus legacy90orbsFIRGetStateSize_32s(Orb32s tapCount, Orb32s* size);

/** Taps: real binary32; samples: 16-bit integers. */
OrbStatus legacy90orbsFIRGetStateSize32f_16s(Orb32s tapCount, Orb32s* size);

/** Taps: complex binary32; samples: complex 16-bit integers. */
OrbStatus legacy90orbsFIRGetStateSize32fc_16sc(Orb32s tapCount, Orb32s* size);

/** Taps: real binary64; samples: real binary32. */
OrbStatus legacy90orbsFIRGetStateSize64f_32f(Orb32s tapCount, Orb32s* size);

/** Taps: complex binary64; samples: complex binary32. */
OrbStatus legacy90orbsFIRGetStateSize64fc_32fc(Orb32s tapCount, Orb32s* size);

/** Taps: real binary64; samples: 32-bit integers. */
OrbStatus legacy90orbsFIRGetStateSize64f_32s(Orb32s tapCount, Orb32s* size);

/** Taps: complex binary64; samples: complex 32-bit integers. */
OrbStatus legacy90orbsFIRGetStateSize64fc_32sc(Orb32s tapCount, Orb32s* size);

/** Taps: real binary64; samples: 16-bit integers. */
OrbStatus legacy90orbsFIRGetStateSize64f_16s(Orb32s tapCount, Orb32s* size);

/** Taps: complex binary64; samples: complex 16-bit integers. */
OrbStatus legacy90orbsFIRGetStateSize64fc_16sc(Orb32s tapCount, Orb32s* size);

/** @} */

/**
 * @name States in memory of the caller
 *
 * Builds a state in `buffer`, at its first address that is a multiple of 16 (32 for taps of binary64), and
 * gives that address in `*stateOut`. `taps` are h[0] to h[n-1]. `delayLine` has n samples of the past, the
 * newest first, or is null for zeros. legacy90orbsFIRInit_32s() builds a state without a transform, however
 * many taps it has.
 *
 * - ::StatusNullPointer: `stateOut`, `taps` or `buffer` is null;
 * - ::StatusFirLength: `tapCount` is below 1;
 * - ::StatusOk.
 * @{
 */

/** Real, binary32. */
OrbStatus legacy90orbsFIRInit_32f(FIRFloatState** stateOut, const Orb32f* taps, Orb32s tapCount,
                                  const Orb32f* delayLine, void* buffer);

/** Complex, binary32. */
OrbStatus legacy90orbsFIRInit_32fc(FIRFloatState** stateOut, const Orb32fc* taps, Orb32s tapCount,
                                   const Orb32fc* delayLine, void* buffer);

/** Real, binary64. */
OrbStatus legacy90orbsFIRInit_64f(FIRFloatState** stateOut, const Orb64f* taps, Orb32s tapCount,
                                  const Orb64f* delayLine, void* buffer);

/** Complex, binary64. */
OrbStatus legacy90orbsFIRInit_64fc(FIRFloatState** stateOut, const Orb64fc* taps, Orb32s tapCount,
                                   const Orb64fc* delayLine, void* buffer);

/** 32-bit integer taps and samples. */
OrbStatus legacy90orbsFIRInit_32s(FIRFloatState** stateOut, const Orb32s* taps, Orb32s tapCount,
                                  const Orb32s* delayLine, void* buffer);

/** Taps: real binary32; samples: 16-bit integers. */
OrbStatus legacy90orbsFIRInit32f_16s(FIRFloatState** stateOut, const Orb32f* taps, Orb32s tapCount,
                                     const Orb16s* delayLine, void* buffer);

/** Taps: complex binary32; samples: complex 16-bit integers. */
OrbStatus legacy90orbsFIRInit32fc_16sc(FIRFloatState** stateOut, const Orb32fc* taps, Orb32s tapCount,
                                       const Orb16sc* delayLine, void* buffer);

/** Taps: real binary64; samples: real binary32. */
OrbStatus legacy90orbsFIRInit64f_32f(FIRFloatState** stateOut, const Orb64f* taps, Orb32s tapCount,
                                     const Orb32f* delayLine, void* buffer);

/** Taps: complex binary64; samples: complex binary32. */
OrbStatus legacy90orbsFIRInit64fc_32fc(FIRFloatState** stateOut, const Orb64fc* taps, Orb32s tapCount,
                                       const Orb32fc* delayLine, void* buffer);

/** Taps: real binary64; samples: 32-bit integers. */
OrbStatus legacy90orbsFIRInit64f_32s(FIRFloatState** stateOut, const Orb64f* taps, Orb32s tapCount,
                                     const Orb32s* delayLine, void* buffer);

/** Taps: complex binary64; samples: complex 32-bit integers. */
OrbStatus legacy90orbsFIRInit64fc_32sc(FIRFloatState** stateOut, const Orb64fc* taps, Orb32s tapCount,
                                       const Orb32sc* delayLine, void* buffer);

/** Taps: real binary64; samples: 16-bit integers. */
OrbStatus legacy90orbsFIRInit64f_16s(FIRFloatState** stateOut, const Orb64f* taps, Orb32s tapCount,
                                     const Orb16s* delayLine, void* buffer);

/** Taps: complex binary64; samples: complex 16-bit integers. */
OrbStatus legacy90orbsFIRInit64fc_16sc(FIRFloatState** stateOut, const Orb64fc* taps, Orb32s tapCount,
                                       const Orb16sc* delayLine, void* buffer);

/** @} */

/**
 * @name States in memory of the library
 *
 * As FIRInit, in memory that FIRFree releases. The state of legacy90orbsFIRInitAlloc_32s() has a transform
 * from 32 taps on.
 *
 * - ::StatusNullPointer: `stateOut` or `taps` is null;
 * - ::StatusFirLength: `tapCount` is below 1;
 * - ::StatusMemAlloc: no memory; nothing is left allocated, and `*stateOut` is as it was;
 * - ::StatusOk.
 * @{
 */

/** Real, binary32. */
OrbStatus legacy90orbsFIRInitAlloc_32f(FIRFloatState** stateOut, const Orb32f* taps, Orb32s tapCount,
                                       const Orb32f* delayLine);

/** Complex, binary32. */
OrbStatus legacy90orbsFIRInitAlloc_32fc(FIRFloatState** stateOut, const Orb32fc* taps, Orb32s tapCount,
                                        const Orb32fc* delayLine);

/** Real, binary64. */
OrbStatus legacy90orbsFIRInitAlloc_64f(FIRFloatState** stateOut, const Orb64f* taps, Orb32s tapCount,
                                       const Orb64f* delayLine);

/** Complex, binary64. */
OrbStatus legacy90orbsFIRInitAlloc_64fc(FIRFloatState** stateOut, const Orb64fc* taps, Orb32s tapCount,
                                        const Orb64fc* delayLine);

/** 32-bit integer taps and samples. */
OrbStatus legacy90orbsFIRInitAlloc_32s(FIRFloatState** stateOut, const Orb32s* taps, Orb32s tapCount,
                                       const Orb32s* delayLine);

/** Taps: real binary32; samples: 16-bit integers. */
OrbStatus legacy90orbsFIRInitAlloc32f_16s(FIRFloatState** stateOut, const Orb32f* taps, Orb32s tapCount,
                                          const Orb16s* delayLine);

/** Taps: complex binary32; samples: complex 16-bit integers. */
OrbStatus legacy90orbsFIRInitAlloc32fc_16sc(FIRFloatState** stateOut, const Orb32fc* taps, Orb32s tapCount,
                                            const Orb16sc* delayLine);

/** Taps: real binary64; samples: real binary32. */
OrbStatus legacy90orbsFIRInitAlloc64f_32f(FIRFloatState** stateOut, const Orb64f* taps, Orb32s tapCount,
                                          const Orb32f* delayLine);

/** Taps: complex binary64; samples: complex binary32. */
OrbStatus legacy90orbsFIRInitAlloc64fc_32fc(FIRFloatState** stateOut, const Orb64fc* taps, Orb32s tapCount,
                                            const Orb32fc* delayLine);

/** Taps: real binary64; samples: 32-bit integers. */
OrbStatus legacy90orbsFIRInitAlloc64f_32s(FIRFloatState** stateOut, const Orb64f* taps, Orb32s tapCount,
                                          const Orb32s* delayLine);

/** Taps: complex binary64; samples: complex 32-bit integers. */
OrbStatus legacy90orbsFIRInitAlloc64fc_32sc(FIRFloatState** stateOut, const Orb64fc* taps, Orb32s tapCount,
                                            const Orb32sc* delayLine);

/** Taps: real binary64; samples: 16-bit integers. */
OrbStatus legacy90orbsFIRInitAlloc64f_16s(FIRFloatState** stateOut, const Orb64f* taps, Orb32s tapCount,
                                          const Orb16s* delayLine);

/** Taps: complex binary64; samples: complex 16-bit integers. */
OrbStatus legacy90orbsFIRInitAlloc64fc_16sc(FIRFloatState** stateOut, const Orb64fc* taps, Orb32s tapCount,
                                            const Orb16sc* delayLine);

/** @} */

/**
 * @name End of a state
 *
 * Releases a state that FIRInitAlloc made. A state in memory of the caller is left as it is and goes on
 * working.
 *
 * - ::StatusNullPointer: `state` is null;
 * - ::StatusContextMismatch: the state is of another kind;
 * - ::StatusOk.
 * @{
 */

/** Real, binary32. */
OrbStatus legacy90orbsFIRFree_32f(FIRFloatState* state);

/** Complex, binary32. */
OrbStatus legacy90orbsFIRFree_32fc(FIRFloatState* state);

/** Real, binary64. */
OrbStatus legacy90orbsFIRFree_64f(FIRFloatState* state);

/** Complex, binary64. */
OrbStatus legacy90orbsFIRFree_64fc(FIRFloatState* state);

/** 32-bit integer taps and samples. */
OrbStatus legacy90orbsFIRFree_32s(FIRFloatState* state);

/** Taps: real binary32; samples: 16-bit integers. */
OrbStatus legacy90orbsFIRFree32f_16s(FIRFloatState* state);

/** Taps: complex binary32; samples: complex 16-bit integers. */
OrbStatus legacy90orbsFIRFree32fc_16sc(FIRFloatState* state);

/** Taps: real binary64; samples: real binary32. */
OrbStatus legacy90orbsFIRFree64f_32f(FIRFloatState* state);

/** Taps: complex binary64; samples: complex binary32. */
OrbStatus legacy90orbsFIRFree64fc_32fc(FIRFloatState* state);

/** Taps: real binary64; samples: 32-bit integers. */
OrbStatus legacy90orbsFIRFree64f_32s(FIRFloatState* state);

/** Taps: complex binary64; samples: complex 32-bit integers. */
OrbStatus legacy90orbsFIRFree64fc_32sc(FIRFloatState* state);

/** Taps: real binary64; samples: 16-bit integers. */
OrbStatus legacy90orbsFIRFree64f_16s(FIRFloatState* state);

/** Taps: complex binary64; samples: complex 16-bit integers. */
OrbStatus legacy90orbsFIRFree64fc_16sc(FIRFloatState* state);

/** @} */

/**
 * @name Taps read
 *
 * taps[k] = h[k]. legacy90orbsFIRGetTaps_32s() truncates toward zero.
 *
 * - ::StatusNullPointer: `state` or `taps` is null;
 * - ::StatusContextMismatch: the state is of another kind;
 * - ::StatusOk.
 * @{
 */

/** Real, binary32. */
OrbStatus legacy90orbsFIRGetTaps_32f(const FIRFloatState* state, Orb32f* taps);

/** Complex, binary32. */
OrbStatus legacy90orbsFIRGetTaps_32fc(const FIRFloatState* state, Orb32fc* taps);

/** Real, binary64. */
OrbStatus legacy90orbsFIRGetTaps_64f(const FIRFloatState* state, Orb64f* taps);

/** Complex, binary64. */
OrbStatus legacy90orbsFIRGetTaps_64fc(const FIRFloatState* state, Orb64fc* taps);

/** 32-bit integer taps and samples. */
OrbStatus legacy90orbsFIRGetTaps_32s(const FIRFloatState* state, Orb32s* taps);

/** Taps: real binary32; samples: 16-bit integers. */
OrbStatus legacy90orbsFIRGetTaps32f_16s(const FIRFloatState* state, Orb32f* taps);

/** Taps: complex binary32; samples: complex 16-bit integers. */
OrbStatus legacy90orbsFIRGetTaps32fc_16sc(const FIRFloatState* state, Orb32fc* taps);

/** Taps: real binary64; samples: real binary32. */
OrbStatus legacy90orbsFIRGetTaps64f_32f(const FIRFloatState* state, Orb64f* taps);

/** Taps: complex binary64; samples: complex binary32. */
OrbStatus legacy90orbsFIRGetTaps64fc_32fc(const FIRFloatState* state, Orb64fc* taps);

/** Taps: real binary64; samples: 32-bit integers. */
OrbStatus legacy90orbsFIRGetTaps64f_32s(const FIRFloatState* state, Orb64f* taps);

/** Taps: complex binary64; samples: complex 32-bit integers. */
OrbStatus legacy90orbsFIRGetTaps64fc_32sc(const FIRFloatState* state, Orb64fc* taps);

/** Taps: real binary64; samples: 16-bit integers. */
OrbStatus legacy90orbsFIRGetTaps64f_16s(const FIRFloatState* state, Orb64f* taps);

/** Taps: complex binary64; samples: complex 16-bit integers. */
OrbStatus legacy90orbsFIRGetTaps64fc_16sc(const FIRFloatState* state, Orb64fc* taps);

/** @} */

/**
 * @name Taps replaced
 *
 * New taps, as many as before; the delay line stays.
 *
 * - ::StatusNullPointer: `taps` or `state` is null;
 * - ::StatusContextMismatch: the state is of another kind;
 * - ::StatusOk.
 * @{
 */

/** Real, binary32. */
OrbStatus legacy90orbsFIRSetTaps_32f(const Orb32f* taps, FIRFloatState* state);

/** Complex, binary32. */
OrbStatus legacy90orbsFIRSetTaps_32fc(const Orb32fc* taps, FIRFloatState* state);

/** Real, binary64. */
OrbStatus legacy90orbsFIRSetTaps_64f(const Orb64f* taps, FIRFloatState* state);

/** Complex, binary64. */
OrbStatus legacy90orbsFIRSetTaps_64fc(const Orb64fc* taps, FIRFloatState* state);

/** 32-bit integer taps and samples. */
OrbStatus legacy90orbsFIRSetTaps_32s(const Orb32s* taps, FIRFloatState* state);

/** Taps: real binary32; samples: 16-bit integers. */
OrbStatus legacy90orbsFIRSetTaps32f_16s(const Orb32f* taps, FIRFloatState* state);

/** Taps: complex binary32; samples: complex 16-bit integers. */
OrbStatus legacy90orbsFIRSetTaps32fc_16sc(const Orb32fc* taps, FIRFloatState* state);

/** Taps: real binary64; samples: real binary32. */
OrbStatus legacy90orbsFIRSetTaps64f_32f(const Orb64f* taps, FIRFloatState* state);

/** Taps: complex binary64; samples: complex binary32. */
OrbStatus legacy90orbsFIRSetTaps64fc_32fc(const Orb64fc* taps, FIRFloatState* state);

/** Taps: real binary64; samples: 32-bit integers. */
OrbStatus legacy90orbsFIRSetTaps64f_32s(const Orb64f* taps, FIRFloatState* state);

/** Taps: complex binary64; samples: complex 32-bit integers. */
OrbStatus legacy90orbsFIRSetTaps64fc_32sc(const Orb64fc* taps, FIRFloatState* state);

/** Taps: real binary64; samples: 16-bit integers. */
OrbStatus legacy90orbsFIRSetTaps64f_16s(const Orb64f* taps, FIRFloatState* state);

/** Taps: complex binary64; samples: complex 16-bit integers. */
OrbStatus legacy90orbsFIRSetTaps64fc_16sc(const Orb64fc* taps, FIRFloatState* state);

/** @} */

/**
 * @name Delay line read
 *
 * The n most recent samples, the newest first.
 *
 * - ::StatusNullPointer: `state` or `delayLine` is null;
 * - ::StatusContextMismatch: the state is of another kind;
 * - ::StatusOk.
 * @{
 */

/** Real, binary32. */
OrbStatus legacy90orbsFIRGetDlyLine_32f(const FIRFloatState* state, Orb32f* delayLine);

/** Complex, binary32. */
OrbStatus legacy90orbsFIRGetDlyLine_32fc(const FIRFloatState* state, Orb32fc* delayLine);

/** Real, binary64. */
OrbStatus legacy90orbsFIRGetDlyLine_64f(const FIRFloatState* state, Orb64f* delayLine);

/** Complex, binary64. */
OrbStatus legacy90orbsFIRGetDlyLine_64fc(const FIRFloatState* state, Orb64fc* delayLine);

/** Taps: real binary32; samples: 16-bit integers. */
OrbStatus legacy90orbsFIRGetDlyLine32f_16s(const FIRFloatState* state, Orb16s* delayLine);

/** Taps: complex binary32; samples: complex 16-bit integers. */
OrbStatus legacy90orbsFIRGetDlyLine32fc_16sc(const FIRFloatState* state, Orb16sc* delayLine);

/** Taps: real binary64; samples: real binary32. */
OrbStatus legacy90orbsFIRGetDlyLine64f_32f(const FIRFloatState* state, Orb32f* delayLine);

/** Taps: complex binary64; samples: complex binary32. */
OrbStatus legacy90orbsFIRGetDlyLine64fc_32fc(const FIRFloatState* state, Orb32fc* delayLine);

/** Taps: real binary64; samples: 32-bit integers. */
OrbStatus legacy90orbsFIRGetDlyLine64f_32s(const FIRFloatState* state, Orb32s* delayLine);

/** Taps: complex binary64; samples: complex 32-bit integers. */
OrbStatus legacy90orbsFIRGetDlyLine64fc_32sc(const FIRFloatState* state, Orb32sc* delayLine);

/** Taps: real binary64; samples: 16-bit integers. */
OrbStatus legacy90orbsFIRGetDlyLine64f_16s(const FIRFloatState* state, Orb16s* delayLine);

/** Taps: complex binary64; samples: complex 16-bit integers. */
OrbStatus legacy90orbsFIRGetDlyLine64fc_16sc(const FIRFloatState* state, Orb16sc* delayLine);

/** @} */

/**
 * @name Delay line replaced
 *
 * n samples, the newest first; null stands for zeros.
 *
 * - ::StatusNullPointer: `state` is null;
 * - ::StatusContextMismatch: the state is of another kind;
 * - ::StatusOk.
 * @{
 */

/** Real, binary32. */
OrbStatus legacy90orbsFIRSetDlyLine_32f(FIRFloatState* state, const Orb32f* delayLine);

/** Complex, binary32. */
OrbStatus legacy90orbsFIRSetDlyLine_32fc(FIRFloatState* state, const Orb32fc* delayLine);

/** Real, binary64. */
OrbStatus legacy90orbsFIRSetDlyLine_64f(FIRFloatState* state, const Orb64f* delayLine);

/** Complex, binary64. */
OrbStatus legacy90orbsFIRSetDlyLine_64fc(FIRFloatState* state, const Orb64fc* delayLine);

/** Taps: real binary32; samples: 16-bit integers. */
OrbStatus legacy90orbsFIRSetDlyLine32f_16s(FIRFloatState* state, const Orb16s* delayLine);

/** Taps: complex binary32; samples: complex 16-bit integers. */
OrbStatus legacy90orbsFIRSetDlyLine32fc_16sc(FIRFloatState* state, const Orb16sc* delayLine);

/** Taps: real binary64; samples: real binary32. */
OrbStatus legacy90orbsFIRSetDlyLine64f_32f(FIRFloatState* state, const Orb32f* delayLine);

/** Taps: complex binary64; samples: complex binary32. */
OrbStatus legacy90orbsFIRSetDlyLine64fc_32fc(FIRFloatState* state, const Orb32fc* delayLine);

/** Taps: real binary64; samples: 32-bit integers. */
OrbStatus legacy90orbsFIRSetDlyLine64f_32s(FIRFloatState* state, const Orb32s* delayLine);

/** Taps: complex binary64; samples: complex 32-bit integers. */
OrbStatus legacy90orbsFIRSetDlyLine64fc_32sc(FIRFloatState* state, const Orb32sc* delayLine);

/** Taps: real binary64; samples: 16-bit integers. */
OrbStatus legacy90orbsFIRSetDlyLine64f_16s(FIRFloatState* state, const Orb16s* delayLine);

/** Taps: complex binary64; samples: complex 16-bit integers. */
OrbStatus legacy90orbsFIRSetDlyLine64fc_16sc(FIRFloatState* state, const Orb16sc* delayLine);

/** @} */

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
