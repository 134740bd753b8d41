// 256-bit vectors. AVX alone has floating point in 256 bits and integers in 128: there an I32x8 is two
// halves, and the native integer vectors stay those of sse.h.
#ifndef ORBS_SIMD_AVX_H
#define ORBS_SIMD_AVX_H

#include "simd/sse.h"

namespace orbs::ORBS_VARIANT {

struct F32x8 {
  using Lane = Orb32f;
  static constexpr int kLanes = 8;
  __m256 v;
  static ORBS_INLINE F32x8 Load(const Orb32f* p) { return {_mm256_loadu_ps(p)}; }
  static ORBS_INLINE F32x8 All(Orb32f x) { return {_mm256_set1_ps(x)}; }
  static ORBS_INLINE F32x8 Zero() { return {_mm256_setzero_ps()}; }
  ORBS_INLINE void Store(Orb32f* p) const { _mm256_storeu_ps(p, v); }
};

struct F64x4 {
  using Lane = Orb64f;
  static constexpr int kLanes = 4;
  __m256d v;
  static ORBS_INLINE F64x4 Load(const Orb64f* p) { return {_mm256_loadu_pd(p)}; }
  static ORBS_INLINE F64x4 All(Orb64f x) { return {_mm256_set1_pd(x)}; }
  static ORBS_INLINE F64x4 Zero() { return {_mm256_setzero_pd()}; }
  ORBS_INLINE void Store(Orb64f* p) const { _mm256_storeu_pd(p, v); }
};

#define ORBS_FLOAT_OPERATIONS(F, s)                                                    \
  ORBS_INLINE F operator+(F a, F b) { return {_mm256_add_##s(a.v, b.v)}; }             \
  ORBS_INLINE F operator-(F a, F b) { return {_mm256_sub_##s(a.v, b.v)}; }             \
  ORBS_INLINE F operator*(F a, F b) { return {_mm256_mul_##s(a.v, b.v)}; }             \
  ORBS_INLINE F operator/(F a, F b) { return {_mm256_div_##s(a.v, b.v)}; }             \
  ORBS_INLINE F operator&(F a, F b) { return {_mm256_and_##s(a.v, b.v)}; }             \
  ORBS_INLINE F operator|(F a, F b) { return {_mm256_or_##s(a.v, b.v)}; }              \
  ORBS_INLINE F operator^(F a, F b) { return {_mm256_xor_##s(a.v, b.v)}; }             \
  ORBS_INLINE F AndNot(F mask, F a) { return {_mm256_andnot_##s(mask.v, a.v)}; }       \
  ORBS_INLINE F Min(F a, F b) { return {_mm256_min_##s(a.v, b.v)}; }                   \
  ORBS_INLINE F Max(F a, F b) { return {_mm256_max_##s(a.v, b.v)}; }                   \
  ORBS_INLINE F Sqrt(F a) { return {_mm256_sqrt_##s(a.v)}; }                           \
  ORBS_INLINE F Less(F a, F b) { return {_mm256_cmp_##s(a.v, b.v, _CMP_LT_OQ)}; }      \
  ORBS_INLINE F LessEqual(F a, F b) { return {_mm256_cmp_##s(a.v, b.v, _CMP_LE_OQ)}; } \
  ORBS_INLINE F Equal(F a, F b) { return {_mm256_cmp_##s(a.v, b.v, _CMP_EQ_OQ)}; }     \
  ORBS_INLINE F IsNan(F a) { return {_mm256_cmp_##s(a.v, a.v, _CMP_UNORD_Q)}; }        \
  ORBS_INLINE int SignBits(F a) { return _mm256_movemask_##s(a.v); }                   \
  /* AVX blends by the sign bit, which a comparison's mask has. */                     \
  ORBS_INLINE F Select(F mask, F a, F b) { return {_mm256_blendv_##s(b.v, a.v, mask.v)}; }

ORBS_FLOAT_OPERATIONS(F32x8, ps)
ORBS_FLOAT_OPERATIONS(F64x4, pd)
#undef ORBS_FLOAT_OPERATIONS

#ifdef __FMA__
ORBS_INLINE F32x8 MulAdd(F32x8 a, F32x8 b, F32x8 c) { return {_mm256_fmadd_ps(a.v, b.v, c.v)}; }
ORBS_INLINE F64x4 MulAdd(F64x4 a, F64x4 b, F64x4 c) { return {_mm256_fmadd_pd(a.v, b.v, c.v)}; }
ORBS_INLINE F32x8 MulAddSub(F32x8 a, F32x8 b, F32x8 c) { return {_mm256_fmaddsub_ps(a.v, b.v, c.v)}; }
ORBS_INLINE F64x4 MulAddSub(F64x4 a, F64x4 b, F64x4 c) { return {_mm256_fmaddsub_pd(a.v, b.v, c.v)}; }
ORBS_INLINE F32x8 MulSubAdd(F32x8 a, F32x8 b, F32x8 c) { return {_mm256_fmsubadd_ps(a.v, b.v, c.v)}; }
ORBS_INLINE F64x4 MulSubAdd(F64x4 a, F64x4 b, F64x4 c) { return {_mm256_fmsubadd_pd(a.v, b.v, c.v)}; }
#else
ORBS_INLINE F32x8 MulAdd(F32x8 a, F32x8 b, F32x8 c) { return a * b + c; }
ORBS_INLINE F64x4 MulAdd(F64x4 a, F64x4 b, F64x4 c) { return a * b + c; }
ORBS_INLINE F32x8 MulAddSub(F32x8 a, F32x8 b, F32x8 c) { return {_mm256_addsub_ps((a * b).v, c.v)}; }
ORBS_INLINE F64x4 MulAddSub(F64x4 a, F64x4 b, F64x4 c) { return {_mm256_addsub_pd((a * b).v, c.v)}; }
#endif

ORBS_INLINE F32x8 ReciprocalEstimate(F32x8 a) { return {_mm256_rcp_ps(a.v)}; }

ORBS_INLINE F32x8 DupEven(F32x8 a) { return {_mm256_moveldup_ps(a.v)}; }
ORBS_INLINE F32x8 DupOdd(F32x8 a) { return {_mm256_movehdup_ps(a.v)}; }
ORBS_INLINE F32x8 SwapPairs(F32x8 a) { return {_mm256_permute_ps(a.v, _MM_SHUFFLE(2, 3, 0, 1))}; }
ORBS_INLINE F32x8 SwapHalves(F32x8 a) { return {_mm256_permute2f128_ps(a.v, a.v, 1)}; }
#ifdef __AVX2__
ORBS_INLINE F32x8 Reverse(F32x8 a) {
  return {_mm256_permutevar8x32_ps(a.v, _mm256_setr_epi32(7, 6, 5, 4, 3, 2, 1, 0))};
}
#else
ORBS_INLINE F32x8 Reverse(F32x8 a) { return {_mm256_permute_ps(SwapHalves(a).v, _MM_SHUFFLE(0, 1, 2, 3))}; }
#endif
ORBS_INLINE F32x8 ReversePairs(F32x8 a) {
  return {_mm256_permute_ps(SwapHalves(a).v, _MM_SHUFFLE(1, 0, 3, 2))};
}
ORBS_INLINE F64x4 DupEven(F64x4 a) { return {_mm256_movedup_pd(a.v)}; }
ORBS_INLINE F64x4 DupOdd(F64x4 a) { return {_mm256_permute_pd(a.v, 0xF)}; }
ORBS_INLINE F64x4 SwapPairs(F64x4 a) { return {_mm256_permute_pd(a.v, 0x5)}; }
ORBS_INLINE F64x4 SwapHalves(F64x4 a) { return {_mm256_permute2f128_pd(a.v, a.v, 1)}; }
ORBS_INLINE F64x4 Reverse(F64x4 a) { return SwapPairs(SwapHalves(a)); }
ORBS_INLINE F64x4 ReversePairs(F64x4 a) { return SwapHalves(a); }

#ifdef __FMA__
ORBS_INLINE F32x8 NegMulAdd(F32x8 a, F32x8 b, F32x8 c) { return {_mm256_fnmadd_ps(a.v, b.v, c.v)}; }
ORBS_INLINE F64x4 NegMulAdd(F64x4 a, F64x4 b, F64x4 c) { return {_mm256_fnmadd_pd(a.v, b.v, c.v)}; }
#else
ORBS_INLINE F32x8 NegMulAdd(F32x8 a, F32x8 b, F32x8 c) { return c - a * b; }
ORBS_INLINE F64x4 NegMulAdd(F64x4 a, F64x4 b, F64x4 c) { return c - a * b; }
#endif

ORBS_INLINE void TransposePairs(F32x8 (&rows)[4]) {
  const __m256d a = _mm256_castps_pd(rows[0].v);
  const __m256d b = _mm256_castps_pd(rows[1].v);
  const __m256d c = _mm256_castps_pd(rows[2].v);
  const __m256d d = _mm256_castps_pd(rows[3].v);
  const __m256d ab0 = _mm256_unpacklo_pd(a, b);
  const __m256d ab1 = _mm256_unpackhi_pd(a, b);
  const __m256d cd0 = _mm256_unpacklo_pd(c, d);
  const __m256d cd1 = _mm256_unpackhi_pd(c, d);
  rows[0] = {_mm256_castpd_ps(_mm256_permute2f128_pd(ab0, cd0, 0x20))};
  rows[1] = {_mm256_castpd_ps(_mm256_permute2f128_pd(ab1, cd1, 0x20))};
  rows[2] = {_mm256_castpd_ps(_mm256_permute2f128_pd(ab0, cd0, 0x31))};
  rows[3] = {_mm256_castpd_ps(_mm256_permute2f128_pd(ab1, cd1, 0x31))};
}
ORBS_INLINE void TransposePairs(F64x4 (&rows)[2]) {
  const __m256d a = rows[0].v;
  const __m256d b = rows[1].v;
  rows[0] = {_mm256_permute2f128_pd(a, b, 0x20)};
  rows[1] = {_mm256_permute2f128_pd(a, b, 0x31)};
}

ORBS_INLINE void LoadPairToAll(const Orb32f* pair, F32x8* out) {
  F32x4 both;
  LoadPairToAll(pair, &both);
  *out = {_mm256_set_m128(both.v, both.v)};
}
ORBS_INLINE void LoadPairToAll(const Orb64f* pair, F64x4* out) {
  const F64x2 p = F64x2::Load(pair);
  *out = {_mm256_set_m128d(p.v, p.v)};
}

ORBS_INLINE void LoadPairs(const Orb32f* re, const Orb32f* im, F32x8* out) {
  const __m128 r = _mm_loadu_ps(re);
  const __m128 i = _mm_loadu_ps(im);
  *out = {_mm256_set_m128(_mm_unpackhi_ps(r, i), _mm_unpacklo_ps(r, i))};
}
ORBS_INLINE void LoadPairs(const Orb64f* re, const Orb64f* im, F64x4* out) {
  const __m128d r = _mm_loadu_pd(re);
  const __m128d i = _mm_loadu_pd(im);
  *out = {_mm256_set_m128d(_mm_unpackhi_pd(r, i), _mm_unpacklo_pd(r, i))};
}
ORBS_INLINE void StorePairs(Orb32f* re, Orb32f* im, F32x8 a) {
  const __m128 low = _mm256_castps256_ps128(a.v);
  const __m128 high = _mm256_extractf128_ps(a.v, 1);
  _mm_storeu_ps(re, _mm_shuffle_ps(low, high, _MM_SHUFFLE(2, 0, 2, 0)));
  _mm_storeu_ps(im, _mm_shuffle_ps(low, high, _MM_SHUFFLE(3, 1, 3, 1)));
}
ORBS_INLINE void StorePairs(Orb64f* re, Orb64f* im, F64x4 a) {
  const __m128d low = _mm256_castpd256_pd128(a.v);
  const __m128d high = _mm256_extractf128_pd(a.v, 1);
  _mm_storeu_pd(re, _mm_unpacklo_pd(low, high));
  _mm_storeu_pd(im, _mm_unpackhi_pd(low, high));
}

ORBS_INLINE F32x8 OddSigns(F32x8*) {
  return {_mm256_castpd_ps(_mm256_castsi256_pd(_mm256_set1_epi64x(INT64_MIN)))};
}
ORBS_INLINE F32x8 EvenSigns(F32x8*) {
  return {_mm256_castsi256_ps(_mm256_set1_epi64x(static_cast<long long>(0x80000000u)))};
}
ORBS_INLINE F64x4 EvenSigns(F64x4*) { return {_mm256_set_pd(0.0, -0.0, 0.0, -0.0)}; }
ORBS_INLINE F64x4 OddSigns(F64x4*) { return {_mm256_set_pd(-0.0, 0.0, -0.0, 0.0)}; }

// ---- 32-bit integers ----

#ifdef __AVX2__

struct I32x8 {
  using Lane = Orb32s;
  static constexpr int kLanes = 8;
  __m256i v;
  static ORBS_INLINE I32x8 Load(const Orb32s* p) {
    return {_mm256_loadu_si256(reinterpret_cast<const __m256i*>(p))};
  }
  static ORBS_INLINE I32x8 All(Orb32s x) { return {_mm256_set1_epi32(x)}; }
  static ORBS_INLINE I32x8 Zero() { return {_mm256_setzero_si256()}; }
  ORBS_INLINE void Store(Orb32s* p) const { _mm256_storeu_si256(reinterpret_cast<__m256i*>(p), v); }
};

ORBS_INLINE I32x8 operator+(I32x8 a, I32x8 b) { return {_mm256_add_epi32(a.v, b.v)}; }
ORBS_INLINE I32x8 operator-(I32x8 a, I32x8 b) { return {_mm256_sub_epi32(a.v, b.v)}; }
ORBS_INLINE I32x8 operator*(I32x8 a, I32x8 b) { return {_mm256_mullo_epi32(a.v, b.v)}; }
ORBS_INLINE I32x8 operator&(I32x8 a, I32x8 b) { return {_mm256_and_si256(a.v, b.v)}; }
ORBS_INLINE I32x8 operator|(I32x8 a, I32x8 b) { return {_mm256_or_si256(a.v, b.v)}; }
ORBS_INLINE I32x8 operator^(I32x8 a, I32x8 b) { return {_mm256_xor_si256(a.v, b.v)}; }
ORBS_INLINE I32x8 AndNot(I32x8 mask, I32x8 a) { return {_mm256_andnot_si256(mask.v, a.v)}; }
ORBS_INLINE I32x8 Greater(I32x8 a, I32x8 b) { return {_mm256_cmpgt_epi32(a.v, b.v)}; }
ORBS_INLINE I32x8 Equal(I32x8 a, I32x8 b) { return {_mm256_cmpeq_epi32(a.v, b.v)}; }
ORBS_INLINE I32x8 ShiftLeft(I32x8 a, int n) { return {_mm256_slli_epi32(a.v, n)}; }
ORBS_INLINE I32x8 ShiftRight(I32x8 a, int n) { return {_mm256_srai_epi32(a.v, n)}; }
ORBS_INLINE I32x8 ShiftRightLogical(I32x8 a, int n) { return {_mm256_srli_epi32(a.v, n)}; }
ORBS_INLINE F32x8 AsFloat(I32x8 a) { return {_mm256_castsi256_ps(a.v)}; }
ORBS_INLINE I32x8 AsInt(F32x8 a) { return {_mm256_castps_si256(a.v)}; }
ORBS_INLINE F32x8 ToFloat(I32x8 a) { return {_mm256_cvtepi32_ps(a.v)}; }
ORBS_INLINE I32x8 RoundToInt(F32x8 a) { return {_mm256_cvtps_epi32(a.v)}; }
ORBS_INLINE I32x8 TruncateToInt(F32x8 a) { return {_mm256_cvttps_epi32(a.v)}; }

ORBS_INLINE void LoadWiden(const Orb32s* p, I32x8* out) { *out = I32x8::Load(p); }
ORBS_INLINE void LoadWiden(const Orb16s* p, I32x8* out) { *out = {_mm256_cvtepi16_epi32(I16x8::Load(p).v)}; }
ORBS_INLINE void LoadWiden(const Orb8s* p, I32x8* out) {
  *out = {_mm256_cvtepi8_epi32(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p)))};
}
ORBS_INLINE void LoadWiden(const Orb8u* p, I32x8* out) {
  *out = {_mm256_cvtepu8_epi32(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p)))};
}
ORBS_INLINE F64x4 ShiftLeft64(F64x4 a, int n) {
  return {_mm256_castsi256_pd(_mm256_slli_epi64(_mm256_castpd_si256(a.v), n))};
}
ORBS_INLINE F64x4 ShiftRight64(F64x4 a, int n) {
  return {_mm256_castsi256_pd(_mm256_srli_epi64(_mm256_castpd_si256(a.v), n))};
}
ORBS_INLINE F64x4 Add64(F64x4 a, F64x4 b) {
  return {_mm256_castsi256_pd(_mm256_add_epi64(_mm256_castpd_si256(a.v), _mm256_castpd_si256(b.v)))};
}

// ---- 16- and 8-bit integers ----

struct I16x16 {
  using Lane = Orb16s;
  static constexpr int kLanes = 16;
  __m256i v;
  static ORBS_INLINE I16x16 Load(const Orb16s* p) {
    return {_mm256_loadu_si256(reinterpret_cast<const __m256i*>(p))};
  }
  static ORBS_INLINE I16x16 All(Orb16s x) { return {_mm256_set1_epi16(x)}; }
  static ORBS_INLINE I16x16 Zero() { return {_mm256_setzero_si256()}; }
  ORBS_INLINE void Store(Orb16s* p) const { _mm256_storeu_si256(reinterpret_cast<__m256i*>(p), v); }
};

struct U8x32 {
  using Lane = Orb8u;
  static constexpr int kLanes = 32;
  __m256i v;
  static ORBS_INLINE U8x32 Load(const Orb8u* p) {
    return {_mm256_loadu_si256(reinterpret_cast<const __m256i*>(p))};
  }
  static ORBS_INLINE U8x32 All(Orb8u x) { return {_mm256_set1_epi8(static_cast<char>(x))}; }
  ORBS_INLINE void Store(Orb8u* p) const { _mm256_storeu_si256(reinterpret_cast<__m256i*>(p), v); }
};

ORBS_INLINE I16x16 operator+(I16x16 a, I16x16 b) { return {_mm256_add_epi16(a.v, b.v)}; }
ORBS_INLINE I16x16 operator-(I16x16 a, I16x16 b) { return {_mm256_sub_epi16(a.v, b.v)}; }
ORBS_INLINE I16x16 operator&(I16x16 a, I16x16 b) { return {_mm256_and_si256(a.v, b.v)}; }
ORBS_INLINE I16x16 operator|(I16x16 a, I16x16 b) { return {_mm256_or_si256(a.v, b.v)}; }
ORBS_INLINE I16x16 operator^(I16x16 a, I16x16 b) { return {_mm256_xor_si256(a.v, b.v)}; }
ORBS_INLINE I16x16 AndNot(I16x16 mask, I16x16 a) { return {_mm256_andnot_si256(mask.v, a.v)}; }
ORBS_INLINE I16x16 MulLow(I16x16 a, I16x16 b) { return {_mm256_mullo_epi16(a.v, b.v)}; }
ORBS_INLINE I16x16 Min(I16x16 a, I16x16 b) { return {_mm256_min_epi16(a.v, b.v)}; }
ORBS_INLINE I16x16 Max(I16x16 a, I16x16 b) { return {_mm256_max_epi16(a.v, b.v)}; }
ORBS_INLINE I16x16 Greater(I16x16 a, I16x16 b) { return {_mm256_cmpgt_epi16(a.v, b.v)}; }
template <int n>
ORBS_INLINE I16x16 ShiftLeft(I16x16 a) {
  return {_mm256_slli_epi16(a.v, n)};
}
template <int n>
ORBS_INLINE I16x16 ShiftRight(I16x16 a) {
  return {_mm256_srai_epi16(a.v, n)};
}
template <int n>
ORBS_INLINE I16x16 ShiftRightLogical(I16x16 a) {
  return {_mm256_srli_epi16(a.v, n)};
}
ORBS_INLINE I32x8 MulAddPairs(I16x16 a, I16x16 b) { return {_mm256_madd_epi16(a.v, b.v)}; }
ORBS_INLINE I16x16 SubtractSaturating(I16x16 a, I16x16 b) { return {_mm256_subs_epi16(a.v, b.v)}; }
ORBS_INLINE I32x8 As32(I16x16 a) { return {a.v}; }
ORBS_INLINE I16x16 As16(I32x8 a) { return {a.v}; }
ORBS_INLINE I16x16 SwapPairs(I16x16 a) {
  constexpr int kSwapped = _MM_SHUFFLE(2, 3, 0, 1);
  return {_mm256_shufflehi_epi16(_mm256_shufflelo_epi16(a.v, kSwapped), kSwapped)};
}
ORBS_INLINE I16x16 ReversePairs(I16x16 a) {
  return {_mm256_permutevar8x32_epi32(a.v, _mm256_set_epi32(0, 1, 2, 3, 4, 5, 6, 7))};
}

ORBS_INLINE U8x32 operator+(U8x32 a, U8x32 b) { return {_mm256_add_epi8(a.v, b.v)}; }
ORBS_INLINE U8x32 operator-(U8x32 a, U8x32 b) { return {_mm256_sub_epi8(a.v, b.v)}; }
ORBS_INLINE U8x32 operator&(U8x32 a, U8x32 b) { return {_mm256_and_si256(a.v, b.v)}; }
ORBS_INLINE U8x32 operator|(U8x32 a, U8x32 b) { return {_mm256_or_si256(a.v, b.v)}; }
ORBS_INLINE U8x32 operator^(U8x32 a, U8x32 b) { return {_mm256_xor_si256(a.v, b.v)}; }
ORBS_INLINE U8x32 Min(U8x32 a, U8x32 b) { return {_mm256_min_epu8(a.v, b.v)}; }
ORBS_INLINE U8x32 Average(U8x32 a, U8x32 b) { return {_mm256_avg_epu8(a.v, b.v)}; }
ORBS_INLINE U8x32 Greater(U8x32 a, U8x32 b) { return {_mm256_cmpgt_epi8(a.v, b.v)}; }
template <int n>
ORBS_INLINE U8x32 ShiftLeftAndMask(U8x32 a) {
  return {_mm256_and_si256(_mm256_slli_epi16(a.v, n), _mm256_set1_epi8(static_cast<char>(0xFF << n)))};
}
ORBS_INLINE U8x32 HighNibbles(U8x32 a) {
  return {_mm256_and_si256(_mm256_srli_epi16(a.v, 4), _mm256_set1_epi8(15))};
}

// The packs and unpacks of AVX2 work within halves; one permutation of quarters puts the elements in order.
ORBS_INLINE I16x16 Pack(I32x8 a, I32x8 b) {
  return {_mm256_permute4x64_epi64(_mm256_packs_epi32(a.v, b.v), _MM_SHUFFLE(3, 1, 2, 0))};
}
ORBS_INLINE U8x32 Pack(I16x16 a, I16x16 b) {
  return {_mm256_permute4x64_epi64(_mm256_packus_epi16(a.v, b.v), _MM_SHUFFLE(3, 1, 2, 0))};
}
ORBS_INLINE void StorePacked(Orb16s* p, I32x8 a, I32x8 b) { Pack(a, b).Store(p); }
ORBS_INLINE I16x8 PackHalves(I32x8 a) {
  return {_mm_packs_epi32(_mm256_castsi256_si128(a.v), _mm256_extracti128_si256(a.v, 1))};
}
ORBS_INLINE I32x8 Widen(I16x8 a) { return {_mm256_cvtepi16_epi32(a.v)}; }
ORBS_INLINE void WidenInLanes(I16x16 a, I32x8* low, I32x8* high) {
  const __m256i zero = _mm256_setzero_si256();
  *low = {_mm256_unpacklo_epi16(a.v, zero)};
  *high = {_mm256_unpackhi_epi16(a.v, zero)};
}
ORBS_INLINE I16x16 PackInLanes(I32x8 a, I32x8 b) { return {_mm256_packs_epi32(a.v, b.v)}; }
ORBS_INLINE void StoreInterleaved(Orb16s* p, I16x16 even, I16x16 odd) {
  const __m256i low = _mm256_unpacklo_epi16(even.v, odd.v);
  const __m256i high = _mm256_unpackhi_epi16(even.v, odd.v);
  I16x16{_mm256_permute2x128_si256(low, high, 0x20)}.Store(p);
  I16x16{_mm256_permute2x128_si256(low, high, 0x31)}.Store(p + 16);
}
ORBS_INLINE void InterleaveInLanes(I16x16 even, I16x16 odd, I16x16* low, I16x16* high) {
  *low = {_mm256_unpacklo_epi16(even.v, odd.v)};
  *high = {_mm256_unpackhi_epi16(even.v, odd.v)};
}

struct Sum64x4 {
  __m256i v;
  static ORBS_INLINE Sum64x4 Zero() { return {_mm256_setzero_si256()}; }
};
ORBS_INLINE Sum64x4 AddWidened(Sum64x4 sum, I32x8 a) {
  const __m256i sign = _mm256_srai_epi32(a.v, 31);
  const __m256i both = _mm256_add_epi64(_mm256_unpacklo_epi32(a.v, sign), _mm256_unpackhi_epi32(a.v, sign));
  return {_mm256_add_epi64(sum.v, both)};
}
ORBS_INLINE Orb64s Total(Sum64x4 sum) {
  return Total(Sum64x2{_mm_add_epi64(_mm256_castsi256_si128(sum.v), _mm256_extracti128_si256(sum.v, 1))});
}

ORBS_INLINE U8x32 LookUp(const Orb8u (&table)[16], U8x32 index) {
  return {_mm256_shuffle_epi8(_mm256_broadcastsi128_si256(U8x16::Load(table).v), index.v)};
}
ORBS_INLINE U8x32 ApplySign(U8x32 a, U8x32 b) { return {_mm256_sign_epi8(a.v, b.v)}; }
ORBS_INLINE void MulAddBytes(U8x32 a0, U8x32 b0, U8x32 a1, U8x32 b1, I16x16* low, I16x16* high) {
  *low = {_mm256_maddubs_epi16(_mm256_unpacklo_epi8(a0.v, a1.v), _mm256_unpacklo_epi8(b0.v, b1.v))};
  *high = {_mm256_maddubs_epi16(_mm256_unpackhi_epi8(a0.v, a1.v), _mm256_unpackhi_epi8(b0.v, b1.v))};
}
// The unpacks take the low and high part of each half, so the middle quarters change places beforehand.
ORBS_INLINE U8x32 OrderForMulAddBytes(U8x32 a) {
  return {_mm256_permute4x64_epi64(a.v, _MM_SHUFFLE(3, 1, 2, 0))};
}

struct FloatQuartersX8 {
  F32x8 quarter[4];
};
ORBS_INLINE FloatQuartersX8 FloatsFromTopBytes(U8x32 highest, U8x32 second) {
  const __m256i zero = _mm256_setzero_si256();
  const __m256i low = _mm256_unpacklo_epi8(second.v, highest.v);
  const __m256i high = _mm256_unpackhi_epi8(second.v, highest.v);
  return {{{_mm256_castsi256_ps(_mm256_unpacklo_epi16(zero, low))},
           {_mm256_castsi256_ps(_mm256_unpackhi_epi16(zero, low))},
           {_mm256_castsi256_ps(_mm256_unpacklo_epi16(zero, high))},
           {_mm256_castsi256_ps(_mm256_unpackhi_epi16(zero, high))}}};
}
// Two unpacks in a row, each within halves: every second four bytes to the upper half beforehand.
ORBS_INLINE U8x32 OrderForTopBytes(U8x32 a) {
  return {_mm256_permutevar8x32_epi32(a.v, _mm256_setr_epi32(0, 2, 4, 6, 1, 3, 5, 7))};
}

#else  // AVX without AVX2

struct I32x8 {
  using Lane = Orb32s;
  static constexpr int kLanes = 8;
  I32x4 low;
  I32x4 high;
  static ORBS_INLINE I32x8 Load(const Orb32s* p) { return {I32x4::Load(p), I32x4::Load(p + 4)}; }
  static ORBS_INLINE I32x8 All(Orb32s x) { return {I32x4::All(x), I32x4::All(x)}; }
  static ORBS_INLINE I32x8 Zero() { return {I32x4::Zero(), I32x4::Zero()}; }
  ORBS_INLINE void Store(Orb32s* p) const {
    low.Store(p);
    high.Store(p + 4);
  }
};

#define ORBS_BY_HALVES(operation)                                \
  ORBS_INLINE I32x8 operation(I32x8 a, I32x8 b) {                \
    return {operation(a.low, b.low), operation(a.high, b.high)}; \
  }
ORBS_BY_HALVES(operator+)
ORBS_BY_HALVES(operator-)
ORBS_BY_HALVES(operator*)
ORBS_BY_HALVES(operator&)
ORBS_BY_HALVES(operator|)
ORBS_BY_HALVES(operator^)
ORBS_BY_HALVES(AndNot)
ORBS_BY_HALVES(Greater)
ORBS_BY_HALVES(Equal)
#undef ORBS_BY_HALVES
ORBS_INLINE I32x8 ShiftLeft(I32x8 a, int n) { return {ShiftLeft(a.low, n), ShiftLeft(a.high, n)}; }
ORBS_INLINE I32x8 ShiftRight(I32x8 a, int n) { return {ShiftRight(a.low, n), ShiftRight(a.high, n)}; }
ORBS_INLINE I32x8 ShiftRightLogical(I32x8 a, int n) {
  return {ShiftRightLogical(a.low, n), ShiftRightLogical(a.high, n)};
}

ORBS_INLINE __m256i JoinHalves(I32x8 a) { return _mm256_set_m128i(a.high.v, a.low.v); }
ORBS_INLINE I32x8 SplitHalves(__m256i a) {
  return {{_mm256_castsi256_si128(a)}, {_mm256_extractf128_si256(a, 1)}};
}
ORBS_INLINE F32x8 AsFloat(I32x8 a) { return {_mm256_castsi256_ps(JoinHalves(a))}; }
ORBS_INLINE I32x8 AsInt(F32x8 a) { return SplitHalves(_mm256_castps_si256(a.v)); }
ORBS_INLINE F32x8 ToFloat(I32x8 a) { return {_mm256_cvtepi32_ps(JoinHalves(a))}; }
ORBS_INLINE I32x8 RoundToInt(F32x8 a) { return SplitHalves(_mm256_cvtps_epi32(a.v)); }
ORBS_INLINE I32x8 TruncateToInt(F32x8 a) { return SplitHalves(_mm256_cvttps_epi32(a.v)); }

template <class T>
ORBS_INLINE void LoadWiden(const T* p, I32x8* out) {
  LoadWiden(p, &out->low);
  LoadWiden(p + 4, &out->high);
}
ORBS_INLINE void StorePacked(Orb16s* p, I32x8 a, I32x8 b) {
  Pack(a.low, a.high).Store(p);
  Pack(b.low, b.high).Store(p + 8);
}
ORBS_INLINE I16x8 PackHalves(I32x8 a) { return Pack(a.low, a.high); }
ORBS_INLINE I32x8 Widen(I16x8 a) {
  return {{_mm_cvtepi16_epi32(a.v)}, {_mm_cvtepi16_epi32(_mm_unpackhi_epi64(a.v, a.v))}};
}

template <class Operation>
ORBS_INLINE F64x4 ByHalves64(F64x4 a, Operation operation) {
  return {_mm256_set_m128d(operation(F64x2{_mm256_extractf128_pd(a.v, 1)}).v,
                           operation(F64x2{_mm256_castpd256_pd128(a.v)}).v)};
}
ORBS_INLINE F64x4 ShiftLeft64(F64x4 a, int n) {
  return ByHalves64(a, [n](F64x2 half) { return ShiftLeft64(half, n); });
}
ORBS_INLINE F64x4 ShiftRight64(F64x4 a, int n) {
  return ByHalves64(a, [n](F64x2 half) { return ShiftRight64(half, n); });
}
ORBS_INLINE F64x4 Add64(F64x4 a, F64x4 b) {
  const F64x2 low = Add64(F64x2{_mm256_castpd256_pd128(a.v)}, F64x2{_mm256_castpd256_pd128(b.v)});
  const F64x2 high = Add64(F64x2{_mm256_extractf128_pd(a.v, 1)}, F64x2{_mm256_extractf128_pd(b.v, 1)});
  return {_mm256_set_m128d(high.v, low.v)};
}

#endif

ORBS_INLINE void StorePacked(Orb16s* p, I32x8 a) { PackHalves(a).Store(p); }

// ---- Separate parts of integers ----

ORBS_INLINE void LoadPairs(const Orb16s* re, const Orb16s* im, I32x8* out) {
  const __m128i r = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(re));
  const __m128i i = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(im));
  *out = Widen(I16x8{_mm_unpacklo_epi16(r, i)});
}
ORBS_INLINE void LoadPairs(const Orb32s* re, const Orb32s* im, F64x4* out) {
  const __m128i r = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(re));
  const __m128i i = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(im));
  *out = {_mm256_cvtepi32_pd(_mm_unpacklo_epi32(r, i))};
}
ORBS_INLINE void StoreHalves(void* low, void* high, __m128i parts) {
  _mm_storel_epi64(static_cast<__m128i*>(low), parts);
  _mm_storel_epi64(static_cast<__m128i*>(high), _mm_unpackhi_epi64(parts, parts));
}
ORBS_INLINE void StoreRoundedPairs(Orb32s* re, Orb32s* im, F64x4 a) {
  StoreHalves(re, im, _mm_shuffle_epi32(_mm256_cvtpd_epi32(a.v), _MM_SHUFFLE(3, 1, 2, 0)));
}
ORBS_INLINE void StorePackedPairs(Orb16s* re, Orb16s* im, I32x8 a) {
  const __m128i order = _mm_setr_epi8(0, 1, 4, 5, 8, 9, 12, 13, 2, 3, 6, 7, 10, 11, 14, 15);
  StoreHalves(re, im, _mm_shuffle_epi8(PackHalves(a).v, order));
}

// ---- Conversions between binary64 and narrower types ----

ORBS_INLINE void LoadWiden(const Orb32s* p, F64x4* out) { *out = {_mm256_cvtepi32_pd(I32x4::Load(p).v)}; }
ORBS_INLINE void LoadWiden(const Orb32f* p, F64x4* out) { *out = {_mm256_cvtps_pd(F32x4::Load(p).v)}; }
ORBS_INLINE void LoadWiden(const Orb16s* p, F64x4* out) {
  I32x4 x;
  LoadWiden(p, &x);
  *out = {_mm256_cvtepi32_pd(x.v)};
}
ORBS_INLINE void StoreNarrow(Orb32f* p, F64x4 a) { _mm_storeu_ps(p, _mm256_cvtpd_ps(a.v)); }
ORBS_INLINE F32x8 Narrow(F64x4 low, F64x4 high) {
  return {_mm256_set_m128(_mm256_cvtpd_ps(high.v), _mm256_cvtpd_ps(low.v))};
}
ORBS_INLINE void StoreRounded(Orb32s* p, F64x4 a) { I32x4{_mm256_cvtpd_epi32(a.v)}.Store(p); }
ORBS_INLINE void StoreTruncated(Orb32s* p, F64x4 a) { I32x4{_mm256_cvttpd_epi32(a.v)}.Store(p); }
ORBS_INLINE I32x8 TruncateToInt(F64x4 low, F64x4 high) {
#ifdef __AVX2__
  return {_mm256_set_m128i(_mm256_cvttpd_epi32(high.v), _mm256_cvttpd_epi32(low.v))};
#else
  return {{_mm256_cvttpd_epi32(low.v)}, {_mm256_cvttpd_epi32(high.v)}};
#endif
}

}  // namespace orbs::ORBS_VARIANT

#endif
