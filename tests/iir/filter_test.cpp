// IIR filters as streams, in every variant, against the formula in extended precision.
#include <algorithm>
#include <limits>

#include "tests/iir/filters.h"
#include "tests/support/effort.h"
#include "tests/support/export_test.h"
#include "tests/support/filter_calls.h"
#include "tests/support/random_data.h"

namespace orbs::test {
namespace {

class IirFilterTest : public ExportTest {
 protected:
  template <class F>
  static std::vector<typename F::Data> Run(IIRState* state, const std::vector<typename F::Data>& x,
                                           const std::vector<int>& calls, Orb32s scaleFactor) {
    return RunCalls<F>(state, x, calls, scaleFactor).y;
  }

  // Results are whole numbers: beside the half that rounding takes, `error` in units of the last place.
  template <class F>
  static void ExpectNear(const std::vector<typename F::Data>& y, const std::vector<Exact>& expected,
                         Orb32s scaleFactor, double error, const std::string& what) {
    const auto near = [error](long double result, long double exact) {
      return std::abs(result - LimitedTo16Bits(exact)) <= 0.5L + error;
    };
    for (size_t i = 0; i < y.size(); ++i) {
      const Exact result = ToExact(y[i]);
      const Exact exact = expected[i] * std::ldexp(1.0L, -scaleFactor);
      ASSERT_TRUE(near(result.real(), exact.real()) && near(result.imag(), exact.imag()))
          << what << ", sample " << i << ": " << result << ", expected " << exact;
    }
  }

  template <class F>
  static std::vector<Exact> ExactResults(const std::vector<typename F::Tap>& taps, int units,
                                         const std::vector<typename F::Data>& x) {
    ExactFilter<F> exact(taps, units);
    std::vector<Exact> results;
    for (const auto& sample : x) results.push_back(exact(ToExact(sample)));
    return results;
  }
};
ORBS_INSTANTIATE_VARIANTS(IirFilterTest);

// In exactly the bytes reported, at any address. The cuts reach both sides of the smallest block that takes
// the look-ahead, every remainder of its vectors, and pieces of 1024; 255 is the largest order that it takes.
TEST_P(IirFilterTest, StreamsCutAnywhereInMemoryOfTheCaller) {
  ForEachIir([](auto filter) {
    using F = decltype(filter);
    for (int units : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 13, 16, 20, 27, 40, 255}) {
      if ((F::kCascade && units > 20) || (!kThorough && units > 40)) continue;
      Orb32s size = 0;
      ASSERT_EQ(F::Size(units, &size), StatusOk);
      GuardedArray<unsigned char> memory(static_cast<size_t>(size), static_cast<size_t>(units % 33));
      const auto taps = StableTaps<F>(units, 1000 + static_cast<uint32_t>(units), 0.7);
      IIRState* state = nullptr;
      ASSERT_EQ(F::Init(&state, taps.data(), units, kFractionalBits, nullptr, memory.data()), StatusOk);
      const int least = 4 * units + 1;
      const std::vector<int> cuts = {1,         0,         least,        -(least + 1), least + 2, 0,
                                     0,         least + 3, -(least - 1), least + 4,    2,         least + 5,
                                     least + 6, 5,         least + 7,    -1100};
      const auto x = RandomArray<typename F::Data>(static_cast<size_t>(11 * least + 1300), 2);
      const auto y = Run<F>(state, x, cuts, 0);
      ASSERT_TRUE(memory.GuardsIntact()) << units;
      ExpectNear<F>(y, ExactResults<F>(taps, units, x), 0, 0.2, std::to_string(units) + " units");
      EXPECT_EQ(F::Free(state), StatusOk);
    }
  });
}

// px is exact in this: its block form is the one-sample form, sample for sample.
TEST_P(IirFilterTest, BlocksAndSingleSamplesGiveOneStream) {
  ForEachFloatIir([&](auto filter) {
    using F = decltype(filter);
    for (int units : {1, 2, 3, 4, 5, 8, 13}) {
      const auto taps = StableTaps<F>(units, 3, 0.9);
      const auto x = RandomArray<typename F::Data>(5000, 4);
      IIRState* whole = nullptr;
      IIRState* cut = nullptr;
      ASSERT_EQ(F::InitAlloc(&whole, taps.data(), units, 0, nullptr), StatusOk);
      ASSERT_EQ(F::InitAlloc(&cut, taps.data(), units, 0, nullptr), StatusOk);
      const auto one = Run<F>(whole, x, {5000}, 0);
      const auto other = Run<F>(cut, x, {0, 0, 0, 700, 1, 3, -60}, 0);
      for (size_t i = 0; i < x.size(); ++i) {
        ASSERT_LE(PartDistance(ToExact(one[i]), ToExact(other[i])), IsPx() ? 0 : 1)
            << units << " units, sample " << i;
      }
      F::Free(whole);
      F::Free(cut);
    }
  });
}

// Poles at 0.9995 of the unit circle ring for thousands of samples. The bound is on the error of a result, in
// units of the last place of a signal that reaches some thousands: a few of binary32's own.
TEST_P(IirFilterTest, LongStreamsNearTheUnitCircle) {
  ForEachFloatIir([&](auto filter) {
    using F = decltype(filter);
    const std::vector<int> sizes = F::kCascade ? std::vector<int>{1, 3, 6, 10} : std::vector<int>{1, 2, 4};
    for (int units : sizes) {
      const auto taps = StableTaps<F>(units, 5, 0.9995);
      auto x = RandomArray<typename F::Data>(Effort(60000, 10000), 6);
      IIRState* state = nullptr;
      ASSERT_EQ(F::InitAlloc(&state, taps.data(), units, 0, nullptr), StatusOk);
      const auto y = Run<F>(state, x, {4096, 0, 1000, 37}, -2);
      ExpectNear<F>(y, ExactResults<F>(taps, units, x), -2, 0.5, std::to_string(units) + " units");
      F::Free(state);
    }
  });
}

// Low-passes of the kind that an equaliser has, and their mirror images next to half of the sample rate: both
// poles close to 1 or -1, where look-ahead rows are largest.
TEST_P(IirFilterTest, PolesNearBothEndsOfTheBand) {
  const double w = 0.01;
  const double alpha = std::sin(w) / 1.4;
  const double c = std::cos(w);
  for (const double side : {1.0, -1.0}) {
    std::vector<Orb32f> numbers;
    for (double t : {(1 - c) / 2, side * (1 - c), (1 - c) / 2, 1 + alpha, -2 * side * c, 1 - alpha}) {
      numbers.push_back(static_cast<Orb32f>(t));
    }
    // What the state holds: rounded quotients are its filter.
    std::vector<Orb32f> quotients = numbers;
    for (Orb32f& t : quotients) t = static_cast<Orb32f>(t * (1.0 / static_cast<double>(numbers[3])));
    quotients[3] = 1;
    const auto run = [&](auto filter) {
      using F = decltype(filter);
      std::vector<typename F::Tap> taps, held;
      for (Orb32f t : numbers) taps.push_back(FromParts<typename F::Tap>(t, 0.0f));
      for (Orb32f t : quotients) held.push_back(FromParts<typename F::Tap>(t, 0.0f));
      std::vector<typename F::Data> x;
      for (int i = 0; i < 20000; ++i) {
        const int sample = (i % 3 == 0 ? i % 16001 - 8000 : 8000) * (side < 0 && i % 2 != 0 ? -1 : 1);
        x.push_back(FromParts<typename F::Data>(sample, -sample / 2));
      }
      IIRState* state = nullptr;
      ASSERT_EQ(F::InitAlloc(&state, taps.data(), F::kCascade ? 1 : 2, 0, nullptr), StatusOk);
      const auto y = Run<F>(state, x, {3000, 0, 517}, 0);
      ExpectNear<F>(y, ExactResults<F>(held, F::kCascade ? 1 : 2, x), 0, 2.5, std::to_string(side));
      F::Free(state);
    };
    ForEachFloatIir(run);
  }
}

// A Butterworth low-pass of this order, its cut-off at 1/40 of the sample rate, turned around the circle.
template <class F>
std::vector<typename F::Tap> ButterworthTaps(int order, double turn) {
  using C = std::complex<double>;
  const double w = std::tan(static_cast<double>(kPi) / 40);
  std::vector<C> a = {1};
  std::vector<C> b = {1};
  const auto multiply = [](std::vector<C>* p, C root) {
    p->push_back(0);
    for (size_t i = p->size() - 1; i > 0; --i) (*p)[i] -= root * (*p)[i - 1];
  };
  C gain = 1;
  for (int k = 0; k < order; ++k) {
    const C s = std::polar(w, static_cast<double>(kPi) * (2 * k + order + 1) / (2 * order));
    gain *= -s / (1.0 - s);
    multiply(&a, (1.0 + s) / (1.0 - s));
    multiply(&b, -1);
  }
  std::vector<typename F::Tap> taps;
  for (const auto* p : {&b, &a}) {
    for (size_t k = 0; k < p->size(); ++k) {
      const C t = (*p)[k] * (p == &b ? gain : 1) * std::polar(1.0, turn * static_cast<double>(k));
      taps.push_back(FromParts<typename F::Tap>(t.real(), t.imag()));
    }
  }
  return taps;
}

// Poles close together make results that depend on the last bits of everything. Blocks must not do worse than
// single samples, which lose a few units at order 4 and some sixty at order 5.
TEST_P(IirFilterTest, ClusteredPolesLoseNoMoreThanInSingleSamples) {
  const auto run = [](auto filter, double turn) {
    using F = decltype(filter);
    using Data = typename F::Data;
    for (int order : {3, 4, 5}) {
      const auto taps = ButterworthTaps<F>(order, turn);
      std::vector<Data> x = RandomArray<Data>(6000, 7);
      for (size_t i = 0; i < x.size(); i += 2) x[i] = FromParts<Data>(i % 2000 < 1000 ? 15000 : -15000, 9000);
      const auto exact = ExactResults<F>(taps, order, x);
      const auto error = [&](const std::vector<int>& counts) {
        IIRState* state = nullptr;
        EXPECT_EQ(F::InitAlloc(&state, taps.data(), order, 0, nullptr), StatusOk);
        const auto y = Run<F>(state, x, counts, 1);
        F::Free(state);
        long double most = 0;
        for (size_t i = 0; i < y.size(); ++i)
          most = std::max(most, std::abs(ToExact(y[i]) - exact[i] / 2.0L));
        return most;
      };
      EXPECT_LE(error({3000}), error({0}) + 0.5L) << "order " << order;
    }
  };
  run(FloatOrder{}, 0);
  run(FloatOrderC{}, 1);
}

// With poles of opposite signs results grow to infinity and stay there, on the side where they went. Of many
// sections the last one is such, so that sections before it have all ways to go.
TEST_P(IirFilterTest, UnstableFiltersStaySaturated) {
  const Orb32f filters[][6] = {{1, 0.5f, 0.25f, 1, -1, -1}, {1, 0.5f, 0.25f, 1, -0.1f, -1.3f}};
  const Orb32f stable[] = {1, 0.1f, 0.1f, 1, 0.1f, 0.1f};
  for (const auto& unstable : filters) {
    const auto run = [&](auto filter, int units) {
      using F = decltype(filter);
      std::vector<Orb32f> taps;
      for (int i = 1; F::kCascade && i < units; ++i) taps.insert(taps.end(), stable, stable + 6);
      taps.insert(taps.end(), unstable, unstable + 6);
      IIRState* state = nullptr;
      ASSERT_EQ(F::InitAlloc(&state, taps.data(), units, 0, nullptr), StatusOk);
      const auto y = Run<F>(state, std::vector<Orb16s>(3000, 100), {3000}, 0);
      for (size_t i = 100; i < y.size(); ++i) ASSERT_EQ(y[i], 32767) << units << ", sample " << i;
      F::Free(state);
    };
    run(FloatOrder{}, 2);
    for (int sections : {1, 2, 3, 4, 5, 7, 8, 10, 13}) run(FloatBiQuad{}, sections);
  }
  // Higher orders: every result is the sum of those before it.
  for (size_t order : {3, 4, 7, 8, 12}) {
    std::vector<Orb32f> taps(2 * order + 2, -1);
    std::fill_n(taps.begin(), order + 2, 1.0f);
    IIRState* state = nullptr;
    ASSERT_EQ(FloatOrder::InitAlloc(&state, taps.data(), static_cast<int>(order), 0, nullptr), StatusOk);
    const auto y = Run<FloatOrder>(state, std::vector<Orb16s>(3000, 100), {2500, 0}, 0);
    for (size_t i = 100; i < y.size(); ++i) ASSERT_EQ(y[i], 32767) << "order " << order << ", sample " << i;
    FloatOrder::Free(state);
  }
}

// The result saturates, the recursion does not: an integrator returns the way it came.
TEST_P(IirFilterTest, SaturatesTheResultAlone) {
  const Orb32f taps[] = {1, 0, 1, -1};
  for (int single : {0, 1}) {
    IIRState* state = nullptr;
    ASSERT_EQ(FloatOrder::InitAlloc(&state, taps, 1, 0, nullptr), StatusOk);
    std::vector<Orb16s> x(20, 10000);
    x.insert(x.end(), 60, -10000);
    const auto y = Run<FloatOrder>(state, x, {single == 1 ? 0 : 80}, 0);
    int sum = 0;
    for (size_t i = 0; i < x.size(); ++i) {
      sum += x[i];
      ASSERT_EQ(y[i], std::min(32767, std::max(-32768, sum))) << i;
    }
    Orb32s word = 0;
    ASSERT_EQ(FloatOrder::GetDelay(state, &word), StatusOk);
    Orb32f delay;
    std::memcpy(&delay, &word, sizeof delay);
    EXPECT_EQ(delay, -400000.0f);
    FloatOrder::Free(state);
  }
}

// Through single samples and through a block, y * 2^-s to the nearest integer.
TEST_P(IirFilterTest, RoundsAndScales) {
  struct Row {
    Orb32f gain;
    Orb32s scaleFactor;
    Orb16s x, y;
  };
  const Row rows[] = {
      {0.5f, 0, 5, 2},        {0.5f, 0, 7, 4},         {0.5f, 0, -5, -2},          {1, 1, -7, -4},
      {1, 2, 6, 2},           {1, 2, 10, 2},           {1, -3, 100, 800},          {1, -3, 5000, 32767},
      {1, -3, -5000, -32768}, {32767.4f, 0, 1, 32767}, {32768.6f, 0, -1, -32768},  {32767.4f, 0, -1, -32767},
      {1, 128, 77, 77},       {1, 129, 77, 38},        {1, -129, 77, 154},         {1, 127, 20000, 0},
      {1, -127, 1, 32767},    {1, -127, 0, 0},         {1, -2147483647 - 1, 9, 9},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(testing::Message() << row.x << " times " << row.gain << ", scale factor "
                                    << row.scaleFactor);
    const Orb32f taps[] = {row.gain, 0, 0, 1, 0, 0};
    IIRState* state = nullptr;
    ASSERT_EQ(FloatBiQuad::InitAlloc(&state, taps, 1, 0, nullptr), StatusOk);
    for (int count : {0, 1, 9, 40}) {
      const std::vector<Orb16s> x(40, row.x);
      const auto y = Run<FloatBiQuad>(state, x, {count}, row.scaleFactor);
      for (Orb16s result : y) ASSERT_EQ(result, row.y) << "in calls of " << count;
    }
    FloatBiQuad::Free(state);
  }
}

// What no longer is a number is delivered as the lower bound, as by every conversion of the library.
TEST_P(IirFilterTest, NotANumber) {
  const Orb32f taps[] = {1, 0, 1, -1};
  const Orb32s nan = 0x7FC00000;
  for (int count : {0, 40}) {
    IIRState* state = nullptr;
    ASSERT_EQ(FloatOrder::InitAlloc(&state, taps, 1, 0, &nan), StatusOk);
    const auto y = Run<FloatOrder>(state, std::vector<Orb16s>(40, 3), {count}, 0);
    for (Orb16s result : y) ASSERT_EQ(result, -32768);
    // A delay line set anew makes the state whole, whatever its scratch has seen.
    ASSERT_EQ(FloatOrder::SetDelay(state, nullptr), StatusOk);
    const auto sums = Run<FloatOrder>(state, std::vector<Orb16s>(40, 3), {7, 13}, 0);
    for (size_t i = 0; i < sums.size(); ++i) ASSERT_EQ(sums[i], 3 * static_cast<int>(i + 1));
    FloatOrder::Free(state);
  }
}

}  // namespace
}  // namespace orbs::test
