// FIR filters with integer taps on 16-bit samples: blocks, and a sample at a time.
#ifndef ORBS_FIR_INTEGER_FILTER_H
#define ORBS_FIR_INTEGER_FILTER_H

#include "core/checks.h"
#include "fir/integer/state.h"
#include "fir/stream.h"

namespace orbs::ORBS_VARIANT::fir {

template <class Kind>
struct IntegerEngine : FirIntView<Kind> {
  using Sample = typename Kind::Data;
  using Data = typename Kind::Data;
  static constexpr Orb32s kVector = kFirIntVector<Data>;
  static constexpr Orb32s kBlock = kFirBlock;

  int d;

  Orb32s TapCount() const { return this->state->tapCount; }
  Orb32s& DelayIndex() const { return this->state->delayIndex; }
  void Widen(const Data* src, Sample* dst, Orb32s n) const { Copy(src, dst, n); }
  void Outputs(const Sample* x, Data* dst, Orb32s count) const {
    FirIntSums(x, this->KernelTaps(), TapCount(), dst, count, d);
  }
};

template <class Kind>
OrbStatus Filter(const typename Kind::Data* src, typename Kind::Data* dst, Orb32s count, FIRIntState* state,
                 Orb32s scaleFactor) {
  ORBS_RETURN_IF_BAD(CheckState(state, Kind::kId, count, src, dst));
  const IntegerEngine<Kind> engine{{state}, FirIntScale::Of(state->tapsFactor, scaleFactor).d};
  if (src == dst) {
    FilterThroughBuffer(engine, src, dst, count);
  } else {
    FilterFromSource(engine, src, dst, count);
  }
  return StatusOk;
}

template <class Kind>
OrbStatus FilterInPlace(typename Kind::Data* srcDst, Orb32s count, FIRIntState* state, Orb32s scaleFactor) {
  return Filter<Kind>(srcDst, srcDst, count, state, scaleFactor);
}

template <class Kind>
OrbStatus FilterOne(typename Kind::Data src, typename Kind::Data* dst, FIRIntState* state,
                    Orb32s scaleFactor) {
  ORBS_RETURN_IF_BAD(CheckStateOnly(state, Kind::kId, dst));
  const FirIntView<Kind> view{state};
  const Orb32s n = state->tapCount;
  auto* const newest = view.Delay() + state->delayIndex;
  newest[0] = newest[n] = src;
  state->delayIndex = state->delayIndex + 1 == n ? 0 : state->delayIndex + 1;
  Orb32s sums[Kind::kParts];
  FirIntOne(view.Delay() + state->delayIndex, view.KernelTaps(), n, sums);
  const FirIntScale scale = FirIntScale::Of(state->tapsFactor, scaleFactor);
  for (int part = 0; part < Kind::kParts; ++part) Parts(dst)[part] = scale(sums[part]);
  return StatusOk;
}

}  // namespace orbs::ORBS_VARIANT::fir

#endif
