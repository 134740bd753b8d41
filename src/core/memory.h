// Aligned memory. Every allocation of the library goes through AllocAligned and FreeAligned.
#ifndef ORBS_CORE_MEMORY_H
#define ORBS_CORE_MEMORY_H

#include <cstddef>
#include <cstdint>

#include "orbs90lgc/types.h"

namespace orbs {

inline constexpr int kBlockAlignment = 64;  // the widest vector loads, and a cache line

// The heap behind AllocAligned: the process's own, unless a test puts another in its place.
struct Allocator {
  void* (*allocate)(size_t bytes);
  void (*release)(void* block);
};
void SetAllocator(const Allocator& allocator);

// A block that starts on a multiple of 64 bytes and costs the heap 68 bytes more than asked for; null if
// `size` is below 1 or the heap refuses. The argument is 64 bits wide so that no caller cuts a size short:
// beyond 2^31-1 the answer is null.
void* AllocAligned(int64_t size);

// Ignores null.
void FreeAligned(void* block);

// Typed allocators: n elements of 1, 2, 4, 8 or 16 bytes; null for n below 1.
Orb8u* AllocElems_8u(int64_t n);
Orb16s* AllocElems_16s(int64_t n);
Orb32s* AllocElems_32s(int64_t n);
Orb64s* AllocElems_64s(int64_t n);
Orb64fc* AllocElems_128(int64_t n);

// The first address at or after `pointer` that is a multiple of `alignment`, a power of two.
template <class T>
[[gnu::always_inline]] inline T* AlignUp(T* pointer, uintptr_t alignment) {
  const auto address = reinterpret_cast<uintptr_t>(pointer);
  const uintptr_t gap = (0 - (address & (alignment - 1))) & (alignment - 1);
  return reinterpret_cast<T*>(reinterpret_cast<uintptr_t>(pointer) + gap);
}

}  // namespace orbs

#endif
