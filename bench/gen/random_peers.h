// Random numbers of the C++ standard library, liquid-dsp and spandsp into arrays.
#ifndef ORBS_BENCH_GEN_RANDOM_PEERS_H
#define ORBS_BENCH_GEN_RANDOM_PEERS_H

#include "orbs90lgc/types.h"

namespace orbs::bench::native {

enum class Engine { kMersenneTwister, kLinearCongruential };

// A distribution of the standard library on one of its engines, the engine kept from call to call. Integers
// for Orb16s; its normal distribution is rounded.
template <Engine kEngine, class T>
void StdUniform(T* dst, Orb32s n, T low, T high);
template <Engine kEngine, class T>
void StdGauss(T* dst, Orb32s n, T mean, T stdDev);

// liquid-dsp: one number a call, in binary32.
void LiquidUniform(Orb32f* dst, Orb32s n, Orb32f low, Orb32f high);
void LiquidGauss(Orb32f* dst, Orb32s n, Orb32f mean, Orb32f stdDev);

// spandsp: white Gaussian noise, one sample a call.
void SpandspGauss(Orb16s* dst, Orb32s n);

}  // namespace orbs::bench::native

#endif
