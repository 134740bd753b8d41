// What the block of an IIR state holds: the one description from which Init, InitAlloc and the direct forms
// take their numbers. The size query reports what sizes.h fixes.
#ifndef ORBS_IIR_STATE_LAYOUT_H
#define ORBS_IIR_STATE_LAYOUT_H

#include "iir/state/sizes.h"
#include "iir/state/state.h"
#include "iir/tuning.h"

namespace orbs::ORBS_VARIANT::iir {

// The record stands on a multiple of these bytes.
inline constexpr uintptr_t kIirAlignment = 32;

#if ORBS_VECTOR
// For order 2 the first row is T[1] + p T[2], for
//   y[n-1] T[1] + y[n-2] T[2] = y[n-1] (T[1] + p T[2]) + (y[n-2] - p y[n-1]) T[2]
// With both poles close to p = 1, which is what low frequencies mean, T[1] and T[2] are large and nearly
// cancel; their sum is close to 1 and holds what decides about the filter to the last bit, and the difference
// of results is small. Without this a low-pass at a thousandth of the sample rate would have the wrong gain.
// p = -1 does the same next to half of the sample rate. Real poles of opposite signs have small rows and p =
// 0: if they are unstable, results end at infinity, where a difference would not be a number. `a` is a[1] and
// a[2].
template <int kParts>
ORBS_INLINE int PairingOf(const Orb32f* a) {
  if (kParts == 1 && a[1] < 0) return 0;
  return a[0] > 0 ? -1 : 1;
}
#endif

struct IirLayout {
  BlockLayout block{0, 1};
  IIRState offsets{};
};

template <class Kind>
constexpr IirLayout DescribeIir(Orb32s units) {
  using Work = typename Kind::Work;
  // The sizes for real data leave no room for more.
  constexpr int64_t kPadding = Kind::kParts == 1 ? 16 : 32;
  IirLayout layout;
  BlockLayout& block = layout.block;
  IIRState& at = layout.offsets;
  block = BlockLayout(sizeof(IIRState), kPadding);
  at.taps.bytes = block.Add<Work>(Kind::StoredTaps(units), kPadding).bytes;
  at.delayLine.bytes = block.Add<Work>(Kind::DelayElements(units), kPadding).bytes;
#if ORBS_VECTOR
  // The blocks before the tables: kernels read whole vectors, up to one behind a block.
  at.blockA.bytes = block.Add<Work>(kIirPiece, kPadding).bytes;
  at.blockB.bytes = block.Add<Work>(kIirPiece, kPadding).bytes;
  if (Kind::kCascade || units < kFirstLongOrder) {
    const int64_t rows = Kind::kCascade ? int64_t{2} * units : units;
    at.lookAheadTable.bytes = block.Add<Orb32f>(rows * kShortRowParts, kPadding).bytes;
  } else {
    at.lookAheadTable.bytes = block.Add<Orb64f>(int64_t{units} * kRowElements * Kind::kParts, kPadding).bytes;
  }
  if (Kind::kCascade) {
    at.sectionTable = block.Add<Orb32f>(int64_t{units} * kSectionTableElements * Kind::kParts, kPadding);
  }
#endif
  return layout;
}

}  // namespace orbs::ORBS_VARIANT::iir

#endif
