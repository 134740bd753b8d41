// The real split over a whole spectrum (the step is told in fft_real_pair.h): for k = 1 to N/4 - 1 the pairs
// k and m = N/2 - k, and the middle pair. The first pair, k = 0, is the caller's.
#ifndef ORBS_TRANSFORM_FFT_REAL_SPLIT_H
#define ORBS_TRANSFORM_FFT_REAL_SPLIT_H

#include "frame/variant.h"

#if ORBS_VECTOR
#include "transform/fft_real_split_vector.h"
#else

#include "transform/fft_data.h"
#include "transform/fft_real_pair.h"
#include "transform/fft_tables.h"

namespace orbs::ORBS_VARIANT {

// In place on 2^order reals, order >= 3.
template <class T>
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
}

// From the pairs of a spectrum to dst, which may be src.
template <class T>
void FFTRealSplitInv(const T* src, T* dst, int order, const T* table) {
  const Interleaved<const T> x = {src};
  const Interleaved<T> z = {dst};
  const Interleaved<const T> twiddles = {table};
  const Index half = (Index{1} << order) / 2;
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
}

}  // namespace orbs::ORBS_VARIANT

#endif
#endif
