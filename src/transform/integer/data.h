// Arrays of integers as the passes see them: a first pass that converts what it reads and a last one that
// scales, rounds and saturates what it writes save two trips through memory.
#ifndef ORBS_TRANSFORM_INTEGER_DATA_H
#define ORBS_TRANSFORM_INTEGER_DATA_H

#include "core/scaling.h"
#include "simd/load.h"
#include "simd/round_scaled.h"
#include "simd/simd.h"
#include "transform/engine/data.h"

namespace orbs::ORBS_VARIANT::transform {

// Sources, read as numbers of T.
template <class T, class Int>
struct IntegerPairs {
  const Int* pairs;
};
template <class T, class Int>
struct IntegerParts {
  const Int* re;
  const Int* im;
};

// Results; numbers of T, times the factor, are rounded to nearest.
template <class T, class Int>
struct RoundedPairs {
  Int* pairs;
  PowerOfTwo<T> factor;
};
template <class T, class Int>
struct RoundedParts {
  Int* re;
  Int* im;
  PowerOfTwo<T> factor;
};

// ---- A vector of pairs at point i ----

template <class T, class Int>
ORBS_INLINE VectorOf<T> LoadPoints(IntegerPairs<T, Int> data, size_t i) {
  return LoadAs<VectorOf<T>>(data.pairs + 2 * i);
}
ORBS_INLINE F32 LoadPoints(IntegerParts<Orb32f, Orb16s> data, size_t i) {
  I32 x;
  LoadPairs(data.re + i, data.im + i, &x);
  return ToFloat(x);
}
ORBS_INLINE F64 LoadPoints(IntegerParts<Orb64f, Orb32s> data, size_t i) {
  F64 x;
  LoadPairs(data.re + i, data.im + i, &x);
  return x;
}

template <class T, class Int>
ORBS_INLINE void StorePoints(RoundedPairs<T, Int> data, size_t i, VectorOf<T> v) {
  StoreSaturated<RoundNear>(data.pairs + 2 * i, Times<T>(v, data.factor));
}
template <class T, class Int>
ORBS_INLINE void StorePoints(RoundedParts<T, Int> data, size_t i, VectorOf<T> v) {
  StoreSaturatedPairs(data.re + i, data.im + i, Times<T>(v, data.factor));
}

}  // namespace orbs::ORBS_VARIANT::transform

#endif
