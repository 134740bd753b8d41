// The sizes of IIR states, as the size queries report them. They are interface: callers allocate by them, so
// they stay as they are, whatever a variant keeps in the room. They include the room for aligning the
// caller's memory; sizes.cpp proves that each block fits.
#ifndef ORBS_IIR_STATE_SIZES_H
#define ORBS_IIR_STATE_SIZES_H

#include "iir/state/state.h"
#include "iir/tuning.h"

namespace orbs::ORBS_VARIANT::iir {

template <class Kind>
constexpr int64_t IirStateBytes(int64_t n) {
  constexpr bool kComplex = Kind::kParts == 2;
  if (Kind::kCascade && kComplex) {
    return RoundUp(16 * n, 32) + RoundUp(40 * n, 32) + (kIsPx ? 128 : 1184 * n + 16512);
  }
  if (Kind::kCascade) return RoundUp(8 * n, 16) + RoundUp(20 * n, 16) + (kIsPx ? 80 : 160 * n + 8312);
  if (kComplex) return RoundUp(8 * n + 8, 32) + RoundUp(16 * n + 8, 32) + (kIsPx ? 96 : 128 * n + 16848);
  return RoundUp(4 * n + 4, 16) + RoundUp(8 * n + 4, 16) + (kIsPx ? 80 : 32 * n + 8376);
}

}  // namespace orbs::ORBS_VARIANT::iir

#endif
