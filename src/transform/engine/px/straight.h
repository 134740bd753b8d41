// Straight-line transforms of values in registers, for a number of points known at compile time: what the
// codelets are made of.
#ifndef ORBS_TRANSFORM_ENGINE_PX_STRAIGHT_H
#define ORBS_TRANSFORM_ENGINE_PX_STRAIGHT_H

#include <type_traits>

#include "core/unrolled.h"
#include "core/variant.h"
#include "transform/engine/data.h"
#include "transform/engine/tables/circle.h"

namespace orbs::ORBS_VARIANT::transform {

// Unrolled where the argument need not be a constant: a plain loop in px.
template <Index count, class Body>
ORBS_INLINE void ForEach(Body body) {
#if ORBS_VECTOR
  Unrolled<static_cast<int>(count)>(body);
#else
  for (Index i = 0; i < count; ++i) body(i);
#endif
}

// The constants are those of binary64 in every type that holds them.
template <class T>
constexpr Wide<T> Constant(long double value) {
  return static_cast<Wide<T>>(static_cast<Orb64f>(value));
}

// a times exp(-2 pi i k / n), or its conjugate in the inverse direction.
template <bool kForward, int k, int n, class T>
ORBS_INLINE Value<T> TurnBy(Value<T> a) {
  if constexpr (k == 0) {
    return a;
  } else if constexpr (8 * k == n) {
    constexpr Wide<T> kHalfRoot = Constant<T>(CircleSine(1, 8));
    const Value<T> turned = QuarterTurn<kForward>(a);
    return Times(a + turned, kHalfRoot);
  } else if constexpr (8 * k == 3 * n) {
    constexpr Wide<T> kHalfRoot = Constant<T>(CircleSine(1, 8));
    const Value<T> turned = QuarterTurn<kForward>(a);
    return Times(turned - a, kHalfRoot);
  } else {
    constexpr Wide<T> kCosine = Constant<T>(CircleCosine(k, n));
    constexpr Wide<T> kSine = Constant<T>(CircleSine(k, n));
    return Turn<kForward>(a, Value<T>{kCosine, -kSine});
  }
}

struct Unscaled {};

template <class W, class ScaleType>
ORBS_INLINE Complex<W> Scale(Complex<W> a, [[maybe_unused]] ScaleType scale) {
  if constexpr (std::is_same_v<ScaleType, Unscaled>) {
    return a;
  } else {
    return Times(a, W(scale));
  }
}

template <bool kForward, Index n, class T, class ScaleType>
ORBS_INLINE void StraightTransform(const Value<T>* x, Value<T>* y, ScaleType scale);

// y = transform of x, split radix: the even outputs from half the points, the outputs 1 and 3 mod 4 from a
// quarter each. A scale goes into the first layer of sums.
template <bool kForward, Index n, class T, class ScaleType>
ORBS_INLINE void TransformInLine(const Value<T>* x, Value<T>* y, ScaleType scale) {
  if constexpr (n == 1) {
    y[0] = Scale(x[0], scale);
  } else if constexpr (n == 2) {
    y[0] = Scale(x[0] + x[1], scale);
    y[1] = Scale(x[0] - x[1], scale);
  } else if constexpr (n == 4) {
    const Value<T> s = Scale(x[0] + x[2], scale);
    const Value<T> d = Scale(x[0] - x[2], scale);
    const Value<T> u = Scale(x[1] + x[3], scale);
    const Value<T> v = QuarterTurn<kForward>(Scale(x[1] - x[3], scale));
    y[0] = s + u;
    y[1] = d + v;
    y[2] = s - u;
    y[3] = d - v;
  } else {
    Value<T> sums[n / 2];
    ForEach<n / 2>([&](auto i) { sums[i] = Scale(x[i] + x[i + n / 2], scale); });
    Value<T> first[n / 4];
    Value<T> third[n / 4];
    Unrolled<n / 4>([&](auto i) {
      const Value<T> d = Scale(x[i] - x[i + n / 2], scale);
      const Value<T> v = QuarterTurn<kForward>(Scale(x[i + n / 4] - x[i + 3 * n / 4], scale));
      first[i] = TurnBy<kForward, static_cast<int>(i), n, T>(d + v);
      third[i] = TurnBy<kForward, static_cast<int>(3 * i), n, T>(d - v);
    });
    Value<T> even[n / 2];
    StraightTransform<kForward, n / 2, T>(sums, even, Unscaled{});
    ForEach<n / 2>([&](auto i) { y[2 * i] = even[i]; });
    Value<T> odd[n / 4];
    StraightTransform<kForward, n / 4, T>(first, odd, Unscaled{});
    ForEach<n / 4>([&](auto i) { y[4 * i + 1] = odd[i]; });
    StraightTransform<kForward, n / 4, T>(third, odd, Unscaled{});
    ForEach<n / 4>([&](auto i) { y[4 * i + 3] = odd[i]; });
  }
}

// In line, but for px, where routines and parts of routines share one body: px's long doubles make long code
// that takes the compiler minutes with sanitizers.
template <bool kForward, Index n, class T, class ScaleType>
__attribute__((noinline)) void SharedTransform(const Value<T>* x, Value<T>* y, ScaleType scale) {
  TransformInLine<kForward, n, T>(x, y, scale);
}
template <bool kForward, Index n, class T, class ScaleType>
ORBS_INLINE void StraightTransform(const Value<T>* x, Value<T>* y, ScaleType scale) {
  if constexpr (!ORBS_VECTOR && n >= 8) {
    SharedTransform<kForward, n, T>(x, y, scale);
  } else {
    TransformInLine<kForward, n, T>(x, y, scale);
  }
}

}  // namespace orbs::ORBS_VARIANT::transform

#endif
