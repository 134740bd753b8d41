// The vector layer: thin types over the intrinsics of the variant's level, so that a kernel is written once
// for any lane count. Kernels name the native types and ask them for their kLanes:
//
// clang-format off
//            w7 v8 s8 p8     g9                    h9
//   F32      F32x4           F32x8                 F32x8          binary32
//   F64      F64x2           F64x4                 F64x4          binary64
//   I32      I32x4           I32x8 (two halves)    I32x8          as many 32-bit lanes as F32 has
//   I16      I16x8           I16x8                 I16x16         native integers: AVX alone has 128 bits of them
//   U8       U8x16           U8x16                 U8x32
//   N32      I32x4           I32x4                 I32x8          32-bit lanes in a register as wide as I16
// clang-format on
//
// px has no vectors and does not include this. Loads and stores are unaligned: on every level above w7 they
// cost nothing when the address is aligned, and callers' arrays carry no promise.
//
// Vectors never cross a call. A function that is not inlined takes numbers and broadcasts them itself;
// functions on vectors are ORBS_INLINE. Where one takes or gives back a vector of 256 bits, or a structure or
// closure that holds one, the compiler leaves out its vzeroupper, and its callers have none either: the
// library would return to SSE code with the upper halves in use, which many processors punish at every
// instruction.
#ifndef ORBS_SIMD_SIMD_H
#define ORBS_SIMD_SIMD_H

#include <type_traits>

#include "core/variant.h"

#if ORBS_VECTOR

#include "simd/sse.h"
#ifdef __AVX__
#include "simd/avx.h"
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
using Sum64 = Sum64x4;
#else
using I16 = I16x8;
using U8 = U8x16;
using N32 = I32x4;
using Sum64 = Sum64x2;
#endif

// What kernels may ask of the level: vectors of 256 bits, and a multiply-add that rounds once.
inline constexpr bool kHasAvx = sizeof(F32) == 32;
#ifdef __FMA__
inline constexpr bool kHasFma = true;
#else
inline constexpr bool kHasFma = false;
#endif

template <class Lane>
struct VectorFor;
template <>
struct VectorFor<Orb32f> {
  using Type = F32;
};
template <>
struct VectorFor<Orb64f> {
  using Type = F64;
};
// The native vector of a floating-point type.
template <class Lane>
using VectorOf = typename VectorFor<Lane>::Type;

// A loaded vector that is used more than once: the compiler would rather name the memory again in each use,
// which is a load each.
template <class V>
ORBS_INLINE V LoadOnce(const typename V::Lane* p) {
  V x = V::Load(p);
  asm("" : "+x"(x.v));
  return x;
}

// The first `count` lanes of a vector, 0 < count < kLanes, and zeros.
template <class V>
ORBS_INLINE V FirstLanes(V a, size_t count) {
  using Bits = std::conditional_t<sizeof(typename V::Lane) == 4, Orb32s, Orb64s>;
  static constexpr Bits kMask[16] = {-1, -1, -1, -1, -1, -1, -1, -1};
  return a & V::Load(reinterpret_cast<const typename V::Lane*>(kMask + 8 - count));
}

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

// What truncation turns into rounding to nearest with ties away from zero: y plus the number just below 0.5,
// with the sign of y. 0.5 itself would carry 0.49999997 to 1; its neighbour does not, and a tie still reaches
// the next integer when the sum is rounded.
ORBS_INLINE F32 AwayFromZeroByHalf(F32 y) { return y + ((y & F32::All(-0.0f)) | F32::All(0.49999997f)); }
ORBS_INLINE F64 AwayFromZeroByHalf(F64 y) {
  return y + ((y & F64::All(-0.0)) | F64::All(0.49999999999999994));
}
ORBS_INLINE I32 RoundHalfAwayToInt(F32 y) { return TruncateToInt(AwayFromZeroByHalf(y)); }

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
