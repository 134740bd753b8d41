#include "tests/support/runnable_variants.h"

#include <cpuid.h>

namespace orbs::test {

namespace {

constexpr const char* kNames[kVariantCount] = {"px", "w7", "v8", "s8", "p8", "g9", "h9"};

}  // namespace

const char* VariantName(Variant variant) { return kNames[static_cast<int>(variant)]; }

int VariantIndex(const std::string& name) {
  for (int i = 0; i < kVariantCount; ++i) {
    if (name == kNames[i]) return i;
  }
  return -1;
}

// A function of its own, since clang's __builtin_cpu_supports does not know the name.
bool HasMovbe() {
  unsigned eax, ebx, ecx, edx;
  return __get_cpuid(1, &eax, &ebx, &ecx, &edx) != 0 && (ecx & bit_MOVBE) != 0;
}

bool CanRun(Variant variant) {
  switch (variant) {
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

}  // namespace orbs::test
