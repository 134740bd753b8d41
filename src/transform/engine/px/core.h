// The core of px: radix 4 in place on up to 1024 points in bit-reversed order, and the radix-2 layers that
// join finished blocks. Both are written once for interleaved and split data.
#ifndef ORBS_TRANSFORM_ENGINE_PX_CORE_H
#define ORBS_TRANSFORM_ENGINE_PX_CORE_H

#include "core/variant.h"
#include "transform/engine/data.h"

namespace orbs::ORBS_VARIANT::transform {

// The largest order that the core takes: its data and table stay in the first-level cache.
inline constexpr int kCoreOrder = 10;

template <bool kForward, template <class> class Data, class T>
ORBS_INLINE void Join4(Data<T> e, Index q, Index k, Value<T> a0, Value<T> a1, Value<T> a2, Value<T> a3) {
  const Value<T> s = a0 + a1;
  const Value<T> d = a0 - a1;
  const Value<T> u = a2 + a3;
  const Value<T> v = QuarterTurn<kForward>(a2 - a3);
  Put(e, k, s + u);
  Put(e, q + k, d + v);
  Put(e, 2 * q + k, s - u);
  Put(e, 3 * q + k, d - v);
}

// 2^order points, order 2 to 10, with the core table of this order.
template <bool kForward, template <class> class Data, class T>
void FFTCore(Data<T> data, int order, const T* table) {
  const Index n = Index{1} << order;
  for (Index i = 0; i < n; i += 4) {
    const Data<T> e = data.At(i);
    Join4<kForward>(e, 1, 0, Get(e, 0), Get(e, 1), Get(e, 2), Get(e, 3));
  }
  const Interleaved<const T> twiddles = {table};
  Index group = 16;
  if ((order & 1) != 0) {
    // One layer of radix 2 on groups of 8; the turns by an eighth come from the table.
    const Value<T> eighth = Get(twiddles, 3 * (n / 8));
    for (Index i = 0; i < n; i += 8) {
      const Data<T> e = data.At(i);
      const Value<T> b[4] = {Get(e, 4), Turn<kForward>(Get(e, 5), eighth), QuarterTurn<kForward>(Get(e, 6)),
                             QuarterTurn<kForward>(Turn<kForward>(Get(e, 7), eighth))};
      for (Index k = 0; k < 4; ++k) {
        const Value<T> a = Get(e, k);
        Put(e, 4 + k, a - b[k]);
        Put(e, k, a + b[k]);
      }
    }
    group = 32;
  }
  for (; group <= n; group *= 4) {
    const Index q = group / 4;
    for (Index i = 0; i < n; i += group) {
      const Data<T> e = data.At(i);
      Join4<kForward>(e, q, 0, Get(e, 0), Get(e, q), Get(e, 2 * q), Get(e, 3 * q));
      for (Index k = 1; k < q; ++k) {
        // Bit-reversed data: the second quarter holds the points of index 2 mod 4, so it takes the square.
        const Interleaved<const T> w = twiddles.At(3 * k * (n / group));
        const Value<T> a1 = Turn<kForward>(Get(e, q + k), Get(w, 1));
        const Value<T> a2 = Turn<kForward>(Get(e, 2 * q + k), Get(w, 0));
        const Value<T> a3 = Turn<kForward>(Get(e, 3 * q + k), Get(w, 2));
        Join4<kForward>(e, q, k, Get(e, k), a1, a2, a3);
      }
    }
  }
}

// Joins the finished blocks of 2^blockOrder points to rows of 2^order. All groups of a layer use one strip of
// the table before the next is touched, so that it is read into the cache once.
template <bool kForward, template <class> class Data, class T>
void FFTLayers(Data<T> data, int blockOrder, int order, const T* table) {
  constexpr Index kStrip = 1024 / (2 * sizeof(T));
  const Interleaved<const T> twiddles = {table};
  const Index n = Index{1} << order;
  for (Index m = Index{1} << blockOrder; m < n; m *= 2) {
    const Index stride = n / (2 * m);
    for (Index strip = 0; strip < m; strip += kStrip) {
      const bool secondHalf = strip >= m / 2;  // there the twiddle is -i times that of the first half
      const Index entry = secondHalf ? strip - m / 2 : strip;
      for (Index i = 0; i < n; i += 2 * m) {
        const Data<T> e = data.At(i + strip);
        for (Index k = 0; k < kStrip; ++k) {
          Value<T> b = Turn<kForward>(Get(e, m + k), Get(twiddles, (entry + k) * stride));
          if (secondHalf) b = QuarterTurn<kForward>(b);
          const Value<T> a = Get(e, k);
          Put(e, m + k, a - b);
          Put(e, k, a + b);
        }
      }
    }
  }
}

}  // namespace orbs::ORBS_VARIANT::transform

#endif
