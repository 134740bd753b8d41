// Windows of other libraries and of the compiler on 16-bit samples.
#ifndef ORBS_BENCH_GEN_WINDOW_PEERS_H
#define ORBS_BENCH_GEN_WINDOW_PEERS_H

#include "orbs90lgc/types.h"

namespace orbs::bench::native {

// liquid-dsp has a function for one window value. Of Blackman's windows it has the one of four terms.
void LiquidBlackmanHarris(const Orb16s* src, Orb16s* dst, Orb32s n);
void LiquidKaiser(const Orb16s* src, Orb16s* dst, Orb32s n, Orb32f beta);

// The formula with cosf for one end and the other, compiled with -O3 and all instructions of the building
// machine.
void BlackmanLoop(const Orb16s* src, Orb16s* dst, Orb32s n, Orb32f alpha);

// What a program does that has the window's values in an array already: nothing but the products.
void TableLoop(const Orb32f* window, const Orb16s* src, Orb16s* dst, Orb32s n);

}  // namespace orbs::bench::native

#endif
