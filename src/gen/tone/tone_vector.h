// Tones in the vector variants.
//
// A tone is generated in blocks of 1024 samples, each made of segments. A segment starts from 16 exact
// samples and goes on by y[n] = K y[n-8] - y[n-16], K = 2 cos(8w): eight samples, or eight complex ones, are
// one or more whole vectors. Segments run side by side, as many as the registers hold, since one alone would
// wait for each multiplication.
//
// Fresh starts hold the error where a segment leaves it, however long the call is: an error d of K comes to
// m^2 d / 2 in m steps. Segments of 128 samples in binary32 keep it below 2e-5, which no 16-bit sample
// carries beyond its magnitude; 256 samples in binary64 keep it below 1e-12.
#ifndef ORBS_GEN_TONE_TONE_VECTOR_H
#define ORBS_GEN_TONE_TONE_VECTOR_H

#include <cstddef>
#include <cstring>
#include <type_traits>

#include "gen/tone/tone_store.h"
#include "gen/tone/tone_turns.h"
#include "simd/sine_cosine.h"

#if ORBS_VECTOR

namespace orbs::ORBS_VARIANT::gen {

inline constexpr int kToneUnit = 16;  // samples that a step computes, and that a segment starts from
inline constexpr int kToneBlock = 1024;
inline constexpr int kMostSegments = 16;  // in a block

// a b - c.
template <class V>
ORBS_INLINE V MulSub(V a, V b, V c) {
  return MulAdd(a, b, V{-c.v});
}

// What turns the cosine and sine of a segment's first angle into its first 16 samples:
// sample = cosine * ofCosine + sine * ofSine. Complex samples in pairs of lanes.
template <int kParts>
struct ToneStart {
  static constexpr int kLanes = kToneUnit * kParts;
  Orb64f ofCosine[kLanes];
  Orb64f ofSine[kLanes];
  Orb64f k;  // 2 cos(8w)
};

template <int kParts>
ORBS_INLINE void PrepareToneStart(Orb64f rFreq, ToneStart<kParts>* start) {
  // Samples 0 to 3, and the first of each four; all 16 are sums of two of these angles.
  constexpr Orb64f kNumbers[8] = {0, 1, 2, 3, 0, 4, 8, 12};
  Orb64f c[8];
  Orb64f s[8];
  ORBS_UNROLL
  for (int i = 0; i < 8; i += F64::kLanes) {
    StoreCosineAndSine(TurnsOfMultiples(F64::Load(kNumbers + i), rFreq), c + i, s + i);
  }
  Orb64f cosines[kToneUnit];
  Orb64f sines[kToneUnit];
  ORBS_UNROLL
  for (int i = 0; i < kToneUnit; i += F64::kLanes) {
    const F64 c4 = F64::All(c[4 + i / 4]);
    const F64 s4 = F64::All(s[4 + i / 4]);
    const F64 c1 = F64::Load(c + i % 4);
    const F64 s1 = F64::Load(s + i % 4);
    NegMulAdd(s4, s1, c4 * c1).Store(cosines + i);
    MulAdd(c4, s1, s4 * c1).Store(sines + i);
  }
  // From the cosine itself: by doubling from 2 cos(w) its error would grow 64-fold at low frequencies.
  start->k = 2 * cosines[8];
  for (int i = 0; i < kToneUnit * kParts; i += F64::kLanes) {
    F64 ofCosine;
    F64 ofSine;
    if constexpr (kParts == 1) {
      ofCosine = F64::Load(cosines + i);
      ofSine = F64::Zero() - F64::Load(sines + i);
    } else {
      LoadPairs(cosines + i / 2, sines + i / 2, &ofCosine);
      LoadPairs(sines + i / 2, cosines + i / 2, &ofSine);
      ofSine = ofSine ^ EvenSigns(static_cast<F64*>(nullptr));
    }
    ofCosine.Store(start->ofCosine + i);
    ofSine.Store(start->ofSine + i);
  }
}

// The last 16 samples of a segment, of magnitude 1.
template <class V, int kParts>
struct ToneSegment {
  static constexpr int kStep = 8 * kParts / V::kLanes;  // vectors that hold eight samples
  V past[2 * kStep];

  ORBS_INLINE void Begin(const ToneStart<kParts>& start, Orb64f cosine, Orb64f sine) {
    const F64 c = F64::All(cosine);
    const F64 s = F64::All(sine);
    const auto exact = [&](int lane) {
      return MulAdd(c, F64::Load(start.ofCosine + lane), s * F64::Load(start.ofSine + lane));
    };
    ORBS_UNROLL
    for (int i = 0; i < 2 * kStep; ++i) {
      if constexpr (std::is_same_v<V, F64>) {
        past[i] = exact(i * F64::kLanes);
      } else {
        past[i] = Narrow(exact(i * V::kLanes), exact(i * V::kLanes + F64::kLanes));
      }
    }
  }

  ORBS_INLINE void Advance(V k) {
    ORBS_UNROLL
    for (int i = 0; i < kStep; ++i) past[i] = MulSub(k, past[kStep + i], past[i]);
    ORBS_UNROLL
    for (int i = 0; i < kStep; ++i) past[kStep + i] = MulSub(k, past[i], past[kStep + i]);
  }
};

// 16 samples of magnitude 1 to places `index` on; kWhole: all of them below `count`. What does not fit goes
// by way of a copy, which is the last piece of an array at most.
template <bool kWhole, int kParts, ToInteger kRounding, class Part, class V, int n>
ORBS_INLINE void StoreUnit(Part* dst, int index, int count, const V (&unit)[n], V magn) {
  Part* const to = dst + index * kParts;
  if (kWhole || index + kToneUnit <= count) {
    StoreScaled<kRounding>(to, unit, magn);
  } else if (index < count) {
    Part samples[kToneUnit * kParts];
    StoreScaled<kRounding>(samples, unit, magn);
    std::memcpy(to, samples, static_cast<size_t>(count - index) * kParts * sizeof(Part));
  }
}

// `count` samples in `segments` segments, a multiple of 4, of `segmentLen` samples, a multiple of 16; `turns`
// is the angle of the first sample.
template <bool kWhole, class V, int kParts, ToInteger kRounding, class Part>
ORBS_INLINE void GenerateSegments(Part* dst, int count, int segments, int segmentLen,
                                  const ToneStart<kParts>& start, Orb64f turns, Orb64f rFreq, V magn) {
  using Segment = ToneSegment<V, kParts>;
  // Four vectors at work cover the time of a multiplication and an addition.
  constexpr int kTogether = Segment::kStep < 4 ? 4 / Segment::kStep : 1;

  Orb64f cosines[kMostSegments];
  Orb64f sines[kMostSegments];
  for (int i = 0; i < segments; i += F64::kLanes) {
    const F64 first = F64::Load(kFirstNumbers + i) * F64::All(segmentLen);
    StoreCosineAndSine(F64::All(turns) + TurnsOfMultiples(first, rFreq), cosines + i, sines + i);
  }

  const V k = V::All(static_cast<typename V::Lane>(start.k));
  for (int i = 0; i < segments; i += kTogether) {
    Segment together[kTogether];
    ORBS_UNROLL
    for (int j = 0; j < kTogether; ++j) together[j].Begin(start, cosines[i + j], sines[i + j]);
    // Always inline: the call of a function would keep the segments in memory.
    const auto store = [&](int done) __attribute__((always_inline)) {
      ORBS_UNROLL
      for (int j = 0; j < kTogether; ++j) {
        StoreUnit<kWhole, kParts, kRounding>(dst, (i + j) * segmentLen + done, count, together[j].past, magn);
      }
    };
    store(0);
    for (int done = kToneUnit; done < segmentLen; done += kToneUnit) {
      ORBS_UNROLL
      for (int j = 0; j < kTogether; ++j) together[j].Advance(k);
      store(done);
    }
  }
}

// From the angle `origin` on, in turns, in blocks of kBlock samples. V: the vectors that the recurrence runs
// in.
template <class V, int kParts, int kBlock, int kSegmentLen, ToInteger kRounding, class Part>
void GenerateToneFrom(long double origin, Part* dst, Orb32s len, Orb64f magn, Orb64f rFreq) {
  static_assert(kBlock / kSegmentLen <= kMostSegments && kBlock / kSegmentLen % 4 == 0);
  ToneStart<kParts> start;
  PrepareToneStart(rFreq, &start);
  const V scale = V::All(static_cast<typename V::Lane>(magn));
  int64_t n = 0;
  for (; len - n >= kBlock; n += kBlock, dst += kBlock * kParts) {
    GenerateSegments<true, V, kParts, kRounding>(dst, kBlock, kBlock / kSegmentLen, kSegmentLen, start,
                                                 TurnsOfSample(origin, n, rFreq), rFreq, scale);
  }
  if (n == len) return;
  // Four segments if that makes them no longer than others, or else a multiple of four.
  const auto roundsOf = [](int samples, int segmentLen) {
    return (samples + 4 * segmentLen - 1) / (4 * segmentLen);
  };
  const int count = static_cast<int>(len - n);
  const int quarter = kToneUnit * roundsOf(count, kToneUnit);
  const int segmentLen = quarter < kSegmentLen ? quarter : kSegmentLen;
  GenerateSegments<false, V, kParts, kRounding>(dst, count, 4 * roundsOf(count, segmentLen), segmentLen,
                                                start, TurnsOfSample(origin, n, rFreq), rFreq, scale);
}

// Binary32 for HintFast, unless the result is binary64: single precision would then save nothing, the stores
// being as wide.
template <int kParts, class Part, class Real>
void GenerateTone(Part* dst, Orb32s len, Orb64f magn, Real rFreq, Real phase, OrbAlgHint hint) {
  constexpr ToInteger kCut = ToInteger::kTruncate;
  const long double origin = TurnsOfPhase(phase);
  if constexpr (!std::is_same_v<Part, Orb64f>) {
    if (hint == HintFast) {
      return GenerateToneFrom<F32, kParts, kToneBlock, 128, kCut>(origin, dst, len, magn, rFreq);
    }
  }
  GenerateToneFrom<F64, kParts, kToneBlock, 256, kCut>(origin, dst, len, magn, rFreq);
}

// Samples `first` to first + len - 1. Segments of 16 samples: no recurrence, each sample is the sum of two
// exact angles.
inline void GenerateIndexedTone(Orb16s* dst, Orb32s len, Orb64f magn, Orb64f rFreq, Orb64f phase,
                                Orb32s first) {
  const long double origin = TurnsOfPhase(phase) + static_cast<long double>(first) * rFreq;
  GenerateToneFrom<F64, 1, kMostSegments * kToneUnit, kToneUnit, ToInteger::kHalfAway>(origin, dst, len, magn,
                                                                                       rFreq);
}

}  // namespace orbs::ORBS_VARIANT::gen

#endif
#endif
