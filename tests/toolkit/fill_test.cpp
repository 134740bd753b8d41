// Fills: small ones at every length and alignment, and those that stream past the cache.
#include <functional>

#include "boundary/processor/cache.h"
#include "tests/support/guarded_array.h"
#include "tests/toolkit/toolkit_table.h"

// What the library gets for orbs::QueryCacheSize: the linker binds it to this.
static orbs::CacheAnswer cacheAnswer;
static int cacheQuestions;
extern "C" OrbStatus __wrap__ZN4orbs14QueryCacheSizeEPj(uint32_t* size);
extern "C" OrbStatus __wrap__ZN4orbs14QueryCacheSizeEPj(uint32_t* size) {
  ++cacheQuestions;
  *size = cacheAnswer.size;
  return cacheAnswer.status;
}

namespace orbs::test {
namespace {

using Byte = unsigned char;
constexpr Orb32s kValue = 0x1234567F;

// Whether the bytes hold the value of 4 bytes again and again.
bool HoldsPattern(const Byte* p, size_t bytes, Orb32s value) {
  const size_t first = bytes < 4 ? bytes : 4;
  // Where each byte equals the one 4 places before it, the first four tell all.
  return std::memcmp(p, &value, first) == 0 && (bytes < 4 || std::memcmp(p, p + 4, bytes - 4) == 0);
}

class ToolkitFillTest : public ToolkitTest {
 protected:
  struct Fill {
    std::function<OrbStatus(void*, Orb32s)> function;
    size_t elementBytes;
    Orb32s pattern;
  };
  const Fill fills[8] = {
      {t.VecZero_8u, 1, 0},
      {t.VecZero_16s, 2, 0},
      {t.VecZero_32s, 4, 0},
      {t.VecZero_64s, 8, 0},
      {t.VecZero_128, 16, 0},
      {[this](void* dst, Orb32s n) { return t.VecZeroBytes(dst, n), OrbStatus{StatusOk}; }, 1, 0},
      {[this](void* dst, Orb32s n) { return t.VecSet_8u(0xC3, dst, n); }, 1, -0x3C3C3C3D},
      {[this](void* dst, Orb32s n) { return t.VecSet_32s(kValue, dst, n); }, 4, kValue},
  };
};
ORBS_INSTANTIATE_VARIANTS(ToolkitFillTest);

TEST_P(ToolkitFillTest, EveryLengthAndAlignment) {
  for (const Fill& fill : fills) {
    for (int n = 1; n <= 80; ++n) {
      const size_t bytes = static_cast<size_t>(n) * fill.elementBytes;
      for (const size_t gap : {size_t{0}, 1 + bytes % 7}) {  // bytes: no element need be aligned
        GuardedArray<Byte> array(bytes, gap);
        ASSERT_EQ(fill.function(array.data(), n), StatusOk);
        ASSERT_TRUE(HoldsPattern(array.data(), bytes, fill.pattern))
            << fill.elementBytes << " bytes, n = " << n;
        ASSERT_TRUE(array.GuardsIntact()) << fill.elementBytes << " bytes, n = " << n;
      }
    }
  }
}

// Whether the library streams cannot be seen, but whether it asks for the size of the cache can: not below
// the least size, and from there on in the variants that stream.
TEST_P(ToolkitFillTest, LargeFills) {
  constexpr size_t kLeastStreamed = 0x200001;
  constexpr size_t kMargin = 256;
  constexpr Byte kOutside = 0xA5;
  const std::vector<Byte> outside(kMargin, kOutside);
  std::vector<Byte> block(kLeastStreamed + 3 * kMargin);
  Byte* const aligned = block.data() + kMargin - reinterpret_cast<uintptr_t>(block.data()) % 64;
  const bool streams = GetParam() == Variant::g9 || GetParam() == Variant::h9;

  const auto check = [&](const Fill& fill, size_t least, size_t misalignment) {
    const size_t n = (least + fill.elementBytes - 1) / fill.elementBytes;
    const size_t bytes = n * fill.elementBytes;
    Byte* const dst = aligned + misalignment;
    std::memset(block.data(), kOutside, block.size());
    cacheQuestions = 0;
    ASSERT_EQ(fill.function(dst, static_cast<Orb32s>(n)), StatusOk);
    ASSERT_TRUE(HoldsPattern(dst, bytes, fill.pattern)) << bytes << " bytes at " << misalignment;
    ASSERT_EQ(std::memcmp(dst - 64, outside.data(), 64), 0) << bytes << " bytes at " << misalignment;
    ASSERT_EQ(std::memcmp(dst + bytes, outside.data(), 64), 0) << bytes << " bytes at " << misalignment;
    if (bytes < kLeastStreamed || !streams) {
      EXPECT_EQ(cacheQuestions, 0) << bytes;
    } else if (misalignment % 4 == 0) {
      EXPECT_GT(cacheQuestions, 0) << bytes;
    }
  };
  for (const Fill& fill : fills) {
    for (const CacheAnswer answer : {CacheAnswer{StatusOk, kLeastStreamed}, {StatusOk, 0}, {-1, 1 << 20}}) {
      cacheAnswer = answer;
      for (const size_t least : {kLeastStreamed - 1, kLeastStreamed, kLeastStreamed + 1})
        check(fill, least, 4);
    }
    cacheAnswer = {StatusOk, 1 << 20};
    for (const size_t misalignment : {0, 1, 2, 4, 32, 60, 63}) {
      for (const size_t more : {0, 2, 63, 64, 65, 130}) check(fill, kLeastStreamed + more, misalignment);
    }
  }
}

}  // namespace
}  // namespace orbs::test
