// Conversions with a scale factor.
#include "core/checks.h"
#include "core/scaling.h"
#include "simd/blocks.h"
#include "simd/round_scaled.h"
#include "simd/simd.h"
#include "toolkit/toolkit.h"

namespace orbs::ORBS_VARIANT {
namespace {

// ---- Floating point to integers: scaled, clamped, rounded ----

#if ORBS_VECTOR

template <Orb32s kMode, class Source, class Result>
void ScaleToInts(const Source* src, Result* dst, size_t n, Orb32s s) {
  using Vector = VectorOf<Source>;
  const PowerOfTwo<Source> factor = InversePowerOfTwo<Source>(s);
  if (factor.second == 1) {
    RoundTimes<kMode>(src, dst, n, factor.first);
  } else {
    RoundScaled<kMode>(src, dst, n, [factor](Vector x) { return Times<Source>(x, factor); });
  }
}

#else

template <Orb32s kMode, class Source, class Result>
void ScaleToInts(const Source* src, Result* dst, size_t n, Orb32s s) {
  using Float = Wide<Source>;
  const PowerOfTwo<Float> factor = InversePowerOfTwo<Float>(s);
  for (size_t i = 0; i < n; ++i) {
    dst[i] = ClampAndConvert<Result>(factor(src[i]), [](Float y) {
      return kMode == RoundNear   ? RoundNearToInt(y)
             : kMode == RoundZero ? TruncateToInt(y)
                                  : RoundHalfAwayToInt(y);
    });
  }
}

#endif

template <class Source, class Result>
ORBS_INLINE OrbStatus ConvertToInts(const Source* src, Result* dst, Orb32s n, Orb32s mode, Orb32s s) {
  ORBS_RETURN_IF_BAD(CheckArrays(n, src, dst));
  const auto count = static_cast<size_t>(n);
  switch (mode) {
    case RoundNear:
      ScaleToInts<RoundNear>(src, dst, count, s);
      break;
    case RoundZero:
      ScaleToInts<RoundZero>(src, dst, count, s);
      break;
    default:
      ScaleToInts<RoundHalfAway>(src, dst, count, s);
  }
  return StatusOk;
}

// ---- Integers to floating point ----

#if ORBS_VECTOR

void ScaleToFloats(const Orb32s* src, Orb32f* dst, size_t n, Orb32f factor) {
  const F32 f = F32::All(factor);
  ForBlocks<F32::kLanes>(
      n, [f](Orb32f* d, const Orb32s* s) { (ToFloat(I32::Load(s)) * f).Store(d); }, dst, src);
}

void ScaleToFloats(const Orb16s* src, Orb64f* dst, size_t n, Orb64f factor) {
  const F64 f = F64::All(factor);
  ForBlocks<F64::kLanes>(
      n,
      [f](Orb64f* d, const Orb16s* s) {
        F64 x;
        LoadWiden(s, &x);
        (x * f).Store(d);
      },
      dst, src);
}

#else

template <class Source, class Result>
void ScaleToFloats(const Source* src, Result* dst, size_t n, Result factor) {
  for (size_t i = 0; i < n; ++i) dst[i] = static_cast<Result>(static_cast<Wide<Result>>(src[i]) * factor);
}

#endif

// ---- Integers to integers ----

// The three cases of VecConvert_32s16s_Sfs, each for one vector or one element.
struct RoundingShift {
  Orb32s half;
  int count;
};

RoundingShift MakeRoundingShift(Orb32s s) { return {static_cast<Orb32s>(1u << ((s - 1) & 31)), s & 31}; }

struct LeftShift {
  Orb32s most;   // above it the result is 32767
  Orb32s least;  // below it the result is -32768
  int count;
};

LeftShift MakeLeftShift(Orb32s s) {
  const uint32_t n = 0 - static_cast<uint32_t>(s);
  const int count = static_cast<int>(n & 31);
  return {32767 >> count, n >= 16 ? 0 : -32768 >> count, count};
}

#if ORBS_VECTOR

template <class Shift>
void ShiftElements(const Orb32s* src, Orb16s* dst, size_t n, Shift shift) {
  ForBlocks<I16::kLanes>(
      n,
      [shift](Orb16s* d, const Orb32s* s) {
        Pack(shift(N32::Load(s)), shift(N32::Load(s + N32::kLanes))).Store(d);
      },
      dst, src);
}

void ShiftRight_32s16s(const Orb32s* src, Orb16s* dst, size_t n, RoundingShift shift) {
  const N32 half = N32::All(shift.half);
  ShiftElements(src, dst, n, [half, shift](N32 x) { return ShiftRight(x + half, shift.count); });
}

void ShiftLeft_32s16s(const Orb32s* src, Orb16s* dst, size_t n, LeftShift shift) {
  const N32 most = N32::All(shift.most);
  const N32 least = N32::All(shift.least);
  ShiftElements(src, dst, n, [most, least, shift](N32 x) {
    const N32 above = Greater(x, most);
    const N32 below = Greater(least, x);
    const N32 bound = (above & N32::All(32767)) | (below & N32::All(-32768));
    return bound | AndNot(above | below, ShiftLeft(x, shift.count));
  });
}

void Saturate_32s16s(const Orb32s* src, Orb16s* dst, size_t n) {
  ShiftElements(src, dst, n, [](N32 x) { return x; });
}

void WidenAndShift(const Orb16s* src, Orb32s* dst, size_t n, int shift) {
  ForBlocks<N32::kLanes>(
      n,
      [shift](Orb32s* d, const Orb16s* s) {
        N32 x;
        LoadWiden(s, &x);
        ShiftLeft(x, shift).Store(d);
      },
      dst, src);
}

#else

void ShiftRight_32s16s(const Orb32s* src, Orb16s* dst, size_t n, RoundingShift shift) {
  for (size_t i = 0; i < n; ++i) dst[i] = Saturate<Orb16s>(AddWrapping(src[i], shift.half) >> shift.count);
}

void ShiftLeft_32s16s(const Orb32s* src, Orb16s* dst, size_t n, LeftShift shift) {
  for (size_t i = 0; i < n; ++i) {
    const Orb32s x = src[i];
    const Orb32s shifted = static_cast<Orb32s>(static_cast<uint32_t>(x) << shift.count);
    dst[i] = static_cast<Orb16s>(x > shift.most ? 32767 : x < shift.least ? -32768 : shifted);
  }
}

void Saturate_32s16s(const Orb32s* src, Orb16s* dst, size_t n) {
  for (size_t i = 0; i < n; ++i) dst[i] = Saturate<Orb16s>(src[i]);
}

void WidenAndShift(const Orb16s* src, Orb32s* dst, size_t n, int shift) {
  for (size_t i = 0; i < n; ++i) {
    dst[i] = static_cast<Orb32s>(static_cast<uint32_t>(static_cast<Orb32s>(src[i])) << shift);
  }
}

#endif

}  // namespace

OrbStatus VecConvert_32f16s_Sfs(const Orb32f* src, Orb16s* dst, Orb32s n, Orb32s mode, Orb32s s) {
  return ConvertToInts(src, dst, n, mode, s);
}

OrbStatus VecConvert_32f32s_Sfs(const Orb32f* src, Orb32s* dst, Orb32s n, Orb32s mode, Orb32s s) {
  return ConvertToInts(src, dst, n, mode, s);
}

OrbStatus VecConvert_64f32s_Sfs(const Orb64f* src, Orb32s* dst, Orb32s n, Orb32s mode, Orb32s s) {
  return ConvertToInts(src, dst, n, mode, s);
}

OrbStatus VecConvert_32s32f_Sfs(const Orb32s* src, Orb32f* dst, Orb32s n, Orb32s s) {
  ORBS_RETURN_IF_BAD(CheckArrays(n, src, dst));
  ScaleToFloats(src, dst, static_cast<size_t>(n), InversePowerOfTwo_32s32f(s));
  return StatusOk;
}

OrbStatus VecConvert_16s64f_Sfs(const Orb16s* src, Orb64f* dst, Orb32s n, Orb32s s) {
  ORBS_RETURN_IF_BAD(CheckArrays(n, src, dst));
  ScaleToFloats(src, dst, static_cast<size_t>(n), InversePowerOfTwo_16s64f(s));
  return StatusOk;
}

void VecConvert_32s16s_Sfs(const Orb32s* src, Orb16s* dst, Orb32s n, Orb32s s) {
  if (n < 1) return;
  const auto count = static_cast<size_t>(n);
  if (s > 0) {
    ShiftRight_32s16s(src, dst, count, MakeRoundingShift(s));
  } else if (s < 0) {
    ShiftLeft_32s16s(src, dst, count, MakeLeftShift(s));
  } else {
    Saturate_32s16s(src, dst, count);
  }
}

void VecShiftL_16s32s(const Orb16s* src, Orb32s* dst, Orb32s n, Orb32s shift) {
  if (n < 1) return;
  WidenAndShift(src, dst, static_cast<size_t>(n), shift & 31);
}

}  // namespace orbs::ORBS_VARIANT
