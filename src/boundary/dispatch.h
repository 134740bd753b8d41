// The dispatch tables and the index that all stubs read.
#ifndef ORBS_BOUNDARY_DISPATCH_H
#define ORBS_BOUNDARY_DISPATCH_H

#include "orbs90lgc/types.h"

namespace orbs {

// -1 before any selection, then the index of the selected variant.
Orb32s GetCpuIndex();
void SetCpuIndex(Orb32s index);

}  // namespace orbs

#endif
