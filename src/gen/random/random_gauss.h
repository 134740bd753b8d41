// Gaussian random numbers by the polar method.
#ifndef ORBS_GEN_RANDOM_RANDOM_GAUSS_H
#define ORBS_GEN_RANDOM_RANDOM_GAUSS_H

#include <math.h>

#include "core/checks.h"
#include "core/scaling.h"
#include "gen/random/random_deliver.h"
#include "simd/logarithm.h"

namespace orbs::ORBS_VARIANT::gen {

inline constexpr Orb64f kToUnit = 4.656612873077e-10;  // for 2^-31

#if ORBS_VECTOR

// Points inside the circle, collected from several blocks before their logarithms are taken: by then what was
// stored one by one has left the store buffers and can be loaded in vectors.
class Points {
 public:
  static constexpr int kMost = 96;

  int count() const { return count_; }
  void Clear() { count_ = 0; }

  // Whether a whole block may still be collected.
  bool HasRoom() const { return count_ <= kMost - kRandomBlock / 2; }

  // Adds points from the numbers until there are `most`; gives how many numbers it has used.
  int Collect(const Orb32s* numbers, int numberCount, Orb32s most) {
    Orb64f units[kRandomBlock];
    for (int i = 0; i < numberCount; i += F64::kLanes) {
      F64 x;
      LoadWiden(numbers + i, &x);
      (x * F64::All(kToUnit)).Store(units + i);
    }
    int count = count_;
    int used = 0;
    for (; used < numberCount && count < most; used += 2) {
      const Orb64f u1 = units[used];
      const Orb64f u2 = units[used + 1];
      const Orb64f square = u1 * u1 + u2 * u2;
      // Stored in any case and overwritten if outside: cheaper than a branch that nobody can predict.
      squares_[count] = square;
      parts_[2 * count] = u2;
      parts_[2 * count + 1] = u1;
      count += static_cast<int>(square < 1) & static_cast<int>(square != 0);
    }
    count_ = count;
    return used;
  }

  void ComputeFactors() {
    // The rest of the last vector stands for any number with a logarithm.
    for (int i = count_; i % F64::kLanes != 0; ++i) squares_[i] = 0.5;
    for (int i = 0; i < count_; i += F64::kLanes) {
      const F64 r = F64::Load(squares_ + i);
      Sqrt(F64::All(-2) * Ln(r) / r).Store(factors_ + i);
    }
  }

  // u2 and u1 times their factors, alternating: the normally distributed numbers from the i-th on.
  ORBS_INLINE F64 Normal(int i, F64 deviation, F64 mean) const {
    F64 factors;
    LoadPairs(factors_ + i / 2, factors_ + i / 2, &factors);
    return MulAdd(deviation * F64::Load(parts_ + i), factors, mean);
  }

 private:
  Orb64f squares_[kMost];  // r = u1^2 + u2^2
  Orb64f parts_[2 * kMost] = {};
  Orb64f factors_[kMost] = {};  // sqrt(-2 ln(r) / r)
  int count_ = 0;
};

template <class Result>
void FillGauss(Result* dst, Orb32s len, Orb64f mean, Orb64f stdDev, Orb32u* seed) {
  RandomPlace place(*seed);
  RandomBlock block;
  Points points;
  const F64 center = F64::All(mean);
  const F64 deviation = F64::All(stdDev);
  const auto value = [&](int i) { return points.Normal(i, deviation, center); };
  const auto truncate = [](Orb32s* d, F64 y) { StoreTruncated(d, y); };
  int used = 0;
  for (Orb32s done = 0; done < len;) {
    const Orb32s room = len - done;
    const Orb32s most = room / 2 + room % 2;
    points.Clear();
    while (points.count() < most && points.HasRoom()) {
      const int numberCount = most - points.count() <= kRandomHalfBlock / 2 ? kRandomHalfBlock : kRandomBlock;
      block.Fill(place, numberCount);
      used = points.Collect(block.numbers, numberCount, most);
    }
    points.ComputeFactors();
    done += DeliverRandom<2 * Points::kMost>(dst + done, room, 2 * points.count(), value, truncate);
  }
  *seed = block.word(used - 1);
}

#else

// Truncated and limited; the values of 16-bit parameters fit 32 bits.
ORBS_INLINE void Deliver(Wide<Orb64f> y, Orb16s* d) { *d = Saturate<Orb16s>(TruncateToInt(y)); }
template <class Float>
ORBS_INLINE void Deliver(Wide<Orb64f> y, Float* d) {
  *d = static_cast<Float>(y);
}

template <class Result>
void FillGauss(Result* dst, Orb32s len, Orb64f mean, Orb64f stdDev, Orb32u* seed) {
  using Float = Wide<Orb64f>;
  RandomNumbers numbers(*seed);
  for (Orb32s n = 0; n < len;) {
    const Float u1 = numbers.Next() * Float(kToUnit);
    const Float u2 = numbers.Next() * Float(kToUnit);
    const Float r = u1 * u1 + u2 * u2;
    if (r >= 1 || r == 0) continue;
    const Float w = sqrtl(-2 * logl(r) / r);
    Deliver(mean + stdDev * u2 * w, dst + n++);
    if (n < len) Deliver(mean + stdDev * u1 * w, dst + n++);
  }
  *seed = numbers.lastWord();
}

#endif

template <class Result>
ORBS_INLINE OrbStatus Gauss(Result* dst, Orb32s len, Result mean, Result stdDev, Orb32u* seed) {
  ORBS_RETURN_IF_BAD(CheckArrays(len, dst, seed));
  FillGauss(dst, len, mean, stdDev, seed);
  return StatusOk;
}

}  // namespace orbs::ORBS_VARIANT::gen

#endif
