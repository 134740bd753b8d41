// 128-bit vectors, SSE2 to SSE4.1. Where a level has an instruction that the one below lacks, the function
// says so inside; kernels do not ask.
#ifndef ORBS_SIMD_SSE_H
#define ORBS_SIMD_SSE_H

// The narrowest header of the level: the one for all of them takes half a second in every file.
#if defined(__AVX__)
#include <immintrin.h>
#elif defined(__SSE4_1__)
#include <smmintrin.h>
#elif defined(__SSSE3__)
#include <tmmintrin.h>
#else
#include <emmintrin.h>
#endif

#include "core/variant.h"
#include "orbs90lgc/types.h"

namespace orbs::ORBS_VARIANT {

struct F32x4 {
  using Lane = Orb32f;
  static constexpr int kLanes = 4;
  __m128 v;
  static ORBS_INLINE F32x4 Load(const Orb32f* p) { return {_mm_loadu_ps(p)}; }
  static ORBS_INLINE F32x4 All(Orb32f x) { return {_mm_set1_ps(x)}; }
  static ORBS_INLINE F32x4 Zero() { return {_mm_setzero_ps()}; }
  ORBS_INLINE void Store(Orb32f* p) const { _mm_storeu_ps(p, v); }
};

struct F64x2 {
  using Lane = Orb64f;
  static constexpr int kLanes = 2;
  __m128d v;
  static ORBS_INLINE F64x2 Load(const Orb64f* p) { return {_mm_loadu_pd(p)}; }
  static ORBS_INLINE F64x2 All(Orb64f x) { return {_mm_set1_pd(x)}; }
  static ORBS_INLINE F64x2 Zero() { return {_mm_setzero_pd()}; }
  ORBS_INLINE void Store(Orb64f* p) const { _mm_storeu_pd(p, v); }
};

struct I32x4 {
  using Lane = Orb32s;
  static constexpr int kLanes = 4;
  __m128i v;
  static ORBS_INLINE I32x4 Load(const Orb32s* p) {
    return {_mm_loadu_si128(reinterpret_cast<const __m128i*>(p))};
  }
  static ORBS_INLINE I32x4 All(Orb32s x) { return {_mm_set1_epi32(x)}; }
  static ORBS_INLINE I32x4 Zero() { return {_mm_setzero_si128()}; }
  ORBS_INLINE void Store(Orb32s* p) const { _mm_storeu_si128(reinterpret_cast<__m128i*>(p), v); }
};

struct I16x8 {
  using Lane = Orb16s;
  static constexpr int kLanes = 8;
  __m128i v;
  static ORBS_INLINE I16x8 Load(const Orb16s* p) {
    return {_mm_loadu_si128(reinterpret_cast<const __m128i*>(p))};
  }
  static ORBS_INLINE I16x8 All(Orb16s x) { return {_mm_set1_epi16(x)}; }
  static ORBS_INLINE I16x8 Zero() { return {_mm_setzero_si128()}; }
  ORBS_INLINE void Store(Orb16s* p) const { _mm_storeu_si128(reinterpret_cast<__m128i*>(p), v); }
};

struct U8x16 {
  using Lane = Orb8u;
  static constexpr int kLanes = 16;
  __m128i v;
  static ORBS_INLINE U8x16 Load(const Orb8u* p) {
    return {_mm_loadu_si128(reinterpret_cast<const __m128i*>(p))};
  }
  static ORBS_INLINE U8x16 All(Orb8u x) { return {_mm_set1_epi8(static_cast<char>(x))}; }
  ORBS_INLINE void Store(Orb8u* p) const { _mm_storeu_si128(reinterpret_cast<__m128i*>(p), v); }
};

// ---- binary32 and binary64, the same set for both ----
//
// Min and Max give their second operand when either is a NaN, as the instructions do; so Min(bound, x) and
// Max(bound, x) let a NaN in x pass. MulAdd is fused in h9 and two roundings elsewhere.

#define ORBS_FLOAT_OPERATIONS(F, s)                                           \
  ORBS_INLINE F operator+(F a, F b) { return {_mm_add_##s(a.v, b.v)}; }       \
  ORBS_INLINE F operator-(F a, F b) { return {_mm_sub_##s(a.v, b.v)}; }       \
  ORBS_INLINE F operator*(F a, F b) { return {_mm_mul_##s(a.v, b.v)}; }       \
  ORBS_INLINE F operator/(F a, F b) { return {_mm_div_##s(a.v, b.v)}; }       \
  ORBS_INLINE F operator&(F a, F b) { return {_mm_and_##s(a.v, b.v)}; }       \
  ORBS_INLINE F operator|(F a, F b) { return {_mm_or_##s(a.v, b.v)}; }        \
  ORBS_INLINE F operator^(F a, F b) { return {_mm_xor_##s(a.v, b.v)}; }       \
  ORBS_INLINE F AndNot(F mask, F a) { return {_mm_andnot_##s(mask.v, a.v)}; } \
  ORBS_INLINE F Min(F a, F b) { return {_mm_min_##s(a.v, b.v)}; }             \
  ORBS_INLINE F Max(F a, F b) { return {_mm_max_##s(a.v, b.v)}; }             \
  ORBS_INLINE F Sqrt(F a) { return {_mm_sqrt_##s(a.v)}; }                     \
  ORBS_INLINE F Less(F a, F b) { return {_mm_cmplt_##s(a.v, b.v)}; }          \
  ORBS_INLINE F LessEqual(F a, F b) { return {_mm_cmple_##s(a.v, b.v)}; }     \
  ORBS_INLINE F Equal(F a, F b) { return {_mm_cmpeq_##s(a.v, b.v)}; }         \
  ORBS_INLINE F IsNan(F a) { return {_mm_cmpunord_##s(a.v, a.v)}; }           \
  ORBS_INLINE int SignBits(F a) { return _mm_movemask_##s(a.v); }

ORBS_FLOAT_OPERATIONS(F32x4, ps)
ORBS_FLOAT_OPERATIONS(F64x2, pd)
#undef ORBS_FLOAT_OPERATIONS

// mask lane all ones: a, all zeros: b.
template <class F>
ORBS_INLINE F Select(F mask, F a, F b) {
  return (mask & a) | AndNot(mask, b);
}

#ifdef __FMA__
ORBS_INLINE F32x4 MulAdd(F32x4 a, F32x4 b, F32x4 c) { return {_mm_fmadd_ps(a.v, b.v, c.v)}; }
ORBS_INLINE F64x2 MulAdd(F64x2 a, F64x2 b, F64x2 c) { return {_mm_fmadd_pd(a.v, b.v, c.v)}; }
#else
ORBS_INLINE F32x4 MulAdd(F32x4 a, F32x4 b, F32x4 c) { return a * b + c; }
ORBS_INLINE F64x2 MulAdd(F64x2 a, F64x2 b, F64x2 c) { return a * b + c; }
#endif

// c - a b.
#ifdef __FMA__
ORBS_INLINE F32x4 NegMulAdd(F32x4 a, F32x4 b, F32x4 c) { return {_mm_fnmadd_ps(a.v, b.v, c.v)}; }
ORBS_INLINE F64x2 NegMulAdd(F64x2 a, F64x2 b, F64x2 c) { return {_mm_fnmadd_pd(a.v, b.v, c.v)}; }
#else
ORBS_INLINE F32x4 NegMulAdd(F32x4 a, F32x4 b, F32x4 c) { return c - a * b; }
ORBS_INLINE F64x2 NegMulAdd(F64x2 a, F64x2 b, F64x2 c) { return c - a * b; }
#endif

// 1 / a within 1.5 * 2^-12.
ORBS_INLINE F32x4 ReciprocalEstimate(F32x4 a) { return {_mm_rcp_ps(a.v)}; }

// Even lanes over odd ones, odd over even, pairs swapped, the order of lanes or of pairs reversed.
#ifdef __SSE3__
ORBS_INLINE F32x4 DupEven(F32x4 a) { return {_mm_moveldup_ps(a.v)}; }
ORBS_INLINE F32x4 DupOdd(F32x4 a) { return {_mm_movehdup_ps(a.v)}; }
#else
ORBS_INLINE F32x4 DupEven(F32x4 a) { return {_mm_shuffle_ps(a.v, a.v, _MM_SHUFFLE(2, 2, 0, 0))}; }
ORBS_INLINE F32x4 DupOdd(F32x4 a) { return {_mm_shuffle_ps(a.v, a.v, _MM_SHUFFLE(3, 3, 1, 1))}; }
#endif
ORBS_INLINE F32x4 SwapPairs(F32x4 a) { return {_mm_shuffle_ps(a.v, a.v, _MM_SHUFFLE(2, 3, 0, 1))}; }
ORBS_INLINE F32x4 Reverse(F32x4 a) { return {_mm_shuffle_ps(a.v, a.v, _MM_SHUFFLE(0, 1, 2, 3))}; }
ORBS_INLINE F32x4 ReversePairs(F32x4 a) { return {_mm_shuffle_ps(a.v, a.v, _MM_SHUFFLE(1, 0, 3, 2))}; }
ORBS_INLINE F64x2 DupEven(F64x2 a) { return {_mm_unpacklo_pd(a.v, a.v)}; }
ORBS_INLINE F64x2 DupOdd(F64x2 a) { return {_mm_unpackhi_pd(a.v, a.v)}; }
ORBS_INLINE F64x2 SwapPairs(F64x2 a) { return {_mm_shuffle_pd(a.v, a.v, 1)}; }
ORBS_INLINE F64x2 Reverse(F64x2 a) { return SwapPairs(a); }
ORBS_INLINE F64x2 ReversePairs(F64x2 a) { return a; }

// The sign bit in the odd lanes: what a conjugate flips.
ORBS_INLINE F32x4 OddSigns(F32x4*) { return {_mm_castsi128_ps(_mm_set_epi32(INT32_MIN, 0, INT32_MIN, 0))}; }
ORBS_INLINE F64x2 OddSigns(F64x2*) { return {_mm_set_pd(-0.0, 0.0)}; }
ORBS_INLINE F32x4 EvenSigns(F32x4*) { return {_mm_castsi128_ps(_mm_set_epi32(0, INT32_MIN, 0, INT32_MIN))}; }
ORBS_INLINE F64x2 EvenSigns(F64x2*) { return {_mm_set_pd(0.0, -0.0)}; }

// Square transposition of pairs: lane pair c of vector r changes places with lane pair r of vector c.
ORBS_INLINE void TransposePairs(F32x4 (&rows)[2]) {
  const __m128d a = _mm_castps_pd(rows[0].v);
  const __m128d b = _mm_castps_pd(rows[1].v);
  rows[0] = {_mm_castpd_ps(_mm_unpacklo_pd(a, b))};
  rows[1] = {_mm_castpd_ps(_mm_unpackhi_pd(a, b))};
}
ORBS_INLINE void TransposePairs(F64x2 (&)[1]) {}

// One pair in all pairs of a vector.
ORBS_INLINE void LoadPairToAll(const Orb32f* pair, F32x4* out) {
  const __m128i p = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(pair));
  *out = {_mm_castsi128_ps(_mm_unpacklo_epi64(p, p))};
}
ORBS_INLINE void LoadPairToAll(const Orb64f* pair, F64x2* out) { *out = F64x2::Load(pair); }

// Separate parts to interleaved pairs and back, one vector of pairs.
ORBS_INLINE void LoadPairs(const Orb32f* re, const Orb32f* im, F32x4* out) {
  const __m128 r = _mm_castsi128_ps(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(re)));
  const __m128 i = _mm_castsi128_ps(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(im)));
  *out = {_mm_unpacklo_ps(r, i)};
}
ORBS_INLINE void LoadPairs(const Orb64f* re, const Orb64f* im, F64x2* out) { *out = {_mm_set_pd(*im, *re)}; }
ORBS_INLINE void StorePairs(Orb32f* re, Orb32f* im, F32x4 a) {
  const __m128i parts = _mm_castps_si128(_mm_shuffle_ps(a.v, a.v, _MM_SHUFFLE(3, 1, 2, 0)));
  _mm_storel_epi64(reinterpret_cast<__m128i*>(re), parts);
  _mm_storel_epi64(reinterpret_cast<__m128i*>(im), _mm_unpackhi_epi64(parts, parts));
}
ORBS_INLINE void StorePairs(Orb64f* re, Orb64f* im, F64x2 a) {
  _mm_storel_pd(re, a.v);
  _mm_storeh_pd(im, a.v);
}

template <class F>
ORBS_INLINE F Conjugate(F a) {
  return a ^ OddSigns(static_cast<F*>(nullptr));
}

// a b -+ c in even and odd lanes (MulAddSub) and a b +- c (MulSubAdd).
#if defined(__FMA__)
ORBS_INLINE F32x4 MulAddSub(F32x4 a, F32x4 b, F32x4 c) { return {_mm_fmaddsub_ps(a.v, b.v, c.v)}; }
ORBS_INLINE F64x2 MulAddSub(F64x2 a, F64x2 b, F64x2 c) { return {_mm_fmaddsub_pd(a.v, b.v, c.v)}; }
ORBS_INLINE F32x4 MulSubAdd(F32x4 a, F32x4 b, F32x4 c) { return {_mm_fmsubadd_ps(a.v, b.v, c.v)}; }
ORBS_INLINE F64x2 MulSubAdd(F64x2 a, F64x2 b, F64x2 c) { return {_mm_fmsubadd_pd(a.v, b.v, c.v)}; }
#elif defined(__SSE3__)
ORBS_INLINE F32x4 MulAddSub(F32x4 a, F32x4 b, F32x4 c) { return {_mm_addsub_ps((a * b).v, c.v)}; }
ORBS_INLINE F64x2 MulAddSub(F64x2 a, F64x2 b, F64x2 c) { return {_mm_addsub_pd((a * b).v, c.v)}; }
template <class F>
ORBS_INLINE F MulSubAdd(F a, F b, F c) {
  return a * b + Conjugate(c);
}
#else
template <class F>
ORBS_INLINE F MulAddSub(F a, F b, F c) {
  return a * b + (c ^ EvenSigns(static_cast<F*>(nullptr)));
}
template <class F>
ORBS_INLINE F MulSubAdd(F a, F b, F c) {
  return a * b + Conjugate(c);
}
#endif

// ---- 64-bit integers that live in binary64 lanes: the exponent work of logarithm and exponential ----

ORBS_INLINE F64x2 ShiftLeft64(F64x2 a, int n) {
  return {_mm_castsi128_pd(_mm_slli_epi64(_mm_castpd_si128(a.v), n))};
}
ORBS_INLINE F64x2 ShiftRight64(F64x2 a, int n) {
  return {_mm_castsi128_pd(_mm_srli_epi64(_mm_castpd_si128(a.v), n))};
}
ORBS_INLINE F64x2 Add64(F64x2 a, F64x2 b) {
  return {_mm_castsi128_pd(_mm_add_epi64(_mm_castpd_si128(a.v), _mm_castpd_si128(b.v)))};
}

// ---- 32-bit integers ----

ORBS_INLINE I32x4 operator+(I32x4 a, I32x4 b) { return {_mm_add_epi32(a.v, b.v)}; }
ORBS_INLINE I32x4 operator-(I32x4 a, I32x4 b) { return {_mm_sub_epi32(a.v, b.v)}; }
ORBS_INLINE I32x4 operator&(I32x4 a, I32x4 b) { return {_mm_and_si128(a.v, b.v)}; }
ORBS_INLINE I32x4 operator|(I32x4 a, I32x4 b) { return {_mm_or_si128(a.v, b.v)}; }
ORBS_INLINE I32x4 operator^(I32x4 a, I32x4 b) { return {_mm_xor_si128(a.v, b.v)}; }
ORBS_INLINE I32x4 AndNot(I32x4 mask, I32x4 a) { return {_mm_andnot_si128(mask.v, a.v)}; }
ORBS_INLINE I32x4 Greater(I32x4 a, I32x4 b) { return {_mm_cmpgt_epi32(a.v, b.v)}; }
ORBS_INLINE I32x4 Equal(I32x4 a, I32x4 b) { return {_mm_cmpeq_epi32(a.v, b.v)}; }
// Shift counts of 32 and more give 0, or the sign for the arithmetic shift.
ORBS_INLINE I32x4 ShiftLeft(I32x4 a, int n) { return {_mm_slli_epi32(a.v, n)}; }
ORBS_INLINE I32x4 ShiftRight(I32x4 a, int n) { return {_mm_srai_epi32(a.v, n)}; }
ORBS_INLINE I32x4 ShiftRightLogical(I32x4 a, int n) { return {_mm_srli_epi32(a.v, n)}; }
// The low 32 bits of the product.
ORBS_INLINE I32x4 operator*(I32x4 a, I32x4 b) {
#ifdef __SSE4_1__
  return {_mm_mullo_epi32(a.v, b.v)};
#else
  const __m128i even = _mm_mul_epu32(a.v, b.v);
  const __m128i odd = _mm_mul_epu32(_mm_srli_epi64(a.v, 32), _mm_srli_epi64(b.v, 32));
  return {_mm_unpacklo_epi32(_mm_shuffle_epi32(even, _MM_SHUFFLE(3, 1, 2, 0)),
                             _mm_shuffle_epi32(odd, _MM_SHUFFLE(3, 1, 2, 0)))};
#endif
}

ORBS_INLINE F32x4 AsFloat(I32x4 a) { return {_mm_castsi128_ps(a.v)}; }
ORBS_INLINE I32x4 AsInt(F32x4 a) { return {_mm_castps_si128(a.v)}; }

// Lane j from lane (j + n) mod 4.
template <int n>
ORBS_INLINE I32x4 TurnLanes(I32x4 a) {
  return {_mm_shuffle_epi32(a.v, _MM_SHUFFLE((n + 3) & 3, (n + 2) & 3, (n + 1) & 3, n & 3))};
}

// ---- 16-bit integers ----

ORBS_INLINE I16x8 operator+(I16x8 a, I16x8 b) { return {_mm_add_epi16(a.v, b.v)}; }
ORBS_INLINE I16x8 operator-(I16x8 a, I16x8 b) { return {_mm_sub_epi16(a.v, b.v)}; }
ORBS_INLINE I16x8 operator&(I16x8 a, I16x8 b) { return {_mm_and_si128(a.v, b.v)}; }
ORBS_INLINE I16x8 operator|(I16x8 a, I16x8 b) { return {_mm_or_si128(a.v, b.v)}; }
ORBS_INLINE I16x8 operator^(I16x8 a, I16x8 b) { return {_mm_xor_si128(a.v, b.v)}; }
ORBS_INLINE I16x8 AndNot(I16x8 mask, I16x8 a) { return {_mm_andnot_si128(mask.v, a.v)}; }
ORBS_INLINE I16x8 MulLow(I16x8 a, I16x8 b) { return {_mm_mullo_epi16(a.v, b.v)}; }
ORBS_INLINE I16x8 Min(I16x8 a, I16x8 b) { return {_mm_min_epi16(a.v, b.v)}; }
ORBS_INLINE I16x8 Max(I16x8 a, I16x8 b) { return {_mm_max_epi16(a.v, b.v)}; }
ORBS_INLINE I16x8 Greater(I16x8 a, I16x8 b) { return {_mm_cmpgt_epi16(a.v, b.v)}; }
template <int n>
ORBS_INLINE I16x8 ShiftLeft(I16x8 a) {
  return {_mm_slli_epi16(a.v, n)};
}
template <int n>
ORBS_INLINE I16x8 ShiftRight(I16x8 a) {
  return {_mm_srai_epi16(a.v, n)};
}
template <int n>
ORBS_INLINE I16x8 ShiftRightLogical(I16x8 a) {
  return {_mm_srli_epi16(a.v, n)};
}
// Sums of the products of neighbouring lanes.
ORBS_INLINE I32x4 MulAddPairs(I16x8 a, I16x8 b) { return {_mm_madd_epi16(a.v, b.v)}; }
ORBS_INLINE I16x8 SubtractSaturating(I16x8 a, I16x8 b) { return {_mm_subs_epi16(a.v, b.v)}; }
// A pair of lanes seen as one of 32 bits, the even lane in its low half; and back.
ORBS_INLINE I32x4 As32(I16x8 a) { return {a.v}; }
ORBS_INLINE I16x8 As16(I32x4 a) { return {a.v}; }
// Pairs swapped, and the order of pairs reversed.
ORBS_INLINE I16x8 SwapPairs(I16x8 a) {
  constexpr int kSwapped = _MM_SHUFFLE(2, 3, 0, 1);
  return {_mm_shufflehi_epi16(_mm_shufflelo_epi16(a.v, kSwapped), kSwapped)};
}
ORBS_INLINE I16x8 ReversePairs(I16x8 a) { return {_mm_shuffle_epi32(a.v, _MM_SHUFFLE(0, 1, 2, 3))}; }
ORBS_INLINE I16x8 Reverse(I16x8 a) {
#ifdef __SSSE3__
  return {_mm_shuffle_epi8(a.v, _mm_setr_epi8(14, 15, 12, 13, 10, 11, 8, 9, 6, 7, 4, 5, 2, 3, 0, 1))};
#else
  return SwapPairs(ReversePairs(a));
#endif
}

// ---- 8-bit integers; Greater compares signed ----

ORBS_INLINE U8x16 operator+(U8x16 a, U8x16 b) { return {_mm_add_epi8(a.v, b.v)}; }
ORBS_INLINE U8x16 operator-(U8x16 a, U8x16 b) { return {_mm_sub_epi8(a.v, b.v)}; }
ORBS_INLINE U8x16 operator&(U8x16 a, U8x16 b) { return {_mm_and_si128(a.v, b.v)}; }
ORBS_INLINE U8x16 operator|(U8x16 a, U8x16 b) { return {_mm_or_si128(a.v, b.v)}; }
ORBS_INLINE U8x16 operator^(U8x16 a, U8x16 b) { return {_mm_xor_si128(a.v, b.v)}; }
ORBS_INLINE U8x16 Min(U8x16 a, U8x16 b) { return {_mm_min_epu8(a.v, b.v)}; }
ORBS_INLINE U8x16 Average(U8x16 a, U8x16 b) { return {_mm_avg_epu8(a.v, b.v)}; }
ORBS_INLINE U8x16 Greater(U8x16 a, U8x16 b) { return {_mm_cmpgt_epi8(a.v, b.v)}; }
template <int n>
ORBS_INLINE U8x16 ShiftLeftAndMask(U8x16 a) {
  return {_mm_and_si128(_mm_slli_epi16(a.v, n), _mm_set1_epi8(static_cast<char>(0xFF << n)))};
}
ORBS_INLINE U8x16 HighNibbles(U8x16 a) { return {_mm_and_si128(_mm_srli_epi16(a.v, 4), _mm_set1_epi8(15))}; }

// ---- Conversions ----

ORBS_INLINE F32x4 ToFloat(I32x4 a) { return {_mm_cvtepi32_ps(a.v)}; }
// By the processor's rounding mode, and toward zero. Out of range and NaN give -2^31.
ORBS_INLINE I32x4 RoundToInt(F32x4 a) { return {_mm_cvtps_epi32(a.v)}; }
ORBS_INLINE I32x4 TruncateToInt(F32x4 a) { return {_mm_cvttps_epi32(a.v)}; }

// As many elements as the result has lanes, widened (32 bits to 32 bits: loaded, for kernels that take any
// source).
ORBS_INLINE void LoadWiden(const Orb32s* p, I32x4* out) { *out = I32x4::Load(p); }
ORBS_INLINE void LoadWiden(const Orb16s* p, I32x4* out) {
  const __m128i x = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(p));
#ifdef __SSE4_1__
  *out = {_mm_cvtepi16_epi32(x)};
#else
  *out = {_mm_srai_epi32(_mm_unpacklo_epi16(x, x), 16)};
#endif
}
ORBS_INLINE void LoadWiden(const Orb8s* p, I32x4* out) {
  const __m128i x = _mm_loadu_si32(p);
#ifdef __SSE4_1__
  *out = {_mm_cvtepi8_epi32(x)};
#else
  const __m128i twice = _mm_unpacklo_epi8(x, x);
  *out = {_mm_srai_epi32(_mm_unpacklo_epi16(twice, twice), 24)};
#endif
}
ORBS_INLINE void LoadWiden(const Orb8u* p, I32x4* out) {
  const __m128i x = _mm_loadu_si32(p);
#ifdef __SSE4_1__
  *out = {_mm_cvtepu8_epi32(x)};
#else
  const __m128i zero = _mm_setzero_si128();
  *out = {_mm_unpacklo_epi16(_mm_unpacklo_epi8(x, zero), zero)};
#endif
}
ORBS_INLINE void LoadWiden(const Orb32s* p, F64x2* out) {
  *out = {_mm_cvtepi32_pd(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p)))};
}
ORBS_INLINE void LoadWiden(const Orb32f* p, F64x2* out) {
  *out = {_mm_cvtps_pd(_mm_castsi128_ps(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p))))};
}
ORBS_INLINE void LoadWiden(const Orb16s* p, F64x2* out) {
  const __m128i x = _mm_loadu_si32(p);
  *out = {_mm_cvtepi32_pd(_mm_srai_epi32(_mm_unpacklo_epi16(x, x), 16))};
}

// As many elements as the source has lanes, narrowed.
ORBS_INLINE void StoreNarrow(Orb32f* p, F64x2 a) {
  _mm_storel_epi64(reinterpret_cast<__m128i*>(p), _mm_castps_si128(_mm_cvtpd_ps(a.v)));
}
// Two vectors rounded to one of twice the lanes.
ORBS_INLINE F32x4 Narrow(F64x2 low, F64x2 high) {
  return {_mm_movelh_ps(_mm_cvtpd_ps(low.v), _mm_cvtpd_ps(high.v))};
}
ORBS_INLINE void StoreRounded(Orb32s* p, F64x2 a) {
  _mm_storel_epi64(reinterpret_cast<__m128i*>(p), _mm_cvtpd_epi32(a.v));
}
ORBS_INLINE void StoreTruncated(Orb32s* p, F64x2 a) {
  _mm_storel_epi64(reinterpret_cast<__m128i*>(p), _mm_cvttpd_epi32(a.v));
}
ORBS_INLINE I32x4 TruncateToInt(F64x2 low, F64x2 high) {
  return {_mm_unpacklo_epi64(_mm_cvttpd_epi32(low.v), _mm_cvttpd_epi32(high.v))};
}

// Two vectors narrowed to one with saturation, in order.
ORBS_INLINE I16x8 Pack(I32x4 a, I32x4 b) { return {_mm_packs_epi32(a.v, b.v)}; }
ORBS_INLINE U8x16 Pack(I16x8 a, I16x8 b) { return {_mm_packus_epi16(a.v, b.v)}; }
ORBS_INLINE void StorePacked(Orb16s* p, I32x4 a, I32x4 b) { Pack(a, b).Store(p); }
ORBS_INLINE void StorePacked(Orb16s* p, I32x4 a) {
  _mm_storel_epi64(reinterpret_cast<__m128i*>(p), _mm_packs_epi32(a.v, a.v));
}

// Separate parts of integers to pairs, widened, and back.
ORBS_INLINE void LoadPairs(const Orb16s* re, const Orb16s* im, I32x4* out) {
  const __m128i x = _mm_unpacklo_epi16(_mm_loadu_si32(re), _mm_loadu_si32(im));
  *out = {_mm_srai_epi32(_mm_unpacklo_epi16(x, x), 16)};
}
ORBS_INLINE void LoadPairs(const Orb32s* re, const Orb32s* im, F64x2* out) {
  *out = {_mm_cvtepi32_pd(_mm_unpacklo_epi32(_mm_loadu_si32(re), _mm_loadu_si32(im)))};
}
ORBS_INLINE void StorePackedPairs(Orb16s* re, Orb16s* im, I32x4 a) {
  const __m128i parts = _mm_shufflelo_epi16(_mm_packs_epi32(a.v, a.v), _MM_SHUFFLE(3, 1, 2, 0));
  _mm_storeu_si32(re, parts);
  _mm_storeu_si32(im, _mm_srli_epi64(parts, 32));
}
ORBS_INLINE void StoreRoundedPairs(Orb32s* re, Orb32s* im, F64x2 a) {
  const __m128i parts = _mm_cvtpd_epi32(a.v);
  _mm_storeu_si32(re, parts);
  _mm_storeu_si32(im, _mm_srli_epi64(parts, 32));
}

// The zero-extended halves of a 16-bit vector and back. "In lanes": a pair that fits together, without the
// permutations that the order of elements costs on 256 bits.
ORBS_INLINE void WidenInLanes(I16x8 a, I32x4* low, I32x4* high) {
  const __m128i zero = _mm_setzero_si128();
  *low = {_mm_unpacklo_epi16(a.v, zero)};
  *high = {_mm_unpackhi_epi16(a.v, zero)};
}
ORBS_INLINE I16x8 PackInLanes(I32x4 a, I32x4 b) { return Pack(a, b); }

ORBS_INLINE void StoreInterleaved(Orb16s* p, I16x8 even, I16x8 odd) {
  I16x8{_mm_unpacklo_epi16(even.v, odd.v)}.Store(p);
  I16x8{_mm_unpackhi_epi16(even.v, odd.v)}.Store(p + 8);
}
// Undoes a split into even and odd lanes that was made in lanes: on what PackInLanes gives, the results are
// in order.
ORBS_INLINE void InterleaveInLanes(I16x8 even, I16x8 odd, I16x8* low, I16x8* high) {
  *low = {_mm_unpacklo_epi16(even.v, odd.v)};
  *high = {_mm_unpackhi_epi16(even.v, odd.v)};
}

// ---- Sums of 32-bit lanes in 64 bits ----

struct Sum64x2 {
  __m128i v;
  static ORBS_INLINE Sum64x2 Zero() { return {_mm_setzero_si128()}; }
};

ORBS_INLINE Sum64x2 AddWidened(Sum64x2 sum, I32x4 a) {
  const __m128i sign = _mm_srai_epi32(a.v, 31);
  const __m128i both = _mm_add_epi64(_mm_unpacklo_epi32(a.v, sign), _mm_unpackhi_epi32(a.v, sign));
  return {_mm_add_epi64(sum.v, both)};
}
ORBS_INLINE Orb64s Total(Sum64x2 sum) {
  Orb64s parts[2];
  _mm_storeu_si128(reinterpret_cast<__m128i*>(parts), sum.v);
  return parts[0] + parts[1];
}

#ifdef __SSSE3__
// table[index] for 16 bytes of table and indices 0 to 15.
ORBS_INLINE U8x16 LookUp(const Orb8u (&table)[16], U8x16 index) {
  return {_mm_shuffle_epi8(U8x16::Load(table).v, index.v)};
}
// a where the signed byte of b is above 0, -a below, 0 at 0.
ORBS_INLINE U8x16 ApplySign(U8x16 a, U8x16 b) { return {_mm_sign_epi8(a.v, b.v)}; }
// Byte by byte: a0 b0 + a1 b1 as 16 bits, in the order of the elements; a unsigned, b signed.
ORBS_INLINE void MulAddBytes(U8x16 a0, U8x16 b0, U8x16 a1, U8x16 b1, I16x8* low, I16x8* high) {
  *low = {_mm_maddubs_epi16(_mm_unpacklo_epi8(a0.v, a1.v), _mm_unpacklo_epi8(b0.v, b1.v))};
  *high = {_mm_maddubs_epi16(_mm_unpackhi_epi8(a0.v, a1.v), _mm_unpackhi_epi8(b0.v, b1.v))};
}
// The order in which a vector must be loaded so that MulAddBytes delivers in order: as it is, on 128 bits.
ORBS_INLINE U8x16 OrderForMulAddBytes(U8x16 a) { return a; }
// Four vectors of binary32, each number given by its highest byte and the one below.
struct FloatQuarters {
  F32x4 quarter[4];
};
ORBS_INLINE FloatQuarters FloatsFromTopBytes(U8x16 highest, U8x16 second) {
  const __m128i zero = _mm_setzero_si128();
  const __m128i low = _mm_unpacklo_epi8(second.v, highest.v);
  const __m128i high = _mm_unpackhi_epi8(second.v, highest.v);
  return {{{_mm_castsi128_ps(_mm_unpacklo_epi16(zero, low))},
           {_mm_castsi128_ps(_mm_unpackhi_epi16(zero, low))},
           {_mm_castsi128_ps(_mm_unpacklo_epi16(zero, high))},
           {_mm_castsi128_ps(_mm_unpackhi_epi16(zero, high))}}};
}
ORBS_INLINE U8x16 OrderForTopBytes(U8x16 a) { return a; }
#endif

}  // namespace orbs::ORBS_VARIANT

#endif
