// Coefficients and delay lines of IIR states, replaced and read while the filter runs.
#include "iir/access.h"

#include "boundary/exports.h"
#include "iir/given_taps.h"

namespace orbs::ORBS_VARIANT {
namespace {

template <class Kind, class Given>
OrbStatus SetTapsOf(IIRState* state, const Given* taps, Orb32s tapsFactor) {
  const IirView<Kind> view{state};
  const GivenTaps<Kind, Given> given(taps, view.Units(), tapsFactor);
  if (given.Get() == nullptr) return StatusMemAlloc;
  return StoreTaps(view, given.Get());
}

template <class Numbers, class Given>
OrbStatus SetTaps(const Given* taps, IIRState* state, Orb32s tapsFactor = 0) {
  ORBS_RETURN_IF_BAD(CheckKinds<Numbers>(state, 1, taps));
  return IsCascade<Numbers>(state) ? SetTapsOf<CascadeOf<Numbers>>(state, taps, tapsFactor)
                                   : SetTapsOf<ArbitraryOrderOf<Numbers>>(state, taps, tapsFactor);
}

// Both kinds of a data type keep their delay line alike.
template <class Numbers>
OrbStatus GetDlyLine(const IIRState* state, typename Numbers::IntegerTap* delayLine) {
  ORBS_RETURN_IF_BAD(CheckKinds<Numbers>(state, 1, delayLine));
  std::memcpy(delayLine, state->delayLine.In(state),
              static_cast<size_t>(state->delayLen) * sizeof(typename Numbers::Work));
  return StatusOk;
}

template <class Numbers>
OrbStatus SetDlyLine(IIRState* state, const typename Numbers::IntegerTap* delayLine) {
  ORBS_RETURN_IF_BAD(CheckKinds<Numbers>(state));
  StoreDelay(IirView<ArbitraryOrderOf<Numbers>>{state}, delayLine);
  return StatusOk;
}

}  // namespace

OrbStatus legacy90orbsIIRGetDlyLine32s_16s(const IIRState* state, Orb32s* delayLine) {
  return GetDlyLine<RealNumbers>(state, delayLine);
}

OrbStatus legacy90orbsIIRGetDlyLine32sc_16sc(const IIRState* state, Orb32sc* delayLine) {
  return GetDlyLine<ComplexNumbers>(state, delayLine);
}

OrbStatus legacy90orbsIIRSetDlyLine32s_16s(IIRState* state, const Orb32s* delayLine) {
  return SetDlyLine<RealNumbers>(state, delayLine);
}

OrbStatus legacy90orbsIIRSetDlyLine32sc_16sc(IIRState* state, const Orb32sc* delayLine) {
  return SetDlyLine<ComplexNumbers>(state, delayLine);
}

OrbStatus legacy90orbsIIRSetTaps32s_16s(const Orb32s* taps, IIRState* state, Orb32s tapsFactor) {
  return SetTaps<RealNumbers>(taps, state, tapsFactor);
}

OrbStatus legacy90orbsIIRSetTaps32s_16s32f(const Orb32f* taps, IIRState* state) {
  return SetTaps<RealNumbers>(taps, state);
}

OrbStatus legacy90orbsIIRSetTaps32sc_16sc(const Orb32sc* taps, IIRState* state, Orb32s tapsFactor) {
  return SetTaps<ComplexNumbers>(taps, state, tapsFactor);
}

OrbStatus legacy90orbsIIRSetTaps32sc_16sc32fc(const Orb32fc* taps, IIRState* state) {
  return SetTaps<ComplexNumbers>(taps, state);
}

}  // namespace orbs::ORBS_VARIANT
