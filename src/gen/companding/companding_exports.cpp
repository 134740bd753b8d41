// A-law and mu-law companding after G.711.
#include "core/checks.h"
#include "gen/companding/companding_kernels.h"

#define ORBS_SLICE "boundary/exports/gen.def"
#include "boundary/declare_exports.h"

namespace orbs::ORBS_VARIANT {
using namespace gen;
namespace {

template <class Source, class Result>
using Kernel = void (*)(const Source* src, Result* dst, Orb32s len);

template <class Source, class Result>
ORBS_INLINE OrbStatus Compand(Kernel<Source, Result> kernel, const Source* src, Result* dst, Orb32s len) {
  ORBS_RETURN_IF_BAD(CheckArrays(len, src, dst));
  kernel(src, dst, len);
  return StatusOk;
}

}  // namespace

OrbStatus legacy90orbsALawToLin_8u16s(const Orb8u* src, Orb16s* dst, Orb32s len) {
  return Compand(DecodeALaw, src, dst, len);
}

OrbStatus legacy90orbsALawToLin_8u32f(const Orb8u* src, Orb32f* dst, Orb32s len) {
  return Compand(DecodeALaw, src, dst, len);
}

OrbStatus legacy90orbsMuLawToLin_8u16s(const Orb8u* src, Orb16s* dst, Orb32s len) {
  return Compand(DecodeMuLaw, src, dst, len);
}

OrbStatus legacy90orbsMuLawToLin_8u32f(const Orb8u* src, Orb32f* dst, Orb32s len) {
  return Compand(DecodeMuLaw, src, dst, len);
}

OrbStatus legacy90orbsALawToMuLaw_8u(const Orb8u* src, Orb8u* dst, Orb32s len) {
  return Compand(ConvertALawToMuLaw, src, dst, len);
}

OrbStatus legacy90orbsMuLawToALaw_8u(const Orb8u* src, Orb8u* dst, Orb32s len) {
  return Compand(ConvertMuLawToALaw, src, dst, len);
}

OrbStatus legacy90orbsLinToALaw_16s8u(const Orb16s* src, Orb8u* dst, Orb32s len) {
  return Compand(EncodeALaw, src, dst, len);
}

OrbStatus legacy90orbsLinToALaw_32f8u(const Orb32f* src, Orb8u* dst, Orb32s len) {
  return Compand(EncodeALaw, src, dst, len);
}

OrbStatus legacy90orbsLinToMuLaw_16s8u(const Orb16s* src, Orb8u* dst, Orb32s len) {
  return Compand(EncodeMuLaw, src, dst, len);
}

OrbStatus legacy90orbsLinToMuLaw_32f8u(const Orb32f* src, Orb8u* dst, Orb32s len) {
  return Compand(EncodeMuLaw, src, dst, len);
}

}  // namespace orbs::ORBS_VARIANT
