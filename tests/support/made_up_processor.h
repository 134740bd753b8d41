// A processor made of a table, for what the library decides from identification.
#ifndef ORBS_TESTS_SUPPORT_MADE_UP_PROCESSOR_H
#define ORBS_TESTS_SUPPORT_MADE_UP_PROCESSOR_H

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <utility>

#include "boundary/processor/cpuid.h"

namespace orbs::test {

// Leaves that were not set read as zeros. What the library reads is noted, since some reads are illegal on
// some processors.
class MadeUpProcessor {
 public:
  bool present = true;
  uint64_t xcr0 = 0;

  CpuidRegisters& Leaf(uint32_t leaf, uint32_t subLeaf = 0) { return leaves_[{leaf, subLeaf}]; }

  // Sets what leaf 0 tells: the highest leaf and the vendor's 12 characters.
  void Identify(uint32_t maxLeaf, const std::string& vendor = std::string(12, '?')) {
    const auto word = [&vendor](size_t first) {
      uint32_t value = 0;
      for (size_t i = 4; i-- > 0;) value = value << 8 | static_cast<unsigned char>(vendor.at(first + i));
      return value;
    };
    Leaf(0) = {maxLeaf, word(0), word(8), word(4)};
  }

  bool HasRead(uint32_t leaf) const { return read_.count(leaf) != 0; }
  bool HasReadXcr0() const { return xcr0Read_; }

  // The processor must outlive the source.
  CpuidSource Source() const {
    return {this, [](const void* self) { return Self(self).present; },
            [](const void* self, uint32_t leaf, uint32_t subLeaf) {
              Self(self).read_.insert(leaf);
              const auto found = Self(self).leaves_.find({leaf, subLeaf});
              return found == Self(self).leaves_.end() ? CpuidRegisters{} : found->second;
            },
            [](const void* self) {
              Self(self).xcr0Read_ = true;
              return Self(self).xcr0;
            }};
  }

 private:
  static const MadeUpProcessor& Self(const void* self) { return *static_cast<const MadeUpProcessor*>(self); }

  std::map<std::pair<uint32_t, uint32_t>, CpuidRegisters> leaves_;
  mutable std::set<uint32_t> read_;
  mutable bool xcr0Read_ = false;
};

}  // namespace orbs::test

#endif
