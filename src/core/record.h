// Records: plans and states. A record is a fixed structure with its tables behind it in one block, the same
// on all targets.
//
// A record never holds a raw pointer into its own block: it holds an Offset, 32 bits wide everywhere, counted
// from the record's own address. The block is described once, by a function that adds its parts to a
// BlockLayout; the size query, Init and InitAlloc all take their numbers from that one description, so they
// cannot disagree.
//
//   struct Record {
//     Orb32s identity;              // first in every record
//     Offset<Orb32f> taps;
//   };
//   struct Parts { Offset<Orb32f> taps; int64_t bytes; };
//   Parts Describe(int64_t tapCount) {
//     BlockLayout block(sizeof(Record), 64);
//     Parts parts;
//     parts.taps = block.Add<Orb32f>(tapCount, 16);
//     parts.bytes = block.Bytes();
//     return parts;
//   }
#ifndef ORBS_CORE_RECORD_H
#define ORBS_CORE_RECORD_H

#include <cstdint>

#include "orbs90lgc/types.h"

namespace orbs {

// The distance in bytes from a record to an array in its block; 0 means that there is no such array.
template <class T>
struct Offset {
  Orb32s bytes;

  [[gnu::always_inline]] T* In(void* record) const {
    return bytes == 0 ? nullptr : reinterpret_cast<T*>(static_cast<unsigned char*>(record) + bytes);
  }
  [[gnu::always_inline]] const T* In(const void* record) const {
    return bytes == 0 ? nullptr
                      : reinterpret_cast<const T*>(static_cast<const unsigned char*>(record) + bytes);
  }
};
static_assert(sizeof(Offset<Orb64fc>) == 4);

[[gnu::always_inline]] constexpr int64_t RoundUp(int64_t value, int64_t multiple) {
  return (value + multiple - 1) / multiple * multiple;
}

// A size as a size query reports it: one beyond 2^31-1 bytes, which no allocation grants, as that limit.
[[gnu::always_inline]] constexpr Orb32s ReportedBytes(int64_t bytes) {
  return static_cast<Orb32s>(bytes < INT32_MAX ? bytes : INT32_MAX);
}

// Adds up the parts of a block in 64 bits. A block beyond 2^31-1 bytes cannot be had; Fits tells, and its
// offsets are not to be used.
class BlockLayout {
 public:
  // The record itself, its size rounded up to `alignment`.
  [[gnu::always_inline]] constexpr BlockLayout(int64_t recordBytes, int64_t alignment)
      : bytes_(RoundUp(recordBytes, alignment)) {}

  // Room for `count` elements, its size rounded up to `alignment`; where it starts follows from the parts
  // before it. No array at all for a count below 1.
  template <class T>
  [[gnu::always_inline]] constexpr Offset<T> Add(int64_t count, int64_t alignment) {
    constexpr int64_t kLimit = int64_t{1} << 40;  // far beyond any block, far below overflow of the sum
    if (count < 1) return {0};
    const Offset<T> offset = {static_cast<Orb32s>(Fits() ? bytes_ : 0)};
    bytes_ += count > kLimit / static_cast<int64_t>(sizeof(T))
                  ? kLimit
                  : RoundUp(count * static_cast<int64_t>(sizeof(T)), alignment);
    return offset;
  }

  [[gnu::always_inline]] constexpr int64_t Bytes() const { return bytes_; }
  [[gnu::always_inline]] constexpr bool Fits() const { return bytes_ <= INT32_MAX; }

 private:
  int64_t bytes_;
};

}  // namespace orbs

#endif
