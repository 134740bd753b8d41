// The tables of the fixed-point transform.
#include "transform/engine/tables/circle.h"
#include "transform/engine/tables/sine.h"
#include "transform/integer/fixed/fixed.h"

namespace orbs::ORBS_VARIANT::transform {
namespace {

struct FixedSines {
  Orb16s sines[257];
};

// 16384 sin(2 pi i / 1024), rounded.
constexpr FixedSines RoundedFixedSines() {
  FixedSines table = {};
  for (int i = 0; i < 256; ++i) {
    table.sines[i] = static_cast<Orb16s>(16384 * QuarterSine(i, 1024) + 0.5L);
  }
  table.sines[256] = 16384;
  return table;
}

constexpr FixedSines SinQuarter_16s = RoundedFixedSines();

ORBS_INLINE Orb16s Negative(Orb16s x) { return static_cast<Orb16s>(-x); }

}  // namespace

void BuildFixedSine(Orb32s order, Orb16s* quarter) {
  const Index last = FixedSineEntries(order) - 1;
  const Index stride = Index{1} << (kSinQuarterOrder - order);
  for (Index k = 0; k < last; ++k) quarter[k] = SinQuarter_16s.sines[k * stride];
  quarter[last] = 16384;
}

void BuildFixedTwiddles(Orb32s order, const Orb16s* quarter, Orb32s sineOrder, Orb16s* table) {
  if (order < 2) return;
  auto* step = reinterpret_cast<FixedStep*>(table);
  const Index n = Index{1} << order;
  const Index stride = Index{1} << (sineOrder - order);
  for (Index k = 0; k < n / 4; ++k) {
    const Orb16s c = quarter[(n / 4 - k) * stride];
    const Orb16s s = quarter[k * stride];
    step[k] = {{c, s, Negative(s), c}};
  }
  // One and two quarter turns on: exact, where another look at the table might not be.
  for (Index k = n / 4; k < n / 2; ++k) {
    const Orb16s* e = step[k - n / 4].e;
    step[k] = {{Negative(e[1]), e[0], Negative(e[0]), Negative(e[1])}};
  }
  for (Index k = n / 2; k < n; ++k) {
    const Orb16s* e = step[k - n / 2].e;
    step[k] = {{Negative(e[0]), Negative(e[1]), e[1], Negative(e[0])}};
  }
}

}  // namespace orbs::ORBS_VARIANT::transform
