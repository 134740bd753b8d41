// States of FIR filters with floating-point taps: sizes, statuses and their order, failed allocations.
#include <limits>

#include "tests/fir/float/filters.h"
#include "tests/support/export_test.h"
#include "tests/support/failing_allocator.h"

namespace orbs::test {
namespace {

class FirStateTest : public ExportTest {};
ORBS_INSTANTIATE_VARIANTS(FirStateTest);

// Sizes are what callers allocate by: the sums of all up to a tap count below the threshold, so that no plan
// is in them; from the threshold on there are a plan and two arrays of four times the taps.
TEST_P(FirStateTest, SizesByVariant) {
  struct Row {
    OrbStatus (*size)(Orb32s, Orb32s*);
    Orb32s tapCount;
    Orb32s px, w7, v8, g9;
    Orb32s tapBytes, threshold, thresholdFromV8;
  };
  const Row rows[] = {
      {legacy90orbsFIRGetStateSize_32f, 63, 1075296, 1109088, 1145888, 1310448, 4, 64, 64},
      {legacy90orbsFIRGetStateSize32f_16s, 63, 1075296, 1109088, 1145888, 1310448, 4, 64, 64},
      {legacy90orbsFIRGetStateSize_32fc, 15, 498128, 511856, 511856, 527216, 8, 16, 16},
      {legacy90orbsFIRGetStateSize_64f, 31, 1039392, 1048096, 1052384, 1092800, 8, 32, 64},
      {legacy90orbsFIRGetStateSize_64fc, 15, 994576, 998672, 998672, 1033488, 16, 16, 32},
      {legacy90orbsFIRGetStateSize_32s, 99, 3420557, 3500557, 3500557, 3681933, 0, 0, 0},
  };
  for (const Row& row : rows) {
    const auto bytes = [&row](Orb32s tapCount) {
      Orb32s size = 0;
      EXPECT_EQ(row.size(tapCount, &size), StatusOk);
      return size;
    };
    const bool early = GetParam() == Variant::px || GetParam() == Variant::w7;
    const Orb32s expected = GetParam() == Variant::px                                ? row.px
                            : GetParam() == Variant::w7                              ? row.w7
                            : GetParam() == Variant::g9 || GetParam() == Variant::h9 ? row.g9
                                                                                     : row.v8;
    Orb32s sum = 0;
    for (Orb32s n = 1; n <= row.tapCount; ++n) sum += bytes(n);
    EXPECT_EQ(sum, expected) << &row - rows;
    if (row.tapBytes == 0) continue;
    const Orb32s n = early ? row.threshold : row.thresholdFromV8;
    EXPECT_LT(bytes(n - 1) - bytes(n - 2), 8 * n * row.tapBytes) << &row - rows;
    EXPECT_GT(bytes(n) - bytes(n - 1), 8 * n * row.tapBytes) << &row - rows;
  }
}

// Taps that never were integers have their fraction cut off, and are the lower bound where they do not fit.
TEST_P(FirStateTest, TapsReadAsIntegers) {
  const Orb64f taps[] = {1.7, -1.7, 2147483647.5, -2147483648.5, 2147483648.0, NAN};
  constexpr Orb32s kLow = std::numeric_limits<Orb32s>::min();
  FIRFloatState* state = nullptr;
  ASSERT_EQ(legacy90orbsFIRInitAlloc64f_32s(&state, taps, 6, nullptr), StatusOk);
  std::vector<Orb32s> got(6);
  EXPECT_EQ(legacy90orbsFIRGetTaps_32s(state, got.data()), StatusOk);
  EXPECT_EQ(got, (std::vector<Orb32s>{1, -1, std::numeric_limits<Orb32s>::max(), kLow, kLow, kLow}));
  legacy90orbsFIRFree64f_32s(state);
}

TEST_P(FirStateTest, SizesBeyond31BitsCannotBeHad) {
  Orb32s size = 0;
  ASSERT_EQ(legacy90orbsFIRGetStateSize_64fc(std::numeric_limits<Orb32s>::max(), &size), StatusOk);
  EXPECT_EQ(size, std::numeric_limits<Orb32s>::max());
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
    EXPECT_EQ(F::Block(nullptr, data, 0, state, 0), StatusNullPointer);
    EXPECT_EQ(F::Block(data, nullptr, 0, state, 0), StatusNullPointer);
    EXPECT_EQ(F::Block(data, data + 1, 0, nullptr, 0), StatusNullPointer);
    EXPECT_EQ(F::InPlace(nullptr, 1, state, 0), StatusNullPointer);
    EXPECT_EQ(F::One(data[0], nullptr, state, 0), StatusNullPointer);
    EXPECT_EQ(F::One(data[0], data, nullptr, 0), StatusNullPointer);
    EXPECT_EQ(F::GetTaps(state, nullptr), StatusNullPointer);
    EXPECT_EQ(F::SetTaps(nullptr, state), StatusNullPointer);
    EXPECT_EQ(F::GetDelay(state, nullptr), StatusNullPointer);
    EXPECT_EQ(F::SetDelay(nullptr, nullptr), StatusNullPointer);
    EXPECT_EQ(F::Free(nullptr), StatusNullPointer);

    Orb32s foreign[64] = {0x46493939};
    auto* other = reinterpret_cast<FIRFloatState*>(foreign);
    EXPECT_EQ(F::Block(data, data + 1, 0, other, 0), StatusSize);
    EXPECT_EQ(F::InPlace(data, -1, other, 0), StatusSize);
    EXPECT_EQ(F::Block(data, data + 1, 1, other, 0), StatusContextMismatch);
    EXPECT_EQ(F::InPlace(data, 1, other, 0), StatusContextMismatch);
    EXPECT_EQ(F::One(data[0], data, other, 0), StatusContextMismatch);
    EXPECT_EQ(F::GetTaps(other, gotTaps), StatusContextMismatch);
    EXPECT_EQ(F::SetTaps(taps, other), StatusContextMismatch);
    EXPECT_EQ(F::GetDelay(other, data), StatusContextMismatch);
    EXPECT_EQ(F::SetDelay(other, nullptr), StatusContextMismatch);
    EXPECT_EQ(F::Free(other), StatusContextMismatch);
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
          << Guest::kName << " on " << Owner::kName;
    });
    EXPECT_EQ(Owner::Free(state), StatusOk);
  });
}

TEST_P(FirStateTest, FailedAllocationsLeaveNothing) {
  ForEachFilter([](auto filter) {
    using F = decltype(filter);
    const std::vector<typename F::Tap> taps(100);
    for (int n = 0;; ++n) {
      FailingAllocator heap(orbsSetAllocator, n);
      FIRFloatState* state = nullptr;
      const OrbStatus status = F::InitAlloc(&state, taps.data(), 100, nullptr);
      if (!heap.Failed()) {
        EXPECT_EQ(status, StatusOk);
        // No call of a filter allocates.
        const int before = heap.Count();
        std::vector<typename F::Data> x(9000);
        EXPECT_EQ(F::InPlace(x.data(), 9000, state, 0), StatusOk);
        EXPECT_EQ(heap.Count(), before);
        EXPECT_EQ(F::Free(state), StatusOk);
        EXPECT_EQ(heap.Alive(), 0);
        break;
      }
      EXPECT_EQ(status, StatusMemAlloc);
      EXPECT_EQ(heap.Alive(), 0);
    }
  });
}

}  // namespace
}  // namespace orbs::test
