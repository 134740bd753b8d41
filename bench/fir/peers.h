// FIR filters of other libraries and of the compiler, as calls on given arrays.
#ifndef ORBS_BENCH_FIR_PEERS_H
#define ORBS_BENCH_FIR_PEERS_H

#include <functional>

#include "orbs90lgc/types.h"

namespace orbs::bench::native {

using Call = std::function<void()>;

// liquid-dsp: a filter's block form, its form for one sample, and its filter by transforms, which takes
// blocks of at least the length of the taps.
Call LiquidBlock(const Orb32f* taps, Orb32s tapCount, const Orb32f* src, Orb32f* dst, Orb32s n);
Call LiquidBlock(const Orb32fc* taps, Orb32s tapCount, const Orb32fc* src, Orb32fc* dst, Orb32s n);
Call LiquidOne(const Orb32f* taps, Orb32s tapCount, const Orb32f* src, Orb32f* dst);
Call LiquidByTransform(const Orb32f* taps, Orb32s tapCount, const Orb32f* src, Orb32f* dst, Orb32s n);

// A dot product of VOLK for each output. In src the tapCount - 1 samples before the block come first.
Call VolkDots(const Orb32f* taps, Orb32s tapCount, const Orb32f* src, Orb32f* dst, Orb32s n);
Call VolkDots(const Orb32fc* taps, Orb32s tapCount, const Orb32fc* src, Orb32fc* dst, Orb32s n);

// The formula in two loops, compiled with -O3 and all instructions of the building machine. src as above.
Call Loop(const Orb32f* taps, Orb32s tapCount, const Orb32f* src, Orb32f* dst, Orb32s n);
Call Loop(const Orb64f* taps, Orb32s tapCount, const Orb64f* src, Orb64f* dst, Orb32s n);
Call Loop(const Orb16s* taps, Orb32s tapCount, const Orb16s* src, Orb16s* dst, Orb32s n);

}  // namespace orbs::bench::native

#endif
