// The size of the largest data or unified cache, for fills that should not pass through it.
#ifndef ORBS_BOUNDARY_PROCESSOR_CACHE_H
#define ORBS_BOUNDARY_PROCESSOR_CACHE_H

#include <cstdint>

#include "boundary/processor/cpuid.h"
#include "orbs90lgc/types.h"

namespace orbs {

struct CacheAnswer {
  OrbStatus status;  // StatusOk, kStatusNoCpuId or kStatusNoCacheInfo
  uint32_t size;     // bytes; 0 unless status is StatusOk
};

// One row: a descriptor byte of CPUID leaf 2 and the cache size in bytes that it stands for.
struct CacheDescriptor {
  uint8_t descriptor;
  uint32_t size;
};

// Sorted from the largest size to the smallest, ended by a zero row.
inline constexpr int kCacheDescriptorCount = 55;
extern const CacheDescriptor CacheDescriptorTable[kCacheDescriptorCount + 1];

// Pure function of a source of identification.
CacheAnswer FindCacheSize(const CpuidSource& cpu);

// The answer for this processor, found at the first call. StatusNullPointer for a null `size`, else the
// answer's status.
OrbStatus QueryCacheSize(uint32_t* size);

}  // namespace orbs

#endif
