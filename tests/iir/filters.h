// The eight ways to make an IIR filter as types with the same static functions, stable filters to run, and
// the recursion that they are held against.
#ifndef ORBS_TESTS_IIR_FILTERS_H
#define ORBS_TESTS_IIR_FILTERS_H

#include <cmath>
#include <complex>
#include <cstring>
#include <random>
#include <vector>

#include "orbs90lgc.h"
#include "tests/support/rows.h"
#include "tests/support/samples.h"

namespace orbs::test {

// What the two data types have of their own.
struct RealIir {
  using Data = Orb16s;
  using Work = Orb32f;
  using Word = Orb32s;
  static constexpr auto* Block = legacy90orbsIIR32s_16s_Sfs;
  static constexpr auto* InPlace = legacy90orbsIIR32s_16s_ISfs;
  static constexpr auto* One = legacy90orbsIIROne32s_16s_Sfs;
  static constexpr auto* Free = legacy90orbsIIRFree32s_16s;
  static constexpr auto* GetDelay = legacy90orbsIIRGetDlyLine32s_16s;
  static constexpr auto* SetDelay = legacy90orbsIIRSetDlyLine32s_16s;
  static OrbStatus SetTaps(const Orb32s* t, IIRState* s, Orb32s f) {
    return legacy90orbsIIRSetTaps32s_16s(t, s, f);
  }
  static OrbStatus SetTaps(const Orb32f* t, IIRState* s, Orb32s) {
    return legacy90orbsIIRSetTaps32s_16s32f(t, s);
  }
};
struct ComplexIir {
  using Data = Orb16sc;
  using Work = Orb32fc;
  using Word = Orb32sc;
  static constexpr auto* Block = legacy90orbsIIR32sc_16sc_Sfs;
  static constexpr auto* InPlace = legacy90orbsIIR32sc_16sc_ISfs;
  static constexpr auto* One = legacy90orbsIIROne32sc_16sc_Sfs;
  static constexpr auto* Free = legacy90orbsIIRFree32sc_16sc;
  static constexpr auto* GetDelay = legacy90orbsIIRGetDlyLine32sc_16sc;
  static constexpr auto* SetDelay = legacy90orbsIIRSetDlyLine32sc_16sc;
  static OrbStatus SetTaps(const Orb32sc* t, IIRState* s, Orb32s f) {
    return legacy90orbsIIRSetTaps32sc_16sc(t, s, f);
  }
  static OrbStatus SetTaps(const Orb32fc* t, IIRState* s, Orb32s) {
    return legacy90orbsIIRSetTaps32sc_16sc32fc(t, s);
  }
};

#define ORBS_TEST_IIR(name, suffix, Base, TapType, kIsCascade, factor)                                      \
  struct name : Base {                                                                                      \
    using Tap = TapType;                                                                                    \
    static constexpr const char* kName = #suffix;                                                           \
    static constexpr bool kCascade = kIsCascade;                                                            \
    static constexpr bool kInteger = !std::is_same_v<Tap, Base::Work>;                                      \
    static constexpr auto* Size = legacy90orbsIIRGetStateSize##suffix;                                      \
    static OrbStatus Init(IIRState** s, const Tap* t, Orb32s n, [[maybe_unused]] Orb32s f, const Word* d,   \
                          void* b) {                                                                        \
      return legacy90orbsIIRInit##suffix(s, t, n factor, d, b);                                             \
    }                                                                                                       \
    static OrbStatus InitAlloc(IIRState** s, const Tap* t, Orb32s n, [[maybe_unused]] Orb32s f,             \
                               const Word* d) {                                                             \
      return legacy90orbsIIRInitAlloc##suffix(s, t, n factor, d);                                           \
    }                                                                                                       \
    static size_t TapCount(int units) { return static_cast<size_t>(kCascade ? 6 * units : 2 * units + 2); } \
    static size_t DelayCount(int units) { return static_cast<size_t>(kCascade ? 2 * units : units); }       \
  };
#define ORBS_TEST_COMMA_FACTOR , f
ORBS_TEST_IIR(IntegerOrder, 32s_16s, RealIir, Orb32s, false, ORBS_TEST_COMMA_FACTOR)
ORBS_TEST_IIR(FloatOrder, 32s_16s32f, RealIir, Orb32f, false, )
ORBS_TEST_IIR(IntegerBiQuad, 32s_BiQuad_16s, RealIir, Orb32s, true, ORBS_TEST_COMMA_FACTOR)
ORBS_TEST_IIR(FloatBiQuad, 32s_BiQuad_16s32f, RealIir, Orb32f, true, )
ORBS_TEST_IIR(IntegerOrderC, 32sc_16sc, ComplexIir, Orb32sc, false, ORBS_TEST_COMMA_FACTOR)
ORBS_TEST_IIR(FloatOrderC, 32sc_16sc32fc, ComplexIir, Orb32fc, false, )
ORBS_TEST_IIR(IntegerBiQuadC, 32sc_BiQuad_16sc, ComplexIir, Orb32sc, true, ORBS_TEST_COMMA_FACTOR)
ORBS_TEST_IIR(FloatBiQuadC, 32sc_BiQuad_16sc32fc, ComplexIir, Orb32fc, true, )
#undef ORBS_TEST_COMMA_FACTOR
#undef ORBS_TEST_IIR

template <class Test>
void ForEachFloatIir(const Test& test) {
  ForEachRow<FloatOrder, FloatBiQuad, FloatOrderC, FloatBiQuadC>(test);
}
template <class Test>
void ForEachIir(const Test& test) {
  ForEachFloatIir(test);
  ForEachRow<IntegerOrder, IntegerBiQuad, IntegerOrderC, IntegerBiQuadC>(test);
}

// The formula, in extended precision, in the direct form I: no delay line like that of the filter under test.
template <class F>
class ExactFilter {
  // Real filters in real numbers: emulated, a complex product costs the time of a hundred.
  using Number = std::conditional_t<kIsComplex<typename F::Tap>, Exact, long double>;

 public:
  ExactFilter(const std::vector<typename F::Tap>& taps, int units)
      : order_(F::kCascade ? 2 : static_cast<size_t>(units)) {
    for (size_t first = 0; first < taps.size(); first += 2 * order_ + 2) {
      Section section{{}, std::vector<Number>(order_ + 1), std::vector<Number>(order_ + 1)};
      for (size_t i = 0; i < 2 * order_ + 2; ++i) section.taps.push_back(ToNumber(ToExact(taps[first + i])));
      sections_.push_back(section);
    }
  }

  Exact operator()(Exact sample) {
    Number x = ToNumber(sample);
    for (Section& s : sections_) {
      s.x.insert(s.x.begin(), x);
      s.x.pop_back();
      Number y = 0;
      for (size_t k = 0; k <= order_; ++k) y += s.taps[k] * s.x[k];
      for (size_t k = 1; k <= order_; ++k) y -= s.taps[order_ + 1 + k] * s.y[k - 1];
      y /= s.taps[order_ + 1];
      s.y.insert(s.y.begin(), y);
      s.y.pop_back();
      x = y;
    }
    return x;
  }

 private:
  static Number ToNumber(Exact value) {
    if constexpr (std::is_same_v<Number, Exact>) {
      return value;
    } else {
      return value.real();
    }
  }

  struct Section {
    std::vector<Number> taps, x, y;
  };
  size_t order_;
  std::vector<Section> sections_;
};

// A stable filter of about unit gain: its poles come from products of single ones, so that a long polynomial
// stays well conditioned with the radius below 1. Integer taps have 20 fractional bits.
inline constexpr Orb32s kFractionalBits = 20;

template <class F>
std::vector<typename F::Tap> StableTaps(int units, uint32_t seed, double radius) {
  using C = std::complex<double>;
  constexpr bool kComplex = kIsComplex<typename F::Tap>;
  std::mt19937 engine(seed);
  std::uniform_real_distribution<double> uniform(-1, 1);
  const int order = F::kCascade ? 2 : units;
  std::vector<typename F::Tap> taps;
  for (int section = 0; section < (F::kCascade ? units : 1); ++section) {
    // Poles spread over the circle; for real filters in conjugate pairs, with a real one if the order is odd.
    std::vector<C> a = {1};
    const auto multiply = [&a](C pole) {
      a.push_back(0);
      for (size_t i = a.size() - 1; i > 0; --i) a[i] -= pole * a[i - 1];
    };
    const double turn = uniform(engine);
    for (int k = 0; k < order; ++k) {
      const int pairs = order / 2;
      const double angle =
          static_cast<double>(kPi) *
          (kComplex ? (2.0 * k + turn) / order : (k / 2 + 0.5 + 0.3 * turn) / (pairs > 0 ? pairs : 1));
      const C pole = std::polar(radius, angle);
      multiply(kComplex                           ? pole
               : order % 2 == 1 && k == order - 1 ? C(radius * turn)
               : k % 2 == 0                       ? pole
                                                  : conj(pole));
    }
    // A product of many factors has lost its poles to rounding: there small coefficients keep it stable.
    for (int k = 1; order > 64 && k <= order; ++k) {
      a[static_cast<size_t>(k)] = radius / order * C(uniform(engine), kComplex ? uniform(engine) : 0);
    }
    const double gain = (1 - radius) * 1.5;
    const C a0 = kComplex ? C(0.8, 0.6) : C(1.25);
    const double unit = F::kInteger ? 1 << kFractionalBits : 1;
    const auto put = [&](C value) {
      value *= a0 * unit;
      if (F::kInteger) value = {std::round(value.real()), std::round(value.imag())};
      taps.push_back(FromParts<typename F::Tap>(value.real(), value.imag()));
    };
    for (int k = 0; k <= order; ++k) {
      const double im = kComplex ? uniform(engine) : 0;
      put(gain * C(uniform(engine) + (k == 0 ? 1.5 : 0), im) / std::sqrt(order + 1.0));
    }
    for (int k = 0; k <= order; ++k) put(a[static_cast<size_t>(k)]);
  }
  return taps;
}

}  // namespace orbs::test

#endif
