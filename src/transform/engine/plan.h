// The plans of the floating-point transforms: one record for six kinds of data.
#ifndef ORBS_TRANSFORM_ENGINE_PLAN_H
#define ORBS_TRANSFORM_ENGINE_PLAN_H

#include "core/record.h"
#include "core/variant.h"
#include "orbs90lgc/types.h"

namespace orbs::ORBS_VARIANT::transform {

// The row and column scheme nests at most two deep; there is room for three.
inline constexpr int kFftLevels = 3;

// Where the tables stand in a plan's block, from the record on.
template <class T>
struct FftTables {
  Offset<Orb32s> bitRev;            // bit reversal
  Offset<T> coreTw;                 // twiddles of the innermost transforms
  Offset<T> layerTw;                // twiddles of radix-2 layers above the core
  Offset<T> realFwdTw;              // the split of real spectra, forward
  Offset<T> realInvTw;              // and inverse
  Offset<T> colCoreTw[kFftLevels];  // by level: core twiddles of the column transforms
  Offset<T> stepTw[kFftLevels];     // by level: twiddles between rows and columns
  Offset<T> spare[2];
};

// A plan never changes once it is built, so any number of threads may use it at once.
template <class T>
struct FftPlan {
  Orb32s id;                   // 4 to 9; 0 once freed, or if the build failed
  Orb32s order;                // log2 of the number of points
  Orb32s scaleFwd;             // 1: the forward direction multiplies by `scale`
  Orb32s scaleInv;             // 1: the inverse direction does
  alignas(sizeof(T)) T scale;  // 1/N or 1/sqrt(N); 0 if neither direction multiplies
  OrbAlgHint hint;             // stored, never read
  Orb32s workSize;             // bytes of work buffer that a transform needs; 0 if none
  Orb32s allocated;            // 1: FFTInitAlloc_* made the plan
  Orb32s block;                // the block to release, in bytes from the record
  FftTables<T> tables;
};
static_assert(sizeof(FftPlan<Orb32f>) == 88 && sizeof(FftPlan<Orb64f>) == 96, "sizes are interface");

ORBS_INLINE bool IsFftFlag(Orb32s flag) {
  return flag == FftScaleFwdByN || flag == FftScaleInvByN || flag == FftScaleBySqrtN || flag == FftScaleNone;
}

// Complex as pairs, complex as two arrays, real.
enum class FftForm { interleaved, split, real };

template <class T, FftForm form>
struct FftSpec : FftPlan<T> {
  using Real = T;
  static constexpr FftForm kForm = form;
  static constexpr Orb32s kId = (sizeof(T) == 4 ? 4 : 7) + static_cast<Orb32s>(form);
};
using FFTSpec_C_32fc = FftSpec<Orb32f, FftForm::interleaved>;
using FFTSpec_C_32f = FftSpec<Orb32f, FftForm::split>;
using FFTSpec_R_32f = FftSpec<Orb32f, FftForm::real>;
using FFTSpec_C_64fc = FftSpec<Orb64f, FftForm::interleaved>;
using FFTSpec_C_64f = FftSpec<Orb64f, FftForm::split>;
using FFTSpec_R_64f = FftSpec<Orb64f, FftForm::real>;
static_assert(sizeof(FFTSpec_R_32f) == 88 && sizeof(FFTSpec_R_64f) == 96, "sizes are interface");

}  // namespace orbs::ORBS_VARIANT::transform

#endif
