// Conversions without scaling.
#include <cfloat>

#include "core/checks.h"
#include "simd/blocks.h"
#include "simd/simd.h"
#include "toolkit/toolkit.h"

namespace orbs::ORBS_VARIANT {
namespace {

#if ORBS_VECTOR

template <class Source>
void ConvertElements(const Source* src, Orb32f* dst, size_t n) {
  ForBlocks<F32::kLanes>(
      n,
      [](Orb32f* d, const Source* s) {
        I32 x;
        LoadWiden(s, &x);
        ToFloat(x).Store(d);
      },
      dst, src);
}

template <class Source>
void ConvertElements(const Source* src, Orb64f* dst, size_t n) {
  ForBlocks<F64::kLanes>(
      n,
      [](Orb64f* d, const Source* s) {
        F64 x;
        LoadWiden(s, &x);
        x.Store(d);
      },
      dst, src);
}

// Infinity, which the rounding of too large a value gives, becomes the largest finite value: its bits are one
// less. More units add integers than compare floats; but AVX alone has no integers of this width.
ORBS_INLINE F32 LimitToFinite(F32 y) {
  if constexpr (N32::kLanes == F32::kLanes) {
    const I32 isInfinite = Equal(AsInt(y) & I32::All(0x7FFFFFFF), I32::All(0x7F800000));
    return AsFloat(AsInt(y) + isInfinite);
  } else {
    return Max(F32::All(-FLT_MAX), Min(F32::All(FLT_MAX), y));
  }
}

void NarrowElements(const Orb64f* src, Orb32f* dst, size_t n) {
  ForBlocks<F32::kLanes>(
      n,
      [](Orb32f* d, const Orb64f* s) {
        LimitToFinite(Narrow(F64::Load(s), F64::Load(s + F64::kLanes))).Store(d);
      },
      dst, src);
}

#else

template <class Source, class Result>
void ConvertElements(const Source* src, Result* dst, size_t n) {
  for (size_t i = 0; i < n; ++i) dst[i] = static_cast<Result>(src[i]);
}

void NarrowElements(const Orb64f* src, Orb32f* dst, size_t n) {
  for (size_t i = 0; i < n; ++i) {
    const Orb64f x = src[i];
    dst[i] = static_cast<Orb32f>(x > FLT_MAX ? FLT_MAX : x < -FLT_MAX ? -FLT_MAX : x);
  }
}

#endif

template <class Source, class Result>
ORBS_INLINE OrbStatus Convert(const Source* src, Result* dst, Orb32s n) {
  ORBS_RETURN_IF_BAD(CheckArrays(n, src, dst));
  ConvertElements(src, dst, static_cast<size_t>(n));
  return StatusOk;
}

}  // namespace

OrbStatus VecConvert_8s32f(const Orb8s* src, Orb32f* dst, Orb32s n) { return Convert(src, dst, n); }
OrbStatus VecConvert_16s32f(const Orb16s* src, Orb32f* dst, Orb32s n) { return Convert(src, dst, n); }
OrbStatus VecConvert_32s32f(const Orb32s* src, Orb32f* dst, Orb32s n) { return Convert(src, dst, n); }
OrbStatus VecConvert_32s64f(const Orb32s* src, Orb64f* dst, Orb32s n) { return Convert(src, dst, n); }
OrbStatus VecConvert_32f64f(const Orb32f* src, Orb64f* dst, Orb32s n) { return Convert(src, dst, n); }

OrbStatus VecConvert_64f32f(const Orb64f* src, Orb32f* dst, Orb32s n) {
  ORBS_RETURN_IF_BAD(CheckArrays(n, src, dst));
  NarrowElements(src, dst, static_cast<size_t>(n));
  return StatusOk;
}

}  // namespace orbs::ORBS_VARIANT
