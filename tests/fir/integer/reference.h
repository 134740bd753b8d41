// What the FIR filters with integer taps are held against: the formula in 64 bits.
#ifndef ORBS_TESTS_FIR_INTEGER_REFERENCE_H
#define ORBS_TESTS_FIR_INTEGER_REFERENCE_H

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <vector>

#include "tests/support/samples.h"

namespace orbs::test {

// 32 bits of a sum, times 2^d, rounded with ties to even by counting halves, saturated.
inline int64_t Delivered(int64_t sum, int64_t tapsFactor, int64_t scaleFactor) {
  const int64_t d = std::min<int64_t>(31, std::max<int64_t>(-31, tapsFactor - scaleFactor));
  int64_t x = static_cast<int32_t>(static_cast<uint32_t>(sum));
  if (d > 0) {
    x = static_cast<int32_t>(static_cast<uint32_t>(x) << d);
  } else if (d < 0) {
    const int64_t unit = int64_t{1} << -d;
    // The addition that rounds wraps as well.
    const int64_t added = static_cast<int32_t>(static_cast<uint32_t>(x + unit / 2 - 1 + ((x >> -d) & 1)));
    x = added >> -d;
  }
  return std::min<int64_t>(32767, std::max<int64_t>(-32768, x));
}

// `history` holds the samples before `x`, the newest first.
template <class Tap, class Data>
std::vector<Exact> ExactOutputs(const std::vector<Tap>& taps, const std::vector<Data>& history,
                                const std::vector<Data>& x, int64_t tapsFactor, int64_t scaleFactor) {
  struct Pair {
    int64_t re, im;
  };
  const auto pairOf = [](auto value) {
    const Exact exact = ToExact(value);
    return Pair{static_cast<int64_t>(exact.real()), static_cast<int64_t>(exact.imag())};
  };
  std::vector<Pair> all;
  std::vector<Pair> h;
  std::transform(history.rbegin(), history.rend(), std::back_inserter(all), pairOf);
  std::transform(x.begin(), x.end(), std::back_inserter(all), pairOf);
  std::transform(taps.begin(), taps.end(), std::back_inserter(h), pairOf);
  std::vector<Exact> y(x.size());
  for (size_t i = 0; i < x.size(); ++i) {
    int64_t re = 0;
    int64_t im = 0;
    for (size_t k = 0; k < h.size() && k <= history.size() + i; ++k) {
      const Pair s = all[history.size() + i - k];
      re += h[k].re * s.re - h[k].im * s.im;
      im += h[k].re * s.im + h[k].im * s.re;
    }
    const auto delivered = [=](int64_t sum) {
      return static_cast<long double>(Delivered(sum, tapsFactor, scaleFactor));
    };
    y[i] = {delivered(re), delivered(im)};
  }
  return y;
}

}  // namespace orbs::test

#endif
