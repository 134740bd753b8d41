// How single lanes spread over vectors: recursions hand results from lane to lane.
#ifndef ORBS_SIMD_LANES_H
#define ORBS_SIMD_LANES_H

#include "simd/simd.h"

#if ORBS_VECTOR

namespace orbs::ORBS_VARIANT {

// One lane in all lanes.
template <int lane>
ORBS_INLINE F32x4 AllOf(F32x4 a) {
  return {_mm_shuffle_ps(a.v, a.v, lane * 0x55)};
}
template <int lane>
ORBS_INLINE F64x2 AllOf(F64x2 a) {
  return {_mm_shuffle_pd(a.v, a.v, lane * 3)};
}
// One lane of each quarter register (four lanes) in all lanes of that quarter.
template <int lane>
ORBS_INLINE F32x4 AllOfQuarter(F32x4 a) {
  return AllOf<lane>(a);
}
#ifdef __AVX__
template <int lane>
ORBS_INLINE F32x8 AllOfQuarter(F32x8 a) {
#ifdef __AVX2__
  // The shuffle of integers: processors have more units for it, and the sums around leave none idle.
  return {_mm256_castsi256_ps(_mm256_shuffle_epi32(_mm256_castps_si256(a.v), lane * 0x55))};
#else
  return {_mm256_permute_ps(a.v, lane * 0x55)};
#endif
}
template <int lane>
ORBS_INLINE F32x8 AllOf(F32x8 a) {
#ifdef __AVX2__
  return {_mm256_permutevar8x32_ps(a.v, _mm256_set1_epi32(lane))};
#else
  return AllOfQuarter<lane % 4>(F32x8{_mm256_permute2f128_ps(a.v, a.v, lane / 4 * 0x11)});
#endif
}
template <int lane>
ORBS_INLINE F64x4 AllOf(F64x4 a) {
#ifdef __AVX2__
  return {_mm256_permute4x64_pd(a.v, lane * 0x55)};
#else
  return {_mm256_permute_pd(_mm256_permute2f128_pd(a.v, a.v, lane / 2 * 0x11), lane % 2 * 0xF)};
#endif
}
// Four lanes from memory in both quarters, and zeros below the low quarter.
ORBS_INLINE void LoadQuarterToAll(const Orb32f* p, F32x8* out) {
  const __m128 quarter = _mm_loadu_ps(p);
  *out = {_mm256_set_m128(quarter, quarter)};
}
ORBS_INLINE F32x8 LowQuarterMovedUp(F32x8 a) { return {_mm256_permute2f128_ps(a.v, a.v, 0x08)}; }
#endif
ORBS_INLINE void LoadQuarterToAll(const Orb32f* p, F32x4* out) { *out = F32x4::Load(p); }
ORBS_INLINE F32x4 LowQuarterMovedUp(F32x4) { return F32x4::Zero(); }

// Every element (a lane, or a pair for kParts = 2) in the place of the one above it, the last one at the
// bottom.
template <int kParts>
ORBS_INLINE F32x4 MovedUpAround(F32x4 a) {
  constexpr int kOrder = kParts == 1 ? _MM_SHUFFLE(2, 1, 0, 3) : _MM_SHUFFLE(1, 0, 3, 2);
  return {_mm_shuffle_ps(a.v, a.v, kOrder)};
}
// The bottom element of `bottom` below the others of a.
template <int kParts>
ORBS_INLINE F32x4 WithBottom(F32x4 a, F32x4 bottom) {
  if constexpr (kParts == 1) {
    return {_mm_move_ss(a.v, bottom.v)};
  } else {
    return {_mm_castpd_ps(_mm_move_sd(_mm_castps_pd(a.v), _mm_castps_pd(bottom.v)))};
  }
}
template <int kParts>
ORBS_INLINE void StoreBottom(Orb32f* p, F32x4 a) {
  if constexpr (kParts == 1) {
    _mm_store_ss(p, a.v);
  } else {
    _mm_storel_epi64(reinterpret_cast<__m128i*>(p), _mm_castps_si128(a.v));
  }
}
#ifdef __AVX__
template <int kParts>
ORBS_INLINE F32x8 MovedUpAround(F32x8 a) {
#ifdef __AVX2__
  return {_mm256_permutevar8x32_ps(a.v, kParts == 1 ? _mm256_setr_epi32(7, 0, 1, 2, 3, 4, 5, 6)
                                                    : _mm256_setr_epi32(6, 7, 0, 1, 2, 3, 4, 5))};
#else
  const F32x8 other = SwapHalves(a);
  const F32x8 pairs = {_mm256_shuffle_ps(other.v, a.v, _MM_SHUFFLE(1, 0, 3, 2))};
  if constexpr (kParts == 2) return pairs;
  return {_mm256_shuffle_ps(pairs.v, a.v, _MM_SHUFFLE(2, 1, 2, 1))};
#endif
}
template <int kParts>
ORBS_INLINE F32x8 WithBottom(F32x8 a, F32x8 bottom) {
  return {_mm256_blend_ps(a.v, bottom.v, kParts == 1 ? 1 : 3)};
}
template <int kParts>
ORBS_INLINE void StoreBottom(Orb32f* p, F32x8 a) {
  StoreBottom<kParts>(p, F32x4{_mm256_castps256_ps128(a.v)});
}
#endif

// Lanes 0 and 1 from memory with zeros above, and back.
ORBS_INLINE F32x4 LoadLowPair(const Orb32f* p) {
  return {_mm_castsi128_ps(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p)))};
}
ORBS_INLINE void StoreLowPair(Orb32f* p, F32x4 a) {
  _mm_storel_epi64(reinterpret_cast<__m128i*>(p), _mm_castps_si128(a.v));
}
ORBS_INLINE Orb32f LowLane(F32x4 a) { return _mm_cvtss_f32(a.v); }
ORBS_INLINE Orb64f LowLane(F64x2 a) { return _mm_cvtsd_f64(a.v); }
#ifdef __AVX__
ORBS_INLINE Orb32f LowLane(F32x8 a) { return _mm_cvtss_f32(_mm256_castps256_ps128(a.v)); }
ORBS_INLINE Orb64f LowLane(F64x4 a) { return _mm_cvtsd_f64(_mm256_castpd256_pd128(a.v)); }
#endif
// Every lane in the place of the one below it, a zero on top.
ORBS_INLINE F32x4 MovedDown(F32x4 a) { return {_mm_castsi128_ps(_mm_srli_si128(_mm_castps_si128(a.v), 4))}; }
// The low pair in both pairs; the high pair of a with the low pair of b above it.
ORBS_INLINE F32x4 LowPairToAll(F32x4 a) { return {_mm_movelh_ps(a.v, a.v)}; }
ORBS_INLINE F32x4 HighPairThenLow(F32x4 a, F32x4 b) {
  return {_mm_shuffle_ps(a.v, b.v, _MM_SHUFFLE(1, 0, 3, 2))};
}

}  // namespace orbs::ORBS_VARIANT

#endif
#endif
