// The recursion of orders from 3 up: look-ahead as in look_ahead.h, in binary64.
//
// Poles that lie close together, as those of low-passes do, make rows that are large and nearly cancel. In
// binary32 the results of a Butterworth filter of order 5 with its cut-off at 1/40 of the sample rate were
// off by a third of full scale, where single samples are off by 60 units. In binary64 they are off by 10:
// what is left is the rounding of the numerators and of the delay line between calls.
//
// The table holds rows of kRowElements results. A round makes two vectors; both depend on the results before
// the round alone, so that one wait for a sum yields all of them. Where two vectors have more results than
// the table has, the rest of each row is made at the start: a step from the last column on is
//   T[k][i+e] = T[1][i] T[k][e-1] + ... + T[e][i] T[k][0] + T[k+e][i]
#ifndef ORBS_IIR_RECURSION_LONG_RECURSION_H
#define ORBS_IIR_RECURSION_LONG_RECURSION_H

#include <cstring>

#include "core/unrolled.h"
#include "iir/state/layout.h"
#include "simd/blocks.h"
#include "simd/lanes.h"
#include "simd/product_sum.h"
#include "toolkit/toolkit.h"

#if ORBS_VECTOR

namespace orbs::ORBS_VARIANT::iir {

// kNear terms, those of the results that stand in vectors, are written out; the order may have more.
template <int kParts, int kNear>
class LongRecursion {
 public:
  static constexpr int kElements = F64::kLanes / kParts;
  static constexpr int kRound = 2 * kElements;  // results

  LongRecursion(const Orb64f* table, Orb32s order) : order_(order) {
    for (Orb32s k = 0; k < order; ++k) {
      CopyRow(table + k * kTableRow, k);
      if constexpr (kRound > kRowElements) Extend(table, k);
    }
    MakeWithin();
  }

  // In y stand w from the order on, and results before; w becomes results up to count-1.
  void Run(Orb32f* y, Orb32s count) {
    const Orb32s first = order_ * kParts;
    const Orb32s end = count * kParts;
    VecConvert_32f64f(y, past_, first);
    Past past(past_ + first);
    Orb32s i = first;
    for (; i + kRoundParts <= end; i += kRoundParts) past = MakeRound(past, y + i, past_ + i, y + i);
    if (i == end) return;
    // Fewer than a round: on a copy with zeros behind.
    Orb32f few[kRoundParts] = {};
    const auto left = static_cast<size_t>(end - i);
    CopyFew<sizeof few / 2>(few, y + i, left);
    MakeRound(past, few, past_ + i, few);
    CopyFew<sizeof few / 2>(y + i, few, left);
  }

 private:
  static constexpr int kLanes = F64::kLanes;
  static constexpr int kRoundParts = kRound * kParts;
  static constexpr int kTableRow = kRowElements * kParts;
  static constexpr int kMostOrders = kMostBlockUnits;
  // Rows that reach from one vector into the next.
  static constexpr int kReach = kElements < kNear ? kElements : kNear;
  using Sum = ProductSum<F64, kParts>;
  using Number = Factor<F64, kParts>;

  // A complex product uses a row twice.
  ORBS_INLINE F64 Row(Orb32s k, int vector) const {
    const Orb64f* const row = rows_ + k * kRoundParts + vector * kLanes;
    return kParts == 2 ? LoadOnce<F64>(row) : F64::Load(row);
  }

  ORBS_INLINE void CopyRow(const Orb64f* row, Orb32s k) {
    constexpr int kCopied = kRound < kRowElements ? kRoundParts : kTableRow;
    std::memcpy(rows_ + k * kRoundParts, row, kCopied * sizeof *row);
  }

  // The second vector of row k from the table's rows, which are the first.
  ORBS_INLINE void Extend(const Orb64f* table, Orb32s k) {
    const Orb64f* const row = table + k * kTableRow;
    auto sum = Sum::From(k + kElements < order_ ? F64::Load(row + kElements * kTableRow) : F64::Zero());
    for (Orb32s j = 0; j < kElements && j < order_; ++j) {
      sum.Add(Number::Load(row + (kElements - 1 - j) * kParts), F64::Load(table + j * kTableRow));
    }
    sum.Value().Store(rows_ + k * kRoundParts + kLanes);
  }

  // What reaches from an element of a vector to those after it: the first row, moved up.
  ORBS_INLINE void MakeWithin() {
    Orb64f moved[2 * kLanes] = {};
    Row(0, 0).Store(moved + kLanes);
    Unrolled<kElements - 1>([&](auto e) { within_[e] = F64::Load(moved + kLanes - (e + 1) * kParts); });
  }

  // Two vectors, the last elements of which are the results before `now`.
  struct Past {
    F64 older;
    F64 newer;

    ORBS_INLINE explicit Past(const Orb64f* now) {
      Orb64f near[kRoundParts] = {};
      std::memcpy(near + kRoundParts - kNear * kParts, now - kNear * kParts, kNear * kParts * sizeof *now);
      older = F64::Load(near);
      newer = F64::Load(near + kLanes);
    }
    ORBS_INLINE Past(F64 first, F64 second) : older(first), newer(second) {}
  };

  ORBS_INLINE F64 Within(F64 w) const {
    auto sum = Sum::From(w);
    Unrolled<kElements - 1>([&](auto e) { sum.Add(Number::template Of<e>(w), within_[e]); });
    return sum.Value();
  }

  // y[n-1-k].
  template <int k>
  static ORBS_INLINE void AddNear(Past past, Sum* sum, F64 row) {
    if constexpr (k < kElements) {
      sum->Add(Number::template Of<kElements - 1 - k>(past.newer), row);
    } else {
      sum->Add(Number::template Of<2 * kElements - 1 - k>(past.older), row);
    }
  }

  ORBS_INLINE Past MakeRound(Past past, const Orb32f* w, Orb64f* now, Orb32f* y) const {
    // From a zero state: the first vector, then the second, which the first one reaches.
    F64 w0;
    F64 w1;
    LoadWiden(w, &w0);
    LoadWiden(w + kLanes, &w1);
    const F64 v0 = Within(w0);
    auto second = Sum::From(Within(w1));
    Unrolled<kReach>([&](auto k) { second.Add(Number::template Of<kElements - 1 - k>(v0), Row(k, 0)); });
    // The past, the oldest results first; two sums for each vector keep the multiply-adders busy.
    Sum sum[2][2] = {{Sum::From(v0), Sum::From(F64::Zero())},
                     {Sum::From(second.Value()), Sum::From(F64::Zero())}};
    const auto add = [&](Orb32s k, int chain) {
      const Number result = Number::Load(now - (k + 1) * kParts);
      sum[0][chain].Add(result, Row(k, 0));
      sum[1][chain].Add(result, Row(k, 1));
    };
    Orb32s k = order_ - 1;
    for (; k > kNear; k -= 2) {
      add(k, 0);
      add(k - 1, 1);
    }
    if (k == kNear) add(k, 0);
    Unrolled<kNear>([&](auto i) {
      constexpr int near = kNear - 1 - i;
      AddNear<near>(past, &sum[0][near % 2], Row(near, 0));
      AddNear<near>(past, &sum[1][near % 2], Row(near, 1));
    });
    const Past next = {(sum[0][0] + sum[0][1]).Value(), (sum[1][0] + sum[1][1]).Value()};
    next.older.Store(now);
    next.newer.Store(now + kLanes);
    StoreNarrow(y, next.older);
    StoreNarrow(y + kLanes, next.newer);
    return next;
  }

  Orb32s order_;
  F64 within_[kElements > 1 ? kElements - 1 : 1];
  Orb64f rows_[kMostOrders * kRoundParts];
  Orb64f past_[(kIirPiece + kRound) * kParts];
};

// Orders with results of less than a round have kernels of their own.
template <int kParts>
void RunLongRecursion(const Orb64f* table, Orb32s order, Orb32f* y, Orb32s count) {
  constexpr int kRound = LongRecursion<kParts, 1>::kRound;
  if (order >= kRound) return LongRecursion<kParts, kRound>(table, order).Run(y, count);
  Unrolled<kRound - 1>([&](auto i) {
    if constexpr (i + 1 >= kFirstLongOrder) {
      if (order == i + 1) LongRecursion<kParts, i + 1>(table, order).Run(y, count);
    }
  });
}

}  // namespace orbs::ORBS_VARIANT::iir

#endif
#endif
