#include "boundary/processor/cpuid.h"

#include <cpuid.h>
#include <x86intrin.h>

namespace orbs {
namespace {

// CPUID exists when bit 21 of the flags register can be toggled.
bool IsPresent(const void*) {
  constexpr uint32_t kIdFlag = 1u << 21;
  const auto flags = __readeflags();
  __writeeflags(flags ^ kIdFlag);
  const auto toggled = __readeflags();
  __writeeflags(flags);
  return ((flags ^ toggled) & kIdFlag) != 0;
}

CpuidRegisters Leaf(const void*, uint32_t leaf, uint32_t subLeaf) {
  CpuidRegisters r;
  __cpuid_count(leaf, subLeaf, r.eax, r.ebx, r.ecx, r.edx);
  return r;
}

uint64_t Xcr0(const void*) {
  uint32_t low;
  uint32_t high;
  __asm__ volatile("xgetbv" : "=a"(low), "=d"(high) : "c"(0));
  return static_cast<uint64_t>(high) << 32 | low;
}

}  // namespace

const CpuidSource kProcessor = {nullptr, IsPresent, Leaf, Xcr0};

}  // namespace orbs
