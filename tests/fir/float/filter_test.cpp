// FIR filters with floating-point taps: streams cut in every way, against the direct sum.
#include "tests/fir/float/filters.h"
#include "tests/support/effort.h"
#include "tests/support/export_test.h"
#include "tests/support/filter_calls.h"
#include "tests/support/lengths.h"

namespace orbs::test {
namespace {

class FirTest : public ExportTest {
 protected:
  // A stream filtered in these calls, each result held against the exact one.
  template <class F>
  void CheckStream(FIRFloatState* state, const std::vector<typename F::Tap>& taps,
                   const std::vector<typename F::Data>& history, const std::vector<int>& calls,
                   unsigned seed) {
    using Data = typename F::Data;
    const std::vector<Data> x = RandomNumbers<Data>(SamplesOf(calls), DataScale<Data>(), seed);
    const std::vector<Exact> expected = ExactOutputs(taps, history, x);
    const Orb32s factor = std::is_integral_v<typename F::Tap> ? 3 + BitsOf(taps.size())
                          : std::is_integral_v<PartOf<Data>>  ? 1
                                                              : 0;
    const long double divisor = std::ldexp(1.0L, factor);
    const long double allowed = ScaledTolerance<F>(taps, factor);
    const auto [y, callOf] = RunCalls<F>(state, x, calls, factor);
    for (size_t i = 0; i < y.size(); ++i) {
      // Single samples of binary32 are added up in more than that, and rounded once.
      const bool once = std::is_same_v<F, Filter32f> && callOf[i] == 0;
      const long double roundedOnce = std::abs(expected[i]) * 0x1p-24L + 1e-13L;
      ASSERT_LE(PartDistance(ToExact(y[i]), expected[i] / divisor), once ? roundedOnce : allowed)
          << taps.size() << " taps, sample " << i << ", in a call of " << callOf[i];
    }
    GuardedArray<Data> delay(taps.size());
    ASSERT_EQ(F::GetDelay(state, delay.data()), StatusOk);
    ASSERT_TRUE(delay.GuardsIntact());
    ASSERT_NO_FATAL_FAILURE(ExpectNewestFirst(delay.data(), history, x)) << taps.size() << " taps";
  }

  static int BitsOf(size_t n) {
    int bits = 0;
    while (n >> bits) ++bits;
    return bits;
  }
};
ORBS_INSTANTIATE_VARIANTS(FirTest);

// In exactly the bytes reported, at addresses of every alignment.
TEST_P(FirTest, EveryTapCountInMemoryOfTheCaller) {
  ForEachFilter([&](auto filter) {
    using F = decltype(filter);
    for (int n : Lengths(70, {99, 100, 101, 127, 128, 129, 255})) {
      Orb32s size = 0;
      ASSERT_EQ(F::Size(n, &size), StatusOk);
      GuardedArray<unsigned char> block(static_cast<size_t>(size), static_cast<size_t>(n % 33));
      const auto taps = RandomTaps<F>(n, 1u);
      const auto history =
          RandomNumbers<typename F::Data>(static_cast<size_t>(n), DataScale<typename F::Data>(), 2u);
      FIRFloatState* state = nullptr;
      ASSERT_EQ(F::Init(&state, taps.data(), n, history.data(), block.data()), StatusOk);
      // Around the room of the delay line, and short ones in any mixture.
      CheckStream<F>(state, taps, history,
                     {1, 0, n, 0, 0, n + 1, -3, n + 4, n + 5, 7, n + 21, -(n + 9), 2, 0, 40}, 3u);
      ASSERT_TRUE(block.GuardsIntact()) << n << " taps";
      EXPECT_EQ(F::Free(state), StatusOk);
      auto again = taps;
      ASSERT_EQ(F::GetTaps(state, again.data()), StatusOk);  // free left it alone
      for (size_t i = 0; i < taps.size(); ++i) ASSERT_EQ(ToExact(again[i]), ToExact(taps[i]));
    }
  });
}

// Across the thresholds and the seams of overlap-save.
TEST_P(FirTest, LongBlocks) {
  ForEachFilter([&](auto filter) {
    using F = decltype(filter);
    for (int n : {15, 16, 31, 32, 63, 64, 100, 300}) {
      if (!kThorough && n % 2 != 0) continue;
      const auto taps = RandomTaps<F>(n, 4u);
      const auto history =
          RandomNumbers<typename F::Data>(static_cast<size_t>(n), DataScale<typename F::Data>(), 5u);
      FIRFloatState* state = nullptr;
      ASSERT_EQ(F::InitAlloc(&state, taps.data(), n, history.data()), StatusOk);
      int length = 8;
      while (length < 2 * n + 2) length *= 2;
      const int outputs = length - n + 1;
      CheckStream<F>(state, taps, history,
                     {255, 256, 511, 512, 0, outputs, -600, outputs + 1, length, 2 * outputs, -512, 0, 300},
                     6u);
      EXPECT_EQ(F::Free(state), StatusOk);
    }
  });
}

TEST_P(FirTest, LongBlocksInPlace) {
  ForEachFilter([&](auto filter) {
    using F = decltype(filter);
    for (int n : {5, 70}) {
      const auto taps = RandomTaps<F>(n, 7u);
      const std::vector<typename F::Data> none(static_cast<size_t>(n));
      FIRFloatState* state = nullptr;
      ASSERT_EQ(F::InitAlloc(&state, taps.data(), n, nullptr), StatusOk);
      CheckStream<F>(state, taps, none, {-4096, -5000, -4737, -9000, 9}, 8u);
      EXPECT_EQ(F::Free(state), StatusOk);
    }
  });
}

// A history that does not fit into the block buffer, with what lies behind that in use afterwards. Most taps
// are zeros, for the sake of the exact sums.
TEST_P(FirTest, LongFilters) {
  ForEachFilter([&](auto filter) {
    using F = decltype(filter);
    constexpr int kTaps = 3100;
    const auto few = RandomTaps<F>(kTaps, 14u);
    std::vector<typename F::Tap> taps(kTaps);
    for (size_t k : {0, 1, 2, 15, 700, 1023, 1024, 1951, 2976, kTaps - 2, kTaps - 1}) taps[k] = few[k];
    const auto history = RandomNumbers<typename F::Data>(kTaps, DataScale<typename F::Data>(), 15u);
    FIRFloatState* state = nullptr;
    ASSERT_EQ(F::InitAlloc(&state, taps.data(), kTaps, history.data()), StatusOk);
    CheckStream<F>(state, taps, history, {-1100, 200, 0, 600, -200}, 16u);
    EXPECT_EQ(F::Free(state), StatusOk);
  });
}

TEST_P(FirTest, TapsAndDelayLineCanBeReplaced) {
  ForEachFilter([&](auto filter) {
    using F = decltype(filter);
    using Data = typename F::Data;
    for (int n : {1, 9, 80}) {
      FIRFloatState* state = nullptr;
      ASSERT_EQ(F::InitAlloc(&state, RandomTaps<F>(n, 9u).data(), n, nullptr), StatusOk);
      Data y{};
      for (int i = 0; i < 2 * n / 3; ++i) F::One(Data{}, &y, state, 0);
      const auto taps = RandomTaps<F>(n, 10u);
      const auto history = RandomNumbers<Data>(static_cast<size_t>(n), DataScale<Data>(), 11u);
      ASSERT_EQ(F::SetTaps(taps.data(), state), StatusOk);
      ASSERT_EQ(F::SetDelay(state, history.data()), StatusOk);
      CheckStream<F>(state, taps, history, {0, 700, 0, 11}, 12u);
      ASSERT_EQ(F::SetDelay(state, nullptr), StatusOk);
      CheckStream<F>(state, taps, std::vector<Data>(static_cast<size_t>(n)), {600, 0}, 13u);
      F::Free(state);
    }
  });
}

// What stands in the delay line behind the samples must not reach a sum.
TEST_P(FirTest, OldInfinitiesAreForgotten) {
  for (int n = 1; n <= 20; ++n) {
    FIRFloatState* state = nullptr;
    const std::vector<Orb32f> taps(static_cast<size_t>(n), 0.5f);
    ASSERT_EQ(legacy90orbsFIRInitAlloc_32f(&state, taps.data(), n, nullptr), StatusOk);
    Orb32f y = 0;
    for (int i = 0; i < 3 * n; ++i) legacy90orbsFIROne_32f(INFINITY, &y, state);
    for (int i = 0; i < n; ++i) legacy90orbsFIROne_32f(1, &y, state);
    EXPECT_EQ(y, static_cast<Orb32f>(n) / 2);
    legacy90orbsFIRFree_32f(state);
  }
  // By transform, where they spread over all of it: the next call fills it in part only.
  FIRFloatState* state = nullptr;
  const std::vector<Orb32f> taps(300, 0.5f);
  ASSERT_EQ(legacy90orbsFIRInitAlloc_32f(&state, taps.data(), 300, nullptr), StatusOk);
  std::vector<Orb32f> x(600, 1);
  std::vector<Orb32f> y(600);
  x[0] = INFINITY;
  legacy90orbsFIR_32f(x.data(), y.data(), 600, state);
  x[0] = 1;
  legacy90orbsFIR_32f(x.data(), y.data(), 600, state);
  for (Orb32f result : y) ASSERT_NEAR(result, 150, 1e-3);
  legacy90orbsFIRFree_32f(state);
}

template <class F>
std::vector<double> Scaled(const std::vector<double>& taps, double sample, Orb32s factor) {
  using Tap = typename F::Tap;
  std::vector<Tap> given;
  for (double tap : taps) given.push_back(FromExact<Tap>({static_cast<long double>(tap), 0}));
  FIRFloatState* state = nullptr;
  F::InitAlloc(&state, given.data(), static_cast<Orb32s>(given.size()), nullptr);
  const auto x = FromExact<typename F::Data>({static_cast<long double>(sample), 0});
  typename F::Data y[3] = {};
  F::One(x, &y[0], state, factor);
  F::SetDelay(state, nullptr);
  F::Block(&x, &y[1], 1, state, factor);
  y[2] = x;
  F::SetDelay(state, nullptr);
  F::InPlace(&y[2], 1, state, factor);
  F::Free(state);
  return {static_cast<double>(ToExact(y[0]).real()), static_cast<double>(ToExact(y[1]).real()),
          static_cast<double>(ToExact(y[2]).real())};
}

TEST_P(FirTest, TiesSaturationAndScaleFactors) {
  using Values = std::vector<double>;
  // 2.5 where ties go away from zero in px alone.
  const double one = IsPx() ? 3 : 2;
  EXPECT_EQ(Scaled<Filter32f_16s>({0.5}, 5, 0), (Values{one, 2, 2}));
  EXPECT_EQ(Scaled<Filter32fc_16sc>({0.5}, 5, 0), (Values{one, 2, 2}));
  EXPECT_EQ(Scaled<Filter64f_16s>({0.5}, 5, 0), (Values{one, one, one}));
  EXPECT_EQ(Scaled<Filter64f_32s>({0.5}, 5, 0), (Values{one, 2, 2}));
  EXPECT_EQ(Scaled<Filter32s>({1}, 5, 1), (Values{one, 2, 2}));
  // Short complex filters of two kinds send ties away from zero in the AVX variants as well.
  const double shortOne = IsPx() || IsAvx() ? -3 : -2;
  EXPECT_EQ(Scaled<Filter64fc_16sc>({0.5, 0, 0, 0}, -5, 0), (Values{shortOne, -one, -one}));
  EXPECT_EQ(Scaled<Filter64fc_32sc>({0.5, 0, 0, 0}, -5, 0), (Values{shortOne, -2, -2}));
  EXPECT_EQ(Scaled<Filter64fc_16sc>({0.5, 0, 0, 0, 0}, -5, 0)[0], -one);

  EXPECT_EQ(Scaled<Filter32f_16s>({20000}, 5, 0), (Values{32767, 32767, 32767}));
  EXPECT_EQ(Scaled<Filter64f_16s>({-20000}, 5, 0), (Values{-32768, -32768, -32768}));
  EXPECT_EQ(Scaled<Filter64f_32s>({-1e9}, 5, 0), (Values{-2147483648., -2147483648., -2147483648.}));
  EXPECT_EQ(Scaled<Filter32f_16s>({1}, 5, -3), (Values{40, 40, 40}));
  EXPECT_EQ(Scaled<Filter64f_16s>({64}, 5, 5), (Values{10, 10, 10}));
  // The exponent field takes the magnitude modulo 128, repeated halving does not.
  EXPECT_EQ(Scaled<Filter32f_16s>({1}, 5, 128), (Values{5, 0, 0}));
  EXPECT_EQ(Scaled<Filter64f_16s>({1}, 5, 128), (Values{5, 5, 5}));
  EXPECT_EQ(Scaled<Filter64f_32s>({1}, 5, -129), (Values{10, 2147483647., 2147483647.}));

  // Results beyond binary32: a block limits them, a single one becomes infinite.
  EXPECT_EQ(Scaled<Filter64f_32f>({1e39}, 1, 0),
            (Values{HUGE_VAL, std::numeric_limits<Orb32f>::max(), std::numeric_limits<Orb32f>::max()}));
}

}  // namespace
}  // namespace orbs::test
