// Compiled once per variant.
#include "tests/transform/engine/access.h"
#include "transform/engine/tables/sine.h"
#include "transform/fft.h"

namespace orbs::ORBS_VARIANT {

extern const test::FftAccess kAccess;

namespace {

using transform::Fft;
using transform::FftForm;
using transform::SpectrumLayout;

// The operations of a kind of plan, with untyped plans.
template <class Kind>
struct Untyped {
  using Plan = typename Kind::Plan;

  static OrbStatus Init(void** planOut, Orb32s order, Orb32s flag, OrbAlgHint hint, void* memory,
                        void* buffer) {
    if (planOut == nullptr) return Kind::Init(nullptr, order, flag, hint, memory, buffer);
    auto* plan = static_cast<Plan*>(*planOut);
    const OrbStatus status = Kind::Init(&plan, order, flag, hint, memory, buffer);
    *planOut = plan;
    return status;
  }
  static OrbStatus InitAlloc(void** planOut, Orb32s order, Orb32s flag, OrbAlgHint hint) {
    if (planOut == nullptr) return Kind::InitAlloc(nullptr, order, flag, hint);
    auto* plan = static_cast<Plan*>(*planOut);
    const OrbStatus status = Kind::InitAlloc(&plan, order, flag, hint);
    *planOut = plan;
    return status;
  }
  static OrbStatus Free(void* plan) { return Kind::Free(static_cast<Plan*>(plan)); }
  static OrbStatus GetBufSize(const void* plan, Orb32s* size) {
    return Kind::GetBufSize(static_cast<const Plan*>(plan), size);
  }
};

template <class T, FftForm form>
constexpr test::FftPlanAccess PlanAccess() {
  using Kind = Fft<T, form>;
  using Any = Untyped<Kind>;
  return {Kind::GetSize, Any::Init, Any::InitAlloc, Any::Free, Any::GetBufSize};
}

template <class T, bool kForward>
OrbStatus Pairs(const void* src, void* dst, const void* plan, void* work) {
  using Kind = Fft<T, FftForm::interleaved>;
  return Kind::template Transform<kForward>(static_cast<const typename Kind::Point*>(src),
                                            static_cast<typename Kind::Point*>(dst),
                                            static_cast<const typename Kind::Plan*>(plan), work);
}
template <class T, bool kForward>
OrbStatus Split(const void* srcRe, const void* srcIm, void* dstRe, void* dstIm, const void* plan,
                void* work) {
  using Kind = Fft<T, FftForm::split>;
  return Kind::template Transform<kForward>(static_cast<const T*>(srcRe), static_cast<const T*>(srcIm),
                                            static_cast<T*>(dstRe), static_cast<T*>(dstIm),
                                            static_cast<const typename Kind::Plan*>(plan), work);
}
template <class T, bool kForward, SpectrumLayout layout>
OrbStatus Real(const void* src, void* dst, const void* plan, void* work) {
  using Kind = Fft<T, FftForm::real>;
  const auto* typed = static_cast<const typename Kind::Plan*>(plan);
  return kForward
             ? Kind::template Forward<layout>(static_cast<const T*>(src), static_cast<T*>(dst), typed, work)
             : Kind::template Inverse<layout>(static_cast<const T*>(src), static_cast<T*>(dst), typed, work);
}

#define ORBS_BOTH(function, ...) \
  { function<Orb32f, __VA_ARGS__>, function<Orb64f, __VA_ARGS__> }
#define ORBS_LAYOUTS(forward)                                                                       \
  {                                                                                                 \
    ORBS_BOTH(Real, forward, SpectrumLayout::perm), ORBS_BOTH(Real, forward, SpectrumLayout::pack), \
        ORBS_BOTH(Real, forward, SpectrumLayout::ccs)                                               \
  }

}  // namespace

const test::FftAccess kAccess = {
    {PlanAccess<Orb32f, FftForm::interleaved>(), PlanAccess<Orb32f, FftForm::split>(),
     PlanAccess<Orb32f, FftForm::real>(), PlanAccess<Orb64f, FftForm::interleaved>(),
     PlanAccess<Orb64f, FftForm::split>(), PlanAccess<Orb64f, FftForm::real>()},
    {ORBS_BOTH(Pairs, true), ORBS_BOTH(Pairs, false)},
    {ORBS_BOTH(Split, true), ORBS_BOTH(Split, false)},
    ORBS_LAYOUTS(true),
    ORBS_LAYOUTS(false),
    transform::SinQuarter_32f.sines,
    transform::SinQuarter_64f.sines,
    transform::BuildSineTable<Orb32f>,
    transform::BuildSineTable<Orb64f>,
};

}  // namespace orbs::ORBS_VARIANT
