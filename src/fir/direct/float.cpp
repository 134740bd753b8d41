// FIR filters without a state, with floating-point taps.
#include "fir/direct/direct.h"
#include "fir/deliver.h"
#include "fir/float/state.h"
#include "fir/float/one_kernels.h"
#include "boundary/exports.h"

namespace orbs::ORBS_VARIANT {
namespace {

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
    FirDot<-1>(Parts(x), Parts(taps + (tapCount - 1)), tapCount, sums);
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

}  // namespace

OrbStatus legacy90orbsFIR_Direct_32f(const Orb32f* src, Orb32f* dst, Orb32s sampleCount, const Orb32f* taps,
                                     Orb32s tapCount, Orb32f* delayLine, Orb32s* delayIndex) {
  return FilterDirect(FloatDirect<Fir32f>{taps, tapCount, 0}, src, dst, sampleCount, delayLine, delayIndex);
}

OrbStatus legacy90orbsFIR_Direct_32f_I(Orb32f* srcDst, Orb32s sampleCount, const Orb32f* taps,
                                       Orb32s tapCount, Orb32f* delayLine, Orb32s* delayIndex) {
  return FilterDirect(FloatDirect<Fir32f>{taps, tapCount, 0}, srcDst, srcDst, sampleCount, delayLine,
                      delayIndex);
}

OrbStatus legacy90orbsFIROne_Direct_32f(Orb32f src, Orb32f* dst, const Orb32f* taps, Orb32s tapCount,
                                        Orb32f* delayLine, Orb32s* delayIndex) {
  return FilterDirectOne(FloatDirect<Fir32f>{taps, tapCount, 0}, &src, dst, delayLine, delayIndex);
}

OrbStatus legacy90orbsFIROne_Direct_32f_I(Orb32f* srcDst, const Orb32f* taps, Orb32s tapCount,
                                          Orb32f* delayLine, Orb32s* delayIndex) {
  return FilterDirectOne(FloatDirect<Fir32f>{taps, tapCount, 0}, srcDst, srcDst, delayLine, delayIndex);
}

OrbStatus legacy90orbsFIR_Direct_32fc(const Orb32fc* src, Orb32fc* dst, Orb32s sampleCount,
                                      const Orb32fc* taps, Orb32s tapCount, Orb32fc* delayLine,
                                      Orb32s* delayIndex) {
  return FilterDirect(FloatDirect<Fir32fc>{taps, tapCount, 0}, src, dst, sampleCount, delayLine, delayIndex);
}

OrbStatus legacy90orbsFIR_Direct_32fc_I(Orb32fc* srcDst, Orb32s sampleCount, const Orb32fc* taps,
                                        Orb32s tapCount, Orb32fc* delayLine, Orb32s* delayIndex) {
  return FilterDirect(FloatDirect<Fir32fc>{taps, tapCount, 0}, srcDst, srcDst, sampleCount, delayLine,
                      delayIndex);
}

OrbStatus legacy90orbsFIROne_Direct_32fc(Orb32fc src, Orb32fc* dst, const Orb32fc* taps, Orb32s tapCount,
                                         Orb32fc* delayLine, Orb32s* delayIndex) {
  return FilterDirectOne(FloatDirect<Fir32fc>{taps, tapCount, 0}, &src, dst, delayLine, delayIndex);
}

OrbStatus legacy90orbsFIROne_Direct_32fc_I(Orb32fc* srcDst, const Orb32fc* taps, Orb32s tapCount,
                                           Orb32fc* delayLine, Orb32s* delayIndex) {
  return FilterDirectOne(FloatDirect<Fir32fc>{taps, tapCount, 0}, srcDst, srcDst, delayLine, delayIndex);
}

OrbStatus legacy90orbsFIR_Direct_64f(const Orb64f* src, Orb64f* dst, Orb32s sampleCount, const Orb64f* taps,
                                     Orb32s tapCount, Orb64f* delayLine, Orb32s* delayIndex) {
  return FilterDirect(FloatDirect<Fir64f>{taps, tapCount, 0}, src, dst, sampleCount, delayLine, delayIndex);
}

OrbStatus legacy90orbsFIR_Direct_64f_I(Orb64f* srcDst, Orb32s sampleCount, const Orb64f* taps,
                                       Orb32s tapCount, Orb64f* delayLine, Orb32s* delayIndex) {
  return FilterDirect(FloatDirect<Fir64f>{taps, tapCount, 0}, srcDst, srcDst, sampleCount, delayLine,
                      delayIndex);
}

OrbStatus legacy90orbsFIROne_Direct_64f(Orb64f src, Orb64f* dst, const Orb64f* taps, Orb32s tapCount,
                                        Orb64f* delayLine, Orb32s* delayIndex) {
  return FilterDirectOne(FloatDirect<Fir64f>{taps, tapCount, 0}, &src, dst, delayLine, delayIndex);
}

OrbStatus legacy90orbsFIROne_Direct_64f_I(Orb64f* srcDst, const Orb64f* taps, Orb32s tapCount,
                                          Orb64f* delayLine, Orb32s* delayIndex) {
  return FilterDirectOne(FloatDirect<Fir64f>{taps, tapCount, 0}, srcDst, srcDst, delayLine, delayIndex);
}

OrbStatus legacy90orbsFIR_Direct_64fc(const Orb64fc* src, Orb64fc* dst, Orb32s sampleCount,
                                      const Orb64fc* taps, Orb32s tapCount, Orb64fc* delayLine,
                                      Orb32s* delayIndex) {
  return FilterDirect(FloatDirect<Fir64fc>{taps, tapCount, 0}, src, dst, sampleCount, delayLine, delayIndex);
}

OrbStatus legacy90orbsFIR_Direct_64fc_I(Orb64fc* srcDst, Orb32s sampleCount, const Orb64fc* taps,
                                        Orb32s tapCount, Orb64fc* delayLine, Orb32s* delayIndex) {
  return FilterDirect(FloatDirect<Fir64fc>{taps, tapCount, 0}, srcDst, srcDst, sampleCount, delayLine,
                      delayIndex);
}

OrbStatus legacy90orbsFIROne_Direct_64fc(Orb64fc src, Orb64fc* dst, const Orb64fc* taps, Orb32s tapCount,
                                         Orb64fc* delayLine, Orb32s* delayIndex) {
  return FilterDirectOne(FloatDirect<Fir64fc>{taps, tapCount, 0}, &src, dst, delayLine, delayIndex);
}

OrbStatus legacy90orbsFIROne_Direct_64fc_I(Orb64fc* srcDst, const Orb64fc* taps, Orb32s tapCount,
                                           Orb64fc* delayLine, Orb32s* delayIndex) {
  return FilterDirectOne(FloatDirect<Fir64fc>{taps, tapCount, 0}, srcDst, srcDst, delayLine, delayIndex);
}

OrbStatus legacy90orbsFIR64f_Direct_32f(const Orb32f* src, Orb32f* dst, Orb32s sampleCount,
                                        const Orb64f* taps, Orb32s tapCount, Orb32f* delayLine,
                                        Orb32s* delayIndex) {
  return FilterDirect(FloatDirect<Fir64f_32f>{taps, tapCount, 0}, src, dst, sampleCount, delayLine,
                      delayIndex);
}

OrbStatus legacy90orbsFIR64f_Direct_32f_I(Orb32f* srcDst, Orb32s sampleCount, const Orb64f* taps,
                                          Orb32s tapCount, Orb32f* delayLine, Orb32s* delayIndex) {
  return FilterDirect(FloatDirect<Fir64f_32f>{taps, tapCount, 0}, srcDst, srcDst, sampleCount, delayLine,
                      delayIndex);
}

OrbStatus legacy90orbsFIROne64f_Direct_32f(Orb32f src, Orb32f* dst, const Orb64f* taps, Orb32s tapCount,
                                           Orb32f* delayLine, Orb32s* delayIndex) {
  return FilterDirectOne(FloatDirect<Fir64f_32f>{taps, tapCount, 0}, &src, dst, delayLine, delayIndex);
}

OrbStatus legacy90orbsFIROne64f_Direct_32f_I(Orb32f* srcDst, const Orb64f* taps, Orb32s tapCount,
                                             Orb32f* delayLine, Orb32s* delayIndex) {
  return FilterDirectOne(FloatDirect<Fir64f_32f>{taps, tapCount, 0}, srcDst, srcDst, delayLine, delayIndex);
}

OrbStatus legacy90orbsFIR64fc_Direct_32fc(const Orb32fc* src, Orb32fc* dst, Orb32s sampleCount,
                                          const Orb64fc* taps, Orb32s tapCount, Orb32fc* delayLine,
                                          Orb32s* delayIndex) {
  return FilterDirect(FloatDirect<Fir64fc_32fc>{taps, tapCount, 0}, src, dst, sampleCount, delayLine,
                      delayIndex);
}

OrbStatus legacy90orbsFIR64fc_Direct_32fc_I(Orb32fc* srcDst, Orb32s sampleCount, const Orb64fc* taps,
                                            Orb32s tapCount, Orb32fc* delayLine, Orb32s* delayIndex) {
  return FilterDirect(FloatDirect<Fir64fc_32fc>{taps, tapCount, 0}, srcDst, srcDst, sampleCount, delayLine,
                      delayIndex);
}

OrbStatus legacy90orbsFIROne64fc_Direct_32fc(Orb32fc src, Orb32fc* dst, const Orb64fc* taps, Orb32s tapCount,
                                             Orb32fc* delayLine, Orb32s* delayIndex) {
  return FilterDirectOne(FloatDirect<Fir64fc_32fc>{taps, tapCount, 0}, &src, dst, delayLine, delayIndex);
}

OrbStatus legacy90orbsFIROne64fc_Direct_32fc_I(Orb32fc* srcDst, const Orb64fc* taps, Orb32s tapCount,
                                               Orb32fc* delayLine, Orb32s* delayIndex) {
  return FilterDirectOne(FloatDirect<Fir64fc_32fc>{taps, tapCount, 0}, srcDst, srcDst, delayLine, delayIndex);
}

OrbStatus legacy90orbsFIR32f_Direct_16s_Sfs(const Orb16s* src, Orb16s* dst, Orb32s sampleCount,
                                            const Orb32f* taps, Orb32s tapCount, Orb16s* delayLine,
                                            Orb32s* delayIndex, Orb32s scaleFactor) {
  return FilterDirect(FloatDirect<Fir32f_16s>{taps, tapCount, scaleFactor}, src, dst, sampleCount, delayLine,
                      delayIndex);
}

OrbStatus legacy90orbsFIR32f_Direct_16s_ISfs(Orb16s* srcDst, Orb32s sampleCount, const Orb32f* taps,
                                             Orb32s tapCount, Orb16s* delayLine, Orb32s* delayIndex,
                                             Orb32s scaleFactor) {
  return FilterDirect(FloatDirect<Fir32f_16s>{taps, tapCount, scaleFactor}, srcDst, srcDst, sampleCount,
                      delayLine, delayIndex);
}

OrbStatus legacy90orbsFIROne32f_Direct_16s_Sfs(Orb16s src, Orb16s* dst, const Orb32f* taps, Orb32s tapCount,
                                               Orb16s* delayLine, Orb32s* delayIndex, Orb32s scaleFactor) {
  return FilterDirectOne(FloatDirect<Fir32f_16s>{taps, tapCount, scaleFactor}, &src, dst, delayLine,
                         delayIndex);
}

OrbStatus legacy90orbsFIROne32f_Direct_16s_ISfs(Orb16s* srcDst, const Orb32f* taps, Orb32s tapCount,
                                                Orb16s* delayLine, Orb32s* delayIndex, Orb32s scaleFactor) {
  return FilterDirectOne(FloatDirect<Fir32f_16s>{taps, tapCount, scaleFactor}, srcDst, srcDst, delayLine,
                         delayIndex);
}

OrbStatus legacy90orbsFIR32fc_Direct_16sc_Sfs(const Orb16sc* src, Orb16sc* dst, Orb32s sampleCount,
                                              const Orb32fc* taps, Orb32s tapCount, Orb16sc* delayLine,
                                              Orb32s* delayIndex, Orb32s scaleFactor) {
  return FilterDirect(FloatDirect<Fir32fc_16sc>{taps, tapCount, scaleFactor}, src, dst, sampleCount,
                      delayLine, delayIndex);
}

OrbStatus legacy90orbsFIR32fc_Direct_16sc_ISfs(Orb16sc* srcDst, Orb32s sampleCount, const Orb32fc* taps,
                                               Orb32s tapCount, Orb16sc* delayLine, Orb32s* delayIndex,
                                               Orb32s scaleFactor) {
  return FilterDirect(FloatDirect<Fir32fc_16sc>{taps, tapCount, scaleFactor}, srcDst, srcDst, sampleCount,
                      delayLine, delayIndex);
}

OrbStatus legacy90orbsFIROne32fc_Direct_16sc_Sfs(Orb16sc src, Orb16sc* dst, const Orb32fc* taps,
                                                 Orb32s tapCount, Orb16sc* delayLine, Orb32s* delayIndex,
                                                 Orb32s scaleFactor) {
  return FilterDirectOne(FloatDirect<Fir32fc_16sc>{taps, tapCount, scaleFactor}, &src, dst, delayLine,
                         delayIndex);
}

OrbStatus legacy90orbsFIROne32fc_Direct_16sc_ISfs(Orb16sc* srcDst, const Orb32fc* taps, Orb32s tapCount,
                                                  Orb16sc* delayLine, Orb32s* delayIndex,
                                                  Orb32s scaleFactor) {
  return FilterDirectOne(FloatDirect<Fir32fc_16sc>{taps, tapCount, scaleFactor}, srcDst, srcDst, delayLine,
                         delayIndex);
}

OrbStatus legacy90orbsFIR64f_Direct_16s_Sfs(const Orb16s* src, Orb16s* dst, Orb32s sampleCount,
                                            const Orb64f* taps, Orb32s tapCount, Orb16s* delayLine,
                                            Orb32s* delayIndex, Orb32s scaleFactor) {
  return FilterDirect(FloatDirect<Fir64f_16s>{taps, tapCount, scaleFactor}, src, dst, sampleCount, delayLine,
                      delayIndex);
}

OrbStatus legacy90orbsFIR64f_Direct_16s_ISfs(Orb16s* srcDst, Orb32s sampleCount, const Orb64f* taps,
                                             Orb32s tapCount, Orb16s* delayLine, Orb32s* delayIndex,
                                             Orb32s scaleFactor) {
  return FilterDirect(FloatDirect<Fir64f_16s>{taps, tapCount, scaleFactor}, srcDst, srcDst, sampleCount,
                      delayLine, delayIndex);
}

OrbStatus legacy90orbsFIROne64f_Direct_16s_Sfs(Orb16s src, Orb16s* dst, const Orb64f* taps, Orb32s tapCount,
                                               Orb16s* delayLine, Orb32s* delayIndex, Orb32s scaleFactor) {
  return FilterDirectOne(FloatDirect<Fir64f_16s>{taps, tapCount, scaleFactor}, &src, dst, delayLine,
                         delayIndex);
}

OrbStatus legacy90orbsFIROne64f_Direct_16s_ISfs(Orb16s* srcDst, const Orb64f* taps, Orb32s tapCount,
                                                Orb16s* delayLine, Orb32s* delayIndex, Orb32s scaleFactor) {
  return FilterDirectOne(FloatDirect<Fir64f_16s>{taps, tapCount, scaleFactor}, srcDst, srcDst, delayLine,
                         delayIndex);
}

OrbStatus legacy90orbsFIR64fc_Direct_16sc_Sfs(const Orb16sc* src, Orb16sc* dst, Orb32s sampleCount,
                                              const Orb64fc* taps, Orb32s tapCount, Orb16sc* delayLine,
                                              Orb32s* delayIndex, Orb32s scaleFactor) {
  return FilterDirect(FloatDirect<Fir64fc_16sc>{taps, tapCount, scaleFactor}, src, dst, sampleCount,
                      delayLine, delayIndex);
}

OrbStatus legacy90orbsFIR64fc_Direct_16sc_ISfs(Orb16sc* srcDst, Orb32s sampleCount, const Orb64fc* taps,
                                               Orb32s tapCount, Orb16sc* delayLine, Orb32s* delayIndex,
                                               Orb32s scaleFactor) {
  return FilterDirect(FloatDirect<Fir64fc_16sc>{taps, tapCount, scaleFactor}, srcDst, srcDst, sampleCount,
                      delayLine, delayIndex);
}

OrbStatus legacy90orbsFIROne64fc_Direct_16sc_Sfs(Orb16sc src, Orb16sc* dst, const Orb64fc* taps,
                                                 Orb32s tapCount, Orb16sc* delayLine, Orb32s* delayIndex,
                                                 Orb32s scaleFactor) {
  return FilterDirectOne(FloatDirect<Fir64fc_16sc>{taps, tapCount, scaleFactor}, &src, dst, delayLine,
                         delayIndex);
}

OrbStatus legacy90orbsFIROne64fc_Direct_16sc_ISfs(Orb16sc* srcDst, const Orb64fc* taps, Orb32s tapCount,
                                                  Orb16sc* delayLine, Orb32s* delayIndex,
                                                  Orb32s scaleFactor) {
  return FilterDirectOne(FloatDirect<Fir64fc_16sc>{taps, tapCount, scaleFactor}, srcDst, srcDst, delayLine,
                         delayIndex);
}

OrbStatus legacy90orbsFIR64f_Direct_32s_Sfs(const Orb32s* src, Orb32s* dst, Orb32s sampleCount,
                                            const Orb64f* taps, Orb32s tapCount, Orb32s* delayLine,
                                            Orb32s* delayIndex, Orb32s scaleFactor) {
  return FilterDirect(FloatDirect<Fir64f_32s>{taps, tapCount, scaleFactor}, src, dst, sampleCount, delayLine,
                      delayIndex);
}

OrbStatus legacy90orbsFIR64f_Direct_32s_ISfs(Orb32s* srcDst, Orb32s sampleCount, const Orb64f* taps,
                                             Orb32s tapCount, Orb32s* delayLine, Orb32s* delayIndex,
                                             Orb32s scaleFactor) {
  return FilterDirect(FloatDirect<Fir64f_32s>{taps, tapCount, scaleFactor}, srcDst, srcDst, sampleCount,
                      delayLine, delayIndex);
}

OrbStatus legacy90orbsFIROne64f_Direct_32s_Sfs(Orb32s src, Orb32s* dst, const Orb64f* taps, Orb32s tapCount,
                                               Orb32s* delayLine, Orb32s* delayIndex, Orb32s scaleFactor) {
  return FilterDirectOne(FloatDirect<Fir64f_32s>{taps, tapCount, scaleFactor}, &src, dst, delayLine,
                         delayIndex);
}

OrbStatus legacy90orbsFIROne64f_Direct_32s_ISfs(Orb32s* srcDst, const Orb64f* taps, Orb32s tapCount,
                                                Orb32s* delayLine, Orb32s* delayIndex, Orb32s scaleFactor) {
  return FilterDirectOne(FloatDirect<Fir64f_32s>{taps, tapCount, scaleFactor}, srcDst, srcDst, delayLine,
                         delayIndex);
}

OrbStatus legacy90orbsFIR64fc_Direct_32sc_Sfs(const Orb32sc* src, Orb32sc* dst, Orb32s sampleCount,
                                              const Orb64fc* taps, Orb32s tapCount, Orb32sc* delayLine,
                                              Orb32s* delayIndex, Orb32s scaleFactor) {
  return FilterDirect(FloatDirect<Fir64fc_32sc>{taps, tapCount, scaleFactor}, src, dst, sampleCount,
                      delayLine, delayIndex);
}

OrbStatus legacy90orbsFIR64fc_Direct_32sc_ISfs(Orb32sc* srcDst, Orb32s sampleCount, const Orb64fc* taps,
                                               Orb32s tapCount, Orb32sc* delayLine, Orb32s* delayIndex,
                                               Orb32s scaleFactor) {
  return FilterDirect(FloatDirect<Fir64fc_32sc>{taps, tapCount, scaleFactor}, srcDst, srcDst, sampleCount,
                      delayLine, delayIndex);
}

OrbStatus legacy90orbsFIROne64fc_Direct_32sc_Sfs(Orb32sc src, Orb32sc* dst, const Orb64fc* taps,
                                                 Orb32s tapCount, Orb32sc* delayLine, Orb32s* delayIndex,
                                                 Orb32s scaleFactor) {
  return FilterDirectOne(FloatDirect<Fir64fc_32sc>{taps, tapCount, scaleFactor}, &src, dst, delayLine,
                         delayIndex);
}

OrbStatus legacy90orbsFIROne64fc_Direct_32sc_ISfs(Orb32sc* srcDst, const Orb64fc* taps, Orb32s tapCount,
                                                  Orb32sc* delayLine, Orb32s* delayIndex,
                                                  Orb32s scaleFactor) {
  return FilterDirectOne(FloatDirect<Fir64fc_32sc>{taps, tapCount, scaleFactor}, srcDst, srcDst, delayLine,
                         delayIndex);
}

}  // namespace orbs::ORBS_VARIANT
