// The saturated slope: bulk fills at the bounds, arithmetic only between them.
#ifndef ORBS_GEN_PATTERN_SLOPE_H
#define ORBS_GEN_PATTERN_SLOPE_H

#include "core/checks.h"
#include "gen/pattern/ramp_kernels.h"
#include "toolkit/toolkit.h"

namespace orbs::ORBS_VARIANT::gen {

// The number of elements up to and with index k, where the line crosses a bound. None for a negative k, also
// for one that adding 1 would round to 0: a steep line has not reached the bound at its first element. NaN
// gives 0.
inline Orb32s AsCount(long double k) {
  constexpr Orb32s kMost = std::numeric_limits<Orb32s>::max();
  if (k >= kMost - 1) return kMost;
  return k >= 0 ? static_cast<Orb32s>(k) + 1 : 0;
}

inline void Fill(Orb8s value, Orb8s* dst, Orb32s count) {
  if (count > 0) VecSet_8u(static_cast<Orb8u>(value), dst, count);
}

inline void FillSlope(Orb8s* dst, Orb32s len, Orb32f offset, Orb32f slope) {
  constexpr Orb8s kHigh = 127;
  constexpr Orb8s kLow = -128;
  if (offset != offset || slope != slope) return Fill(kLow, dst, len);
  if (slope == 0) {
    // At 0 the half is added to nothing and truncated away again.
    const long double y = offset;
    const long double r = y > 0 ? y + 0.5L : y - 0.5L;
    return Fill(static_cast<Orb8s>(r >= kHigh ? kHigh : r <= kLow ? kLow : static_cast<int>(r)), dst, len);
  }

  // Extended precision in every variant: all agree on where the fills end.
  const long double inverse = 1.0L / slope;
  const Orb32s crossHigh = AsCount((kHigh - static_cast<long double>(offset)) * inverse);
  const Orb32s crossLow = AsCount((kLow - static_cast<long double>(offset)) * inverse);
  const bool rising = slope > 0;
  const Orb32s end = rising ? crossHigh : crossLow;
  const Orb32s lineEnd = end < len ? end : len;
  const Orb32s start = rising ? crossLow : crossHigh;
  const Orb32s lineStart = start < lineEnd ? start : lineEnd;
  Fill(rising ? kHigh : kLow, dst + lineEnd, len - lineEnd);
  Fill(rising ? kLow : kHigh, dst, lineStart);
  if (lineStart < lineEnd) {
    const auto base = static_cast<Orb32f>(offset + static_cast<long double>(lineStart) * slope);
    FillLine(dst + lineStart, lineEnd - lineStart, base, slope);
  }
}

}  // namespace orbs::ORBS_VARIANT::gen

#endif
