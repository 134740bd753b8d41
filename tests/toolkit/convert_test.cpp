// Conversions between element types, with and without a scale factor.
#include <cfenv>
#include <cfloat>

#include "tests/toolkit/sweep.h"

namespace orbs::test {
namespace {

class ToolkitConvertTest : public ToolkitTest {};
ORBS_INSTANTIATE_VARIANTS(ToolkitConvertTest);

std::vector<Orb32s> ScaleFactors() {
  std::vector<Orb32s> factors(141);
  std::iota(factors.begin(), factors.end(), -70);
  for (const Orb32s s :
       {95, 96, 97, 125, 126, 127, 128, 129, 149, 150, 254, 1008, 1009, 1022, 1023, 1100, kMost}) {
    factors.push_back(s);
    factors.push_back(-s);
  }
  factors.push_back(kLeast);
  return factors;
}

// x * 2^-s without rounding, or 0 or infinity where the exponent of a Wide ends.
Wide Scaled(Wide x, Orb32s s) { return std::ldexp(x, -std::clamp(s, -20000, 20000)); }

// The function with the arguments behind its count bound.
template <class Status, class Source, class Result, class... Extra>
auto Bind(Status (*function)(const Source*, Result*, Orb32s, Extra...), std::common_type_t<Extra>... extra) {
  return [=](const Source* src, Result* dst, Orb32s n) { return function(src, dst, n, extra...); };
}

// ---- References ----

// Clamped first, then rounded: a NaN gives the lower bound.
template <class Result>
Wide ReferenceToInt(Wide x, Orb32s mode, Orb32s s) {
  using Limits = std::numeric_limits<Result>;
  if (std::isnan(x)) return Limits::min();
  const Wide y = std::clamp<Wide>(Scaled(x, s), Limits::min(), Limits::max());
  return mode == RoundZero ? std::trunc(y) : mode == RoundNear ? std::nearbyint(y) : std::round(y);
}

// Each shift count modulo 32, each for itself; the rounding sum wraps.
Wide Reference32s16s(Orb32s x, Orb32s s) {
  Orb64s y = x;
  if (s > 0) {
    const auto sum = static_cast<Orb32s>(static_cast<uint32_t>(x) + (1u << ((s - 1) & 31)));
    y = sum >> (s & 31);
  } else if (s < 0) {
    const Orb64s count = -static_cast<Orb64s>(s);
    const Orb64s n = count % 32;
    if (x > 32767 >> n) return 32767;
    if (x < (count >= 16 ? 0 : -32768 >> n)) return -32768;
    y = x * (Orb64s{1} << n);
  }
  return static_cast<Wide>(std::clamp<Orb64s>(y, -32768, 32767));
}

// ---- Every length ----

#ifdef __i386__
// qemu 7.2, which runs the 32-bit tests, loads twice the bytes that cvtdq2pd takes.
constexpr size_t kLoadedBeyond = 4;
#else
constexpr size_t kLoadedBeyond = 0;
#endif

TEST_P(ToolkitConvertTest, EveryLength) {
  const auto rounded = [](auto result, Orb32s s = 0) {
    using Result = decltype(result);
    return [s](size_t i, size_t, const auto* src, const void*) { return Rounded<Result>(Scaled(src[i], s)); };
  };
  Sweep(t.VecConvert_8s32f, rounded(Orb32f()));
  Sweep(t.VecConvert_16s32f, rounded(Orb32f()));
  Sweep(t.VecConvert_32s32f, rounded(Orb32f()));
  Sweep(t.VecConvert_32s64f, rounded(Orb64f()), {1000, false, {}, kLoadedBeyond});
  Sweep(t.VecConvert_32f64f, rounded(Orb64f()), {1000, false, Specials<Orb32f>()});
  Sweep(Bind(t.VecConvert_32s32f_Sfs, 7), rounded(Orb32f(), 7));
  Sweep(Bind(t.VecConvert_16s64f_Sfs, -3), rounded(Orb64f(), -3));

  std::vector<double> specials = Specials<Orb64f>();
  for (const double x :
       {FLT_MAX + 0.0, std::nextafter(FLT_MAX, DBL_MAX), 3.4028235677973366e38, 1e-40, 1e-46}) {
    specials.push_back(x);
    specials.push_back(-x);
  }
  const auto limited = [](size_t i, size_t, const Orb64f* src, const Orb32f*) {
    return Rounded<Orb32f>(std::isnan(src[i]) ? src[i] : std::clamp<Wide>(src[i], -FLT_MAX, FLT_MAX));
  };
  Sweep(t.VecConvert_64f32f, limited, {1000, false, specials});

  for (const Orb32s mode : {RoundZero, RoundNear, RoundHalfAway}) {
    const auto toInt = [mode](auto result) {
      return [=](size_t i, size_t, const auto* src, const void*) {
        return Expected{ReferenceToInt<decltype(result)>(src[i], mode, -2)};
      };
    };
    Sweep(Bind(t.VecConvert_32f16s_Sfs, mode, -2), toInt(Orb16s()));
    Sweep(Bind(t.VecConvert_32f32s_Sfs, mode, -2), toInt(Orb32s()));
    Sweep(Bind(t.VecConvert_64f32s_Sfs, mode, -2), toInt(Orb32s()));
  }
  for (const Orb32s s : {17, 0, -3}) {
    Sweep(Bind(t.VecConvert_32s16s_Sfs, s), [s](size_t i, size_t, const Orb32s* src, const Orb16s*) {
      return Expected{Reference32s16s(src[i], s)};
    });
  }
  Sweep(Bind(t.VecShiftL_16s32s, 9),
        [](size_t i, size_t, const Orb16s* src, const Orb32s*) { return Expected{Wide(src[i]) * 512}; });
}

// ---- Every scale factor ----

// All elements of one array against the reference.
template <class Source, class Result, class Reference>
void CheckAll(const std::function<void(const Source*, Result*, Orb32s)>& function,
              const std::vector<Source>& source, const Reference& reference) {
  std::vector<Result> result(source.size());
  function(source.data(), result.data(), static_cast<Orb32s>(source.size()));
  for (size_t i = 0; i < source.size(); ++i) {
    const auto expected = RoundTo<Result>(reference(source[i]));
    ASSERT_EQ(result[i], expected) << "from " << testing::PrintToString(source[i]);
  }
}

TEST_P(ToolkitConvertTest, IntegersToFloatLimitTheScaleFactor) {
  const std::vector<Orb32s> source32 = {0,        1,     -1,         3,          16777217, -16777219,
                                        33554431, kMost, kMost - 63, kMost - 64, kLeast};
  const std::vector<Orb16s> source16 = {0, 1, -1, 3, 12345, 32767, -32768};
  for (const Orb32s s : ScaleFactors()) {
    SCOPED_TRACE(s);
    CheckAll<Orb32s, Orb32f>(Bind(t.VecConvert_32s32f_Sfs, s), source32,
                             [=](Wide x) { return Scaled(x, std::clamp(s, -96, 126)); });
    CheckAll<Orb16s, Orb64f>(Bind(t.VecConvert_16s64f_Sfs, s), source16,
                             [=](Wide x) { return Scaled(x, std::clamp(s, -1008, 1022)); });
  }
}

// Values that lie, once scaled, on ties, beside them, at and beyond the bounds; and those that no scale
// brings there.
template <class Source>
std::vector<Source> Awkward(Orb32s s) {
  std::vector<double> scaled = {4194304.5,    4194305.5,    8388609.0,    2147483520.0,
                                2147483646.0, 2147483646.5, 2147483647.0, 2147483647.5,
                                2147483648.0, 2147483648.5, 4294967296.0, 1e30};
  for (const double y : {0, 1, 2, 3, 126, 127, 32766, 32767, 32768}) {
    for (const double fraction : {0.0, 0.25, 0.5, 0.75}) scaled.push_back(y + fraction);
  }
  std::vector<Source> values;
  for (const double x : Specials<Source>()) values.push_back(static_cast<Source>(x));
  for (const double y : scaled) {
    const auto rounded = static_cast<Source>(y);
    for (const Source x :
         {rounded, std::nextafter(rounded, Source(0)), std::nextafter(rounded, Source(1e38))}) {
      values.push_back(RoundTo<Source>(Scaled(x, -std::clamp(s, -3000, 3000))));
      values.push_back(-values.back());
    }
  }
  return values;
}

template <class Source, class Result>
void CheckToInts(OrbStatus (*function)(const Source*, Result*, Orb32s, Orb32s, Orb32s)) {
  for (const Orb32s s : ScaleFactors()) {
    for (const Orb32s mode : {0, 1, 2, 3, -1, 77}) {
      SCOPED_TRACE(testing::Message() << "scale factor " << s << ", mode " << mode);
      CheckAll<Source, Result>(Bind(function, mode, s), Awkward<Source>(s),
                               [=](Wide x) { return ReferenceToInt<Result>(x, mode, s); });
    }
  }
}

TEST_P(ToolkitConvertTest, FloatToIntegersScalesClampsAndRounds) {
  CheckToInts(t.VecConvert_32f16s_Sfs);
  CheckToInts(t.VecConvert_32f32s_Sfs);
  CheckToInts(t.VecConvert_64f32s_Sfs);
}

TEST_P(ToolkitConvertTest, TruncationIgnoresTheRoundingMode) {
  const std::vector<Orb32f> source = {0.9f,    -0.9f,   1.5f,     -1.5f, 2.999f,
                                      -2.999f, 100.25f, -100.25f, 0.1f,  -0.1f};
  for (const int rounding : {FE_UPWARD, FE_DOWNWARD}) {
    std::vector<Orb16s> to16(10);
    std::vector<Orb32s> to32(10);
    std::fesetround(rounding);
    t.VecConvert_32f16s_Sfs(source.data(), to16.data(), 10, RoundZero, 0);
    t.VecConvert_32f32s_Sfs(source.data(), to32.data(), 10, RoundZero, 0);
    std::fesetround(FE_TONEAREST);
    EXPECT_EQ(to16, (std::vector<Orb16s>{0, 0, 1, -1, 2, -2, 100, -100, 0, 0}));
    EXPECT_EQ(to32, (std::vector<Orb32s>{0, 0, 1, -1, 2, -2, 100, -100, 0, 0}));
  }
}

TEST_P(ToolkitConvertTest, IntegersToIntegersTakeShiftCountsModulo32) {
  std::vector<Orb32s> source = RandomArray<Orb32s>(40, 3);
  for (int bit = 0; bit < 32; ++bit) {
    const uint32_t power = 1u << bit;
    for (const uint32_t x : {power - 1, power, power + 1, 0 - power, 1 - power, ~power}) {
      source.push_back(static_cast<Orb32s>(x));
    }
  }
  for (const Orb32s s : ScaleFactors()) {
    SCOPED_TRACE(s);
    CheckAll<Orb32s, Orb16s>(Bind(t.VecConvert_32s16s_Sfs, s), source,
                             [=](Orb32s x) { return Reference32s16s(x, s); });
  }
  // The shift that widens keeps the low 32 bits.
  for (Orb32s shift = 0; shift < 32; ++shift) {
    CheckAll<Orb16s, Orb32s>(Bind(t.VecShiftL_16s32s, shift), RandomArray<Orb16s>(40, 4), [=](Orb16s x) {
      return static_cast<Wide>(static_cast<Orb32s>(static_cast<uint32_t>(Orb32s{x}) << shift));
    });
  }
}

}  // namespace
}  // namespace orbs::test
