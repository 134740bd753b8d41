// How samples of tones and triangles reach the result array.
#ifndef ORBS_GEN_TONE_TONE_STORE_H
#define ORBS_GEN_TONE_TONE_STORE_H

#include <type_traits>

#include "core/parts.h"
#include "core/scaling.h"
#include "core/variant.h"
#include "orbs90lgc/types.h"
#if ORBS_VECTOR
#include "simd/simd.h"
#endif

namespace orbs::ORBS_VARIANT::gen {

// How a value becomes a 16-bit integer. No bound is tested: |y| is at most the magnitude, which is one.
enum class ToInteger { kTruncate, kHalfAway };

#if !ORBS_VECTOR

template <ToInteger kRounding, class Part, class Float>
ORBS_INLINE void StoreSample(Part* dst, Float y) {
  if constexpr (std::is_floating_point_v<Part>) {
    *dst = static_cast<Part>(y);
  } else {
    *dst = static_cast<Part>(kRounding == ToInteger::kTruncate ? TruncateToInt(y) : RoundHalfAwayToInt(y));
  }
}

#else

template <ToInteger kRounding, class V>
ORBS_INLINE V BeforeTruncation(V y) {
  if constexpr (kRounding == ToInteger::kHalfAway) {
    return AwayFromZeroByHalf(y);
  } else {
    return y;
  }
}

// The lanes of all vectors in order, times magn. The vectors hold waves of magnitude 1: neither a large nor a
// tiny magnitude leaves the range of the type inside the kernels.
template <ToInteger kRounding, class Part, class V, int n>
ORBS_INLINE void StoreScaled(Part* dst, const V (&unit)[n], V magn) {
  constexpr int kLanes = V::kLanes;
  if constexpr (std::is_same_v<Part, typename V::Lane>) {
    ORBS_UNROLL
    for (int i = 0; i < n; ++i) (unit[i] * magn).Store(dst + i * kLanes);
  } else if constexpr (std::is_same_v<Part, Orb32f>) {
    ORBS_UNROLL
    for (int i = 0; i < n; i += 2) Narrow(unit[i] * magn, unit[i + 1] * magn).Store(dst + i * kLanes);
  } else {
    static_assert(n * kLanes % I16::kLanes == 0);
    const auto scaled = [&](int lane) { return BeforeTruncation<kRounding>(unit[lane / kLanes] * magn); };
    ORBS_UNROLL
    for (int i = 0; i < n * kLanes; i += I16::kLanes) {
      PackFrom([&](int offset) {
        if constexpr (std::is_same_v<typename V::Lane, Orb64f>) {
          return TruncateToInt(scaled(i + offset), scaled(i + offset + kLanes));
        } else {
          return TruncateToInt(scaled(i + offset));
        }
      }).Store(dst + i);
    }
  }
}

#endif

}  // namespace orbs::ORBS_VARIANT::gen

#endif
