// The complex transforms of the vector variants, of binary64.
#include "core/variant.h"

#if ORBS_VECTOR

#include "transform/engine/vector/transform_by_tables.h"

namespace orbs::ORBS_VARIANT::transform {

ORBS_INSTANTIATE_VECTOR_TRANSFORM(Orb64f)

}  // namespace orbs::ORBS_VARIANT::transform

#endif
