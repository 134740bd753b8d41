// Straight lines: offset + n slope, rounded into any element type.
#ifndef ORBS_GEN_PATTERN_RAMP_KERNELS_H
#define ORBS_GEN_PATTERN_RAMP_KERNELS_H

#include <limits>
#include <type_traits>

#include "core/scaling.h"
#include "gen/generate.h"
#if ORBS_VECTOR
#include "simd/round_scaled.h"
#endif

namespace orbs::ORBS_VARIANT::gen {

#if ORBS_VECTOR

// ---- Delivery of kLineBlock values; y(i) is the vector of those from the i-th on, in binary32 ----
//
// kMode is the way of rounding. The conversions give -2^31 for what does not fit 32 bits, NaN included: below
// the range that ends at the lower bound; so only values above it need care.

// A multiple of the lanes of every vector type.
inline constexpr int kLineBlock = 32;

template <class Line>
ORBS_INLINE void DeliverLine(Orb32f* d, Line y) {
  ORBS_UNROLL for (int i = 0; i < kLineBlock; i += F32::kLanes) y(i).Store(d + i);
}

template <class Line>
ORBS_INLINE void DeliverLine(Orb64f* d, Line y) {
  ORBS_UNROLL
  for (int i = 0; i < kLineBlock; i += F32::kLanes) {
    Orb32f narrow[F32::kLanes];
    y(i).Store(narrow);
    for (int j = 0; j < F32::kLanes; j += F64::kLanes) {
      F64 wide;
      LoadWiden(narrow + j, &wide);
      wide.Store(d + i + j);
    }
  }
}

template <Orb32s kMode, class Line>
ORBS_INLINE void DeliverLine(Orb16s* d, Line y) {
  ORBS_UNROLL
  for (int i = 0; i < kLineBlock; i += I16::kLanes) {
    PackSaturated<kMode>([&](int j) { return y(i + j); }).Store(d + i);
  }
}

// From here on the range of the packing instructions is not that of the type: the values are moved there.

template <Orb32s kMode, class Line>
ORBS_INLINE void DeliverLine(Orb16u* d, Line y) {
  ORBS_UNROLL
  for (int i = 0; i < kLineBlock; i += I16::kLanes) {
    const I16 moved = PackFrom([&](int j) {
      const F32 limited = Min(F32::All(65535), Max(y(i + j), F32::Zero()));
      return RoundToInts<kMode>(limited) - I32::All(32768);
    });
    (moved ^ I16::All(-32768)).Store(reinterpret_cast<Orb16s*>(d + i));
  }
}

// kUpper: the largest value of the type; kOrigin: what is added so that the range begins at 0.
template <int kUpper, int kOrigin, Orb32s kMode, class Line>
ORBS_INLINE void DeliverBytes(Orb8u* d, Line y) {
  const auto sixteenBits = [&](int i) {
    const I16 packed = PackFrom([&](int j) { return RoundToInts<kMode>(Min(F32::All(kUpper), y(i + j))); });
    return packed + I16::All(kOrigin);
  };
  ORBS_UNROLL
  for (int i = 0; i < kLineBlock; i += U8::kLanes) {
    const U8 moved = Pack(sixteenBits(i), sixteenBits(i + I16::kLanes));
    (moved - U8::All(static_cast<Orb8u>(kOrigin))).Store(d + i);
  }
}

template <Orb32s kMode, class Line>
ORBS_INLINE void DeliverLine(Orb8u* d, Line y) {
  DeliverBytes<255, 0, kMode>(d, y);
}

template <Orb32s kMode, class Line>
ORBS_INLINE void DeliverLine(Orb8s* d, Line y) {
  DeliverBytes<127, 128, kMode>(reinterpret_cast<Orb8u*>(d), y);
}

template <Orb32s kMode, class Line>
ORBS_INLINE void DeliverLine(Orb32s* d, Line y) {
  ORBS_UNROLL
  for (int i = 0; i < kLineBlock; i += F32::kLanes) StoreSaturated<kMode>(d + i, y(i));
}

template <Orb32s kMode, class Line>
ORBS_INLINE void DeliverLine(Orb32u* d, Line y) {
  const F32 half = F32::All(2147483648.0f);
  ORBS_UNROLL
  for (int i = 0; i < kLineBlock; i += I32::kLanes) {
    const F32 value = Max(y(i), F32::Zero());  // of a NaN too
    // The upper half of the range is converted from its distance to 2^31, which is exact.
    const F32 upper = LessEqual(half, value);
    const I32 rounded = RoundToInts<kMode>(value - (upper & half)) ^ (AsInt(upper) & I32::All(INT32_MIN));
    const I32 beyond = AsInt(LessEqual(F32::All(4294967296.0f), value));
    (rounded | beyond).Store(reinterpret_cast<Orb32s*>(d + i));
  }
}

// Floating-point results are not rounded.
template <Orb32s kMode, class Result, class Line>
ORBS_INLINE void DeliverLineRounded(Result* d, Line y) {
  if constexpr (std::is_floating_point_v<Result>) {
    DeliverLine(d, y);
  } else {
    DeliverLine<kMode>(d, y);
  }
}

// ---- Ramp: every element from its own index ----

template <class Result>
void FillRamp(Result* dst, Orb32s len, Orb32f offset, Orb32f slope) {
  const F32 start = F32::All(offset);
  const F32 rise = F32::All(slope);
  GenerateBlocks<kLineBlock>(dst, len, [=](Result* d, Orb32s first) {
    const I32 index = I32::All(first) + LaneNumbers<I32>();
    const auto y = [=](int i) { return ToFloat(index + I32::All(i)) * rise + start; };
    DeliverLineRounded<RoundHalfAway>(d, y);
  });
}

// ---- Line: the part of a slope between the bounds, a sum that starts afresh with each block ----

inline void FillLine(Orb8s* dst, Orb32s len, Orb32f base, Orb32f slope) {
  const F32 lanes = LaneNumbers<F32>() * F32::All(slope);
  const F32 step = F32::All(F32::kLanes * slope);
  GenerateBlocks<kLineBlock>(dst, len, [=](Orb8s* d, Orb32s first) {
    F32 sum[kLineBlock / F32::kLanes];
    sum[0] = F32::All(static_cast<Orb32f>(base + static_cast<Orb64f>(slope) * first)) + lanes;
    ORBS_UNROLL for (int i = 1; i < kLineBlock / F32::kLanes; ++i) sum[i] = sum[i - 1] + step;
    DeliverLine<RoundNear>(d, [&sum](int i) { return sum[i / F32::kLanes]; });
  });
}

#else

// y moved away from zero by a half, limited and truncated. NaN gives the lower bound.
template <class Result, class Float>
Result RoundLine(Float y) {
  if constexpr (std::is_floating_point_v<Result>) {
    return static_cast<Result>(y);
  } else {
    constexpr Result kMax = std::numeric_limits<Result>::max();
    constexpr Result kMin = std::numeric_limits<Result>::min();
    const Float r = y > 0 ? y + Float(0.5) : y - Float(0.5);
    if (r >= static_cast<Float>(kMax)) return kMax;
    if (!(r > static_cast<Float>(kMin))) return kMin;
    return static_cast<Result>(static_cast<Orb64s>(r));
  }
}

template <class Result>
void FillRamp(Result* dst, Orb32s len, Orb32f offset, Orb32f slope) {
  using Float = Wide<Orb32f>;
  for (Orb32s n = 0; n < len; ++n) dst[n] = RoundLine<Result>(Float(offset) + Float(n) * Float(slope));
}

inline void FillLine(Orb8s* dst, Orb32s len, Orb32f base, Orb32f slope) { FillRamp(dst, len, base, slope); }

#endif

}  // namespace orbs::ORBS_VARIANT::gen

#endif
