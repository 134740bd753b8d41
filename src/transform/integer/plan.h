// The plans of the integer transforms. To callers a plan is an opaque structure of the public header; inside
// a variant it is one of two records, and IntegerFft tells which, with all else in which the seven kinds
// differ.
#ifndef ORBS_TRANSFORM_INTEGER_PLAN_H
#define ORBS_TRANSFORM_INTEGER_PLAN_H

#include <type_traits>

#include "core/record.h"
#include "core/variant.h"
#include "orbs90lgc/types.h"
#include "transform/fft.h"
#include "transform/tuning.h"

namespace orbs::ORBS_VARIANT::transform {

// Where the tables of the fixed-point path stand, from the record on.
struct FixedTables {
  Offset<Orb32s> bitRev;    // of the complex transform
  Offset<Orb16s> twiddles;  // of the complex transform
  Offset<Orb16s> realTw;    // of the real split
};

// C_16sc, C_16s, R_16s.
struct FftPlan16 {
  Orb32s id;  // 0 once freed, or if the build failed
  Orb32s order;
  Orb32s shiftFwd;  // places by which the fixed-point path divides for the flag
  Orb32s shiftInv;
  Orb32s halfStep;  // 1: it also multiplies by 1/sqrt(2), once
  OrbAlgHint hint;
  Orb32s bufSize;  // bytes of work buffer, without what its alignment takes
  Orb32s useFloat;
  Orb32s allocated;  // 1: FFTInitAlloc_* made the plan
  FixedTables tables;
  Offset<void> floatPlan;  // the nested plan
};
static_assert(sizeof(FftPlan16) == 52, "the size is interface");

// C_32sc, C_32s, R_32s, R_16s32s.
struct FftPlan32 {
  Orb32s id;
  Orb32s order;
  OrbAlgHint hint;
  Orb32s bufSize;
  Orb32s allocated;
  Offset<void> floatPlan;
};
static_assert(sizeof(FftPlan32) == 24, "the size is interface");

template <Orb32s id, class RecordType, class NestedPlan>
struct IntegerFftKind {
  using Record = RecordType;
  using Nested = NestedPlan;
  using Real = typename Nested::Real;
  static constexpr Orb32s kId = id;
  static constexpr bool kHasFixedPath = std::is_same_v<Record, FftPlan16>;
  static constexpr bool kIsReal = Nested::kForm == FftForm::real;

  // What a transform holds in its work buffer besides the nested transform's own: the data in floating point,
  // a real spectrum as CCS.
  static int64_t DataBytes(Orb32s order) {
    const int64_t n = int64_t{1} << order;
    return (kIsReal ? n + 2 : 2 * n) * static_cast<int64_t>(sizeof(Real));
  }
};

// The work size of C_32s is that of interleaved data. Only s8 has a split transform that needs more, so there
// the parts are interleaved on their way to binary64.
using NestedFor32s = std::conditional_t<kVariant == Variant::s8, FFTSpec_C_64fc, FFTSpec_C_64f>;

template <class Spec>
struct IntegerFft;
template <>
struct IntegerFft<FFTSpec_C_16sc> : IntegerFftKind<1, FftPlan16, FFTSpec_C_32fc> {};
template <>
struct IntegerFft<FFTSpec_C_16s> : IntegerFftKind<2, FftPlan16, FFTSpec_C_32f> {};
template <>
struct IntegerFft<FFTSpec_R_16s> : IntegerFftKind<3, FftPlan16, FFTSpec_R_32f> {};
template <>
struct IntegerFft<FFTSpec_C_32sc> : IntegerFftKind<0x434d414c, FftPlan32, FFTSpec_C_64fc> {};
template <>
struct IntegerFft<FFTSpec_C_32s> : IntegerFftKind<0x434d414d, FftPlan32, NestedFor32s> {};
template <>
struct IntegerFft<FFTSpec_R_32s> : IntegerFftKind<0x434d414e, FftPlan32, FFTSpec_R_64f> {};
template <>
struct IntegerFft<FFTSpec_R_16s32s> : IntegerFftKind<0x434d414f, FftPlan32, FFTSpec_R_32f> {};

template <class Spec>
using RecordOf = typename IntegerFft<Spec>::Record;

// The record behind a plan that the caller handed in; after its identity has been checked.
template <class Spec>
ORBS_INLINE const RecordOf<Spec>& AsRecord(const Spec* plan) {
  return *reinterpret_cast<const RecordOf<Spec>*>(plan);
}

template <class Spec>
ORBS_INLINE const typename IntegerFft<Spec>::Nested* NestedPlan(const Spec* plan) {
  return static_cast<const typename IntegerFft<Spec>::Nested*>(AsRecord(plan).floatPlan.In(plan));
}

}  // namespace orbs::ORBS_VARIANT::transform

#endif
