// Ramps: straight lines rounded into eight element types.
#include "core/checks.h"
#include "gen/pattern/ramp_kernels.h"

#define ORBS_SLICE "boundary/exports/gen.def"
#include "boundary/declare_exports.h"

namespace orbs::ORBS_VARIANT {
using namespace gen;
namespace {

template <class Result>
ORBS_INLINE OrbStatus Ramp(Result* dst, Orb32s len, Orb32f offset, Orb32f slope) {
  ORBS_RETURN_IF_BAD(CheckArrays(len, dst));
  FillRamp(dst, len, offset, slope);
  return StatusOk;
}

}  // namespace

OrbStatus legacy90orbsVectorRamp_8u(Orb8u* dst, Orb32s len, Orb32f offset, Orb32f slope) {
  return Ramp(dst, len, offset, slope);
}

OrbStatus legacy90orbsVectorRamp_8s(Orb8s* dst, Orb32s len, Orb32f offset, Orb32f slope) {
  return Ramp(dst, len, offset, slope);
}

OrbStatus legacy90orbsVectorRamp_16u(Orb16u* dst, Orb32s len, Orb32f offset, Orb32f slope) {
  return Ramp(dst, len, offset, slope);
}

OrbStatus legacy90orbsVectorRamp_16s(Orb16s* dst, Orb32s len, Orb32f offset, Orb32f slope) {
  return Ramp(dst, len, offset, slope);
}

OrbStatus legacy90orbsVectorRamp_32u(Orb32u* dst, Orb32s len, Orb32f offset, Orb32f slope) {
  return Ramp(dst, len, offset, slope);
}

OrbStatus legacy90orbsVectorRamp_32s(Orb32s* dst, Orb32s len, Orb32f offset, Orb32f slope) {
  return Ramp(dst, len, offset, slope);
}

OrbStatus legacy90orbsVectorRamp_32f(Orb32f* dst, Orb32s len, Orb32f offset, Orb32f slope) {
  return Ramp(dst, len, offset, slope);
}

OrbStatus legacy90orbsVectorRamp_64f(Orb64f* dst, Orb32s len, Orb32f offset, Orb32f slope) {
  return Ramp(dst, len, offset, slope);
}

}  // namespace orbs::ORBS_VARIANT
