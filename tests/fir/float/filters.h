// The FIR filters with floating-point taps as types with the same static functions, and the sum that they are
// held against.
#ifndef ORBS_TESTS_FIR_FLOAT_FILTERS_H
#define ORBS_TESTS_FIR_FLOAT_FILTERS_H

#include <algorithm>
#include <cmath>
#include <complex>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "orbs90lgc.h"

namespace orbs::test {

#define ORBS_TEST_FIR(name, suffix, TapType, DataType, plain, inPlace, scale, scaleArgument)               \
  struct name {                                                                                            \
    using Tap = TapType;                                                                                   \
    using Data = DataType;                                                                                 \
    static constexpr const char* kName = #suffix;                                                          \
    static OrbStatus Size(Orb32s n, Orb32s* size) { return legacy90orbsFIRGetStateSize##suffix(n, size); } \
    static OrbStatus Init(FIRFloatState** s, const Tap* t, Orb32s n, const Data* d, void* b) {             \
      return legacy90orbsFIRInit##suffix(s, t, n, d, b);                                                   \
    }                                                                                                      \
    static OrbStatus InitAlloc(FIRFloatState** s, const Tap* t, Orb32s n, const Data* d) {                 \
      return legacy90orbsFIRInitAlloc##suffix(s, t, n, d);                                                 \
    }                                                                                                      \
    static OrbStatus Free(FIRFloatState* s) { return legacy90orbsFIRFree##suffix(s); }                     \
    static OrbStatus GetTaps(const FIRFloatState* s, Tap* t) {                                             \
      return legacy90orbsFIRGetTaps##suffix(s, t);                                                         \
    }                                                                                                      \
    static OrbStatus SetTaps(const Tap* t, FIRFloatState* s) {                                             \
      return legacy90orbsFIRSetTaps##suffix(t, s);                                                         \
    }                                                                                                      \
    static OrbStatus Block(const Data* x, Data* y, Orb32s n, FIRFloatState* s,                             \
                           [[maybe_unused]] Orb32s factor) {                                               \
      return legacy90orbsFIR##suffix##plain(x, y, n, s scaleArgument);                                     \
    }                                                                                                      \
    static OrbStatus InPlace(Data* x, Orb32s n, FIRFloatState* s, [[maybe_unused]] Orb32s factor) {        \
      return legacy90orbsFIR##suffix##inPlace(x, n, s scaleArgument);                                      \
    }                                                                                                      \
    static OrbStatus One(Data x, Data* y, FIRFloatState* s, [[maybe_unused]] Orb32s factor) {              \
      return legacy90orbsFIROne##suffix##scale(x, y, s scaleArgument);                                     \
    }                                                                                                      \
    static OrbStatus GetDelay(const FIRFloatState* s, Data* d);                                            \
    static OrbStatus SetDelay(FIRFloatState* s, const Data* d);                                            \
  };
#define ORBS_TEST_FIR_DELAY(name, suffix)                            \
  inline OrbStatus name::GetDelay(const FIRFloatState* s, Data* d) { \
    return legacy90orbsFIRGetDlyLine##suffix(s, d);                  \
  }                                                                  \
  inline OrbStatus name::SetDelay(FIRFloatState* s, const Data* d) { \
    return legacy90orbsFIRSetDlyLine##suffix(s, d);                  \
  }
#define ORBS_TEST_COMMA_FACTOR , factor
ORBS_TEST_FIR(Filter32f, _32f, Orb32f, Orb32f, , _I, , )
ORBS_TEST_FIR(Filter32fc, _32fc, Orb32fc, Orb32fc, , _I, , )
ORBS_TEST_FIR(Filter64f, _64f, Orb64f, Orb64f, , _I, , )
ORBS_TEST_FIR(Filter64fc, _64fc, Orb64fc, Orb64fc, , _I, , )
ORBS_TEST_FIR(Filter64f_32f, 64f_32f, Orb64f, Orb32f, , _I, , )
ORBS_TEST_FIR(Filter64fc_32fc, 64fc_32fc, Orb64fc, Orb32fc, , _I, , )
ORBS_TEST_FIR(Filter32f_16s, 32f_16s, Orb32f, Orb16s, _Sfs, _ISfs, _Sfs, ORBS_TEST_COMMA_FACTOR)
ORBS_TEST_FIR(Filter32fc_16sc, 32fc_16sc, Orb32fc, Orb16sc, _Sfs, _ISfs, _Sfs, ORBS_TEST_COMMA_FACTOR)
ORBS_TEST_FIR(Filter64f_16s, 64f_16s, Orb64f, Orb16s, _Sfs, _ISfs, _Sfs, ORBS_TEST_COMMA_FACTOR)
ORBS_TEST_FIR(Filter64fc_16sc, 64fc_16sc, Orb64fc, Orb16sc, _Sfs, _ISfs, _Sfs, ORBS_TEST_COMMA_FACTOR)
ORBS_TEST_FIR(Filter64f_32s, 64f_32s, Orb64f, Orb32s, _Sfs, _ISfs, _Sfs, ORBS_TEST_COMMA_FACTOR)
ORBS_TEST_FIR(Filter64fc_32sc, 64fc_32sc, Orb64fc, Orb32sc, _Sfs, _ISfs, _Sfs, ORBS_TEST_COMMA_FACTOR)
ORBS_TEST_FIR(Filter32s, _32s, Orb32s, Orb32s, _Sfs, _ISfs, _Sfs, ORBS_TEST_COMMA_FACTOR)
ORBS_TEST_FIR_DELAY(Filter32f, _32f)
ORBS_TEST_FIR_DELAY(Filter32fc, _32fc)
ORBS_TEST_FIR_DELAY(Filter64f, _64f)
ORBS_TEST_FIR_DELAY(Filter64fc, _64fc)
ORBS_TEST_FIR_DELAY(Filter64f_32f, 64f_32f)
ORBS_TEST_FIR_DELAY(Filter64fc_32fc, 64fc_32fc)
ORBS_TEST_FIR_DELAY(Filter32f_16s, 32f_16s)
ORBS_TEST_FIR_DELAY(Filter32fc_16sc, 32fc_16sc)
ORBS_TEST_FIR_DELAY(Filter64f_16s, 64f_16s)
ORBS_TEST_FIR_DELAY(Filter64fc_16sc, 64fc_16sc)
ORBS_TEST_FIR_DELAY(Filter64f_32s, 64f_32s)
ORBS_TEST_FIR_DELAY(Filter64fc_32sc, 64fc_32sc)
ORBS_TEST_FIR_DELAY(Filter32s, 64f_32s)  // the same kind of state
#undef ORBS_TEST_FIR_DELAY
#undef ORBS_TEST_COMMA_FACTOR
#undef ORBS_TEST_FIR

// Calls test(Filter{}) for each.
template <class Test>
void ForEachFilter(Test test) {
  test(Filter32f{});
  test(Filter32fc{});
  test(Filter64f{});
  test(Filter64fc{});
  test(Filter64f_32f{});
  test(Filter64fc_32fc{});
  test(Filter32f_16s{});
  test(Filter32fc_16sc{});
  test(Filter64f_16s{});
  test(Filter64fc_16sc{});
  test(Filter64f_32s{});
  test(Filter64fc_32sc{});
  test(Filter32s{});
}

// ---- Numbers of any of the types ----

using Exact = std::complex<long double>;

template <class T>
inline constexpr bool kIsComplex = std::is_class_v<T>;
template <class T, bool = kIsComplex<T>>
struct PartOf {
  using Type = T;
};
template <class T>
struct PartOf<T, true> {
  using Type = decltype(T::re);
};

template <class T>
Exact ToExact(T x) {
  if constexpr (kIsComplex<T>) {
    return {static_cast<long double>(x.re), static_cast<long double>(x.im)};
  } else {
    return {static_cast<long double>(x), 0};
  }
}

template <class T>
T FromExact(Exact x) {
  using Part = typename PartOf<T>::Type;
  if constexpr (kIsComplex<T>) {
    return {static_cast<Part>(x.real()), static_cast<Part>(x.imag())};
  } else {
    return static_cast<Part>(x.real());
  }
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
  using Part = typename PartOf<Data>::Type;
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
  using TapPart = typename PartOf<typename F::Tap>::Type;
  using DataPart = typename PartOf<typename F::Data>::Type;
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

}  // namespace orbs::test

#endif
