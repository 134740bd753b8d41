#include "bench/iir/peers.h"

#include <cmath>
// Before liquid.h, which then takes the complex type of C++.
#include <complex>
#include <memory>

#include <liquid/liquid.h>

namespace orbs::bench::native {
namespace {

using Complex = std::complex<float>;

// Coefficients of b and of a as the peers take them, which is apart.
template <class Tap, class T>
struct Apart {
  std::vector<T> b;
  std::vector<T> a;

  explicit Apart(const IirTaps<Tap>& taps) {
    const auto count = static_cast<size_t>(taps.order) + 1;
    const auto* values = reinterpret_cast<const T*>(taps.values.data());
    for (size_t i = 0; i < taps.values.size(); ++i) (i / count % 2 == 0 ? b : a).push_back(values[i]);
  }
};

// The product as a program writes it that does not care for infinities: std::complex would call a function.
float Product(float a, float b) { return a * b; }
Complex Product(Complex a, Complex b) {
  return {a.real() * b.real() - a.imag() * b.imag(), a.real() * b.imag() + a.imag() * b.real()};
}

Orb16s Delivered(float y) {
  const float limited = y > 32767.0f ? 32767.0f : y < -32768.0f ? -32768.0f : y;
  return static_cast<Orb16s>(std::lrintf(limited));
}
void Deliver(float y, Orb16s* dst) { *dst = Delivered(y); }
void Deliver(Complex y, Orb16sc* dst) { *dst = {Delivered(y.real()), Delivered(y.imag())}; }
float Widened(Orb16s x) { return x; }
Complex Widened(Orb16sc x) { return {static_cast<float>(x.re), static_cast<float>(x.im)}; }

template <class T, class Tap, class Data>
Call LoopOf(const IirTaps<Tap>& taps, const Data* src, Data* dst, Orb32s n) {
  const Orb32s order = taps.order;
  const Orb32s sections = taps.sectionCount;
  const auto delay = std::make_shared<std::vector<T>>(static_cast<size_t>(order * (sections + 1) + 1));
  const Apart<Tap, T> apart(taps);
  if (sections == 0) {
    return [=] {
      const T* const b = apart.b.data();
      const T* const a = apart.a.data();
      T* const d = delay->data();
      for (Orb32s i = 0; i < n; ++i) {
        const T x = Widened(src[i]);
        const T y = Product(b[0], x) + d[0];
        for (Orb32s k = 0; k < order; ++k) d[k] = Product(b[k + 1], x) - Product(a[k + 1], y) + d[k + 1];
        Deliver(y, dst + i);
      }
    };
  }
  return [=] {
    T* const d = delay->data();
    for (Orb32s i = 0; i < n; ++i) {
      T x = Widened(src[i]);
      for (Orb32s s = 0; s < sections; ++s) {
        const T* const b = apart.b.data() + 3 * s;
        const T* const a = apart.a.data() + 3 * s;
        const T y = Product(b[0], x) + d[2 * s];
        d[2 * s] = Product(b[1], x) + d[2 * s + 1] - Product(a[1], y);
        d[2 * s + 1] = Product(b[2], x) - Product(a[2], y);
        x = y;
      }
      Deliver(x, dst + i);
    }
  };
}

}  // namespace

Call LiquidIir(const IirTaps<Orb32f>& taps, const Orb32f* src, Orb32f* dst, Orb32s n) {
  Apart<Orb32f, float> t(taps);
  const auto count = static_cast<unsigned>(taps.order) + 1;
  const std::shared_ptr<iirfilt_rrrf_s> filter(
      taps.sectionCount == 0
          ? iirfilt_rrrf_create(t.b.data(), count, t.a.data(), count)
          : iirfilt_rrrf_create_sos(t.b.data(), t.a.data(), static_cast<unsigned>(taps.sectionCount)),
      iirfilt_rrrf_destroy);
  return [=] {
    iirfilt_rrrf_execute_block(filter.get(), const_cast<float*>(src), static_cast<unsigned>(n), dst);
  };
}
Call LiquidIir(const IirTaps<Orb32fc>& taps, const Orb32fc* src, Orb32fc* dst, Orb32s n) {
  Apart<Orb32fc, Complex> t(taps);
  const auto count = static_cast<unsigned>(taps.order) + 1;
  const std::shared_ptr<iirfilt_cccf_s> filter(
      taps.sectionCount == 0
          ? iirfilt_cccf_create(t.b.data(), count, t.a.data(), count)
          : iirfilt_cccf_create_sos(t.b.data(), t.a.data(), static_cast<unsigned>(taps.sectionCount)),
      iirfilt_cccf_destroy);
  return [=] {
    iirfilt_cccf_execute_block(filter.get(), reinterpret_cast<Complex*>(const_cast<Orb32fc*>(src)),
                               static_cast<unsigned>(n), reinterpret_cast<Complex*>(dst));
  };
}

Call IirLoop(const IirTaps<Orb32f>& taps, const Orb16s* src, Orb16s* dst, Orb32s n) {
  return LoopOf<float>(taps, src, dst, n);
}
Call IirLoop(const IirTaps<Orb32fc>& taps, const Orb16sc* src, Orb16sc* dst, Orb32s n) {
  return LoopOf<Complex>(taps, src, dst, n);
}

Call DependentMultiplyAdds(Orb32f* result, Orb32s n) {
  return [=] {
    float y = result[0];
    const float a = result[1];
    const float b = result[2];
    for (Orb32s i = 0; i < n; ++i) y = a * y + b;
    result[3] = y;
  };
}

}  // namespace orbs::bench::native
