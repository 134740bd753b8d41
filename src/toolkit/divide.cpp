// Division with defined results for divisors of 0.
#include <limits>

#include "core/checks.h"
#include "core/scaling.h"
#include "simd/blocks.h"
#include "simd/simd.h"
#include "toolkit/toolkit.h"

namespace orbs::ORBS_VARIANT {
namespace {

template <class T>
inline constexpr T kInfinity = std::numeric_limits<T>::infinity();

// The NaN of a quotient without a value: negative and quiet, as the processor makes it.
ORBS_INLINE Orb32f QuotientNan(Orb32f) { return FloatFromBits(0xFFC00000u); }
ORBS_INLINE Orb64f QuotientNan(Orb64f) { return DoubleFromBits(0xFFF8000000000000u); }

#if ORBS_VECTOR

template <class T>
bool DivElements(const T* divisor, const T* dividend, T* dst, size_t n) {
  using Vector = VectorOf<T>;
  bool anyZero = false;
  ForBlocks<Vector::kLanes>(
      n,
      [&anyZero](T* d, const T* b, const T* a) {
        const Vector y = Vector::Load(a);
        const Vector x = Vector::Load(b);
        const Vector divisorZero = Equal(x, Vector::Zero());
        Vector quotient = y / x;
        // Out of line: rare, and three times the work of what stands around a division.
        if (__builtin_expect(SignBits(divisorZero) != 0, 0)) {
          anyZero = true;
          // A divisor of -0 counts as 0: the sign is the dividend's alone.
          const Vector bySign = Vector::All(kInfinity<T>) | (y & Vector::All(T(-0.0)));
          const Vector hasNoSign = Equal(y, Vector::Zero()) | IsNan(y);
          const Vector defined = Select(hasNoSign, Vector::All(QuotientNan(T())), bySign);
          quotient = Select(divisorZero, defined, quotient);
        }
        quotient.Store(d);
      },
      dst, divisor, dividend);
  return anyZero;
}

#else

template <class T>
bool DivElements(const T* divisor, const T* dividend, T* dst, size_t n) {
  bool anyZero = false;
  for (size_t i = 0; i < n; ++i) {
    const T y = dividend[i];
    if (divisor[i] == 0) {
      anyZero = true;
      dst[i] = y > 0 ? kInfinity<T> : y < 0 ? -kInfinity<T> : QuotientNan(T());
    } else {
      dst[i] = static_cast<T>(Wide<T>(y) / divisor[i]);
    }
  }
  return anyZero;
}

#endif

template <class T>
ORBS_INLINE OrbStatus Div(const T* divisor, const T* dividend, T* dst, Orb32s n) {
  ORBS_RETURN_IF_BAD(CheckArrays(n, divisor, dividend, dst));
  return DivElements(divisor, dividend, dst, static_cast<size_t>(n)) ? WarnDivByZero : StatusOk;
}

}  // namespace

OrbStatus VecDiv_32f(const Orb32f* divisor, const Orb32f* dividend, Orb32f* dst, Orb32s n) {
  return Div(divisor, dividend, dst, n);
}

OrbStatus VecDiv_64f(const Orb64f* divisor, const Orb64f* dividend, Orb64f* dst, Orb32s n) {
  return Div(divisor, dividend, dst, n);
}

OrbStatus VecDiv_32f_I(const Orb32f* divisor, Orb32f* dividend, Orb32s n) {
  return Div(divisor, dividend, dividend, n);
}
OrbStatus VecDiv_64f_I(const Orb64f* divisor, Orb64f* dividend, Orb32s n) {
  return Div(divisor, dividend, dividend, n);
}

}  // namespace orbs::ORBS_VARIANT
