// Integer primitives: fixed-point product with a root of 2, 16-bit dot product, interleaving of pairs.
#include <cstring>

#include "core/checks.h"
#include "simd/blocks.h"
#include "simd/simd.h"
#include "toolkit/toolkit.h"

namespace orbs::ORBS_VARIANT {
namespace {

// sqrt(1/2) with 15 and with 16 fraction bits: the low half is scaled and shifted, the high half stands 16
// bits up already.
constexpr Orb32s kSqrtHalfQ15 = 23170;
constexpr Orb32s kSqrtHalfQ16 = 46340;

#if ORBS_VECTOR

void MulSqrt2(Orb32s* x, size_t n) {
  ForBlocks<N32::kLanes>(
      n,
      [](Orb32s* d, const Orb32s* s) {
        const N32 v = N32::Load(s);
        const N32 low = ShiftRight((v & N32::All(0xFFFF)) * N32::All(kSqrtHalfQ15), 15);
        (low + ShiftRight(v, 16) * N32::All(kSqrtHalfQ16)).Store(d);
      },
      x, x);
}

// MulAddPairs gives a0 b0 + a1 b1 in 32 bits, from -2^31 + 2^16 to 2^31: only the top value does not fit.
// Less 1 every sum fits, so the kernel adds up the sums less 1 and the caller gives the ones back.
struct PairSums {
  Sum64 total = Sum64::Zero();
  Orb64s taken = 0;

  ORBS_INLINE void Add(const Orb16s* a, const Orb16s* b) {
    total = AddWidened(total, MulAddPairs(I16::Load(a), I16::Load(b)) - N32::All(1));
    taken += N32::kLanes;
  }
};

Orb64s Dot(const Orb16s* a, const Orb16s* b, size_t n) {
  // Two sums, so that an addition need not wait for the one before it.
  PairSums even;
  PairSums odd;
  size_t i = 0;
  for (; i + 2 * I16::kLanes <= n; i += 2 * I16::kLanes) {
    even.Add(a + i, b + i);
    odd.Add(a + i + I16::kLanes, b + i + I16::kLanes);
  }
  for (size_t rest = n - i; rest != 0;) {
    const size_t count = rest < I16::kLanes ? rest : I16::kLanes;
    Orb16s lastA[I16::kLanes] = {};
    Orb16s lastB[I16::kLanes] = {};
    std::memcpy(lastA, a + i, count * sizeof(Orb16s));
    std::memcpy(lastB, b + i, count * sizeof(Orb16s));
    even.Add(lastA, lastB);
    i += count;
    rest -= count;
  }
  return Total(even.total) + even.taken + Total(odd.total) + odd.taken;
}

// The counts are powers of two: either whole vectors, or less than one.

void Interleave(Orb16sc* dst, const Orb16s* re, const Orb16s* im, size_t n) {
  ForBlocks<I16::kLanes>(
      n,
      [](Orb16sc* d, const Orb16s* r, const Orb16s* i) {
        StoreInterleaved(reinterpret_cast<Orb16s*>(d), I16::Load(r), I16::Load(i));
      },
      dst, re, im);
}

ORBS_INLINE void SplitBlock(const Orb16sc* src, Orb16s* re, Orb16s* im) {
  const auto* words = reinterpret_cast<const Orb32s*>(src);
  const N32 a = N32::Load(words);
  const N32 b = N32::Load(words + N32::kLanes);
  Pack(ShiftRight(ShiftLeft(a, 16), 16), ShiftRight(ShiftLeft(b, 16), 16)).Store(re);
  Pack(ShiftRight(a, 16), ShiftRight(b, 16)).Store(im);
}

void Deinterleave(const Orb16sc* src, Orb16s* re, Orb16s* im, size_t n) {
  constexpr size_t kLanes = I16::kLanes;
  for (size_t i = 0; i + kLanes <= n; i += kLanes) SplitBlock(src + i, re + i, im + i);
  if (n < kLanes) {
    Orb16sc pairs[kLanes] = {};
    Orb16s parts[2][kLanes];
    std::memcpy(pairs, src, n * sizeof(Orb16sc));
    SplitBlock(pairs, parts[0], parts[1]);
    std::memcpy(re, parts[0], n * sizeof(Orb16s));
    std::memcpy(im, parts[1], n * sizeof(Orb16s));
  }
}

#else

void MulSqrt2(Orb32s* x, size_t n) {
  for (size_t i = 0; i < n; ++i) x[i] = ((x[i] & 0xFFFF) * kSqrtHalfQ15 >> 15) + (x[i] >> 16) * kSqrtHalfQ16;
}

Orb64s Dot(const Orb16s* a, const Orb16s* b, size_t n) {
  Orb64s sum = 0;
  for (size_t i = 0; i < n; ++i) sum += static_cast<Orb32s>(a[i]) * b[i];
  return sum;
}

void Interleave(Orb16sc* dst, const Orb16s* re, const Orb16s* im, size_t n) {
  for (size_t i = 0; i < n; ++i) dst[i] = {re[i], im[i]};
}

void Deinterleave(const Orb16sc* src, Orb16s* re, Orb16s* im, size_t n) {
  for (size_t i = 0; i < n; ++i) {
    re[i] = src[i].re;
    im[i] = src[i].im;
  }
}

#endif

}  // namespace

void VecMulSqrt2_32s_I(Orb32s* x, Orb32s n) {
  if (n >= 1) MulSqrt2(x, static_cast<size_t>(n));
}

OrbStatus VecDot_16s64s(const Orb16s* a, const Orb16s* b, Orb32s n, Orb64s* dot) {
  ORBS_RETURN_IF_BAD(CheckArrays(n, a, b, dot));
  *dot = Dot(a, b, static_cast<size_t>(n));
  return StatusOk;
}

void VecInterleave_16s(Orb16sc* dst, const Orb16s* re, const Orb16s* im, Orb32s order) {
  Interleave(dst, re, im, size_t{1} << order);
}

void VecDeinterleave_16s(const Orb16sc* src, Orb16s* re, Orb16s* im, Orb32s order) {
  Deinterleave(src, re, im, size_t{1} << order);
}

}  // namespace orbs::ORBS_VARIANT
