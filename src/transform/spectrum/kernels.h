// The two loops behind the arithmetic on 16-bit spectra: the pairs of a packed spectrum spread to both halves
// of the full one, and pairs multiplied as complex numbers.
#ifndef ORBS_TRANSFORM_SPECTRUM_KERNELS_H
#define ORBS_TRANSFORM_SPECTRUM_KERNELS_H

#include <cstring>

#include "core/scaling.h"
#include "core/variant.h"

#if ORBS_VECTOR
#include "simd/blocks.h"
#include "simd/simd.h"
#endif

namespace orbs::ORBS_VARIANT::transform {

// SpreadPairs: `pairs` holds X[1] to X[(n-1)/2]. X[k] goes to dst[k] of the full spectrum of n complex
// numbers, given as an array of its parts, and its conjugate to dst[n-k]. Without kWritesLower the X[k] stand
// at dst[k] already and only the conjugates are written.
//
// It walks from the top down, so that it works in place with the pairs one part too low, pairs = dst + 1:
// what is overwritten has been read. The upper half begins behind all pairs and never meets them.

// MulSpectrumPairs: with a = (ar, ai) and b = (br, bi), re = ar br - ai bi and im = ar bi + ai br, shifted by
// s from -31 to 31 (right for s above 0, rounding down; left below) and saturated. Where ar bi is 2^30, ai br
// is left out of im: only there could the sum pass 2^31 - 1. re never does, since no product is as low as
// -2^30.

#if ORBS_VECTOR

// The lanes of the imaginary parts, all ones.
ORBS_INLINE I16 ImaginaryLanes() { return As16(N32::All(~0xFFFF)); }

// (re, -im), -(-32768) being 32767: ~im less -1.
ORBS_INLINE I16 ConjugateSaturating(I16 x) {
  return SubtractSaturating(x ^ ImaginaryLanes(), ImaginaryLanes());
}

template <bool kWritesLower>
void SpreadPairs(const Orb16s* pairs, Orb16s* dst, size_t n) {
  constexpr size_t kLanes = I16::kLanes;
  const size_t parts = (n - 1) / 2 * 2;
  Orb16s* lower = dst + 2;
  Orb16s* upperEnd = dst + 2 * n;

  if (parts < kLanes) {
    Orb16s block[kLanes] = {};
    std::memcpy(block, pairs, parts * sizeof(Orb16s));
    if constexpr (kWritesLower) std::memcpy(lower, block, parts * sizeof(Orb16s));
    ReversePairs(ConjugateSaturating(I16::Load(block))).Store(block);
    std::memcpy(upperEnd - parts, block + kLanes - parts, parts * sizeof(Orb16s));
    return;
  }

  const auto write = [=](I16 x, size_t i) {
    if constexpr (kWritesLower) x.Store(lower + i);
    ReversePairs(ConjugateSaturating(x)).Store(upperEnd - i - kLanes);
  };
  // The remainder is at the bottom. It is the first vector, which overlaps the one written before it and
  // therefore is read before anything is written.
  const I16 bottom = I16::Load(pairs);
  size_t i = parts;
  for (; i >= kLanes; i -= kLanes) write(I16::Load(pairs + i - kLanes), i - kLanes);
  if (i > 0) write(bottom, 0);
}

// Two vectors of 32 bits to one, as PackInLanes: shifted right, rounding down.
struct ShiftDown {
  int count;
  ORBS_INLINE I16 operator()(N32 a, N32 b) const {
    return PackInLanes(ShiftRight(a, count), ShiftRight(b, count));
  }
};

// Shifted left, by 1 to 15. Saturating to 16 bits beforehand changes nothing in the result and leaves room
// for the shift in the 32 bits.
struct ShiftUp {
  int count;
  ORBS_INLINE I16 operator()(N32 a, N32 b) const {
    N32 low;
    N32 high;
    WidenInLanes(PackInLanes(a, b), &low, &high);
    const int signExtension = 16 - count;
    return PackInLanes(ShiftRight(ShiftLeft(low, 16), signExtension),
                       ShiftRight(ShiftLeft(high, 16), signExtension));
  }
};

// ~bi is -bi - 1 and, unlike -bi, a 16-bit number whatever bi. ai makes up for the one; sums that wrap come
// back.
ORBS_INLINE N32 ProductRe(I16 a, I16 b) {
  return MulAddPairs(a, b ^ ImaginaryLanes()) + ShiftRight(As32(a), 16);
}

ORBS_INLINE N32 ProductIm(I16 a, I16 b) {
  const I16 swapped = SwapPairs(b);
  // Where ar and bi are both -32768, ai is made 0: the mask of the even lane moves to the odd one.
  const I16 bothLowest = Greater(I16::All(-32767), Max(a, swapped));
  return MulAddPairs(AndNot(As16(ShiftLeft(As32(bothLowest), 16)), a), swapped);
}

template <class Shift>
void MulPairsShifted(const Orb16s* a, const Orb16s* b, Orb16s* dst, size_t pairs, Shift shift) {
  constexpr size_t kBlock = 2 * I16::kLanes;
  const auto multiply = [shift](Orb16s* d, const Orb16s* x, const Orb16s* y) {
    const I16 x0 = I16::Load(x);
    const I16 x1 = I16::Load(x + I16::kLanes);
    const I16 y0 = I16::Load(y);
    const I16 y1 = I16::Load(y + I16::kLanes);
    I16 low;
    I16 high;
    InterleaveInLanes(shift(ProductRe(x0, y0), ProductRe(x1, y1)),
                      shift(ProductIm(x0, y0), ProductIm(x1, y1)), &low, &high);
    low.Store(d);
    high.Store(d + I16::kLanes);
  };
  // For a power of two the remainder is a block but for one pair, so it is worth its own way: it goes with
  // the last block's worth of pairs, which in place must be multiplied before part of it is
  // overwritten.
  const size_t parts = 2 * pairs;
  const bool hasBlock = parts >= kBlock;
  Orb16s last[kBlock] = {};
  if (hasBlock) multiply(last, a + parts - kBlock, b + parts - kBlock);
  ForBlocks<kBlock>(hasBlock ? parts / kBlock * kBlock : parts, multiply, dst, a, b);
  if (hasBlock) std::memcpy(dst + parts - kBlock, last, sizeof last);
}

inline void MulSpectrumPairs(const Orb16s* a, const Orb16s* b, Orb16s* dst, size_t pairs, int s) {
  if (s >= 0) {
    MulPairsShifted(a, b, dst, pairs, ShiftDown{s});
  } else {
    // A shift by 15 takes every number but 0 to a bound, so more is no different.
    MulPairsShifted(a, b, dst, pairs, ShiftUp{s < -15 ? 15 : -s});
  }
}

#else

template <bool kWritesLower>
void SpreadPairs(const Orb16s* pairs, Orb16s* dst, size_t n) {
  for (size_t k = (n - 1) / 2; k >= 1; --k) {
    const Orb16s re = pairs[2 * k - 2];
    const Orb16s im = pairs[2 * k - 1];
    if (kWritesLower) {
      dst[2 * k] = re;
      dst[2 * k + 1] = im;
    }
    dst[2 * (n - k)] = re;
    dst[2 * (n - k) + 1] = Saturate<Orb16s>(-im);
  }
}

inline void MulSpectrumPairs(const Orb16s* a, const Orb16s* b, Orb16s* dst, size_t pairs, int s) {
  constexpr Orb32s kHighestProduct = 1 << 30;
  for (size_t i = 0; i < 2 * pairs; i += 2) {
    const Orb32s ar = a[i], ai = a[i + 1];
    const Orb32s br = b[i], bi = b[i + 1];
    const Orb32s re = ar * br - ai * bi;
    const Orb32s im = ar * bi == kHighestProduct ? kHighestProduct : ar * bi + ai * br;
    dst[i] = ShiftFloor<Orb16s>(re, s);
    dst[i + 1] = ShiftFloor<Orb16s>(im, s);
  }
}

#endif

}  // namespace orbs::ORBS_VARIANT::transform

#endif
