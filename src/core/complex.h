// A complex number of scalar code, in the type of evaluation.
#ifndef ORBS_CORE_COMPLEX_H
#define ORBS_CORE_COMPLEX_H

#include "core/variant.h"

namespace orbs::ORBS_VARIANT {

template <class T>
struct Complex {
  T re;
  T im;
};

template <class T>
ORBS_INLINE Complex<T> operator+(Complex<T> a, Complex<T> b) {
  return {a.re + b.re, a.im + b.im};
}
template <class T>
ORBS_INLINE Complex<T> operator-(Complex<T> a, Complex<T> b) {
  return {a.re - b.re, a.im - b.im};
}
template <class T>
ORBS_INLINE Complex<T> operator*(Complex<T> a, Complex<T> b) {
  return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
}
template <class T>
ORBS_INLINE Complex<T> Times(Complex<T> a, T factor) {
  return {a.re * factor, a.im * factor};
}
template <class T>
ORBS_INLINE Complex<T> Conjugate(Complex<T> a) {
  return {a.re, -a.im};
}

}  // namespace orbs::ORBS_VARIANT

#endif
