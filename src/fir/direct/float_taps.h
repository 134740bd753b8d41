// FIR filters without a state, with floating-point taps.
#ifndef ORBS_FIR_DIRECT_FLOAT_TAPS_H
#define ORBS_FIR_DIRECT_FLOAT_TAPS_H

#include "fir/deliver.h"
#include "fir/direct/direct.h"
#include "fir/float/state.h"
#include "simd/dot_product.h"
#include "simd/sliding_products.h"

namespace orbs::ORBS_VARIANT::fir {

template <class Kind>
struct FloatDirect {
  using Data = typename Kind::Data;
  using Tap = typename Kind::Tap;
  static constexpr int kParts = Kind::kParts;

  const Tap* taps;
  Orb32s tapCount;
  Orb32s scaleFactor;

  ORBS_INLINE void One(const Data* x, Data* dst) const {
    Wide<PartOf<Tap>> sums[kParts];
    DotProduct<-1>(Parts(x), Parts(taps + (tapCount - 1)), tapCount, sums);
    for (int part = 0; part < kParts; ++part)
      Parts(dst)[part] = DeliverOne<PartOf<Data>, true>(sums[part], scaleFactor);
  }

#if ORBS_VECTOR
  static constexpr bool kReadsSource = !Kind::kWidens;
  static_assert(kDirectFewOutputs * kParts >= VectorOf<PartOf<Tap>>::kLanes);

  void Outputs(const Data* x, Data* dst, int64_t count) const {
    if constexpr (kReadsSource) {
      SlidingProducts<-1>(x, taps + (tapCount - 1), tapCount, dst, static_cast<size_t>(count));
    } else {
      OutputsWidened(x, dst, static_cast<Orb32s>(count));
    }
  }

  // At most a chunk. Taps go in sections, the oldest samples' first, so that the widened samples fit.
  void OutputsWidened(const Data* x, Data* dst, Orb32s count) const {
    Tap samples[kDirectTaps + kDirectChunk + kDirectRoom];
    Tap sums[kDirectChunk];
    for (int64_t k = 0; k < tapCount; k += kDirectTaps) {
      const auto section = static_cast<Orb32s>(tapCount - k < kDirectTaps ? tapCount - k : kDirectTaps);
      WidenSamples<Kind>(x + k, samples, section + count - 1);
      const Tap* const last = taps + (tapCount - 1 - k);
      if (k == 0) {
        SlidingProducts<-1>(samples, last, section, sums, static_cast<size_t>(count));
      } else {
        Tap more[kDirectChunk];
        SlidingProducts<-1>(samples, last, section, more, static_cast<size_t>(count));
        Add(Parts(more), Parts(sums), count * kParts);
      }
    }
    DeliverDirect(Parts(sums), Parts(dst), count * kParts, scaleFactor);
  }

  template <class Part>
  static void Add(const Part* more, Part* sums, Orb32s parts) {
    using V = VectorOf<Part>;
    const auto add = [](Part* to, const Part* a, const Part* b) { (V::Load(a) + V::Load(b)).Store(to); };
    ForBlocks<V::kLanes>(static_cast<size_t>(parts), add, sums, more, sums);
  }
#endif
};

}  // namespace orbs::ORBS_VARIANT::fir

#endif
