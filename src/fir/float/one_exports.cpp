#include "fir/float/one.h"

#define ORBS_SLICE "boundary/exports/fir.def"
#include "boundary/declare_exports.h"

namespace orbs::ORBS_VARIANT {
using namespace fir;

OrbStatus legacy90orbsFIROne_32f(Orb32f src, Orb32f* dst, FIRFloatState* state) {
  return FilterOne<Fir32f>(src, dst, state);
}

OrbStatus legacy90orbsFIROne_32fc(Orb32fc src, Orb32fc* dst, FIRFloatState* state) {
  return FilterOne<Fir32fc>(src, dst, state);
}

OrbStatus legacy90orbsFIROne_64f(Orb64f src, Orb64f* dst, FIRFloatState* state) {
  return FilterOne<Fir64f>(src, dst, state);
}

OrbStatus legacy90orbsFIROne_64fc(Orb64fc src, Orb64fc* dst, FIRFloatState* state) {
  return FilterOne<Fir64fc>(src, dst, state);
}

OrbStatus legacy90orbsFIROne32f_16s_Sfs(Orb16s src, Orb16s* dst, FIRFloatState* state, Orb32s scaleFactor) {
  return FilterOne<Fir32f_16s>(src, dst, state, scaleFactor);
}

OrbStatus legacy90orbsFIROne32fc_16sc_Sfs(Orb16sc src, Orb16sc* dst, FIRFloatState* state,
                                          Orb32s scaleFactor) {
  return FilterOne<Fir32fc_16sc>(src, dst, state, scaleFactor);
}

OrbStatus legacy90orbsFIROne64f_32f(Orb32f src, Orb32f* dst, FIRFloatState* state) {
  return FilterOne<Fir64f_32f>(src, dst, state);
}

OrbStatus legacy90orbsFIROne64fc_32fc(Orb32fc src, Orb32fc* dst, FIRFloatState* state) {
  return FilterOne<Fir64fc_32fc>(src, dst, state);
}

OrbStatus legacy90orbsFIROne64f_32s_Sfs(Orb32s src, Orb32s* dst, FIRFloatState* state, Orb32s scaleFactor) {
  return FilterOne<Fir64f_32s>(src, dst, state, scaleFactor);
}

OrbStatus legacy90orbsFIROne64fc_32sc_Sfs(Orb32sc src, Orb32sc* dst, FIRFloatState* state,
                                          Orb32s scaleFactor) {
  return FilterOne<Fir64fc_32sc>(src, dst, state, scaleFactor);
}

OrbStatus legacy90orbsFIROne64f_16s_Sfs(Orb16s src, Orb16s* dst, FIRFloatState* state, Orb32s scaleFactor) {
  return FilterOne<Fir64f_16s>(src, dst, state, scaleFactor);
}

OrbStatus legacy90orbsFIROne64fc_16sc_Sfs(Orb16sc src, Orb16sc* dst, FIRFloatState* state,
                                          Orb32s scaleFactor) {
  return FilterOne<Fir64fc_16sc>(src, dst, state, scaleFactor);
}

OrbStatus legacy90orbsFIROne_32s_Sfs(Orb32s src, Orb32s* dst, FIRFloatState* state, Orb32s scaleFactor) {
  return FilterOne<Fir64f_32s>(src, dst, state, scaleFactor);
}

}  // namespace orbs::ORBS_VARIANT
