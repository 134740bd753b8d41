// IIR filters of another library and of the compiler, as calls on given arrays.
#ifndef ORBS_BENCH_IIR_PEERS_H
#define ORBS_BENCH_IIR_PEERS_H

#include <functional>
#include <vector>

#include "orbs90lgc/types.h"

namespace orbs::bench::native {

using Call = std::function<void()>;

// b[0] to b[N], a[0] to a[N] with a[0] = 1; for cascades N = 2, section after section.
template <class Tap>
struct IirTaps {
  Orb32s order;
  Orb32s sectionCount;  // 0: one filter of that order
  std::vector<Tap> values;
};

// liquid-dsp's iirfilt, in its normal form or in second-order sections. Its samples are floating point, so
// that it is spared the conversions and the saturation.
Call LiquidIir(const IirTaps<Orb32f>& taps, const Orb32f* src, Orb32f* dst, Orb32s n);
Call LiquidIir(const IirTaps<Orb32fc>& taps, const Orb32fc* src, Orb32fc* dst, Orb32s n);

// The transposed direct form II in plain loops, from 16-bit samples to 16-bit results, compiled with -O3 and
// all instructions of the building machine.
Call IirLoop(const IirTaps<Orb32f>& taps, const Orb16s* src, Orb16s* dst, Orb32s n);
Call IirLoop(const IirTaps<Orb32fc>& taps, const Orb16sc* src, Orb16sc* dst, Orb32s n);

// n dependent multiply-adds: the least time for a filter that makes one result from the one before.
Call DependentMultiplyAdds(Orb32f* result, Orb32s n);

}  // namespace orbs::bench::native

#endif
