// One step of the adaptive filters: output and tap update.
//
//   plain        y = sum taps[k] x[k]             e = 2 mu (reference - y)         taps[k] += e x[k]
//   normalised   y = 2^-15 sum taps[k] x[k]       g = mu (reference - y) / E       taps[k] += g x[k]
//                E = sum x[k]^2
//
// Each function pushes the newest sample into the ring, updates the taps and returns y before any rounding.
#ifndef ORBS_FIR_ADAPTIVE_LMS_KERNELS_H
#define ORBS_FIR_ADAPTIVE_LMS_KERNELS_H

#include "core/scaling.h"
#include "fir/adaptive/lms_walk.h"
#include "fir/ring.h"
#include "simd/lanes.h"
#include "simd/load.h"
#include "simd/reduce.h"
#include "simd/simd.h"

namespace orbs::ORBS_VARIANT::fir {

#if ORBS_VECTOR

template <class V, class Sample>
ORBS_INLINE Orb32f LmsStepWith(const FirRing<Sample>& ring, Sample newest, Orb32f reference, Orb32f* taps,
                               Orb32f mu) {
  const LmsSplit<V> split(static_cast<size_t>(ring.n));
  const Sample* const x = ring.Upcoming();
  const V lastTaps = split.LoadLast(taps);
  const V lastSamples = split.LoadLastSamples(x, newest);
  ring.Append(newest);

  V sums[4] = {V::Zero(), V::Zero(), V::Zero(), V::Zero()};
  split.ForVectors(
      [&](size_t k, int turn) { sums[turn] = MulAdd(V::Load(taps + k), LoadAs<V>(x + k), sums[turn]); });
  sums[3] = MulAdd(split.NotYetSeen(lastTaps), split.NotYetSeen(lastSamples), sums[3]);
  const V y = SumInAllLanes((sums[0] + sums[1]) + (sums[2] + sums[3]));

  const V e = (V::All(reference) - y) * V::All(2) * V::All(mu);
  split.ForVectors([&](size_t k, int) { MulAdd(e, LoadAs<V>(x + k), V::Load(taps + k)).Store(taps + k); });
  split.StoreLast(taps, [&](Orb32f* to) { MulAdd(e, lastSamples, lastTaps).Store(to); });
  return LowLane(y);
}

template <class Sample>
Orb32f LmsStep(const FirRing<Sample>& ring, Sample newest, Orb32f reference, Orb32f* taps, Orb32f mu) {
  return WithVectorFor<F32, F32x4>(static_cast<size_t>(ring.n), [&](auto* vector) {
    return LmsStepWith<std::remove_pointer_t<decltype(vector)>>(ring, newest, reference, taps, mu);
  });
}

// What the first pass has widened, kept for the second: the conversions cost more than the arithmetic. Below
// 16 taps there is little to save; the buffers for 128 are 2 KiB on the stack.
inline constexpr size_t kLmsKeepFrom = 16;
inline constexpr size_t kLmsKeepTo = 128;

// A tap and its move are rounded apart, not fused, so that the variants agree bit for bit. Beyond the upper
// bound the tap is limited; beyond the lower one the conversion itself gives -2^31.
template <class V>
ORBS_INLINE void StoreMovedQ15(Orb32s* to, V tap, V g, V sample) {
  StoreRounded(to, Min(tap + g * sample, V::All(2147483647.0)));
}

template <class V, bool kKeep>
ORBS_INLINE Orb64f LmsStepQ15With(const FirRing<Orb16s>& ring, Orb16s newest, Orb16s reference, Orb32s* taps,
                                  Orb32s mu) {
  const LmsSplit<V> split(static_cast<size_t>(ring.n));
  const Orb16s* const x = ring.Upcoming();
  const V lastTaps = split.LoadLast(taps);
  const V lastSamples = split.LoadLastSamples(x, newest);
  ring.Append(newest);

  alignas(V) Orb64f keptTaps[kKeep ? kLmsKeepTo : 1];
  alignas(V) Orb64f keptSamples[kKeep ? kLmsKeepTo : 1];
  // Products are exact, and sums too below 2^53.
  V sums[4] = {V::Zero(), V::Zero(), V::Zero(), V::Zero()};
  V energies[4] = {V::Zero(), V::Zero(), V::Zero(), V::Zero()};
  const auto add = [&](V tap, V sample, int turn) {
    sums[turn] = MulAdd(tap, sample, sums[turn]);
    energies[turn] = MulAdd(sample, sample, energies[turn]);
  };
  split.ForVectors([&](size_t k, int turn) {
    const V tap = LoadAs<V>(taps + k);
    const V sample = LoadAs<V>(x + k);
    if constexpr (kKeep) {
      tap.Store(keptTaps + k);
      sample.Store(keptSamples + k);
    }
    add(tap, sample, turn);
  });
  add(split.NotYetSeen(lastTaps), split.NotYetSeen(lastSamples), 3);
  const V y = SumInAllLanes((sums[0] + sums[1]) + (sums[2] + sums[3])) * V::All(0x1p-15);
  const V energy = SumInAllLanes((energies[0] + energies[1]) + (energies[2] + energies[3]));
  if (LowLane(energy) == 0) return LowLane(y);

  const V g = V::All(mu) * (V::All(reference) - y) * (V::All(1) / energy);
  split.ForVectors([&](size_t k, int) {
    if constexpr (kKeep) {
      StoreMovedQ15(taps + k, V::Load(keptTaps + k), g, V::Load(keptSamples + k));
    } else {
      StoreMovedQ15(taps + k, LoadAs<V>(taps + k), g, LoadAs<V>(x + k));
    }
  });
  split.StoreLast(taps, [&](Orb32s* to) { StoreMovedQ15(to, lastTaps, g, lastSamples); });
  return LowLane(y);
}

inline Orb64f LmsStepQ15(const FirRing<Orb16s>& ring, Orb16s newest, Orb16s reference, Orb32s* taps,
                         Orb32s mu) {
  const size_t n = static_cast<size_t>(ring.n);
  if (n >= kLmsKeepFrom && n <= kLmsKeepTo)
    return LmsStepQ15With<F64, true>(ring, newest, reference, taps, mu);
  return WithVectorFor<F64, F64x2>(n, [&](auto* vector) {
    return LmsStepQ15With<std::remove_pointer_t<decltype(vector)>, false>(ring, newest, reference, taps, mu);
  });
}

#else

template <class Sample>
Wide<Orb32f> LmsStep(const FirRing<Sample>& ring, Sample newest, Orb32f reference, Orb32f* taps, Orb32f mu) {
  using W = Wide<Orb32f>;
  ring.Append(newest);
  const Sample* const x = ring.Recent();
  W y = 0;
  for (size_t k = 0; k < static_cast<size_t>(ring.n); ++k) y += W(taps[k]) * W(x[k]);
  const W e = (reference - y) * 2 * mu;
  for (size_t k = 0; k < static_cast<size_t>(ring.n); ++k)
    taps[k] = static_cast<Orb32f>(taps[k] + e * W(x[k]));
  return y;
}

// A product of which the low bits count.
template <class T>
constexpr T MulWrapping(T a, T b) {
  using Unsigned = std::make_unsigned_t<T>;
  return static_cast<T>(static_cast<Unsigned>(a) * static_cast<Unsigned>(b));
}

inline Orb64s LmsStepQ15(const FirRing<Orb16s>& ring, Orb16s newest, Orb16s reference, Orb32s* taps,
                         Orb32s mu) {
  ring.Append(newest);
  const Orb16s* const x = ring.Recent();
  Orb64s sum = 0;
  Orb64s energy = 0;
  for (size_t k = 0; k < static_cast<size_t>(ring.n); ++k) {
    sum += MulWrapping<Orb32s>(taps[k], x[k]);
    energy += Orb32s{x[k]} * x[k];
  }
  const Orb64s y = ShiftTiesEven<Orb64s>(sum, 15);
  if (energy == 0) return y;
  const Orb64s g = MulWrapping<Orb64s>(mu, reference - y);
  for (size_t k = 0; k < static_cast<size_t>(ring.n); ++k) {
    // A move of 2^32 reaches the other bound from any tap: limited to that, it can be added.
    constexpr Orb64s kLargest = Orb64s{1} << 32;
    const Orb64s move = MulWrapping<Orb64s>(g, x[k]) / energy;
    taps[k] = Saturate<Orb32s>(taps[k] + (move > kLargest ? kLargest : move < -kLargest ? -kLargest : move));
  }
  return y;
}

#endif

}  // namespace orbs::ORBS_VARIANT::fir

#endif
