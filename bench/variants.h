// The variants of the library, by name.
#ifndef ORBS_BENCH_VARIANTS_H
#define ORBS_BENCH_VARIANTS_H

#include <string>

namespace orbs::bench {

// The index of a name such as "h9"; -1 if there is none.
int VariantIndex(const std::string& name);

// Whether this processor has the variant's instructions.
bool ProcessorRuns(int variant);

}  // namespace orbs::bench

#endif
