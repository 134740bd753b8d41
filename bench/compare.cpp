#include "bench/compare.h"

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <new>

namespace orbs::bench {
namespace {

struct RegisteredFamily {
  int variant;
  void (*declare)();
};

// Function-local, since families register themselves before main in an order of the linker's choice.
std::vector<RegisteredFamily>& Families() {
  static std::vector<RegisteredFamily> families;
  return families;
}

std::vector<DeclaredComparison>& Declared() {
  static std::vector<DeclaredComparison> declared;
  return declared;
}

// All bytes that a call touches. The first fits 32 KiB and the second 256 KiB with room for what else lives
// there; the third is four times the largest slice of third-level cache that one core of today's processors
// has to itself.
constexpr double kPlaces[] = {24.0 * 1024, 192.0 * 1024, 128.0 * 1024 * 1024};

}  // namespace

void* Comparison::Allocate(size_t bytes) {
  constexpr size_t kAlignment = 64;
  // Arrays that all begin at the same place of a page would compete for the same cache sets.
  const size_t stagger = blocks_.size() * 5 * kAlignment;
  const size_t rounded = (stagger + bytes + kAlignment - 1) / kAlignment * kAlignment;
  void* const block = std::aligned_alloc(kAlignment, rounded);
  if (block == nullptr) throw std::bad_alloc();
  std::memset(block, 0, rounded);
  blocks_.emplace_back(block);
  return static_cast<char*>(block) + stagger;
}

void Comparison::Free::operator()(void* block) const { std::free(block); }

void CompareAtSizes(const std::string& name, Work work, std::initializer_list<Orb32s> sizes, Body body) {
  for (const Orb32s size : sizes) Declared().push_back({name, size, work, body});
}

void CompareInPlaces(const std::string& name, Work work, Body body) {
  for (const double bytes : kPlaces) {
    Orb32s size = 1;
    while (2.0 * size * work.Bytes() <= bytes) size *= 2;
    Declared().push_back({name, size, work, body});
  }
}

Family::Family(int variant, void (*declare)()) { Families().push_back({variant, declare}); }

bool DeclareFamilies(int variant) {
  bool variantIsKnown = false;
  for (const RegisteredFamily& family : Families()) {
    if (family.variant != kEveryVariant && family.variant != variant) continue;
    variantIsKnown |= family.variant == variant;
    family.declare();
  }
  return variantIsKnown;
}

const std::vector<DeclaredComparison>& DeclaredComparisons() { return Declared(); }

double Random(Orb32s i) {
  // The finalizer of a 64-bit mixing generator: neighbouring indices give unrelated values.
  uint64_t x = (static_cast<uint64_t>(i) + 1) * 0x9E3779B97F4A7C15u;
  x = (x ^ (x >> 30)) * 0xBF58476D1CE4E5B9u;
  x = (x ^ (x >> 27)) * 0x94D049BB133111EBu;
  x ^= x >> 31;
  return static_cast<double>(static_cast<int64_t>(x)) * 0x1p-63;
}

Orb32fc OnUnitCircle(Orb32s i) {
  const double angle = 3.141592653589793 * Random(i);
  return {static_cast<Orb32f>(std::cos(angle)), static_cast<Orb32f>(std::sin(angle))};
}

}  // namespace orbs::bench
