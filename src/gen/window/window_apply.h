// How the values of a symmetrical window meet the samples: from both ends of the array to the middle, so that
// each value serves two of them. The middle of an odd array is left to the caller.
#ifndef ORBS_GEN_WINDOW_WINDOW_APPLY_H
#define ORBS_GEN_WINDOW_WINDOW_APPLY_H

#include "core/scaling.h"
#include "simd/blocks.h"
#include "simd/simd.h"

namespace orbs::ORBS_VARIANT::gen {

#if ORBS_VECTOR

// A window makes this many values at a time: few enough that a recurrence in binary32 is still exact to the
// 16 bits of a sample, and a multiple of the lanes of every vector.
inline constexpr int kWindowChunk = 120;
static_assert(kWindowChunk % F32::kLanes == 0);

// I16::kLanes samples times their window values; scale(y) takes the products further before they are rounded.
template <class Scale>
ORBS_INLINE void Weigh(Orb16s* d, const Orb16s* s, const Orb32f* values, Scale scale) {
  PackFrom([&](int i) {
    I32 x;
    LoadWiden(s + i, &x);
    // The packing saturates what fits 32 bits. Above them the conversion would give -2^31, below them it does
    // so rightly.
    return RoundToInt(Min(F32::All(32767), scale(ToFloat(x) * F32::Load(values + i))));
  }).Store(d);
}

template <class Scale>
ORBS_INLINE void Weigh(Orb16sc* d, const Orb16sc* s, const Orb32f* values, Scale scale) {
  auto* const to = reinterpret_cast<Orb16s*>(d);
  const auto* const from = reinterpret_cast<const Orb16s*>(s);
  Orb32f both[2 * I16::kLanes];
  ORBS_UNROLL
  for (int i = 0; i < 2 * I16::kLanes; i += F32::kLanes) {
    F32 pairs;
    LoadPairs(values + i / 2, values + i / 2, &pairs);
    pairs.Store(both + i);
  }
  Weigh(to, from, both, scale);
  Weigh(to + I16::kLanes, from + I16::kLanes, both + I16::kLanes, scale);
}

// window(values, first, count) writes the values of `count` positions from `first` on; it may write up to the
// next multiple of the lanes. It is asked for chunks in ascending order.
template <class Data, class Window, class Scale>
ORBS_INLINE void ApplyWindow(const Data* src, Data* dst, Orb32s len, Window window, Scale scale) {
  const Orb32s half = len / 2;
  for (Orb32s first = 0; first < half;) {
    const Orb32s count = half - first < kWindowChunk ? half - first : kWindowChunk;
    const Orb32s padded = (count + F32::kLanes - 1) / F32::kLanes * F32::kLanes;
    Orb32f ascending[kWindowChunk];
    Orb32f descending[kWindowChunk];
    window(ascending, first, count);
    for (Orb32s i = 0; i < padded; i += F32::kLanes) {
      Reverse(F32::Load(ascending + i)).Store(descending + padded - F32::kLanes - i);
    }
    const auto weigh = [scale](Data* d, const Data* s, const Orb32f* values) { Weigh(d, s, values, scale); };
    const auto n = static_cast<size_t>(count);
    const Orb32s mirrored = len - first - count;
    ForBlocks<I16::kLanes>(n, weigh, dst + first, src + first, ascending);
    ForBlocks<I16::kLanes>(n, weigh, dst + mirrored, src + mirrored, descending + (padded - count));
    first += count;
  }
}

#else

template <class Value, class WeighPart>
void WeighSample(Orb16s* d, const Orb16s* s, Value value, WeighPart weigh) {
  *d = weigh(*s, value);
}
template <class Value, class WeighPart>
void WeighSample(Orb16sc* d, const Orb16sc* s, Value value, WeighPart weigh) {
  *d = {weigh(s->re, value), weigh(s->im, value)};
}

// window() gives the value of the next position; weigh(x, value) is a part of a sample times that value.
template <class Data, class Window, class WeighPart>
void ApplyWindow(const Data* src, Data* dst, Orb32s len, Window window, WeighPart weigh) {
  for (Orb32s n = 0; n < len / 2; ++n) {
    const Orb32s mirrored = len - 1 - n;
    const auto value = window();
    WeighSample(dst + n, src + n, value, weigh);
    WeighSample(dst + mirrored, src + mirrored, value, weigh);
  }
}

#endif

}  // namespace orbs::ORBS_VARIANT::gen

#endif
