#include "bench/transform/peers.h"

#include <fftw3.h>
#include <kissfft/kiss_fftr.h>

#include <cmath>
#include <complex>
#include <kissfft/kissfft.hh>
#include <limits>
#include <memory>
#include <type_traits>
#include <vector>

namespace orbs::bench::native {
namespace {

// ---- FFTW: the two precisions are two libraries with the same names but for a letter ----

std::shared_ptr<fftwf_plan_s> Owned(fftwf_plan plan) { return {plan, fftwf_destroy_plan}; }
std::shared_ptr<fftw_plan_s> Owned(fftw_plan plan) { return {plan, fftw_destroy_plan}; }
void Execute(fftwf_plan plan) { fftwf_execute(plan); }
void Execute(fftw_plan plan) { fftw_execute(plan); }

fftwf_plan PlanComplex(Orb32s n, Orb32f* src, Orb32f* dst) {
  return fftwf_plan_dft_1d(n, reinterpret_cast<fftwf_complex*>(src), reinterpret_cast<fftwf_complex*>(dst),
                           FFTW_FORWARD, FFTW_MEASURE);
}
fftw_plan PlanComplex(Orb32s n, Orb64f* src, Orb64f* dst) {
  return fftw_plan_dft_1d(n, reinterpret_cast<fftw_complex*>(src), reinterpret_cast<fftw_complex*>(dst),
                          FFTW_FORWARD, FFTW_MEASURE);
}
fftwf_plan PlanReal(Orb32s n, Orb32f* src, Orb32f* dst) {
  return fftwf_plan_dft_r2c_1d(n, src, reinterpret_cast<fftwf_complex*>(dst), FFTW_MEASURE);
}
fftw_plan PlanReal(Orb32s n, Orb64f* src, Orb64f* dst) {
  return fftw_plan_dft_r2c_1d(n, src, reinterpret_cast<fftw_complex*>(dst), FFTW_MEASURE);
}

template <class Plan>
Call Execution(Plan plan) {
  return [owned = Owned(plan)] { Execute(owned.get()); };
}

// ---- Integers ----

template <class Int>
using FloatFor = std::conditional_t<sizeof(Int) == 2, Orb32f, Orb64f>;

// Arrays of FFTW's own alignment.
template <class T>
std::shared_ptr<T> FftwArray(Orb32s count) {
  return {static_cast<T*>(fftw_malloc(static_cast<size_t>(count) * sizeof(T))), fftw_free};
}

template <class Int, class T>
void Convert(const Int* src, T* dst, Orb32s count) {
  for (Orb32s i = 0; i < count; ++i) dst[i] = static_cast<T>(src[i]);
}
template <class Int, class T>
void Deliver(const T* src, Int* dst, Orb32s count, T factor) {
  constexpr T kMin = static_cast<T>(std::numeric_limits<Int>::min());
  constexpr T kMax = static_cast<T>(std::numeric_limits<Int>::max());
  for (Orb32s i = 0; i < count; ++i) {
    T y = src[i] * factor;
    y = y < kMin ? kMin : y > kMax ? kMax : y;
    dst[i] = static_cast<Int>(std::nearbyint(y));
  }
}

template <class Int, class Plan>
Call Conversion(Plan plan, std::shared_ptr<FloatFor<Int>> work, const Int* src, Orb32s srcCount, Int* dst,
                Orb32s dstCount, int scaleFactor) {
  using T = FloatFor<Int>;
  return [=, owned = Owned(plan), factor = std::ldexp(T{1}, -scaleFactor)] {
    Convert(src, work.get(), srcCount);
    Execute(owned.get());
    Deliver(work.get(), dst, dstCount, factor);
  };
}

template <class Int>
Call ConvertComplexOf(Orb32s n, const Int* src, Int* dst, int scaleFactor) {
  const auto work = FftwArray<FloatFor<Int>>(2 * n);
  return Conversion(PlanComplex(n, work.get(), work.get()), work, src, 2 * n, dst, 2 * n, scaleFactor);
}
template <class Int>
Call ConvertRealOf(Orb32s n, const Int* src, Int* dst, int scaleFactor) {
  const auto work = FftwArray<FloatFor<Int>>(n + 2);
  return Conversion(PlanReal(n, work.get(), work.get()), work, src, n, dst, n + 2, scaleFactor);
}

}  // namespace

Call FftwComplex(Orb32s n, Orb32f* src, Orb32f* dst) { return Execution(PlanComplex(n, src, dst)); }
Call FftwComplex(Orb32s n, Orb64f* src, Orb64f* dst) { return Execution(PlanComplex(n, src, dst)); }
Call FftwReal(Orb32s n, Orb32f* src, Orb32f* dst) { return Execution(PlanReal(n, src, dst)); }
Call FftwReal(Orb32s n, Orb64f* src, Orb64f* dst) { return Execution(PlanReal(n, src, dst)); }

Call KissComplex(Orb32s n, const Orb32f* src, Orb32f* dst) {
  const std::shared_ptr<kiss_fft_state> plan(kiss_fft_alloc(n, 0, nullptr, nullptr), kiss_fft_free);
  return [=] {
    kiss_fft(plan.get(), reinterpret_cast<const kiss_fft_cpx*>(src), reinterpret_cast<kiss_fft_cpx*>(dst));
  };
}
Call KissReal(Orb32s n, const Orb32f* src, Orb32f* dst) {
  const std::shared_ptr<kiss_fftr_state> plan(kiss_fftr_alloc(n, 0, nullptr, nullptr), kiss_fft_free);
  return [=] { kiss_fftr(plan.get(), src, reinterpret_cast<kiss_fft_cpx*>(dst)); };
}
Call KissComplex(Orb32s n, const Orb64f* src, Orb64f* dst) {
  using Complex = std::complex<double>;
  const auto plan = std::make_shared<kissfft<double>>(static_cast<size_t>(n), false);
  return [=] { plan->transform(reinterpret_cast<const Complex*>(src), reinterpret_cast<Complex*>(dst)); };
}
Call KissReal(Orb32s n, const Orb64f* src, Orb64f* dst) {
  const auto plan = std::make_shared<kissfft<double>>(static_cast<size_t>(n / 2), false);
  return [=] { plan->transform_real(src, reinterpret_cast<std::complex<double>*>(dst)); };
}

Call ConvertComplex(Orb32s n, const Orb16s* src, Orb16s* dst, int scaleFactor) {
  return ConvertComplexOf(n, src, dst, scaleFactor);
}
Call ConvertComplex(Orb32s n, const Orb32s* src, Orb32s* dst, int scaleFactor) {
  return ConvertComplexOf(n, src, dst, scaleFactor);
}
Call ConvertReal(Orb32s n, const Orb16s* src, Orb16s* dst, int scaleFactor) {
  return ConvertRealOf(n, src, dst, scaleFactor);
}
Call ConvertReal(Orb32s n, const Orb32s* src, Orb32s* dst, int scaleFactor) {
  return ConvertRealOf(n, src, dst, scaleFactor);
}

}  // namespace orbs::bench::native
