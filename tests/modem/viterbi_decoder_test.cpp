// A whole soft decoder: bits through a trellis code onto constellation points, noise, and back.
#include <cmath>
#include <cstdlib>
#include <random>
#include <vector>

#include "tests/support/export_test.h"

namespace orbs::test {
namespace {

// A code of this test's own. The input bits of a step name the branch; the state's lowest bit and the branch
// name the four-dimensional symbol. The next state: the state halved, its lowest bit fed back, XOR a number
// for each input bit. The number of the first bit is even in its lowest place, so that errors must run on
// before they can end.
struct Code {
  Orb32s states;
  int inputBits;
  int feedback;
  int labels;  // of the two-dimensional subsets

  size_t Branches() const { return size_t{1} << inputBits; }
  int Next(int s, size_t b) const {
    int t = s >> 1 ^ ((s & 1) != 0 ? feedback : 0);
    for (int i = 0; i < inputBits; ++i) {
      if ((b >> i & 1) != 0) t ^= 2 << i;
    }
    return t;
  }
  std::vector<Orb8u> NextStates() const {
    std::vector<Orb8u> next;
    for (int s = 0; s < states; ++s) {
      for (size_t b = 0; b < Branches(); ++b) next.push_back(static_cast<Orb8u>(Next(s, b)));
    }
    return next;
  }
};

const Code kCodes[] = {{16, 2, 9, 4}, {32, 3, 17, 8}, {64, 4, 33, 8}};

// Labels of the lattice by row and column: with 8 of them, neighbours in a diagonal of two steps agree.
std::vector<Orb8u> SubsetMap(const Code& code) {
  std::vector<Orb8u> map(16);
  for (size_t row = 0; row < 4; ++row) {
    for (size_t column = 0; column < 4; ++column) {
      map[4 * row + column] = static_cast<Orb8u>(code.labels == 4 ? 2 * (row & 1) + (column & 1)
                                                                  : (column + 2 * row + 4 * (row & 1)) & 7);
    }
  }
  return map;
}

// One of the pairs of labels that make symbol k, as the symbol table's description has it for an index mask
// of 0.
void LabelsOf(const Code& code, int k, bool other, int* first, int* second) {
  const int turned = code.states == 32 ? k + 2 * (k & 8) : k;
  const int a = turned / 4;
  const int b = (turned + a) % 4;
  *first = code.labels == 4 ? (a + 2 * other) % 4 : (a + 4 * other) % 8;
  *second = code.labels == 4 ? (b + 2 * other) % 4 : b + 4 * other;
}

class ViterbiDecoderTest : public ExportTest {
 protected:
  // A point with this label, somewhere in a constellation of 16 x 16, and noise on it.
  Orb16sc Received(const std::vector<Orb8u>& map, int label, double sigma) {
    std::normal_distribution<double> noise(0, sigma);
    for (;;) {
      const int column = static_cast<int>(engine_() % 16);
      const int row = static_cast<int>(engine_() % 16);
      if (map[static_cast<size_t>(4 * (row % 4) + column % 4)] != label) continue;
      // Column and row 0 of the map are those of the lattice coordinate 128 - 2 * 256.
      const auto coordinate = [&](int n) {
        return static_cast<Orb16s>(std::lrint(128 + 256 * (n - 8 - 2) + noise(engine_)));
      };
      const Orb16s re = coordinate(column);
      return {re, coordinate(row)};
    }
  }

  // The number of steps whose state is decoded wrongly, of `steps` and a tail that is not counted.
  int Errors(const Code& code, int steps, double sigma) {
    constexpr int kTail = 40;
    const std::vector<Orb8u> map = SubsetMap(code);
    const std::vector<Orb8u> next = code.NextStates();
    const auto states = static_cast<size_t>(code.states);
    std::vector<Orb32u> variants(16);
    std::vector<Orb16sc> symbols(2 * code.Branches());
    std::vector<Orb16u> old(states, 20000);
    std::vector<Orb16u> metrics(states, 65535);
    const auto all = static_cast<size_t>(steps + kTail);
    std::vector<Orb32u> survivors(states * all);
    old[0] = 0;

    std::vector<int> path = {0};
    Orb8u best = 0;
    for (size_t step = 0; step < all; ++step) {
      const size_t b = engine_() % code.Branches();
      int labels[2];
      LabelsOf(code, (path.back() & 1) + 2 * static_cast<int>(b), engine_() % 2 != 0, &labels[0], &labels[1]);
      path.push_back(code.Next(path.back(), b));
      for (size_t point = 0; point < 2; ++point) {
        const Orb16sc z = Received(map, labels[point], sigma);
        Orb16sc base;
        EXPECT_EQ(legacy90orbsGetVarPointDV_16sc(&z, &base, &variants[8 * point], map.data(), code.states),
                  StatusOk);
      }
      EXPECT_EQ(legacy90orbsBuildSymblTableDV4D_16sc(variants.data(), symbols.data(), code.states, 0),
                StatusOk);
      EXPECT_EQ(
          legacy90orbsCalcStatesDV_16sc(old.data(), next.data(), metrics.data(), symbols.data(),
                                        survivors.data(), code.states, static_cast<Orb32s>(states * step)),
          StatusOk);
      Orb16u least;
      EXPECT_EQ(legacy90orbsUpdatePathMetricsDV_16u(metrics.data(), &least, &best, old.data(), code.states),
                StatusOk);
    }
    int errors = 0;
    size_t state = best;
    for (size_t step = all; step-- > 0;) {
      state = survivors[states * step + state] >> 16;
      errors += step < static_cast<size_t>(steps) && static_cast<int>(state) != path[step];
    }
    return errors;
  }

  std::mt19937 engine_{1};
};
ORBS_INSTANTIATE_VARIANTS(ViterbiDecoderTest);

// Neighbouring points are 256 apart. At a deviation of 40 a single point is wrong once in a thousand times,
// and what a step can confuse beyond its symbol is further away.
TEST_P(ViterbiDecoderTest, DecodesNoisyPointsWithoutError) {
  for (const Code& code : kCodes) {
    EXPECT_EQ(Errors(code, 2000, 0), 0) << code.states << " states";
    EXPECT_EQ(Errors(code, 2000, 40), 0) << code.states << " states";
  }
}

TEST_P(ViterbiDecoderTest, NoiseBeyondTheCodeIsNotHidden) {
  for (const Code& code : kCodes) EXPECT_GT(Errors(code, 500, 300), 100) << code.states << " states";
}

}  // namespace
}  // namespace orbs::test
