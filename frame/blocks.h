// Walks arrays in blocks of whole vectors.
//
// An element-wise kernel is a lambda that reads kBlock elements behind each source pointer and writes kBlock
// behind the result pointer. The remainder of an array that is no multiple of a block goes through the same
// lambda: on copies padded to a block, so that nothing outside the arrays is touched and the last elements
// get the same arithmetic as all others.
#ifndef ORBS_FRAME_BLOCKS_H
#define ORBS_FRAME_BLOCKS_H

#include <cstddef>
#include <cstring>

#include "frame/variant.h"

#if ORBS_VECTOR

namespace orbs::ORBS_VARIANT {

// A source padded to a block with its last element, which is a value that the array holds anyway: padding
// cannot raise a warning of its own.
template <int kBlock, class T>
struct PaddedSource {
  T elements[kBlock];

  ORBS_INLINE PaddedSource(const T* p, size_t n) {
    std::memcpy(elements, p, n * sizeof(T));
    for (size_t i = n; i < kBlock; ++i) elements[i] = p[n - 1];
  }
};

// The blocks are walked in ascending order with no state between them, so source and result may be the same
// array.
template <int kBlock, class Operation, class Result, class... Source>
ORBS_INLINE void ForBlocks(size_t n, Operation operation, Result* dst, const Source*... src) {
  size_t i = 0;
  // Four blocks a round: the loop's own additions and branch then cost less than the loads of one block.
  for (; i + 4 * kBlock <= n; i += 4 * kBlock) {
    operation(dst + i, (src + i)...);
    operation(dst + i + kBlock, (src + i + kBlock)...);
    operation(dst + i + 2 * kBlock, (src + i + 2 * kBlock)...);
    operation(dst + i + 3 * kBlock, (src + i + 3 * kBlock)...);
  }
  for (; i + kBlock <= n; i += kBlock) operation(dst + i, (src + i)...);
  if (i < n) {
    Result results[kBlock];
    operation(results, PaddedSource<kBlock, Source>(src + i, n - i).elements...);
    std::memcpy(dst + i, results, (n - i) * sizeof(Result));
  }
}

}  // namespace orbs::ORBS_VARIANT

#endif
#endif
