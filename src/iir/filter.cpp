// The IIR filters: blocks of samples, and one sample at a time.
#include "boundary/exports.h"
#include "iir/access.h"
#include "iir/run.h"
#include "iir/step.h"

namespace orbs::ORBS_VARIANT {
namespace {

template <class Numbers, class Data>
OrbStatus Filter(const Data* src, Data* dst, Orb32s sampleCount, IIRState* state, Orb32s scaleFactor) {
  ORBS_RETURN_IF_BAD(CheckKinds<Numbers>(state, sampleCount, src, dst));
  if (IsCascade<Numbers>(state)) {
    RunIir(IirView<CascadeOf<Numbers>>{state}, src, dst, sampleCount, scaleFactor);
  } else {
    RunIir(IirView<ArbitraryOrderOf<Numbers>>{state}, src, dst, sampleCount, scaleFactor);
  }
  return StatusOk;
}

template <class Numbers, class Data>
OrbStatus FilterOne(Data src, Data* dst, IIRState* state, Orb32s scaleFactor) {
  ORBS_RETURN_IF_BAD(CheckKinds<Numbers>(state, 1, dst));
  const Orb32f factor = InversePowerOfTwoModulo128(scaleFactor);
  if (IsCascade<Numbers>(state)) {
    RunSteps(IirView<CascadeOf<Numbers>>{state}, &src, dst, 1, factor);
  } else {
    RunSteps(IirView<ArbitraryOrderOf<Numbers>>{state}, &src, dst, 1, factor);
  }
  return StatusOk;
}

}  // namespace

OrbStatus legacy90orbsIIR32s_16s_Sfs(const Orb16s* src, Orb16s* dst, Orb32s sampleCount, IIRState* state,
                                     Orb32s scaleFactor) {
  return Filter<RealNumbers>(src, dst, sampleCount, state, scaleFactor);
}

OrbStatus legacy90orbsIIR32s_16s_ISfs(Orb16s* srcDst, Orb32s sampleCount, IIRState* state,
                                      Orb32s scaleFactor) {
  return Filter<RealNumbers, Orb16s>(srcDst, srcDst, sampleCount, state, scaleFactor);
}

OrbStatus legacy90orbsIIR32sc_16sc_Sfs(const Orb16sc* src, Orb16sc* dst, Orb32s sampleCount, IIRState* state,
                                       Orb32s scaleFactor) {
  return Filter<ComplexNumbers>(src, dst, sampleCount, state, scaleFactor);
}

OrbStatus legacy90orbsIIR32sc_16sc_ISfs(Orb16sc* srcDst, Orb32s sampleCount, IIRState* state,
                                        Orb32s scaleFactor) {
  return Filter<ComplexNumbers, Orb16sc>(srcDst, srcDst, sampleCount, state, scaleFactor);
}

OrbStatus legacy90orbsIIROne32s_16s_Sfs(Orb16s src, Orb16s* dst, IIRState* state, Orb32s scaleFactor) {
  return FilterOne<RealNumbers>(src, dst, state, scaleFactor);
}

OrbStatus legacy90orbsIIROne32sc_16sc_Sfs(Orb16sc src, Orb16sc* dst, IIRState* state, Orb32s scaleFactor) {
  return FilterOne<ComplexNumbers>(src, dst, state, scaleFactor);
}

}  // namespace orbs::ORBS_VARIANT
