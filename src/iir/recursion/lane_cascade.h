// Many biquads at a time: a section a lane.
//
// At step t the section in lane s takes sample t - 4 s, so that each section has its input when its turn
// comes: what lane s made goes to lane s+1 four steps later. A section's own recursion is ordered so that one
// multiply-add stands between a result and the next, and two between it and the one after that,
//
//   y = ((b[0] x + f) - a[2] y'') - a[1] y',   f' = b[1] x + p,   p' = b[2] x
//
// with the results y' and y'' of the last two steps. There is no look-ahead in this: sections enough fill the
// vectors. While the first samples go up the lanes, and the last ones leave them, the sections without a
// sample keep what they have.
#ifndef ORBS_IIR_RECURSION_LANE_CASCADE_H
#define ORBS_IIR_RECURSION_LANE_CASCADE_H

#include "core/unrolled.h"
#include "iir/recursion/number.h"
#include "simd/lanes.h"

#if ORBS_VECTOR

namespace orbs::ORBS_VARIANT::iir {

// From a result to that of the next section lie a move across the vector, an insertion and three
// multiply-adds: four times the one that lies between two results of a section.
inline constexpr Orb32s kLaneLag = 4;

template <class Work>
class LaneCascade {
 public:
  static constexpr int kParts = PartsOf<Work>::kCount;
  static constexpr int kSections = F32::kLanes / kParts;
  // Steps that the first sample takes to the last lane: the least count of samples.
  static constexpr Orb32s kFill = kLaneLag * (kSections - 1);

  // Up to kSections sections with their taps t and delay elements d. Lanes without a section pass on what
  // they get; they are the first ones, since the filter's input is finite: an infinite result of a section
  // times their zeros would be NaN.
  ORBS_INLINE LaneCascade(const Work* t, const Work* d, Orb32s sectionCount) {
    const Orb32s empty = kSections - sectionCount;
    Orb32f coefficient[5][2][F32::kLanes] = {};
    Orb32f delay[2][F32::kLanes] = {};
    for (Orb32s lane = 0; lane < kSections; ++lane) {
      const Orb32s s = lane - empty;
      for (int i = 0; i < 5; ++i) {
        N value = N::Zero();
        if (s >= 0) {
          value = N::From(t[5 * s + i]);
        } else if (i == 0) {
          value.part[0] = 1;
        }
        for (int part = 0; part < kParts; ++part) {
          coefficient[i][0][lane * kParts + part] = value.part[0];
          if (kParts == 2)
            coefficient[i][1][lane * kParts + part] = part == 0 ? -value.part[1] : value.part[1];
        }
      }
      for (int i = 0; i < 2 && s >= 0; ++i) N::From(d[2 * s + i]).To(AsWork(delay[i]) + lane);
    }
    Unrolled<5>([&](auto i) {
      t_[i].re = F32::Load(coefficient[i][0]);
      t_[i].im = F32::Load(coefficient[i][1]);
    });
    // The delay line stands for the samples and results before.
    f_ = F32::Load(delay[0]);
    p_ = F32::Load(delay[1]);
    y1_ = y2_ = F32::Zero();
    Unrolled<kLaneLag>([&](auto i) { waiting_[i] = F32::Zero(); });
  }

  // In place; `count` is at least kFill.
  ORBS_INLINE void Run(Work* samples, Orb32s count) {
    Orb32f* in = Parts(samples);
    Orb32f* out = in;
    for (Orb32s t = 0; t < kFill; ++t, in += kParts) {
      Step(in, [&](F32 starts) { return LessEqual(starts, F32::All(static_cast<Orb32f>(t))); });
    }
    for (Orb32s t = kFill; t < count; ++t, in += kParts, out += kParts) {
      Step(in, nullptr);
      StoreBottom<kParts>(out, waiting_[kLaneLag - 1]);
    }
    for (Orb32s t = 0; t < kFill; ++t, out += kParts) {
      // Behind the last sample nothing is read: the lanes without a sample take anything.
      Step(out, [&](F32 starts) { return Less(F32::All(static_cast<Orb32f>(t)), starts); });
      StoreBottom<kParts>(out, waiting_[kLaneLag - 1]);
    }
  }

  ORBS_INLINE void StoreDelay(Work* d, Orb32s sectionCount) const {
    Orb32f delay[2][F32::kLanes];
    const F32 swapped = Swapped(y1_);
    Subtract(4, y2_, Swapped(y2_), Subtract(3, y1_, swapped, f_)).Store(delay[0]);
    Subtract(4, y1_, swapped, p_).Store(delay[1]);
    for (Orb32s s = 0; s < sectionCount; ++s) {
      const Orb32s lane = kSections - sectionCount + s;
      for (int i = 0; i < 2; ++i) N::From(AsWork(delay[i])[lane]).To(d + 2 * s + i);
    }
  }

 private:
  using N = Number<Orb32f, kParts>;

  static ORBS_INLINE Work* AsWork(Orb32f* parts) { return reinterpret_cast<Work*>(parts); }

  // A complex product is re x + im x', with the parts of x swapped in x' and signs in im.
  static ORBS_INLINE F32 Swapped(F32 x) { return kParts == 2 ? SwapPairs(x) : x; }
  ORBS_INLINE F32 Multiply(int i, F32 x, F32 swapped) const {
    const F32 product = t_[i].re * x;
    return kParts == 2 ? MulAdd(t_[i].im, swapped, product) : product;
  }
  ORBS_INLINE F32 Add(int i, F32 x, F32 swapped, F32 sum) const {
    sum = MulAdd(t_[i].re, x, sum);
    return kParts == 2 ? MulAdd(t_[i].im, swapped, sum) : sum;
  }
  ORBS_INLINE F32 Subtract(int i, F32 x, F32 swapped, F32 sum) const {
    sum = NegMulAdd(t_[i].re, x, sum);
    return kParts == 2 ? NegMulAdd(t_[i].im, swapped, sum) : sum;
  }

  // `active` tells from the step at which each lane starts which lanes have a sample; null: all.
  template <class Active>
  ORBS_INLINE void Step(const Orb32f* in, Active active) {
    F32 input;
    if constexpr (kParts == 1) {
      input = F32::All(*in);
    } else {
      LoadPairToAll(in, &input);
    }
    const F32 x = WithBottom<kParts>(waiting_[0], input);
    const F32 xs = Swapped(x);
    F32 y = Add(0, x, xs, f_);
    y = Subtract(4, y2_, Swapped(y2_), y);
    y = Subtract(3, y1_, Swapped(y1_), y);
    const F32 f = Add(1, x, xs, p_);
    const F32 p = Multiply(2, x, xs);
    if constexpr (std::is_null_pointer_v<Active>) {
      y2_ = y1_;
      y1_ = y;
      f_ = f;
      p_ = p;
    } else {
      Orb32f starts[F32::kLanes];
      for (int lane = 0; lane < F32::kLanes; ++lane) {
        starts[lane] = static_cast<Orb32f>(kLaneLag * (lane / kParts));
      }
      const F32 mask = active(F32::Load(starts));
      y2_ = Select(mask, y1_, y2_);
      y1_ = Select(mask, y, y1_);
      f_ = Select(mask, f, f_);
      p_ = Select(mask, p, p_);
    }
    Unrolled<kLaneLag - 1>([&](auto i) { waiting_[i] = waiting_[i + 1]; });
    waiting_[kLaneLag - 1] = MovedUpAround<kParts>(y1_);
  }

  struct Coefficients {
    F32 re;
    F32 im;
  };
  Coefficients t_[5];
  F32 f_;
  F32 p_;
  F32 y1_;
  F32 y2_;
  F32 waiting_[kLaneLag];  // results on their way to the next lane, the oldest first
};

}  // namespace orbs::ORBS_VARIANT::iir

#endif
#endif
