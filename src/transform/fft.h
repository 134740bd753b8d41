// The floating-point transforms of 2^order points, for every family that needs one. Nothing here is exported.
//
// Forward is X[k] = sum over n of x[n] exp(-2 pi i n k / N), inverse the same with the opposite sign. Neither
// divides unless the plan's flag says so. Six kinds of plan:
//
//   C_32fc, C_64fc   complex, interleaved pairs
//   C_32f, C_64f     complex, one array of real and one of imaginary parts
//   R_32f, R_64f     real, with the spectrum as CCS, Pack or Perm:
//                      CCS   R0, 0, R1, I1, ... R(N/2), 0      N+2 reals (N = 1: R0, 0)
//                      Pack  R0, R1, I1, ... R(N/2)            N reals
//                      Perm  R0, R(N/2), R1, I1, ...           N reals
//
// Plan memory, init buffer and work buffer need no alignment, and the init buffer is free again when
// FFTInit_* returns. A work buffer has FFTGetBufSize_* bytes or is null; with null the transform allocates
// what it needs. dst may be src, each array of a split pair by itself; a partial overlap is not supported.
//
// Checks: of a plan operation the plan, its identity, the data; of a size query the order (0 to 30), the
// result pointers, the flag, the order against the maximum of the kind. A size beyond 2^31-1 is reported as
// 2^31-1, and FFTInitAlloc_* then gives StatusMemAlloc.
#ifndef ORBS_TRANSFORM_FFT_H
#define ORBS_TRANSFORM_FFT_H

#include "core/variant.h"
#include "orbs90lgc/status.h"
#include "orbs90lgc/types.h"
#include "transform/engine/plan.h"

namespace orbs::ORBS_VARIANT {

// ---- Plans (engine/init.cpp) ----

OrbStatus FFTGetSize_C_32fc(Orb32s order, Orb32s flag, OrbAlgHint hint, Orb32s* planSize, Orb32s* initSize,
                            Orb32s* workSize);
OrbStatus FFTGetSize_C_32f(Orb32s order, Orb32s flag, OrbAlgHint hint, Orb32s* planSize, Orb32s* initSize,
                           Orb32s* workSize);
OrbStatus FFTGetSize_R_32f(Orb32s order, Orb32s flag, OrbAlgHint hint, Orb32s* planSize, Orb32s* initSize,
                           Orb32s* workSize);
OrbStatus FFTGetSize_C_64fc(Orb32s order, Orb32s flag, OrbAlgHint hint, Orb32s* planSize, Orb32s* initSize,
                            Orb32s* workSize);
OrbStatus FFTGetSize_C_64f(Orb32s order, Orb32s flag, OrbAlgHint hint, Orb32s* planSize, Orb32s* initSize,
                           Orb32s* workSize);
OrbStatus FFTGetSize_R_64f(Orb32s order, Orb32s flag, OrbAlgHint hint, Orb32s* planSize, Orb32s* initSize,
                           Orb32s* workSize);

OrbStatus FFTInit_C_32fc(FFTSpec_C_32fc** planOut, Orb32s order, Orb32s flag, OrbAlgHint hint,
                         void* planMemory, void* initBuffer);
OrbStatus FFTInit_C_32f(FFTSpec_C_32f** planOut, Orb32s order, Orb32s flag, OrbAlgHint hint, void* planMemory,
                        void* initBuffer);
OrbStatus FFTInit_R_32f(FFTSpec_R_32f** planOut, Orb32s order, Orb32s flag, OrbAlgHint hint, void* planMemory,
                        void* initBuffer);
OrbStatus FFTInit_C_64fc(FFTSpec_C_64fc** planOut, Orb32s order, Orb32s flag, OrbAlgHint hint,
                         void* planMemory, void* initBuffer);
OrbStatus FFTInit_C_64f(FFTSpec_C_64f** planOut, Orb32s order, Orb32s flag, OrbAlgHint hint, void* planMemory,
                        void* initBuffer);
OrbStatus FFTInit_R_64f(FFTSpec_R_64f** planOut, Orb32s order, Orb32s flag, OrbAlgHint hint, void* planMemory,
                        void* initBuffer);

OrbStatus FFTInitAlloc_C_32fc(FFTSpec_C_32fc** planOut, Orb32s order, Orb32s flag, OrbAlgHint hint);
OrbStatus FFTInitAlloc_C_32f(FFTSpec_C_32f** planOut, Orb32s order, Orb32s flag, OrbAlgHint hint);
OrbStatus FFTInitAlloc_R_32f(FFTSpec_R_32f** planOut, Orb32s order, Orb32s flag, OrbAlgHint hint);
OrbStatus FFTInitAlloc_C_64fc(FFTSpec_C_64fc** planOut, Orb32s order, Orb32s flag, OrbAlgHint hint);
OrbStatus FFTInitAlloc_C_64f(FFTSpec_C_64f** planOut, Orb32s order, Orb32s flag, OrbAlgHint hint);
OrbStatus FFTInitAlloc_R_64f(FFTSpec_R_64f** planOut, Orb32s order, Orb32s flag, OrbAlgHint hint);

OrbStatus FFTFree_C_32fc(FFTSpec_C_32fc* plan);
OrbStatus FFTFree_C_32f(FFTSpec_C_32f* plan);
OrbStatus FFTFree_R_32f(FFTSpec_R_32f* plan);
OrbStatus FFTFree_C_64fc(FFTSpec_C_64fc* plan);
OrbStatus FFTFree_C_64f(FFTSpec_C_64f* plan);
OrbStatus FFTFree_R_64f(FFTSpec_R_64f* plan);

OrbStatus FFTGetBufSize_C_32fc(const FFTSpec_C_32fc* plan, Orb32s* size);
OrbStatus FFTGetBufSize_C_32f(const FFTSpec_C_32f* plan, Orb32s* size);
OrbStatus FFTGetBufSize_R_32f(const FFTSpec_R_32f* plan, Orb32s* size);
OrbStatus FFTGetBufSize_C_64fc(const FFTSpec_C_64fc* plan, Orb32s* size);
OrbStatus FFTGetBufSize_C_64f(const FFTSpec_C_64f* plan, Orb32s* size);
OrbStatus FFTGetBufSize_R_64f(const FFTSpec_R_64f* plan, Orb32s* size);

// ---- Complex transforms (engine/complex.cpp) ----

OrbStatus FFTFwd_CToC_32fc(const Orb32fc* src, Orb32fc* dst, const FFTSpec_C_32fc* plan, void* work);
OrbStatus FFTInv_CToC_32fc(const Orb32fc* src, Orb32fc* dst, const FFTSpec_C_32fc* plan, void* work);
OrbStatus FFTFwd_CToC_64fc(const Orb64fc* src, Orb64fc* dst, const FFTSpec_C_64fc* plan, void* work);
OrbStatus FFTInv_CToC_64fc(const Orb64fc* src, Orb64fc* dst, const FFTSpec_C_64fc* plan, void* work);
OrbStatus FFTFwd_CToC_32f(const Orb32f* srcRe, const Orb32f* srcIm, Orb32f* dstRe, Orb32f* dstIm,
                          const FFTSpec_C_32f* plan, void* work);
OrbStatus FFTInv_CToC_32f(const Orb32f* srcRe, const Orb32f* srcIm, Orb32f* dstRe, Orb32f* dstIm,
                          const FFTSpec_C_32f* plan, void* work);
OrbStatus FFTFwd_CToC_64f(const Orb64f* srcRe, const Orb64f* srcIm, Orb64f* dstRe, Orb64f* dstIm,
                          const FFTSpec_C_64f* plan, void* work);
OrbStatus FFTInv_CToC_64f(const Orb64f* srcRe, const Orb64f* srcIm, Orb64f* dstRe, Orb64f* dstIm,
                          const FFTSpec_C_64f* plan, void* work);

// ---- Real transforms (engine/real.cpp) ----
//
// In place with CCS the array has N+2 reals. The inverse transforms leave src as it is unless it is dst, and
// do not read the two imaginary parts of CCS that are zero.

OrbStatus FFTFwd_RToPerm_32f(const Orb32f* src, Orb32f* dst, const FFTSpec_R_32f* plan, void* work);
OrbStatus FFTFwd_RToPack_32f(const Orb32f* src, Orb32f* dst, const FFTSpec_R_32f* plan, void* work);
OrbStatus FFTFwd_RToCCS_32f(const Orb32f* src, Orb32f* dst, const FFTSpec_R_32f* plan, void* work);
OrbStatus FFTFwd_RToPerm_64f(const Orb64f* src, Orb64f* dst, const FFTSpec_R_64f* plan, void* work);
OrbStatus FFTFwd_RToPack_64f(const Orb64f* src, Orb64f* dst, const FFTSpec_R_64f* plan, void* work);
OrbStatus FFTInv_PermToR_32f(const Orb32f* src, Orb32f* dst, const FFTSpec_R_32f* plan, void* work);
OrbStatus FFTInv_PackToR_32f(const Orb32f* src, Orb32f* dst, const FFTSpec_R_32f* plan, void* work);
OrbStatus FFTInv_CCSToR_32f(const Orb32f* src, Orb32f* dst, const FFTSpec_R_32f* plan, void* work);
OrbStatus FFTInv_PermToR_64f(const Orb64f* src, Orb64f* dst, const FFTSpec_R_64f* plan, void* work);
OrbStatus FFTInv_PackToR_64f(const Orb64f* src, Orb64f* dst, const FFTSpec_R_64f* plan, void* work);
OrbStatus FFTInv_CCSToR_64f(const Orb64f* src, Orb64f* dst, const FFTSpec_R_64f* plan, void* work);

}  // namespace orbs::ORBS_VARIANT

#endif
