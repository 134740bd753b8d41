// Compiled with the instructions of its variant.
#include "bench/fir/peak.h"

#if ORBS_VECTOR

#include "simd/simd.h"

namespace orbs::ORBS_VARIANT {
namespace {

// Enough independent sums to hide the latency of two units; the rest of the 16 registers holds the factors.
// Every loop over them is unrolled, or they would live in memory.
constexpr int kPeakSums = 12;

template <class T>
void Peak(double multiplyAdds, T* result) {
  using V = VectorOf<T>;
  V sums[kPeakSums];
  ORBS_UNROLL
  for (int i = 0; i < kPeakSums; ++i) sums[i] = V::All(static_cast<T>(i));
  const V a = V::All(result[0]);
  const V b = V::All(result[1]);
  const auto rounds = static_cast<int64_t>(multiplyAdds / (kPeakSums * V::kLanes)) + 1;
  for (int64_t round = 0; round < rounds; ++round) {
    ORBS_UNROLL
    for (int i = 0; i < kPeakSums; ++i) sums[i] = MulAdd(a, b, sums[i]);
  }
  V total = sums[0];
  ORBS_UNROLL
  for (int i = 1; i < kPeakSums; ++i) total = total + sums[i];
  T lanes[V::kLanes];
  total.Store(lanes);
  result[2] = lanes[0];
}

// Products of 16 bits, added in 32. The sums are factors too, or the compiler would multiply once and for
// all.
void Peak(double multiplyAdds, Orb16s* result) {
  N32 sums[kPeakSums];
  ORBS_UNROLL
  for (int i = 0; i < kPeakSums; ++i) sums[i] = N32::All(i);
  const I16 a = I16::All(result[0]);
  const auto rounds = static_cast<int64_t>(multiplyAdds / (kPeakSums * I16::kLanes)) + 1;
  for (int64_t round = 0; round < rounds; ++round) {
    ORBS_UNROLL
    for (int i = 0; i < kPeakSums; ++i) sums[i] = sums[i] + MulAddPairs(a, As16(sums[i]));
  }
  N32 total = sums[0];
  ORBS_UNROLL
  for (int i = 1; i < kPeakSums; ++i) total = total + sums[i];
  Orb32s lanes[N32::kLanes];
  total.Store(lanes);
  result[2] = static_cast<Orb16s>(lanes[0]);
}

}  // namespace

void MultiplyAddPeak(double multiplyAdds, Orb32f* result) { Peak(multiplyAdds, result); }
void MultiplyAddPeak(double multiplyAdds, Orb64f* result) { Peak(multiplyAdds, result); }
void MultiplyAddPeak(double multiplyAdds, Orb16s* result) { Peak(multiplyAdds, result); }

}  // namespace orbs::ORBS_VARIANT

#endif
