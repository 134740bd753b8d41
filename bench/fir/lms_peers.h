// Adaptive filters of another library and of the compiler, as calls that take a stream a sample at a time.
#ifndef ORBS_BENCH_FIR_LMS_PEERS_H
#define ORBS_BENCH_FIR_LMS_PEERS_H

#include <functional>

#include "orbs90lgc/types.h"

namespace orbs::bench::native {

using Call = std::function<void()>;

// liquid-dsp: its LMS equaliser, which divides by the energy of the samples and keeps that energy up to date.
Call LiquidLms(Orb32s tapCount, Orb32f mu, const Orb32f* src, const Orb32f* reference, Orb32f* dst, Orb32s n);

// The formulas, compiled with -O3 and all instructions of the building machine. Sums are made in 16 parts,
// without which the compiler may not vectorise them.
Call LoopLms(Orb32s tapCount, Orb32f mu, const Orb32f* src, const Orb32f* reference, Orb32f* dst, Orb32s n);
Call LoopLms(Orb32s tapCount, Orb32f mu, const Orb16s* src, const Orb16s* reference, Orb16s* dst, Orb32s n);
Call LoopLmsQ15(Orb32s tapCount, Orb32s mu, const Orb16s* src, const Orb16s* reference, Orb16s* dst,
                Orb32s n);

}  // namespace orbs::bench::native

#endif
