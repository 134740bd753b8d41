// The toolkit: the small set of vector primitives that every family calls instead of repeating their loops.
// Each variant has its own compiled set, and a family calls that of its own variant.
//
// Unless a row says otherwise: sources stand before results, then the count n in elements of the named type,
// then a scale factor; the result is StatusNullPointer for a null pointer, StatusSize for n below 1, else
// StatusOk. Complex data often passes through a real primitive with twice the count. `_16s`, `_32s`, `_64s`
// and `_128` of fills and copies stand for any element of 2, 4, 8 or 16 bytes, which is why those take
// untyped pointers.
//
// Source and result of one element size may be the same array unless a row forbids it; they must not overlap
// otherwise.
#ifndef ORBS_TOOLKIT_TOOLKIT_H
#define ORBS_TOOLKIT_TOOLKIT_H

#include "core/variant.h"
#include "orbs90lgc/status.h"
#include "orbs90lgc/types.h"

namespace orbs::ORBS_VARIANT {

// A warning of VecDiv_*; no export returns it.
inline constexpr OrbStatus WarnDivByZero = 6;

// ---- Fill (fill.cpp) ----

// No status; a count below 1 does nothing. Large fills bypass the cache in g9 and h9.
void VecZeroBytes(void* dst, Orb64s bytes);

OrbStatus VecZero_8u(void* dst, Orb32s n);
OrbStatus VecZero_16s(void* dst, Orb32s n);
OrbStatus VecZero_32s(void* dst, Orb32s n);
OrbStatus VecZero_64s(void* dst, Orb32s n);
OrbStatus VecZero_128(void* dst, Orb32s n);
OrbStatus VecSet_8u(Orb8u value, void* dst, Orb32s n);
OrbStatus VecSet_32s(Orb32s value, void* dst, Orb32s n);

// ---- Copy (copy.cpp) ----

// Ascending: source and result may overlap if the result lies before the source. No status; a count below 1
// does nothing.
void VecCopyBytes(const void* src, void* dst, Orb64s bytes);

OrbStatus VecCopy_8u(const void* src, void* dst, Orb32s n);
OrbStatus VecCopy_16s(const void* src, void* dst, Orb32s n);
OrbStatus VecCopy_32s(const void* src, void* dst, Orb32s n);
OrbStatus VecCopy_64s(const void* src, void* dst, Orb32s n);
OrbStatus VecCopy_128(const void* src, void* dst, Orb32s n);

// Any overlap.
OrbStatus VecMove_16s(const void* src, void* dst, Orb32s n);
OrbStatus VecMove_32s(const void* src, void* dst, Orb32s n);
OrbStatus VecMove_64s(const void* src, void* dst, Orb32s n);
OrbStatus VecMove_128(const void* src, void* dst, Orb32s n);

// ---- Conversion without scaling (convert.cpp); exact but for the two that narrow ----

OrbStatus VecConvert_8s32f(const Orb8s* src, Orb32f* dst, Orb32s n);
OrbStatus VecConvert_16s32f(const Orb16s* src, Orb32f* dst, Orb32s n);
OrbStatus VecConvert_32s32f(const Orb32s* src, Orb32f* dst, Orb32s n);  // rounded
OrbStatus VecConvert_32s64f(const Orb32s* src, Orb64f* dst, Orb32s n);
OrbStatus VecConvert_32f64f(const Orb32f* src, Orb64f* dst, Orb32s n);
// Values beyond the finite range of binary32 are limited to it: no infinity comes out.
OrbStatus VecConvert_64f32f(const Orb64f* src, Orb32f* dst, Orb32s n);

// ---- Conversion with scaling (convert_scaled.cpp): times 2^-s ----

OrbStatus VecConvert_32s32f_Sfs(const Orb32s* src, Orb32f* dst, Orb32s n, Orb32s s);  // s limited to -96..126
OrbStatus VecConvert_16s64f_Sfs(const Orb16s* src, Orb64f* dst, Orb32s n,
                                Orb32s s);  // s limited to -1008..1022
// Rounded as `mode` says: RoundZero, RoundNear, every other value as RoundHalfAway; saturated.
OrbStatus VecConvert_32f16s_Sfs(const Orb32f* src, Orb16s* dst, Orb32s n, Orb32s mode, Orb32s s);
OrbStatus VecConvert_32f32s_Sfs(const Orb32f* src, Orb32s* dst, Orb32s n, Orb32s mode, Orb32s s);
OrbStatus VecConvert_64f32s_Sfs(const Orb64f* src, Orb32s* dst, Orb32s n, Orb32s mode, Orb32s s);
// ShiftHalfUp in wrapping 32 bits, or shift left, saturated; each shift count modulo 32. No status, no
// checks; n below 1 does nothing.
void VecConvert_32s16s_Sfs(const Orb32s* src, Orb16s* dst, Orb32s n, Orb32s s);
// Widened, then shifted left by 0 to 31 without saturation. No status, no checks.
void VecShiftL_16s32s(const Orb16s* src, Orb32s* dst, Orb32s n, Orb32s shift);

// ---- Real arithmetic (real.cpp) ----

// x * constant. 1 changes nothing at all; 0 gives zeros, also for NaN.
OrbStatus VecMulC_32f_I(Orb32f constant, Orb32f* x, Orb32s n);
OrbStatus VecMulC_64f_I(Orb64f constant, Orb64f* x, Orb32s n);
OrbStatus VecAdd_32f_I(const Orb32f* src, Orb32f* sum, Orb32s n);
// Negative elements give NaN and WarnSqrtNegative.
OrbStatus VecSqrt_64f_I(Orb64f* x, Orb32s n);

// dividend / divisor. A divisor of 0 gives infinity with the sign of the dividend, or NaN for a dividend of 0
// or NaN, and WarnDivByZero.
OrbStatus VecDiv_32f(const Orb32f* divisor, const Orb32f* dividend, Orb32f* dst, Orb32s n);
OrbStatus VecDiv_64f(const Orb64f* divisor, const Orb64f* dividend, Orb64f* dst, Orb32s n);
OrbStatus VecDiv_32f_I(const Orb32f* divisor, Orb32f* dividend, Orb32s n);
OrbStatus VecDiv_64f_I(const Orb64f* divisor, Orb64f* dividend, Orb32s n);

// ---- Logarithm and exponential (elementary.cpp) ----

// Natural logarithm. The first bad element decides the status: a set sign bit, also of -0, gives NaN and
// WarnLogNegative; +0 gives -infinity and WarnLogZero.
OrbStatus VecLn_32f_I(Orb32f* x, Orb32s n);
OrbStatus VecExp_64f(const Orb64f* src, Orb64f* dst, Orb32s n);

// ---- Complex arithmetic (complex.cpp) ----

OrbStatus VecMul_32fc(const Orb32fc* a, const Orb32fc* b, Orb32fc* dst, Orb32s n);
OrbStatus VecMul_64fc(const Orb64fc* a, const Orb64fc* b, Orb64fc* dst, Orb32s n);
OrbStatus VecMul_32fc_I(const Orb32fc* src, Orb32fc* target, Orb32s n);
OrbStatus VecMul_64fc_I(const Orb64fc* src, Orb64fc* target, Orb32s n);
OrbStatus VecConj_32fc(const Orb32fc* src, Orb32fc* dst, Orb32s n);
OrbStatus VecConj_64fc(const Orb64fc* src, Orb64fc* dst, Orb32s n);
OrbStatus VecConj_32fc_I(Orb32fc* x, Orb32s n);
OrbStatus VecConj_64fc_I(Orb64fc* x, Orb32s n);

// target = source * conjugate of target on Pack spectra of n reals: a real first element, pairs, and for even
// n a real last element.
OrbStatus VecMulPackConj_32f_I(const Orb32f* src, Orb32f* target, Orb32s n);
OrbStatus VecMulPackConj_64f_I(const Orb64f* src, Orb64f* target, Orb32s n);
// target = source * target on Perm spectra of n reals: a real first element, for even n a real second one,
// pairs.
OrbStatus VecMulPerm_32f_I(const Orb32f* src, Orb32f* target, Orb32s n);
OrbStatus VecMulPerm_64f_I(const Orb64f* src, Orb64f* target, Orb32s n);

// ---- Order of elements (flip.cpp) ----

OrbStatus VecFlip_32f(const Orb32f* src, Orb32f* dst, Orb32s n);
OrbStatus VecFlip_32f_I(Orb32f* x, Orb32s n);
OrbStatus VecFlip_64f_I(Orb64f* x, Orb32s n);
OrbStatus VecFlip_32fc_I(Orb32fc* x, Orb32s n);
OrbStatus VecFlip_64fc_I(Orb64fc* x, Orb32s n);

// ---- Integers (integer.cpp) ----

// x scaled by a root of 2 in fixed point: ((x AND 0xFFFF) * 23170 >> 15) + (x >> 16) * 46340. No status, no
// checks.
void VecMulSqrt2_32s_I(Orb32s* x, Orb32s n);
// The sum of products in 64 bits, exact.
OrbStatus VecDot_16s64s(const Orb16s* a, const Orb16s* b, Orb32s n, Orb64s* dot);
// Between separate arrays of 2^order values and one array of pairs. No status, no checks; the arrays do not
// overlap.
void VecInterleave_16s(Orb16sc* dst, const Orb16s* re, const Orb16s* im, Orb32s order);
void VecDeinterleave_16s(const Orb16sc* src, Orb16s* re, Orb16s* im, Orb32s order);

}  // namespace orbs::ORBS_VARIANT

#endif
