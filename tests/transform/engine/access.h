// The internal transforms of each variant as tables of functions whose types do not depend on the variant.
#ifndef ORBS_TESTS_TRANSFORM_ENGINE_ACCESS_H
#define ORBS_TESTS_TRANSFORM_ENGINE_ACCESS_H

#include "orbs90lgc/status.h"
#include "orbs90lgc/types.h"
#include "tests/support/variants.h"

namespace orbs::test {

enum FftKind { kC_32fc, kC_32f, kR_32f, kC_64fc, kC_64f, kR_64f, kFftKinds };
constexpr bool IsReal(FftKind kind) { return kind == kR_32f || kind == kR_64f; }
constexpr bool IsSplit(FftKind kind) { return kind == kC_32f || kind == kC_64f; }
constexpr bool Is64f(FftKind kind) { return kind >= kC_64fc; }
inline constexpr const char* kFftKindNames[kFftKinds] = {"C_32fc", "C_32f", "R_32f",
                                                         "C_64fc", "C_64f", "R_64f"};

enum SpectrumLayout { kPerm, kPack, kCcs, kSpectrumLayouts };

struct FftPlanAccess {
  OrbStatus (*getSize)(Orb32s order, Orb32s flag, OrbAlgHint hint, Orb32s* plan, Orb32s* init, Orb32s* work);
  OrbStatus (*init)(void** planOut, Orb32s order, Orb32s flag, OrbAlgHint hint, void* memory, void* init);
  OrbStatus (*initAlloc)(void** planOut, Orb32s order, Orb32s flag, OrbAlgHint hint);
  OrbStatus (*free)(void* plan);
  OrbStatus (*getBufSize)(const void* plan, Orb32s* size);
};

// One source, one result; and two of each.
using OneArray = OrbStatus (*)(const void* src, void* dst, const void* plan, void* work);
using TwoArrays = OrbStatus (*)(const void* srcRe, const void* srcIm, void* dstRe, void* dstIm,
                                const void* plan, void* work);

// Second index: 0 for 32f, 1 for 64f. First: 0 for forward, 1 for inverse, or the layout.
struct FftAccess {
  FftPlanAccess plan[kFftKinds];
  OneArray pairs[2][2];
  TwoArrays split[2][2];
  OneArray toSpectrum[kSpectrumLayouts][2];
  OneArray fromSpectrum[kSpectrumLayouts][2];
  const Orb32f* sinQuarter32f;
  const Orb64f* sinQuarter64f;
  void (*buildSines32f)(int order, Orb32f* quarter);
  void (*buildSines64f)(int order, Orb64f* quarter);
};

const FftAccess& AccessOf(Variant variant);

class FftTest : public testing::TestWithParam<Variant> {
 protected:
  void SetUp() override {
    const Variant variant = GetParam();
    if (!CanRun(variant)) GTEST_SKIP() << "this processor cannot run " << VariantName(variant);
    if (variant != Variant::px && &AccessOf(variant) == &AccessOf(Variant::px)) {
      GTEST_SKIP() << "this build leaves out " << VariantName(variant);
    }
  }

  const FftAccess& fft = AccessOf(GetParam());
};

}  // namespace orbs::test

#endif
