// Walks arrays in blocks of whole vectors.
//
// An element-wise kernel is a lambda that reads kBlock elements behind each source pointer and writes kBlock
// behind the result pointer. Where an array is no multiple of a block, the last kBlock elements go through
// the lambda once more as a block of their own; an array below one block goes through it padded. So nothing
// outside the arrays is touched, there is no loop over single elements, and the last ones get the same
// arithmetic as all others.
#ifndef ORBS_SIMD_BLOCKS_H
#define ORBS_SIMD_BLOCKS_H

#include <cstddef>
#include <cstring>

#include "core/variant.h"

#if ORBS_VECTOR

namespace orbs::ORBS_VARIANT {

// Copies n elements, 1 <= n < kBlock, without a call: by two moves of the largest power of two of bytes that
// fits, which overlap where n is no power of two.
template <size_t kMove, class T>
ORBS_INLINE void CopyFew(T* dst, const T* src, size_t n) {
  const size_t bytes = n * sizeof(T);
  if (kMove == sizeof(T) || bytes >= kMove) {
    struct Move {
      unsigned char bytes[kMove];
    } first, last;
    const auto* s = reinterpret_cast<const unsigned char*>(src);
    auto* d = reinterpret_cast<unsigned char*>(dst);
    std::memcpy(&first, s, kMove);
    std::memcpy(&last, s + bytes - kMove, kMove);
    std::memcpy(d, &first, kMove);
    std::memcpy(d + bytes - kMove, &last, kMove);
  } else if constexpr (kMove > sizeof(T)) {
    CopyFew<kMove / 2>(dst, src, n);
  }
}

// A source padded to a block with its last element, which is a value that the array holds anyway: padding
// cannot raise a warning of its own.
template <int kBlock, class T>
struct PaddedSource {
  T elements[kBlock];

  ORBS_INLINE PaddedSource(const T* p, size_t n) {
    const T last = p[n - 1];
    for (T& element : elements) element = last;
    CopyFew<kBlock * sizeof(T) / 2>(elements, p, n);
  }
};

template <int kBlock, class T>
struct CopiedBlock {
  T elements[kBlock];

  ORBS_INLINE explicit CopiedBlock(const T* p) { std::memcpy(elements, p, sizeof elements); }
};

// `last` is the last block of each source as it was before the walk: source and result may be the same array,
// and the last blocks overlap.
template <int kBlock, class Operation, class Result, class... Source>
ORBS_INLINE void WalkBlocks(size_t n, Operation operation, Result* dst, const Source*... src,
                            const CopiedBlock<kBlock, Source>&... last) {
  size_t i = 0;
  // Four blocks a round: the loop's own additions and branch then cost less than the loads of one block.
  for (; i + 4 * kBlock <= n; i += 4 * kBlock) {
    operation(dst + i, (src + i)...);
    operation(dst + i + kBlock, (src + i + kBlock)...);
    operation(dst + i + 2 * kBlock, (src + i + 2 * kBlock)...);
    operation(dst + i + 3 * kBlock, (src + i + 3 * kBlock)...);
  }
  for (; i + kBlock <= n; i += kBlock) operation(dst + i, (src + i)...);
  if (i < n) operation(dst + n - kBlock, last.elements...);
}

// The blocks are walked in ascending order. An operation may keep state only if seeing an element twice does
// no harm.
template <int kBlock, class Operation, class Result, class... Source>
ORBS_INLINE void ForBlocks(size_t n, Operation operation, Result* dst, const Source*... src) {
  if (n >= kBlock) {
    WalkBlocks<kBlock, Operation, Result, Source...>(n, operation, dst, src...,
                                                     CopiedBlock<kBlock, Source>(src + n - kBlock)...);
  } else if (n > 0) {
    Result results[kBlock];
    operation(results, PaddedSource<kBlock, Source>(src, n).elements...);
    CopyFew<kBlock * sizeof(Result) / 2>(dst, results, n);
  }
}

}  // namespace orbs::ORBS_VARIANT

#endif
#endif
