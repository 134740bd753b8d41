// IIR filters without a state: taps of 16 bits with s fractional bits, delay line of 32-bit integers.
//
// Single samples are exact integers; blocks go through a floating-point filter that lives for the call.
#ifndef ORBS_IIR_DIRECT_H
#define ORBS_IIR_DIRECT_H

#include "core/checks.h"
#include "core/memory.h"
#include "core/scaling.h"
#include "iir/recursion/coefficients.h"
#include "iir/run.h"

namespace orbs::ORBS_VARIANT::iir {

// b x - a y + d, wrapping in 32 bits.
ORBS_INLINE Orb32s NextDelay(Orb16s b, Orb32s x, Orb16s a, Orb32s y, Orb32s d) {
  const auto product = [](Orb32s p, Orb32s q) { return static_cast<Orb32u>(p) * static_cast<Orb32u>(q); };
  return static_cast<Orb32s>(product(b, x) - product(a, y) + static_cast<Orb32u>(d));
}

// taps: b[0] to b[N], s, a[1] to a[N].
ORBS_INLINE Orb32s StepInteger(Orb32s x, const Orb16s* taps, Orb32s order, Orb32s* d) {
  const Orb16s* const b = taps;
  const Orb16s* const a = taps + order + 1;  // a[0] is s
  const Orb32s y = ShiftTiesEven<Orb32s>(NextDelay(b[0], x, 0, 0, d[0]), a[0] & 31);
  for (Orb32s i = 0; i + 1 < order; ++i) d[i] = NextDelay(b[i + 1], x, a[i + 1], y, d[i + 1]);
  d[order - 1] = NextDelay(b[order], x, a[order], y, 0);
  return y;
}

inline OrbStatus FilterOne(Orb16s src, Orb16s* dst, const Orb16s* taps, Orb32s order, Orb32s* delayLine) {
  if (order < 1) return StatusIirOrder;
  if (AnyNull(dst, taps, delayLine)) return StatusNullPointer;
  if (taps[int64_t{order} + 1] < 0) return StatusTapValue;
  *dst = Saturate<Orb16s>(StepInteger(src, taps, order, delayLine));
  return StatusOk;
}

inline OrbStatus FilterOneBiQuad(Orb16s src, Orb16s* dst, const Orb16s* taps, Orb32s sectionCount,
                                 Orb32s* delayLine) {
  if (sectionCount < 1) return StatusIirOrder;
  if (AnyNull(dst, taps, delayLine)) return StatusNullPointer;
  Orb32s x = src;
  for (; sectionCount > 0; --sectionCount, taps += 6, delayLine += 2) {
    if (taps[3] < 0) return StatusTapValue;
    x = StepInteger(x, taps, 2, delayLine);
  }
  *dst = Saturate<Orb16s>(x);
  return StatusOk;
}

// ---- Blocks ----

// A state of the call, without the room that aligning a caller's memory takes.
template <class Kind>
class TemporaryState {
 public:
  TemporaryState(Orb32s units, Orb32s id) {
    state_ = static_cast<IIRState*>(AllocAligned(IirStateBytes<Kind>(units) - int64_t{kIirAlignment}));
    if (state_ == nullptr) return;
    *state_ = DescribeIir<Kind>(units).offsets;
    state_->id = id;
    state_->delayLen = Kind::kCascade ? 2 * units : units;
    state_->sectionCount = Kind::kCascade ? units : 0;
  }
  TemporaryState(const TemporaryState&) = delete;
  TemporaryState& operator=(const TemporaryState&) = delete;
  ~TemporaryState() { FreeAligned(state_); }

  explicit operator bool() const { return state_ != nullptr; }
  IirView<Kind> View() const { return {state_}; }

 private:
  IIRState* state_;
};

// Taps b[0] to b[n], s, a[1] to a[n] as binary32, and n elements of the delay line, all times 2^-s.
inline void LoadFilter(const Orb16s* taps, Orb32s n, const Orb32s* delayLine, Orb32f* stored, Orb32f* d) {
  const Orb32f factor = InversePowerOfTwoModulo128(taps[n + 1]);
  for (Orb32s i = 0; i <= n; ++i) stored[i] = taps[i] * factor;
  for (Orb32s i = 1; i <= n; ++i) stored[n + i] = taps[n + 1 + i] * factor;
  for (Orb32s i = 0; i < n; ++i) d[i] = static_cast<Orb32f>(static_cast<Wide<Orb32f>>(delayLine[i]) * factor);
}

inline OrbStatus Filter(const Orb16s* src, Orb16s* dst, Orb32s sampleCount, const Orb16s* taps, Orb32s order,
                        Orb32s* delayLine) {
  if (order < 1) return StatusIirOrder;
  if (AnyNull(src, dst, taps, delayLine)) return StatusNullPointer;
  const Orb32s s = taps[int64_t{order} + 1];
  if (s < 0) return StatusTapValue;
  if (sampleCount < 1) return StatusSize;
  const TemporaryState<ArbitraryOrderOf<RealNumbers>> state(order, kDirectId);
  if (!state) return StatusMemAlloc;
  const auto view = state.View();
  LoadFilter(taps, order, delayLine, view.Taps(), view.Delay());
  view.Delay()[order] = 0;
  StoreOrderTables(view);
  RunIir(view, src, dst, sampleCount, 0);
  const Orb32f factor = InversePowerOfTwoModulo128(-s);
  for (Orb32s i = 0; i < order; ++i) delayLine[i] = FloatHalfAway<Orb32s>(view.Delay()[i] * factor);
  return StatusOk;
}

inline OrbStatus FilterBiQuad(const Orb16s* src, Orb16s* dst, Orb32s sampleCount, const Orb16s* taps,
                              Orb32s sectionCount, Orb32s* delayLine) {
  if (sectionCount < 1) return StatusIirOrder;
  if (AnyNull(src, dst, taps, delayLine)) return StatusNullPointer;
  if (sampleCount < 1) return StatusSize;
  const TemporaryState<CascadeOf<RealNumbers>> state(sectionCount, kDirectBiQuadId);
  if (!state) return StatusMemAlloc;
  const auto view = state.View();
  for (int64_t i = 0; i < sectionCount; ++i) {
    if (taps[6 * i + 3] < 0) return StatusTapValue;
    LoadFilter(taps + 6 * i, 2, delayLine + 2 * i, view.Taps() + 5 * i, view.Delay() + 2 * i);
    StoreSectionTables(view, static_cast<Orb32s>(i));
  }
  RunIir(view, src, dst, sampleCount, 0);
  for (int64_t i = 0; i < sectionCount; ++i) {
    const Orb32f factor = InversePowerOfTwoModulo128(-taps[6 * i + 3]);
    for (int64_t j = 2 * i; j < 2 * i + 2; ++j)
      delayLine[j] = FloatNearEven<Orb32s>(view.Delay()[j] * factor);
  }
  return StatusOk;
}

}  // namespace orbs::ORBS_VARIANT::iir

#endif
