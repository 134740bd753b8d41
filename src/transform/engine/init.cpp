// The life cycle of the plans.
#include <cstring>

#include "core/checks.h"
#include "core/memory.h"
#include "transform/engine/layout.h"
#include "transform/engine/px/core.h"
#include "transform/engine/tables/sine.h"
#include "transform/engine/tables/tables.h"
#include "transform/fft.h"
#include "transform/tuning.h"
#if ORBS_VECTOR
#include "transform/engine/vector/transform.h"
#endif

namespace orbs::ORBS_VARIANT::transform {
namespace {

constexpr Orb32s kLargestOrderAsked = 30;  // beyond it a size query does not look at anything else

template <class Plan>
constexpr Orb32s MaxOrder() {
  return Pick<typename Plan::Real>(Plan::kForm == FftForm::real ? kFftTuning.maxRealOrder
                                                                : kFftTuning.maxComplexOrder);
}

// 2^-order or its root, correctly rounded.
ORBS_INLINE Orb64f ScaleByN(Orb32s order) { return 1.0 / static_cast<Orb64f>(Orb64s{1} << order); }
ORBS_INLINE Orb64f ScaleBySqrtN(Orb32s order) {
  return ((order & 1) != 0 ? 0.70710678118654752440 : 1.0) * ScaleByN(order >> 1);
}

// ---- Tables ----

#if ORBS_VECTOR

template <class T>
void BuildComplexTables(int order, SineTable<T> sine, const FftLayout<T>&, FftPlan<T>* plan, void*) {
  if (ChooseEngine<T>(order) == FftEngine::onePass) {
    BuildVectorTables(order, sine, plan->tables.bitRev.In(plan), plan->tables.coreTw.In(plan));
  } else {
    BuildVectorLarge(order, sine, plan);
  }
}

#else

template <class T>
void BuildSplit(int order, int level, SineTable<T> sine, const FftLayout<T>& layout, FftPlan<T>* plan,
                void* init) {
  const FftTables<T>& tables = plan->tables;
  const int columnOrder = FftSplitOrder<T>(order);
  const int rowOrder = order - columnOrder;
  if (columnOrder == 0) {
    BuildCoreTable(sine.Of(kCoreOrder), tables.coreTw.In(plan));
    BuildLayerTable(sine.Of(order), tables.layerTw.In(plan));
    return;
  }
  if (rowOrder <= kCoreOrder) {
    BuildCoreTable(sine.Of(rowOrder), tables.coreTw.In(plan));
  } else {
    BuildSplit(rowOrder, level + 1, sine, layout, plan, init);
  }
  BuildCoreTable(sine.Of(columnOrder), tables.colCoreTw[level].In(plan));
  BuildStepTable(sine.Of(order), columnOrder, layout.initBitRev[level].In(init),
                 layout.initColumns[level].In(init), tables.stepTw[level].In(plan));
}

template <class T>
void BuildComplexTables(int order, SineTable<T> sine, const FftLayout<T>& layout, FftPlan<T>* plan,
                        void* init) {
  BuildBitRevTable(order, plan->tables.bitRev.In(plan));
  if (order <= kCoreOrder) {
    BuildCoreTable(sine, plan->tables.coreTw.In(plan));
  } else {
    BuildSplit(order, 0, sine, layout, plan, init);
  }
}

#endif

// All tables of a plan whose record is filled in. `init` is aligned.
template <class T>
void BuildTables(FftForm form, const FftLayout<T>& layout, FftPlan<T>* plan, void* init) {
  SineTable<T> sine;
  if (plan->order <= kSinQuarterOrder) {
    sine = ConstantSines<T>(plan->order);
  } else {
    BuildSineTable(plan->order, static_cast<T*>(init));
    sine = {static_cast<T*>(init), plan->order, 1};
  }
  if (form != FftForm::real) {
    BuildComplexTables(plan->order, sine, layout, plan, init);
    return;
  }
  const int half = plan->order - 1;
  if (ChooseEngine<T>(half) != FftEngine::codelet)
    BuildComplexTables(half, sine.Of(half), layout, plan, init);
  BuildRealTables(sine, plan->tables.realFwdTw.In(plan), plan->tables.realInvTw.In(plan));
}

// ---- Init, InitAlloc, Free, GetBufSize ----

template <class Plan>
OrbStatus SetScale(Orb32s flag, Plan* plan) {
  using T = typename Plan::Real;
  switch (flag) {
    case FftScaleNone:
      return StatusOk;
    case FftScaleFwdByN:
      plan->scaleFwd = 1;
      plan->scale = static_cast<T>(ScaleByN(plan->order));
      return StatusOk;
    case FftScaleInvByN:
      plan->scaleInv = 1;
      plan->scale = static_cast<T>(ScaleByN(plan->order));
      return StatusOk;
    case FftScaleBySqrtN:
      plan->scaleFwd = 1;
      plan->scaleInv = 1;
      plan->scale = static_cast<T>(ScaleBySqrtN(plan->order));
      return StatusOk;
    default:
      return StatusFftFlag;
  }
}

template <class Plan>
OrbStatus Build(Orb32s flag, void* initBuffer, Plan* plan) {
  using T = typename Plan::Real;
  ORBS_RETURN_IF_BAD(SetScale(flag, plan));
  const FftLayout<T> layout = DescribeFft<T>(Plan::kForm, plan->order);
  if (!layout.plan.Fits()) return StatusMemAlloc;
  plan->tables = layout.tables;
  plan->workSize = static_cast<Orb32s>(layout.workSize);
  const bool hasTables = layout.plan.Bytes() > static_cast<int64_t>(sizeof(Plan));
  if (!hasTables) return StatusOk;
  if (layout.InitBytes() != 0 && initBuffer == nullptr) return StatusNullPointer;
  BuildTables<T>(Plan::kForm, layout, plan,
                 AlignUp(static_cast<unsigned char*>(initBuffer), kBlockAlignment));
  return StatusOk;
}

}  // namespace

template <class T, FftForm form>
OrbStatus FftLife<T, form>::GetSize(Orb32s order, Orb32s flag, OrbAlgHint, Orb32s* planSize, Orb32s* initSize,
                                    Orb32s* workSize) {
  if (order < 0 || order > kLargestOrderAsked) return StatusFftOrder;
  ORBS_RETURN_IF_BAD(CheckResults(planSize, initSize, workSize));
  if (!IsFftFlag(flag)) return StatusFftFlag;
  if (order > MaxOrder<Plan>()) return StatusFftOrder;
  const auto layout = DescribeFft<T>(form, order);
  *planSize = ReportedBytes(layout.PlanBytes());
  *initSize = ReportedBytes(layout.InitBytes());
  *workSize = ReportedBytes(layout.WorkBytes());
  return StatusOk;
}

template <class T, FftForm form>
OrbStatus FftLife<T, form>::Init(Plan** planOut, Orb32s order, Orb32s flag, OrbAlgHint hint, void* planMemory,
                                 void* initBuffer) {
  if (planOut == nullptr) return StatusNullPointer;
  if (order < 0 || order > MaxOrder<Plan>()) return StatusFftOrder;
  if (planMemory == nullptr) return StatusNullPointer;
  auto* plan = reinterpret_cast<Plan*>(AlignUp(static_cast<unsigned char*>(planMemory), kBlockAlignment));
  std::memset(static_cast<void*>(plan), 0, sizeof(Plan));
  plan->hint = hint;
  plan->order = order;
  plan->id = Plan::kId;
  const OrbStatus status = Build(flag, initBuffer, plan);
  if (status != StatusOk) {
    plan->id = 0;
    return status;
  }
  *planOut = plan;
  return StatusOk;
}

template <class T, FftForm form>
OrbStatus FftLife<T, form>::InitAlloc(Plan** planOut, Orb32s order, Orb32s flag, OrbAlgHint hint) {
  Orb32s sizes[3];
  ORBS_RETURN_IF_BAD(GetSize(order, flag, hint, &sizes[0], &sizes[1], &sizes[2]));
  if (planOut == nullptr) return StatusNullPointer;
  const auto layout = DescribeFft<T>(form, order);
  void* block = AllocAligned(layout.PlanBytes());
  if (block == nullptr) return StatusMemAlloc;
  void* init = nullptr;
  if (layout.InitBytes() != 0) {
    init = AllocAligned(layout.InitBytes());
    if (init == nullptr) {
      FreeAligned(block);
      return StatusMemAlloc;
    }
  }
  Plan* plan = nullptr;
  const OrbStatus status = Init(&plan, order, flag, hint, block, init);
  FreeAligned(init);
  if (status != StatusOk) {
    FreeAligned(block);
    return status;
  }
  plan->allocated = 1;
  plan->block =
      static_cast<Orb32s>(static_cast<unsigned char*>(block) - reinterpret_cast<unsigned char*>(plan));
  *planOut = plan;
  return StatusOk;
}

template <class T, FftForm form>
OrbStatus FftLife<T, form>::Free(Plan* plan) {
  ORBS_RETURN_IF_BAD(CheckPlan(plan, Plan::kId));
  plan->id = 0;
  if (plan->allocated == 1) FreeAligned(reinterpret_cast<unsigned char*>(plan) + plan->block);
  return StatusOk;
}

template <class T, FftForm form>
OrbStatus FftLife<T, form>::GetBufSize(const Plan* plan, Orb32s* size) {
  ORBS_RETURN_IF_BAD(CheckPlan(plan, Plan::kId, size));
  *size = plan->workSize >= 1 ? plan->workSize + kBlockAlignment : 0;
  return StatusOk;
}

template struct FftLife<Orb32f, FftForm::interleaved>;
template struct FftLife<Orb32f, FftForm::split>;
template struct FftLife<Orb32f, FftForm::real>;
template struct FftLife<Orb64f, FftForm::interleaved>;
template struct FftLife<Orb64f, FftForm::split>;
template struct FftLife<Orb64f, FftForm::real>;

}  // namespace orbs::ORBS_VARIANT::transform
