// The plans of the floating-point transforms: one record for six kinds of data.
#ifndef ORBS_TRANSFORM_ENGINE_PLAN_H
#define ORBS_TRANSFORM_ENGINE_PLAN_H

#include "core/record.h"
#include "core/variant.h"
#include "orbs90lgc/types.h"

namespace orbs::ORBS_VARIANT {

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

enum class FftForm { interleaved, split, real };

template <class T, FftForm form, Orb32s id>
struct FftPlanOf : FftPlan<T> {
  using Real = T;
  static constexpr FftForm kForm = form;
  static constexpr Orb32s kId = id;
};

struct FFTSpec_C_32fc : FftPlanOf<Orb32f, FftForm::interleaved, 4> {};
struct FFTSpec_C_32f : FftPlanOf<Orb32f, FftForm::split, 5> {};
struct FFTSpec_R_32f : FftPlanOf<Orb32f, FftForm::real, 6> {};
struct FFTSpec_C_64fc : FftPlanOf<Orb64f, FftForm::interleaved, 7> {};
struct FFTSpec_C_64f : FftPlanOf<Orb64f, FftForm::split, 8> {};
struct FFTSpec_R_64f : FftPlanOf<Orb64f, FftForm::real, 9> {};
static_assert(sizeof(FFTSpec_R_32f) == 88 && sizeof(FFTSpec_R_64f) == 96, "sizes are interface");

}  // namespace orbs::ORBS_VARIANT

#endif
