/**
 * @file fir_state.h
 * @brief States of FIR filters with floating-point taps: size, making, ending, taps and delay line.
 *
 * See fir.h for what a state is, and for the meaning of the suffixes.
 */
#ifndef ORBS90LGC_FIR_STATE_H
#define ORBS90LGC_FIR_STATE_H

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

#ifdef __cplusplus
}
#endif

#endif
