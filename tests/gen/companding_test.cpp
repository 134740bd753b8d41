// The ten companding functions against G.711 as its text defines it: exhaustively, since a code has 8 bits
// and a sample 16.
#include <cmath>
#include <limits>
#include <numeric>
#include <vector>

#include "tests/support/bad_calls.h"
#include "tests/support/export_test.h"
#include "tests/support/guarded_array.h"
#include "tests/support/lengths.h"
#include "tests/support/random_data.h"
#include "tests/support/rows.h"

namespace orbs::test {
namespace {

// Decision by search over all codes, the way the law is drawn: the code whose interval holds the value. For
// A-law the decision values lie between the outputs; for mu-law the sign and magnitude are coded apart.
int ReferenceALaw(int x) {
  const int magnitude = x >= 0 ? x : -x - 1;
  int best = 0;
  for (int code = 0; code < 128; ++code) {
    const int segment = code >> 4;
    const int mantissa = code & 15;
    const int start = segment == 0 ? 16 * mantissa : (256 + 16 * mantissa) << (segment - 1);
    if (magnitude >= start) best = code;
  }
  return (x >= 0 ? best | 0x80 : best) ^ 0x55;
}

int ReferenceMuLaw(int x, bool negative) {
  const int magnitude = std::min(x >= 0 ? x : -x - 1, 32635) / 4;
  int best = 0;
  for (int code = 0; code < 128; ++code) {
    const int start = ((33 + 2 * (code & 15) - 1) << (code >> 4)) - 33;
    if (magnitude >= start) best = code;
  }
  return (negative ? best | 0x80 : best) ^ 0xFF;
}

int ReferenceDecodeALaw(int code) {
  const int c = code ^ 0x55;
  const int steps = c & 15;
  const int segment = c >> 4 & 7;
  const int magnitude = segment == 0 ? 16 * steps + 8 : (16 * steps + 264) << (segment - 1);
  return c & 0x80 ? magnitude : -magnitude;
}

int ReferenceDecodeMuLaw(int code) {
  const int c = 255 - code;
  const int magnitude = ((2 * (c & 15) + 33) << (c >> 4 & 7)) * 4 - 132;
  return c & 0x80 ? -magnitude : magnitude;
}

std::vector<Orb16s> AllSamples() {
  std::vector<Orb16s> samples(65536);
  for (int i = 0; i < 65536; ++i) samples[static_cast<size_t>(i)] = static_cast<Orb16s>(i - 32768);
  return samples;
}

std::vector<Orb8u> AllCodes() {
  std::vector<Orb8u> codes(256);
  std::iota(codes.begin(), codes.end(), Orb8u{0});
  return codes;
}

class CompandingTest : public ExportTest {};
ORBS_INSTANTIATE_VARIANTS(CompandingTest);

TEST_P(CompandingTest, EncodersFollowTheLawForEverySample) {
  const std::vector<Orb16s> samples = AllSamples();
  std::vector<Orb8u> aLaw(samples.size());
  std::vector<Orb8u> muLaw(samples.size());
  ASSERT_EQ(legacy90orbsLinToALaw_16s8u(samples.data(), aLaw.data(), 65536), StatusOk);
  ASSERT_EQ(legacy90orbsLinToMuLaw_16s8u(samples.data(), muLaw.data(), 65536), StatusOk);
  for (size_t i = 0; i < samples.size(); ++i) {
    ASSERT_EQ(aLaw[i], ReferenceALaw(samples[i])) << samples[i];
    ASSERT_EQ(muLaw[i], ReferenceMuLaw(samples[i], samples[i] < 0)) << samples[i];
  }
}

TEST_P(CompandingTest, DecodersFollowTheLawForEveryCode) {
  const std::vector<Orb8u> codes = AllCodes();
  std::vector<Orb16s> samples(256);
  std::vector<Orb32f> floats(256);
  const auto expectSamples = [&](int (*reference)(int)) {
    for (int code = 0; code < 256; ++code) {
      const auto i = static_cast<size_t>(code);
      EXPECT_EQ(samples[i], reference(code)) << code;
      EXPECT_EQ(floats[i], static_cast<float>(reference(code)) / 32768) << code;
      EXPECT_EQ(std::signbit(floats[i]), reference(code) < 0) << code;  // no -0
    }
  };
  ASSERT_EQ(legacy90orbsALawToLin_8u16s(codes.data(), samples.data(), 256), StatusOk);
  ASSERT_EQ(legacy90orbsALawToLin_8u32f(codes.data(), floats.data(), 256), StatusOk);
  expectSamples(ReferenceDecodeALaw);
  ASSERT_EQ(legacy90orbsMuLawToLin_8u16s(codes.data(), samples.data(), 256), StatusOk);
  ASSERT_EQ(legacy90orbsMuLawToLin_8u32f(codes.data(), floats.data(), 256), StatusOk);
  expectSamples(ReferenceDecodeMuLaw);
}

TEST_P(CompandingTest, CodeConversionIsTheTableOfTheRecommendation) {
  const std::vector<Orb8u> codes = AllCodes();
  std::vector<Orb8u> toMuLaw(256);
  std::vector<Orb8u> toALaw(256);
  ASSERT_EQ(legacy90orbsALawToMuLaw_8u(codes.data(), toMuLaw.data(), 256), StatusOk);
  ASSERT_EQ(legacy90orbsMuLawToALaw_8u(codes.data(), toALaw.data(), 256), StatusOk);

  EXPECT_EQ(toMuLaw[0x00], 0x2A);
  EXPECT_EQ(toMuLaw[0x55], 0x7E);
  EXPECT_EQ(toMuLaw[0xD5], 0xFE);
  EXPECT_EQ(toMuLaw[0x48], 0x5D);
  EXPECT_EQ(toMuLaw[0x49], 0x5D);
  EXPECT_EQ(toALaw[0x00], 0x2A);
  EXPECT_EQ(toALaw[0x7F], 0x55);
  EXPECT_EQ(toALaw[0xFF], 0xD5);

  // By the number of the interval, from the origin on: decoding and encoding, but for a few intervals in
  // which the tables name the neighbour. The sign has no part in it.
  for (int i = 0; i < 128; ++i) {
    const int a = i ^ 0xD5;
    const int u = i ^ 0xFF;
    const int muLaw =
        (ReferenceMuLaw(ReferenceDecodeALaw(a), false) ^ 0xFF) - static_cast<int>(i >= 80 && i < 96);
    const int aLaw = (ReferenceALaw(ReferenceDecodeMuLaw(u)) ^ 0xD5) +
                     static_cast<int>(i == 48 || i == 49 || i == 64 || (i > 80 && i < 96));
    for (const int sign : {0, 0x80}) {
      EXPECT_EQ(toMuLaw[static_cast<size_t>(a ^ sign)], muLaw ^ 0xFF ^ sign) << i;
      EXPECT_EQ(toALaw[static_cast<size_t>(u ^ sign)], aLaw ^ 0xD5 ^ sign) << i;
    }
  }
}

TEST_P(CompandingTest, FloatEncodersRoundHalfAwayAndTakeTheSignOfTheLaw) {
  constexpr float kInfinity = std::numeric_limits<float>::infinity();
  std::vector<Orb32f> values;
  for (float x :
       {0.0f, 1e-6f, 1.0f, 0.99998f, 2.0f, 1e30f, kInfinity, std::numeric_limits<float>::denorm_min()}) {
    values.push_back(x);
    values.push_back(-x);
  }
  for (int x = -33000; x <= 33000; x += 7) {
    for (float fraction : {0.0f, 0.5f, 0.49999f, 0.50001f})
      values.push_back((static_cast<float>(x) + fraction) / 32768);
  }
  std::vector<Orb8u> aLaw(values.size());
  std::vector<Orb8u> muLaw(values.size());
  const auto count = static_cast<Orb32s>(values.size());
  ASSERT_EQ(legacy90orbsLinToALaw_32f8u(values.data(), aLaw.data(), count), StatusOk);
  ASSERT_EQ(legacy90orbsLinToMuLaw_32f8u(values.data(), muLaw.data(), count), StatusOk);
  for (size_t i = 0; i < values.size(); ++i) {
    const double scaled = std::round(static_cast<double>(values[i]) * 32768);  // std::round: half away
    const int x = static_cast<int>(std::min(32767.0, std::max(-32768.0, scaled)));
    ASSERT_EQ(aLaw[i], ReferenceALaw(x)) << values[i];
    ASSERT_EQ(muLaw[i], ReferenceMuLaw(x, values[i] < 0)) << values[i];
  }

  const Orb32f nan = std::numeric_limits<float>::quiet_NaN();
  Orb8u code = 0;
  legacy90orbsLinToALaw_32f8u(&nan, &code, 1);
  EXPECT_EQ(code, 0x2A);
  legacy90orbsLinToMuLaw_32f8u(&nan, &code, 1);
  EXPECT_EQ(code, 0x80);
}

// One function over random data of every length: the same elements whatever the length, nothing outside the
// arrays.
template <class Source, class Result>
void CheckLengths(OrbStatus (*function)(const Source*, Result*, Orb32s)) {
  constexpr size_t kMost = 1000;
  const std::vector<Source> source = RandomArray<Source>(kMost, 5, 1.1);
  std::vector<Result> expected(kMost);
  for (size_t i = 0; i < kMost; ++i) ASSERT_EQ(function(&source[i], &expected[i], 1), StatusOk);
  for (int length : Lengths(140, {255, 256, 257, 1000})) {
    const auto n = static_cast<size_t>(length);
    const size_t gap = n % 5;
    const GuardedArray<Source> in(std::vector<Source>(source.begin(), source.begin() + length), gap);
    GuardedArray<Result> out(n, gap);
    ASSERT_EQ(function(in.data(), out.data(), length), StatusOk);
    ASSERT_EQ(out.values(), std::vector<Result>(expected.begin(), expected.begin() + length)) << length;
    ASSERT_TRUE(out.GuardsIntact()) << length;
  }
}

template <class Check>
void ForEachForm(const Check& check) {
  ForEachFunction(check, ORBS_NAMED(legacy90orbsALawToLin_8u16s), ORBS_NAMED(legacy90orbsALawToLin_8u32f),
                  ORBS_NAMED(legacy90orbsMuLawToLin_8u16s), ORBS_NAMED(legacy90orbsMuLawToLin_8u32f),
                  ORBS_NAMED(legacy90orbsALawToMuLaw_8u), ORBS_NAMED(legacy90orbsMuLawToALaw_8u),
                  ORBS_NAMED(legacy90orbsLinToALaw_16s8u), ORBS_NAMED(legacy90orbsLinToALaw_32f8u),
                  ORBS_NAMED(legacy90orbsLinToMuLaw_16s8u), ORBS_NAMED(legacy90orbsLinToMuLaw_32f8u));
}

TEST_P(CompandingTest, EveryLengthAndAlignment) {
  ForEachForm([](auto* function) { CheckLengths(function); });
}

TEST_P(CompandingTest, BadArgumentsGiveTheirStatusAndWriteNothing) {
  ForEachForm([](auto* function) { CheckBadCalls(function); });
}

TEST_P(CompandingTest, CodeConversionWorksInPlace) {
  for (const auto function : {legacy90orbsALawToMuLaw_8u, legacy90orbsMuLawToALaw_8u}) {
    const std::vector<Orb8u> source = RandomArray<Orb8u>(333, 9);
    std::vector<Orb8u> expected(source.size());
    function(source.data(), expected.data(), 333);
    std::vector<Orb8u> inPlace = source;
    function(inPlace.data(), inPlace.data(), 333);
    EXPECT_EQ(inPlace, expected);
  }
}

}  // namespace
}  // namespace orbs::test
