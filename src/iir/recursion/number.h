// A real or complex number of scalar code: real filters and complex ones are written once.
#ifndef ORBS_IIR_RECURSION_NUMBER_H
#define ORBS_IIR_RECURSION_NUMBER_H

#include "core/complex.h"
#include "core/parts.h"
#include "core/variant.h"

namespace orbs::ORBS_VARIANT::iir {

template <class T, int kParts>
struct Number {
  T part[kParts];

  // From an element of an array, and into one: rounded there.
  template <class Element>
  static ORBS_INLINE Number From(const Element& element) {
    Number number;
    for (int i = 0; i < kParts; ++i) number.part[i] = static_cast<T>(Parts(&element)[i]);
    return number;
  }
  template <class Element>
  ORBS_INLINE void To(Element* element) const {
    for (int i = 0; i < kParts; ++i) Parts(element)[i] = static_cast<PartOf<Element>>(part[i]);
  }
  static ORBS_INLINE Number Zero() { return {}; }

  ORBS_INLINE bool IsZero() const {
    for (T x : part) {
      if (x != 0) return false;
    }
    return true;
  }

  friend ORBS_INLINE Number operator+(Number a, Number b) {
    for (int i = 0; i < kParts; ++i) a.part[i] += b.part[i];
    return a;
  }
  friend ORBS_INLINE Number operator-(Number a, Number b) {
    for (int i = 0; i < kParts; ++i) a.part[i] -= b.part[i];
    return a;
  }
  friend ORBS_INLINE Number operator-(Number a) {
    for (T& x : a.part) x = -x;
    return a;
  }
  friend ORBS_INLINE Number operator*(Number a, Number b) {
    if constexpr (kParts == 1) {
      return {{a.part[0] * b.part[0]}};
    } else {
      const Complex<T> product = Complex<T>{a.part[0], a.part[1]} * Complex<T>{b.part[0], b.part[1]};
      return {{product.re, product.im}};
    }
  }
};

// 1/a for a that is not 0: for complex numbers the conjugate over the squared magnitude.
template <class T, int kParts>
ORBS_INLINE Number<T, kParts> Reciprocal(Number<T, kParts> a) {
  if constexpr (kParts == 1) {
    return {{1 / a.part[0]}};
  } else {
    const T m = a.part[0] * a.part[0] + a.part[1] * a.part[1];
    return {{a.part[0] / m, -a.part[1] / m}};
  }
}

}  // namespace orbs::ORBS_VARIANT::iir

#endif
