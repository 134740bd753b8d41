// The source of all twiddles: a quarter circle of sines.
#ifndef ORBS_TRANSFORM_ENGINE_TABLES_SINE_H
#define ORBS_TRANSFORM_ENGINE_TABLES_SINE_H

#include <type_traits>

#include "core/variant.h"
#include "transform/engine/data.h"

namespace orbs::ORBS_VARIANT::transform {

// sin(2 pi i / 1024) for i = 0 to 256, correctly rounded.
inline constexpr int kSinQuarterOrder = 10;
template <class T>
struct SinQuarter {
  T sines[257];
};
extern const SinQuarter<Orb32f> SinQuarter_32f;
extern const SinQuarter<Orb64f> SinQuarter_64f;

// sin(2 pi k / 2^order) for k = 0 to 2^order / 4, for orders above that of SinQuarter. Correctly rounded but
// for a rare value that lies all but in the middle of two.
template <class T>
void BuildSineTable(int order, T* quarter);

// A quarter circle seen as the full circle of 2^order steps. Every value is one of the table or its negative.
template <class T>
struct SineTable {
  const T* quarter;  // of a circle of stride * 2^order steps
  int order;
  Index stride;

  // The same table for a shorter circle.
  ORBS_INLINE SineTable Of(int shorter) const { return {quarter, shorter, stride << (order - shorter)}; }

  ORBS_INLINE T Sin(Index k) const {
    const Index quadrant = Index{1} << (order - 2);
    const Index r = k & (quadrant - 1);
    const T magnitude = quarter[((k & quadrant) != 0 ? quadrant - r : r) * stride];
    return (k & 2 * quadrant) != 0 ? -magnitude : magnitude;
  }
  ORBS_INLINE T Cos(Index k) const { return Sin(k + (Index{1} << (order - 2))); }
};

// The constant table for orders up to its own.
template <class T>
ORBS_INLINE SineTable<T> ConstantSines(int order) {
  const T* quarter;
  if constexpr (std::is_same_v<T, Orb32f>) {
    quarter = SinQuarter_32f.sines;
  } else {
    quarter = SinQuarter_64f.sines;
  }
  return {quarter, order, Index{1} << (kSinQuarterOrder - order)};
}

}  // namespace orbs::ORBS_VARIANT::transform

#endif
