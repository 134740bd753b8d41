#include "modem/goertzel.h"

#define ORBS_SLICE "boundary/exports/modem.def"
#include "boundary/declare_exports.h"

namespace orbs::ORBS_VARIANT {
using namespace modem;

// The frequency is looked at before any pointer.
OrbStatus legacy90orbsGoertzQ15_16sc_Sfs(const Orb16sc* src, Orb32s len, Orb16sc* result, Orb16s rFreqQ15,
                                         Orb32s scaleFactor) {
  if (rFreqQ15 < 0) return StatusRelFreq;
  ORBS_RETURN_IF_BAD(CheckArrays(len, src, result));
  return GoertzScaled(src, len, result, {FromQ15(rFreqQ15)}, scaleFactor);
}

// The frequencies come before the arrays.
OrbStatus legacy90orbsGoertzTwoQ15_16sc_Sfs(const Orb16sc* src, Orb32s len, Orb16sc* result,
                                            const Orb16s* rFreqsQ15, Orb32s scaleFactor) {
  if (rFreqsQ15 == nullptr) return StatusNullPointer;
  if (rFreqsQ15[0] < 0 || rFreqsQ15[1] < 0) return StatusRelFreq;
  ORBS_RETURN_IF_BAD(CheckArrays(len, src, result));
  return GoertzScaled(src, len, result, {FromQ15(rFreqsQ15[0]), FromQ15(rFreqsQ15[1])}, scaleFactor);
}

OrbStatus legacy90orbsGoertzTwo_16sc_Sfs(const Orb16sc* src, Orb32s len, Orb16sc* result,
                                         const Orb32f* rFreqs, Orb32s scaleFactor) {
  ORBS_RETURN_IF_BAD(CheckArrays(len, src, result, rFreqs));
  return GoertzScaled(src, len, result, {rFreqs[0], rFreqs[1]}, scaleFactor);
}

OrbStatus legacy90orbsGoertzTwo_32f(const Orb32f* src, Orb32s len, Orb32fc* result, const Orb32f* rFreqs) {
  return GoertzTwo(src, len, result, rFreqs);
}

OrbStatus legacy90orbsGoertzTwo_32fc(const Orb32fc* src, Orb32s len, Orb32fc* result, const Orb32f* rFreqs) {
  return GoertzTwo(src, len, result, rFreqs);
}

OrbStatus legacy90orbsGoertzTwo_64f(const Orb64f* src, Orb32s len, Orb64fc* result, const Orb64f* rFreqs) {
  return GoertzTwoTurned(src, len, result, rFreqs);
}

OrbStatus legacy90orbsGoertzTwo_64fc(const Orb64fc* src, Orb32s len, Orb64fc* result, const Orb64f* rFreqs) {
  return GoertzTwoTurned(src, len, result, rFreqs);
}

}  // namespace orbs::ORBS_VARIANT
