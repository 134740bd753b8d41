// Sums across the lanes of a vector. Those of integers wrap.
#ifndef ORBS_SIMD_REDUCE_H
#define ORBS_SIMD_REDUCE_H

#include <type_traits>

#include "core/scaling.h"
#include "simd/simd.h"

#if ORBS_VECTOR

namespace orbs::ORBS_VARIANT {

// The sum of all lanes, or of the even and of the odd ones, by halves: three additions deep, not seven.
template <int kParts, class V>
ORBS_INLINE void SumLanes(V a, typename V::Lane (&sums)[kParts]) {
  using Lane = typename V::Lane;
  Lane lanes[V::kLanes];
  a.Store(lanes);
  ORBS_UNROLL
  for (int half = V::kLanes / 2; half >= kParts; half /= 2) {
    ORBS_UNROLL
    for (int i = 0; i < half; ++i) {
      if constexpr (std::is_integral_v<Lane>) {
        lanes[i] = AddWrapping(lanes[i], lanes[i + half]);
      } else {
        lanes[i] += lanes[i + half];
      }
    }
  }
  for (int part = 0; part < kParts; ++part) sums[part] = lanes[part];
}

// The sum of all lanes, in each lane.
template <class V>
ORBS_INLINE V SumInAllLanes(V a) {
  a = a + Reverse(a);
  if constexpr (V::kLanes > 2) a = a + SwapPairs(a);
  if constexpr (V::kLanes > 4) a = a + SwapHalves(a);
  return a;
}

}  // namespace orbs::ORBS_VARIANT

#endif
#endif
