// The IIR filters: blocks of samples, and one sample at a time.
#ifndef ORBS_IIR_FILTER_H
#define ORBS_IIR_FILTER_H

#include "iir/interface.h"
#include "iir/recursion/step.h"
#include "iir/run.h"

namespace orbs::ORBS_VARIANT::iir {

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

}  // namespace orbs::ORBS_VARIANT::iir

#endif
