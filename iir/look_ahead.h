// The block recursion: y[n] = w[n] + c[1] y[n-1] + ... + c[N] y[n-N], a vector of results at a time.
//
// Written out, a vector of R results depends on the N results before it and on its own w alone:
//   (y[n], ..., y[n+R-1]) = v + y[n-1] T[1] + ... + y[n-N] T[N]
// with the rows T of the look-ahead table, and with v the results that the same w would give after silence.
// v carries no recursion from vector to vector, so that only the sum over the rows stands in the way of the
// next vector.
//
// v itself is made in steps. Within a quarter register (four parts) w[0] reaches the elements after it by
// T[1] moved up by one, w[1] by T[1] moved up by two, and so on. Then the results of the low quarter reach
// those of the high one by the rows T.
//
// Orders up to 4, and so all biquads, have everything in registers. Up to order 3 they take two vectors a
// round: the second has its rows too, so that one wait for a sum yields 2 R results.
#ifndef ORBS_IIR_LOOK_AHEAD_H
#define ORBS_IIR_LOOK_AHEAD_H

#include <cstring>

#include "frame/blocks.h"
#include "iir/lanes.h"
#include "iir/layout.h"

#if ORBS_VECTOR

namespace orbs::ORBS_VARIANT {

inline constexpr int kQuarterParts = 4;
inline constexpr int kVectorParts = F32::kLanes;

// A number in all elements of a vector, and a sum of products with rows. Complex sums are kept in two parts,
// of re and of im, so that the swap is made once a sum:  sum = a + i b.
template <int kParts>
struct Factor;
template <>
struct Factor<1> {
  F32 re;
  static ORBS_INLINE Factor Load(const Orb32f* p) { return {F32::All(p[0])}; }
  ORBS_INLINE Factor operator+(Factor f) const { return {re + f.re}; }
  ORBS_INLINE Factor operator-(Factor f) const { return {re - f.re}; }
};
template <>
struct Factor<2> {
  F32 re;
  F32 im;
  static ORBS_INLINE Factor Load(const Orb32f* p) { return {F32::All(p[0]), F32::All(p[1])}; }
  ORBS_INLINE Factor operator+(Factor f) const { return {re + f.re, im + f.im}; }
  ORBS_INLINE Factor operator-(Factor f) const { return {re - f.re, im - f.im}; }
};

// One element of a vector as a factor: for all its elements, or for those of its own quarter.
template <int kParts, int element>
ORBS_INLINE Factor<kParts> FactorOf(F32 a) {
  if constexpr (kParts == 1) {
    return {AllOf<element>(a)};
  } else {
    return {AllOf<2 * element>(a), AllOf<2 * element + 1>(a)};
  }
}
template <int kParts, int element>
ORBS_INLINE Factor<kParts> QuarterFactorOf(F32 a) {
  if constexpr (kParts == 1) {
    return {AllOfQuarter<element>(a)};
  } else {
    return {AllOfQuarter<2 * element>(a), AllOfQuarter<2 * element + 1>(a)};
  }
}

template <int kParts>
struct RowSum;
template <>
struct RowSum<1> {
  F32 a;
  static ORBS_INLINE RowSum Of(Factor<1> f, F32 row) { return {f.re * row}; }
  static ORBS_INLINE RowSum From(F32 start) { return {start}; }
  ORBS_INLINE void Add(Factor<1> f, F32 row) { a = MulAdd(f.re, row, a); }
  ORBS_INLINE void Add(RowSum other) { a = a + other.a; }
  ORBS_INLINE F32 Value() const { return a; }
};
template <>
struct RowSum<2> {
  F32 a;
  F32 b;
  static ORBS_INLINE RowSum Of(Factor<2> f, F32 row) { return {f.re * row, f.im * row}; }
  static ORBS_INLINE RowSum From(F32 start) { return {start, F32::Zero()}; }
  ORBS_INLINE void Add(Factor<2> f, F32 row) {
    a = MulAdd(f.re, row, a);
    b = MulAdd(f.im, row, b);
  }
  ORBS_INLINE void Add(RowSum other) {
    a = a + other.a;
    b = b + other.b;
  }
  ORBS_INLINE F32 Value() const { return AddRotated(a, b); }
};

// What turns w into v. kReach rows reach from the low quarter into the high one: as many as the order, if the
// quarter has so many elements.
template <int kParts, int kReach>
class Silence {
 public:
  static constexpr int kElements = kQuarterParts / kParts;

  // rows: T[1] to T[kReach].
  ORBS_INLINE explicit Silence(const F32 (&rows)[kReach]) {
    Orb32f moved[kQuarterParts + kVectorParts] = {};
    rows[0].Store(moved + kQuarterParts);
    ForConstants<kElements - 1>(
        [&](auto e) { LoadQuarterToAll(moved + kQuarterParts - (e + 1) * kParts, &within_[e]); });
#ifdef __AVX__
    ForConstants<kReach>([&](auto k) { across_[k] = LowQuarterMovedUp(rows[k]); });
#endif
  }

  // The first step, and the second.
  ORBS_INLINE F32 Within(F32 w) const {
    auto sum = RowSum<kParts>::From(w);
    ForConstants<kElements - 1>([&](auto e) { sum.Add(QuarterFactorOf<kParts, e>(w), within_[e]); });
    return sum.Value();
  }
  ORBS_INLINE F32 Across(F32 v) const {
#ifdef __AVX__
    auto sum = RowSum<kParts>::From(v);
    ForConstants<kReach>([&](auto k) { sum.Add(FactorOf<kParts, kElements - 1 - k>(v), across_[k]); });
    return sum.Value();
#else
    return v;
#endif
  }

 private:
  F32 within_[kElements - 1];
#ifdef __AVX__
  F32 across_[kReach];
#endif
};

// ---- Orders 1 to 4 ----

// kPairing is that of the table's first row, 0 for orders other than 2.
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
      const F32 result = AddPast(silence_.Across(silence_.Within(w)), rows_.near);
      older_ = newer_;
      newer_ = result;
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
  // Rows that reach from one vector into the next.
  static constexpr int kWithin = kOrder < kElements ? kOrder : kElements;
  static constexpr int kQuarter = kQuarterParts / kParts;
  static constexpr int kVectors = RowVectors(kOrder);
  static constexpr size_t kRound = kVectors * kVectorParts;
  static constexpr int kStride = RowParts(kOrder);
  // A sum of so many products is made in two halves.
  static constexpr bool kSplit = kOrder > 2;
  // Rows that reach from quarter to quarter.
  static constexpr int kReach = kOrder < kQuarter ? kOrder : kQuarter;

  // The table's rows.
  struct Rows {
    F32 plain[kOrder];
    F32 near[kOrder];
    F32 far[kOrder];

    ORBS_INLINE explicit Rows(const Orb32f* table) {
      ForConstants<kOrder>([&](auto k) {
        plain[k] = near[k] = F32::Load(table + k * kStride);
        far[k] = kVectors == 2 ? F32::Load(table + k * kStride + kVectorParts) : near[k];
      });
      if constexpr (kPairing == 1) plain[0] = near[0] - near[1];
      if constexpr (kPairing == -1) plain[0] = near[0] + near[1];
    }
    ORBS_INLINE Silence<kParts, kReach> MakeSilence() const {
      F32 reaching[kReach];
      ForConstants<kReach>([&](auto k) { reaching[k] = plain[k]; });
      return Silence<kParts, kReach>(reaching);
    }
  };

  ORBS_INLINE ShortRecursion(const Orb32f* b, const Rows& rows) : rows_(rows), silence_(rows.MakeSilence()) {
    ForConstants<kOrder + 1>([&](auto k) { b_[k] = Factor<kParts>::Load(b + k * kParts); });
  }

  ORBS_INLINE F32 Numerator(const Orb32f* u) const {
    auto sum = RowSum<kParts>::Of(b_[kOrder], F32::Load(u - kOrder * kParts));
    ForConstants<kOrder>(
        [&](auto k) { sum.Add(b_[kOrder - 1 - k], F32::Load(u - (kOrder - 1 - k) * kParts)); });
    return sum.Value();
  }

  // y[n-1-k].
  template <int k>
  ORBS_INLINE Factor<kParts> Past() const {
    if constexpr (k < kElements) {
      return FactorOf<kParts, kElements - 1 - k>(newer_);
    } else {
      return FactorOf<kParts, 2 * kElements - 1 - k>(older_);
    }
  }

  // Two vectors whose last elements are the N results before y.
  ORBS_INLINE void LoadPast(const Orb32f* y) {
    Orb32f past[2 * kVectorParts] = {};
    std::memcpy(past + 2 * kVectorParts - kOrder * kParts, y - kOrder * kParts, kOrder * kParts * sizeof *y);
    older_ = F32::Load(past);
    newer_ = F32::Load(past + kVectorParts);
  }

  ORBS_INLINE F32 AddPast(F32 v, const F32 (&rows)[kOrder]) const {
    auto sum = RowSum<kParts>::From(v);
    if constexpr (kPairing != 0) {
      const auto last = Past<0>();
      const auto change = kPairing == 1 ? Past<1>() - last : Past<1>() + last;
      sum.Add(last, rows[0]);
      sum.Add(change, rows[1]);
    } else if constexpr (kSplit) {
      auto other = RowSum<kParts>::Of(Past<kOrder - 1>(), rows[kOrder - 1]);
      ForConstants<kOrder / 2 - 1>([&](auto k) { other.Add(Past<kOrder - 2 - k>(), rows[kOrder - 2 - k]); });
      ForConstants<kOrder - kOrder / 2>([&](auto k) { sum.Add(Past<k>(), rows[k]); });
      sum.Add(other);
    } else {
      ForConstants<kOrder>([&](auto k) { sum.Add(Past<kOrder - 1 - k>(), rows[kOrder - 1 - k]); });
    }
    return sum.Value();
  }

  // A round in three stages. Each is a chain of dependent sums; the loop runs the stages of three rounds side
  // by side, since the processor does not look far enough ahead to find the next round by itself.
  struct Round {
    F32 v[kVectors];
  };
  ORBS_INLINE Round Begin(const Orb32f* u) const {
    Round round;
    ForConstants<kVectors>([&](auto r) { round.v[r] = silence_.Within(Numerator(u + r * kVectorParts)); });
    return round;
  }
  ORBS_INLINE Round Complete(Round round) const {
    ForConstants<kVectors>([&](auto r) { round.v[r] = silence_.Across(round.v[r]); });
    if constexpr (kVectors == 2) {
      auto second = RowSum<kParts>::From(round.v[1]);
      ForConstants<kWithin>(
          [&](auto k) { second.Add(FactorOf<kParts, kElements - 1 - k>(round.v[0]), rows_.plain[k]); });
      round.v[1] = second.Value();
    }
    return round;
  }
  ORBS_INLINE void Finish(Round round, Orb32f* y) {
    const F32 first = AddPast(round.v[0], rows_.near);
    first.Store(y);
    if constexpr (kVectors == 2) {
      const F32 second = AddPast(round.v[1], rows_.far);
      second.Store(y + kVectorParts);
      older_ = first;
      newer_ = second;
    } else {
      older_ = newer_;
      newer_ = first;
    }
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
  Silence<kParts, kReach> silence_;
  Factor<kParts> b_[kOrder + 1];
  F32 older_;
  F32 newer_;
};

// ---- Orders from 5 ----

// In y stand w from `first` on, and results before; w becomes results up to count-1. A round makes one
// vector: the rows come from memory, four sums keep the multiply-adders busy, and the most recent results
// come last.
template <int kParts>
void LongRecursion(const Orb32f* rows, Orb32s order, Orb32f* y, Orb32s first, Orb32s count) {
  constexpr size_t kVector = kVectorParts;
  constexpr int kReach = kQuarterParts / kParts;
  F32 reaching[kReach];
  ForConstants<kReach>([&](auto k) { reaching[k] = F32::Load(rows + k * kVectorParts); });
  const Silence<kParts, kReach> silence(reaching);
  const auto vector = [&](const Orb32f* w, const Orb32f* now) {
    RowSum<kParts> sum[4] = {RowSum<kParts>::From(silence.Across(silence.Within(F32::Load(w)))),
                             RowSum<kParts>::From(F32::Zero()), RowSum<kParts>::From(F32::Zero()),
                             RowSum<kParts>::From(F32::Zero())};
    const Orb32f* past = now - int64_t{order} * kParts;
    const Orb32f* row = rows + (int64_t{order} - 1) * kVectorParts;
    Orb32s k = order;
    for (; k % 4 != 0; --k, past += kParts, row -= kVectorParts) {
      sum[1].Add(Factor<kParts>::Load(past), F32::Load(row));
    }
    for (; k > 0; k -= 4, past += 4 * kParts, row -= 4 * kVectorParts) {
      ForConstants<4>([&](auto j) {
        sum[j].Add(Factor<kParts>::Load(past + j * kParts), F32::Load(row - j * kVectorParts));
      });
    }
    sum[0].Add(sum[1]);
    sum[2].Add(sum[3]);
    sum[0].Add(sum[2]);
    return sum[0].Value();
  };
  const size_t end = static_cast<size_t>(count) * kParts;
  size_t i = static_cast<size_t>(first) * kParts;
  for (; i + kVector <= end; i += kVector) vector(y + i, y + i).Store(y + i);
  if (i == end) return;
  // Fewer than a vector: on a copy with zeros behind.
  Orb32f few[kVector] = {};
  CopyFew<kVector * sizeof *y / 2>(few, y + i, end - i);
  vector(few, y + i).Store(few);
  CopyFew<kVector * sizeof *y / 2>(y + i, few, end - i);
}

}  // namespace orbs::ORBS_VARIANT

#endif
#endif
