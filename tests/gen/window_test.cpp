// Blackman and Kaiser windows against their formulas, with a Bessel function summed from its power series.
#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "tests/support/bad_calls.h"
#include "tests/support/export_test.h"
#include "tests/support/guarded_array.h"
#include "tests/support/lengths.h"
#include "tests/support/random_data.h"
#include "tests/support/rows.h"

namespace orbs::test {
namespace {

const std::initializer_list<int> kLongLengths = {479, 480, 481, 482, 1000, 4097, 30000};

long double BlackmanValue(int n, int length, Orb32s alphaQ15) {
  const long double alpha = alphaQ15 / 32768.0L;
  const long double turn = 2 * kPi * n / (length - 1);
  return (alpha + 1) / 2 - std::cos(turn) / 2 - alpha / 2 * std::cos(2 * turn);
}

// I0(x) exp(-x): the sum of (x/2)^2k / k!^2.
long double ScaledBesselI0(long double x) {
  long double term = std::exp(-x);
  long double sum = term;
  for (int k = 1; k < x || term > sum * 1e-18L; ++k) {
    term *= x * x / (4.0L * k * k);
    sum += term;
  }
  return sum;
}

long double KaiserValue(int n, int length, Orb32s alphaQ15) {
  const long double alpha = std::abs(alphaQ15 / 32768.0L);
  const long double x = alpha * std::sqrt(static_cast<long double>(n) * (length - 1 - n));
  const long double beta = alpha * (length - 1) / 2;
  return ScaledBesselI0(x) / ScaledBesselI0(beta) * std::exp(x - beta);
}

// ---- Every form of a window as a function of one shape ----

struct Blackman {
  static constexpr const char* kName = "Blackman";
  static constexpr int kShortest = 3;
  static constexpr auto real = legacy90orbsWinBlackmanQ15_16s;
  static constexpr auto complex = legacy90orbsWinBlackmanQ15_16sc;
  static constexpr auto realInPlace = legacy90orbsWinBlackmanQ15_16s_I;
  static constexpr auto complexInPlace = legacy90orbsWinBlackmanQ15_16sc_I;
  static constexpr auto value = BlackmanValue;
};

struct Kaiser {
  static constexpr const char* kName = "Kaiser";
  static constexpr int kShortest = 1;
  static constexpr auto real = legacy90orbsWinKaiserQ15_16s;
  static constexpr auto complex = legacy90orbsWinKaiserQ15_16sc;
  static constexpr auto realInPlace = legacy90orbsWinKaiserQ15_16s_I;
  static constexpr auto complexInPlace = legacy90orbsWinKaiserQ15_16sc_I;
  static constexpr auto value = KaiserValue;
};

class WindowTest : public ExportTest {
 protected:
  // The largest distance of a result from the exact product.
  template <class Window>
  long double WorstError(int length, Orb32s alphaQ15) {
    const auto source = RandomArray<Orb16s>(static_cast<size_t>(length), 3);
    std::vector<Orb16s> out(source.size());
    EXPECT_EQ(Window::real(source.data(), out.data(), length, alphaQ15), StatusOk);
    long double worst = 0;
    const int step = length > 1000 ? 37 : 1;  // the reference is slow
    for (int n = 0; n < length; n += step) {
      const auto i = static_cast<size_t>(n);
      const bool middle = 2 * n == length - 1;
      const long double exact = middle ? source[i] : source[i] * Window::value(n, length, alphaQ15);
      worst = std::max(worst, std::abs(out[i] - LimitedTo16Bits(exact)));
    }
    return worst;
  }

  // One call against the others: in place, complex, and within guards.
  template <class Window>
  void ExpectFormsAgree(int length, Orb32s alphaQ15) {
    const auto n = static_cast<size_t>(length);
    const size_t gap = n % 7;
    const auto samples = RandomArray<Orb16sc>(n, 4);
    std::vector<Orb16s> re;
    std::vector<Orb16s> im;
    for (const Orb16sc& x : samples) re.push_back(x.re), im.push_back(x.im);

    const GuardedArray<Orb16s> in(re, gap);
    GuardedArray<Orb16s> outRe(n, gap);
    ASSERT_EQ(Window::real(in.data(), outRe.data(), length, alphaQ15), StatusOk);
    ASSERT_TRUE(outRe.GuardsIntact()) << length;
    GuardedArray<Orb16s> outIm(im, gap);
    ASSERT_EQ(Window::realInPlace(outIm.data(), length, alphaQ15), StatusOk);
    ASSERT_TRUE(outIm.GuardsIntact()) << length;

    const GuardedArray<Orb16sc> complexIn(samples, gap);
    GuardedArray<Orb16sc> complexOut(n, gap);
    ASSERT_EQ(Window::complex(complexIn.data(), complexOut.data(), length, alphaQ15), StatusOk);
    ASSERT_TRUE(complexOut.GuardsIntact()) << length;
    GuardedArray<Orb16sc> complexInPlace(samples, gap);
    ASSERT_EQ(Window::complexInPlace(complexInPlace.data(), length, alphaQ15), StatusOk);
    ASSERT_TRUE(complexInPlace.GuardsIntact()) << length;
    for (size_t i = 0; i < n; ++i) {
      ASSERT_EQ(complexOut[i].re, outRe[i]) << i << " of " << length;
      ASSERT_EQ(complexOut[i].im, outIm[i]) << i << " of " << length;
      ASSERT_EQ(complexInPlace[i].re, outRe[i]) << i << " of " << length;
      ASSERT_EQ(complexInPlace[i].im, outIm[i]) << i << " of " << length;
    }
  }

  template <class Window>
  void ExpectSymmetry(int length, Orb32s alphaQ15) {
    std::vector<Orb16s> x(static_cast<size_t>(length), 32767);
    ASSERT_EQ(Window::realInPlace(x.data(), length, alphaQ15), StatusOk);
    const std::vector<Orb16s> reversed(x.rbegin(), x.rend());
    EXPECT_EQ(x, reversed) << length;
  }
};
ORBS_INSTANTIATE_VARIANTS(WindowTest);

// ---- Blackman ----

TEST_P(WindowTest, BlackmanFollowsTheFormula) {
  for (const Orb32s alphaQ15 : {-5243, 0, 8192, 40000, -70000}) {
    for (const int length : Lengths(270, kLongLengths)) {
      if (length < Blackman::kShortest) continue;
      // px: the window value in fixed point is rounded before the product is; for long arrays the rotation
      // drifts.
      const long double fixedPoint = 1.05L + length * 1e-4L;
      const long double floatingPoint = 0.51L + 0.05L * std::abs(alphaQ15) / 32768;
      ASSERT_LE(WorstError<Blackman>(length, alphaQ15), IsPx() ? fixedPoint : floatingPoint)
          << length << ", alpha " << alphaQ15;
    }
  }
}

// The 30-bit procedure step by step, alpha in Q30.
TEST_P(WindowTest, BlackmanOfPxIsExactInFixedPoint) {
  if (!IsPx()) return;
  for (const Orb32s alphaQ15 : {-5243, 0, 12345, -40000, 65535}) {
    for (const int length : {3, 4, 5, 64, 255, 1000, 5001}) {
      const auto source = RandomArray<Orb16s>(static_cast<size_t>(length), 5);
      std::vector<Orb16s> expected = source;
      const double c = std::cos(6.283185307179586 / (length - 1));
      const double s = std::sqrt(1 - c * c);
      const auto cQ = static_cast<Orb64s>(c * 1073741824);
      const auto sQ = static_cast<Orb64s>(s * 1073741824);
      const Orb64s a = (Orb64s{alphaQ15} + 32768) * 16384;
      const Orb64s b = Orb64s{alphaQ15} * 32768;
      Orb64s u = 1 << 30;
      Orb64s v = 0;
      for (int n = 0; n < length / 2; ++n) {
        const Orb64s t = (u * u) >> 30;
        const Orb64s w30 = a - ((b * t - b * (1 << 29)) >> 30) - (u >> 1);
        const Orb64s w = (w30 + 16384) >> 15;
        for (const int i : {n, length - 1 - n}) {
          Orb16s& x = expected[static_cast<size_t>(i)];
          x = static_cast<Orb16s>(std::min<Orb64s>(32767, std::max<Orb64s>(-32768, (x * w + 16384) >> 15)));
        }
        const Orb64s next = (u * cQ - v * sQ) >> 30;
        v = (u * sQ + v * cQ) >> 30;
        u = next;
      }
      std::vector<Orb16s> out(source.size());
      legacy90orbsWinBlackmanQ15_16s(source.data(), out.data(), length, alphaQ15);
      EXPECT_EQ(out, expected) << length << ", alpha " << alphaQ15;
    }
  }
}

TEST_P(WindowTest, BlackmanEndsAreZeroWhateverTheArguments) {
  for (const Orb32s alphaQ15 : {kLeast, -1000000007, -5243, 0, 33333333, kMost}) {
    for (const int length : {3, 4, 17, 500}) {
      for (const Orb32s scaleFactor : {0, -31, -200, kLeast}) {
        std::vector<Orb16s> x(static_cast<size_t>(length), -32768);
        std::vector<Orb16s> scaled = x;
        legacy90orbsWinBlackmanQ15_16s_I(x.data(), length, alphaQ15);
        legacy90orbsWinBlackmanQ15_16s_ISfs(scaled.data(), length, alphaQ15, scaleFactor);
        EXPECT_EQ(x.front(), 0);
        EXPECT_EQ(x.back(), 0);
        EXPECT_EQ(scaled.front(), 0) << alphaQ15 << ", " << scaleFactor;
        EXPECT_EQ(scaled.back(), 0) << alphaQ15 << ", " << scaleFactor;
        if (length == 3) {
          EXPECT_EQ(x[1], -32768);
        }
      }
    }
  }
}

TEST_P(WindowTest, BlackmanWithScaleFactor) {
  for (const int length : {3, 4, 5, 31, 64, 257, 600}) {
    const auto source = RandomArray<Orb16s>(static_cast<size_t>(length), 6);
    for (const Orb32s scaleFactor :
         {0, 1, 3, 14, 15, 16, 17, 30, 31, 200, kMost, -1, -4, -15, -200, kLeast}) {
      GuardedArray<Orb16s> x(source, static_cast<size_t>(length) % 3);
      ASSERT_EQ(legacy90orbsWinBlackmanQ15_16s_ISfs(x.data(), length, -5243, scaleFactor), StatusOk);
      ASSERT_TRUE(x.GuardsIntact());
      const int exponent = scaleFactor < -2000 ? 2000 : scaleFactor > 2000 ? -2000 : -scaleFactor;
      for (int n = 0; n < length; ++n) {
        const auto i = static_cast<size_t>(n);
        const bool middle = 2 * n == length - 1;
        // The ends are 0 however the cosine of a turn is rounded.
        const long double w = middle ? 1 : n == 0 || n == length - 1 ? 0 : BlackmanValue(n, length, -5243);
        const long double y = LimitedTo16Bits(std::ldexp(source[i] * w, exponent));
        ASSERT_LE(std::abs(x[i] - y), 0.5L + 0.02L * std::max(1.0, std::exp2(std::min(20, exponent))))
            << n << " of " << length << ", scale factor " << scaleFactor;
        if (middle) {
          ASSERT_EQ(x[i], std::round(y)) << length << ", scale factor " << scaleFactor;
        }
      }
    }
  }
}

// ---- Kaiser ----

// Half a unit, and what binary32 adds to it.
constexpr long double kKaiserError = 0.53L;

TEST_P(WindowTest, KaiserFollowsTheFormula) {
  // beta from next to nothing to its limit, by length.
  for (const long double beta : {1e-3L, 0.5L, 3.7L, 3.8L, 8.0L, 20.0L, 95.0L, 307.9L}) {
    for (const int length : {2, 3, 4, 5, 8, 9, 16, 33, 64, 241, 480, 1001, 30000}) {
      const long double alphaQ15 = 32768 * 2 * beta / (length - 1);
      if (alphaQ15 < 1) continue;
      for (const int sign : {1, -1}) {
        const auto alpha = sign * static_cast<Orb32s>(alphaQ15);
        ASSERT_LE(WorstError<Kaiser>(length, alpha), kKaiserError) << length << ", alpha " << alpha;
      }
    }
  }
}

TEST_P(WindowTest, KaiserOfZeroAlphaOrOneSampleChangesNothing) {
  for (int length = 1; length <= 300; ++length) {
    auto x = RandomArray<Orb16s>(static_cast<size_t>(length), 7);
    const auto source = x;
    ASSERT_EQ(legacy90orbsWinKaiserQ15_16s_I(x.data(), length, 0), StatusOk);
    ASSERT_EQ(x, source) << length;
  }
  for (const Orb32s alphaQ15 : {kLeast, kMost}) {
    Orb16s x = -12345;
    ASSERT_EQ(legacy90orbsWinKaiserQ15_16s_I(&x, 1, alphaQ15), StatusOk);
    EXPECT_EQ(x, -12345);
  }
}

// ---- Both ----

TEST_P(WindowTest, FormsAgreeForEveryLength) {
  for (const int length : Lengths(270, kLongLengths)) {
    ExpectFormsAgree<Kaiser>(length, length == 1 ? 9 : 8 * 32768 / (length - 1));
    if (length >= 3) ExpectFormsAgree<Blackman>(length, -5243);
  }
}

TEST_P(WindowTest, ValuesAreSymmetrical) {
  for (const int length : {3, 4, 15, 16, 17, 239, 240, 241, 1000, 10001}) {
    ExpectSymmetry<Blackman>(length, -5243);
    ExpectSymmetry<Kaiser>(length, 12 * 32768 / length);
  }
}

template <class Window>
void CheckStatuses() {
  CheckBadCalls(NamedFunction{"real", Window::real}, NamedFunction{"complex", Window::complex},
                NamedFunction{"real in place", Window::realInPlace},
                NamedFunction{"complex in place", Window::complexInPlace});
  GuardedArray<Orb16s> real(4);
  GuardedArray<Orb16sc> complex(4);
  constexpr Orb32s kTooShort = Window::kShortest - 1;
  EXPECT_EQ(Window::real(nullptr, real.data(), kTooShort, kMost), StatusNullPointer);
  EXPECT_EQ(Window::real(real.data(), real.data(), kTooShort, kMost), StatusSize);
  EXPECT_EQ(Window::complex(complex.data(), complex.data(), kTooShort, kMost), StatusSize);
  EXPECT_EQ(Window::realInPlace(real.data(), kTooShort, kMost), StatusSize);
  EXPECT_EQ(Window::complexInPlace(complex.data(), kTooShort, kMost), StatusSize);
  EXPECT_TRUE(real.Untouched());
  EXPECT_TRUE(complex.Untouched());
}

TEST_P(WindowTest, BadArgumentsGiveTheirStatusAndWriteNothing) {
  ForEachRow<Blackman, Kaiser>([](auto window) { CheckStatuses<decltype(window)>(); });
  EXPECT_EQ(legacy90orbsWinBlackmanQ15_16s_ISfs(nullptr, 2, 0, 0), StatusNullPointer);
  GuardedArray<Orb16s> real(3);
  GuardedArray<Orb16sc> complex(3);
  EXPECT_EQ(legacy90orbsWinBlackmanQ15_16s_ISfs(real.data(), 2, 0, 0), StatusSize);

  // |alpha| (len - 1) / 2 is |alpha| here.
  for (const Orb32s alphaQ15 : {308 * 32768 + 1, -308 * 32768 - 1, kMost, kLeast}) {
    EXPECT_EQ(legacy90orbsWinKaiserQ15_16s(real.data(), real.data(), 3, alphaQ15), StatusKaiserAlpha);
    EXPECT_EQ(legacy90orbsWinKaiserQ15_16sc(complex.data(), complex.data(), 3, alphaQ15), StatusKaiserAlpha);
    EXPECT_EQ(legacy90orbsWinKaiserQ15_16s_I(real.data(), 3, alphaQ15), StatusKaiserAlpha);
    EXPECT_EQ(legacy90orbsWinKaiserQ15_16sc_I(complex.data(), 3, alphaQ15), StatusKaiserAlpha);
  }
  EXPECT_TRUE(real.Untouched());
  EXPECT_TRUE(complex.Untouched());
  EXPECT_EQ(legacy90orbsWinKaiserQ15_16s_I(real.data(), 3, -308 * 32768), StatusOk);
}

}  // namespace
}  // namespace orbs::test
