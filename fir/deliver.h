// How the sums of a FIR filter become results of the data type: for arrays, as block filters need it, and for
// one result.
//
//   block forms      32f to 16s and 64f to 32s   FloatNearEven, any scale factor
//                    64f to 16s                  FloatHalfAway in px, FloatNearEven elsewhere
//                    64f to 32f                  limited to the finite range
//   one-sample       integers                    FloatHalfAway in px, FloatNearEven elsewhere
//                    64f to 32f                  rounded on store
//   direct forms     integers                    FloatHalfAway
//                    64f to 32f                  rounded on store
#ifndef ORBS_FIR_DELIVER_H
#define ORBS_FIR_DELIVER_H

#include "fir/state.h"
#include "frame/blocks.h"
#include "frame/scaling.h"
#include "frame/simd.h"
#include "frame/toolkit.h"

namespace orbs::ORBS_VARIANT {

// ---- Arrays of n parts ----

inline void Deliver(const Orb32f* sums, Orb16s* dst, Orb32s n, Orb32s scaleFactor) {
  VecConvert_32f16s_Sfs(sums, dst, n, RoundNear, scaleFactor);
}
inline void Deliver(const Orb64f* sums, Orb32s* dst, Orb32s n, Orb32s scaleFactor) {
  VecConvert_64f32s_Sfs(sums, dst, n, RoundNear, scaleFactor);
}
inline void Deliver(const Orb64f* sums, Orb32f* dst, Orb32s n, Orb32s) { VecConvert_64f32f(sums, dst, n); }
inline void Deliver(const Orb32f* sums, Orb32f* dst, Orb32s n, Orb32s) { VecCopy_32s(sums, dst, n); }
inline void Deliver(const Orb64f* sums, Orb64f* dst, Orb32s n, Orb32s) { VecCopy_64s(sums, dst, n); }

inline void Deliver(const Orb64f* sums, Orb16s* dst, Orb32s n, Orb32s scaleFactor) {
  const Orb64f factor = InversePowerOfTwoModulo128(scaleFactor);
#if ORBS_VECTOR
  constexpr int kBlock = 2 * I32::kLanes;
  const F64 scale = F64::All(factor);
  const auto convert = [scale](Orb16s* to, const Orb64f* from) {
    Orb32s rounded[kBlock];
    ORBS_UNROLL
    for (int i = 0; i < kBlock; i += F64::kLanes) {
      // Of a NaN and a number, Max gives the second operand: a NaN ends at the lower bound.
      const F64 y = Max(F64::Load(from + i) * scale, F64::All(-32768.0));
      StoreRounded(rounded + i, Min(y, F64::All(32767.0)));
    }
    StorePacked(to, I32::Load(rounded), I32::Load(rounded + I32::kLanes));
  };
  ForBlocks<kBlock>(static_cast<size_t>(n), convert, dst, sums);
#else
  for (Orb32s i = 0; i < n; ++i) dst[i] = FloatHalfAway<Orb16s>(sums[i] * factor);
#endif
}

// ---- Arrays of n parts, as the direct forms deliver them ----

#if ORBS_VECTOR

inline void DeliverDirect(const Orb64f* sums, Orb32f* dst, Orb32s n, Orb32s) {
  const auto convert = [](Orb32f* to, const Orb64f* from) {
    Narrow(F64::Load(from), F64::Load(from + F64::kLanes)).Store(to);
  };
  ForBlocks<F32::kLanes>(static_cast<size_t>(n), convert, dst, sums);
}

// sum * factor, limited to what Integer holds. Of a NaN and a number, Max gives the second operand: a NaN
// ends at the lower bound.
template <class Integer, class V>
ORBS_INLINE V ScaledAndLimited(V sum, V factor) {
  using Lane = typename V::Lane;
  constexpr auto kMin = static_cast<Lane>(std::numeric_limits<Integer>::min());
  constexpr auto kMax = static_cast<Lane>(std::numeric_limits<Integer>::max());
  return Min(Max(sum * factor, V::All(kMin)), V::All(kMax));
}

inline void DeliverDirect(const Orb32f* sums, Orb16s* dst, Orb32s n, Orb32s scaleFactor) {
  const F32 factor = F32::All(InversePowerOfTwoModulo128(scaleFactor));
  const auto rounded = [factor](const Orb32f* from) {
    return RoundHalfAwayToInt(ScaledAndLimited<Orb16s>(F32::Load(from), factor));
  };
  const auto convert = [rounded](Orb16s* to, const Orb32f* from) {
    StorePacked(to, rounded(from), rounded(from + I32::kLanes));
  };
  ForBlocks<2 * I32::kLanes>(static_cast<size_t>(n), convert, dst, sums);
}

template <class Integer>
ORBS_INLINE void StoreHalfAway(Orb32s* to, const Orb64f* from, F64 factor) {
  StoreTruncated(to, AwayFromZeroByHalf(ScaledAndLimited<Integer>(F64::Load(from), factor)));
}

inline void DeliverDirect(const Orb64f* sums, Orb32s* dst, Orb32s n, Orb32s scaleFactor) {
  const F64 factor = F64::All(InversePowerOfTwoModulo128(scaleFactor));
  const auto convert = [factor](Orb32s* to, const Orb64f* from) { StoreHalfAway<Orb32s>(to, from, factor); };
  ForBlocks<F64::kLanes>(static_cast<size_t>(n), convert, dst, sums);
}

inline void DeliverDirect(const Orb64f* sums, Orb16s* dst, Orb32s n, Orb32s scaleFactor) {
  constexpr int kBlock = 2 * I32::kLanes;
  const F64 factor = F64::All(InversePowerOfTwoModulo128(scaleFactor));
  const auto convert = [factor](Orb16s* to, const Orb64f* from) {
    Orb32s rounded[kBlock];
    ORBS_UNROLL
    for (int i = 0; i < kBlock; i += F64::kLanes) StoreHalfAway<Orb16s>(rounded + i, from + i, factor);
    StorePacked(to, I32::Load(rounded), I32::Load(rounded + I32::kLanes));
  };
  ForBlocks<kBlock>(static_cast<size_t>(n), convert, dst, sums);
}

#endif

// ---- One part ----

// `kHalfAway`: the rounding of px, and of a few forms of the other variants.
template <class Data, bool kHalfAway, class Sum>
ORBS_INLINE Data DeliverOne(Sum sum, Orb32s scaleFactor) {
  if constexpr (std::is_integral_v<Data>) {
    const Sum y = sum * static_cast<Sum>(InversePowerOfTwoModulo128(scaleFactor));
    return kHalfAway ? FloatHalfAway<Data>(y) : FloatNearEven<Data>(y);
  } else {
    return static_cast<Data>(sum);
  }
}

}  // namespace orbs::ORBS_VARIANT

#endif
