// Fourier sums at given frequencies.
//
// X(f) comes by Horner's rule, from the end of the block to its start: z := z exp(-j 2 pi f) + x[n]. In px
// that is the whole story. The vector variants run it over as many samples at a time as their registers hold:
// lane k has the partial sum over the samples k, k + N, k + 2N ..., whose step is the rotation of N samples,
// and at the end the lanes are folded, the upper half turned by its distance onto the lower one. Folding
// needs the rotations of 1, 2, 4 ... samples, which are the ones through which that of N is reached anyway.
//
// Y(f), in binary64, is the classical recursion of the second order with one real coefficient.
#ifndef ORBS_MODEM_GOERTZEL_KERNELS_H
#define ORBS_MODEM_GOERTZEL_KERNELS_H

#include <math.h>

#include <type_traits>

#include "core/complex.h"
#include "core/constants.h"
#include "core/parts.h"
#include "core/scaling.h"
#include "core/variant.h"

#if ORBS_VECTOR
#include "core/unrolled.h"
#include "simd/blocks.h"
#include "simd/load.h"
#include "simd/simd.h"
#endif

namespace orbs::ORBS_VARIANT::modem {

// The step exp(-j w) from one sample to the next, as cos w and sin w.
struct Rotation {
  Orb64f c;
  Orb64f s;
};

ORBS_INLINE Rotation RotationOf(Orb64f relativeFrequency) {
  const Orb64f angle = kTwoPi * relativeFrequency;
  return {cos(angle), sin(angle)};
}

ORBS_INLINE Rotation Doubled(Rotation r) { return {2 * r.c * r.c - 1, 2 * r.s * r.c}; }

using FourierSum = Complex<Wide<Orb64f>>;

// The sum times exp(-j w), plus x.
ORBS_INLINE FourierSum Advance(FourierSum z, Rotation r, FourierSum x) {
  return {z.re * r.c + z.im * r.s + x.re, z.im * r.c - z.re * r.s + x.im};
}

// ---- X(f) ----

#if ORBS_VECTOR

// Partial sums of a real signal: their real and their imaginary parts.
struct RealSums {
  static constexpr int kParts = 1;
  static constexpr int kLanes = F32::kLanes;
  struct Step {
    F32 c;
    F32 s;
    explicit ORBS_INLINE Step(Rotation r)
        : c(F32::All(static_cast<Orb32f>(r.c))), s(F32::All(static_cast<Orb32f>(r.s))) {}
  };
  F32 re;
  F32 im;

  static ORBS_INLINE RealSums Of(F32 x) { return {x, F32::Zero()}; }
  ORBS_INLINE RealSums Advanced(const Step& step, F32 x) const {
    return {MulAdd(im, step.s, MulAdd(re, step.c, x)), NegMulAdd(re, step.s, im * step.c)};
  }
  ORBS_INLINE RealSums Advanced(const Step& step, RealSums x) const {
    return {MulAdd(im, step.s, MulAdd(re, step.c, x.re)), NegMulAdd(re, step.s, MulAdd(im, step.c, x.im))};
  }
  ORBS_INLINE void Store(FourierSum (&sums)[kLanes]) const {
    Orb32f real[kLanes];
    Orb32f imaginary[kLanes];
    re.Store(real);
    im.Store(imaginary);
    for (int k = 0; k < kLanes; ++k) sums[k] = {real[k], imaginary[k]};
  }
};

// Partial sums of a complex signal, interleaved as its samples are.
struct ComplexSums {
  static constexpr int kParts = 2;
  static constexpr int kLanes = F32::kLanes / 2;
  struct Step {
    F32 c;
    F32 s;  // s, -s
    explicit ORBS_INLINE Step(Rotation r)
        : c(F32::All(static_cast<Orb32f>(r.c))), s(Conjugate(F32::All(static_cast<Orb32f>(r.s)))) {}
  };
  F32 z;

  static ORBS_INLINE ComplexSums Of(F32 x) { return {x}; }
  ORBS_INLINE ComplexSums Advanced(const Step& step, F32 x) const {
    return {MulAdd(SwapPairs(z), step.s, MulAdd(z, step.c, x))};
  }
  ORBS_INLINE ComplexSums Advanced(const Step& step, ComplexSums x) const { return Advanced(step, x.z); }
  ORBS_INLINE void Store(FourierSum (&sums)[kLanes]) const {
    Orb32f parts[2 * kLanes];
    z.Store(parts);
    for (int k = 0; k < kLanes; ++k) sums[k] = {parts[2 * k], parts[2 * k + 1]};
  }
};

template <class Sample>
using PartialSums = std::conditional_t<std::is_class_v<Sample>, ComplexSums, RealSums>;

constexpr int Log2(int n) { return n < 2 ? 0 : 1 + Log2(n / 2); }

// How the sums of a signal at kCount frequencies lie in registers. One step of a vector is two fused products
// in a row, of which a core starts two a cycle and finishes each after four: eight vectors in flight (a
// vector of partial sums of a real signal is two) keep it busy, and leave registers for steps and samples.
template <class Sample, int kCount>
struct FourierLayout {
  using Sums = PartialSums<Sample>;
  static constexpr int kVectors = (Sums::kParts == 1 ? 4 : 8) / kCount;
  static constexpr int kSamples = kVectors * Sums::kLanes;  // a step
  static constexpr int kElements = kVectors * F32::kLanes;  // the same in parts of samples
};

// A block is summed in single precision, in which a rotation is off by up to 2^-25 in each part: after the 32
// to 256 steps of 1024 samples, by up to a few 1e-6 where it has been applied most often. Sums of blocks are
// put together in double precision.
inline constexpr int kFourierBlockLog2 = 10;
inline constexpr Orb32s kFourierBlock = 1 << kFourierBlockLog2;

// The rotation of 2^i samples in place i.
struct Rotations {
  Rotation ofLog2[kFourierBlockLog2 + 1];
};

// The upper half of the vectors or lanes, turned by its distance, onto the lower half, and so on down to one.
template <int kVectors, class Sums>
ORBS_INLINE void FoldVectors(Sums* sums, int kCount, const Rotations& rotations) {
  if constexpr (kVectors > 1) {
    constexpr int kHalf = kVectors / 2;
    const typename Sums::Step step(rotations.ofLog2[Log2(kHalf * Sums::kLanes)]);
    ORBS_UNROLL
    for (int v = 0; v < kHalf; ++v) {
      sums[v * kCount] = sums[(v + kHalf) * kCount].Advanced(step, sums[v * kCount]);
    }
    FoldVectors<kHalf>(sums, kCount, rotations);
  }
}
template <int kLanes>
ORBS_INLINE void FoldLanes(FourierSum* lanes, const Rotations& rotations) {
  if constexpr (kLanes > 1) {
    constexpr int kHalf = kLanes / 2;
    const Rotation rotation = rotations.ofLog2[Log2(kHalf)];
    ORBS_UNROLL
    for (int i = 0; i < kHalf; ++i) lanes[i] = Advance(lanes[i + kHalf], rotation, lanes[i]);
    FoldLanes<kHalf>(lanes, rotations);
  }
}

template <int kCount, class Sample>
void SumFourierBlock(const Sample* src, Orb32s len, const Rotations (&rotations)[kCount],
                     FourierSum (&results)[kCount]) {
  using Layout = FourierLayout<Sample, kCount>;
  using Sums = typename Layout::Sums;
  using Step = typename Sums::Step;
  constexpr int kElements = Layout::kElements;
  const auto* const first = Parts(src);

  // The walk begins with what is left over at the end of the block, zeros behind it.
  const Orb32s elements = len * Sums::kParts;
  const Orb32s rest = (elements - 1) % kElements + 1;
  const auto* x = first + (elements - rest);
  PartOf<Sample> last[kElements] = {};
  if (rest == kElements) {
    std::memcpy(last, x, sizeof last);
  } else {
    CopyFew<sizeof last / 2>(last, x, static_cast<size_t>(rest));
  }
  // Vector by vector, the frequencies of each side by side.
  constexpr int kSums = Layout::kVectors * kCount;
  Sums sums[kSums];
  Unrolled<kSums>([&](auto i) { sums[i] = Sums::Of(LoadAs<F32>(last + i / kCount * F32::kLanes)); });
  const Step firstStep(rotations[0].ofLog2[Log2(Layout::kSamples)]);
  const Step otherStep(rotations[kCount - 1].ofLog2[Log2(Layout::kSamples)]);
  while (x != first) {
    x -= kElements;
    Unrolled<kSums>([&](auto i) {
      const F32 samples = LoadAs<F32>(x + i / kCount * F32::kLanes);
      sums[i] = sums[i].Advanced(i % kCount == 0 ? firstStep : otherStep, samples);
    });
  }

  Unrolled<kCount>([&](auto k) {
    FoldVectors<Layout::kVectors>(sums + k, kCount, rotations[k]);
    FourierSum lanes[Sums::kLanes];
    sums[k].Store(lanes);
    FoldLanes<Sums::kLanes>(lanes, rotations[k]);
    results[k] = lanes[0];
  });
}

template <int kCount, class Sample>
void SumFourier(const Sample* src, Orb32s len, const Rotation (&steps)[kCount],
                FourierSum (&results)[kCount]) {
  Rotations rotations[kCount];
  const int needed = len > kFourierBlock ? kFourierBlockLog2 : Log2(FourierLayout<Sample, kCount>::kSamples);
  for (int k = 0; k < kCount; ++k) {
    Rotation(&ofLog2)[kFourierBlockLog2 + 1] = rotations[k].ofLog2;
    ofLog2[0] = steps[k];
    for (int i = 0; i < needed; ++i) ofLog2[i + 1] = Doubled(ofLog2[i]);
  }
  Orb32s begin = (len - 1) / kFourierBlock * kFourierBlock;
  SumFourierBlock(src + begin, len - begin, rotations, results);
  while (begin != 0) {
    begin -= kFourierBlock;
    FourierSum sums[kCount];
    SumFourierBlock(src + begin, kFourierBlock, rotations, sums);
    for (int k = 0; k < kCount; ++k) {
      results[k] = Advance(results[k], rotations[k].ofLog2[kFourierBlockLog2], sums[k]);
    }
  }
}

#else

template <class Real>
ORBS_INLINE FourierSum ToSum(Real x) {
  return {x, 0};
}
ORBS_INLINE FourierSum ToSum(Orb16sc x) { return {Wide<Orb64f>(x.re), Wide<Orb64f>(x.im)}; }
ORBS_INLINE FourierSum ToSum(Orb32fc x) { return {x.re, x.im}; }

template <int kCount, class Sample>
void SumFourier(const Sample* src, Orb32s len, const Rotation (&steps)[kCount],
                FourierSum (&results)[kCount]) {
  for (FourierSum& result : results) result = {0, 0};
  for (Orb32s n = len - 1; n >= 0; --n) {
    const FourierSum x = ToSum(src[n]);
    for (int k = 0; k < kCount; ++k) results[k] = Advance(results[k], steps[k], x);
  }
}

#endif

// ---- Y(f) ----

// The result exp(j w) p - q from the last two values of the recursion, p = w[len-1] and q = w[len-2].
template <class Real>
struct LastTwo {
  Real p;
  Real q;
};
ORBS_INLINE Orb64fc TurnedSum(Rotation r, LastTwo<Wide<Orb64f>> re, LastTwo<Wide<Orb64f>> im) {
  return {static_cast<Orb64f>(r.c * re.p - r.s * im.p - re.q),
          static_cast<Orb64f>(r.c * im.p + r.s * re.p - im.q)};
}

#if ORBS_VECTOR

// Lanes that recur each on their own. x - w[n-2] does not wait for w[n-1]: a step takes the time of one
// multiply-add.
template <class Vector>
struct SecondOrder {
  Vector coefficient;
  Vector p = Vector::Zero();
  Vector q = Vector::Zero();

  ORBS_INLINE void Advance(Vector x) {
    const Vector next = MulAdd(coefficient, p, x - q);
    q = p;
    p = next;
  }
};

inline void SumTurned(const Orb64f* src, Orb32s len, const Rotation (&r)[2], Orb64fc* result) {
  const Orb64f coefficients[2] = {2 * r[0].c, 2 * r[1].c};
  SecondOrder<F64x2> recursion{F64x2::Load(coefficients)};
  for (Orb32s n = 0; n < len; ++n) recursion.Advance(F64x2::All(src[n]));
  Orb64f p[2];
  Orb64f q[2];
  recursion.p.Store(p);
  recursion.q.Store(q);
  for (int k = 0; k < 2; ++k) result[k] = TurnedSum(r[k], {p[k], q[k]}, {0, 0});
}

// Both parts at both frequencies: four lanes, in one vector or in two.
inline void SumTurned(const Orb64fc* src, Orb32s len, const Rotation (&r)[2], Orb64fc* result) {
  constexpr int kVectors = 4 / F64::kLanes;
  const Orb64f coefficients[4] = {2 * r[0].c, 2 * r[0].c, 2 * r[1].c, 2 * r[1].c};
  SecondOrder<F64> recursions[kVectors];
  ORBS_UNROLL
  for (int v = 0; v < kVectors; ++v) recursions[v].coefficient = F64::Load(coefficients + v * F64::kLanes);
  for (Orb32s n = 0; n < len; ++n) {
    F64 x;
    LoadPairToAll(&src[n].re, &x);
    ORBS_UNROLL
    for (int v = 0; v < kVectors; ++v) recursions[v].Advance(x);
  }
  Orb64f p[4];
  Orb64f q[4];
  ORBS_UNROLL
  for (int v = 0; v < kVectors; ++v) {
    recursions[v].p.Store(p + v * F64::kLanes);
    recursions[v].q.Store(q + v * F64::kLanes);
  }
  for (int k = 0; k < 2; ++k) {
    result[k] = TurnedSum(r[k], {p[2 * k], q[2 * k]}, {p[2 * k + 1], q[2 * k + 1]});
  }
}

#else

// One part of the samples at one frequency; each w is rounded to binary64.
struct SecondOrder {
  Wide<Orb64f> coefficient;
  Orb64f p = 0;
  Orb64f q = 0;

  ORBS_INLINE void Advance(Orb64f x) {
    const auto next = static_cast<Orb64f>(x + coefficient * p - q);
    q = p;
    p = next;
  }
};

inline void SumTurned(const Orb64f* src, Orb32s len, const Rotation (&r)[2], Orb64fc* result) {
  SecondOrder recursions[2] = {{2 * r[0].c}, {2 * r[1].c}};
  for (Orb32s n = 0; n < len; ++n) {
    for (SecondOrder& recursion : recursions) recursion.Advance(src[n]);
  }
  for (int k = 0; k < 2; ++k) {
    result[k] = TurnedSum(r[k], {recursions[k].p, recursions[k].q}, {0, 0});
  }
}

inline void SumTurned(const Orb64fc* src, Orb32s len, const Rotation (&r)[2], Orb64fc* result) {
  SecondOrder re[2] = {{2 * r[0].c}, {2 * r[1].c}};
  SecondOrder im[2] = {{2 * r[0].c}, {2 * r[1].c}};
  for (Orb32s n = 0; n < len; ++n) {
    for (int k = 0; k < 2; ++k) {
      re[k].Advance(src[n].re);
      im[k].Advance(src[n].im);
    }
  }
  for (int k = 0; k < 2; ++k) {
    result[k] = TurnedSum(r[k], {re[k].p, re[k].q}, {im[k].p, im[k].q});
  }
}

#endif

}  // namespace orbs::ORBS_VARIANT::modem

#endif
