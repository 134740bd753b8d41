// The complex integer transforms: checks, choice of path, both paths.
#ifndef ORBS_TRANSFORM_INTEGER_COMPLEX_H
#define ORBS_TRANSFORM_INTEGER_COMPLEX_H

#include "core/checks.h"
#include "core/work_buffer.h"
#include "transform/engine/codelets.h"
#include "transform/integer/convert.h"
#include "transform/integer/fixed/fixed.h"
#include "transform/integer/plan.h"
#if ORBS_VECTOR
#include "transform/engine/vector/between.h"
#include "transform/integer/data.h"
#endif

namespace orbs::ORBS_VARIANT::transform {

// ---- The callers' data, and the floating-point path ----

// n pairs of T.
template <class T>
struct Pairs {
  const T* src;
  T* dst;
};

// Arrays of n real and of n imaginary parts.
template <class T>
struct Parts {
  const T* srcRe;
  const T* srcIm;
  T* dstRe;
  T* dstIm;
};

template <bool kForward, class T, class Plan>
void TransformByConversion(Pairs<T> x, Orb32s n, Orb32s scaleFactor, const Plan* plan,
                           typename Plan::Real* data) {
  Widen(x.src, data, 2 * n);
  auto* points = reinterpret_cast<ComplexOf<typename Plan::Real>*>(data);
  FftOf<Plan>::template Transform<kForward>(points, points, plan, data + 2 * Index{n});
  Narrow(data, x.dst, 2 * n, scaleFactor);
}

template <bool kForward, class T, class Plan>
void TransformByConversion(Parts<T> x, Orb32s n, Orb32s scaleFactor, const Plan* plan,
                           typename Plan::Real* data) {
  typename Plan::Real* im = data + n;
  Widen(x.srcRe, data, n);
  Widen(x.srcIm, im, n);
  if constexpr (Plan::kForm == FftForm::split) {
    FftOf<Plan>::template Transform<kForward>(data, im, data, im, plan, im + n);
  } else {
    // The parts have an interleaved plan in s8. They come here only where there is a codelet.
    RunCodelet<kForward, Split, typename Plan::Real>(*plan, plan->order, {data, im}, {data, im});
  }
  Narrow(data, x.dstRe, n, scaleFactor);
  Narrow(im, x.dstIm, n, scaleFactor);
}

#if ORBS_VECTOR

template <class T, class Int>
ORBS_INLINE IntegerPairs<T, Int> SourceOf(Pairs<Int> x) {
  return {x.src};
}
template <class T, class Int>
ORBS_INLINE IntegerParts<T, Int> SourceOf(Parts<Int> x) {
  return {x.srcRe, x.srcIm};
}
template <class T, class Int>
ORBS_INLINE RoundedPairs<T, Int> ResultOf(Pairs<Int> x, Orb32s scaleFactor) {
  return {x.dst, InversePowerOfTwo<T>(scaleFactor)};
}
template <class T, class Int>
ORBS_INLINE RoundedParts<T, Int> ResultOf(Parts<Int> x, Orb32s scaleFactor) {
  return {x.dstRe, x.dstIm, InversePowerOfTwo<T>(scaleFactor)};
}

template <bool kForward, class Data, class Plan>
void TransformFloat(Data x, Orb32s n, Orb32s scaleFactor, const Plan* plan, typename Plan::Real* data) {
  using T = typename Plan::Real;
  if (plan->order < kFirstVectorCodelet) {
    TransformByConversion<kForward>(x, n, scaleFactor, plan, data);
  } else {
    TransformBetween<kForward>(*plan, plan->order, SourceOf<T>(x), ResultOf<T>(x, scaleFactor), data,
                               data + 2 * Index{n});
  }
}

#else

template <bool kForward, class Data, class Plan>
void TransformFloat(Data x, Orb32s n, Orb32s scaleFactor, const Plan* plan, typename Plan::Real* data) {
  TransformByConversion<kForward>(x, n, scaleFactor, plan, data);
}

#endif

// ---- The fixed-point path ----

// `src` in the work buffer's `data`, 32 bits, shifted up so far that full scale has room for N-fold growth;
// transformed; and back to 16 bits.
template <bool kForward>
void TransformFixedPairs(const FftPlan16& plan, const Orb16s* src, Orb16s* dst, Orb32s scaleFactor,
                         Orb32s* data) {
  const Orb32s reals = 2 << plan.order;
  const Orb32s headroom = 15 - plan.order;
  VecShiftL_16s32s(src, data, reals, headroom);
  (kForward ? FftFixedFwd_32sc : FftFixedInv_32sc)(reinterpret_cast<Orb32sc*>(data), plan.order,
                                                   plan.tables.twiddles.In(&plan),
                                                   plan.tables.bitRev.In(&plan));
  if (plan.halfStep != 0) VecMulSqrt2_32s_I(data, reals);
  const Orb32s places = (kForward ? plan.shiftFwd : plan.shiftInv) + headroom;
  VecConvert_32s16s_Sfs(data, dst, reals, TotalShift(scaleFactor, places));
}

template <bool kForward>
ORBS_INLINE void TransformFixed(const FftPlan16& plan, Pairs<Orb16s> x, Orb32s scaleFactor, Orb32s* data) {
  TransformFixedPairs<kForward>(plan, x.src, x.dst, scaleFactor, data);
}

template <bool kForward>
ORBS_INLINE void TransformFixed(const FftPlan16& plan, Parts<Orb16s> x, Orb32s scaleFactor, Orb32s* data) {
  auto* pairs = reinterpret_cast<Orb16sc*>(data + (Index{2} << plan.order));
  VecInterleave_16s(pairs, x.srcRe, x.srcIm, plan.order);
  TransformFixedPairs<kForward>(plan, &pairs->re, &pairs->re, scaleFactor, data);
  VecDeinterleave_16s(pairs, x.dstRe, x.dstIm, plan.order);
}

ORBS_INLINE void Copy(Pairs<Orb16s> x, Orb32s scaleFactor) {
  CopyScaled<2>({x.src[0], x.src[1]}, x.dst, scaleFactor);
}

ORBS_INLINE void Copy(Parts<Orb16s> x, Orb32s scaleFactor) {
  Orb16s result[2];
  CopyScaled<2>({*x.srcRe, *x.srcIm}, result, scaleFactor);
  *x.dstRe = result[0];
  *x.dstIm = result[1];
}

// ---- Front ends ----

template <bool kForward, class Spec, class Data>
OrbStatus Transform(Data x, const Spec* plan, Orb32s scaleFactor, void* work) {
  using Kind = IntegerFft<Spec>;
  const auto& record = AsRecord(plan);
  if constexpr (Kind::kHasFixedPath) {
    if (record.order == 0) {
      Copy(x, scaleFactor);
      return StatusOk;
    }
  }
  const WorkBuffer buffer(record.bufSize, work);
  if (buffer.Failed()) return StatusMemAlloc;
  if constexpr (Kind::kHasFixedPath) {
    if (record.useFloat == 0) {
      TransformFixed<kForward>(record, x, scaleFactor, static_cast<Orb32s*>(buffer.Data()));
      return StatusOk;
    }
  }
  TransformFloat<kForward>(x, Orb32s{1} << record.order, scaleFactor, NestedPlan(plan),
                           static_cast<typename Kind::Real*>(buffer.Data()));
  return StatusOk;
}

template <bool kForward, class Pair, class Spec>
OrbStatus TransformPairs(const Pair* src, Pair* dst, const Spec* plan, Orb32s scaleFactor, void* work) {
  ORBS_RETURN_IF_BAD(CheckPlan(plan, IntegerFft<Spec>::kId, src, dst));
  return Transform<kForward>(Pairs<decltype(Pair::re)>{&src->re, &dst->re}, plan, scaleFactor, work);
}

template <bool kForward, class T, class Spec>
OrbStatus TransformParts(const T* srcRe, const T* srcIm, T* dstRe, T* dstIm, const Spec* plan,
                         Orb32s scaleFactor, void* work) {
  ORBS_RETURN_IF_BAD(CheckPlan(plan, IntegerFft<Spec>::kId, srcRe, srcIm, dstRe, dstIm));
  return Transform<kForward>(Parts<T>{srcRe, srcIm, dstRe, dstIm}, plan, scaleFactor, work);
}

}  // namespace orbs::ORBS_VARIANT::transform

#endif
