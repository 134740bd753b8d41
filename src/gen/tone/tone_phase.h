// Ranges and phases, for tones and triangles alike.
#ifndef ORBS_GEN_TONE_TONE_PHASE_H
#define ORBS_GEN_TONE_TONE_PHASE_H

#include <cstdint>

#include "core/constants.h"
#include "core/variant.h"
#include "orbs90lgc/types.h"

namespace orbs::ORBS_VARIANT::gen {

inline constexpr Orb64f kInverseTwoPi = 0.15915494309189535;

// The largest Q15 numbers below 0.5 and below 2 pi.
inline constexpr Orb32s kMaxFrequencyQ15 = 16383;
inline constexpr Orb32s kMaxPhaseQ15 = 205886;
inline constexpr Orb64f kQ15 = 1.0 / 32768;

// low <= x < high; never for a NaN. In binary64, since the binary32 numbers nearest to pi and 2 pi lie above
// them.
ORBS_INLINE bool IsWithin(Orb64f low, Orb64f x, Orb64f high) { return x >= low && x < high; }

ORBS_INLINE bool IsPhaseQ15(Orb32s phaseQ15) {
  return static_cast<Orb32u>(phaseQ15) <= static_cast<Orb32u>(kMaxPhaseQ15);
}

// The phase `len` samples on, stored: always a legal phase, since what rounding carries out of the range, or
// up to 2 pi on the way into binary32, becomes 0. In extended precision in every variant: 2 pi len rFreq
// reaches 10^10, of which binary64 keeps six decimals.
template <class T>
ORBS_INLINE T AdvancedPhase(T phase, Orb32s len, T rFreq) {
  const long double x = phase + static_cast<long double>(kTwoPi) * len * rFreq;
  const auto periods = static_cast<long double>(static_cast<int64_t>(x * kInverseTwoPi));
  const auto stored = static_cast<T>(x - kTwoPi * periods);
  return IsWithin(0, stored, kTwoPi) ? stored : T(0);
}

}  // namespace orbs::ORBS_VARIANT::gen

#endif
