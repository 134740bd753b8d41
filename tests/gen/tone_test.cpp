// Tones against the cosine itself, in extended precision.
#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <type_traits>
#include <vector>

#include "tests/gen/tone_forms.h"
#include "tests/support/effort.h"
#include "tests/support/export_test.h"
#include "tests/support/failing_allocator.h"
#include "tests/support/guarded_array.h"
#include "tests/support/lengths.h"
#include "tests/support/rows.h"

namespace orbs::test {
namespace {

constexpr long double kTwoPi = 2 * kPi;

template <class Sample>
using Function = OrbStatus (*)(Sample*, Orb32s, Part<Sample>, Real<Sample>, Real<Sample>*, OrbAlgHint);

template <class Check>
void ForEachForm(const Check& check) {
  ForEachFunction(check, ORBS_NAMED(legacy90orbsTone_Direct_32f), ORBS_NAMED(legacy90orbsTone_Direct_64f),
                  ORBS_NAMED(legacy90orbsTone_Direct_32fc), ORBS_NAMED(legacy90orbsTone_Direct_64fc),
                  ORBS_NAMED(legacy90orbsTone_Direct_16s), ORBS_NAMED(legacy90orbsTone_Direct_16sc));
}

template <class Sample>
Sample Exact(long double magn, double rFreq, double phase, long long n) {
  const long double angle = kTwoPi * std::fmod(static_cast<long double>(n) * rFreq, 1.0L) + phase;
  const auto part = [&](long double y) { return static_cast<Part<Sample>>(magn * y); };
  if constexpr (kIsComplex<Sample>) {
    return {part(std::cos(angle)), part(std::sin(angle))};
  } else {
    return part(std::cos(angle));
  }
}

// What the header promises, and the rounding to the type; 16-bit samples are cut after that.
template <class Sample>
double Tolerance(OrbAlgHint hint, double magn) {
  if (std::is_same_v<Part<Sample>, Orb64f>) return 1e-12 * magn;
  if (hint == HintFast) return 2e-5 * magn;
  return (std::is_same_v<Part<Sample>, Orb16s> ? 1e-10 : 1e-7) * magn;
}

// What the samples of a tone are held against; imaginary parts only where there are some.
template <class Sample>
std::vector<Orb64fc> ExactSamples(double magn, double rFreq, double phase, size_t count) {
  std::vector<Orb64fc> exact;
  for (long long n = 0; n < static_cast<long long>(count); ++n) {
    if constexpr (kIsComplex<Sample>) {
      exact.push_back(Exact<Orb64fc>(magn, rFreq, phase, n));
    } else {
      exact.push_back({Exact<Orb64f>(magn, rFreq, phase, n), 0});
    }
  }
  return exact;
}

template <class Sample>
bool IsSample(Sample y, double magn, Orb64fc exact, OrbAlgHint hint) {
  const double error = Tolerance<Sample>(hint, magn);
  if constexpr (kIsComplex<Sample>) {
    return IsDelivered(y.re, exact.re, error) && IsDelivered(y.im, exact.im, error);
  } else {
    return IsDelivered(y, exact.re, error);
  }
}

class ToneTest : public ExportTest {};
ORBS_INSTANTIATE_VARIANTS(ToneTest);

template <class Sample>
void CheckFormula(Function<Sample> tone) {
  using T = Real<Sample>;
  // At 3e-4 the binary32 coefficient of the recurrence is as far off as it can be.
  std::vector<double> frequencies = {0,         1e-9, 3e-4,      0.0123, 0.0625,   0.125,
                                     0.1250001, 0.3,  0.2499999, 0.25,   0.4999999};
  if (kIsComplex<Sample>) frequencies.insert(frequencies.end(), {0.5, 0.6250001, 0.9999999});
  const auto magn = static_cast<Part<Sample>>(31234);
  constexpr size_t kCount = Effort(2900, 1600);  // the last block with segments of full length
  std::vector<Sample> dst(kCount);
  for (double frequency : frequencies) {
    const auto rFreq = static_cast<T>(frequency);
    for (T start : {T(0), T(1.25), T(kLastPhase)}) {
      const auto exact = ExactSamples<Sample>(magn, rFreq, start, kCount);
      for (OrbAlgHint hint : {HintNone, HintFast, HintAccurate}) {
        T phase = start;
        ASSERT_EQ(tone(dst.data(), kCount, magn, rFreq, &phase, hint), StatusOk);
        for (size_t i = 0; i < kCount; ++i) {
          ASSERT_TRUE(IsSample(dst[i], magn, exact[i], hint))
              << "frequency " << rFreq << " phase " << start << " hint " << hint << " sample " << i;
        }
      }
    }
  }
}

TEST_P(ToneTest, EverySampleIsTheCosineOfItsAngle) {
  ForEachForm([](auto tone) { CheckFormula(tone); });
}

// The same samples whatever the length, and nothing outside the array.
template <class Sample>
void CheckLengths(Function<Sample> tone) {
  using T = Real<Sample>;
  const auto magn = static_cast<Part<Sample>>(1000);
  const auto rFreq = static_cast<T>(0.0371);
  const auto lengths = Lengths(300, {511, 512, 513, 700, 1023, 1024, 1025, 1087, 1088, 2048, 2050});
  const auto exact = ExactSamples<Sample>(magn, rFreq, 0.5, 2050);
  for (OrbAlgHint hint : {HintFast, HintAccurate}) {
    for (int length : lengths) {
      const auto n = static_cast<size_t>(length);
      GuardedArray<Sample> dst(n, n % 3);
      T phase = T(0.5);
      ASSERT_EQ(tone(dst.data(), length, magn, rFreq, &phase, hint), StatusOk);
      ASSERT_TRUE(dst.GuardsIntact()) << length;
      for (size_t i = 0; i < n; ++i) {
        ASSERT_TRUE(IsSample(dst[i], magn, exact[i], hint)) << length << " " << i;
      }
    }
  }
}

TEST_P(ToneTest, EveryLengthAndAlignment) {
  ForEachForm([](auto tone) { CheckLengths(tone); });
}

TEST_P(ToneTest, TenMillionSamplesKeepFrequencyAndAmplitude) {
  constexpr Orb32s kCount = Effort(10'000'000, 1'000'000);
  std::vector<Orb32f> real(kCount);
  std::vector<Orb32fc> complex(kCount);
  for (OrbAlgHint hint : {HintAccurate, HintFast}) {
    // A quarter, where the roots of the recurrence coincide; a low tone; one without a property.
    for (Orb32f rFreq : {0.25f, 0.0001f, 0.1234567f}) {
      Orb32f phase = 1;
      Orb32f phaseOfPairs = 1;
      ASSERT_EQ(legacy90orbsTone_Direct_32f(real.data(), kCount, 1, rFreq, &phase, hint), StatusOk);
      ASSERT_EQ(legacy90orbsTone_Direct_32fc(complex.data(), kCount, 1, rFreq, &phaseOfPairs, hint),
                StatusOk);
      // The recurrence of px runs on over all of them.
      const double drift = IsPx() ? 1e-5 : 0;
      const double tolerance = Tolerance<Orb32f>(hint, 1) + drift;
      for (Orb32s i = 0; i < kCount; i += 997) {
        const auto at = static_cast<size_t>(i);
        ASSERT_LE(Distance(real[at], Exact<Orb32f>(1, rFreq, 1, i)), tolerance) << rFreq << " " << i;
        ASSERT_LE(Distance(complex[at], Exact<Orb32fc>(1, rFreq, 1, i)), tolerance) << rFreq << " " << i;
      }
      EXPECT_EQ(phase, phaseOfPairs);
    }
  }
}

// In binary64, where an angle that has lost bits on the way shows; a second call tells the stored phase.
TEST_P(ToneTest, AMillionSamplesKeepEveryBitOfTheAngle) {
  constexpr Orb32s kCount = Effort(1'000'000, 200'000);
  constexpr Orb32s kMore = 100;
  const double tolerance = IsPx() ? 1e-8 : 1e-12;
  std::vector<Orb64f> dst(kCount + kMore);
  for (const Orb64f rFreq : {0.4567891234567, 0.0123456789}) {
    Orb64f phase = 1;
    legacy90orbsTone_Direct_64f(dst.data(), kCount, 1, rFreq, &phase, HintNone);
    legacy90orbsTone_Direct_64f(dst.data() + kCount, kMore, 1, rFreq, &phase, HintNone);
    for (Orb32s i = 0; i < kCount; i += 997)
      ASSERT_NEAR(dst[static_cast<size_t>(i)], Exact<Orb64f>(1, rFreq, 1, i), tolerance) << rFreq << " " << i;
    for (Orb32s i = kCount; i < kCount + kMore; ++i)
      ASSERT_NEAR(dst[static_cast<size_t>(i)], Exact<Orb64f>(1, rFreq, 1, i), 2e-12) << rFreq << " " << i;
  }
}

// Calls of all lengths after one another against one tone; the stored phase is all that connects them.
TEST_P(ToneTest, CallsContinueOneAnother) {
  std::mt19937 engine(7);
  for (const double rFreq : {0.0009765, 0.123456789, 0.49}) {
    Orb64f phase = 2;
    Orb64f phaseOfPairs = 2;
    long long position = 0;
    for (int call = 0; call < Effort(200, 40); ++call) {
      const auto n = static_cast<size_t>(engine() % 700 + 1);
      std::vector<Orb64f> real(n);
      std::vector<Orb64fc> complex(n);
      const auto length = static_cast<Orb32s>(n);
      legacy90orbsTone_Direct_64f(real.data(), length, 3, rFreq, &phase, HintNone);
      legacy90orbsTone_Direct_64fc(complex.data(), length, 3, rFreq, &phaseOfPairs, HintNone);
      for (size_t i = 0; i < n; ++i, ++position) {
        ASSERT_LE(Distance(real[i], Exact<Orb64f>(3, rFreq, 2, position)), 1e-11);
        ASSERT_LE(Distance(complex[i], Exact<Orb64fc>(3, rFreq, 2, position)), 1e-11);
      }
    }
  }

  std::vector<Orb32f> inTwo(200);
  std::vector<Orb32f> inOne(200);
  Orb32f phase = 0.25f;
  legacy90orbsTone_Direct_32f(inTwo.data(), 100, 1, 0.0137f, &phase, HintNone);
  legacy90orbsTone_Direct_32f(inTwo.data() + 100, 100, 1, 0.0137f, &phase, HintNone);
  phase = 0.25f;
  legacy90orbsTone_Direct_32f(inOne.data(), 200, 1, 0.0137f, &phase, HintNone);
  for (size_t i = 0; i < 200; ++i) EXPECT_NEAR(inTwo[i], inOne[i], 1e-6) << i;
}

TEST_P(ToneTest, TheStoredPhaseIsAlwaysLegal) {
  Orb16s sample[4];
  // 4 rFreq is one turn less 3.75e-7, and the phase leaves 3.5e-8 of that: in binary32, 2 pi.
  Orb32f phase = 3.4e-7f;
  ASSERT_EQ(legacy90orbsTone_Direct_16s(sample, 4, 1, 0.24999999f, &phase, HintNone), StatusOk);
  EXPECT_EQ(phase, 0);

  std::mt19937 engine(3);
  std::uniform_real_distribution<float> frequencies(0, 0.4999999f);
  std::vector<Orb32f> dst(3);
  phase = 0;
  for (int i = 0; i < 20000; ++i) {
    ASSERT_EQ(legacy90orbsTone_Direct_32f(dst.data(), 3, 1, frequencies(engine), &phase, HintFast), StatusOk);
  }
}

TEST_P(ToneTest, FrequencyZeroIsConstantAndAQuarterHasExactExtremes) {
  std::vector<Orb16s> dst(1100);
  for (OrbAlgHint hint : {HintFast, HintAccurate}) {
    Orb32f phase = kLastPhase;
    ASSERT_EQ(legacy90orbsTone_Direct_16s(dst.data(), 1100, 32767, 0, &phase, hint), StatusOk);
    EXPECT_EQ(phase, kLastPhase);
    const Orb16s constant = dst[0];
    EXPECT_GE(constant, 32766);  // binary32 carries the cosine to 1
    EXPECT_EQ(dst, std::vector<Orb16s>(1100, constant));

    phase = 0;
    ASSERT_EQ(legacy90orbsTone_Direct_16s(dst.data(), 1100, 32767, 0.25f, &phase, hint), StatusOk);
    constexpr Orb16s kPeriod[] = {32767, 0, -32767, 0};
    for (size_t i = 0; i < 1100; ++i) ASSERT_EQ(dst[i], kPeriod[i % 4]) << i;

    phase = 0;
    ASSERT_EQ(legacy90orbsTone_Direct_16s(dst.data(), 1100, 1, 0.0371f, &phase, hint), StatusOk);
    EXPECT_EQ(dst[0], 1);
    EXPECT_EQ(std::vector<Orb16s>(dst.begin() + 1, dst.begin() + 99), std::vector<Orb16s>(98, 0));
  }
}

TEST_P(ToneTest, LargeAndTinyMagnitudesStayInRange) {
  const auto largest = std::numeric_limits<Orb64f>::max() / 2;
  std::vector<Orb64f> wide(100);
  Orb64f phase = 0;
  ASSERT_EQ(legacy90orbsTone_Direct_64f(wide.data(), 100, largest, 0.01, &phase, HintFast), StatusOk);
  for (size_t i = 0; i < 100; ++i) ASSERT_NEAR(wide[i] / largest, Exact<Orb64f>(1, 0.01, 0, int(i)), 1e-12);

  std::vector<Orb32f> narrow(100);
  for (float magn : {3e38f, 1e-38f}) {
    for (OrbAlgHint hint : {HintFast, HintAccurate}) {
      Orb32f start = 0;
      ASSERT_EQ(legacy90orbsTone_Direct_32f(narrow.data(), 100, magn, 0.01f, &start, hint), StatusOk);
      for (size_t i = 0; i < 100; ++i)
        ASSERT_NEAR(narrow[i] / magn, Exact<Orb64f>(1, 0.01f, 0, int(i)), 2e-5);
    }
  }
}

template <class Sample>
void CheckStatuses(Function<Sample> tone) {
  using T = Real<Sample>;
  GuardedArray<Sample> dst(4);
  const Part<Sample> good = 1;
  const T limit = kIsComplex<Sample> ? T(1) : T(0.5);
  const T wrong[] = {T(-1e-30), limit, T(kNan)};
  const auto call = [&](Sample* to, Orb32s len, Part<Sample> magn, T rFreq, T phase) {
    const T before = phase;
    const OrbStatus status = tone(to, len, magn, rFreq, &phase, HintNone);
    EXPECT_EQ(std::memcmp(&phase, &before, sizeof phase), 0);
    return status;
  };
  // Each line has one fault more in front.
  EXPECT_EQ(call(dst.data(), 0, good, T(0.1), 0), StatusSize);
  EXPECT_EQ(call(nullptr, 0, good, T(0.1), 0), StatusNullPointer);
  for (T phase : {T(-1e-30), T(6.2831855f), T(kNan)}) {
    EXPECT_EQ(call(nullptr, 0, good, T(0.1), phase), StatusTonePhase) << phase;
    for (T rFreq : wrong) EXPECT_EQ(call(nullptr, 0, good, rFreq, phase), StatusToneFrequency) << rFreq;
  }
  EXPECT_EQ(call(nullptr, 0, 0, limit, 7), StatusToneMagnitude);
  EXPECT_EQ(call(nullptr, 0, static_cast<Part<Sample>>(-1), limit, 7), StatusToneMagnitude);
  if (std::is_floating_point_v<Part<Sample>>) {
    EXPECT_EQ(call(nullptr, 0, static_cast<Part<Sample>>(T(kNan)), limit, 7), StatusToneMagnitude);
  }
  EXPECT_EQ(tone(nullptr, 0, 0, limit, nullptr, HintNone), StatusNullPointer);
  EXPECT_TRUE(dst.Untouched());

  T phase = std::nextafter(static_cast<T>(kTwoPi), T(0));
  if (std::is_same_v<T, Orb32f>) phase = T(kLastPhase);
  EXPECT_EQ(tone(dst.data(), 4, good, std::nextafter(limit, T(0)), &phase, HintNone), StatusOk);
}

TEST_P(ToneTest, ChecksInTheirOrder) {
  ForEachForm([](auto tone) { CheckStatuses(tone); });
}

// ---- Q15 parameters ----

Orb16s ExactQ15(Orb16s magn, Orb16s rFreqQ15, Orb32s phaseQ15, long long n) {
  const long double turns = static_cast<long double>(n % 32768 * rFreqQ15 % 32768) / 32768;
  return static_cast<Orb16s>(std::round(magn * std::cos(kTwoPi * turns + phaseQ15 / 32768.0L)));
}

TEST_P(ToneTest, Q15BlocksAreRoundedCosinesOfEveryLength) {
  for (Orb16s rFreq : {0, 1, 4096, 8192, 10923, 16383}) {
    for (Orb32s phase : {0, 51472, kLastPhaseQ15}) {
      for (int length : {1, 2, 15, 16, 17, 31, 33, 1000}) {
        const auto n = static_cast<size_t>(length);
        GuardedArray<Orb16s> dst(n, n % 3);
        ASSERT_EQ(legacy90orbsToneQ15_Direct_16s(dst.data(), length, 32767, rFreq, phase), StatusOk);
        ASSERT_TRUE(dst.GuardsIntact());
        for (size_t i = 0; i < n; ++i)
          ASSERT_EQ(dst[i], ExactQ15(32767, rFreq, phase, static_cast<long long>(i))) << rFreq << " " << i;
      }
    }
  }
}

TEST_P(ToneTest, AStateGoesOnAtAnyAddress) {
  for (size_t offset : {0, 1, 4, 7}) {
    StateMemory<48> memory;
    auto* state = reinterpret_cast<ToneState*>(memory.bytes + offset);
    ASSERT_EQ(legacy90orbsToneInitQ15_16s(state, 20000, 777, 1234), StatusOk);
    ASSERT_TRUE(memory.HoldsNothingBut(offset));
    std::vector<Orb16s> one(3000);
    legacy90orbsToneQ15_Direct_16s(one.data(), 3000, 20000, 777, 1234);
    std::vector<Orb16s> many =
        InPieces(3000, [&](Orb16s* dst, Orb32s n) { return legacy90orbsToneQ15_16s(dst, n, state); });
    EXPECT_EQ(many, one);
    EXPECT_EQ(legacy90orbsToneFree(state), StatusOk);  // leaves it usable
    EXPECT_EQ(legacy90orbsToneQ15_16s(many.data(), 1, state), StatusOk);
  }
}

TEST_P(ToneTest, APositionBeyondItsRangeGoesOnWithoutABreak) {
  alignas(8) unsigned char memory[48];
  auto* state = reinterpret_cast<ToneState*>(memory);
  ASSERT_EQ(legacy90orbsToneInitQ15_16s(state, 32767, 12345, 99), StatusOk);
  Orb16s dst[64];
  legacy90orbsToneQ15_16s(dst, 1, state);
  const Orb32s position = INT32_MAX - 20;
  std::memcpy(memory + 32, &position, sizeof position);
  long long n = position;
  for (int call = 0; call < 2; ++call) {
    ASSERT_EQ(legacy90orbsToneQ15_16s(dst, 64, state), StatusOk);
    for (Orb16s sample : dst) EXPECT_NEAR(sample, ExactQ15(32767, 12345, 99, n++), 1);
  }
}

TEST_P(ToneTest, StatusesOfTheQ15Forms) {
  GuardedArray<Orb16s> dst(4);
  EXPECT_EQ(legacy90orbsToneQ15_Direct_16s(nullptr, 0, 0, -1, -1), StatusNullPointer);
  EXPECT_EQ(legacy90orbsToneQ15_Direct_16s(dst.data(), 0, 0, -1, -1), StatusSize);

  unsigned char memory[48];
  std::memset(memory, 0, sizeof memory);
  auto* state = reinterpret_cast<ToneState*>(memory);
  ToneState* made = state;
  const auto expect = [&](Orb16s magn, Orb16s rFreq, Orb32s phase, OrbStatus status) {
    EXPECT_EQ(legacy90orbsToneQ15_Direct_16s(dst.data(), 4, magn, rFreq, phase), status);
    EXPECT_EQ(legacy90orbsToneInitQ15_16s(state, magn, rFreq, phase), status);
    EXPECT_EQ(legacy90orbsToneInitAllocQ15_16s(&made, magn, rFreq, phase), status);
  };
  expect(0, -1, -1, StatusToneMagnitude);
  expect(-5, 0, 0, StatusToneMagnitude);
  expect(1, -1, -1, StatusToneFrequency);
  expect(1, 16384, -1, StatusToneFrequency);
  expect(1, 16383, -1, StatusTonePhase);
  expect(1, 16383, kLastPhaseQ15 + 1, StatusTonePhase);
  EXPECT_TRUE(dst.Untouched());
  EXPECT_EQ(made, state);
  EXPECT_EQ(legacy90orbsToneInitQ15_16s(nullptr, 0, -1, -1), StatusNullPointer);
  EXPECT_EQ(legacy90orbsToneInitAllocQ15_16s(nullptr, 0, -1, -1), StatusNullPointer);

  // Still zeros: no state.
  EXPECT_EQ(legacy90orbsToneQ15_16s(nullptr, 0, state), StatusNullPointer);
  EXPECT_EQ(legacy90orbsToneQ15_16s(dst.data(), 0, nullptr), StatusNullPointer);
  EXPECT_EQ(legacy90orbsToneQ15_16s(dst.data(), 0, state), StatusSize);
  EXPECT_EQ(legacy90orbsToneQ15_16s(dst.data(), 1, state), StatusContextMismatch);
  EXPECT_EQ(legacy90orbsToneFree(state), StatusContextMismatch);
  EXPECT_EQ(legacy90orbsToneFree(nullptr), StatusNullPointer);

  Orb32s size = 0;
  EXPECT_EQ(legacy90orbsToneGetStateSizeQ15_16s(&size), StatusOk);
  EXPECT_EQ(size, 48);
  EXPECT_EQ(legacy90orbsToneGetStateSizeQ15_16s(nullptr), StatusNullPointer);
}

TEST_P(ToneTest, AllocatedStatesAreReleased) {
  FailEachAllocation(orbsSetAllocator, [](FailingAllocator& heap) {
    ToneState* state = nullptr;
    const OrbStatus status = legacy90orbsToneInitAllocQ15_16s(&state, 100, 8192, 0);
    EXPECT_EQ(heap.Alive(), state == nullptr ? 0 : 1);
    if (status != StatusOk) return status;
    Orb16s dst[4];
    EXPECT_EQ(legacy90orbsToneQ15_16s(dst, 4, state), StatusOk);
    EXPECT_EQ(std::vector<Orb16s>(dst, dst + 4), (std::vector<Orb16s>{100, 0, -100, 0}));
    EXPECT_EQ(legacy90orbsToneFree(state), StatusOk);
    return status;
  });
}

}  // namespace
}  // namespace orbs::test
