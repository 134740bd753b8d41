// Declares the exports of one family in this variant, so that a definition with other arguments does not
// compile. Who includes this has named the family's slice of the list before:
//
//   #define ORBS_SLICE "boundary/exports/fir.def"
//   #include "boundary/declare_exports.h"
//
// No include guard: each use is for the slice that is named.
#include "core/variant.h"
#include "orbs90lgc/types.h"

#define ORBS_PLAIN(family, result, name, arguments)
#define ORBS_EXPORT(family, result, name, arguments) result legacy90orbs##name arguments;
#define ORBS_PLANNED(family, result, name, arguments)

namespace orbs::ORBS_VARIANT {
#include ORBS_SLICE
}  // namespace orbs::ORBS_VARIANT

#undef ORBS_PLAIN
#undef ORBS_EXPORT
#undef ORBS_PLANNED
#undef ORBS_SLICE
