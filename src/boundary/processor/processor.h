// What the processor can do, and which variant that earns.
#ifndef ORBS_BOUNDARY_PROCESSOR_PROCESSOR_H
#define ORBS_BOUNDARY_PROCESSOR_PROCESSOR_H

#include <cstdint>

#include "boundary/processor/cpuid.h"
#include "core/variants.h"
#include "orbs90lgc/types.h"

namespace orbs {

// Bits of the feature mask.
enum Feature : uint64_t {
  kMmx = 1u << 0,
  kSse = 1u << 1,
  kSse2 = 1u << 2,
  kSse3 = 1u << 3,
  kSsse3 = 1u << 4,
  kMovbe = 1u << 5,
  kSse41 = 1u << 6,
  kSse42 = 1u << 7,
  kAvx = 1u << 8,
  kAvxEnabled = 1u << 9,  // the system saves the AVX state
  kAes = 1u << 10,
  kPclmulqdq = 1u << 11,
  kFamily11 = 1u << 12,  // leaf 0x20000001 of a family 11 processor
  kRdrand = 1u << 13,
  kF16c = 1u << 14,
  kAvx2Group = 1u << 15,  // AVX2, FMA, BMI1 and BMI2 together
  kAdx = 1u << 16,
  kRdseed = 1u << 17,
  kPrefetchw = 1u << 18,
  kSha = 1u << 19,
  kModelB1 = 1u << 31,  // bits 4 to 11 of the signature equal 0xB1
};

// Internal statuses; they never reach a caller of the library.
inline constexpr OrbStatus kStatusNoCpuId = 36;
inline constexpr OrbStatus kStatusNoCacheInfo = 37;

inline constexpr int kVendorIdLength = 12;

struct Selection {
  Variant variant;
  uint64_t enabledFeatures;  // the detected mask, limited to what the variant knows
};

// Pure functions of a source of identification. The source must have CPUID.
uint64_t DetectFeatures(const CpuidSource& cpu);
bool HasVendor(const CpuidSource& cpu, const char (&vendor)[kVendorIdLength + 1]);

// The fastest variant for a feature mask.
Selection SelectVariant(uint64_t features);

// The mask of this processor, detected once, and the registers of CPUID leaf 1 if `regs` is not null.
// StatusOk, kStatusNoCpuId (nothing written), StatusNullPointer for a null mask.
OrbStatus QueryCpuFeatures(uint64_t* mask, CpuidRegisters* regs);

// Whether all of `bits` are among the features kept for the selected variant.
bool SelectedFeatureTest(uint64_t bits);

// The whole selection: sets CpuIndex and the enabled features. StatusOk or StatusNoCpuSupport; a variant is
// selected in both cases.
OrbStatus SelectForThisProcessor();

// The vendor that Init expects and whose processors are asked for their caches: 12 characters, set by the
// build.
extern const char kExpectedVendorId[kVendorIdLength + 1];

}  // namespace orbs

#endif
