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
template <class W>
ORBS_INLINE void RealPairForward(Complex<W>* zk, Complex<W>* zm, Complex<W> entry) {
  const Complex<W> a = *zk;
  const Complex<W> b = *zm;
  const W d = a.re - b.re;
  const W e = a.im + b.im;
  const W t = entry.re * e + entry.im * d;
  const W u = entry.im * e - entry.re * d;
  *zk = {b.re + t, u - b.im};
  *zm = {a.re - t, u - a.im};
}

// `w` is cos a, -sin a.
template <class W>
ORBS_INLINE void RealPairForwardByTwiddle(Complex<W>* zk, Complex<W>* zm, Complex<W> w) {
  const Complex<W> conjugate = Conjugate(*zm);
  const Complex<W> a = Times(*zk + conjugate, W(0.5));
  const Complex<W> b = Times(*zk - conjugate, W(0.5));
  const Complex<W> c = QuarterTurn<true>(w * b);
  *zk = a + c;
  *zm = {a.re - c.re, c.im - a.im};
}

// `entry` is cos a, -sin a.
template <class W>
ORBS_INLINE void RealPairInverse(Complex<W>* xk, Complex<W>* xm, Complex<W> entry) {
  const Complex<W> a = *xk;
  const Complex<W> b = *xm;
  const W p = a.re + b.re;
  const W q = a.im - b.im;
  const W d = a.re - b.re;
  const W e = a.im + b.im;
  const W t = entry.im * d - entry.re * e;
  const W u = entry.re * d + entry.im * e;
  *xk = {p + t, q + u};
  *xm = {p - t, u - q};
}

}  // namespace orbs::ORBS_VARIANT::transform

#endif
