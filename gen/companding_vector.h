// Companding on vectors; see companding_kernels.h for the idea.
#ifndef ORBS_GEN_COMPANDING_VECTOR_H
#define ORBS_GEN_COMPANDING_VECTOR_H

#include "frame/blocks.h"
#include "frame/simd.h"

namespace orbs::ORBS_VARIANT {

inline constexpr Orb32f kLinearScale = 1.0f / 32768;  // 16-bit full scale to 1.0

// ---- Decoding ----

// A code's seven bits as exponent and mantissa, with the half step that puts the value in the middle of its
// interval. 2^7 times (1 + m/16 + 1/32) is 8m + 132, so an exponent field of 127 + 7 makes the mu-law value
// in its own units.
inline constexpr int kMantissaShift = 19;
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

#ifdef __SSSE3__

// With a byte shuffle the upper four bits of a code look up its power of two, and the byte multiply-add does
// the rest without leaving 8 and 16 bits: half the instructions of the route through binary32.

// A-law: +-(2m + 1) 2^0 or +-(2m + 33) 2^(e-1), times 8. Sign and exponent are the index.
ORBS_INLINE void ALawSamples(U8 code, I16* low, I16* high) {
  static constexpr Orb8u kPower[16] = {1, 1, 2, 4, 8, 16, 32, 64, 255, 255, 254, 252, 248, 240, 224, 192};
  static constexpr Orb8u kHalfStep[16] = {1, 33, 33, 33, 33, 33, 33, 33, 1, 33, 33, 33, 33, 33, 33, 33};
  const U8 c = OrderForMulAddBytes(code) ^ U8::All(0xD5);
  const U8 segment = HighNibbles(c);
  const U8 mantissa = c & U8::All(15);
  const U8 steps = mantissa + mantissa + LookUp(kHalfStep, segment);
  const U8 none = U8::All(0);
  MulAddBytes(steps, LookUp(kPower, segment), none, none, low, high);
  *low = ShiftLeft<3>(*low);
  *high = ShiftLeft<3>(*high);
}

// Mu-law: +-((2m + 33) 2^e - 33), times 4. 2^7 is too large for the signed operand, so the sign goes with the
// mantissa.
ORBS_INLINE void MuLawSamples(U8 code, I16* low, I16* high) {
  static constexpr Orb8u kPower[16] = {1, 2, 4, 8, 16, 32, 64, 128, 1, 2, 4, 8, 16, 32, 64, 128};
  const U8 c = OrderForMulAddBytes(code) ^ U8::All(0xFF);
  const U8 mantissa = c & U8::All(15);
  const U8 sign = c | U8::All(1);  // never 0, which ApplySign would turn into 0
  const U8 steps = ApplySign(mantissa + mantissa + U8::All(33), sign);
  const U8 bias = ApplySign(U8::All(static_cast<Orb8u>(-33)), sign);
  MulAddBytes(LookUp(kPower, HighNibbles(c)), steps, U8::All(1), bias, low, high);
  *low = ShiftLeft<2>(*low);
  *high = ShiftLeft<2>(*high);
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

#else

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

// Full scale 1.0 to 16 bits: clamped, then to nearest with ties away from zero.
ORBS_INLINE I16 LoadAsSamples(const Orb32f* s) {
  return PackFrom([s](int i) {
    const F32 y = F32::Load(s + i) * F32::All(32768);
    return RoundHalfAwayToInt(Max(F32::All(-32768), Min(F32::All(32767), y)));
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

}  // namespace orbs::ORBS_VARIANT

#endif
