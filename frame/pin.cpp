// Hooks for tests and benchmarks; only in the pinnable library, which is never installed.
#include "frame/pin.h"
#include "frame/dispatch.h"
#include "frame/memory.h"
#include "frame/variants.h"

extern "C" {

void orbsPinVariant(int index) {
  if (index >= 0 && index < orbs::kVariantCount) orbs::SetCpuIndex(index);
}

void orbsSetAllocator(void* (*allocate)(size_t), void (*release)(void*)) {
  orbs::SetAllocator({allocate, release});
}
}
