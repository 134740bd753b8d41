// What liborbs90lgc_pinnable.so exports beyond the product.
#ifndef ORBS_BOUNDARY_PIN_H
#define ORBS_BOUNDARY_PIN_H

#include <cstddef>

#pragma GCC visibility push(default)

extern "C" {

// Makes the variant with this index (0 to 6) serve all further calls. The caller sees to it that the
// processor can run it.
void orbsPinVariant(int index);

// Puts another heap behind all allocations. Nothing that the old heap handed out may be alive.
void orbsSetAllocator(void* (*allocate)(size_t), void (*release)(void*));
}

#pragma GCC visibility pop

#endif
