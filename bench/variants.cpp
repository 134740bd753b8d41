#include "bench/variants.h"

#include <cpuid.h>

#include "core/variants.h"

namespace orbs::bench {
namespace {

// A function of its own, since clang's __builtin_cpu_supports does not know the name.
bool HasMovbe() {
  unsigned eax, ebx, ecx, edx;
  return __get_cpuid(1, &eax, &ebx, &ecx, &edx) != 0 && (ecx & bit_MOVBE) != 0;
}

}  // namespace

int VariantIndex(const std::string& name) {
  constexpr const char* kNames[kVariantCount] = {"px", "w7", "v8", "s8", "p8", "g9", "h9"};
  for (int i = 0; i < kVariantCount; ++i) {
    if (name == kNames[i]) return i;
  }
  return -1;
}

bool ProcessorRuns(int variant) {
  switch (static_cast<Variant>(variant)) {
    case Variant::px:
      return true;
    case Variant::w7:
      return __builtin_cpu_supports("sse2");
    case Variant::v8:
      return __builtin_cpu_supports("ssse3");
    case Variant::s8:
      return __builtin_cpu_supports("ssse3") && HasMovbe();
    case Variant::p8:
      return __builtin_cpu_supports("sse4.1");
    case Variant::g9:
      return __builtin_cpu_supports("avx");
    case Variant::h9:
      return __builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma") &&
             __builtin_cpu_supports("bmi") && __builtin_cpu_supports("bmi2");
  }
  return false;
}

}  // namespace orbs::bench
