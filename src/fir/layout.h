// What the block of a FIR state with floating-point taps holds: the one description from which Init and
// InitAlloc take their numbers. The size query reports what sizes.h fixes.
#ifndef ORBS_FIR_LAYOUT_H
#define ORBS_FIR_LAYOUT_H

#include "fir/kinds.h"
#include "fir/sizes.h"
#include "simd/simd.h"
#include "toolkit/toolkit.h"
#include "transform/fft.h"

namespace orbs::ORBS_VARIANT::fir {

// ---- The plan that belongs to a tap type ----

using transform::FftForm;
template <class Tap>
using FirFft = transform::Fft<PartOf<Tap>, PartsOf<Tap>::kCount == 2 ? FftForm::interleaved : FftForm::real>;

// The smallest order whose half holds more than n points: L is 2n+2 to 4n, so that at least half of each
// transform is useful output.
constexpr Orb32s FirFftOrder(Orb32s n) {
  Orb32s k = 2;
  while ((int64_t{1} << k) <= n) ++k;
  return k + 1;
}

// `fromTaps` is the threshold; a transform that the engine refuses means no FFT path.
template <class Tap>
FirFftSizes SizeFirFft(Orb32s n, Orb32s fromTaps) {
  FirFftSizes sizes;
  if (n < fromTaps) return sizes;
  sizes.order = FirFftOrder(n);
  if (FirFft<Tap>::GetSize(sizes.order, FftScaleInvByN, HintNone, &sizes.plan, &sizes.init, &sizes.work) !=
      StatusOk)
    return {};
  sizes.length = Orb32s{1} << sizes.order;
  return sizes;
}

// ---- The block ----

// The record stands on a multiple of these bytes.
template <class Tap>
inline constexpr uintptr_t kFirAlignment = sizeof(PartOf<Tap>) == 8 ? 32 : 16;
inline constexpr uintptr_t kFirAlignment_32s = 16;

#if ORBS_VECTOR
template <class Part>
inline constexpr int kFirLanes = VectorOf<Part>::kLanes;
#else
template <class Part>
inline constexpr int kFirLanes = 1;
#endif

// Elements of a vector.
template <class Tap>
inline constexpr int kFirElements = kIsPx ? 1 : kFirLanes<PartOf<Tap>> / PartsOf<Tap>::kCount;

struct FirLayout {
  BlockLayout block{0, 1};
  FIRFloatState offsets{};
  Offset<unsigned char> plan{};
  Offset<unsigned char> init{};
};

template <class Tap>
constexpr FirLayout DescribeFir(Orb32s n, const FirFftSizes& fft) {
  using Part = PartOf<Tap>;
  constexpr int kParts = PartsOf<Tap>::kCount;
  constexpr int kAlignment = 16;
  FirLayout layout;
  FIRFloatState& at = layout.offsets;
  BlockLayout& block = layout.block;
  block = BlockLayout(sizeof(FIRFloatState), kAlignment);
  const auto add = [&block](int64_t parts) { return Offset<void>{block.Add<Part>(parts, kAlignment).bytes}; };
  at.taps = add(int64_t{n} * kParts);
  // Behind the samples, room for reading whole vectors.
  const int64_t room = kIsPx ? 0 : 3 * kFirLanes<Part>;
  at.delayLine = add((3 * int64_t{n} + 4) * kParts + room);
#if ORBS_VECTOR
  if constexpr (std::is_same_v<Tap, Orb32f>) {
    at.preciseTaps = block.Add<Orb64f>(n, kAlignment);
  }
#endif
  at.blockBuf = add(int64_t{kFirBlock} * kParts);
  at.fftLen = -1;
  if (fft.length != 0) {
    at.fftLen = fft.length;
    at.tapsSpectrum = add(int64_t{fft.length} * kParts);
    at.fftWork = add(int64_t{fft.length} * kParts);
    // These align themselves.
    layout.plan = block.Add<unsigned char>(fft.plan, 1);
    layout.init = block.Add<unsigned char>(fft.init, 1);
    at.fftBuffer.bytes = block.Add<unsigned char>(fft.work, 1).bytes;
  }
  return layout;
}

}  // namespace orbs::ORBS_VARIANT::fir

#endif
