// Repeatable random arrays.
#ifndef ORBS_TESTS_SUPPORT_RANDOM_DATA_H
#define ORBS_TESTS_SUPPORT_RANDOM_DATA_H

#include <cstdint>
#include <limits>
#include <random>
#include <type_traits>
#include <vector>

#include "orbs90lgc/types.h"

namespace orbs::test {

// Integers over the type's whole range, floating-point values between -scale and scale.
template <class T>
T RandomValue(std::mt19937& engine, double scale = 1.0) {
  if constexpr (std::is_integral_v<T>) {
    return static_cast<T>(static_cast<uint64_t>(engine()) << 32 | engine());
  } else {
    return static_cast<T>(std::uniform_real_distribution<double>(-scale, scale)(engine));
  }
}

template <class T>
std::vector<T> RandomArray(size_t count, uint32_t seed, double scale = 1.0) {
  std::mt19937 engine(seed);
  std::vector<T> values(count);
  for (T& value : values) {
    if constexpr (std::is_class_v<T>) {
      using Part = decltype(value.re);
      value = {RandomValue<Part>(engine, scale), RandomValue<Part>(engine, scale)};
    } else {
      value = RandomValue<T>(engine, scale);
    }
  }
  return values;
}

}  // namespace orbs::test

#endif
