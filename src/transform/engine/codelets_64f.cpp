// The codelets of binary64.
#include "transform/engine/codelet_tables.h"

namespace orbs::ORBS_VARIANT::transform {

ORBS_INSTANTIATE_CODELETS(, Orb64f)

}  // namespace orbs::ORBS_VARIANT::transform
