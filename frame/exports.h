// The exports of this variant, declared from the list so that a definition with other arguments does not
// compile.
#ifndef ORBS_FRAME_EXPORTS_H
#define ORBS_FRAME_EXPORTS_H

#include "frame/variant.h"
#include "orbs90lgc/types.h"

namespace orbs::ORBS_VARIANT {

#include "frame/exports_declare.inc"

}  // namespace orbs::ORBS_VARIANT

#endif
