#include "tests/transform/engine/access.h"

#define ORBS_DECLARE(variant)           \
  namespace orbs::variant {             \
  extern const test::FftAccess kAccess; \
  }
ORBS_DECLARE(px)
ORBS_DECLARE(w7)
ORBS_DECLARE(v8)
ORBS_DECLARE(s8)
ORBS_DECLARE(p8)
ORBS_DECLARE(g9)
ORBS_DECLARE(h9)

namespace orbs::test {

const FftAccess& AccessOf(Variant variant) {
  static const FftAccess* const kAll[kVariantCount] = {
      &ORBS_ENTRY_px::kAccess, &ORBS_ENTRY_w7::kAccess, &ORBS_ENTRY_v8::kAccess, &ORBS_ENTRY_s8::kAccess,
      &ORBS_ENTRY_p8::kAccess, &ORBS_ENTRY_g9::kAccess, &ORBS_ENTRY_h9::kAccess};
  return *kAll[static_cast<int>(variant)];
}

}  // namespace orbs::test
