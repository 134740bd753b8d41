// Uniform random numbers: o (high - low) 2^-32 + (low + high) / 2.
#ifndef ORBS_GEN_RANDOM_RANDOM_UNIFORM_H
#define ORBS_GEN_RANDOM_RANDOM_UNIFORM_H

#include "core/checks.h"
#include "gen/random/random_deliver.h"
#include "gen/tuning.h"

namespace orbs::ORBS_VARIANT::gen {

// In extended precision, then in the type of the kernel: no range of binary64 overflows on the way.
struct Range {
  Wide<Orb64f> scale;
  Wide<Orb64f> middle;

  Range(long double low, long double high)
      : scale(static_cast<Wide<Orb64f>>((high - low) * 2.3283064365387e-10)),
        middle(static_cast<Wide<Orb64f>>((low + high) * 0.5L)) {}

  Wide<Orb64f> operator()(Orb32s number) const { return number * scale + middle; }
};

#if ORBS_VECTOR

template <class Result>
void FillUniform(Result* dst, Orb32s len, Range range, Orb32u* seed) {
  RandomPlace place(*seed);
  RandomBlock block;
  const F64 scale = F64::All(range.scale);
  const F64 middle = F64::All(range.middle);
  const auto value = [&](int i) {
    F64 x;
    LoadWiden(block.numbers + i, &x);
    return MulAdd(x, scale, middle);
  };
  const auto round = [](Orb32s* d, F64 y) { StoreRounded(d, y); };
  Orb32s last = 0;
  for (Orb32s done = 0; done < len; done += last) {
    const Orb32s room = len - done;
    last = room < kRandomBlock ? room : kRandomBlock;
    block.Fill(place, last);
    DeliverRandom<kRandomBlock>(dst + done, room, last, value, round);
  }
  *seed = block.word(last - 1);
  if constexpr (std::is_integral_v<Result> && kTruncatesLastOdd) {
    if (len % 2 != 0) dst[len - 1] = static_cast<Result>(range(block.numbers[last - 1]));
  }
}

#else

template <class Result>
void FillUniform(Result* dst, Orb32s len, Range range, Orb32u* seed) {
  RandomNumbers numbers(*seed);
  for (Orb32s n = 0; n < len; ++n) dst[n] = static_cast<Result>(range(numbers.Next()));
  *seed = numbers.lastWord();
}

#endif

template <class Result>
ORBS_INLINE OrbStatus Uniform(Result* dst, Orb32s len, Result low, Result high, Orb32u* seed) {
  ORBS_RETURN_IF_BAD(CheckArrays(len, dst, seed));
  FillUniform(dst, len, Range(low, high), seed);
  return StatusOk;
}

}  // namespace orbs::ORBS_VARIANT::gen

#endif
