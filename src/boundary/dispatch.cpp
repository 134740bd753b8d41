// One table per export: its lazy stub, then its entry point in each variant. The stubs (stubs.S) index the
// array of tables by the place of an export in the list and by CpuIndex, so that the initial value -1 lands
// on the lazy stub without a test.
#include "boundary/dispatch.h"

#include "core/variants.h"

// A quick build leaves variants out: the build then defines ORBS_ENTRY_w7, say, as px, and the entries point
// there.
#define ORBS_EXPORT(family, result, name, arguments) \
  namespace orbs::px {                               \
  result legacy90orbs##name arguments;               \
  }                                                  \
  namespace orbs::ORBS_ENTRY_w7 {                    \
  result legacy90orbs##name arguments;               \
  }                                                  \
  namespace orbs::ORBS_ENTRY_v8 {                    \
  result legacy90orbs##name arguments;               \
  }                                                  \
  namespace orbs::ORBS_ENTRY_s8 {                    \
  result legacy90orbs##name arguments;               \
  }                                                  \
  namespace orbs::ORBS_ENTRY_p8 {                    \
  result legacy90orbs##name arguments;               \
  }                                                  \
  namespace orbs::ORBS_ENTRY_g9 {                    \
  result legacy90orbs##name arguments;               \
  }                                                  \
  namespace orbs::ORBS_ENTRY_h9 {                    \
  result legacy90orbs##name arguments;               \
  }
#include "boundary/exports.def"

extern "C" {

#define ORBS_EXPORT(family, result, name, arguments) void orbsLazy##name();
#include "boundary/exports.def"

// Read by every stub, so it keeps its name without decoration. Hidden: no caller can force a variant.
extern Orb32s CpuIndex;
Orb32s CpuIndex = -1;

// The structure spells the rows out with their types; to the stubs it is an array of eight code pointers a
// row.
struct OrbsDispatchTables {
#define ORBS_EXPORT(family, result, name, arguments) \
  struct {                                           \
    void (*lazy)();                                  \
    result(*variant[orbs::kVariantCount]) arguments; \
  } row_##name;
#include "boundary/exports.def"
};

#define ORBS_EXPORT(family, result, name, arguments) +1
inline constexpr int kExportCount = 0
#include "boundary/exports.def"
    ;
static_assert(sizeof(OrbsDispatchTables) == kExportCount * (1 + orbs::kVariantCount) * sizeof(void (*)()));

// Written by the loader's relocations and never again.
extern OrbsDispatchTables DispatchTable;
OrbsDispatchTables DispatchTable = {
#define ORBS_EXPORT(family, result, name, arguments)                                  \
  {orbsLazy##name,                                                                    \
   {orbs::px::legacy90orbs##name, orbs::ORBS_ENTRY_w7::legacy90orbs##name,            \
    orbs::ORBS_ENTRY_v8::legacy90orbs##name, orbs::ORBS_ENTRY_s8::legacy90orbs##name, \
    orbs::ORBS_ENTRY_p8::legacy90orbs##name, orbs::ORBS_ENTRY_g9::legacy90orbs##name, \
    orbs::ORBS_ENTRY_h9::legacy90orbs##name}},
#include "boundary/exports.def"
};
}

namespace orbs {

// One relaxed 32-bit store: threads that race on the first call write the same value, and the table entries
// never change, so nothing else needs ordering.
Orb32s GetCpuIndex() { return __atomic_load_n(&CpuIndex, __ATOMIC_RELAXED); }
void SetCpuIndex(Orb32s index) { __atomic_store_n(&CpuIndex, index, __ATOMIC_RELAXED); }

}  // namespace orbs
