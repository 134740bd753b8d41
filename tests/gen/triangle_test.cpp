// Triangles against the two lines of their definition, in extended precision.
#include <cmath>
#include <cstring>
#include <limits>
#include <random>
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

constexpr Orb32f kLastAsymmetry = 3.1415925f;  // and below pi
constexpr Orb32s kLastAsymmetryQ15 = 102943;

template <class Sample>
using Function = OrbStatus (*)(Sample*, Orb32s, Part<Sample>, Real<Sample>, Real<Sample>, Real<Sample>*);

template <class Check>
void ForEachForm(const Check& check) {
  ForEachFunction(check, ORBS_NAMED(legacy90orbsTriangle_Direct_32f),
                  ORBS_NAMED(legacy90orbsTriangle_Direct_64f), ORBS_NAMED(legacy90orbsTriangle_Direct_32fc),
                  ORBS_NAMED(legacy90orbsTriangle_Direct_64fc), ORBS_NAMED(legacy90orbsTriangle_Direct_16s),
                  ORBS_NAMED(legacy90orbsTriangle_Direct_16sc));
}

struct Wave {
  double magn;
  double rFreq;
  double asym;
  double phase;

  long double ShorterFlank() const { return (kPi - std::fabs(static_cast<long double>(asym))) / (2 * kPi); }

  // How far sample n is, in turns, from an end of a flank.
  long double FromPeak(long long n, bool ahead) const {
    const long double a = (kPi + asym) / (2 * kPi);
    const long double t = Turns(n, ahead);
    return std::min({t, 1 - t, std::fabs(t - a)});
  }

  long double Exact(long long n, bool ahead) const {
    const long double a = (kPi + asym) / (2 * kPi);
    const long double t = Turns(n, ahead);
    return magn * (t < a ? 1 - 2 * t / a : 2 * (t - a) / (1 - a) - 1);
  }

 private:
  long double Turns(long long n, bool ahead) const {
    const long double start = phase / (2 * kPi) + (ahead ? (1 + (kPi + asym) / (2 * kPi)) / 2 : 0);
    return std::fmod(start + std::fmod(static_cast<long double>(n) * rFreq, 1.0L), 1.0L);
  }
};

// A sample may be off by what an error of the place in the period makes of it on the shorter flank, and is
// then rounded to its type or cut. Next to the ends of a flank that is next to nothing, anything inside the
// range is right.
template <class T>
void ExpectPart(T y, const Wave& wave, long long n, bool ahead) {
  constexpr double kPlaceError = 1e-14;
  const auto magn = static_cast<long double>(wave.magn);
  ASSERT_LE(std::fabs(static_cast<long double>(y)), magn * (1 + 1e-12L)) << n;
  if (wave.ShorterFlank() < 1e-6 && wave.FromPeak(n, ahead) < 1e-6) return;
  const long double steepest = wave.ShorterFlank() < 1e-6 ? 4 : 2 / wave.ShorterFlank();
  const long double rounding = std::is_same_v<T, Orb32f> ? 6e-8 : 1e-15;
  ASSERT_TRUE(IsDelivered(y, wave.Exact(n, ahead), magn * (rounding + kPlaceError * steepest)))
      << y << " at frequency " << wave.rFreq << " asymmetry " << wave.asym << " phase " << wave.phase
      << " sample " << n;
}

template <class Sample>
void ExpectSample(Sample y, const Wave& wave, long long n) {
  if constexpr (kIsComplex<Sample>) {
    ExpectPart(y.re, wave, n, false);
    ExpectPart(y.im, wave, n, true);
  } else {
    ExpectPart(y, wave, n, false);
  }
}

class TriangleTest : public ExportTest {};
ORBS_INSTANTIATE_VARIANTS(TriangleTest);

template <class Sample>
void CheckFormula(Function<Sample> triangle) {
  using T = Real<Sample>;
  std::vector<double> asymmetries = {0, 1, -2.5, 3.14, kLastAsymmetry, -kLastAsymmetry};
  if (std::is_same_v<T, Orb64f>) {
    // The bounds of binary64: falling takes no time, rising takes none.
    asymmetries.push_back(static_cast<double>(-kPi));
    asymmetries.push_back(std::nextafter(static_cast<double>(kPi), 0));
  }
  const auto magn = static_cast<Part<Sample>>(31234);
  constexpr Orb32s kCount = Effort(2400, 600);
  std::vector<Sample> dst(kCount);
  for (double asym : asymmetries) {
    for (double rFreq : {0.0, 1e-9, 0.00321, 0.046875, 0.31, 0.4999999}) {
      for (double start : {0.0, 1.25, static_cast<double>(kLastPhase)}) {
        const Wave wave = {static_cast<double>(magn), static_cast<T>(rFreq), static_cast<T>(asym),
                           static_cast<T>(start)};
        T phase = static_cast<T>(start);
        ASSERT_EQ(triangle(dst.data(), kCount, magn, static_cast<T>(rFreq), static_cast<T>(asym), &phase),
                  StatusOk);
        for (size_t i = 0; i < dst.size(); ++i) {
          ASSERT_NO_FATAL_FAILURE(ExpectSample(dst[i], wave, static_cast<long long>(i)));
        }
      }
    }
  }
}

TEST_P(TriangleTest, EverySampleLiesOnTheWave) {
  ForEachForm([](auto triangle) { CheckFormula(triangle); });
}

template <class Sample>
void CheckLengths(Function<Sample> triangle) {
  using T = Real<Sample>;
  const auto magn = static_cast<Part<Sample>>(1000);
  const auto rFreq = static_cast<T>(0.0371);
  const Wave wave = {1000, rFreq, 0.5, 0.25};
  for (int length : Lengths(70, {1023, 1024, 1025, 2050})) {
    const auto n = static_cast<size_t>(length);
    GuardedArray<Sample> dst(n, n % 3);
    T phase = T(0.25);
    ASSERT_EQ(triangle(dst.data(), length, magn, rFreq, T(0.5), &phase), StatusOk);
    ASSERT_TRUE(dst.GuardsIntact()) << length;
    for (size_t i = 0; i < n; ++i)
      ASSERT_NO_FATAL_FAILURE(ExpectSample(dst[i], wave, static_cast<long long>(i)));
  }
}

TEST_P(TriangleTest, EveryLengthAndAlignment) {
  ForEachForm([](auto triangle) { CheckLengths(triangle); });
}

TEST_P(TriangleTest, PeaksAndTiesAreExactWhereTheWavesNumbersAre) {
  std::vector<Orb16s> cut(2000);
  Orb32f phase = 0;
  ASSERT_EQ(legacy90orbsTriangle_Direct_16s(cut.data(), 2000, 1, 0.25f, 0, &phase), StatusOk);
  EXPECT_EQ(phase, 0);
  constexpr Orb16s kQuarters[] = {1, 0, -1, 0};
  for (size_t i = 0; i < cut.size(); ++i) ASSERT_EQ(cut[i], kQuarters[i % 4]) << i;

  // 4 magn pi needs more bits than extended precision has.
  for (const Orb16s magn : {3, 6957, 32767}) {
    phase = 0;
    ASSERT_EQ(legacy90orbsTriangle_Direct_16s(cut.data(), 2000, magn, 0.375f, 0, &phase), StatusOk);
    const auto half = static_cast<Orb16s>(magn / 2);
    const auto minus = [](int y) { return static_cast<Orb16s>(-y); };
    const Orb16s eighths[] = {magn, minus(half), 0, half, minus(magn), half, 0, minus(half)};
    for (size_t i = 0; i < cut.size(); ++i) ASSERT_EQ(cut[i], eighths[i % 8]) << magn << " " << i;
  }

  // Eighths of magnitude 1: every second sample is half an integer.
  alignas(8) unsigned char memory[136];
  auto* state = reinterpret_cast<TriangleState*>(memory);
  ASSERT_EQ(legacy90orbsTriangleInitQ15_16s(state, 1, 4096, 0, 0), StatusOk);
  constexpr Orb16s kEighths[] = {1, 1, 0, -1, -1, -1, 0, 1};
  ASSERT_EQ(legacy90orbsTriangleQ15_16s(cut.data(), 2000, state), StatusOk);
  for (size_t i = 0; i < cut.size(); ++i) ASSERT_EQ(cut[i], kEighths[i % 8]) << i;
  ASSERT_EQ(legacy90orbsTriangleQ15_Direct_16s(cut.data(), 2000, 1, 4096, 0, 0), StatusOk);
  constexpr Orb16s kCutEighths[] = {1, 0, 0, 0, -1, 0, 0, 0};
  for (size_t i = 0; i < cut.size(); ++i) ASSERT_EQ(cut[i], kCutEighths[i % 8]) << i;
}

TEST_P(TriangleTest, TenMillionSamplesStayOnTheWave) {
  constexpr Orb32s kCount = Effort(10'000'000, 1'000'000);
  std::vector<Orb32f> dst(kCount);
  const Wave wave = {1, 0.1234567f, 1, 2};
  Orb32f phase = 2;
  ASSERT_EQ(legacy90orbsTriangle_Direct_32f(dst.data(), kCount, 1, 0.1234567f, 1, &phase), StatusOk);
  for (Orb32s i = 0; i < kCount; i += 997)
    ASSERT_NO_FATAL_FAILURE(ExpectSample(dst[static_cast<size_t>(i)], wave, i));
}

TEST_P(TriangleTest, CallsContinueOneAnother) {
  std::mt19937 engine(7);
  const Wave wave = {3, 0.123456789, -1.5, 2};
  Orb64f phase = wave.phase;
  Orb64f phaseOfPairs = wave.phase;
  long long position = 0;
  for (int call = 0; call < 200; ++call) {
    const auto n = static_cast<size_t>(engine() % 700 + 1);
    std::vector<Orb64f> real(n);
    std::vector<Orb64fc> complex(n);
    const auto length = static_cast<Orb32s>(n);
    legacy90orbsTriangle_Direct_64f(real.data(), length, wave.magn, wave.rFreq, wave.asym, &phase);
    legacy90orbsTriangle_Direct_64fc(complex.data(), length, wave.magn, wave.rFreq, wave.asym, &phaseOfPairs);
    for (size_t i = 0; i < n; ++i, ++position) {
      ASSERT_NEAR(real[i], static_cast<double>(wave.Exact(position, false)), 1e-11);
      ASSERT_NEAR(complex[i].re, real[i], 1e-13);
      ASSERT_NEAR(complex[i].im, static_cast<double>(wave.Exact(position, true)), 1e-11);
    }
  }

  // 4 rFreq is one turn less 3.75e-7, and the phase leaves 3.5e-8 of that: in binary32, 2 pi.
  Orb16s dst[4];
  Orb32f nearlyTwoPi = 3.4e-7f;
  ASSERT_EQ(legacy90orbsTriangle_Direct_16s(dst, 4, 1, 0.24999999f, 0, &nearlyTwoPi), StatusOk);
  EXPECT_EQ(nearlyTwoPi, 0);
}

TEST_P(TriangleTest, LargeMagnitudesEnd) {
  for (double asym : {0.0, 3.0, static_cast<double>(-kPi)}) {
    std::vector<Orb64f> dst(100);
    const auto largest = std::numeric_limits<Orb64f>::max() / 2;
    Orb64f phase = 1;
    ASSERT_EQ(legacy90orbsTriangle_Direct_64f(dst.data(), 100, largest, 0.013, asym, &phase), StatusOk);
    const Wave wave = {1, 0.013, asym, 1};
    for (size_t i = 0; i < dst.size(); ++i)
      ASSERT_NEAR(dst[i] / largest, static_cast<double>(wave.Exact(static_cast<long long>(i), false)), 1e-12);
    // Infinite: what the samples are is open, that the call comes back is not.
    phase = 1;
    EXPECT_EQ(legacy90orbsTriangle_Direct_64f(dst.data(), 100, HUGE_VAL, 0.013, asym, &phase), StatusOk);
  }
}

template <class Sample>
void CheckStatuses(Function<Sample> triangle) {
  using T = Real<Sample>;
  GuardedArray<Sample> dst(4);
  const Part<Sample> good = 1;
  const auto call = [&](Sample* to, Orb32s len, Part<Sample> magn, T rFreq, T asym, T phase) {
    const T before = phase;
    const OrbStatus status = triangle(to, len, magn, rFreq, asym, &phase);
    EXPECT_EQ(std::memcmp(&phase, &before, sizeof phase), 0);
    return status;
  };
  // Each line has one fault more in front.
  EXPECT_EQ(call(dst.data(), 0, good, T(0.1), 0, 0), StatusSize);
  EXPECT_EQ(call(nullptr, 0, good, T(0.1), 0, 0), StatusNullPointer);
  for (T phase : {T(-1e-30), T(6.2831855f), T(kNan)}) {
    EXPECT_EQ(call(nullptr, 0, good, T(0.1), 0, phase), StatusTrianglePhase) << phase;
    for (T asym : {T(-3.1415928f), T(3.1415928f), T(kNan)}) {
      EXPECT_EQ(call(nullptr, 0, good, T(0.1), asym, phase), StatusTriangleAsymmetry) << asym;
      for (T rFreq : {T(-1e-30), T(0.5), T(kNan)})
        EXPECT_EQ(call(nullptr, 0, good, rFreq, asym, phase), StatusTriangleFrequency) << rFreq;
    }
  }
  EXPECT_EQ(call(nullptr, 0, 0, 1, 7, 7), StatusTriangleMagnitude);
  EXPECT_EQ(call(nullptr, 0, static_cast<Part<Sample>>(-1), 1, 7, 7), StatusTriangleMagnitude);
  if (std::is_floating_point_v<Part<Sample>>) {
    EXPECT_EQ(call(nullptr, 0, static_cast<Part<Sample>>(T(kNan)), 1, 7, 7), StatusTriangleMagnitude);
  }
  EXPECT_EQ(triangle(nullptr, 0, 0, 1, 7, nullptr), StatusNullPointer);
  EXPECT_TRUE(dst.Untouched());
}

TEST_P(TriangleTest, ChecksInTheirOrder) {
  ForEachForm([](auto triangle) { CheckStatuses(triangle); });
  // The bounds of binary64 themselves.
  Orb64f dst;
  Orb64f phase = 0;
  const auto pi = static_cast<Orb64f>(kPi);
  EXPECT_EQ(legacy90orbsTriangle_Direct_64f(&dst, 1, 1, 0.1, pi, &phase), StatusTriangleAsymmetry);
  EXPECT_EQ(legacy90orbsTriangle_Direct_64f(&dst, 1, 1, 0.1, -pi, &phase), StatusOk);
  EXPECT_EQ(legacy90orbsTriangle_Direct_64f(&dst, 1, 1, 0.1, std::nextafter(-pi, -4.0), &phase),
            StatusTriangleAsymmetry);
}

// ---- Q15 parameters ----

TEST_P(TriangleTest, Q15BlocksAreThoseOfTheSameNumbers) {
  std::vector<Orb16s> dst(500);
  std::vector<Orb16s> expected(500);
  for (Orb32s asym : {-kLastAsymmetryQ15, 0, 40000, kLastAsymmetryQ15}) {
    for (Orb32s phase : {0, 51472, kLastPhaseQ15}) {
      for (Orb16s rFreq : {0, 123, 16383}) {
        auto start = static_cast<Orb32f>(phase) / 32768;
        ASSERT_EQ(
            legacy90orbsTriangle_Direct_16s(expected.data(), 500, 30000, static_cast<Orb32f>(rFreq) / 32768,
                                            static_cast<Orb32f>(asym) / 32768, &start),
            StatusOk);
        ASSERT_EQ(legacy90orbsTriangleQ15_Direct_16s(dst.data(), 500, 30000, rFreq, phase, asym), StatusOk);
        EXPECT_EQ(dst, expected);
      }
    }
  }
}

TEST_P(TriangleTest, AStateGoesOnAtAnyAddress) {
  struct Case {
    Orb16s rFreq;
    Orb32s phase;
    Orb32s asym;
  };
  for (const Case& c : {Case{777, 1234, 0}, Case{3, 200000, 50000}, Case{0, 100000, 0},
                        Case{16383, 99, 102943}, Case{12345, 0, -102943}, Case{4096, 0, 0}}) {
    for (size_t offset : {0, 1, 4, 7}) {
      StateMemory<136> memory;
      auto* state = reinterpret_cast<TriangleState*>(memory.bytes + offset);
      const auto start = [&] {
        EXPECT_EQ(legacy90orbsTriangleInitQ15_16s(state, 20000, c.rFreq, c.phase, c.asym), StatusOk);
      };
      std::vector<Orb16s> inOne(3000);
      std::vector<Orb16s> oneByOne(3000);
      start();
      ASSERT_EQ(legacy90orbsTriangleQ15_16s(inOne.data(), 3000, state), StatusOk);
      start();
      const auto inMany =
          InPieces(3000, [&](Orb16s* dst, Orb32s n) { return legacy90orbsTriangleQ15_16s(dst, n, state); });
      EXPECT_EQ(inMany, inOne);
      start();
      for (Orb16s& sample : oneByOne) legacy90orbsTriangleQ15_16s(&sample, 1, state);
      EXPECT_EQ(oneByOne, inOne);

      const Wave wave = {20000, c.rFreq / 32768.0, c.asym / 32768.0, c.phase / 32768.0};
      for (size_t i = 0; i < inOne.size(); ++i)
        ASSERT_NEAR(inOne[i], static_cast<double>(wave.Exact(static_cast<long long>(i), false)), 0.5001) << i;
      ASSERT_TRUE(memory.HoldsNothingBut(offset));
      EXPECT_EQ(legacy90orbsTriangleFree(state), StatusOk);  // leaves it usable
      EXPECT_EQ(legacy90orbsTriangleQ15_16s(inOne.data(), 1, state), StatusOk);
    }
  }
}

TEST_P(TriangleTest, StatusesOfTheQ15Forms) {
  GuardedArray<Orb16s> dst(4);
  EXPECT_EQ(legacy90orbsTriangleQ15_Direct_16s(nullptr, 0, 0, -1, -1, 102944), StatusNullPointer);
  EXPECT_EQ(legacy90orbsTriangleQ15_Direct_16s(dst.data(), 0, 0, -1, -1, 102944), StatusSize);

  unsigned char memory[136];
  std::memset(memory, 0, sizeof memory);
  auto* state = reinterpret_cast<TriangleState*>(memory);
  TriangleState* made = state;
  const auto expect = [&](Orb16s magn, Orb16s rFreq, Orb32s phase, Orb32s asym, OrbStatus status) {
    EXPECT_EQ(legacy90orbsTriangleQ15_Direct_16s(dst.data(), 4, magn, rFreq, phase, asym), status);
    EXPECT_EQ(legacy90orbsTriangleInitQ15_16s(state, magn, rFreq, phase, asym), status);
    EXPECT_EQ(legacy90orbsTriangleInitAllocQ15_16s(&made, magn, rFreq, phase, asym), status);
  };
  expect(0, -1, -1, 102944, StatusTriangleMagnitude);
  expect(1, -1, -1, 102944, StatusTriangleFrequency);
  expect(1, 16384, -1, 102944, StatusTriangleFrequency);
  expect(1, 16383, -1, 102944, StatusTrianglePhase);
  expect(1, 16383, kLastPhaseQ15 + 1, 102944, StatusTrianglePhase);
  expect(1, 16383, kLastPhaseQ15, 102944, StatusTriangleAsymmetry);
  expect(1, 16383, kLastPhaseQ15, -102944, StatusTriangleAsymmetry);
  EXPECT_TRUE(dst.Untouched());
  EXPECT_EQ(made, state);
  EXPECT_EQ(legacy90orbsTriangleInitQ15_16s(nullptr, 0, -1, -1, 102944), StatusNullPointer);
  EXPECT_EQ(legacy90orbsTriangleInitAllocQ15_16s(nullptr, 0, -1, -1, 102944), StatusNullPointer);

  // Still zeros: no state.
  EXPECT_EQ(legacy90orbsTriangleQ15_16s(nullptr, 0, state), StatusNullPointer);
  EXPECT_EQ(legacy90orbsTriangleQ15_16s(dst.data(), 0, nullptr), StatusNullPointer);
  EXPECT_EQ(legacy90orbsTriangleQ15_16s(dst.data(), 0, state), StatusSize);
  EXPECT_EQ(legacy90orbsTriangleQ15_16s(dst.data(), 1, state), StatusContextMismatch);
  EXPECT_EQ(legacy90orbsTriangleFree(state), StatusContextMismatch);
  EXPECT_EQ(legacy90orbsTriangleFree(nullptr), StatusNullPointer);
  // A tone state is none either.
  ASSERT_EQ(legacy90orbsToneInitQ15_16s(reinterpret_cast<ToneState*>(memory), 1, 1, 1), StatusOk);
  EXPECT_EQ(legacy90orbsTriangleQ15_16s(dst.data(), 1, state), StatusContextMismatch);

  Orb32s size = 0;
  EXPECT_EQ(legacy90orbsTriangleGetStateSizeQ15_16s(&size), StatusOk);
  EXPECT_EQ(size, 136);
  EXPECT_EQ(legacy90orbsTriangleGetStateSizeQ15_16s(nullptr), StatusNullPointer);
}

TEST_P(TriangleTest, AllocatedStatesAreReleased) {
  FailEachAllocation(orbsSetAllocator, [](FailingAllocator& heap) {
    TriangleState* state = nullptr;
    const OrbStatus status = legacy90orbsTriangleInitAllocQ15_16s(&state, 100, 8192, 0, 0);
    EXPECT_EQ(heap.Alive(), state == nullptr ? 0 : 1);
    if (status != StatusOk) return status;
    Orb16s dst[4];
    EXPECT_EQ(legacy90orbsTriangleQ15_16s(dst, 4, state), StatusOk);
    EXPECT_EQ(std::vector<Orb16s>(dst, dst + 4), (std::vector<Orb16s>{100, 0, -100, 0}));
    EXPECT_EQ(legacy90orbsTriangleFree(state), StatusOk);
    return status;
  });
}

}  // namespace
}  // namespace orbs::test
