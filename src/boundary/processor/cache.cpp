#include "boundary/processor/cache.h"

#include <atomic>

#include "boundary/processor/processor.h"
#include "orbs90lgc/status.h"

namespace orbs {

namespace {
constexpr uint32_t KiB(uint32_t n) { return n * 1024; }
constexpr uint32_t MiB(uint32_t n) { return n * 1024 * 1024; }
}  // namespace

// The data and unified caches of the published descriptor list, from 128 KiB upward.
const CacheDescriptor CacheDescriptorTable[kCacheDescriptorCount + 1] = {
    {0xEC, MiB(24)},  {0xEB, MiB(18)},   {0x4D, MiB(16)},  {0x4C, MiB(12)},
    {0xEA, MiB(12)},  {0x47, MiB(8)},    {0x4B, MiB(8)},   {0xE4, MiB(8)},
    {0x4A, MiB(6)},   {0x4E, MiB(6)},    {0xDE, MiB(6)},   {0x29, MiB(4)},
    {0x46, MiB(4)},   {0x49, MiB(4)},    {0xD8, MiB(4)},   {0xE3, MiB(4)},
    {0x48, MiB(3)},   {0xDD, MiB(3)},    {0x25, MiB(2)},   {0x45, MiB(2)},
    {0x7D, MiB(2)},   {0x85, MiB(2)},    {0xD2, MiB(2)},   {0xD7, MiB(2)},
    {0xE2, MiB(2)},   {0xDC, KiB(1536)}, {0x23, MiB(1)},   {0x24, MiB(1)},
    {0x44, MiB(1)},   {0x78, MiB(1)},    {0x7C, MiB(1)},   {0x84, MiB(1)},
    {0x87, MiB(1)},   {0xD1, MiB(1)},    {0xD6, MiB(1)},   {0x22, KiB(512)},
    {0x3E, KiB(512)}, {0x43, KiB(512)},  {0x7B, KiB(512)}, {0x7F, KiB(512)},
    {0x80, KiB(512)}, {0x83, KiB(512)},  {0x86, KiB(512)}, {0xD0, KiB(512)},
    {0x3D, KiB(384)}, {0x21, KiB(256)},  {0x3C, KiB(256)}, {0x42, KiB(256)},
    {0x7A, KiB(256)}, {0x82, KiB(256)},  {0x3A, KiB(192)}, {0x79, KiB(128)},
    {0x39, KiB(128)}, {0x3B, KiB(128)},  {0x41, KiB(128)}, {0, 0},
};

namespace {

constexpr CacheAnswer kNoAnswer = {kStatusNoCacheInfo, 0};

// Leaf 2: three or four registers full of one-byte descriptors.
CacheAnswer FromDescriptors(const CpuidSource& cpu) {
  const CpuidRegisters r = cpu.leaf(cpu.context, 2, 0);
  if ((r.eax & 0xFF) != 1) return kNoAnswer;
  // The low byte of EAX is a count, not a descriptor, and a register with bit 31 set holds none.
  const uint32_t registers[4] = {r.eax & ~0xFFu, r.ebx, r.ecx, r.edx};
  for (const CacheDescriptor* row = CacheDescriptorTable; row->size != 0; ++row) {
    for (const uint32_t bytes : registers) {
      if ((bytes >> 31) != 0) continue;
      for (int shift = 0; shift < 32; shift += 8) {
        if ((bytes >> shift & 0xFF) == row->descriptor) return {StatusOk, row->size};
      }
    }
  }
  return kNoAnswer;
}

// Leaf 4: one cache a sub-leaf, with its geometry.
CacheAnswer FromParameters(const CpuidSource& cpu) {
  enum CacheType { kNone = 0, kInstruction = 2 };
  uint32_t largest = 0;
  for (uint32_t subLeaf = 0; subLeaf < 32; ++subLeaf) {
    const CpuidRegisters r = cpu.leaf(cpu.context, 4, subLeaf);
    const uint32_t type = r.eax & 0x1F;
    if (type == kNone) break;
    if (type == kInstruction) continue;
    const uint32_t lineSize = (r.ebx & 0xFFF) + 1;
    const uint32_t sets = r.ecx + 1;
    const uint32_t partitions = (r.ebx >> 12 & 0x3FF) + 1;
    const uint32_t ways = (r.ebx >> 22) + 1;
    const uint32_t size = lineSize * sets * partitions * ways;
    if (size > largest) largest = size;
  }
  return largest != 0 ? CacheAnswer{StatusOk, largest} : kNoAnswer;
}

constexpr OrbStatus kNotAskedYet = -1;
std::atomic<OrbStatus> cachedStatus{kNotAskedYet};
std::atomic<uint32_t> cachedSize{0};

}  // namespace

CacheAnswer FindCacheSize(const CpuidSource& cpu) {
  constexpr CacheAnswer kUnidentified = {kStatusNoCpuId, 0};
  if (!cpu.isPresent(cpu.context)) return kUnidentified;
  const uint32_t maxLeaf = cpu.leaf(cpu.context, 0, 0).eax;
  if (maxLeaf < 2 || !HasVendor(cpu, kExpectedVendorId)) return kUnidentified;
  return maxLeaf < 4 ? FromDescriptors(cpu) : FromParameters(cpu);
}

OrbStatus QueryCacheSize(uint32_t* size) {
  if (size == nullptr) return StatusNullPointer;
  OrbStatus status = cachedStatus.load(std::memory_order_acquire);
  if (status == kNotAskedYet) {
    // Threads that race here store the same values.
    const CacheAnswer answer = FindCacheSize(kProcessor);
    cachedSize.store(answer.size, std::memory_order_relaxed);
    cachedStatus.store(answer.status, std::memory_order_release);
    status = answer.status;
  }
  *size = cachedSize.load(std::memory_order_relaxed);
  return status;
}

}  // namespace orbs
