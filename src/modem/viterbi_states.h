// Add, compare and select over the states of a trellis, and the path metrics behind it.
#ifndef ORBS_MODEM_VITERBI_STATES_H
#define ORBS_MODEM_VITERBI_STATES_H

#include <cstring>
#include <type_traits>

#include "core/variant.h"
#include "orbs90lgc/types.h"

#if ORBS_VECTOR
#include "simd/blocks.h"
#include "simd/simd.h"
#endif

namespace orbs::ORBS_VARIANT::modem {

inline constexpr Orb16u kUnreached = 65535;

// A trellis step as the caller gave it; `survivors` is the step's row.
struct TrellisStep {
  const Orb16u* oldMetrics;
  const Orb8u* nextStates;
  Orb16u* newMetrics;
  const Orb16sc* symbols;
  Orb32u* survivors;
  Orb32s stateCount;
};

// State by state, branch by branch, for any trellis. A symbol's metric counts as signed, but where the vector
// variants have 16 states.
template <int kBranches>
void SelectPaths(const TrellisStep& step) {
  for (Orb32s s = 0; s < step.stateCount; ++s) {
    const Orb8u* const next = step.nextStates + int64_t{s} * kBranches;
    const Orb32s old = step.oldMetrics[s];
    ORBS_UNROLL
    for (int b = 0; b < kBranches; ++b) {
      const Orb16sc symbol = step.symbols[(s & 1) + 2 * b];
      const Orb32s metric =
          old + (ORBS_VECTOR && kBranches == 4 ? static_cast<Orb16u>(symbol.im) : Orb32s{symbol.im});
      if (metric < step.newMetrics[next[b]]) {
        step.newMetrics[next[b]] = static_cast<Orb16u>(metric);
        step.survivors[next[b]] = static_cast<Orb16u>(symbol.re) | static_cast<Orb32u>(s) << 16;
      }
    }
  }
}

#if ORBS_VECTOR

// The same without a branch that depends on data. A path has a key, its metric with the number of its branch
// below that, counted from 1: the least key of a state is its survivor, and of equal paths the first. A
// state's own metric, with 0 below, is less than the key of a path that does not improve it. Keys take 17
// bits of metric and 11 of number.
template <int kBranches>
class PathKeys {
 public:
  static constexpr Orb32s kStates = 4 * kBranches;

  // False if a symbol metric is negative: then an earlier path can stay below 0 and be stored as a large
  // number, and which path survives depends on the order. The form for 16 states has no sign.
  ORBS_INLINE bool SetWeights(const Orb16sc* symbols) {
    Orb32s signs = 0;
    ORBS_UNROLL
    for (int e = 0; e < 2 * kBranches; ++e) {
      signs |= symbols[e].im;
      weights_[e & 1][e >> 1] = static_cast<Orb16u>(symbols[e].im) << kNumberBits | e >> 1;
    }
    return kBranches == 4 || signs >= 0;
  }

  void SelectPaths(const TrellisStep& step) {
    Orb32s paths[kStates * kBranches];
    for (Orb32s s = 0; s < kStates; ++s) {
      const Orb32s first = (step.oldMetrics[s] << kNumberBits) + s * kBranches + 1;
      ORBS_UNROLL
      for (int b = 0; b < kBranches; b += V::kLanes) {
        (V::All(first) + V::Load(weights_[s & 1] + b)).Store(paths + s * kBranches + b);
      }
    }
    Orb32s keys[256] = {};  // for any number of a next state; what is none of a state is dropped
    for (Orb32s t = 0; t < kStates; ++t) keys[t] = step.newMetrics[t] << kNumberBits;
    for (Orb32s i = 0; i < kStates * kBranches; i += kBranches) {
      ORBS_UNROLL
      for (int b = 0; b < kBranches; ++b) {
        Orb32s& key = keys[step.nextStates[i + b]];
        const Orb32s path = paths[i + b];
        key = path < key ? path : key;
      }
    }
    for (Orb32s t = 0; t < kStates; ++t) {
      const Orb32s number = keys[t] & ((1 << kNumberBits) - 1);
      if (number == 0) continue;
      const Orb32s s = (number - 1) / kBranches;
      const Orb16sc symbol = step.symbols[(s & 1) + 2 * ((number - 1) % kBranches)];
      step.newMetrics[t] = static_cast<Orb16u>(keys[t] >> kNumberBits);
      step.survivors[t] = static_cast<Orb16u>(symbol.re) | static_cast<Orb32u>(s) << 16;
    }
  }

 private:
  static constexpr int kNumberBits = 11;
  using V = std::conditional_t<(kBranches >= N32::kLanes), N32, I32x4>;

  Orb32s weights_[2][kBranches];  // of even and of odd states
};

template <int kBranches>
ORBS_INLINE void SelectPathsFast(const TrellisStep& step) {
  PathKeys<kBranches> keys;
  if (step.stateCount == keys.kStates && keys.SetWeights(step.symbols)) {
    keys.SelectPaths(step);
  } else {
    SelectPaths<kBranches>(step);
  }
}

#endif

inline void SelectPaths(const TrellisStep& step) {
#if ORBS_VECTOR
  if (step.stateCount == 16) return SelectPathsFast<4>(step);
  if (step.stateCount == 32) return SelectPathsFast<8>(step);
  return SelectPathsFast<16>(step);
#else
  if (step.stateCount == 16) return SelectPaths<4>(step);
  if (step.stateCount == 32) return SelectPaths<8>(step);
  return SelectPaths<16>(step);
#endif
}

// ---- The least metric, and all of them relative to it ----

#if ORBS_VECTOR

// Metrics in the order of signed numbers.
ORBS_INLINE I16 LoadBiased(const Orb16u* metrics) {
  return I16::Load(reinterpret_cast<const Orb16s*>(metrics)) ^ I16::All(-32768);
}

ORBS_INLINE bool AnyLane(I16 mask) {
  const N32 both = As32(mask);
  return SignBits(AsFloat(both | ShiftLeft(both, 16))) != 0;
}

// n is at least a vector.
inline Orb16u LeastMetric(const Orb16u* metrics, Orb32s n, Orb32s* index) {
  I16 least = LoadBiased(metrics + n - I16::kLanes);
  for (Orb32s i = 0; i <= n - I16::kLanes; i += I16::kLanes) least = Min(least, LoadBiased(metrics + i));
  Orb16s lanes[I16::kLanes];
  least.Store(lanes);
  Orb16s result = lanes[0];
  for (const Orb16s lane : lanes) result = lane < result ? lane : result;

  const I16 wanted = I16::All(result);
  Orb32s i = 0;
  while (i <= n - I16::kLanes && !AnyLane(AndNot(Greater(LoadBiased(metrics + i), wanted), I16::All(-1)))) {
    i += I16::kLanes;
  }
  const auto value = static_cast<Orb16u>(result ^ -32768);
  while (metrics[i] != value) ++i;
  *index = i;
  return value;
}

inline Orb16u NormaliseMetrics(Orb16u* newMetrics, Orb16u* oldMetrics, Orb32s n, Orb32s* index) {
  Orb16u least;
  if (n >= I16::kLanes) {
    least = LeastMetric(newMetrics, n, index);
  } else {
    Orb16u padded[I16::kLanes];
    std::memset(padded, 0xFF, sizeof padded);
    std::memcpy(padded, newMetrics, static_cast<size_t>(n) * sizeof *newMetrics);
    least = LeastMetric(padded, I16::kLanes, index);
  }
  const I16 subtracted = I16::All(static_cast<Orb16s>(least));
  ForBlocks<I16::kLanes>(
      static_cast<size_t>(n),
      [subtracted](Orb16u* d, const Orb16u* s) {
        (I16::Load(reinterpret_cast<const Orb16s*>(s)) - subtracted).Store(reinterpret_cast<Orb16s*>(d));
      },
      oldMetrics, static_cast<const Orb16u*>(newMetrics));
  std::memset(newMetrics, 0xFF, static_cast<size_t>(n) * sizeof *newMetrics);  // unreached
  return least;
}

#else

inline Orb16u NormaliseMetrics(Orb16u* newMetrics, Orb16u* oldMetrics, Orb32s n, Orb32s* index) {
  Orb16u least = kUnreached;
  *index = 0;
  for (Orb32s s = 0; s < n; ++s) {
    if (newMetrics[s] < least) {
      least = newMetrics[s];
      *index = s;
    }
  }
  for (Orb32s s = 0; s < n; ++s) oldMetrics[s] = static_cast<Orb16u>(newMetrics[s] - least);
  for (Orb32s s = 0; s < n; ++s) newMetrics[s] = kUnreached;
  return least;
}

#endif

}  // namespace orbs::ORBS_VARIANT::modem

#endif
