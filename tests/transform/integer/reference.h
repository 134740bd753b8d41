// What the integer transforms must deliver: the fixed-point path step by step on plain numbers, bit for bit,
// and the transform itself in long double. Nothing here comes from the library.
#ifndef ORBS_TESTS_TRANSFORM_INTEGER_REFERENCE_H
#define ORBS_TESTS_TRANSFORM_INTEGER_REFERENCE_H

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstdint>
#include <vector>

#include "orbs90lgc.h"
#include "tests/support/effort.h"

namespace orbs::test {

enum class Layout { kNone, kCcs, kPack, kPerm };

using Reals = std::vector<long double>;
using Integers = std::vector<int64_t>;

// ---- Layouts: CCS to one of the others and back ----

template <class T>
std::vector<T> FromCcs(const std::vector<T>& ccs, Layout layout) {
  if (layout == Layout::kCcs) return ccs;
  const size_t n = ccs.size() - 2;
  std::vector<T> packed = {ccs[0]};
  if (n == 0) return packed;  // one point: CCS has two elements
  if (layout == Layout::kPerm) packed.push_back(ccs[n]);
  packed.insert(packed.end(), ccs.begin() + 2, ccs.begin() + static_cast<std::ptrdiff_t>(n));
  if (layout == Layout::kPack) packed.push_back(ccs[n]);
  return packed;
}

template <class T>
std::vector<T> ToCcs(const std::vector<T>& packed, Layout layout) {
  if (layout == Layout::kCcs) return packed;
  const size_t n = packed.size();
  std::vector<T> ccs(n == 1 ? 2 : n + 2);
  ccs[0] = packed[0];
  if (n == 1) return ccs;
  const size_t first = layout == Layout::kPerm ? 2 : 1;
  std::copy_n(packed.begin() + static_cast<std::ptrdiff_t>(first), n - 2, ccs.begin() + 2);
  ccs[n] = layout == Layout::kPerm ? packed[1] : packed[n - 1];
  return ccs;
}

// ---- In long double ----

using Complexes = std::vector<std::complex<long double>>;

inline constexpr int kLargestExactOrder = kThorough ? 19 : 15;

// exp(-2 pi i k / N) for the largest order: one circle for all transforms, since the emulator is slow at
// sines.
inline const Complexes& Circle() {
  static const Complexes circle = [] {
    Complexes values(size_t{1} << kLargestExactOrder);
    for (size_t k = 0; k < values.size(); ++k) {
      values[k] = std::polar(1.0L, -6.283185307179586476925286766559L * static_cast<long double>(k) /
                                       static_cast<long double>(values.size()));
    }
    return values;
  }();
  return circle;
}

// The sum over n of x[n] exp(-+2 pi i n k / N), up to the largest order.
inline Complexes ExactTransform(const Complexes& x, bool forward) {
  const size_t n = x.size();
  if (n == 1) return x;
  Complexes even(n / 2), odd(n / 2), result(n);
  for (size_t i = 0; i < n / 2; ++i) {
    even[i] = x[2 * i];
    odd[i] = x[2 * i + 1];
  }
  even = ExactTransform(even, forward);
  odd = ExactTransform(odd, forward);
  const size_t step = Circle().size() / n;
  for (size_t k = 0; k < n / 2; ++k) {
    const auto w = Circle()[k * step];
    const auto turned = (forward ? w : std::conj(w)) * odd[k];
    result[k] = even[k] + turned;
    result[k + n / 2] = even[k] - turned;
  }
  return result;
}

// ---- The fixed-point path ----

class FixedReference {
 public:
  FixedReference(int order, Orb32s flag) : order_(order), flag_(flag) {}

  // Interleaved parts.
  Integers Complex(const Integers& x, bool forward, int64_t scaleFactor) const {
    const int h = 15 - order_;
    Numbers z = Widen(x, h);
    Transform(&z, order_, forward ? 1 : -1);
    HalfStep(&z);
    BitReverse(&z, order_);
    return Narrow(Parts(z), Shift(forward) + scaleFactor + h);
  }

  // To Perm.
  Integers RealForward(const Integers& x, int64_t scaleFactor) const {
    const int h = 16 - order_;
    Numbers z = Widen(x, h);
    const size_t half = z.size();
    if (half > 1) {
      Transform(&z, order_ - 1, 1);
      BitReverse(&z, order_ - 1);
      for (size_t k = 1; k < half / 2; ++k) {
        const size_t m = half - k;
        const auto [ar, ai] = z[k];
        const auto [br, bi] = z[m];
        const int32_t p = Wrap(int64_t{ar} + br) >> 1, r = Wrap(int64_t{ai} - bi) >> 1;
        const int32_t d = Wrap(int64_t{ar} - br) >> 1, e = Wrap(-int64_t{Wrap(int64_t{ai} + bi) >> 1});
        const Entry w = Twiddle(k, order_);
        const int32_t u = Q(w.e[0], e, w.e[1], d), v = Q(w.e[2], e, w.e[3], d);
        z[k] = {Wrap(int64_t{p} - u), Wrap(int64_t{r} - v)};
        z[m] = {Wrap(int64_t{p} + u), Wrap(-(int64_t{r} + v))};
      }
      z[half / 2].im = Wrap(-int64_t{z[half / 2].im});
    }
    z[0] = {Wrap(int64_t{z[0].re} + z[0].im), Wrap(int64_t{z[0].re} - z[0].im)};
    HalfStep(&z);
    return Narrow(Parts(z), Shift(true) + scaleFactor + h);
  }

  // From Perm.
  Integers RealInverse(const Integers& perm, int64_t scaleFactor) const {
    const int h = 16 - order_;
    Numbers z = Widen(perm, h);
    const size_t half = z.size();
    z[0] = {Wrap(int64_t{z[0].re} + z[0].im), Wrap(int64_t{z[0].re} - z[0].im)};
    if (half > 1) {
      for (size_t k = 1; k < half / 2; ++k) {
        const size_t m = half - k;
        const auto [ar, ai] = z[k];
        const auto [br, bi] = z[m];
        const int32_t p = Wrap(int64_t{ar} + br), r = Wrap(int64_t{ai} - bi);
        const int32_t d = Wrap(int64_t{ar} - br), e = Wrap(int64_t{ai} + bi);
        const Entry w = Twiddle(k, order_);
        const int32_t u = Q(w.e[1], Wrap(-int64_t{d}), w.e[0], Wrap(-int64_t{e}));
        const int32_t v = Q(w.e[3], d, w.e[2], e);
        z[m] = {Wrap(int64_t{p} + u), Wrap(int64_t{r} + v)};
        z[k] = {Wrap(int64_t{p} - u), Wrap(int64_t{v} - r)};
      }
      Number& middle = z[half / 2];
      middle = {Wrap(2 * int64_t{middle.re}), Wrap(-2 * int64_t{middle.im})};
      Transform(&z, order_ - 1, 1);
    }
    HalfStep(&z);
    if (half > 1) BitReverse(&z, order_ - 1);
    return Narrow(Parts(z), Shift(false) + scaleFactor + h);
  }

  // Half up, or to the left with saturation; the count of places modulo 32.
  static Integers Narrow(const Integers& x, int64_t s) {
    Integers result;
    for (int64_t value : x) {
      int64_t y = value;
      if (s > 0) {
        y = Wrap(value + (int64_t{1} << ((s - 1) & 31))) >> (s & 31);
      } else if (s < 0) {
        const int64_t count = -s & 31;
        // From 16 places on nothing below 0 fits.
        const int64_t lowest = (static_cast<uint64_t>(-s) & 0xFFFFFFFF) >= 16 ? 0 : -32768 >> count;
        y = value > 32767 >> count ? 32767
            : value < lowest       ? -32768
                                   : int16_t(Wrap(value * (int64_t{1} << count)));
      }
      result.push_back(std::clamp<int64_t>(y, -32768, 32767));
    }
    return result;
  }

 private:
  struct Number {
    int32_t re;
    int32_t im;
  };
  struct Entry {
    int32_t e[4];
  };
  using Numbers = std::vector<Number>;

  static int32_t Wrap(int64_t x) { return static_cast<int32_t>(static_cast<uint32_t>(x)); }

  static int32_t Q(int64_t a, int32_t x, int64_t b, int32_t y) {
    const int64_t low = a * ((x & 0xFFFF) >> 1) + b * ((y & 0xFFFF) >> 1);
    return Wrap(((low + 4096) >> 13) + 4 * (a * (x >> 16) + b * (y >> 16)));
  }

  static int32_t QuarterSine(size_t k, size_t n) {
    return static_cast<int32_t>(
        std::floor(16384 * std::sin(6.283185307179586476925L * static_cast<long double>(k) /
                                    static_cast<long double>(n)) +
                   0.5L));
  }

  // cos, sin, -sin, cos of 2 pi k / 2^order, folded from the first quadrant.
  static Entry Twiddle(size_t k, int order) {
    const size_t n = size_t{1} << order;
    const size_t r = k % (n / 4);
    int32_t c = QuarterSine(n / 4 - r, n);
    int32_t s = QuarterSine(r, n);
    for (size_t quarter = k / (n / 4); quarter != 0; --quarter) {
      const int32_t kept = c;
      c = -s;
      s = kept;
    }
    return {{c, s, -s, c}};
  }

  static Number Times(Number x, const Entry& w) {
    return {Q(w.e[0], x.re, w.e[1], x.im), Q(w.e[2], x.re, w.e[3], x.im)};
  }

  static Numbers Widen(const Integers& parts, int h) {
    Numbers z(parts.size() / 2);
    for (size_t i = 0; i < z.size(); ++i) {
      z[i] = {Wrap(parts[2 * i] * (int64_t{1} << h)), Wrap(parts[2 * i + 1] * (int64_t{1} << h))};
    }
    return z;
  }

  static Integers Parts(const Numbers& z) {
    Integers parts;
    for (Number number : z) {
      parts.push_back(number.re);
      parts.push_back(number.im);
    }
    return parts;
  }

  // In place, result in bit-reversed order.
  static void Transform(Numbers* data, int order, int direction) {
    Numbers& x = *data;
    const size_t n = x.size();
    if (n == 2) {
      Butterfly(&x[0], &x[1]);
      return;
    }
    if (direction < 0) std::reverse(x.begin() + 1, x.end());
    size_t s = 1;
    size_t length = n;
    for (; length > 2; length /= 4, s *= 4) {
      const size_t q = length / 4;
      for (size_t j = 0; j < q; ++j) {
        for (size_t b = 0; b < n; b += length) {
          Number& x0 = x[b + j];
          Number& x1 = x[b + j + q];
          Number& x2 = x[b + j + 2 * q];
          Number& x3 = x[b + j + 3 * q];
          const int64_t ar = int64_t{x0.re} - x2.re, ai = int64_t{x0.im} - x2.im;
          const int64_t br = int64_t{x1.re} - x3.re, bi = int64_t{x1.im} - x3.im;
          const Number y0 = {Wrap(int64_t{x0.re} + x1.re + x2.re + x3.re),
                             Wrap(int64_t{x0.im} + x1.im + x2.im + x3.im)};
          const Number y2 = {Wrap(int64_t{x0.re} + x2.re - x1.re - x3.re),
                             Wrap(int64_t{x0.im} + x2.im - x1.im - x3.im)};
          const Number y1 = {Wrap(ar + bi), Wrap(ai - br)};
          const Number y3 = {Wrap(ar - bi), Wrap(ai + br)};
          x0 = y0;
          if (j == 0) {
            x1 = y2;
            x2 = y1;
            x3 = y3;
          } else if (8 * j == length) {
            constexpr int K = 11585;
            x1 = {y2.im, Wrap(-int64_t{y2.re})};
            x2 = {Q(K, Wrap(ai + bi), K, Wrap(ar - br)), Q(K, Wrap(ai - bi), K, Wrap(-(ar + br)))};
            x3 = {Q(K, Wrap(ai + bi), -K, Wrap(ar - br)), Q(K, Wrap(-(ar + br)), -K, Wrap(ai - bi))};
          } else {
            x1 = Times(y2, Twiddle(2 * j * s, order));
            x2 = Times(y1, Twiddle(j * s, order));
            x3 = Times(y3, Twiddle(3 * j * s, order));
          }
        }
      }
    }
    if (length == 2) {
      for (size_t k = 0; k < n; k += 2) Butterfly(&x[k], &x[k + 1]);
    }
  }

  static void Butterfly(Number* a, Number* b) {
    const Number x = *a, y = *b;
    *a = {Wrap(int64_t{x.re} + y.re), Wrap(int64_t{x.im} + y.im)};
    *b = {Wrap(int64_t{x.re} - y.re), Wrap(int64_t{x.im} - y.im)};
  }

  static void BitReverse(Numbers* x, int order) {
    Numbers result(x->size());
    for (size_t i = 0; i < x->size(); ++i) {
      size_t reversed = 0;
      for (int bit = 0; bit < order; ++bit) reversed |= (i >> bit & 1) << (order - 1 - bit);
      result[reversed] = (*x)[i];
    }
    *x = result;
  }

  int64_t Shift(bool forward) const {
    if (flag_ == FftScaleBySqrtN) return order_ / 2;
    return flag_ == (forward ? FftScaleFwdByN : FftScaleInvByN) ? order_ : 0;
  }

  void HalfStep(Numbers* z) const {
    if (flag_ != FftScaleBySqrtN || order_ % 2 == 0) return;
    const auto step = [](int32_t x) {
      return Wrap((int64_t{x & 0xFFFF} * 23170 >> 15) + int64_t{x >> 16} * 46340);
    };
    for (Number& number : *z) number = {step(number.re), step(number.im)};
  }

  int order_;
  Orb32s flag_;
};

}  // namespace orbs::test

#endif
