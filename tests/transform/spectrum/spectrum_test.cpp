// Spreading and products of 16-bit spectra. The references go the other way round than the library: they hold
// spectra as complex numbers, k = 0 to n/2, and put them into a layout by listing its elements in order.
#include <algorithm>
#include <cstdlib>
#include <numeric>
#include <random>
#include <vector>

#include "tests/support/bad_calls.h"
#include "tests/support/export_test.h"
#include "tests/support/guarded_array.h"
#include "tests/support/lengths.h"
#include "tests/support/random_data.h"
#include "tests/support/rows.h"

namespace orbs::test {
namespace {

using Samples = std::vector<Orb16s>;

constexpr Orb16s kLowest = -32768;
constexpr Orb16s kHighest = 32767;

// Around the blocks of the kernels, odd and even, and some of many blocks.
const std::vector<int> kLengths = Lengths(140, {255, 256, 257, 1000, 1001, 4097});

enum class Layout { kCcs, kPack, kPerm };
constexpr const char* kLayoutNames[] = {"CCS", "Pack", "Perm"};
const char* NameOf(Layout layout) { return kLayoutNames[static_cast<int>(layout)]; }

// A spectrum of a signal of `length` points. 16-bit parts, in a type that products fit into.
struct Spectrum {
  int length;
  std::vector<int> re;
  std::vector<int> im;

  explicit Spectrum(int n) : length(n), re(Count()), im(Count()) {}
  size_t Count() const { return static_cast<size_t>(length / 2) + 1; }
  bool HasTop() const { return length % 2 == 0; }

  // Random parts, one in four of them at a bound. In a real signal's spectrum X[0] and X[n/2] are real.
  static Spectrum Random(int n, uint32_t seed, bool real = true) {
    std::mt19937 engine(seed);
    const auto part = [&engine] {
      const uint32_t kind = engine() % 8;
      return kind == 0 ? kLowest : kind == 1 ? kHighest : RandomValue<Orb16s>(engine);
    };
    Spectrum x(n);
    for (size_t k = 0; k < x.Count(); ++k) {
      x.re[k] = part();
      x.im[k] = part();
    }
    if (real) {
      x.im[0] = 0;
      if (x.HasTop()) x.im.back() = 0;
    }
    return x;
  }
};

Samples Packed(const Spectrum& x, Layout layout) {
  Samples packed;
  const auto push = [&packed](int part) { packed.push_back(static_cast<Orb16s>(part)); };
  const size_t pairs = x.Count() - (x.HasTop() ? 1 : 0);
  push(x.re[0]);
  if (layout == Layout::kCcs) push(x.im[0]);
  if (layout == Layout::kPerm && x.HasTop()) push(x.re.back());
  for (size_t k = 1; k < pairs; ++k) {
    push(x.re[k]);
    push(x.im[k]);
  }
  if (layout != Layout::kPerm && x.HasTop()) push(x.re.back());
  if (layout == Layout::kCcs && x.HasTop()) push(x.im.back());
  return packed;
}

// The parts of the full spectrum.
Samples Full(const Spectrum& x) {
  Samples full;
  const auto push = [&full](int re, int im) {
    full.push_back(static_cast<Orb16s>(re));
    full.push_back(static_cast<Orb16s>(std::min<int>(im, kHighest)));
  };
  const auto n = static_cast<size_t>(x.length);
  for (size_t k = 0; k < n; ++k) {
    if (k < x.Count()) {
      push(x.re[k], x.im[k]);
    } else {
      push(x.re[n - k], -x.im[n - k]);
    }
  }
  return full;
}

// The rule of the scale factor in numbers, not in shifts: 62 bits hold every value on the way.
int Scaled(int64_t x, int64_t scaleFactor) {
  const int64_t power = int64_t{1} << std::abs(scaleFactor) % 32;
  int64_t y = x * power;
  if (scaleFactor > 0) {
    y = x / power;
    if (y * power > x) --y;  // division rounds toward zero
  }
  return static_cast<int>(std::clamp<int64_t>(y, kLowest, kHighest));
}

Spectrum Product(const Spectrum& a, const Spectrum& b, Orb32s scaleFactor) {
  Spectrum product(a.length);
  for (size_t k = 0; k < a.Count(); ++k) {
    const int64_t ar = a.re[k], ai = a.im[k];
    const int64_t br = b.re[k], bi = b.im[k];
    const bool leftOut = ar == kLowest && bi == kLowest;
    product.re[k] = Scaled(ar * br - ai * bi, scaleFactor);
    product.im[k] = Scaled(ar * bi + (leftOut ? 0 : ai * br), scaleFactor);
  }
  return product;
}

class SpectrumTest : public ExportTest {};
ORBS_INSTANTIATE_VARIANTS(SpectrumTest);

// ---- Spreading ----

// The six functions seen as functions on parts.
const Orb16sc* Complex(const Orb16s* p) { return reinterpret_cast<const Orb16sc*>(p); }
Orb16sc* Complex(Orb16s* p) { return reinterpret_cast<Orb16sc*>(p); }

OrbStatus Spread(Layout layout, const Orb16s* src, Orb16s* dst, Orb32s len) {
  switch (layout) {
    case Layout::kCcs:
      return legacy90orbsConjCcs_16sc(Complex(src), Complex(dst), len);
    case Layout::kPack:
      return legacy90orbsConjPack_16sc(src, Complex(dst), len);
    default:
      return legacy90orbsConjPerm_16sc(src, Complex(dst), len);
  }
}

OrbStatus SpreadInPlace(Layout layout, Orb16s* srcDst, Orb32s len) {
  switch (layout) {
    case Layout::kCcs:
      return legacy90orbsConjCcs_16sc_I(Complex(srcDst), len);
    case Layout::kPack:
      return legacy90orbsConjPack_16sc_I(Complex(srcDst), len);
    default:
      return legacy90orbsConjPerm_16sc_I(Complex(srcDst), len);
  }
}

constexpr Layout kLayouts[] = {Layout::kCcs, Layout::kPack, Layout::kPerm};

TEST_P(SpectrumTest, SpreadingGivesTheFullSpectrum) {
  for (int length : kLengths) {
    for (Layout layout : kLayouts) {
      SCOPED_TRACE(testing::Message() << NameOf(layout) << ", length " << length);
      const size_t gap = 2 * (static_cast<size_t>(length) % 5);
      // CCS keeps what stands in the two places that are 0 for a real signal.
      const auto x = Spectrum::Random(length, static_cast<uint32_t>(length), layout != Layout::kCcs);
      const Samples packed = Packed(x, layout);
      const Samples full = Full(x);

      const GuardedArray<Orb16s> src(packed, gap);
      GuardedArray<Orb16s> dst(full.size(), gap);
      ASSERT_EQ(Spread(layout, src.data(), dst.data(), length), StatusOk);
      ASSERT_EQ(dst.values(), full);
      ASSERT_TRUE(dst.GuardsIntact());
      ASSERT_EQ(src.values(), packed);

      const auto startInPlace = [&] {
        dst.Refill();
        // For n = 1 and 2 CCS is the whole spectrum and no shorter.
        std::copy(packed.begin(), packed.end(), dst.data());
      };
      startInPlace();
      ASSERT_EQ(SpreadInPlace(layout, dst.data(), length), StatusOk);
      ASSERT_EQ(dst.values(), full);
      ASSERT_TRUE(dst.GuardsIntact());
      startInPlace();
      ASSERT_EQ(Spread(layout, dst.data(), dst.data(), length), StatusOk);
      ASSERT_EQ(dst.values(), full);
      ASSERT_TRUE(dst.GuardsIntact());
    }
  }
}

// ---- Products ----

using MulFunction = OrbStatus (*)(const Orb16s*, const Orb16s*, Orb16s*, Orb32s, Orb32s);
using MulInPlaceFunction = OrbStatus (*)(const Orb16s*, Orb16s*, Orb32s, Orb32s);

struct Mul {
  Layout layout;
  MulFunction function;
  MulInPlaceFunction inPlace;
};

constexpr Mul kMuls[] = {{Layout::kPack, legacy90orbsMulPack_16s_Sfs, legacy90orbsMulPack_16s_ISfs},
                         {Layout::kPerm, legacy90orbsMulPerm_16s_Sfs, legacy90orbsMulPerm_16s_ISfs}};

// Both forms, and the result in the place of either source, against the reference.
void CheckProduct(const Mul& mul, const Spectrum& a, const Spectrum& b, Orb32s scaleFactor, size_t gap = 0) {
  SCOPED_TRACE(testing::Message() << NameOf(mul.layout) << ", length " << a.length << ", scale factor "
                                  << scaleFactor);
  const Orb32s n = a.length;
  const Samples expected = Packed(Product(a, b, scaleFactor), mul.layout);
  GuardedArray<Orb16s> src1(Packed(a, mul.layout), gap);
  GuardedArray<Orb16s> src2(Packed(b, mul.layout), gap + 1);
  GuardedArray<Orb16s> dst(expected.size(), gap);
  ASSERT_EQ(mul.function(src1.data(), src2.data(), dst.data(), n, scaleFactor), StatusOk);
  ASSERT_EQ(dst.values(), expected);
  ASSERT_TRUE(dst.GuardsIntact());
  ASSERT_EQ(src1.values(), Packed(a, mul.layout));
  ASSERT_EQ(src2.values(), Packed(b, mul.layout));

  GuardedArray<Orb16s> srcDst(src2.values(), gap);
  ASSERT_EQ(mul.inPlace(src1.data(), srcDst.data(), n, scaleFactor), StatusOk);
  ASSERT_EQ(srcDst.values(), expected);
  ASSERT_TRUE(srcDst.GuardsIntact());

  ASSERT_EQ(mul.function(src1.data(), src2.data(), src1.data(), n, scaleFactor), StatusOk);
  ASSERT_EQ(src1.values(), expected);
}

TEST_P(SpectrumTest, ProductsOfEveryLength) {
  for (const Mul& mul : kMuls) {
    for (int length : kLengths) {
      const auto seed = static_cast<uint32_t>(length);
      const auto a = Spectrum::Random(length, seed);
      const auto b = Spectrum::Random(length, seed + 5000);
      for (Orb32s scaleFactor : {0, 15, -3}) {
        ASSERT_NO_FATAL_FAILURE(CheckProduct(mul, a, b, scaleFactor, seed % 5));
      }
    }
  }
}

// Every pair of factors whose parts come from the values where products overflow, saturate or change sign.
std::pair<Spectrum, Spectrum> ExtremeFactors() {
  constexpr int kParts[] = {kLowest, -32767, -1, 0, 1, kHighest};
  Spectrum a(2 * 6 * 6 * 6 * 6 + 1);
  Spectrum b(a.length);
  size_t k = 1;
  for (int ar : kParts) {
    for (int ai : kParts) {
      for (int br : kParts) {
        for (int bi : kParts) {
          a.re[k] = ar;
          a.im[k] = ai;
          b.re[k] = br;
          b.im[k++] = bi;
        }
      }
    }
  }
  return {a, b};
}

TEST_P(SpectrumTest, ProductsOfExtremesWithEveryScaleFactor) {
  const auto [a, b] = ExtremeFactors();
  std::vector<Orb32s> scaleFactors(81);
  std::iota(scaleFactors.begin(), scaleFactors.end(), -40);
  for (Orb32s s : {63, 64, 65, -63, -64, -65, 1000, -1000}) scaleFactors.push_back(s);
  for (Orb32s distance : {0, 1, 2, 31, 32}) {
    scaleFactors.push_back(kMost - distance);
    scaleFactors.push_back(kLeast + distance);
  }
  for (Orb32s scaleFactor : scaleFactors) {
    for (const Mul& mul : kMuls) ASSERT_NO_FATAL_FAILURE(CheckProduct(mul, a, b, scaleFactor));
    // The real terms: 2^30, and a number that rounds.
    Spectrum c(20);
    Spectrum d(20);
    c.re.front() = d.re.front() = kLowest;
    c.re.back() = -3;
    d.re.back() = 1;
    for (const Mul& mul : kMuls) ASSERT_NO_FATAL_FAILURE(CheckProduct(mul, c, d, scaleFactor));
  }
}

TEST_P(SpectrumTest, ProductsByHand) {
  const auto product = [](const Mul& mul, Samples a, Samples b, Orb32s scaleFactor) {
    EXPECT_EQ(mul.inPlace(a.data(), b.data(), static_cast<Orb32s>(b.size()), scaleFactor), StatusOk);
    return b;
  };
  for (const Mul& mul : kMuls) {
    // All -32768: re is 0, and im 2^30 instead of 2^31.
    const Samples lowest(7, kLowest);
    EXPECT_EQ(product(mul, lowest, lowest, 0), (Samples{kHighest, 0, kHighest, 0, kHighest, 0, kHighest}));
    EXPECT_EQ(product(mul, lowest, lowest, 16), (Samples{16384, 0, 16384, 0, 16384, 0, 16384}));
    // What is left out is the second product of im: with the factors exchanged it is the first and stays.
    EXPECT_EQ(product(mul, {0, kLowest, 16384}, {0, 16384, kLowest}, 17)[2], 8192);
    EXPECT_EQ(product(mul, {0, 16384, kLowest}, {0, kLowest, 16384}, 17)[2], 8192 + 2048);
    // Shifts round down, in all terms.
    EXPECT_EQ(product(mul, {-3}, {1}, 1), (Samples{-2}));
    EXPECT_EQ(product(mul, {-3, 5}, {1, -1}, 1), (Samples{-2, -3}));
    EXPECT_EQ(product(mul, {1, -3, 5}, {1, 1, 0}, 1), (Samples{0, -2, 2}));
    EXPECT_EQ(product(mul, {1, -3, 5}, {1, 1, 0}, 31), (Samples{0, -1, 0}));
    EXPECT_EQ(product(mul, {1, -3, 5}, {1, 1, 0}, 33), (Samples{0, -2, 2}));
    EXPECT_EQ(product(mul, {1, -3, 5}, {1, 1, 0}, -1), (Samples{2, -6, 10}));
  }
  // (3 + 4i)(1 + 2i) = -5 + 10i between two real terms and behind them.
  EXPECT_EQ(product(kMuls[0], {2, 3, 4, 5}, {7, 1, 2, 11}, 0), (Samples{14, -5, 10, 55}));
  EXPECT_EQ(product(kMuls[1], {2, 5, 3, 4}, {7, 11, 1, 2}, 0), (Samples{14, 55, -5, 10}));
}

// ---- Statuses ----

TEST_P(SpectrumTest, BadArgumentsGiveTheirStatusAndWriteNothing) {
  CheckBadCalls(ORBS_NAMED(legacy90orbsConjCcs_16sc), ORBS_NAMED(legacy90orbsConjPack_16sc),
                ORBS_NAMED(legacy90orbsConjPerm_16sc), ORBS_NAMED(legacy90orbsConjCcs_16sc_I),
                ORBS_NAMED(legacy90orbsConjPack_16sc_I), ORBS_NAMED(legacy90orbsConjPerm_16sc_I),
                ORBS_NAMED(legacy90orbsMulPack_16s_Sfs), ORBS_NAMED(legacy90orbsMulPack_16s_ISfs),
                ORBS_NAMED(legacy90orbsMulPerm_16s_Sfs), ORBS_NAMED(legacy90orbsMulPerm_16s_ISfs));
}

}  // namespace
}  // namespace orbs::test
