// How the sums of a FIR filter become results of the data type: for arrays, as block filters need it, and for
// one result.
//
//   block forms      32f to 16s and 64f to 32s   FloatNearEven, any scale factor
//                    64f to 16s                  FloatHalfAway in px, FloatNearEven elsewhere
//                    64f to 32f                  limited to the finite range
//   one-sample       integers                    FloatHalfAway in px, FloatNearEven elsewhere
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
