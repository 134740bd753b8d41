// Many biquads at a time: a section a lane.
//
// At step t the section in lane s takes sample t - 3 s, so that each section has its input when its turn
// comes: what lane s made goes to lane s+1 three steps later. Between two results of one section then stands
// a single multiply-add,
//
//   y = (b[0] x + e) - a[1] y',   e' = b[1] x + d,   d' = b[2] x - a[2] y
//
// where e - a[1] y' is the delay element d[0] whose last product is still open, and d is d[1]. There is no
// look-ahead in this: sections enough fill the vectors. While the first samples go up the lanes, and the last
// ones leave them, the sections without a sample keep what they have.
#ifndef ORBS_IIR_LANE_CASCADE_H
#define ORBS_IIR_LANE_CASCADE_H

#include "iir/lanes.h"
#include "iir/number.h"

#if ORBS_VECTOR

namespace orbs::ORBS_VARIANT {

// From a result to that of the next section lie a move across the vector, an insertion and two multiply-adds:
// three times the one that lies between two results of a section.
inline constexpr Orb32s kLaneLag = 3;

template <class Work, int kVectors>
class LaneCascade {
 public:
  static constexpr int kParts = PartsOf<Work>::kCount;
  static constexpr int kSections = kVectors * F32::kLanes / kParts;
  // Steps that the first sample takes to the last lane: the least count of samples.
  static constexpr Orb32s kFill = kLaneLag * (kSections - 1);

  // Up to kSections sections with their taps t and delay elements d. Lanes without a section pass on what
  // they get.
  ORBS_INLINE LaneCascade(const Work* t, const Work* d, Orb32s sectionCount) {
    Orb32f coefficient[5][2][kVectors * F32::kLanes] = {};
    Orb32f delay[2][kVectors * F32::kLanes] = {};
    for (Orb32s s = 0; s < kSections; ++s) {
      for (int i = 0; i < 5; ++i) {
        N value = N::Zero();
        if (s < sectionCount) {
          value = N::From(t[5 * s + i]);
        } else if (i == 0) {
          value.part[0] = 1;
        }
        for (int part = 0; part < kParts; ++part) {
          coefficient[i][0][s * kParts + part] = value.part[0];
          if (kParts == 2) coefficient[i][1][s * kParts + part] = part == 0 ? -value.part[1] : value.part[1];
        }
      }
      for (int i = 0; i < 2 && s < sectionCount; ++i) N::From(d[2 * s + i]).To(AsWork(delay[i]) + s);
    }
    ForConstants<kVectors>([&](auto v) {
      ForConstants<5>([&](auto i) {
        t_[i].re[v] = F32::Load(coefficient[i][0] + v * F32::kLanes);
        t_[i].im[v] = F32::Load(coefficient[i][1] + v * F32::kLanes);
      });
      e_[v] = F32::Load(delay[0] + v * F32::kLanes);
      d_[v] = F32::Load(delay[1] + v * F32::kLanes);
      y_[v] = F32::Zero();
      ForConstants<kLaneLag>([&](auto i) { waiting_[v][i] = F32::Zero(); });
    });
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
      StoreBottom<kParts>(out, waiting_[kVectors - 1][kLaneLag - 1]);
    }
    for (Orb32s t = 0; t < kFill; ++t, out += kParts) {
      // Behind the last sample nothing is read: the lanes without a sample take anything.
      Step(out, [&](F32 starts) { return Less(F32::All(static_cast<Orb32f>(t)), starts); });
      StoreBottom<kParts>(out, waiting_[kVectors - 1][kLaneLag - 1]);
    }
  }

  ORBS_INLINE void StoreDelay(Work* d, Orb32s sectionCount) const {
    Orb32f delay[2][kVectors * F32::kLanes];
    ForConstants<kVectors>([&](auto v) {
      Subtract(3, v, y_[v], Swapped(y_[v]), e_[v]).Store(delay[0] + v * F32::kLanes);
      d_[v].Store(delay[1] + v * F32::kLanes);
    });
    for (Orb32s s = 0; s < sectionCount && s < kSections; ++s) {
      for (int i = 0; i < 2; ++i) N::From(AsWork(delay[i])[s]).To(d + 2 * s + i);
    }
  }

 private:
  using N = Number<Orb32f, kParts>;

  static ORBS_INLINE Work* AsWork(Orb32f* parts) { return reinterpret_cast<Work*>(parts); }

  // A complex product is re x + im x', with the parts of x swapped in x' and signs in im.
  static ORBS_INLINE F32 Swapped(F32 x) { return kParts == 2 ? SwapPairs(x) : x; }
  ORBS_INLINE F32 Multiply(int i, int v, F32 x, F32 swapped) const {
    const F32 product = t_[i].re[v] * x;
    return kParts == 2 ? MulAdd(t_[i].im[v], swapped, product) : product;
  }
  ORBS_INLINE F32 Add(int i, int v, F32 x, F32 swapped, F32 sum) const {
    sum = MulAdd(t_[i].re[v], x, sum);
    return kParts == 2 ? MulAdd(t_[i].im[v], swapped, sum) : sum;
  }
  ORBS_INLINE F32 Subtract(int i, int v, F32 x, F32 swapped, F32 sum) const {
    sum = NegMulAdd(t_[i].re[v], x, sum);
    return kParts == 2 ? NegMulAdd(t_[i].im[v], swapped, sum) : sum;
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
    F32 moved[kVectors];
    ForConstants<kVectors>([&](auto v) {
      const F32 x = WithBottom<kParts>(waiting_[v][0], v == 0 ? input : waiting_[v == 0 ? 0 : v - 1][0]);
      const F32 xs = Swapped(x);
      const F32 y = Subtract(3, v, y_[v], Swapped(y_[v]), Add(0, v, x, xs, e_[v]));
      const F32 e = Add(1, v, x, xs, d_[v]);
      const F32 d = Subtract(4, v, y, Swapped(y), Multiply(2, v, x, xs));
      if constexpr (std::is_null_pointer_v<Active>) {
        y_[v] = y;
        e_[v] = e;
        d_[v] = d;
      } else {
        const F32 mask = active(Starts(v));
        y_[v] = Select(mask, y, y_[v]);
        e_[v] = Select(mask, e, e_[v]);
        d_[v] = Select(mask, d, d_[v]);
      }
      moved[v] = MovedUpAround<kParts>(y_[v]);
    });
    ForConstants<kVectors>([&](auto v) {
      ForConstants<kLaneLag - 1>([&](auto i) { waiting_[v][i] = waiting_[v][i + 1]; });
      waiting_[v][kLaneLag - 1] = moved[v];
    });
  }

  static ORBS_INLINE F32 Starts(int v) {
    Orb32f starts[F32::kLanes];
    for (int lane = 0; lane < F32::kLanes; ++lane) {
      starts[lane] = static_cast<Orb32f>(kLaneLag * ((v * F32::kLanes + lane) / kParts));
    }
    return F32::Load(starts);
  }

  struct Coefficients {
    F32 re[kVectors];
    F32 im[kVectors];
  };
  Coefficients t_[5];
  F32 e_[kVectors];
  F32 d_[kVectors];
  F32 y_[kVectors];
  F32 waiting_[kVectors][kLaneLag];  // results on their way to the next lane, the oldest first
};

}  // namespace orbs::ORBS_VARIANT

#endif
#endif
