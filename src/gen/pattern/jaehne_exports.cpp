#include "gen/pattern/jaehne.h"

#define ORBS_SLICE "boundary/exports/gen.def"
#include "boundary/declare_exports.h"

namespace orbs::ORBS_VARIANT {
using namespace gen;

OrbStatus legacy90orbsVectorJaehne_8s(Orb8s* dst, Orb32s len, Orb8s magn) {
  ORBS_RETURN_IF_BAD(CheckArrays(len, dst));
  if (magn < 0) return StatusJaehneMagnitude;
  FillChirp(dst, len, magn);
  return StatusOk;
}

OrbStatus legacy90orbsVectorJaehne_32u(Orb32u* dst, Orb32s len, Orb32u magn) {
  ORBS_RETURN_IF_BAD(CheckArrays(len, dst));
  FillChirp(dst, len, magn);
  return StatusOk;
}

}  // namespace orbs::ORBS_VARIANT
