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

#include "core/scaling.h"
#include "fir/kinds.h"
#include "simd/blocks.h"
#include "simd/round_scaled.h"
#include "simd/simd.h"
#include "toolkit/toolkit.h"

namespace orbs::ORBS_VARIANT::fir {

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
  RoundTimes<RoundNear>(sums, dst, static_cast<size_t>(n), factor);
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

template <class Sum, class Integer>
void DeliverDirect(const Sum* sums, Integer* dst, Orb32s n, Orb32s scaleFactor) {
  const Sum factor = InversePowerOfTwoModulo128(scaleFactor);
  RoundTimes<RoundHalfAway>(sums, dst, static_cast<size_t>(n), factor);
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

}  // namespace orbs::ORBS_VARIANT::fir

#endif
