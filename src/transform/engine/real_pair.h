// One step of the real split: the spectrum z of N/2 complex points z[n] = x[2n] + i x[2n+1] holds that of the
// even and of the odd points; with k and m = N/2 - k,
//
//   A = (z[k] + conj z[m]) / 2,  B = (z[k] - conj z[m]) / 2,  C = -i exp(-2 pi i k / N) B,
//   X[k] = A + C,  X[m] = conj(A - C)
//
// and back, without the halves. At k = N/4 both are conj z[N/4] (times 2 in the inverse).
#ifndef ORBS_TRANSFORM_ENGINE_REAL_PAIR_H
#define ORBS_TRANSFORM_ENGINE_REAL_PAIR_H

#include "core/variant.h"
#include "transform/engine/data.h"

namespace orbs::ORBS_VARIANT::transform {

// `entry` is 0.5 cos a, 0.5 - 0.5 sin a: the halves are in it.
template <class T>
ORBS_INLINE void RealPairForward(Value<T>* zk, Value<T>* zm, Value<T> entry) {
  const Value<T> a = *zk;
  const Value<T> b = *zm;
  const Wide<T> d = a.re - b.re;
  const Wide<T> e = a.im + b.im;
  const Wide<T> t = entry.re * e + entry.im * d;
  const Wide<T> u = entry.im * e - entry.re * d;
  *zk = {b.re + t, u - b.im};
  *zm = {a.re - t, u - a.im};
}

// `w` is cos a, -sin a.
template <class T>
ORBS_INLINE void RealPairForwardByTwiddle(Value<T>* zk, Value<T>* zm, Value<T> w) {
  const Value<T> conjugate = {zm->re, -zm->im};
  const Value<T> a = Times(*zk + conjugate, Wide<T>(0.5));
  const Value<T> b = Times(*zk - conjugate, Wide<T>(0.5));
  const Value<T> c = QuarterTurn<true>(w * b);
  *zk = a + c;
  *zm = {a.re - c.re, c.im - a.im};
}

// `entry` is cos a, -sin a.
template <class T>
ORBS_INLINE void RealPairInverse(Value<T>* xk, Value<T>* xm, Value<T> entry) {
  const Value<T> a = *xk;
  const Value<T> b = *xm;
  const Wide<T> p = a.re + b.re;
  const Wide<T> q = a.im - b.im;
  const Wide<T> d = a.re - b.re;
  const Wide<T> e = a.im + b.im;
  const Wide<T> t = entry.im * d - entry.re * e;
  const Wide<T> u = entry.re * d + entry.im * e;
  *xk = {p + t, q + u};
  *xm = {p - t, u - q};
}

}  // namespace orbs::ORBS_VARIANT::transform

#endif
