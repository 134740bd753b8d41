// What the FIR filters with integer taps are held against: the formula in 64 bits.
#ifndef ORBS_TESTS_FIR_INTEGER_REFERENCE_H
#define ORBS_TESTS_FIR_INTEGER_REFERENCE_H

#include <algorithm>
#include <cstdint>
#include <type_traits>
#include <vector>

namespace orbs::test {

struct Pair {
  int64_t re;
  int64_t im;
};
template <class T>
Pair ToPair(T x) {
  if constexpr (std::is_class_v<T>) {
    return {x.re, x.im};
  } else {
    return {x, 0};
  }
}

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
std::vector<Pair> ExactOutputs(const std::vector<Tap>& taps, const std::vector<Data>& history,
                               const std::vector<Data>& x, int64_t tapsFactor, int64_t scaleFactor) {
  std::vector<Pair> all;
  for (size_t i = history.size(); i-- > 0;) all.push_back(ToPair(history[i]));
  for (const Data& sample : x) all.push_back(ToPair(sample));
  std::vector<Pair> y(x.size());
  for (size_t i = 0; i < x.size(); ++i) {
    int64_t re = 0;
    int64_t im = 0;
    for (size_t k = 0; k < taps.size() && k <= history.size() + i; ++k) {
      const Pair h = ToPair(taps[k]);
      const Pair s = all[history.size() + i - k];
      re += h.re * s.re - h.im * s.im;
      im += h.re * s.im + h.im * s.re;
    }
    y[i] = {Delivered(re, tapsFactor, scaleFactor), Delivered(im, tapsFactor, scaleFactor)};
  }
  return y;
}

}  // namespace orbs::test

#endif
