// Stands in for boundary/dispatch.cpp, which would bring the exports with it: the exports that are measured
// are those of the shared library. The toolkit asks for the size of the cache, whose code refers to the
// selection; nobody here selects by it.
#include "boundary/dispatch.h"

namespace orbs {

Orb32s GetCpuIndex() { return -1; }
void SetCpuIndex(Orb32s) {}

}  // namespace orbs
