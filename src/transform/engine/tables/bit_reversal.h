// Bit reversal by table.
//
// The index of an element of N = 4M has a low bit b0, middle bits i and a top bit b1: 2i + b0 + (N/2) b1. Its
// place is 2 rev(i) + b1 + (N/2) b0. So the table lists middle bits only: first the pairs i < rev(i), closed
// by a 0, then the i that are their own reversal, closed by a 0; the 0 after the pairs serves i = 0 as well.
// An entry is 4i.
#ifndef ORBS_TRANSFORM_ENGINE_TABLES_BIT_REVERSAL_H
#define ORBS_TRANSFORM_ENGINE_TABLES_BIT_REVERSAL_H

#include <cstring>

#include "core/variant.h"
#include "transform/engine/data.h"

namespace orbs::ORBS_VARIANT::transform {

// For order >= 2: 2^order / 4 + 1 entries.
inline void BuildBitRevTable(int order, Orb32s* table) {
  const Orb32s middles = Orb32s{1} << (order - 2);
  Orb32s* pair = table;
  Orb32s* self = table + middles;
  *self-- = 0;
  Orb32s reversed = 0;
  for (Orb32s i = 1; i < middles; ++i) {
    // Reversed increment: a carry that runs downward from the top bit.
    Orb32s bit = middles >> 1;
    for (; (reversed & bit) != 0; bit >>= 1) reversed ^= bit;
    reversed |= bit;
    if (i < reversed) {
      *pair++ = 4 * i;
      *pair++ = 4 * reversed;
    } else if (i == reversed) {
      *self-- = 4 * i;
    }
  }
  *pair = 0;
}

template <int kBytes>
struct BitRevElement {
  unsigned char bytes[kBytes];
};

template <class Element>
ORBS_INLINE void BitRevCopyElements(const void* source, void* result, int order, const Orb32s* table) {
  const auto* src = static_cast<const Element*>(source);
  auto* dst = static_cast<Element*>(result);
  const Index half = (Index{1} << order) / 2;
  const auto copy = [=](Index from, Index to) {  // the four elements with middle bits `from`
    dst[to] = src[from];
    dst[to + half] = src[from + 1];
    dst[to + 1] = src[from + half];
    dst[to + half + 1] = src[from + half + 1];
  };
  for (; table[0] != 0; table += 2) {
    const Index i = table[0] >> 1;
    const Index j = table[1] >> 1;
    copy(i, j);
    copy(j, i);
  }
  do {
    const Index i = *table++ >> 1;
    copy(i, i);
  } while (*table != 0);
}

template <class Element>
ORBS_INLINE void BitRevSwapElements(void* elements, int order, const Orb32s* table) {
  auto* data = static_cast<Element*>(elements);
  const Index half = (Index{1} << order) / 2;
  const auto swap = [=](Index a, Index b) {
    const Element kept = data[a];
    data[a] = data[b];
    data[b] = kept;
  };
  for (; table[0] != 0; table += 2) {
    const Index i = table[0] >> 1;
    const Index j = table[1] >> 1;
    swap(i, j);
    swap(i + 1, j + half);
    swap(i + half, j + 1);
    swap(i + half + 1, j + half + 1);
  }
  do {
    const Index i = *table++ >> 1;
    swap(i + 1, i + half);
  } while (*table != 0);
}

// Any elements of 4, 8 and 16 bytes.
inline void BitRevCopy_32s(const void* src, void* dst, int order, const Orb32s* table) {
  BitRevCopyElements<BitRevElement<4>>(src, dst, order, table);
}
inline void BitRevCopy_64s(const void* src, void* dst, int order, const Orb32s* table) {
  BitRevCopyElements<BitRevElement<8>>(src, dst, order, table);
}
inline void BitRevCopy_128(const void* src, void* dst, int order, const Orb32s* table) {
  BitRevCopyElements<BitRevElement<16>>(src, dst, order, table);
}
inline void BitRevInPlace_32s(void* data, int order, const Orb32s* table) {
  BitRevSwapElements<BitRevElement<4>>(data, order, table);
}
inline void BitRevInPlace_64s(void* data, int order, const Orb32s* table) {
  BitRevSwapElements<BitRevElement<8>>(data, order, table);
}
inline void BitRevInPlace_128(void* data, int order, const Orb32s* table) {
  BitRevSwapElements<BitRevElement<16>>(data, order, table);
}

// The right width for a view, in place where source and result are the same array.
inline void BitRevCopy(Interleaved<const Orb32f> src, Interleaved<Orb32f> dst, int order,
                       const Orb32s* table) {
  BitRevCopy_64s(src.pairs, dst.pairs, order, table);
}
inline void BitRevCopy(Interleaved<const Orb64f> src, Interleaved<Orb64f> dst, int order,
                       const Orb32s* table) {
  BitRevCopy_128(src.pairs, dst.pairs, order, table);
}
inline void BitRevInPlace(Interleaved<Orb32f> data, int order, const Orb32s* table) {
  BitRevInPlace_64s(data.pairs, order, table);
}
inline void BitRevInPlace(Interleaved<Orb64f> data, int order, const Orb32s* table) {
  BitRevInPlace_128(data.pairs, order, table);
}

template <class T>
void BitReverse(Interleaved<const T> src, Interleaved<T> dst, int order, const Orb32s* table) {
  if (src.pairs == dst.pairs) {
    BitRevInPlace(dst, order, table);
  } else {
    BitRevCopy(src, dst, order, table);
  }
}

template <class T>
void BitReverseArray(const T* src, T* dst, int order, const Orb32s* table) {
  if constexpr (sizeof(T) == 4) {
    if (src == dst) {
      BitRevInPlace_32s(dst, order, table);
    } else {
      BitRevCopy_32s(src, dst, order, table);
    }
  } else {
    if (src == dst) {
      BitRevInPlace_64s(dst, order, table);
    } else {
      BitRevCopy_64s(src, dst, order, table);
    }
  }
}
template <class T>
void BitReverse(Split<const T> src, Split<T> dst, int order, const Orb32s* table) {
  BitReverseArray(src.re, dst.re, order, table);
  BitReverseArray(src.im, dst.im, order, table);
}

}  // namespace orbs::ORBS_VARIANT::transform

#endif
