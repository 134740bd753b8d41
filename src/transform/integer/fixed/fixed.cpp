// The fixed-point transform in px, decimation in frequency with radix 4, and the split of real spectra in all
// variants.
#include "transform/integer/fixed/fixed.h"

#include "transform/engine/tables/bit_reversal.h"
#if ORBS_VECTOR
#include "transform/integer/fixed/fixed_vector.h"
#endif

namespace orbs::ORBS_VARIANT::transform {

#if ORBS_VECTOR

void FftFixedFwd_32sc(Orb32sc* x, Orb32s order, const Orb16s*, const Orb32s*) {
  TransformFixedVector<true>(&x->re, order);
}

void FftFixedInv_32sc(Orb32sc* x, Orb32s order, const Orb16s*, const Orb32s*) {
  TransformFixedVector<false>(&x->re, order);
}

#else

namespace {

struct Butterfly {
  Orb32sc y0;
  Orb32sc y2;
  Orb32sc c;  // p0 - p2
  Orb32sc d;  // p1 - p3
  Orb32sc y1;
  Orb32sc y3;

  // The quarters of a block at x, q points apart.
  ORBS_INLINE Butterfly(const Orb32sc* x, Index q) {
    const Orb32sc a = x[0] + x[2 * q];
    const Orb32sc b = x[q] + x[3 * q];
    c = x[0] - x[2 * q];
    d = x[q] - x[3 * q];
    y0 = a + b;
    y2 = a - b;
    y1 = c + TimesMinusI(d);
    y3 = c - TimesMinusI(d);
  }
};

// The eighth of a circle: its two products share their sums, and the quarter turn of y2 is exact, where a
// multiplication would lose bit 0.
ORBS_INLINE void StoreEighth(const Butterfly& b, Orb32sc* x, Index q) {
  constexpr Orb32s K = kSqrtHalfQ14;
  const Orb32s sumIm = AddWrap(b.c.im, b.d.im);
  const Orb32s differenceIm = SubWrap(b.c.im, b.d.im);
  const Orb32s differenceRe = SubWrap(b.c.re, b.d.re);
  const Orb32s minusSumRe = NegWrap(AddWrap(b.c.re, b.d.re));
  x[0] = b.y0;
  x[q] = TimesMinusI(b.y2);
  x[2 * q] = {MulQ14(K, sumIm, K, differenceRe), MulQ14(K, differenceIm, K, minusSumRe)};
  x[3 * q] = {MulQ14(K, sumIm, -K, differenceRe), MulQ14(K, minusSumRe, -K, differenceIm)};
}

// One radix-4 layer over blocks of `length` points; `stride` steps of the table are one point's angle.
void RunLayer(Orb32sc* x, Index n, Index length, Index stride, const FixedStep* w) {
  const Index q = length / 4;
  for (Index j = 0; j < q; ++j) {
    for (Orb32sc* p = x + j; p < x + n; p += length) {
      const Butterfly b(p, q);
      if (8 * j == length) {
        StoreEighth(b, p, q);
        continue;
      }
      p[0] = b.y0;
      p[q] = j == 0 ? b.y2 : b.y2 * w[2 * j * stride];
      p[2 * q] = j == 0 ? b.y1 : b.y1 * w[j * stride];
      p[3 * q] = j == 0 ? b.y3 : b.y3 * w[3 * j * stride];
    }
  }
}

}  // namespace

void FftFixedFwd_32sc(Orb32sc* x, Orb32s order, const Orb16s* twiddles, const Orb32s* bitRev) {
  const Index n = Index{1} << order;
  const auto* w = reinterpret_cast<const FixedStep*>(twiddles);
  Index length = n;
  for (Index stride = 1; length > 2; length /= 4, stride *= 4) RunLayer(x, n, length, stride, w);
  if (length == 2) {
    for (Index k = 0; k < n; k += 2) {
      const Orb32sc difference = x[k] - x[k + 1];
      x[k] = x[k] + x[k + 1];
      x[k + 1] = difference;
    }
  }
  if (order >= 2) BitRevInPlace_64s(x, order, bitRev);
}

// The forward transform of the reversed sequence is the inverse transform.
void FftFixedInv_32sc(Orb32sc* x, Orb32s order, const Orb16s* twiddles, const Orb32s* bitRev) {
  const Index n = Index{1} << order;
  for (Index k = 1; k < n / 2; ++k) {
    const Orb32sc kept = x[k];
    x[k] = x[n - k];
    x[n - k] = kept;
  }
  FftFixedFwd_32sc(x, order, twiddles, bitRev);
}

#endif

// Not in vectors: where those transform in fixed point, there is one k at most.

void FftFixedSplitFwd_32s(Orb32sc* z, Index n, const Orb16s* table) {
  const Index half = n / 2;
  const auto* w = reinterpret_cast<const FixedStep*>(table);
  for (Index k = 1; k < half / 2; ++k) {
    const Index m = half - k;
    const Orb32sc a = z[k];
    const Orb32sc b = z[m];
    const Orb32s p = AddWrap(a.re, b.re) >> 1;
    const Orb32s r = SubWrap(a.im, b.im) >> 1;
    const Orb32s d = SubWrap(a.re, b.re) >> 1;
    const Orb32s e = NegWrap(AddWrap(a.im, b.im) >> 1);
    const Orb32s u = MulQ14(w[k].e[0], e, w[k].e[1], d);
    const Orb32s v = MulQ14(w[k].e[2], e, w[k].e[3], d);
    z[k] = {SubWrap(p, u), SubWrap(r, v)};
    z[m] = {AddWrap(p, u), NegWrap(AddWrap(r, v))};
  }
  z[half / 2].im = NegWrap(z[half / 2].im);
}

void FftFixedSplitInv_32s(Orb32sc* z, Index n, const Orb16s* table) {
  const Index half = n / 2;
  const auto* w = reinterpret_cast<const FixedStep*>(table);
  for (Index k = 1; k < half / 2; ++k) {
    const Index m = half - k;
    const Orb32sc a = z[k];
    const Orb32sc b = z[m];
    const Orb32s p = AddWrap(a.re, b.re);
    const Orb32s r = SubWrap(a.im, b.im);
    const Orb32s d = SubWrap(a.re, b.re);
    const Orb32s e = AddWrap(a.im, b.im);
    const Orb32s u = MulQ14(w[k].e[1], NegWrap(d), w[k].e[0], NegWrap(e));
    const Orb32s v = MulQ14(w[k].e[3], d, w[k].e[2], e);
    z[m] = {AddWrap(p, u), AddWrap(r, v)};
    z[k] = {SubWrap(p, u), SubWrap(v, r)};
  }
  Orb32sc& middle = z[half / 2];
  middle = {AddWrap(middle.re, middle.re), NegWrap(AddWrap(middle.im, middle.im))};
}

}  // namespace orbs::ORBS_VARIANT::transform
