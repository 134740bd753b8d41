// The complex transforms of up to 2^16 points against a long double one.
#include "tests/transform/engine/fixture.h"

namespace orbs::test {
namespace {

constexpr int kMostChecked = kThorough ? 16 : 14;

class FftComplexTest : public FftTest {};
ORBS_INSTANTIATE_VARIANTS(FftComplexTest);

// The forward transform of RandomSignal(2^order, order), worked out once.
template <class T>
const ExactArray& ReferenceOf(int order) {
  static ExactArray spectra[kMostChecked + 1];
  ExactArray& spectrum = spectra[order];
  if (spectrum.empty()) {
    const auto seed = static_cast<uint32_t>(order);
    spectrum = ReferenceForward(ToExact(RandomSignal<T>(size_t{1} << order, seed)));
  }
  return spectrum;
}

template <class T>
void CheckAccuracy(const FftAccess& fft, FftKind kind) {
  for (int order = 0; order <= kMostChecked; ++order) {
    SCOPED_TRACE(std::string(kFftKindNames[kind]) + ", order " + std::to_string(order));
    const TestPlan plan(fft, kind, order, FftScaleNone, static_cast<size_t>(order) * 5 % 64);
    const Signal<T> x = RandomSignal<T>(size_t{1} << order, static_cast<uint32_t>(order));
    for (const bool inverse : {false, true}) {
      const ExactArray expected = inverse ? InverseFromForward(ReferenceOf<T>(order)) : ReferenceOf<T>(order);
      const Signal<T> y = Transform(plan, inverse, x);
      EXPECT_LE(RelativeError(y, expected), ErrorLimit<T>(order)) << inverse;
      for (const CallStyle style : kCallStyles) {
        EXPECT_LE(RelativeError(Transform(plan, inverse, x, style), expected), ErrorLimit<T>(order))
            << inverse << style.inPlace << style.givenWork << style.gap;
      }
    }
  }
}

TEST_P(FftComplexTest, IsTheTransformInEveryOrderDirectionLayoutAndPlace) {
  CheckAccuracy<Orb32f>(fft, kC_32fc);
  CheckAccuracy<Orb32f>(fft, kC_32f);
  CheckAccuracy<Orb64f>(fft, kC_64fc);
  CheckAccuracy<Orb64f>(fft, kC_64f);
}

// A flag multiplies one direction or both, once: the scaled result is the plain one times the factor.
template <class T>
void CheckFlags(const FftAccess& fft, FftKind kind) {
  for (int order = 0; order <= 13; ++order) {
    SCOPED_TRACE(std::string(kFftKindNames[kind]) + ", order " + std::to_string(order));
    const size_t n = size_t{1} << order;
    const Signal<T> x = RandomSignal<T>(n, 3);
    const TestPlan plain(fft, kind, order);
    for (const FlagCase& flagged : FlagCases(n)) {
      const TestPlan plan(fft, kind, order, flagged.flag);
      for (const bool inverse : {false, true}) {
        ExactArray expected = ToExact(Transform(plain, inverse, x));
        for (Exact& value : expected) value /= inverse ? flagged.inverse : flagged.forward;
        for (const bool inPlace : {false, true}) {
          const Signal<T> y = Transform(plan, inverse, x, {inPlace, true, 0});
          EXPECT_LE(RelativeError(y, expected), ErrorLimit<T>(order)) << flagged.flag << inverse;
        }
      }
    }
  }
}

TEST_P(FftComplexTest, FlagsScaleTheirDirectionOnce) {
  CheckFlags<Orb32f>(fft, kC_32fc);
  CheckFlags<Orb32f>(fft, kC_32f);
  CheckFlags<Orb64f>(fft, kC_64fc);
  CheckFlags<Orb64f>(fft, kC_64f);
}

TEST_P(FftComplexTest, TheRootOfTwoIsRoundedToTheElement) {
  const TestPlan plan32(fft, kC_32fc, 1, FftScaleBySqrtN);
  const Signal<Orb32f> y32 = Transform<Orb32f>(plan32, false, {{1, 0}, {0, 0}});
  EXPECT_EQ(y32[0].real(), 0.70710678118654752440f);
  EXPECT_EQ(y32[1].real(), 0.70710678118654752440f);
  const TestPlan plan64(fft, kC_64f, 1, FftScaleBySqrtN);
  const Signal<Orb64f> y64 = Transform<Orb64f>(plan64, true, {{1, 0}, {0, 0}});
  EXPECT_EQ(y64[0].real(), 0.70710678118654752440);
  EXPECT_EQ(y64[1].real(), 0.70710678118654752440);
}

TEST_P(FftComplexTest, PlanAndWorkLieAtAnyAddress) {
  for (const FftKind kind : {kC_32fc, kC_64f}) {
    for (const int order : {3, 6, 9, 11, 13}) {
      for (size_t gap = 0; gap < 64; gap += order < 10 ? 1 : 9) {
        const TestPlan plan(fft, kind, order, FftScaleNone, gap);
        if (Is64f(kind)) {
          const Signal<Orb64f> x(size_t{1} << order, {1, 0});
          EXPECT_EQ(Transform(plan, false, x, {true, true, 0})[0].real(), static_cast<Orb64f>(x.size()))
              << gap;
        } else {
          const Signal<Orb32f> x(size_t{1} << order, {1, 0});
          EXPECT_EQ(Transform(plan, false, x, {true, true, 0})[0].real(), static_cast<Orb32f>(x.size()))
              << gap;
        }
      }
    }
  }
}

}  // namespace
}  // namespace orbs::test
