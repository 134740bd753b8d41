// Arithmetic on 16-bit spectra of real signals: packed spectra spread to full ones, and multiplied.
#ifndef ORBS_TRANSFORM_SPECTRUM_SPECTRUM_H
#define ORBS_TRANSFORM_SPECTRUM_SPECTRUM_H

#include "core/checks.h"
#include "transform/spectrum/kernels.h"

namespace orbs::ORBS_VARIANT::transform {

// ---- Spreading ----
//
// In place CCS has its lower half where it belongs. For Pack and Perm the order of the writes matters:
// dst[n/2] lies behind the packed spectrum, the pairs go from the top down, and dst[0] comes last, since its
// imaginary part stands where Pack has X[1] and Perm has X[n/2].

ORBS_INLINE void SpreadHalves(const Orb16s* pairs, Orb16sc* dst, size_t n) {
  auto* parts = reinterpret_cast<Orb16s*>(dst);
  if (pairs == parts + 2) {
    SpreadPairs<false>(pairs, parts, n);
  } else {
    SpreadPairs<true>(pairs, parts, n);
  }
}

ORBS_INLINE OrbStatus SpreadCcs(const Orb16sc* src, Orb16sc* dst, Orb32s len) {
  ORBS_RETURN_IF_BAD(CheckArrays(len, src, dst));
  const auto n = static_cast<size_t>(len);
  SpreadHalves(reinterpret_cast<const Orb16s*>(src + 1), dst, n);
  if (src == dst) return StatusOk;
  dst[0] = src[0];
  if (n % 2 == 0) dst[n / 2] = src[n / 2];
  return StatusOk;
}

// Where Pack and Perm keep what. X[0] is at index 0 in both, and for odd n they are the same.
struct Packing {
  size_t top;    // X[n/2], n even
  size_t pairs;  // X[1] and, from there on, all up to X[(n-1)/2]
};

ORBS_INLINE Packing InPack(size_t n) { return {n - 1, 1}; }
ORBS_INLINE Packing InPerm(size_t n) { return n % 2 == 0 ? Packing{1, 2} : InPack(n); }

ORBS_INLINE OrbStatus Spread(Packing (*packing)(size_t), const Orb16s* src, Orb16sc* dst, Orb32s len) {
  ORBS_RETURN_IF_BAD(CheckArrays(len, src, dst));
  const auto n = static_cast<size_t>(len);
  const Packing at = packing(n);
  if (n % 2 == 0) dst[n / 2] = {src[at.top], 0};
  SpreadHalves(src + at.pairs, dst, n);
  dst[0] = {src[0], 0};
  return StatusOk;
}

ORBS_INLINE const Orb16s* Packed(const Orb16sc* srcDst) { return reinterpret_cast<const Orb16s*>(srcDst); }

// ---- Products ----

// The count is taken modulo 32, in its magnitude: the sign stays.
ORBS_INLINE int ShiftCount(Orb32s scaleFactor) { return scaleFactor % 32; }

ORBS_INLINE OrbStatus Mul(Packing (*packing)(size_t), const Orb16s* a, const Orb16s* b, Orb16s* dst,
                          Orb32s len, Orb32s scaleFactor) {
  ORBS_RETURN_IF_BAD(CheckArrays(len, a, b, dst));
  const auto n = static_cast<size_t>(len);
  const Packing at = packing(n);
  const int s = ShiftCount(scaleFactor);
  const auto mulReal = [=](size_t i) { dst[i] = ShiftFloor<Orb16s>(Orb32s{a[i]} * b[i], s); };
  mulReal(0);
  if (n % 2 == 0) mulReal(at.top);
  MulSpectrumPairs(a + at.pairs, b + at.pairs, dst + at.pairs, (n - 1) / 2, s);
  return StatusOk;
}

}  // namespace orbs::ORBS_VARIANT::transform

#endif
