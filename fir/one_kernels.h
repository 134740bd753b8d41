// The inner product of one output: taps and samples walk together, y = sum over k of taps[k] x[k].
#ifndef ORBS_FIR_ONE_KERNELS_H
#define ORBS_FIR_ONE_KERNELS_H

#include "fir/block_kernels.h"
#include "fir/state.h"
#include "frame/scaling.h"
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

// ---- The sums of a dot product: vectors of terms go to four in turn ----

template <class V>
ORBS_INLINE V AddTerm(V sum, V tap, V sample) {
  return MulAdd(tap, sample, sum);
}

// The sum of all lanes, or of the even and of the odd ones, by halves: three additions deep, not seven.
template <int kParts, class V>
ORBS_INLINE void AddLanes(V sum, typename V::Lane (&y)[kParts]) {
  using Lane = typename V::Lane;
  Lane lanes[V::kLanes];
  sum.Store(lanes);
  ORBS_UNROLL
  for (int half = V::kLanes / 2; half >= kParts; half /= 2) {
    ORBS_UNROLL
    for (int i = 0; i < half; ++i) {
      if constexpr (std::is_integral_v<Lane>) {
        lanes[i] = AddWrapping(lanes[i], lanes[i + half]);
      } else {
        lanes[i] += lanes[i + half];
      }
    }
  }
  for (int part = 0; part < kParts; ++part) y[part] = lanes[part];
}

// Complex sums in two parts, of h.re x and of h.im x, as in the block kernels.
template <int kParts, class Sum>
struct DotSums {
  static constexpr size_t kSums = 4;
  Sum a[kSums];
  Sum b[kSums];

  ORBS_INLINE DotSums() {
    ORBS_UNROLL
    for (size_t j = 0; j < kSums; ++j) a[j] = b[j] = Sum::Zero();
  }
  template <class V>
  ORBS_INLINE void Add(size_t j, V tap, V sample) {
    if constexpr (kParts == 1) {
      a[j] = AddTerm(a[j], tap, sample);
    } else {
      a[j] = AddTerm(a[j], DupEven(tap), sample);
      b[j] = AddTerm(b[j], DupOdd(tap), sample);
    }
  }
  ORBS_INLINE void Total(typename Sum::Lane (&y)[kParts]) const {
    Sum sum = (a[0] + a[1]) + (a[2] + a[3]);
    if constexpr (kParts == 2) sum = AddRotated(sum, (b[0] + b[1]) + (b[2] + b[3]));
    AddLanes(sum, y);
  }
};

// y[0], and y[1] for complex terms, in the type of the taps. Behind both arrays lies room for a vector: the
// last one is masked, taps and samples alike, for what stands behind the samples may be anything, infinities
// included.
template <int kParts, class Sample, class Part>
ORBS_INLINE void FirDot(const Sample* x, const Part* taps, Orb32s tapCount, Part (&y)[kParts]) {
  using V = VectorOf<Part>;
  using Sums = DotSums<kParts, V>;
  constexpr size_t kLanes = V::kLanes;
  const size_t parts = static_cast<size_t>(tapCount) * kParts;
  Sums sums;
  size_t k = 0;
  V sample;
  for (; k + Sums::kSums * kLanes <= parts; k += Sums::kSums * kLanes) {
    ORBS_UNROLL
    for (size_t j = 0; j < Sums::kSums; ++j) {
      LoadSamples(x + k + j * kLanes, &sample);
      sums.Add(j, V::Load(taps + k + j * kLanes), sample);
    }
  }
  for (; k + kLanes <= parts; k += kLanes) {
    LoadSamples(x + k, &sample);
    sums.Add(0, V::Load(taps + k), sample);
  }
  if (k < parts) {
    LoadSamples(x + k, &sample);
    sums.Add(1, FirstLanes(V::Load(taps + k), parts - k), FirstLanes(sample, parts - k));
  }
  sums.Total(y);
}

#else

// The terms are taken in pairs, in rising k. kTapStep -1 walks the taps backward, from the last one given.
template <int kParts, int kTapStep = 1, class Sample, class Part>
void FirDot(const Sample* x, const Part* taps, Orb32s tapCount, Wide<Part> (&y)[kParts]) {
  using W = Wide<Part>;
  const auto term = [&](Orb32s k, W(&t)[kParts]) {
    const Part* h = taps + int64_t{k} * kTapStep * kParts;
    const Sample* s = x + int64_t{k} * kParts;
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
