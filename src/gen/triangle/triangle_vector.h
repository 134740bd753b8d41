// Triangles in the vector variants: each sample from its place in the period.
//
// Against the place t, 0 <= t < 1, the wave of magnitude 1 is the larger one of two lines, the falling one
// 1 - 2t/u and the rising one 2(t - u)/(1 - u) - 1, u being the place of the bottom. So there is no branch at
// the peaks, and no error that grows: every 256 samples the places start afresh from the index.
#ifndef ORBS_GEN_TRIANGLE_TRIANGLE_VECTOR_H
#define ORBS_GEN_TRIANGLE_TRIANGLE_VECTOR_H

#include <cstddef>
#include <cstring>

#include "gen/tone/tone_store.h"
#include "gen/tone/tone_turns.h"
#include "gen/triangle/triangle_wave.h"

#if ORBS_VECTOR

namespace orbs::ORBS_VARIANT::gen {

// Samples between fresh places: in 64 steps at most, the rounding of the step adds up to 4e-15 turns.
inline constexpr int kTriangleBlock = 256;

// Fractions of -0.5 to 2.5 turns: 0 <= t < 1.
ORBS_INLINE F64 WrapTurns(F64 t) {
  const F64 one = F64::All(1);
  const F64 nearest = t - RoundToWhole(t);
  const F64 place = nearest + (Less(nearest, F64::Zero()) & one);
  return AndNot(LessEqual(one, place), place);  // a tiny negative number and 1 make 1
}

struct TriangleShape {
  Orb64f bottom;
  Orb64f fall;  // change per turn on each flank
  Orb64f rise;

  ORBS_INLINE explicit TriangleShape(Orb64f asym)
      : bottom((kPi + asym) / kTwoPi), fall(2 / bottom), rise(2 / (1 - bottom)) {}

  // A flank of length 0 falls or rises without bounds. A falling one gives a NaN at t = 0, and Max then its
  // second operand; a rising one begins at 1, which t does not reach.
  ORBS_INLINE F64 operator()(F64 t) const {
    const F64 falling = NegMulAdd(F64::All(fall), t, F64::All(1));
    const F64 rising = F64::All(rise) * (t - F64::All(bottom)) - F64::All(1);
    return Max(falling, rising);
  }
};

// From the place `origin`, in turns.
template <ToInteger kRounding, int kParts, class Part>
void GenerateTriangleFrom(long double origin, Part* dst, Orb32s len, Orb64f magn, Orb64f rFreq,
                          const TriangleShape& shape) {
  // Four vectors a round cover the time of a step, and are whole vectors of any result type.
  constexpr int kVectors = 4;
  constexpr int kSamples = kVectors * F64::kLanes / kParts;

  // Where the lanes of a round stand before its first sample.
  F64 lead[kVectors];
  for (int i = 0; i < kVectors; ++i) {
    if constexpr (kParts == 1) {
      lead[i] = TurnsOfMultiples(F64::Load(kFirstNumbers + i * F64::kLanes), rFreq);
    } else {
      const Orb64f* first = kFirstNumbers + i * F64::kLanes / 2;
      F64 numbers;
      LoadPairs(first, first, &numbers);
      const F64 ahead = F64::All((1 + shape.bottom) / 2) &
                        Less(OddSigns(static_cast<F64*>(nullptr)) | F64::All(1), F64::Zero());
      lead[i] = TurnsOfMultiples(numbers, rFreq) + ahead;
    }
  }
  const F64 step = F64::All(TurnsOfSample(0, kSamples, rFreq));
  const F64 one = F64::All(1);
  const F64 scale = F64::All(magn);

  for (int64_t n = 0; n < len; n += kTriangleBlock) {
    const F64 start = F64::All(TurnsOfSample(origin, n, rFreq));
    F64 place[kVectors];
    ORBS_UNROLL
    for (int i = 0; i < kVectors; ++i) place[i] = WrapTurns(start + lead[i]);

    const auto round = [&](Part* to) {
      F64 unit[kVectors];
      ORBS_UNROLL
      for (int i = 0; i < kVectors; ++i) {
        unit[i] = shape(place[i]);
        const F64 next = place[i] + step;
        place[i] = next - (LessEqual(one, next) & one);
      }
      StoreScaled<kRounding>(to, unit, scale);
    };
    Part* to = dst + static_cast<size_t>(n) * kParts;
    int rest = len - n < kTriangleBlock ? static_cast<int>(len - n) : kTriangleBlock;
    for (; rest >= kSamples; rest -= kSamples, to += kSamples * kParts) round(to);
    if (rest > 0) {
      Part samples[kSamples * kParts];
      round(samples);
      std::memcpy(to, samples, static_cast<size_t>(rest) * kParts * sizeof(Part));
    }
  }
}

template <int kParts, class Part>
void GenerateTriangle(Part* dst, Orb32s len, const TriangleParameters& wave, Orb64f phase) {
  GenerateTriangleFrom<ToInteger::kTruncate, kParts>(TurnsOfPhase(phase), dst, len, wave.magn, wave.rFreq,
                                                     TriangleShape(wave.asym));
}

ORBS_INLINE TrianglePlace<Orb64f> PlaceAtTurns(Orb64f t, const TriangleParameters& wave,
                                               const TriangleShape& shape,
                                               const TriangleSlopes<Orb64f>& slopes) {
  Orb64f unit[F64::kLanes];
  shape(F64::All(t)).Store(unit);
  const Orb64f delta = t >= shape.bottom ? slopes.upSlope : slopes.downSlope;
  return {wave.magn * unit[0], delta, delta > 0};
}

ORBS_INLINE TrianglePlace<Orb64f> StartTriangle(const TriangleParameters& wave,
                                                const TriangleSlopes<Orb64f>& slopes, Orb64f phase) {
  return PlaceAtTurns(TurnsOfSample(TurnsOfPhase(phase), 0, 0), wave, TriangleShape(wave.asym), slopes);
}

// Rounded samples from `place` on; gives the place behind them. The value and its flank tell the turns,
// exactly so where the wave's own numbers are: without asymmetry, and from phase 0.
inline TrianglePlace<Orb64f> ContinueTriangle(Orb16s* dst, Orb32s len, const TriangleParameters& wave,
                                              const TriangleSlopes<Orb64f>& slopes,
                                              const TrianglePlace<Orb64f>& place) {
  const TriangleShape shape(wave.asym);
  const Orb64f unit = place.value / wave.magn;
  const Orb64f origin =
      place.rising ? shape.bottom + (unit + 1) / 2 * (1 - shape.bottom) : (1 - unit) / 2 * shape.bottom;
  GenerateTriangleFrom<ToInteger::kHalfAway, 1>(origin, dst, len, wave.magn, wave.rFreq, shape);
  return PlaceAtTurns(TurnsOfSample(origin, len, wave.rFreq), wave, shape, slopes);
}

}  // namespace orbs::ORBS_VARIANT::gen

#endif
#endif
