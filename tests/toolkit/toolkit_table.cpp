#include "tests/toolkit/toolkit_table.h"

// Every variant's functions have the types of px. A variant that the build leaves out is named px here.
#define ORBS_DECLARE(a, row) decltype(px::row) row;
#define ORBS_DECLARE_ALL(variant)   \
  namespace orbs::variant {         \
  ORBS_TOOLKIT_ROWS(ORBS_DECLARE, ) \
  }
ORBS_DECLARE_ALL(ORBS_ENTRY_w7)
ORBS_DECLARE_ALL(ORBS_ENTRY_v8)
ORBS_DECLARE_ALL(ORBS_ENTRY_s8)
ORBS_DECLARE_ALL(ORBS_ENTRY_p8)
ORBS_DECLARE_ALL(ORBS_ENTRY_g9)
ORBS_DECLARE_ALL(ORBS_ENTRY_h9)

namespace orbs::test {

#define ORBS_ADDRESS(variant, row) &variant::row,
#define ORBS_TABLE(variant) \
  { ORBS_TOOLKIT_ROWS(ORBS_ADDRESS, variant) }

const Toolkit& ToolkitOf(Variant variant) {
  static constexpr Toolkit kTables[kVariantCount] = {ORBS_TABLE(px),
                                                     ORBS_TABLE(ORBS_ENTRY_w7),
                                                     ORBS_TABLE(ORBS_ENTRY_v8),
                                                     ORBS_TABLE(ORBS_ENTRY_s8),
                                                     ORBS_TABLE(ORBS_ENTRY_p8),
                                                     ORBS_TABLE(ORBS_ENTRY_g9),
                                                     ORBS_TABLE(ORBS_ENTRY_h9)};
  return kTables[static_cast<int>(variant)];
}

}  // namespace orbs::test
