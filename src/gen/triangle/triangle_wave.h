// What a triangle wave is made of.
#ifndef ORBS_GEN_TRIANGLE_TRIANGLE_WAVE_H
#define ORBS_GEN_TRIANGLE_TRIANGLE_WAVE_H

#include "gen/tone/tone_phase.h"

namespace orbs {

// Change per sample on each flank; the reflections of an overshoot at top and bottom onto the other flank,
// y reflect + offset; the height of a whole period at the slope of each flank.
//
// The length of a flank can be 0: falling at asym = -pi. Its numbers are then infinite or NaN, and nothing
// ever goes over to it.
template <class Real>
struct TriangleSlopes {
  Real downSlope;
  Real upSlope;
  Real reflectDown;
  Real reflectUp;
  Real periodUp;
  Real periodDown;
  Real offsetTop;
  Real offsetBottom;
};

}  // namespace orbs

namespace orbs::ORBS_VARIANT::gen {

// A Q15 asymmetry lies between -kMaxAsymmetryQ15 and kMaxAsymmetryQ15.
inline constexpr Orb32s kMaxAsymmetryQ15 = 102943;

struct TriangleParameters {
  Orb64f magn;
  Orb64f rFreq;
  Orb64f asym;
};

template <class Real>
ORBS_INLINE TriangleSlopes<Real> SlopesOf(const TriangleParameters& wave) {
  using Exact = Wide<Orb64f>;
  const Exact a = static_cast<Exact>(kPi) + wave.asym;
  const Exact b = static_cast<Exact>(kPi) - wave.asym;
  const Exact magn = wave.magn;
  // pi is divided before it is multiplied: without asymmetry both quotients are exactly 1, and the slopes as
  // exact as 4 magn rFreq. A slope that is off in its last bit would carry samples at -magn past the bottom,
  // and the reflection 16-bit samples one short of it.
  const Exact height = 4 * magn;
  const Exact perFall = static_cast<Exact>(kPi) / a;
  const Exact perRise = static_cast<Exact>(kPi) / b;
  return {static_cast<Real>(-(height * wave.rFreq * perFall)),
          static_cast<Real>(height * wave.rFreq * perRise),
          static_cast<Real>(-b / a),
          static_cast<Real>(-a / b),
          static_cast<Real>(height * perRise),
          static_cast<Real>(height * perFall),
          static_cast<Real>(magn + b / a * magn),
          static_cast<Real>(-(a / b) * magn - magn)};
}

// Where a wave stands in front of its next sample.
template <class Real>
struct TrianglePlace {
  Real value;
  Real delta;
  bool rising;
};

}  // namespace orbs::ORBS_VARIANT::gen

#endif
