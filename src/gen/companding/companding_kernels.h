// The ten companding loops: in px by table and by search, elsewhere by arithmetic on vectors.
//
// Both laws are floating-point formats with three exponent and four mantissa bits, and the vector kernels
// treat them so: a code's seven bits, moved to the exponent and mantissa of a binary32, are its value; and
// the top bits of a value converted to binary32 are its code.
#ifndef ORBS_GEN_COMPANDING_COMPANDING_KERNELS_H
#define ORBS_GEN_COMPANDING_COMPANDING_KERNELS_H

#include "core/variant.h"

#if ORBS_VECTOR
#include "gen/companding/companding_vector.h"
#else

#include "core/scaling.h"
#include "gen/companding/companding_tables.h"

namespace orbs::ORBS_VARIANT::gen {

inline constexpr Orb32f kLinearScale = 1.0f / 32768;  // 16-bit full scale to 1.0

inline void DecodeALaw(const Orb8u* src, Orb16s* dst, Orb32s len) {
  for (Orb32s i = 0; i < len; ++i) dst[i] = ALawDecodeTable[src[i]];
}

inline void DecodeALaw(const Orb8u* src, Orb32f* dst, Orb32s len) {
  for (Orb32s i = 0; i < len; ++i) dst[i] = static_cast<Orb32f>(ALawDecodeTable[src[i]]) * kLinearScale;
}

inline void DecodeMuLaw(const Orb8u* src, Orb16s* dst, Orb32s len) {
  for (Orb32s i = 0; i < len; ++i) dst[i] = MuLawDecodeTable[src[i]];
}

inline void DecodeMuLaw(const Orb8u* src, Orb32f* dst, Orb32s len) {
  for (Orb32s i = 0; i < len; ++i) dst[i] = static_cast<Orb32f>(MuLawDecodeTable[src[i]]) * kLinearScale;
}

inline void ConvertALawToMuLaw(const Orb8u* src, Orb8u* dst, Orb32s len) {
  for (Orb32s i = 0; i < len; ++i) dst[i] = ALawToMuLawTable[src[i]];
}

inline void ConvertMuLawToALaw(const Orb8u* src, Orb8u* dst, Orb32s len) {
  for (Orb32s i = 0; i < len; ++i) dst[i] = MuLawToALawTable[src[i]];
}

inline Orb8u ALawCode(Orb16s x) {
  const int v = x >> 3;
  const int w = v < 0 ? ~v : v;
  const int mask = v < 0 ? 0x55 : 0xD5;
  int segment = 0;
  while (w > ALawSegmentEnds[segment] >> 3) ++segment;
  const int mantissa = w >> (segment < 2 ? 1 : segment) & 15;
  return static_cast<Orb8u>((16 * segment + mantissa) ^ mask);
}

inline Orb8u MuLawCode(Orb16s x, bool negative) {
  const int a = x < 0 ? ~x : x;
  const int biased = (a >> 2) + 33;
  const int b = biased > 8191 ? 8191 : biased;
  int n = 1;
  while (b >> (n + 5) != 0) ++n;
  const int c = 16 * (8 - n) + 15 - (b >> n & 15);
  return static_cast<Orb8u>(negative ? c : c | 0x80);
}

inline void EncodeALaw(const Orb16s* src, Orb8u* dst, Orb32s len) {
  for (Orb32s i = 0; i < len; ++i) dst[i] = ALawCode(src[i]);
}

inline void EncodeALaw(const Orb32f* src, Orb8u* dst, Orb32s len) {
  for (Orb32s i = 0; i < len; ++i) dst[i] = ALawCode(FloatHalfAway<Orb16s>(Wide<Orb32f>(src[i]) * 32768));
}

inline void EncodeMuLaw(const Orb16s* src, Orb8u* dst, Orb32s len) {
  for (Orb32s i = 0; i < len; ++i) dst[i] = MuLawCode(src[i], src[i] < 0);
}

inline void EncodeMuLaw(const Orb32f* src, Orb8u* dst, Orb32s len) {
  for (Orb32s i = 0; i < len; ++i) {
    dst[i] = MuLawCode(FloatHalfAway<Orb16s>(Wide<Orb32f>(src[i]) * 32768), src[i] < 0);
  }
}

}  // namespace orbs::ORBS_VARIANT::gen

#endif
#endif
