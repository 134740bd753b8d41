#include "gen/random/random_uniform.h"

#define ORBS_SLICE "boundary/exports/gen.def"
#include "boundary/declare_exports.h"

namespace orbs::ORBS_VARIANT {
using namespace gen;

OrbStatus legacy90orbsRandUniform_Direct_16s(Orb16s* dst, Orb32s len, Orb16s low, Orb16s high, Orb32u* seed) {
  return Uniform(dst, len, low, high, seed);
}

OrbStatus legacy90orbsRandUniform_Direct_32f(Orb32f* dst, Orb32s len, Orb32f low, Orb32f high, Orb32u* seed) {
  return Uniform(dst, len, low, high, seed);
}

OrbStatus legacy90orbsRandUniform_Direct_64f(Orb64f* dst, Orb32s len, Orb64f low, Orb64f high, Orb32u* seed) {
  return Uniform(dst, len, low, high, seed);
}

}  // namespace orbs::ORBS_VARIANT
