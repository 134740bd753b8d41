// The five scaling methods, the conversions and the factors 2^-s, as each variant compiles them, against
// arithmetic in extended precision: its 64-bit mantissa holds every 64-bit integer and every tie exactly.
#include <gtest/gtest.h>

#include <algorithm>
#include <cfenv>
#include <cmath>
#include <limits>
#include <vector>

#include "tests/core/scaling_probe.h"
#include "tests/support/variants.h"

namespace orbs::test {
namespace {

static_assert(std::numeric_limits<long double>::digits == 64);

constexpr Orb32s kIntMin = std::numeric_limits<Orb32s>::min();
constexpr Orb32s kIntMax = std::numeric_limits<Orb32s>::max();
constexpr long double kInfinity = std::numeric_limits<long double>::infinity();
constexpr long double kNaN = std::numeric_limits<long double>::quiet_NaN();

class ScalingTest : public testing::TestWithParam<Variant> {
 protected:
  void SetUp() override {
    if (!CanRun(GetParam())) GTEST_SKIP() << "this processor cannot run " << VariantName(GetParam());
    const ScalingProbe* const kProbes[kVariantCount] = {
        &orbsScalingProbe_px, &orbsScalingProbe_w7, &orbsScalingProbe_v8, &orbsScalingProbe_s8,
        &orbsScalingProbe_p8, &orbsScalingProbe_g9, &orbsScalingProbe_h9};
    probe_ = kProbes[static_cast<int>(GetParam())];
  }
  const ScalingProbe& Probe() const { return *probe_; }

 private:
  const ScalingProbe* probe_ = nullptr;
};
ORBS_INSTANTIATE_VARIANTS(ScalingTest);

std::vector<Orb32s> ScaleFactors() {
  std::vector<Orb32s> factors = {kIntMin, kIntMin + 1, -1000, 1000, kIntMax - 1, kIntMax};
  for (Orb32s s = -70; s <= 70; ++s) factors.push_back(s);
  return factors;
}

Orb64s Clamp(long double v, const Bounds& bounds) {
  if (v >= static_cast<long double>(bounds.max)) return bounds.max;
  if (!(v > static_cast<long double>(bounds.min))) return bounds.min;
  return static_cast<Orb64s>(v);
}

// ---- Integer methods ----

// Powers of two and three times those, with their neighbours, in both signs: ties, bounds and what lies
// beside them for every shift.
std::vector<Orb64s> Accumulators(int bits) {
  const Orb64s max = std::numeric_limits<Orb64s>::max() >> (64 - bits);
  std::vector<Orb64s> values = {0, max, max - 1, -max, -max - 1};
  for (int e = 0; e < bits - 1; ++e) {
    for (const Orb64s odd : {1, 3}) {
      const Orb64s base = odd << e;
      if (base >> e != odd || base >= max) continue;
      values.insert(values.end(), {base - 1, base, base + 1, -base - 1, -base, -base + 1});
    }
  }
  return values;
}

// The exact quotient, rounded. A sum of value and rounding term that leaves the accumulator wraps there,
// which takes 2^bits from the sum, so 2^(bits-s) from the result.
long double ExactShift(ShiftMethod method, int bits, Orb64s x, Orb32s s) {
  const int exponent = s > 200 ? -200 : s < -200 ? 200 : -s;
  const long double v = std::ldexp(static_cast<long double>(x), exponent);
  if (s <= 0) return v;
  long double rounded = std::floor(v);
  long double term = 0;
  if (method == ShiftMethod::kTiesEven) {
    rounded = std::nearbyint(v);
    term = std::ldexp(1.0L, -exponent - 1) - (std::fmod(std::floor(v), 2.0L) == 0 ? 1 : 0);
  } else if (method == ShiftMethod::kHalfUp) {
    rounded = std::floor(v + 0.5L);
    term = std::ldexp(1.0L, -exponent - 1);
  }
  const bool wraps = s < bits && static_cast<long double>(x) + term >= std::ldexp(1.0L, bits - 1);
  return wraps ? rounded - std::ldexp(1.0L, bits - s) : rounded;
}

TEST_P(ScalingTest, IntegerMethodsRoundTheExactQuotient) {
  const std::vector<Orb32s> factors = ScaleFactors();
  for (const ShiftMethod method : {ShiftMethod::kTiesEven, ShiftMethod::kHalfUp, ShiftMethod::kFloor}) {
    for (const int bits : {32, 64}) {
      std::vector<const ShiftProbe*> probes;  // they differ in their result types only
      for (int i = 0; i < Probe().shiftCount; ++i) {
        const ShiftProbe& probe = Probe().shifts[i];
        if (probe.method == method && probe.accumulatorBits == bits) probes.push_back(&probe);
      }
      ASSERT_FALSE(probes.empty());
      for (const Orb64s x : Accumulators(bits)) {
        for (const Orb32s s : factors) {
          const long double exact = ExactShift(method, bits, x, s);
          for (const ShiftProbe* probe : probes) {
            ASSERT_EQ(probe->scale(x, s), Clamp(exact, probe->result))
                << "x " << x << ", s " << s << ", method " << static_cast<int>(method) << ", accumulator "
                << bits << ", result up to " << probe->result.max;
          }
        }
      }
    }
  }
}

TEST_P(ScalingTest, IntegerTies) {
  struct {
    Orb64s x;
    Orb64s tiesEven;
    Orb64s halfUp;
    Orb64s floor;
  } const kHalves[] = {{1, 0, 1, 0},   {2, 1, 1, 1},     {3, 2, 2, 1},    {5, 2, 3, 2},
                       {-1, 0, 0, -1}, {-3, -2, -1, -2}, {-5, -2, -2, -3}};
  for (int i = 0; i < Probe().shiftCount; ++i) {
    const ShiftProbe& probe = Probe().shifts[i];
    if (probe.result.min == 0) continue;
    for (const auto& row : kHalves) {
      const Orb64s expected[] = {row.tiesEven, row.halfUp, row.floor};
      EXPECT_EQ(probe.scale(row.x, 1), expected[static_cast<int>(probe.method)]) << row.x;
    }
  }
}

// ---- Floating-point methods ----

long double Stored(long double y, FloatWidth width) {
  if (width == FloatWidth::k80) return y;
  if (width == FloatWidth::k64) return static_cast<double>(y);
  return static_cast<float>(y);
}

long double NextToward(long double y, long double target, FloatWidth width) {
  if (width == FloatWidth::k80) return std::nextafter(y, target);
  if (width == FloatWidth::k64) return std::nextafter(static_cast<double>(y), static_cast<double>(target));
  return std::nextafter(static_cast<float>(y), static_cast<float>(target));
}

// Ties, bounds and the values next to them. The neighbours of 0.5 are those that turn into 1 when 0.5 is
// added in the type's own precision.
std::vector<long double> FloatValues(FloatWidth width) {
  std::vector<long double> values = {kInfinity, -kInfinity, kNaN, -kNaN, 1e-30L, -1e-30L, 1e30L, -1e30L};
  for (const long double base :
       {0.0L,          1.0L,          2.0L,          3.0L,          127.0L,        128.0L,
        255.0L,        256.0L,        32767.0L,      32768.0L,      40000.0L,      65535.0L,
        65536.0L,      4194304.0L,    8388607.0L,    8388609.0L,    16777215.0L,   2147483520.0L,
        2147483646.0L, 2147483647.0L, 2147483648.0L, 4294967295.0L, 4294967296.0L, 9223372036854775808.0L}) {
    for (const long double fraction : {0.0L, 0.25L, 0.5L, 0.75L}) {
      for (const long double sign : {1.0L, -1.0L}) {
        const long double y = Stored(sign * (base + fraction), width);
        values.insert(values.end(), {y, NextToward(y, kInfinity, width), NextToward(y, -kInfinity, width)});
      }
    }
  }
  return values;
}

TEST_P(ScalingTest, FloatMethodsClampThenRound) {
  for (int i = 0; i < Probe().floatCount; ++i) {
    const FloatProbe& probe = Probe().floats[i];
    for (const long double y : FloatValues(probe.width)) {
      const long double rounded = probe.method == FloatMethod::kNearEven ? std::nearbyint(y) : std::round(y);
      ASSERT_EQ(probe.convert(y), Clamp(rounded, probe.result))  // NaN ends at the lower bound
          << "y " << y << ", method " << static_cast<int>(probe.method) << ", width "
          << static_cast<int>(probe.width) << ", result up to " << probe.result.max;
    }
  }
}

TEST_P(ScalingTest, FloatTies) {
  struct {
    long double y;
    Orb64s nearEven;
    Orb64s halfAway;
  } const kRows[] = {{2.5L, 2, 3},
                     {3.5L, 4, 4},
                     {-2.5L, -2, -3},
                     {0.4L, 0, 0},
                     {0.5L, 0, 1},
                     {-0.5L, 0, -1},
                     {0.49999997L, 0, 0},
                     {40000.0L, 32767, 32767},
                     {-0.0L, 0, 0},
                     {32766.5L, 32766, 32767},
                     {-40000.0L, -32768, -32768}};
  for (int i = 0; i < Probe().floatCount; ++i) {
    const FloatProbe& probe = Probe().floats[i];
    if (probe.result.max != 32767) continue;
    for (const auto& row : kRows) {
      EXPECT_EQ(probe.convert(row.y), probe.method == FloatMethod::kNearEven ? row.nearEven : row.halfAway)
          << row.y;
    }
  }
}

TEST_P(ScalingTest, ConversionsAndTheRoundingMode) {
  struct {
    int mode;
    Orb32s up;    // RoundNear of 2.75
    Orb32s tie;   // of 2.5
    Orb32s down;  // of -2.75
  } const kModes[] = {
      {FE_TONEAREST, 3, 2, -3}, {FE_UPWARD, 3, 3, -2}, {FE_DOWNWARD, 2, 2, -3}, {FE_TOWARDZERO, 2, 2, -2}};
  for (int i = 0; i < Probe().conversionCount; ++i) {
    const ConversionProbe& probe = Probe().conversions[i];
    for (const auto& row : kModes) {
      ASSERT_EQ(std::fesetround(row.mode), 0);
      const Orb32s near[] = {probe.roundNear(2.75L), probe.roundNear(2.5L), probe.roundNear(-2.75L)};
      const Orb32s cut[] = {probe.truncate(2.75L), probe.truncate(-2.75L), probe.truncate(-0.75L)};
      const Orb32s away[] = {probe.roundHalfAway(2.5L), probe.roundHalfAway(-2.5L),
                             probe.roundHalfAway(2.25L), probe.roundHalfAway(-2.25L)};
      const int modeAfter = std::fegetround();
      std::fesetround(FE_TONEAREST);
      EXPECT_EQ(modeAfter, row.mode);
      EXPECT_EQ(near[0], row.up) << row.mode;
      EXPECT_EQ(near[1], row.tie) << row.mode;
      EXPECT_EQ(near[2], row.down) << row.mode;
      EXPECT_EQ(cut[0], 2) << row.mode;
      EXPECT_EQ(cut[1], -2) << row.mode;
      EXPECT_EQ(cut[2], 0) << row.mode;
      EXPECT_EQ(away[0], 3) << row.mode;
      EXPECT_EQ(away[1], -3) << row.mode;
      EXPECT_EQ(away[2], 2) << row.mode;
      EXPECT_EQ(away[3], -2) << row.mode;
    }
    EXPECT_EQ(probe.roundNear(-2147483648.0L), kIntMin);
    EXPECT_EQ(probe.truncate(-2147483648.0L), kIntMin);
    EXPECT_EQ(probe.truncate(2147483520.0L), 2147483520);
  }
}

// ---- The factor 2^-s ----

TEST_P(ScalingTest, TheFactorServesEveryScaleFactor) {
  struct {
    int smallest;  // exponents of the normal numbers
    int largest;
    long double greatest;
    long double least;
  } const kTypes[] = {
      {-126, 127, std::numeric_limits<float>::max(), std::numeric_limits<float>::denorm_min()},
      {-1022, 1023, std::numeric_limits<double>::max(), std::numeric_limits<double>::denorm_min()},
      // Extended precision carries values of binary64.
      {-16382, 16383, std::numeric_limits<double>::max(), std::numeric_limits<double>::denorm_min()}};
  for (int i = 0; i < Probe().conversionCount; ++i) {
    const ConversionProbe& probe = Probe().conversions[i];
    const auto& type = kTypes[static_cast<int>(probe.width)];
    std::vector<Orb32s> factors = ScaleFactors();
    for (const Orb32s near : {126, 127, 128, 252, 1022, 1023, 1024, 16382, 16383, 16384, 40000}) {
      factors.insert(factors.end(), {near, -near, near + 1, -near - 1});
    }
    for (const Orb32s s : factors) {
      SCOPED_TRACE(testing::Message() << "s " << s << ", width " << static_cast<int>(probe.width));
      long double first = 0;
      long double second = 0;
      probe.factors(s, &first, &second);
      // Both are normal powers of two, exactly 2^-s together where that can be.
      for (const long double factor : {first, second}) {
        int exponent = 0;
        ASSERT_EQ(std::frexp(factor, &exponent), 0.5L);
        EXPECT_GE(exponent - 1, type.smallest);
        EXPECT_LE(exponent - 1, type.largest);
      }
      if (s >= -type.largest && s <= -type.smallest) {
        EXPECT_EQ(first, std::ldexp(1.0L, -s));
        EXPECT_EQ(second, 1.0L);
      }
      for (const long double zero : {0.0L, -0.0L}) {
        EXPECT_EQ(probe.scale(zero, s), 0.0L);
        EXPECT_EQ(std::signbit(probe.scale(zero, s)), std::signbit(zero));
      }
      EXPECT_EQ(probe.scale(-kInfinity, s), -kInfinity);
      EXPECT_TRUE(std::isnan(probe.scale(kNaN, s)));
      const int moderate = std::max(-70, std::min(70, s));
      EXPECT_EQ(probe.scale(-1.25L, moderate), std::ldexp(-1.25L, -moderate));
    }
    // The greatest value is carried to nothing and the least one beyond every bound.
    EXPECT_LT(probe.scale(type.greatest, kIntMax), 0.25L);
    EXPECT_GT(probe.scale(type.least, kIntMin), 9.3e18L);
  }
}

TEST_P(ScalingTest, FactorsFromTheExponentField) {
  for (Orb32s s = -2100; s <= 2100; ++s) {
    const int magnitude = std::abs(s) % 128;
    // 127 taken from the exponent of 1.0 leaves an empty field, which is zero.
    const float wrapped =
        s >= 0 ? (magnitude == 127 ? 0.0f : std::ldexp(1.0f, -magnitude)) : std::ldexp(1.0f, magnitude);
    ASSERT_EQ(Probe().factorModulo128(s), wrapped) << s;
    ASSERT_EQ(Probe().factor_32s32f(s), std::ldexp(1.0f, -std::min(126, std::max(-96, s)))) << s;
    ASSERT_EQ(Probe().factor_16s64f(s), std::ldexp(1.0, -std::min(1022, std::max(-1008, s)))) << s;
  }
  EXPECT_EQ(Probe().factorModulo128(kIntMin), 1.0f);
  EXPECT_EQ(Probe().factorModulo128(kIntMin + 1), std::ldexp(1.0f, 127));
  EXPECT_EQ(Probe().factorModulo128(kIntMax), 0.0f);
  EXPECT_EQ(Probe().factor_32s32f(kIntMin), std::ldexp(1.0f, 96));
  EXPECT_EQ(Probe().factor_32s32f(kIntMax), std::ldexp(1.0f, -126));
  EXPECT_EQ(Probe().factor_16s64f(kIntMin), std::ldexp(1.0, 1008));
  EXPECT_EQ(Probe().factor_16s64f(kIntMax), std::ldexp(1.0, -1022));
}

}  // namespace
}  // namespace orbs::test
