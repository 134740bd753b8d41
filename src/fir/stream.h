// How a stream runs through a filter by inner products, whatever the types: which outputs are made from
// where, and how the delay line crosses calls.
//
// An Engine tells of one state: the types Sample (of the delay line) and Data, TapCount, Delay, DelayIndex,
// Block (scratch), and does the arithmetic: Widen makes samples of data, Outputs(x, dst, count) makes count
// results from the samples of which x[0] is the oldest that the first one needs. kVector is how many results
// Outputs makes at a time; for fewer it reads as many samples all the same.
#ifndef ORBS_FIR_STREAM_H
#define ORBS_FIR_STREAM_H

#include <cstring>

#include "core/variant.h"
#include "fir/tuning.h"

namespace orbs::ORBS_VARIANT::fir {

template <class T>
ORBS_INLINE void Copy(const T* src, T* dst, int64_t n) {
  std::memcpy(static_cast<void*>(dst), src, static_cast<size_t>(n) * sizeof(T));
}
template <class T>
ORBS_INLINE void Move(const T* src, T* dst, int64_t n) {
  std::memmove(static_cast<void*>(dst), src, static_cast<size_t>(n) * sizeof(T));
}

// Brings the n most recent samples to the start of the delay line.
template <class Engine>
typename Engine::Sample* PullDelay(Engine engine) {
  auto* const delay = engine.Delay();
  if (engine.DelayIndex() != 0) {
    Move(delay + engine.DelayIndex(), delay, engine.TapCount());
    engine.DelayIndex() = 0;
  }
  return delay;
}

// Samples and data of one type, results elsewhere than the source: all but the first outputs are made
// straight from the source.
template <class Engine>
void FilterFromSource(Engine engine, const typename Engine::Sample* src, typename Engine::Data* dst,
                      Orb32s count) {
  const Orb32s n = engine.TapCount();
  auto* const delay = engine.Delay();
  auto* const recent = delay + engine.DelayIndex();
  engine.DelayIndex() = 0;
  const int64_t room = FirDelayRoom<Engine::kVector>(n);
  if (count <= room) {
    Copy(src, recent + n, count);
    engine.Outputs(recent + 1, dst, count);
    Move(recent + count, delay, n);
    return;
  }
  // A vector of outputs fewer than there is room for, so that at least a vector is left to the source.
  const int64_t first = room - Engine::kVector;
  Copy(src, recent + n, room);
  engine.Outputs(recent + 1, dst, static_cast<Orb32s>(first));
  Copy(src + count - n, delay, n);
  engine.Outputs(src + (first - n + 1), dst + first, static_cast<Orb32s>(count - first));
}

// Everything else: the samples of a chunk go, widened, behind their history into an array of the state's own.
// In place is safe, since a chunk has been read when its results are written.
template <class Engine>
void FilterThroughBuffer(Engine engine, const typename Engine::Data* src, typename Engine::Data* dst,
                         Orb32s count) {
  using Sample = typename Engine::Sample;
  const Orb32s n = engine.TapCount();
  Sample* const delay = PullDelay(engine);
  // A history too long for the block buffer stays in the delay line, which has room for as many again.
  const bool inBlock = n <= Engine::kBlock - kFirChunk - 3 * Engine::kVector;
  Sample* const samples = inBlock ? engine.Block() : delay;
  const int64_t room = FirDelayRoom<Engine::kVector>(n);
  const Orb32s chunk = inBlock || room > kFirChunk ? kFirChunk : static_cast<Orb32s>(room);
  if (inBlock) Copy(delay, samples, n);
  while (count > 0) {
    const Orb32s c = count < chunk ? count : chunk;
    engine.Widen(src, samples + n, c);
    engine.Outputs(samples + 1, dst, c);
    Move(samples + c, samples, n);
    src += c;
    dst += c;
    count -= c;
  }
  if (inBlock) Copy(samples, delay, n);
}

}  // namespace orbs::ORBS_VARIANT::fir

#endif
