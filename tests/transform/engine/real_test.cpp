// The real transforms and the three layouts of a real signal's spectrum.
#include <algorithm>
#include <limits>

#include "tests/transform/engine/fixture.h"

namespace orbs::test {
namespace {

// Beyond the orders from which the tables have two levels.
constexpr int kMostChecked = kThorough ? 20 : 14;

class FftRealTest : public FftTest {};
ORBS_INSTANTIATE_VARIANTS(FftRealTest);

// The CCS spectrum of one point has no value for n / 2.
size_t LengthOf(SpectrumLayout layout, size_t n) { return layout == kCcs ? std::min(2 * n, n + 2) : n; }

template <class T>
std::vector<T> PermFromSpectrum(const ExactArray& spectrum) {
  const size_t n = spectrum.size();
  std::vector<T> perm(n);
  perm[0] = static_cast<T>(spectrum[0].real());
  if (n > 1) perm[1] = static_cast<T>(spectrum[n / 2].real());
  for (size_t k = 1; k < n / 2; ++k) {
    perm[2 * k] = static_cast<T>(spectrum[k].real());
    perm[2 * k + 1] = static_cast<T>(spectrum[k].imag());
  }
  return perm;
}

// `unread` stands where CCS has its two zeros.
template <class T>
std::vector<T> Arranged(SpectrumLayout layout, const std::vector<T>& perm, T unread = 0) {
  std::vector<T> x = perm;
  const size_t n = perm.size();
  if (layout == kPack && n > 1) {
    x.erase(x.begin() + 1);
    x.push_back(perm[1]);
  }
  if (layout == kCcs && n == 1) x.push_back(unread);
  if (layout == kCcs && n > 1) {
    x[1] = unread;
    x.push_back(perm[1]);
    x.push_back(unread);
  }
  return x;
}

template <class T>
void CheckOrder(const FftAccess& fft, int order) {
  SCOPED_TRACE(std::string(kFftKindNames[RealKind<T>()]) + ", order " + std::to_string(order));
  const size_t n = size_t{1} << order;
  // The result is rounded to T before it is compared: up to half a unit more than the transform's own error.
  const long double limit = ErrorLimit<T>(order);
  const std::vector<T> x = RandomArray<T>(n, static_cast<uint32_t>(order));
  const TestPlan plan(fft, RealKind<T>(), order, FftScaleNone, static_cast<size_t>(order) * 7 % 64);
  const auto expected = PermFromSpectrum<T>(ReferenceForward(ExactArray(x.begin(), x.end())));

  const std::vector<T> perm = Transform(plan, fft.toSpectrum[kPerm][kWidth<T>], x, n);
  EXPECT_LE(RelativeError(perm, expected), limit);
  for (const SpectrumLayout layout : {kPerm, kPack, kCcs}) {
    const OneArray toSpectrum = fft.toSpectrum[layout][kWidth<T>];
    if (toSpectrum == nullptr) continue;
    const std::vector<T> arranged = Arranged(layout, perm);
    const size_t length = LengthOf(layout, n);
    EXPECT_EQ(Transform(plan, toSpectrum, x, length), arranged) << layout;
    if (order > 16) continue;
    for (const CallStyle style : kCallStyles) {
      // The values themselves, since a misaligned array may take another path.
      EXPECT_LE(RelativeError(Transform(plan, toSpectrum, x, length, style), Arranged(layout, expected)),
                limit)
          << layout << style.inPlace << style.givenWork << style.gap;
    }
  }

  // A spectrum of random values is that of a real signal too.
  ExactArray full(n);
  full[0] = x[0];
  if (n > 1) full[n / 2] = x[1];
  for (size_t k = 1; k < n / 2; ++k) {
    full[k] = Exact(x[2 * k], x[2 * k + 1]);
    full[n - k] = std::conj(full[k]);
  }
  const ExactArray signal = InverseFromForward(ReferenceForward(full));
  std::vector<T> exactSignal(n);
  for (size_t i = 0; i < n; ++i) exactSignal[i] = static_cast<T>(signal[i].real());
  for (const SpectrumLayout layout : {kPerm, kPack, kCcs}) {
    const OneArray fromSpectrum = fft.fromSpectrum[layout][kWidth<T>];
    const std::vector<T> arranged = Arranged(layout, x, std::numeric_limits<T>::quiet_NaN());
    EXPECT_LE(RelativeError(Transform(plan, fromSpectrum, arranged, n), exactSignal), limit) << layout;
    if (order > 16) continue;
    for (const CallStyle style : kCallStyles) {
      std::vector<T> y = Transform(plan, fromSpectrum, arranged, n, style);
      EXPECT_LE(RelativeError(y, exactSignal), limit)
          << layout << style.inPlace << style.givenWork << style.gap;
    }
  }
}

TEST_P(FftRealTest, IsTheTransformInEveryOrderLayoutAndPlace) {
  for (int order = 0; order <= kMostChecked; ++order) {
    CheckOrder<Orb32f>(fft, order);
    CheckOrder<Orb64f>(fft, order);
  }
}

template <class T>
void CheckFlags(const FftAccess& fft) {
  for (int order = 0; order <= 13; ++order) {
    const size_t n = size_t{1} << order;
    const std::vector<T> x = RandomArray<T>(n, 9);
    const TestPlan plain(fft, RealKind<T>(), order);
    for (const FlagCase& flagged : FlagCases(n)) {
      SCOPED_TRACE("order " + std::to_string(order) + ", flag " + std::to_string(flagged.flag));
      const TestPlan plan(fft, RealKind<T>(), order, flagged.flag);
      const auto check = [&](OneArray transform, long double divisor) {
        std::vector<T> expected = Transform(plain, transform, x, n);
        for (T& value : expected) value = static_cast<T>(static_cast<long double>(value) / divisor);
        EXPECT_LE(RelativeError(Transform(plan, transform, x, n), expected), ErrorLimit<T>(order));
      };
      check(fft.toSpectrum[kPack][kWidth<T>], flagged.forward);
      check(fft.fromSpectrum[kPerm][kWidth<T>], flagged.inverse);
    }
  }
}

TEST_P(FftRealTest, FlagsScaleTheirDirectionOnce) {
  CheckFlags<Orb32f>(fft);
  CheckFlags<Orb64f>(fft);
}

TEST_P(FftRealTest, LayoutsOfTheSmallestOrdersAreExact) {
  using Reals = std::vector<Orb32f>;
  const struct {
    Reals signal;
    Reals spectrum[kSpectrumLayouts];
  } kCases[] = {
      {{5}, {{5}, {5}, {5, 0}}},
      {{5, 2}, {{7, 3}, {7, 3}, {7, 0, 3, 0}}},
      // R0 = 16, R1 = 1 - 3 = -2, I1 = 8 - 4 = 4, R2 = -8
      {{1, 4, 3, 8}, {{16, -8, -2, 4}, {16, -2, 4, -8}, {16, 0, -2, 4, -8, 0}}},
  };
  for (int order = 0; order <= 2; ++order) {
    const auto& c = kCases[order];
    const size_t n = c.signal.size();
    const TestPlan plan(fft, kR_32f, order);
    const TestPlan scaled(fft, kR_32f, order, FftScaleInvByN);
    for (const SpectrumLayout layout : {kPerm, kPack, kCcs}) {
      const size_t length = LengthOf(layout, n);
      EXPECT_EQ(Transform(plan, fft.toSpectrum[layout][0], c.signal, length), c.spectrum[layout])
          << order << layout;
      EXPECT_EQ(Transform(scaled, fft.fromSpectrum[layout][0], c.spectrum[layout], n), c.signal)
          << order << layout;
    }
  }
}

}  // namespace
}  // namespace orbs::test
