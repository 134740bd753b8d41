// The floating-point transforms of 2^order points, for every family that needs one. Nothing here is exported.
//
// Forward is X[k] = sum over n of x[n] exp(-2 pi i n k / N), inverse the same with the opposite sign. Neither
// divides unless the plan's flag says so. Six kinds of plan, of binary32 and of binary64:
//
//   Fft<T, FftForm::interleaved>   C_32fc, C_64fc   complex, interleaved pairs
//   Fft<T, FftForm::split>         C_32f, C_64f     complex, one array of real and one of imaginary parts
//   Fft<T, FftForm::real>          R_32f, R_64f     real, with the spectrum as CCS, Pack or Perm:
//                                    CCS   R0, 0, R1, I1, ... R(N/2), 0      N+2 reals (N = 1: R0, 0)
//                                    Pack  R0, R1, I1, ... R(N/2)            N reals
//                                    Perm  R0, R(N/2), R1, I1, ...           N reals
//
// Plan memory, init buffer and work buffer need no alignment, and the init buffer is free again when Init
// returns. A work buffer has GetBufSize bytes or is null; with null the transform allocates what it needs.
// dst may be src, each array of a split pair by itself; a partial overlap is not supported.
//
// Checks: of a plan operation the plan, its identity, the data; of a size query the order (0 to 30), the
// result pointers, the flag, the order against the maximum of the kind. A size beyond 2^31-1 is reported as
// 2^31-1, and InitAlloc then gives StatusMemAlloc.
#ifndef ORBS_TRANSFORM_FFT_H
#define ORBS_TRANSFORM_FFT_H

#include <type_traits>

#include "core/parts.h"
#include "core/variant.h"
#include "orbs90lgc/status.h"
#include "orbs90lgc/types.h"
#include "toolkit/toolkit.h"
#include "transform/engine/data.h"
#include "transform/engine/plan.h"

namespace orbs::ORBS_VARIANT::transform {

// ---- Plans (engine/init.cpp) ----

template <class T, FftForm form>
struct FftLife {
  using Plan = FftSpec<T, form>;

  static OrbStatus GetSize(Orb32s order, Orb32s flag, OrbAlgHint hint, Orb32s* planSize, Orb32s* initSize,
                           Orb32s* workSize);
  static OrbStatus Init(Plan** planOut, Orb32s order, Orb32s flag, OrbAlgHint hint, void* planMemory,
                        void* initBuffer);
  static OrbStatus InitAlloc(Plan** planOut, Orb32s order, Orb32s flag, OrbAlgHint hint);
  static OrbStatus Free(Plan* plan);
  static OrbStatus GetBufSize(const Plan* plan, Orb32s* size);
};

template <class T, FftForm form>
struct Fft;
template <class Plan>
using FftOf = Fft<typename Plan::Real, Plan::kForm>;

// ---- Complex transforms (engine/complex.cpp) ----

template <class T>
struct Fft<T, FftForm::interleaved> : FftLife<T, FftForm::interleaved> {
  using Plan = FftSpec<T, FftForm::interleaved>;
  using Point = ComplexOf<T>;

  template <bool kForward>
  static OrbStatus Transform(const Point* src, Point* dst, const Plan* plan, void* work);

  static OrbStatus Forward(const Point* src, Point* dst, const Plan* plan, void* work) {
    return Transform<true>(src, dst, plan, work);
  }
  static OrbStatus Inverse(const Point* src, Point* dst, const Plan* plan, void* work) {
    return Transform<false>(src, dst, plan, work);
  }
  // The product of two spectra, in x.
  static void Multiply(const Point* by, Point* x, Orb32s n) {
    if constexpr (std::is_same_v<T, Orb32f>) {
      VecMul_32fc_I(by, x, n);
    } else {
      VecMul_64fc_I(by, x, n);
    }
  }
};

template <class T>
struct Fft<T, FftForm::split> : FftLife<T, FftForm::split> {
  using Plan = FftSpec<T, FftForm::split>;

  template <bool kForward>
  static OrbStatus Transform(const T* srcRe, const T* srcIm, T* dstRe, T* dstIm, const Plan* plan,
                             void* work);
};

// ---- Real transforms (engine/real.cpp) ----
//
// In place with CCS the array has N+2 reals. The inverse transforms leave src as it is unless it is dst, and
// do not read the two imaginary parts of CCS that are zero.

template <class T>
struct Fft<T, FftForm::real> : FftLife<T, FftForm::real> {
  using Plan = FftSpec<T, FftForm::real>;

  template <SpectrumLayout layout = SpectrumLayout::perm>
  static OrbStatus Forward(const T* src, T* dst, const Plan* plan, void* work);
  template <SpectrumLayout layout = SpectrumLayout::perm>
  static OrbStatus Inverse(const T* src, T* dst, const Plan* plan, void* work);
  // The product of two spectra in Perm, in x.
  static void Multiply(const T* by, T* x, Orb32s n) {
    if constexpr (std::is_same_v<T, Orb32f>) {
      VecMulPerm_32f_I(by, x, n);
    } else {
      VecMulPerm_64f_I(by, x, n);
    }
  }
};

}  // namespace orbs::ORBS_VARIANT::transform

#endif
