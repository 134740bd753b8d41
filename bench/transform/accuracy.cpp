// orbs90lgc_fft_accuracy: the errors of the transforms beside those of FFTW on the same data. Each error is
// the root mean square of the differences from a long double transform, relative to that of the result.
#include "bench/transform/accuracy.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include <fftw3.h>

#include "tests/support/runnable_variants.h"
#include "tests/transform/engine/reference.h"

namespace orbs::bench {
namespace {

using test::Exact;
using test::ExactArray;

constexpr int kLastOrder = 18;

std::vector<VariantTransforms>& Variants() {
  static std::vector<VariantTransforms> variants;
  return variants;
}

// Uniform numbers from -1 to 1, the same in binary32 and binary64.
double Sample() {
  static unsigned state = 1;
  state = state * 1664525u + 1013904223u;
  return static_cast<double>(static_cast<int>(state) >> 8) / 8388608;
}

// The transforms of FFTW by precision.
template <class T>
struct Fftw;
template <>
struct Fftw<float> {
  static constexpr auto complex = fftwf_plan_dft_1d;
  static constexpr auto toSpectrum = fftwf_plan_dft_r2c_1d;
  static constexpr auto fromSpectrum = fftwf_plan_dft_c2r_1d;
  static constexpr auto execute = fftwf_execute;
  static constexpr auto destroy = fftwf_destroy_plan;
  using Pair = fftwf_complex;
};
template <>
struct Fftw<double> {
  static constexpr auto complex = fftw_plan_dft_1d;
  static constexpr auto toSpectrum = fftw_plan_dft_r2c_1d;
  static constexpr auto fromSpectrum = fftw_plan_dft_c2r_1d;
  static constexpr auto execute = fftw_execute;
  static constexpr auto destroy = fftw_destroy_plan;
  using Pair = fftw_complex;
};

// What a transform is given and what it should give, as the values of its arrays in order.
struct Problem {
  std::vector<double> src;
  std::vector<long double> exact;
};

std::vector<long double> PermOf(const ExactArray& spectrum) {
  const size_t n = spectrum.size();
  std::vector<long double> perm = {spectrum[0].real(), spectrum[n / 2].real()};
  for (size_t k = 1; k < n / 2; ++k) perm.insert(perm.end(), {spectrum[k].real(), spectrum[k].imag()});
  return perm;
}

// An inverse transform of real data starts from rounded values of a spectrum, so its exact result is computed
// from these.
Problem MakeProblem(Transform transform, bool forward, int order) {
  const size_t n = size_t{1} << order;
  Problem problem;
  ExactArray values(n);
  if (!IsReal(transform)) {
    for (Exact& value : values) {
      problem.src.insert(problem.src.end(), {Sample(), Sample()});
      value = Exact(problem.src.end()[-2], problem.src.end()[-1]);
    }
  } else if (forward) {
    for (Exact& value : values) value = problem.src.emplace_back(Sample());
  } else {
    for (size_t i = 0; i < n; ++i) problem.src.push_back(Sample());
    values[0] = problem.src[0];
    values[n / 2] = problem.src[1];
    for (size_t k = 1; k < n / 2; ++k) {
      values[k] = Exact(problem.src[2 * k], problem.src[2 * k + 1]);
      values[n - k] = std::conj(values[k]);
    }
  }
  ExactArray result = test::ReferenceForward(values);
  if (!forward) result = test::InverseFromForward(result);
  if (IsReal(transform)) {
    if (forward) {
      problem.exact = PermOf(result);
    } else {
      for (const Exact& value : result) problem.exact.push_back(value.real());
    }
  } else {
    for (const Exact& value : result) problem.exact.insert(problem.exact.end(), {value.real(), value.imag()});
  }
  return problem;
}

template <class T>
std::vector<T> RunFftw(Transform transform, bool forward, int order, const std::vector<T>& src) {
  using Pair = typename Fftw<T>::Pair;
  const int n = 1 << order;
  std::vector<T> in(src.size() + 2);
  std::vector<T> out(src.size() + 2);
  const auto pairs = [](std::vector<T>& array) { return reinterpret_cast<Pair*>(array.data()); };
  const auto plan =
      !IsReal(transform)
          ? Fftw<T>::complex(n, pairs(in), pairs(out), forward ? FFTW_FORWARD : FFTW_BACKWARD, FFTW_MEASURE)
      : forward ? Fftw<T>::toSpectrum(n, in.data(), pairs(out), FFTW_MEASURE)
                : Fftw<T>::fromSpectrum(n, pairs(in), out.data(), FFTW_MEASURE);
  std::copy(src.begin(), src.end(), in.begin());
  if (IsReal(transform) && !forward) {  // from Perm
    in[src.size()] = in[1];
    in[1] = 0;
  }
  Fftw<T>::execute(plan);
  Fftw<T>::destroy(plan);
  if (IsReal(transform) && forward) out[1] = out[src.size()];  // to Perm
  out.resize(src.size());
  return out;
}

template <class T>
double Error(const std::vector<T>& given, const std::vector<long double>& exact) {
  return static_cast<double>(test::RelativeError(given, exact));
}

struct Worst {
  double error = 0;  // in units of the promise
  double ratio = 0;  // to FFTW's
  int order = 0;     // of that ratio
};

// Short transforms round so seldom that a single one says little: of these, as many as make 4096 points.
template <class T>
void MeasureOrder(Transform transform, bool forward, int order, std::vector<Worst>* worst) {
  const int trials = std::max(1, 4096 >> order);
  const double promise = (sizeof(T) == 4 ? 1.0e-7 : 2.0e-16) * std::sqrt(order);
  double fftw = 0;  // sums of squares
  std::vector<double> ours(Variants().size());
  for (int trial = 0; trial < trials; ++trial) {
    const Problem problem = MakeProblem(transform, forward, order);
    const std::vector<T> src(problem.src.begin(), problem.src.end());
    fftw += std::pow(Error(RunFftw(transform, forward, order, src), problem.exact), 2);
    for (size_t i = 0; i < ours.size(); ++i) {
      std::vector<T> dst(src.size());
      Variants()[i].run(transform, forward, order, src.data(), dst.data());
      ours[i] += std::pow(Error(dst, problem.exact), 2);
    }
  }
  for (size_t i = 0; i < ours.size(); ++i) {
    Worst& w = (*worst)[i];
    w.error = std::max(w.error, std::sqrt(ours[i] / trials) / promise);
    const double ratio = std::sqrt(ours[i] / fftw);
    if (ratio > w.ratio) {
      w.ratio = ratio;
      w.order = order;
    }
  }
}

void MeasureAll() {
  static constexpr const char* kNames[] = {"complex, binary32", "complex, binary64", "real, binary32",
                                           "real, binary64"};
  constexpr int kFirstOrder = 2;  // below, results are often exact
  std::printf(
      "| transform | direction | variant | error / promise, at most | error / FFTW's, at most | at N |\n"
      "| --- | --- | --- | --: | --: | --: |\n");
  for (const Transform transform : kTransforms) {
    for (const bool forward : {true, false}) {
      std::vector<Worst> worst(Variants().size());
      for (int order = kFirstOrder; order <= kLastOrder; ++order) {
        (IsSingle(transform) ? MeasureOrder<float> : MeasureOrder<double>)(transform, forward, order, &worst);
      }
      for (size_t i = 0; i < worst.size(); ++i) {
        std::printf("| %s | %s | %s | %.2f | %.2f | 2^%d |\n", kNames[static_cast<int>(transform)],
                    forward ? "forward" : "inverse", Variants()[i].variant, worst[i].error, worst[i].ratio,
                    worst[i].order);
      }
    }
  }
}

}  // namespace

VariantTransforms::VariantTransforms(const char* name, RunOnce function) : variant(name), run(function) {
  if (test::CanRun(static_cast<Variant>(test::VariantIndex(name)))) Variants().push_back(*this);
}

}  // namespace orbs::bench

int main() { orbs::bench::MeasureAll(); }
