// The real transforms: N reals as N/2 complex points, the real split, and the three layouts of the spectrum.
#include <cstring>

#include "frame/checks.h"
#include "transform/fft.h"
#include "transform/fft_codelets.h"
#include "transform/fft_engine.h"
#include "transform/fft_real_split.h"
#include "transform/work_buffer.h"

namespace orbs::ORBS_VARIANT {
namespace {

enum class Layout { perm, pack, ccs };

template <class T>
ORBS_INLINE void MoveReals(const T* src, T* dst, Index n) {
  std::memmove(dst, src, static_cast<size_t>(n) * sizeof(T));
}

// ---- Layouts ----

// Perm to `layout`, in place.
template <Layout layout, class T>
ORBS_INLINE void ArrangeFromPerm(T* data, Index n) {
  if constexpr (layout == Layout::pack) {
    if (n <= 2) return;
    const T last = data[1];
    MoveReals(data + 2, data + 1, n - 2);
    data[n - 1] = last;
  } else if constexpr (layout == Layout::ccs) {
    if (n > 1) {
      data[n] = data[1];
      data[n + 1] = 0;
    }
    data[1] = 0;
  }
}

// `layout` in src to Perm in dst, which may be src.
template <Layout layout, class T>
ORBS_INLINE void ArrangeToPerm(const T* src, T* dst, Index n) {
  if (n == 1) {
    dst[0] = src[0];
    return;
  }
  const T last = src[layout == Layout::pack ? n - 1 : layout == Layout::ccs ? n : 1];
  if constexpr (layout == Layout::pack) {
    const T first = src[0];
    MoveReals(src + 1, dst + 2, n - 2);
    dst[0] = first;
  } else if (dst != src) {
    dst[0] = src[0];
    MoveReals(src + 2, dst + 2, n - 2);
  }
  dst[1] = last;
}

// ---- Transforms ----

// The complex transform of N/2 points on the pairs of a real array.
template <bool kForward, class T>
ORBS_INLINE void TransformHalf(const FftPlan<T>& plan, const T* src, T* dst, void* work) {
  if (plan.order <= kFftTuning.halfCodeletCeiling) {
    using Codelets = ComplexCodelets<kForward, Interleaved, T>;
    const bool scaled = (kForward ? plan.scaleFwd : plan.scaleInv) != 0;
    (scaled ? Codelets::scaled : Codelets::plain)[plan.order - 1]({src}, {dst}, plan.scale);
  } else {
    TransformByTables<kForward, Interleaved, T>(plan, plan.order - 1, {src}, {dst}, work);
  }
}

// The first pair: the points 0 and N/2 of one spectrum are the sum and difference of those of the other.
template <class T>
ORBS_INLINE void SumAndDifference(Wide<T> a, Wide<T> b, T* pair) {
  pair[0] = static_cast<T>(a + b);
  pair[1] = static_cast<T>(a - b);
}

// Needs no work buffer, and has none of the tables.
template <class T>
ORBS_INLINE bool IsRealCodelet(const FftPlan<T>& plan) {
  return plan.order <= Pick<T>(kFftTuning.realCodeletCeiling);
}

template <class T>
OrbStatus ForwardToPerm(const FftPlan<T>& plan, const T* src, T* dst, void* work) {
  if (IsRealCodelet(plan)) {
    using Codelets = RealCodelets<true, T>;
    (plan.scaleFwd != 0 ? Codelets::scaled : Codelets::plain)[plan.order](src, dst, plan.scale);
    return StatusOk;
  }
  const WorkBuffer buffer(plan.workSize, work);
  if (buffer.Failed()) return StatusMemAlloc;
  TransformHalf<true>(plan, src, dst, buffer.Data());
  SumAndDifference(dst[0], dst[1], dst);
  FFTRealSplitFwd(dst, plan.order, plan.tables.realFwdTw.In(&plan));
  return StatusOk;
}

template <Layout layout, class T>
OrbStatus InverseFrom(const FftPlan<T>& plan, const T* src, T* dst, void* work) {
  const Index n = Index{1} << plan.order;
  if (IsRealCodelet(plan)) {
    const T* perm = src;
    if constexpr (layout != Layout::perm) {
      ArrangeToPerm<layout>(src, dst, n);
      perm = dst;
    }
    using Codelets = RealCodelets<false, T>;
    (plan.scaleInv != 0 ? Codelets::scaled : Codelets::plain)[plan.order](perm, dst, plan.scale);
    return StatusOk;
  }
  const WorkBuffer buffer(plan.workSize, work);
  if (buffer.Failed()) return StatusMemAlloc;
  // Pack is the one layout whose pairs do not lie where the split reads them.
  if constexpr (layout == Layout::pack) ArrangeToPerm<layout>(src, dst, n);
  const T* spectrum = layout == Layout::pack ? dst : src;
  const T a = spectrum[0];
  const T b = spectrum[layout == Layout::ccs ? n : 1];
  FFTRealSplitInv(spectrum, dst, plan.order, plan.tables.realInvTw.In(&plan));
  SumAndDifference(a, b, dst);
  TransformHalf<false>(plan, dst, dst, buffer.Data());
  return StatusOk;
}

template <Layout layout, class Plan, class T>
ORBS_INLINE OrbStatus Forward(const T* src, T* dst, const Plan* plan, void* work) {
  ORBS_RETURN_IF_BAD(CheckPlan(plan, Plan::kId, src, dst));
  ORBS_RETURN_IF_BAD(ForwardToPerm<T>(*plan, src, dst, work));
  ArrangeFromPerm<layout>(dst, Index{1} << plan->order);
  return StatusOk;
}

template <Layout layout, class Plan, class T>
ORBS_INLINE OrbStatus Inverse(const T* src, T* dst, const Plan* plan, void* work) {
  ORBS_RETURN_IF_BAD(CheckPlan(plan, Plan::kId, src, dst));
  return InverseFrom<layout, T>(*plan, src, dst, work);
}

}  // namespace

OrbStatus FFTFwd_RToPerm_32f(const Orb32f* src, Orb32f* dst, const FFTSpec_R_32f* plan, void* work) {
  return Forward<Layout::perm>(src, dst, plan, work);
}

OrbStatus FFTFwd_RToPack_32f(const Orb32f* src, Orb32f* dst, const FFTSpec_R_32f* plan, void* work) {
  return Forward<Layout::pack>(src, dst, plan, work);
}

OrbStatus FFTFwd_RToCCS_32f(const Orb32f* src, Orb32f* dst, const FFTSpec_R_32f* plan, void* work) {
  return Forward<Layout::ccs>(src, dst, plan, work);
}

OrbStatus FFTFwd_RToPerm_64f(const Orb64f* src, Orb64f* dst, const FFTSpec_R_64f* plan, void* work) {
  return Forward<Layout::perm>(src, dst, plan, work);
}

OrbStatus FFTFwd_RToPack_64f(const Orb64f* src, Orb64f* dst, const FFTSpec_R_64f* plan, void* work) {
  return Forward<Layout::pack>(src, dst, plan, work);
}

OrbStatus FFTInv_PermToR_32f(const Orb32f* src, Orb32f* dst, const FFTSpec_R_32f* plan, void* work) {
  return Inverse<Layout::perm>(src, dst, plan, work);
}

OrbStatus FFTInv_PackToR_32f(const Orb32f* src, Orb32f* dst, const FFTSpec_R_32f* plan, void* work) {
  return Inverse<Layout::pack>(src, dst, plan, work);
}

OrbStatus FFTInv_CCSToR_32f(const Orb32f* src, Orb32f* dst, const FFTSpec_R_32f* plan, void* work) {
  return Inverse<Layout::ccs>(src, dst, plan, work);
}

OrbStatus FFTInv_PermToR_64f(const Orb64f* src, Orb64f* dst, const FFTSpec_R_64f* plan, void* work) {
  return Inverse<Layout::perm>(src, dst, plan, work);
}

OrbStatus FFTInv_PackToR_64f(const Orb64f* src, Orb64f* dst, const FFTSpec_R_64f* plan, void* work) {
  return Inverse<Layout::pack>(src, dst, plan, work);
}

OrbStatus FFTInv_CCSToR_64f(const Orb64f* src, Orb64f* dst, const FFTSpec_R_64f* plan, void* work) {
  return Inverse<Layout::ccs>(src, dst, plan, work);
}

}  // namespace orbs::ORBS_VARIANT
