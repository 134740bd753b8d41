// The layouts of a real spectrum of n points, n a power of 2, as plain elements of any type.
#ifndef ORBS_TRANSFORM_FFT_INTEGER_LAYOUTS_H
#define ORBS_TRANSFORM_FFT_INTEGER_LAYOUTS_H

#include <cstring>

#include "frame/variant.h"
#include "transform/fft_data.h"

namespace orbs::ORBS_VARIANT {

enum class SpectrumLayout { perm, pack, ccs };

// Perm to `layout`, in place.
template <SpectrumLayout layout, class T>
ORBS_INLINE void ArrangeFromPerm(T* data, Index n) {
  if constexpr (layout == SpectrumLayout::pack) {
    if (n <= 2) return;
    const T last = data[1];
    std::memmove(data + 1, data + 2, static_cast<size_t>(n - 2) * sizeof(T));
    data[n - 1] = last;
  } else if constexpr (layout == SpectrumLayout::ccs) {
    if (n > 1) {
      data[n] = data[1];
      data[n + 1] = 0;
    }
    data[1] = 0;
  }
}

// Pack in src to Perm in dst, which may be src, for n above 1.
template <class T>
ORBS_INLINE void ArrangePackToPerm(const T* src, T* dst, Index n) {
  const T first = src[0];
  const T last = src[n - 1];
  std::memmove(dst + 2, src + 1, static_cast<size_t>(n - 2) * sizeof(T));
  dst[0] = first;
  dst[1] = last;
}

}  // namespace orbs::ORBS_VARIANT

#endif
