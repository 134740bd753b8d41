/**
 * @file triangle.h
 * @brief Triangle waves: magnitude, relative frequency, phase and asymmetry.
 *
 * With h the asymmetry in radians, a = pi + h and b = pi - h, the wave falls over the phases 0 to a from
 * `magn` to -`magn` and rises over the phases a to 2 pi back to `magn`:
 *
 *     T(p) = magn (1 - 2p/a)         for p below a,
 *     T(p) = magn (2(p - a)/b - 1)   from a on.
 *
 * Sample n is T(2 pi rFreq n + phase). A complex wave carries in `im` the same wave (2 pi + a)/2 ahead:
 * without asymmetry three quarters of a period, so that `re` and `im` stand to each other as cosine and sine
 * do.
 *
 * The three forms are those of tones (tone.h): `Triangle_Direct` with the phase in a variable,
 * `TriangleQ15_16s` with a state, `TriangleQ15_Direct_16s` for one block. A parameter that is a NaN is
 * outside its range.
 */
#ifndef ORBS90LGC_TRIANGLE_H
#define ORBS90LGC_TRIANGLE_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @name Triangles with the phase in a variable
 *
 * Writes `len` samples to `dst` and moves *phase on by as many, as the tones of tone.h do: what is stored is
 * always a phase that the next call takes. Samples are computed in binary64 or wider and rounded to their
 * type; the 16-bit forms cut them toward zero.
 *
 * In `px` a sample follows from the one before by a slope and a reflection at the peaks; the other variants
 * compute each from its phase.
 *
 * Checks, in this order:
 *  - ::StatusNullPointer: `phase` is null;
 *  - ::StatusTriangleMagnitude: `magn` is not above 0;
 *  - ::StatusTriangleFrequency: `rFreq` is below 0 or not below 0.5, in the complex forms too;
 *  - ::StatusTriangleAsymmetry: `asym` is below -pi or not below pi (in binary32: the number nearest to -pi
 *    lies below it);
 *  - ::StatusTrianglePhase: *phase is below 0 or not below 2 pi;
 *  - ::StatusNullPointer: `dst` is null;
 *  - ::StatusSize: `len` is below 1;
 *  - ::StatusOk.
 *
 * On a failed check *phase keeps its value.
 * @{
 */

/** Real, binary32. */
OrbStatus legacy90orbsTriangle_Direct_32f(Orb32f* dst, Orb32s len, Orb32f magn, Orb32f rFreq, Orb32f asym,
                                          Orb32f* phase);

/** Real, binary64. */
OrbStatus legacy90orbsTriangle_Direct_64f(Orb64f* dst, Orb32s len, Orb64f magn, Orb64f rFreq, Orb64f asym,
                                          Orb64f* phase);

/** Complex, binary32. */
OrbStatus legacy90orbsTriangle_Direct_32fc(Orb32fc* dst, Orb32s len, Orb32f magn, Orb32f rFreq, Orb32f asym,
                                           Orb32f* phase);

/** Complex, binary64. */
OrbStatus legacy90orbsTriangle_Direct_64fc(Orb64fc* dst, Orb32s len, Orb64f magn, Orb64f rFreq, Orb64f asym,
                                           Orb64f* phase);

/** Real, 16-bit integers, cut toward zero. */
OrbStatus legacy90orbsTriangle_Direct_16s(Orb16s* dst, Orb32s len, Orb16s magn, Orb32f rFreq, Orb32f asym,
                                          Orb32f* phase);

/** Complex, 16-bit integers, cut toward zero. */
OrbStatus legacy90orbsTriangle_Direct_16sc(Orb16sc* dst, Orb32s len, Orb16s magn, Orb32f rFreq, Orb32f asym,
                                           Orb32f* phase);

/** @} */

/**
 * One block from Q15 parameters, each the number times 2^-15: the samples of
 * legacy90orbsTriangle_Direct_16s(), cut toward zero.
 *
 *  - ::StatusNullPointer: `dst` is null;
 *  - ::StatusSize: `len` is below 1;
 *  - ::StatusTriangleMagnitude: `magn` is not above 0;
 *  - ::StatusTriangleFrequency: `rFreqQ15` is outside 0 to 16383;
 *  - ::StatusTrianglePhase: `phaseQ15` is outside 0 to 205886, the last one below 2 pi;
 *  - ::StatusTriangleAsymmetry: `asymQ15` is outside -102943 to 102943, the last ones within pi;
 *  - ::StatusOk.
 */
OrbStatus legacy90orbsTriangleQ15_Direct_16s(Orb16s* dst, Orb32s len, Orb16s magn, Orb16s rFreqQ15,
                                             Orb32s phaseQ15, Orb32s asymQ15);

/** @name Triangles with a state
 * @{
 */

/** The bytes of a state, 136. ::StatusNullPointer: `size` is null; ::StatusOk. */
OrbStatus legacy90orbsTriangleGetStateSizeQ15_16s(Orb32s* size);

/**
 * Makes a state in 136 bytes of the caller's, exactly where `state` points; no alignment is asked for.
 * Parameters as legacy90orbsTriangleQ15_Direct_16s() takes them.
 *
 *  - ::StatusNullPointer: `state` is null;
 *  - ::StatusTriangleMagnitude, ::StatusTriangleFrequency, ::StatusTrianglePhase, ::StatusTriangleAsymmetry,
 *    in this order;
 *  - ::StatusOk.
 */
OrbStatus legacy90orbsTriangleInitQ15_16s(TriangleState* state, Orb16s magn, Orb16s rFreqQ15, Orb32s phaseQ15,
                                          Orb32s asymQ15);

/**
 * Makes a state in memory of the library's, which legacy90orbsTriangleFree() releases. *stateOut is written
 * on success alone. Statuses as legacy90orbsTriangleInitQ15_16s(), then:
 *
 *  - ::StatusMemAlloc: no memory.
 */
OrbStatus legacy90orbsTriangleInitAllocQ15_16s(TriangleState** stateOut, Orb16s magn, Orb16s rFreqQ15,
                                               Orb32s phaseQ15, Orb32s asymQ15);

/**
 * The next `len` samples of the state's wave, rounded to nearest, ties away from zero.
 *
 *  - ::StatusNullPointer: `dst` or `state` is null;
 *  - ::StatusSize: `len` is below 1;
 *  - ::StatusContextMismatch: `state` is no triangle state;
 *  - ::StatusOk.
 */
OrbStatus legacy90orbsTriangleQ15_16s(Orb16s* dst, Orb32s len, TriangleState* state);

/**
 * Releases a state of legacy90orbsTriangleInitAllocQ15_16s(). A state in memory of the caller's stays usable.
 *
 *  - ::StatusNullPointer: `state` is null;
 *  - ::StatusContextMismatch: `state` is no triangle state;
 *  - ::StatusOk.
 */
OrbStatus legacy90orbsTriangleFree(TriangleState* state);

/** @} */

#ifdef __cplusplus
}
#endif

#endif
