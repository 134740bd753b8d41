/**
 * @file iir.h
 * @brief IIR filters on 16-bit samples: states of any order and cascades of biquads.
 *
 * A filter of order N with the coefficients b[0] to b[N] and a[0] to a[N] makes from the stream x the stream
 *
 *     y[i] = (b[0] x[i] + ... + b[N] x[i-N] - a[1] y[i-1] - ... - a[N] y[i-N]) / a[0]
 *
 * that is, it has the transfer function (b[0] + ... + b[N] z^-N) / (a[0] + ... + a[N] z^-N). A cascade of B
 * biquads is a chain of filters of order 2, each of which takes the results of the one before; for high
 * orders it keeps the poles where a single long polynomial of binary32 coefficients cannot. Complex filters
 * do the same in complex arithmetic, without conjugation.
 *
 * | Suffix                 | Filter             | Taps handed over | Data    | State made         |
 * |------------------------|--------------------|------------------|---------|--------------------|
 * | `32s_16s`              | order N, real      | Orb32s           | Orb16s  | order N, real      |
 * | `32s_16s32f`           | order N, real      | Orb32f           | Orb16s  | order N, real      |
 * | `32sc_16sc`            | order N, complex   | Orb32sc          | Orb16sc | order N, complex   |
 * | `32sc_16sc32fc`        | order N, complex   | Orb32fc          | Orb16sc | order N, complex   |
 * | `32s_BiQuad_16s`       | B biquads, real    | Orb32s           | Orb16s  | biquads, real      |
 * | `32s_BiQuad_16s32f`    | B biquads, real    | Orb32f           | Orb16s  | biquads, real      |
 * | `32sc_BiQuad_16sc`     | B biquads, complex | Orb32sc          | Orb16sc | biquads, complex   |
 * | `32sc_BiQuad_16sc32fc` | B biquads, complex | Orb32fc          | Orb16sc | biquads, complex   |
 *
 * The four kinds of state share the functions of their data type: `32s_16s` filters, reads, sets and frees
 * both real kinds, `32sc_16sc` both complex ones.
 *
 * Taps: 2N+2 values b[0] to b[N], a[0] to a[N]; or 6 for each section: b[0], b[1], b[2], a[0], a[1], a[2].
 * Integer taps count value * 2^-tapsFactor, with tapsFactor limited to -96 to 126. All are held as binary32,
 * each multiplied by 1/a[0] of its filter or section in binary64 and rounded once. a[0] must not be 0 (both
 * parts, for complex taps), nor must b[0] of a section.
 *
 * Everything inside is binary32 (in `px` evaluated in extended precision; in the other variants blocks of
 * order 3 and up run their recursion in binary64). The delay line is that of the transposed direct form II:
 * with t the taps over a[0],
 *
 *     y = t_b[0] x + d[0],   d[i] = t_b[i+1] x - t_a[i+1] y + d[i+1]   for i = 0 to N-1, with d[N] = 0
 *
 * N elements, or two for each section. It crosses the interface as it stands: the 32-bit words of the
 * interface hold the bits of binary32 numbers.
 *
 * A result is y * 2^-scaleFactor, saturated at -32768 and 32767 and rounded to the nearest integer with ties
 * to even; for complex data each part. The factor comes from the exponent field of binary32 with the
 * magnitude of scaleFactor taken modulo 128. What saturates is the result alone: the recursion goes on with
 * the unlimited y, and an unstable filter grows without bound.
 *
 * A stream can be cut into calls of any sizes, blocks and single samples mixed: the results are those of one
 * call, in `px` exactly, elsewhere up to the rounding of sums. The other variants run blocks by look-ahead
 * (K. K. Parhi and D. G. Messerschmitt, "Pipeline interleaving and parallelism in recursive digital filters",
 * 1989): calls of more than four samples for each order or section gain from it.
 *
 * A state belongs to one thread at a time; it must not be copied or moved. It is valid in the variant that
 * made it, which never changes within a process.
 */
#ifndef ORBS90LGC_IIR_H
#define ORBS90LGC_IIR_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @name Size of a state
 *
 * The bytes of memory that the IIRInit function of the same suffix needs, with room for its alignment. More
 * than 2^31-1 bytes are reported as 2^31-1.
 *
 * - ::StatusNullPointer: `size` is null;
 * - ::StatusIirOrder: `order` or `sectionCount` is below 1;
 * - ::StatusOk.
 * @{
 */

/** Any order, real, 32-bit integer taps. */
OrbStatus legacy90orbsIIRGetStateSize32s_16s(Orb32s order, Orb32s* size);

/** Any order, real, taps of binary32. */
OrbStatus legacy90orbsIIRGetStateSize32s_16s32f(Orb32s order, Orb32s* size);

/** Any order, complex, 32-bit integer taps. */
OrbStatus legacy90orbsIIRGetStateSize32sc_16sc(Orb32s order, Orb32s* size);

/** Any order, complex, taps of binary32. */
OrbStatus legacy90orbsIIRGetStateSize32sc_16sc32fc(Orb32s order, Orb32s* size);

/** Biquads, real, 32-bit integer taps. */
OrbStatus legacy90orbsIIRGetStateSize32s_BiQuad_16s(Orb32s sectionCount, Orb32s* size);

/** Biquads, real, taps of binary32. */
OrbStatus legacy90orbsIIRGetStateSize32s_BiQuad_16s32f(Orb32s sectionCount, Orb32s* size);

/** Biquads, complex, 32-bit integer taps. */
OrbStatus legacy90orbsIIRGetStateSize32sc_BiQuad_16sc(Orb32s sectionCount, Orb32s* size);

/** Biquads, complex, taps of binary32. */
OrbStatus legacy90orbsIIRGetStateSize32sc_BiQuad_16sc32fc(Orb32s sectionCount, Orb32s* size);

/** @} */

/**
 * @name States in memory of the caller
 *
 * Builds a state in `buffer`, at its first address that is a multiple of 32, and gives that address in
 * `*stateOut`. `delayLine` has the N or 2B elements of the delay line, or is null for zeros.
 *
 * - ::StatusNullPointer: `stateOut`, `taps` or `buffer` is null;
 * - ::StatusIirOrder: `order` or `sectionCount` is below 1;
 * - ::StatusMemAlloc: no memory for the conversion of integer taps;
 * - ::StatusDivByZero: a[0] of the filter or of a section is 0, or b[0] of a section; `*stateOut` is written,
 *   but the state is incomplete and must not be used;
 * - ::StatusOk.
 * @{
 */

/** Any order, real, 32-bit integer taps. */
OrbStatus legacy90orbsIIRInit32s_16s(IIRState** stateOut, const Orb32s* taps, Orb32s order, Orb32s tapsFactor,
                                     const Orb32s* delayLine, void* buffer);

/** Any order, real, taps of binary32. */
OrbStatus legacy90orbsIIRInit32s_16s32f(IIRState** stateOut, const Orb32f* taps, Orb32s order,
                                        const Orb32s* delayLine, void* buffer);

/** Any order, complex, 32-bit integer taps. */
OrbStatus legacy90orbsIIRInit32sc_16sc(IIRState** stateOut, const Orb32sc* taps, Orb32s order,
                                       Orb32s tapsFactor, const Orb32sc* delayLine, void* buffer);

/** Any order, complex, taps of binary32. */
OrbStatus legacy90orbsIIRInit32sc_16sc32fc(IIRState** stateOut, const Orb32fc* taps, Orb32s order,
                                           const Orb32sc* delayLine, void* buffer);

/** Biquads, real, 32-bit integer taps. */
OrbStatus legacy90orbsIIRInit32s_BiQuad_16s(IIRState** stateOut, const Orb32s* taps, Orb32s sectionCount,
                                            Orb32s tapsFactor, const Orb32s* delayLine, void* buffer);

/** Biquads, real, taps of binary32. */
OrbStatus legacy90orbsIIRInit32s_BiQuad_16s32f(IIRState** stateOut, const Orb32f* taps, Orb32s sectionCount,
                                               const Orb32s* delayLine, void* buffer);

/** Biquads, complex, 32-bit integer taps. */
OrbStatus legacy90orbsIIRInit32sc_BiQuad_16sc(IIRState** stateOut, const Orb32sc* taps, Orb32s sectionCount,
                                              Orb32s tapsFactor, const Orb32sc* delayLine, void* buffer);

/** Biquads, complex, taps of binary32. */
OrbStatus legacy90orbsIIRInit32sc_BiQuad_16sc32fc(IIRState** stateOut, const Orb32fc* taps,
                                                  Orb32s sectionCount, const Orb32sc* delayLine,
                                                  void* buffer);

/** @} */

/**
 * @name States in memory of the library
 *
 * As IIRInit, in memory that IIRFree releases.
 *
 * - ::StatusNullPointer: `stateOut` or `taps` is null;
 * - ::StatusIirOrder: `order` or `sectionCount` is below 1;
 * - ::StatusMemAlloc: no memory; nothing is left allocated, and `*stateOut` is as it was;
 * - ::StatusDivByZero: as for IIRInit; nothing is left allocated, and `*stateOut` is as it was;
 * - ::StatusOk.
 * @{
 */

/** Any order, real, 32-bit integer taps. */
OrbStatus legacy90orbsIIRInitAlloc32s_16s(IIRState** stateOut, const Orb32s* taps, Orb32s order,
                                          Orb32s tapsFactor, const Orb32s* delayLine);

/** Any order, real, taps of binary32. */
OrbStatus legacy90orbsIIRInitAlloc32s_16s32f(IIRState** stateOut, const Orb32f* taps, Orb32s order,
                                             const Orb32s* delayLine);

/** Any order, complex, 32-bit integer taps. */
OrbStatus legacy90orbsIIRInitAlloc32sc_16sc(IIRState** stateOut, const Orb32sc* taps, Orb32s order,
                                            Orb32s tapsFactor, const Orb32sc* delayLine);

/** Any order, complex, taps of binary32. */
OrbStatus legacy90orbsIIRInitAlloc32sc_16sc32fc(IIRState** stateOut, const Orb32fc* taps, Orb32s order,
                                                const Orb32sc* delayLine);

/** Biquads, real, 32-bit integer taps. */
OrbStatus legacy90orbsIIRInitAlloc32s_BiQuad_16s(IIRState** stateOut, const Orb32s* taps, Orb32s sectionCount,
                                                 Orb32s tapsFactor, const Orb32s* delayLine);

/** Biquads, real, taps of binary32. */
OrbStatus legacy90orbsIIRInitAlloc32s_BiQuad_16s32f(IIRState** stateOut, const Orb32f* taps,
                                                    Orb32s sectionCount, const Orb32s* delayLine);

/** Biquads, complex, 32-bit integer taps. */
OrbStatus legacy90orbsIIRInitAlloc32sc_BiQuad_16sc(IIRState** stateOut, const Orb32sc* taps,
                                                   Orb32s sectionCount, Orb32s tapsFactor,
                                                   const Orb32sc* delayLine);

/** Biquads, complex, taps of binary32. */
OrbStatus legacy90orbsIIRInitAlloc32sc_BiQuad_16sc32fc(IIRState** stateOut, const Orb32fc* taps,
                                                       Orb32s sectionCount, const Orb32sc* delayLine);

/** @} */

/**
 * @name End of a state
 *
 * Releases a state that IIRInitAlloc made; it must not be used after that, nor freed again. A state in memory
 * of the caller is left as it is and goes on working.
 *
 * - ::StatusNullPointer: `state` is null;
 * - ::StatusContextMismatch: the state is of another data type or family;
 * - ::StatusOk.
 * @{
 */

/** Both real kinds. */
OrbStatus legacy90orbsIIRFree32s_16s(IIRState* state);

/** Both complex kinds. */
OrbStatus legacy90orbsIIRFree32sc_16sc(IIRState* state);

/** @} */

/**
 * @name Blocks of samples
 *
 * Filters `sampleCount` samples and moves the delay line on. `src` and `dst` are the same array, which is the
 * in-place form, or do not overlap. No call allocates memory.
 *
 * - ::StatusNullPointer: a pointer is null;
 * - ::StatusSize: `sampleCount` is below 1;
 * - ::StatusContextMismatch: the state is of another data type or family;
 * - ::StatusOk.
 * @{
 */

/** Both real kinds. */
OrbStatus legacy90orbsIIR32s_16s_Sfs(const Orb16s* src, Orb16s* dst, Orb32s sampleCount, IIRState* state,
                                     Orb32s scaleFactor);

/** In place. */
OrbStatus legacy90orbsIIR32s_16s_ISfs(Orb16s* srcDst, Orb32s sampleCount, IIRState* state,
                                      Orb32s scaleFactor);

/** Both complex kinds. */
OrbStatus legacy90orbsIIR32sc_16sc_Sfs(const Orb16sc* src, Orb16sc* dst, Orb32s sampleCount, IIRState* state,
                                       Orb32s scaleFactor);

/** In place. */
OrbStatus legacy90orbsIIR32sc_16sc_ISfs(Orb16sc* srcDst, Orb32s sampleCount, IIRState* state,
                                        Orb32s scaleFactor);

/** @} */

/**
 * @name One sample
 *
 * Filters the sample `src` into `*dst` and moves the delay line on.
 *
 * - ::StatusNullPointer: `state` or `dst` is null;
 * - ::StatusContextMismatch: the state is of another data type or family;
 * - ::StatusOk.
 * @{
 */

/** Both real kinds. */
OrbStatus legacy90orbsIIROne32s_16s_Sfs(Orb16s src, Orb16s* dst, IIRState* state, Orb32s scaleFactor);

/** Both complex kinds. */
OrbStatus legacy90orbsIIROne32sc_16sc_Sfs(Orb16sc src, Orb16sc* dst, IIRState* state, Orb32s scaleFactor);

/** @} */

/**
 * @name Delay line
 *
 * Read and replaced: N elements, or two for each section, as bits of binary32 numbers. Null sets zeros.
 *
 * - ::StatusNullPointer: `state` is null, or `delayLine` of a function that reads;
 * - ::StatusContextMismatch: the state is of another data type or family;
 * - ::StatusOk.
 * @{
 */

/** Both real kinds. */
OrbStatus legacy90orbsIIRGetDlyLine32s_16s(const IIRState* state, Orb32s* delayLine);

/** Both complex kinds. */
OrbStatus legacy90orbsIIRGetDlyLine32sc_16sc(const IIRState* state, Orb32sc* delayLine);

/** Both real kinds. */
OrbStatus legacy90orbsIIRSetDlyLine32s_16s(IIRState* state, const Orb32s* delayLine);

/** Both complex kinds. */
OrbStatus legacy90orbsIIRSetDlyLine32sc_16sc(IIRState* state, const Orb32sc* delayLine);

/** @} */

/**
 * @name Taps replaced
 *
 * New taps in the layout of the state's kind, as many as before; the delay line stays.
 *
 * - ::StatusNullPointer: `taps` or `state` is null;
 * - ::StatusContextMismatch: the state is of another data type or family;
 * - ::StatusMemAlloc: no memory for the conversion of integer taps; the taps are as before;
 * - ::StatusDivByZero: a[0] of the filter or of a section is 0, or b[0] of a section; the sections before the
 *   bad one have their new taps, all others keep the old ones;
 * - ::StatusOk.
 * @{
 */

/** Both real kinds, 32-bit integer taps. */
OrbStatus legacy90orbsIIRSetTaps32s_16s(const Orb32s* taps, IIRState* state, Orb32s tapsFactor);

/** Both real kinds, taps of binary32. */
OrbStatus legacy90orbsIIRSetTaps32s_16s32f(const Orb32f* taps, IIRState* state);

/** Both complex kinds, 32-bit integer taps. */
OrbStatus legacy90orbsIIRSetTaps32sc_16sc(const Orb32sc* taps, IIRState* state, Orb32s tapsFactor);

/** Both complex kinds, taps of binary32. */
OrbStatus legacy90orbsIIRSetTaps32sc_16sc32fc(const Orb32fc* taps, IIRState* state);

/** @} */

#ifdef __cplusplus
}
#endif

#endif
