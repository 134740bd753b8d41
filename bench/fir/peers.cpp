#include "bench/fir/peers.h"

// Before liquid.h, which then takes the complex type of C++.
#include <complex>
#include <iterator>
#include <memory>
#include <vector>

#include <liquid/liquid.h>
#include <volk/volk.h>

namespace orbs::bench::native {
namespace {

using Complex = std::complex<float>;

// The peers take what they only read as not constant.
float* Given(const Orb32f* p) { return const_cast<float*>(p); }
Complex* Given(const Orb32fc* p) { return reinterpret_cast<Complex*>(const_cast<Orb32fc*>(p)); }
const lv_32fc_t* Volk(const Orb32fc* p) { return reinterpret_cast<const lv_32fc_t*>(p); }

template <class T>
std::vector<T> Reversed(const T* taps, Orb32s tapCount) {
  return {std::make_reverse_iterator(taps + tapCount), std::make_reverse_iterator(taps)};
}

// Taps outside, outputs inside: the order that the compiler can vectorise. The sums of a stretch of outputs
// stay in the first-level cache.
template <class T, class Sum, class DeliverSum>
Call LoopOf(const T* taps, Orb32s tapCount, const T* src, T* dst, Orb32s n, DeliverSum deliver) {
  constexpr Orb32s kStretch = 512;
  return [=] {
    for (Orb32s first = 0; first < n; first += kStretch) {
      const Orb32s count = n - first < kStretch ? n - first : kStretch;
      Sum sums[kStretch] = {};
      for (Orb32s k = 0; k < tapCount; ++k) {
        const Sum h = taps[k];
        const T* const x = src + first + tapCount - 1 - k;
        for (Orb32s i = 0; i < count; ++i) sums[i] += h * static_cast<Sum>(x[i]);
      }
      for (Orb32s i = 0; i < count; ++i) dst[first + i] = deliver(sums[i]);
    }
  };
}

}  // namespace

Call LiquidBlock(const Orb32f* taps, Orb32s tapCount, const Orb32f* src, Orb32f* dst, Orb32s n) {
  const std::shared_ptr<firfilt_rrrf_s> filter(
      firfilt_rrrf_create(Given(taps), static_cast<unsigned>(tapCount)), firfilt_rrrf_destroy);
  return [=] { firfilt_rrrf_execute_block(filter.get(), Given(src), static_cast<unsigned>(n), dst); };
}
Call LiquidBlock(const Orb32fc* taps, Orb32s tapCount, const Orb32fc* src, Orb32fc* dst, Orb32s n) {
  const std::shared_ptr<firfilt_cccf_s> filter(
      firfilt_cccf_create(Given(taps), static_cast<unsigned>(tapCount)), firfilt_cccf_destroy);
  return [=] { firfilt_cccf_execute_block(filter.get(), Given(src), static_cast<unsigned>(n), Given(dst)); };
}
Call LiquidOne(const Orb32f* taps, Orb32s tapCount, const Orb32f* src, Orb32f* dst) {
  const std::shared_ptr<firfilt_rrrf_s> filter(
      firfilt_rrrf_create(Given(taps), static_cast<unsigned>(tapCount)), firfilt_rrrf_destroy);
  return [=] {
    firfilt_rrrf_push(filter.get(), *src);
    firfilt_rrrf_execute(filter.get(), dst);
  };
}
Call LiquidByTransform(const Orb32f* taps, Orb32s tapCount, const Orb32f* src, Orb32f* dst, Orb32s n) {
  // Blocks of four times the taps: about what the transform of this library's filter takes at a time.
  const Orb32s block = 4 * tapCount < n ? 4 * tapCount : n;
  const std::shared_ptr<fftfilt_rrrf_s> filter(
      fftfilt_rrrf_create(Given(taps), static_cast<unsigned>(tapCount), static_cast<unsigned>(block)),
      fftfilt_rrrf_destroy);
  return [=] {
    for (Orb32s i = 0; i + block <= n; i += block)
      fftfilt_rrrf_execute(filter.get(), Given(src + i), dst + i);
  };
}

Call VolkDots(const Orb32f* taps, Orb32s tapCount, const Orb32f* src, Orb32f* dst, Orb32s n) {
  return [=, reversed = Reversed(taps, tapCount)] {
    for (Orb32s i = 0; i < n; ++i) {
      volk_32f_x2_dot_prod_32f(dst + i, src + i, reversed.data(), static_cast<unsigned>(tapCount));
    }
  };
}
Call VolkDots(const Orb32fc* taps, Orb32s tapCount, const Orb32fc* src, Orb32fc* dst, Orb32s n) {
  return [=, reversed = Reversed(taps, tapCount)] {
    for (Orb32s i = 0; i < n; ++i) {
      volk_32fc_x2_dot_prod_32fc(reinterpret_cast<lv_32fc_t*>(dst + i), Volk(src + i), Volk(reversed.data()),
                                 static_cast<unsigned>(tapCount));
    }
  };
}

Call Loop(const Orb32f* taps, Orb32s tapCount, const Orb32f* src, Orb32f* dst, Orb32s n) {
  return LoopOf<Orb32f, Orb32f>(taps, tapCount, src, dst, n, [](Orb32f sum) { return sum; });
}
Call Loop(const Orb64f* taps, Orb32s tapCount, const Orb64f* src, Orb64f* dst, Orb32s n) {
  return LoopOf<Orb64f, Orb64f>(taps, tapCount, src, dst, n, [](Orb64f sum) { return sum; });
}
Call Loop(const Orb16s* taps, Orb32s tapCount, const Orb16s* src, Orb16s* dst, Orb32s n) {
  return LoopOf<Orb16s, Orb32s>(taps, tapCount, src, dst, n, [](Orb32s sum) {
    const Orb32s scaled = (sum + (1 << 14)) >> 15;
    return static_cast<Orb16s>(scaled > 32767 ? 32767 : scaled < -32768 ? -32768 : scaled);
  });
}

}  // namespace orbs::bench::native
