// Tones with the phase in a variable of the caller's.
#include "core/checks.h"
#include "gen/tone/tone_kernels.h"

#define ORBS_SLICE "boundary/exports/gen.def"
#include "boundary/declare_exports.h"

namespace orbs::ORBS_VARIANT {
using namespace gen;
namespace {

template <class Sample, class Magnitude, class Real>
ORBS_INLINE OrbStatus GenerateDirect(Sample* dst, Orb32s len, Magnitude magn, Real rFreq, Real* phase,
                                     OrbAlgHint hint) {
  constexpr int kParts = PartsOf<Sample>::kCount;
  if (phase == nullptr) return StatusNullPointer;
  if (!(magn > 0)) return StatusToneMagnitude;
  if (!IsWithin(0, rFreq, kParts == 1 ? 0.5 : 1.0)) return StatusToneFrequency;
  if (!IsWithin(0, *phase, kTwoPi)) return StatusTonePhase;
  ORBS_RETURN_IF_BAD(CheckArrays(len, dst));

  const Real start = *phase;
  *phase = AdvancedPhase(start, len, rFreq);
  GenerateTone<kParts>(Parts(dst), len, magn, rFreq, start, hint);
  return StatusOk;
}

}  // namespace

OrbStatus legacy90orbsTone_Direct_32f(Orb32f* dst, Orb32s len, Orb32f magn, Orb32f rFreq, Orb32f* phase,
                                      OrbAlgHint hint) {
  return GenerateDirect(dst, len, magn, rFreq, phase, hint);
}

OrbStatus legacy90orbsTone_Direct_64f(Orb64f* dst, Orb32s len, Orb64f magn, Orb64f rFreq, Orb64f* phase,
                                      OrbAlgHint hint) {
  return GenerateDirect(dst, len, magn, rFreq, phase, hint);
}

OrbStatus legacy90orbsTone_Direct_32fc(Orb32fc* dst, Orb32s len, Orb32f magn, Orb32f rFreq, Orb32f* phase,
                                       OrbAlgHint hint) {
  return GenerateDirect(dst, len, magn, rFreq, phase, hint);
}

OrbStatus legacy90orbsTone_Direct_64fc(Orb64fc* dst, Orb32s len, Orb64f magn, Orb64f rFreq, Orb64f* phase,
                                       OrbAlgHint hint) {
  return GenerateDirect(dst, len, magn, rFreq, phase, hint);
}

OrbStatus legacy90orbsTone_Direct_16s(Orb16s* dst, Orb32s len, Orb16s magn, Orb32f rFreq, Orb32f* phase,
                                      OrbAlgHint hint) {
  return GenerateDirect(dst, len, magn, rFreq, phase, hint);
}

OrbStatus legacy90orbsTone_Direct_16sc(Orb16sc* dst, Orb32s len, Orb16s magn, Orb32f rFreq, Orb32f* phase,
                                       OrbAlgHint hint) {
  return GenerateDirect(dst, len, magn, rFreq, phase, hint);
}

}  // namespace orbs::ORBS_VARIANT
