// States of IIR filters: sizes, statuses and their order, normalising, accessors, failed allocations.
#include "tests/iir/filters.h"
#include "tests/support/export_test.h"
#include "tests/support/failing_allocator.h"
#include "tests/support/filter_calls.h"
#include "tests/support/random_data.h"
#include "tests/support/state_sizes.h"

namespace orbs::test {
namespace {

class IirStateTest : public ExportTest {
 protected:
  // The response to a unit of `amplitude` tells one filter from another.
  template <class F>
  static std::vector<Exact> Response(IIRState* state, int amplitude) {
    std::vector<Exact> response;
    for (int i = 0; i < 12; ++i) {
      typename F::Data y{};
      EXPECT_EQ(F::One(FromParts<typename F::Data>(i == 0 ? amplitude : 0, 0), &y, state, 0), StatusOk);
      response.push_back(ToExact(y));
    }
    return response;
  }
};
ORBS_INSTANTIATE_VARIANTS(IirStateTest);

TEST_P(IirStateTest, SizesByVariant) {
  ExpectSizes(
      GetParam(),
      {
          {"order",
           {legacy90orbsIIRGetStateSize32s_16s, legacy90orbsIIRGetStateSize32s_16s32f},
           {{3, 128, 8520, 8520, 8520, 8520}, {24, 400, 9464, 9464, 9464, 9464}}},
          {"complex order",
           {legacy90orbsIIRGetStateSize32sc_16sc, legacy90orbsIIRGetStateSize32sc_16sc32fc},
           {{8, 352, 18128, 18128, 18128, 18128}, {31, 864, 21584, 21584, 21584, 21584}}},
          {"biquads",
           {legacy90orbsIIRGetStateSize32s_BiQuad_16s, legacy90orbsIIRGetStateSize32s_BiQuad_16s32f},
           {{1, 128, 8520, 8520, 8520, 8520}, {37, 1136, 15288, 15288, 15288, 15288}}},
          {"complex biquads",
           {legacy90orbsIIRGetStateSize32sc_BiQuad_16sc, legacy90orbsIIRGetStateSize32sc_BiQuad_16sc32fc},
           {{1, 224, 17792, 17792, 17792, 17792}, {37, 2240, 62432, 62432, 62432, 62432}}},
      });
}

TEST_P(IirStateTest, Statuses) {
  ForEachIir([](auto filter) {
    using F = decltype(filter);
    using Data = typename F::Data;
    const auto taps = StableTaps<F>(2, 1, 0.5);
    Data data[2] = {};
    typename F::Word words[4] = {};
    Orb32s size = 7;
    IIRState* state = nullptr;
    std::vector<unsigned char> block(40000);
    EXPECT_EQ(F::Size(0, nullptr), StatusNullPointer);
    EXPECT_EQ(F::Size(0, &size), StatusIirOrder);
    EXPECT_EQ(size, 7);

    EXPECT_EQ(F::Init(nullptr, taps.data(), 0, 0, nullptr, block.data()), StatusNullPointer);
    EXPECT_EQ(F::Init(&state, nullptr, 0, 0, nullptr, block.data()), StatusNullPointer);
    EXPECT_EQ(F::Init(&state, taps.data(), 0, 0, nullptr, nullptr), StatusNullPointer);
    EXPECT_EQ(F::Init(&state, taps.data(), 0, 0, nullptr, block.data()), StatusIirOrder);
    EXPECT_EQ(F::InitAlloc(nullptr, taps.data(), 0, 0, nullptr), StatusNullPointer);
    EXPECT_EQ(F::InitAlloc(&state, nullptr, 0, 0, nullptr), StatusNullPointer);
    EXPECT_EQ(F::InitAlloc(&state, taps.data(), -1, 0, nullptr), StatusIirOrder);
    EXPECT_EQ(F::InitAlloc(&state, taps.data(), kMost, 0, nullptr), StatusMemAlloc);
    EXPECT_EQ(state, nullptr);

    ASSERT_EQ(F::Init(&state, taps.data(), 2, 0, nullptr, block.data()), StatusOk);
    ExpectCallStatuses<F>(state, words);
    EXPECT_EQ(F::SetTaps(static_cast<const typename F::Tap*>(nullptr), state, 0), StatusNullPointer);
    EXPECT_EQ(F::SetTaps(taps.data(), nullptr, 0), StatusNullPointer);
    Orb32s foreign[64] = {0x46493039};
    EXPECT_EQ(F::SetTaps(taps.data(), reinterpret_cast<IIRState*>(foreign), 0), StatusContextMismatch);

    // A state in memory of the caller outlives its end.
    EXPECT_EQ(F::Free(state), StatusOk);
    EXPECT_EQ(F::One(data[0], data, state, 0), StatusOk);
  });
}

// Functions take both kinds of their data type and none of the other.
TEST_P(IirStateTest, DataTypesAreToldApart) {
  ForEachFloatIir([](auto owner) {
    using Owner = decltype(owner);
    IIRState* state = nullptr;
    ASSERT_EQ(Owner::InitAlloc(&state, StableTaps<Owner>(3, 1, 0.5).data(), 3, 0, nullptr), StatusOk);
    ForEachIir([&](auto guest) {
      using Guest = decltype(guest);
      constexpr bool kSame = std::is_same_v<typename Guest::Data, typename Owner::Data>;
      typename Guest::Data y{};
      EXPECT_EQ(Guest::One({}, &y, state, 0), kSame ? StatusOk : StatusContextMismatch)
          << "on a state of " << Owner::kName;
      // Taps of the state's own kind, which is not that of the guest.
      std::vector<typename Guest::Tap> taps(18, FromParts<typename Guest::Tap>(1, 0));
      EXPECT_EQ(Guest::SetTaps(taps.data(), state, 0), kSame ? StatusOk : StatusContextMismatch);
    });
    EXPECT_EQ(Owner::Free(state), StatusOk);
  });
}

// Integer taps with a factor make the filter that the same numbers make as binary32; the factor is limited.
TEST_P(IirStateTest, IntegerTapsAndTheirFloatTwins) {
  const auto compare = [](auto integer, auto real) {
    using I = decltype(integer);
    using R = decltype(real);
    SCOPED_TRACE(I::kName);
    for (Orb32s factor : {0, 15, -3, kFractionalBits, 1000, -1000}) {
      const auto taps = StableTaps<I>(3, 7, 0.8);
      std::vector<typename R::Tap> twins;
      for (const auto& tap : taps) {
        const double unit = std::ldexp(1.0, -std::min(126, std::max(-96, factor)));
        const Exact value = ToExact(tap);
        // The integer becomes binary32 first.
        twins.push_back(FromParts<typename R::Tap>(static_cast<float>(value.real()) * unit,
                                                   static_cast<float>(value.imag()) * unit));
      }
      IIRState* state = nullptr;
      IIRState* twin = nullptr;
      ASSERT_EQ(I::InitAlloc(&state, taps.data(), 3, factor, nullptr), StatusOk);
      ASSERT_EQ(R::InitAlloc(&twin, twins.data(), 3, 0, nullptr), StatusOk);
      EXPECT_EQ(Response<I>(state, 20000), Response<R>(twin, 20000)) << "taps factor " << factor;
      // Set into a running filter of other taps, they make the same once more.
      ASSERT_EQ(R::SetTaps(StableTaps<R>(3, 8, 0.6).data(), state, 0), StatusOk);
      ASSERT_EQ(I::SetTaps(taps.data(), state, factor), StatusOk);
      ASSERT_EQ(I::SetDelay(state, nullptr), StatusOk);
      ASSERT_EQ(R::SetDelay(twin, nullptr), StatusOk);
      std::vector<typename I::Data> x = RandomArray<typename I::Data>(300, 9);
      auto y = x;
      EXPECT_EQ(I::InPlace(x.data(), 300, state, 1), StatusOk);
      EXPECT_EQ(R::InPlace(y.data(), 300, twin, 1), StatusOk);
      EXPECT_EQ(std::memcmp(x.data(), y.data(), x.size() * sizeof x[0]), 0);
      I::Free(state);
      R::Free(twin);
    }
  };
  compare(IntegerOrder{}, FloatOrder{});
  compare(IntegerBiQuad{}, FloatBiQuad{});
  compare(IntegerOrderC{}, FloatOrderC{});
  compare(IntegerBiQuadC{}, FloatBiQuadC{});
}

TEST_P(IirStateTest, ZeroLeadingCoefficients) {
  ForEachIir([](auto filter) {
    using F = decltype(filter);
    const typename F::Tap zero{};
    const auto good = StableTaps<F>(3, 10, 0.5);
    const auto bad = [&](size_t index) {
      auto taps = good;
      taps[index] = zero;
      IIRState* state = nullptr;
      FailingAllocator heap(orbsSetAllocator, FailingAllocator::kNever);
      const OrbStatus status = F::InitAlloc(&state, taps.data(), 3, kFractionalBits, nullptr);
      EXPECT_EQ(state == nullptr, status != StatusOk);
      if (status == StatusOk) F::Free(state);
      EXPECT_EQ(heap.Alive(), 0);
      std::vector<unsigned char> block(40000);
      EXPECT_EQ(F::Init(&state, taps.data(), 3, kFractionalBits, nullptr, block.data()), status);
      return status;
    };
    EXPECT_EQ(bad(1), StatusOk);
    EXPECT_EQ(bad(F::kCascade ? 3 : 4), StatusDivByZero);
    EXPECT_EQ(bad(0), F::kCascade ? StatusDivByZero : StatusOk);
    if (F::kCascade) {
      EXPECT_EQ(bad(12), StatusDivByZero);
      EXPECT_EQ(bad(15), StatusDivByZero);
      EXPECT_EQ(bad(14), StatusOk);
    }

    // The setter stops at the bad section; those before it are new, all others are old.
    const auto fresh = StableTaps<F>(3, 11, 0.6);
    auto mixed = fresh;
    auto expected = good;
    mixed[F::kCascade ? 9 : 4] = zero;
    if (F::kCascade) std::copy(fresh.begin(), fresh.begin() + 6, expected.begin());
    IIRState* state = nullptr;
    IIRState* twin = nullptr;
    ASSERT_EQ(F::InitAlloc(&state, good.data(), 3, kFractionalBits, nullptr), StatusOk);
    ASSERT_EQ(F::InitAlloc(&twin, expected.data(), 3, kFractionalBits, nullptr), StatusOk);
    EXPECT_EQ(F::SetTaps(mixed.data(), state, kFractionalBits), StatusDivByZero);
    EXPECT_EQ(Response<F>(state, 30000), Response<F>(twin, 30000));
    std::vector<typename F::Data> x = RandomArray<typename F::Data>(200, 12);
    auto y = x;
    F::InPlace(x.data(), 200, state, 0);
    F::InPlace(y.data(), 200, twin, 0);
    EXPECT_EQ(std::memcmp(x.data(), y.data(), x.size() * sizeof x[0]), 0);
    F::Free(state);
    F::Free(twin);
  });
}

// A complex number with one part 0 is not 0, and the sign of a zero does not matter.
TEST_P(IirStateTest, ComplexAndNegativeZeros) {
  IIRState* state = nullptr;
  const Orb32fc turned[] = {{0, 1}, {0, 0}, {0, 0}, {0, 2}, {0, 0}, {0, 0}};
  ASSERT_EQ(FloatBiQuadC::InitAlloc(&state, turned, 1, 0, nullptr), StatusOk);
  EXPECT_EQ(Response<FloatBiQuadC>(state, 1000)[0], Exact(500, 0));
  FloatBiQuadC::Free(state);
  const Orb32fc zero[] = {{1, 0}, {0, 0}, {0, 0}, {-0.0f, 0}, {0, 0}, {0, 0}};
  EXPECT_EQ(FloatBiQuadC::InitAlloc(&state, zero, 1, 0, nullptr), StatusDivByZero);
  const Orb32f real[] = {1, 0, -0.0f, 0};
  EXPECT_EQ(FloatOrder::InitAlloc(&state, real, 1, 0, nullptr), StatusDivByZero);
}

// The delay line crosses the interface as bits, at Init, through the accessors and through setting taps.
TEST_P(IirStateTest, DelayLines) {
  ForEachIir([](auto filter) {
    using F = decltype(filter);
    using Word = typename F::Word;
    for (int units : {1, 2, 5}) {
      const size_t count = F::DelayCount(units);
      const auto taps = StableTaps<F>(units, 13, 0.5);
      const auto words = RandomArray<Word>(count, 14);
      IIRState* state = nullptr;
      ASSERT_EQ(F::InitAlloc(&state, taps.data(), units, kFractionalBits, words.data()), StatusOk);
      const auto held = [&] {
        std::vector<Word> got(count);
        EXPECT_EQ(F::GetDelay(state, got.data()), StatusOk);
        return got;
      };
      const auto equal = [&](const std::vector<Word>& a, const std::vector<Word>& b) {
        return std::memcmp(a.data(), b.data(), count * sizeof(Word)) == 0;
      };
      EXPECT_TRUE(equal(held(), words));
      const auto others = RandomArray<Word>(count, 15);
      EXPECT_EQ(F::SetDelay(state, others.data()), StatusOk);
      EXPECT_EQ(F::SetTaps(taps.data(), state, kFractionalBits), StatusOk);
      EXPECT_TRUE(equal(held(), others));
      EXPECT_EQ(F::SetDelay(state, nullptr), StatusOk);
      EXPECT_TRUE(equal(held(), std::vector<Word>(count)));
      // y takes in d[0]; what a sample leaves are the next coefficients.
      std::vector<Word> line(count);
      const Orb32f hundred = 100;
      std::memcpy(&line[0], &hundred, sizeof hundred);
      EXPECT_EQ(F::SetDelay(state, line.data()), StatusOk);
      typename F::Data y{};
      EXPECT_EQ(F::One({}, &y, state, 0), StatusOk);
      if (!F::kCascade || units == 1) {
        EXPECT_EQ(ToExact(y), Exact(100, 0));
      }
      F::Free(state);
    }
  });
}

TEST_P(IirStateTest, FailedAllocationsLeaveNothing) {
  ForEachIir([](auto filter) {
    using F = decltype(filter);
    const auto taps = StableTaps<F>(3, 16, 0.5);
    FailEachAllocation(orbsSetAllocator, [&](FailingAllocator& heap) {
      IIRState* state = nullptr;
      OrbStatus status = F::InitAlloc(&state, taps.data(), 3, kFractionalBits, nullptr);
      EXPECT_EQ(state == nullptr, status != StatusOk);
      if (status != StatusOk) return status;
      // Setting integer taps allocates, filtering never.
      status = F::SetTaps(taps.data(), state, kFractionalBits);
      const int before = heap.Count();
      std::vector<typename F::Data> x(3000);
      EXPECT_EQ(F::InPlace(x.data(), 3000, state, 0), StatusOk);
      EXPECT_EQ(heap.Count(), before);
      EXPECT_EQ(F::Free(state), StatusOk);
      return status;
    });
    std::vector<unsigned char> block(40000);
    FailingAllocator heap(orbsSetAllocator, 0);
    IIRState* state = nullptr;
    EXPECT_EQ(F::Init(&state, taps.data(), 3, kFractionalBits, nullptr, block.data()),
              F::kInteger ? StatusMemAlloc : StatusOk);
  });
}

}  // namespace
}  // namespace orbs::test
