// Tones in the vector variants.
//
// A tone is generated in blocks of 1024 samples, each made of four segments of 256. A segment starts from 16
// exact samples and goes on by y[n] = K y[n-8] - y[n-16], K = 2 cos(8w): eight samples, or eight complex
// ones, are one or more whole vectors. Segments run side by side, as many as the registers hold, since one
// alone would wait for each multiplication. Fresh starts every 256 samples hold the error where 30 steps
// leave it, however long the call is: an error d of K comes to 30^2 d / 2, 3e-5 for binary32 and 1e-13 for
// binary64.
#ifndef ORBS_GEN_TONE_VECTOR_H
#define ORBS_GEN_TONE_VECTOR_H

#include <cstddef>
#include <cstring>
#include <type_traits>

#include "gen/tone_cosine.h"
#include "gen/tone_store.h"

#if ORBS_VECTOR

namespace orbs::ORBS_VARIANT {

inline constexpr int kToneUnit = 16;  // samples that a step computes, and that a segment starts from
inline constexpr int kToneSegment = 256;
inline constexpr int kToneSegments = 4;
inline constexpr int kToneBlock = kToneSegments * kToneSegment;

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
  Orb64f cosines[kToneUnit];
  Orb64f sines[kToneUnit];
  for (int i = 0; i < kToneUnit; i += F64::kLanes) {
    F64 c;
    F64 s;
    CosineAndSineOfTurns(TurnsOfMultiples(F64::Load(kFirstNumbers + i), rFreq), &c, &s);
    c.Store(cosines + i);
    s.Store(sines + i);
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

// Four segments of `segmentLen` samples, a multiple of 16; turns[i] is the angle of the first sample of
// segment i.
template <class V, int kParts, class Part>
ORBS_INLINE void GenerateToneBlock(Part* dst, int segmentLen, const ToneStart<kParts>& start,
                                   const Orb64f (&turns)[kToneSegments], V magn) {
  using Segment = ToneSegment<V, kParts>;
  // Four vectors at work cover the time of a multiplication and an addition.
  constexpr int kTogether = Segment::kStep < 4 ? 4 / Segment::kStep : 1;
  static_assert(kToneSegments % kTogether == 0);

  Orb64f cosines[kToneSegments];
  Orb64f sines[kToneSegments];
  for (int i = 0; i < kToneSegments; i += F64::kLanes) {
    F64 c;
    F64 s;
    CosineAndSineOfTurns(F64::Load(turns + i), &c, &s);
    c.Store(cosines + i);
    s.Store(sines + i);
  }

  const V k = V::All(static_cast<typename V::Lane>(start.k));
  for (int i = 0; i < kToneSegments; i += kTogether) {
    Segment segments[kTogether];
    ORBS_UNROLL
    for (int j = 0; j < kTogether; ++j) segments[j].Begin(start, cosines[i + j], sines[i + j]);
    Part* to = dst + i * segmentLen * kParts;
    for (int done = 0;; to += kToneUnit * kParts) {
      ORBS_UNROLL
      for (int j = 0; j < kTogether; ++j) {
        StoreScaled<ToInteger::kTruncate>(to + j * segmentLen * kParts, segments[j].past, magn);
      }
      done += kToneUnit;
      if (done == segmentLen) break;
      ORBS_UNROLL
      for (int j = 0; j < kTogether; ++j) segments[j].Advance(k);
    }
  }
}

// V: the vectors that the recurrence runs in.
template <class V, int kParts, class Part>
void GenerateToneIn(Part* dst, Orb32s len, Orb64f magn, Orb64f rFreq, Orb64f phase) {
  ToneStart<kParts> start;
  PrepareToneStart(rFreq, &start);
  const V scale = V::All(static_cast<typename V::Lane>(magn));
  const long double origin = TurnsOfPhase(phase);
  const auto block = [&](Part* to, int segmentLen, Orb32s n) {
    Orb64f turns[kToneSegments];
    for (int i = 0; i < kToneSegments; ++i) {
      turns[i] = TurnsOfSample(origin, int64_t{n} + i * segmentLen, rFreq);
    }
    GenerateToneBlock<V, kParts>(to, segmentLen, start, turns, scale);
  };

  Orb32s n = 0;
  for (; len - n >= kToneBlock; n += kToneBlock) {
    block(dst + static_cast<size_t>(n) * kParts, kToneSegment, n);
  }
  if (const int rest = len - n; rest > 0) {
    Part samples[kToneBlock * kParts];
    const int segmentLen = (rest + kToneSegments * kToneUnit - 1) / (kToneSegments * kToneUnit) * kToneUnit;
    block(samples, segmentLen, n);
    std::memcpy(dst + static_cast<size_t>(n) * kParts, samples,
                static_cast<size_t>(rest) * kParts * sizeof(Part));
  }
}

// Binary32 for HintFast, unless the result is binary64: single precision would then save nothing, the stores
// being as wide.
template <int kParts, class Part, class Real>
void GenerateTone(Part* dst, Orb32s len, Orb64f magn, Real rFreq, Real phase, OrbAlgHint hint) {
  if constexpr (!std::is_same_v<Part, Orb64f>) {
    if (hint == HintFast) return GenerateToneIn<F32, kParts>(dst, len, magn, rFreq, phase);
  }
  GenerateToneIn<F64, kParts>(dst, len, magn, rFreq, phase);
}

// Samples `first` to first + len - 1, each from its own angle. rFreq is a multiple of 2^-15 and the index has
// 32 bits, so that their product, in turns, is exact.
inline void GenerateIndexedTone(Orb16s* dst, Orb32s len, Orb64f magn, Orb64f rFreq, Orb64f phase,
                                Orb32s first) {
  const F64 scale = F64::All(magn);
  const F64 frequency = F64::All(rFreq);
  const F64 origin = F64::All(phase * kInverseTwoPi);
  const auto unit = [&](Orb16s* to, Orb32s i) {
    const F64 index = F64::All(static_cast<Orb64f>(first) + i);
    F64 samples[kToneUnit / F64::kLanes];
    for (int j = 0; j < kToneUnit / F64::kLanes; ++j) {
      const F64 turns = (index + F64::Load(kFirstNumbers + j * F64::kLanes)) * frequency;
      F64 sine;
      CosineAndSineOfTurns((turns - RoundToWhole(turns)) + origin, &samples[j], &sine);
    }
    StoreScaled<ToInteger::kHalfAway>(to, samples, scale);
  };
  Orb32s i = 0;
  for (; len - i >= kToneUnit; i += kToneUnit) unit(dst + i, i);
  if (i < len) {
    Orb16s samples[kToneUnit];
    unit(samples, i);
    std::memcpy(dst + i, samples, static_cast<size_t>(len - i) * sizeof(Orb16s));
  }
}

}  // namespace orbs::ORBS_VARIANT

#endif
#endif
