#include "transform/engine/tables/sine.h"

#include <cmath>

#include "simd/simd.h"
#include "transform/engine/tables/circle.h"

namespace orbs::ORBS_VARIANT::transform {
namespace {

template <class T>
constexpr SinQuarter<T> RoundedSines() {
  SinQuarter<T> table{};
  for (int i = 0; i <= 256; ++i) table.sines[i] = static_cast<T>(QuarterSine(i, 1024));
  return table;
}

#if ORBS_VECTOR

// Both functions of the angle high + low, 0 <= angle <= pi/4, to little more than half a unit in the last
// place: what the large terms of the series lose when they are rounded is carried along and added last.
struct SineAndCosine {
  F64 sine;
  F64 cosine;
};

ORBS_INLINE F64 Polynomial(F64 z, const Orb64f (&coefficients)[7]) {
  F64 sum = F64::All(coefficients[6]);
  for (int i = 5; i >= 0; --i) sum = MulAdd(sum, z, F64::All(coefficients[i]));
  return sum;
}

// a b = product + error exactly.
struct ExactProduct {
  F64 product;
  F64 error;
};
ORBS_INLINE ExactProduct MulExactly(F64 a, F64 b) {
  const auto upperBits = [](F64 x) {  // 26 of them
    const F64 shifted = x * F64::All(134217729);
    return shifted - (shifted - x);
  };
  const F64 product = a * b;
  const F64 aHigh = upperBits(a);
  const F64 bHigh = upperBits(b);
  const F64 aLow = a - aHigh;
  const F64 bLow = b - bHigh;
  return {product, ((aHigh * bHigh - product) + aHigh * bLow + aLow * bHigh) + aLow * bLow};
}

ORBS_INLINE SineAndCosine EvaluateBoth(F64 high, F64 low) {
  // The power series from x^5 and from x^4 on.
  static constexpr Orb64f kSine[7] = {1.0 / 120,
                                      -1.0 / 5040,
                                      1.0 / 362880,
                                      -1.0 / 39916800,
                                      1.0 / 6227020800.0,
                                      -1.0 / 1307674368000.0,
                                      1.0 / 355687428096000.0};
  static constexpr Orb64f kCosine[7] = {
      1.0 / 24,        -1.0 / 720,           1.0 / 40320,           -1.0 / 3628800,
      1.0 / 479001600, -1.0 / 87178291200.0, 1.0 / 20922789888000.0};
  constexpr Orb64f kSixth = 1.0 / 6;
  constexpr auto kSixthError = static_cast<Orb64f>(1.0L / 6 - static_cast<long double>(kSixth));
  const F64 one = F64::All(1);
  const F64 half = F64::All(0.5);
  const ExactProduct square = MulExactly(high, high);
  const F64 z = square.product;
  const F64 fourth = z * z;

  const ExactProduct cube = MulExactly(high, z);
  const ExactProduct sixth = MulExactly(cube.product, F64::All(kSixth));
  const F64 sixthError = sixth.error + cube.product * F64::All(kSixthError) +
                         (cube.error + high * square.error) * F64::All(kSixth);
  const F64 sine = high - sixth.product;
  const F64 sineRest = ((high - sine) - sixth.product) +
                       (fourth * high * Polynomial(z, kSine) + (low * (one - half * z) - sixthError));

  const F64 halfZ = half * z;
  const F64 cosine = one - halfZ;
  const F64 cosineRest =
      ((one - cosine) - halfZ) + (fourth * Polynomial(z, kCosine) - (high * low + half * square.error));
  return {sine + sineRest, cosine + cosineRest};
}

ORBS_INLINE void StoreSines(Orb32f* p, F64 values) { StoreNarrow(p, values); }
ORBS_INLINE void StoreSines(Orb64f* p, F64 values) { values.Store(p); }

// One pass over an eighth of the circle gives the quarter: the sines from the front, the cosines from the
// back.
template <class T>
void FillQuarter(int order, T* quarter) {
  constexpr int kLanes = F64::kLanes;
  // 2 pi as a number of 25 bits and the rest, so that k times the first part is exact.
  constexpr Orb64f kTwoPiHigh = 6.283185243606567;
  constexpr auto kTwoPiLow = static_cast<Orb64f>(2 * kExtendedPi - static_cast<long double>(kTwoPiHigh));
  const Orb64f circle = static_cast<Orb64f>(Index{1} << order);
  const F64 stepHigh = F64::All(kTwoPiHigh / circle);
  const F64 stepLow = F64::All(kTwoPiLow / circle);
  const Index eighth = Index{1} << (order - 3);

  Orb64f first[kLanes];
  for (int i = 0; i < kLanes; ++i) first[i] = i;
  F64 k = F64::Load(first);
  for (Index i = 0; i < eighth; i += kLanes) {
    const F64 big = k * stepHigh;
    const F64 small = k * stepLow;
    const F64 high = big + small;
    const SineAndCosine both = EvaluateBoth(high, small - (high - big));
    StoreSines(quarter + i, both.sine);
    StoreSines(quarter + 2 * eighth - i - (kLanes - 1), Reverse(both.cosine));
    k = k + F64::All(kLanes);
  }
  quarter[eighth] = static_cast<T>(QuarterSine(1, 8));
}

#else

template <class T>
void FillQuarter(int order, T* quarter) {
  const long double step = 2 * kExtendedPi / static_cast<long double>(Index{1} << order);
  const Index eighth = Index{1} << (order - 3);
  for (Index k = 0; k <= eighth; ++k) quarter[k] = static_cast<T>(sinl(static_cast<long double>(k) * step));
  for (Index k = eighth + 1; k <= 2 * eighth; ++k) {
    quarter[k] = static_cast<T>(cosl(static_cast<long double>(2 * eighth - k) * step));
  }
}

#endif

}  // namespace

constexpr SinQuarter<Orb32f> SinQuarter_32f = RoundedSines<Orb32f>();
constexpr SinQuarter<Orb64f> SinQuarter_64f = RoundedSines<Orb64f>();

template <>
void BuildSineTable(int order, Orb32f* quarter) {
  FillQuarter(order, quarter);
}
template <>
void BuildSineTable(int order, Orb64f* quarter) {
  FillQuarter(order, quarter);
}

}  // namespace orbs::ORBS_VARIANT::transform
