// The life cycle of plans: sizes, statuses and their order, dead plans, failing allocations.
#include <algorithm>
#include <cmath>
#include <functional>

#include "core/memory.h"
#include "tests/support/failing_allocator.h"
#include "tests/transform/engine/fixture.h"
#include "tests/transform/plan_sizes.h"

namespace orbs::test {
namespace {

class FftPlanTest : public FftTest {};
ORBS_INSTANTIATE_VARIANTS(FftPlanTest);

// ---- Sizes ----

FloatPlanSizes SizesOf(Variant variant, FftKind kind) {
  return FloatPlanSizes(variant, Is64f(kind), IsReal(kind), kind == kC_32fc || kind == kC_64fc);
}

TEST_P(FftPlanTest, SizesAreWhatTheyAlwaysWere) {
  for (int k = 0; k < kFftKinds; ++k) {
    const auto kind = static_cast<FftKind>(k);
    const FloatPlanSizes rules = SizesOf(GetParam(), kind);
    for (int order = 0; order <= rules.MaxOrder(); ++order) {
      for (const Orb32s flag : {FftScaleFwdByN, FftScaleNone}) {
        Orb32s plan = -1;
        Orb32s init = -1;
        Orb32s work = -1;
        ASSERT_EQ(fft.plan[k].getSize(order, flag, order % 3, &plan, &init, &work), StatusOk);
        const PlanSizes sizes = {plan, init, work};
        if (order <= rules.LastRuled()) {
          EXPECT_EQ(sizes, rules.Of(order)) << kFftKindNames[k] << " " << order;
        }
        EXPECT_GT(plan, 0);
        EXPECT_GE(init, 0);
        EXPECT_GE(work, 0);
        EXPECT_LT(sizes.Largest(), INT32_MAX) << kFftKindNames[k] << " " << order;
      }
    }
  }
}

// ---- Statuses ----

TEST_P(FftPlanTest, SizeQueryChecksInItsOwnOrder) {
  for (int k = 0; k < kFftKinds; ++k) {
    SCOPED_TRACE(kFftKindNames[k]);
    const int max = SizesOf(GetParam(), static_cast<FftKind>(k)).MaxOrder();
    const auto getSize = fft.plan[k].getSize;
    Orb32s sizes[3] = {-7, -7, -7};
    for (const int order : {-1, 31, INT32_MIN, INT32_MAX}) {
      EXPECT_EQ(getSize(order, 3, 0, nullptr, nullptr, nullptr), StatusFftOrder);
    }
    for (int null = 0; null < 3; ++null) {
      EXPECT_EQ(getSize(30, 3, 0, null == 0 ? nullptr : &sizes[0], null == 1 ? nullptr : &sizes[1],
                        null == 2 ? nullptr : &sizes[2]),
                StatusNullPointer);
    }
    for (const Orb32s flag : {0, 3, 5, 9, 16, -1}) {
      EXPECT_EQ(getSize(30, flag, 0, &sizes[0], &sizes[1], &sizes[2]), StatusFftFlag);
    }
    EXPECT_EQ(getSize(max + 1, FftScaleNone, 0, &sizes[0], &sizes[1], &sizes[2]), StatusFftOrder);
    for (const Orb32s size : sizes) EXPECT_EQ(size, -7);
    EXPECT_EQ(getSize(max, FftScaleNone, 0, &sizes[0], &sizes[1], &sizes[2]), StatusOk);
  }
}

TEST_P(FftPlanTest, InitChecksAndLeavesADeadPlan) {
  for (int k = 0; k < kFftKinds; ++k) {
    SCOPED_TRACE(kFftKindNames[k]);
    const int max = SizesOf(GetParam(), static_cast<FftKind>(k)).MaxOrder();
    const FftPlanAccess& access = fft.plan[k];
    Bytes memory(1 << 18);
    Bytes init(1 << 14);
    int marker = 0;
    void* plan = &marker;
    EXPECT_EQ(access.init(nullptr, -1, 3, 0, nullptr, nullptr), StatusNullPointer);
    for (const int order : {-1, max + 1, 31}) {
      EXPECT_EQ(access.init(&plan, order, 3, 0, nullptr, nullptr), StatusFftOrder);
      EXPECT_EQ(access.initAlloc(&plan, order, FftScaleNone, 0), StatusFftOrder);
    }
    EXPECT_EQ(access.init(&plan, 4, 3, 0, nullptr, nullptr), StatusNullPointer);
    EXPECT_TRUE(memory.Untouched());

    void* aligned = AlignUp(memory.data(), 64);
    const auto identity = [&] { return *static_cast<const Orb32s*>(aligned); };
    for (const Orb32s flag : {0, 3, 16, -8}) {
      for (const int order : {0, 8, 11}) {
        EXPECT_EQ(access.init(&plan, order, flag, 0, memory.data(), init.data()), StatusFftFlag);
        EXPECT_EQ(identity(), 0);
      }
      EXPECT_EQ(access.initAlloc(&plan, 8, flag, 0), StatusFftFlag);
    }
    EXPECT_EQ(access.init(&plan, 11, FftScaleNone, 0, memory.data(), nullptr), StatusNullPointer);
    EXPECT_EQ(identity(), 0);
    EXPECT_EQ(plan, &marker);  // not written on any failure
    EXPECT_EQ(access.initAlloc(nullptr, 4, FftScaleNone, 0), StatusNullPointer);
    EXPECT_EQ(access.initAlloc(nullptr, 31, FftScaleNone, 0), StatusFftOrder);

    // No table, or constant sines only: the init buffer is not looked at.
    for (const int order : {0, 5, 10}) {
      EXPECT_EQ(access.init(&plan, order, FftScaleNone, 0, memory.data(), nullptr), StatusOk);
      EXPECT_EQ(plan, aligned);
      EXPECT_EQ(identity(), 4 + k);
    }
    Orb32s size = -1;
    EXPECT_EQ(access.getBufSize(nullptr, &size), StatusNullPointer);
    EXPECT_EQ(access.getBufSize(plan, nullptr), StatusNullPointer);
    EXPECT_EQ(access.free(nullptr), StatusNullPointer);
    EXPECT_EQ(access.free(plan), StatusOk);
    EXPECT_EQ(identity(), 0);
    EXPECT_EQ(access.free(plan), StatusContextMismatch);
    EXPECT_EQ(access.getBufSize(plan, nullptr), StatusContextMismatch);
  }
}

// A transform of any kind with up to four data pointers.
using AnyTransform = std::function<OrbStatus(void* const data[4], const void* plan)>;

std::vector<AnyTransform> TransformsOf(const FftAccess& fft, FftKind kind) {
  const int width = Is64f(kind) ? 1 : 0;
  std::vector<AnyTransform> transforms;
  const auto add = [&](OneArray transform) {
    if (transform == nullptr) return;
    transforms.push_back(
        [=](void* const d[4], const void* plan) { return transform(d[0], d[1], plan, nullptr); });
  };
  for (const int i : {0, 1, 2}) {
    if (IsReal(kind)) {
      add(fft.toSpectrum[i][width]);
      add(fft.fromSpectrum[i][width]);
    } else if (i < 2 && !IsSplit(kind)) {
      add(fft.pairs[i][width]);
    } else if (i < 2) {
      const TwoArrays transform = fft.split[i][width];
      transforms.push_back([=](void* const d[4], const void* plan) {
        return transform(d[0], d[1], d[2], d[3], plan, nullptr);
      });
    }
  }
  return transforms;
}

TEST_P(FftPlanTest, TransformsCheckPlanIdentityAndData) {
  Bytes data(4096);
  const auto expectAll = [&](FftKind kind, const void* plan, int null, OrbStatus status) {
    for (const AnyTransform& transform : TransformsOf(fft, kind)) {
      void* pointers[4] = {data.data(), data.data(), data.data(), data.data()};
      if (null >= 0) pointers[null] = nullptr;
      EXPECT_EQ(transform(pointers, plan), status) << kFftKindNames[kind] << " " << null;
    }
  };
  for (int k = 0; k < kFftKinds; ++k) {
    const auto kind = static_cast<FftKind>(k);
    for (const int order : {3, 7}) {
      void* plan = nullptr;
      ASSERT_EQ(fft.plan[k].initAlloc(&plan, order, FftScaleNone, HintAccurate), StatusOk);
      for (int other = 0; other < kFftKinds; ++other) {
        const auto otherKind = static_cast<FftKind>(other);
        if (other == k) continue;
        expectAll(otherKind, plan, 0, StatusContextMismatch);  // before the data are looked at
        EXPECT_EQ(fft.plan[other].free(plan), StatusContextMismatch);
      }
      expectAll(kind, nullptr, 0, StatusNullPointer);
      for (int null = 0; null < (IsSplit(kind) ? 4 : 2); ++null)
        expectAll(kind, plan, null, StatusNullPointer);
      EXPECT_TRUE(data.Untouched());
      EXPECT_EQ(fft.plan[k].free(plan), StatusOk);
    }
    // A freed plan in the caller's memory.
    Bytes memory(4096);
    void* plan = nullptr;
    ASSERT_EQ(fft.plan[k].init(&plan, 4, FftScaleNone, HintNone, memory.data(), nullptr), StatusOk);
    EXPECT_EQ(fft.plan[k].free(plan), StatusOk);
    expectAll(kind, plan, -1, StatusContextMismatch);
    EXPECT_TRUE(data.Untouched());
  }
}

// ---- Allocation ----

// The heap behind the library, which is linked into this test.
void SetHeap(void* (*allocate)(size_t), void (*release)(void*)) { SetAllocator({allocate, release}); }

TEST_P(FftPlanTest, InitAllocSurvivesEveryFailingAllocation) {
  for (int k = 0; k < kFftKinds; ++k) {
    for (const int order : {2, 9, 12}) {
      SCOPED_TRACE(testing::Message() << kFftKindNames[k] << " order " << order);
      FailEachAllocation(SetHeap, [&](FailingAllocator& heap) {
        int marker = 0;
        void* plan = &marker;
        const OrbStatus status = fft.plan[k].initAlloc(&plan, order, FftScaleInvByN, HintNone);
        EXPECT_EQ(plan == &marker, status != StatusOk);
        if (status != StatusOk) return status;
        // The plan, and for the time of the call the init buffer.
        EXPECT_EQ(heap.Count(), order > 10 ? 2 : 1);
        EXPECT_EQ(heap.Alive(), 1);
        EXPECT_EQ(fft.plan[k].free(plan), StatusOk);
        return status;
      });
    }
  }
}

TEST_P(FftPlanTest, TransformsAllocateOnlyTheirWorkBuffer) {
  for (int k = 0; k < kFftKinds; ++k) {
    const auto kind = static_cast<FftKind>(k);
    for (const int order : {5, 9, 14}) {
      SCOPED_TRACE(std::string(kFftKindNames[k]) + ", order " + std::to_string(order));
      const TestPlan plan(fft, kind, order);
      const bool allocates = plan.WorkSize() > 0;
      for (const AnyTransform& transform : TransformsOf(fft, kind)) {
        Bytes data((size_t{1} << order) * 16 + 16);
        void* const pointers[4] = {data.data(), data.data(), data.data(), data.data()};
        FailingAllocator heap(SetHeap, 0);
        if (allocates) {
          EXPECT_EQ(transform(pointers, plan.Get()), StatusMemAlloc);
          EXPECT_TRUE(data.Untouched());
        }
        std::memset(data.data(), 0, data.size());
        const int before = heap.Count();
        EXPECT_EQ(transform(pointers, plan.Get()), StatusOk);
        EXPECT_EQ(heap.Count() - before, allocates ? 1 : 0);
        EXPECT_EQ(heap.Alive(), 0);
      }
    }
  }
}

}  // namespace
}  // namespace orbs::test
