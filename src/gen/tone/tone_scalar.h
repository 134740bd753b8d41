// Tones in px: from two exact samples by the recurrence of the cosine, in extended precision.
#ifndef ORBS_GEN_TONE_TONE_SCALAR_H
#define ORBS_GEN_TONE_TONE_SCALAR_H

#include <cmath>

#include "gen/tone/tone_phase.h"
#include "gen/tone/tone_store.h"

#if !ORBS_VECTOR

namespace orbs::ORBS_VARIANT::gen {

using Extended = Wide<Orb64f>;

// From the fifth sample on two interleaved chains, y[n] = (c^2 - 2) y[n-2] - y[n-4]: a step twice as long
// takes half as many dependent steps.
template <class Part>
void GenerateRealTone(Part* dst, Orb32s len, Extended magn, Extended w, Extended phase) {
  constexpr ToInteger kCut = ToInteger::kTruncate;
  const Extended c = 2 * std::cos(w);
  const Extended k = c * c - 2;
  Extended past[4];
  past[0] = magn * std::cos(phase);
  StoreSample<kCut>(dst, past[0]);
  if (len == 1) return;
  past[1] = magn * std::cos(phase + w);
  StoreSample<kCut>(dst + 1, past[1]);
  past[2] = c * past[1] - past[0];
  past[3] = c * past[2] - past[1];
  for (Orb32s n = 2; n < len && n < 4; ++n) StoreSample<kCut>(dst + n, past[n]);
  for (Orb32s n = 4; n < len; ++n) {
    const Extended y = k * past[2] - past[0];
    StoreSample<kCut>(dst + n, y);
    past[0] = past[1];
    past[1] = past[2];
    past[2] = past[3];
    past[3] = y;
  }
}

template <class Part>
void GenerateComplexTone(Part* dst, Orb32s len, Extended magn, Extended w, Extended phase) {
  constexpr ToInteger kCut = ToInteger::kTruncate;
  const Extended c = 2 * std::cos(w);
  Extended re[2] = {magn * std::cos(phase), magn * std::cos(phase + w)};
  Extended im[2] = {magn * std::sin(phase), magn * std::sin(phase + w)};
  for (Orb32s n = 0; n < len; ++n, dst += 2) {
    StoreSample<kCut>(dst, re[0]);
    StoreSample<kCut>(dst + 1, im[0]);
    const Extended nextRe = c * re[1] - re[0];
    const Extended nextIm = c * im[1] - im[0];
    re[0] = re[1];
    im[0] = im[1];
    re[1] = nextRe;
    im[1] = nextIm;
  }
}

template <int kParts, class Part, class Real>
void GenerateTone(Part* dst, Orb32s len, Orb64f magn, Real rFreq, Real phase, OrbAlgHint) {
  const Extended w = static_cast<Extended>(kTwoPi) * rFreq;
  if constexpr (kParts == 1) {
    GenerateRealTone(dst, len, magn, w, phase);
  } else {
    GenerateComplexTone(dst, len, magn, w, phase);
  }
}

// Samples `first` to first + len - 1, each from its own angle.
inline void GenerateIndexedTone(Orb16s* dst, Orb32s len, Orb64f magn, Orb64f rFreq, Orb64f phase,
                                Orb32s first) {
  const Extended w = static_cast<Extended>(kTwoPi) * rFreq;
  for (Orb32s i = 0; i < len; ++i) {
    const Extended n = static_cast<Extended>(first) + i;
    StoreSample<ToInteger::kHalfAway>(dst + i, magn * std::cos(n * w + phase));
  }
}

}  // namespace orbs::ORBS_VARIANT::gen

#endif
#endif
