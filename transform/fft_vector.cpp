// The complex transforms of the vector variants up to the one-pass ceiling, and their tables.
#include "transform/fft_vector.h"

#include "frame/variant.h"

#if ORBS_VECTOR

#include <cstdint>

#include "transform/fft_vector_codelets.h"
#include "transform/fft_vector_steps.h"

namespace orbs::ORBS_VARIANT {
namespace {

Orb32s ReverseBits(Orb32s value, int bits) {
  Orb32s reversed = 0;
  for (int bit = 0; bit < bits; ++bit) reversed = reversed << 1 | (value >> bit & 1);
  return reversed;
}

template <class T>
bool IsVectorAligned(const T* p) {
  return reinterpret_cast<uintptr_t>(p) % sizeof(VectorOf<T>) == 0;
}

// Where the passes work: in dst when they can, since then the work buffer stays out of the cache. Not when
// dst is the source, which the first pass would overwrite, and not when every vector of dst would straddle.
template <class T>
T* Middle(Interleaved<const T> src, Interleaved<T> dst, T* work) {
  return src.pairs != dst.pairs && (work == nullptr || IsVectorAligned(dst.pairs)) ? dst.pairs : work;
}
template <class T>
T* Middle(Split<const T>, Split<T>, T* work) {
  return work;
}

// Without a work buffer, in place: the points are exchanged first.
template <bool kForward, class T>
void TransformInPlace(const PassSteps<T>& plan, const Orb32s* reversal, int order, T* data, T scale) {
  using V = VectorOf<T>;
  if constexpr (kPairs<T> == 1) {
    const size_t n = size_t{1} << order;
    const size_t step = n / 8;
    for (size_t m = 0; m < 8; ++m) {
      for (size_t j = 0; j < step; ++j) {
        T* here = data + 2 * (m * step + j);
        T* there = data + 2 * (static_cast<size_t>(reversal[j]) + kReversedDigit[8][m]);
        if (here < there) {
          const V v = V::Load(here);
          V::Load(there).Store(here);
          v.Store(there);
        }
      }
    }
    FirstPassOfReversed<8, kForward>(data, n, scale);
    RunPasses<kForward>(plan.steps, plan.count, data, n);
  }
}

}  // namespace

template <bool kForward, template <class> class Data, class T>
void VectorTransform(const FftPlan<T>& plan, int order, Data<const T> src, Data<T> dst, T scale, void* work) {
  const PassSteps<T> passes(order, plan.tables.coreTw.In(&plan));
  const Orb32s* reversal = plan.tables.bitRev.In(&plan);
  T* middle = Middle(src, dst, static_cast<T*>(work));
  if (middle != nullptr) {
    RunTransform<kForward>(passes, reversal, order, src, dst, middle, scale);
  } else if constexpr (std::is_same_v<Data<T>, Interleaved<T>>) {
    TransformInPlace<kForward>(passes, reversal, order, dst.pairs, scale);
  }
}

template <bool kForward, template <class> class Data, class T>
void VectorCodelet(int order, Data<const T> src, Data<T> dst, T scale) {
  switch (order) {
    case 4:
      return RunVectorCodelet<4, kForward>(src, dst, scale);
    case 5:
      return RunVectorCodelet<5, kForward>(src, dst, scale);
    default:
      return RunVectorCodelet<6, kForward>(src, dst, scale);
  }
}

template <class T>
void BuildVectorTables(int order, SineTable<T> sine, Orb32s* bitRev, T* coreTw) {
  constexpr int kWidth = kPairs<T>;
  constexpr int kWidthBits = kWidth == 4 ? 2 : kWidth == 2 ? 1 : 0;
  const PassSteps<T> passes(order, coreTw);
  const int entryBits = order - passes.firstBits - kWidthBits;
  for (Orb32s i = 0; i < (1 << entryBits); ++i) bitRev[i] = ReverseBits(i, entryBits) << passes.firstBits;

  for (int i = 0; i < passes.count; ++i) {
    const PassStep<T>& step = passes.steps[i];
    T* w = coreTw + (step.twiddles - coreTw);
    const Index circle = Index{1} << order;
    const Index stride = circle / (step.radix * static_cast<Index>(step.q));
    for (Index k = 0; k < static_cast<Index>(step.q); k += kWidth) {
      for (Index m = 1; m < step.radix; ++m) {
        for (Index lane = 0; lane < kWidth; ++lane) {
          const Index angle = m * (k + lane) * stride;
          *w++ = sine.Cos(angle);
          *w++ = -sine.Sin(angle);
        }
      }
    }
  }
}

#define ORBS_INSTANTIATE_FOR(kForward, Data, T)                                                               \
  template void VectorTransform<kForward, Data, T>(const FftPlan<T>&, int, Data<const T>, Data<T>, T, void*); \
  template void VectorCodelet<kForward, Data, T>(int, Data<const T>, Data<T>, T);
#define ORBS_INSTANTIATE(T)                   \
  ORBS_INSTANTIATE_FOR(true, Interleaved, T)  \
  ORBS_INSTANTIATE_FOR(false, Interleaved, T) \
  ORBS_INSTANTIATE_FOR(true, Split, T)        \
  ORBS_INSTANTIATE_FOR(false, Split, T)       \
  template void BuildVectorTables<T>(int, SineTable<T>, Orb32s*, T*);
ORBS_INSTANTIATE(Orb32f)
ORBS_INSTANTIATE(Orb64f)
#undef ORBS_INSTANTIATE
#undef ORBS_INSTANTIATE_FOR

}  // namespace orbs::ORBS_VARIANT

#endif
