// Real, complex and integer arithmetic.
#include "tests/toolkit/sweep.h"

namespace orbs::test {
namespace {

class ToolkitArithmeticTest : public ToolkitTest {};
ORBS_INSTANTIATE_VARIANTS(ToolkitArithmeticTest);

// binary32 results of one operation are correctly rounded in every variant: the extended precision of px has
// more than twice the bits. binary64 results it rounds a second time.
template <class T>
Expected OneOperation(Wide value) {
  return sizeof(T) == 4 ? Rounded<T>(value) : Within<T>(1, value);
}

// ---- Real ----

template <class T, class Bits>
void CheckMulC(OrbStatus (*mulC)(T, T*, Orb32s), Bits signallingNan, const SweepOptions& options) {
  // 1 leaves even those as they are that a multiplication would make quiet.
  std::vector<Bits> nans(9, signallingNan);
  EXPECT_EQ(mulC(1, reinterpret_cast<T*>(nans.data()), 9), StatusOk);
  EXPECT_EQ(nans, std::vector<Bits>(9, signallingNan));

  for (const T constant : {T(-0.3), T(1), T(0), T(-0.0)}) {
    Sweep([=](T* x, Orb32s n) { return mulC(constant, x, n); },
          [=](size_t i, size_t, const T* x) {
            if (constant == 1) return Expected{x[i]};  // payloads of NaNs too
            if (constant == 0) return Expected{0};     // for a NaN too
            return OneOperation<T>(Wide(x[i]) * constant);
          },
          options);
  }
}

TEST_P(ToolkitArithmeticTest, ConstantsAndSums) {
  for (const double scale : {1000.0, 1e-39}) {  // the second: subnormal binary32
    const SweepOptions options = {scale, false, Specials<Orb32f>()};
    CheckMulC(t.VecMulC_32f_I, uint32_t{0x7F812345}, options);
    CheckMulC(t.VecMulC_64f_I, uint64_t{0x7FF0123456789ABC}, options);
    Sweep(
        t.VecAdd_32f_I,
        [](size_t i, size_t, const Orb32f* a, const Orb32f* b) {
          return OneOperation<Orb32f>(Wide(a[i]) + b[i]);
        },
        options);
  }
}

template <class T>
Expected Quotient(T dividend, T divisor) {
  if (divisor != 0) return OneOperation<T>(Wide(dividend) / divisor);
  // A divisor of -0 counts as 0.
  const bool hasSign = dividend > 0 || dividend < 0;
  return {hasSign ? std::copysign(kInfinity<Wide>, Wide(dividend)) : -kNan, 0, px::WarnDivByZero};
}

template <class T>
void CheckDivision(OrbStatus (*divide)(const T*, const T*, T*, Orb32s),
                   OrbStatus (*divideInPlace)(const T*, T*, Orb32s)) {
  const auto quotient = [](size_t i, size_t, const T* b, const T* a, auto...) {
    return Quotient(a[i], b[i]);
  };
  const SweepOptions options = {1000, false, Specials<T>()};
  Sweep(divide, quotient, options);
  Sweep(divideInPlace, quotient, options);
  Sweep(divideInPlace, quotient);
}

TEST_P(ToolkitArithmeticTest, Division) {
  CheckDivision(t.VecDiv_32f, t.VecDiv_32f_I);
  CheckDivision(t.VecDiv_64f, t.VecDiv_64f_I);
}

// ---- Complex ----

// Both products and the sum may be rounded.
template <class T>
Expected SumOfProducts(Wide p, Wide q) {
  return {p + q, std::numeric_limits<T>::epsilon() * (std::fabs(p) + std::fabs(q))};
}

// (a + ib)(c + id)
template <class T>
ExpectedPair Product(T a, T b, T c, T d) {
  return {SumOfProducts<T>(Wide(a) * c, -Wide(b) * d), SumOfProducts<T>(Wide(a) * d, Wide(b) * c)};
}

template <class Complex>
void CheckComplex(OrbStatus (*mul)(const Complex*, const Complex*, Complex*, Orb32s),
                  OrbStatus (*mulInPlace)(const Complex*, Complex*, Orb32s),
                  OrbStatus (*conj)(const Complex*, Complex*, Orb32s),
                  OrbStatus (*conjInPlace)(Complex*, Orb32s)) {
  const auto product = [](size_t i, size_t, const Complex* a, const Complex* b, auto...) {
    return Product(a[i].re, a[i].im, b[i].re, b[i].im);
  };
  Sweep(mul, product);
  Sweep(mulInPlace, product);

  const auto conjugate = [](size_t i, size_t, const Complex* x, auto...) {
    return ExpectedPair{Expected{x[i].re}, Expected{-Wide(x[i].im)}};
  };
  const SweepOptions options = {1000, false, Specials<decltype(Complex::re)>()};
  Sweep(conj, conjugate, options);
  Sweep(conjInPlace, conjugate, options);
}

TEST_P(ToolkitArithmeticTest, ComplexProductsAndConjugates) {
  CheckComplex(t.VecMul_32fc, t.VecMul_32fc_I, t.VecConj_32fc, t.VecConj_32fc_I);
  CheckComplex(t.VecMul_64fc, t.VecMul_64fc_I, t.VecConj_64fc, t.VecConj_64fc_I);
}

// The Pack layout has its reals at both ends, the Perm layout at the front; pairs stand between them.
template <class T>
void CheckSpectra(OrbStatus (*mulPackConj)(const T*, T*, Orb32s),
                  OrbStatus (*mulPerm)(const T*, T*, Orb32s)) {
  Sweep(mulPackConj, [](size_t i, size_t n, const T* a, const T* b) {
    if (i == 0 || (n % 2 == 0 && i == n - 1)) return OneOperation<T>(Wide(a[i]) * b[i]);
    const size_t re = i - (i - 1) % 2;
    return Product(a[re], a[re + 1], b[re], -b[re + 1])[i - re];
  });
  Sweep(mulPerm, [](size_t i, size_t n, const T* a, const T* b) {
    const size_t reals = n % 2 == 0 ? 2 : 1;
    if (i < reals) return OneOperation<T>(Wide(a[i]) * b[i]);
    const size_t re = i - (i - reals) % 2;
    return Product(a[re], a[re + 1], b[re], b[re + 1])[i - re];
  });
}

TEST_P(ToolkitArithmeticTest, ProductsOfSpectra) {
  CheckSpectra(t.VecMulPackConj_32f_I, t.VecMulPerm_32f_I);
  CheckSpectra(t.VecMulPackConj_64f_I, t.VecMulPerm_64f_I);
}

// ---- Integers ----

TEST_P(ToolkitArithmeticTest, MulSqrt2) {
  const auto reference = [](Orb32s x) {
    return static_cast<Orb32s>((Orb64s{x & 0xFFFF} * 23170 >> 15) + Orb64s{x >> 16} * 46340);
  };
  Sweep(t.VecMulSqrt2_32s_I,
        [&](size_t i, size_t, const Orb32s* x) { return Expected{Wide(reference(x[i]))}; });
  for (const int high : {-32768, -32767, -1, 0, 1, 23170, 32767}) {
    for (const int low : {0, 1, 2, 32767, 32768, 32769, 65534, 65535}) {
      Orb32s x = high * 65536 + low;
      const Orb32s expected = reference(x);
      t.VecMulSqrt2_32s_I(&x, 1);
      EXPECT_EQ(x, expected) << high << ", " << low;
    }
  }
}

TEST_P(ToolkitArithmeticTest, DotIsExact) {
  for (size_t n = 1; n <= 150; ++n) {
    // Random data, then the largest products: the sum of two is 2^31.
    for (const bool largest : {false, true}) {
      const std::vector<Orb16s> least(n, -32768);
      const GuardedArray<Orb16s> a(largest ? least : RandomArray<Orb16s>(n, 1), n % 4);
      const GuardedArray<Orb16s> b(largest ? least : RandomArray<Orb16s>(n, 2), n % 4 / 2);
      GuardedArray<Orb64s> dot(1);
      ASSERT_EQ(t.VecDot_16s64s(a.data(), b.data(), static_cast<Orb32s>(n), dot.data()), StatusOk);
      ASSERT_EQ(dot[0], std::inner_product(a.data(), a.data() + n, b.data(), Orb64s{0})) << n;
      ASSERT_TRUE(dot.GuardsIntact());
    }
  }
  constexpr Orb32s kCount = 3000001;
  const std::vector<Orb16s> least(kCount, -32768);
  const std::vector<Orb16s> most(kCount, 32767);
  Orb64s dot = 0;
  t.VecDot_16s64s(least.data(), least.data(), kCount, &dot);
  EXPECT_EQ(dot, kCount * (Orb64s{1} << 30));
  t.VecDot_16s64s(least.data(), most.data(), kCount, &dot);
  EXPECT_EQ(dot, kCount * Orb64s{-32768} * 32767);
}

}  // namespace
}  // namespace orbs::test
