// The version record of this variant.
#define ORBS_SLICE "boundary/exports/frame.def"
#include "boundary/declare_exports.h"
#if ORBS_VARIANT_INDEX == 4
#include "boundary/processor/processor.h"
#endif

namespace orbs::ORBS_VARIANT {
namespace {

struct Identity {
  char code[4];
  const char* name;
};

constexpr Identity kIdentities[kVariantCount] = {
    {"px", "orbSP PX (px)"},   {"w7", "orbSP SSE2 (w7)"},       {"v8", "orbSP SSSE3 (v8)"},
    {"s8", "orbSP Wren (s8)"}, {"p8", "orbSP SSE4.1/4.2 (p8)"}, {"g9", "orbSP AVX (g9)"},
    {"h9", "orbSP AVX2 (h9)"},
};

constexpr OrbLibraryVersion MakeVersion(const char* name) {
  const Identity& self = kIdentities[ORBS_VARIANT_INDEX];
  return {9, 0, 0, -1, {self.code[0], self.code[1], 0, 0}, name, "9.0 Legacy (r48491) (-)", "Oct 13 2015"};
}

constexpr OrbLibraryVersion kVersion = MakeVersion(kIdentities[ORBS_VARIANT_INDEX].name);

#if ORBS_VARIANT_INDEX == 4
// p8 is selected on SSE4.1 alone; its record tells whether SSE4.2 is there too.
constexpr OrbLibraryVersion kVersionWithSse42 = MakeVersion("orbSP SSE4.1/4.2 (p8)+");
#endif

}  // namespace

const OrbLibraryVersion* legacy90orbsGetLibVersion(void) {
#if ORBS_VARIANT_INDEX == 4
  if (SelectedFeatureTest(kSse42)) return &kVersionWithSse42;
#endif
  return &kVersion;
}

}  // namespace orbs::ORBS_VARIANT
