#include "bench/gen/window_peers.h"

#include <cmath>

// After <cmath>, whose complex type liquid.h would otherwise ask the C library for.
#include <complex>

#include <liquid/liquid.h>

namespace orbs::bench::native {
namespace {

Orb16s Round(Orb32f y) {
  return static_cast<Orb16s>(__builtin_rintf(y > 32767 ? 32767 : y < -32768 ? -32768 : y));
}

// Each value for both of its samples, as the windows are symmetrical.
template <class Value>
void Symmetrical(const Orb16s* src, Orb16s* dst, Orb32s n, Value value) {
  for (Orb32s i = 0; i < (n + 1) / 2; ++i) {
    const Orb32f w = value(i);
    dst[i] = Round(src[i] * w);
    dst[n - 1 - i] = Round(src[n - 1 - i] * w);
  }
}

}  // namespace

void LiquidBlackmanHarris(const Orb16s* src, Orb16s* dst, Orb32s n) {
  Symmetrical(src, dst, n, [n](Orb32s i) {
    return liquid_blackmanharris(static_cast<unsigned>(i), static_cast<unsigned>(n));
  });
}

void LiquidKaiser(const Orb16s* src, Orb16s* dst, Orb32s n, Orb32f beta) {
  Symmetrical(src, dst, n, [n, beta](Orb32s i) {
    return liquid_kaiser(static_cast<unsigned>(i), static_cast<unsigned>(n), beta);
  });
}

void BlackmanLoop(const Orb16s* src, Orb16s* dst, Orb32s n, Orb32f alpha) {
  const Orb32f step = 6.2831853f / static_cast<Orb32f>(n - 1);
  Symmetrical(src, dst, n, [=](Orb32s i) {
    const Orb32f u = std::cos(static_cast<Orb32f>(i) * step);
    return (alpha + 1) / 2 - u / 2 - alpha * (u * u - 0.5f);
  });
}

void TableLoop(const Orb32f* window, const Orb16s* src, Orb16s* dst, Orb32s n) {
  for (Orb32s i = 0; i < n; ++i) dst[i] = Round(src[i] * window[i]);
}

}  // namespace orbs::bench::native
