// The conversions of the integer transforms, by the types of their arrays.
#ifndef ORBS_TRANSFORM_INTEGER_CONVERT_H
#define ORBS_TRANSFORM_INTEGER_CONVERT_H

#include "core/variant.h"
#include "toolkit/toolkit.h"
#include "transform/engine/data.h"

namespace orbs::ORBS_VARIANT::transform {

ORBS_INLINE void Widen(const Orb16s* src, Orb32f* dst, Orb32s n) { VecConvert_16s32f(src, dst, n); }
ORBS_INLINE void Widen(const Orb32s* src, Orb32f* dst, Orb32s n) { VecConvert_32s32f(src, dst, n); }
ORBS_INLINE void Widen(const Orb32s* src, Orb64f* dst, Orb32s n) { VecConvert_32s64f(src, dst, n); }

ORBS_INLINE void Narrow(const Orb32f* src, Orb16s* dst, Orb32s n, Orb32s scaleFactor) {
  VecConvert_32f16s_Sfs(src, dst, n, RoundNear, scaleFactor);
}
ORBS_INLINE void Narrow(const Orb32f* src, Orb32s* dst, Orb32s n, Orb32s scaleFactor) {
  VecConvert_32f32s_Sfs(src, dst, n, RoundNear, scaleFactor);
}
ORBS_INLINE void Narrow(const Orb64f* src, Orb32s* dst, Orb32s n, Orb32s scaleFactor) {
  VecConvert_64f32s_Sfs(src, dst, n, RoundNear, scaleFactor);
}

// The shift that ends the fixed-point path. The sum can pass 2^31 - 1; the number of places counts modulo 32,
// so 32 fewer are the same shift to the right.
ORBS_INLINE Orb32s TotalShift(Orb32s scaleFactor, Orb32s places) {
  const Orb64s total = Orb64s{scaleFactor} + places;
  return static_cast<Orb32s>(total > INT32_MAX ? total - 32 : total);
}

// What all 16-bit transforms do at order 0: the scale factor alone.
template <int kCount>
ORBS_INLINE void CopyScaled(const Orb16s (&src)[kCount], Orb16s* dst, Orb32s scaleFactor) {
  Orb32s wide[kCount];
  VecShiftL_16s32s(src, wide, kCount, 0);
  VecConvert_32s16s_Sfs(wide, dst, kCount, scaleFactor);
}

}  // namespace orbs::ORBS_VARIANT::transform

#endif
