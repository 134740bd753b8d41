// Hooks for tests and benchmarks; only in the pinnable library, which is never installed.
#include "boundary/pin.h"
#include "boundary/dispatch.h"
#include "core/memory.h"
#include "core/variants.h"

extern "C" {

void orbsPinVariant(int index) {
  if (index >= 0 && index < orbs::kVariantCount) orbs::SetCpuIndex(index);
}

void orbsSetAllocator(void* (*allocate)(size_t), void (*release)(void*)) {
  orbs::SetAllocator({allocate, release});
}
}
