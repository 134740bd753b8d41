// From identification to the selected variant: on made-up processors, and on the real one where the compiler
// gives a second opinion.
#include <gtest/gtest.h>

#include <string>

#include "boundary/dispatch.h"
#include "boundary/processor/processor.h"
#include "orbs90lgc/status.h"
#include "tests/support/made_up_processor.h"
#include "tests/support/variants.h"

namespace orbs::test {
namespace {

constexpr uint32_t kExtended = 0x80000001u;
constexpr uint32_t kFamily11Leaf = 0x20000001u;
constexpr uint32_t kSignatureB1 = 0xB10;  // family 11, and bits 4 to 11 equal 0xB1

// A bit of identification and the features that need it.
struct IdentificationBit {
  uint32_t leaf;
  uint32_t CpuidRegisters::*word;
  int bit;
  uint64_t features;  // what disappears without the bit
  bool alone;         // whether the bit is enough for them
};

const IdentificationBit kBits[] = {
    {1, &CpuidRegisters::edx, 23, kMmx, true},
    {1, &CpuidRegisters::edx, 25, kSse, true},
    {1, &CpuidRegisters::edx, 26, kSse2, true},
    {1, &CpuidRegisters::ecx, 0, kSse3, true},
    {1, &CpuidRegisters::ecx, 1, kPclmulqdq, true},
    {1, &CpuidRegisters::ecx, 9, kSsse3, true},
    {1, &CpuidRegisters::ecx, 12, kAvx2Group, false},  // FMA
    {1, &CpuidRegisters::ecx, 19, kSse41, true},
    {1, &CpuidRegisters::ecx, 20, kSse42, true},
    {1, &CpuidRegisters::ecx, 22, kMovbe, true},
    {1, &CpuidRegisters::ecx, 25, kAes, true},
    {1, &CpuidRegisters::ecx, 27, kAvxEnabled, false},  // OSXSAVE
    {1, &CpuidRegisters::ecx, 28, kAvx | kAvxEnabled, false},
    {1, &CpuidRegisters::ecx, 29, kF16c, true},
    {1, &CpuidRegisters::ecx, 30, kRdrand, true},
    {7, &CpuidRegisters::ebx, 3, kAvx2Group, false},  // BMI1
    {7, &CpuidRegisters::ebx, 5, kAvx2Group, false},  // AVX2
    {7, &CpuidRegisters::ebx, 8, kAvx2Group, false},  // BMI2
    {7, &CpuidRegisters::ebx, 18, kRdseed, true},
    {7, &CpuidRegisters::ebx, 19, kAdx, true},
    {7, &CpuidRegisters::ebx, 29, kSha, true},
    {kExtended, &CpuidRegisters::ecx, 8, kPrefetchw, true},
};

constexpr uint64_t kAllFeatures = 0xFFFFF | kModelB1;

MadeUpProcessor ProcessorWithNothing() {
  MadeUpProcessor cpu;
  cpu.Identify(7);
  cpu.Leaf(0x80000000u).eax = kExtended;
  cpu.xcr0 = 6;
  return cpu;
}

MadeUpProcessor ProcessorWithEverything() {
  MadeUpProcessor cpu = ProcessorWithNothing();
  constexpr uint32_t kOnes = ~0u;
  cpu.Leaf(1) = {kSignatureB1, kOnes, kOnes, kOnes};
  cpu.Leaf(7) = cpu.Leaf(kExtended) = cpu.Leaf(kFamily11Leaf) = {kOnes, kOnes, kOnes, kOnes};
  return cpu;
}

TEST(Detection, EachFeatureComesFromItsBit) {
  EXPECT_EQ(DetectFeatures(ProcessorWithNothing().Source()), 0u);
  EXPECT_EQ(DetectFeatures(ProcessorWithEverything().Source()), kAllFeatures);
  for (const IdentificationBit& bit : kBits) {
    SCOPED_TRACE(testing::Message() << std::hex << "leaf 0x" << bit.leaf << std::dec << ", bit " << bit.bit);
    MadeUpProcessor without = ProcessorWithEverything();
    without.Leaf(bit.leaf).*bit.word &= ~(1u << bit.bit);
    EXPECT_EQ(DetectFeatures(without.Source()), kAllFeatures & ~bit.features);

    MadeUpProcessor only = ProcessorWithNothing();
    only.Leaf(bit.leaf).*bit.word = 1u << bit.bit;
    EXPECT_EQ(DetectFeatures(only.Source()), bit.alone ? bit.features : bit.features & kAvx);
  }
}

TEST(Detection, AvxIsEnabledWhenTheSystemSavesBothStates) {
  constexpr uint32_t kOsxsave = 1u << 27;
  constexpr uint32_t kAvxBit = 1u << 28;
  for (const uint32_t ecx : {0u, kOsxsave, kAvxBit, kOsxsave | kAvxBit}) {
    for (uint64_t xcr0 = 0; xcr0 < 8; ++xcr0) {
      MadeUpProcessor cpu = ProcessorWithNothing();
      cpu.Leaf(1).ecx = ecx;
      cpu.xcr0 = xcr0;
      const bool legal = ecx == (kOsxsave | kAvxBit);
      const bool enabled = (DetectFeatures(cpu.Source()) & kAvxEnabled) != 0;
      EXPECT_EQ(cpu.HasReadXcr0(), legal) << std::hex << ecx;
      EXPECT_EQ(enabled, legal && (xcr0 == 6 || xcr0 == 7)) << std::hex << ecx << ' ' << xcr0;
    }
  }
}

// A leaf beyond the reported ones holds the data of another leaf on real processors.
TEST(Detection, LeavesThatAreNotReportedAreNotRead) {
  constexpr uint64_t kFromLeaf7 = kAvx2Group | kAdx | kRdseed | kSha;
  struct {
    uint32_t maxLeaf;
    uint32_t maxExtendedLeaf;
    uint64_t missing;
  } const kCases[] = {
      {7, kExtended, 0},          {8, kExtended + 7, 0},          {6, kExtended, kFromLeaf7},
      {1, kExtended, kFromLeaf7}, {7, kExtended - 1, kPrefetchw}, {7, 0, kPrefetchw},
  };
  for (const auto& row : kCases) {
    MadeUpProcessor cpu = ProcessorWithEverything();
    cpu.Identify(row.maxLeaf);
    cpu.Leaf(0x80000000u).eax = row.maxExtendedLeaf;
    EXPECT_EQ(DetectFeatures(cpu.Source()), kAllFeatures & ~row.missing);
    EXPECT_EQ(cpu.HasRead(7), (row.missing & kSha) == 0);
    EXPECT_EQ(cpu.HasRead(kExtended), (row.missing & kPrefetchw) == 0);
  }
  MadeUpProcessor cpu = ProcessorWithNothing();  // only sub-leaf 0 of leaf 7 counts
  cpu.Leaf(7, 1).ebx = ~0u;
  EXPECT_EQ(DetectFeatures(cpu.Source()), 0u);
}

TEST(Detection, TheSignatureDecidesFamily11AndModelB1) {
  struct {
    uint32_t signature;
    uint64_t features;
  } const kCases[] = {
      {0xB10, kFamily11 | kModelB1},
      {0xFFFFFB1F, kFamily11 | kModelB1},
      {0xB00, kFamily11},
      {0xBF0, kFamily11},
      {0x0A10, 0},
      {0x1B1, 0},
      {0xF10, 0},
      {0x000B1000, 0},
  };
  for (const auto& row : kCases) {
    MadeUpProcessor cpu = ProcessorWithNothing();
    cpu.Leaf(1).eax = row.signature;
    cpu.Leaf(kFamily11Leaf).edx = 1u << 1;
    EXPECT_EQ(DetectFeatures(cpu.Source()), row.features) << std::hex << row.signature;
    EXPECT_EQ(cpu.HasRead(kFamily11Leaf), (row.features & kFamily11) != 0) << std::hex << row.signature;

    cpu.Leaf(kFamily11Leaf).edx = ~(1u << 1);
    EXPECT_EQ(DetectFeatures(cpu.Source()), row.features & ~kFamily11) << std::hex << row.signature;
  }
}

TEST(Detection, TheVendorIsComparedInFull) {
  const char vendor[] = "ABCDEFGHIJKL";
  MadeUpProcessor cpu;
  cpu.Identify(1, vendor);
  EXPECT_TRUE(HasVendor(cpu.Source(), vendor));
  for (size_t i = 0; i < 12; ++i) {
    std::string other = vendor;
    other[i] ^= 1;
    cpu.Identify(1, other);
    EXPECT_FALSE(HasVendor(cpu.Source(), vendor)) << other;
  }
}

TEST(Selection, TheFirstRuleThatHoldsWins) {
  constexpr uint64_t kUpToSse2 = kMmx | kSse | kSse2;
  constexpr uint64_t kUpToSsse3 = kUpToSse2 | kSse3 | kSsse3;
  constexpr uint64_t kUpToSse42 = kUpToSsse3 | kSse41 | kSse42;
  constexpr uint64_t kUpToAvx = kUpToSse42 | kAvx | kAvxEnabled;
  struct {
    uint64_t features;
    Variant variant;
  } const kCases[] = {
      {0, Variant::px},
      {kMmx | kSse, Variant::px},
      {kSse3, Variant::px},
      {kMovbe, Variant::px},
      {kAvx, Variant::px},
      {kAvxEnabled, Variant::px},
      {kAvx2Group, Variant::px},
      {kUpToSse2, Variant::w7},
      {kUpToSse2 | kSse3, Variant::w7},
      {kUpToSse2 | kMovbe, Variant::w7},  // MOVBE counts only beside SSSE3
      {kUpToSse2 | kSse42, Variant::w7},
      {kSsse3, Variant::v8},
      {kUpToSsse3, Variant::v8},
      {kUpToSsse3 | kSse42, Variant::v8},
      {kUpToSsse3 | kMovbe, Variant::s8},
      {kSse41, Variant::p8},
      {kUpToSsse3 | kSse41, Variant::p8},
      {kUpToSsse3 | kSse41 | kMovbe, Variant::p8},
      {kUpToSse42, Variant::p8},
      {kUpToSse42 | kAvx, Variant::p8},  // the system does not save the AVX state
      {kUpToSse42 | kAvx | kAvx2Group, Variant::p8},
      {kUpToSse42 | kAvxEnabled | kAvx2Group, Variant::p8},
      {kAvx | kAvxEnabled, Variant::g9},
      {kUpToAvx, Variant::g9},
      {kUpToAvx | kMovbe, Variant::g9},
      {kAvx | kAvxEnabled | kAvx2Group, Variant::h9},
      {kUpToAvx | kAvx2Group, Variant::h9},
      {kAllFeatures, Variant::h9},
  };
  constexpr uint64_t kKept[kVariantCount] = {0x3, 0x7, 0x1F, 0x3F, 0x80CDF, 0x86FDF, 0xFEFFF};
  for (const auto& row : kCases) {
    // Features that decide nothing come and go.
    for (const uint64_t others : {uint64_t{0}, kAes | kPclmulqdq | kFamily11 | kSha | kModelB1}) {
      const Selection selection = SelectVariant(row.features | others);
      EXPECT_EQ(VariantName(selection.variant), std::string(VariantName(row.variant)))
          << std::hex << row.features;
      EXPECT_EQ(selection.enabledFeatures,
                (row.features | others) & kKept[static_cast<int>(selection.variant)]);
    }
  }
}

TEST(RealProcessor, TheMaskAgreesWithTheCompilersOwnDetection) {
  uint64_t mask = 0;
  ASSERT_EQ(QueryCpuFeatures(&mask, nullptr), StatusOk);
  const auto has = [mask](uint64_t bits) { return (mask & bits) == bits; };
  EXPECT_EQ(has(kMmx), __builtin_cpu_supports("mmx") != 0);
  EXPECT_EQ(has(kSse2), __builtin_cpu_supports("sse2") != 0);
  EXPECT_EQ(has(kSse3), __builtin_cpu_supports("sse3") != 0);
  EXPECT_EQ(has(kSsse3), __builtin_cpu_supports("ssse3") != 0);
  EXPECT_EQ(has(kMovbe), HasMovbe());
  EXPECT_EQ(has(kSse41), __builtin_cpu_supports("sse4.1") != 0);
  EXPECT_EQ(has(kSse42), __builtin_cpu_supports("sse4.2") != 0);
  EXPECT_EQ(has(kAvx | kAvxEnabled), __builtin_cpu_supports("avx") != 0);
  if (has(kAvxEnabled)) {
    EXPECT_EQ(has(kAvx2Group), __builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma") &&
                                   __builtin_cpu_supports("bmi") && __builtin_cpu_supports("bmi2"));
  }
}

TEST(RealProcessor, TheQueryGivesTheMaskAndTheSignature) {
  uint64_t mask = 0;
  CpuidRegisters registers = {};
  EXPECT_EQ(QueryCpuFeatures(nullptr, &registers), StatusNullPointer);
  for (int i = 0; i < 2; ++i) {
    ASSERT_EQ(QueryCpuFeatures(&mask, &registers), StatusOk);
    EXPECT_EQ(mask, DetectFeatures(kProcessor));
    const CpuidRegisters expected = kProcessor.leaf(nullptr, 1, 0);
    EXPECT_EQ(registers.eax, expected.eax);
    EXPECT_EQ(registers.ecx, expected.ecx);
    EXPECT_EQ(registers.edx, expected.edx);
    // The top byte of EBX numbers the core that answered.
    EXPECT_EQ(registers.ebx & 0xFFFFFF, expected.ebx & 0xFFFFFF);
  }
}

TEST(RealProcessor, TheSelectionIsThatOfItsMask) {
  const Selection expected = SelectVariant(DetectFeatures(kProcessor));
  SetCpuIndex(-1);
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(SelectForThisProcessor(),
              HasVendor(kProcessor, kExpectedVendorId) ? StatusOk : StatusNoCpuSupport);
    EXPECT_EQ(GetCpuIndex(), static_cast<int>(expected.variant));
    for (uint64_t bit = 1; bit != 0; bit <<= 1) {
      EXPECT_EQ(SelectedFeatureTest(bit), (expected.enabledFeatures & bit) != 0) << std::hex << bit;
    }
    EXPECT_TRUE(SelectedFeatureTest(expected.enabledFeatures));
    EXPECT_FALSE(SelectedFeatureTest(expected.enabledFeatures | uint64_t{1} << 63));
  }
}

}  // namespace
}  // namespace orbs::test
