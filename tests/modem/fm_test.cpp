// FM demodulation against the arctangent of the C library.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

#include "tests/support/bad_calls.h"
#include "tests/support/export_test.h"
#include "tests/support/guarded_array.h"
#include "tests/support/random_data.h"

namespace orbs::test {
namespace {

// The phase step in units of the result, not rounded.
double ExactStep(Orb16sc z, Orb16sc before) {
  const int64_t r = int64_t{before.re} * z.re + int64_t{before.im} * z.im;
  const int64_t i = int64_t{before.re} * z.im - int64_t{before.im} * z.re;
  return std::atan2(static_cast<double>(i), static_cast<double>(r)) * 32768 / static_cast<double>(kPi);
}

std::vector<Orb16s> Parts(const std::vector<Orb16sc>& z, Orb16s Orb16sc::*part) {
  std::vector<Orb16s> parts(z.size());
  std::transform(z.begin(), z.end(), parts.begin(), [part](const Orb16sc& x) { return x.*part; });
  return parts;
}

std::vector<Orb16s> Demodulated(const std::vector<Orb16sc>& z, Orb16sc delayPoint = {0, 0}) {
  std::vector<Orb16s> steps(z.size());
  EXPECT_EQ(legacy90orbsDemodulateFM_CToR_16s(Parts(z, &Orb16sc::re).data(), Parts(z, &Orb16sc::im).data(),
                                              steps.data(), static_cast<Orb32s>(z.size()), &delayPoint),
            StatusOk);
  EXPECT_EQ(delayPoint.re, z.back().re);
  EXPECT_EQ(delayPoint.im, z.back().im);
  return steps;
}

class FmTest : public ExportTest {
 protected:
  void ExpectSteps(const std::vector<Orb16s>& steps, const std::vector<Orb16sc>& z, Orb16sc before) const {
    // How far beside a tie a value may round to the other side.
    const double slack = IsPx() ? 0.001 : 0.006;
    for (size_t n = 0; n < z.size(); ++n) {
      const double exact = std::min(32767.0, ExactStep(z[n], before));
      ASSERT_NEAR(steps[n], exact, 0.5 + slack)
          << "(" << z[n].re << ", " << z[n].im << ") after (" << before.re << ", " << before.im << ")";
      before = z[n];
    }
  }
};
ORBS_INSTANTIATE_VARIANTS(FmTest);

TEST_P(FmTest, PhaseStepsOfAllMagnitudes) {
  for (const int bits : {0, 3, 7, 10, 13}) {
    std::vector<Orb16sc> z = RandomArray<Orb16sc>(50000, static_cast<uint32_t>(bits));
    for (Orb16sc& x : z) {
      x.re = static_cast<Orb16s>(x.re / (1 << bits));
      x.im = static_cast<Orb16s>(x.im / (1 << bits));
    }
    ExpectSteps(Demodulated(z), z, {0, 0});
  }
}

// Every pair of extreme samples, the product of 2^31 among them, and every pair of small ones: axes,
// diagonals, zeros.
TEST_P(FmTest, ExtremesAxesAndDiagonals) {
  for (const std::vector<int>& values :
       {std::vector<int>{-32768, -32767, -1, 0, 1, 32766, 32767}, std::vector<int>{-2, -1, 0, 1, 2}}) {
    std::vector<Orb16sc> samples;
    for (int re : values) {
      for (int im : values) samples.push_back({static_cast<Orb16s>(re), static_cast<Orb16s>(im)});
    }
    for (const Orb16sc before : samples) {
      std::vector<Orb16sc> z;
      for (const Orb16sc x : samples) {
        z.push_back(x);
        z.push_back(before);
      }
      ExpectSteps(Demodulated(z, before), z, before);
    }
  }
}

TEST_P(FmTest, TurnsOfKnownAngles) {
  const std::vector<Orb16sc> quarterTurns = {{9, 0}, {0, 9}, {-9, 0}, {0, -9}, {9, 0}, {0, -9}, {-9, 0}};
  EXPECT_EQ(Demodulated(quarterTurns), (std::vector<Orb16s>{0, 16384, 16384, 16384, 16384, -16384, -16384}));
  const std::vector<Orb16sc> others = {{5, 5}, {-5, -5}, {32767, 32767}, {-32766, -32767}, {0, 0}, {7, 7}};
  const std::vector<Orb16s> steps = Demodulated(others, {5, 5});
  EXPECT_EQ(steps[0], 0);
  EXPECT_EQ(steps[1], 32767);  // half a turn
  EXPECT_EQ(steps[2], 32767);
  EXPECT_EQ(steps[3], -32768);  // a little less
  EXPECT_EQ(steps[4], 0);
  EXPECT_EQ(steps[5], 0);
  EXPECT_EQ(Demodulated({{-32768, -32768}}, {-32768, -32768}), std::vector<Orb16s>{0});  // 2^31
}

TEST_P(FmTest, EveryLengthInOnePieceInTwoAndInPlace) {
  const std::vector<Orb16sc> all = RandomArray<Orb16sc>(100, 8);
  const std::vector<Orb16s> expected = Demodulated(all, {-300, 200});
  for (size_t n = 1; n <= all.size(); ++n) {
    const std::vector<Orb16sc> z(all.begin(), all.begin() + static_cast<std::ptrdiff_t>(n));
    const std::vector<Orb16s> want(expected.begin(), expected.begin() + static_cast<std::ptrdiff_t>(n));
    const auto len = static_cast<Orb32s>(n);
    GuardedArray<Orb16s> re(Parts(z, &Orb16sc::re), n % 3);
    GuardedArray<Orb16s> im(Parts(z, &Orb16sc::im), n % 2);
    for (const Orb32s cut : {0, len / 3, len - 1}) {
      GuardedArray<Orb16s> steps(n, n % 5);
      Orb16sc delay = {-300, 200};
      if (cut > 0) {
        ASSERT_EQ(legacy90orbsDemodulateFM_CToR_16s(re.data(), im.data(), steps.data(), cut, &delay),
                  StatusOk);
      }
      ASSERT_EQ(legacy90orbsDemodulateFM_CToR_16s(re.data() + cut, im.data() + cut, steps.data() + cut,
                                                  len - cut, &delay),
                StatusOk);
      ASSERT_EQ(steps.values(), want) << n << " cut at " << cut;
      ASSERT_TRUE(steps.GuardsIntact());
    }
    for (GuardedArray<Orb16s>* target : {&re, &im}) {
      const std::vector<Orb16s> kept = target->values();
      Orb16sc delay = {-300, 200};
      ASSERT_EQ(legacy90orbsDemodulateFM_CToR_16s(re.data(), im.data(), target->data(), len, &delay),
                StatusOk);
      ASSERT_EQ(target->values(), want) << n;
      ASSERT_EQ(delay.re, z.back().re);
      ASSERT_EQ(delay.im, z.back().im);
      std::copy(kept.begin(), kept.end(), target->data());
    }
  }
}

TEST_P(FmTest, BadArgumentsGiveTheirStatusAndWriteNothing) {
  CheckBadCalls(legacy90orbsDemodulateFM_CToR_16s);
}

}  // namespace
}  // namespace orbs::test
