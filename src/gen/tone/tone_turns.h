// Angles in turns: a multiple of a relative frequency needs no rounding to lose its whole turns, as it would
// in radians.
#ifndef ORBS_GEN_TONE_TONE_TURNS_H
#define ORBS_GEN_TONE_TONE_TURNS_H

#include <cstdint>

#include "gen/tone/tone_phase.h"

#if ORBS_VECTOR

#include "simd/simd.h"
#include "simd/sine_cosine.h"

namespace orbs::ORBS_VARIANT::gen {

// The phase in which a wave starts, in turns: for samples far from it in extended precision, whose 64 bits
// hold the product of an index and any binary32 frequency.
ORBS_INLINE long double TurnsOfPhase(Orb64f phase) {
  return phase * 0.159154943091895335768883763372514362L;  // 1 / (2 pi)
}

// The place in its period, 0 <= t < 1, of sample n >= 0 of a wave that starts at `origin`.
ORBS_INLINE Orb64f TurnsOfSample(long double origin, int64_t n, Orb64f rFreq) {
  const long double turns = origin + static_cast<long double>(n) * rFreq;
  const auto place = static_cast<Orb64f>(turns - static_cast<long double>(static_cast<int64_t>(turns)));
  return place < 1 ? place : 0;  // rounded up to 1
}

inline constexpr Orb64f kFirstNumbers[16] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15};

// n rFreq for whole n below 1024, without whole turns: -0.5 to 0.5. rFreq in two parts, of which n times the
// first is exact.
ORBS_INLINE F64 TurnsOfMultiples(F64 n, Orb64f rFreq) {
  const Orb64f coarse = (rFreq + 768) - 768;  // a multiple of 2^-43
  const F64 turns = n * F64::All(coarse);
  return MulAdd(n, F64::All(rFreq - coarse), turns - RoundToWhole(turns));
}

}  // namespace orbs::ORBS_VARIANT::gen

#endif
#endif
