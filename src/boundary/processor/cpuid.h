// Where processor identification comes from. The library reads the processor; a test reads a table of its
// own.
#ifndef ORBS_BOUNDARY_PROCESSOR_CPUID_H
#define ORBS_BOUNDARY_PROCESSOR_CPUID_H

#include <cstdint>

namespace orbs {

struct CpuidRegisters {
  uint32_t eax;
  uint32_t ebx;
  uint32_t ecx;
  uint32_t edx;
};

struct CpuidSource {
  const void* context;
  bool (*isPresent)(const void* context);  // whether the CPUID instruction exists
  CpuidRegisters (*leaf)(const void* context, uint32_t leaf, uint32_t subLeaf);
  uint64_t (*xcr0)(const void* context);  // XGETBV of register 0; legal only when CPUID reports OSXSAVE
};

// The processor that runs this code.
extern const CpuidSource kProcessor;

}  // namespace orbs

#endif
