// The layouts of a real spectrum of n points, n a power of 2, as plain elements of any type.
#ifndef ORBS_TRANSFORM_SPECTRUM_LAYOUTS_H
#define ORBS_TRANSFORM_SPECTRUM_LAYOUTS_H

#include <cstring>

#include "core/variant.h"
#include "transform/engine/data.h"

namespace orbs::ORBS_VARIANT::transform {

// Where the pairs of the points 1 to n/2 - 1 begin.
template <SpectrumLayout layout>
inline constexpr Index kFirstPairAt = layout == SpectrumLayout::pack ? 1 : 2;

// The points beside these pairs, 0 and n/2, which are real. n >= 2.
template <class T>
struct RealPoints {
  T first;
  T last;
};
template <SpectrumLayout layout>
constexpr Index LastRealPointAt(Index n) {
  return layout == SpectrumLayout::pack ? n - 1 : layout == SpectrumLayout::ccs ? n : 1;
}
template <SpectrumLayout layout, class T>
ORBS_INLINE RealPoints<T> GetRealPoints(const T* data, Index n) {
  return {data[0], data[LastRealPointAt<layout>(n)]};
}
template <SpectrumLayout layout, class T>
ORBS_INLINE void PutRealPoints(T* data, Index n, RealPoints<T> points) {
  data[0] = points.first;
  data[LastRealPointAt<layout>(n)] = points.last;
  if constexpr (layout == SpectrumLayout::ccs) {
    data[1] = 0;
    data[n + 1] = 0;
  }
}

template <class T>
ORBS_INLINE void MoveReals(const T* src, T* dst, Index n) {
  std::memmove(dst, src, static_cast<size_t>(n) * sizeof(T));
}

// Perm to `layout`, in place.
template <SpectrumLayout layout, class T>
ORBS_INLINE void ArrangeFromPerm(T* data, Index n) {
  if constexpr (layout == SpectrumLayout::pack) {
    if (n <= 2) return;
    const T last = data[1];
    MoveReals(data + 2, data + 1, n - 2);
    data[n - 1] = last;
  } else if constexpr (layout == SpectrumLayout::ccs) {
    if (n > 1) {
      data[n] = data[1];
      data[n + 1] = 0;
    }
    data[1] = 0;
  }
}

// `layout` in src to Perm in dst, which may be src.
template <SpectrumLayout layout, class T>
ORBS_INLINE void ArrangeToPerm(const T* src, T* dst, Index n) {
  if (n == 1) {
    dst[0] = src[0];
    return;
  }
  const T last = src[LastRealPointAt<layout>(n)];
  if constexpr (layout == SpectrumLayout::pack) {
    const T first = src[0];
    MoveReals(src + 1, dst + 2, n - 2);
    dst[0] = first;
  } else if (dst != src) {
    dst[0] = src[0];
    MoveReals(src + 2, dst + 2, n - 2);
  }
  dst[1] = last;
}

}  // namespace orbs::ORBS_VARIANT::transform

#endif
