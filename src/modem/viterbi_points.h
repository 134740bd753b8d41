// From received points to the metrics of symbols.
#ifndef ORBS_MODEM_VITERBI_POINTS_H
#define ORBS_MODEM_VITERBI_POINTS_H

#include "core/variant.h"
#include "orbs90lgc/types.h"

#if ORBS_VECTOR
#include "simd/simd.h"
#endif

namespace orbs::ORBS_VARIANT::modem {

// ---- The nearest point of each subset ----

// One point after the other, and each entry to the place that its label names: in all variants the same,
// since there is no loop to widen.
class NearestPoints {
 public:
  ORBS_INLINE NearestPoints(Orb16sc received, Orb32u* variants, const Orb8u* subsetMap, bool fewStates)
      : variants_(variants), subsetMap_(subsetMap), labelMask_(fewStates ? 3 : 7) {
    const Orb32s dx = (received.re ^ 128) & 255;
    const Orb32s dy = (received.im ^ 128) & 255;
    base_ = {static_cast<Orb16s>(received.re - dx), static_cast<Orb16s>(received.im - dy)};
    column_ = ((base_.re - 128) >> 8) + 2;
    row_ = ((base_.im - 128) >> 8) + 2;

    const Orb32u x0 = Square(dx), x1 = Square(256 - dx);
    const Orb32u y0 = Square(dy), y1 = Square(256 - dy);
    Put(0, 0, x0 + y0, 0);
    Put(1, 0, x1 + y0, 1);
    Put(1, 1, x1 + y1, 2);
    Put(0, 1, x0 + y1, 3);
    if (fewStates) return;
    const Orb32u x2 = Square(512 - dx), xm = Square(dx + 256);
    const Orb32u y2 = Square(512 - dy), ym = Square(dy + 256);
    PutNearer(0, 2, x0 + y2, 4, x2 + y0, 8);
    PutNearer(1, 2, x1 + y2, 5, xm + y0, 9);
    PutNearer(1, 3, x2 + y1, 6, x0 + ym, 10);
    PutNearer(0, 3, x1 + ym, 7, xm + y1, 11);
  }

  Orb16sc base() const { return base_; }

 private:
  static ORBS_INLINE Orb32u Square(Orb32s d) { return static_cast<Orb32u>(d * d) >> 4; }

  ORBS_INLINE void Put(Orb32s columnStep, Orb32s rowStep, Orb32u distance, Orb32u code) {
    const Orb32s position = ((row_ + rowStep) & 3) * 4 + ((column_ + columnStep) & 3);
    variants_[subsetMap_[position] & labelMask_] = distance | code << 16;
  }
  // Of equal distances the second.
  ORBS_INLINE void PutNearer(Orb32s columnStep, Orb32s rowStep, Orb32u first, Orb32u firstCode, Orb32u second,
                             Orb32u secondCode) {
    const bool isFirst = first < second;
    Put(columnStep, rowStep, isFirst ? first : second, isFirst ? firstCode : secondCode);
  }

  Orb32u* variants_;
  const Orb8u* subsetMap_;
  Orb32s labelMask_;
  Orb16sc base_;
  Orb32s column_;
  Orb32s row_;
};

// ---- The nearest pair of labels of each symbol ----

inline constexpr int kSecondPoint = 8;  // where its entries begin, with 16 states too

#if ORBS_VECTOR

// Four symbols are a row: those of one a = k' / 4, over which b = (k' + a) mod 4 turns through the second
// point's table. A turned table is one shuffle, and the index mask is another one of the turned tables.
class SymbolRows {
 public:
  explicit ORBS_INLINE SymbolRows(const Orb32u* variants, bool fewStates, Orb32s indexMask) {
    const auto* const entries = reinterpret_cast<const Orb32s*>(variants);
    SetFirst(entries, 0);
    SetTurned(entries + kSecondPoint, indexMask, turnedLow_);
    if (fewStates) return;
    SetFirst(entries, 4);
    SetTurned(entries + kSecondPoint + 4, indexMask, turnedHigh_);
  }

  struct Row {
    I32x4 sums;
    I32x4 symbols;  // packed as they are stored
  };
  // The pairs of label i with the labels 0 to 3 or 4 to 7.
  ORBS_INLINE Row Low(Orb32s i, Orb32s a) const { return Pairs(i, turnedLow_[a & 3]); }
  ORBS_INLINE Row High(Orb32s i, Orb32s a) const { return Pairs(i, turnedHigh_[a & 3]); }

  // The first of equal ones.
  static ORBS_INLINE Row Nearer(Row a, Row b) {
    const I32x4 isSecond = Greater(a.sums, b.sums);
    return {(isSecond & b.sums) | AndNot(isSecond, a.sums),
            (isSecond & b.symbols) | AndNot(isSecond, a.symbols)};
  }
  static ORBS_INLINE void Store(Row row, Orb16sc* symbols) {
    row.symbols.Store(reinterpret_cast<Orb32s*>(symbols));
  }

 private:
  // Distance in the upper half, code in the lower: the sum of a first and a second point's number is the
  // entry of the pair, since the codes do not carry.
  ORBS_INLINE void SetFirst(const Orb32s* entries, int i) {
    const I32x4 v = I32x4::Load(entries + i);
    (v & I32x4::All(0xFFFF)).Store(distances_ + i);
    ((ShiftRightLogical(v, 16) & I32x4::All(0xFF)) | ShiftLeft(v, 16)).Store(codes_ + i);
  }
  static ORBS_INLINE Row OfSecond(I32x4 v) {
    return {v & I32x4::All(0xFFFF), (ShiftRightLogical(v, 8) & I32x4::All(0xFF00)) | ShiftLeft(v, 16)};
  }
  // turned[a] has the entries (j XOR x) + a mod 4 for j = 0 ... 3. The XOR with 2 is a turn by 2.
  static ORBS_INLINE void SetTurned(const Orb32s* entries, Orb32s indexMask, Row (&turned)[4]) {
    I32x4 v = I32x4::Load(entries);
    if ((indexMask & 2) != 0) v = TurnLanes<2>(v);
    I32x4 turns[4] = {v, TurnLanes<1>(v), TurnLanes<2>(v), TurnLanes<3>(v)};
    if ((indexMask & 1) != 0) {
      ORBS_UNROLL
      for (I32x4& turn : turns) turn = AsInt(SwapPairs(AsFloat(turn)));
    }
    ORBS_UNROLL
    for (int a = 0; a < 4; ++a) turned[a] = OfSecond(turns[a]);
  }
  ORBS_INLINE Row Pairs(Orb32s i, const Row& second) const {
    return {I32x4::All(distances_[i]) + second.sums, I32x4::All(codes_[i]) + second.symbols};
  }

  Orb32s distances_[8];
  Orb32s codes_[8];
  Row turnedLow_[4];
  Row turnedHigh_[4];
};

inline void BuildSymbols16(const Orb32u* variants, Orb16sc* symbols, Orb32s x) {
  const SymbolRows rows(variants, true, x);
  for (Orb32s row = 0; row < 2; ++row) {
    const Orb32s a = row ^ x >> 2;
    SymbolRows::Store(SymbolRows::Nearer(rows.Low(a, a), rows.Low(a ^ 2, a ^ 2)), symbols + 4 * row);
  }
}

inline void BuildSymbols32(const Orb32u* variants, Orb16sc* symbols, Orb32s x) {
  const SymbolRows rows(variants, false, x);
  const auto both = [&rows](Orb32s a) { return SymbolRows::Nearer(rows.Low(a, a), rows.High(a ^ 4, a)); };
  for (Orb32s row = 0; row < 4; ++row) {
    const Orb32s a = (row ^ x >> 2) + 2 * (row & 2);
    SymbolRows::Store(SymbolRows::Nearer(both(a ^ 2), both(a)), symbols + 4 * row);
  }
}

inline void BuildSymbols64(const Orb32u* variants, Orb16sc* symbols, Orb32s x) {
  const SymbolRows rows(variants, false, x);
  ORBS_UNROLL
  for (Orb32s row = 0; row < 8; ++row) {
    const Orb32s a = row ^ x >> 2;
    SymbolRows::Store(SymbolRows::Nearer(rows.Low(a, a), rows.High(a ^ 4, a)), symbols + 4 * row);
  }
}

#else

class NearestPair {
 public:
  ORBS_INLINE NearestPair(const Orb32u* variants, Orb32s i, Orb32s j) : variants_(variants) { Take(i, j); }

  ORBS_INLINE void TakeIfNearer(Orb32s i, Orb32s j) {
    if (Sum(i, j) < sum_) Take(i, j);
  }
  ORBS_INLINE Orb16sc Symbol() const {
    const Orb32u first = variants_[i_] >> 16 & 0xFF;
    const Orb32u second = variants_[kSecondPoint + j_] >> 16 & 0xFF;
    return {static_cast<Orb16s>(first | second << 8), static_cast<Orb16s>(sum_)};
  }

 private:
  ORBS_INLINE Orb32u Sum(Orb32s i, Orb32s j) const {
    return (variants_[i] & 0xFFFF) + (variants_[kSecondPoint + j] & 0xFFFF);
  }
  ORBS_INLINE void Take(Orb32s i, Orb32s j) {
    i_ = i;
    j_ = j;
    sum_ = Sum(i, j);
  }

  const Orb32u* variants_;
  Orb32s i_;
  Orb32s j_;
  Orb32u sum_;
};

inline void BuildSymbols16(const Orb32u* variants, Orb16sc* symbols, Orb32s x) {
  for (Orb32s k = 0; k < 8; ++k) {
    const Orb32s turned = k ^ x;
    const Orb32s a = turned >> 2;
    const Orb32s b = (turned + a) & 3;
    NearestPair nearest(variants, a, b);
    nearest.TakeIfNearer((a + 2) & 3, (b + 2) & 3);
    symbols[k] = nearest.Symbol();
  }
}

inline void BuildSymbols32(const Orb32u* variants, Orb16sc* symbols, Orb32s x) {
  for (Orb32s k = 0; k < 16; ++k) {
    const Orb32s turned = (k ^ x) + 2 * (k & 8);
    const Orb32s m = turned ^ 8;
    const Orb32s p = m >> 2;
    const Orb32s q = (m + p) & 3;
    const Orb32s a = turned >> 2;
    const Orb32s b = (turned + a) & 3;
    NearestPair nearest(variants, p, q);
    nearest.TakeIfNearer((p + 4) & 7, q + 4);
    nearest.TakeIfNearer(a, b);
    nearest.TakeIfNearer((a + 4) & 7, b + 4);
    symbols[k] = nearest.Symbol();
  }
}

inline void BuildSymbols64(const Orb32u* variants, Orb16sc* symbols, Orb32s x) {
  for (Orb32s k = 0; k < 32; ++k) {
    const Orb32s turned = k ^ x;
    const Orb32s a = turned >> 2;
    const Orb32s b = (turned + a) & 3;
    NearestPair nearest(variants, a, b);
    nearest.TakeIfNearer((a + 4) & 7, b + 4);
    symbols[k] = nearest.Symbol();
  }
}

#endif

}  // namespace orbs::ORBS_VARIANT::modem

#endif
