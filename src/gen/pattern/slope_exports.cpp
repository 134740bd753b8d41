#include "gen/pattern/slope.h"

#define ORBS_SLICE "boundary/exports/gen.def"
#include "boundary/declare_exports.h"

namespace orbs::ORBS_VARIANT {
using namespace gen;

OrbStatus legacy90orbsVectorSlope_8s(Orb8s* dst, Orb32s len, Orb32f offset, Orb32f slope) {
  ORBS_RETURN_IF_BAD(CheckArrays(len, dst));
  FillSlope(dst, len, offset, slope);
  return StatusOk;
}

}  // namespace orbs::ORBS_VARIANT
