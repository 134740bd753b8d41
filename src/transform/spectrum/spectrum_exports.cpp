#include "transform/spectrum/spectrum.h"

#define ORBS_SLICE "boundary/exports/transform.def"
#include "boundary/declare_exports.h"

namespace orbs::ORBS_VARIANT {
using namespace transform;

OrbStatus legacy90orbsConjCcs_16sc(const Orb16sc* src, Orb16sc* dst, Orb32s len) {
  return SpreadCcs(src, dst, len);
}

OrbStatus legacy90orbsConjCcs_16sc_I(Orb16sc* srcDst, Orb32s len) { return SpreadCcs(srcDst, srcDst, len); }

OrbStatus legacy90orbsConjPack_16sc(const Orb16s* src, Orb16sc* dst, Orb32s len) {
  return Spread(InPack, src, dst, len);
}

OrbStatus legacy90orbsConjPack_16sc_I(Orb16sc* srcDst, Orb32s len) {
  return Spread(InPack, Packed(srcDst), srcDst, len);
}

OrbStatus legacy90orbsConjPerm_16sc(const Orb16s* src, Orb16sc* dst, Orb32s len) {
  return Spread(InPerm, src, dst, len);
}

OrbStatus legacy90orbsConjPerm_16sc_I(Orb16sc* srcDst, Orb32s len) {
  return Spread(InPerm, Packed(srcDst), srcDst, len);
}

OrbStatus legacy90orbsMulPack_16s_Sfs(const Orb16s* src1, const Orb16s* src2, Orb16s* dst, Orb32s len,
                                      Orb32s scaleFactor) {
  return Mul(InPack, src1, src2, dst, len, scaleFactor);
}

OrbStatus legacy90orbsMulPack_16s_ISfs(const Orb16s* src, Orb16s* srcDst, Orb32s len, Orb32s scaleFactor) {
  return Mul(InPack, src, srcDst, srcDst, len, scaleFactor);
}

OrbStatus legacy90orbsMulPerm_16s_Sfs(const Orb16s* src1, const Orb16s* src2, Orb16s* dst, Orb32s len,
                                      Orb32s scaleFactor) {
  return Mul(InPerm, src1, src2, dst, len, scaleFactor);
}

OrbStatus legacy90orbsMulPerm_16s_ISfs(const Orb16s* src, Orb16s* srcDst, Orb32s len, Orb32s scaleFactor) {
  return Mul(InPerm, src, srcDst, srcDst, len, scaleFactor);
}

}  // namespace orbs::ORBS_VARIANT
