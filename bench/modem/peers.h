// Detectors and demodulators of other libraries, as calls on given arrays.
#ifndef ORBS_BENCH_MODEM_PEERS_H
#define ORBS_BENCH_MODEM_PEERS_H

#include <functional>

#include "orbs90lgc/types.h"

namespace orbs::bench::native {

using Call = std::function<void()>;

// spandsp: two Goertzel filters over a block of 16-bit samples, with their powers at the end.
Call SpandspGoertzels(const Orb16s* src, Orb32s n, Orb32f first, Orb32f second);

// Both filters in one loop, compiled with -O3 and all instructions of the building machine.
Call GoertzelLoop(const Orb16s* src, Orb32s n, Orb32f first, Orb32f second);

// liquid-dsp: the block form, on complex samples of binary32.
Call LiquidDemodulateFM(const Orb32fc* src, Orb32f* dst, Orb32s n);

// The product and the arctangent of the C library, sample by sample.
Call ArctangentLoop(const Orb16s* re, const Orb16s* im, Orb16s* dst, Orb32s n);

// The definition of legacy90orbsCalcStatesDV_16sc in two loops, kBranches known to the compiler.
template <int kBranches>
void SelectPathsLoop(const Orb16u* oldMetrics, const Orb8u* nextStates, Orb16u* newMetrics,
                     const Orb16sc* symbols, Orb32u* survivors);

}  // namespace orbs::bench::native

#endif
