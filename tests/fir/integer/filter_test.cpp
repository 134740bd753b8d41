// FIR filters with integer taps: bit for bit against the formula, in every variant.
#include <random>
#include <vector>

#include "tests/fir/integer/reference.h"
#include "tests/fir/state_functions.h"
#include "tests/support/export_test.h"
#include "tests/support/failing_allocator.h"
#include "tests/support/filter_calls.h"
#include "tests/support/random_data.h"
#include "tests/support/rows.h"
#include "tests/support/state_sizes.h"

namespace orbs::test {
namespace {

#define ORBS_TEST_FIR(name, suffix, TapType, DataType)               \
  struct name {                                                      \
    ORBS_TEST_FIR_STATE(suffix, suffix, TapType, DataType)           \
    static constexpr auto* Block = legacy90orbsFIR##suffix##_Sfs;    \
    static constexpr auto* InPlace = legacy90orbsFIR##suffix##_ISfs; \
    static constexpr auto* One = legacy90orbsFIROne##suffix##_Sfs;   \
  };
ORBS_TEST_FIR(Filter16s, _16s, Orb16s, Orb16s)
ORBS_TEST_FIR(Filter32s, 32s_16s, Orb32s, Orb16s)
ORBS_TEST_FIR(Filter32sc, 32sc_16sc, Orb32sc, Orb16sc)
#undef ORBS_TEST_FIR

template <class Test>
void ForEachFilter(const Test& test) {
  ForEachRow<Filter16s, Filter32s, Filter32sc>(test);
}

// Within the range of stored taps, whole: no shift is applied to them.
template <class F>
std::vector<typename F::Tap> StoredTaps(int n, uint32_t seed) {
  std::mt19937 engine(seed);
  std::uniform_int_distribution<int> uniform(-32766, 32766);
  std::vector<typename F::Tap> taps(static_cast<size_t>(n));
  for (auto& tap : taps) {
    const int re = uniform(engine);
    tap = FromParts<typename F::Tap>(re, kIsComplex<typename F::Tap> ? uniform(engine) : 0);
  }
  return taps;
}

class FirIntegerTest : public ExportTest {
 protected:
  template <class F>
  void CheckStream(FIRIntState* state, const std::vector<typename F::Tap>& taps,
                   const std::vector<typename F::Data>& history, const std::vector<int>& calls,
                   Orb32s tapsFactor, Orb32s scaleFactor) {
    using Data = typename F::Data;
    const std::vector<Data> x = RandomArray<Data>(SamplesOf(calls), 31);
    const std::vector<Exact> expected = ExactOutputs(taps, history, x, tapsFactor, scaleFactor);
    const auto [y, callOf] = RunCalls<F>(state, x, calls, scaleFactor);
    for (size_t i = 0; i < y.size(); ++i) {
      ASSERT_EQ(ToExact(y[i]), expected[i])
          << taps.size() << " taps, sample " << i << ", in a call of " << callOf[i];
    }
    std::vector<Data> delay(taps.size());
    ASSERT_EQ(F::GetDelay(state, delay.data()), StatusOk);
    ASSERT_NO_FATAL_FAILURE(ExpectNewestFirst(delay.data(), history, x)) << taps.size() << " taps";
  }
};
ORBS_INSTANTIATE_VARIANTS(FirIntegerTest);

// In exactly the bytes reported; sums that wrap among them. A shift by 29 leaves their last bits.
TEST_P(FirIntegerTest, EveryTapCountInMemoryOfTheCaller) {
  ForEachFilter([&](auto filter) {
    using F = decltype(filter);
    for (int n = 1; n <= 300; n += n < 70 ? 1 : 57) {
      Orb32s size = 0;
      ASSERT_EQ(F::Size(n, &size), StatusOk);
      GuardedArray<unsigned char> block(static_cast<size_t>(size), static_cast<size_t>(n % 17));
      const auto taps = StoredTaps<F>(n, 32);
      const auto history = RandomArray<typename F::Data>(static_cast<size_t>(n), 33);
      FIRIntState* state = nullptr;
      ASSERT_EQ(F::Init(&state, taps.data(), n, -15, history.data(), block.data()), StatusOk);
      CheckStream<F>(state, taps, history,
                     {1, 0, n, 0, 0, n + 1, -3, n + 4, n + 33, 7, n + 90, -(n + 9), 2, 0, 1500, 0}, -15,
                     n % 5 == 4 ? -44 : n % 5);
      ASSERT_TRUE(block.GuardsIntact()) << n << " taps";
      EXPECT_EQ(F::Free(state), StatusOk);
    }
  });
}

TEST_P(FirIntegerTest, LongFiltersAndLongBlocksInPlace) {
  ForEachFilter([&](auto filter) {
    using F = decltype(filter);
    for (int n : {3, 1100, 4100}) {
      const auto taps = StoredTaps<F>(n, 34);
      const std::vector<typename F::Data> none(static_cast<size_t>(n));
      FIRIntState* state = nullptr;
      ASSERT_EQ(F::InitAlloc(&state, taps.data(), n, 0, nullptr), StatusOk);
      CheckStream<F>(state, taps, none, {-4500, 0, 300}, 0, 18);
      EXPECT_EQ(F::Free(state), StatusOk);
    }
  });
}

TEST_P(FirIntegerTest, TapsAndDelayLineCanBeReplaced) {
  ForEachFilter([&](auto filter) {
    using F = decltype(filter);
    using Data = typename F::Data;
    for (int n : {1, 9, 80}) {
      const auto size = static_cast<size_t>(n);
      const auto first = StoredTaps<F>(n, 35);
      const auto history = RandomArray<Data>(size, 36);
      FIRIntState* state = nullptr;
      ASSERT_EQ(F::InitAlloc(&state, first.data(), n, -15, history.data()), StatusOk);
      CheckStream<F>(state, first, history, {50, 0, 0}, -15, 1);
      const auto taps = StoredTaps<F>(n, 37);
      const auto other = RandomArray<Data>(size, 38);
      ASSERT_EQ(F::SetTaps(taps.data(), state, -17), StatusOk);
      ASSERT_EQ(F::SetDelay(state, other.data()), StatusOk);
      CheckStream<F>(state, taps, other, {0, 70, -20, 0}, -17, 0);
      ASSERT_EQ(F::SetDelay(state, nullptr), StatusOk);
      CheckStream<F>(state, taps, std::vector<Data>(size), {70, 0}, -17, 0);
      EXPECT_EQ(F::Free(state), StatusOk);
    }
  });
}

std::vector<int> OneSample(Orb16s tap, Orb32s tapsFactor, Orb32s scaleFactor,
                           const std::vector<int>& samples) {
  FIRIntState* state = nullptr;
  legacy90orbsFIRInitAlloc_16s(&state, &tap, 1, tapsFactor, nullptr);
  std::vector<int> results;
  for (int sample : samples) {
    Orb16s y = 0;
    legacy90orbsFIROne_16s_Sfs(static_cast<Orb16s>(sample), &y, state, scaleFactor);
    results.push_back(y);
    const auto x = static_cast<Orb16s>(sample);
    Orb16s block = 0;
    legacy90orbsFIR_16s_Sfs(&x, &block, 1, state, scaleFactor);
    EXPECT_EQ(block, y);
  }
  legacy90orbsFIRFree_16s(state);
  return results;
}

TEST_P(FirIntegerTest, ScalingAtTiesAndExtremes) {
  using Values = std::vector<int>;
  EXPECT_EQ(OneSample(1, 0, 1, {1, 2, 3, 5, -1, -3}), (Values{0, 1, 2, 2, 0, -2}));
  EXPECT_EQ(OneSample(3, 7, 7, {1, 20000, -20000}), (Values{3, 32767, -32768}));
  EXPECT_EQ(OneSample(1, 0, 100, {32767, -32768}), (Values{0, 0}));
  EXPECT_EQ(OneSample(16384, 1, 0, {32767, -32768}), (Values{32767, -32768}));
  EXPECT_EQ(OneSample(16384, 16, 0, {1, 2, 3}), (Values{32767, -32768, -32768}));  // bits fall away
  EXPECT_EQ(OneSample(5, kMost, kLeast, {2, 1}), (Values{0, -32768}));
  EXPECT_EQ(OneSample(5, kLeast, kMost, {2}), (Values{0}));
}

TEST_P(FirIntegerTest, TapsAreShiftedTo16Bits) {
  Orb32s factor = 0;
  FIRIntState* state = nullptr;
  const Orb16s narrow[3] = {-3, 5, -32768};
  Orb16s gotNarrow[3];
  ASSERT_EQ(legacy90orbsFIRInitAlloc_16s(&state, narrow, 3, -15, nullptr), StatusOk);
  ASSERT_EQ(legacy90orbsFIRGetTaps_16s(state, gotNarrow, &factor), StatusOk);
  EXPECT_EQ(std::vector<int>(gotNarrow, gotNarrow + 3), (std::vector<int>{-2, 2, -16384}));
  EXPECT_EQ(factor, -14);
  const Orb16s inRange[3] = {-32767, 1, 2};
  ASSERT_EQ(legacy90orbsFIRSetTaps_16s(inRange, state, 4), StatusOk);
  ASSERT_EQ(legacy90orbsFIRGetTaps_16s(state, gotNarrow, &factor), StatusOk);
  EXPECT_EQ(gotNarrow[0], -32767);
  EXPECT_EQ(factor, 4);
  legacy90orbsFIRFree_16s(state);

  const struct {
    Orb32s taps[2];
    Orb32s stored[2];
    Orb32s shift;
  } rows[] = {{{32766, -3}, {32766, -3}, 0},
              {{32767, -3}, {16383, -2}, 1},
              {{-32767, -3}, {-16384, -2}, 1},
              {{1000000, -1}, {31250, -1}, 5},
              {{kMost, 7}, {32767 >> 1, 0}, 17}};
  for (const auto& row : rows) {
    Orb32s got[2];
    ASSERT_EQ(legacy90orbsFIRInitAlloc32s_16s(&state, row.taps, 2, -3, nullptr), StatusOk);
    ASSERT_EQ(legacy90orbsFIRGetTaps32s_16s(state, got, &factor), StatusOk);
    EXPECT_EQ(got[0], row.stored[0]);
    EXPECT_EQ(got[1], row.stored[1]);
    EXPECT_EQ(factor, row.shift - 3);
    legacy90orbsFIRFree32s_16s(state);
  }
  // Complex: the largest of all components decides.
  const Orb32sc complexTaps[1] = {{5, -70000}};
  Orb32sc gotComplex[1];
  ASSERT_EQ(legacy90orbsFIRInitAlloc32sc_16sc(&state, complexTaps, 1, 0, nullptr), StatusOk);
  ASSERT_EQ(legacy90orbsFIRGetTaps32sc_16sc(state, gotComplex, &factor), StatusOk);
  EXPECT_EQ(gotComplex[0].re, 1);
  EXPECT_EQ(gotComplex[0].im, -17500);
  EXPECT_EQ(factor, 2);
  legacy90orbsFIRFree32sc_16sc(state);
}

TEST_P(FirIntegerTest, FloatTapsAreQuantised) {
  const struct {
    Orb32f tap;
    Orb32s stored;
    Orb32s factor;
  } rows[] = {{1.0f, 16384, -14},          {0.9f, 29491, -15},   {-0.9f, -29491, -15},
              {40000.0f, 20000, 1},        {32767.0f, 32767, 0}, {0.0f, 0, -33},
              {2.5f, 20480, -13},          {1e-6f, 8590, -33},   {16383.5f, 16384, 0},
              {20000 * 0x1p33f, 20000, 33}};
  for (const auto& row : rows) {
    FIRIntState* state = nullptr;
    Orb32s stored = 0;
    Orb32s factor = 0;
    Orb32f back = 0;
    ASSERT_EQ(legacy90orbsFIRInitAlloc32s_16s32f(&state, &row.tap, 1, nullptr), StatusOk);
    ASSERT_EQ(legacy90orbsFIRGetTaps32s_16s(state, &stored, &factor), StatusOk);
    ASSERT_EQ(legacy90orbsFIRGetTaps32s_16s32f(state, &back), StatusOk);
    EXPECT_EQ(stored, row.stored) << row.tap;
    EXPECT_EQ(factor, row.factor) << row.tap;
    EXPECT_EQ(back, std::ldexp(static_cast<float>(row.stored), row.factor)) << row.tap;
    legacy90orbsFIRFree32s_16s(state);
  }
  const Orb32fc taps[2] = {{0.25f, -1.0f}, {0.5f, 0.125f}};
  Orb32fc back[2];
  FIRIntState* state = nullptr;
  ASSERT_EQ(legacy90orbsFIRInitAlloc32sc_16sc32fc(&state, taps, 2, nullptr), StatusOk);
  ASSERT_EQ(legacy90orbsFIRGetTaps32sc_16sc32fc(state, back), StatusOk);
  EXPECT_EQ(back[0].im, -1.0f);
  EXPECT_EQ(back[1].im, 0.125f);
  // The number just below a half, beside a tap that sets the scale to 2^14.
  const Orb32fc nearHalf[2] = {{1, 0.49999997f / 16384}, {-0.49999997f / 16384, 0.5f / 16384}};
  ASSERT_EQ(legacy90orbsFIRSetTaps32sc_16sc32fc(nearHalf, state), StatusOk);
  ASSERT_EQ(legacy90orbsFIRGetTaps32sc_16sc32fc(state, back), StatusOk);
  EXPECT_EQ(back[0].im, 0);
  EXPECT_EQ(back[1].re, 0);
  EXPECT_EQ(back[1].im, 1.0f / 16384);
  // Taps that have no 16 bits at all are stored as something, without a fault.
  const Orb32fc wild[2] = {{INFINITY, NAN}, {-3e38f, 1}};
  ASSERT_EQ(legacy90orbsFIRSetTaps32sc_16sc32fc(wild, state), StatusOk);
  legacy90orbsFIRFree32sc_16sc(state);
}

// The forms with floating-point taps; the states are those of 32-bit taps.
struct Quantised {
  using Base = Filter32s;
  using Given = Orb32f;
  static constexpr auto* Init = legacy90orbsFIRInit32s_16s32f;
  static constexpr auto* SetTaps = legacy90orbsFIRSetTaps32s_16s32f;
};
struct QuantisedComplex {
  using Base = Filter32sc;
  using Given = Orb32fc;
  static constexpr auto* Init = legacy90orbsFIRInit32sc_16sc32fc;
  static constexpr auto* SetTaps = legacy90orbsFIRSetTaps32sc_16sc32fc;
};

TEST_P(FirIntegerTest, FiltersWithQuantisedTaps) {
  const auto check = [&](auto form) {
    using Q = decltype(form);
    using F = typename Q::Base;
    using Data = typename F::Data;
    constexpr int kTaps = 22;
    constexpr int kParts = kIsComplex<Data> ? 2 : 1;
    const auto history = RandomArray<Data>(kTaps, 71);
    Orb32s size = 0;
    ASSERT_EQ(F::Size(kTaps, &size), StatusOk);
    GuardedArray<unsigned char> block(static_cast<size_t>(size));
    FIRIntState* state = nullptr;
    for (bool again : {false, true}) {
      auto given = RandomArray<typename Q::Given>(kTaps, again ? 72 : 73, again ? 1000 : 0.01);
      // The largest is a part of odd index.
      Orb32f* const parts = reinterpret_cast<Orb32f*>(given.data());
      parts[kTaps * kParts - 1] = again ? -5000.0f : 0.05f;
      if (again) {
        ASSERT_EQ(Q::SetTaps(given.data(), state), StatusOk);
        ASSERT_EQ(F::SetDelay(state, history.data()), StatusOk);
      } else {
        ASSERT_EQ(Q::Init(&state, given.data(), kTaps, history.data(), block.data()), StatusOk);
      }
      std::vector<typename F::Tap> stored(kTaps);
      Orb32s factor = 0;
      ASSERT_EQ(F::GetTaps(state, stored.data(), &factor), StatusOk);
      EXPECT_EQ(factor, again ? -2 : -19);
      const auto* whole = reinterpret_cast<const Orb32s*>(stored.data());
      for (int k = 0; k < kTaps * kParts; ++k)
        ASSERT_NEAR(whole[k], std::ldexp(double{parts[k]}, -factor), 0.5) << "part " << k;
      CheckStream<F>(state, stored, history, {0, 100, 0, -30}, factor, factor + 17);
      ASSERT_TRUE(block.GuardsIntact());
    }
  };
  check(Quantised{});
  check(QuantisedComplex{});
}

TEST_P(FirIntegerTest, Statuses) {
  ForEachFilter([](auto filter) {
    using F = decltype(filter);
    const typename F::Tap taps[2] = {};
    typename F::Tap got[2] = {};
    typename F::Data data[2] = {};
    Orb32s number = 7;
    FIRIntState* state = nullptr;
    std::vector<unsigned char> block(20000);
    EXPECT_EQ(F::Size(0, nullptr), StatusNullPointer);
    EXPECT_EQ(F::Size(0, &number), StatusFirLength);
    EXPECT_EQ(F::Init(&state, taps, 0, 0, nullptr, nullptr), StatusNullPointer);
    EXPECT_EQ(F::Init(&state, taps, 0, 0, nullptr, block.data()), StatusFirLength);
    EXPECT_EQ(F::InitAlloc(nullptr, taps, 0, 0, nullptr), StatusNullPointer);
    EXPECT_EQ(F::InitAlloc(&state, taps, 0, 0, nullptr), StatusFirLength);
    EXPECT_EQ(state, nullptr);
    FailEachAllocation(orbsSetAllocator, [&](FailingAllocator&) {
      FIRIntState* made = nullptr;
      const OrbStatus status = F::InitAlloc(&made, taps, 2, 0, nullptr);
      if (status == StatusOk) F::Free(made);
      return status;
    });
    ASSERT_EQ(F::Init(&state, taps, 2, 0, nullptr, block.data()), StatusOk);
    ExpectCallStatuses<F>(state, data);
    EXPECT_EQ(F::GetTaps(state, got, nullptr), StatusNullPointer);
    EXPECT_EQ(F::GetTaps(state, nullptr, &number), StatusNullPointer);
    EXPECT_EQ(F::SetTaps(nullptr, state, 0), StatusNullPointer);
    Orb32s foreign[16] = {0x46493031};
    auto* other = reinterpret_cast<FIRIntState*>(foreign);
    EXPECT_EQ(F::GetTaps(other, got, &number), StatusContextMismatch);
    EXPECT_EQ(F::SetTaps(taps, other, 0), StatusContextMismatch);
  });
}

TEST_P(FirIntegerTest, SizesByVariant) {
  ExpectSizes(GetParam(),
              {
                  {"16s",
                   {legacy90orbsFIRGetStateSize_16s},
                   {{5, 16592, 16688, 16688, 16688, 17200},
                    {7, 16624, 16704, 16704, 16704, 17216},
                    {20, 16816, 16864, 16864, 16864, 17376},
                    {26, 16928, 16976, 16976, 16976, 17488}}},
                  {"32s",
                   {legacy90orbsFIRGetStateSize32s_16s, legacy90orbsFIRGetStateSize32s_16s32f},
                   {{5, 16608, 16704, 16704, 16704, 17216},
                    {7, 16640, 16720, 16720, 16720, 17232},
                    {20, 16848, 16896, 16896, 16896, 17408},
                    {26, 16976, 17024, 17024, 17024, 17536}}},
                  {"32sc",
                   {legacy90orbsFIRGetStateSize32sc_16sc, legacy90orbsFIRGetStateSize32sc_16sc32fc},
                   {{1, 16528, 16544, 16544, 16544, 17056},
                    {3, 16576, 16624, 16624, 16624, 17136},
                    {16, 16816, 17072, 17072, 17072, 17584}}},
              });
}

}  // namespace
}  // namespace orbs::test
