// From the caller's coefficients to those of a state: normalised by the leading denominator coefficient, with
// the tables that follow from them.
#ifndef ORBS_IIR_RECURSION_COEFFICIENTS_H
#define ORBS_IIR_RECURSION_COEFFICIENTS_H

#include "iir/recursion/number.h"
#include "iir/state/layout.h"
#include "orbs90lgc/status.h"

namespace orbs::ORBS_VARIANT::iir {

// ---- Tables of the vector variants ----

#if ORBS_VECTOR

// The rows of the look-ahead (K. K. Parhi and D. G. Messerschmitt, "Pipeline interleaving and parallelism in
// recursive digital filters", 1989). With c[k] = -a[k], 0 beyond the order, row k tells how much y[n-k]
// counts in each of a vector of results y[n], y[n+1], ...:
//   T[k][0] = c[k],   T[k][i] = c[1] T[k][i-1] + ... + c[i] T[k][0] + c[k+i]
// The sums are made in binary64 and rounded at most once: the errors of the rows act like errors of
// coefficients, and for poles near 1 the rows nearly cancel. For order 2 the first row has a part of the
// second, see state/layout.h. For |c[1]| far above 1 rows pass the range of their type. They are
// limited: the results still saturate, and zeros stay zeros, since 0 times infinity would be NaN.
template <class Kind, class Part>
void StoreLookAheadRows(const typename Kind::Work* a, Orb32s order, Orb32s elements, Part* rows) {
  using N = Number<Orb64f, Kind::kParts>;
  constexpr int kMostElements = kShortRowParts;
  N second[kMostElements];  // the row after the current one
  const auto c = [&](Orb32s k) { return k <= order ? -N::From(a[k - 1]) : N::Zero(); };
  const auto limited = [](N row) {
    constexpr Orb64f kLimit = sizeof(Part) == 4 ? 0x1p120 : 0x1p480;  // room for a sum, and for a product
    for (Orb64f& part : row.part) part = part > kLimit ? kLimit : part < -kLimit ? -kLimit : part;
    return row;
  };
  const auto put = [&](Orb32s k, Orb32s i, N row) {
    Part* const out = rows + (int64_t{k - 1} * elements + i) * Kind::kParts;
    for (int part = 0; part < Kind::kParts; ++part) out[part] = static_cast<Part>(row.part[part]);
  };
  for (Orb32s k = order; k >= 1; --k) {
    N row[kMostElements];
    for (Orb32s i = 0; i < elements; ++i) {
      row[i] = c(k + i);
      for (Orb32s j = 1; j <= i && j <= order; ++j) row[i] = row[i] + c(j) * row[i - j];
      put(k, i, limited(row[i]));
      if (order == 2 && k == 1) {
        const int pairing = PairingOf<Kind::kParts>(Parts(a));
        if (pairing == 1) put(1, i, limited(row[i] + second[i]));
        if (pairing == -1) put(1, i, limited(row[i] - second[i]));
      }
      second[i] = row[i];
    }
  }
}

template <class Kind>
void StoreSectionTables(IirView<Kind> view, Orb32s section) {
  using N = Number<Orb32f, Kind::kParts>;
  using Work = typename Kind::Work;
  const Work* const t = view.Taps() + int64_t{5} * section;
  StoreLookAheadRows<Kind>(t + 3, 2, kShortRowParts / Kind::kParts,
                           view.ShortRows() + int64_t{2} * section * kShortRowParts);
  Work* const table = reinterpret_cast<Work*>(view.SectionTable()) + int64_t{section} * kSectionTableElements;
  const N values[kSectionTableElements] = {N::From(t[0]),  N::From(t[1]),  N::From(t[2]), N::Zero(),
                                           -N::From(t[3]), -N::From(t[4]), N::Zero(),     N::Zero()};
  for (int i = 0; i < kSectionTableElements; ++i) values[i].To(table + i);
}

template <class Kind>
void StoreOrderTables(IirView<Kind> view) {
  const Orb32s order = view.state->delayLen;
  const auto* const a = view.Taps() + order + 1;
  if (order < kFirstLongOrder) {
    StoreLookAheadRows<Kind>(a, order, kShortRowParts / Kind::kParts, view.ShortRows());
  } else {
    StoreLookAheadRows<Kind>(a, order, kRowElements, view.LongRows());
  }
}

#else

template <class Kind>
void StoreSectionTables(IirView<Kind>, Orb32s) {}
template <class Kind>
void StoreOrderTables(IirView<Kind>) {}

#endif

// ---- Normalising ----

// given: b[0] to b[n], a[0] to a[n]; stored: all but a[0], over a[0], which is not 0. Each quotient is a
// product with the reciprocal, in binary64, rounded once.
template <class Work>
void Normalise(const Work* given, Orb32s n, Work* stored) {
  using N = Number<Orb64f, PartsOf<Work>::kCount>;
  const N factor = Reciprocal(N::From(given[n + 1]));
  for (Orb32s i = 0; i <= n; ++i) (N::From(given[i]) * factor).To(stored + i);
  for (Orb32s i = 1; i <= n; ++i) (N::From(given[n + 1 + i]) * factor).To(stored + n + i);
}

// StatusDivByZero for a leading coefficient of 0. A section must not begin with a zero b[0] either; the
// sections before a bad one stay stored.
template <class Kind>
OrbStatus StoreTaps(IirView<Kind> view, const typename Kind::Work* given) {
  using N = Number<Orb32f, Kind::kParts>;
  if constexpr (Kind::kCascade) {
    for (Orb32s s = 0; s < view.state->sectionCount; ++s, given += 6) {
      if (N::From(given[0]).IsZero() || N::From(given[3]).IsZero()) return StatusDivByZero;
      Normalise(given, 2, view.Taps() + int64_t{5} * s);
      StoreSectionTables(view, s);
    }
  } else {
    const Orb32s order = view.state->delayLen;
    if (N::From(given[order + 1]).IsZero()) return StatusDivByZero;
    Normalise(given, order, view.Taps());
    StoreOrderTables(view);
  }
  return StatusOk;
}

}  // namespace orbs::ORBS_VARIANT::iir

#endif
