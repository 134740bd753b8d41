// The fixed-point transform: 32-bit data, twiddles with 14 fraction bits, sums that wrap.
//
// The data come with enough headroom that the sums of a forward transform stay inside 32 bits; an inverse one
// can be handed spectra that no signal has, hence unsigned arithmetic everywhere.
#ifndef ORBS_TRANSFORM_INTEGER_FIXED_FIXED_H
#define ORBS_TRANSFORM_INTEGER_FIXED_FIXED_H

#include "core/scaling.h"
#include "core/variant.h"
#include "orbs90lgc/types.h"
#include "transform/engine/data.h"

namespace orbs::ORBS_VARIANT::transform {

// One step of a twiddle table: cos, sin, -sin, cos of 2 pi k / n, 1.0 being 16384. Each part of a complex
// product is then a dot product of the number with a pair of the step.
struct FixedStep {
  Orb16s e[4];
};

// ---- Arithmetic ----

ORBS_INLINE Orb32s AddWrap(Orb32s a, Orb32s b) { return AddWrapping(a, b); }
ORBS_INLINE Orb32s NegWrap(Orb32s a) { return static_cast<Orb32s>(0 - static_cast<uint32_t>(a)); }
ORBS_INLINE Orb32s SubWrap(Orb32s a, Orb32s b) {
  return static_cast<Orb32s>(static_cast<uint32_t>(a) - static_cast<uint32_t>(b));
}

// (a x + b y) / 16384 in 32-bit arithmetic: the high halves exact, the low ones rounded at bit 13. Bit 0 of x
// and y is lost, so that the low halves are 15-bit numbers and their products fit.
ORBS_INLINE Orb32s MulQ14(Orb32s a, Orb32s x, Orb32s b, Orb32s y) {
  const Orb32s low = a * ((x & 0xFFFF) >> 1) + b * ((y & 0xFFFF) >> 1) + 4096;
  const Orb32s high = AddWrap(a * (x >> 16), b * (y >> 16));
  return AddWrap(low >> 13, static_cast<Orb32s>(4 * static_cast<uint32_t>(high)));
}

ORBS_INLINE Orb32sc operator+(Orb32sc a, Orb32sc b) { return {AddWrap(a.re, b.re), AddWrap(a.im, b.im)}; }
ORBS_INLINE Orb32sc operator-(Orb32sc a, Orb32sc b) { return {SubWrap(a.re, b.re), SubWrap(a.im, b.im)}; }
ORBS_INLINE Orb32sc TimesMinusI(Orb32sc a) { return {a.im, NegWrap(a.re)}; }
ORBS_INLINE Orb32sc operator*(Orb32sc a, const FixedStep& w) {
  return {MulQ14(w.e[0], a.re, w.e[1], a.im), MulQ14(w.e[2], a.re, w.e[3], a.im)};
}

inline constexpr Orb32s kSqrtHalfQ14 = 11585;

// ---- Tables (tables.cpp) ----

// Entries of the quarter sine from which the tables of a plan of this order are made.
inline constexpr Index FixedSineEntries(Orb32s order) { return (Index{1} << order) / 4 + 1; }
void BuildFixedSine(Orb32s order, Orb16s* quarter);

// The 2^order steps of a full circle, from the quarter sine of a plan of order `sineOrder`. Orders 0 and 1
// have no steps that are ever read, and nothing is written.
inline constexpr Index FixedTwiddleReals(Orb32s order) { return Index{4} << order; }
void BuildFixedTwiddles(Orb32s order, const Orb16s* quarter, Orb32s sineOrder, Orb16s* table);

// ---- Transforms (fixed.cpp) ----

// 2^order points in place, for 1 <= order < kFixedPathLimit, natural order in and out.
void FftFixedFwd_32sc(Orb32sc* x, Orb32s order, const Orb16s* twiddles, const Orb32s* bitRev);
void FftFixedInv_32sc(Orb32sc* x, Orb32s order, const Orb16s* twiddles, const Orb32s* bitRev);

// The step between the spectrum of n/2 complex points and that of n real ones as Perm, but for the first
// pair; n is a power of 2 from 4 on. The inverse leaves z[k] at the place of z[n/2-k], which turns the
// forward transform that follows into an inverse one.
void FftFixedSplitFwd_32s(Orb32sc* z, Index n, const Orb16s* table);
void FftFixedSplitInv_32s(Orb32sc* z, Index n, const Orb16s* table);

}  // namespace orbs::ORBS_VARIANT::transform

#endif
