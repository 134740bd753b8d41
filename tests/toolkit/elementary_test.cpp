// Logarithm, exponential and square root.
#include "tests/toolkit/sweep.h"

namespace orbs::test {
namespace {

class ToolkitElementaryTest : public ToolkitTest {
 protected:
  // The largest distance from reference(x), in units of the last place.
  template <class T, class Reference>
  void ExpectAccurate(const std::vector<T>& x, const std::vector<T>& y, const Reference& reference,
                      Wide ulps) {
    Wide worst = 0;
    for (size_t i = 0; i < x.size(); ++i) {
      const Wide expected = reference(Wide(x[i]));
      const Wide error = std::fabs(y[i] - expected) / Ulp<T>(expected);
      if (!(error <= worst)) worst = error;
    }
    RecordProperty("worstUlps", std::to_string(worst));
    EXPECT_LE(worst, ulps);
  }
};
ORBS_INSTANTIATE_VARIANTS(ToolkitElementaryTest);

// ---- Logarithm: in binary64, rounded to binary32 ----

constexpr Wide kLnUlps = 0.5001L;

Expected ReferenceLn(Orb32f x) {
  if (std::signbit(x)) return {-kNan, 0, WarnLogNegative};
  if (std::isnan(x)) return {kNan};
  if (x == 0) return {-kInfinity<Wide>, 0, WarnLogZero};
  return Within<Orb32f>(kLnUlps, std::log(Wide(x)));
}

TEST_P(ToolkitElementaryTest, LnAtEveryLength) {
  const auto ln = [](size_t i, size_t, const Orb32f* x) { return ReferenceLn(x[i]); };
  Sweep(t.VecLn_32f_I, ln, {5, true});
  Sweep(t.VecLn_32f_I, ln, {5, true, Specials<Orb32f>()});
}

TEST_P(ToolkitElementaryTest, LnIsAccurateEverywhereAndNearOne) {
  std::vector<Orb32f> x;
  for (uint32_t bits = 1; bits < 0x7F800000u; bits += 98765) {
    x.push_back(0);
    std::memcpy(&x.back(), &bits, sizeof bits);
  }
  // Around 1 the result is small, around sqrt(2) a series in the mantissa converges worst.
  for (const Orb32f centre : {1.0f, 1.4142135f}) {
    Orb32f below = centre;
    Orb32f above = centre;
    for (int i = 0; i < 3000; ++i) {
      x.push_back(below = std::nextafter(below, 0.0f));
      x.push_back(above = std::nextafter(above, 2.0f));
    }
  }
  for (int exponent = -149; exponent < 128; ++exponent) {
    // Powers of 2, and both sides of where the exponent is split off.
    for (const Orb32f m : {1.0f, 1.4142135f, 1.4142137f}) x.push_back(std::ldexp(m, exponent));
  }
  std::vector<Orb32f> y = x;
  EXPECT_EQ(t.VecLn_32f_I(y.data(), static_cast<Orb32s>(y.size())), StatusOk);
  ExpectAccurate(
      x, y, [](Wide v) { return std::log(v); }, kLnUlps);
}

// ---- Exponential: of less than four elements the C library's, which goes on beyond the thresholds ----

constexpr Wide kExpUlps = 1;
constexpr Orb64f kLowest = -0x1.6232Bp+9;  // from here down 0
constexpr Orb64f kHighest = 0x1.62E42p+9;  // from here up infinite

Expected ReferenceExp(Orb64f x, size_t n) {
  if (std::isnan(x)) return {x, n < 4 ? Wide(1) : Wide(0)};
  if (n >= 4 && x <= kLowest) return {0};
  if (n >= 4 && x >= kHighest) return {kInfinity<Wide>};
  return Within<Orb64f>(kExpUlps, std::exp(Wide(x)));
}

TEST_P(ToolkitElementaryTest, ExpAtEveryLength) {
  const auto reference = [](size_t i, size_t n, const Orb64f* x, const Orb64f*) {
    return ReferenceExp(x[i], n);
  };
  std::vector<double> specials = Specials<Orb64f>();
  for (const double x : {kLowest, std::nextafter(kLowest, 0.0), kHighest, std::nextafter(kHighest, 0.0),
                         709.7825, -708.5, -720.0, -744.0, 710.0, 1e300, -1e300}) {
    specials.push_back(x);
  }
  Sweep(t.VecExp_64f, reference, {1});
  Sweep(t.VecExp_64f, reference, {705, false, specials});
  for (const double x : specials) {
    for (size_t n = 1; n <= 9; ++n) {
      const std::vector<Orb64f> source(n, x);
      std::vector<Orb64f> result(n);
      EXPECT_EQ(t.VecExp_64f(source.data(), result.data(), static_cast<Orb32s>(n)), StatusOk);
      for (const Orb64f& y : result)
        EXPECT_TRUE(Matches(y, ReferenceExp(x, n))) << x << ": " << y << ", n = " << n;
    }
  }
}

TEST_P(ToolkitElementaryTest, ExpIsAccurateBetweenItsThresholds) {
  std::vector<Orb64f> x;
  for (Orb64f v = kLowest + 1e-9; v < kHighest; v += 0.0717171717) x.push_back(v);
  for (int k = -1021; k <= 1023; ++k) {
    // Multiples of ln 2, and half-way between them, where another one is split off.
    for (const Wide half : {0.0L, 0.5L})
      x.push_back(static_cast<Orb64f>((k + half) * 0.693147180559945309417L));
  }
  for (int exponent = -1070; exponent <= 3; ++exponent)
    x.push_back(std::ldexp(exponent % 2 ? 1.3 : -1.3, exponent));
  std::vector<Orb64f> y(x.size());
  EXPECT_EQ(t.VecExp_64f(x.data(), y.data(), static_cast<Orb32s>(x.size())), StatusOk);
  ExpectAccurate(
      x, y, [](Wide v) { return std::exp(v); }, kExpUlps);
}

// ---- Square root ----

TEST_P(ToolkitElementaryTest, Sqrt) {
  const auto reference = [](size_t i, size_t, const Orb64f* x) {
    // Neither -0 nor a NaN is negative.
    if (x[i] < 0) return Expected{-kNan, 0, WarnSqrtNegative};
    if (x[i] == 0) return Expected{x[i]};
    return Within<Orb64f>(1, std::sqrt(Wide(x[i])));
  };
  Sweep(t.VecSqrt_64f_I, reference, {1e-310, true});
  Sweep(t.VecSqrt_64f_I, reference, {1000, true, Specials<Orb64f>()});
  Sweep(t.VecSqrt_64f_I, reference, {1000, true, {-0.0, -std::nan("")}});
}

}  // namespace
}  // namespace orbs::test
