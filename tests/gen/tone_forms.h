// The six result types of tones and triangles, and the distance of samples.
#ifndef ORBS_TESTS_GEN_TONE_FORMS_H
#define ORBS_TESTS_GEN_TONE_FORMS_H

#include <algorithm>
#include <cmath>
#include <type_traits>

#include "orbs90lgc.h"

namespace orbs::test {

template <class Sample>
struct FormOf {
  using Part = Sample;
  using Real = std::conditional_t<std::is_same_v<Sample, Orb64f>, Orb64f, Orb32f>;
  static constexpr bool kComplex = false;
};
template <>
struct FormOf<Orb32fc> : FormOf<Orb32f> {
  static constexpr bool kComplex = true;
};
template <>
struct FormOf<Orb64fc> : FormOf<Orb64f> {
  static constexpr bool kComplex = true;
};
template <>
struct FormOf<Orb16sc> : FormOf<Orb16s> {
  static constexpr bool kComplex = true;
};
template <class Sample>
using Part = typename FormOf<Sample>::Part;
template <class Sample>
using Real = typename FormOf<Sample>::Real;

template <class Sample>
double Distance(Sample a, Sample b) {
  if constexpr (FormOf<Sample>::kComplex) {
    return std::max(Distance(a.re, b.re), Distance(a.im, b.im));
  } else {
    return std::fabs(static_cast<double>(a) - static_cast<double>(b));
  }
}

// Whether y is a value within `error` of the exact one, delivered as the direct forms do: 16 bits cut toward
// zero.
template <class Part>
bool IsDelivered(Part y, long double exact, long double error) {
  if constexpr (std::is_same_v<Part, Orb16s>) {
    return y >= std::trunc(exact - error) && y <= std::trunc(exact + error);
  } else {
    return std::fabs(y - exact) <= error;
  }
}

}  // namespace orbs::test

#endif
