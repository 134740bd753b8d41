// What the tests of tones and of triangles share: six result types, the distance of samples, states.
#ifndef ORBS_TESTS_GEN_TONE_FORMS_H
#define ORBS_TESTS_GEN_TONE_FORMS_H

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <type_traits>
#include <vector>

#include "orbs90lgc.h"
#include "tests/support/samples.h"

namespace orbs::test {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr Orb32f kLastPhase = 6.283185f;  // the last binary32 number below 2 pi
constexpr Orb32s kLastPhaseQ15 = 205886;

template <class Sample>
using Part = PartOf<Sample>;
template <class Sample>
using Real = std::conditional_t<std::is_same_v<Part<Sample>, Orb64f>, Orb64f, Orb32f>;

template <class Sample>
double Distance(Sample a, Sample b) {
  return static_cast<double>(PartDistance(ToExact(a), ToExact(b)));
}

// A state's samples in calls of many lengths.
template <class Run>
std::vector<Orb16s> InPieces(size_t total, const Run& run) {
  std::vector<Orb16s> samples(total);
  std::mt19937 engine(1);
  for (size_t done = 0; done < total;) {
    const size_t n = std::min<size_t>(engine() % 90 + 1, total - done);
    EXPECT_EQ(run(samples.data() + done, static_cast<Orb32s>(n)), StatusOk);
    done += n;
  }
  return samples;
}

// Memory with nothing but a state in it.
template <size_t kBytes>
struct StateMemory {
  static constexpr size_t kSize = kBytes + 16;
  alignas(16) unsigned char bytes[kSize];

  StateMemory() { std::memset(bytes, 0xA5, kSize); }
  bool HoldsNothingBut(size_t offset) const {
    for (size_t i = 0; i < kSize; ++i) {
      if ((i < offset || i >= offset + kBytes) && bytes[i] != 0xA5) return false;
    }
    return true;
  }
};

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
