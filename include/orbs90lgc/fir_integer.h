/**
 * @file fir_integer.h
 * @brief FIR filters with integer taps on 16-bit samples: states, blocks, one sample at a time.
 *
 * The filters of fir.h in integer arithmetic. Stored taps have at most 16 significant bits, and a power of
 * two tells what they mean:
 *
 *     true tap = stored tap * 2^tapsFactor
 *     y[i] = sum over k = 0 to n-1 of stored[k] x[i-k] * 2^(tapsFactor - scaleFactor)
 *
 * The sum has 32 bits and wraps. d = tapsFactor - scaleFactor is limited to -31 to 31; below 0 the sum is
 * divided by 2^-d and rounded to nearest, ties to even, the rounding addition wrapping too; above 0 it is
 * shifted left in 32 bits, bits above falling away. Then it is saturated to 16 bits. Complex sums are without
 * conjugation, and each component is scaled. All variants give the same numbers.
 *
 * | Suffix          | Taps given as     | Stored                                                   |
 * |-----------------|-------------------|----------------------------------------------------------|
 * | `_16s`          | Orb16s, a factor  | as given; if any tap is -32768, all shifted right by 1   |
 * | `32s_16s`       | Orb32s, a factor  | shifted right until no magnitude is above 32766          |
 * | `32sc_16sc`     | Orb32sc, a factor | the same over both components                            |
 * | `32s_16s32f`    | Orb32f            | times 2^-tapsFactor, rounded half away from 0            |
 * | `32sc_16sc32fc` | Orb32fc           | the same, with one factor for both components            |
 *
 * The places of a shift are the same for all taps and are added to the factor. The factor of floating-point
 * taps is the one that puts the largest magnitude in the upper half of 16 bits, within -33 to 33.
 *
 * Right shifts are arithmetic: -3 becomes -2. States of the last two suffixes are of the kinds `32s_16s` and
 * `32sc_16sc` and go with their functions. Taps that are all zero get the factor -33.
 *
 * A stream can be cut into calls of any sizes, blocks and single samples mixed, with the same results. A
 * state belongs to one thread at a time and must not be copied or moved. No filter call allocates memory.
 */
#ifndef ORBS90LGC_FIR_INTEGER_H
#define ORBS90LGC_FIR_INTEGER_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @name Size of an integer state
 *
 * The bytes of memory that the FIRInit function of the same suffix needs for `tapCount` taps, with room for
 * its alignment. More than 2^31-1 bytes are reported as 2^31-1.
 *
 * - ::StatusNullPointer: `size` is null;
 * - ::StatusFirLength: `tapCount` is below 1;
 * - ::StatusOk.
 * @{
 */

/** 16-bit taps. */
OrbStatus legacy90orbsFIRGetStateSize_16s(Orb32s tapCount, Orb32s* size);

/** 32-bit taps. */
OrbStatus legacy90orbsFIRGetStateSize32s_16s(Orb32s tapCount, Orb32s* size);

/** Complex 32-bit taps. */
OrbStatus legacy90orbsFIRGetStateSize32sc_16sc(Orb32s tapCount, Orb32s* size);

/** Taps of binary32, quantised. */
OrbStatus legacy90orbsFIRGetStateSize32s_16s32f(Orb32s tapCount, Orb32s* size);

/** Complex taps of binary32, quantised. */
OrbStatus legacy90orbsFIRGetStateSize32sc_16sc32fc(Orb32s tapCount, Orb32s* size);

/** @} */

/**
 * @name Integer states in memory of the caller
 *
 * Builds a state in `buffer`, at its first address that is a multiple of 16, and gives that address in
 * `*stateOut`. `delayLine` has n samples of the past, the newest first, or is null for zeros.
 *
 * - ::StatusNullPointer: `stateOut`, `taps` or `buffer` is null;
 * - ::StatusFirLength: `tapCount` is below 1;
 * - ::StatusOk.
 * @{
 */

/** 16-bit taps. */
OrbStatus legacy90orbsFIRInit_16s(FIRIntState** stateOut, const Orb16s* taps, Orb32s tapCount,
                                  Orb32s tapsFactor, const Orb16s* delayLine, void* buffer);

/** 32-bit taps. */
OrbStatus legacy90orbsFIRInit32s_16s(FIRIntState** stateOut, const Orb32s* taps, Orb32s tapCount,
                                     Orb32s tapsFactor, const Orb16s* delayLine, void* buffer);

/** Complex 32-bit taps. */
OrbStatus legacy90orbsFIRInit32sc_16sc(FIRIntState** stateOut, const Orb32sc* taps, Orb32s tapCount,
                                       Orb32s tapsFactor, const Orb16sc* delayLine, void* buffer);

/** Taps of binary32, quantised. */
OrbStatus legacy90orbsFIRInit32s_16s32f(FIRIntState** stateOut, const Orb32f* taps, Orb32s tapCount,
                                        const Orb16s* delayLine, void* buffer);

/** Complex taps of binary32, quantised. */
OrbStatus legacy90orbsFIRInit32sc_16sc32fc(FIRIntState** stateOut, const Orb32fc* taps, Orb32s tapCount,
                                           const Orb16sc* delayLine, void* buffer);

/** @} */

/**
 * @name Integer states in memory of the library
 *
 * As FIRInit, in memory that FIRFree releases.
 *
 * - ::StatusNullPointer: `stateOut` or `taps` is null;
 * - ::StatusFirLength: `tapCount` is below 1;
 * - ::StatusMemAlloc: no memory;
 * - ::StatusOk.
 * @{
 */

/** 16-bit taps. */
OrbStatus legacy90orbsFIRInitAlloc_16s(FIRIntState** stateOut, const Orb16s* taps, Orb32s tapCount,
                                       Orb32s tapsFactor, const Orb16s* delayLine);

/** 32-bit taps. */
OrbStatus legacy90orbsFIRInitAlloc32s_16s(FIRIntState** stateOut, const Orb32s* taps, Orb32s tapCount,
                                          Orb32s tapsFactor, const Orb16s* delayLine);

/** Complex 32-bit taps. */
OrbStatus legacy90orbsFIRInitAlloc32sc_16sc(FIRIntState** stateOut, const Orb32sc* taps, Orb32s tapCount,
                                            Orb32s tapsFactor, const Orb16sc* delayLine);

/** Taps of binary32, quantised. */
OrbStatus legacy90orbsFIRInitAlloc32s_16s32f(FIRIntState** stateOut, const Orb32f* taps, Orb32s tapCount,
                                             const Orb16s* delayLine);

/** Complex taps of binary32, quantised. */
OrbStatus legacy90orbsFIRInitAlloc32sc_16sc32fc(FIRIntState** stateOut, const Orb32fc* taps, Orb32s tapCount,
                                                const Orb16sc* delayLine);

/** @} */

/**
 * @name End of an integer state
 *
 * Releases a state that FIRInitAlloc made; leaves one in memory of the caller as it is.
 *
 * - ::StatusNullPointer: `state` is null;
 * - ::StatusContextMismatch: the state is of another kind;
 * - ::StatusOk.
 * @{
 */

/** 16-bit taps. */
OrbStatus legacy90orbsFIRFree_16s(FIRIntState* state);

/** 32-bit taps. */
OrbStatus legacy90orbsFIRFree32s_16s(FIRIntState* state);

/** Complex 32-bit taps. */
OrbStatus legacy90orbsFIRFree32sc_16sc(FIRIntState* state);

/** @} */

/**
 * @name Integer taps read
 *
 * The stored taps in the order in which they were given, with their factor; of the quantised forms, stored
 * tap times 2^tapsFactor.
 *
 * - ::StatusNullPointer: a pointer is null;
 * - ::StatusContextMismatch: the state is of another kind;
 * - ::StatusOk.
 * @{
 */

/** 16-bit taps. */
OrbStatus legacy90orbsFIRGetTaps_16s(const FIRIntState* state, Orb16s* taps, Orb32s* tapsFactor);

/** 32-bit taps. */
OrbStatus legacy90orbsFIRGetTaps32s_16s(const FIRIntState* state, Orb32s* taps, Orb32s* tapsFactor);

/** Complex 32-bit taps. */
OrbStatus legacy90orbsFIRGetTaps32sc_16sc(const FIRIntState* state, Orb32sc* taps, Orb32s* tapsFactor);

/** Taps of binary32, quantised. */
OrbStatus legacy90orbsFIRGetTaps32s_16s32f(const FIRIntState* state, Orb32f* taps);

/** Complex taps of binary32, quantised. */
OrbStatus legacy90orbsFIRGetTaps32sc_16sc32fc(const FIRIntState* state, Orb32fc* taps);

/** @} */

/**
 * @name Integer taps replaced
 *
 * New taps, as many as before, stored as at the start; the delay line stays.
 *
 * - ::StatusNullPointer: `taps` or `state` is null;
 * - ::StatusContextMismatch: the state is of another kind;
 * - ::StatusOk.
 * @{
 */

/** 16-bit taps. */
OrbStatus legacy90orbsFIRSetTaps_16s(const Orb16s* taps, FIRIntState* state, Orb32s tapsFactor);

/** 32-bit taps. */
OrbStatus legacy90orbsFIRSetTaps32s_16s(const Orb32s* taps, FIRIntState* state, Orb32s tapsFactor);

/** Complex 32-bit taps. */
OrbStatus legacy90orbsFIRSetTaps32sc_16sc(const Orb32sc* taps, FIRIntState* state, Orb32s tapsFactor);

/** Taps of binary32, quantised. */
OrbStatus legacy90orbsFIRSetTaps32s_16s32f(const Orb32f* taps, FIRIntState* state);

/** Complex taps of binary32, quantised. */
OrbStatus legacy90orbsFIRSetTaps32sc_16sc32fc(const Orb32fc* taps, FIRIntState* state);

/** @} */

/**
 * @name Delay line of an integer state
 *
 * The n most recent samples, the newest first. For FIRSetDlyLine, null stands for zeros.
 *
 * - ::StatusNullPointer: `state` is null, or `delayLine` of FIRGetDlyLine;
 * - ::StatusContextMismatch: the state is of another kind;
 * - ::StatusOk.
 * @{
 */

/** 16-bit taps. */
OrbStatus legacy90orbsFIRGetDlyLine_16s(const FIRIntState* state, Orb16s* delayLine);

/** 32-bit taps. */
OrbStatus legacy90orbsFIRGetDlyLine32s_16s(const FIRIntState* state, Orb16s* delayLine);

/** Complex 32-bit taps. */
OrbStatus legacy90orbsFIRGetDlyLine32sc_16sc(const FIRIntState* state, Orb16sc* delayLine);

/** 16-bit taps. */
OrbStatus legacy90orbsFIRSetDlyLine_16s(FIRIntState* state, const Orb16s* delayLine);

/** 32-bit taps. */
OrbStatus legacy90orbsFIRSetDlyLine32s_16s(FIRIntState* state, const Orb16s* delayLine);

/** Complex 32-bit taps. */
OrbStatus legacy90orbsFIRSetDlyLine32sc_16sc(FIRIntState* state, const Orb16sc* delayLine);

/** @} */

/**
 * @name Blocks of 16-bit samples
 *
 * Filters `sampleCount` samples. `src` and `dst` are the same array, which is the in-place form, or do not
 * overlap.
 *
 * - ::StatusNullPointer: a pointer is null;
 * - ::StatusSize: `sampleCount` is below 1;
 * - ::StatusContextMismatch: the state is of another kind;
 * - ::StatusOk.
 * @{
 */

/** 16-bit taps. */
OrbStatus legacy90orbsFIR_16s_Sfs(const Orb16s* src, Orb16s* dst, Orb32s sampleCount, FIRIntState* state,
                                  Orb32s scaleFactor);

/** In place. */
OrbStatus legacy90orbsFIR_16s_ISfs(Orb16s* srcDst, Orb32s sampleCount, FIRIntState* state,
                                   Orb32s scaleFactor);

/** 32-bit taps. */
OrbStatus legacy90orbsFIR32s_16s_Sfs(const Orb16s* src, Orb16s* dst, Orb32s sampleCount, FIRIntState* state,
                                     Orb32s scaleFactor);

/** In place. */
OrbStatus legacy90orbsFIR32s_16s_ISfs(Orb16s* srcDst, Orb32s sampleCount, FIRIntState* state,
                                      Orb32s scaleFactor);

/** Complex 32-bit taps. */
OrbStatus legacy90orbsFIR32sc_16sc_Sfs(const Orb16sc* src, Orb16sc* dst, Orb32s sampleCount,
                                       FIRIntState* state, Orb32s scaleFactor);

/** In place. */
OrbStatus legacy90orbsFIR32sc_16sc_ISfs(Orb16sc* srcDst, Orb32s sampleCount, FIRIntState* state,
                                        Orb32s scaleFactor);

/** @} */

/**
 * @name One 16-bit sample
 *
 * Filters one sample, given by value, into `*dst`.
 *
 * - ::StatusNullPointer: `state` or `dst` is null;
 * - ::StatusContextMismatch: the state is of another kind;
 * - ::StatusOk.
 * @{
 */

/** 16-bit taps. */
OrbStatus legacy90orbsFIROne_16s_Sfs(Orb16s src, Orb16s* dst, FIRIntState* state, Orb32s scaleFactor);

/** 32-bit taps. */
OrbStatus legacy90orbsFIROne32s_16s_Sfs(Orb16s src, Orb16s* dst, FIRIntState* state, Orb32s scaleFactor);

/** Complex 32-bit taps. */
OrbStatus legacy90orbsFIROne32sc_16sc_Sfs(Orb16sc src, Orb16sc* dst, FIRIntState* state, Orb32s scaleFactor);

/** @} */

#ifdef __cplusplus
}
#endif

#endif
