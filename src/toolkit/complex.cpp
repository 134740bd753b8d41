// Complex arithmetic on interleaved pairs, and products of spectra in the Pack and Perm layouts.
#include "core/checks.h"
#include "simd/blocks.h"
#include "simd/simd.h"
#include "toolkit/toolkit.h"

namespace orbs::ORBS_VARIANT {
namespace {

// Arrays of pairs are walked as arrays of their parts.
template <class Complex>
using PartOf = decltype(Complex::re);

template <class Complex>
ORBS_INLINE const PartOf<Complex>* Parts(const Complex* p) {
  return reinterpret_cast<const PartOf<Complex>*>(p);
}
template <class Complex>
ORBS_INLINE PartOf<Complex>* Parts(Complex* p) {
  return reinterpret_cast<PartOf<Complex>*>(p);
}

#if ORBS_VECTOR

template <class T>
void MulPairs(const T* a, const T* b, T* dst, size_t pairs) {
  using Vector = VectorOf<T>;
  ForBlocks<Vector::kLanes>(
      2 * pairs, [](T* d, const T* x, const T* y) { MulComplex(Vector::Load(x), Vector::Load(y)).Store(d); },
      dst, a, b);
}

template <class T>
void MulConjugatePairs(const T* a, const T* b, T* dst, size_t pairs) {
  using Vector = VectorOf<T>;
  ForBlocks<Vector::kLanes>(
      2 * pairs,
      [](T* d, const T* x, const T* y) { MulConjugate(Vector::Load(x), Vector::Load(y)).Store(d); }, dst, a,
      b);
}

template <class T>
void ConjugatePairs(const T* src, T* dst, size_t pairs) {
  using Vector = VectorOf<T>;
  ForBlocks<Vector::kLanes>(
      2 * pairs, [](T* d, const T* s) { Conjugate(Vector::Load(s)).Store(d); }, dst, src);
}

#else

template <class T>
void MulPairs(const T* a, const T* b, T* dst, size_t pairs) {
  for (size_t i = 0; i < 2 * pairs; i += 2) {
    const Wide<T> re = a[i], im = a[i + 1];
    const Wide<T> c = b[i], d = b[i + 1];
    dst[i] = static_cast<T>(re * c - im * d);
    dst[i + 1] = static_cast<T>(re * d + im * c);
  }
}

template <class T>
void MulConjugatePairs(const T* a, const T* b, T* dst, size_t pairs) {
  for (size_t i = 0; i < 2 * pairs; i += 2) {
    const Wide<T> re = a[i], im = a[i + 1];
    const Wide<T> c = b[i], d = b[i + 1];
    dst[i] = static_cast<T>(re * c + im * d);
    dst[i + 1] = static_cast<T>(im * c - re * d);
  }
}

template <class T>
void ConjugatePairs(const T* src, T* dst, size_t pairs) {
  for (size_t i = 0; i < 2 * pairs; i += 2) {
    dst[i] = src[i];
    dst[i + 1] = -src[i + 1];
  }
}

#endif

template <class Complex>
ORBS_INLINE OrbStatus Mul(const Complex* a, const Complex* b, Complex* dst, Orb32s n) {
  ORBS_RETURN_IF_BAD(CheckArrays(n, a, b, dst));
  MulPairs(Parts(a), Parts(b), Parts(dst), static_cast<size_t>(n));
  return StatusOk;
}

template <class Complex>
ORBS_INLINE OrbStatus Conj(const Complex* src, Complex* dst, Orb32s n) {
  ORBS_RETURN_IF_BAD(CheckArrays(n, src, dst));
  ConjugatePairs(Parts(src), Parts(dst), static_cast<size_t>(n));
  return StatusOk;
}

template <class T>
ORBS_INLINE void MulReal(const T* src, T* target) {
  *target = static_cast<T>(Wide<T>(*src) * *target);
}

template <class T>
ORBS_INLINE OrbStatus MulPackConj(const T* src, T* target, Orb32s n) {
  ORBS_RETURN_IF_BAD(CheckArrays(n, src, target));
  MulReal(src, target);
  if (n % 2 == 0) MulReal(src + n - 1, target + n - 1);
  MulConjugatePairs(src + 1, target + 1, target + 1, static_cast<size_t>((n - 1) / 2));
  return StatusOk;
}

template <class T>
ORBS_INLINE OrbStatus MulPerm(const T* src, T* target, Orb32s n) {
  ORBS_RETURN_IF_BAD(CheckArrays(n, src, target));
  const Orb32s reals = n % 2 == 0 ? 2 : 1;
  for (Orb32s i = 0; i < reals; ++i) MulReal(src + i, target + i);
  MulPairs(src + reals, target + reals, target + reals, static_cast<size_t>((n - reals) / 2));
  return StatusOk;
}

}  // namespace

OrbStatus VecMul_32fc(const Orb32fc* a, const Orb32fc* b, Orb32fc* dst, Orb32s n) {
  return Mul(a, b, dst, n);
}
OrbStatus VecMul_64fc(const Orb64fc* a, const Orb64fc* b, Orb64fc* dst, Orb32s n) {
  return Mul(a, b, dst, n);
}
OrbStatus VecMul_32fc_I(const Orb32fc* src, Orb32fc* target, Orb32s n) { return Mul(src, target, target, n); }
OrbStatus VecMul_64fc_I(const Orb64fc* src, Orb64fc* target, Orb32s n) { return Mul(src, target, target, n); }

OrbStatus VecConj_32fc(const Orb32fc* src, Orb32fc* dst, Orb32s n) { return Conj(src, dst, n); }
OrbStatus VecConj_64fc(const Orb64fc* src, Orb64fc* dst, Orb32s n) { return Conj(src, dst, n); }
OrbStatus VecConj_32fc_I(Orb32fc* x, Orb32s n) { return Conj(x, x, n); }
OrbStatus VecConj_64fc_I(Orb64fc* x, Orb32s n) { return Conj(x, x, n); }

OrbStatus VecMulPackConj_32f_I(const Orb32f* src, Orb32f* target, Orb32s n) {
  return MulPackConj(src, target, n);
}
OrbStatus VecMulPackConj_64f_I(const Orb64f* src, Orb64f* target, Orb32s n) {
  return MulPackConj(src, target, n);
}
OrbStatus VecMulPerm_32f_I(const Orb32f* src, Orb32f* target, Orb32s n) { return MulPerm(src, target, n); }
OrbStatus VecMulPerm_64f_I(const Orb64f* src, Orb64f* target, Orb32s n) { return MulPerm(src, target, n); }

}  // namespace orbs::ORBS_VARIANT
