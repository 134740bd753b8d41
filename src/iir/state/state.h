// The states of IIR filters. To callers a state is an opaque structure of the public header.
//
// Coefficients are held normalised, every one divided by the leading denominator coefficient:
//   arbitrary order N   b[0] to b[N], then a[1] to a[N]
//   B biquads           b[0], b[1], b[2], a[1], a[2], section after section
// The delay line is that of the transposed direct form II: N elements and one more that is always 0, so that
// the last element needs no case of its own; or two for each section.
#ifndef ORBS_IIR_STATE_STATE_H
#define ORBS_IIR_STATE_STATE_H

#include "core/parts.h"
#include "core/record.h"
#include "core/variant.h"
#include "orbs90lgc/types.h"
#include "simd/simd.h"

// Offsets are 0 where a state has no such array; the last four arrays are those of the vector variants.
struct IIRState {
  Orb32s id;
  orbs::Offset<void> taps;            // of the delay type, normalised
  orbs::Offset<void> delayLine;       // Orb32f, Orb32fc for complex data
  Orb32s delayLen;                    // elements that accessors move: N, or 2 B
  orbs::Offset<void> lookAheadTable;  // rows of the block recursion, see tuning.h
  Orb32s sectionCount;                // B, or 0 for arbitrary order
  orbs::Offset<Orb32f> sectionTable;  // biquads: coefficients for the one-sample step, see step.h
  orbs::Offset<void> blockA;          // a piece of the stream on its way through the filter
  orbs::Offset<void> blockB;
  Orb32s owned;  // 1: IIRInitAlloc* made the state
};

namespace orbs::ORBS_VARIANT::iir {

// What a real and what a complex filter work with.
template <class DataType, class WorkType, class IntegerTapType>
struct IirNumbers {
  using Data = DataType;
  using Work = WorkType;              // coefficients, delay elements, samples inside
  using IntegerTap = IntegerTapType;  // also the words in which delay lines cross the interface
  static constexpr int kParts = PartsOf<Work>::kCount;
};
using RealNumbers = IirNumbers<Orb16s, Orb32f, Orb32s>;
using ComplexNumbers = IirNumbers<Orb16sc, Orb32fc, Orb32sc>;

// A kind of state. The identity is four characters. `units` is the order or the number of sections.
template <class NumbersType, bool kIsCascade, Orb32s id>
struct IirKind : NumbersType {
  using Numbers = NumbersType;
  static constexpr bool kCascade = kIsCascade;
  static constexpr Orb32s kId = id;

  static constexpr int64_t GivenTaps(int64_t units) { return kCascade ? 6 * units : 2 * units + 2; }
  static constexpr int64_t StoredTaps(int64_t units) { return kCascade ? 5 * units : 2 * units + 1; }
  static constexpr int64_t DelayElements(int64_t units) { return kCascade ? 2 * units : units + 1; }
};

template <class Numbers>
struct IirKindsOf;
template <>
struct IirKindsOf<RealNumbers> {
  using ArbitraryOrder = IirKind<RealNumbers, false, 0x49493039>;
  using Cascade = IirKind<RealNumbers, true, 0x49493130>;
};
template <>
struct IirKindsOf<ComplexNumbers> {
  using ArbitraryOrder = IirKind<ComplexNumbers, false, 0x49493131>;
  using Cascade = IirKind<ComplexNumbers, true, 0x49493132>;
};
template <class Numbers>
using ArbitraryOrderOf = typename IirKindsOf<Numbers>::ArbitraryOrder;
template <class Numbers>
using CascadeOf = typename IirKindsOf<Numbers>::Cascade;

// The identities of the temporary states inside the direct forms, which no exported function takes.
inline constexpr Orb32s kDirectId = 0x49493035;
inline constexpr Orb32s kDirectBiQuadId = 0x49493036;

// Typed access.
template <class Kind>
struct IirView {
  using Work = typename Kind::Work;

  IIRState* state;

  Work* Taps() const { return static_cast<Work*>(state->taps.In(state)); }
  Work* Delay() const { return static_cast<Work*>(state->delayLine.In(state)); }
  Work* BlockA() const { return static_cast<Work*>(state->blockA.In(state)); }
  Work* BlockB() const { return static_cast<Work*>(state->blockB.In(state)); }
  Orb32f* ShortRows() const { return static_cast<Orb32f*>(state->lookAheadTable.In(state)); }
  Orb64f* LongRows() const { return static_cast<Orb64f*>(state->lookAheadTable.In(state)); }
  Orb32f* SectionTable() const { return state->sectionTable.In(state); }
  Orb32s Units() const { return Kind::kCascade ? state->sectionCount : state->delayLen; }
};

}  // namespace orbs::ORBS_VARIANT::iir

#endif
