// The tables of codelets, for the two files that instantiate them: one a number type, since they are much
// code.
#ifndef ORBS_TRANSFORM_ENGINE_CODELET_TABLES_H
#define ORBS_TRANSFORM_ENGINE_CODELET_TABLES_H

#include "transform/engine/codelets.h"

#include "transform/engine/px/straight.h"
#include "transform/engine/real_pair.h"
#include "transform/tuning.h"
#if ORBS_VECTOR
#include "transform/engine/vector/codelets.h"
#endif

namespace orbs::ORBS_VARIANT::transform {

template <bool kForward, bool kScaled, Index n, template <class> class Data, class T>
void ComplexCodelet(Data<const T> src, Data<T> dst, [[maybe_unused]] T scale) {
  Value<T> x[n];
  Value<T> y[n];
  ForEach<n>([&](auto i) { x[i] = Get(src, i); });
  if constexpr (kScaled) {
    StraightTransform<kForward, n, T>(x, y, scale);
  } else {
    StraightTransform<kForward, n, T>(x, y, Unscaled{});
  }
  ForEach<n>([&](auto i) { Put(dst, i, y[i]); });
}

// Pairs of neighbours as complex points: half as many, and one step that tells the two spectra apart.
template <bool kForward, Index n, class T, class ScaleType>
ORBS_INLINE void RealTransform(const T* src, T* dst, ScaleType scale) {
  constexpr Index half = n / 2;
  Value<T> x[half];
  Value<T> y[half];
  if constexpr (kForward) {
    ForEach<half>([&](auto i) { x[i] = {src[2 * i], src[2 * i + 1]}; });
    StraightTransform<true, half, T>(x, y, scale);
  } else {
    ForEach<half>([&](auto i) { y[i] = {src[2 * i], src[2 * i + 1]}; });
  }
  const Wide<T> sum = y[0].re + y[0].im;
  const Wide<T> difference = y[0].re - y[0].im;
  y[0] = {sum, difference};
  if constexpr (n >= 4) {
    if constexpr (n >= 8) {
      Unrolled<n / 4 - 1>([&](auto i) {
        constexpr auto k = static_cast<int>(i) + 1;
        constexpr long double kCosine = CircleCosine(k, n);
        constexpr long double kSine = CircleSine(k, n);
        if constexpr (kForward) {
          constexpr Value<T> kEntry = {Constant<T>(0.5L * kCosine), Constant<T>(0.5L - 0.5L * kSine)};
          RealPairForward(&y[k], &y[half - k], kEntry);
        } else {
          constexpr Value<T> kEntry = {Constant<T>(kCosine), Constant<T>(-kSine)};
          RealPairInverse(&y[k], &y[half - k], kEntry);
        }
      });
    }
    y[n / 4] = kForward ? Value<T>{y[n / 4].re, -y[n / 4].im} : Value<T>{2 * y[n / 4].re, -2 * y[n / 4].im};
  }
  if constexpr (kForward) {
    ForEach<half>([&](auto i) {
      dst[2 * i] = static_cast<T>(y[i].re);
      dst[2 * i + 1] = static_cast<T>(y[i].im);
    });
  } else {
    StraightTransform<false, half, T>(y, x, scale);
    ForEach<half>([&](auto i) {
      dst[2 * i] = static_cast<T>(x[i].re);
      dst[2 * i + 1] = static_cast<T>(x[i].im);
    });
  }
}

template <bool kForward, bool kScaled, Index n, class T>
void RealCodelet(const T* src, T* dst, [[maybe_unused]] T scale) {
  if constexpr (n == 1) {
    dst[0] = kScaled ? static_cast<T>(Wide<T>(src[0]) * scale) : src[0];
  } else if constexpr (kScaled) {
    RealTransform<kForward, n>(src, dst, scale);
  } else {
    RealTransform<kForward, n>(src, dst, Unscaled{});
  }
}

#if ORBS_VECTOR
template <bool kForward, bool kScaled, int order, template <class> class Data, class T>
void VectorCodelet(Data<const T> src, Data<T> dst, T scale) {
  RunVectorCodelet<order, kForward>(src, dst, kScaled ? scale : T{1});
}
#endif

template <bool kForward, bool kScaled, int order, template <class> class Data, class T>
constexpr typename ComplexCodelets<kForward, Data, T>::Function ComplexEntry() {
#if ORBS_VECTOR
  if constexpr (order >= kFirstVectorCodelet && order <= kFftTuning.codeletCeiling) {
    return VectorCodelet<kForward, kScaled, order, Data, T>;
  } else
#endif
      if constexpr (order <= kFftTuning.codeletCeiling) {
    return ComplexCodelet<kForward, kScaled, (Index{1} << order), Data, T>;
  } else {
    return nullptr;
  }
}

template <bool kForward, bool kScaled, int order, class T>
constexpr typename RealCodelets<kForward, T>::Function RealEntry() {
  if constexpr (order <= Pick<T>(kFftTuning.realCodeletCeiling)) {
    return RealCodelet<kForward, kScaled, (Index{1} << order), T>;
  } else {
    return nullptr;
  }
}

#define ORBS_COMPLEX_CODELETS(list, kScaled)                                                            \
  template <bool kForward, template <class> class Data, class T>                                        \
  const typename ComplexCodelets<kForward, Data, T>::Function                                           \
      ComplexCodelets<kForward, Data, T>::list[kLargestComplexCodelet + 1] = {                          \
          ComplexEntry<kForward, kScaled, 0, Data, T>(), ComplexEntry<kForward, kScaled, 1, Data, T>(), \
          ComplexEntry<kForward, kScaled, 2, Data, T>(), ComplexEntry<kForward, kScaled, 3, Data, T>(), \
          ComplexEntry<kForward, kScaled, 4, Data, T>(), ComplexEntry<kForward, kScaled, 5, Data, T>(), \
          ComplexEntry<kForward, kScaled, 6, Data, T>()};
ORBS_COMPLEX_CODELETS(plain, false)
ORBS_COMPLEX_CODELETS(scaled, true)

#define ORBS_REAL_CODELETS(list, kScaled)                                             \
  template <bool kForward, class T>                                                   \
  const typename RealCodelets<kForward, T>::Function                                  \
      RealCodelets<kForward, T>::list[kLargestRealCodelet + 1] = {                    \
          RealEntry<kForward, kScaled, 0, T>(), RealEntry<kForward, kScaled, 1, T>(), \
          RealEntry<kForward, kScaled, 2, T>(), RealEntry<kForward, kScaled, 3, T>(), \
          RealEntry<kForward, kScaled, 4, T>(), RealEntry<kForward, kScaled, 5, T>()};
ORBS_REAL_CODELETS(plain, false)
ORBS_REAL_CODELETS(scaled, true)

}  // namespace orbs::ORBS_VARIANT::transform

#endif
