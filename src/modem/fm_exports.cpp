// FM demodulation.
#include "core/checks.h"
#include "modem/fm_kernels.h"

#define ORBS_SLICE "boundary/exports/modem.def"
#include "boundary/declare_exports.h"

namespace orbs::ORBS_VARIANT {
using namespace modem;

OrbStatus legacy90orbsDemodulateFM_CToR_16s(const Orb16s* srcRe, const Orb16s* srcIm, Orb16s* dst, Orb32s len,
                                            Orb16sc* delayPoint) {
  ORBS_RETURN_IF_BAD(CheckArrays(len, srcRe, srcIm, dst, delayPoint));
  DemodulateFM(srcRe, srcIm, dst, len, delayPoint);
  return StatusOk;
}

}  // namespace orbs::ORBS_VARIANT
