// Add, compare and select for linear codes, all branches of a state at once.
//
// In a linear code the next state is t(s, b) = alpha(s) ^ nu(b), where nu(b) is the XOR of one number for
// each bit of b. The numbers nu(b) form a group under XOR, and so the states fall into four cosets of as many
// states as there are branches: whatever its branches, a state leads to each state of one coset once. Let r
// be the coset's first state. Lane l stands for the target r ^ nu(l). If alpha(s) is r ^ nu(beta), the branch
// from s to it is l ^ beta: the metrics of a state's branches, in the order of the targets, are the symbol
// metrics shuffled by an XOR of their index, for which there are few tables.
//
// Whatever depends on alpha alone may be nonlinear, so that a code is linear enough if it is so in its input.
#ifndef ORBS_MODEM_VITERBI_LINEAR_H
#define ORBS_MODEM_VITERBI_LINEAR_H

#include <cstdint>
#include <cstring>
#include <type_traits>

#include "frame/simd.h"

namespace orbs::ORBS_VARIANT {

template <int kBranches>
class LinearTrellis {
 public:
  // Whether the tables allow this way: a linear code, next states that exist, and symbol metrics below 32768,
  // so that sums that saturate give the same order as exact ones.
  bool Recognise(const Orb8u* nextStates, const Orb16sc* symbols) {
    Orb8u nu[kBranches];
    for (int b = 0; b < kBranches; ++b) nu[b] = nextStates[b] ^ nextStates[0];
    unsigned wrong = 0;
    for (int b = 1; b < kBranches; ++b) wrong |= nu[b] ^ nu[b & (b - 1)] ^ nu[b & -b];
    for (int k = 0; k < 2 * kBranches; ++k) wrong |= static_cast<Orb16u>(symbols[k].im) & 0x8000u;
    if (wrong != 0 || !HaveForm(nextStates, nu)) return false;
    return SetPlaces(nu) && SetOrder(nextStates);
  }

  void SelectPaths(const Orb16u* oldMetrics, Orb16u* newMetrics, const Orb16sc* symbols,
                   Orb32u* survivors) const {
    Orb16s negated[2 * kBranches][kWidth];  // [2 beta + s & 1]
    ShuffleMetrics(symbols, negated);
    for (int coset = 0; coset < 4; ++coset) {
      const Orb8u* const targets = targets_ + coset * kBranches;
      Orb16s metrics[kWidth] = {};
      for (int lane = 0; lane < kBranches; ++lane) {
        metrics[lane] = static_cast<Orb16s>(newMetrics[targets[lane]] ^ 0x8000);
      }
      V best[kVectors];
      V from[kVectors];
      ORBS_UNROLL
      for (int v = 0; v < kVectors; ++v) {
        best[v] = V::Load(metrics + v * V::kLanes);
        from[v] = V::All(kNone);
      }
      for (int i = starts_[coset]; i < starts_[coset + 1]; ++i) {
        const int s = order_[i];
        const V old = V::All(static_cast<Orb16s>(oldMetrics[s] ^ 0x8000));
        const V state = V::All(static_cast<Orb16s>(s));
        ORBS_UNROLL
        for (int v = 0; v < kVectors; ++v) {
          const V path = SubtractSaturating(old, V::Load(negated[2 * beta_[s] + (s & 1)] + v * V::kLanes));
          const V better = Greater(best[v], path);
          best[v] = Min(best[v], path);
          from[v] = (better & state) | AndNot(better, from[v]);
        }
      }
      Orb16s states[kWidth];
      ORBS_UNROLL
      for (int v = 0; v < kVectors; ++v) {
        best[v].Store(metrics + v * V::kLanes);
        from[v].Store(states + v * V::kLanes);
      }
      for (int lane = 0; lane < kBranches; ++lane) {
        const int s = states[lane];
        if (s == kNone) continue;
        newMetrics[targets[lane]] = static_cast<Orb16u>(metrics[lane] ^ 0x8000);
        const Orb16sc symbol = symbols[(s & 1) + 2 * (lane ^ beta_[s])];
        survivors[targets[lane]] = static_cast<Orb16u>(symbol.re) | static_cast<Orb32u>(s) << 16;
      }
    }
  }

 private:
  static constexpr int kStates = 4 * kBranches;
  static constexpr Orb16s kNone = -1;
  using V = std::conditional_t<(kBranches >= I16::kLanes), I16, I16x8>;
  static constexpr int kWidth = kBranches < V::kLanes ? V::kLanes : kBranches;
  static constexpr int kVectors = kWidth / V::kLanes;

  // t(s, b) ^ t(s, 0) = nu(b) for all states, some branches at a time as bytes of one word.
  static bool HaveForm(const Orb8u* nextStates, const Orb8u (&nu)[kBranches]) {
    using Word = std::conditional_t<kBranches == 4, uint32_t, uint64_t>;
    constexpr int kWords = kBranches / static_cast<int>(sizeof(Word));
    constexpr Word kEachByte = static_cast<Word>(0x0101010101010101u);
    Word form[kWords];
    std::memcpy(form, nu, sizeof form);
    Word wrong = 0;
    for (int s = 0; s < kStates; ++s) {
      const Orb8u* const next = nextStates + s * kBranches;
      Word row[kWords];
      std::memcpy(row, next, sizeof row);
      const Word first = next[0] * kEachByte;
      ORBS_UNROLL
      for (int w = 0; w < kWords; ++w) wrong |= row[w] ^ first ^ form[w];
    }
    return wrong == 0;
  }

  // The cosets' states by lane, and where each state stands. False if the numbers are not those of the
  // states.
  bool SetPlaces(const Orb8u (&nu)[kBranches]) {
    uint64_t met = 0;
    int first = 0;
    for (int coset = 0; coset < 4; ++coset) {
      while (first < kStates && (met >> first & 1) != 0) ++first;
      if (first == kStates) return false;
      for (int lane = 0; lane < kBranches; ++lane) {
        const int target = first ^ nu[lane];
        if (target >= kStates) return false;
        met |= uint64_t{1} << target;
        targets_[coset * kBranches + lane] = static_cast<Orb8u>(target);
        places_[target] = static_cast<Orb8u>(coset * kBranches + lane);
      }
    }
    return met == ~uint64_t{0} >> (64 - kStates);
  }

  // The states by the coset that they lead to, ascending in each.
  bool SetOrder(const Orb8u* nextStates) {
    int counts[4] = {};
    for (int s = 0; s < kStates; ++s) {
      const Orb8u alpha = nextStates[s * kBranches];
      if (alpha >= kStates) return false;
      beta_[s] = places_[alpha];
      ++counts[places_[alpha] / kBranches];
    }
    starts_[0] = 0;
    int ends[4];
    for (int coset = 0; coset < 4; ++coset) {
      ends[coset] = starts_[coset];
      starts_[coset + 1] = starts_[coset] + counts[coset];
    }
    for (int s = 0; s < kStates; ++s) {
      order_[ends[beta_[s] / kBranches]++] = static_cast<Orb8u>(s);
      beta_[s] %= kBranches;
    }
    return true;
  }

  // negated[2 beta + parity][lane] = minus the metric of branch lane ^ beta of states of that parity. For the
  // subtraction saturates, and there is no addition that does.
  static void ShuffleMetrics(const Orb16sc* symbols, Orb16s (&negated)[2 * kBranches][kWidth]) {
    constexpr int kParts = kWidth / I16x8::kLanes;
    for (int parity = 0; parity < 2; ++parity) {
      for (int lane = 0; lane < kWidth; ++lane) {
        negated[parity][lane] = static_cast<Orb16s>(-symbols[2 * (lane % kBranches) + parity].im);
      }
    }
    const auto extend = [&](int bit, auto shuffle) {
      for (int i = 0; i < 2 * bit; ++i) {
        for (int part = 0; part < kParts; ++part) {
          shuffle(I16x8::Load(negated[i] + 8 * part)).Store(negated[2 * bit + i] + 8 * part);
        }
      }
    };
    extend(1, [](I16x8 v) { return SwapPairs(v); });
    extend(2, [](I16x8 v) { return As16(AsInt(SwapPairs(AsFloat(As32(v))))); });
    if constexpr (kBranches >= 8) {
      extend(4, [](I16x8 v) { return As16(AsInt(ReversePairs(AsFloat(As32(v))))); });
    }
    if constexpr (kBranches == 16) {
      for (int i = 0; i < 16; ++i) {
        I16x8::Load(negated[i]).Store(negated[16 + i] + 8);
        I16x8::Load(negated[i] + 8).Store(negated[16 + i]);
      }
    }
  }

  Orb8u targets_[kStates];
  Orb8u places_[kStates];
  Orb8u beta_[kStates];
  Orb8u order_[kStates];
  int starts_[5];
};

}  // namespace orbs::ORBS_VARIANT

#endif
