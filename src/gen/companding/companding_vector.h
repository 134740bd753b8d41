// Companding on vectors; see companding_kernels.h for the idea.
#ifndef ORBS_GEN_COMPANDING_COMPANDING_VECTOR_H
#define ORBS_GEN_COMPANDING_COMPANDING_VECTOR_H

#include "simd/blocks.h"
#include "simd/simd.h"

namespace orbs::ORBS_VARIANT::gen {

inline constexpr Orb32f kLinearScale = 1.0f / 32768;  // 16-bit full scale to 1.0

// ---- Decoding ----

inline constexpr int kMantissaShift = 19;  // from the lowest mantissa bit of a code to its place in binary32

#ifdef __SSSE3__

// With a byte shuffle, sign and exponent of a code, its upper four bits, look up what they contribute, and
// the rest is arithmetic on bytes: half the instructions of the route through 32-bit lanes, or less.

// A table by sign and exponent: magnitude(e) for positive codes, then `negate` of it for negative ones.
struct SegmentTable {
  Orb8u entries[16];

  template <class Magnitude, class Negate>
  constexpr SegmentTable(Magnitude magnitude, Negate negate) : entries() {
    for (int e = 0; e < 8; ++e) {
      entries[e] = static_cast<Orb8u>(magnitude(e));
      entries[e + 8] = static_cast<Orb8u>(negate(magnitude(e)));
    }
  }
};

constexpr int Unchanged(int x) { return x; }
constexpr int Negated(int x) { return -x; }
constexpr int WithSignBit(int x) { return x | 0x80; }

// ---- To 16 bits: two products of bytes a sample ----

// A-law: +-(16m + 8) in the first segment, +-(16m + 264) 2^(e-1) above it. The second product is what does
// not depend on m, split so that one factor fits 8 bits unsigned and the other 8 bits signed.
ORBS_INLINE void ALawSamples(U8 code, I16* low, I16* high) {
  static constexpr SegmentTable kPower{[](int e) { return e == 0 ? 1 : 1 << (e - 1); }, Negated};
  static constexpr SegmentTable kOffset{[](int e) { return e == 0  ? 8
                                                           : e < 4 ? 24 << (e - 1)
                                                                   : 192; },
                                        Unchanged};
  static constexpr SegmentTable kOffsetFactor{[](int e) { return e == 0  ? 1
                                                                 : e < 4 ? 11
                                                                         : 11 << (e - 4); },
                                              Negated};
  const U8 c = OrderForMulAddBytes(code) ^ U8::All(0xD5);
  const U8 segment = HighNibbles(c);
  MulAddBytes(ShiftLeftAndMask<4>(c), LookUp(kPower.entries, segment), LookUp(kOffset.entries, segment),
              LookUp(kOffsetFactor.entries, segment), low, high);
}

// Mu-law: +-((8m + 132) 2^e - 132), as 2^e times +-8m and 132 times +-(2^e - 1).
ORBS_INLINE void MuLawSamples(U8 code, I16* low, I16* high) {
  static constexpr SegmentTable kPower{[](int e) { return 1 << e; }, Unchanged};
  static constexpr SegmentTable kBiasFactor{[](int e) { return (1 << e) - 1; }, Negated};
  const U8 c = OrderForMulAddBytes(code) ^ U8::All(0xFF);
  const U8 segment = HighNibbles(c);
  // A code of 0, whose sign ApplySign would take for none, has no mantissa either.
  const U8 mantissa = ApplySign(ShiftLeftAndMask<3>(c & U8::All(15)), c);
  MulAddBytes(LookUp(kPower.entries, segment), mantissa, U8::All(132), LookUp(kBiasFactor.entries, segment),
              low, high);
}

template <class Samples>
ORBS_INLINE void DecodeToInt(const Orb8u* src, Orb16s* dst, Orb32s len, Samples samples) {
  ForBlocks<U8::kLanes>(
      static_cast<size_t>(len),
      [samples](Orb16s* d, const Orb8u* s) {
        I16 low;
        I16 high;
        samples(U8::Load(s), &low, &high);
        low.Store(d);
        high.Store(d + I16::kLanes);
      },
      dst, src);
}

inline void DecodeALaw(const Orb8u* src, Orb16s* dst, Orb32s len) {
  DecodeToInt(src, dst, len, [](U8 code, I16* low, I16* high) { ALawSamples(code, low, high); });
}

inline void DecodeMuLaw(const Orb8u* src, Orb16s* dst, Orb32s len) {
  DecodeToInt(src, dst, len, [](U8 code, I16* low, I16* high) { MuLawSamples(code, low, high); });
}

// ---- To binary32: the two upper bytes of each number, the lower two are 0 ----

// Above the first segment both laws are (1 + m/16 + 1/32) 2^(e-8), mu-law less a bias. The exponent field is
// 119 + e; its lowest bit, the complement of that of e, stands above the mantissa in the second byte.
ORBS_INLINE U8 HighestByte(U8 c) {
  static constexpr SegmentTable kHighest{[](int e) { return (119 + e) >> 1; }, WithSignBit};
  return LookUp(kHighest.entries, HighNibbles(c));
}
ORBS_INLINE U8 SecondByte(U8 c) { return ShiftLeftAndMask<3>(c) ^ U8::All(0x84); }

// The first segment of A-law, (2m + 1) 2^-12, differs from the above by these bits.
struct FirstSegmentTables {
  Orb8u highest[16];
  Orb8u second[16];

  constexpr FirstSegmentTables() : highest(), second() {
    for (int m = 0; m < 16; ++m) {
      const int n = 2 * m + 1;
      int log2 = 0;
      while (n >> (log2 + 1) != 0) ++log2;
      const int bits = (127 - 12 + log2) << 7 | (n << (7 - log2) & 0x7F);
      highest[m] = static_cast<Orb8u>(bits >> 8 ^ 119 >> 1);
      second[m] = static_cast<Orb8u>(bits ^ m << 3 ^ 0x84);
    }
  }
};

ORBS_INLINE auto ALawFloats(U8 code) {
  static constexpr FirstSegmentTables kFirstSegment;
  const U8 c = OrderForTopBytes(code) ^ U8::All(0xD5);
  // Beyond the first segment the index has its top bit set, for which a look-up gives 0.
  const U8 index = (c & U8::All(0x7F)) + U8::All(0x70);
  return FloatsFromTopBytes(HighestByte(c) ^ LookUp(kFirstSegment.highest, index),
                            SecondByte(c) ^ LookUp(kFirstSegment.second, index));
}

// The bias is subtracted with the sign already on, so that code 0x7F becomes +0.
template <class Vector>
ORBS_INLINE Vector WithoutBias(Vector x) {
  return x - ((x & Vector::All(-0.0f)) | Vector::All(132 * kLinearScale));
}

ORBS_INLINE auto MuLawFloats(U8 code) {
  const U8 c = OrderForTopBytes(code) ^ U8::All(0xFF);
  const auto biased = FloatsFromTopBytes(HighestByte(c), SecondByte(c));
  return decltype(biased){{WithoutBias(biased.quarter[0]), WithoutBias(biased.quarter[1]),
                           WithoutBias(biased.quarter[2]), WithoutBias(biased.quarter[3])}};
}

template <class Floats>
ORBS_INLINE void DecodeToFloat(const Orb8u* src, Orb32f* dst, Orb32s len, Floats floats) {
  ForBlocks<U8::kLanes>(
      static_cast<size_t>(len),
      [floats](Orb32f* d, const Orb8u* s) {
        const auto x = floats(U8::Load(s));
        constexpr int kQuarter = U8::kLanes / 4;
        x.quarter[0].Store(d);
        x.quarter[1].Store(d + kQuarter);
        x.quarter[2].Store(d + 2 * kQuarter);
        x.quarter[3].Store(d + 3 * kQuarter);
      },
      dst, src);
}

inline void DecodeALaw(const Orb8u* src, Orb32f* dst, Orb32s len) {
  DecodeToFloat(src, dst, len, [](U8 code) { return ALawFloats(code); });
}

inline void DecodeMuLaw(const Orb8u* src, Orb32f* dst, Orb32s len) {
  DecodeToFloat(src, dst, len, [](U8 code) { return MuLawFloats(code); });
}

#else

// A code's seven bits as exponent and mantissa, with the half step that puts the value in the middle of its
// interval. 2^7 times (1 + m/16 + 1/32) is 8m + 132, so an exponent field of 127 + 7 makes the mu-law value
// in its own units.
inline constexpr Orb32s kCodeBase = ((127 + 7) << 23) + (1 << 18);

ORBS_INLINE F32 MuLawValue(I32 code) {
  const I32 c = code ^ I32::All(0xFF);
  const I32 sign = ShiftLeft(c & I32::All(0x80), 24);
  const F32 biased = AsFloat((ShiftLeft(c & I32::All(0x7F), kMantissaShift) + I32::All(kCodeBase)) | sign);
  // The bias is subtracted with the sign already on, so that code 0x7F becomes +0.
  return biased - AsFloat(AsInt(F32::All(132)) | sign);
}

// In A-law the first segment has no leading one: its codes take the exponent of the second, less 256.
ORBS_INLINE F32 ALawValue(I32 code) {
  const I32 c = code ^ I32::All(0xD5);
  const I32 sign = ShiftLeft(c & I32::All(0x80), 24);
  const I32 firstSegment = Equal(c & I32::All(0x70), I32::Zero());
  const I32 bits = ShiftLeft(c & I32::All(0x7F), kMantissaShift) + I32::All(kCodeBase) +
                   (firstSegment & I32::All(1 << 23));
  const F32 magnitude = AsFloat(bits) - AsFloat(firstSegment & AsInt(F32::All(256)));
  return magnitude ^ AsFloat(sign);
}

template <class Value>
ORBS_INLINE void DecodeToFloat(const Orb8u* src, Orb32f* dst, Orb32s len, Value value) {
  ForBlocks<F32::kLanes>(
      static_cast<size_t>(len),
      [value](Orb32f* d, const Orb8u* s) {
        I32 code;
        LoadWiden(s, &code);
        (value(code) * F32::All(kLinearScale)).Store(d);
      },
      dst, src);
}

inline void DecodeALaw(const Orb8u* src, Orb32f* dst, Orb32s len) {
  DecodeToFloat(src, dst, len, [](I32 code) { return ALawValue(code); });
}

inline void DecodeMuLaw(const Orb8u* src, Orb32f* dst, Orb32s len) {
  DecodeToFloat(src, dst, len, [](I32 code) { return MuLawValue(code); });
}

template <class Value>
ORBS_INLINE void DecodeToInt(const Orb8u* src, Orb16s* dst, Orb32s len, Value value) {
  ForBlocks<2 * I32::kLanes>(
      static_cast<size_t>(len),
      [value](Orb16s* d, const Orb8u* s) {
        I32 low;
        I32 high;
        LoadWiden(s, &low);
        LoadWiden(s + I32::kLanes, &high);
        StorePacked(d, TruncateToInt(value(low)), TruncateToInt(value(high)));
      },
      dst, src);
}

inline void DecodeALaw(const Orb8u* src, Orb16s* dst, Orb32s len) {
  DecodeToInt(src, dst, len, [](I32 code) { return ALawValue(code); });
}

inline void DecodeMuLaw(const Orb8u* src, Orb16s* dst, Orb32s len) {
  DecodeToInt(src, dst, len, [](I32 code) { return MuLawValue(code); });
}

#endif

// ---- Code to code ----

// The interval numbers of the two laws differ by at most 8, and the difference is a staircase: it falls by
// one at eight intervals of each law. Where both laws' segments halve, the steps come in pairs or runs.
template <int... kIntervals>
ORBS_INLINE U8 CountAtOrAbove(U8 interval) {
  // A comparison's mask is -1, so the sum counts downward.
  return (Greater(interval, U8::All(kIntervals - 1)) + ...);
}

inline void ConvertALawToMuLaw(const Orb8u* src, Orb8u* dst, Orb32s len) {
  ForBlocks<U8::kLanes>(
      static_cast<size_t>(len),
      [](Orb8u* d, const Orb8u* s) {
        const U8 code = U8::Load(s);
        const U8 interval = (code ^ U8::All(0x55)) & U8::All(0x7F);
        const U8 lead =
            Min(interval + U8::All(1), U8::All(8)) + CountAtOrAbove<25, 27, 29, 31, 45, 47, 63, 80>(interval);
        ((code & U8::All(0x80)) | (U8::All(0x7F) ^ (interval + lead))).Store(d);
      },
      dst, src);
}

inline void ConvertMuLawToALaw(const Orb8u* src, Orb8u* dst, Orb32s len) {
  ForBlocks<U8::kLanes>(
      static_cast<size_t>(len),
      [](Orb8u* d, const Orb8u* s) {
        const U8 code = U8::Load(s);
        const U8 interval = (code ^ U8::All(0x7F)) & U8::All(0x7F);
        const U8 lead = Min(Average(interval, U8::All(0)), U8::All(8)) +
                        CountAtOrAbove<33, 34, 35, 36, 48, 49, 64, 81>(interval);
        ((code & U8::All(0x80)) | (U8::All(0x55) ^ (interval - lead))).Store(d);
      },
      dst, src);
}

// ---- Encoding ----

// Exponent and four mantissa bits of a number below 2^13, less those of 2^5: 16 times the segment plus the
// mantissa for numbers from 32 on, below 16 for smaller ones.
ORBS_INLINE I16 SegmentAndMantissa(I16 magnitude) {
  constexpr Orb16s kOrigin = (127 + 4) << 4;
  N32 low;
  N32 high;
  WidenInLanes(magnitude, &low, &high);
  const N32 lowBits = ShiftRightLogical(AsInt(ToFloat(low)), kMantissaShift);
  const N32 highBits = ShiftRightLogical(AsInt(ToFloat(high)), kMantissaShift);
  return PackInLanes(lowBits, highBits) - I16::All(kOrigin);
}

ORBS_INLINE I16 ALawCodes(I16 x) {
  const I16 sign = ShiftRight<15>(x);
  const I16 w = ShiftRight<3>(x) ^ sign;
  // Below 32 stands the first segment, whose mantissa is w / 2: at most 15, and more than what the exponent
  // gives there.
  const I16 firstSegment = Min(ShiftRightLogical<1>(w), I16::All(15));
  return Max(SegmentAndMantissa(w), firstSegment) ^ (I16::All(0xD5) ^ (sign & I16::All(0x80)));
}

ORBS_INLINE I16 MuLawCodes(I16 x, I16 negative) {
  const I16 a = x ^ ShiftRight<15>(x);
  const I16 b = Min(ShiftRightLogical<2>(a) + I16::All(33), I16::All(8191));
  return (SegmentAndMantissa(b) - I16::All(16)) ^ (I16::All(0xFF) ^ (negative & I16::All(0x80)));
}

// Codes of 16-bit lanes to bytes, two vectors at a time.
template <class Source, class Codes>
ORBS_INLINE void Encode(const Source* src, Orb8u* dst, Orb32s len, Codes codes) {
  ForBlocks<2 * I16::kLanes>(
      static_cast<size_t>(len),
      [codes](Orb8u* d, const Source* s) {
        const auto bytes = Pack(codes(s), codes(s + I16::kLanes));
        bytes.Store(d);
      },
      dst, src);
}

// Full scale 1.0 to 16 bits: to nearest with ties away from zero, saturated. The packing does that for what
// is too low, and the conversion gives -2^31 for what does not fit 32 bits.
ORBS_INLINE I16 LoadAsSamples(const Orb32f* s) {
  return PackFrom([s](int i) {
    const F32 y = F32::Load(s + i) * F32::All(32768);
    return RoundHalfAwayToInt(Min(F32::All(32767), y));
  });
}

ORBS_INLINE I16 LoadSigns(const Orb32f* s) {
  return PackFrom([s](int i) { return AsInt(Less(F32::Load(s + i), F32::Zero())); });
}

inline void EncodeALaw(const Orb16s* src, Orb8u* dst, Orb32s len) {
  Encode(src, dst, len, [](const Orb16s* s) { return ALawCodes(I16::Load(s)); });
}

inline void EncodeALaw(const Orb32f* src, Orb8u* dst, Orb32s len) {
  Encode(src, dst, len, [](const Orb32f* s) { return ALawCodes(LoadAsSamples(s)); });
}

inline void EncodeMuLaw(const Orb16s* src, Orb8u* dst, Orb32s len) {
  Encode(src, dst, len, [](const Orb16s* s) {
    const I16 x = I16::Load(s);
    return MuLawCodes(x, ShiftRight<15>(x));
  });
}

inline void EncodeMuLaw(const Orb32f* src, Orb8u* dst, Orb32s len) {
  Encode(src, dst, len, [](const Orb32f* s) { return MuLawCodes(LoadAsSamples(s), LoadSigns(s)); });
}

}  // namespace orbs::ORBS_VARIANT::gen

#endif
