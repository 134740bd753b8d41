// Compiled once per instruction set, each time in a namespace of its own, ORBS_LOOPS. No function of the
// standard library's headers is used: as a weak symbol it could end up with the instructions of another set.
#include "orbs90lgc/types.h"

namespace orbs::bench::loops::ORBS_LOOPS {

#include "bench/toolkit/loops_declare.inc"

template <class Source, class Result>
void Convert(const Source* src, Result* dst, Orb32s n) {
  for (Orb32s i = 0; i < n; ++i) dst[i] = static_cast<Result>(src[i]);
}
template void Convert(const Orb8s*, Orb32f*, Orb32s);
template void Convert(const Orb16s*, Orb32f*, Orb32s);
template void Convert(const Orb32s*, Orb32f*, Orb32s);
template void Convert(const Orb32s*, Orb64f*, Orb32s);
template void Convert(const Orb32f*, Orb64f*, Orb32s);
template void Convert(const Orb64f*, Orb32f*, Orb32s);

template <class Source, class Result>
void Scale(const Source* src, Result* dst, Orb32s n, Result factor) {
  for (Orb32s i = 0; i < n; ++i) dst[i] = static_cast<Result>(src[i]) * factor;
}
template void Scale(const Orb32s*, Orb32f*, Orb32s, Orb32f);
template void Scale(const Orb16s*, Orb64f*, Orb32s, Orb64f);

namespace {

// The bounds of a result in the source type. 2^31-1 is no binary32: the value below it.
constexpr Orb32f Highest(Orb32f, Orb16s) { return 32767; }
constexpr Orb32f Highest(Orb32f, Orb32s) { return 2147483520; }
constexpr Orb64f Highest(Orb64f, Orb32s) { return 2147483647; }
constexpr Orb32f Lowest(Orb32f, Orb16s) { return -32768; }
constexpr Orb32f Lowest(Orb32f, Orb32s) { return -2147483648.0f; }
constexpr Orb64f Lowest(Orb64f, Orb32s) { return -2147483648.0; }

inline Orb32f RoundToWhole(Orb32f y) { return __builtin_rintf(y); }
inline Orb64f RoundToWhole(Orb64f y) { return __builtin_rint(y); }

}  // namespace

template <class Source, class Result>
void Round(const Source* src, Result* dst, Orb32s n, Source factor) {
  constexpr Source kMax = Highest(Source(), Result());
  constexpr Source kMin = Lowest(Source(), Result());
  for (Orb32s i = 0; i < n; ++i) {
    Source y = src[i] * factor;
    y = y > kMax ? kMax : y;
    y = y < kMin ? kMin : y;
    dst[i] = static_cast<Result>(static_cast<Orb32s>(RoundToWhole(y)));
  }
}
template void Round(const Orb32f*, Orb16s*, Orb32s, Orb32f);
template void Round(const Orb32f*, Orb32s*, Orb32s, Orb32f);
template void Round(const Orb64f*, Orb32s*, Orb32s, Orb64f);

void ShiftRight(const Orb32s* src, Orb16s* dst, Orb32s n, int shift) {
  const Orb32u half = 1u << (shift - 1);
  for (Orb32s i = 0; i < n; ++i) {
    const Orb32s x = static_cast<Orb32s>(static_cast<Orb32u>(src[i]) + half) >> shift;
    dst[i] = static_cast<Orb16s>(x > 32767 ? 32767 : x < -32768 ? -32768 : x);
  }
}

void ShiftLeft(const Orb16s* src, Orb32s* dst, Orb32s n, int shift) {
  for (Orb32s i = 0; i < n; ++i) dst[i] = src[i] * (1 << shift);
}

template <class Complex>
void Multiply(const Complex* a, const Complex* b, Complex* dst, Orb32s n) {
  for (Orb32s i = 0; i < n; ++i) {
    const Complex x = a[i];
    const Complex y = b[i];
    dst[i] = {x.re * y.re - x.im * y.im, x.re * y.im + x.im * y.re};
  }
}
template void Multiply(const Orb32fc*, const Orb32fc*, Orb32fc*, Orb32s);
template void Multiply(const Orb64fc*, const Orb64fc*, Orb64fc*, Orb32s);

void Conjugate(const Orb32fc* src, Orb32fc* dst, Orb32s n) {
  for (Orb32s i = 0; i < n; ++i) dst[i] = {src[i].re, -src[i].im};
}

void MultiplyBy(Orb32f constant, Orb32f* x, Orb32s n) {
  for (Orb32s i = 0; i < n; ++i) x[i] *= constant;
}

void Add(const Orb32f* src, Orb32f* sum, Orb32s n) {
  for (Orb32s i = 0; i < n; ++i) sum[i] += src[i];
}

template <class T>
void Divide(const T* divisor, const T* dividend, T* dst, Orb32s n) {
  for (Orb32s i = 0; i < n; ++i) dst[i] = dividend[i] / divisor[i];
}
template void Divide(const Orb32f*, const Orb32f*, Orb32f*, Orb32s);
template void Divide(const Orb64f*, const Orb64f*, Orb64f*, Orb32s);

void Reverse(const Orb32f* src, Orb32f* dst, Orb32s n) {
  for (Orb32s i = 0; i < n; ++i) dst[i] = src[n - 1 - i];
}

void ReverseInPlace(Orb32f* x, Orb32s n) {
  for (Orb32s i = 0; i < n / 2; ++i) {
    const Orb32f t = x[i];
    x[i] = x[n - 1 - i];
    x[n - 1 - i] = t;
  }
}

Orb64s Dot(const Orb16s* a, const Orb16s* b, Orb32s n) {
  Orb64s sum = 0;
  for (Orb32s i = 0; i < n; ++i) sum += a[i] * b[i];
  return sum;
}

void Fill(Orb32s value, Orb32s* dst, Orb32s n) {
  for (Orb32s i = 0; i < n; ++i) dst[i] = value;
}

void Ln(const Orb32f* src, Orb32f* dst, Orb32s n) {
  for (Orb32s i = 0; i < n; ++i) dst[i] = __builtin_logf(src[i]);
}

void Exp(const Orb64f* src, Orb64f* dst, Orb32s n) {
  for (Orb32s i = 0; i < n; ++i) dst[i] = __builtin_exp(src[i]);
}

}  // namespace orbs::bench::loops::ORBS_LOOPS
