// How a vector transform is cut into passes.
#ifndef ORBS_TRANSFORM_ENGINE_VECTOR_STEPS_H
#define ORBS_TRANSFORM_ENGINE_VECTOR_STEPS_H

#include "transform/engine/vector/passes.h"

namespace orbs::ORBS_VARIANT::transform {

// A further pass: kinds 4 and 8 are its radix.
template <class T>
struct PassStep {
  int radix;
  size_t q;
  const T* twiddles;
};

// The first pass has radix 8, or 4 for 16 points. Of the further passes as many as can be have radix 8, for a
// pass is a trip through memory; those of radix 4 that make up the number of bits come first, where the
// blocks are small.
template <class T>
struct PassSteps {
  static constexpr int kMost = 10;
  int firstBits;
  int count;
  PassStep<T> steps[kMost];

  ORBS_INLINE PassSteps(int order, const T* twiddles) {
    firstBits = order == 4 ? 2 : 3;
    const int rest = order - firstBits;
    const int fours = rest % 3 == 0 ? 0 : 3 - rest % 3;
    count = fours + (rest - 2 * fours) / 3;
    size_t q = size_t{1} << firstBits;
    for (int i = 0; i < count; ++i) {
      const int radix = i < fours ? 4 : 8;
      steps[i] = {radix, q, twiddles};
      twiddles += 2 * static_cast<size_t>(radix - 1) * q;
      q *= static_cast<size_t>(radix);
    }
  }
};

// A pass over all rows of n points in place.
template <bool kForward, class Data, class T>
ORBS_INLINE void RunPass(const PassStep<T>& step, Data data, size_t n) {
  if (step.radix == 4) {
    Pass<4, kForward>(data, n, step.q, step.twiddles);
  } else {
    Pass<8, kForward>(data, n, step.q, step.twiddles);
  }
}

// Whether n points stay in the first-level cache from one pass to the next.
template <class T>
constexpr bool FitsOneBlock(size_t n) {
  return n * 2 * sizeof(T) <= 32 * 1024;
}

// The first `count` passes over n points in place, depth first: a block that fits the first-level cache goes
// through all its passes before the next one is touched, and so on upward.
template <bool kForward, class Data, class T>
void RunPasses(const PassStep<T>* steps, int count, Data data, size_t n) {
  if (FitsOneBlock<T>(n) || count == 1) {
    for (int i = 0; i < count; ++i) RunPass<kForward>(steps[i], data, n);
    return;
  }
  const PassStep<T>& last = steps[count - 1];
  for (size_t block = 0; block < n; block += last.q) {
    RunPasses<kForward>(steps, count - 1, data.At(static_cast<Index>(block)), last.q);
  }
  RunPass<kForward>(last, data, n);
}

// The whole transform by way of `middle`, which may be dst but not src. The last pass goes to dst. Source and
// Result are any data that LoadPoints and StorePoints know.
template <bool kForward, class Source, class Result, class T>
ORBS_INLINE void RunTransform(const PassSteps<T>& plan, const Orb32s* reversal, int order, Source src,
                              Result dst, T* middle, T scale) {
  const size_t n = size_t{1} << order;
  if (plan.firstBits == 2) {
    FirstPass<4, kForward>(src, middle, n, reversal, scale);
  } else {
    FirstPass<8, kForward>(src, middle, n, reversal, scale);
  }
  const Interleaved<T> from = {middle};
  const PassStep<T>& last = plan.steps[plan.count - 1];
  if (FitsOneBlock<T>(n)) {
    for (int i = 0; i < plan.count - 1; ++i) RunPass<kForward>(plan.steps[i], from, n);
  } else {
    for (size_t block = 0; block < n; block += last.q) {
      RunPasses<kForward>(plan.steps, plan.count - 1, from.At(static_cast<Index>(block)), last.q);
    }
  }
  if (last.radix == 4) {
    RowPass<4, kForward>(from, dst, last.q, last.twiddles);
  } else {
    RowPass<8, kForward>(from, dst, last.q, last.twiddles);
  }
}

}  // namespace orbs::ORBS_VARIANT::transform

#endif
