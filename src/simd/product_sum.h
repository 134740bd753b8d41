// Sums of products of vectors and factors, real or complex.
//
// Complex sums are kept in two parts, by the real and by the imaginary parts of the factors, so that the swap
// of real and imaginary parts of x is made once a sum and not once a term:
//   sum of f x = a + (-b.im, b.re),   a = sum of f.re x,   b = sum of f.im x
#ifndef ORBS_SIMD_PRODUCT_SUM_H
#define ORBS_SIMD_PRODUCT_SUM_H

#include "simd/lanes.h"
#include "simd/simd.h"

#if ORBS_VECTOR

namespace orbs::ORBS_VARIANT {

// a + i b.
template <class V>
ORBS_INLINE V AddRotated(V a, V b) {
  return a + (SwapPairs(b) ^ EvenSigns(static_cast<V*>(nullptr)));
}
// 32-bit integers take the shuffles of binary32.
ORBS_INLINE N32 AddRotated(N32 a, N32 b) {
  auto swapped = SwapPairs(AsFloat(b));
  const N32 evenLanes = ShiftRight(AsInt(EvenSigns(&swapped)), 31);
  // Minus x is the complement of x - 1.
  return a + ((AsInt(swapped) ^ evenLanes) - evenLanes);
}

ORBS_INLINE N32 DupEven(N32 a) { return AsInt(DupEven(AsFloat(a))); }
ORBS_INLINE N32 DupOdd(N32 a) { return AsInt(DupOdd(AsFloat(a))); }

// sum + a b: fused where there is such an instruction; integers wrap. Of 16 bits, neighbouring products are
// added in 32.
template <class V>
ORBS_INLINE V AddProduct(V sum, V a, V b) {
  return MulAdd(a, b, sum);
}
ORBS_INLINE N32 AddProduct(N32 sum, N32 a, N32 b) { return sum + a * b; }
ORBS_INLINE I32x4 AddProduct(I32x4 sum, I16x8 a, I16x8 b) { return sum + MulAddPairs(a, b); }

// A factor: its real part in all lanes, and its imaginary part.
template <class V, int kParts>
struct Factor {
  V part[kParts];

  static ORBS_INLINE Factor Load(const typename V::Lane* p) {
    Factor f;
    for (int i = 0; i < kParts; ++i) f.part[i] = V::All(p[i]);
    return f;
  }
  // One element of a vector (a lane, or a pair) in all.
  template <int element>
  static ORBS_INLINE Factor Of(V a) {
    if constexpr (kParts == 1) {
      return {{AllOf<element>(a)}};
    } else {
      return {{AllOf<2 * element>(a), AllOf<2 * element + 1>(a)}};
    }
  }
  // One element of each quarter register in all elements of that quarter.
  template <int element>
  static ORBS_INLINE Factor OfQuarter(V a) {
    if constexpr (kParts == 1) {
      return {{AllOfQuarter<element>(a)}};
    } else {
      return {{AllOfQuarter<2 * element>(a), AllOfQuarter<2 * element + 1>(a)}};
    }
  }
  // Every element its own factor.
  static ORBS_INLINE Factor Each(V a) {
    if constexpr (kParts == 1) {
      return {{a}};
    } else {
      return {{DupEven(a), DupOdd(a)}};
    }
  }

  ORBS_INLINE Factor operator+(const Factor& f) const {
    Factor sum;
    for (int i = 0; i < kParts; ++i) sum.part[i] = part[i] + f.part[i];
    return sum;
  }
  ORBS_INLINE Factor operator-(const Factor& f) const {
    Factor difference;
    for (int i = 0; i < kParts; ++i) difference.part[i] = part[i] - f.part[i];
    return difference;
  }
};

// Sum is the vector of the sums: that of the factors, but for 16-bit integers.
template <class Sum, int kParts>
struct ProductSum {
  Sum part[kParts];

  static ORBS_INLINE ProductSum Zero() { return From(Sum::Zero()); }
  // One product.
  static ORBS_INLINE ProductSum Of(const Factor<Sum, kParts>& f, Sum x) {
    ProductSum sum;
    for (int i = 0; i < kParts; ++i) sum.part[i] = f.part[i] * x;
    return sum;
  }
  static ORBS_INLINE ProductSum From(Sum start) {
    ProductSum sum;
    sum.part[0] = start;
    if constexpr (kParts == 2) sum.part[1] = Sum::Zero();
    return sum;
  }

  template <class V>
  ORBS_INLINE void Add(const Factor<V, kParts>& f, V x) {
    for (int i = 0; i < kParts; ++i) part[i] = AddProduct(part[i], f.part[i], x);
  }
  ORBS_INLINE ProductSum operator+(const ProductSum& other) const {
    ProductSum sum;
    for (int i = 0; i < kParts; ++i) sum.part[i] = part[i] + other.part[i];
    return sum;
  }
  ORBS_INLINE Sum Value() const {
    if constexpr (kParts == 2) {
      return AddRotated(part[0], part[1]);
    } else {
      return part[0];
    }
  }
};

}  // namespace orbs::ORBS_VARIANT

#endif
#endif
