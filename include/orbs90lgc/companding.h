/**
 * @file companding.h
 * @brief A-law and mu-law companding after ITU-T Recommendation G.711.
 *
 * Conversions between linear samples (16-bit integers, or binary32 where full scale is 1.0) and the 8-bit
 * logarithmic codes, in their wire form: A-law codes with the even bits inverted, mu-law codes complemented.
 *
 * All ten functions take a source array, a result array and the number of elements `len`, work in ascending
 * order, and check in this order:
 *  - ::StatusNullPointer: `src` or `dst` is null;
 *  - ::StatusSize: `len` is below 1;
 *  - ::StatusOk.
 *
 * Source and result may be the same array where their element sizes agree; otherwise they must not overlap.
 * All variants give the same bytes.
 */
#ifndef ORBS90LGC_COMPANDING_H
#define ORBS90LGC_COMPANDING_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * A-law to 16-bit linear: with c = code XOR 0x55, m = c AND 15, e = (c >> 4) AND 7, the magnitude is
 * 16m + 8 for e = 0 and (16m + 264) * 2^(e-1) otherwise; positive if bit 7 of c is set.
 * Range -32256 to 32256; no code gives 0.
 */
OrbStatus legacy90orbsALawToLin_8u16s(const Orb8u* src, Orb16s* dst, Orb32s len);

/** A-law to binary32: the 16-bit value of legacy90orbsALawToLin_8u16s() times 2^-15, exactly. */
OrbStatus legacy90orbsALawToLin_8u32f(const Orb8u* src, Orb32f* dst, Orb32s len);

/**
 * Mu-law to 16-bit linear: with c = NOT code, the magnitude is
 * (8 (c AND 15) + 132) * 2^((c >> 4) AND 7) - 132; negative if bit 7 of c is set.
 * Range -32124 to 32124; codes 0x7F and 0xFF both give 0.
 */
OrbStatus legacy90orbsMuLawToLin_8u16s(const Orb8u* src, Orb16s* dst, Orb32s len);

/** Mu-law to binary32: the 16-bit value of legacy90orbsMuLawToLin_8u16s() times 2^-15, exactly. */
OrbStatus legacy90orbsMuLawToLin_8u32f(const Orb8u* src, Orb32f* dst, Orb32s len);

/**
 * A-law code to mu-law code by the conversion table of G.711, which is not the composition of decoding and
 * encoding: the two differ in 32 codes.
 */
OrbStatus legacy90orbsALawToMuLaw_8u(const Orb8u* src, Orb8u* dst, Orb32s len);

/**
 * Mu-law code to A-law code by the conversion table of G.711, which is not the composition of decoding and
 * encoding: the two differ in 44 codes.
 */
OrbStatus legacy90orbsMuLawToALaw_8u(const Orb8u* src, Orb8u* dst, Orb32s len);

/** 16-bit linear to A-law. 0 gives 0xD5, -1 gives 0x55, 32767 gives 0xAA, -32768 gives 0x2A. */
OrbStatus legacy90orbsLinToALaw_16s8u(const Orb16s* src, Orb8u* dst, Orb32s len);

/**
 * Binary32 to A-law: the source times 32768 is limited to -32768 and 32767 and rounded to the nearest
 * integer, ties away from zero, then encoded as by legacy90orbsLinToALaw_16s8u(). The sign is that of the
 * rounded integer. NaN encodes as -32768.
 */
OrbStatus legacy90orbsLinToALaw_32f8u(const Orb32f* src, Orb8u* dst, Orb32s len);

/** 16-bit linear to mu-law. 0 gives 0xFF, -1 gives 0x7F, 32767 gives 0x80, -32768 gives 0x00. */
OrbStatus legacy90orbsLinToMuLaw_16s8u(const Orb16s* src, Orb8u* dst, Orb32s len);

/**
 * Binary32 to mu-law: rounded as by legacy90orbsLinToALaw_32f8u() and encoded as by
 * legacy90orbsLinToMuLaw_16s8u(), but the sign is that of the source: a negative value that rounds to 0 gives
 * 0x7F. -0.0 counts as positive; NaN has the magnitude of -32768 and counts as positive.
 */
OrbStatus legacy90orbsLinToMuLaw_32f8u(const Orb32f* src, Orb8u* dst, Orb32s len);

#ifdef __cplusplus
}
#endif

#endif
