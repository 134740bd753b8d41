// Large transforms against a long double one, and by properties: what a delta becomes, what a shift and a sum
// do, that nothing of the energy is lost.
#include "tests/transform/engine/fixture.h"

namespace orbs::test {
namespace {

class FftLargeTest : public FftTest {};
ORBS_INSTANTIATE_VARIANTS(FftLargeTest);

// With both directions scaled; further down neither is.
template <class T>
void CheckAgainstReference(const FftAccess& fft, FftKind interleaved, FftKind split, int order) {
  const Signal<T> x = RandomSignal<T>(size_t{1} << order, 1);
  ExactArray expected = ReferenceForward(ToExact(x));
  for (Exact& value : expected) value /= std::sqrt(static_cast<long double>(x.size()));
  for (const FftKind kind : {interleaved, split}) {
    SCOPED_TRACE(std::string(kFftKindNames[kind]) + ", order " + std::to_string(order));
    const TestPlan plan(fft, kind, order, FftScaleBySqrtN);
    EXPECT_LE(RelativeError(Transform(plan, false, x), expected), ErrorLimit<T>(order));
    const Signal<T> inverse = Transform(plan, true, x, {true, false, 1});
    EXPECT_LE(RelativeError(inverse, InverseFromForward(expected)), ErrorLimit<T>(order));
  }
}

// From the first order that any variant cuts into rows and columns to the first that nests this.
TEST_P(FftLargeTest, IsTheTransformWhereItIsCutIntoRowsAndColumns) {
  for (int order = kThorough ? 17 : 16; order <= (kThorough ? 20 : 16); ++order) {
    CheckAgainstReference<Orb32f>(fft, kC_32fc, kC_32f, order);
    CheckAgainstReference<Orb64f>(fft, kC_64fc, kC_64f, order);
  }
}

// Each array of a split pair may be source and result by itself.
TEST_P(FftLargeTest, OneArrayOfASplitPairCanStayInPlace) {
  for (const int order : {6, 12, kThorough ? 19 : 16}) {
    const Signal<Orb32f> x = RandomSignal<Orb32f>(size_t{1} << order, 2);
    const TestPlan plan(fft, kC_32f, order);
    CallWork work(plan, true);
    const Signal<Orb32f> expected = Transform(plan, false, x);
    for (const bool realInPlace : {false, true}) {
      std::vector<Orb32f> re(x.size());
      std::vector<Orb32f> im(x.size());
      std::vector<Orb32f> other(x.size());
      for (size_t i = 0; i < x.size(); ++i) {
        re[i] = x[i].real();
        im[i] = x[i].imag();
      }
      std::vector<Orb32f>& outRe = realInPlace ? re : other;
      std::vector<Orb32f>& outIm = realInPlace ? other : im;
      ASSERT_EQ(fft.split[0][0](re.data(), im.data(), outRe.data(), outIm.data(), plan.Get(), work.Get()),
                StatusOk);
      Signal<Orb32f> y(x.size());
      for (size_t i = 0; i < x.size(); ++i) y[i] = {outRe[i], outIm[i]};
      EXPECT_LE(RelativeError(y, ToExact(expected)), ErrorLimit<Orb32f>(order)) << order << realInPlace;
    }
  }
}

template <class T>
void CheckProperties(const FftAccess& fft, FftKind kind, int order) {
  SCOPED_TRACE(std::string(kFftKindNames[kind]) + ", order " + std::to_string(order));
  const size_t n = size_t{1} << order;
  const TestPlan plan(fft, kind, order, FftScaleInvByN);
  const long double limit = ErrorLimit<T>(order);

  // A delta at p becomes the wave exp(-2 pi i k p / n).
  const size_t p = n / 3 * 2 + 1;
  Signal<T> delta(n);
  delta[p] = {1, 0};
  const Signal<T> wave = Transform(plan, false, delta);
  long double worst = 0;
  for (size_t k = 0; k < n; k += 1 + n / 65521) {
    worst = std::max(worst, std::abs(Exact(wave[k]) - std::conj(UnitRoot(k * p % n, n))));
  }
  EXPECT_LE(worst, 5 * limit);

  // The energy of random data, and the way back with the division by n.
  const Signal<T> x = RandomSignal<T>(n, static_cast<uint32_t>(order));
  const Signal<T> y = Transform(plan, false, x);
  long double energyOfX = 0;
  long double energyOfY = 0;
  for (size_t i = 0; i < n; ++i) {
    energyOfX += std::norm(Exact(x[i]));
    energyOfY += std::norm(Exact(y[i]));
  }
  EXPECT_NEAR(static_cast<double>(energyOfY / energyOfX) / static_cast<double>(n), 1,
              static_cast<double>(limit));
  EXPECT_LE(RelativeError(Transform(plan, true, y, {true, true, 0}), x), 2 * limit);

  // The same signal a quarter later and twice as large, plus the delta: y[k] turned by -i for each k, plus
  // the wave.
  Signal<T> mixed(n);
  for (size_t i = 0; i < n; ++i) mixed[(i + n / 4) % n] = T{2} * x[i];
  mixed[p] += T{1};
  const Signal<T> z = Transform(plan, false, mixed, {true, false, 1});
  const Exact turns[4] = {{1, 0}, {0, -1}, {-1, 0}, {0, 1}};
  ErrorMeter meter;
  for (size_t k = 0; k < n; ++k) meter.Add(Exact(z[k]), 2.0L * turns[k % 4] * Exact(y[k]) + Exact(wave[k]));
  EXPECT_LE(meter.Relative(), 2 * limit);
}

TEST_P(FftLargeTest, HasThePropertiesOfATransform) {
  for (const int order : {4, 8, 11, 14}) {
    CheckProperties<Orb32f>(fft, kC_32fc, order);
    CheckProperties<Orb32f>(fft, kC_32f, order);
    CheckProperties<Orb64f>(fft, kC_64fc, order);
    CheckProperties<Orb64f>(fft, kC_64f, order);
  }
  if (!kThorough) return;
  CheckProperties<Orb32f>(fft, kC_32fc, GetParam() == Variant::h9 ? 24 : 21);
  CheckProperties<Orb64f>(fft, kC_64fc, GetParam() == Variant::h9 ? 22 : 21);
}

}  // namespace
}  // namespace orbs::test
