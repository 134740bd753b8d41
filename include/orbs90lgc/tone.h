/**
 * @file tone.h
 * @brief Tones: magn cos(2 pi rFreq n + phase), n = 0, 1, 2, ...
 *
 * `rFreq` is the frequency relative to the sampling rate, `phase` an angle in radians, `magn` the magnitude.
 * A complex tone carries the cosine in `re` and the sine of the same angle in `im`. Three forms:
 *
 *  - `Tone_Direct`: the caller keeps the phase in a variable that each call moves on, so that call follows
 *    upon call without a break;
 *  - `ToneQ15_16s`: a state, made from Q15 parameters, keeps the position;
 *  - `ToneQ15_Direct_16s`: one block from Q15 parameters.
 *
 * A parameter that is a NaN is outside its range.
 */
#ifndef ORBS90LGC_TONE_H
#define ORBS90LGC_TONE_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @name Tones with the phase in a variable
 *
 * Writes `len` samples to `dst`; sample n is that of angle 2 pi rFreq n + *phase. Then *phase becomes the
 * angle of sample `len`, in the range 0 up to, not including, 2 pi. It is stored with the precision of the
 * variable; where rounding carries it to 2 pi, it is 0. So it is always one that the next call takes.
 *
 * The samples follow from a few exact ones by Chebyshev's recurrence, y[n] = 2 cos(w) y[n-1] - y[n-2] with
 * w = 2 pi rFreq, or the same over more samples at a time, in binary64 or wider. The 16-bit forms cut each
 * sample toward zero.
 *
 * `hint` ::HintFast lets the variants other than `px` run the recurrence of the 32f, 32fc, 16s and 16sc forms
 * in binary32: a sample is then within 2e-5 `magn` of the exact one, however long the block. With any other
 * hint the error is below 1e-12 `magn`, or in the binary64 forms below 4e-19 `len` `magn` where that is more,
 * before the sample is rounded to its type. In `px`, which does not read the hint, the error of the
 * recurrence grows with `len`, from 1e-18 `magn`.
 *
 * Checks, in this order:
 *  - ::StatusNullPointer: `phase` is null;
 *  - ::StatusToneMagnitude: `magn` is not above 0;
 *  - ::StatusToneFrequency: `rFreq` is below 0, or not below 0.5 (complex forms: 1);
 *  - ::StatusTonePhase: *phase is below 0 or not below 2 pi;
 *  - ::StatusNullPointer: `dst` is null;
 *  - ::StatusSize: `len` is below 1;
 *  - ::StatusOk.
 *
 * On a failed check *phase keeps its value.
 * @{
 */

/** Real, binary32. */
OrbStatus legacy90orbsTone_Direct_32f(Orb32f* dst, Orb32s len, Orb32f magn, Orb32f rFreq, Orb32f* phase,
                                      OrbAlgHint hint);

/** Real, binary64; computed in binary64 whatever the hint. */
OrbStatus legacy90orbsTone_Direct_64f(Orb64f* dst, Orb32s len, Orb64f magn, Orb64f rFreq, Orb64f* phase,
                                      OrbAlgHint hint);

/** Complex, binary32. */
OrbStatus legacy90orbsTone_Direct_32fc(Orb32fc* dst, Orb32s len, Orb32f magn, Orb32f rFreq, Orb32f* phase,
                                       OrbAlgHint hint);

/** Complex, binary64; computed in binary64 whatever the hint. */
OrbStatus legacy90orbsTone_Direct_64fc(Orb64fc* dst, Orb32s len, Orb64f magn, Orb64f rFreq, Orb64f* phase,
                                       OrbAlgHint hint);

/** Real, 16-bit integers, cut toward zero. */
OrbStatus legacy90orbsTone_Direct_16s(Orb16s* dst, Orb32s len, Orb16s magn, Orb32f rFreq, Orb32f* phase,
                                      OrbAlgHint hint);

/** Complex, 16-bit integers, cut toward zero. */
OrbStatus legacy90orbsTone_Direct_16sc(Orb16sc* dst, Orb32s len, Orb16s magn, Orb32f rFreq, Orb32f* phase,
                                       OrbAlgHint hint);

/** @} */

/**
 * One block of a tone from Q15 parameters: rFreq = `rFreqQ15` 2^-15, phase = `phaseQ15` 2^-15 radians. Each
 * sample is computed by itself and rounded to nearest, ties away from zero.
 *
 *  - ::StatusNullPointer: `dst` is null;
 *  - ::StatusSize: `len` is below 1;
 *  - ::StatusToneMagnitude: `magn` is not above 0;
 *  - ::StatusToneFrequency: `rFreqQ15` is outside 0 to 16383;
 *  - ::StatusTonePhase: `phaseQ15` is outside 0 to 205886, the last one below 2 pi;
 *  - ::StatusOk.
 */
OrbStatus legacy90orbsToneQ15_Direct_16s(Orb16s* dst, Orb32s len, Orb16s magn, Orb16s rFreqQ15,
                                         Orb32s phaseQ15);

/** @name Tones with a state
 * @{
 */

/** The bytes of a state, 48. ::StatusNullPointer: `size` is null; ::StatusOk. */
OrbStatus legacy90orbsToneGetStateSizeQ15_16s(Orb32s* size);

/**
 * Makes a state in 48 bytes of the caller's, exactly where `state` points; no alignment is asked for.
 * Parameters as legacy90orbsToneQ15_Direct_16s() takes them.
 *
 *  - ::StatusNullPointer: `state` is null;
 *  - ::StatusToneMagnitude, ::StatusToneFrequency, ::StatusTonePhase, in this order;
 *  - ::StatusOk.
 */
OrbStatus legacy90orbsToneInitQ15_16s(ToneState* state, Orb16s magn, Orb16s rFreqQ15, Orb32s phaseQ15);

/**
 * Makes a state in memory of the library's, which legacy90orbsToneFree() releases. *stateOut is written on
 * success alone. Statuses as legacy90orbsToneInitQ15_16s(), then:
 *
 *  - ::StatusMemAlloc: no memory.
 */
OrbStatus legacy90orbsToneInitAllocQ15_16s(ToneState** stateOut, Orb16s magn, Orb16s rFreqQ15,
                                           Orb32s phaseQ15);

/**
 * The next `len` samples of the state's tone, as legacy90orbsToneQ15_Direct_16s() would give them in one
 * block from the first call on. The tone goes on for ever: after 2^31 samples, which are a whole number of
 * periods for every Q15 frequency, the position starts again from 0.
 *
 *  - ::StatusNullPointer: `dst` or `state` is null;
 *  - ::StatusSize: `len` is below 1;
 *  - ::StatusContextMismatch: `state` is no tone state;
 *  - ::StatusOk.
 */
OrbStatus legacy90orbsToneQ15_16s(Orb16s* dst, Orb32s len, ToneState* state);

/**
 * Releases a state of legacy90orbsToneInitAllocQ15_16s(). A state in memory of the caller's stays usable.
 *
 *  - ::StatusNullPointer: `state` is null;
 *  - ::StatusContextMismatch: `state` is no tone state;
 *  - ::StatusOk.
 */
OrbStatus legacy90orbsToneFree(ToneState* state);

/** @} */

#ifdef __cplusplus
}
#endif

#endif
