// Sine and cosine of fractions of the circle at compile time: the constants of straight-line transforms and
// of small tables.
#ifndef ORBS_TRANSFORM_ENGINE_TABLES_CIRCLE_H
#define ORBS_TRANSFORM_ENGINE_TABLES_CIRCLE_H

#include "core/constants.h"
#include "core/variant.h"

namespace orbs::ORBS_VARIANT::transform {

// The power series for |x| <= pi/4, from the first term on, where x^20 / 20! is below the last bit of a long
// double.
constexpr long double CircleSeries(long double first, long double x, int firstPower) {
  long double sum = 0;
  long double terms[10] = {};
  long double term = first;
  for (int i = 0; i < 10; ++i) {
    terms[i] = term;
    const int n = firstPower + 2 * i;
    term *= -x * x / static_cast<long double>((n + 1) * (n + 2));
  }
  for (int i = 9; i >= 0; --i) sum += terms[i];  // the smallest first
  return sum;
}

// sin(2 pi k / n) for 0 <= k <= n/4.
constexpr long double QuarterSine(int k, int n) {
  const int mirrored = n / 4 - k;
  if (8 * k <= n) {
    const long double x = 2 * kExtendedPi * static_cast<long double>(k) / static_cast<long double>(n);
    return CircleSeries(x, x, 1);
  }
  const long double x = 2 * kExtendedPi * static_cast<long double>(mirrored) / static_cast<long double>(n);
  return CircleSeries(1, x, 0);
}

// sin(2 pi k / n) and cos(2 pi k / n) for n a multiple of 4 and k >= 0, exact at multiples of a quarter.
constexpr long double CircleSine(int k, int n) {
  const int r = k % n;
  const int quarter = n / 4;
  if (r <= quarter) return QuarterSine(r, n);
  if (r <= 2 * quarter) return QuarterSine(2 * quarter - r, n);
  if (r <= 3 * quarter) return -QuarterSine(r - 2 * quarter, n);
  return -QuarterSine(4 * quarter - r, n);
}
constexpr long double CircleCosine(int k, int n) { return CircleSine(k + n / 4, n); }

}  // namespace orbs::ORBS_VARIANT::transform

#endif
