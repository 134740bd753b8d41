// The layout of records and their blocks, which must be the same on all targets.
#include "core/record.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <limits>

namespace orbs::test {
namespace {

// A record as the families write them. The numbers hold on 32-bit and 64-bit targets.
struct SampleRecord {
  Orb32s identity;
  Offset<Orb16s> taps;
  Offset<Orb64fc> table;
  Orb32s ownedByLibrary;
};
static_assert(sizeof(SampleRecord) == 16 && alignof(SampleRecord) == 4);
static_assert(offsetof(SampleRecord, taps) == 4 && offsetof(SampleRecord, table) == 8);
static_assert(sizeof(Offset<void>) == 4 && alignof(Offset<Orb64f>) == 4);

TEST(Offset, LeadsFromTheRecordToItsArray) {
  struct {
    SampleRecord record;
    Orb16s taps[4];
  } block = {{1, {sizeof(SampleRecord)}, {0}, 0}, {}};
  EXPECT_EQ(block.record.taps.In(&block), block.taps);
  EXPECT_EQ(block.record.table.In(&block), nullptr);
  const auto& constant = block;
  EXPECT_EQ(block.record.taps.In(&constant), constant.taps);
  EXPECT_EQ(block.record.table.In(&constant), nullptr);
}

TEST(BlockLayout, PartsFollowEachOtherRoundedUp) {
  struct {
    int64_t record;
    int64_t alignment;
    int64_t bytes;
  } const kRecords[] = {{1, 16, 16}, {16, 16, 16}, {17, 16, 32}, {64, 64, 64}, {65, 64, 128}, {20, 1, 20}};
  for (const auto& row : kRecords) EXPECT_EQ(BlockLayout(row.record, row.alignment).Bytes(), row.bytes);

  BlockLayout block(20, 64);
  const auto taps = block.Add<Orb16s>(3, 16);
  EXPECT_EQ(taps.bytes, 64);
  EXPECT_EQ(block.Bytes(), 80);
  const auto delay = block.Add<Orb64fc>(4, 16);
  EXPECT_EQ(delay.bytes, 80);
  EXPECT_EQ(block.Bytes(), 144);
  const auto table = block.Add<Orb32f>(17, 64);
  EXPECT_EQ(table.bytes, 144);
  EXPECT_EQ(block.Bytes(), 144 + 128);
  EXPECT_TRUE(block.Fits());
}

TEST(BlockLayout, AnEmptyArrayIsNone) {
  BlockLayout block(16, 16);
  for (const int64_t count : {int64_t{0}, int64_t{-1}, std::numeric_limits<int64_t>::min()}) {
    EXPECT_EQ(block.Add<Orb64f>(count, 64).bytes, 0) << count;
  }
  EXPECT_EQ(block.Bytes(), 16);
}

TEST(BlockLayout, ABlockBeyondTheLimitNeverFitsAgain) {
  constexpr int64_t kLimit = std::numeric_limits<Orb32s>::max();
  BlockLayout largest(16, 16);
  EXPECT_EQ(largest.Add<Orb8u>(kLimit - 16, 1).bytes, 16);
  EXPECT_EQ(largest.Bytes(), kLimit);
  EXPECT_TRUE(largest.Fits());
  EXPECT_EQ(largest.Add<Orb8u>(1, 1).bytes, kLimit);
  EXPECT_FALSE(largest.Fits());

  // Counts whose byte sums would wrap to something small in 32 or in 64 bits.
  for (const int64_t count : {kLimit, kLimit + 1, int64_t{1} << 28, int64_t{1} << 32, int64_t{1} << 60,
                              (int64_t{1} << 60) + 1, std::numeric_limits<int64_t>::max()}) {
    BlockLayout block(64, 64);
    block.Add<Orb64fc>(count, 64);
    EXPECT_FALSE(block.Fits()) << count;
    for (int i = 0; i < 1000; ++i) {
      EXPECT_EQ(block.Add<Orb64fc>(count, 64).bytes, 0);
      EXPECT_EQ(block.Add<Orb8u>(1, 16).bytes, 0);
      ASSERT_FALSE(block.Fits()) << count;
      ASSERT_GT(block.Bytes(), kLimit);
    }
  }
}

}  // namespace
}  // namespace orbs::test
