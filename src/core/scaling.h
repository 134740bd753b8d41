// The scale-factor rule: the exact result v of an operation is delivered as v * 2^-s, rounded and saturated.
//
// Five methods exist; they differ at ties, so a family names the one it uses. s is any 32-bit number.
//
//   ShiftTiesEven   integers; s > 0: (x + 2^(s-1) - 1 + ((x >> s) & 1)) >> s
//   ShiftHalfUp     integers; s > 0: (x + 2^(s-1)) >> s
//   ShiftFloor      integers; s > 0: x >> s
//   FloatNearEven   floating point: clamped, then rounded to nearest, ties to even
//   FloatHalfAway   floating point: clamped, then rounded to nearest, ties away from zero
//
// For s < 0 the integer methods shift left with saturation. The floating-point methods take a value already
// multiplied by 2^-s; the ways of forming that factor stand at the end.
#ifndef ORBS_CORE_SCALING_H
#define ORBS_CORE_SCALING_H

#include <math.h>

#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>

#include "core/variant.h"
#include "orbs90lgc/types.h"

namespace orbs::ORBS_VARIANT {

// ---- Integer methods ----

template <class Result>
ORBS_INLINE constexpr Result Saturate(Orb64s x) {
  constexpr Orb64s kMax = std::numeric_limits<Result>::max();
  constexpr Orb64s kMin = std::numeric_limits<Result>::min();
  return static_cast<Result>(x > kMax ? kMax : x < kMin ? kMin : x);
}

// A sum that wraps in the accumulator's width.
template <class Accumulator>
ORBS_INLINE constexpr Accumulator AddWrapping(Accumulator a, Accumulator b) {
  using Unsigned = std::make_unsigned_t<Accumulator>;
  return static_cast<Accumulator>(static_cast<Unsigned>(a) + static_cast<Unsigned>(b));
}

// x * 2^n with saturation, for n >= 0.
template <class Result>
ORBS_INLINE constexpr Result ShiftLeftSaturating(Orb64s x, Orb64s n) {
  constexpr Orb64s kMax = std::numeric_limits<Result>::max();
  constexpr Orb64s kMin = std::numeric_limits<Result>::min();
  // From this count on, every value but 0 meets or passes a bound.
  constexpr int kLargestUseful = std::numeric_limits<Result>::digits;
  const int count = static_cast<int>(n < kLargestUseful ? n : kLargestUseful);
  if (x > (kMax >> count)) return static_cast<Result>(kMax);
  if (x < (kMin >> count)) return static_cast<Result>(kMin);
  return static_cast<Result>(static_cast<uint64_t>(x) << count);
}

enum class IntegerRounding { kTiesEven, kHalfUp, kFloor };

template <class Result, IntegerRounding kRounding, class Accumulator>
ORBS_INLINE constexpr Result ScaleInteger(Accumulator x, Orb32s s) {
  constexpr int kWidth = std::numeric_limits<Accumulator>::digits + 1;
  using Unsigned = std::make_unsigned_t<Accumulator>;
  if (s < 0) return ShiftLeftSaturating<Result>(x, -static_cast<Orb64s>(s));
  if (s == 0) return Saturate<Result>(x);
  // |x| is at most half of 2^width, so beyond the width nothing is left to round up.
  if (s >= kWidth) return Saturate<Result>(kRounding == IntegerRounding::kFloor && x < 0 ? -1 : 0);
  const auto half = static_cast<Accumulator>(Unsigned{1} << (s - 1));
  Accumulator rounded = x;
  if (kRounding == IntegerRounding::kTiesEven) {
    const auto oddBit = static_cast<Accumulator>((x >> s) & 1);
    rounded = AddWrapping(x, AddWrapping(half, static_cast<Accumulator>(oddBit - 1)));
  } else if (kRounding == IntegerRounding::kHalfUp) {
    rounded = AddWrapping(x, half);
  }
  return Saturate<Result>(static_cast<Accumulator>(rounded >> s));
}

template <class Result, class Accumulator>
ORBS_INLINE constexpr Result ShiftTiesEven(Accumulator x, Orb32s s) {
  return ScaleInteger<Result, IntegerRounding::kTiesEven>(x, s);
}

template <class Result, class Accumulator>
ORBS_INLINE constexpr Result ShiftHalfUp(Accumulator x, Orb32s s) {
  return ScaleInteger<Result, IntegerRounding::kHalfUp>(x, s);
}

template <class Result, class Accumulator>
ORBS_INLINE constexpr Result ShiftFloor(Accumulator x, Orb32s s) {
  return ScaleInteger<Result, IntegerRounding::kFloor>(x, s);
}

// ---- Conversions of floating point to 32 bits; the value is in range ----

// By the processor's rounding mode, which is to nearest with ties to even unless the process has changed it.
ORBS_INLINE Orb32s RoundNearToInt(float y) { return static_cast<Orb32s>(lrintf(y)); }
ORBS_INLINE Orb32s RoundNearToInt(double y) { return static_cast<Orb32s>(lrint(y)); }
ORBS_INLINE Orb32s RoundNearToInt(long double y) { return static_cast<Orb32s>(lrintl(y)); }

// Toward zero, whatever the rounding mode.
template <class Float>
ORBS_INLINE Orb32s TruncateToInt(Float y) {
  return static_cast<Orb32s>(y);
}

// To nearest, ties away from zero. The fraction is compared, not 0.5 added: the sum y + 0.5 can itself be
// rounded, which would carry 0.49999997 to 1.
template <class Float>
ORBS_INLINE Orb32s RoundHalfAwayToInt(Float y) {
  const Orb32s whole = TruncateToInt(y);
  const Float fraction = y - static_cast<Float>(whole);
  return whole + (fraction >= Float(0.5) ? 1 : 0) - (fraction <= Float(-0.5) ? 1 : 0);
}

// ---- Floating-point methods ----

// Clamps to the result's bounds, then converts. NaN gives the lower bound, which is where the processor's own
// conversion of a NaN (-2^31) ends up after saturation.
template <class Result, class Float, class Conversion>
ORBS_INLINE Result ClampAndConvert(Float y, Conversion convert) {
  static_assert(sizeof(Result) < 4 || std::numeric_limits<Result>::is_signed,
                "conversions give 32 signed bits");
  constexpr Result kMax = std::numeric_limits<Result>::max();
  constexpr Result kMin = std::numeric_limits<Result>::min();
  if (y >= static_cast<Float>(kMax)) return kMax;
  if (!(y > static_cast<Float>(kMin))) return kMin;
  return static_cast<Result>(convert(y));
}

template <class Result, class Float>
ORBS_INLINE Result FloatNearEven(Float y) {
  return ClampAndConvert<Result>(y, [](Float v) { return RoundNearToInt(v); });
}

template <class Result, class Float>
ORBS_INLINE Result FloatHalfAway(Float y) {
  return ClampAndConvert<Result>(y, [](Float v) { return RoundHalfAwayToInt(v); });
}

// ---- The factor 2^-s ----

ORBS_INLINE float FloatFromBits(uint32_t bits) {
  float value;
  std::memcpy(&value, &bits, sizeof value);
  return value;
}

ORBS_INLINE double DoubleFromBits(uint64_t bits) {
  double value;
  std::memcpy(&value, &bits, sizeof value);
  return value;
}

// 2^exponent for the exponents of normal numbers, put together from its bits: the library's ldexp takes
// longer than a short array takes to be scaled.
template <class Float>
ORBS_INLINE Float PowerOfTwoFromBits(int exponent) {
  if constexpr (sizeof(Float) == 4) {
    return FloatFromBits(static_cast<uint32_t>(127 + exponent) << 23);
  } else if constexpr (sizeof(Float) == 8) {
    return DoubleFromBits(static_cast<uint64_t>(1023 + exponent) << 52);
  } else {
    // Extended precision stores its leading 1.
    const uint64_t significand = uint64_t{1} << 63;
    const auto biased = static_cast<uint16_t>(16383 + exponent);
    Float value = 0;
    std::memcpy(&value, &significand, sizeof significand);
    std::memcpy(reinterpret_cast<unsigned char*>(&value) + sizeof significand, &biased, sizeof biased);
    return value;
  }
}

// 2^-s as a product of two powers of two, each a normal number of the type: enough to carry any finite value
// of binary32 (or binary64 in a wider type) beyond every integer bound or down to nothing, and never 0 or
// infinity, so that 0 stays 0. `second` is 1 unless s is beyond the type's exponents.
template <class Float>
struct PowerOfTwo {
  Float first;
  Float second;

  ORBS_INLINE Float operator()(Float x) const { return x * first * second; }
};

template <class Float>
ORBS_INLINE PowerOfTwo<Float> InversePowerOfTwo(Orb32s s) {
  constexpr Orb64s kMaxExponent = std::numeric_limits<Float>::max_exponent - 1;
  constexpr Orb64s kMinExponent = std::numeric_limits<Float>::min_exponent - 1;
  const auto clamp = [](Orb64s e) {
    return static_cast<int>(e > kMaxExponent ? kMaxExponent : e < kMinExponent ? kMinExponent : e);
  };
  const Orb64s exponent = -static_cast<Orb64s>(s);
  const int first = clamp(exponent);
  return {PowerOfTwoFromBits<Float>(first), PowerOfTwoFromBits<Float>(clamp(exponent - first))};
}

// 2^-s from the exponent field of binary32 with |s| taken modulo 128: the element-by-element paths of the
// filters. 127 taken from the exponent of 1.0 leaves an empty field: the factor is then 0.
ORBS_INLINE float InversePowerOfTwoModulo128(Orb32s s) {
  constexpr uint32_t kOne = 127;
  const uint32_t magnitude = (s < 0 ? 0 - static_cast<uint32_t>(s) : static_cast<uint32_t>(s)) & 127;
  return FloatFromBits((s < 0 ? kOne + magnitude : kOne - magnitude) << 23);
}

// 2^-s from the exponent field, s limited so that the field stays inside its range.
ORBS_INLINE float InversePowerOfTwo_32s32f(Orb32s s) {
  const Orb32s limited = s < -96 ? -96 : s > 126 ? 126 : s;
  return FloatFromBits(static_cast<uint32_t>(127 - limited) << 23);
}

ORBS_INLINE double InversePowerOfTwo_16s64f(Orb32s s) {
  const Orb32s limited = s < -1008 ? -1008 : s > 1022 ? 1022 : s;
  return DoubleFromBits(static_cast<uint64_t>(1023 - limited) << 52);
}

}  // namespace orbs::ORBS_VARIANT

#endif
