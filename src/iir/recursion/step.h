// One sample through a filter in transposed direct form II, and what it leaves in the delay line.
//
//   arbitrary order   y = b[0] x + d[0],   d[i] = b[i+1] x - a[i+1] y + d[i+1]   for i = 0 to N-1
//   a biquad          y = b[0] x + d[0],   d[0] = b[1] x + d[1] - a[1] y,   d[1] = b[2] x - a[2] y
//
// px evaluates each line in extended precision and rounds what it stores in the delay line; y goes on to the
// recursion, to the next section and to delivery unrounded.
#ifndef ORBS_IIR_RECURSION_STEP_H
#define ORBS_IIR_RECURSION_STEP_H

#include "core/scaling.h"
#include "iir/recursion/number.h"
#include "iir/state/layout.h"
#include "simd/lanes.h"

namespace orbs::ORBS_VARIANT::iir {

template <class Kind>
using StepNumber = Number<Wide<Orb32f>, Kind::kParts>;

template <class Kind>
ORBS_INLINE void DeliverSample(StepNumber<Kind> y, Orb32f factor, typename Kind::Data* dst) {
  for (int i = 0; i < Kind::kParts; ++i) Parts(dst)[i] = FloatNearEven<Orb16s>(y.part[i] * factor);
}

// ---- Arbitrary order ----

#if ORBS_VECTOR

// `parts` of d, at least a vector of them: d = b x - a y + (d one element on). The last vector is computed
// before the others are stored, since it may overlap them.
template <class V, int kParts>
ORBS_INLINE void MoveDelay(const Orb32f* b, const Orb32f* a, Orb32f* d, size_t parts,
                           const Orb32f (&x)[kParts], const Orb32f (&y)[kParts]) {
  const auto moved = [&](size_t i) {
    const V bi = V::Load(b + i);
    const V ai = V::Load(a + i);
    V sum = V::Load(d + i + kParts);
    sum = MulAdd(bi, V::All(x[0]), sum);
    sum = NegMulAdd(ai, V::All(y[0]), sum);
    if constexpr (kParts == 2) {
      const V signs = EvenSigns(static_cast<V*>(nullptr));
      sum = MulAdd(SwapPairs(bi), V::All(x[1]) ^ signs, sum);
      sum = NegMulAdd(SwapPairs(ai), V::All(y[1]) ^ signs, sum);
    }
    return sum;
  };
  constexpr size_t kLanes = V::kLanes;
  const V last = moved(parts - kLanes);
  for (size_t i = 0; i + kLanes < parts; i += kLanes) moved(i).Store(d + i);
  last.Store(d + parts - kLanes);
}

#endif

// The delay line after a sample x that gave y.
template <class Kind>
ORBS_INLINE void UpdateDelay(IirView<Kind> view, StepNumber<Kind> x, StepNumber<Kind> y) {
  using N = StepNumber<Kind>;
  const Orb32s order = view.state->delayLen;
  const auto* const b = view.Taps() + 1;
  const auto* const a = b + order;
  auto* const d = view.Delay();
#if ORBS_VECTOR
  const size_t parts = static_cast<size_t>(order) * Kind::kParts;
  if (parts >= F32::kLanes) {
    return MoveDelay<F32>(Parts(b), Parts(a), Parts(d), parts, x.part, y.part);
  }
  if (F32::kLanes > 4 && parts >= 4) {
    return MoveDelay<F32x4>(Parts(b), Parts(a), Parts(d), parts, x.part, y.part);
  }
#endif
  for (Orb32s i = 0; i < order; ++i) {
    (N::From(b[i]) * x - N::From(a[i]) * y + N::From(d[i + 1])).To(d + i);
  }
}

template <class Kind>
ORBS_INLINE StepNumber<Kind> StepArbitraryOrder(IirView<Kind> view, StepNumber<Kind> x) {
  using N = StepNumber<Kind>;
  const N y = N::From(view.Taps()[0]) * x + N::From(view.Delay()[0]);
  UpdateDelay(view, x, y);
  return y;
}

// Two samples in one walk along the delay line, for orders of 2 and more: x[1] meets each element right after
// x[0] has left it, so that the results are those of two steps.
template <class Kind>
void StepArbitraryOrderTwice(IirView<Kind> view, const StepNumber<Kind> (&x)[2], StepNumber<Kind> (&y)[2]) {
  using N = StepNumber<Kind>;
  using Work = typename Kind::Work;
  const Orb32s order = view.state->delayLen;
  const Work* const b = view.Taps();
  const Work* const a = b + order;  // a[0] has no element: a[i] is read from i = 1
  Work* const d = view.Delay();
  const auto after = [&](Orb32s i, int sample, N above) {
    Work element;
    (N::From(b[i]) * x[sample] - N::From(a[i]) * y[sample] + above).To(&element);
    return N::From(element);
  };
  y[0] = N::From(b[0]) * x[0] + N::From(d[0]);
  const N first = after(1, 0, N::From(d[1]));
  y[1] = N::From(b[0]) * x[1] + first;
  for (Orb32s i = 1; i < order; ++i) after(i, 1, after(i + 1, 0, N::From(d[i + 1]))).To(d + i - 1);
  after(order, 1, N::Zero()).To(d + order - 1);
}

// ---- Biquads ----

#if ORBS_VECTOR

// The section table holds b[0], b[1], b[2], 0, -a[1], -a[2], 0, 0: all products with x, and then those with
// y, stand side by side.
ORBS_INLINE Number<Orb32f, 1> StepSections(const Orb32f* table, Orb32f* d, Orb32s sectionCount,
                                           Number<Orb32f, 1> sample) {
  F32x4 x = F32x4::All(sample.part[0]);
  for (; sectionCount > 0; --sectionCount, table += kSectionTableElements, d += 2) {
    const F32x4 sums = MulAdd(x, F32x4::Load(table), LoadLowPair(d));
    x = AllOf<0>(sums);
    StoreLowPair(d, MulAdd(x, F32x4::Load(table + 4), MovedDown(sums)));
  }
  return {{LowLane(x)}};
}

ORBS_INLINE Number<Orb32f, 2> StepSections(const Orb32f* table, Orb32f* d, Orb32s sectionCount,
                                           Number<Orb32f, 2> sample) {
  F32x4 x;
  LoadPairToAll(sample.part, &x);
  for (; sectionCount > 0; --sectionCount, table += 2 * kSectionTableElements, d += 4) {
    const F32x4 sums = MulComplex(x, F32x4::Load(table)) + F32x4::Load(d);
    const F32x4 last = MulComplex(x, F32x4::Load(table + 4));
    x = LowPairToAll(sums);
    (MulComplex(x, F32x4::Load(table + 8)) + HighPairThenLow(sums, last)).Store(d);
  }
  Number<Orb32f, 2> y;
  StoreLowPair(y.part, x);
  return y;
}

template <class Kind>
ORBS_INLINE StepNumber<Kind> StepCascade(IirView<Kind> view, StepNumber<Kind> x) {
  return StepSections(view.SectionTable(), Parts(view.Delay()), view.state->sectionCount, x);
}

#else

template <class Kind>
ORBS_INLINE StepNumber<Kind> StepCascade(IirView<Kind> view, StepNumber<Kind> x) {
  using N = StepNumber<Kind>;
  const auto* t = view.Taps();
  auto* d = view.Delay();
  for (Orb32s s = 0; s < view.state->sectionCount; ++s, t += 5, d += 2) {
    const N y = N::From(t[0]) * x + N::From(d[0]);
    (N::From(t[1]) * x + N::From(d[1]) - N::From(t[3]) * y).To(d);
    (N::From(t[2]) * x - N::From(t[4]) * y).To(d + 1);
    x = y;
  }
  return x;
}

#endif

template <class Kind>
ORBS_INLINE StepNumber<Kind> Step(IirView<Kind> view, StepNumber<Kind> x) {
  if constexpr (Kind::kCascade) {
    return StepCascade(view, x);
  } else {
    return StepArbitraryOrder(view, x);
  }
}

// ---- A run of samples, each by its own step ----

template <class Kind>
void RunSteps(IirView<Kind> view, const typename Kind::Data* src, typename Kind::Data* dst, int64_t count,
              Orb32f factor) {
  using N = StepNumber<Kind>;
  int64_t i = 0;
  if constexpr (kIsPx && !Kind::kCascade) {
    if (view.state->delayLen >= 2) {
      for (; i + 2 <= count; i += 2) {
        const N x[2] = {N::From(src[i]), N::From(src[i + 1])};
        N y[2];
        StepArbitraryOrderTwice(view, x, y);
        DeliverSample<Kind>(y[0], factor, dst + i);
        DeliverSample<Kind>(y[1], factor, dst + i + 1);
      }
    }
  }
  for (; i < count; ++i) DeliverSample<Kind>(Step(view, N::From(src[i])), factor, dst + i);
}

}  // namespace orbs::ORBS_VARIANT::iir

#endif
