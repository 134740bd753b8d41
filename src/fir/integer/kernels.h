// The arithmetic of FIR filters with integer taps: 32-bit sums that wrap, scaled and saturated to 16 bits.
// All variants give the same numbers.
//
// The vector kernels multiply 16-bit taps and samples in pairs. What they read, taps16, is laid out for that:
//
//   real      pairs of neighbouring taps, t0 t1, t2 t3 ...; an odd count begins with a zero, so that the pair
//             reaches one sample back, which always exists, and not one ahead
//   complex   for each tap the pair re, -im, which makes the real part; then, behind all of them, for each
//             tap the pair im, re, which makes the imaginary part
//
// padded with zeros to whole vectors for the one-sample filters.
#ifndef ORBS_FIR_INTEGER_KERNELS_H
#define ORBS_FIR_INTEGER_KERNELS_H

#include <cstring>

#include "core/scaling.h"
#include "fir/kinds.h"
#if ORBS_VECTOR
#include "simd/reduce.h"
#include "simd/simd.h"
#endif

namespace orbs::ORBS_VARIANT::fir {

// Sum * 2^d. d above 0 shifts left in 32 bits, bits above falling away; d below 0 rounds, ties to even.
struct FirIntScale {
  int d;

  static FirIntScale Of(Orb32s tapsFactor, Orb32s scaleFactor) {
    const Orb64s d = static_cast<Orb64s>(tapsFactor) - scaleFactor;
    return {static_cast<int>(d > 31 ? 31 : d < -31 ? -31 : d)};
  }

  ORBS_INLINE Orb16s operator()(Orb32s sum) const {
    if (d >= 0) return Saturate<Orb16s>(static_cast<Orb32s>(static_cast<Orb32u>(sum) << d));
    return ShiftTiesEven<Orb16s>(sum, -d);
  }
};

// Elements of a vector of outputs.
#if ORBS_VECTOR
template <class Data>
inline constexpr Orb32s kFirIntVector = I16::kLanes / PartsOf<Data>::kCount;
#else
template <class Data>
inline constexpr Orb32s kFirIntVector = 1;
#endif

#if ORBS_VECTOR

// ---- The taps as the kernels read them ----

// Pairs of a row of taps16, with the padding.
template <int kParts>
ORBS_INLINE constexpr int64_t FirIntPairs(int64_t n) {
  return RoundUp(kParts == 1 ? (n + 1) / 2 : n, N32::kLanes);
}
template <int kParts>
ORBS_INLINE constexpr int64_t FirTaps16Elements(int64_t n) {
  return 2 * kParts * FirIntPairs<kParts>(n);
}

// From the stored taps, reversed as they are; taps16 holds zeros.
template <class Tap>
void StoreTaps16(const Tap* taps, Orb32s n, Orb16s* taps16) {
  const auto low = [](Orb32s tap) { return static_cast<Orb16s>(static_cast<Orb32u>(tap)); };
  if constexpr (PartsOf<Tap>::kCount == 1) {
    for (Orb32s k = 0; k < n; ++k) taps16[k + n % 2] = low(taps[k]);
  } else {
    Orb16s* const imaginary = taps16 + 2 * FirIntPairs<2>(n);
    for (Orb32s k = 0; k < n; ++k) {
      taps16[2 * k] = imaginary[2 * k + 1] = low(taps[k].re);
      imaginary[2 * k] = low(taps[k].im);
      taps16[2 * k + 1] = low(static_cast<Orb32s>(0 - static_cast<Orb32u>(taps[k].im)));
    }
  }
}

// ---- Delivery ----

ORBS_INLINE N32 ScaleSums(N32 sums, int d) {
  if (d >= 0) return ShiftLeft(sums, d);
  const int s = -d;
  const N32 odd = ShiftRight(sums, s) & N32::All(1);
  return ShiftRight(sums + N32::All((Orb32s{1} << (s - 1)) - 1) + odd, s);
}

// Outputs 0, 2, 4 ... and 1, 3, 5 ..., or real and imaginary parts, as one vector in order.
ORBS_INLINE I16 DeliverSums(N32 even, N32 odd, int d) {
  even = ScaleSums(even, d);
  odd = ScaleSums(odd, d);
  I16 low;
  I16 high;
  InterleaveInLanes(PackInLanes(even, even), PackInLanes(odd, odd), &low, &high);
  return low;
}

ORBS_INLINE I16 PairToAll(const Orb16s* pair) {
  Orb32s bits;
  std::memcpy(&bits, pair, sizeof bits);
  return As16(N32::All(bits));
}

// ---- Blocks ----

// The sums of kVectors vectors of outputs. Real: of each pair of taps, the products for the even outputs come
// from samples at x, those for the odd ones from samples one further on. Complex: two tap pairs on the same
// samples.
template <int kParts, int kVectors>
ORBS_INLINE void FirIntTileSums(const Orb16s* x, const Orb16s* taps, int64_t n, N32 (&a)[kVectors],
                                N32 (&b)[kVectors]) {
  ORBS_UNROLL
  for (int v = 0; v < kVectors; ++v) a[v] = b[v] = N32::Zero();
  const int64_t pairs = kParts == 1 ? (n + 1) / 2 : n;
  const Orb16s* const imaginary = taps + 2 * FirIntPairs<2>(n);
  for (int64_t k = 0; k < pairs; ++k) {
    const I16 tap = PairToAll(taps + 2 * k);
    const I16 other = kParts == 1 ? tap : PairToAll(imaginary + 2 * k);
    ORBS_UNROLL
    for (int v = 0; v < kVectors; ++v) {
      const Orb16s* const at = x + 2 * k + v * I16::kLanes;
      const I16 samples = I16::Load(at);
      a[v] = a[v] + MulAddPairs(tap, samples);
      b[v] = b[v] + MulAddPairs(other, kParts == 1 ? I16::Load(at + 1) : samples);
    }
  }
}

template <int kParts, int kVectors>
ORBS_INLINE void FirIntTile(const Orb16s* x, const Orb16s* taps, int64_t n, int d, I16 (&y)[kVectors]) {
  N32 a[kVectors];
  N32 b[kVectors];
  FirIntTileSums<kParts>(x, taps, n, a, b);
  ORBS_UNROLL
  for (int v = 0; v < kVectors; ++v) y[v] = DeliverSums(a[v], b[v], d);
}

// `count` outputs from the samples of which x[0] is the oldest needed; for fewer than a vector, a whole
// vector's samples are read. x[-1] is read too, for odd n.
template <class Data>
void FirIntSums(const Data* src, const Orb16s* taps, Orb32s n, Data* dst, Orb32s count, int d) {
  constexpr int kParts = PartsOf<Data>::kCount;
  constexpr int kLanes = I16::kLanes;
  // Four vectors are eight sums: half of the registers, and enough to hide the latency of the products.
  constexpr int kTile = 4;
  const Orb16s* const x = Parts(src) - (kParts == 1 ? n % 2 : 0);
  Orb16s* const y = Parts(dst);
  const int64_t parts = int64_t{count} * kParts;
  int64_t i = 0;
  for (; i + kTile * kLanes <= parts; i += kTile * kLanes) {
    I16 results[kTile];
    FirIntTile<kParts>(x + i, taps, n, d, results);
    ORBS_UNROLL
    for (int v = 0; v < kTile; ++v) results[v].Store(y + i + v * kLanes);
  }
  I16 result[1];
  for (; i + kLanes <= parts; i += kLanes) {
    FirIntTile<kParts>(x + i, taps, n, d, result);
    result[0].Store(y + i);
  }
  if (i == parts) return;
  if (parts >= kLanes) {
    FirIntTile<kParts>(x + parts - kLanes, taps, n, d, result);
    result[0].Store(y + parts - kLanes);
    return;
  }
  FirIntTile<kParts>(x, taps, n, d, result);
  Orb16s few[kLanes];
  result[0].Store(few);
  std::memcpy(y, few, static_cast<size_t>(parts) * sizeof *y);
}

// ---- One output ----

ORBS_INLINE Orb32s FirIntDot(const Orb16s* x, const Orb16s* taps, int64_t pairs) {
  N32 a = N32::Zero();
  N32 b = N32::Zero();
  int64_t k = 0;
  for (; k + 2 * N32::kLanes <= pairs; k += 2 * N32::kLanes) {
    a = a + MulAddPairs(I16::Load(taps + 2 * k), I16::Load(x + 2 * k));
    b = b + MulAddPairs(I16::Load(taps + 2 * k + I16::kLanes), I16::Load(x + 2 * k + I16::kLanes));
  }
  if (k < pairs) a = a + MulAddPairs(I16::Load(taps + 2 * k), I16::Load(x + 2 * k));
  Orb32s sum[1];
  SumLanes(a + b, sum);
  return sum[0];
}

// Reads whole vectors of samples; behind the taps stand zeros.
template <class Data>
ORBS_INLINE void FirIntOne(const Data* src, const Orb16s* taps, Orb32s n,
                           Orb32s (&sums)[PartsOf<Data>::kCount]) {
  constexpr int kParts = PartsOf<Data>::kCount;
  const int64_t pairs = FirIntPairs<kParts>(n);
  sums[0] = FirIntDot(Parts(src) - (kParts == 1 ? n % 2 : 0), taps, pairs);
  if constexpr (kParts == 2) sums[1] = FirIntDot(Parts(src), taps + 2 * pairs, pairs);
}

#else

// kTapStep -1 walks the taps backward, from the last one given.

// The low 32 bits of a product: exact for a tap of any width.
ORBS_INLINE Orb32u LowProduct(Orb32s tap, Orb16s sample) {
  return static_cast<Orb32u>(tap) * static_cast<Orb32u>(Orb32s{sample});
}

template <int kTapStep = 1, class Tap>
ORBS_INLINE void FirIntOne(const Orb16s* x, const Tap* taps, Orb32s n, Orb32s (&sums)[1]) {
  Orb32u sum = 0;
  for (Orb32s k = 0; k < n; ++k) sum += LowProduct(taps[int64_t{k} * kTapStep], x[k]);
  sums[0] = static_cast<Orb32s>(sum);
}
template <int kTapStep = 1>
ORBS_INLINE void FirIntOne(const Orb16sc* x, const Orb32sc* taps, Orb32s n, Orb32s (&sums)[2]) {
  Orb32u re = 0;
  Orb32u im = 0;
  for (Orb32s k = 0; k < n; ++k) {
    const Orb32sc tap = taps[int64_t{k} * kTapStep];
    re += LowProduct(tap.re, x[k].re) - LowProduct(tap.im, x[k].im);
    im += LowProduct(tap.re, x[k].im) + LowProduct(tap.im, x[k].re);
  }
  sums[0] = static_cast<Orb32s>(re);
  sums[1] = static_cast<Orb32s>(im);
}

template <class Tap, class Data>
void FirIntSums(const Data* x, const Tap* taps, Orb32s n, Data* dst, Orb32s count, int d) {
  constexpr int kParts = PartsOf<Data>::kCount;
  for (Orb32s i = 0; i < count; ++i) {
    Orb32s sums[kParts];
    FirIntOne(x + i, taps, n, sums);
    for (int part = 0; part < kParts; ++part) Parts(dst + i)[part] = FirIntScale{d}(sums[part]);
  }
}

#endif

}  // namespace orbs::ORBS_VARIANT::fir

#endif
