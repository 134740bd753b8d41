#include "gen/window/blackman.h"

#define ORBS_SLICE "boundary/exports/gen.def"
#include "boundary/declare_exports.h"

namespace orbs::ORBS_VARIANT {
using namespace gen;

OrbStatus legacy90orbsWinBlackmanQ15_16s(const Orb16s* src, Orb16s* dst, Orb32s len, Orb32s alphaQ15) {
  return Blackman(src, dst, len, alphaQ15);
}

OrbStatus legacy90orbsWinBlackmanQ15_16sc(const Orb16sc* src, Orb16sc* dst, Orb32s len, Orb32s alphaQ15) {
  return Blackman(src, dst, len, alphaQ15);
}

OrbStatus legacy90orbsWinBlackmanQ15_16s_I(Orb16s* srcDst, Orb32s len, Orb32s alphaQ15) {
  return Blackman(srcDst, srcDst, len, alphaQ15);
}

OrbStatus legacy90orbsWinBlackmanQ15_16sc_I(Orb16sc* srcDst, Orb32s len, Orb32s alphaQ15) {
  return Blackman(srcDst, srcDst, len, alphaQ15);
}

OrbStatus legacy90orbsWinBlackmanQ15_16s_ISfs(Orb16s* srcDst, Orb32s len, Orb32s alphaQ15,
                                              Orb32s scaleFactor) {
  ORBS_RETURN_IF_BAD(CheckArrays(len, srcDst));
  ORBS_RETURN_IF_BAD(CheckLength(len));
  if (len % 2 != 0) {
    Orb16s& middle = srcDst[len / 2];
    middle = FloatHalfAway<Orb16s>(InversePowerOfTwo<Wide<Orb64f>>(scaleFactor)(middle));
  }
  WeighScaled(srcDst, len, alphaQ15, scaleFactor);
  return StatusOk;
}

}  // namespace orbs::ORBS_VARIANT
