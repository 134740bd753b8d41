// Stores that go past the cache: for fills that are larger than it. From AVX on, where a store fills half a
// line.
#ifndef ORBS_SIMD_STREAM_H
#define ORBS_SIMD_STREAM_H

#include <cstdint>

#include "simd/simd.h"

#if ORBS_VECTOR

namespace orbs::ORBS_VARIANT {

#ifdef __AVX__

inline constexpr bool kStreams = true;

// Fills at least 128 bytes with a pattern of 4 equal bytes or, at an address that is a multiple of 4, of 4
// any bytes: only then do the parts that overlap agree.
inline void StreamFill(Orb32s pattern, void* dst, Orb64s bytes) {
  const __m256 value = _mm256_castsi256_ps(_mm256_set1_epi32(pattern));
  const auto store = [value](unsigned char* p)
                         ORBS_INLINE_CLOSURE { _mm256_storeu_ps(reinterpret_cast<float*>(p), value); };
  auto* p = static_cast<unsigned char*>(dst);
  unsigned char* const end = p + bytes;
  store(p);
  store(p + 32);
  p += 64 - (reinterpret_cast<uintptr_t>(p) & 63);
  for (; end - p >= 64; p += 64) {
    _mm256_stream_ps(reinterpret_cast<float*>(p), value);
    _mm256_stream_ps(reinterpret_cast<float*>(p + 32), value);
  }
  // The rest, below 64 bytes, by the last 64 once more.
  store(end - 64);
  store(end - 32);
  _mm_sfence();
}

#else

inline constexpr bool kStreams = false;

inline void StreamFill(Orb32s, void*, Orb64s) {}

#endif

}  // namespace orbs::ORBS_VARIANT

#endif
#endif
