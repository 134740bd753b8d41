// The block recursion: y[n] = w[n] + c[1] y[n-1] + ... + c[N] y[n-N], a vector of results at a time.
//
// Written out, a vector of R results depends on the N results before it and on its own w alone:
//   (y[n], ..., y[n+R-1]) = v + y[n-1] T[1] + ... + y[n-N] T[N]
// with the rows T of the look-ahead table, and with v the results that the same w would give from a zero
// state. v carries no recursion from vector to vector, so that only the sum over the rows stands in the way
// of the next vector.
//
// v itself is made in steps. Within a quarter register (four parts) w[0] reaches the elements after it by
// T[1] moved up by one, w[1] by T[1] moved up by two, and so on. Then the results of the low quarter reach
// those of the high one by the rows T.
//
// The orders 1 and 2, and so all biquads, have everything in registers. They take two vectors a round: the
// second has its rows too, so that one wait for a sum yields 2 R results.
#ifndef ORBS_IIR_RECURSION_LOOK_AHEAD_H
#define ORBS_IIR_RECURSION_LOOK_AHEAD_H

#include <cstring>

#include "core/unrolled.h"
#include "iir/state/layout.h"
#include "simd/blocks.h"
#include "simd/lanes.h"
#include "simd/product_sum.h"

#if ORBS_VECTOR

namespace orbs::ORBS_VARIANT::iir {

inline constexpr int kQuarterParts = 4;
inline constexpr int kVectorParts = F32::kLanes;

template <int kParts>
using RowFactor = Factor<F32, kParts>;
template <int kParts>
using RowSum = ProductSum<F32, kParts>;

// Turns w into v, the response of a recursion that starts from zeros. kReach rows, as many as the order,
// reach from the low quarter into the high one.
template <int kParts, int kReach>
class ZeroStateResponse {
 public:
  static constexpr int kElements = kQuarterParts / kParts;

  // rows: T[1] to T[kReach].
  ORBS_INLINE explicit ZeroStateResponse(const F32 (&rows)[kReach]) {
    Orb32f moved[kQuarterParts + kVectorParts] = {};
    rows[0].Store(moved + kQuarterParts);
    Unrolled<kElements - 1>(
        [&](auto e) { LoadQuarterToAll(moved + kQuarterParts - (e + 1) * kParts, &within_[e]); });
    if constexpr (kHasHighQuarter) Unrolled<kReach>([&](auto k) { across_[k] = LowQuarterMovedUp(rows[k]); });
  }

  // The first step, and the second.
  ORBS_INLINE F32 Within(F32 w) const {
    auto sum = RowSum<kParts>::From(w);
    Unrolled<kElements - 1>(
        [&](auto e) { sum.Add(RowFactor<kParts>::template OfQuarter<e>(w), within_[e]); });
    return sum.Value();
  }
  ORBS_INLINE F32 Across(F32 v) const {
    if constexpr (kHasHighQuarter) {
      auto sum = RowSum<kParts>::From(v);
      Unrolled<kReach>(
          [&](auto k) { sum.Add(RowFactor<kParts>::template Of<kElements - 1 - k>(v), across_[k]); });
      return sum.Value();
    } else {
      return v;
    }
  }

 private:
  static constexpr bool kHasHighQuarter = kVectorParts > kQuarterParts;

  F32 within_[kElements - 1];
  F32 across_[kHasHighQuarter ? kReach : 1];
};

// ---- Orders 1 and 2 ----

// kPairing is that of the table's first row, 0 for order 1.
template <int kParts, int kOrder, int kPairing = 0>
class ShortRecursion {
 public:
  static constexpr int kElements = kVectorParts / kParts;

  // b[0] to b[N], and the rows of the table.
  ORBS_INLINE ShortRecursion(const Orb32f* b, const Orb32f* rows) : ShortRecursion(b, Rows(rows)) {}

  // Results first to count-1 from the input u; those before, at least N, are there.
  ORBS_INLINE void Run(const Orb32f* u, Orb32f* y, Orb32s first, Orb32s count) {
    constexpr size_t kVector = kVectorParts;
    const size_t end = static_cast<size_t>(count) * kParts;
    size_t i = static_cast<size_t>(first) * kParts;
    LoadPast(y + i);
    i += RunRounds(u + i, y + i, (end - i) / kRound);
    // Less than a round. What is read behind the input lies within the state, and is masked.
    for (; i < end; i += kVector) {
      F32 w = Numerator(u + i);
      const size_t n = end - i;
      if (n < kVector) w = FirstLanes(w, n);
      const F32 result = AddPast(response_.Across(response_.Within(w)), rows_.near);
      newest_ = result;
      if (n >= kVector) {
        result.Store(y + i);
      } else {
        Orb32f results[kVector];
        result.Store(results);
        CopyFew<kVector * sizeof *y / 2>(y + i, results, n);
      }
    }
  }

 private:
  static_assert(kOrder <= kElements, "all of the past that counts stands in one vector");
  static constexpr size_t kRound = kShortRowParts;

  // The table's rows.
  struct Rows {
    F32 plain[kOrder];
    F32 near[kOrder];
    F32 far[kOrder];

    ORBS_INLINE explicit Rows(const Orb32f* table) {
      Unrolled<kOrder>([&](auto k) {
        plain[k] = near[k] = F32::Load(table + k * kShortRowParts);
        far[k] = F32::Load(table + k * kShortRowParts + kVectorParts);
      });
      if constexpr (kPairing == 1) plain[0] = near[0] - near[1];
      if constexpr (kPairing == -1) plain[0] = near[0] + near[1];
    }
    ORBS_INLINE ZeroStateResponse<kParts, kOrder> MakeResponse() const {
      return ZeroStateResponse<kParts, kOrder>(plain);
    }
  };

  ORBS_INLINE ShortRecursion(const Orb32f* b, const Rows& rows)
      : rows_(rows), response_(rows.MakeResponse()) {
    Unrolled<kOrder + 1>([&](auto k) { b_[k] = RowFactor<kParts>::Load(b + k * kParts); });
  }

  ORBS_INLINE F32 Numerator(const Orb32f* u) const {
    auto sum = RowSum<kParts>::Of(b_[kOrder], F32::Load(u - kOrder * kParts));
    Unrolled<kOrder>([&](auto k) { sum.Add(b_[kOrder - 1 - k], F32::Load(u - (kOrder - 1 - k) * kParts)); });
    return sum.Value();
  }

  // y[n-1-k].
  template <int k>
  ORBS_INLINE RowFactor<kParts> Past() const {
    return RowFactor<kParts>::template Of<kElements - 1 - k>(newest_);
  }

  // A vector whose last elements are the N results before y.
  ORBS_INLINE void LoadPast(const Orb32f* y) {
    Orb32f past[kVectorParts] = {};
    std::memcpy(past + kVectorParts - kOrder * kParts, y - kOrder * kParts, kOrder * kParts * sizeof *y);
    newest_ = F32::Load(past);
  }

  ORBS_INLINE F32 AddPast(F32 v, const F32 (&rows)[kOrder]) const {
    auto sum = RowSum<kParts>::From(v);
    if constexpr (kPairing != 0) {
      const auto last = Past<0>();
      const auto change = kPairing == 1 ? Past<1>() - last : Past<1>() + last;
      sum.Add(last, rows[0]);
      sum.Add(change, rows[1]);
    } else {
      Unrolled<kOrder>([&](auto k) { sum.Add(Past<kOrder - 1 - k>(), rows[kOrder - 1 - k]); });
    }
    return sum.Value();
  }

  // A round in three stages. Each is a chain of dependent sums; the loop runs the stages of three rounds side
  // by side, since the processor does not look far enough ahead to find the next round by itself.
  struct Round {
    F32 first;
    F32 second;
  };
  ORBS_INLINE Round Begin(const Orb32f* u) const {
    return {response_.Within(Numerator(u)), response_.Within(Numerator(u + kVectorParts))};
  }
  ORBS_INLINE Round Complete(Round round) const {
    const F32 first = response_.Across(round.first);
    auto second = RowSum<kParts>::From(response_.Across(round.second));
    Unrolled<kOrder>([&](auto k) {
      second.Add(RowFactor<kParts>::template Of<kElements - 1 - k>(first), rows_.plain[k]);
    });
    return {first, second.Value()};
  }
  ORBS_INLINE void Finish(Round round, Orb32f* y) {
    AddPast(round.first, rows_.near).Store(y);
    newest_ = AddPast(round.second, rows_.far);
    newest_.Store(y + kVectorParts);
  }

  // The parts that this has made.
  ORBS_INLINE size_t RunRounds(const Orb32f* u, Orb32f* y, size_t rounds) {
    const size_t parts = rounds * kRound;
    if (rounds < 2) {
      if (rounds == 1) Finish(Complete(Begin(u)), y);
      return parts;
    }
    Round complete = Complete(Begin(u));
    Round begun = Begin(u + kRound);
    for (; rounds > 2; --rounds, u += kRound, y += kRound) {
      Finish(complete, y);
      complete = Complete(begun);
      begun = Begin(u + 2 * kRound);
    }
    Finish(complete, y);
    Finish(Complete(begun), y + kRound);
    return parts;
  }

  Rows rows_;
  ZeroStateResponse<kParts, kOrder> response_;
  RowFactor<kParts> b_[kOrder + 1];
  F32 newest_;
};

}  // namespace orbs::ORBS_VARIANT::iir

#endif
#endif
