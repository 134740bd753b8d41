// Copies, moves, reversal, interleaving.
#include <algorithm>

#include "tests/toolkit/sweep.h"

namespace orbs::test {
namespace {

class ToolkitOrderTest : public ToolkitTest {
 protected:
  using CopyFunction = OrbStatus (*)(const void*, void*, Orb32s);
  struct Copy {
    CopyFunction function;
    size_t elementBytes;
    bool anyOverlap;
  };
  const Copy copies[9] = {{t.VecCopy_8u, 1, false},  {t.VecCopy_16s, 2, false},  {t.VecCopy_32s, 4, false},
                          {t.VecCopy_64s, 8, false}, {t.VecCopy_128, 16, false}, {t.VecMove_16s, 2, true},
                          {t.VecMove_32s, 4, true},  {t.VecMove_64s, 8, true},   {t.VecMove_128, 16, true}};
};
ORBS_INSTANTIATE_VARIANTS(ToolkitOrderTest);

using Byte = unsigned char;

std::vector<Byte> RandomBytes(size_t count) { return RandomArray<Byte>(count, 21); }

TEST_P(ToolkitOrderTest, CopiesAtEveryLength) {
  for (const Copy& copy : copies) {
    for (int n = 1; n <= 80; ++n) {
      const size_t bytes = static_cast<size_t>(n) * copy.elementBytes;
      const GuardedArray<Byte> source(RandomBytes(bytes), bytes % 3);
      GuardedArray<Byte> result(bytes, bytes % 5);
      ASSERT_EQ(copy.function(source.data(), result.data(), n), StatusOk);
      ASSERT_EQ(result.values(), RandomBytes(bytes)) << copy.elementBytes << " bytes, n = " << n;
      ASSERT_TRUE(result.GuardsIntact());
    }
  }
  const std::vector<Byte> source = RandomBytes(77);
  GuardedArray<Byte> result(77);
  t.VecCopyBytes(source.data(), result.data(), std::numeric_limits<Orb64s>::min());
  EXPECT_TRUE(result.Untouched());
  t.VecCopyBytes(source.data(), result.data(), 77);
  EXPECT_EQ(result.values(), source);
}

// Every copy may move data toward the front; a move also toward the back.
TEST_P(ToolkitOrderTest, OverlappingCopies) {
  for (const Copy& copy : copies) {
    for (const int n : {1, 2, 5, 16, 63, 300}) {
      for (const int distance : {-40, -17, -8, -3, -1, 0, 1, 2, 7, 16, 33}) {
        if (distance > 0 && !copy.anyOverlap) continue;
        const size_t bytes = static_cast<size_t>(n) * copy.elementBytes;
        const auto from = static_cast<ptrdiff_t>(40 * copy.elementBytes);
        const ptrdiff_t to = from + distance * static_cast<ptrdiff_t>(copy.elementBytes);
        std::vector<Byte> block = RandomBytes(80 * copy.elementBytes + bytes);
        std::vector<Byte> expected = block;
        std::copy_n(block.begin() + from, bytes, expected.begin() + to);
        ASSERT_EQ(copy.function(block.data() + from, block.data() + to, n), StatusOk);
        ASSERT_EQ(block, expected) << copy.elementBytes << " bytes, n = " << n << ", distance " << distance;
      }
    }
  }
}

TEST_P(ToolkitOrderTest, Reversal) {
  const auto real = [](size_t i, size_t n, const auto* x, auto...) { return Expected{x[n - 1 - i]}; };
  const auto complex = [](size_t i, size_t n, const auto* x) {
    return ExpectedPair{Expected{x[n - 1 - i].re}, Expected{x[n - 1 - i].im}};
  };
  Sweep(t.VecFlip_32f, real);
  Sweep(t.VecFlip_32f_I, real);
  Sweep(t.VecFlip_64f_I, real);
  Sweep(t.VecFlip_32fc_I, complex);
  Sweep(t.VecFlip_64fc_I, complex);
}

TEST_P(ToolkitOrderTest, InterleavingAndBack) {
  for (Orb32s order = 0; order <= 10; ++order) {
    for (const size_t gap : {0, 1, 2, 5}) {
      const size_t n = size_t{1} << order;
      const GuardedArray<Orb16s> re(RandomArray<Orb16s>(n, 31), gap);
      const GuardedArray<Orb16s> im(RandomArray<Orb16s>(n, 32), gap / 2);
      GuardedArray<Orb16sc> pairs(n, gap);
      t.VecInterleave_16s(pairs.data(), re.data(), im.data(), order);
      for (size_t i = 0; i < n; ++i) {
        ASSERT_EQ(pairs[i].re, re[i]) << order;
        ASSERT_EQ(pairs[i].im, im[i]) << order;
      }
      GuardedArray<Orb16s> reBack(n, gap);
      GuardedArray<Orb16s> imBack(n, gap + 1);
      t.VecDeinterleave_16s(pairs.data(), reBack.data(), imBack.data(), order);
      ASSERT_EQ(reBack.values(), re.values());
      ASSERT_EQ(imBack.values(), im.values());
      ASSERT_TRUE(pairs.GuardsIntact() && reBack.GuardsIntact() && imBack.GuardsIntact()) << order;
    }
  }
}

}  // namespace
}  // namespace orbs::test
