// Arrays of floating-point numbers, scaled, to integers: the one place where vectors are rounded and
// saturated. scale(x) is what is rounded; RoundNear, RoundZero and RoundHalfAway are the ways.
#ifndef ORBS_SIMD_ROUND_SCALED_H
#define ORBS_SIMD_ROUND_SCALED_H

#include "core/scaling.h"
#include "orbs90lgc/types.h"
#include "simd/blocks.h"
#include "simd/simd.h"

#if ORBS_VECTOR

namespace orbs::ORBS_VARIANT {

// A vector of either float type rounded to 32-bit integers.
template <Orb32s kMode>
ORBS_INLINE I32 RoundToInts(F32 y) {
  if constexpr (kMode == RoundNear) return RoundToInt(y);
  if constexpr (kMode == RoundZero) return TruncateToInt(y);
  return RoundHalfAwayToInt(y);
}

// The conversions give -2^31 for whatever does not fit 32 bits, NaN included. Below the range that is the
// bound already; so only values above it need care.

// One I16 from the vectors of binary32 that get(offset) gives for each offset, rounded and saturated.
template <Orb32s kMode, class Get>
ORBS_INLINE I16 PackSaturated(Get get) {
  return PackFrom([&](int i) { return RoundToInts<kMode>(Min(F32::All(32767), get(i))); });
}

template <Orb32s kMode, class Scale>
void RoundScaled(const Orb32f* src, Orb16s* dst, size_t n, Scale scale) {
  ForBlocks<I16::kLanes>(
      n,
      [scale](Orb16s* d, const Orb32f* s) {
        PackSaturated<kMode>([scale, s](int i) { return scale(F32::Load(s + i)); }).Store(d);
      },
      dst, src);
}

// One vector of binary32, rounded, saturated and stored.
template <Orb32s kMode>
ORBS_INLINE void StoreSaturated(Orb16s* to, F32 y) {
  StorePacked(to, RoundToInts<kMode>(Min(F32::All(32767), y)));
}
template <Orb32s kMode>
ORBS_INLINE void StoreSaturated(Orb32s* to, F32 y) {
  // 2^31-1 has no binary32 of its own: it is the complement of -2^31.
  const I32 beyond = AsInt(LessEqual(F32::All(2147483648.0f), y));
  (RoundToInts<kMode>(y) ^ beyond).Store(to);
}

template <Orb32s kMode, class Scale>
void RoundScaled(const Orb32f* src, Orb32s* dst, size_t n, Scale scale) {
  ForBlocks<F32::kLanes>(
      n, [scale](Orb32s* d, const Orb32f* s) { StoreSaturated<kMode>(d, scale(F32::Load(s))); }, dst, src);
}

// A vector of binary64, rounded and stored as integers of 32 bits.
template <Orb32s kMode>
ORBS_INLINE void StoreAsInts(Orb32s* to, F64 y) {
  if constexpr (kMode == RoundNear) {
    StoreRounded(to, y);
  } else if constexpr (kMode == RoundZero) {
    StoreTruncated(to, y);
  } else {
    StoreTruncated(to, AwayFromZeroByHalf(y));
  }
}

// The same, saturated.
template <Orb32s kMode>
ORBS_INLINE void StoreSaturated(Orb32s* to, F64 y) {
  StoreAsInts<kMode>(to, Min(F64::All(2147483647.0), y));
}

// A vector of pairs, rounded to nearest, saturated and put into two arrays.
ORBS_INLINE void StoreSaturatedPairs(Orb16s* re, Orb16s* im, F32 y) {
  StorePackedPairs(re, im, RoundToInt(Min(F32::All(32767), y)));
}
ORBS_INLINE void StoreSaturatedPairs(Orb32s* re, Orb32s* im, F64 y) {
  StoreRoundedPairs(re, im, Min(F64::All(2147483647.0), y));
}

template <Orb32s kMode, class Scale>
void RoundScaled(const Orb64f* src, Orb32s* dst, size_t n, Scale scale) {
  ForBlocks<F64::kLanes>(
      n, [scale](Orb32s* d, const Orb64f* s) { StoreSaturated<kMode>(d, scale(F64::Load(s))); }, dst, src);
}

template <Orb32s kMode, class Scale>
void RoundScaled(const Orb64f* src, Orb16s* dst, size_t n, Scale scale) {
  constexpr int kBlock = 2 * I32::kLanes;
  ForBlocks<kBlock>(
      n,
      [scale](Orb16s* d, const Orb64f* s) {
        Orb32s rounded[kBlock];
        ORBS_UNROLL
        for (int i = 0; i < kBlock; i += F64::kLanes) {
          StoreAsInts<kMode>(rounded + i, Min(F64::All(32767), scale(F64::Load(s + i))));
        }
        StorePacked(d, I32::Load(rounded), I32::Load(rounded + I32::kLanes));
      },
      dst, src);
}

// The same for a factor that is one number of the type. The functions of this file take their factors as
// numbers and broadcast them inside, where the compiler moves that out of the loop (see "vectors never cross
// a call" in simd.h).
template <Orb32s kMode, class Float, class Integer>
void RoundTimes(const Float* src, Integer* dst, size_t n, Float factor) {
  using V = VectorOf<Float>;
  RoundScaled<kMode>(src, dst, n, [factor](V x) { return x * V::All(factor); });
}

template <class Float>
ORBS_INLINE VectorOf<Float> Times(VectorOf<Float> x, PowerOfTwo<Float> factor) {
  return x * VectorOf<Float>::All(factor.first) * VectorOf<Float>::All(factor.second);
}

}  // namespace orbs::ORBS_VARIANT

#endif
#endif
