// The exports outside the variants.
#include "boundary/processor/processor.h"
#pragma GCC visibility push(default)
#include "orbs90lgc/frame.h"
#pragma GCC visibility pop
#include "orbs90lgc/status.h"

extern "C" {

// What the lazy stubs call; by a name of its own, so that no other library's symbol can come between.
[[gnu::visibility("hidden")]] void orbsSelectVariant();
void orbsSelectVariant() { orbs::SelectForThisProcessor(); }

OrbStatus legacy90orbsInit(void) { return orbs::SelectForThisProcessor(); }

OrbStatus legacy90orbsGetNumThreads(Orb32s* numThreads) {
  if (numThreads == nullptr) return StatusNullPointer;
  *numThreads = 1;
  return StatusNoThreads;
}

OrbStatus legacy90orbsSetNumThreads(Orb32s) { return StatusNoThreads; }
}
