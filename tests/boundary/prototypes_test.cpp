// The public header declares each export with exactly the type that the list gives it, so that header and
// list cannot drift. Compiling this is the test.
#include <type_traits>

#include "orbs90lgc.h"

#define CHECK_PROTOTYPE(family, result, name, arguments)                        \
  static_assert(std::is_same_v<decltype(legacy90orbs##name), result arguments>, \
                "legacy90orbs" #name " is declared with other types than the list has");
#define ORBS_PLAIN CHECK_PROTOTYPE
#define ORBS_EXPORT CHECK_PROTOTYPE
#include "boundary/exports.def"
