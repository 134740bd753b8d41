#include "tests/transform/engine/reference.h"

#include <cmath>

namespace orbs::test {
namespace {

// x[0], x[stride], ... transformed to n values at y.
void ByHalves(const Exact* x, size_t stride, Exact* y, size_t n, const ExactArray& roots) {
  if (n == 1) {
    y[0] = x[0];
    return;
  }
  const size_t half = n / 2;
  ByHalves(x, 2 * stride, y, half, roots);
  ByHalves(x + stride, 2 * stride, y + half, half, roots);
  for (size_t k = 0; k < half; ++k) {
    const Exact w = roots[k * stride];
    const Exact b = y[half + k];
    // By parts: the product of std::complex looks for infinities first.
    const Exact turned(b.real() * w.real() - b.imag() * w.imag(), b.real() * w.imag() + b.imag() * w.real());
    y[half + k] = y[k] - turned;
    y[k] += turned;
  }
}

}  // namespace

Exact UnitRoot(size_t k, size_t n) {
  // Folded to an eighth of the circle, where sine and cosine lose nothing.
  constexpr long double kTwoPi = 6.283185307179586476925286766559005768L;
  k %= n;
  if (8 * k > n && 8 * k <= 3 * n && n % 4 == 0) return Exact(0, 1) * UnitRoot(k - n / 4, n);
  if (8 * k > 3 * n && 8 * k <= 5 * n && n % 2 == 0) return -UnitRoot(k - n / 2, n);
  if (8 * k > 5 * n && 8 * k <= 7 * n && n % 4 == 0) return Exact(0, -1) * UnitRoot(k - 3 * n / 4, n);
  const long double turns = 8 * k > 7 * n ? -static_cast<long double>(n - k) : static_cast<long double>(k);
  const long double angle = kTwoPi * turns / static_cast<long double>(n);
  return Exact(std::cos(angle), std::sin(angle));
}

ExactArray ReferenceForward(const ExactArray& x) {
  const size_t n = x.size();
  ExactArray y(n);
  if (n <= 64) {
    for (size_t k = 0; k < n; ++k) y[k] = DirectSum(x, k);
    return y;
  }
  ExactArray roots(n / 2);
  for (size_t k = 0; k < n / 2; ++k) roots[k] = std::conj(UnitRoot(k, n));
  ByHalves(x.data(), 1, y.data(), n, roots);
  return y;
}

}  // namespace orbs::test
