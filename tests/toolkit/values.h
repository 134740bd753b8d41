// Floating-point values that go wrong first, and what a result is compared with.
#ifndef ORBS_TESTS_TOOLKIT_VALUES_H
#define ORBS_TESTS_TOOLKIT_VALUES_H

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <vector>

#include "tests/support/samples.h"

namespace orbs::test {

using Wide = long double;  // holds every integer of 64 bits, and a product of two binary32

template <class T>
inline constexpr T kInfinity = std::numeric_limits<T>::infinity();
inline constexpr Wide kNan = std::numeric_limits<Wide>::quiet_NaN();

// Through memory: x87 registers would keep the wide value.
template <class T>
T RoundTo(Wide x) {
  volatile T rounded = static_cast<T>(x);
  return rounded;
}

// The distance of neighbours of type T at x.
template <class T>
Wide Ulp(Wide x) {
  using Limits = std::numeric_limits<T>;
  const int exponent = x == 0 ? Limits::min_exponent : std::max(std::ilogb(x) + 1, Limits::min_exponent);
  return std::ldexp(Wide(1), exponent - Limits::digits);
}

template <class T>
std::vector<double> Specials() {
  using Limits = std::numeric_limits<T>;
  std::vector<double> values = {
      0, Limits::denorm_min(), Limits::min(),     0.5,          1,
      3, Limits::max(),        kInfinity<double>, std::nan(""), std::nan("0x123456780000")};
  for (size_t i = values.size(); i-- > 0;) values.push_back(-values[i]);
  return values;
}

// What an element, or a part of a complex one, must be, and the warning that it gives. With a tolerance of 0
// every bit counts, also of zeros and NaNs; with another, a NaN stands for any NaN.
struct Expected {
  Wide value;
  Wide tolerance = 0;
  OrbStatus warning = 0;
};

template <class T>
bool Matches(const T& actual, const Expected& expected) {
  const Wide wide = static_cast<Wide>(actual);
  if (expected.tolerance == 0) {
    const T value = RoundTo<T>(expected.value);
    return std::memcmp(&actual, &value, sizeof(T)) == 0;
  }
  if (std::isnan(expected.value)) return std::isnan(wide);
  return wide == expected.value || std::fabs(wide - expected.value) <= expected.tolerance;
}

// The value rounded to T as the processor does.
template <class T>
Expected Rounded(Wide value) {
  return {value, std::isnan(value) ? Wide(1) : Wide(0)};
}
template <class T>
Expected Within(Wide ulps, Wide value) {
  const T rounded = RoundTo<T>(value);
  if (std::isinf(rounded) || std::isnan(rounded)) return {static_cast<Wide>(rounded), 1};
  return {value, ulps * Ulp<T>(value)};
}

}  // namespace orbs::test

#endif
