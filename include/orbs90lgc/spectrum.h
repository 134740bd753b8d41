/**
 * @file spectrum.h
 * @brief Arithmetic on 16-bit integer spectra of real signals: spreading to the full spectrum, products.
 *
 * The spectrum X of a real signal of N points is conjugate symmetric, X[N-k] being the conjugate of X[k], so
 * that three layouts store k = 0 to N/2 only. With X[k] = Rk + i Ik, as plain arrays of real elements:
 *
 * | Layout | N even | N odd |
 * |--------|--------|-------|
 * | CCS    | R0, I0, R1, I1, ... R(N/2), I(N/2): N+2 elements | R0, I0, ... R((N-1)/2), I((N-1)/2): N+1 |
 * | Pack   | R0, R1, I1, ... R(N/2-1), I(N/2-1), R(N/2): N    | R0, R1, I1, ... R((N-1)/2), I((N-1)/2): N |
 * | Perm   | R0, R(N/2), R1, I1, ... R(N/2-1), I(N/2-1): N    | as Pack |
 *
 * I0 and, for even N, I(N/2) are 0 in the spectrum of a real signal. Pack and Perm leave them out.
 *
 * In all ten functions `len` is N, the number of points of the signal, odd or even, and not the length of an
 * array. They check in this order:
 *  - ::StatusNullPointer: one of the pointers is null;
 *  - ::StatusSize: `len` is below 1;
 *  - ::StatusOk.
 *
 * All variants give the same results.
 */
#ifndef ORBS90LGC_SPECTRUM_H
#define ORBS90LGC_SPECTRUM_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @name Spreading
 *
 * dst[k] = X[k] for k = 0 to N/2, and dst[N-k] = the conjugate of X[k] for 0 < k < N/2. The negation of the
 * imaginary part saturates: -(-32768) gives 32767.
 *
 * The result is an array of `len` complex numbers. In place, too, the array must have that size; the packed
 * spectrum stands at its start. Source and result are the same array or do not overlap.
 * @{
 */

/**
 * From CCS, given as len/2+1 complex numbers. I0 and I(N/2) are copied as they are, not made 0.
 */
OrbStatus legacy90orbsConjCcs_16sc(const Orb16sc* src, Orb16sc* dst, Orb32s len);

/** legacy90orbsConjCcs_16sc() in place: the lower half stays, the upper half is filled. */
OrbStatus legacy90orbsConjCcs_16sc_I(Orb16sc* srcDst, Orb32s len);

/** From Pack: `len` real elements. The imaginary parts of dst[0] and dst[N/2] become 0. */
OrbStatus legacy90orbsConjPack_16sc(const Orb16s* src, Orb16sc* dst, Orb32s len);

/** legacy90orbsConjPack_16sc() in place; `srcDst` begins with the `len` real elements. */
OrbStatus legacy90orbsConjPack_16sc_I(Orb16sc* srcDst, Orb32s len);

/** From Perm: `len` real elements. The imaginary parts of dst[0] and dst[N/2] become 0. */
OrbStatus legacy90orbsConjPerm_16sc(const Orb16s* src, Orb16sc* dst, Orb32s len);

/** legacy90orbsConjPerm_16sc() in place; `srcDst` begins with the `len` real elements. */
OrbStatus legacy90orbsConjPerm_16sc_I(Orb16sc* srcDst, Orb32s len);

/** @} */

/**
 * @name Products
 *
 * The product of two spectra element by element, which is the cyclic convolution of their signals. All arrays
 * have `len` elements in the layout of the function's name. R0 and, for even N, R(N/2) are multiplied as real
 * numbers, the pairs (ar, ai) of the first and (br, bi) of the second spectrum as complex numbers:
 *
 *     re = ar * br - ai * bi
 *     im = ar * bi + ai * br
 *
 * all in 32 bits. Where ar * bi is 2^30, both being -32768, the product ai * br is left out of im.
 *
 * Each result x is delivered as x * 2^-scaleFactor and saturated to 16 bits:
 *  - `scaleFactor` above 0: x >> scaleFactor, rounded toward minus infinity;
 *  - `scaleFactor` below 0: x << -scaleFactor, saturated.
 *
 * Any `scaleFactor` is legal. The number of places is taken modulo 32: 33 shifts as 1 does, 32 not at all.
 *
 * The result may be the same array as either source, or else must not overlap them.
 * @{
 */

/** dst = src1 * src2, in Pack. */
OrbStatus legacy90orbsMulPack_16s_Sfs(const Orb16s* src1, const Orb16s* src2, Orb16s* dst, Orb32s len,
                                      Orb32s scaleFactor);

/** srcDst = src * srcDst, in Pack; `src` is the first factor. */
OrbStatus legacy90orbsMulPack_16s_ISfs(const Orb16s* src, Orb16s* srcDst, Orb32s len, Orb32s scaleFactor);

/** dst = src1 * src2, in Perm. */
OrbStatus legacy90orbsMulPerm_16s_Sfs(const Orb16s* src1, const Orb16s* src2, Orb16s* dst, Orb32s len,
                                      Orb32s scaleFactor);

/** srcDst = src * srcDst, in Perm; `src` is the first factor. */
OrbStatus legacy90orbsMulPerm_16s_ISfs(const Orb16s* src, Orb16s* srcDst, Orb32s len, Orb32s scaleFactor);

/** @} */

#ifdef __cplusplus
}
#endif

#endif
