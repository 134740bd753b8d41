// What the transforms are held against: the sum as it is written, and a long double transform of any length.
#ifndef ORBS_TESTS_TRANSFORM_ENGINE_REFERENCE_H
#define ORBS_TESTS_TRANSFORM_ENGINE_REFERENCE_H

#include <cmath>
#include <complex>
#include <cstddef>
#include <vector>

namespace orbs::test {

using Exact = std::complex<long double>;
using ExactArray = std::vector<Exact>;

// exp(2 pi i k / n), to the last bits of a long double.
Exact UnitRoot(size_t k, size_t n);

// X[k] = sum of x[i] exp(-2 pi i k i / n), by that sum for one k.
template <class Pairs>
Exact DirectSum(const Pairs& x, size_t k) {
  const size_t n = x.size();
  Exact sum = 0;
  for (size_t i = 0; i < n; ++i) {
    sum += Exact(x[i].real(), x[i].imag()) * std::conj(UnitRoot(k * i % n, n));
  }
  return sum;
}

// The forward transform for n a power of two: the sum itself for small n, above by halves.
ExactArray ReferenceForward(const ExactArray& x);

// The inverse is the forward transform read backward.
inline ExactArray InverseFromForward(ExactArray spectrum) {
  const size_t n = spectrum.size();
  for (size_t k = 1; k < n - k; ++k) std::swap(spectrum[k], spectrum[n - k]);
  return spectrum;
}

// The root mean square of the differences over that of what is expected.
class ErrorMeter {
 public:
  void Add(Exact given, Exact expected) {
    difference_ += std::norm(given - expected);
    size_ += std::norm(expected);
  }
  long double Relative() const { return std::sqrt(difference_ / size_); }

 private:
  long double difference_ = 0;
  long double size_ = 0;
};

template <class Given, class Expected>
long double RelativeError(const Given& given, const Expected& expected) {
  ErrorMeter meter;
  for (size_t i = 0; i < expected.size(); ++i) meter.Add(Exact(given[i]), Exact(expected[i]));
  return meter.Relative();
}

}  // namespace orbs::test

#endif
