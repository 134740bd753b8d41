// One step of the adaptive filters: output and tap update.
//
//   plain        y = sum taps[k] x[k]             e = 2 mu (reference - y)         taps[k] += e x[k]
//   normalised   y = 2^-15 sum taps[k] x[k]       g = mu (reference - y) / E       taps[k] += g x[k]
//                E = sum x[k]^2
//
// Each function pushes the newest sample into the ring, updates the taps and returns y before any rounding.
#ifndef ORBS_FIR_LMS_KERNELS_H
#define ORBS_FIR_LMS_KERNELS_H

#include "fir/lms_ring.h"
#include "fir/lms_walk.h"
#include "frame/scaling.h"
#include "frame/simd.h"

namespace orbs::ORBS_VARIANT {

#if ORBS_VECTOR

template <class Sample>
ORBS_INLINE Orb32f LmsStep(const LmsRing<Sample>& ring, Sample newest, Orb32f reference, Orb32f* taps,
                           Orb32f mu) {
  const LmsSplit<F32> split(ring.Count());
  const Sample* const x = ring.Samples();
  const F32 lastTaps = split.LoadLast(taps);
  const F32 lastSamples = split.LoadLastSamples(x, newest);
  ring.Push(newest);

  F32 sums[4] = {F32::Zero(), F32::Zero(), F32::Zero(), F32::Zero()};
  split.ForVectors(
      [&](size_t k, int turn) { sums[turn] = MulAdd(F32::Load(taps + k), LoadAs<F32>(x + k), sums[turn]); });
  sums[3] = MulAdd(split.NotYetSeen(lastTaps), split.NotYetSeen(lastSamples), sums[3]);
  const F32 y = TotalInAll((sums[0] + sums[1]) + (sums[2] + sums[3]));

  const F32 e = (F32::All(reference) - y) * F32::All(2) * F32::All(mu);
  split.ForVectors(
      [&](size_t k, int) { MulAdd(e, LoadAs<F32>(x + k), F32::Load(taps + k)).Store(taps + k); });
  const F32 moved = MulAdd(e, lastSamples, lastTaps);
  split.StoreLast(taps, [&](Orb32f* to) { moved.Store(to); });
  return FirstLane(y);
}

// A tap and its move are rounded apart, not fused, so that the variants agree bit for bit. Beyond the upper
// bound the tap is limited; beyond the lower one the conversion itself gives -2^31.
ORBS_INLINE void StoreMovedQ15(Orb32s* to, F64 tap, F64 g, F64 sample) {
  StoreRounded(to, Min(tap + g * sample, F64::All(2147483647.0)));
}

ORBS_INLINE Orb64f LmsStepQ15(const LmsRing<Orb16s>& ring, Orb16s newest, Orb16s reference, Orb32s* taps,
                              Orb32s mu) {
  const LmsSplit<F64> split(ring.Count());
  const Orb16s* const x = ring.Samples();
  const F64 lastTaps = split.LoadLast(taps);
  const F64 lastSamples = split.LoadLastSamples(x, newest);
  ring.Push(newest);

  // Products are exact, and sums too below 2^53.
  F64 sums[4] = {F64::Zero(), F64::Zero(), F64::Zero(), F64::Zero()};
  F64 energies[4] = {F64::Zero(), F64::Zero(), F64::Zero(), F64::Zero()};
  const auto add = [&](F64 tap, F64 sample, int turn) {
    sums[turn] = MulAdd(tap, sample, sums[turn]);
    energies[turn] = MulAdd(sample, sample, energies[turn]);
  };
  split.ForVectors([&](size_t k, int turn) { add(LoadAs<F64>(taps + k), LoadAs<F64>(x + k), turn); });
  add(split.NotYetSeen(lastTaps), split.NotYetSeen(lastSamples), 3);
  const F64 y = TotalInAll((sums[0] + sums[1]) + (sums[2] + sums[3])) * F64::All(0x1p-15);
  const F64 energy = TotalInAll((energies[0] + energies[1]) + (energies[2] + energies[3]));

  if (FirstLane(energy) != 0) {
    const F64 g = F64::All(mu) * (F64::All(reference) - y) * (F64::All(1) / energy);
    split.ForVectors(
        [&](size_t k, int) { StoreMovedQ15(taps + k, LoadAs<F64>(taps + k), g, LoadAs<F64>(x + k)); });
    split.StoreLast(taps, [&](Orb32s* to) { StoreMovedQ15(to, lastTaps, g, lastSamples); });
  }
  return FirstLane(y);
}

#else

template <class Sample>
Wide<Orb32f> LmsStep(const LmsRing<Sample>& ring, Sample newest, Orb32f reference, Orb32f* taps, Orb32f mu) {
  using W = Wide<Orb32f>;
  ring.Push(newest);
  const Sample* const x = ring.Samples();
  W y = 0;
  for (size_t k = 0; k < ring.Count(); ++k) y += W(taps[k]) * W(x[k]);
  const W e = (reference - y) * 2 * mu;
  for (size_t k = 0; k < ring.Count(); ++k) taps[k] = static_cast<Orb32f>(taps[k] + e * W(x[k]));
  return y;
}

// A product of which the low bits count.
template <class T>
constexpr T MulWrapping(T a, T b) {
  using Unsigned = std::make_unsigned_t<T>;
  return static_cast<T>(static_cast<Unsigned>(a) * static_cast<Unsigned>(b));
}

inline Orb64s LmsStepQ15(const LmsRing<Orb16s>& ring, Orb16s newest, Orb16s reference, Orb32s* taps,
                         Orb32s mu) {
  ring.Push(newest);
  const Orb16s* const x = ring.Samples();
  Orb64s sum = 0;
  Orb64s energy = 0;
  for (size_t k = 0; k < ring.Count(); ++k) {
    sum += MulWrapping<Orb32s>(taps[k], x[k]);
    energy += Orb32s{x[k]} * x[k];
  }
  const Orb64s y = ShiftTiesEven<Orb64s>(sum, 15);
  if (energy == 0) return y;
  const Orb64s g = MulWrapping<Orb64s>(mu, reference - y);
  for (size_t k = 0; k < ring.Count(); ++k) {
    // A move of 2^32 reaches the other bound from any tap: limited to that, it can be added.
    constexpr Orb64s kLargest = Orb64s{1} << 32;
    const Orb64s move = MulWrapping<Orb64s>(g, x[k]) / energy;
    taps[k] = Saturate<Orb32s>(taps[k] + (move > kLargest ? kLargest : move < -kLargest ? -kLargest : move));
  }
  return y;
}

#endif

}  // namespace orbs::ORBS_VARIANT

#endif
