// Samples of any type, real or complex, as numbers that hold them exactly.
#ifndef ORBS_TESTS_SUPPORT_SAMPLES_H
#define ORBS_TESTS_SUPPORT_SAMPLES_H

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstring>
#include <limits>
#include <type_traits>

#include "orbs90lgc/types.h"

namespace orbs::test {

inline constexpr long double kPi = 3.14159265358979323846264338327950288L;
inline constexpr Orb32s kLeast = std::numeric_limits<Orb32s>::min();
inline constexpr Orb32s kMost = std::numeric_limits<Orb32s>::max();

template <class T>
inline constexpr bool kIsComplex = std::is_class_v<T>;

template <class T, bool = kIsComplex<T>>
struct PartTraits {
  using Type = T;
};
template <class T>
struct PartTraits<T, true> {
  using Type = decltype(T::re);
};
template <class T>
using PartOf = typename PartTraits<T>::Type;

using Exact = std::complex<long double>;

template <class T>
Exact ToExact(T x) {
  if constexpr (kIsComplex<T>) {
    return {static_cast<long double>(x.re), static_cast<long double>(x.im)};
  } else {
    return {static_cast<long double>(x), 0};
  }
}

// Of real samples the imaginary part is left out.
template <class T, class Number>
T FromParts(Number re, Number im) {
  if constexpr (kIsComplex<T>) {
    return {static_cast<PartOf<T>>(re), static_cast<PartOf<T>>(im)};
  } else {
    return static_cast<T>(re);
  }
}
template <class T>
T FromExact(Exact x) {
  return FromParts<T>(x.real(), x.imag());
}

// The larger of the distances of the parts.
inline long double PartDistance(Exact a, Exact b) {
  const Exact d = a - b;
  return std::max(std::abs(d.real()), std::abs(d.imag()));
}

inline long double LimitedTo16Bits(long double y) { return std::min(32767.0L, std::max(-32768.0L, y)); }

template <class T>
bool SameBytes(const T& a, const T& b) {
  return std::memcmp(&a, &b, sizeof(T)) == 0;
}

}  // namespace orbs::test

#endif
