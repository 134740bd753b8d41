// IIR filters with taps and delay line of the caller: the integer forms bit for bit, the block forms against
// the formula in extended precision.
#include <algorithm>
#include <cmath>

#include "tests/support/export_test.h"
#include "tests/support/failing_allocator.h"
#include "tests/support/guarded_array.h"
#include "tests/support/random_data.h"
#include "tests/support/samples.h"

namespace orbs::test {
namespace {

constexpr auto* One = legacy90orbsIIROne_Direct_16s;
constexpr auto* OneInPlace = legacy90orbsIIROne_Direct_16s_I;
constexpr auto* OneBiQuad = legacy90orbsIIROne_BiQuadDirect_16s;
constexpr auto* OneBiQuadInPlace = legacy90orbsIIROne_BiQuadDirect_16s_I;
constexpr auto* Block = legacy90orbsIIR_Direct_16s;
constexpr auto* BlockInPlace = legacy90orbsIIR_Direct_16s_I;
constexpr auto* BlockBiQuad = legacy90orbsIIR_BiQuadDirect_16s;
constexpr auto* BlockBiQuadInPlace = legacy90orbsIIR_BiQuadDirect_16s_I;

class IirDirectTest : public ExportTest {};
ORBS_INSTANTIATE_VARIANTS(IirDirectTest);

// The low 32 bits of a sum.
int64_t Low32(int64_t x) { return static_cast<int32_t>(static_cast<uint32_t>(x)); }

// One section: b[0] to b[n], s, a[1] to a[n]. Rounds by counting halves, in sums that wrap.
int64_t ExactStep(int64_t x, const Orb16s* taps, size_t n, Orb32s* d) {
  const int s = taps[n + 1] & 31;
  int64_t y = Low32(taps[0] * x + d[0]);
  if (s > 0) y = Low32(y + (int64_t{1} << (s - 1)) - 1 + ((y >> s) & 1)) >> s;
  for (size_t i = 0; i < n; ++i) {
    d[i] = static_cast<Orb32s>(
        Low32(Low32(taps[i + 1] * x) - Low32(taps[n + 2 + i] * y) + (i + 1 < n ? d[i + 1] : 0)));
  }
  return y;
}
Orb16s Saturated(int64_t y) { return static_cast<Orb16s>(LimitedTo16Bits(static_cast<long double>(y))); }

// Taps over their whole range make sums wrap; every shift count, those of 32 and more by their low five bits.
TEST_P(IirDirectTest, SingleSamplesAreExactIntegers) {
  for (int n = 1; n <= 12; ++n) {
    const auto count = static_cast<size_t>(n);
    for (Orb16s s : {0, 1, 7, 14, 15, 30, 31, 32, 47, 32767}) {
      auto taps = RandomArray<Orb16s>(2 * count + 2, static_cast<uint32_t>(n));
      taps[count + 1] = s;
      std::vector<Orb32s> delay = RandomArray<Orb32s>(count, 2);
      GuardedArray<Orb32s> guarded(delay);
      // Biquads of the same numbers: n sections, each with its shift.
      auto sections = RandomArray<Orb16s>(6 * count, 3);
      for (size_t i = 3; i < sections.size(); i += 6)
        sections[i] = static_cast<Orb16s>((s + static_cast<int>(i)) & 32767);
      std::vector<Orb32s> pairs = RandomArray<Orb32s>(2 * count, 4);
      GuardedArray<Orb32s> guardedPairs(pairs);
      for (Orb16s x : RandomArray<Orb16s>(30, 5)) {
        Orb16s y = x;
        ASSERT_EQ(x % 2 == 0 ? One(x, &y, taps.data(), n, guarded.data())
                             : OneInPlace(&y, taps.data(), n, guarded.data()),
                  StatusOk);
        ASSERT_EQ(y, Saturated(ExactStep(x, taps.data(), count, delay.data()))) << n << ", s " << s;
        ASSERT_EQ(guarded.values(), delay);
        y = x;
        ASSERT_EQ(x % 2 == 0 ? OneBiQuad(x, &y, sections.data(), n, guardedPairs.data())
                             : OneBiQuadInPlace(&y, sections.data(), n, guardedPairs.data()),
                  StatusOk);
        int64_t exact = x;
        for (size_t i = 0; i < count; ++i) exact = ExactStep(exact, &sections[6 * i], 2, &pairs[2 * i]);
        ASSERT_EQ(y, Saturated(exact)) << n << " sections, s " << s;
        ASSERT_EQ(guardedPairs.values(), pairs);
      }
    }
  }
}

TEST_P(IirDirectTest, TiesToEven) {
  const Orb16s taps[] = {1, 0, 1, 0};
  const int expected[][2] = {{3, 2}, {1, 0}, {5, 2}, {-1, 0}, {-3, -2}, {7, 4}};
  for (const auto& row : expected) {
    Orb32s delay = 0;
    Orb16s y = 99;
    ASSERT_EQ(One(static_cast<Orb16s>(row[0]), &y, taps, 1, &delay), StatusOk);
    EXPECT_EQ(y, row[1]) << row[0];
  }
}

// y goes on as 32 bits: an integrator saturates its result alone, and a section does not limit the next one.
TEST_P(IirDirectTest, SaturatesTheResultAlone) {
  const Orb16s sum[] = {1, 0, 0, -1};
  Orb32s delay = 0;
  for (int i = 1; i <= 10; ++i) {
    Orb16s y = 10000;
    ASSERT_EQ(OneInPlace(&y, sum, 1, &delay), StatusOk);
    EXPECT_EQ(y, std::min(32767, 10000 * i));
    EXPECT_EQ(delay, 10000 * i);
  }
  const Orb16s upAndDown[] = {100, 0, 0, 0, 0, 0, 1, 0, 0, 7, 0, 0};
  Orb32s delays[4] = {};
  Orb16s y = 2000;
  ASSERT_EQ(OneBiQuadInPlace(&y, upAndDown, 2, delays), StatusOk);
  EXPECT_EQ(y, 1562);  // 200000 / 128 = 1562.5
}

// A stable filter with s fractional bits. Blocks take s modulo 128.
std::vector<Orb16s> StableSection(int n, int s, uint32_t seed) {
  std::mt19937 engine(seed);
  std::uniform_real_distribution<double> uniform(-1, 1);
  std::vector<Orb16s> taps;
  const auto put = [&](double value) {
    taps.push_back(static_cast<Orb16s>(std::lrint(std::ldexp(value, s))));
  };
  for (int k = 0; k <= n; ++k) put(0.7 * uniform(engine));
  taps.push_back(static_cast<Orb16s>(seed % 2 == 0 ? s : s + 128));
  for (int k = 0; k < n; ++k) put(0.8 * uniform(engine) / n);
  return taps;
}

// The block forms filter in binary32. Taps here have few bits: the sums are those of the formula.
void ExactBlock(std::vector<long double>* x, const Orb16s* taps, size_t n, std::vector<long double>* d) {
  const long double unit = std::ldexp(1.0L, -(taps[n + 1] & 127));
  for (long double& sample : *x) {
    const long double y = taps[0] * unit * sample + (*d)[0];
    for (size_t i = 0; i < n; ++i) {
      (*d)[i] = taps[i + 1] * unit * sample - taps[n + 2 + i] * unit * y + (i + 1 < n ? (*d)[i + 1] : 0);
    }
    sample = y;
  }
}

// Half a unit, and what binary32 adds to it.
constexpr long double kRoundingError = 0.6L;

TEST_P(IirDirectTest, BlocksOfAnyOrderAndLength) {
  for (bool biQuads : {false, true}) {
    for (int n : {1, 2, 3, 4, 5, 8, 11, 20}) {
      const int s = 10;
      std::vector<Orb16s> taps;
      if (biQuads) {
        for (int i = 0; i < n; ++i) {
          const auto section = StableSection(2, s + i % 4, static_cast<uint32_t>(10 * n + i));
          taps.insert(taps.end(), section.begin(), section.end());
        }
      } else {
        taps = StableSection(n, s, static_cast<uint32_t>(n));
      }
      const size_t order = biQuads ? 2 : static_cast<size_t>(n);
      std::vector<std::vector<long double>> exact(biQuads ? static_cast<size_t>(n) : 1,
                                                  std::vector<long double>(order));
      GuardedArray<Orb32s> delay(exact.size() * order);
      std::fill(delay.data(), delay.data() + delay.size(), 0);
      for (int length : {1, 4 * n, 4 * n + 1, 4 * n + 6, 3, 1500}) {
        const GuardedArray<Orb16s> x(RandomArray<Orb16s>(static_cast<size_t>(length), 20));
        GuardedArray<Orb16s> y(x.size());
        std::vector<long double> expected(x.data(), x.data() + x.size());
        for (size_t i = 0; i < exact.size(); ++i)
          ExactBlock(&expected, &taps[i * (2 * order + 2)], order, &exact[i]);
        if (length % 2 == 0) {
          auto* const block = biQuads ? BlockBiQuad : Block;
          ASSERT_EQ(block(x.data(), y.data(), length, taps.data(), n, delay.data()), StatusOk);
        } else {
          std::copy(x.data(), x.data() + x.size(), y.data());
          auto* const inPlace = biQuads ? BlockBiQuadInPlace : BlockInPlace;
          ASSERT_EQ(inPlace(y.data(), length, taps.data(), n, delay.data()), StatusOk);
        }
        ASSERT_TRUE(y.GuardsIntact() && delay.GuardsIntact());
        for (size_t i = 0; i < y.size(); ++i) {
          ASSERT_LE(std::abs(y[i] - LimitedTo16Bits(expected[i])), kRoundingError)
              << n << (biQuads ? " biquads" : " order") << ", length " << length << ", sample " << i;
        }
        // The delay line is rounded at the end of each call, to a unit of 2^-s, and holds 24 bits.
        for (size_t i = 0; i < delay.size(); ++i) {
          long double& element = exact[i / order][i % order];
          const int shift = taps[i / order * (2 * order + 2) + order + 1] & 127;
          ASSERT_LE(std::abs(delay[i] - std::ldexp(element, shift)),
                    kRoundingError + std::ldexp(0.02L, shift))
              << i;
          element = std::ldexp(static_cast<long double>(delay[i]), -shift);
        }
      }
    }
  }
}

// Whole numbers within 24 bits: both arithmetics give the same, and take turns on one delay line.
TEST_P(IirDirectTest, BothArithmeticsAgreeOnWholeNumbers) {
  const Orb16s taps[] = {3, -2, 1, 0, 1, 0};
  const Orb16s biQuads[] = {1, 2, 0, 0, 0, -1, 0, 1, -1, 0, 1, 0};  // b[0] of a section may be 0 here
  std::mt19937 engine(7);
  std::vector<Orb16s> x(200);
  for (Orb16s& sample : x) sample = static_cast<Orb16s>(engine() % 41) - 20;
  Orb32s delay[2] = {};
  Orb32s oneDelay[2] = {};
  Orb32s pairs[4] = {};
  Orb32s onePairs[4] = {};
  for (size_t first = 0; first < x.size(); first += 50) {
    Orb16s y[50];
    Orb16s z[50];
    ASSERT_EQ(Block(&x[first], y, 50, taps, 2, first == 50 ? oneDelay : delay), StatusOk);
    ASSERT_EQ(BlockBiQuad(&x[first], z, 50, biQuads, 2, first == 50 ? onePairs : pairs), StatusOk);
    for (size_t i = 0; i < 50; ++i) {
      Orb16s one = 0;
      ASSERT_EQ(One(x[first + i], &one, taps, 2, first == 50 ? delay : oneDelay), StatusOk);
      ASSERT_EQ(one, y[i]) << first + i;
      ASSERT_EQ(OneBiQuad(x[first + i], &one, biQuads, 2, first == 50 ? pairs : onePairs), StatusOk);
      ASSERT_EQ(one, z[i]) << first + i;
    }
    ASSERT_EQ(std::vector<Orb32s>(delay, delay + 2), std::vector<Orb32s>(oneDelay, oneDelay + 2));
    ASSERT_EQ(std::vector<Orb32s>(pairs, pairs + 4), std::vector<Orb32s>(onePairs, onePairs + 4));
  }
}

// Silence stays silence however large the taps are, and the first sample saturates.
TEST_P(IirDirectTest, LargeTaps) {
  for (Orb16s a : {-300, -32768, 32767}) {
    const Orb16s taps[] = {1, 0, 0, 0, 0, a, 0, 0};
    const Orb16s first[] = {1, 0, 0, a};
    const Orb16s biQuad[] = {1, 0, 0, 0, a, 0};
    for (int form = 0; form < 3; ++form) {
      std::vector<Orb16s> x(100);
      Orb32s delay[3] = {};
      const auto run = [&] {
        const int count = static_cast<int>(x.size());
        return form == 0   ? BlockInPlace(x.data(), count, first, 1, delay)
               : form == 1 ? BlockInPlace(x.data(), count, taps, 3, delay)
                           : BlockBiQuadInPlace(x.data(), count, biQuad, 1, delay);
      };
      ASSERT_EQ(run(), StatusOk);
      ASSERT_EQ(x, std::vector<Orb16s>(100)) << a << ", form " << form;
      ASSERT_EQ(delay[0], 0);
      x[98] = 200;
      ASSERT_EQ(run(), StatusOk);
      ASSERT_EQ(x[97], 0);
      ASSERT_EQ(x[98], 200);
      ASSERT_EQ(x[99], a < 0 ? 32767 : -32768);
    }
  }
}

// Ties go away from zero for order N, to even for biquads; what is beyond 32 bits is limited.
TEST_P(IirDirectTest, DelayLinesAreRoundedBack) {
  // A sample of 0 gives y = d[0] 2^-s and leaves -a[1] y 2^-s, which goes back times 2^s.
  struct Row {
    Orb16s a1, s;
    Orb32s d0, order, biQuad;
  };
  const Row rows[] = {{-1, 1, 1, 1, 0},
                      {-1, 1, 3, 2, 2},
                      {-1, 1, 5, 3, 2},
                      {1, 1, 1, -1, 0},
                      {1, 1, 3, -2, -2},
                      {-3, 2, 2, 2, 2},
                      {-3, 2, 3, 2, 2},
                      {-3, 2, 1, 1, 1},
                      {-32768, 0, 70000, 2147483647, 2147483647},
                      {32767, 0, 70000, kLeast, kLeast},
                      {-32768, 0, -65536, kLeast, kLeast}};
  for (const Row& row : rows) {
    SCOPED_TRACE(testing::Message() << "a[1] " << row.a1 << ", s " << row.s << ", d[0] " << row.d0);
    const Orb16s taps[] = {0, 0, row.s, row.a1};
    const Orb16s section[] = {0, 0, 0, row.s, row.a1, 0};
    const Orb16s zero = 0;
    Orb16s y = 0;
    Orb32s delay = row.d0;
    ASSERT_EQ(Block(&zero, &y, 1, taps, 1, &delay), StatusOk);
    EXPECT_EQ(delay, row.order);
    Orb32s pair[2] = {row.d0, 0};
    ASSERT_EQ(BlockBiQuad(&zero, &y, 1, section, 1, pair), StatusOk);
    EXPECT_EQ(pair[0], row.biQuad);
  }
}

TEST_P(IirDirectTest, StatusesAndTheirOrder) {
  Orb16s taps[] = {1, 0, 0, -1, 0, 0, 1, 0, 0, -1, 0, 0};  // s of a biquad is -1
  Orb16s order[] = {1, 0, -1, 0};
  Orb16s x[8] = {1};
  Orb16s y[8] = {77};
  Orb32s delay[4] = {5, 6, 7, 8};
  EXPECT_EQ(OneInPlace(nullptr, taps, 0, delay), StatusNullPointer);
  EXPECT_EQ(OneBiQuadInPlace(nullptr, taps, 0, delay), StatusNullPointer);
  EXPECT_EQ(One(1, nullptr, nullptr, 0, nullptr), StatusIirOrder);
  EXPECT_EQ(OneBiQuad(1, nullptr, nullptr, 0, nullptr), StatusIirOrder);
  EXPECT_EQ(Block(nullptr, nullptr, 0, nullptr, 0, nullptr), StatusIirOrder);
  EXPECT_EQ(BlockBiQuad(nullptr, nullptr, 0, nullptr, -1, nullptr), StatusIirOrder);
  EXPECT_EQ(BlockInPlace(nullptr, 0, taps, 0, delay), StatusIirOrder);
  EXPECT_EQ(BlockBiQuadInPlace(nullptr, 0, taps, 1, delay), StatusNullPointer);
  for (int null = 0; null < 4; ++null) {
    const auto* src = null == 0 ? nullptr : x;
    auto* dst = null == 1 ? nullptr : y;
    const auto* t = null == 2 ? nullptr : taps;
    auto* d = null == 3 ? nullptr : delay;
    EXPECT_EQ(Block(src, dst, 0, t, 1, d), StatusNullPointer) << null;
    EXPECT_EQ(BlockBiQuad(src, dst, 0, t, 1, d), StatusNullPointer) << null;
    if (null == 0) continue;
    EXPECT_EQ(One(1, dst, t, 1, d), StatusNullPointer) << null;
    EXPECT_EQ(OneBiQuad(1, dst, t, 1, d), StatusNullPointer) << null;
  }
  EXPECT_EQ(One(1, y, order, 1, delay), StatusTapValue);
  EXPECT_EQ(Block(x, y, 0, order, 1, delay), StatusTapValue);
  EXPECT_EQ(BlockBiQuad(x, y, 0, taps, 1, delay), StatusSize);
  EXPECT_EQ(OneBiQuad(1, y, taps, 1, delay), StatusTapValue);
  EXPECT_EQ(BlockBiQuad(x, y, 8, taps, 1, delay), StatusTapValue);
  order[2] = 0;
  EXPECT_EQ(Block(x, y, 0, order, 1, delay), StatusSize);
  // A bad second section: a block touches nothing, a single sample has been through the first one.
  taps[3] = 0;
  EXPECT_EQ(BlockBiQuad(x, y, 8, taps, 2, delay), StatusTapValue);
  EXPECT_EQ(std::vector<Orb32s>(delay, delay + 4), (std::vector<Orb32s>{5, 6, 7, 8}));
  EXPECT_EQ(OneBiQuad(1, y, taps, 2, delay), StatusTapValue);
  EXPECT_EQ(std::vector<Orb32s>(delay, delay + 4), (std::vector<Orb32s>{6, 0, 7, 8}));
  EXPECT_EQ(y[0], 77);
}

TEST_P(IirDirectTest, BlocksAllocateOnceAndReleaseIt) {
  const Orb16s order[] = {1, 0, 0, -1};
  Orb16s biQuad[] = {1, 0, 0, 0, 0, 0, 1, 0, 0, -1, 0, 0};
  const Orb16s x = 3;
  Orb16s y = 77;
  Orb32s delay[4] = {};
  {
    FailingAllocator heap(orbsSetAllocator, 0);
    EXPECT_EQ(Block(&x, &y, 1, order, 1, delay), StatusMemAlloc);
  }
  {
    FailingAllocator heap(orbsSetAllocator, 0);
    EXPECT_EQ(BlockBiQuad(&x, &y, 1, biQuad, 2, delay), StatusMemAlloc);  // before s is looked at
  }
  EXPECT_EQ(y, 77);
  FailingAllocator heap(orbsSetAllocator, FailingAllocator::kNever);
  EXPECT_EQ(BlockBiQuad(&x, &y, 1, biQuad, 2, delay), StatusTapValue);
  EXPECT_EQ(Block(&x, &y, 1, order, 1, delay), StatusOk);
  EXPECT_EQ(y, 3);
  EXPECT_EQ(heap.Count(), 2);
  EXPECT_EQ(heap.Alive(), 0);
}

}  // namespace
}  // namespace orbs::test
