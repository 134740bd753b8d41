#include "gen/random/random_gauss.h"

#define ORBS_SLICE "boundary/exports/gen.def"
#include "boundary/declare_exports.h"

namespace orbs::ORBS_VARIANT {
using namespace gen;

OrbStatus legacy90orbsRandGauss_Direct_16s(Orb16s* dst, Orb32s len, Orb16s mean, Orb16s stdDev,
                                           Orb32u* seed) {
  return Gauss(dst, len, mean, stdDev, seed);
}

OrbStatus legacy90orbsRandGauss_Direct_32f(Orb32f* dst, Orb32s len, Orb32f mean, Orb32f stdDev,
                                           Orb32u* seed) {
  return Gauss(dst, len, mean, stdDev, seed);
}

OrbStatus legacy90orbsRandGauss_Direct_64f(Orb64f* dst, Orb32s len, Orb64f mean, Orb64f stdDev,
                                           Orb32u* seed) {
  return Gauss(dst, len, mean, stdDev, seed);
}

}  // namespace orbs::ORBS_VARIANT
