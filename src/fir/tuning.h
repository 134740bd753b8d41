// What differs between the variants of the FIR filters: thresholds, and the sizes of states. The sizes are
// interface: callers allocate by them, whatever a variant keeps in the room.
#ifndef ORBS_FIR_TUNING_H
#define ORBS_FIR_TUNING_H

#include <cstdint>

#include "core/record.h"
#include "core/variant.h"
#include "orbs90lgc/types.h"

namespace orbs::ORBS_VARIANT::fir {

// Groups of variants that share sizes.
inline constexpr bool kIsPx = kVariant == Variant::px;
inline constexpr bool kIsW7 = kVariant == Variant::w7;
inline constexpr bool kIsAvx = kVariant == Variant::g9 || kVariant == Variant::h9;

// ---- The FFT path: from how many taps a state has one ----

template <class Tap>
struct FirTuning;
template <>
struct FirTuning<Orb32f> {
  static constexpr Orb32s kFftFromTaps = 64;
};
template <>
struct FirTuning<Orb32fc> {
  static constexpr Orb32s kFftFromTaps = 16;
};
template <>
struct FirTuning<Orb64f> {
  static constexpr Orb32s kFftFromTaps = kIsPx || kIsW7 ? 32 : 64;
};
template <>
struct FirTuning<Orb64fc> {
  static constexpr Orb32s kFftFromTaps = kIsPx || kIsW7 ? 16 : 32;
};
inline constexpr Orb32s kFftFromTaps_32s = 32;  // FIRInitAlloc_32s, in all variants

// From how many samples a call takes the path.
template <bool kComplex>
inline constexpr Orb32s kFftFromSamples = kComplex ? 256 : 512;

// In place, the path of a chunk is chosen by what is left behind it.
inline constexpr Orb32s kInPlaceChunk = kIsAvx ? 4224 : 4096;

// ---- Scratch ----

// Elements of the block buffer. The vector variants give up some of the 4096 for the room behind the delay
// line that their loads of whole vectors need.
inline constexpr Orb32s kFirBlock = kIsPx ? 4096 : 4000;

// Samples at a time on their way through it.
inline constexpr Orb32s kFirChunk = 1024;

// The first samples of a block enter the delay line behind the n that stand there; this many fit at any
// delayIndex. With `vector` outputs made at a time it is that much more than the outputs that come from
// there, so that the rest, which is read from the caller's array, never has less than a vector of outputs.
template <int vector>
constexpr int64_t FirDelayRoom(int64_t n) {
  return kIsPx ? n + 4 : n + 2 * vector;
}

// ---- Sizes of float states, for n taps, without the parts of the FFT path ----

template <class Tap>
constexpr int64_t FirBytes(int64_t n);

template <>
constexpr int64_t FirBytes<Orb32f>(int64_t n) {
  if (kIsPx) return RoundUp(4 * n, 16) + ((12 * n + 31) & ~15) + 16528;
  if (kIsW7) return 5 * RoundUp(4 * n, 16) + ((12 * n + 31) & ~15) + 16528;
  if (kIsAvx) return 36 * ((n + 16) & ~7) + ((32 * n + 63) & ~31) + ((32 * n + 120) & ~127) + 17072;
  return 5 * RoundUp(4 * n, 16) + 16 * (((12 * n + 31) >> 4) + ((n + 6) & ~3)) + 16528;
}
template <>
constexpr int64_t FirBytes<Orb32fc>(int64_t n) {
  const int64_t delay = (24 * n + 47) & ~15;
  if (kIsPx) return RoundUp(8 * n, 16) + delay + 32912;
  return 13 * RoundUp(8 * n, 16) + delay + (kIsAvx ? 34032 : 33008);
}
template <>
constexpr int64_t FirBytes<Orb64f>(int64_t n) {
  const int64_t delay = (24 * n + 63) & ~31;
  if (kIsPx) return RoundUp(8 * n, 32) + delay + 32960;
  if (kIsW7) return 3 * RoundUp(8 * n, 32) + delay + 32960;
  if (kIsAvx) return 48 * ((n + 2) & ~1) + delay + 33984;
  return 32 * (((24 * n + 63) >> 5) + ((n + 2) & ~1)) + 32960;
}
template <>
constexpr int64_t FirBytes<Orb64fc>(int64_t n) {
  const int64_t delay = (48 * n + 95) & ~31;
  if (kIsPx) return RoundUp(16 * n, 32) + delay + 65712;
  return kIsAvx ? 5 * RoundUp(16 * n, 32) + delay + 67760 : 3 * RoundUp(16 * n, 32) + delay + 65712;
}
// The state of 32-bit integer taps, which are held as 64f.
constexpr int64_t FirBytes_32s(int64_t n) {
  const int64_t delay = (24 * n + 47) & ~15;
  if (kIsPx) return RoundUp(8 * n, 16) + delay + 32911;
  return kIsAvx ? 5 * RoundUp(8 * n, 16) + delay + 33935 : 3 * RoundUp(8 * n, 16) + delay + 32911;
}

// ---- Sizes of integer states ----

// tapBytes: 2 for 16s taps, 4 for 32s.
constexpr int64_t FirIntBytes(int64_t n, int64_t tapBytes) {
  if (kIsPx) return RoundUp(8 * n, 16) + ((6 * n + 23) & ~15) + RoundUp(tapBytes * n, 16) + 16480;
  return RoundUp(tapBytes * n, 16) + RoundUp(2 * (((n + 11) & ~7) + 2 * n) + 8, 16) + 64 * ((n + 11) >> 3) +
         16480 + (kIsAvx ? 512 : 0);
}
constexpr int64_t FirIntBytes_32sc(int64_t n) {
  const int64_t bytes = RoundUp(8 * n, 16) + ((12 * n + 31) & ~15) + 16480;
  return kIsPx ? bytes : bytes + 16 * n + (kIsAvx ? 512 : 0);
}

}  // namespace orbs::ORBS_VARIANT::fir

#endif
