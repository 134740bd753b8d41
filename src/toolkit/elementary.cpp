// Natural logarithm and exponential.
#include <math.h>

#include <limits>

#include "core/checks.h"
#include "core/scaling.h"
#include "simd/blocks.h"
#include "simd/logarithm.h"
#include "simd/simd.h"
#include "toolkit/toolkit.h"

namespace orbs::ORBS_VARIANT {
namespace {

constexpr Orb32f kInfinity = std::numeric_limits<Orb32f>::infinity();

// exp(x) = 2^k exp(r) with x = k ln 2 + r; exp(r) = 1 + r + r c / (2 - c), c = r - r^2 P(r^2), after the
// FDLIBM method. Below kExpLowest the result is 0, from kExpHighest on it is infinite; between them the
// scaled exponent is a normal one.
constexpr Orb64f kLog2E = 1.4426950408889634;
constexpr Orb64f kLn2High = 0.6931471803691238;  // its low 32 bits are 0, so that k times it is exact
constexpr Orb64f kLn2Low = 1.9082149292705877e-10;
constexpr Orb64f kExp[5] = {0.16666666666666602, -0.0027777777777015593, 6.613756321437934e-05,
                            -1.6533902205465252e-06, 4.1381367970572385e-08};
constexpr Orb64f kExpLowest = -0x1.6232Bp+9;
constexpr Orb64f kExpHighest = 0x1.62E42p+9;

#if ORBS_VECTOR

ORBS_INLINE F64 LoadPositive(const Orb32f* p) {
  F64 x;
  LoadWiden(p, &x);
  return x;
}

OrbStatus LnElements(Orb32f* x, size_t n) {
  OrbStatus status = StatusOk;
  ForBlocks<F32::kLanes>(
      n,
      [&status](Orb32f* d, const Orb32f* s) {
        const F32 v = F32::Load(s);
        const F32 isZero = Equal(v, F32::Zero());
        const int negative = SignBits(v);  // of -0 and of NaN too
        const int bad = negative | SignBits(isZero);
        if (bad != 0 && status == StatusOk) {
          const int first = bad & -bad;
          status = (negative & first) != 0 ? WarnLogNegative : WarnLogZero;
        }
        const F32 infinity = F32::All(kInfinity);
        F32 y = Narrow(Ln(LoadPositive(s)), Ln(LoadPositive(s + F64::kLanes)));
        y = Select(Equal(v, infinity), infinity, y);
        y = Select(IsNan(v), F32::All(FloatFromBits(0x7FC00000u)), y);
        y = Select(isZero, F32::All(-kInfinity), y);
        y = Select(AsFloat(ShiftRight(AsInt(v), 31)), F32::All(FloatFromBits(0xFFC00000u)), y);
        y.Store(d);
      },
      x, x);
  return status;
}

// ---- Exponential ----

ORBS_INLINE F64 Exp(F64 x) {
  // Adding 1.5 * 2^52 rounds x log2 e to an integer, which then stands in the low bits of the sum.
  const F64 magic = F64::All(6755399441055744.0);
  const F64 sum = MulAdd(x, F64::All(kLog2E), magic);
  const F64 k = sum - magic;
  const F64 r = (x - k * F64::All(kLn2High)) - k * F64::All(kLn2Low);
  const F64 t = r * r;
  F64 p = F64::All(kExp[4]);
  ORBS_UNROLL for (int i = 3; i >= 0; --i) p = MulAdd(p, t, F64::All(kExp[i]));
  const F64 c = r - t * p;
  const F64 y = F64::All(1) + (r + r * c / (F64::All(2) - c));
  const F64 scaled = Add64(y, ShiftLeft64(sum, 52));

  const F64 high =
      Select(LessEqual(F64::All(kExpHighest), x), F64::All(std::numeric_limits<Orb64f>::infinity()), scaled);
  return Select(IsNan(x), x, Select(LessEqual(x, F64::All(kExpLowest)), F64::Zero(), high));
}

void ExpElements(const Orb64f* src, Orb64f* dst, size_t n) {
  ForBlocks<F64::kLanes>(
      n, [](Orb64f* d, const Orb64f* s) { Exp(F64::Load(s)).Store(d); }, dst, src);
}

#else

OrbStatus LnElements(Orb32f* x, size_t n) {
  OrbStatus status = StatusOk;
  const auto warn = [&status](OrbStatus warning) {
    if (status == StatusOk) status = warning;
  };
  for (size_t i = 0; i < n; ++i) {
    if (signbit(x[i])) {
      warn(WarnLogNegative);
      x[i] = FloatFromBits(0xFFC00000u);
    } else if (isnan(x[i])) {
      x[i] = FloatFromBits(0x7FC00000u);
    } else if (x[i] == 0) {
      warn(WarnLogZero);
      x[i] = -kInfinity;
    } else {
      x[i] = static_cast<Orb32f>(log(static_cast<Orb64f>(x[i])));
    }
  }
  return status;
}

Orb64f ExpElement(Orb64f x) {
  if (isnan(x)) return x;
  if (x <= kExpLowest) return 0;
  if (x >= kExpHighest) return std::numeric_limits<Orb64f>::infinity();
  using Float = Wide<Orb64f>;
  const Orb32s k = RoundNearToInt(Float(x) * kLog2E);
  const Float r = x - k * Float(kLn2High) - k * Float(kLn2Low);
  const Float t = r * r;
  const Float c = r - t * (kExp[0] + t * (kExp[1] + t * (kExp[2] + t * (kExp[3] + t * kExp[4]))));
  return static_cast<Orb64f>(ldexpl(1 + r + r * c / (2 - c), k));
}

void ExpElements(const Orb64f* src, Orb64f* dst, size_t n) {
  for (size_t i = 0; i < n; ++i) dst[i] = ExpElement(src[i]);
}

#endif

}  // namespace

OrbStatus VecLn_32f_I(Orb32f* x, Orb32s n) {
  ORBS_RETURN_IF_BAD(CheckArrays(n, x));
  return LnElements(x, static_cast<size_t>(n));
}

OrbStatus VecExp_64f(const Orb64f* src, Orb64f* dst, Orb32s n) {
  ORBS_RETURN_IF_BAD(CheckArrays(n, src, dst));
  // Below four elements stands the C library's function, in all variants.
  if (n < 4) {
    for (Orb32s i = 0; i < n; ++i) dst[i] = exp(src[i]);
  } else {
    ExpElements(src, dst, static_cast<size_t>(n));
  }
  return StatusOk;
}

}  // namespace orbs::ORBS_VARIANT
