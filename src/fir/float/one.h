// FIR filters with floating-point taps, a sample at a time.
#ifndef ORBS_FIR_FLOAT_ONE_H
#define ORBS_FIR_FLOAT_ONE_H

#include "core/checks.h"
#include "fir/deliver.h"
#include "fir/float/state.h"
#include "simd/dot_product.h"

namespace orbs::ORBS_VARIANT::fir {

// To nearest with ties away from zero in px; two short complex filters do so in the variants with AVX as
// well.
template <class Kind>
bool RoundsHalfAway(Orb32s tapCount) {
  constexpr bool kMayStay = std::is_same_v<Kind, Fir64fc_16sc> || std::is_same_v<Kind, Fir64fc_32sc>;
  return kIsPx || (kIsAvx && kMayStay && tapCount < 5);
}

template <class Kind>
OrbStatus FilterOne(typename Kind::Data src, typename Kind::Data* dst, FIRFloatState* state,
                    Orb32s scaleFactor = 0) {
  using Tap = typename Kind::Tap;
  using DataPart = PartOf<typename Kind::Data>;
  ORBS_RETURN_IF_BAD(CheckStateOnly(state, Kind::kId, dst));
  constexpr int kParts = Kind::kParts;
  const FirView<Kind> view{state};
  const Orb32s n = state->tapCount;
  Tap* const newest = view.Delay() + state->delayIndex;
  for (int part = 0; part < kParts; ++part) {
    const auto widened = static_cast<PartOf<Tap>>(Parts(&src)[part]);
    Parts(newest)[part] = widened;
    Parts(newest + n)[part] = widened;
  }
  state->delayIndex = state->delayIndex + 1 == n ? 0 : state->delayIndex + 1;
  const auto* const samples = Parts(view.Delay() + state->delayIndex);

#if ORBS_VECTOR
  // Samples of binary32 are added up in binary64.
  using Sum = std::conditional_t<std::is_same_v<Kind, Fir32f>, Orb64f, PartOf<Tap>>;
#else
  using Sum = Wide<PartOf<Tap>>;
#endif
  Sum sums[kParts];
#if ORBS_VECTOR
  if constexpr (std::is_same_v<Kind, Fir32f>) {
    DotProduct(samples, state->preciseTaps.In(state), n, sums);
  } else {
    DotProduct(samples, Parts(view.Taps()), n, sums);
  }
#else
  DotProduct(samples, Parts(view.Taps()), n, sums);
#endif
  const bool halfAway = RoundsHalfAway<Kind>(n);
  for (int part = 0; part < kParts; ++part) {
    Parts(dst)[part] = halfAway ? DeliverOne<DataPart, true>(sums[part], scaleFactor)
                                : DeliverOne<DataPart, false>(sums[part], scaleFactor);
  }
  return StatusOk;
}

}  // namespace orbs::ORBS_VARIANT::fir

#endif
