// A vector of elements of any type, converted to its lanes; exact.
#ifndef ORBS_SIMD_LOAD_H
#define ORBS_SIMD_LOAD_H

#include <type_traits>

#include "simd/simd.h"

#if ORBS_VECTOR

namespace orbs::ORBS_VARIANT {

template <class V, class T>
ORBS_INLINE V LoadAs(const T* p) {
  using Lane = typename V::Lane;
  if constexpr (std::is_same_v<T, Lane>) {
    return V::Load(p);
  } else if constexpr (std::is_same_v<Lane, Orb32f>) {
    std::conditional_t<std::is_same_v<V, F32>, I32, I32x4> integers;
    LoadWiden(p, &integers);
    return ToFloat(integers);
  } else {
    V lanes;
    LoadWiden(p, &lanes);
    return lanes;
  }
}

}  // namespace orbs::ORBS_VARIANT

#endif
#endif
