// How the direct forms of FIR filters walk a stream, whatever the types: checks, the caller's ring, one
// sample, blocks.
//
// An Arithmetic tells of one call: the types Data and Tap, `taps` and `tapCount`, and makes results:
//
//   One(x, dst)              one result from the samples x[0] to x[n-1], the oldest first
//   Outputs(x, dst, count)   vector variants: dst[i] from x[i] to x[i+n-1], 0 <= i < count
//   kReadsSource             vector variants: Outputs takes any count; otherwise it takes a chunk at most
//
// From kDirectFewOutputs on, Outputs reads no other sample; below, up to kDirectRoom behind the last.
#ifndef ORBS_FIR_DIRECT_DIRECT_H
#define ORBS_FIR_DIRECT_DIRECT_H

#include <cstdint>
#include <cstring>

#include "core/checks.h"
#include "fir/kinds.h"
#include "fir/ring.h"
#include "fir/stream.h"

namespace orbs::ORBS_VARIANT::fir {

// ---- Checks: each pointer stands in front of what is counted in it ----

template <class Tap, class Data>
OrbStatus CheckDirectFilter(const Tap* taps, Orb32s tapCount, const Data* delayLine, const Orb32s* index) {
  if (taps == nullptr) return StatusNullPointer;
  if (tapCount < 1) return StatusFirLength;
  return AnyNull(delayLine, index) ? StatusNullPointer : StatusOk;
}

// ---- Single steps ----

template <class Arithmetic, class Data = typename Arithmetic::Data>
ORBS_INLINE void DirectStep(const Arithmetic& filter, Data sample, Data* dst, FirRing<Data> ring) {
  ring.Append(sample);
  filter.One(ring.Recent(), dst);
}

template <class Arithmetic, class Data = typename Arithmetic::Data>
void DirectSteps(const Arithmetic& filter, const Data* src, Data* dst, int64_t count, FirRing<Data> ring) {
  for (int64_t i = 0; i < count; ++i) DirectStep(filter, src[i], dst + i, ring);
}

// ---- Blocks ----

#if ORBS_VECTOR

// Taps up to which a block runs through an array on the stack, its history in front of the samples; and
// samples at a time. All that a call has on the stack is below 32 KB, and stays in the first-level cache.
inline constexpr Orb32s kDirectTaps = 256;
inline constexpr Orb32s kDirectChunk = 256;

// Below this many outputs single steps are as fast as a block's preparations.
inline constexpr Orb32s kDirectFewOutputs = 8;

// Behind samples on the stack, elements that a load of whole vectors may read.
inline constexpr Orb32s kDirectRoom = 16;

ORBS_INLINE bool Apart(const void* a, const void* b, int64_t bytes) {
  const auto first = reinterpret_cast<uintptr_t>(a);
  const auto second = reinterpret_cast<uintptr_t>(b);
  const uintptr_t distance = first < second ? second - first : first - second;
  return static_cast<int64_t>(distance) >= bytes;
}

// Through the stack.
template <class Arithmetic, class Data = typename Arithmetic::Data>
void DirectShort(const Arithmetic& filter, const Data* src, Data* dst, int64_t count, FirRing<Data> ring) {
  const bool apart = Apart(src, dst, count * int64_t{sizeof(Data)});
  const int64_t history = ring.n - 1;
  Data samples[kDirectTaps - 1 + kDirectChunk + kDirectRoom];
  Copy(ring.Recent() + 1, samples, history);
  for (;;) {
    const int64_t c = count < kDirectChunk ? count : kDirectChunk;
    Copy(src, samples + history, c);
    ring.Append(src, c);
    filter.Outputs(samples, dst, c);
    src += c;
    dst += c;
    count -= c;
    if (count == 0) return;
    if constexpr (Arithmetic::kReadsSource) {
      // The history is in the caller's array now, and stays there.
      if (apart && count >= kDirectFewOutputs) {
        ring.Append(src, count);
        filter.Outputs(src - history, dst, count);
        return;
      }
    }
    Move(samples + c, samples, history);
  }
}

// On the ring itself: samples enter its upper half, where their history ends, and are copied to the lower
// half when their results are made. At the end of the halves a single step crosses over.
template <class Arithmetic, class Data = typename Arithmetic::Data>
void DirectLong(const Arithmetic& filter, const Data* src, Data* dst, int64_t count, FirRing<Data> ring) {
  while (count > 0) {
    Data* const lower = ring.line + *ring.index;
    Data* const upper = lower + ring.n;
    const int64_t room = ring.n - 1 - *ring.index;
    int64_t c = count < room ? count : room;
    if (c > kDirectChunk) c = kDirectChunk;
    if (c < kDirectFewOutputs) {
      c = 1;
      DirectStep(filter, *src, dst, ring);
    } else {
      Copy(src, upper, c);
      filter.Outputs(lower + 1, dst, c);
      Copy(upper, lower, c);
      *ring.index += static_cast<Orb32s>(c);
    }
    src += c;
    dst += c;
    count -= c;
  }
}

template <class Arithmetic, class Data = typename Arithmetic::Data>
void DirectBlock(const Arithmetic& filter, const Data* src, Data* dst, int64_t count, FirRing<Data> ring) {
  if (ring.n > kDirectTaps) {
    DirectLong(filter, src, dst, count, ring);
    return;
  }
  // A step takes the samples from the upper half until the index wraps, and from the lower half after that.
  // Where the caller has filled the halves with different numbers, a block would read other samples than
  // steps do: such a ring is walked in steps.
  const auto stale = static_cast<size_t>(*ring.index) * sizeof(Data);
  if (count < kDirectFewOutputs || std::memcmp(ring.line, ring.line + ring.n, stale) != 0) {
    DirectSteps(filter, src, dst, count, ring);
  } else {
    DirectShort(filter, src, dst, count, ring);
  }
}

#else

template <class Arithmetic, class Data = typename Arithmetic::Data>
void DirectBlock(const Arithmetic& filter, const Data* src, Data* dst, int64_t count, FirRing<Data> ring) {
  DirectSteps(filter, src, dst, count, ring);
}

#endif

// ---- The two shapes of a call ----

template <class Arithmetic, class Data = typename Arithmetic::Data>
OrbStatus FilterDirect(const Arithmetic& filter, const Data* src, Data* dst, Orb32s count, Data* delayLine,
                       Orb32s* delayIndex) {
  ORBS_RETURN_IF_BAD(CheckArrays(count, src, dst));
  ORBS_RETURN_IF_BAD(CheckDirectFilter(filter.taps, filter.tapCount, delayLine, delayIndex));
  DirectBlock(filter, src, dst, count, FirRing<Data>{delayLine, delayIndex, filter.tapCount});
  return StatusOk;
}

// `src` is where the sample is: not read before it is known that there is a result.
template <class Arithmetic, class Data = typename Arithmetic::Data>
OrbStatus FilterDirectOne(const Arithmetic& filter, const Data* src, Data* dst, Data* delayLine,
                          Orb32s* delayIndex) {
  if (dst == nullptr) return StatusNullPointer;
  ORBS_RETURN_IF_BAD(CheckDirectFilter(filter.taps, filter.tapCount, delayLine, delayIndex));
  DirectStep(filter, *src, dst, FirRing<Data>{delayLine, delayIndex, filter.tapCount});
  return StatusOk;
}

}  // namespace orbs::ORBS_VARIANT::fir

#endif
