// The delay line of a filter without a state: a ring that belongs to the caller.
#ifndef ORBS_FIR_RING_H
#define ORBS_FIR_RING_H

#include <cstdint>

#include "core/variant.h"
#include "fir/stream.h"
#include "orbs90lgc/types.h"

namespace orbs::ORBS_VARIANT::fir {

// A doubled ring: each sample stands at i and at i + n, so that line[i] to line[i+n-1] are always the last n
// samples, the oldest first. 64 bits, since 2n need not fit in 32.
template <class Data>
struct FirRing {
  Data* line;
  Orb32s* index;
  int64_t n;

  // The last n samples.
  const Data* Recent() const { return line + *index; }

  // The same after the next Append: all but the newest are there already. A sample that has just been stored
  // twice must not be read with its neighbours in one vector at once: the load would wait for both stores.
  const Data* Upcoming() const { return line + Next(); }

  Orb32s Next() const { return *index + 1 == n ? 0 : *index + 1; }

  ORBS_INLINE void Append(Data sample) const {
    Data* const at = line + *index;
    at[0] = at[n] = sample;
    *index = Next();
  }

  void Append(const Data* samples, int64_t count) const {
    const int64_t i = *index;
    *index = static_cast<Orb32s>((i + count) % n);
    const int64_t kept = count < n ? count : n;
    const int64_t first = (i + count - kept) % n;
    const Data* const from = samples + (count - kept);
    const int64_t head = kept < n - first ? kept : n - first;
    for (int64_t half = 0; half <= n; half += n) {
      Copy(from, line + half + first, head);
      Copy(from + head, line + half, kept - head);
    }
  }
};

}  // namespace orbs::ORBS_VARIANT::fir

#endif
