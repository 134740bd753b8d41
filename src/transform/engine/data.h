// Complex arrays and values as the transforms see them. An array is a view: interleaved pairs or two arrays
// of parts; an algorithm is written once for both.
#ifndef ORBS_TRANSFORM_ENGINE_DATA_H
#define ORBS_TRANSFORM_ENGINE_DATA_H

#include <cstddef>

#include "core/complex.h"
#include "core/variant.h"
#include "orbs90lgc/types.h"

namespace orbs::ORBS_VARIANT::transform {

using Index = ptrdiff_t;

// Of a real spectrum; transform/fft.h tells what stands where.
enum class SpectrumLayout { perm, pack, ccs };

// A complex number in the type of evaluation.
template <class T>
using Value = Complex<Wide<T>>;

// a times w in the forward direction, a times the conjugate of w in the inverse one.
template <bool kForward, class W>
ORBS_INLINE Complex<W> Turn(Complex<W> a, Complex<W> w) {
  return a * (kForward ? w : Conjugate(w));
}
// a times -i in the forward direction, times i in the inverse one.
template <bool kForward, class W>
ORBS_INLINE Complex<W> QuarterTurn(Complex<W> a) {
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
