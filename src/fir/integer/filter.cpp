// FIR filters with integer taps on 16-bit samples: blocks, and a sample at a time.
#include "fir/integer/state.h"
#include "fir/stream.h"
#include "core/checks.h"
#include "boundary/exports.h"

namespace orbs::ORBS_VARIANT {
namespace {

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

}  // namespace

OrbStatus legacy90orbsFIR_16s_Sfs(const Orb16s* src, Orb16s* dst, Orb32s sampleCount, FIRIntState* state,
                                  Orb32s scaleFactor) {
  return Filter<Fir16s>(src, dst, sampleCount, state, scaleFactor);
}

OrbStatus legacy90orbsFIR_16s_ISfs(Orb16s* srcDst, Orb32s sampleCount, FIRIntState* state,
                                   Orb32s scaleFactor) {
  return FilterInPlace<Fir16s>(srcDst, sampleCount, state, scaleFactor);
}

OrbStatus legacy90orbsFIROne_16s_Sfs(Orb16s src, Orb16s* dst, FIRIntState* state, Orb32s scaleFactor) {
  return FilterOne<Fir16s>(src, dst, state, scaleFactor);
}

OrbStatus legacy90orbsFIR32s_16s_Sfs(const Orb16s* src, Orb16s* dst, Orb32s sampleCount, FIRIntState* state,
                                     Orb32s scaleFactor) {
  return Filter<Fir32s_16s>(src, dst, sampleCount, state, scaleFactor);
}

OrbStatus legacy90orbsFIR32s_16s_ISfs(Orb16s* srcDst, Orb32s sampleCount, FIRIntState* state,
                                      Orb32s scaleFactor) {
  return FilterInPlace<Fir32s_16s>(srcDst, sampleCount, state, scaleFactor);
}

OrbStatus legacy90orbsFIROne32s_16s_Sfs(Orb16s src, Orb16s* dst, FIRIntState* state, Orb32s scaleFactor) {
  return FilterOne<Fir32s_16s>(src, dst, state, scaleFactor);
}

OrbStatus legacy90orbsFIR32sc_16sc_Sfs(const Orb16sc* src, Orb16sc* dst, Orb32s sampleCount,
                                       FIRIntState* state, Orb32s scaleFactor) {
  return Filter<Fir32sc_16sc>(src, dst, sampleCount, state, scaleFactor);
}

OrbStatus legacy90orbsFIR32sc_16sc_ISfs(Orb16sc* srcDst, Orb32s sampleCount, FIRIntState* state,
                                        Orb32s scaleFactor) {
  return FilterInPlace<Fir32sc_16sc>(srcDst, sampleCount, state, scaleFactor);
}

OrbStatus legacy90orbsFIROne32sc_16sc_Sfs(Orb16sc src, Orb16sc* dst, FIRIntState* state, Orb32s scaleFactor) {
  return FilterOne<Fir32sc_16sc>(src, dst, state, scaleFactor);
}

}  // namespace orbs::ORBS_VARIANT
