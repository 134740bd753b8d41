#include "bench/gen/random_peers.h"

#include <cmath>
#include <complex>
#include <memory>
#include <random>
#include <type_traits>

#include <liquid/liquid.h>

// Without an order of its own: noise.h uses telephony.h.
// clang-format off
#include <spandsp/telephony.h>
#include <spandsp/noise.h>
// clang-format on

namespace orbs::bench::native {
namespace {

template <Engine kEngine>
using StdEngine = std::conditional_t<kEngine == Engine::kMersenneTwister, std::mt19937, std::minstd_rand>;

template <Engine kEngine>
StdEngine<kEngine>& Shared() {
  static StdEngine<kEngine> engine;
  return engine;
}

}  // namespace

template <Engine kEngine, class T>
void StdUniform(T* dst, Orb32s n, T low, T high) {
  using Distribution =
      std::conditional_t<std::is_integral_v<T>, std::uniform_int_distribution<int>,
                         std::uniform_real_distribution<std::conditional_t<std::is_integral_v<T>, float, T>>>;
  Distribution distribution(low, high);
  auto& engine = Shared<kEngine>();
  for (Orb32s i = 0; i < n; ++i) dst[i] = static_cast<T>(distribution(engine));
}

template <Engine kEngine, class T>
void StdGauss(T* dst, Orb32s n, T mean, T stdDev) {
  using Real = std::conditional_t<std::is_integral_v<T>, float, T>;
  std::normal_distribution<Real> distribution(mean, stdDev);
  auto& engine = Shared<kEngine>();
  for (Orb32s i = 0; i < n; ++i) {
    const Real y = distribution(engine);
    dst[i] = static_cast<T>(std::is_integral_v<T> ? std::rint(y) : y);
  }
}

void LiquidUniform(Orb32f* dst, Orb32s n, Orb32f low, Orb32f high) {
  for (Orb32s i = 0; i < n; ++i) dst[i] = randuf(low, high);
}

void LiquidGauss(Orb32f* dst, Orb32s n, Orb32f mean, Orb32f stdDev) {
  for (Orb32s i = 0; i < n; ++i) dst[i] = mean + stdDev * randnf();
}

void SpandspGauss(Orb16s* dst, Orb32s n) {
  constexpr int kQuality = 7;  // of the two that its documentation names, the lower and faster one
  static const std::unique_ptr<noise_state_t, int (*)(noise_state_t*)> state(
      noise_init_dbm0(nullptr, 1234, -20.0f, NOISE_CLASS_AWGN, kQuality), noise_free);
  for (Orb32s i = 0; i < n; ++i) dst[i] = noise(state.get());
}

#define ORBS_INSTANTIATE(engine, T)                                    \
  template void StdUniform<Engine::engine>(T*, Orb32s, T low, T high); \
  template void StdGauss<Engine::engine>(T*, Orb32s, T mean, T stdDev);
ORBS_INSTANTIATE(kMersenneTwister, Orb16s)
ORBS_INSTANTIATE(kMersenneTwister, Orb32f)
ORBS_INSTANTIATE(kMersenneTwister, Orb64f)
ORBS_INSTANTIATE(kLinearCongruential, Orb16s)
ORBS_INSTANTIATE(kLinearCongruential, Orb32f)
ORBS_INSTANTIATE(kLinearCongruential, Orb64f)

}  // namespace orbs::bench::native
