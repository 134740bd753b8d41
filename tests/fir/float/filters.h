// The FIR filters with floating-point taps as types with the same static functions, and the sum that they are
// held against.
#ifndef ORBS_TESTS_FIR_FLOAT_FILTERS_H
#define ORBS_TESTS_FIR_FLOAT_FILTERS_H

#include <limits>
#include <random>
#include <type_traits>
#include <vector>

#include "orbs90lgc.h"
#include "tests/fir/state_functions.h"
#include "tests/support/rows.h"
#include "tests/support/samples.h"

namespace orbs::test {

// Functions whose results are integers take a scale factor, others ignore it.
template <class Function, class... Args>
OrbStatus CallScaled(Function* function, [[maybe_unused]] Orb32s factor, Args... args) {
  if constexpr (std::is_invocable_v<Function*, Args..., Orb32s>) {
    return function(args..., factor);
  } else {
    return function(args...);
  }
}

// `scaled` and `inPlace` are how the names of the filter functions end; `delay` is the kind that the
// functions for delay lines are named after.
#define ORBS_TEST_FIR(name, suffix, delay, TapType, DataType, scaled, inPlace)                  \
  struct name {                                                                                 \
    ORBS_TEST_FIR_STATE(suffix, delay, TapType, DataType)                                       \
    static OrbStatus Block(const Data* x, Data* y, Orb32s n, FIRFloatState* s, Orb32s factor) { \
      return CallScaled(legacy90orbsFIR##suffix##scaled, factor, x, y, n, s);                   \
    }                                                                                           \
    static OrbStatus InPlace(Data* x, Orb32s n, FIRFloatState* s, Orb32s factor) {              \
      return CallScaled(legacy90orbsFIR##suffix##inPlace, factor, x, n, s);                     \
    }                                                                                           \
    static OrbStatus One(Data x, Data* y, FIRFloatState* s, Orb32s factor) {                    \
      return CallScaled(legacy90orbsFIROne##suffix##scaled, factor, x, y, s);                   \
    }                                                                                           \
  };
#define ORBS_TEST_FIR_PLAIN(name, suffix, Tap, Data) ORBS_TEST_FIR(name, suffix, suffix, Tap, Data, , _I)
#define ORBS_TEST_FIR_SCALED(name, suffix, Tap, Data) \
  ORBS_TEST_FIR(name, suffix, suffix, Tap, Data, _Sfs, _ISfs)
ORBS_TEST_FIR_PLAIN(Filter32f, _32f, Orb32f, Orb32f)
ORBS_TEST_FIR_PLAIN(Filter32fc, _32fc, Orb32fc, Orb32fc)
ORBS_TEST_FIR_PLAIN(Filter64f, _64f, Orb64f, Orb64f)
ORBS_TEST_FIR_PLAIN(Filter64fc, _64fc, Orb64fc, Orb64fc)
ORBS_TEST_FIR_PLAIN(Filter64f_32f, 64f_32f, Orb64f, Orb32f)
ORBS_TEST_FIR_PLAIN(Filter64fc_32fc, 64fc_32fc, Orb64fc, Orb32fc)
ORBS_TEST_FIR_SCALED(Filter32f_16s, 32f_16s, Orb32f, Orb16s)
ORBS_TEST_FIR_SCALED(Filter32fc_16sc, 32fc_16sc, Orb32fc, Orb16sc)
ORBS_TEST_FIR_SCALED(Filter64f_16s, 64f_16s, Orb64f, Orb16s)
ORBS_TEST_FIR_SCALED(Filter64fc_16sc, 64fc_16sc, Orb64fc, Orb16sc)
ORBS_TEST_FIR_SCALED(Filter64f_32s, 64f_32s, Orb64f, Orb32s)
ORBS_TEST_FIR_SCALED(Filter64fc_32sc, 64fc_32sc, Orb64fc, Orb32sc)
ORBS_TEST_FIR(Filter32s, _32s, 64f_32s, Orb32s, Orb32s, _Sfs, _ISfs)  // a state of the kind of 64f_32s
#undef ORBS_TEST_FIR_SCALED
#undef ORBS_TEST_FIR_PLAIN
#undef ORBS_TEST_FIR

template <class Test>
void ForEachFilter(const Test& test) {
  ForEachRow<Filter32f, Filter32fc, Filter64f, Filter64fc, Filter64f_32f, Filter64fc_32fc, Filter32f_16s,
             Filter32fc_16sc, Filter64f_16s, Filter64fc_16sc, Filter64f_32s, Filter64fc_32sc, Filter32s>(
      test);
}

template <class T>
std::vector<T> RandomNumbers(size_t count, double scale, unsigned seed) {
  std::mt19937 engine(seed);
  std::uniform_real_distribution<double> uniform(-scale, scale);
  std::vector<T> values(count);
  for (T& value : values) {
    const double re = uniform(engine);
    value = FromExact<T>({re, uniform(engine)});
  }
  return values;
}

// Half of what the data type holds; floats about 1.
template <class Data>
double DataScale() {
  using Part = PartOf<Data>;
  return std::is_integral_v<Part> ? static_cast<double>(std::numeric_limits<Part>::max()) / 2 : 1;
}

// Taps whose magnitudes add up to about 1, so that nothing saturates; integer taps to about 4.
template <class F>
std::vector<typename F::Tap> RandomTaps(int n, unsigned seed) {
  const double scale = std::is_integral_v<typename F::Tap> ? 4 : 1.0 / n;
  return RandomNumbers<typename F::Tap>(static_cast<size_t>(n), scale, seed);
}

// The outputs of a stream: `history` holds the samples before `x`, the newest first. Zeros among the taps
// cost nothing.
template <class Tap, class Data>
std::vector<Exact> ExactOutputs(const std::vector<Tap>& taps, const std::vector<Data>& history,
                                const std::vector<Data>& x) {
  std::vector<Exact> all;
  for (size_t i = history.size(); i-- > 0;) all.push_back(ToExact(history[i]));
  for (const Data& sample : x) all.push_back(ToExact(sample));
  std::vector<Exact> h;
  std::vector<size_t> used;
  for (const Tap& tap : taps) {
    h.push_back(ToExact(tap));
    if (h.back() != Exact(0)) used.push_back(h.size() - 1);
  }
  std::vector<Exact> y(x.size());
  for (size_t i = 0; i < x.size(); ++i) {
    long double re = 0;
    long double im = 0;
    for (size_t k : used) {
      if (k > history.size() + i) break;
      const Exact& s = all[history.size() + i - k];
      re += h[k].real() * s.real();
      if constexpr (kIsComplex<Data>) {  // what is emulated takes four times as long for complex numbers
        re -= h[k].imag() * s.imag();
        im += h[k].real() * s.imag() + h[k].imag() * s.real();
      }
    }
    y[i] = {re, im};
  }
  return y;
}

// The largest error that rounding explains: in units of the tap type's precision times the largest possible
// sum, and half a unit of integer results.
template <class F>
long double Tolerance(const std::vector<typename F::Tap>& taps) {
  using TapPart = PartOf<typename F::Tap>;
  using DataPart = PartOf<typename F::Data>;
  long double magnitudes = 0;
  for (const auto& tap : taps) magnitudes += std::abs(ToExact(tap).real()) + std::abs(ToExact(tap).imag());
  const long double largest =
      magnitudes * DataScale<typename F::Data>() * (kIsComplex<typename F::Data> ? 2 : 1);
  const long double epsilon = std::is_same_v<TapPart, Orb32f> ? std::numeric_limits<Orb32f>::epsilon()
                                                              : std::numeric_limits<Orb64f>::epsilon();
  long double tolerance = 8 * epsilon * largest + std::numeric_limits<Orb32f>::min();
  if (std::is_integral_v<DataPart>) tolerance += 0.5L;
  if (std::is_same_v<DataPart, Orb32f>) tolerance += largest * std::numeric_limits<Orb32f>::epsilon() / 2;
  return tolerance;
}

// The same of results that are divided by 2^factor: all but the half unit shrinks.
template <class F>
long double ScaledTolerance(const std::vector<typename F::Tap>& taps, Orb32s factor) {
  const long double tolerance = Tolerance<F>(taps);
  return factor == 0 ? tolerance : (tolerance - 0.5L) / std::ldexp(1.0L, factor) + 0.5L;
}

}  // namespace orbs::test

#endif
