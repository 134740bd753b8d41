// Walking taps and samples of a caller's arrays in vectors: nothing outside the arrays is read or written.
//
// The n elements are split into whole vectors from the front, and one last vector that ends with the array.
// The last one overlaps the one before where n is no multiple of a vector. It is loaded before anything is
// stored and stays in registers from the sums to the update: the lanes seen twice are left out of the sums,
// and updated twice they become the same numbers. Below a vector kernels take one of 128 bits, and
// below that the last one alone, with zeros in front, put together lane by lane.
//
// The newest sample, its last lane, comes from the argument and not from the ring: a load of a vector must
// wait until a single element stored just before has reached the cache, and the output with it.
#ifndef ORBS_FIR_ADAPTIVE_LMS_WALK_H
#define ORBS_FIR_ADAPTIVE_LMS_WALK_H

#include <cstddef>
#include <type_traits>

#include "simd/load.h"
#include "simd/simd.h"

#if ORBS_VECTOR

namespace orbs::ORBS_VARIANT::fir {

// Calls step with a null pointer of the vector type to take for n elements: V, or Short, of 128 bits, where
// n does not fill V.
template <class V, class Short, class Step>
ORBS_INLINE auto WithVectorFor(size_t n, Step step) {
  if constexpr (!std::is_same_v<V, Short>) {
    if (n < V::kLanes) return step(static_cast<Short*>(nullptr));
  }
  return step(static_cast<V*>(nullptr));
}

// All ones in the last `count` lanes, 1 <= count <= kLanes.
template <class V>
ORBS_INLINE V LastLanesMask(size_t count) {
  using Bits = std::conditional_t<sizeof(typename V::Lane) == 4, Orb32s, Orb64s>;
  constexpr size_t kLanes = V::kLanes;
  static constexpr Bits kMask[16] = {0, 0, 0, 0, 0, 0, 0, 0, -1, -1, -1, -1, -1, -1, -1, -1};
  return V::Load(reinterpret_cast<const typename V::Lane*>(kMask + 8 - kLanes + count));
}

template <class V>
class LmsSplit {
 public:
  // n is at least 1, and fills V if V has more than 128 bits.
  ORBS_INLINE explicit LmsSplit(size_t n)
      : n_(n), whole_((n - 1) / kLanes * kLanes), unseen_(LastLanesMask<V>(n - whole_)) {}

  // visit(k, turn) for the elements from k on of each whole vector. Successive ones have different turns, 0
  // to 3, for sums that do not wait for each other.
  template <class Visit>
  ORBS_INLINE void ForVectors(Visit visit) const {
    size_t k = 0;
    for (; k + 4 * kLanes <= whole_; k += 4 * kLanes) {
      visit(k, 0);
      visit(k + kLanes, 1);
      visit(k + 2 * kLanes, 2);
      visit(k + 3 * kLanes, 3);
    }
    if (whole_ & (2 * kLanes)) {
      visit(k, 0);
      visit(k + kLanes, 1);
      k += 2 * kLanes;
    }
    if (whole_ & kLanes) visit(k, 2);
  }

  template <class T>
  ORBS_INLINE V LoadLast(const T* p) const {
    if (!IsFew()) return LoadAs<V>(p + n_ - kLanes);
    V lanes = V::Zero();
    ORBS_UNROLL
    for (size_t last = kLanes - 1; last > 0; --last) {
      if (last <= n_) {
        const auto element = static_cast<typename V::Lane>(p[n_ - last]);
        lanes = Select(LastLanesMask<V>(last), V::All(element), lanes);
      }
    }
    return lanes;
  }

  template <class T>
  ORBS_INLINE V LoadLastSamples(const T* p, T newest) const {
    return Select(LastLanesMask<V>(1), V::All(newest), LoadLast(p));
  }

  // Zeros in the lanes that belong to whole vectors as well. Both factors of a product need it: an infinity
  // times 0 is a NaN.
  ORBS_INLINE V NotYetSeen(V last) const { return last & unseen_; }

  // store(to) writes a vector of results.
  template <class T, class StoreVector>
  ORBS_INLINE void StoreLast(T* p, StoreVector store) const {
    if (!IsFew()) {
      store(p + n_ - kLanes);
      return;
    }
    T lanes[kLanes];
    store(lanes);
    ORBS_UNROLL
    for (size_t last = kLanes - 1; last > 0; --last) {
      if (last <= n_) p[n_ - last] = lanes[kLanes - last];
    }
  }

 private:
  static constexpr size_t kLanes = V::kLanes;

  ORBS_INLINE bool IsFew() const { return sizeof(V) == 16 && n_ < kLanes; }

  size_t n_;
  size_t whole_;  // elements in whole vectors, a multiple of kLanes
  V unseen_;
};

}  // namespace orbs::ORBS_VARIANT::fir

#endif
#endif
