// The Jaehne chirp: amplitude * sin(c n^2), c = pi / (2 len). Its first element is always 0.
#ifndef ORBS_GEN_PATTERN_JAEHNE_H
#define ORBS_GEN_PATTERN_JAEHNE_H

#include <math.h>

#include "core/checks.h"
#include "core/constants.h"
#include "gen/generate.h"

namespace orbs::ORBS_VARIANT::gen {

inline constexpr Orb64f kMost = 2147483647.0;  // of the integers that the wave is rounded to

#if ORBS_VECTOR

inline constexpr Orb64f kOneByPi = 0.3183098861837907;
// pi in four parts, the first three of 22 bits or fewer.
inline constexpr Orb64f kPiParts[4] = {0x1.921FBp+1, 0x1.5110Bp-21, 0x1.184698p-43, 0x1.3198A2E037073p-68};
// -1/3!, 1/5! ... 1/21!: the next term of the sine is below 2e-18 at pi / 2.
inline constexpr Orb64f kSineSeries[10] = {-1.0 / 6,
                                           1.0 / 120,
                                           -1.0 / 5040,
                                           1.0 / 362880,
                                           -1.0 / 39916800,
                                           1.0 / 6227020800,
                                           -1.0 / 1307674368000,
                                           1.0 / 355687428096000,
                                           -1.0 / 121645100408832000,
                                           1.0 / 51090942171709440000.0};

// sin x for 0 <= x <= 2^32, to within 3e-16: x = k pi + r, sin x = (-1)^k sin r.
ORBS_INLINE F64 Sine(F64 x) {
  // Adding 1.5 * 2^52 rounds x / pi to an integer, which then stands in the low bits of the sum.
  const F64 magic = F64::All(6755399441055744.0);
  const F64 sum = MulAdd(x, F64::All(kOneByPi), magic);
  const F64 k = sum - magic;
  // k has up to 31 bits: its products with the first three parts are exact, and so are two differences.
  F64 r = x;
  ORBS_UNROLL for (const Orb64f part : kPiParts) r = NegMulAdd(k, F64::All(part), r);
  const F64 t = r * r;
  F64 series = F64::All(kSineSeries[9]);
  ORBS_UNROLL for (int i = 8; i >= 0; --i) series = MulAdd(series, t, F64::All(kSineSeries[i]));
  const F64 oddSign = ShiftLeft64(sum, 63);
  return MulAdd(r * t, series, r) ^ oddSign;
}

// amplitude * sin(c n^2) of the indices from `first` on, ready to be truncated.
struct Chirp {
  F64 c;
  F64 amplitude;
  F64 lastIndex;

  Chirp(Orb32s len, Orb64f amplitudeOfAll)
      : c(F64::All(kPi / 2 / len)), amplitude(F64::All(amplitudeOfAll)), lastIndex(F64::All(len - 1)) {}

  ORBS_INLINE F64 operator()(Orb32s first) const {
    // A block may reach beyond the array; there it repeats the last element.
    const F64 n = Min(F64::All(first) + LaneNumbers<F64>(), lastIndex);
    const F64 y = amplitude * Sine(c * (n * n));
    return Min(AwayFromZeroByHalf(y), F64::All(kMost));
  }
};

inline void FillChirp(Orb8s* dst, Orb32s len, Orb8s magn) {
  const Chirp chirp(len, magn);
  GenerateBlocks<U8::kLanes>(dst, len, [chirp](Orb8s* d, Orb32s first) {
    Orb32s wave[U8::kLanes];
    ORBS_UNROLL
    for (int i = 0; i < U8::kLanes; i += F64::kLanes) StoreTruncated(wave + i, chirp(first + i));
    const auto pack = [&wave](int i) {
      return PackFrom([&wave, i](int j) { return I32::Load(wave + i + j); });
    };
    // The packing instruction saturates to 0 and 255.
    const I16 origin = I16::All(128);
    const U8 moved = Pack(pack(0) + origin, pack(I16::kLanes) + origin);
    (moved - U8::All(128)).Store(reinterpret_cast<Orb8u*>(d));
  });
}

inline void FillChirp(Orb32u* dst, Orb32s len, Orb32u magn) {
  constexpr int kBlock = 8;
  const Chirp chirp(len, magn / 2.0);
  F64 least = F64::Zero();
  auto* const wave = reinterpret_cast<Orb32s*>(dst);
  GenerateBlocks<kBlock>(wave, len, [chirp, &least](Orb32s* d, Orb32s first) {
    ORBS_UNROLL
    for (int i = 0; i < kBlock; i += F64::kLanes) {
      const F64 y = chirp(first + i);
      least = Min(least, y);
      StoreTruncated(d + i, y);
    }
  });

  Orb32s lanes[F64::kLanes];
  StoreTruncated(lanes, least);
  Orb32s smallest = lanes[0];
  for (const Orb32s lane : lanes) smallest = lane < smallest ? lane : smallest;
  const N32 shift = N32::All(smallest);
  const auto add = [shift](Orb32s* d, const Orb32s* s) { (N32::Load(s) + shift).Store(d); };
  ForBlocks<N32::kLanes>(static_cast<size_t>(len), add, wave, wave);
}

#else

// x in binary64: the x87 keeps more bits until a value is stored, and far out in a long chirp they would
// show.
inline Orb64f Stored(Orb64f x) {
  const volatile Orb64f stored = x;
  return stored;
}

inline Orb64f PhaseFactor(Orb32s len) { return Stored(kPi / 2 / len); }

// One element of the wave, rounded to the nearest integer.
inline Orb32s ChirpElement(Orb64f c, Orb32s n, Orb64f amplitude) {
  const Orb64f square = Stored(static_cast<Orb64f>(n) * n);
  const Wide<Orb64f> y = Wide<Orb64f>(amplitude) * sin(Stored(c * square));
  const Wide<Orb64f> r = y < 0 ? y - Wide<Orb64f>(0.5) : y + Wide<Orb64f>(0.5);
  return static_cast<Orb32s>(r < kMost ? r : kMost);
}

inline void FillChirp(Orb8s* dst, Orb32s len, Orb8s magn) {
  const Orb64f c = PhaseFactor(len);
  for (Orb32s n = 0; n < len; ++n) dst[n] = static_cast<Orb8s>(ChirpElement(c, n, magn));
}

inline void FillChirp(Orb32u* dst, Orb32s len, Orb32u magn) {
  const Orb64f c = PhaseFactor(len);
  Orb32s smallest = 0;
  for (Orb32s n = 0; n < len; ++n) {
    const Orb32s y = ChirpElement(c, n, magn / 2.0);
    smallest = y < smallest ? y : smallest;
    dst[n] = static_cast<Orb32u>(y);
  }
  for (Orb32s n = 0; n < len; ++n) dst[n] += static_cast<Orb32u>(smallest);
}

#endif

}  // namespace orbs::ORBS_VARIANT::gen

#endif
