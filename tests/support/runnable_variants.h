// The variants by name, and which of them this processor can run. For tests and benchmarks.
#ifndef ORBS_TESTS_SUPPORT_RUNNABLE_VARIANTS_H
#define ORBS_TESTS_SUPPORT_RUNNABLE_VARIANTS_H

#include <string>

#include "core/variants.h"

namespace orbs::test {

const char* VariantName(Variant variant);
// The index of a name such as "h9"; -1 if there is none.
int VariantIndex(const std::string& name);
bool CanRun(Variant variant);
bool HasMovbe();

}  // namespace orbs::test

#endif
