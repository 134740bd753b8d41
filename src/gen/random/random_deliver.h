// Vectors of binary64 numbers to random elements of the three types.
#ifndef ORBS_GEN_RANDOM_RANDOM_DELIVER_H
#define ORBS_GEN_RANDOM_RANDOM_DELIVER_H

#include <cstring>

#include "gen/random/random_sequence.h"

#if ORBS_VECTOR

namespace orbs::ORBS_VARIANT::gen {

// get(i) is the vector of the values from the i-th on; the first `count` of them, rounded up to a whole
// number of vectors, are written. `store` makes 32-bit integers of a vector.

template <class Get, class Store>
ORBS_INLINE void DeliverRandom(Orb64f* d, int count, Get get, Store) {
  for (int i = 0; i < count; i += F64::kLanes) get(i).Store(d + i);
}

template <class Get, class Store>
ORBS_INLINE void DeliverRandom(Orb32f* d, int count, Get get, Store) {
  for (int i = 0; i < count; i += F64::kLanes) StoreNarrow(d + i, get(i));
}

template <class Get, class Store>
ORBS_INLINE void DeliverRandom(Orb16s* d, int count, Get get, Store store) {
  // Eight at a time in every variant: what is loaded is then no wider than what F64x4 stored.
  constexpr int kPacked = I16x8::kLanes;
  for (int i = 0; i < count; i += kPacked) {
    Orb32s wide[kPacked];
    ORBS_UNROLL for (int j = 0; j < kPacked; j += F64::kLanes) store(wide + j, get(i + j));
    Pack(I32x4::Load(wide), I32x4::Load(wide + I32x4::kLanes)).Store(d + i);
  }
}

// The same into an array that has room for `room` elements; gives the number of elements that came to lie in
// it. `count` is at most kMost, a multiple of 8. What is written beyond `count` is overwritten by the next
// delivery.
template <int kMost, class Result, class Get, class Store>
ORBS_INLINE Orb32s DeliverRandom(Result* d, Orb32s room, int count, Get get, Store store) {
  static_assert(kMost % I16x8::kLanes == 0);
  if (room >= kMost) {
    DeliverRandom(d, count, get, store);
    return count;
  }
  Result results[kMost];
  DeliverRandom(results, count, get, store);
  const Orb32s delivered = count < room ? count : room;
  std::memcpy(d, results, static_cast<size_t>(delivered) * sizeof(Result));
  return delivered;
}

}  // namespace orbs::ORBS_VARIANT::gen

#endif
#endif
