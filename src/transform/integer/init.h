// The life cycle of the plans of the integer transforms.
#ifndef ORBS_TRANSFORM_INTEGER_INIT_H
#define ORBS_TRANSFORM_INTEGER_INIT_H

#include <cstring>

#include "core/checks.h"
#include "core/memory.h"
#include "transform/integer/layout.h"

namespace orbs::ORBS_VARIANT::transform {

inline constexpr Orb32s kLargestOrder = 30;  // of any kind; the nested plans know their own

ORBS_INLINE bool IsOrder(Orb32s order) { return order >= 0 && order <= kLargestOrder; }

template <class Spec>
OrbStatus GetSize(Orb32s order, Orb32s flag, OrbAlgHint hint, Orb32s* planSize, Orb32s* initSize,
                  Orb32s* workSize) {
  if (!IsOrder(order)) return StatusFftOrder;
  ORBS_RETURN_IF_BAD(CheckResults(planSize, initSize, workSize));
  if (!IsFftFlag(flag)) return StatusFftFlag;
  IntegerFftLayout layout;
  ORBS_RETURN_IF_BAD(DescribeIntegerFft<Spec>(order, hint, &layout));
  *planSize = ReportedBytes(layout.PlanBytes());
  *initSize = ReportedBytes(layout.InitBytes());
  *workSize = ReportedBytes(layout.workBytes);
  return StatusOk;
}

// ---- Building ----
//
// The record is zero but for what its Build has been given by then, and `init` is aligned.

// Its own build tests the flag and the init buffer, if it needs one.
template <class Spec>
OrbStatus BuildNested(Orb32s flag, void* init, RecordOf<Spec>* plan) {
  using Kind = IntegerFft<Spec>;
  using Nested = FftOf<typename Kind::Nested>;
  IntegerFftLayout layout;
  ORBS_RETURN_IF_BAD(DescribeIntegerFft<Spec>(plan->order, plan->hint, &layout));
  if (!layout.Fits()) return StatusMemAlloc;
  plan->floatPlan = layout.floatPlan;
  typename Kind::Nested* nested = nullptr;
  ORBS_RETURN_IF_BAD(Nested::Init(&nested, plan->order, flag, HintNone, plan->floatPlan.In(plan), init));
  Orb32s nestedBufSize;
  ORBS_RETURN_IF_BAD(Nested::GetBufSize(nested, &nestedBufSize));
  plan->bufSize = static_cast<Orb32s>(nestedBufSize + Kind::DataBytes(plan->order));
  return StatusOk;
}

inline OrbStatus SetShifts(Orb32s flag, FftPlan16* plan) {
  switch (flag) {
    case FftScaleNone:
      return StatusOk;
    case FftScaleFwdByN:
      plan->shiftFwd = plan->order;
      return StatusOk;
    case FftScaleInvByN:
      plan->shiftInv = plan->order;
      return StatusOk;
    case FftScaleBySqrtN:
      plan->shiftFwd = plan->order >> 1;
      plan->shiftInv = plan->order >> 1;
      plan->halfStep = plan->order & 1;
      return StatusOk;
    default:
      return StatusFftFlag;
  }
}

template <class Spec>
void BuildFixed(void* init, FftPlan16* plan) {
  IntegerFftLayout layout;
  DescribeIntegerFft<Spec>(plan->order, plan->hint, &layout);
  plan->tables = layout.tables;
  plan->bufSize = static_cast<Orb32s>(layout.workBytes - kBlockAlignment);
  auto* quarter = static_cast<Orb16s*>(init);
  BuildFixedSine(plan->order, quarter);
  const Orb32s complexOrder = IntegerFft<Spec>::kIsReal ? plan->order - 1 : plan->order;
  if (complexOrder >= 2) BuildBitRevTable(complexOrder, plan->tables.bitRev.In(plan));
  BuildFixedTwiddles(complexOrder, quarter, plan->order, plan->tables.twiddles.In(plan));
  if constexpr (IntegerFft<Spec>::kIsReal) {
    BuildFixedTwiddles(plan->order, quarter, plan->order, plan->tables.realTw.In(plan));
  }
}

template <class Spec>
OrbStatus Build(Orb32s flag, bool hasInit, void* init, FftPlan16* plan) {
  ORBS_RETURN_IF_BAD(SetShifts(flag, plan));
  const IntegerFftPath path = ChoosePath<Spec>(plan->order, plan->hint);
  if (path == IntegerFftPath::kCopy) return StatusOk;
  if (!hasInit) return StatusNullPointer;
  if (path == IntegerFftPath::kFixed) {
    BuildFixed<Spec>(init, plan);
    return StatusOk;
  }
  plan->useFloat = 1;
  return BuildNested<Spec>(flag, init, plan);
}

template <class Spec>
OrbStatus Build(Orb32s flag, bool, void* init, FftPlan32* plan) {
  return BuildNested<Spec>(flag, init, plan);
}

// In aligned memory. A failure leaves a dead plan.
template <class Spec>
OrbStatus BuildRecord(Orb32s order, Orb32s flag, OrbAlgHint hint, bool hasInit, void* init,
                      RecordOf<Spec>* plan) {
  std::memset(plan, 0, sizeof(*plan));
  plan->order = order;
  plan->hint = hint;
  const OrbStatus status = Build<Spec>(flag, hasInit, init, plan);
  if (status == StatusOk) plan->id = IntegerFft<Spec>::kId;
  return status;
}

// ---- Init, InitAlloc, Free, GetBufSize ----

template <class Spec>
OrbStatus Init(Spec** planOut, Orb32s order, Orb32s flag, OrbAlgHint hint, void* planMemory,
               void* initBuffer) {
  if (planOut == nullptr) return StatusNullPointer;
  if (!IsOrder(order)) return StatusFftOrder;
  if (planMemory == nullptr) return StatusNullPointer;
  void* plan = AlignUp(static_cast<unsigned char*>(planMemory), kBlockAlignment);
  void* init = AlignUp(static_cast<unsigned char*>(initBuffer), kBlockAlignment);
  ORBS_RETURN_IF_BAD(
      BuildRecord<Spec>(order, flag, hint, initBuffer != nullptr, init, static_cast<RecordOf<Spec>*>(plan)));
  *planOut = static_cast<Spec*>(plan);
  return StatusOk;
}

template <class Spec>
OrbStatus InitAlloc(Spec** planOut, Orb32s order, Orb32s flag, OrbAlgHint hint) {
  if (planOut == nullptr) return StatusNullPointer;
  if (!IsOrder(order)) return StatusFftOrder;
  if (!IsFftFlag(flag)) return StatusFftFlag;
  IntegerFftLayout layout;
  ORBS_RETURN_IF_BAD(DescribeIntegerFft<Spec>(order, hint, &layout));
  if (!layout.Fits()) return StatusMemAlloc;
  // Blocks are aligned: no room for that is needed.
  void* block = AllocAligned(layout.plan.Bytes());
  if (block == nullptr) return StatusMemAlloc;
  void* init = nullptr;
  if (layout.initBytes != 0) {
    init = AllocAligned(layout.initBytes);
    if (init == nullptr) {
      FreeAligned(block);
      return StatusMemAlloc;
    }
  }
  auto* record = static_cast<RecordOf<Spec>*>(block);
  const OrbStatus status = BuildRecord<Spec>(order, flag, hint, true, init, record);
  FreeAligned(init);
  if (status != StatusOk) {
    FreeAligned(block);
    return status;
  }
  record->allocated = 1;
  *planOut = static_cast<Spec*>(block);
  return StatusOk;
}

template <class Spec>
OrbStatus Free(Spec* plan) {
  ORBS_RETURN_IF_BAD(CheckPlan(plan, IntegerFft<Spec>::kId));
  auto* record = reinterpret_cast<RecordOf<Spec>*>(plan);
  record->id = 0;
  if (record->allocated == 1) FreeAligned(record);
  return StatusOk;
}

template <class Spec>
OrbStatus GetBufSize(const Spec* plan, Orb32s* size) {
  ORBS_RETURN_IF_BAD(CheckPlan(plan, IntegerFft<Spec>::kId, size));
  const Orb32s bufSize = AsRecord(plan).bufSize;
  *size = bufSize >= 1 ? bufSize + kBlockAlignment : 0;
  return StatusOk;
}

}  // namespace orbs::ORBS_VARIANT::transform

#endif
