// Walks a result array whose elements are functions of their index.
#ifndef ORBS_GEN_GENERATE_H
#define ORBS_GEN_GENERATE_H

#include "simd/blocks.h"
#include "simd/simd.h"

#if ORBS_VECTOR

namespace orbs::ORBS_VARIANT::gen {

// operation(d, first) writes kBlock elements behind d, those of the indices from `first` on. The last block
// of an array is written over the end of the one before; an array below one block gets the front of a block,
// so an operation may be asked for indices that the array does not have.
template <int kBlock, class Result, class Operation>
ORBS_INLINE void GenerateBlocks(Result* dst, Orb32s len, Operation operation) {
  Result results[kBlock];
  const bool isShort = len < kBlock;
  Result* const to = isShort ? results : dst;
  const Orb32s lastBlock = isShort ? 0 : len - kBlock;
  // One call, so that the operation becomes part of the loop.
  for (Orb32s first = 0;; first = first < lastBlock - kBlock ? first + kBlock : lastBlock) {
    operation(to + first, first);
    if (first == lastBlock) break;
  }
  if (isShort) CopyFew<kBlock * sizeof(Result) / 2>(dst, results, static_cast<size_t>(len));
}

// 0, 1, 2 ...
ORBS_INLINE I32 LaneNumbers(I32*) {
  static constexpr Orb32s kNumbers[8] = {0, 1, 2, 3, 4, 5, 6, 7};
  return I32::Load(kNumbers);
}
ORBS_INLINE F32 LaneNumbers(F32*) {
  static constexpr Orb32f kNumbers[8] = {0, 1, 2, 3, 4, 5, 6, 7};
  return F32::Load(kNumbers);
}
ORBS_INLINE F64 LaneNumbers(F64*) {
  static constexpr Orb64f kNumbers[4] = {0, 1, 2, 3};
  return F64::Load(kNumbers);
}
template <class Vector>
ORBS_INLINE Vector LaneNumbers() {
  return LaneNumbers(static_cast<Vector*>(nullptr));
}

}  // namespace orbs::ORBS_VARIANT::gen

#endif
#endif
