// Adaptive filters: each step against the formula, and whether they find an unknown filter.
#include <cmath>
#include <limits>
#include <vector>

#include "tests/support/export_test.h"
#include "tests/support/guarded_array.h"
#include "tests/support/lengths.h"
#include "tests/support/random_data.h"
#include "tests/support/rows.h"
#include "tests/support/samples.h"

namespace orbs::test {
namespace {

struct Float {
  static constexpr const char* kName = "Float";
  using Tap = Orb32f;
  using Sample = Orb32f;
  using Mu = Orb32f;
  static constexpr auto* Step = legacy90orbsFIRLMSOne_Direct_32f;
};
struct FloatOn16s {
  static constexpr const char* kName = "FloatOn16s";
  using Tap = Orb32f;
  using Sample = Orb16s;
  using Mu = Orb32f;
  static constexpr auto* Step = legacy90orbsFIRLMSOne_Direct32f_16s;
};
struct Q15 {
  static constexpr const char* kName = "Q15";
  using Tap = Orb32s;
  using Sample = Orb16s;
  using Mu = Orb32s;
  static constexpr auto* Step = legacy90orbsFIRLMSOne_DirectQ15_16s;
};

template <class Test>
void ForEachForm(const Test& test) {
  ForEachRow<Float, FloatOn16s, Q15>(test);
}

// What belongs to the caller, in arrays that notice access outside themselves.
template <class F>
struct Filter {
  using Tap = typename F::Tap;
  using Sample = typename F::Sample;

  GuardedArray<Tap> taps;
  GuardedArray<Sample> line;
  Orb32s index = 0;
  Sample output{};

  explicit Filter(const std::vector<Tap>& start)
      : taps(start), line(std::vector<Sample>(2 * start.size(), Sample{})) {}

  OrbStatus Step(Sample x, Sample reference, typename F::Mu mu) {
    return F::Step(x, reference, &output, taps.data(), static_cast<Orb32s>(taps.size()), mu, line.data(),
                   &index);
  }
};

// The n newest samples in time order, once `newest` is in.
template <class Sample>
std::vector<Sample> NewestOf(const std::vector<Sample>& stream, size_t n) {
  std::vector<Sample> run(n, Sample{});
  for (size_t k = 0; k < n && k < stream.size(); ++k) run[n - 1 - k] = stream[stream.size() - 1 - k];
  return run;
}

class LmsTest : public ExportTest {
 protected:
  // Output and taps of one step from the taps as they were. px computes beyond the precision of this test,
  // the others in binary32.
  template <class F>
  void ExpectPlainStep(const Filter<F>& filter, const std::vector<Orb32f>& taps,
                       const std::vector<typename F::Sample>& x, long double reference, long double mu) {
    const long double unit = IsPx() ? 1e-15L : std::numeric_limits<Orb32f>::epsilon();
    long double y = 0;
    long double size = 0;
    for (size_t k = 0; k < x.size(); ++k) {
      y += static_cast<long double>(taps[k]) * x[k];
      size += std::fabs(static_cast<long double>(taps[k]) * x[k]);
    }
    // Sums of a few terms a lane, and the lanes.
    const long double yError = unit * size * (4 + static_cast<long double>(x.size()) / 16);
    if constexpr (std::is_integral_v<typename F::Sample>) {
      const auto deliver = [this](long double v) { return IsPx() ? std::trunc(v) : std::nearbyint(v); };
      EXPECT_GE(filter.output, deliver(LimitedTo16Bits(y - yError)));
      EXPECT_LE(filter.output, deliver(LimitedTo16Bits(y + yError)));
    } else {
      EXPECT_NEAR(filter.output, y, yError + 1e-7L * std::fabs(y));
    }
    const long double e = (reference - y) * 2 * mu;
    const long double eError = 2 * std::fabs(mu) * (yError + 4 * unit * std::fabs(reference - y));
    for (size_t k = 0; k < x.size(); ++k) {
      const long double moved = taps[k] + e * x[k];
      const long double error =
          eError * std::fabs(x[k]) + 1.2e-7L * (std::fabs(moved) + std::fabs(e * x[k])) + 1e-30L;
      ASSERT_NEAR(filter.taps[k], moved, error) << "tap " << k << " of " << x.size();
    }
  }

  // The normalised step, bit for bit.
  void ExpectQ15Step(const Filter<Q15>& filter, const std::vector<Orb32s>& taps, const std::vector<Orb16s>& x,
                     int64_t reference, int64_t mu) {
    int64_t sum = 0;
    int64_t energy = 0;
    for (size_t k = 0; k < x.size(); ++k) {
      const int64_t product = int64_t{taps[k]} * x[k];
      sum += IsPx() ? static_cast<int32_t>(static_cast<uint32_t>(product)) : product;
      energy += int64_t{x[k]} * x[k];
    }
    const double exact = static_cast<double>(sum) / 32768;
    const double rounded = std::nearbyint(exact);
    EXPECT_EQ(filter.output, LimitedTo16Bits(rounded));
    for (size_t k = 0; k < x.size(); ++k) {
      if (energy == 0) {
        ASSERT_EQ(filter.taps[k], taps[k]);
      } else if (IsPx()) {
        const auto g =
            static_cast<uint64_t>(mu) * static_cast<uint64_t>(reference - static_cast<int64_t>(rounded));
        const auto move = static_cast<int64_t>(g * static_cast<uint64_t>(int64_t{x[k]})) / energy;
        const long double moved = static_cast<long double>(move) + taps[k];
        ASSERT_EQ(filter.taps[k], std::fmin(2147483647.0L, std::fmax(-2147483648.0L, moved))) << "tap " << k;
      } else {
        volatile double g = static_cast<double>(mu) * (static_cast<double>(reference) - exact);
        const volatile double inverse = 1 / static_cast<double>(energy);
        g = g * inverse;
        const volatile double move = g * x[k];
        const volatile double moved = taps[k] + move;
        ASSERT_EQ(filter.taps[k], std::nearbyint(std::fmin(2147483647.0, std::fmax(-2147483648.0, moved))))
            << "tap " << k;
      }
    }
  }

  // `steps` of noise; each is checked from where the filter stands.
  template <class F>
  void CheckSteps(const std::vector<typename F::Tap>& start, size_t steps, typename F::Mu mu) {
    using Sample = typename F::Sample;
    const size_t n = start.size();
    Filter<F> filter(start);
    const auto noise = RandomArray<Sample>(steps, 5);
    const auto references = RandomArray<Sample>(steps, 6);
    std::vector<Sample> stream;
    std::vector<Sample> ring(2 * n, Sample{});
    for (size_t i = 0; i < steps; ++i) {
      const auto taps = filter.taps.values();
      ASSERT_EQ(filter.Step(noise[i], references[i], mu), StatusOk);
      stream.push_back(noise[i]);
      ring[i % n] = ring[i % n + n] = noise[i];
      if constexpr (std::is_same_v<F, Q15>) {
        ExpectQ15Step(filter, taps, NewestOf(stream, n), references[i], mu);
      } else {
        ExpectPlainStep<F>(filter, taps, NewestOf(stream, n), references[i], mu);
      }
      ASSERT_EQ(filter.line.values(), ring);
      ASSERT_EQ(static_cast<size_t>(filter.index), (i + 1) % n);
      ASSERT_TRUE(filter.taps.GuardsIntact() && filter.line.GuardsIntact());
      if (HasFatalFailure() || HasNonfatalFailure()) FAIL() << n << " taps, step " << i;
    }
  }
};
ORBS_INSTANTIATE_VARIANTS(LmsTest);

TEST_P(LmsTest, EveryTapCountStepByStep) {
  for (int n : Lengths(40, {63, 64, 65, 70, 100, 127, 128, 129, 200})) {
    const auto count = static_cast<size_t>(n);
    const size_t steps = count + count / 2 + 5;
    CheckSteps<Float>(RandomArray<Orb32f>(count, 1), steps, 0.3f / static_cast<Orb32f>(n));
    CheckSteps<FloatOn16s>(RandomArray<Orb32f>(count, 2, 2.0 / n), steps, 1e-10f / static_cast<Orb32f>(n));
    std::vector<Orb32s> taps = RandomArray<Orb32s>(count, 3);
    for (Orb32s& tap : taps) tap >>= 12;
    CheckSteps<Q15>(taps, steps, 9000);
    if (HasFatalFailure()) return;
  }
}

// Taps of 32 bits, whose products px cuts to 32 bits, and steps that drive them to the bounds.
TEST_P(LmsTest, Q15AtTheBounds) {
  for (int n : {1, 3, 4, 7, 16, 50}) {
    for (const Orb32s mu : {kMost, kLeast, 0, 1}) {
      CheckSteps<Q15>(RandomArray<Orb32s>(static_cast<size_t>(n), 4), 60, mu);
      if (HasFatalFailure()) return;
    }
  }
}

// An unknown filter, whose taps apply to the newest sample first, is found in reversed order.
TEST_P(LmsTest, FindsAnUnknownFilter) {
  const double unknown[11] = {0.1, -0.3, 0.7, 0.05, 0, 0.2, -0.11, 0, 0.08, -0.02, 0.4};
  const size_t n = std::size(unknown);
  ForEachForm([&](auto form) {
    using F = decltype(form);
    const bool q15 = std::is_same_v<F, Q15>;
    const double level = std::is_same_v<typename F::Sample, Orb16s> ? 10000 : 1;
    const double mu = q15 ? 16384 : 0.02 / (level * level);
    Filter<F> filter(std::vector<typename F::Tap>(n, 0));
    std::mt19937 engine(7);
    std::vector<double> stream(n, 0.0);
    double lastError = 0;
    for (int i = 0; i < 3000; ++i) {
      const auto x = static_cast<typename F::Sample>(RandomValue<double>(engine, level));
      stream.push_back(x);
      double y = 0;
      for (size_t k = 0; k < n; ++k) y += unknown[k] * stream[stream.size() - 1 - k];
      const auto reference = static_cast<typename F::Sample>(y);
      ASSERT_EQ(filter.Step(x, reference, static_cast<typename F::Mu>(mu)), StatusOk);
      lastError = std::fabs(static_cast<double>(filter.output) - static_cast<double>(reference)) / level;
    }
    EXPECT_LT(lastError, 1e-3);
    for (size_t k = 0; k < n; ++k) {
      const double tap = static_cast<double>(filter.taps[k]) / (q15 ? 32768 : 1);
      EXPECT_NEAR(tap, unknown[n - 1 - k], 1e-3);
    }
  });
}

template <class F>
struct Stepped {
  typename F::Sample output;
  typename F::Tap tap;
};
template <class F>
Stepped<F> OneTap(typename F::Tap tap, typename F::Sample x, typename F::Sample reference,
                  typename F::Mu mu) {
  Filter<F> filter({tap});
  EXPECT_EQ(filter.Step(x, reference, mu), StatusOk);
  return {filter.output, filter.taps[0]};
}

TEST_P(LmsTest, OutputsAtTiesAndBounds) {
  const auto output = [](Orb32f tap, Orb16s x) { return OneTap<FloatOn16s>(tap, x, 0, 0).output; };
  EXPECT_EQ(output(2.9f, 1), IsPx() ? 2 : 3);
  EXPECT_EQ(output(2.9f, -1), IsPx() ? -2 : -3);
  EXPECT_EQ(output(2.5f, 1), 2);
  EXPECT_EQ(output(3.5f, -1), IsPx() ? -3 : -4);
  EXPECT_EQ(output(40000, 1), 32767);
  EXPECT_EQ(output(40000, -1), -32768);
  EXPECT_EQ(output(3e38f, 32767), 32767);
  EXPECT_EQ(output(NAN, 1), -32768);

  const auto outputQ15 = [](Orb32s tap, Orb16s x) { return OneTap<Q15>(tap, x, 0, 0).output; };
  EXPECT_EQ(outputQ15(3 << 14, 1), 2);
  EXPECT_EQ(outputQ15(5 << 14, 1), 2);
  EXPECT_EQ(outputQ15(-(5 << 14), 1), -2);
  EXPECT_EQ(outputQ15(-(1 << 14), 1), 0);
  EXPECT_EQ(outputQ15(40000 << 15, 1), 32767);
  EXPECT_EQ(outputQ15(40000 << 15, -1), -32768);
}

TEST_P(LmsTest, StepsOfOneTap) {
  EXPECT_EQ(OneTap<Float>(0, 1, 1, 0.25f).tap, 0.5f);
  EXPECT_EQ(OneTap<FloatOn16s>(0, 1, 1, 0.25f).tap, 0.5f);
  // The step is made from the output before it is rounded or saturated.
  EXPECT_EQ(OneTap<FloatOn16s>(0.75f, 1, 1, 0.5f).tap, 1.0f);
  EXPECT_EQ(OneTap<FloatOn16s>(40000, 1, 0, 0.25f).tap, 20000.0f);
  // In px it is made from the rounded output, and the quotient has its fraction cut off.
  EXPECT_EQ(OneTap<Q15>(1 << 14, 1, 1, 32768).tap, IsPx() ? 49152 : 32768);
  EXPECT_EQ(OneTap<Q15>(40000 << 15, 1, 0, 1).tap, (40000 << 15) - 40000);
  EXPECT_EQ(OneTap<Q15>(0, 3, 5, 1).tap, IsPx() ? 1 : 2);
  EXPECT_EQ(OneTap<Q15>(0, -3, 5, 1).tap, IsPx() ? -1 : -2);
  EXPECT_EQ(OneTap<Q15>(0, 1, 32767, 1 << 30).tap, 2147483647);
  EXPECT_EQ(OneTap<Q15>(0, 1, -32768, 1 << 30).tap, -2147483647 - 1);
  EXPECT_EQ(OneTap<Q15>(77, 0, 5, 1 << 20).tap, 77);  // no energy, no step
}

// One step with all taps at 0.5, whatever the one before has made of them.
Orb32f SumOfHalves(Filter<Float>& filter, Orb32f x) {
  for (size_t k = 0; k < filter.taps.size(); ++k) filter.taps[k] = 0.5f;
  EXPECT_EQ(filter.Step(x, 0, 0), StatusOk);
  return filter.output;
}

// The element that the newest sample replaces, and what else stands in the ring, reach neither output nor
// taps.
TEST_P(LmsTest, OldSamplesAreForgotten) {
  for (int n = 1; n <= 40; ++n) {
    Filter<Float> filter(std::vector<Orb32f>(static_cast<size_t>(n)));
    for (int i = 0; i < n; ++i) SumOfHalves(filter, NAN);
    for (int i = 1; i < n; ++i) ASSERT_TRUE(std::isnan(SumOfHalves(filter, 2)));
    EXPECT_EQ(SumOfHalves(filter, 2), static_cast<Orb32f>(n));
    for (size_t k = 0; k < filter.taps.size(); ++k) ASSERT_EQ(filter.taps[k], 0.5f);
  }
}

// An infinity counts once wherever it stands.
TEST_P(LmsTest, InfinityStaysInfinity) {
  for (int n = 1; n <= 20; ++n) {
    Filter<Float> filter(std::vector<Orb32f>(static_cast<size_t>(n)));
    for (int i = 0; i < n; ++i) {
      ASSERT_EQ(SumOfHalves(filter, i == 0 ? INFINITY : 1.0f), INFINITY)
          << n << " taps, " << i << " samples later";
    }
  }
}

TEST_P(LmsTest, BadArgumentsChangeNothing) {
  ForEachForm([&](auto form) {
    using F = decltype(form);
    using Sample = typename F::Sample;
    using Tap = typename F::Tap;
    const std::vector<Tap> taps(4, Tap{3});
    Filter<F> filter(taps);
    const std::vector<Sample> line = filter.line.values();
    filter.output = 9;
    const auto expect = [&](OrbStatus expected, Sample* output, Tap* h, Orb32s n, Sample* delay,
                            Orb32s* index, Orb32s at) {
      filter.index = at;
      EXPECT_EQ(F::Step(1, 1, output, h, n, 1, delay, index), expected);
      EXPECT_EQ(filter.index, at);
      EXPECT_EQ(filter.output, 9);
      EXPECT_EQ(filter.taps.values(), taps);
      EXPECT_EQ(filter.line.values(), line);
    };
    Sample* const y = &filter.output;
    Tap* const h = filter.taps.data();
    Sample* const x = filter.line.data();
    Orb32s* const i = &filter.index;
    expect(StatusNullPointer, nullptr, h, 0, x, i, -1);
    expect(StatusNullPointer, y, nullptr, 0, x, i, -1);
    expect(StatusNullPointer, y, h, 0, nullptr, i, -1);
    expect(StatusNullPointer, y, h, 0, x, nullptr, -1);
    expect(StatusSize, y, h, 0, x, i, -1);
    expect(StatusSize, y, h, -5, x, i, 0);
    expect(StatusDelayIndex, y, h, 4, x, i, -1);
    expect(StatusDelayIndex, y, h, 4, x, i, 4);
    expect(StatusDelayIndex, y, h, 4, x, i, kLeast);
  });
}

}  // namespace
}  // namespace orbs::test
