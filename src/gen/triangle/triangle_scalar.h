// Triangles in px: each sample from the one before.
#ifndef ORBS_GEN_TRIANGLE_TRIANGLE_SCALAR_H
#define ORBS_GEN_TRIANGLE_TRIANGLE_SCALAR_H

#include "gen/tone/tone_store.h"
#include "gen/triangle/triangle_wave.h"

#if !ORBS_VECTOR

namespace orbs::ORBS_VARIANT::gen {

template <class Real>
class TriangleWalk {
 public:
  using Exact = Wide<Orb64f>;

  TriangleWalk(const TriangleSlopes<Real>& slopes, Exact magn, const TrianglePlace<Exact>& place)
      : slopes_(slopes), magn_(magn), place_(place) {}

  const TrianglePlace<Exact>& Place() const { return place_; }

  // Beyond a peak the overshoot goes on along the other flank, scaled by the ratio of the slopes. Where that
  // would leave the other flank too, the flank was shorter than a step, and the wave stays on the long one, a
  // period further. The conditions are false for a NaN, which ends the loops and keeps the wave off a flank
  // of length 0.
  void Step() {
    Exact& y = place_.value;
    y += place_.delta;
    while (place_.rising && y > magn_) {
      const Exact reflected = y * slopes_.reflectDown + slopes_.offsetTop;
      if (reflected >= -magn_) {
        place_ = {reflected, slopes_.downSlope, false};
      } else {
        y -= slopes_.periodUp;
      }
    }
    while (!place_.rising && y < -magn_) {
      const Exact reflected = y * slopes_.reflectUp + slopes_.offsetBottom;
      if (reflected <= magn_) {
        place_ = {reflected, slopes_.upSlope, true};
      } else {
        y += slopes_.periodDown;
      }
    }
  }

 private:
  const TriangleSlopes<Real>& slopes_;
  Exact magn_;
  TrianglePlace<Exact> place_;
};

// At a phase of 0 to 2 pi.
template <class Real>
ORBS_INLINE TrianglePlace<Wide<Orb64f>> PlaceAt(Wide<Orb64f> phase, const TriangleParameters& wave,
                                                const TriangleSlopes<Real>& slopes) {
  using Exact = Wide<Orb64f>;
  const Exact a = static_cast<Exact>(kPi) + wave.asym;
  const Exact b = static_cast<Exact>(kPi) - wave.asym;
  const bool onRise = a <= phase;
  const Exact unit = onRise ? 2 * (phase - a) / b - 1 : 1 - 2 * phase / a;
  const Exact delta = onRise ? slopes.upSlope : slopes.downSlope;
  return {wave.magn * unit, delta, delta > 0};
}

template <int kParts, class Part>
void GenerateTriangle(Part* dst, Orb32s len, const TriangleParameters& wave, Orb64f phase) {
  using Exact = Wide<Orb64f>;
  using Walk = TriangleWalk<Exact>;
  const auto slopes = SlopesOf<Exact>(wave);
  Walk re(slopes, wave.magn, PlaceAt<Exact>(phase, wave, slopes));
  if constexpr (kParts == 1) {
    for (Orb32s n = 0; n < len; ++n, re.Step()) StoreSample<ToInteger::kTruncate>(dst + n, re.Place().value);
  } else {
    const Exact ahead = phase + (static_cast<Exact>(kTwoPi) + kPi + wave.asym) / 2;
    Walk im(slopes, wave.magn, PlaceAt<Exact>(ahead >= kTwoPi ? ahead - kTwoPi : ahead, wave, slopes));
    for (Orb32s n = 0; n < len; ++n, dst += 2, re.Step(), im.Step()) {
      StoreSample<ToInteger::kTruncate>(dst, re.Place().value);
      StoreSample<ToInteger::kTruncate>(dst + 1, im.Place().value);
    }
  }
}

ORBS_INLINE TrianglePlace<Orb64f> StartTriangle(const TriangleParameters& wave,
                                                const TriangleSlopes<Orb64f>& slopes, Orb64f phase) {
  const auto place = PlaceAt<Orb64f>(phase, wave, slopes);
  return {static_cast<Orb64f>(place.value), static_cast<Orb64f>(place.delta), place.rising};
}

// Rounded samples from `place` on; gives the place behind them.
inline TrianglePlace<Orb64f> ContinueTriangle(Orb16s* dst, Orb32s len, const TriangleParameters& wave,
                                              const TriangleSlopes<Orb64f>& slopes,
                                              const TrianglePlace<Orb64f>& place) {
  TriangleWalk<Orb64f> walk(slopes, wave.magn, {place.value, place.delta, place.rising});
  for (Orb32s n = 0; n < len; ++n, walk.Step()) {
    StoreSample<ToInteger::kHalfAway>(dst + n, walk.Place().value);
  }
  return {static_cast<Orb64f>(walk.Place().value), static_cast<Orb64f>(walk.Place().delta),
          walk.Place().rising};
}

}  // namespace orbs::ORBS_VARIANT::gen

#endif
#endif
