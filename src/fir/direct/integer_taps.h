// FIR filters without a state, with integer taps on 16-bit samples.
#ifndef ORBS_FIR_DIRECT_INTEGER_TAPS_H
#define ORBS_FIR_DIRECT_INTEGER_TAPS_H

#include "core/memory.h"
#include "fir/direct/direct.h"
#include "fir/integer/access.h"
#include "fir/integer/filter.h"
#include "fir/integer/kernels.h"
#include "fir/integer/state.h"
#include "simd/blocks.h"
#include "simd/dot_product.h"

namespace orbs::ORBS_VARIANT::fir {

#if ORBS_VECTOR

// 32-bit taps in two halves, so that the 16-bit kernels multiply them: tap = low + 2^16 high with low signed,
// of which a sum modulo 2^32 takes the low half of the high products. Both are laid out as the kernels read
// taps, reversed and in pairs.
template <int kParts>
struct SplitTaps {
  static constexpr size_t kElements = 2 * kParts * kDirectTaps;

  Orb16s low[kElements];
  Orb16s high[kElements];
  bool wide = false;  // whether high holds anything

  // n taps, backward from `last`.
  ORBS_INLINE void Store(const Orb32s* last, Orb32s n) {
    wide = false;
    if (n % 2 != 0) low[0] = high[0] = 0;
    for (Orb32s k = 0; k < n; ++k) Put(k + n % 2, static_cast<Orb32u>(last[-k]));
  }
  ORBS_INLINE void Store(const Orb32sc* last, Orb32s n) {
    wide = false;
    const int64_t imaginary = 2 * FirIntPairs<2>(n);
    for (Orb32s k = 0; k < n; ++k) {
      const auto re = static_cast<Orb32u>(last[-k].re);
      const auto im = static_cast<Orb32u>(last[-k].im);
      Put(2 * k, re);
      Put(2 * k + 1, 0 - im);
      Put(imaginary + 2 * k, im);
      Put(imaginary + 2 * k + 1, re);
    }
  }

 private:
  ORBS_INLINE void Put(int64_t at, Orb32u tap) {
    low[at] = static_cast<Orb16s>(tap);
    high[at] = static_cast<Orb16s>((tap - static_cast<Orb32u>(Orb32s{low[at]})) >> 16);
    wide |= high[at] != 0;
  }
};

// Sums of whole vectors of outputs, times 2^shift, stored or added to what is there.
template <int kParts, int kVectors>
ORBS_INLINE void TileSums(const Orb16s* x, const Orb16s* taps, Orb32s n, int shift, bool add, Orb32s* sums) {
  N32 a[kVectors];
  N32 b[kVectors];
  FirIntTileSums<kParts>(x, taps, n, a, b);
  ORBS_UNROLL
  for (int v = 0; v < kVectors; ++v, sums += I16::kLanes) {
    a[v] = ShiftLeft(a[v], shift);
    b[v] = ShiftLeft(b[v], shift);
    if (add) {
      a[v] = a[v] + N32::Load(sums);
      b[v] = b[v] + N32::Load(sums + N32::kLanes);
    }
    a[v].Store(sums);
    b[v].Store(sums + N32::kLanes);
  }
}

template <int kParts>
void Sums(const Orb16s* x, const Orb16s* taps, Orb32s n, Orb32s vectors, int shift, bool add, Orb32s* sums) {
  constexpr Orb32s kTile = 4;
  constexpr Orb32s kLanes = I16::kLanes;
  Orb32s v = 0;
  for (; v + kTile <= vectors; v += kTile)
    TileSums<kParts, kTile>(x + v * kLanes, taps, n, shift, add, sums + v * kLanes);
  for (; v < vectors; ++v) TileSums<kParts, 1>(x + v * kLanes, taps, n, shift, add, sums + v * kLanes);
}

ORBS_INLINE void DeliverVectors(const Orb32s* sums, Orb16s* dst, Orb32s parts, int d) {
  constexpr Orb32s kLanes = I16::kLanes;
  const auto vector = [=](Orb32s i) {
    return DeliverSums(N32::Load(sums + i), N32::Load(sums + i + N32::kLanes), d);
  };
  Orb32s i = 0;
  for (; i + kLanes <= parts; i += kLanes) vector(i).Store(dst + i);
  if (i == parts) return;
  Orb16s few[kLanes];
  vector(i).Store(few);
  CopyFew<kLanes * sizeof *few / 2>(dst + i, few, static_cast<size_t>(parts - i));
}

#endif

template <class Kind>
struct IntegerDirect {
  using Data = typename Kind::Data;
  using Tap = typename Kind::Tap;
  static constexpr int kParts = Kind::kParts;

  const Tap* taps;
  Orb32s tapCount;
  FirIntScale scale;

  ORBS_INLINE void One(const Data* x, Data* dst) const {
    Orb32s sums[kParts];
#if ORBS_VECTOR
    DotProduct<-1>(Parts(x), Parts(taps + (tapCount - 1)), tapCount, sums);
#else
    FirIntOne<-1>(x, taps + (tapCount - 1), tapCount, sums);
#endif
    for (int part = 0; part < kParts; ++part) Parts(dst)[part] = scale(sums[part]);
  }

#if ORBS_VECTOR
  static constexpr bool kReadsSource = false;

  // At most a chunk. Taps go in sections, the oldest samples' first.
  void Outputs(const Data* x, Data* dst, int64_t count) const {
    const auto parts = static_cast<Orb32s>(count) * kParts;
    const Orb32s vectors = (parts + I16::kLanes - 1) / I16::kLanes;
    SplitTaps<kParts> split;
    // In front one that an odd count of taps is multiplied with, by zero.
    Data samples[1 + kDirectTaps + kDirectChunk + kDirectRoom];
    samples[0] = Data{};
    Orb32s sums[kDirectChunk * kParts];
    for (int64_t k = 0; k < tapCount; k += kDirectTaps) {
      const auto section = static_cast<Orb32s>(tapCount - k < kDirectTaps ? tapCount - k : kDirectTaps);
      Copy(x + k, samples + 1, section + count - 1);
      split.Store(taps + (tapCount - 1 - k), section);
      const Orb16s* const from = Parts(samples + 1) - (kParts == 1 ? section % 2 : 0);
      Sums<kParts>(from, split.low, section, vectors, 0, k != 0, sums);
      if (split.wide) Sums<kParts>(from, split.high, section, vectors, 16, true, sums);
    }
    DeliverVectors(sums, Parts(dst), parts, scale.d);
  }
#endif
};

// ---- Taps of 16 bits ----

inline constexpr Orb32s kQ15 = -15;

inline OrbStatus CheckIndex(Orb32s tapCount, Orb32s delayIndex) {
  if (tapCount < 1) return StatusFirLength;
  return delayIndex < 0 || delayIndex >= tapCount ? StatusDelayIndex : StatusOk;
}

// By the block filter, on a state for the call: its taps are taken as they are, without the shift to a
// narrower range, and the delay line is that of the state's accessors.
inline OrbStatus FilterQ15(const Orb16s* src, Orb16s* dst, Orb32s count, const Orb16s* taps, Orb32s tapCount,
                           Orb16s* delayLine, Orb32s* delayIndex, Orb32s scaleFactor) {
  using Kind = Fir32s_16s;
  ORBS_RETURN_IF_BAD(CheckArrays(count, src, dst, taps, delayLine, delayIndex));
  ORBS_RETURN_IF_BAD(CheckIndex(tapCount, *delayIndex));
  auto* const state = static_cast<FIRIntState*>(AllocAligned(FirIntStateBytes<Kind>(tapCount)));
  if (state == nullptr) return StatusMemAlloc;
  StoreIntTaps(BuildFirInt<Kind>(state, tapCount, delayLine + *delayIndex), kQ15,
               [taps](int64_t i) { return taps[i]; });
  const OrbStatus status = Filter<Kind>(src, dst, count, state, scaleFactor);
  *delayIndex = 0;
  GetDlyLine<Kind>(state, delayLine);
  FreeAligned(state);
  return status;
}

inline OrbStatus FilterQ15One(const Orb16s* src, Orb16s* dst, const Orb16s* taps, Orb32s tapCount,
                              Orb16s* delayLine, Orb32s* delayIndex, Orb32s scaleFactor) {
  if (AnyNull(dst, taps, delayLine, delayIndex)) return StatusNullPointer;
  ORBS_RETURN_IF_BAD(CheckIndex(tapCount, *delayIndex));
  return FilterDirectOne(IntegerDirect<Fir16s>{taps, tapCount, FirIntScale::Of(kQ15, scaleFactor)}, src, dst,
                         delayLine, delayIndex);
}

}  // namespace orbs::ORBS_VARIANT::fir

#endif
