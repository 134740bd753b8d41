// The integer transforms against what a program does that has only a floating-point one.
#include <memory>

#include "bench/compare.h"
#include "bench/transform/peers.h"
#include "orbs90lgc.h"

namespace orbs::bench {
namespace {

// An eighth of full scale at most, so that with the scale factor below sums neither vanish nor saturate.
template <class Int>
Int Sample(Orb32s i) {
  return static_cast<Int>(Random(i) * static_cast<double>(sizeof(Int) == 2 ? 1 << 12 : 1 << 28));
}

#define ORBS_BENCH_TRANSFORM(name, IntType, Element, suffix, forward, convert, partsOf)                    \
  struct name {                                                                                            \
    using Int = IntType;                                                                                   \
    static constexpr const char* kName = #forward;                                                         \
    static Orb32s Parts(Orb32s n) { return partsOf; }                                                      \
    static native::Call Peer(Orb32s n, const Int* src, Int* dst, int scaleFactor) {                        \
      return native::convert(n, src, dst, scaleFactor);                                                    \
    }                                                                                                      \
    static auto Make(int order) {                                                                          \
      FFTSpec_##suffix* plan = nullptr;                                                                    \
      legacy90orbsFFTInitAlloc_##suffix(&plan, order, FftScaleInvByN, HintNone);                           \
      return std::shared_ptr<FFTSpec_##suffix>(plan, legacy90orbsFFTFree_##suffix);                        \
    }                                                                                                      \
    static Orb32s WorkBytes(const FFTSpec_##suffix* plan) {                                                \
      Orb32s bytes = 0;                                                                                    \
      legacy90orbsFFTGetBufSize_##suffix(plan, &bytes);                                                    \
      return bytes;                                                                                        \
    }                                                                                                      \
    static void Run(const Int* src, Int* dst, const FFTSpec_##suffix* plan, int scaleFactor, void* work) { \
      legacy90orbs##forward(reinterpret_cast<const Element*>(src), reinterpret_cast<Element*>(dst), plan,  \
                            scaleFactor, static_cast<Orb8u*>(work));                                       \
    }                                                                                                      \
  };
ORBS_BENCH_TRANSFORM(Complex16, Orb16s, Orb16sc, C_16sc, FFTFwd_CToC_16sc_Sfs, ConvertComplex, 2 * n)
ORBS_BENCH_TRANSFORM(Complex32, Orb32s, Orb32sc, C_32sc, FFTFwd_CToC_32sc_Sfs, ConvertComplex, 2 * n)
ORBS_BENCH_TRANSFORM(Real16, Orb16s, Orb16s, R_16s, FFTFwd_RToCCS_16s_Sfs, ConvertReal, n)
ORBS_BENCH_TRANSFORM(Real32, Orb32s, Orb32s, R_32s, FFTFwd_RToCCS_32s_Sfs, ConvertReal, n)

template <class Transform>
void DeclareTransform() {
  using Int = typename Transform::Int;
  for (int order = 4; order <= 16; ++order) {
    const Orb32s n = Orb32s{1} << order;
    CompareAtSizes(Transform::kName, {0, 0, 2.5 * order * Transform::Parts(n) / n}, {n},
                   [=](Comparison& c, Orb32s) {
                     const int scaleFactor = order / 2;
                     const Orb32s parts = Transform::Parts(n);
                     const Int* src = c.Array<Int>(parts, Sample<Int>);
                     Int* dst = c.Array<Int>(parts + 2);
                     Int* peerDst = c.Array<Int>(parts + 2);
                     const auto plan = Transform::Make(order);
                     void* const work = c.Array<Orb8u>(Transform::WorkBytes(plan.get()) + 1);
                     c.Ours([=] { Transform::Run(src, dst, plan.get(), scaleFactor, work); });
                     c.Peer("convert+FFTW", Transform::Peer(n, src, peerDst, scaleFactor));
                   });
  }
}

void Declare() {
  DeclareTransform<Complex16>();
  DeclareTransform<Complex32>();
  DeclareTransform<Real16>();
  DeclareTransform<Real32>();
}

const Family family(kEveryVariant, Declare);

}  // namespace
}  // namespace orbs::bench
