// The codelets of binary32.
#include "transform/engine/codelet_tables.h"

namespace orbs::ORBS_VARIANT::transform {

ORBS_INSTANTIATE_CODELETS(, Orb32f)

}  // namespace orbs::ORBS_VARIANT::transform
