// Blackman windows: w = (alpha + 1) / 2 - u / 2 - alpha (u^2 - 1/2), u = cos(2 pi n / (N-1)).
#ifndef ORBS_GEN_WINDOW_BLACKMAN_H
#define ORBS_GEN_WINDOW_BLACKMAN_H

#include <math.h>

#include "core/checks.h"
#include "core/constants.h"
#include "gen/window/window_apply.h"
#include "simd/round_scaled.h"

namespace orbs::ORBS_VARIANT::gen {

#if ORBS_VECTOR

// With z = u / 2 the window is (0.5 - z)(1 + 2 alpha + 4 alpha z): in this form exactly 0 where u is 1, also
// for an alpha that has more bits than binary32.
//
// In a chunk z runs in binary32 by its recurrence z(n+S) = 2 cos(S step) z(n) - z(n-S), S the lanes of a
// vector, in the form of Reinsch: d is the last difference of z, and the next one is less by
// 2 (1 - cos(S step)) z. The coefficient is small and exact where the step is small, which 2 cos(S step),
// just below 2, is not. Each chunk is seeded from a rotation in binary64.
class BlackmanValues {
 public:
  BlackmanValues(Orb32s len, Orb32s alphaQ15)
      : constant_(F32::All(static_cast<Orb32f>(1 + alphaQ15 * 0x1p-14))),
        linear_(F32::All(static_cast<Orb32f>(alphaQ15 * 0x1p-13))) {
    const Orb64f step = kTwoPi / (len - 1);
    const Orb64f sine = sin(F32::kLanes / 2 * step);
    curvature_ = F32::All(static_cast<Orb32f>(4 * sine * sine));
    turnCosine_ = cos(kWindowChunk * step);
    turnSine_ = sin(kWindowChunk * step);

    // Half cosines and half sines of the first positions, by the recurrence with one position a step.
    const Orb64f twiceCosine = 2 * cos(step);
    halfCosines_[0] = 0.5;
    halfSines_[0] = 0;
    Orb64f cosineBefore = twiceCosine / 4;
    Orb64f sineBefore = -sin(step) / 2;
    for (int j = 1; j < kSeeds; ++j) {
      halfCosines_[j] = twiceCosine * halfCosines_[j - 1] - cosineBefore;
      halfSines_[j] = twiceCosine * halfSines_[j - 1] - sineBefore;
      cosineBefore = halfCosines_[j - 1];
      sineBefore = halfSines_[j - 1];
    }
  }

  void operator()(Orb32f* values, Orb32s, Orb32s count) {
    constexpr int kHalf = F64::kLanes;
    const F64 low = Seed(0);
    const F64 high = Seed(kHalf);
    F32 z = Narrow(low, high);
    F32 d = Narrow(Seed(2 * kHalf) - low, Seed(3 * kHalf) - high);
    for (Orb32s i = 0; i < count; i += F32::kLanes) {
      ((F32::All(0.5f) - z) * MulAdd(linear_, z, constant_)).Store(values + i);
      z = z + d;
      d = NegMulAdd(curvature_, z, d);
    }
    Turn();
  }

 private:
  static constexpr int kSeeds = 2 * F32::kLanes;

  // Half cosines of the positions from j on, counted from the chunk's first.
  ORBS_INLINE F64 Seed(int j) const {
    return F64::Load(halfCosines_ + j) * F64::All(cosine_) - F64::Load(halfSines_ + j) * F64::All(sine_);
  }

  ORBS_INLINE void Turn() {
    const Orb64f cosine = cosine_ * turnCosine_ - sine_ * turnSine_;
    sine_ = sine_ * turnCosine_ + cosine_ * turnSine_;
    cosine_ = cosine;
  }

  F32 constant_;
  F32 linear_;
  F32 curvature_;
  Orb64f turnCosine_;  // by one chunk
  Orb64f turnSine_;
  Orb64f cosine_ = 1;  // of the chunk's first position
  Orb64f sine_ = 0;
  Orb64f halfCosines_[kSeeds];
  Orb64f halfSines_[kSeeds];
};

template <class Data>
void Weigh(const Data* src, Data* dst, Orb32s len, Orb32s alphaQ15) {
  ApplyWindow(src, dst, len, BlackmanValues(len, alphaQ15), [](F32 y) { return y; });
}

inline void WeighScaled(Orb16s* srcDst, Orb32s len, Orb32s alphaQ15, Orb32s scaleFactor) {
  const PowerOfTwo<Orb32f> factor = InversePowerOfTwo<Orb32f>(scaleFactor);
  const auto scale = [factor](F32 y) { return Times<Orb32f>(y, factor); };
  ApplyWindow(srcDst, srcDst, len, BlackmanValues(len, alphaQ15), scale);
}

#else

// Cosine and sine of one step, in binary64.
struct Step {
  Orb64f cosine;
  Orb64f sine;

  explicit Step(Orb32s len) : cosine(cos(kTwoPi / (len - 1))), sine(sqrt(1 - cosine * cosine)) {}
};

// The window value in Q15 by a rotation in Q30. Shifts are arithmetic; every product fits 64 bits.
class FixedValues {
 public:
  FixedValues(Orb32s len, Orb32s alphaQ15) : alphaQ15_(alphaQ15) {
    const Step step(len);
    cosine_ = static_cast<Orb64s>(step.cosine * kOne);
    sine_ = static_cast<Orb64s>(step.sine * kOne);
  }

  Orb64s operator()() {
    const Orb64s square = (u_ * u_) >> 30;
    // (alpha + 1) / 2 in Q30. The product alpha (u^2 - 1/2) has alpha in Q15 and a shift of 15: the same
    // number as with both in Q30, without the bits that a large alpha would carry beyond 64.
    const Orb64s constant = (static_cast<Orb64s>(alphaQ15_) + 32768) * 16384;
    const Orb64s value = constant - ((alphaQ15_ * (square - kOne / 2)) >> 15) - (u_ >> 1);
    const Orb64s next = (u_ * cosine_ - v_ * sine_) >> 30;
    v_ = (u_ * sine_ + v_ * cosine_) >> 30;
    u_ = next;
    return (value + 16384) >> 15;
  }

 private:
  static constexpr Orb64s kOne = Orb64s{1} << 30;

  Orb64s alphaQ15_;
  Orb64s cosine_;
  Orb64s sine_;
  Orb64s u_ = kOne;
  Orb64s v_ = 0;
};

class FloatValues {
 public:
  FloatValues(Orb32s len, Orb32s alphaQ15) : alpha_(alphaQ15 * 0x1p-15), step_(len) {}

  Orb64f operator()() {
    const Orb64f value = (alpha_ + 1) / 2 - u_ / 2 - alpha_ * (u_ * u_ - 0.5);
    const Orb64f next = u_ * step_.cosine - v_ * step_.sine;
    v_ = u_ * step_.sine + v_ * step_.cosine;
    u_ = next;
    return value;
  }

 private:
  Orb64f alpha_;
  Step step_;
  Orb64f u_ = 1;
  Orb64f v_ = 0;
};

template <class Data>
void Weigh(const Data* src, Data* dst, Orb32s len, Orb32s alphaQ15) {
  const auto weigh = [](Orb16s x, Orb64s value) { return ShiftHalfUp<Orb16s>(x * value, 15); };
  ApplyWindow(src, dst, len, FixedValues(len, alphaQ15), weigh);
}

inline void WeighScaled(Orb16s* srcDst, Orb32s len, Orb32s alphaQ15, Orb32s scaleFactor) {
  const auto factor = InversePowerOfTwo<Wide<Orb64f>>(scaleFactor);
  const auto weigh = [factor](Orb16s x, Orb64f value) { return FloatHalfAway<Orb16s>(factor(x * value)); };
  ApplyWindow(srcDst, srcDst, len, FloatValues(len, alphaQ15), weigh);
}

#endif

inline OrbStatus CheckLength(Orb32s len) { return len < 3 ? StatusSize : StatusOk; }

template <class Data>
ORBS_INLINE OrbStatus Blackman(const Data* src, Data* dst, Orb32s len, Orb32s alphaQ15) {
  ORBS_RETURN_IF_BAD(CheckArrays(len, src, dst));
  ORBS_RETURN_IF_BAD(CheckLength(len));
  if (len % 2 != 0) dst[len / 2] = src[len / 2];
  Weigh(src, dst, len, alphaQ15);
  return StatusOk;
}

}  // namespace orbs::ORBS_VARIANT::gen

#endif
