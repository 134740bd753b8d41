#include "gen/window/kaiser.h"

#define ORBS_SLICE "boundary/exports/gen.def"
#include "boundary/declare_exports.h"

namespace orbs::ORBS_VARIANT {
using namespace gen;

OrbStatus legacy90orbsWinKaiserQ15_16s(const Orb16s* src, Orb16s* dst, Orb32s len, Orb32s alphaQ15) {
  return Kaiser(src, dst, len, alphaQ15);
}

OrbStatus legacy90orbsWinKaiserQ15_16sc(const Orb16sc* src, Orb16sc* dst, Orb32s len, Orb32s alphaQ15) {
  return Kaiser(src, dst, len, alphaQ15);
}

OrbStatus legacy90orbsWinKaiserQ15_16s_I(Orb16s* srcDst, Orb32s len, Orb32s alphaQ15) {
  return Kaiser(srcDst, srcDst, len, alphaQ15);
}

OrbStatus legacy90orbsWinKaiserQ15_16sc_I(Orb16sc* srcDst, Orb32s len, Orb32s alphaQ15) {
  return Kaiser(srcDst, srcDst, len, alphaQ15);
}

}  // namespace orbs::ORBS_VARIANT
