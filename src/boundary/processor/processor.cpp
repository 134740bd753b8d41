#include "boundary/processor/processor.h"

#include <atomic>

#include "boundary/dispatch.h"
#include "orbs90lgc/status.h"

namespace orbs {

const char kExpectedVendorId[kVendorIdLength + 1] = ORBS_EXPECTED_VENDOR_ID;

namespace {

// A 64-bit mask that racing threads may write with the same value. Two halves, since a 32-bit processor
// without CMPXCHG8B has no atomic 64-bit store; a mask needs no more, for all writers agree.
class SharedMask {
 public:
  void Store(uint64_t mask) {
    low_.store(static_cast<uint32_t>(mask), std::memory_order_relaxed);
    high_.store(static_cast<uint32_t>(mask >> 32), std::memory_order_relaxed);
  }
  uint64_t Load() const {
    return static_cast<uint64_t>(high_.load(std::memory_order_relaxed)) << 32 |
           low_.load(std::memory_order_relaxed);
  }

 private:
  std::atomic<uint32_t> low_{0};
  std::atomic<uint32_t> high_{0};
};

SharedMask DetectedFeatures;
std::atomic<bool> featuresDetected{false};
SharedMask EnabledFeatures;

// The feature bits that each variant keeps.
constexpr uint64_t kKeptFeatures[kVariantCount] = {0x3, 0x7, 0x1F, 0x3F, 0x80CDF, 0x86FDF, 0xFEFFF};

constexpr bool Bit(uint32_t word, int bit) { return (word >> bit & 1) != 0; }

}  // namespace

uint64_t DetectFeatures(const CpuidSource& cpu) {
  const uint32_t maxLeaf = cpu.leaf(cpu.context, 0, 0).eax;
  const uint32_t maxExtendedLeaf = cpu.leaf(cpu.context, 0x80000000u, 0).eax;
  const CpuidRegisters basic = cpu.leaf(cpu.context, 1, 0);

  uint64_t mask = 0;
  const auto set = [&mask](bool condition, uint64_t feature) { mask |= condition ? feature : 0; };

  set(Bit(basic.edx, 23), kMmx);
  set(Bit(basic.edx, 25), kSse);
  set(Bit(basic.edx, 26), kSse2);
  set(Bit(basic.ecx, 0), kSse3);
  set(Bit(basic.ecx, 9), kSsse3);
  set(Bit(basic.ecx, 22), kMovbe);
  set(Bit(basic.ecx, 19), kSse41);
  set(Bit(basic.ecx, 20), kSse42);
  set(Bit(basic.ecx, 28), kAvx);
  // XGETBV is an illegal instruction unless the system has enabled it, which ECX bit 27 tells.
  if (Bit(basic.ecx, 27) && Bit(basic.ecx, 28)) {
    set((cpu.xcr0(cpu.context) & 6) == 6, kAvxEnabled);
  }
  set(Bit(basic.ecx, 25), kAes);
  set(Bit(basic.ecx, 1), kPclmulqdq);
  if ((basic.eax >> 8 & 0xF) == 0xB) {
    set(Bit(cpu.leaf(cpu.context, 0x20000001u, 0).edx, 1), kFamily11);
  }
  set(Bit(basic.ecx, 30), kRdrand);
  set(Bit(basic.ecx, 29), kF16c);
  set((basic.eax >> 4 & 0xFF) == 0xB1, kModelB1);

  if (maxLeaf >= 7) {
    const CpuidRegisters extended = cpu.leaf(cpu.context, 7, 0);
    set(Bit(basic.ecx, 12) && Bit(extended.ebx, 5) && Bit(extended.ebx, 3) && Bit(extended.ebx, 8),
        kAvx2Group);
    set(Bit(extended.ebx, 19), kAdx);
    set(Bit(extended.ebx, 18), kRdseed);
    set(Bit(extended.ebx, 29), kSha);
  }
  if (maxExtendedLeaf >= 0x80000001u) {
    set(Bit(cpu.leaf(cpu.context, 0x80000001u, 0).ecx, 8), kPrefetchw);
  }
  return mask;
}

bool HasVendor(const CpuidSource& cpu, const char (&vendor)[kVendorIdLength + 1]) {
  const CpuidRegisters id = cpu.leaf(cpu.context, 0, 0);
  const uint32_t words[3] = {id.ebx, id.edx, id.ecx};
  for (int i = 0; i < kVendorIdLength; ++i) {
    if (static_cast<char>(words[i / 4] >> 8 * (i % 4)) != vendor[i]) return false;
  }
  return true;
}

Selection SelectVariant(uint64_t features) {
  const auto has = [features](uint64_t bits) { return (features & bits) == bits; };
  Variant variant = Variant::px;
  if (has(kAvx | kAvxEnabled)) {
    variant = has(kAvx2Group) ? Variant::h9 : Variant::g9;
  } else if (has(kSse41)) {
    variant = Variant::p8;
  } else if (has(kSsse3)) {
    variant = has(kMovbe) ? Variant::s8 : Variant::v8;
  } else if (has(kSse2)) {
    variant = Variant::w7;
  }
  return {variant, features & kKeptFeatures[static_cast<int>(variant)]};
}

OrbStatus QueryCpuFeatures(uint64_t* mask, CpuidRegisters* regs) {
  if (!featuresDetected.load(std::memory_order_acquire)) {
    if (!kProcessor.isPresent(kProcessor.context)) return kStatusNoCpuId;
    DetectedFeatures.Store(DetectFeatures(kProcessor));
    featuresDetected.store(true, std::memory_order_release);
  }
  if (mask == nullptr) return StatusNullPointer;
  *mask = DetectedFeatures.Load();
  if (regs != nullptr) *regs = kProcessor.leaf(kProcessor.context, 1, 0);
  return StatusOk;
}

bool SelectedFeatureTest(uint64_t bits) { return (EnabledFeatures.Load() & bits) == bits; }

OrbStatus SelectForThisProcessor() {
  uint64_t features = 0;
  CpuidRegisters signature;
  const bool identified = QueryCpuFeatures(&features, &signature) == StatusOk;
  // Without CPUID nothing is known; px with its mask is what such a processor gets.
  const Selection selection = identified ? SelectVariant(features) : Selection{Variant::px, kKeptFeatures[0]};
  EnabledFeatures.Store(selection.enabledFeatures);
  SetCpuIndex(static_cast<int>(selection.variant));

  const bool supported = kProcessor.isPresent(kProcessor.context) && HasVendor(kProcessor, kExpectedVendorId);
  return supported ? StatusOk : StatusNoCpuSupport;
}

}  // namespace orbs
