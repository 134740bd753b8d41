// Fills. Byte patterns go to the C library's memset, which has its own choice of the fastest store; what it
// does not do by the rule of this library, streaming past the cache, stands here.
#include <cstdint>
#include <cstring>

#include "boundary/processor/cache.h"
#include "core/checks.h"
#include "simd/blocks.h"
#include "simd/simd.h"
#include "simd/stream.h"
#include "toolkit/toolkit.h"

namespace orbs::ORBS_VARIANT {
namespace {

// A fill larger than the largest cache evicts everything and gains nothing from it; below 2 MiB it is not
// worth asking.
[[maybe_unused]] bool FillShouldStream(Orb64s bytes) {
  constexpr Orb64s kLeastStreamed = 0x200001;
  uint32_t cacheSize = 0;
  return bytes >= kLeastStreamed && QueryCacheSize(&cacheSize) == StatusOk && cacheSize > 0 &&
         bytes > cacheSize;
}

bool StreamIfLarge([[maybe_unused]] Orb32s pattern, [[maybe_unused]] void* dst,
                   [[maybe_unused]] Orb64s bytes) {
#if ORBS_VECTOR
  if constexpr (kStreams) {
    if (!FillShouldStream(bytes)) return false;
    StreamFill(pattern, dst, bytes);
    return true;
  }
#endif
  return false;
}

void FillWords(Orb32s value, void* dst, size_t n) {
#if ORBS_VECTOR
  const N32 pattern = N32::All(value);
  ForBlocks<N32::kLanes>(
      n, [pattern](Orb32s* d) { pattern.Store(d); }, static_cast<Orb32s*>(dst));
#else
  auto* p = static_cast<unsigned char*>(dst);
  for (size_t i = 0; i < n; ++i) std::memcpy(p + i * sizeof value, &value, sizeof value);
#endif
}

template <int kElementBytes>
ORBS_INLINE OrbStatus ZeroElements(void* dst, Orb32s n) {
  ORBS_RETURN_IF_BAD(CheckArrays(n, dst));
  VecZeroBytes(dst, static_cast<Orb64s>(n) * kElementBytes);
  return StatusOk;
}

}  // namespace

void VecZeroBytes(void* dst, Orb64s bytes) {
  if (bytes < 1) return;
  if (!StreamIfLarge(0, dst, bytes)) std::memset(dst, 0, static_cast<size_t>(bytes));
}

OrbStatus VecZero_8u(void* dst, Orb32s n) { return ZeroElements<1>(dst, n); }
OrbStatus VecZero_16s(void* dst, Orb32s n) { return ZeroElements<2>(dst, n); }
OrbStatus VecZero_32s(void* dst, Orb32s n) { return ZeroElements<4>(dst, n); }
OrbStatus VecZero_64s(void* dst, Orb32s n) { return ZeroElements<8>(dst, n); }
OrbStatus VecZero_128(void* dst, Orb32s n) { return ZeroElements<16>(dst, n); }

OrbStatus VecSet_8u(Orb8u value, void* dst, Orb32s n) {
  ORBS_RETURN_IF_BAD(CheckArrays(n, dst));
  const auto fourTimes = static_cast<Orb32s>(value * 0x01010101u);
  if (!StreamIfLarge(fourTimes, dst, n)) std::memset(dst, value, static_cast<size_t>(n));
  return StatusOk;
}

OrbStatus VecSet_32s(Orb32s value, void* dst, Orb32s n) {
  ORBS_RETURN_IF_BAD(CheckArrays(n, dst));
  const bool aligned = (reinterpret_cast<uintptr_t>(dst) & 3) == 0;
  if (!aligned || !StreamIfLarge(value, dst, static_cast<Orb64s>(n) * 4)) {
    FillWords(value, dst, static_cast<size_t>(n));
  }
  return StatusOk;
}

}  // namespace orbs::ORBS_VARIANT
