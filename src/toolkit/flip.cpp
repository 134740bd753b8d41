// Reversal of the order of elements.
#include <cstring>

#include "core/checks.h"
#include "simd/simd.h"
#include "toolkit/toolkit.h"

namespace orbs::ORBS_VARIANT {
namespace {

// kPartsPerElement is 1 for real and 2 for complex arrays, which are given as arrays of their parts.

#if ORBS_VECTOR

template <int kPartsPerElement, class Vector>
ORBS_INLINE Vector ReverseElements(Vector v) {
  if constexpr (kPartsPerElement == 1) {
    return Reverse(v);
  } else {
    return ReversePairs(v);
  }
}

// Fewer parts than a vector has lanes: they stand at the end of a block, so that the reversed block begins
// with them.
template <int kPartsPerElement, class T>
ORBS_INLINE void ReverseFew(const T* src, T* dst, size_t parts) {
  using Vector = VectorOf<T>;
  T block[Vector::kLanes] = {};
  std::memcpy(block + Vector::kLanes - parts, src, parts * sizeof(T));
  ReverseElements<kPartsPerElement>(Vector::Load(block)).Store(block);
  std::memcpy(dst, block, parts * sizeof(T));
}

template <int kPartsPerElement, class T>
void ReverseInPlace(T* x, size_t parts) {
  using Vector = VectorOf<T>;
  constexpr size_t kLanes = Vector::kLanes;
  T* low = x;
  T* high = x + parts;
  // The last exchange may have its two vectors overlap: both are read before either is written.
  while (static_cast<size_t>(high - low) > kLanes) {
    const Vector first = Vector::Load(low);
    const Vector last = Vector::Load(high - kLanes);
    ReverseElements<kPartsPerElement>(first).Store(high - kLanes);
    ReverseElements<kPartsPerElement>(last).Store(low);
    if (static_cast<size_t>(high - low) < 2 * kLanes) return;
    low += kLanes;
    high -= kLanes;
  }
  ReverseFew<kPartsPerElement>(low, low, static_cast<size_t>(high - low));
}

void ReverseCopy(const Orb32f* src, Orb32f* dst, size_t n) {
  constexpr size_t kLanes = F32::kLanes;
  size_t i = 0;
  // Two vectors a round: twice as fast as one in the first-level cache, while four are slower than two beyond
  // it.
  for (; i + 2 * kLanes <= n; i += 2 * kLanes) {
    const Orb32f* s = src + n - 2 * kLanes - i;
    Reverse(F32::Load(s)).Store(dst + i + kLanes);
    Reverse(F32::Load(s + kLanes)).Store(dst + i);
  }
  for (; i + kLanes <= n; i += kLanes) Reverse(F32::Load(src + n - kLanes - i)).Store(dst + i);
  if (i < n) ReverseFew<1>(src, dst + i, n - i);
}

#else

// Elements move as bytes: a pass through the registers of the x87 would turn a signalling NaN into a quiet
// one.

template <int kPartsPerElement, class T>
void ReverseInPlace(T* x, size_t parts) {
  struct Element {
    unsigned char bytes[kPartsPerElement * sizeof(T)];
  } first, last;
  for (size_t low = 0, high = parts - kPartsPerElement; low < high;
       low += kPartsPerElement, high -= kPartsPerElement) {
    std::memcpy(&first, x + low, sizeof first);
    std::memcpy(&last, x + high, sizeof last);
    std::memcpy(x + low, &last, sizeof last);
    std::memcpy(x + high, &first, sizeof first);
  }
}

void ReverseCopy(const Orb32f* src, Orb32f* dst, size_t n) {
  for (size_t i = 0; i < n; ++i) std::memcpy(dst + i, src + (n - 1 - i), sizeof *dst);
}

#endif

template <int kPartsPerElement, class T>
ORBS_INLINE OrbStatus Flip(T* x, Orb32s n) {
  ORBS_RETURN_IF_BAD(CheckArrays(n, x));
  ReverseInPlace<kPartsPerElement>(x, static_cast<size_t>(n) * kPartsPerElement);
  return StatusOk;
}

}  // namespace

OrbStatus VecFlip_32f_I(Orb32f* x, Orb32s n) { return Flip<1>(x, n); }
OrbStatus VecFlip_64f_I(Orb64f* x, Orb32s n) { return Flip<1>(x, n); }
OrbStatus VecFlip_32fc_I(Orb32fc* x, Orb32s n) { return Flip<2>(reinterpret_cast<Orb32f*>(x), n); }
OrbStatus VecFlip_64fc_I(Orb64fc* x, Orb32s n) { return Flip<2>(reinterpret_cast<Orb64f*>(x), n); }

OrbStatus VecFlip_32f(const Orb32f* src, Orb32f* dst, Orb32s n) {
  ORBS_RETURN_IF_BAD(CheckArrays(n, src, dst));
  if (src == dst) return VecFlip_32f_I(dst, n);
  ReverseCopy(src, dst, static_cast<size_t>(n));
  return StatusOk;
}

}  // namespace orbs::ORBS_VARIANT
