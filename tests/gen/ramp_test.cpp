// Ramps, slopes and Jaehne chirps against their formulas in a wider type.
#include <algorithm>
#include <cmath>
#include <limits>
#include <type_traits>
#include <vector>

#include "tests/support/bad_calls.h"
#include "tests/support/effort.h"
#include "tests/support/export_test.h"
#include "tests/support/guarded_array.h"
#include "tests/support/lengths.h"
#include "tests/support/rows.h"

namespace orbs::test {
namespace {

constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr float kNan = std::numeric_limits<float>::quiet_NaN();

// The line as px evaluates it, and as the others do: binary32 after each step.
long double Line(Variant variant, int n, float offset, float slope) {
  if (variant == Variant::px) return offset + static_cast<long double>(n) * slope;
  const volatile float index = static_cast<float>(n);
  const volatile float product = index * slope;
  const volatile float sum = product + offset;
  return sum;
}

template <class T>
T Deliver(long double y) {
  if constexpr (std::is_floating_point_v<T>) {
    return static_cast<T>(y);
  } else {
    constexpr long double kMax = std::numeric_limits<T>::max();
    constexpr long double kMin = std::numeric_limits<T>::min();
    if (std::isnan(y)) return std::numeric_limits<T>::min();
    return static_cast<T>(std::min(kMax, std::max(kMin, std::round(y))));
  }
}

template <class T>
using RampFunction = OrbStatus (*)(T*, Orb32s, Orb32f, Orb32f);

class RampTest : public ExportTest {
 protected:
  template <class T>
  void ExpectRamp(RampFunction<T> ramp, int length, float offset, float slope) {
    GuardedArray<T> out(static_cast<size_t>(length), static_cast<size_t>(length) % 3);
    ASSERT_EQ(ramp(out.data(), length, offset, slope), StatusOk);
    ASSERT_TRUE(out.GuardsIntact()) << length;
    for (int n = 0; n < length; ++n) {
      const T expected = Deliver<T>(Line(GetParam(), n, offset, slope));
      const T actual = out[static_cast<size_t>(n)];
      if (expected != expected && actual != actual) continue;
      ASSERT_EQ(actual, expected) << n << " of " << length << ": " << offset << " + n " << slope;
    }
  }
};
ORBS_INSTANTIATE_VARIANTS(RampTest);

template <class Check>
void ForEachRamp(const Check& check) {
  ForEachFunction(check, ORBS_NAMED(legacy90orbsVectorRamp_8u), ORBS_NAMED(legacy90orbsVectorRamp_8s),
                  ORBS_NAMED(legacy90orbsVectorRamp_16u), ORBS_NAMED(legacy90orbsVectorRamp_16s),
                  ORBS_NAMED(legacy90orbsVectorRamp_32u), ORBS_NAMED(legacy90orbsVectorRamp_32s),
                  ORBS_NAMED(legacy90orbsVectorRamp_32f), ORBS_NAMED(legacy90orbsVectorRamp_64f));
}

TEST_P(RampTest, EveryLength) {
  ForEachRamp([this](auto ramp) {
    for (int length = 1; length <= 140; ++length) ExpectRamp(ramp, length, -20.25f, 1.5f);
    ExpectRamp(ramp, 1000, 300.0f, -1.0f);
  });
}

TEST_P(RampTest, TiesGoAwayFromZeroAndTheirNeighboursDoNot) {
  ForEachRamp([this](auto ramp) {
    ExpectRamp(ramp, 6, 0.0f, 0.5f);
    ExpectRamp(ramp, 40, -10.0f, 0.5f);
    for (const float offset : {0.5f, 0.49999997f, 2.5f, 3.5f, 126.5f, 127.49999f, 254.5f, 65534.5f}) {
      ExpectRamp(ramp, 2, offset, 0.0f);
      ExpectRamp(ramp, 2, -offset, 0.0f);
    }
  });
}

TEST_P(RampTest, LimitsAreThoseOfTheType) {
  ForEachRamp([this](auto ramp) {
    // Around each limit, by steps that binary32 resolves there, and odd integers whose half it cannot.
    for (const float limit : {0.0f, 127.0f, 128.0f, 255.0f, 32767.0f, 32768.0f, 65535.0f, 8388609.0f}) {
      ExpectRamp(ramp, 20, limit - 5, 0.5f);
      ExpectRamp(ramp, 20, -limit + 5, -0.5f);
    }
    for (const float limit : {2147483648.0f, 4294967296.0f}) {
      ExpectRamp(ramp, 20, limit - 1280, 128.0f);
      ExpectRamp(ramp, 20, -limit + 1280, -128.0f);
    }
    ExpectRamp(ramp, 40, -1e30f, 1e29f);
    ExpectRamp(ramp, 40, 0.0f, std::numeric_limits<float>::max());
    ExpectRamp(ramp, 40, 0.0f, -std::numeric_limits<float>::max());
    for (const float offset : {0.0f, kInfinity, -kInfinity, kNan}) {
      for (const float slope : {1.0f, kInfinity, -kInfinity, kNan}) ExpectRamp(ramp, 40, offset, slope);
    }
  });
  std::vector<Orb32s> limited(2);
  legacy90orbsVectorRamp_32s(limited.data(), 2, 2147483647.0f, 0.0f);
  EXPECT_EQ(limited[1], 2147483647);
}

// From 2^24 on the index itself is rounded where the line runs in binary32.
TEST_P(RampTest, LongIndices) {
  constexpr int kLength = (1 << 24) + 50;
  std::vector<Orb8u> out(kLength);
  ASSERT_EQ(legacy90orbsVectorRamp_8u(out.data(), kLength, -16777216.0f, 1.0f), StatusOk);
  for (int n = (1 << 24) - 10; n < kLength; ++n) {
    ASSERT_EQ(out[static_cast<size_t>(n)], Deliver<Orb8u>(Line(GetParam(), n, -16777216.0f, 1.0f))) << n;
  }
}

// ---- Slope ----

class SlopeTest : public ExportTest {
 protected:
  static constexpr long double kTieSlack = 1e-3L;

  // The line begins anew, rounded to binary32, where it enters the range. Exact beyond the bounds, and in px
  // everywhere; in the other variants a value near the middle between two integers may go either way.
  void ExpectSlope(int length, float offset, float slope) {
    GuardedArray<Orb8s> out(static_cast<size_t>(length), static_cast<size_t>(length) % 5);
    ASSERT_EQ(legacy90orbsVectorSlope_8s(out.data(), length, offset, slope), StatusOk);
    ASSERT_TRUE(out.GuardsIntact()) << length;
    int entry = -1;
    long double base = 0;
    for (int n = 0; n < length; ++n) {
      long double y = offset + static_cast<long double>(n) * slope;
      const bool inside = y > -128 && y < 127;
      if (inside) {
        if (entry < 0) entry = n, base = static_cast<float>(y);
        y = base + static_cast<long double>(n - entry) * slope;
      }
      const Orb8s actual = out[static_cast<size_t>(n)];
      if (IsPx() || !inside) {
        ASSERT_EQ(actual, Deliver<Orb8s>(y)) << n << " of " << length << ": " << offset << " + n " << slope;
      } else {
        ASSERT_LE(std::abs(actual - y), 0.5L + kTieSlack) << n << ": " << offset << " + n " << slope;
      }
    }
  }

  std::vector<Orb8s> Slope(int length, float offset, float slope) {
    std::vector<Orb8s> out(static_cast<size_t>(length));
    EXPECT_EQ(legacy90orbsVectorSlope_8s(out.data(), length, offset, slope), StatusOk);
    return out;
  }
};
ORBS_INSTANTIATE_VARIANTS(SlopeTest);

TEST_P(SlopeTest, FollowsTheLimitedLine) {
  for (int length = 1; length <= 140; ++length) {
    ExpectSlope(length, -135.0f, 3.7f);
    ExpectSlope(length, 135.0f, -3.7f);
    ExpectSlope(length, 3.3f, 0.75f);
  }
  for (const float offset : {0.0f, 1.0f, -128.0f, 127.0f, 126.6f, -1000.0f, 1000.0f, 1e6f}) {
    for (const float magnitude : {1e-5f, 0.01f, 1.0f / 3, 1.0f, 10.0f, 255.0f, 1e6f}) {
      ExpectSlope(3000, offset, magnitude);
      ExpectSlope(3000, offset, -magnitude);
    }
  }
}

TEST_P(SlopeTest, ALineOfAnySteepnessBeginsAtItsOffset) {
  EXPECT_EQ(Slope(3, 5.0f, 1e30f), (std::vector<Orb8s>{5, 127, 127}));
  EXPECT_EQ(Slope(3, 5.0f, -1e30f), (std::vector<Orb8s>{5, -128, -128}));
}

TEST_P(SlopeTest, LongLinesDoNotDrift) {
  ExpectSlope(Effort(2'000'000, 200'000), -130.0f, 1.3e-4f);
  ExpectSlope(Effort(2'000'000, 200'000), 127.0f, -1.3e-4f);
}

TEST_P(SlopeTest, TiesByVariant) {
  const std::vector<Orb8s> ties = Slope(4, -1.5f, 1.0f);
  EXPECT_EQ(ties, IsPx() ? (std::vector<Orb8s>{-2, -1, 1, 2}) : (std::vector<Orb8s>{-2, 0, 0, 2}));
  // Without a slope all variants round alike.
  EXPECT_EQ(Slope(1, 2.5f, 0.0f)[0], 3);
  EXPECT_EQ(Slope(1, -2.5f, 0.0f)[0], -3);
}

TEST_P(SlopeTest, StaysAtABoundThatItRunsAwayFrom) {
  const std::vector<Orb8s> high(500, 127);
  const std::vector<Orb8s> low(500, -128);
  EXPECT_EQ(Slope(500, 200.0f, 0.0f), high);
  EXPECT_EQ(Slope(500, 200.0f, 1.0f), high);
  EXPECT_EQ(Slope(500, kInfinity, -1.0f), high);
  EXPECT_EQ(Slope(500, 3e38f, -1e-38f), high);
  EXPECT_EQ(Slope(500, -200.0f, 0.0f), low);
  EXPECT_EQ(Slope(500, -200.0f, -1.0f), low);
  EXPECT_EQ(Slope(500, -kInfinity, 1.0f), low);
  EXPECT_EQ(Slope(500, kNan, 1.0f), low);
  EXPECT_EQ(Slope(500, 0.0f, kNan), low);

  const std::vector<Orb8s> line = Slope(500, -1000.0f, 10.0f);
  EXPECT_EQ(std::count(line.begin(), line.end(), -128), 88);
  EXPECT_EQ(line[88], -120);
  EXPECT_EQ(line[112], 120);
  EXPECT_EQ(std::count(line.begin(), line.end(), 127), 500 - 113);
}

// ---- Jaehne ----

// The phase is rounded to binary64, as the functions do: for long chirps that shows.
long double ReferenceChirp(int n, int length, long double amplitude) {
  const volatile double c = 1.57079632679489661923 / length;
  const volatile double square = static_cast<double>(n) * n;
  const volatile double phase = c * square;
  return amplitude * std::sin(static_cast<long double>(phase));
}

// The x87 rounds a phase twice, on its way through a register, where SSE rounds once: on i386 it may be one
// unit off, in the library or here.
long double ChirpSlack(int n, int length, long double amplitude) {
  if (sizeof(void*) == 8) return 1e-5L;
  return 1e-5L + amplitude * 1.6L * n / length * n * std::numeric_limits<double>::epsilon();
}

// Whether `actual` is the integer nearest to y, or either one if y is almost between two.
bool IsNearest(long double actual, long double y, long double slack) {
  return std::abs(actual - y) <= 0.5L + slack;
}

class JaehneTest : public ExportTest {};
ORBS_INSTANTIATE_VARIANTS(JaehneTest);

TEST_P(JaehneTest, EightBitsFollowTheFormula) {
  for (const int length : Lengths(70, {255, 256, 257, 1000, Effort(100000, 10000)})) {
    for (const int magn : {0, 1, 100, 127}) {
      GuardedArray<Orb8s> out(static_cast<size_t>(length), static_cast<size_t>(length) % 5);
      ASSERT_EQ(legacy90orbsVectorJaehne_8s(out.data(), length, static_cast<Orb8s>(magn)), StatusOk);
      ASSERT_TRUE(out.GuardsIntact()) << length;
      for (int n = 0; n < length; ++n) {
        ASSERT_PRED3(IsNearest, out[static_cast<size_t>(n)], ReferenceChirp(n, length, magn),
                     ChirpSlack(n, length, magn))
            << length;
      }
    }
  }
}

TEST_P(JaehneTest, ThirtyTwoBitsAreTheWavePlusItsMinimum) {
  for (const int length : Lengths(40, {255, 256, 257, 1000, Effort(500000, 50000)})) {
    for (const Orb32u magn : {0u, 1u, 255u, 1000001u, 4294967295u}) {
      if (length > 1000 && magn < 1000000u) continue;
      GuardedArray<Orb32u> out(static_cast<size_t>(length), static_cast<size_t>(length) % 3);
      ASSERT_EQ(legacy90orbsVectorJaehne_32u(out.data(), length, magn), StatusOk);
      ASSERT_TRUE(out.GuardsIntact()) << length;
      // The first element of the wave is 0, so that the first result is the minimum itself.
      const Orb32u shift = out[0];
      Orb32s smallest = 0;
      for (int n = 0; n < length; ++n) {
        const auto wave = static_cast<Orb32s>(out[static_cast<size_t>(n)] - shift);
        smallest = std::min(smallest, wave);
        const long double y = std::min(2147483647.0L, ReferenceChirp(n, length, magn / 2.0L));
        ASSERT_PRED3(IsNearest, wave, y, ChirpSlack(n, length, magn / 2.0L))
            << n << " of " << length << ", magnitude " << magn;
      }
      ASSERT_EQ(shift, static_cast<Orb32u>(smallest)) << length;
    }
  }
}

// ---- Statuses ----

TEST_P(RampTest, BadArgumentsGiveTheirStatusAndWriteNothing) {
  ForEachRamp([](auto* ramp) { CheckBadCalls(ramp); });
  CheckBadCalls(ORBS_NAMED(legacy90orbsVectorSlope_8s), ORBS_NAMED(legacy90orbsVectorJaehne_8s),
                ORBS_NAMED(legacy90orbsVectorJaehne_32u));

  GuardedArray<Orb8s> out(4);
  EXPECT_EQ(legacy90orbsVectorJaehne_8s(out.data(), 0, -1), StatusSize);
  EXPECT_EQ(legacy90orbsVectorJaehne_8s(out.data(), 1, -1), StatusJaehneMagnitude);
  EXPECT_EQ(legacy90orbsVectorJaehne_8s(out.data(), 4, -128), StatusJaehneMagnitude);
  EXPECT_TRUE(out.Untouched());
}

}  // namespace
}  // namespace orbs::test
