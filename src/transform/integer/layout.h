// What a plan's block, its init buffer and its work buffer hold, by kind of plan, order and hint: the one
// description from which the size query, Init and InitAlloc take their numbers.
#ifndef ORBS_TRANSFORM_INTEGER_LAYOUT_H
#define ORBS_TRANSFORM_INTEGER_LAYOUT_H

#include "core/checks.h"
#include "core/memory.h"
#include "core/record.h"
#include "transform/engine/tables/bit_reversal.h"
#include "transform/engine/tables/tables.h"
#include "transform/integer/fixed/fixed.h"
#include "transform/integer/plan.h"

namespace orbs::ORBS_VARIANT::transform {

enum class IntegerFftPath {
  kCopy,   // order 0 of the 16-bit plans
  kFixed,  // in 32-bit integers
  kFloat   // by the nested plan
};

template <class Spec>
IntegerFftPath ChoosePath(Orb32s order, OrbAlgHint hint) {
  if (!IntegerFft<Spec>::kHasFixedPath) return IntegerFftPath::kFloat;
  if (order == 0) return IntegerFftPath::kCopy;
  const bool accurate = hint != HintNone && hint != HintFast;
  return accurate || order >= kFixedPathLimit ? IntegerFftPath::kFloat : IntegerFftPath::kFixed;
}

struct IntegerFftLayout {
  BlockLayout plan{0, 64};
  int64_t initBytes = 0;
  bool needsInit = false;  // the 16-bit plans demand an init buffer that the nested plan may not need
  int64_t workBytes = 0;   // what FFTGetBufSize_* tells
  FixedTables tables{};
  Offset<void> floatPlan{};

  // What a caller has to give, with 64 bytes for the alignment of his memory.
  int64_t PlanBytes() const { return plan.Bytes() + kBlockAlignment; }
  int64_t InitBytes() const { return needsInit ? initBytes + kBlockAlignment : 0; }

  bool Fits() const { return PlanBytes() <= INT32_MAX && InitBytes() <= INT32_MAX && workBytes <= INT32_MAX; }
};

template <class Spec>
void DescribeFixed(Orb32s order, IntegerFftLayout* layout) {
  const bool real = IntegerFft<Spec>::kIsReal;
  const Orb32s complexOrder = real ? order - 1 : order;
  layout->tables.bitRev = layout->plan.template Add<Orb32s>(BitRevEntries(complexOrder), 64);
  layout->tables.twiddles = layout->plan.template Add<Orb16s>(FixedTwiddleReals(complexOrder), 64);
  if (real) layout->tables.realTw = layout->plan.template Add<Orb16s>(FixedTwiddleReals(order), 64);
  layout->needsInit = true;
  layout->initBytes = RoundUp(FixedSineEntries(order) * static_cast<int64_t>(sizeof(Orb16s)), 64);
  // The split 16-bit data also pass through their interleaved form.
  const bool split = std::is_same_v<Spec, FFTSpec_C_16s>;
  layout->workBytes =
      IntegerFft<Spec>::DataBytes(order) + (split ? int64_t{4} << order : 0) + kBlockAlignment;
}

template <class Spec>
OrbStatus DescribeFloat(Orb32s order, IntegerFftLayout* layout) {
  using Kind = IntegerFft<Spec>;
  Orb32s planSize;
  Orb32s initSize;
  Orb32s workSize;
  ORBS_RETURN_IF_BAD(
      FftOf<typename Kind::Nested>::GetSize(order, FftScaleNone, HintNone, &planSize, &initSize, &workSize));
  layout->floatPlan = {layout->plan.template Add<unsigned char>(planSize, 1).bytes};
  layout->needsInit = Kind::kHasFixedPath || initSize > 0;
  layout->initBytes = initSize;
  layout->workBytes = int64_t{workSize} + Kind::DataBytes(order) + kBlockAlignment;
  return StatusOk;
}

// The only failure is an order above the largest of the nested plan. The flag has no effect on any size.
template <class Spec>
OrbStatus DescribeIntegerFft(Orb32s order, OrbAlgHint hint, IntegerFftLayout* layout) {
  using Record = RecordOf<Spec>;
  switch (ChoosePath<Spec>(order, hint)) {
    case IntegerFftPath::kCopy:
      layout->plan = BlockLayout(sizeof(Record), 4);
      return StatusOk;
    case IntegerFftPath::kFixed:
      layout->plan = BlockLayout(sizeof(Record), 64);
      DescribeFixed<Spec>(order, layout);
      return StatusOk;
    default:
      layout->plan = BlockLayout(sizeof(Record), 64);
      return DescribeFloat<Spec>(order, layout);
  }
}

}  // namespace orbs::ORBS_VARIANT::transform

#endif
