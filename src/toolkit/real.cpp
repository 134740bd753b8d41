// Real arithmetic on single arrays: product with a constant, sum, square root.
#include <cmath>

#include "core/checks.h"
#include "core/scaling.h"
#include "simd/blocks.h"
#include "simd/simd.h"
#include "toolkit/toolkit.h"

namespace orbs::ORBS_VARIANT {
namespace {

#if ORBS_VECTOR

template <class T>
void MulElements(T constant, T* x, size_t n) {
  using Vector = VectorOf<T>;
  const Vector c = Vector::All(constant);
  ForBlocks<Vector::kLanes>(
      n, [c](T* d, const T* s) { (Vector::Load(s) * c).Store(d); }, x, x);
}

void AddElements(const Orb32f* src, Orb32f* sum, size_t n) {
  ForBlocks<F32::kLanes>(
      n, [](Orb32f* d, const Orb32f* a, const Orb32f* b) { (F32::Load(a) + F32::Load(b)).Store(d); }, sum,
      src, sum);
}

// Tells whether an element was negative. The instruction gives the NaN of the contract by itself.
bool SqrtElements(Orb64f* x, size_t n) {
  F64 negative = F64::Zero();
  ForBlocks<F64::kLanes>(
      n,
      [&negative](Orb64f* d, const Orb64f* s) {
        const F64 v = F64::Load(s);
        negative = negative | Less(v, F64::Zero());
        Sqrt(v).Store(d);
      },
      x, x);
  return SignBits(negative) != 0;
}

#else

template <class T>
void MulElements(T constant, T* x, size_t n) {
  for (size_t i = 0; i < n; ++i) x[i] = static_cast<T>(Wide<T>(x[i]) * constant);
}

void AddElements(const Orb32f* src, Orb32f* sum, size_t n) {
  for (size_t i = 0; i < n; ++i) sum[i] = static_cast<Orb32f>(Wide<Orb32f>(sum[i]) + src[i]);
}

bool SqrtElements(Orb64f* x, size_t n) {
  const Orb64f nan = DoubleFromBits(0xFFF8000000000000u);
  bool negative = false;
  for (size_t i = 0; i < n; ++i) {
    if (x[i] < 0) {
      negative = true;
      x[i] = nan;
    } else {
      x[i] = sqrt(x[i]);
    }
  }
  return negative;
}

#endif

template <class T>
ORBS_INLINE OrbStatus MulConstant(T constant, T* x, Orb32s n) {
  ORBS_RETURN_IF_BAD(CheckArrays(n, x));
  if (constant == 1) return StatusOk;
  if (constant == 0) {
    VecZeroBytes(x, static_cast<Orb64s>(n) * static_cast<Orb64s>(sizeof(T)));
  } else {
    MulElements(constant, x, static_cast<size_t>(n));
  }
  return StatusOk;
}

}  // namespace

OrbStatus VecMulC_32f_I(Orb32f constant, Orb32f* x, Orb32s n) { return MulConstant(constant, x, n); }
OrbStatus VecMulC_64f_I(Orb64f constant, Orb64f* x, Orb32s n) { return MulConstant(constant, x, n); }

OrbStatus VecAdd_32f_I(const Orb32f* src, Orb32f* sum, Orb32s n) {
  ORBS_RETURN_IF_BAD(CheckArrays(n, src, sum));
  AddElements(src, sum, static_cast<size_t>(n));
  return StatusOk;
}

OrbStatus VecSqrt_64f_I(Orb64f* x, Orb32s n) {
  ORBS_RETURN_IF_BAD(CheckArrays(n, x));
  return SqrtElements(x, static_cast<size_t>(n)) ? WarnSqrtNegative : StatusOk;
}

}  // namespace orbs::ORBS_VARIANT
