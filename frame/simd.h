// The vector layer: thin types over the intrinsics of the variant's level, so that a kernel is written once
// for any lane count. Kernels name the native types and ask them for their kLanes:
//
//            w7 v8 s8 p8     g9                    h9
//   F32      F32x4           F32x8                 F32x8          binary32
//   F64      F64x2           F64x4                 F64x4          binary64
//   I32      I32x4           I32x8 (two halves)    I32x8          as many 32-bit lanes as F32 has
//   I16      I16x8           I16x8                 I16x16         native integer vectors: AVX alone has 128
//   bits U8       U8x16           U8x16                 U8x32 N32      I32x4           I32x4 I32x8 32-bit
//   lanes of the same register width as I16
//
// px has no vectors and does not include this. Loads and stores are unaligned: on every level above w7 they
// cost nothing when the address is aligned, and callers' arrays carry no promise.
#ifndef ORBS_FRAME_SIMD_H
#define ORBS_FRAME_SIMD_H

#include "frame/variant.h"

#if ORBS_VECTOR

#include "frame/simd/sse.h"
#ifdef __AVX__
#include "frame/simd/avx.h"
#endif

namespace orbs::ORBS_VARIANT {

#if defined(__AVX__)
using F32 = F32x8;
using F64 = F64x4;
using I32 = I32x8;
#else
using F32 = F32x4;
using F64 = F64x2;
using I32 = I32x4;
#endif

#if defined(__AVX2__)
using I16 = I16x16;
using U8 = U8x32;
using N32 = I32x8;
#else
using I16 = I16x8;
using U8 = U8x16;
using N32 = I32x4;
#endif

// Complex product of interleaved pairs: (a.re b.re - a.im b.im, a.re b.im + a.im b.re).
template <class V>
ORBS_INLINE V MulComplex(V a, V b) {
  return MulAddSub(DupEven(a), b, DupOdd(a) * SwapPairs(b));
}

// a times the conjugate of b: (a.re b.re + a.im b.im, a.im b.re - a.re b.im).
template <class V>
ORBS_INLINE V MulConjugate(V a, V b) {
  return MulSubAdd(DupEven(b), a, DupOdd(b) * SwapPairs(a));
}

// To nearest, ties away from zero; out of range and NaN give -2^31. See RoundHalfAwayToInt in scaling.h.
ORBS_INLINE I32 RoundHalfAwayToInt(F32 y) {
  const I32 whole = TruncateToInt(y);
  const F32 fraction = y - ToFloat(whole);
  return whole - AsInt(LessEqual(F32::All(0.5f), fraction)) + AsInt(LessEqual(fraction, F32::All(-0.5f)));
}

// One I16 from the I32 that get(offset) gives for each offset, with saturation.
template <class Get>
ORBS_INLINE I16 PackFrom(Get get) {
  const auto first = get(0);
  if constexpr (I16::kLanes == I32::kLanes) {
    return Pack(first.low, first.high);
  } else {
    return Pack(first, get(I32::kLanes));
  }
}

}  // namespace orbs::ORBS_VARIANT

#endif
#endif
