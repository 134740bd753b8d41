// Complex transforms of 16, 32 and 64 points whose tables are constants, for plans that hold none.
#ifndef ORBS_TRANSFORM_ENGINE_VECTOR_CODELETS_H
#define ORBS_TRANSFORM_ENGINE_VECTOR_CODELETS_H

#include "transform/engine/vector/steps.h"

namespace orbs::ORBS_VARIANT::transform {

// sin(2 pi k / 64) for k = 0 to 16.
inline constexpr double kSine64[17] = {0.0,
                                       0.09801714032956060,
                                       0.19509032201612827,
                                       0.29028467725446236,
                                       0.38268343236508977,
                                       0.47139673682599764,
                                       0.55557023301960222,
                                       0.63439328416364550,
                                       0.70710678118654752,
                                       0.77301045336273696,
                                       0.83146961230254524,
                                       0.88192126434835503,
                                       0.92387953251128676,
                                       0.95694033573220886,
                                       0.98078528040323045,
                                       0.99518472667219689,
                                       1.0};

constexpr double Sine64(int k) {
  const int quadrant = k >> 4 & 3;
  const int r = k & 15;
  const double magnitude = kSine64[quadrant % 2 == 0 ? r : 16 - r];
  return quadrant < 2 ? magnitude : -magnitude;
}

inline constexpr int kFirstVectorCodelet = 4;  // 16 points are the first that fill vectors

// The tables of BuildVectorTables.
template <class T, int kOrder>
struct VectorCodeletTables {
  static constexpr int kPoints = 1 << kOrder;
  static constexpr int kFirstRadix = kOrder == 4 ? 4 : 8;
  static constexpr int kLastRadix = kPoints / kFirstRadix;
  static constexpr int kEntries = kLastRadix / kPairs<T>;

  Orb32s reversal[kEntries] = {};
  T twiddles[2 * kPoints] = {};

  constexpr VectorCodeletTables() {
    for (int i = 0; i < kEntries; ++i) {
      int reversed = 0;
      for (int bit = 1, value = i; bit < kEntries; bit <<= 1, value >>= 1)
        reversed = reversed << 1 | (value & 1);
      reversal[i] = reversed * kFirstRadix;
    }
    T* w = twiddles;
    for (int k = 0; k < kFirstRadix; k += kPairs<T>) {
      for (int m = 1; m < kLastRadix; ++m) {
        for (int lane = 0; lane < kPairs<T>; ++lane) {
          const int angle = m * (k + lane) * (64 / kPoints);
          *w++ = static_cast<T>(Sine64(angle + 16));
          *w++ = static_cast<T>(-Sine64(angle));
        }
      }
    }
  }
};

template <class T, int kOrder>
inline constexpr VectorCodeletTables<T, kOrder> kVectorCodeletTables{};

// dst may be src: the points in between stand in registers or on the stack.
template <int kOrder, bool kForward, class Source, class Result, class T>
ORBS_INLINE void RunVectorCodelet(Source src, Result dst, T scale) {
  using Tables = VectorCodeletTables<T, kOrder>;
  const Tables& tables = kVectorCodeletTables<T, kOrder>;
  alignas(64) T middle[2 * Tables::kPoints];
  FirstPass<Tables::kFirstRadix, kForward>(src, middle, Tables::kPoints, tables.reversal, scale);
  const Interleaved<T> from = {middle};
  RowPass<Tables::kLastRadix, kForward>(from, dst, Tables::kFirstRadix, tables.twiddles);
}

}  // namespace orbs::ORBS_VARIANT::transform

#endif
