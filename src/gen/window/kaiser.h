// Kaiser windows: w = I0(alpha sqrt(n (N-1-n))) / I0(alpha (N-1) / 2).
#ifndef ORBS_GEN_WINDOW_KAISER_H
#define ORBS_GEN_WINDOW_KAISER_H

#include <math.h>

#include "core/checks.h"
#include "gen/generate.h"
#include "gen/window/window_apply.h"
#include "toolkit/toolkit.h"

namespace orbs::ORBS_VARIANT::gen {

// I0(x) by Abramowitz and Stegun: below kBranch a polynomial in (x / 3.75)^2, from there on exp(x) / sqrt(x)
// times a polynomial in 3.75 / x.
inline constexpr Orb64f kBranch = 3.75;
inline constexpr Orb64f kSmall[7] = {1, 3.5156229, 3.0899424, 1.2067492, 0.2659732, 0.0360768, 0.0045813};
inline constexpr Orb64f kLarge[9] = {0.39894228,  0.01328592, 0.00225319,  -0.00157565, 0.00916281,
                                     -0.02057706, 0.02635537, -0.01647633, 0.00392377};

template <int kCount>
Orb64f Polynomial(const Orb64f (&coefficients)[kCount], Orb64f x) {
  Orb64f sum = coefficients[kCount - 1];
  for (int i = kCount - 2; i >= 0; --i) sum = coefficients[i] + x * sum;
  return sum;
}

inline Orb64f Exponential(Orb64f x) {
  Orb64f y;
  VecExp_64f(&x, &y, 1);
  return y;
}

// x is not negative.
inline Orb64f BesselI0(Orb64f x) {
  if (x < kBranch) return Polynomial(kSmall, x / kBranch * (x / kBranch));
  return Exponential(x) / sqrt(x) * Polynomial(kLarge, kBranch / x);
}

#if ORBS_VECTOR

template <int kCount>
ORBS_INLINE F32 Polynomial(const Orb64f (&coefficients)[kCount], F32 x) {
  F32 sum = F32::All(static_cast<Orb32f>(coefficients[kCount - 1]));
  ORBS_UNROLL
  for (int i = kCount - 2; i >= 0; --i) {
    sum = MulAdd(sum, x, F32::All(static_cast<Orb32f>(coefficients[i])));
  }
  return sum;
}

// exp(y) for y <= 0: 2^k exp(r), y = k ln 2 + r. Below -87 the power would not be a normal number; the result
// stays at exp(-87), far below what a sample shows.
ORBS_INLINE F32 ExpNotPositive(F32 y) {
  const F32 limited = Max(F32::All(-87), y);
  const I32 k = RoundToInt(limited * F32::All(1.44269504f));
  const F32 kFloat = ToFloat(k);
  // The first part of ln 2 has 12 bits: its product with k, of 7 bits, is exact.
  const F32 r =
      NegMulAdd(kFloat, F32::All(-2.12194440e-4f), NegMulAdd(kFloat, F32::All(0.693359375f), limited));
  // The series up to r^7: the next term is below 6e-9 at ln 2 / 2.
  F32 series = F32::All(1.0f / 5040);
  series = MulAdd(series, r, F32::All(1.0f / 720));
  series = MulAdd(series, r, F32::All(1.0f / 120));
  series = MulAdd(series, r, F32::All(1.0f / 24));
  series = MulAdd(series, r, F32::All(1.0f / 6));
  series = MulAdd(series, r, F32::All(0.5f));
  series = MulAdd(series, r, F32::All(1.0f));
  series = MulAdd(series, r, F32::All(1.0f));
  return series * AsFloat(ShiftLeft(k + I32::All(127), 23));
}

// With beta = alpha M, M = (N-1) / 2, and x = alpha sqrt(n (N-1-n)), both I0 of the quotient can be far
// beyond binary32, so their exponentials are divided beforehand: exp(x - beta). Its exponent
//
//   beta - x = alpha (M - n)^2 / (M + sqrt(n (N-1-n)))
//
// is computed without a difference of near numbers, and so is exact enough where the window is not small.
class KaiserValues {
 public:
  KaiserValues(Orb32s len, Orb64f alpha)
      : last_(I32::All(len - 1)),
        middle_(F32::All(static_cast<Orb32f>((len - 1) * 0.5))),
        alpha_(F32::All(static_cast<Orb32f>(alpha))) {
    const Orb64f beta = alpha * (len - 1) / 2;
    const Orb64f inverse = 1 / BesselI0(beta);
    // Below binary32 from a beta of about 90 on: the polynomial branch then ends where no sample shows it.
    smallScale_ = F32::All(static_cast<Orb32f>(inverse));
    largeScale_ = F32::All(static_cast<Orb32f>(inverse * Exponential(beta)));
  }

  void operator()(Orb32f* values, Orb32s first, Orb32s count) const {
    for (Orb32s i = 0; i < count; i += F32::kLanes) Values(I32::All(first + i) + lanes_).Store(values + i);
  }

 private:
  ORBS_INLINE F32 Values(I32 n) const {
    const I32 mirrored = last_ - n;
    const F32 root = Sqrt(ToFloat(n) * ToFloat(mirrored));
    const F32 x = alpha_ * root;
    const F32 distance = F32::All(0.5f) * ToFloat(mirrored - n);
    const F32 drop = alpha_ * (distance * distance) / (middle_ + root);

    const F32 branch = F32::All(static_cast<Orb32f>(kBranch));
    const F32 inverseRoot = F32::All(1) / Sqrt(Max(branch, x));
    const F32 large = ExpNotPositive(F32::Zero() - drop) * inverseRoot * largeScale_ *
                      Polynomial(kLarge, branch * (inverseRoot * inverseRoot));
    const F32 isSmall = Less(x, branch);
    if (SignBits(isSmall) == 0) return large;
    const F32 t = x * F32::All(static_cast<Orb32f>(1 / kBranch));
    return Select(isSmall, smallScale_ * Polynomial(kSmall, t * t), large);
  }

  I32 last_;
  I32 lanes_ = LaneNumbers<I32>();
  F32 middle_;
  F32 alpha_;
  F32 smallScale_;
  F32 largeScale_;
};

template <class Data>
void Weigh(const Data* src, Data* dst, Orb32s len, Orb64f alpha) {
  ApplyWindow(src, dst, len, KaiserValues(len, alpha), [](F32 y) { return y; });
}

#else

class KaiserValues {
 public:
  KaiserValues(Orb32s len, Orb64f alpha)
      : last_(len - 1), alpha_(alpha), inverse_(1 / BesselI0(alpha * (len - 1) / 2)) {}

  Orb64f operator()() {
    Orb64f root = static_cast<Orb64f>(n_ * (last_ - n_));
    VecSqrt_64f_I(&root, 1);
    ++n_;
    return inverse_ * BesselI0(alpha_ * root);
  }

 private:
  Orb64s last_;
  Orb64s n_ = 0;
  Orb64f alpha_;
  Orb64f inverse_;
};

template <class Data>
void Weigh(const Data* src, Data* dst, Orb32s len, Orb64f alpha) {
  const auto weigh = [](Orb16s x, Orb64f value) { return FloatHalfAway<Orb16s>(x * value); };
  ApplyWindow(src, dst, len, KaiserValues(len, alpha), weigh);
}

#endif

template <class Data>
ORBS_INLINE OrbStatus Kaiser(const Data* src, Data* dst, Orb32s len, Orb32s alphaQ15) {
  constexpr Orb64f kLargestBeta = 308;  // keeps exp(beta) inside binary64
  ORBS_RETURN_IF_BAD(CheckArrays(len, src, dst));
  const Orb64f alpha = fabs(alphaQ15 * 0x1p-15);  // I0 is even
  if (alpha * (len - 1) / 2 > kLargestBeta) return StatusKaiserAlpha;
  if (len % 2 != 0) dst[len / 2] = src[len / 2];
  Weigh(src, dst, len, alpha);
  return StatusOk;
}

}  // namespace orbs::ORBS_VARIANT::gen

#endif
