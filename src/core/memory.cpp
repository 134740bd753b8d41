#include "core/memory.h"

#include <cstdlib>
#include <cstring>

namespace orbs {
namespace {

Allocator heap = {std::malloc, std::free};

// In front of a block stands how far it lies from what the heap gave: 32 bits, so that the cost is the same
// where a pointer is 64 bits wide. The heap aligns to at least 4 bytes, so the distance is 4 to 67 and the
// word lies inside the allocation.
using Distance = uint32_t;
constexpr size_t kOverhead = kBlockAlignment + sizeof(Distance);

}  // namespace

void SetAllocator(const Allocator& allocator) { heap = allocator; }

void* AllocAligned(int64_t size) {
  if (size < 1 || size > INT32_MAX) return nullptr;
  auto* raw = static_cast<unsigned char*>(heap.allocate(static_cast<size_t>(size) + kOverhead));
  if (raw == nullptr) return nullptr;
  unsigned char* block = AlignUp(raw + sizeof(Distance), kBlockAlignment);
  const auto distance = static_cast<Distance>(block - raw);
  std::memcpy(block - sizeof distance, &distance, sizeof distance);
  return block;
}

void FreeAligned(void* block) {
  if (block == nullptr) return;
  auto* bytes = static_cast<unsigned char*>(block);
  Distance distance;
  std::memcpy(&distance, bytes - sizeof distance, sizeof distance);
  heap.release(bytes - distance);
}

namespace {
template <class T>
T* AllocElems(int64_t n) {
  if (n < 1 || n > INT32_MAX / static_cast<int64_t>(sizeof(T))) return nullptr;
  return static_cast<T*>(AllocAligned(n * static_cast<int64_t>(sizeof(T))));
}
}  // namespace

Orb8u* AllocElems_8u(int64_t n) { return AllocElems<Orb8u>(n); }
Orb16s* AllocElems_16s(int64_t n) { return AllocElems<Orb16s>(n); }
Orb32s* AllocElems_32s(int64_t n) { return AllocElems<Orb32s>(n); }
Orb64s* AllocElems_64s(int64_t n) { return AllocElems<Orb64s>(n); }
Orb64fc* AllocElems_128(int64_t n) { return AllocElems<Orb64fc>(n); }

}  // namespace orbs
