// The states of FIR filters. To callers a state is an opaque structure of the public header.
//
// A state holds its taps in reversed order, so that the inner product walks taps and samples in the same
// direction, and the delay line in time order: delayLine[delayIndex] to delayLine[delayIndex + n - 1] are the
// n most recent samples, the newest last. The oldest takes no part in the next output; accessors still hand
// it out. One-sample filters write each sample twice, n elements apart, so that a run of n always exists, and
// move delayIndex on modulo n; block filters pull the run back to the start.
#ifndef ORBS_FIR_KINDS_H
#define ORBS_FIR_KINDS_H

#include <type_traits>

#include "core/parts.h"
#include "core/record.h"
#include "core/variant.h"
#include "orbs90lgc/types.h"

// Floating-point taps. Offsets are 0 where a state has no such array.
struct FIRFloatState {
  Orb32s id;
  orbs::Offset<void> taps;           // reversed
  orbs::Offset<void> delayLine;      // of the tap type
  Orb32s tapCount;                   // n
  Orb32s delayLen;                   // elements that accessors move
  Orb32s delayIndex;                 // 0 to n-1
  Orb32s fftLen;                     // L, or -1 without an FFT path
  orbs::Offset<void> fftSpec;        // plan of L points
  orbs::Offset<void> fftBuffer;      // its work buffer
  orbs::Offset<void> tapsSpectrum;   // of the taps in natural order, padded to L
  orbs::Offset<void> fftWork;        // L elements of the tap type
  orbs::Offset<void> blockBuf;       // chunks of the block filters
  orbs::Offset<Orb64f> preciseTaps;  // 32f in vector variants: the taps in binary64, for one-sample filters
  Orb32s owned;                      // 1: FIRInitAlloc* made the state
};

// Integer taps of at most 16 significant bits: true tap = stored tap * 2^tapsFactor.
struct FIRIntState {
  Orb32s id;
  orbs::Offset<void> taps;       // reversed
  orbs::Offset<void> delayLine;  // of the data type
  Orb32s tapCount;
  Orb32s tapsFactor;
  Orb32s delayIndex;
  orbs::Offset<Orb16s> taps16;  // vector variants: what the kernels multiply with, see integer/kernels.h
  orbs::Offset<void> blockBuf;
  Orb32s owned;
};

namespace orbs::ORBS_VARIANT::fir {

// A kind of float state: the type of its taps and of its data. The identity is four characters.
template <class TapType, class DataType>
struct FirFloatKind {
  using Tap = TapType;
  using Data = DataType;
  using State = FIRFloatState;
  static constexpr int kParts = PartsOf<Tap>::kCount;
  static constexpr bool kComplex = kParts == 2;
  static constexpr bool kWidens = sizeof(Data) != sizeof(Tap) || !std::is_same_v<Data, Tap>;
};

#define ORBS_FIR_KIND(name, Tap, Data, id)    \
  struct name : FirFloatKind<Tap, Data> {     \
    static constexpr Orb32s kId = Orb32s{id}; \
  };
ORBS_FIR_KIND(Fir32f, Orb32f, Orb32f, 0x46493031)
ORBS_FIR_KIND(Fir32fc, Orb32fc, Orb32fc, 0x46493032)
ORBS_FIR_KIND(Fir32f_16s, Orb32f, Orb16s, 0x46493035)
ORBS_FIR_KIND(Fir32fc_16sc, Orb32fc, Orb16sc, 0x46493036)
ORBS_FIR_KIND(Fir64f, Orb64f, Orb64f, 0x46493133)
ORBS_FIR_KIND(Fir64fc, Orb64fc, Orb64fc, 0x46493134)
ORBS_FIR_KIND(Fir64f_32f, Orb64f, Orb32f, 0x46493137)
ORBS_FIR_KIND(Fir64fc_32fc, Orb64fc, Orb32fc, 0x46493138)
ORBS_FIR_KIND(Fir64f_32s, Orb64f, Orb32s, 0x46493231)
ORBS_FIR_KIND(Fir64fc_32sc, Orb64fc, Orb32sc, 0x46493232)
ORBS_FIR_KIND(Fir64f_16s, Orb64f, Orb16s, 0x46493235)
ORBS_FIR_KIND(Fir64fc_16sc, Orb64fc, Orb16sc, 0x46493236)
#undef ORBS_FIR_KIND

// A kind of integer state.
template <class TapType, class DataType, Orb32s id>
struct FirIntKind {
  using Tap = TapType;
  using Data = DataType;
  static constexpr int kParts = PartsOf<Data>::kCount;
  static constexpr Orb32s kId = id;
};
using Fir16s = FirIntKind<Orb16s, Orb16s, 0x46493239>;
using Fir32s_16s = FirIntKind<Orb32s, Orb16s, 0x46493039>;
using Fir32sc_16sc = FirIntKind<Orb32sc, Orb16sc, 0x46493130>;

}  // namespace orbs::ORBS_VARIANT::fir

#endif
