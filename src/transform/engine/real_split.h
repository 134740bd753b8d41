// The real split over a whole spectrum (the step is told in engine/real_pair.h): for k = 1 to N/4 - 1 the
// pairs k and m = N/2 - k, the middle pair, and the first: the points 0 and N/2 of one spectrum are the sum
// and the difference of those of the other.
#ifndef ORBS_TRANSFORM_ENGINE_REAL_SPLIT_H
#define ORBS_TRANSFORM_ENGINE_REAL_SPLIT_H

#include "core/variant.h"

#if ORBS_VECTOR
#include "transform/engine/vector/real_split.h"
#else

#include "transform/engine/data.h"
#include "transform/engine/real_pair.h"
#include "transform/engine/tables/tables.h"
#include "transform/spectrum/layouts.h"

namespace orbs::ORBS_VARIANT::transform {

template <class W>
ORBS_INLINE Complex<W> SumAndDifference(Complex<W> pair) {
  return {pair.re + pair.im, pair.re - pair.im};
}

// In place on 2^order reals, order >= 3.
template <SpectrumLayout layout, class T>
void FFTRealSplitFwd(T* data, int order, const T* table) {
  const Interleaved<T> z = {data};
  const Interleaved<const T> twiddles = {table};
  const Index half = (Index{1} << order) / 2;
  const Index fine = kRealFineEntries<T>;
  const bool twoLevels = HasTwoRealLevels<T>(order);
  for (Index k = 1; k < half / 2; ++k) {
    Value<T> a = Get(z, k);
    Value<T> b = Get(z, half - k);
    if (twoLevels) {
      RealPairForwardByTwiddle(&a, &b, Get(twiddles, k % fine) * Get(twiddles, fine + k / fine));
    } else {
      RealPairForward(&a, &b, Get(twiddles, k));
    }
    Put(z, k, a);
    Put(z, half - k, b);
  }
  data[half + 1] = -data[half + 1];
  Put(z, 0, SumAndDifference(Get(z, 0)));
  ArrangeFromPerm<layout>(data, 2 * half);
}

// To dst, which may be src.
template <SpectrumLayout layout, class T>
void FFTRealSplitInv(const T* src, T* dst, int order, const T* table) {
  const Index n = Index{1} << order;
  const RealPoints<T> ends = GetRealPoints<layout>(src, n);
  // Pack is the one layout whose pairs do not lie where they are wanted.
  if constexpr (layout == SpectrumLayout::pack) {
    ArrangeToPerm<layout>(src, dst, n);
    src = dst;
  }
  const Interleaved<const T> x = {src};
  const Interleaved<T> z = {dst};
  const Interleaved<const T> twiddles = {table};
  const Index half = n / 2;
  const Index fine = kRealFineEntries<T>;
  const bool twoLevels = HasTwoRealLevels<T>(order);
  for (Index k = 1; k < half / 2; ++k) {
    Value<T> a = Get(x, k);
    Value<T> b = Get(x, half - k);
    RealPairInverse(&a, &b,
                    twoLevels ? Get(twiddles, k % fine) * Get(twiddles, fine + k / fine) : Get(twiddles, k));
    Put(z, k, a);
    Put(z, half - k, b);
  }
  dst[half] = 2 * src[half];
  dst[half + 1] = -2 * src[half + 1];
  Put(z, 0, SumAndDifference(Value<T>{ends.first, ends.last}));
}

}  // namespace orbs::ORBS_VARIANT::transform

#endif
#endif
