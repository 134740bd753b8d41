// The real integer transforms: checks, choice of path, both paths, layouts.
#ifndef ORBS_TRANSFORM_INTEGER_REAL_H
#define ORBS_TRANSFORM_INTEGER_REAL_H

#include "core/checks.h"
#include "core/work_buffer.h"
#include "transform/integer/convert.h"
#include "transform/integer/fixed/fixed.h"
#include "transform/integer/plan.h"
#include "transform/spectrum/layouts.h"
#if ORBS_VECTOR
#include "transform/engine/vector/between.h"
#include "transform/engine/vector/real_split.h"
#include "transform/integer/data.h"
#endif

namespace orbs::ORBS_VARIANT::transform {

// ---- The floating-point path ----

// A spectrum of 32-bit integers becomes CCS only after the conversion.
template <SpectrumLayout layout, class Source, class Result, class Plan>
void ForwardByConversion(const Source* src, Result* dst, Orb32s n, Orb32s scaleFactor, const Plan* plan,
                         typename Plan::Real* data) {
  constexpr bool kArrangesIntegers = layout == SpectrumLayout::ccs && sizeof(Result) == 4;
  constexpr SpectrumLayout kNested = kArrangesIntegers ? SpectrumLayout::perm : layout;
  const Orb32s count = kNested == SpectrumLayout::ccs ? n + 2 : n;
  Widen(src, data, n);
  FftOf<Plan>::template Forward<kNested>(data, data, plan, data + count);
  Narrow(data, dst, count, scaleFactor);
  if constexpr (kArrangesIntegers) ArrangeFromPerm<layout>(dst, n);
}

template <SpectrumLayout layout, class Source, class Result, class Plan>
void InverseByConversion(const Source* src, Result* dst, Orb32s n, Orb32s scaleFactor, const Plan* plan,
                         typename Plan::Real* data) {
  constexpr bool kFromCcs = layout == SpectrumLayout::ccs;
  Widen(src, data, kFromCcs ? n + 1 : n);  // the last of CCS is not read
  FftOf<Plan>::template Inverse<layout>(data, data, plan, data + (kFromCcs ? n + 2 : n));
  Narrow(data, dst, n, scaleFactor);
}

#if ORBS_VECTOR

// Whether the N/2 points are enough for the vector transforms.
template <class Plan>
ORBS_INLINE bool IsForVectors(const Plan* plan) {
  return plan->order > kFirstVectorCodelet && !IsRealCodelet<typename Plan::Real>(plan->order);
}

// The first pass reads the integers, the split writes them.
template <SpectrumLayout layout, class Source, class Result, class Plan>
void ForwardFloat(const Source* src, Result* dst, Orb32s n, Orb32s scaleFactor, const Plan* plan,
                  typename Plan::Real* data) {
  using T = typename Plan::Real;
  if (!IsForVectors(plan)) {
    ForwardByConversion<layout>(src, dst, n, scaleFactor, plan, data);
    return;
  }
  TransformBetween<true>(*plan, plan->order - 1, IntegerPairs<T, Source>{src}, Interleaved<T>{data}, data,
                         data + n);
  // The real points and the middle one, which the split leaves out.
  const T points[4] = {data[0] + data[1], data[0] - data[1], data[n / 2], -data[n / 2 + 1]};
  Result rounded[4];
  Narrow(points, rounded, 4, scaleFactor);
  Result* const pairs = dst + kFirstPairAt<layout>;
  SplitPairsForward(Interleaved<T>{data + 2},
                    RoundedPairs<T, Result>{pairs, InversePowerOfTwo<T>(scaleFactor)}, plan->order,
                    plan->tables.realFwdTw.In(plan));
  PutRealPoints<layout, Result>(dst, n, {rounded[0], rounded[1]});
  pairs[n / 2 - 2] = rounded[2];
  pairs[n / 2 - 1] = rounded[3];
}

// The split reads the integers, the last pass writes them.
template <SpectrumLayout layout, class Source, class Result, class Plan>
void InverseFloat(const Source* src, Result* dst, Orb32s n, Orb32s scaleFactor, const Plan* plan,
                  typename Plan::Real* data) {
  using T = typename Plan::Real;
  if (!IsForVectors(plan)) {
    InverseByConversion<layout>(src, dst, n, scaleFactor, plan, data);
    return;
  }
  const RealPoints<Source> ends = GetRealPoints<layout>(src, n);
  const Source* const pairs = src + kFirstPairAt<layout>;
  SplitPairsInverse(IntegerPairs<T, Source>{pairs}, Interleaved<T>{data + 2}, plan->order,
                    plan->tables.realInvTw.In(plan));
  const auto first = static_cast<T>(ends.first);
  const auto last = static_cast<T>(ends.last);
  data[0] = first + last;
  data[1] = first - last;
  data[n / 2] = 2 * static_cast<T>(pairs[n / 2 - 2]);
  data[n / 2 + 1] = -2 * static_cast<T>(pairs[n / 2 - 1]);
  T* const work = data + n;
  const bool tiles = ChooseEngine<T>(plan->order - 1) == FftEngine::large;
  TransformBetween<false>(*plan, plan->order - 1, Interleaved<const T>{data},
                          RoundedPairs<T, Result>{dst, InversePowerOfTwo<T>(scaleFactor)},
                          tiles ? data : work, work);
}

#else

template <SpectrumLayout layout, class... Arguments>
ORBS_INLINE void ForwardFloat(Arguments... arguments) {
  ForwardByConversion<layout>(arguments...);
}
template <SpectrumLayout layout, class... Arguments>
ORBS_INLINE void InverseFloat(Arguments... arguments) {
  InverseByConversion<layout>(arguments...);
}

#endif

// ---- The fixed-point path ----
//
// The n reals are n/2 complex points. There is one bit of headroom more than for complex data, since the
// forward split halves its operands.

ORBS_INLINE Orb32s Headroom(const FftPlan16& plan) { return 16 - plan.order; }

template <SpectrumLayout layout>
void ForwardFixed(const FftPlan16& plan, const Orb16s* src, Orb16s* dst, Orb32s scaleFactor, Orb32s* data) {
  const Orb32s n = Orb32s{1} << plan.order;
  VecShiftL_16s32s(src, data, n, Headroom(plan));
  if (n > 2) {
    auto* z = reinterpret_cast<Orb32sc*>(data);
    FftFixedFwd_32sc(z, plan.order - 1, plan.tables.twiddles.In(&plan), plan.tables.bitRev.In(&plan));
    FftFixedSplitFwd_32s(z, n, plan.tables.realTw.In(&plan));
  }
  const Orb32s a = data[0];
  const Orb32s b = data[1];
  data[0] = AddWrap(a, b);
  data[1] = SubWrap(a, b);
  if (plan.halfStep != 0) VecMulSqrt2_32s_I(data, n);
  VecConvert_32s16s_Sfs(data, dst, n, TotalShift(scaleFactor, plan.shiftFwd + Headroom(plan)));
  ArrangeFromPerm<layout>(dst, n);
}

template <SpectrumLayout layout>
void InverseFixed(const FftPlan16& plan, const Orb16s* src, Orb16s* dst, Orb32s scaleFactor, Orb32s* data) {
  const Orb32s n = Orb32s{1} << plan.order;
  if constexpr (layout == SpectrumLayout::pack) {
    ArrangeToPerm<layout>(src, dst, n);
    src = dst;
  }
  VecShiftL_16s32s(src, data, layout == SpectrumLayout::ccs ? n + 1 : n, Headroom(plan));
  const Orb32s a = data[0];
  const Orb32s b = data[layout == SpectrumLayout::ccs ? n : 1];
  data[0] = AddWrap(a, b);
  data[1] = SubWrap(a, b);
  if (n > 2) {
    auto* z = reinterpret_cast<Orb32sc*>(data);
    FftFixedSplitInv_32s(z, n, plan.tables.realTw.In(&plan));
    // The split has turned the order round: this is an inverse transform.
    FftFixedFwd_32sc(z, plan.order - 1, plan.tables.twiddles.In(&plan), plan.tables.bitRev.In(&plan));
  }
  if (plan.halfStep != 0) VecMulSqrt2_32s_I(data, n);
  VecConvert_32s16s_Sfs(data, dst, n, TotalShift(scaleFactor, plan.shiftInv + Headroom(plan)));
}

// ---- Front ends ----

// The two directions as steps on either path.
template <SpectrumLayout layout>
struct Forward {
  static void Copy(const Orb16s* src, Orb16s* dst, Orb32s scaleFactor) {
    CopyScaled<1>({src[0]}, dst, scaleFactor);
    if constexpr (layout == SpectrumLayout::ccs) dst[1] = 0;
  }
  static constexpr auto fixed = ForwardFixed<layout>;
  template <class... Arguments>
  static void Float(Arguments... arguments) {
    ForwardFloat<layout>(arguments...);
  }
};

template <SpectrumLayout layout>
struct Inverse {
  static void Copy(const Orb16s* src, Orb16s* dst, Orb32s scaleFactor) {
    CopyScaled<1>({src[0]}, dst, scaleFactor);
  }
  static constexpr auto fixed = InverseFixed<layout>;
  template <class... Arguments>
  static void Float(Arguments... arguments) {
    InverseFloat<layout>(arguments...);
  }
};

template <class Direction, class Source, class Result, class Spec>
OrbStatus Transform(const Source* src, Result* dst, const Spec* plan, Orb32s scaleFactor, void* work) {
  using Kind = IntegerFft<Spec>;
  ORBS_RETURN_IF_BAD(CheckPlan(plan, Kind::kId, src, dst));
  const auto& record = AsRecord(plan);
  if constexpr (Kind::kHasFixedPath) {
    if (record.order == 0) {
      Direction::Copy(src, dst, scaleFactor);
      return StatusOk;
    }
  }
  const WorkBuffer buffer(record.bufSize, work);
  if (buffer.Failed()) return StatusMemAlloc;
  if constexpr (Kind::kHasFixedPath) {
    if (record.useFloat == 0) {
      Direction::fixed(record, src, dst, scaleFactor, static_cast<Orb32s*>(buffer.Data()));
      return StatusOk;
    }
  }
  Direction::Float(src, dst, Orb32s{1} << record.order, scaleFactor, NestedPlan(plan),
                   static_cast<typename Kind::Real*>(buffer.Data()));
  return StatusOk;
}

}  // namespace orbs::ORBS_VARIANT::transform

#endif
