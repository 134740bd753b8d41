// Random numbers: the exact sequence against the recurrence written down from its definition. Its statistics
// are those of the definition.
#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "tests/support/bad_calls.h"
#include "tests/support/effort.h"
#include "tests/support/export_test.h"
#include "tests/support/guarded_array.h"
#include "tests/support/lengths.h"
#include "tests/support/rows.h"

namespace orbs::test {
namespace {

constexpr Orb32u kSeed = 20080229;

// W and o by index, as the definition has them.
class Reference {
 public:
  explicit Reference(Orb32u seed) {
    const Orb32u x1 = 69069 * seed + 1013904243;
    words_ = {69069 * x1 + 1013904243, x1, seed};
  }

  Orb32s Next() {
    const size_t n = words_.size();
    Orb32u t = words_[n - 2] - words_[n - 3] + static_cast<Orb32u>(borrow_);
    if (static_cast<Orb32s>(t) < 0) {
      borrow_ = -1;
      t -= 18;
    } else {
      borrow_ = 0;
    }
    words_.push_back(t);
    linear_ = 69069 * linear_ + 1013904243;
    return static_cast<Orb32s>(t + linear_);
  }

  Orb32u LastWord() const { return words_.back(); }

 private:
  std::vector<Orb32u> words_;
  int borrow_ = -1;
  Orb32u linear_ = 1131199209;
};

struct Expected {
  std::vector<long double> values;
  Orb32u seed;
};

Expected Uniform(Orb32u seed, int length, long double low, long double high) {
  Reference reference(seed);
  Expected expected;
  for (int n = 0; n < length; ++n) {
    expected.values.push_back(
        reference.Next() * ((high - low) * static_cast<long double>(2.3283064365387e-10)) + (low + high) / 2);
  }
  expected.seed = reference.LastWord();
  return expected;
}

Expected Gauss(Orb32u seed, int length, long double mean, long double stdDev) {
  Reference reference(seed);
  Expected expected;
  while (static_cast<int>(expected.values.size()) < length) {
    const long double u1 = reference.Next() * static_cast<long double>(4.656612873077e-10);
    const long double u2 = reference.Next() * static_cast<long double>(4.656612873077e-10);
    const long double r = u1 * u1 + u2 * u2;
    if (r >= 1 || r == 0) continue;
    const long double w = std::sqrt(-2 * std::log(r) / r);
    expected.values.push_back(mean + stdDev * u2 * w);
    expected.values.push_back(mean + stdDev * u1 * w);
  }
  expected.values.resize(static_cast<size_t>(length));
  expected.seed = reference.LastWord();
  return expected;
}

template <class T>
using RandomFunction = OrbStatus (*)(T*, Orb32s, T, T, Orb32u*);
using ExpectedFunction = Expected (*)(Orb32u, int, long double, long double);

class RandomTest : public ExportTest {
 protected:
  // Hands each element and its exact value to `compare`, for all lengths.
  template <class T, class Compare>
  void ForEachElement(RandomFunction<T> function, ExpectedFunction reference, T a, T b, Compare compare) {
    Orb32u nextSeed = 0;
    for (const int length : Lengths(200, {1000, 1001, 4099, Effort(1 << 18, 1 << 14)})) {
      const auto size = static_cast<size_t>(length);
      const Expected expected = reference(nextSeed, length, a, b);
      GuardedArray<T> out(size, size % 5);
      Orb32u seed = nextSeed;
      ASSERT_EQ(function(out.data(), length, a, b, &seed), StatusOk);
      ASSERT_TRUE(out.GuardsIntact()) << length;
      ASSERT_EQ(seed, expected.seed) << length;
      for (size_t i = 0; i < size; ++i) {
        ASSERT_TRUE(compare(out[i], expected.values[i], length, i))
            << out[i] << " is not " << expected.values[i] << ", element " << i << " of " << length;
      }
      nextSeed = seed;
    }
  }

  template <class T>
  void ExpectFloats(RandomFunction<T> function, ExpectedFunction reference, T a, T b) {
    ForEachElement(function, reference, a, b, [a, b](T actual, long double expected, int, size_t) {
      // Where r is almost 1, the last bit of r reaches far into its logarithm: hence 1e-12.
      const long double magnitude = std::abs(a) + std::abs(b) + std::abs(expected);
      return std::abs(actual - expected) <= (std::numeric_limits<T>::epsilon() + 1e-12L) * magnitude;
    });
  }
};
ORBS_INSTANTIATE_VARIANTS(RandomTest);

bool IsRounded(long double actual, long double y) { return std::abs(actual - y) <= 0.5L + 1e-8L; }

// Toward zero, or either way where y is almost an integer.
bool IsTruncated(long double actual, long double y) {
  return actual >= std::trunc(y - 1e-8L) && actual <= std::trunc(y + 1e-8L);
}

TEST_P(RandomTest, UniformSequence) {
  ExpectFloats(legacy90orbsRandUniform_Direct_32f, Uniform, -1.0f, 1.0f);
  ExpectFloats(legacy90orbsRandUniform_Direct_32f, Uniform, 5.5f, -2.0f);
  ExpectFloats(legacy90orbsRandUniform_Direct_64f, Uniform, 0.0, 1.0);
  ExpectFloats(legacy90orbsRandUniform_Direct_64f, Uniform, -1e300,
               1.5e308);  // whose distance is no binary64
}

// Seeds that make W[n-2] - W[n-3] = -2^31 or 0 with a borrow, which turns its sign: n = 10, n = 24; n = 7.
TEST_P(RandomTest, BorrowThatTurnsASign) {
  for (const Orb32u start : {24376020u, 166021412u, 790990649u}) {
    for (const int length : {8, 24, 25, 100}) {
      const Expected expected = Uniform(start, length, -2147483648.0L, 2147483648.0L);
      std::vector<Orb64f> out(static_cast<size_t>(length));
      Orb32u seed = start;
      legacy90orbsRandUniform_Direct_64f(out.data(), length, -2147483648.0, 2147483648.0, &seed);
      EXPECT_EQ(seed, expected.seed) << length;
      for (size_t i = 0; i < out.size(); ++i) EXPECT_NEAR(out[i], expected.values[i], 0.1) << i;
    }
  }
}

TEST_P(RandomTest, UniformSequenceOf16Bits) {
  const Variant variant = GetParam();
  const auto compare = [variant](Orb16s actual, long double y, int length, size_t i) {
    const bool alone = length % 2 != 0 && static_cast<int>(i) == length - 1;
    const bool truncated = variant == Variant::px || (alone && variant >= Variant::s8);
    return truncated ? IsTruncated(actual, y) : IsRounded(actual, y);
  };
  ForEachElement<Orb16s>(legacy90orbsRandUniform_Direct_16s, Uniform, -32768, 32767, compare);
  ForEachElement<Orb16s>(legacy90orbsRandUniform_Direct_16s, Uniform, -3, 4, compare);
  ForEachElement<Orb16s>(legacy90orbsRandUniform_Direct_16s, Uniform, 100, -100, compare);
}

TEST_P(RandomTest, GaussSequence) {
  ExpectFloats(legacy90orbsRandGauss_Direct_32f, Gauss, 0.0f, 1.0f);
  ExpectFloats(legacy90orbsRandGauss_Direct_32f, Gauss, 10.0f, -0.25f);
  ExpectFloats(legacy90orbsRandGauss_Direct_64f, Gauss, 0.0, 1.0);
  ExpectFloats(legacy90orbsRandGauss_Direct_64f, Gauss, -5e5, 1e6);
  const auto compare = [](Orb16s actual, long double y, int, size_t) {
    return IsTruncated(actual, std::min(32767.0L, std::max(-32768.0L, y)));
  };
  ForEachElement<Orb16s>(legacy90orbsRandGauss_Direct_16s, Gauss, 3, 10, compare);
  ForEachElement<Orb16s>(legacy90orbsRandGauss_Direct_16s, Gauss, -32768, 32767, compare);
}

TEST_P(RandomTest, NoSpreadGivesTheMiddleAndMovesTheSeed) {
  std::vector<Orb32f> floats(77);
  std::vector<Orb64f> doubles(77);
  std::vector<Orb16s> samples(77);
  Orb32u seed = kSeed;
  legacy90orbsRandUniform_Direct_32f(floats.data(), 77, 3.0f, 3.0f, &seed);
  EXPECT_EQ(floats, std::vector<Orb32f>(77, 3.0f));
  EXPECT_EQ(seed, Uniform(kSeed, 77, 0, 1).seed);
  seed = kSeed;
  legacy90orbsRandGauss_Direct_64f(doubles.data(), 77, -2.5, 0.0, &seed);
  EXPECT_EQ(doubles, std::vector<Orb64f>(77, -2.5));
  EXPECT_EQ(seed, Gauss(kSeed, 77, 0, 1).seed);
  legacy90orbsRandGauss_Direct_16s(samples.data(), 77, -32768, 0, &seed);
  EXPECT_EQ(samples, std::vector<Orb16s>(77, -32768));
}

// ---- Statuses ----

TEST_P(RandomTest, BadArgumentsGiveTheirStatusAndChangeNothing) {
  CheckBadCalls(ORBS_NAMED(legacy90orbsRandUniform_Direct_16s),
                ORBS_NAMED(legacy90orbsRandUniform_Direct_32f),
                ORBS_NAMED(legacy90orbsRandUniform_Direct_64f), ORBS_NAMED(legacy90orbsRandGauss_Direct_16s),
                ORBS_NAMED(legacy90orbsRandGauss_Direct_32f), ORBS_NAMED(legacy90orbsRandGauss_Direct_64f));
}

}  // namespace
}  // namespace orbs::test
