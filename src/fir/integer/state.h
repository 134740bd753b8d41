// States of FIR filters with integer taps: the block, the taps on their way into it, the delay line.
//
// Stored taps have at most 16 significant bits; true tap = stored tap * 2^tapsFactor.
#ifndef ORBS_FIR_INTEGER_STATE_H
#define ORBS_FIR_INTEGER_STATE_H

#include <cstring>

#include "fir/integer/kernels.h"
#include "fir/kinds.h"
#include "fir/sizes.h"

namespace orbs::ORBS_VARIANT::fir {

template <class Kind>
struct FirIntView {
  using Tap = typename Kind::Tap;
  using Data = typename Kind::Data;
#if ORBS_VECTOR
  using KernelTap = Orb16s;
#else
  using KernelTap = Tap;
#endif

  FIRIntState* state;

  Tap* Taps() const { return static_cast<Tap*>(state->taps.In(state)); }
  Data* Delay() const { return static_cast<Data*>(state->delayLine.In(state)); }
  Data* Block() const { return static_cast<Data*>(state->blockBuf.In(state)); }
  const KernelTap* KernelTaps() const {
#if ORBS_VECTOR
    return state->taps16.In(state);
#else
    return Taps();
#endif
  }
};

// ---- The block ----

// The record stands on a multiple of these bytes.
inline constexpr uintptr_t kFirIntAlignment = 16;

template <class Kind>
constexpr FIRIntState DescribeFirInt(Orb32s n, BlockLayout* block) {
  using Data = typename Kind::Data;
  constexpr int kAlignment = 16;
  FIRIntState at{};
  *block = BlockLayout(sizeof(FIRIntState), kAlignment);
  at.taps.bytes = block->Add<typename Kind::Tap>(n, kAlignment).bytes;
  // Behind the samples, room for reading whole vectors.
  const int64_t room = kIsPx ? 0 : 3 * kFirIntVector<Data>;
  at.delayLine.bytes = block->Add<Data>(3 * int64_t{n} + 4 + room, kAlignment).bytes;
#if ORBS_VECTOR
  at.taps16 = block->Add<Orb16s>(FirTaps16Elements<Kind::kParts>(n), kAlignment);
#endif
  at.blockBuf.bytes = block->Add<Data>(kFirBlock, kAlignment).bytes;
  return at;
}

// ---- Taps ----

ORBS_INLINE Orb32s Magnitude(Orb32s x) {
  // -2^31 has no magnitude: it stays negative.
  return x < 0 ? static_cast<Orb32s>(0 - static_cast<Orb32u>(x)) : x;
}

// How far 32-bit taps are shifted right so that the largest magnitude is at most 32766.
ORBS_INLINE int FirTapShift(const Orb32s* taps, int64_t parts) {
  Orb32s largest = 0;
  for (int64_t i = 0; i < parts; ++i) {
    if (Magnitude(taps[i]) > largest) largest = Magnitude(taps[i]);
  }
  int shift = 0;
  for (; largest > 32766; largest >>= 1) ++shift;
  return shift;
}
// 16-bit taps: only -32768 is too much.
ORBS_INLINE int FirTapShift(const Orb16s* taps, int64_t parts) {
  for (int64_t i = 0; i < parts; ++i) {
    if (taps[i] == INT16_MIN) return 1;
  }
  return 0;
}

struct FirQuantisation {
  Orb32s factor;  // of the stored taps
  float scale;    // 2^-factor
};

// The largest magnitude goes to the upper half of 16 bits: 1.0 is stored as 16384 with factor -14. Taps that
// are all zero end with factor -33.
inline FirQuantisation QuantisationOf(const Orb32f* taps, int64_t parts) {
  float largest = 0;
  for (int64_t i = 0; i < parts; ++i) {
    const float magnitude = taps[i] < 0 ? -taps[i] : taps[i];
    if (magnitude > largest) largest = magnitude;
  }
  FirQuantisation q = {0, 1};
  if (largest > 32767.0f) {
    do {
      largest *= 0.5f;
      q.scale *= 0.5f;
      ++q.factor;
    } while (!(largest <= 32767.0f || q.factor > 32));
  } else {
    for (float doubled = 2 * largest; doubled < 32767.0f && q.factor >= -32; doubled *= 2) {
      --q.factor;
      q.scale *= 2;
    }
  }
  return q;
}

// The integer part of y plus a half away from zero; what has none gives the lower bound. In binary64, where
// the sum is exact: in binary32 it would carry 0.49999997 to 1.
ORBS_INLINE Orb32s QuantiseTap(Orb64f y) {
  const Orb64f shifted = y >= 0 ? y + 0.5 : y - 0.5;
  return shifted > -2147483649.0 && shifted < 2147483648.0 ? static_cast<Orb32s>(shifted) : INT32_MIN;
}

// Stores `parts` numbers of n taps, element by element reversed.
template <class Kind, class Convert>
void StoreIntTaps(FirIntView<Kind> view, Orb32s tapsFactor, Convert convert) {
  using Part = PartOf<typename Kind::Tap>;
  FIRIntState* const state = view.state;
  const Orb32s n = state->tapCount;
  state->tapsFactor = tapsFactor;
  Part* const taps = Parts(view.Taps());
  for (Orb32s i = 0; i < n; ++i) {
    for (int part = 0; part < Kind::kParts; ++part) {
      taps[int64_t{n - 1 - i} * Kind::kParts + part] =
          static_cast<Part>(convert(int64_t{i} * Kind::kParts + part));
    }
  }
#if ORBS_VECTOR
  StoreTaps16(view.Taps(), n, state->taps16.In(state));
#endif
}

// Integer taps, shifted to 16 significant bits.
template <class Kind>
void StoreShiftedTaps(FirIntView<Kind> view, const typename Kind::Tap* given, Orb32s tapsFactor) {
  const auto* taps = Parts(given);
  const int shift = FirTapShift(taps, int64_t{view.state->tapCount} * Kind::kParts);
  StoreIntTaps(view, AddWrapping(tapsFactor, Orb32s{shift}), [=](int64_t i) { return taps[i] >> shift; });
}

// Floating-point taps, quantised.
template <class Kind, class Given>
void StoreQuantisedTaps(FirIntView<Kind> view, const Given* given) {
  const Orb32f* taps = Parts(given);
  const FirQuantisation q = QuantisationOf(taps, int64_t{view.state->tapCount} * Kind::kParts);
  StoreIntTaps(view, q.factor, [=](int64_t i) { return QuantiseTap(Orb64f{taps[i]} * q.scale); });
}

// ---- Delay line; the caller's has the newest sample first ----

template <class Kind>
void StoreIntDelay(FirIntView<Kind> view, const typename Kind::Data* delayLine) {
  const Orb32s n = view.state->tapCount;
  view.state->delayIndex = 0;
  for (Orb32s j = 0; j < n; ++j) {
    view.Delay()[n - 1 - j] = delayLine == nullptr ? typename Kind::Data{} : delayLine[j];
  }
}

// All but the taps.
template <class Kind>
FirIntView<Kind> BuildFirInt(FIRIntState* state, Orb32s n, const typename Kind::Data* delayLine) {
  BlockLayout block(0, 1);
  const FIRIntState offsets = DescribeFirInt<Kind>(n, &block);
  // All of it, since vectors are read from behind samples and taps too.
  std::memset(static_cast<void*>(state), 0, static_cast<size_t>(block.Bytes()));
  *state = offsets;
  state->id = Kind::kId;
  state->tapCount = n;
  const FirIntView<Kind> view{state};
  StoreIntDelay(view, delayLine);
  return view;
}

}  // namespace orbs::ORBS_VARIANT::fir

#endif
