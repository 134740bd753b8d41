// What differs between the variants of the FIR filters: thresholds and scratch.
#ifndef ORBS_FIR_TUNING_H
#define ORBS_FIR_TUNING_H

#include <cstdint>

#include "core/variant.h"
#include "orbs90lgc/types.h"

namespace orbs::ORBS_VARIANT::fir {

// Groups of variants that share numbers.
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

}  // namespace orbs::ORBS_VARIANT::fir

#endif
