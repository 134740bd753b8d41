// The exports of this variant, declared from the list so that a definition with other arguments does not
// compile.
#ifndef ORBS_BOUNDARY_EXPORTS_H
#define ORBS_BOUNDARY_EXPORTS_H

#include "core/variant.h"
#include "orbs90lgc/types.h"

namespace orbs::ORBS_VARIANT {

#include "boundary/exports_declare.inc"

}  // namespace orbs::ORBS_VARIANT

#endif
