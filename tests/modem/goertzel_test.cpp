// Goertzel detectors against the Fourier sum, term by term.
#include <algorithm>
#include <array>
#include <cfenv>
#include <cmath>
#include <complex>
#include <limits>
#include <vector>

#include "tests/support/bad_calls.h"
#include "tests/support/effort.h"
#include "tests/support/export_test.h"
#include "tests/support/guarded_array.h"
#include "tests/support/lengths.h"
#include "tests/support/random_data.h"
#include "tests/support/rows.h"
#include "tests/support/samples.h"

namespace orbs::test {
namespace {

template <class Sample>
Exact Turned(Sample x, long double turns) {
  const long double angle = 2 * kPi * (turns - std::floor(turns));
  return ToExact(x) * Exact(std::cos(angle), std::sin(angle));
}

template <class Sample>
Exact FourierSum(const std::vector<Sample>& x, double f) {
  Exact sum = 0;
  for (size_t n = 0; n < x.size(); ++n) sum += Turned(x[n], -static_cast<long double>(f) * n);
  return sum;
}

template <class Sample>
double Magnitudes(const std::vector<Sample>& x) {
  long double sum = 0;
  for (const Sample& sample : x) sum += std::abs(ToExact(sample));
  return static_cast<double>(sum);
}

template <class T>
std::vector<T> Signal(size_t n, uint32_t seed) {
  return RandomArray<T>(n, seed, 100.0);
}

class GoertzelTest : public ExportTest {
 protected:
  // What the single-precision sums of the vector variants may be off, as a part of the sum of magnitudes.
  double Tolerance() const { return IsPx() ? 1e-7 : 2e-6; }
};
ORBS_INSTANTIATE_VARIANTS(GoertzelTest);

struct Two32f {
  using Sample = Orb32f;
  using Frequency = Orb32f;
  using Result = Orb32fc;
  static constexpr bool kTurned = false;
  static constexpr const char* kName = "32f";
  static constexpr auto* Run = legacy90orbsGoertzTwo_32f;
};
struct Two32fc : Two32f {
  using Sample = Orb32fc;
  static constexpr const char* kName = "32fc";
  static constexpr auto* Run = legacy90orbsGoertzTwo_32fc;
};
struct Two64f {
  using Sample = Orb64f;
  using Frequency = Orb64f;
  using Result = Orb64fc;
  static constexpr bool kTurned = true;
  static constexpr const char* kName = "64f";
  static constexpr auto* Run = legacy90orbsGoertzTwo_64f;
};
struct Two64fc : Two64f {
  using Sample = Orb64fc;
  static constexpr const char* kName = "64fc";
  static constexpr auto* Run = legacy90orbsGoertzTwo_64fc;
};

template <class Test>
void ForEachFloat(const Test& test) {
  ForEachRow<Two32f, Two32fc, Two64f, Two64fc>(test);
}

// Around the steps of all vector widths, around the blocks of 1024, and some blocks on.
std::vector<int> BlockLengths() {
  return Lengths(70, {102, 205, 1000, 1023, 1024, 1025, 2000, 4095, 4096, 4097, 4129, 12300});
}

TEST_P(GoertzelTest, FloatSumsAtEveryLength) {
  const double frequencies[][2] = {{0.0871, 0.1511}, {0.4999, 0.5003}, {0.75, 0.99}, {0.3, 0.0625}};
  ForEachFloat([&](auto member) {
    using Member = decltype(member);
    using Result = typename Member::Result;
    size_t turn = 0;
    for (const int length : BlockLengths()) {
      const auto n = static_cast<size_t>(length);
      const auto& pair = frequencies[turn++ % 4];
      const GuardedArray<typename Member::Sample> x(Signal<typename Member::Sample>(n, 3), n % 3);
      using Frequency = typename Member::Frequency;
      const GuardedArray<Frequency> f(std::vector<Frequency>(std::begin(pair), std::end(pair)));
      GuardedArray<Result> result(2);
      ASSERT_EQ(Member::Run(x.data(), static_cast<Orb32s>(n), result.data(), f.data()), StatusOk);
      ASSERT_TRUE(result.GuardsIntact());
      const double tolerance = (Member::kTurned ? 1e-11 : Tolerance()) * Magnitudes(x.values());
      for (size_t k = 0; k < 2; ++k) {
        Exact expected = FourierSum(x.values(), static_cast<double>(f[k]));
        if (Member::kTurned) {
          const Exact phase = Turned(1.0, static_cast<long double>(f[k]) * n);
          expected *= phase;
        }
        ASSERT_LE(std::abs(ToExact(result[k]) - expected), tolerance) << "length " << n << ", " << pair[k];
      }
    }
  });
}

int ExpectedInteger(long double scaled) { return static_cast<int>(LimitedTo16Bits(std::round(scaled))); }

TEST_P(GoertzelTest, IntegerSumsAreScaledAndSaturated) {
  size_t turn = 0;
  for (const int length : BlockLengths()) {
    const auto n = static_cast<size_t>(length);
    const GuardedArray<Orb16sc> x(RandomArray<Orb16sc>(n, 17), n % 3);
    const auto len = static_cast<Orb32s>(n);
    const GuardedArray<Orb16s> q15(std::vector<Orb16s>{static_cast<Orb16s>(311 * turn), 32767});
    const GuardedArray<Orb32f> f(std::vector<Orb32f>{q15[0] / 32768.0f, q15[1] / 32768.0f});
    const Orb32s s = static_cast<Orb32s>(turn++ % 14) - 1;
    GuardedArray<Orb16sc> result(2);
    GuardedArray<Orb16sc> fromQ15(2);
    GuardedArray<Orb16sc> one(1);
    ASSERT_EQ(legacy90orbsGoertzTwo_16sc_Sfs(x.data(), len, result.data(), f.data(), s), StatusOk);
    ASSERT_EQ(legacy90orbsGoertzTwoQ15_16sc_Sfs(x.data(), len, fromQ15.data(), q15.data(), s), StatusOk);
    const double scale = std::ldexp(1.0, -s);
    // Half a unit where a value is near a tie.
    const double tolerance = (IsPx() ? 0 : std::ceil(Tolerance() * Magnitudes(x.values()) * scale));
    for (size_t k = 0; k < 2; ++k) {
      const Exact expected = FourierSum(x.values(), f[k]) * static_cast<long double>(scale);
      ASSERT_EQ(legacy90orbsGoertzQ15_16sc_Sfs(x.data(), len, one.data(), q15[k], s), StatusOk);
      ASSERT_NEAR(result[k].re, ExpectedInteger(expected.real()), tolerance) << n << " " << s;
      ASSERT_NEAR(result[k].im, ExpectedInteger(expected.imag()), tolerance) << n << " " << s;
      ASSERT_NEAR(one[0].re, ExpectedInteger(expected.real()), tolerance) << n << " " << s;
      ASSERT_NEAR(one[0].im, ExpectedInteger(expected.imag()), tolerance) << n << " " << s;
      ASSERT_EQ(fromQ15[k].re, result[k].re);
      ASSERT_EQ(fromQ15[k].im, result[k].im);
    }
    ASSERT_TRUE(result.GuardsIntact() && one.GuardsIntact() && fromQ15.GuardsIntact());
  }
}

TEST_P(GoertzelTest, TiesAndScaleFactorsBeyondTheWidth) {
  const Orb32f f[2] = {0, 0};
  Orb16sc result[2];
  const auto sum = [&](Orb16sc x, Orb32s s) {
    EXPECT_EQ(legacy90orbsGoertzTwo_16sc_Sfs(&x, 1, result, f, s), StatusOk);
    EXPECT_EQ(result[0].re, result[1].re);
    return result[0];
  };
  const bool away = IsPx();
  const int mode = std::fegetround();
  for (const int changed : {FE_TONEAREST, FE_UPWARD, FE_TOWARDZERO}) {
    std::fesetround(changed);
    const Orb16sc ties[] = {sum({5, -5}, 1), sum({3, -3}, 1), sum({1, -1}, 1)};
    const Orb16sc no = sum({7, -5}, 3);  // 0.875, -0.625
    std::fesetround(mode);
    EXPECT_EQ(ties[0].re, away ? 3 : 2);
    EXPECT_EQ(ties[0].im, away ? -3 : -2);
    EXPECT_EQ(ties[1].re, 2);
    EXPECT_EQ(ties[1].im, -2);
    EXPECT_EQ(ties[2].re, away ? 1 : 0);
    EXPECT_EQ(ties[2].im, away ? -1 : 0);
    EXPECT_EQ(no.re, 1);
    EXPECT_EQ(no.im, -1);
  }
  for (const Orb32s s : {17, 31, 32, 128, 2000, kMost}) {
    EXPECT_EQ(sum({32767, -32768}, s).re, 0) << s;
    EXPECT_EQ(sum({32767, -32768}, s).im, 0) << s;
  }
  for (const Orb32s s : {-15, -31, -32, -128, -2000, kLeast}) {
    EXPECT_EQ(sum({1, -1}, s).re, 32767) << s;
    EXPECT_EQ(sum({1, -1}, s).im, -32768) << s;
    EXPECT_EQ(sum({0, 0}, s).re, 0) << s;
  }
}

// One sample is its own sum at any frequency, exactly; and a frequency of 0 adds up.
TEST_P(GoertzelTest, OneSampleAndFrequencyZeroAreExact) {
  const Orb32fc x = {1.25f, -3.5f};
  const Orb32f f[2] = {0.3f, 0.9f};
  Orb32fc result[2];
  ASSERT_EQ(legacy90orbsGoertzTwo_32fc(&x, 1, result, f), StatusOk);
  for (const Orb32fc& r : result) {
    EXPECT_EQ(r.re, x.re);
    EXPECT_EQ(r.im, x.im);
  }
  const std::vector<Orb32f> ramp = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19};
  const Orb32f zero[2] = {0, 0};
  ASSERT_EQ(legacy90orbsGoertzTwo_32f(ramp.data(), 19, result, zero), StatusOk);
  EXPECT_EQ(result[1].re, 190);
  EXPECT_EQ(result[1].im, 0);
  const std::vector<Orb64f> wide(ramp.begin(), ramp.end());
  const Orb64f frequencies[2] = {0, 0.5};
  Orb64fc turned[2];
  ASSERT_EQ(legacy90orbsGoertzTwo_64f(wide.data(), 19, turned, frequencies), StatusOk);
  EXPECT_DOUBLE_EQ(turned[0].re, 190);
  EXPECT_NEAR(turned[1].re, -10, 1e-12);  // 1 - 2 + 3 ... turned by 19 half turns
}

// A single sample that has all rotations of a block before it, at frequencies whose sine and cosine lie
// between two numbers of single precision.
TEST_P(GoertzelTest, PulseAtTheEndKeepsItsPhase) {
  const double bound = IsPx() ? 1e-7 : 1e-5;
  std::vector<Orb32fc> x(1024);
  x.back() = {1, 0};
  for (const auto& f : {std::array<Orb32f, 2>{0.077249825f, 0.741926908f}, {0.0249778442f, 0.578122556f}}) {
    Orb32fc result[2];
    ASSERT_EQ(legacy90orbsGoertzTwo_32fc(x.data(), 1024, result, f.data()), StatusOk);
    for (size_t k = 0; k < 2; ++k) {
      EXPECT_LE(std::abs(ToExact(result[k]) - Turned(1.0, -1023 * static_cast<long double>(f[k]))), bound);
    }
  }
}

// A rotation in single precision that is a little too long or too fast would show in a long block.
TEST_P(GoertzelTest, LongBlocksKeepFrequencyAndAmplitude) {
  constexpr Orb32s kLength = Effort(1 << 20, 1 << 17);
  const Orb32f f[2] = {0.12345678f, 0.7f};
  std::vector<Orb32fc> tone(kLength);
  for (Orb32s n = 0; n < kLength; ++n) {
    const Exact x = Turned(1.0f, static_cast<long double>(f[0]) * n);
    tone[static_cast<size_t>(n)] = {static_cast<Orb32f>(x.real()), static_cast<Orb32f>(x.imag())};
  }
  Orb32fc result[2];
  ASSERT_EQ(legacy90orbsGoertzTwo_32fc(tone.data(), kLength, result, f), StatusOk);
  EXPECT_NEAR(result[0].re / kLength, 1, 2e-6);
  EXPECT_NEAR(result[0].im / kLength, 0, 2e-6);
  EXPECT_NEAR(result[1].re / kLength, 0, 2e-6 + 1.0 / kLength);  // what leaks from the other tone
}

TEST_P(GoertzelTest, NotANumberPassesTheTestOfFrequencies) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  ForEachFloat([&](auto member) {
    using Member = decltype(member);
    for (const Orb32s n : {1, 40}) {
      const auto x = Signal<typename Member::Sample>(40, 1);
      const typename Member::Frequency f[2] = {0.25, static_cast<typename Member::Frequency>(nan)};
      typename Member::Result result[2];
      ASSERT_EQ(Member::Run(x.data(), n, result, f), StatusOk);
      EXPECT_FALSE(std::isnan(result[0].re) || std::isnan(result[0].im));
      EXPECT_TRUE(std::isnan(result[1].re) && std::isnan(result[1].im));
    }
  });
  const Orb16sc x = {3, 4};
  const Orb32f f[2] = {static_cast<Orb32f>(nan), 0};
  Orb16sc result[2];
  ASSERT_EQ(legacy90orbsGoertzTwo_16sc_Sfs(&x, 1, result, f, 0), StatusOk);
  EXPECT_EQ(result[0].re, -32768);
  EXPECT_EQ(result[1].im, 4);
}

TEST_P(GoertzelTest, StatusesOfTheFloatMembers) {
  ForEachFloat([](auto member) {
    using Member = decltype(member);
    const GuardedArray<typename Member::Sample> x(Signal<typename Member::Sample>(4, 1));
    GuardedArray<typename Member::Result> result(2);
    using F = typename Member::Frequency;
    const F good[2] = {0, static_cast<F>(0.99999)};
    const F tiny = -std::numeric_limits<F>::denorm_min();
    CheckBadCalls(Member::Run);
    for (const auto& bad : std::vector<std::vector<F>>{{tiny, 0}, {0, tiny}, {1, 0}, {0, 1}, {0, 7}}) {
      EXPECT_EQ(Member::Run(x.data(), 0, result.data(), bad.data()), StatusSize);
      EXPECT_EQ(Member::Run(x.data(), 4, result.data(), bad.data()), StatusRelFreq);
    }
    EXPECT_TRUE(result.Untouched());
    EXPECT_EQ(Member::Run(x.data(), 4, result.data(), good), StatusOk);
  });
}

TEST_P(GoertzelTest, StatusesOfTheScaledMembers) {
  const GuardedArray<Orb16sc> x(RandomArray<Orb16sc>(4, 1));
  GuardedArray<Orb16sc> result(2);
  const auto two = [&](const Orb16sc* src, Orb32s len, Orb16sc* dst, const Orb32f* f) {
    return legacy90orbsGoertzTwo_16sc_Sfs(src, len, dst, f, 0);
  };
  const Orb32f good[2] = {0, 0.5f};
  const Orb32f bad[2] = {0.5f, 1.0f};
  CheckBadCalls(legacy90orbsGoertzTwo_16sc_Sfs);
  EXPECT_EQ(two(x.data(), 0, result.data(), bad), StatusSize);
  EXPECT_EQ(two(x.data(), 4, result.data(), bad), StatusRelFreq);

  const auto twoQ15 = [&](const Orb16sc* src, Orb32s len, Orb16sc* dst, const Orb16s* f) {
    return legacy90orbsGoertzTwoQ15_16sc_Sfs(src, len, dst, f, 0);
  };
  const Orb16s goodQ15[2] = {0, 32767};
  const Orb16s badQ15[2] = {0, -1};
  EXPECT_EQ(twoQ15(nullptr, 0, nullptr, nullptr), StatusNullPointer);
  EXPECT_EQ(twoQ15(nullptr, 0, nullptr, badQ15), StatusRelFreq);
  EXPECT_EQ(twoQ15(nullptr, 0, result.data(), goodQ15), StatusNullPointer);
  EXPECT_EQ(twoQ15(x.data(), 0, nullptr, goodQ15), StatusNullPointer);
  EXPECT_EQ(twoQ15(x.data(), -1, result.data(), goodQ15), StatusSize);

  const auto one = [&](const Orb16sc* src, Orb32s len, Orb16sc* dst, Orb16s f) {
    return legacy90orbsGoertzQ15_16sc_Sfs(src, len, dst, f, 0);
  };
  EXPECT_EQ(one(nullptr, 0, nullptr, -1), StatusRelFreq);
  EXPECT_EQ(one(nullptr, 0, result.data(), 0), StatusNullPointer);
  EXPECT_EQ(one(x.data(), 0, nullptr, 0), StatusNullPointer);
  EXPECT_EQ(one(x.data(), 0, result.data(), 32767), StatusSize);
  EXPECT_TRUE(result.Untouched());
  EXPECT_EQ(two(x.data(), 4, result.data(), good), StatusOk);
  EXPECT_EQ(twoQ15(x.data(), 4, result.data(), goodQ15), StatusOk);
  EXPECT_EQ(one(x.data(), 4, result.data(), 32767), StatusOk);
}

}  // namespace
}  // namespace orbs::test
