// The size of the largest data cache, on made-up processors.
#include "boundary/processor/cache.h"

#include <gtest/gtest.h>

#include <set>

#include "boundary/processor/processor.h"
#include "orbs90lgc/status.h"
#include "tests/support/made_up_processor.h"

namespace orbs::test {
namespace {

constexpr uint32_t kNoDescriptors = 1u << 31;  // a register of leaf 2 with this bit set holds none

void ExpectAnswer(const MadeUpProcessor& cpu, OrbStatus status, uint32_t size) {
  const CacheAnswer answer = FindCacheSize(cpu.Source());
  EXPECT_EQ(answer.status, status);
  EXPECT_EQ(answer.size, size);
}

MadeUpProcessor Processor(uint32_t maxLeaf) {
  MadeUpProcessor cpu;
  cpu.Identify(maxLeaf, kExpectedVendorId);
  return cpu;
}

TEST(CacheDescriptors, TheTableIsSortedAndHasEachDescriptorOnce) {
  std::set<int> descriptors;
  for (int i = 0; i < 55; ++i) {
    const CacheDescriptor& row = CacheDescriptorTable[i];
    EXPECT_TRUE(descriptors.insert(row.descriptor).second) << int{row.descriptor};
    EXPECT_NE(row.descriptor, 0);
    EXPECT_NE(row.descriptor, 0x40);  // "no cache"
    EXPECT_NE(row.descriptor, 0xFF);  // "see leaf 4"
    EXPECT_GE(row.size, 128u * 1024);
    EXPECT_LE(row.size, CacheDescriptorTable[i == 0 ? 0 : i - 1].size) << i;
  }
  EXPECT_EQ(CacheDescriptorTable[55].descriptor, 0);
  EXPECT_EQ(CacheDescriptorTable[55].size, 0u);
}

TEST(CacheDescriptors, KnownRows) {
  const CacheDescriptor kFirst[] = {{0xEC, 25165824}, {0xEB, 18874368}, {0x4D, 16777216}};
  const CacheDescriptor kLast[] = {{0x79, 131072}, {0x39, 131072}, {0x3B, 131072}, {0x41, 131072}};
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(CacheDescriptorTable[i].descriptor, kFirst[i].descriptor);
    EXPECT_EQ(CacheDescriptorTable[i].size, kFirst[i].size);
  }
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(CacheDescriptorTable[51 + i].descriptor, kLast[i].descriptor);
    EXPECT_EQ(CacheDescriptorTable[51 + i].size, kLast[i].size);
  }
  // Rows between, by what a processor with that one descriptor reports.
  struct {
    uint32_t descriptor;
    uint32_t kib;
  } const kRows[] = {{0x3A, 192},  {0x3D, 384},  {0x42, 256},  {0x43, 512},  {0x45, 2048},
                     {0x48, 3072}, {0x4E, 6144}, {0x7D, 2048}, {0x80, 512},  {0x87, 1024},
                     {0xD0, 512},  {0xDC, 1536}, {0xE4, 8192}, {0xEA, 12288}};
  for (const auto& row : kRows) {
    MadeUpProcessor cpu = Processor(2);
    cpu.Leaf(2) = {1, row.descriptor, 0, 0};
    ExpectAnswer(cpu, StatusOk, row.kib * 1024);
  }
}

TEST(CacheSize, DescriptorsOfLeaf2) {
  struct {
    CpuidRegisters registers;
    uint32_t kib;  // 0: no answer
  } const kCases[] = {
      {{0x00000001, 0, 0, 0x00000041}, 128},
      {{0x41000001, 0, 0, 0}, 128},  // each byte of each register counts
      {{0x00410001, 0, 0, 0}, 128},
      {{0x00004101, 0, 0, 0}, 128},
      {{0x00000001, 0x41000000, 0, 0}, 128},
      {{0x00000001, 0, 0x00410000, 0}, 128},
      {{0x00000001, 0, 0, 0x00004100}, 128},
      {{0x00000001, 0x00000041, 0x00000045, 0x00000043}, 2048},  // the first row of the table, the largest
      {{0x45000001, 0x00000041, 0, 0x00004D00}, 16384},
      {{0x665B5001, 0, 0, 0x007A7040}, 256},  // beside TLBs, instruction caches and a small data cache
      {{0x00000001, kNoDescriptors | 0x4D, 0, 0x41}, 128},
      {{kNoDescriptors | 0x4D01, 0x41, 0, 0}, 128},
      {{kNoDescriptors | 0x4101, 0, 0, 0}, 0},
      {{0x00000001, 0, 0, kNoDescriptors | 0x41}, 0},
      {{0x00000001, 0, 0, 0}, 0},
      {{0x00000001, 0x00000040, 0x0000002C, 0x00000030}, 0},  // no row
      {{0x00004100, 0x41, 0x41, 0x41}, 0},                    // the low byte of EAX must be 1
      {{0x00004102, 0x41, 0x41, 0x41}, 0},
      {{0x00000041, 0, 0, 0}, 0},
  };
  for (const uint32_t level : {2u, 3u}) {
    for (const auto& row : kCases) {
      SCOPED_TRACE(testing::Message() << std::hex << row.registers.eax << ' ' << row.registers.ebx << ' '
                                      << row.registers.ecx << ' ' << row.registers.edx);
      MadeUpProcessor cpu = Processor(level);
      cpu.Leaf(2) = row.registers;
      ExpectAnswer(cpu, row.kib != 0 ? StatusOk : kStatusNoCacheInfo, row.kib * 1024);
      EXPECT_FALSE(cpu.HasRead(4));
    }
  }
}

enum CacheType : uint32_t { kNone, kData, kInstruction, kUnified };

CpuidRegisters CacheOf(CacheType type, uint32_t lineSize, uint32_t partitions, uint32_t ways, uint32_t sets) {
  return {0xFC004120u | type, (ways - 1) << 22 | (partitions - 1) << 12 | (lineSize - 1), sets - 1, 0};
}

TEST(CacheSize, TheSizeIsTheProductOfFourFields) {
  struct {
    uint32_t lineSize, partitions, ways, sets;
  } const kGeometries[] = {{64, 1, 8, 64},     {64, 2, 16, 4096}, {4096, 1, 1, 1},
                           {1, 1024, 1, 1},    {1, 1, 1024, 1},   {1, 1, 1, 1u << 31},
                           {4095, 1023, 1, 1}, {3, 5, 7, 11},     {4096, 1, 1023, 3}};
  for (const auto& row : kGeometries) {
    MadeUpProcessor cpu = Processor(4);
    cpu.Leaf(4, 0) = CacheOf(kUnified, row.lineSize, row.partitions, row.ways, row.sets);
    ExpectAnswer(cpu, StatusOk, row.lineSize * row.partitions * row.ways * row.sets);
  }
}

TEST(CacheSize, TheWalkOfLeaf4KeepsTheLargestDataCache) {
  MadeUpProcessor cpu = Processor(4);
  cpu.Leaf(2) = {1, 0, 0, 0x4D};  // not looked at from level 4 on
  ExpectAnswer(cpu, kStatusNoCacheInfo, 0);
  cpu.Leaf(4, 0) = CacheOf(kInstruction, 64, 1, 16, 8192);
  ExpectAnswer(cpu, kStatusNoCacheInfo, 0);
  cpu.Leaf(4, 1) = CacheOf(kData, 64, 1, 8, 64);
  ExpectAnswer(cpu, StatusOk, 32 * 1024);
  cpu.Leaf(4, 2) = CacheOf(kUnified, 64, 2, 16, 4096);
  ExpectAnswer(cpu, StatusOk, 8 * 1024 * 1024);
  cpu.Leaf(4, 3) = CacheOf(kUnified, 64, 1, 8, 512);  // smaller
  ExpectAnswer(cpu, StatusOk, 8 * 1024 * 1024);
  cpu.Leaf(4, 5) = CacheOf(kUnified, 64, 1, 1024, 1024);  // behind the end
  ExpectAnswer(cpu, StatusOk, 8 * 1024 * 1024);
  cpu.Leaf(4, 4) = CacheOf(kInstruction, 64, 1, 1, 1);
  ExpectAnswer(cpu, StatusOk, 64 * 1024 * 1024);
}

TEST(CacheSize, TheWalkOfLeaf4EndsAfter32Caches) {
  MadeUpProcessor cpu = Processor(0xD);
  for (uint32_t i = 0; i < 40; ++i) cpu.Leaf(4, i) = CacheOf(kData, 64, 1, 1, i + 1);
  ExpectAnswer(cpu, StatusOk, 64 * 32);
}

TEST(CacheSize, ProcessorsThatAreNotAsked) {
  MadeUpProcessor good = Processor(4);
  good.Leaf(2) = {1, 0, 0, 0x4D};
  good.Leaf(4, 0) = CacheOf(kData, 64, 1, 8, 64);

  for (const uint32_t level : {0u, 1u}) {
    MadeUpProcessor cpu = good;
    cpu.Identify(level, kExpectedVendorId);
    ExpectAnswer(cpu, kStatusNoCpuId, 0);
  }
  MadeUpProcessor foreign = good;
  foreign.Identify(4, "SomeoneElses");
  ExpectAnswer(foreign, kStatusNoCpuId, 0);

  MadeUpProcessor old = good;
  old.present = false;
  ExpectAnswer(old, kStatusNoCpuId, 0);
  EXPECT_FALSE(old.HasRead(0));
}

TEST(CacheSize, TheQueryAnswersForThisProcessor) {
  EXPECT_EQ(QueryCacheSize(nullptr), StatusNullPointer);
  const CacheAnswer expected = FindCacheSize(kProcessor);
  for (int i = 0; i < 2; ++i) {
    uint32_t size = 12345;
    EXPECT_EQ(QueryCacheSize(&size), expected.status);
    EXPECT_EQ(size, expected.size);
  }
  EXPECT_EQ(QueryCacheSize(nullptr), StatusNullPointer);
}

}  // namespace
}  // namespace orbs::test
