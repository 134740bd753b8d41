// Complex arrays and values as the transforms see them. An array is a view: interleaved pairs or two arrays
// of parts; an algorithm is written once for both.
#ifndef ORBS_TRANSFORM_ENGINE_DATA_H
#define ORBS_TRANSFORM_ENGINE_DATA_H

#include <cstddef>

#include "core/variant.h"
#include "orbs90lgc/types.h"

namespace orbs::ORBS_VARIANT::transform {

using Index = ptrdiff_t;

// Of a real spectrum; transform/fft.h tells what stands where.
enum class SpectrumLayout { perm, pack, ccs };

// A complex number in the type of evaluation.
template <class T>
struct Value {
  Wide<T> re;
  Wide<T> im;
};

template <class T>
ORBS_INLINE Value<T> operator+(Value<T> a, Value<T> b) {
  return {a.re + b.re, a.im + b.im};
}
template <class T>
ORBS_INLINE Value<T> operator-(Value<T> a, Value<T> b) {
  return {a.re - b.re, a.im - b.im};
}
template <class T>
ORBS_INLINE Value<T> operator*(Value<T> a, Value<T> b) {
  return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
}
template <class T>
ORBS_INLINE Value<T> Times(Value<T> a, Wide<T> factor) {
  return {a.re * factor, a.im * factor};
}
// a times w in the forward direction, a times the conjugate of w in the inverse one.
template <bool kForward, class T>
ORBS_INLINE Value<T> Turn(Value<T> a, Value<T> w) {
  if constexpr (!kForward) w.im = -w.im;
  return a * w;
}
// a times -i in the forward direction, times i in the inverse one.
template <bool kForward, class T>
ORBS_INLINE Value<T> QuarterTurn(Value<T> a) {
  if constexpr (kForward) {
    return {a.im, -a.re};
  } else {
    return {-a.im, a.re};
  }
}

// n pairs, real part first.
template <class T>
struct Interleaved {
  T* pairs;

  ORBS_INLINE Interleaved At(Index k) const { return {pairs + 2 * k}; }
  template <class U>
  ORBS_INLINE bool SameAs(Interleaved<U> other) const {
    return pairs == other.pairs;
  }
};

// An array of n real parts and one of n imaginary parts.
template <class T>
struct Split {
  T* re;
  T* im;

  ORBS_INLINE Split At(Index k) const { return {re + k, im + k}; }
};

template <class T>
ORBS_INLINE Value<T> Get(Interleaved<T> data, Index k) {
  return {data.pairs[2 * k], data.pairs[2 * k + 1]};
}
template <class T>
ORBS_INLINE Value<T> Get(Interleaved<const T> data, Index k) {
  return {data.pairs[2 * k], data.pairs[2 * k + 1]};
}
template <class T>
ORBS_INLINE Value<T> Get(Split<T> data, Index k) {
  return {data.re[k], data.im[k]};
}
template <class T>
ORBS_INLINE Value<T> Get(Split<const T> data, Index k) {
  return {data.re[k], data.im[k]};
}
template <class T>
ORBS_INLINE void Put(Interleaved<T> data, Index k, Value<T> value) {
  data.pairs[2 * k] = static_cast<T>(value.re);
  data.pairs[2 * k + 1] = static_cast<T>(value.im);
}
template <class T>
ORBS_INLINE void Put(Split<T> data, Index k, Value<T> value) {
  data.re[k] = static_cast<T>(value.re);
  data.im[k] = static_cast<T>(value.im);
}

}  // namespace orbs::ORBS_VARIANT::transform

#endif
