// The plans of the integer transforms: sizes, memory, statuses, life cycle.
#include <climits>

#include "tests/support/effort.h"
#include "tests/support/failing_allocator.h"
#include "tests/support/guarded_array.h"
#include "tests/transform/integer/cases.h"
#include "tests/transform/plan_sizes.h"

namespace orbs::test {
namespace {

class FftIntegerPlanTest : public ExportTest {};
ORBS_INSTANTIATE_VARIANTS(FftIntegerPlanTest);

// `floats` are those of the floating-point plan inside.
PlanSizes ExpectedSizes(const PlanKind& kind, const FloatPlanSizes& floats, int order, bool fixed) {
  const int64_t n = int64_t{1} << order;
  if (kind.fixed && order == 0) return {116, 0, 0};
  if (fixed) {
    const int64_t init = Down64(n / 2 + 65) + 64;
    if (!kind.real)
      return {Down64(8 * n + 63) + BitReversalBytes(order) + 128, init, (kind.parts ? 12 : 8) * n + 64};
    return {Down64(4 * n + 63) + BitReversalBytes(order - 1) + Down64(8 * n + 63) + 128, init,
            4 * n + 8 + 64};
  }
  const PlanSizes nested = floats.Of(order);
  const int64_t data = (kind.real ? n + 2 : 2 * n) * (kind.wide ? 8 : 4);
  return {nested.plan + 128, kind.fixed || nested.init > 0 ? nested.init + 64 : 0, nested.work + data + 64};
}

PlanSizes Clamped(PlanSizes sizes) {
  for (int64_t* size : {&sizes.plan, &sizes.init, &sizes.work}) *size = std::min<int64_t>(*size, INT32_MAX);
  return sizes;
}

OrbStatus Query(const PlanKind& kind, int order, OrbAlgHint hint, PlanSizes* sizes,
                Orb32s flag = FftScaleNone) {
  Orb32s plan = -1, init = -1, work = -1;
  const OrbStatus status = kind.getSize(order, flag, hint, &plan, &init, &work);
  *sizes = {plan, init, work};
  return status;
}

TEST_P(FftIntegerPlanTest, SizesAreExact) {
  for (const PlanKind& kind : kPlanKinds) {
    const FloatPlanSizes floats(GetParam(), kind.wide, kind.real, !kind.real);
    for (int order = 0; order <= 30; ++order) {
      for (OrbAlgHint hint : {-1, 0, 1, 2, 77}) {
        SCOPED_TRACE(testing::Message() << kind.name << " order " << order << " hint " << hint);
        PlanSizes sizes;
        const OrbStatus status = Query(kind, order, hint, &sizes, kFlags[order % 4]);
        if (order > floats.MaxOrder()) {
          EXPECT_EQ(status, StatusFftOrder);
          EXPECT_EQ(sizes, (PlanSizes{-1, -1, -1}));
          continue;
        }
        ASSERT_EQ(status, StatusOk);
        const bool fast = hint == HintNone || hint == HintFast;
        const bool fixed = kind.fixed && fast && order > 0 && order < FixedLimit(GetParam());
        if (fixed || order <= floats.LastRuled()) {
          ASSERT_EQ(sizes, Clamped(ExpectedSizes(kind, floats, order, fixed)));
        }
        if (sizes.Largest() < INT32_MAX) continue;
        const FailingAllocator heap(orbsSetAllocator, FailingAllocator::kNever);
        void* plan = nullptr;
        EXPECT_EQ(kind.initAlloc(&plan, order, FftScaleNone, hint), StatusMemAlloc);
        EXPECT_EQ(heap.Count(), 0);
      }
    }
  }
}

// ---- Memory ----

// A transform of every operation with a plan, its results in one array.
std::vector<Orb8u> RunAll(const PlanKind& kind, const void* plan, int order, void* work) {
  std::vector<Orb8u> results;
  for (const Operation& op : kOperations) {
    if (&op.plan != &kind) continue;
    const size_t arrays = kind.parts ? 2 : 1;
    std::vector<Orb8u> src(op.SourceCount(order) * static_cast<size_t>(op.sourceBytes));
    std::vector<Orb8u> dst(op.ResultCount(order) * static_cast<size_t>(op.resultBytes));
    for (size_t i = 0; i < src.size(); ++i) src[i] = static_cast<Orb8u>(i * i + 3 * i);
    const Arrays x = {{src.data(), src.data() + src.size() / arrays},
                      {dst.data(), dst.data() + dst.size() / arrays}};
    EXPECT_EQ(op.run(x, plan, order, work), StatusOk) << op.name;
    results.insert(results.end(), dst.begin(), dst.end());
  }
  return results;
}

TEST_P(FftIntegerPlanTest, TheReportedBytesAreEnoughAtAnyAddress) {
  using Memory = GuardedArray<Orb8u>;
  for (const PlanKind& kind : kPlanKinds) {
    for (int order : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 11, 13}) {
      for (OrbAlgHint hint : {HintNone, HintAccurate}) {
        SCOPED_TRACE(testing::Message() << kind.name << " order " << order << " hint " << hint);
        PlanSizes sizes;
        ASSERT_EQ(Query(kind, order, hint, &sizes), StatusOk);
        void* allocated = nullptr;
        ASSERT_EQ(kind.initAlloc(&allocated, order, FftScaleBySqrtN, hint), StatusOk);
        const auto expected = RunAll(kind, allocated, order, nullptr);
        ASSERT_EQ(kind.free(allocated), StatusOk);

        // All misalignments where blocks are small, some where they are large.
        for (size_t gap = 0; gap < 64; gap += order < 4 ? Effort(1, 7) : Effort(13, 60)) {
          Memory block(static_cast<size_t>(sizes.plan), gap);
          Memory init(static_cast<size_t>(sizes.init), gap + 1);
          Memory work(static_cast<size_t>(sizes.work), gap + 2);
          void* plan = nullptr;
          ASSERT_EQ(kind.init(&plan, order, FftScaleBySqrtN, hint, block.data(),
                              sizes.init == 0 ? nullptr : init.data()),
                    StatusOk);
          ASSERT_EQ(reinterpret_cast<uintptr_t>(plan) % 64, 0u);
          ASSERT_EQ(*static_cast<Orb32s*>(plan), kind.id);
          ASSERT_TRUE(init.GuardsIntact());
          init.Refill();  // the plan must hold nothing of it
          Orb32s bytes = -1;
          ASSERT_EQ(kind.getBufSize(plan, &bytes), StatusOk);
          ASSERT_EQ(bytes, sizes.work);

          const auto before = block.values();
          ASSERT_EQ(RunAll(kind, plan, order, sizes.work == 0 ? nullptr : work.data()), expected);
          ASSERT_EQ(RunAll(kind, plan, order, nullptr), expected);
          ASSERT_EQ(block.values(), before) << "a transform has changed its plan";
          ASSERT_TRUE(block.GuardsIntact() && work.GuardsIntact());

          ASSERT_EQ(kind.free(plan), StatusOk);
          ASSERT_EQ(kind.free(plan), StatusContextMismatch);
        }
      }
    }
  }
}

TEST_P(FftIntegerPlanTest, FailedAllocationsLeaveNothing) {
  for (const PlanKind& kind : kPlanKinds) {
    for (int order : {0, 3, 6, 12}) {
      for (OrbAlgHint hint : {HintNone, HintAccurate}) {
        SCOPED_TRACE(testing::Message() << kind.name << " order " << order << " hint " << hint);
        int somewhere = 0;
        void* const untouched = &somewhere;
        FailEachAllocation(orbsSetAllocator, [&](FailingAllocator& heap) {
          void* plan = untouched;
          const OrbStatus status = kind.initAlloc(&plan, order, FftScaleNone, hint);
          EXPECT_EQ(plan == untouched, status != StatusOk);
          EXPECT_EQ(heap.Alive(), status == StatusOk ? 1 : 0);
          if (status == StatusOk) kind.free(plan);
          return status;
        });
      }
    }
  }
}

TEST_P(FftIntegerPlanTest, TransformsWithoutMemoryWriteNothing) {
  constexpr int kOrder = 4;
  for (const Operation& op : kOperations) {
    SCOPED_TRACE(op.name);
    void* plan = nullptr;
    ASSERT_EQ(op.plan.initAlloc(&plan, kOrder, FftScaleNone, HintNone), StatusOk);
    const std::vector<Orb8u> src(4096, 1);
    GuardedArray<Orb8u> dst(4096);
    const Arrays x = {{src.data(), src.data() + 2048}, {dst.data(), dst.data() + 2048}};
    {
      const FailingAllocator heap(orbsSetAllocator, 0);
      EXPECT_EQ(op.run(x, plan, 0, nullptr), StatusMemAlloc);
      EXPECT_TRUE(dst.Untouched());
      EXPECT_EQ(heap.Count(), 1);
    }
    {
      const FailingAllocator heap(orbsSetAllocator, FailingAllocator::kNever);
      EXPECT_EQ(op.run(x, plan, 0, nullptr), StatusOk);
      EXPECT_EQ(heap.Count(), 1);
      EXPECT_EQ(heap.Alive(), 0);
      std::vector<Orb8u> work(4096);
      EXPECT_EQ(op.run(x, plan, 0, work.data()), StatusOk);
      EXPECT_EQ(heap.Count(), 1);
    }
    EXPECT_EQ(op.plan.free(plan), StatusOk);
  }
}

// ---- Statuses ----

TEST_P(FftIntegerPlanTest, SizeQueriesCheckInOrder) {
  for (const PlanKind& kind : kPlanKinds) {
    SCOPED_TRACE(kind.name);
    Orb32s s[3] = {-1, -1, -1};
    for (Orb32s order : {-1, 31, INT_MAX, INT_MIN}) {
      EXPECT_EQ(kind.getSize(order, 3, HintNone, nullptr, nullptr, nullptr), StatusFftOrder);
    }
    for (int i = 0; i < 3; ++i) {
      const auto out = [&](int k) { return k == i ? nullptr : &s[k]; };
      EXPECT_EQ(kind.getSize(30, 3, HintNone, out(0), out(1), out(2)), StatusNullPointer);
    }
    for (Orb32s flag : {0, 3, 5, 16, -1})
      EXPECT_EQ(kind.getSize(30, flag, HintNone, &s[0], &s[1], &s[2]), StatusFftFlag);
    EXPECT_EQ(kind.getSize(30, 8, HintNone, &s[0], &s[1], &s[2]), StatusFftOrder);
    for (Orb32s size : s) EXPECT_EQ(size, -1);
  }
}

TEST_P(FftIntegerPlanTest, BuildingChecksInOrder) {
  for (const PlanKind& kind : kPlanKinds) {
    SCOPED_TRACE(kind.name);
    int somewhere = 0;
    void* const untouched = &somewhere;
    void* plan = untouched;
    GuardedArray<Orb8u> block(1 << 16);
    std::vector<Orb8u> init(1 << 16);
    EXPECT_EQ(kind.init(nullptr, 31, 3, HintNone, nullptr, nullptr), StatusNullPointer);
    EXPECT_EQ(kind.initAlloc(nullptr, 31, 3, HintNone), StatusNullPointer);
    for (Orb32s order : {-1, 31}) {
      EXPECT_EQ(kind.init(&plan, order, 3, HintNone, nullptr, nullptr), StatusFftOrder);
      EXPECT_EQ(kind.initAlloc(&plan, order, 3, HintNone), StatusFftOrder);
    }
    EXPECT_EQ(kind.init(&plan, 3, 3, HintNone, nullptr, nullptr), StatusNullPointer);
    EXPECT_TRUE(block.Untouched());

    const auto expectDead = [&](int order, Orb32s flag, OrbAlgHint hint, void* initBuffer,
                                OrbStatus expected) {
      block.Refill();
      EXPECT_EQ(kind.init(&plan, order, flag, hint, block.data(), initBuffer), expected) << "order " << order;
      EXPECT_EQ(plan, untouched);
      auto* dead =
          reinterpret_cast<Orb8u*>((reinterpret_cast<uintptr_t>(block.data()) + 63) & ~uintptr_t{63});
      EXPECT_EQ(kind.free(dead), StatusContextMismatch);
      Orb32s id = -1;
      std::memcpy(&id, dead, sizeof id);
      EXPECT_EQ(id, 0);
    };
    for (Orb32s flag : {0, 3, 16, -8}) {
      for (int order : {0, 3, 5, 9}) {
        for (OrbAlgHint hint : {HintNone, HintAccurate})
          expectDead(order, flag, hint, nullptr, StatusFftFlag);
        EXPECT_EQ(kind.initAlloc(&plan, order, flag, HintNone), StatusFftFlag);
      }
    }
    // The 16-bit plans want an init buffer from order 1 on, the others when their tables are made in it.
    for (int order : {1, 3, 5, 11}) {
      for (OrbAlgHint hint : {HintNone, HintAccurate}) {
        if (kind.fixed || order == 11) expectDead(order, FftScaleNone, hint, nullptr, StatusNullPointer);
      }
    }
    expectDead(30, FftScaleNone, HintNone, init.data(), StatusFftOrder);
    expectDead(30, 3, HintNone, init.data(), kind.fixed ? StatusFftFlag : StatusFftOrder);
    EXPECT_EQ(kind.initAlloc(&plan, 30, FftScaleNone, HintNone), StatusFftOrder);
    EXPECT_EQ(plan, untouched);
  }
}

TEST_P(FftIntegerPlanTest, PlansAreCheckedBeforeData) {
  for (const PlanKind& kind : kPlanKinds) {
    Orb32s size = -1;
    EXPECT_EQ(kind.free(nullptr), StatusNullPointer);
    EXPECT_EQ(kind.getBufSize(nullptr, nullptr), StatusNullPointer);
    for (const PlanKind& other : kPlanKinds) {
      void* plan = nullptr;
      ASSERT_EQ(other.initAlloc(&plan, 2, FftScaleNone, HintNone), StatusOk);
      const bool same = &other == &kind;
      EXPECT_EQ(kind.getBufSize(plan, nullptr), same ? StatusNullPointer : StatusContextMismatch);
      EXPECT_EQ(kind.getBufSize(plan, &size), same ? StatusOk : StatusContextMismatch);
      if (!same) {
        EXPECT_EQ(kind.free(plan), StatusContextMismatch);
      }

      std::vector<Orb8u> src(64), dst(64);
      for (const Operation& op : kOperations) {
        if (&op.plan != &kind) continue;
        SCOPED_TRACE(testing::Message() << op.name << " with " << other.name);
        for (const auto run : {op.run, op.runInPlace}) {
          if (run == nullptr) continue;
          const bool inPlace = run == op.runInPlace;
          EXPECT_EQ(run({}, nullptr, 0, nullptr), StatusNullPointer);
          for (int missing = 0; missing < 4; ++missing) {
            Arrays x = {{src.data(), src.data() + 32}, {dst.data(), dst.data() + 32}};
            if (missing < 2) x.src[missing] = nullptr;
            if (missing >= 2) x.dst[missing - 2] = nullptr;
            const bool used = (missing % 2 == 0 || kind.parts) && (missing >= 2 || !inPlace);
            EXPECT_EQ(run(x, plan, 0, nullptr), !same  ? StatusContextMismatch
                                                : used ? StatusNullPointer
                                                       : StatusOk);
          }
        }
      }
      EXPECT_EQ(other.free(plan), StatusOk);
    }
  }
}

}  // namespace
}  // namespace orbs::test
