// Triangles with the phase in a variable of the caller's.
#include "core/checks.h"
#include "gen/triangle/triangle_kernels.h"

#define ORBS_SLICE "boundary/exports/gen.def"
#include "boundary/declare_exports.h"

namespace orbs::ORBS_VARIANT {
using namespace gen;
namespace {

template <class Sample, class Magnitude, class Real>
ORBS_INLINE OrbStatus GenerateDirect(Sample* dst, Orb32s len, Magnitude magn, Real rFreq, Real asym,
                                     Real* phase) {
  if (phase == nullptr) return StatusNullPointer;
  if (!(magn > 0)) return StatusTriangleMagnitude;
  if (!IsWithin(0, rFreq, 0.5)) return StatusTriangleFrequency;
  if (!IsWithin(-kPi, asym, kPi)) return StatusTriangleAsymmetry;
  if (!IsWithin(0, *phase, kTwoPi)) return StatusTrianglePhase;
  ORBS_RETURN_IF_BAD(CheckArrays(len, dst));

  const Real start = *phase;
  *phase = AdvancedPhase(start, len, rFreq);
  GenerateTriangle<PartsOf<Sample>::kCount>(Parts(dst), len, {static_cast<Orb64f>(magn), rFreq, asym}, start);
  return StatusOk;
}

}  // namespace

OrbStatus legacy90orbsTriangle_Direct_32f(Orb32f* dst, Orb32s len, Orb32f magn, Orb32f rFreq, Orb32f asym,
                                          Orb32f* phase) {
  return GenerateDirect(dst, len, magn, rFreq, asym, phase);
}

OrbStatus legacy90orbsTriangle_Direct_64f(Orb64f* dst, Orb32s len, Orb64f magn, Orb64f rFreq, Orb64f asym,
                                          Orb64f* phase) {
  return GenerateDirect(dst, len, magn, rFreq, asym, phase);
}

OrbStatus legacy90orbsTriangle_Direct_32fc(Orb32fc* dst, Orb32s len, Orb32f magn, Orb32f rFreq, Orb32f asym,
                                           Orb32f* phase) {
  return GenerateDirect(dst, len, magn, rFreq, asym, phase);
}

OrbStatus legacy90orbsTriangle_Direct_64fc(Orb64fc* dst, Orb32s len, Orb64f magn, Orb64f rFreq, Orb64f asym,
                                           Orb64f* phase) {
  return GenerateDirect(dst, len, magn, rFreq, asym, phase);
}

OrbStatus legacy90orbsTriangle_Direct_16s(Orb16s* dst, Orb32s len, Orb16s magn, Orb32f rFreq, Orb32f asym,
                                          Orb32f* phase) {
  return GenerateDirect(dst, len, magn, rFreq, asym, phase);
}

OrbStatus legacy90orbsTriangle_Direct_16sc(Orb16sc* dst, Orb32s len, Orb16s magn, Orb32f rFreq, Orb32f asym,
                                           Orb32f* phase) {
  return GenerateDirect(dst, len, magn, rFreq, asym, phase);
}

}  // namespace orbs::ORBS_VARIANT
