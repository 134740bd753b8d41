// What the comparisons of FIR filters share: their data, their names, the peak of the measured variant.
#ifndef ORBS_BENCH_FIR_SETUP_H
#define ORBS_BENCH_FIR_SETUP_H

#include <string>
#include <type_traits>

#include "bench/compare.h"
#include "bench/fir/peak.h"
#include "core/variant.h"

namespace orbs::ORBS_VARIANT {

using bench::CompareAtSizes;
using bench::Comparison;
using bench::Random;

template <class T>
T Element(Orb32s i) {
  if constexpr (std::is_class_v<T>) {
    return {static_cast<decltype(T::re)>(Random(2 * i)), static_cast<decltype(T::re)>(Random(2 * i + 1))};
  } else if constexpr (std::is_integral_v<T>) {
    return static_cast<T>(1000 * Random(i));
  } else {
    return static_cast<T>(Random(i));
  }
}

// The peak is a peer: its ratio is the share of the peak that the filter reaches.
template <class T>
void AddPeak(Comparison& c, double multiplyAdds) {
#if ORBS_VECTOR
  T* const result = c.Array<T>(3, Element<T>);
  c.Peer("peak", [=] { MultiplyAddPeak(multiplyAdds, result); });
#else
  (void)c, (void)multiplyAdds;
#endif
}

inline std::string Name(const char* function, Orb32s tapCount) {
  return std::string(function) + " " + std::to_string(tapCount) + " taps";
}

}  // namespace orbs::ORBS_VARIANT

#endif
