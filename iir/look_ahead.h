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
// Orders up to 4, and so all biquads, have everything in registers, and take two vectors a round: the second
// has its rows too, so that one wait for a sum yields 2 R results.
#ifndef ORBS_IIR_LOOK_AHEAD_H
#define ORBS_IIR_LOOK_AHEAD_H

#include <cstring>

#include "iir/lanes.h"
#include "iir/layout.h"

#if ORBS_VECTOR

namespace orbs::ORBS_VARIANT {

inline constexpr int kQuarterParts = 4;

// A number in all elements of a vector, and a sum of products with rows. Complex sums are kept in two parts,
// of re and of im, so that the swap is made once a sum:  sum = a + i b.
template <int kParts>
struct Factor;
template <>
struct Factor<1> {
  F32 re;
  static ORBS_INLINE Factor Load(const Orb32f* p) { return {F32::All(p[0])}; }
};
template <>
struct Factor<2> {
  F32 re;
  F32 im;
  static ORBS_INLINE Factor Load(const Orb32f* p) { return {F32::All(p[0]), F32::All(p[1])}; }
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

// What turns w into v: how many rows reach from the low quarter into the high one is known from the order.
template <int kParts, int kReach>
class Silence {
 public:
  // kReach rows, at least.
  ORBS_INLINE explicit Silence(const Orb32f* rows) {
    Orb32f moved[2 * kQuarterParts] = {};
    std::memcpy(moved + kQuarterParts, rows, kQuarterParts * sizeof *rows);
    ForConstants<kElements - 1>(
        [&](auto e) { LoadQuarterToAll(moved + kQuarterParts - (e + 1) * kParts, &within_[e]); });
#ifdef __AVX__
    ForConstants<kReach>([&](auto k) { across_[k] = LowQuarterMovedUp(F32::Load(rows + k * kRowParts)); });
#endif
  }

  ORBS_INLINE F32 operator()(F32 w) const {
    auto sum = RowSum<kParts>::From(w);
    ForConstants<kElements - 1>([&](auto e) { sum.Add(QuarterFactorOf<kParts, e>(w), within_[e]); });
#ifdef __AVX__
    auto both = RowSum<kParts>::From(sum.Value());
    const F32 low = both.a;
    ForConstants<kReach>([&](auto k) { both.Add(FactorOf<kParts, kElements - 1 - k>(low), across_[k]); });
    return both.Value();
#else
    return sum.Value();
#endif
  }

  static constexpr int kElements = kQuarterParts / kParts;

 private:
  F32 within_[kElements - 1];
#ifdef __AVX__
  F32 across_[kReach];
#endif
};

// ---- Orders 1 to 4 ----

template <int kParts, int kOrder>
class ShortRecursion {
 public:
  static constexpr int kElements = kRowParts / kParts;

  // b[0] to b[N], and the rows of the table.
  ORBS_INLINE ShortRecursion(const Orb32f* b, const Orb32f* rows) : silence_(rows) {
    ForConstants<kOrder + 1>([&](auto k) { b_[k] = Factor<kParts>::Load(b + k * kParts); });
    ForConstants<kOrder>([&](auto k) { near_[k] = F32::Load(rows + k * kRowParts); });
    // The row of the second vector: what the row's own results make of it, after them what it began with.
    ForConstants<kOrder>([&](auto k) {
      F32 begin = F32::Zero();
      if constexpr (k + kElements < kOrder) begin = near_[k + kElements];
      auto sum = RowSum<kParts>::From(begin);
      ForConstants<kWithin>(
          [&](auto m) { sum.Add(FactorOf<kParts, kElements - 1 - m>(near_[k]), near_[m]); });
      far_[k] = sum.Value();
    });
  }

  // Results first to count-1 from the input u; those before, at least N, are there.
  ORBS_INLINE void Run(const Orb32f* u, Orb32f* y, Orb32s first, Orb32s count) {
    constexpr size_t kVector = kRowParts;
    const size_t end = static_cast<size_t>(count) * kParts;
    size_t i = static_cast<size_t>(first) * kParts;
    LoadPast(y + i);
    for (; i + 2 * kVector <= end; i += 2 * kVector) TwoVectors(u + i, y + i);
    if (i + kVector <= end) {
      OneVector(u + i, y + i);
      i += kVector;
    }
    if (i == end) return;
    // Fewer than a vector: on a copy with zeros behind.
    Orb32f input[kOrder * kParts + kVector] = {};
    Orb32f results[kVector];
    std::memcpy(input, u + i - kOrder * kParts, (end - i + kOrder * kParts) * sizeof *u);
    OneVector(input + kOrder * kParts, results);
    std::memcpy(y + i, results, (end - i) * sizeof *y);
  }

 private:
  // Rows that reach from one vector into the next.
  static constexpr int kWithin = kOrder < kElements ? kOrder : kElements;
  static constexpr int kQuarter = Silence<kParts, 1>::kElements;
  // A sum of so many products is made in two halves.
  static constexpr bool kSplit = kOrder > 2;

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
    Orb32f past[2 * kRowParts] = {};
    std::memcpy(past + 2 * kRowParts - kOrder * kParts, y - kOrder * kParts, kOrder * kParts * sizeof *y);
    older_ = F32::Load(past);
    newer_ = F32::Load(past + kRowParts);
  }

  ORBS_INLINE F32 AddPast(F32 v, const F32 (&rows)[kOrder]) const {
    auto sum = RowSum<kParts>::From(v);
    if constexpr (kSplit) {
      auto other = RowSum<kParts>::Of(Past<kOrder - 1>(), rows[kOrder - 1]);
      ForConstants<kOrder / 2 - 1>([&](auto k) { other.Add(Past<kOrder - 2 - k>(), rows[kOrder - 2 - k]); });
      ForConstants<kOrder - kOrder / 2>([&](auto k) { sum.Add(Past<k>(), rows[k]); });
      sum.Add(other);
    } else {
      ForConstants<kOrder>([&](auto k) { sum.Add(Past<kOrder - 1 - k>(), rows[kOrder - 1 - k]); });
    }
    return sum.Value();
  }

  ORBS_INLINE void OneVector(const Orb32f* u, Orb32f* y) {
    const F32 result = AddPast(silence_(Numerator(u)), near_);
    result.Store(y);
    older_ = newer_;
    newer_ = result;
  }

  ORBS_INLINE void TwoVectors(const Orb32f* u, Orb32f* y) {
    const F32 v0 = silence_(Numerator(u));
    auto v1 = RowSum<kParts>::From(silence_(Numerator(u + kRowParts)));
    ForConstants<kWithin>([&](auto k) { v1.Add(FactorOf<kParts, kElements - 1 - k>(v0), near_[k]); });
    const F32 y0 = AddPast(v0, near_);
    const F32 y1 = AddPast(v1.Value(), far_);
    y0.Store(y);
    y1.Store(y + kRowParts);
    older_ = y0;
    newer_ = y1;
  }

  Silence<kParts, (kOrder < kQuarter ? kOrder : kQuarter)> silence_;
  Factor<kParts> b_[kOrder + 1];
  F32 near_[kOrder];
  F32 far_[kOrder];
  F32 older_;
  F32 newer_;
};

// ---- Orders from 5 ----

// In y stand w from `first` on, and results before; w becomes results up to count-1. A round makes one
// vector: the rows come from memory, four sums keep the multiply-adders busy, and the most recent results
// come last.
template <int kParts>
void LongRecursion(const Orb32f* rows, Orb32s order, Orb32f* y, Orb32s first, Orb32s count) {
  constexpr size_t kVector = kRowParts;
  const Silence<kParts, kQuarterParts / kParts> silence(rows);
  const auto vector = [&](const Orb32f* w, const Orb32f* now) {
    RowSum<kParts> sum[4] = {RowSum<kParts>::From(silence(F32::Load(w))), RowSum<kParts>::From(F32::Zero()),
                             RowSum<kParts>::From(F32::Zero()), RowSum<kParts>::From(F32::Zero())};
    const Orb32f* past = now - int64_t{order} * kParts;
    const Orb32f* row = rows + (int64_t{order} - 1) * kRowParts;
    Orb32s k = order;
    for (; k % 4 != 0; --k, past += kParts, row -= kRowParts) {
      sum[1].Add(Factor<kParts>::Load(past), F32::Load(row));
    }
    for (; k > 0; k -= 4, past += 4 * kParts, row -= 4 * kRowParts) {
      ForConstants<4>([&](auto j) {
        sum[j].Add(Factor<kParts>::Load(past + j * kParts), F32::Load(row - j * kRowParts));
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
  Orb32f few[kVector] = {};
  std::memcpy(few, y + i, (end - i) * sizeof *y);
  vector(few, y + i).Store(few);
  std::memcpy(y + i, few, (end - i) * sizeof *y);
}

}  // namespace orbs::ORBS_VARIANT

#endif
#endif
