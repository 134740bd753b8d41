// What a plan's block, its init buffer and its work buffer hold, by kind of plan and order: the one
// description from which the size query, Init and InitAlloc take their numbers.
#ifndef ORBS_TRANSFORM_ENGINE_LAYOUT_H
#define ORBS_TRANSFORM_ENGINE_LAYOUT_H

#include "core/record.h"
#include "core/variant.h"
#include "transform/engine/plan.h"

namespace orbs::ORBS_VARIANT::transform {

template <class T>
struct FftLayout {
  BlockLayout plan{sizeof(FftPlan<T>), 8};  // the record alone, until it has tables
  BlockLayout init{0, 64};                  // begins with the sine table
  int64_t workSize = 0;
  FftTables<T> tables{};  // in the plan's block
  // In the init buffer, by level: what the step table is made from.
  Offset<Orb32s> initBitRev[kFftLevels]{};
  Offset<T> initColumns[kFftLevels]{};

  // What a caller has to give, with 64 bytes for the alignment of his memory.
  int64_t PlanBytes() const { return plan.Bytes() + 64; }
  int64_t InitBytes() const { return init.Bytes() == 0 ? 0 : init.Bytes() + 64; }
  int64_t WorkBytes() const { return workSize == 0 ? 0 : workSize + 64; }
};

template <class T>
FftLayout<T> DescribeFft(FftForm form, int order);

}  // namespace orbs::ORBS_VARIANT::transform

#endif
