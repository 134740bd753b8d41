// The inner product of one output: taps and samples walk together, y = sum over k of taps[k] x[k].
//
// Vectors of terms go to four sums in turn; the last vector is masked, taps and samples alike, for what
// stands behind the samples may be anything, infinities included. Behind both arrays lies room for a vector.
#ifndef ORBS_FIR_ONE_KERNELS_H
#define ORBS_FIR_ONE_KERNELS_H

#include "fir/block_kernels.h"
#include "fir/state.h"
#include "frame/simd.h"

namespace orbs::ORBS_VARIANT {

#if ORBS_VECTOR

// The first `count` lanes of a vector, 0 < count < kLanes, and zeros.
template <class V>
ORBS_INLINE V FirstLanes(V a, size_t count) {
  using Bits = std::conditional_t<sizeof(typename V::Lane) == 4, Orb32s, Orb64s>;
  static constexpr Bits kMask[16] = {-1, -1, -1, -1, -1, -1, -1, -1};
  return a & V::Load(reinterpret_cast<const typename V::Lane*>(kMask + 8 - count));
}

ORBS_INLINE void LoadSamples(const Orb32f* p, F32* out) { *out = F32::Load(p); }
ORBS_INLINE void LoadSamples(const Orb64f* p, F64* out) { *out = F64::Load(p); }
ORBS_INLINE void LoadSamples(const Orb32f* p, F64* out) { LoadWiden(p, out); }

// y[0], and y[1] for complex terms, in the type of the taps.
template <int kParts, class Sample, class Part>
ORBS_INLINE void FirDot(const Sample* x, const Part* taps, Orb32s tapCount, Part (&y)[kParts]) {
  using V = VectorOf<Part>;
  constexpr size_t kLanes = V::kLanes;
  constexpr size_t kSums = 4;
  const size_t parts = static_cast<size_t>(tapCount) * kParts;
  V a[kSums];
  V b[kSums];
  ORBS_UNROLL
  for (size_t j = 0; j < kSums; ++j) a[j] = b[j] = V::Zero();
  const auto add = [&](size_t j, V tap, V sample) {
    if constexpr (kParts == 1) {
      a[j] = MulAdd(tap, sample, a[j]);
    } else {
      a[j] = MulAdd(DupEven(tap), sample, a[j]);
      b[j] = MulAdd(DupOdd(tap), sample, b[j]);
    }
  };
  size_t k = 0;
  V sample;
  for (; k + kSums * kLanes <= parts; k += kSums * kLanes) {
    ORBS_UNROLL
    for (size_t j = 0; j < kSums; ++j) {
      LoadSamples(x + k + j * kLanes, &sample);
      add(j, V::Load(taps + k + j * kLanes), sample);
    }
  }
  for (; k + kLanes <= parts; k += kLanes) {
    LoadSamples(x + k, &sample);
    add(0, V::Load(taps + k), sample);
  }
  if (k < parts) {
    LoadSamples(x + k, &sample);
    add(1, FirstLanes(V::Load(taps + k), parts - k), FirstLanes(sample, parts - k));
  }
  V sum = (a[0] + a[1]) + (a[2] + a[3]);
  if constexpr (kParts == 2) sum = AddRotated(sum, (b[0] + b[1]) + (b[2] + b[3]));
  Part lanes[kLanes];
  sum.Store(lanes);
  for (int part = 0; part < kParts; ++part) y[part] = lanes[part];
  for (size_t i = kParts; i < kLanes; ++i) y[i % kParts] += lanes[i];
}

#else

// The terms are taken in pairs, in rising k.
template <int kParts, class Part>
void FirDot(const Part* x, const Part* taps, Orb32s tapCount, Wide<Part> (&y)[kParts]) {
  using W = Wide<Part>;
  const auto term = [&](Orb32s k, W(&t)[kParts]) {
    const Part* h = taps + int64_t{k} * kParts;
    const Part* s = x + int64_t{k} * kParts;
    if constexpr (kParts == 1) {
      t[0] = W(h[0]) * s[0];
    } else {
      t[0] = W(h[0]) * s[0] - W(h[1]) * s[1];
      t[1] = W(h[0]) * s[1] + W(h[1]) * s[0];
    }
  };
  for (W& part : y) part = 0;
  for (Orb32s k = 0; k < tapCount; k += 2) {
    W even[kParts];
    W odd[kParts] = {};
    term(k, even);
    if (k + 1 < tapCount) term(k + 1, odd);
    for (int part = 0; part < kParts; ++part) y[part] += even[part] + odd[part];
  }
}

#endif

}  // namespace orbs::ORBS_VARIANT

#endif
