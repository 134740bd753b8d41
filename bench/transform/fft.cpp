// The floating-point transforms, forward, with a work buffer: the inside that other families build on.
#include "transform/fft.h"

#include <cmath>
#include <cstring>
#include <memory>
#include <type_traits>

#include "bench/compare.h"
#include "bench/transform/peers.h"

namespace orbs::bench {
namespace {

namespace inside = orbs::ORBS_VARIANT::transform;

constexpr int kFirstOrder = 4;
constexpr int kLastOrder = 20;

template <class Real, inside::FftForm form, inside::SpectrumLayout layout = inside::SpectrumLayout::perm>
struct Engine : inside::Fft<Real, form> {
  using T = Real;
  using Base = inside::Fft<Real, form>;
  using Plan = typename Base::Plan;
  static constexpr bool kReal = form == inside::FftForm::real;

  static Plan* Make(int order) {
    Plan* plan = nullptr;
    Base::InitAlloc(&plan, order, FftScaleInvByN, HintNone);
    return plan;
  }
  static void Release(Plan* plan) { Base::Free(plan); }
  static Orb32s WorkBytes(const Plan* plan) {
    Orb32s bytes = 0;
    Base::GetBufSize(plan, &bytes);
    return bytes;
  }
  static void Run(const T* src, T* dst, const Plan* plan, void* work) {
    if constexpr (kReal) {
      Base::template Forward<layout>(src, dst, plan, work);
    } else {
      using Point = typename Base::Point;
      Base::Forward(reinterpret_cast<const Point*>(src), reinterpret_cast<Point*>(dst), plan, work);
    }
  }
};
#define ORBS_BENCH_TRANSFORM(name, suffix, forward, ...)          \
  struct name : Engine<__VA_ARGS__> {                             \
    static constexpr const char* kName = #forward;                \
    static constexpr const char* kInit = "FFTInitAlloc_" #suffix; \
  };
ORBS_BENCH_TRANSFORM(Complex32, C_32fc, FFTFwd_CToC_32fc, Orb32f, inside::FftForm::interleaved)
ORBS_BENCH_TRANSFORM(Complex64, C_64fc, FFTFwd_CToC_64fc, Orb64f, inside::FftForm::interleaved)
ORBS_BENCH_TRANSFORM(Real32, R_32f, FFTFwd_RToCCS_32f, Orb32f, inside::FftForm::real,
                     inside::SpectrumLayout::ccs)
ORBS_BENCH_TRANSFORM(Real64, R_64f, FFTFwd_RToPack_64f, Orb64f, inside::FftForm::real,
                     inside::SpectrumLayout::pack)

// What both sides have: data, and room for the result.
template <class Transform>
struct Arrays {
  using T = typename Transform::T;

  Arrays(Comparison& c, Orb32s n)
      : parts(Transform::kReal ? n : 2 * n), src(c.Array<T>(parts + 2)), dst(c.Array<T>(parts + 2)) {}
  void Fill() {
    for (Orb32s i = 0; i < parts; ++i) src[i] = static_cast<T>(Random(i));
  }

  Orb32s parts;
  T* src;
  T* dst;
};

template <class Transform>
std::shared_ptr<typename Transform::Plan> MakePlan(int order) {
  return {Transform::Make(order), Transform::Release};
}

template <class T>
native::Call Fftw(bool real, Orb32s n, T* src, T* dst) {
  return real ? native::FftwReal(n, src, dst) : native::FftwComplex(n, src, dst);
}

template <class Transform>
void CompareOutOfPlace(Comparison& c, int order) {
  const Orb32s n = Orb32s{1} << order;
  Arrays<Transform> arrays(c, n);
  const auto fftw = Fftw(Transform::kReal, n, arrays.src, arrays.dst);
  arrays.Fill();
  const auto kiss = Transform::kReal ? native::KissReal(n, arrays.src, arrays.dst)
                                     : native::KissComplex(n, arrays.src, arrays.dst);
  const auto plan = MakePlan<Transform>(order);
  void* const work = c.Array<Orb8u>(Transform::WorkBytes(plan.get()) + 1);
  c.Ours([=] { Transform::Run(arrays.src, arrays.dst, plan.get(), work); });
  c.Peer("FFTW", fftw);
  c.Peer("KissFFT", kiss);
}

// A transform in place eats its data, so that both sides copy them in first.
template <class Transform>
void CompareInPlace(Comparison& c, int order) {
  const Orb32s n = Orb32s{1} << order;
  Arrays<Transform> arrays(c, n);
  const auto fftw = Fftw(Transform::kReal, n, arrays.dst, arrays.dst);
  arrays.Fill();
  const auto plan = MakePlan<Transform>(order);
  void* const work = c.Array<Orb8u>(Transform::WorkBytes(plan.get()) + 1);
  const auto copyIn = [=] {
    std::memcpy(arrays.dst, arrays.src, static_cast<size_t>(arrays.parts) * sizeof(typename Transform::T));
  };
  c.Ours([=] {
    copyIn();
    Transform::Run(arrays.dst, arrays.dst, plan.get(), work);
  });
  c.Peer("FFTW", [=] {
    copyIn();
    fftw();
  });
}

// The cost of a plan in transforms: the peer is a hundred of them.
template <class Transform>
void ComparePlan(Comparison& c, int order) {
  Arrays<Transform> arrays(c, Orb32s{1} << order);
  arrays.Fill();
  const auto plan = MakePlan<Transform>(order);
  void* const work = c.Array<Orb8u>(Transform::WorkBytes(plan.get()) + 1);
  c.Ours([=] { Transform::Release(Transform::Make(order)); });
  c.Peer("100 transforms", [=] {
    for (int i = 0; i < 100; ++i) Transform::Run(arrays.src, arrays.dst, plan.get(), work);
  });
}

template <class Transform>
void DeclareTransform() {
  const std::string name = Transform::kName;
  for (int order = kFirstOrder; order <= kLastOrder; ++order) {
    // 5 N log2 N operations by custom, half of that for real data.
    const Work work = {0, 0, (Transform::kReal ? 2.5 : 5.0) * order};
    const Orb32s n = Orb32s{1} << order;
    CompareAtSizes(name, work, {n}, [=](Comparison& c, Orb32s) { CompareOutOfPlace<Transform>(c, order); });
    CompareAtSizes(name + " in place", work, {n},
                   [=](Comparison& c, Orb32s) { CompareInPlace<Transform>(c, order); });
  }
  for (int order : {6, 10, 16}) {
    CompareAtSizes(Transform::kInit, {0, 0, 1}, {Orb32s{1} << order},
                   [=](Comparison& c, Orb32s) { ComparePlan<Transform>(c, order); });
  }
}

void Declare() {
  DeclareTransform<Complex32>();
  DeclareTransform<Complex64>();
  DeclareTransform<Real32>();
  DeclareTransform<Real64>();
}

const Family family(ORBS_VARIANT_INDEX, Declare);

}  // namespace
}  // namespace orbs::bench
