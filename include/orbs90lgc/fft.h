/**
 * @file fft.h
 * @brief Fast Fourier transforms of 2^order points on integers.
 *
 * Forward and inverse, with N = 2^order points:
 *
 *     X[k] = sum over n of x[n] exp(-2 pi i n k / N)
 *     x[n] = sum over k of X[k] exp(+2 pi i n k / N)
 *
 * Neither direction divides unless the plan's flag says so: ::FftScaleFwdByN, ::FftScaleInvByN,
 * ::FftScaleBySqrtN (both directions by sqrt(N)) or ::FftScaleNone. On top of that every transform delivers
 * its result times 2^-scaleFactor, rounded and saturated to the type of the result. Any `scaleFactor` is
 * legal; a negative one multiplies.
 *
 * | Plan             | Identity   | Signal                | Spectrum                | Largest order      |
 * |------------------|------------|-----------------------|-------------------------|--------------------|
 * | FFTSpec_C_16sc   | 1          | N Orb16sc             | N Orb16sc               | 28, `px` 27        |
 * | FFTSpec_C_16s    | 2          | N Orb16s re, N im     | N Orb16s re, N im       | 28, `px` 27        |
 * | FFTSpec_R_16s    | 3          | N Orb16s              | real spectrum of Orb16s | 29, `px` 28        |
 * | FFTSpec_C_32sc   | 0x434d414c | N Orb32sc             | N Orb32sc               | 27, `px` `s8` 26   |
 * | FFTSpec_C_32s    | 0x434d414d | N Orb32s re, N im     | N Orb32s re, N im       | 27, `px` `s8` 26   |
 * | FFTSpec_R_32s    | 0x434d414e | N Orb32s              | real spectrum of Orb32s | 28, `px` `s8` 27   |
 * | FFTSpec_R_16s32s | 0x434d414f | N Orb16s              | CCS of Orb32s           | 29, `px` 28        |
 *
 * The identity is the first 32-bit word of a plan; it is 0 in a plan that has been freed or whose building
 * failed. At the largest orders a block or a work buffer can exceed 2^31-1 bytes: its size is then reported
 * as 2147483647 and no plan can be built.
 *
 * @par Real spectra
 * With X[k] = Rk + i Ik, k = 0 to N/2; the others are their conjugates. I0 and I(N/2) are 0.
 *
 * | Layout | Elements | N above 1                                     | N = 1 |
 * |--------|----------|-----------------------------------------------|-------|
 * | CCS    | N + 2    | R0, 0, R1, I1, ... R(N/2), 0                  | R0, 0 (2 elements) |
 * | Pack   | N        | R0, R1, I1, ... R(N/2-1), I(N/2-1), R(N/2)    | R0    |
 * | Perm   | N        | R0, R(N/2), R1, I1, ... R(N/2-1), I(N/2-1)    | R0    |
 *
 * In place the array has the elements of the longer side. The inverse transforms from CCS do not use what
 * stands in the places of I0 and I(N/2).
 *
 * @par Accuracy
 * There are two ways through, chosen when the plan is built. 16-bit plans (C_16sc, C_16s, R_16s) of small
 * order with ::HintNone or ::HintFast take the fixed-point path: 32-bit sums, 14-bit twiddles. Small means
 * up to order 8 in variant `px` and up to 3 in the others. All else converts to binary32 (16-bit plans and
 * R_16s32s) or binary64 (32-bit plans), transforms and converts back; ::HintAccurate asks for that at any
 * order.
 *  - Fixed-point path: the flag's factor and 2^-scaleFactor are one shift, rounded half up, except that
 *    1/sqrt(N) at odd orders multiplies once by 23170/32768. Full-scale data saturate in that last step only,
 *    never in between. Variants that take this path at an order give the same result. The number of places
 *    is taken modulo 32.
 *  - Floating-point path: rounded to nearest, ties to even. Variants can differ in the last bit.
 *
 * At order 0 the 16-bit plans deliver the input through the scale factor, rounded half up, whatever the flag
 * and the hint.
 */
#ifndef ORBS90LGC_FFT_H
#define ORBS90LGC_FFT_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @name Sizes
 *
 * The bytes of a plan's memory, of the buffer for building it and of the work buffer of its transforms, all
 * with room for aligning a pointer of any alignment. A size of 0 means that no such buffer is looked at.
 * `hint` matters for the 16-bit plans only.
 *
 * They check in this order:
 *  - ::StatusFftOrder: `order` is negative or above 30;
 *  - ::StatusNullPointer: one of the result pointers is null;
 *  - ::StatusFftFlag: `flag` is not one of 1, 2, 4, 8;
 *  - ::StatusFftOrder: `order` is above the largest of the plan;
 *  - ::StatusOk.
 * @{
 */

/** Sizes for FFTSpec_C_16sc. */
OrbStatus legacy90orbsFFTGetSize_C_16sc(Orb32s order, Orb32s flag, OrbAlgHint hint, Orb32s* planSize,
                                        Orb32s* initSize, Orb32s* workSize);

/** Sizes for FFTSpec_C_16s. */
OrbStatus legacy90orbsFFTGetSize_C_16s(Orb32s order, Orb32s flag, OrbAlgHint hint, Orb32s* planSize,
                                       Orb32s* initSize, Orb32s* workSize);

/** Sizes for FFTSpec_C_32sc. */
OrbStatus legacy90orbsFFTGetSize_C_32sc(Orb32s order, Orb32s flag, OrbAlgHint hint, Orb32s* planSize,
                                        Orb32s* initSize, Orb32s* workSize);

/** Sizes for FFTSpec_C_32s. */
OrbStatus legacy90orbsFFTGetSize_C_32s(Orb32s order, Orb32s flag, OrbAlgHint hint, Orb32s* planSize,
                                       Orb32s* initSize, Orb32s* workSize);

/** Sizes for FFTSpec_R_16s. */
OrbStatus legacy90orbsFFTGetSize_R_16s(Orb32s order, Orb32s flag, OrbAlgHint hint, Orb32s* planSize,
                                       Orb32s* initSize, Orb32s* workSize);

/** Sizes for FFTSpec_R_32s. */
OrbStatus legacy90orbsFFTGetSize_R_32s(Orb32s order, Orb32s flag, OrbAlgHint hint, Orb32s* planSize,
                                       Orb32s* initSize, Orb32s* workSize);

/** Sizes for FFTSpec_R_16s32s. */
OrbStatus legacy90orbsFFTGetSize_R_16s32s(Orb32s order, Orb32s flag, OrbAlgHint hint, Orb32s* planSize,
                                          Orb32s* initSize, Orb32s* workSize);

/** @} */

/**
 * @name Plans in memory of the caller's
 *
 * Builds a plan in `planMemory` and stores its address, the first multiple of 64 from there on, in
 * `*planOut`. `initBuffer` is free again when the call returns. The plan needs no further call when it is no
 * longer used.
 *
 * They check in this order:
 *  - ::StatusNullPointer: `planOut` is null;
 *  - ::StatusFftOrder: `order` is negative or above 30;
 *  - ::StatusNullPointer: `planMemory` is null;
 *  - ::StatusFftFlag: `flag` is not one of 1, 2, 4, 8;
 *  - ::StatusNullPointer: `initBuffer` is null and the plan's size query told more than 0 for it;
 *  - ::StatusFftOrder: `order` is above the largest of the plan;
 *  - ::StatusMemAlloc: a size exceeds 2^31-1 bytes;
 *  - ::StatusOk.
 *
 * The 32-bit plans and R_16s32s test the largest order before the flag, and `initBuffer` last. From the flag
 * on, a failure leaves a plan with identity 0 in the memory. `*planOut` is written on success only.
 * @{
 */

/** Builds an FFTSpec_C_16sc. */
OrbStatus legacy90orbsFFTInit_C_16sc(FFTSpec_C_16sc** planOut, Orb32s order, Orb32s flag, OrbAlgHint hint,
                                     void* planMemory, void* initBuffer);

/** Builds an FFTSpec_C_16s. */
OrbStatus legacy90orbsFFTInit_C_16s(FFTSpec_C_16s** planOut, Orb32s order, Orb32s flag, OrbAlgHint hint,
                                    void* planMemory, void* initBuffer);

/** Builds an FFTSpec_C_32sc. */
OrbStatus legacy90orbsFFTInit_C_32sc(FFTSpec_C_32sc** planOut, Orb32s order, Orb32s flag, OrbAlgHint hint,
                                     void* planMemory, void* initBuffer);

/** Builds an FFTSpec_C_32s. */
OrbStatus legacy90orbsFFTInit_C_32s(FFTSpec_C_32s** planOut, Orb32s order, Orb32s flag, OrbAlgHint hint,
                                    void* planMemory, void* initBuffer);

/** Builds an FFTSpec_R_16s. */
OrbStatus legacy90orbsFFTInit_R_16s(FFTSpec_R_16s** planOut, Orb32s order, Orb32s flag, OrbAlgHint hint,
                                    void* planMemory, void* initBuffer);

/** Builds an FFTSpec_R_32s. */
OrbStatus legacy90orbsFFTInit_R_32s(FFTSpec_R_32s** planOut, Orb32s order, Orb32s flag, OrbAlgHint hint,
                                    void* planMemory, void* initBuffer);

/** Builds an FFTSpec_R_16s32s. */
OrbStatus legacy90orbsFFTInit_R_16s32s(FFTSpec_R_16s32s** planOut, Orb32s order, Orb32s flag, OrbAlgHint hint,
                                       void* planMemory, void* initBuffer);

/** @} */

/**
 * @name Allocated plans
 *
 * Allocates a plan and builds it.
 *  - ::StatusNullPointer: `planOut` is null;
 *  - ::StatusFftOrder, ::StatusFftFlag: as the size queries;
 *  - ::StatusMemAlloc: no memory, or a size exceeds 2^31-1 bytes;
 *  - ::StatusOk.
 *
 * On failure nothing stays allocated and `*planOut` is not written.
 * @{
 */

/** Allocates an FFTSpec_C_16sc. */
OrbStatus legacy90orbsFFTInitAlloc_C_16sc(FFTSpec_C_16sc** planOut, Orb32s order, Orb32s flag,
                                          OrbAlgHint hint);

/** Allocates an FFTSpec_C_16s. */
OrbStatus legacy90orbsFFTInitAlloc_C_16s(FFTSpec_C_16s** planOut, Orb32s order, Orb32s flag, OrbAlgHint hint);

/** Allocates an FFTSpec_C_32sc. */
OrbStatus legacy90orbsFFTInitAlloc_C_32sc(FFTSpec_C_32sc** planOut, Orb32s order, Orb32s flag,
                                          OrbAlgHint hint);

/** Allocates an FFTSpec_C_32s. */
OrbStatus legacy90orbsFFTInitAlloc_C_32s(FFTSpec_C_32s** planOut, Orb32s order, Orb32s flag, OrbAlgHint hint);

/** Allocates an FFTSpec_R_16s. */
OrbStatus legacy90orbsFFTInitAlloc_R_16s(FFTSpec_R_16s** planOut, Orb32s order, Orb32s flag, OrbAlgHint hint);

/** Allocates an FFTSpec_R_32s. */
OrbStatus legacy90orbsFFTInitAlloc_R_32s(FFTSpec_R_32s** planOut, Orb32s order, Orb32s flag, OrbAlgHint hint);

/** Allocates an FFTSpec_R_16s32s. */
OrbStatus legacy90orbsFFTInitAlloc_R_16s32s(FFTSpec_R_16s32s** planOut, Orb32s order, Orb32s flag,
                                            OrbAlgHint hint);

/** @} */

/**
 * @name End of a plan
 *
 * Sets the plan's identity to 0, and releases the plan if the library allocated it. A plan in memory of the
 * caller's is only marked: using it or freeing it again gives ::StatusContextMismatch.
 *  - ::StatusNullPointer: `plan` is null;
 *  - ::StatusContextMismatch: it is of another kind, or freed;
 *  - ::StatusOk.
 * @{
 */

/** Ends an FFTSpec_C_16sc. */
OrbStatus legacy90orbsFFTFree_C_16sc(FFTSpec_C_16sc* plan);

/** Ends an FFTSpec_C_16s. */
OrbStatus legacy90orbsFFTFree_C_16s(FFTSpec_C_16s* plan);

/** Ends an FFTSpec_C_32sc. */
OrbStatus legacy90orbsFFTFree_C_32sc(FFTSpec_C_32sc* plan);

/** Ends an FFTSpec_C_32s. */
OrbStatus legacy90orbsFFTFree_C_32s(FFTSpec_C_32s* plan);

/** Ends an FFTSpec_R_16s. */
OrbStatus legacy90orbsFFTFree_R_16s(FFTSpec_R_16s* plan);

/** Ends an FFTSpec_R_32s. */
OrbStatus legacy90orbsFFTFree_R_32s(FFTSpec_R_32s* plan);

/** Ends an FFTSpec_R_16s32s. */
OrbStatus legacy90orbsFFTFree_R_16s32s(FFTSpec_R_16s32s* plan);

/** @} */

/**
 * @name Work buffer of a plan
 *
 * The bytes of work buffer that the transforms with this plan need, 0 if none: the same number that the size
 * query told.
 *  - ::StatusNullPointer: `plan` is null;
 *  - ::StatusContextMismatch: it is of another kind, or freed;
 *  - ::StatusNullPointer: `size` is null;
 *  - ::StatusOk.
 * @{
 */

/** Work buffer for an FFTSpec_C_16sc. */
OrbStatus legacy90orbsFFTGetBufSize_C_16sc(const FFTSpec_C_16sc* plan, Orb32s* size);

/** Work buffer for an FFTSpec_C_16s. */
OrbStatus legacy90orbsFFTGetBufSize_C_16s(const FFTSpec_C_16s* plan, Orb32s* size);

/** Work buffer for an FFTSpec_C_32sc. */
OrbStatus legacy90orbsFFTGetBufSize_C_32sc(const FFTSpec_C_32sc* plan, Orb32s* size);

/** Work buffer for an FFTSpec_C_32s. */
OrbStatus legacy90orbsFFTGetBufSize_C_32s(const FFTSpec_C_32s* plan, Orb32s* size);

/** Work buffer for an FFTSpec_R_16s. */
OrbStatus legacy90orbsFFTGetBufSize_R_16s(const FFTSpec_R_16s* plan, Orb32s* size);

/** Work buffer for an FFTSpec_R_32s. */
OrbStatus legacy90orbsFFTGetBufSize_R_32s(const FFTSpec_R_32s* plan, Orb32s* size);

/** Work buffer for an FFTSpec_R_16s32s. */
OrbStatus legacy90orbsFFTGetBufSize_R_16s32s(const FFTSpec_R_16s32s* plan, Orb32s* size);

/** @} */

/**
 * @name Complex transforms
 *
 * N points, interleaved (`16sc`, `32sc`) or as an array of real and one of imaginary parts (`16s`, `32s`).
 * All transforms of this file take a work buffer of FFTGetBufSize bytes, of any alignment, or null, and then
 * allocate it for the time of the call. A result is the same array as its source or does not overlap it. A
 * plan never changes, so that one plan can serve several threads.
 *
 * All transforms of this file check in this order:
 *  - ::StatusNullPointer: `plan` is null;
 *  - ::StatusContextMismatch: it is of another kind, or freed;
 *  - ::StatusNullPointer: a source or a result is null;
 *  - ::StatusMemAlloc: `work` is null and the memory for it cannot be had;
 *  - ::StatusOk.
 * @{
 */

/** Forward, interleaved 16-bit. */
OrbStatus legacy90orbsFFTFwd_CToC_16sc_Sfs(const Orb16sc* src, Orb16sc* dst, const FFTSpec_C_16sc* plan,
                                           Orb32s scaleFactor, void* work);

/** legacy90orbsFFTFwd_CToC_16sc_Sfs() in place. */
OrbStatus legacy90orbsFFTFwd_CToC_16sc_ISfs(Orb16sc* srcDst, const FFTSpec_C_16sc* plan, Orb32s scaleFactor,
                                            void* work);

/** Forward, 16-bit parts. */
OrbStatus legacy90orbsFFTFwd_CToC_16s_Sfs(const Orb16s* srcRe, const Orb16s* srcIm, Orb16s* dstRe,
                                          Orb16s* dstIm, const FFTSpec_C_16s* plan, Orb32s scaleFactor,
                                          void* work);

/** legacy90orbsFFTFwd_CToC_16s_Sfs() in place. */
OrbStatus legacy90orbsFFTFwd_CToC_16s_ISfs(Orb16s* srcDstRe, Orb16s* srcDstIm, const FFTSpec_C_16s* plan,
                                           Orb32s scaleFactor, void* work);

/** Forward, interleaved 32-bit. */
OrbStatus legacy90orbsFFTFwd_CToC_32sc_Sfs(const Orb32sc* src, Orb32sc* dst, const FFTSpec_C_32sc* plan,
                                           Orb32s scaleFactor, void* work);

/** legacy90orbsFFTFwd_CToC_32sc_Sfs() in place. */
OrbStatus legacy90orbsFFTFwd_CToC_32sc_ISfs(Orb32sc* srcDst, const FFTSpec_C_32sc* plan, Orb32s scaleFactor,
                                            void* work);

/** Forward, 32-bit parts. */
OrbStatus legacy90orbsFFTFwd_CToC_32s_Sfs(const Orb32s* srcRe, const Orb32s* srcIm, Orb32s* dstRe,
                                          Orb32s* dstIm, const FFTSpec_C_32s* plan, Orb32s scaleFactor,
                                          void* work);

/** legacy90orbsFFTFwd_CToC_32s_Sfs() in place. */
OrbStatus legacy90orbsFFTFwd_CToC_32s_ISfs(Orb32s* srcDstRe, Orb32s* srcDstIm, const FFTSpec_C_32s* plan,
                                           Orb32s scaleFactor, void* work);

/** Inverse, interleaved 16-bit. */
OrbStatus legacy90orbsFFTInv_CToC_16sc_Sfs(const Orb16sc* src, Orb16sc* dst, const FFTSpec_C_16sc* plan,
                                           Orb32s scaleFactor, void* work);

/** legacy90orbsFFTInv_CToC_16sc_Sfs() in place. */
OrbStatus legacy90orbsFFTInv_CToC_16sc_ISfs(Orb16sc* srcDst, const FFTSpec_C_16sc* plan, Orb32s scaleFactor,
                                            void* work);

/** Inverse, 16-bit parts. */
OrbStatus legacy90orbsFFTInv_CToC_16s_Sfs(const Orb16s* srcRe, const Orb16s* srcIm, Orb16s* dstRe,
                                          Orb16s* dstIm, const FFTSpec_C_16s* plan, Orb32s scaleFactor,
                                          void* work);

/** legacy90orbsFFTInv_CToC_16s_Sfs() in place. */
OrbStatus legacy90orbsFFTInv_CToC_16s_ISfs(Orb16s* srcDstRe, Orb16s* srcDstIm, const FFTSpec_C_16s* plan,
                                           Orb32s scaleFactor, void* work);

/** Inverse, interleaved 32-bit. */
OrbStatus legacy90orbsFFTInv_CToC_32sc_Sfs(const Orb32sc* src, Orb32sc* dst, const FFTSpec_C_32sc* plan,
                                           Orb32s scaleFactor, void* work);

/** legacy90orbsFFTInv_CToC_32sc_Sfs() in place. */
OrbStatus legacy90orbsFFTInv_CToC_32sc_ISfs(Orb32sc* srcDst, const FFTSpec_C_32sc* plan, Orb32s scaleFactor,
                                            void* work);

/** Inverse, 32-bit parts. */
OrbStatus legacy90orbsFFTInv_CToC_32s_Sfs(const Orb32s* srcRe, const Orb32s* srcIm, Orb32s* dstRe,
                                          Orb32s* dstIm, const FFTSpec_C_32s* plan, Orb32s scaleFactor,
                                          void* work);

/** legacy90orbsFFTInv_CToC_32s_Sfs() in place. */
OrbStatus legacy90orbsFFTInv_CToC_32s_ISfs(Orb32s* srcDstRe, Orb32s* srcDstIm, const FFTSpec_C_32s* plan,
                                           Orb32s scaleFactor, void* work);

/** @} */

/**
 * @name Forward real transforms
 *
 * N real points to a spectrum in the layout of the function's name.
 * @{
 */

/** 16-bit signal to CCS. */
OrbStatus legacy90orbsFFTFwd_RToCCS_16s_Sfs(const Orb16s* src, Orb16s* dst, const FFTSpec_R_16s* plan,
                                            Orb32s scaleFactor, void* work);

/** legacy90orbsFFTFwd_RToCCS_16s_Sfs() in place, in an array of N+2 elements (N = 1: 2). */
OrbStatus legacy90orbsFFTFwd_RToCCS_16s_ISfs(Orb16s* srcDst, const FFTSpec_R_16s* plan, Orb32s scaleFactor,
                                             void* work);

/** 32-bit signal to CCS. */
OrbStatus legacy90orbsFFTFwd_RToCCS_32s_Sfs(const Orb32s* src, Orb32s* dst, const FFTSpec_R_32s* plan,
                                            Orb32s scaleFactor, void* work);

/** legacy90orbsFFTFwd_RToCCS_32s_Sfs() in place, in an array of N+2 elements (N = 1: 2). */
OrbStatus legacy90orbsFFTFwd_RToCCS_32s_ISfs(Orb32s* srcDst, const FFTSpec_R_32s* plan, Orb32s scaleFactor,
                                             void* work);

/** 16-bit signal to Pack. */
OrbStatus legacy90orbsFFTFwd_RToPack_16s_Sfs(const Orb16s* src, Orb16s* dst, const FFTSpec_R_16s* plan,
                                             Orb32s scaleFactor, void* work);

/** legacy90orbsFFTFwd_RToPack_16s_Sfs() in place. */
OrbStatus legacy90orbsFFTFwd_RToPack_16s_ISfs(Orb16s* srcDst, const FFTSpec_R_16s* plan, Orb32s scaleFactor,
                                              void* work);

/** 32-bit signal to Pack. */
OrbStatus legacy90orbsFFTFwd_RToPack_32s_Sfs(const Orb32s* src, Orb32s* dst, const FFTSpec_R_32s* plan,
                                             Orb32s scaleFactor, void* work);

/** legacy90orbsFFTFwd_RToPack_32s_Sfs() in place. */
OrbStatus legacy90orbsFFTFwd_RToPack_32s_ISfs(Orb32s* srcDst, const FFTSpec_R_32s* plan, Orb32s scaleFactor,
                                              void* work);

/** 16-bit signal to Perm. */
OrbStatus legacy90orbsFFTFwd_RToPerm_16s_Sfs(const Orb16s* src, Orb16s* dst, const FFTSpec_R_16s* plan,
                                             Orb32s scaleFactor, void* work);

/** legacy90orbsFFTFwd_RToPerm_16s_Sfs() in place. */
OrbStatus legacy90orbsFFTFwd_RToPerm_16s_ISfs(Orb16s* srcDst, const FFTSpec_R_16s* plan, Orb32s scaleFactor,
                                              void* work);

/** 32-bit signal to Perm. */
OrbStatus legacy90orbsFFTFwd_RToPerm_32s_Sfs(const Orb32s* src, Orb32s* dst, const FFTSpec_R_32s* plan,
                                             Orb32s scaleFactor, void* work);

/** legacy90orbsFFTFwd_RToPerm_32s_Sfs() in place. */
OrbStatus legacy90orbsFFTFwd_RToPerm_32s_ISfs(Orb32s* srcDst, const FFTSpec_R_32s* plan, Orb32s scaleFactor,
                                              void* work);

/** 16-bit signal to a CCS spectrum of 32 bits, through binary32. Source and result must not overlap. */
OrbStatus legacy90orbsFFTFwd_RToCCS_16s32s_Sfs(const Orb16s* src, Orb32s* dst, const FFTSpec_R_16s32s* plan,
                                               Orb32s scaleFactor, void* work);

/** @} */

/**
 * @name Inverse real transforms
 *
 * A spectrum in the layout of the function's name to N real points. The 16-bit transforms from Pack write to
 * `dst` before they are done with the source: no matter for separate arrays or the same one.
 *
 * In fixed point a spectrum that is not that of a 16-bit signal can exceed 32 bits on the way; such sums
 * wrap.
 * @{
 */

/** CCS of 16 bits to a signal. */
OrbStatus legacy90orbsFFTInv_CCSToR_16s_Sfs(const Orb16s* src, Orb16s* dst, const FFTSpec_R_16s* plan,
                                            Orb32s scaleFactor, void* work);

/** legacy90orbsFFTInv_CCSToR_16s_Sfs() in place, in an array of N+2 elements (N = 1: 2). */
OrbStatus legacy90orbsFFTInv_CCSToR_16s_ISfs(Orb16s* srcDst, const FFTSpec_R_16s* plan, Orb32s scaleFactor,
                                             void* work);

/** CCS of 32 bits to a signal. */
OrbStatus legacy90orbsFFTInv_CCSToR_32s_Sfs(const Orb32s* src, Orb32s* dst, const FFTSpec_R_32s* plan,
                                            Orb32s scaleFactor, void* work);

/** legacy90orbsFFTInv_CCSToR_32s_Sfs() in place, in an array of N+2 elements (N = 1: 2). */
OrbStatus legacy90orbsFFTInv_CCSToR_32s_ISfs(Orb32s* srcDst, const FFTSpec_R_32s* plan, Orb32s scaleFactor,
                                             void* work);

/** Pack of 16 bits to a signal. */
OrbStatus legacy90orbsFFTInv_PackToR_16s_Sfs(const Orb16s* src, Orb16s* dst, const FFTSpec_R_16s* plan,
                                             Orb32s scaleFactor, void* work);

/** legacy90orbsFFTInv_PackToR_16s_Sfs() in place. */
OrbStatus legacy90orbsFFTInv_PackToR_16s_ISfs(Orb16s* srcDst, const FFTSpec_R_16s* plan, Orb32s scaleFactor,
                                              void* work);

/** Pack of 32 bits to a signal. */
OrbStatus legacy90orbsFFTInv_PackToR_32s_Sfs(const Orb32s* src, Orb32s* dst, const FFTSpec_R_32s* plan,
                                             Orb32s scaleFactor, void* work);

/** legacy90orbsFFTInv_PackToR_32s_Sfs() in place. */
OrbStatus legacy90orbsFFTInv_PackToR_32s_ISfs(Orb32s* srcDst, const FFTSpec_R_32s* plan, Orb32s scaleFactor,
                                              void* work);

/** Perm of 16 bits to a signal. */
OrbStatus legacy90orbsFFTInv_PermToR_16s_Sfs(const Orb16s* src, Orb16s* dst, const FFTSpec_R_16s* plan,
                                             Orb32s scaleFactor, void* work);

/** legacy90orbsFFTInv_PermToR_16s_Sfs() in place. */
OrbStatus legacy90orbsFFTInv_PermToR_16s_ISfs(Orb16s* srcDst, const FFTSpec_R_16s* plan, Orb32s scaleFactor,
                                              void* work);

/** Perm of 32 bits to a signal. */
OrbStatus legacy90orbsFFTInv_PermToR_32s_Sfs(const Orb32s* src, Orb32s* dst, const FFTSpec_R_32s* plan,
                                             Orb32s scaleFactor, void* work);

/** legacy90orbsFFTInv_PermToR_32s_Sfs() in place. */
OrbStatus legacy90orbsFFTInv_PermToR_32s_ISfs(Orb32s* srcDst, const FFTSpec_R_32s* plan, Orb32s scaleFactor,
                                              void* work);

/** CCS spectrum of 32 bits to a 16-bit signal, through binary32. Source and result must not overlap. */
OrbStatus legacy90orbsFFTInv_CCSToR_32s16s_Sfs(const Orb32s* src, Orb16s* dst, const FFTSpec_R_16s32s* plan,
                                               Orb32s scaleFactor, void* work);

/** @} */

#ifdef __cplusplus
}
#endif

#endif
