// The steps of a Viterbi decoder, each against its definition; the whole decoder is in
// viterbi_decoder_test.cpp.
#include <algorithm>
#include <cstdlib>
#include <limits>
#include <numeric>
#include <vector>

#include "tests/support/bad_calls.h"
#include "tests/support/export_test.h"
#include "tests/support/guarded_array.h"
#include "tests/support/lengths.h"
#include "tests/support/random_data.h"
#include "tests/support/rows.h"

namespace orbs::test {
namespace {

class ViterbiTest : public ExportTest {};
ORBS_INSTANTIATE_VARIANTS(ViterbiTest);

// ---- Nearest points ----

struct Candidate {
  int column, row;  // where the label is looked up, in steps from the base point
  int x, y;         // the candidate itself
};
// By code.
constexpr Candidate kCandidates[12] = {{0, 0, 0, 0}, {1, 0, 1, 0},  {1, 1, 1, 1},  {0, 1, 0, 1},
                                       {0, 2, 0, 2}, {1, 2, 1, 2},  {1, 3, 2, 1},  {0, 3, 1, -1},
                                       {0, 2, 2, 0}, {1, 2, -1, 0}, {1, 3, 0, -1}, {0, 3, -1, 1}};

int LatticeBelow(int v) { return v - (((v - 128) % 256 + 256) % 256); }

void CheckNearestPoints(Orb16sc z, const std::vector<Orb8u>& map, Orb32s states) {
  const int baseX = LatticeBelow(z.re);
  const int baseY = LatticeBelow(z.im);
  const auto distance = [&](int code) {
    const int dx = z.re - (baseX + 256 * kCandidates[code].x);
    const int dy = z.im - (baseY + 256 * kCandidates[code].y);
    return static_cast<Orb32u>((dx * dx >> 4) + (dy * dy >> 4));
  };
  const GuardedArray<Orb8u> labels(map);
  GuardedArray<Orb32u> variants(states == 16 ? 4 : 8);
  std::vector<Orb32u> expected = variants.values();
  for (int code = 0; code < (states == 16 ? 4 : 8); ++code) {
    const int chosen = code < 4 || distance(code) < distance(code + 4) ? code : code + 4;
    const int column = (baseX - 128) / 256 + 2 + kCandidates[code].column + 1024;
    const int row = (baseY - 128) / 256 + 2 + kCandidates[code].row + 1024;
    const size_t label = map[static_cast<size_t>(row % 4 * 4 + column % 4)] & (states == 16 ? 3 : 7);
    expected[label] = distance(chosen) | static_cast<Orb32u>(chosen) << 16;
  }
  Orb16sc base;
  ASSERT_EQ(legacy90orbsGetVarPointDV_16sc(&z, &base, variants.data(), labels.data(), states), StatusOk);
  EXPECT_EQ(variants.values(), expected) << z.re << ", " << z.im << ", " << states;
  EXPECT_EQ(base.re, static_cast<Orb16s>(baseX));
  EXPECT_EQ(base.im, static_cast<Orb16s>(baseY));
  EXPECT_TRUE(variants.GuardsIntact());
}

TEST_P(ViterbiTest, NearestPointsEverywhere) {
  std::vector<Orb8u> regular(16);
  for (size_t i = 0; i < 16; ++i) regular[i] = static_cast<Orb8u>((2 * (i / 4) + i) & 7);
  const std::vector<Orb8u> random = RandomArray<Orb8u>(16, 3);  // labels met twice, and high bits
  for (const Orb32s states : {16, 32, 64, 0}) {
    for (const auto& map : {regular, random}) {
      for (int x :
           {-32768, -32641, -32640, -385, -129, -128, -127, -1, 0, 1, 127, 128, 129, 255, 256, 383, 32767}) {
        for (int y : {-32768, -129, -128, 0, 100, 127, 128, 255, 32639, 32640, 32767}) {
          CheckNearestPoints({static_cast<Orb16s>(x), static_cast<Orb16s>(y)}, map, states);
        }
      }
      for (const Orb16sc& z : RandomArray<Orb16sc>(300, 5)) CheckNearestPoints(z, map, states);
    }
  }
}

// ---- Symbols ----

struct PairOfLabels {
  int i, j;
};

std::vector<PairOfLabels> PairsOf(int states, int k, int x) {
  const int turned = states == 32 ? (k ^ x) + 2 * (k & 8) : k ^ x;
  const int a = turned / 4;
  const int b = (turned + a) % 4;
  if (states == 16) return {{a, b}, {(a + 2) % 4, (b + 2) % 4}};
  if (states != 32) return {{a, b}, {(a + 4) % 8, b + 4}};
  const int p = (turned ^ 8) / 4;
  const int q = ((turned ^ 8) + p) % 4;
  return {{p, q}, {(p + 4) % 8, q + 4}, {a, b}, {(a + 4) % 8, b + 4}};
}

TEST_P(ViterbiTest, SymbolsAreTheNearestPairs) {
  std::mt19937 engine(11);
  for (const int states : {16, 32, 64, 5}) {
    const int count = states == 16 ? 8 : states == 32 ? 16 : 32;
    for (const unsigned range : {1u, 4u, 20000u, 65536u}) {  // all ties, many ties, none, sums beyond 16 bits
      for (int x = 0; x < count; ++x) {
        GuardedArray<Orb32u> variants(16);
        for (size_t i = 0; i < 16; ++i) {
          variants[i] = (range < 65536 ? engine() % range : 65535 - engine() % 3) | (engine() % 12) << 16;
        }
        GuardedArray<Orb16sc> symbols(static_cast<size_t>(count));
        ASSERT_EQ(legacy90orbsBuildSymblTableDV4D_16sc(variants.data(), symbols.data(), states, x), StatusOk);
        ASSERT_TRUE(symbols.GuardsIntact());
        for (int k = 0; k < count; ++k) {
          Orb32u best = 1 << 20;
          Orb32u codes = 0;
          for (const PairOfLabels& pair : PairsOf(states, k, x)) {
            const Orb32u first = variants[static_cast<size_t>(pair.i)];
            const Orb32u second = variants[static_cast<size_t>(8 + pair.j)];
            const Orb32u sum = first % 65536 + second % 65536;
            if (sum < best) {
              best = sum;
              codes = first / 65536 + 256 * (second / 65536);
            }
          }
          const Orb16sc symbol = symbols[static_cast<size_t>(k)];
          ASSERT_EQ(static_cast<Orb16u>(symbol.im), best % 65536) << states << " states, " << k << ", " << x;
          ASSERT_EQ(static_cast<Orb16u>(symbol.re), codes) << states << " states, " << k << ", " << x;
        }
      }
    }
  }
}

// ---- Add, compare, select ----

struct Trellis {
  Orb32s states;
  size_t branches;
  std::vector<Orb8u> next;
};

size_t BranchesOf(Orb32s states) { return states == 16 ? 4 : states == 32 ? 8 : 16; }

Trellis Arbitrary(Orb32s states, uint32_t seed) {
  Trellis trellis{states, BranchesOf(states), {}};
  trellis.next = RandomArray<Orb8u>(static_cast<size_t>(states) * trellis.branches, seed);
  for (Orb8u& t : trellis.next) t = static_cast<Orb8u>(t % states);
  return trellis;
}

// Any state's branches lead to alpha(s) XOR the numbers of b's bits, which are independent.
Trellis Linear(Orb32s states, const std::vector<Orb8u>& bits, uint32_t seed) {
  Trellis trellis = Arbitrary(states, seed);
  for (size_t s = 0; s < static_cast<size_t>(states); ++s) {
    for (size_t b = 1; b < trellis.branches; ++b) {
      Orb8u& t = trellis.next[s * trellis.branches + b];
      t = trellis.next[s * trellis.branches];
      for (size_t i = 0; i < bits.size(); ++i) {
        if ((b >> i & 1) != 0) t = static_cast<Orb8u>(t ^ bits[i]);
      }
    }
  }
  return trellis;
}

std::vector<Trellis> Trellises() {
  std::vector<Trellis> all = {
      Linear(16, {1, 2}, 1),       Linear(16, {12, 5}, 2),      Linear(32, {1, 2, 4}, 3),
      Linear(32, {16, 9, 22}, 4),  Linear(64, {1, 2, 4, 8}, 5), Linear(64, {33, 18, 12, 40}, 6),
      Linear(64, {3, 5, 6, 1}, 7),  // bits that depend on each other: two branches lead to one state
  };
  for (const Orb32s states : {16, 32, 64, 1, 5, 40, 100, 256}) {
    all.push_back(Arbitrary(states, static_cast<uint32_t>(states)));
  }
  // Linear but for one branch, the last.
  for (size_t i : {0u, 2u, 4u}) {
    all.push_back(all[i]);
    all.back().next.back() ^= 1;
  }
  return all;
}

class SelectTest : public ExportTest {
 protected:
  // Metrics below these limits; `reached` of the new ones are set already.
  void Check(const Trellis& trellis, unsigned oldRange, unsigned symbolRange, bool reached, uint32_t seed) {
    std::mt19937 engine(seed);
    const auto states = static_cast<size_t>(trellis.states);
    GuardedArray<Orb16u> old(states);
    GuardedArray<Orb16u> metrics(states);
    for (size_t s = 0; s < states; ++s) {
      old[s] = static_cast<Orb16u>(engine() % 5 == 0 ? 65535 : engine() % oldRange);
      metrics[s] = static_cast<Orb16u>(reached && engine() % 2 == 0 ? engine() % oldRange : 65535);
    }
    GuardedArray<Orb16sc> symbols(2 * trellis.branches);
    for (size_t e = 0; e < symbols.size(); ++e) {
      symbols[e] = {static_cast<Orb16s>(engine()), static_cast<Orb16s>(engine() % symbolRange)};
    }
    constexpr size_t kRow = 300;
    GuardedArray<Orb32u> survivors(kRow + states);
    const GuardedArray<Orb8u> next(trellis.next);

    std::vector<Orb16u> wantedMetrics = metrics.values();
    std::vector<Orb32u> wantedSurvivors = survivors.values();
    const bool isUnsigned = trellis.states == 16 && GetParam() != Variant::px;
    for (size_t s = 0; s < states; ++s) {
      for (size_t b = 0; b < trellis.branches; ++b) {
        const size_t t = trellis.next[s * trellis.branches + b];
        const Orb16sc symbol = symbols[s % 2 + 2 * b];
        const int metric = old[s] + (isUnsigned ? static_cast<Orb16u>(symbol.im) : int{symbol.im});
        if (metric < wantedMetrics[t]) {
          wantedMetrics[t] = static_cast<Orb16u>(metric);
          wantedSurvivors[kRow + t] = static_cast<Orb16u>(symbol.re) | static_cast<Orb32u>(s << 16);
        }
      }
    }
    ASSERT_EQ(legacy90orbsCalcStatesDV_16sc(old.data(), next.data(), metrics.data(), symbols.data(),
                                            survivors.data(), trellis.states, kRow),
              StatusOk);
    ASSERT_EQ(metrics.values(), wantedMetrics) << trellis.states;
    ASSERT_EQ(survivors.values(), wantedSurvivors) << trellis.states;
    ASSERT_TRUE(metrics.GuardsIntact() && survivors.GuardsIntact());
  }
};
ORBS_INSTANTIATE_VARIANTS(SelectTest);

TEST_P(SelectTest, FollowsTheDefinitionForAnyTables) {
  uint32_t seed = 0;
  for (const Trellis& trellis : Trellises()) {
    for (const unsigned oldRange : {1u, 4u, 30000u, 65536u}) {
      for (const unsigned symbolRange : {1u, 4u, 32768u, 65536u}) {
        for (const bool reached : {false, true}) Check(trellis, oldRange, symbolRange, reached, ++seed);
      }
    }
  }
}

// ---- Path metrics ----

TEST_P(ViterbiTest, PathMetricsAreRelativeToTheFirstLeast) {
  std::mt19937 engine(2);
  for (const int count : Lengths(70, {1000})) {
    const auto n = static_cast<size_t>(count);
    for (const unsigned range : {3u, 65535u, 65536u}) {
      GuardedArray<Orb16u> metrics(n, n % 3);
      GuardedArray<Orb16u> old(n, n % 2);
      for (size_t s = 0; s < n; ++s) metrics[s] = static_cast<Orb16u>(65535 - engine() % range);
      if (range == 65536 && n % 7 == 0) std::fill_n(metrics.data(), n, Orb16u{65535});
      const std::vector<Orb16u> before = metrics.values();
      const auto first = std::min_element(before.begin(), before.end());
      Orb16u least = 0;
      Orb8u best = 0;
      ASSERT_EQ(legacy90orbsUpdatePathMetricsDV_16u(metrics.data(), &least, &best, old.data(),
                                                    static_cast<Orb32s>(n)),
                StatusOk);
      ASSERT_EQ(least, *first);
      ASSERT_EQ(best, static_cast<Orb8u>(first - before.begin())) << n;
      for (size_t s = 0; s < n; ++s) ASSERT_EQ(old[s], before[s] - *first) << s << " of " << n;
      ASSERT_EQ(metrics.values(), std::vector<Orb16u>(n, 65535));
      ASSERT_TRUE(metrics.GuardsIntact() && old.GuardsIntact());
    }
  }
}

// ---- Statuses ----

TEST_P(ViterbiTest, NullPointersAndCountsBelowOne) {
  GuardedArray<Orb16sc> points(32);
  GuardedArray<Orb32u> words(64);
  GuardedArray<Orb8u> bytes(64);
  GuardedArray<Orb16u> metrics(64);
  GuardedArray<Orb16u> others(64);
  ForEachFunction([](auto* function) { CheckNullPointers(function); },
                  ORBS_NAMED(legacy90orbsGetVarPointDV_16sc), ORBS_NAMED(legacy90orbsUpdatePathMetricsDV_16u),
                  ORBS_NAMED(legacy90orbsBuildSymblTableDV4D_16sc),
                  ORBS_NAMED(legacy90orbsCalcStatesDV_16sc));
  for (const Orb32s states : {0, -1, kLeast}) {
    EXPECT_EQ(legacy90orbsCalcStatesDV_16sc(metrics.data(), bytes.data(), others.data(), points.data(),
                                            words.data(), states, 0),
              StatusOk);
    Orb16u least = 1;
    Orb8u best = 1;
    EXPECT_EQ(legacy90orbsUpdatePathMetricsDV_16u(metrics.data(), &least, &best, others.data(), states),
              StatusOk);
    EXPECT_EQ(least, 65535);
    EXPECT_EQ(best, 0);
  }
  EXPECT_TRUE(points.Untouched() && words.Untouched() && bytes.Untouched());
  EXPECT_TRUE(metrics.Untouched() && others.Untouched());
}

}  // namespace
}  // namespace orbs::test
