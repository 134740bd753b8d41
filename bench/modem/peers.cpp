#include "bench/modem/peers.h"

#include <stdint.h>

// Before liquid.h, which then takes the complex type of C++.
#include <cmath>
#include <complex>
#include <memory>

#include <liquid/liquid.h>

// Without an order of its own: tone_detect.h uses the two before it.
// clang-format off
#include <spandsp/telephony.h>
#include <spandsp/complex.h>
#include <spandsp/tone_detect.h>
// clang-format on

namespace orbs::bench::native {
namespace {

constexpr double kSpandspRate = 8000;

struct Goertzels {
  goertzel_state_t states[2];
  float powers[2];
};

}  // namespace

Call SpandspGoertzels(const Orb16s* src, Orb32s n, Orb32f first, Orb32f second) {
  const auto goertzels = std::make_shared<Goertzels>();
  const Orb32f frequencies[2] = {first, second};
  for (int k = 0; k < 2; ++k) {
    goertzel_descriptor_t descriptor;
    make_goertzel_descriptor(&descriptor, static_cast<float>(frequencies[k] * kSpandspRate), n);
    goertzel_init(&goertzels->states[k], &descriptor);
  }
  return [=] {
    for (int k = 0; k < 2; ++k) {
      goertzel_update(&goertzels->states[k], src, n);
      goertzels->powers[k] = goertzel_result(&goertzels->states[k]);
    }
  };
}

Call GoertzelLoop(const Orb16s* src, Orb32s n, Orb32f first, Orb32f second) {
  const auto powers = std::make_shared<Goertzels>();
  const Orb32f frequencies[2] = {first, second};
  return [=] {
    float coefficients[2];
    float p[2] = {};
    float q[2] = {};
    for (int k = 0; k < 2; ++k) coefficients[k] = 2 * std::cos(6.2831853f * frequencies[k]);
    for (Orb32s i = 0; i < n; ++i) {
      for (int k = 0; k < 2; ++k) {
        const float next = coefficients[k] * p[k] - q[k] + static_cast<float>(src[i]);
        q[k] = p[k];
        p[k] = next;
      }
    }
    for (int k = 0; k < 2; ++k) powers->powers[k] = p[k] * p[k] + q[k] * q[k] - p[k] * q[k] * coefficients[k];
  };
}

Call LiquidDemodulateFM(const Orb32fc* src, Orb32f* dst, Orb32s n) {
  const std::shared_ptr<freqdem_s> demodulator(freqdem_create(0.5f), freqdem_destroy);
  auto* const given = reinterpret_cast<std::complex<float>*>(const_cast<Orb32fc*>(src));
  return [=] { freqdem_demodulate_block(demodulator.get(), given, static_cast<unsigned>(n), dst); };
}

Call ArctangentLoop(const Orb16s* re, const Orb16s* im, Orb16s* dst, Orb32s n) {
  return [=] {
    float p = 0;
    float q = 0;
    for (Orb32s i = 0; i < n; ++i) {
      const float a = re[i];
      const float b = im[i];
      const float step = std::atan2(p * b - q * a, p * a + q * b) * 10430.378f;
      dst[i] = static_cast<Orb16s>(__builtin_rintf(step > 32767 ? 32767 : step));
      p = a;
      q = b;
    }
  };
}

template <int kBranches>
void SelectPathsLoop(const Orb16u* oldMetrics, const Orb8u* nextStates, Orb16u* newMetrics,
                     const Orb16sc* symbols, Orb32u* survivors) {
  for (int s = 0; s < 4 * kBranches; ++s) {
    for (int b = 0; b < kBranches; ++b) {
      const int t = nextStates[s * kBranches + b];
      const Orb16sc symbol = symbols[(s & 1) + 2 * b];
      const Orb32s metric = oldMetrics[s] + symbol.im;
      if (metric < newMetrics[t]) {
        newMetrics[t] = static_cast<Orb16u>(metric);
        survivors[t] = static_cast<Orb16u>(symbol.re) | static_cast<Orb32u>(s) << 16;
      }
    }
  }
}
template void SelectPathsLoop<4>(const Orb16u*, const Orb8u*, Orb16u*, const Orb16sc*, Orb32u*);
template void SelectPathsLoop<8>(const Orb16u*, const Orb8u*, Orb16u*, const Orb16sc*, Orb32u*);
template void SelectPathsLoop<16>(const Orb16u*, const Orb8u*, Orb16u*, const Orb16sc*, Orb32u*);

}  // namespace orbs::bench::native
