// What the block of an IIR state holds, and how many bytes of memory a caller has to give for it.
#ifndef ORBS_IIR_LAYOUT_H
#define ORBS_IIR_LAYOUT_H

#include "iir/state.h"

namespace orbs::ORBS_VARIANT::iir {

inline constexpr uintptr_t kIirAlignment = 32;

// Samples of a piece: two blocks of them, with the tables, stay in the first-level cache.
inline constexpr Orb32s kIirPiece = 1024;

#if ORBS_VECTOR
// A row of the look-ahead table. For the orders 1 and 2, and so for biquads, it is in binary32 and for two
// vectors of results; for higher orders in binary64 and for four results, which is what the states of real
// filters have room for.
inline constexpr int kShortRowParts = 2 * F32::kLanes;
inline constexpr int kRowElements = 4;
inline constexpr Orb32s kFirstLongOrder = 3;

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
inline constexpr int kSectionTableElements = 8;

struct IirLayout {
  BlockLayout block{0, 1};
  IIRState offsets{};
};

template <class Kind>
IirLayout DescribeIir(Orb32s units) {
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

// The sizes are interface: callers allocate by them, whatever a variant keeps in the room. They have room for
// the alignment of the caller's memory.
template <class Kind>
constexpr int64_t IirStateBytes(int64_t n) {
  constexpr bool kPx = kVariant == Variant::px;
  constexpr bool kComplex = Kind::kParts == 2;
  if (Kind::kCascade && kComplex) {
    return RoundUp(16 * n, 32) + RoundUp(40 * n, 32) + (kPx ? 128 : 1184 * n + 16512);
  }
  if (Kind::kCascade) return RoundUp(8 * n, 16) + RoundUp(20 * n, 16) + (kPx ? 80 : 160 * n + 8312);
  if (kComplex) return RoundUp(8 * n + 8, 32) + RoundUp(16 * n + 8, 32) + (kPx ? 96 : 128 * n + 16848);
  return RoundUp(4 * n + 4, 16) + RoundUp(8 * n + 4, 16) + (kPx ? 80 : 32 * n + 8376);
}

}  // namespace orbs::ORBS_VARIANT::iir

#endif
