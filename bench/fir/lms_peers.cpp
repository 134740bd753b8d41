#include "bench/fir/lms_peers.h"

// Before liquid.h, which then takes the complex type of C++.
#include <complex>
#include <memory>
#include <vector>

#include <liquid/liquid.h>

// The header means the function before eqlms_rrrf_push; the mark lands on both.
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

namespace orbs::bench::native {
namespace {

template <class Tap, class Sample>
struct Filter {
  explicit Filter(Orb32s tapCount)
      : n(tapCount), taps(static_cast<size_t>(tapCount)), line(2 * static_cast<size_t>(tapCount)) {}

  const Sample* Push(Sample x) {
    line[static_cast<size_t>(i)] = line[static_cast<size_t>(i + n)] = x;
    i = i + 1 == n ? 0 : i + 1;
    return line.data() + i;
  }

  Orb32s n;
  Orb32s i = 0;
  std::vector<Tap> taps;
  std::vector<Sample> line;
};

// The sum of term(k).
template <class Sum, class Term>
inline Sum SumInParts(Orb32s n, Term term) {
  constexpr Orb32s kParts = 16;
  Sum sums[kParts] = {};
  Orb32s k = 0;
  for (; k + kParts <= n; k += kParts) {
    for (Orb32s j = 0; j < kParts; ++j) sums[j] += term(k + j);
  }
  for (; k < n; ++k) sums[0] += term(k);
  Sum sum = 0;
  for (const Sum part : sums) sum += part;
  return sum;
}

inline Orb16s ToSample(double y) {
  return static_cast<Orb16s>(__builtin_rint(y > 32767 ? 32767 : y < -32768 ? -32768 : y));
}
inline void Deliver(Orb32f y, Orb32f* dst) { *dst = y; }
inline void Deliver(Orb32f y, Orb16s* dst) { *dst = ToSample(y); }

template <class Sample>
Call PlainLoop(Orb32s n, Orb32f mu, const Sample* src, const Sample* reference, Sample* dst, Orb32s count) {
  return [=, filter = Filter<Orb32f, Sample>(n)]() mutable {
    Orb32f* const __restrict taps = filter.taps.data();
    for (Orb32s i = 0; i < count; ++i) {
      const Sample* const __restrict x = filter.Push(src[i]);
      const auto y = SumInParts<Orb32f>(n, [=](Orb32s k) { return taps[k] * static_cast<Orb32f>(x[k]); });
      Deliver(y, dst + i);
      const Orb32f e = 2 * mu * (static_cast<Orb32f>(reference[i]) - y);
      for (Orb32s k = 0; k < n; ++k) taps[k] += e * static_cast<Orb32f>(x[k]);
    }
  };
}

}  // namespace

Call LiquidLms(Orb32s tapCount, Orb32f mu, const Orb32f* src, const Orb32f* reference, Orb32f* dst,
               Orb32s n) {
  const std::shared_ptr<eqlms_rrrf_s> filter(eqlms_rrrf_create(nullptr, static_cast<unsigned>(tapCount)),
                                             eqlms_rrrf_destroy);
  eqlms_rrrf_set_bw(filter.get(), mu);
  return [=] {
    for (Orb32s i = 0; i < n; ++i) {
      eqlms_rrrf_push(filter.get(), src[i]);
      eqlms_rrrf_execute(filter.get(), dst + i);
      eqlms_rrrf_step(filter.get(), reference[i], dst[i]);
    }
  };
}

Call LoopLms(Orb32s tapCount, Orb32f mu, const Orb32f* src, const Orb32f* reference, Orb32f* dst, Orb32s n) {
  return PlainLoop(tapCount, mu, src, reference, dst, n);
}
Call LoopLms(Orb32s tapCount, Orb32f mu, const Orb16s* src, const Orb16s* reference, Orb16s* dst, Orb32s n) {
  return PlainLoop(tapCount, mu, src, reference, dst, n);
}

Call LoopLmsQ15(Orb32s n, Orb32s mu, const Orb16s* src, const Orb16s* reference, Orb16s* dst, Orb32s count) {
  return [=, filter = Filter<Orb32s, Orb16s>(n)]() mutable {
    Orb32s* const __restrict taps = filter.taps.data();
    for (Orb32s i = 0; i < count; ++i) {
      const Orb16s* const __restrict x = filter.Push(src[i]);
      const auto sum = SumInParts<double>(n, [=](Orb32s k) { return static_cast<double>(taps[k]) * x[k]; });
      const auto energy = SumInParts<double>(n, [=](Orb32s k) { return static_cast<double>(x[k]) * x[k]; });
      const double y = sum / 32768;
      dst[i] = ToSample(y);
      if (energy == 0) continue;
      const double g = mu * (reference[i] - y) / energy;
      for (Orb32s k = 0; k < n; ++k) {
        const double moved = taps[k] + g * x[k];
        taps[k] = static_cast<Orb32s>(__builtin_rint(moved > 2147483647.0    ? 2147483647.0
                                                     : moved < -2147483648.0 ? -2147483648.0
                                                                             : moved));
      }
    }
  };
}

}  // namespace orbs::bench::native
