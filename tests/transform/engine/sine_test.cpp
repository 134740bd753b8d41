// The tables that all twiddles come from.
#include <cmath>

#include "tests/transform/engine/fixture.h"

namespace orbs::test {
namespace {

class FftSineTest : public FftTest {};
ORBS_INSTANTIATE_VARIANTS(FftSineTest);

// In units of the last place of T at the value.
template <class T>
long double Ulps(T value, long double exact) {
  const T next = std::nextafter(std::abs(value), T{2});
  return std::abs(static_cast<long double>(value) - exact) / static_cast<long double>(next - std::abs(value));
}

template <class T>
void CheckConstantTable(const T* table) {
  for (size_t i = 0; i < 256; ++i) {
    EXPECT_LE(Ulps(table[i], UnitRoot(i, 1024).imag()), 0.5L) << i;
  }
  EXPECT_EQ(table[0], 0);
  EXPECT_EQ(table[256], 1);
}

TEST_P(FftSineTest, ConstantTablesAreCorrectlyRounded) {
  CheckConstantTable(fft.sinQuarter32f);
  CheckConstantTable(fft.sinQuarter64f);
}

template <class T>
void CheckBuiltTable(void (*build)(int order, T* quarter), int order) {
  SCOPED_TRACE(order);
  const size_t n = size_t{1} << order;
  GuardedArray<T> table(n / 4 + 1);
  build(order, table.data());
  EXPECT_TRUE(table.GuardsIntact());
  long double worst = 0;
  for (size_t k = 0; k <= n / 4; k += order > 16 ? 37 : 1) {
    worst = std::max(worst, Ulps(table[k], UnitRoot(k, n).imag()));
  }
  EXPECT_LE(worst, 0.56L);
  EXPECT_EQ(table[0], 0);
  EXPECT_EQ(table[n / 4], 1);
}

TEST_P(FftSineTest, BuiltTablesAreRoundedAlmostPerfectly) {
  for (const int order : {11, 12, 15, 20}) {
    CheckBuiltTable(fft.buildSines32f, order);
    CheckBuiltTable(fft.buildSines64f, order);
  }
}

}  // namespace
}  // namespace orbs::test
