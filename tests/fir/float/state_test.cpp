// States of FIR filters with floating-point taps: sizes, statuses and their order, failed allocations.
#include "tests/fir/float/filters.h"
#include "tests/support/export_test.h"
#include "tests/support/failing_allocator.h"
#include "tests/support/filter_calls.h"
#include "tests/support/state_sizes.h"

namespace orbs::test {
namespace {

class FirStateTest : public ExportTest {};
ORBS_INSTANTIATE_VARIANTS(FirStateTest);

// On both sides of the tap counts from which there is a transform.
TEST_P(FirStateTest, SizesByVariant) {
  ExpectSizes(GetParam(),
              {
                  {"32f taps",
                   {legacy90orbsFIRGetStateSize_32f, legacy90orbsFIRGetStateSize32f_16s},
                   {{2, 16592, 16656, 16784, 16784, 17872},
                    {25, 16960, 17408, 17856, 17856, 20240},
                    {63, 17568, 18592, 19680, 19680, 23760},
                    {64, 22112, 24224, 25312, 25312, 29712}}},
                  {"32fc taps",
                   {legacy90orbsFIRGetStateSize_32fc, legacy90orbsFIRGetStateSize32fc_16sc},
                   {{1, 32992, 33280, 33280, 33280, 34304},
                    {15, 33440, 35072, 35072, 35072, 36096},
                    {16, 35376, 37584, 37584, 37584, 37288}}},
                  {"64f taps",
                   {legacy90orbsFIRGetStateSize_64f, legacy90orbsFIRGetStateSize64f_32f,
                    legacy90orbsFIRGetStateSize64f_32s, legacy90orbsFIRGetStateSize64f_16s},
                   {{26, 33856, 34304, 34528, 34528, 36000},
                    {31, 34016, 34528, 34784, 34784, 36320},
                    {32, 38496, 40096, 34848, 34848, 36416},
                    {63, 39520, 41632, 36576, 36576, 38624},
                    {64, 43680, 46816, 47392, 47392, 49472}}},
                  {"64fc taps",
                   {legacy90orbsFIRGetStateSize_64fc, legacy90orbsFIRGetStateSize64fc_32fc,
                    legacy90orbsFIRGetStateSize64fc_32sc, legacy90orbsFIRGetStateSize64fc_16sc},
                   {{1, 65872, 65936, 65936, 65936, 68048},
                    {15, 66768, 67280, 67280, 67280, 69840},
                    {16, 70256, 71856, 67312, 67312, 69872},
                    {31, 71248, 73360, 68816, 68816, 71888},
                    {32, 74416, 77552, 77552, 75440, 80624}}},
                  {"32s taps",
                   {legacy90orbsFIRGetStateSize_32s},
                   {{1, 32991, 33023, 33023, 33023, 34079}, {22, 33647, 33999, 33999, 33999, 35375}}},
              });
}

// Taps that never were integers have their fraction cut off, and are the lower bound where they do not fit.
TEST_P(FirStateTest, TapsReadAsIntegers) {
  const Orb64f taps[] = {1.7, -1.7, 2147483647.5, -2147483648.5, 2147483648.0, NAN};
  FIRFloatState* state = nullptr;
  ASSERT_EQ(legacy90orbsFIRInitAlloc64f_32s(&state, taps, 6, nullptr), StatusOk);
  std::vector<Orb32s> got(6);
  EXPECT_EQ(legacy90orbsFIRGetTaps_32s(state, got.data()), StatusOk);
  EXPECT_EQ(got, (std::vector<Orb32s>{1, -1, kMost, kLeast, kLeast, kLeast}));
  legacy90orbsFIRFree64f_32s(state);
}

TEST_P(FirStateTest, Statuses) {
  ForEachFilter([](auto filter) {
    using F = decltype(filter);
    using Data = typename F::Data;
    const typename F::Tap taps[2] = {};
    Data data[2] = {};
    typename F::Tap gotTaps[2] = {};
    Orb32s size = 7;
    FIRFloatState* state = nullptr;
    std::vector<unsigned char> block(80000);
    EXPECT_EQ(F::Size(0, nullptr), StatusNullPointer);
    EXPECT_EQ(F::Size(0, &size), StatusFirLength);
    EXPECT_EQ(size, 7);

    EXPECT_EQ(F::Init(nullptr, taps, 2, nullptr, block.data()), StatusNullPointer);
    EXPECT_EQ(F::Init(&state, nullptr, 0, nullptr, block.data()), StatusNullPointer);
    EXPECT_EQ(F::Init(&state, taps, 0, nullptr, nullptr), StatusNullPointer);
    EXPECT_EQ(F::Init(&state, taps, 0, nullptr, block.data()), StatusFirLength);
    EXPECT_EQ(F::InitAlloc(nullptr, taps, 2, nullptr), StatusNullPointer);
    EXPECT_EQ(F::InitAlloc(&state, nullptr, 0, nullptr), StatusNullPointer);
    EXPECT_EQ(F::InitAlloc(&state, taps, -1, nullptr), StatusFirLength);
    EXPECT_EQ(state, nullptr);

    ASSERT_EQ(F::Init(&state, taps, 2, nullptr, block.data()), StatusOk);
    ExpectCallStatuses<F>(state, data);
    EXPECT_EQ(F::GetTaps(state, nullptr), StatusNullPointer);
    EXPECT_EQ(F::SetTaps(nullptr, state), StatusNullPointer);
    Orb32s foreign[64] = {0x46493939};
    auto* other = reinterpret_cast<FIRFloatState*>(foreign);
    EXPECT_EQ(F::GetTaps(other, gotTaps), StatusContextMismatch);
    EXPECT_EQ(F::SetTaps(taps, other), StatusContextMismatch);
  });
}

// Each filter takes the states of its own kind alone; 32-bit integer taps make a state of the kind 64f_32s.
TEST_P(FirStateTest, KindsAreToldApart) {
  ForEachFilter([](auto owner) {
    using Owner = decltype(owner);
    const typename Owner::Tap taps[3] = {};
    FIRFloatState* state = nullptr;
    ASSERT_EQ(Owner::InitAlloc(&state, taps, 3, nullptr), StatusOk);
    ForEachFilter([&](auto guest) {
      using Guest = decltype(guest);
      constexpr bool k32s =
          std::is_same_v<typename Guest::Data, Orb32s> && std::is_same_v<typename Owner::Data, Orb32s>;
      constexpr bool kSame = std::is_same_v<Owner, Guest> || k32s;
      typename Guest::Data y{};
      EXPECT_EQ(Guest::One({}, &y, state, 0), kSame ? StatusOk : StatusContextMismatch)
          << "on a state of " << Owner::kName;
    });
    EXPECT_EQ(Owner::Free(state), StatusOk);
  });
}

TEST_P(FirStateTest, FailedAllocationsLeaveNothing) {
  ForEachFilter([](auto filter) {
    using F = decltype(filter);
    const std::vector<typename F::Tap> taps(100);
    FailEachAllocation(orbsSetAllocator, [&](FailingAllocator& heap) {
      FIRFloatState* state = nullptr;
      const OrbStatus status = F::InitAlloc(&state, taps.data(), 100, nullptr);
      if (status == StatusOk) {
        // No call of a filter allocates.
        const int before = heap.Count();
        std::vector<typename F::Data> x(9000);
        EXPECT_EQ(F::InPlace(x.data(), 9000, state, 0), StatusOk);
        EXPECT_EQ(heap.Count(), before);
        EXPECT_EQ(F::Free(state), StatusOk);
      }
      return status;
    });
  });
}

}  // namespace
}  // namespace orbs::test
