// The phase step from one sample to the next: the angle of z conj(z'), z' being the sample before z.
//
// With z = a + jb and z' = p + jq the product has the parts R = pa + qb and I = pb - qa, exact in 32 bits but
// for R = 2^31, which only four times -32768 give. The arctangent is taken of the smaller part over the
// larger one, by a rational function in place of a table, and put into its octant by the signs and the order
// of the parts.
#ifndef ORBS_MODEM_FM_KERNELS_H
#define ORBS_MODEM_FM_KERNELS_H

#include <limits>

#include "core/scaling.h"
#include "core/variant.h"
#include "modem/tuning.h"

#if ORBS_VECTOR
#include <algorithm>
#include <cstring>
#include <type_traits>

#include "simd/blocks.h"
#include "simd/simd.h"
#endif

namespace orbs::ORBS_VARIANT::modem {

// atan t = t (1 + c1 u + c2 u^2 + c3 u^3) / (1 + d1 u + d2 u^2 + d3 u^3), u = t^2, within 2e-9 for |t| <= 1.
inline constexpr Orb32f kArctangentC[3] = {1.1202340126f, 0.28050455451f, 0.0085611892864f};
inline constexpr Orb32f kArctangentD[3] = {1.4535671473f, 0.56503099203f, 0.049017589539f};
inline constexpr Orb32f kHalfPi32f = 1.5707963705f;
inline constexpr Orb32f kPi32f = 3.1415927410f;
inline constexpr Orb32f kStepsPerRadian = 10430.377930f;  // 32768 / pi
inline constexpr Orb32s kWrapped = std::numeric_limits<Orb32s>::min();

#if ORBS_VECTOR

// Where dividers are slow, by an estimate of the reciprocal and a Newton step, which doubles its 12 bits.
ORBS_INLINE F32 Quotient(F32 numerator, F32 denominator) {
  if constexpr (kDivides) return numerator / denominator;
  const F32 estimate = ReciprocalEstimate(denominator);
  const F32 error = NegMulAdd(denominator, estimate, F32::All(1));
  return numerator * MulAdd(estimate, error, estimate);
}

ORBS_INLINE F32 CubicWithOne(F32 u, const Orb32f (&c)[3]) {
  return MulAdd(u, MulAdd(u, MulAdd(u, F32::All(c[2]), F32::All(c[1])), F32::All(c[0])), F32::All(1));
}

// Rounding to binary32 keeps signs and, but for equal magnitudes that were neighbours, order.
ORBS_INLINE I32 PhaseStep(I32 re, I32 im) {
  const F32 sign = F32::All(-0.0f);
  const F32 r = ToFloat(re + Equal(re, I32::All(kWrapped)));  // the wrapped 2^31 becomes 2^31 - 1
  const F32 i = ToFloat(im);
  const F32 absR = AndNot(sign, r);
  const F32 absI = AndNot(sign, i);
  const F32 t = Quotient(Min(absR, absI), Max(Max(absR, absI), F32::All(1)));
  const F32 u = t * t;
  F32 a = Quotient(t * CubicWithOne(u, kArctangentC), CubicWithOne(u, kArctangentD));
  a = Select(Less(absR, absI), F32::All(kHalfPi32f) - a, a);
  a = Select(Less(r, F32::Zero()), F32::All(kPi32f) - a, a);
  return RoundToInt((a | (i & sign)) * F32::All(kStepsPerRadian));
}

// N is as wide as I16; where I32 is wider, the integers of one I16 fill one vector of floats.
template <class N, class I = I32>
ORBS_INLINE I16 PhaseSteps(N re0, N re1, N im0, N im1) {
  if constexpr (std::is_same_v<N, I>) {
    return PackInLanes(PhaseStep(re0, im0), PhaseStep(re1, im1));
  } else {
    const I steps = PhaseStep(I{re0, re1}, I{im0, im1});
    return PackInLanes(steps.low, steps.high);
  }
}

// p a + q b from the pairs (b, a) and (q, p). -q would not fit where q is -32768, ~q = -q - 1 does:
// p b + ~q a + a.
ORBS_INLINE I16 PhaseSteps(I16 a, I16 b, I16 p, I16 q) {
  I16 ba0, ba1, qp0, qp1, pq0, pq1;
  InterleaveInLanes(b, a, &ba0, &ba1);
  InterleaveInLanes(q, p, &qp0, &qp1);
  InterleaveInLanes(p, q ^ I16::All(-1), &pq0, &pq1);
  const auto imaginary = [](I16 ba, I16 pq) { return MulAddPairs(ba, pq) + ShiftRight(As32(ba), 16); };
  return PhaseSteps(MulAddPairs(ba0, qp0), MulAddPairs(ba1, qp1), imaginary(ba0, pq0), imaginary(ba1, pq1));
}

// From the end to the start, since a block needs the sample in front of it as it was: the result may be one
// of the sources. The first block is set aside with the delay point in front of it.
inline void DemodulateFM(const Orb16s* srcRe, const Orb16s* srcIm, Orb16s* dst, Orb32s len,
                         Orb16sc* delayPoint) {
  constexpr Orb32s kLanes = I16::kLanes;
  Orb16s re[kLanes + 1] = {delayPoint->re};
  Orb16s im[kLanes + 1] = {delayPoint->im};
  const size_t few = static_cast<size_t>(std::min(len, kLanes));
  std::memcpy(re + 1, srcRe, few * sizeof *re);
  std::memcpy(im + 1, srcIm, few * sizeof *im);
  *delayPoint = {srcRe[len - 1], srcIm[len - 1]};

  for (Orb32s n = len - kLanes; n > 0; n -= kLanes) {
    PhaseSteps(I16::Load(srcRe + n), I16::Load(srcIm + n), I16::Load(srcRe + n - 1), I16::Load(srcIm + n - 1))
        .Store(dst + n);
  }
  const I16 first = PhaseSteps(I16::Load(re + 1), I16::Load(im + 1), I16::Load(re), I16::Load(im));
  if (len >= kLanes) {
    first.Store(dst);
  } else {
    Orb16s steps[kLanes];
    first.Store(steps);
    CopyFew<sizeof steps / 2>(dst, steps, few);
  }
}

#else

ORBS_INLINE Orb16s PhaseStep(Orb16sc z, Orb16sc before) {
  using Real = Wide<Orb32f>;
  const auto product = [](Orb16s x, Orb16s y) { return static_cast<Orb32u>(Orb32s{x} * y); };
  const auto i = static_cast<Orb32s>(product(before.re, z.im) - product(before.im, z.re));
  const auto r = static_cast<Orb32s>(product(before.re, z.re) + product(before.im, z.im));
  const Orb32s absI = i < 0 ? -i : i;
  Real numerator = absI;
  Real denominator = 2147483648.0f;
  bool swapped = false;
  if (r != kWrapped) {
    const Orb32s absR = r < 0 ? -r : r;
    denominator = absR == 0 ? 1 : absR;
    swapped = absR < absI;
    if (swapped) {
      numerator = absR;
      denominator = absI;
    }
  }
  const Real t = numerator / denominator;
  const Real u = t * t;
  const auto cubic = [u](const Orb32f(&c)[3]) { return 1 + u * (c[0] + u * (c[1] + u * c[2])); };
  Real a = t * cubic(kArctangentC) / cubic(kArctangentD);
  if (swapped) a = kHalfPi32f - a;
  if (r < 0 && r != kWrapped) a = kPi32f - a;
  if (i < 0) a = -a;
  return FloatHalfAway<Orb16s>(a * kStepsPerRadian);
}

inline void DemodulateFM(const Orb16s* srcRe, const Orb16s* srcIm, Orb16s* dst, Orb32s len,
                         Orb16sc* delayPoint) {
  Orb16sc before = *delayPoint;
  for (Orb32s n = 0; n < len; ++n) {
    const Orb16sc z = {srcRe[n], srcIm[n]};
    dst[n] = PhaseStep(z, before);
    before = z;
  }
  *delayPoint = before;
}

#endif

}  // namespace orbs::ORBS_VARIANT::modem

#endif
