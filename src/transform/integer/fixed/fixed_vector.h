// The fixed-point transform of 2, 4 and 8 points in 128-bit registers: no larger one takes that path in the
// vector variants. Straight code from the loads to the stores, bit reversal and reversal included; every
// product is that of MulQ14, so that the results are those of px.
#ifndef ORBS_TRANSFORM_INTEGER_FIXED_FIXED_VECTOR_H
#define ORBS_TRANSFORM_INTEGER_FIXED_FIXED_VECTOR_H

#include "simd/simd.h"
#include "transform/integer/fixed/fixed.h"

namespace orbs::ORBS_VARIANT::transform {

// ---- Two complex numbers a vector ----

ORBS_INLINE I32x4 ReversePairs(I32x4 a) { return AsInt(ReversePairs(AsFloat(a))); }
ORBS_INLINE I32x4 DupEven(I32x4 a) { return AsInt(DupEven(AsFloat(a))); }
ORBS_INLINE I32x4 DupOdd(I32x4 a) { return AsInt(DupOdd(AsFloat(a))); }
ORBS_INLINE I32x4 SwapPairs(I32x4 a) { return AsInt(SwapPairs(AsFloat(a))); }
ORBS_INLINE I32x4 Blend(I32x4 mask, I32x4 a, I32x4 b) { return (mask & a) | AndNot(mask, b); }

ORBS_INLINE void TransposePairs(I32x4* a, I32x4* b) {
  F32x4 rows[2] = {AsFloat(*a), AsFloat(*b)};
  TransposePairs(rows);
  *a = AsInt(rows[0]);
  *b = AsInt(rows[1]);
}

ORBS_INLINE I32x4 Lanes(Orb32s a, Orb32s b, Orb32s c, Orb32s d) {
  const Orb32s lanes[4] = {a, b, c, d};
  return I32x4::Load(lanes);
}
// Negative in the lanes of the mask.
ORBS_INLINE I32x4 NegateWhere(I32x4 mask, I32x4 a) { return (a ^ mask) - mask; }

// MulQ14 in each lane; a lane of `factors` is the pair of factors of x and y.
ORBS_INLINE I32x4 MulQ14(I16x8 factors, I32x4 x, I32x4 y) {
  const I32x4 lowBits = I32x4::All(0x7FFF);
  const I32x4 lows = (ShiftRightLogical(x, 1) & lowBits) | ShiftLeft(ShiftRightLogical(y, 1) & lowBits, 16);
  const I32x4 highs = ShiftRightLogical(x, 16) | AndNot(I32x4::All(0xFFFF), y);
  const I32x4 low = ShiftRight(MulAddPairs(factors, As16(lows)) + I32x4::All(4096), 13);
  return low + ShiftLeft(MulAddPairs(factors, As16(highs)), 2);
}

// ---- Transforms; `x` are the pairs in natural order, `in` the same in the order of a forward transform ----

ORBS_INLINE void TransformTwo(Orb32s* x) {
  const I32x4 v = I32x4::Load(x);
  (ReversePairs(v) + NegateWhere(Lanes(0, 0, -1, -1), v)).Store(x);
}

ORBS_INLINE void TransformFour(const I32x4 (&in)[2], Orb32s* x) {
  I32x4 sums = in[0] + in[1];         // p0 + p2, p1 + p3
  I32x4 differences = in[0] - in[1];  // p0 - p2, p1 - p3
  TransposePairs(&sums, &differences);
  const I32x4 p02 = sums;  // p0 + p2, p0 - p2
  // p1 + p3, -i (p1 - p3)
  const I32x4 turned = NegateWhere(Lanes(0, 0, 0, -1), SwapPairs(differences));
  const I32x4 p13 = Blend(Lanes(-1, -1, 0, 0), differences, turned);
  (p02 + p13).Store(x);
  (p02 - p13).Store(x + 4);
}

// The eighth of a circle: from c + d and c - d of that point the products for the third and fourth quarter.
ORBS_INLINE I32x4 MulEighth(I32x4 sumAndDifference) {
  constexpr auto K = static_cast<Orb16s>(kSqrtHalfQ14);
  constexpr auto L = static_cast<Orb16s>(-kSqrtHalfQ14);
  static constexpr Orb16s kFactors[8] = {K, K, K, K, K, L, L, K};
  // -(a + b), c + d, a - b, c - d
  const I32x4 u = NegateWhere(Lanes(-1, 0, 0, 0), sumAndDifference);
  const I32x4 odd = DupOdd(u);
  const I32x4 even = DupEven(u);
  const I32x4 outer = Lanes(-1, 0, 0, -1);
  const I32x4 first = Blend(outer, odd, ReversePairs(odd));     // c + d, c - d, c + d, c - d
  const I32x4 second = Blend(outer, ReversePairs(even), even);  // a - b, -(a + b), a - b, -(a + b)
  // The last lane has its operands the other way round, which changes nothing.
  return MulQ14(I16x8::Load(kFactors), first, second);
}

ORBS_INLINE void TransformEight(const I32x4 (&in)[4], Orb32s* x) {
  // One radix-4 butterfly on each half of the registers: j = 0 and j = 1.
  const I32x4 a = in[0] + in[2];
  const I32x4 b = in[1] + in[3];
  const I32x4 c = in[0] - in[2];
  const I32x4 d = in[1] - in[3];
  const I32x4 evenLanes = Lanes(-1, 0, -1, 0);
  const I32x4 iD = NegateWhere(evenLanes, SwapPairs(d));
  I32x4 y0 = a + b;
  I32x4 y2 = a - b;
  I32x4 y1 = c - iD;
  I32x4 y3 = c + iD;
  I32x4 cPlusD = c + d;
  I32x4 cMinusD = c - d;

  TransposePairs(&y0, &y2);  // both of j = 0, both of j = 1
  TransposePairs(&y1, &y3);
  TransposePairs(&cPlusD, &cMinusD);
  const I32x4 turned = NegateWhere(Lanes(0, 0, 0, -1), SwapPairs(y2));
  const I32x4 lower = Blend(Lanes(-1, -1, 0, 0), y2, turned);
  const I32x4 upper = MulEighth(cMinusD);

  // The radix-2 layer, and into natural order.
  I32x4 sums = y0 + lower;         // X[0], X[2]
  I32x4 differences = y0 - lower;  // X[4], X[6]
  I32x4 upperSums = y1 + upper;
  I32x4 upperDifferences = y1 - upper;
  TransposePairs(&sums, &upperSums);
  TransposePairs(&differences, &upperDifferences);
  sums.Store(x);
  upperSums.Store(x + 4);
  differences.Store(x + 8);
  upperDifferences.Store(x + 12);
}

// An inverse transform is the forward one of x[0], x[n-1], ... x[1].
template <bool kForward>
ORBS_INLINE void TransformFixedVector(Orb32s* x, Orb32s order) {
  const I32x4 firstPair = Lanes(-1, -1, 0, 0);
  if (order == 1) {
    TransformTwo(x);
  } else if (order == 2) {
    const I32x4 v[2] = {I32x4::Load(x), I32x4::Load(x + 4)};
    if constexpr (kForward) {
      TransformFour(v, x);
    } else {
      TransformFour({Blend(firstPair, v[0], v[1]), Blend(firstPair, v[1], v[0])}, x);
    }
  } else {
    const I32x4 v[4] = {I32x4::Load(x), I32x4::Load(x + 4), I32x4::Load(x + 8), I32x4::Load(x + 12)};
    if constexpr (kForward) {
      TransformEight(v, x);
    } else {
      TransformEight({Blend(firstPair, v[0], v[3]), Blend(firstPair, v[3], v[2]),
                      Blend(firstPair, v[2], v[1]), Blend(firstPair, v[1], v[0])},
                     x);
    }
  }
}

}  // namespace orbs::ORBS_VARIANT::transform

#endif
