// The sizes of FIR states, as the size queries report them. They are interface: callers allocate by them, so
// they stay as they are, whatever a variant keeps in the room. They include the room for aligning the
// caller's memory; sizes.cpp proves that each block fits.
#ifndef ORBS_FIR_SIZES_H
#define ORBS_FIR_SIZES_H

#include "core/record.h"
#include "fir/kinds.h"
#include "fir/tuning.h"

namespace orbs::ORBS_VARIANT::fir {

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

// What the FFT path takes: the numbers of its plan, and zeros without a path.
struct FirFftSizes {
  Orb32s order = 0;
  Orb32s length = 0;  // L
  Orb32s plan = 0;
  Orb32s init = 0;
  Orb32s work = 0;

  constexpr int64_t Total() const { return int64_t{plan} + init + work; }
};

// With the plan and two arrays of L taps.
template <class Tap>
constexpr int64_t FirStateBytes(int64_t n, const FirFftSizes& fft) {
  return FirBytes<Tap>(n) + 2 * RoundUp(int64_t{fft.length} * static_cast<int64_t>(sizeof(Tap)), 16) +
         fft.Total();
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
template <class Kind>
constexpr int64_t FirIntStateBytes(int64_t n) {
  return Kind::kParts == 2 ? FirIntBytes_32sc(n) : FirIntBytes(n, sizeof(typename Kind::Tap));
}

}  // namespace orbs::ORBS_VARIANT::fir

#endif
