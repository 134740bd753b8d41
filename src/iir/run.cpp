// Streams in pieces: a piece is widened to floating point, filtered there, and delivered. It is read whole
// before anything is written, so that in place needs nothing more.
#include "iir/run.h"

#include <utility>

#include "iir/recursion/lane_cascade.h"
#include "iir/recursion/long_recursion.h"
#include "iir/recursion/look_ahead.h"
#include "iir/recursion/step.h"
#include "simd/round_scaled.h"
#include "simd/sliding_products.h"
#include "toolkit/toolkit.h"

namespace orbs::ORBS_VARIANT::iir {
namespace {

#if ORBS_VECTOR

// ---- Arbitrary order ----

template <int kParts, int kOrder>
void RunShort(const Orb32f* b, const Orb32f* rows, const Orb32f* u, Orb32f* y, Orb32s count) {
  if constexpr (kOrder == 2) {
    const int pairing = PairingOf<kParts>(b + 3 * kParts);
    if (pairing == 1) return ShortRecursion<kParts, 2, 1>(b, rows).Run(u, y, 2, count);
    if (pairing == -1) return ShortRecursion<kParts, 2, -1>(b, rows).Run(u, y, 2, count);
  }
  ShortRecursion<kParts, kOrder>(b, rows).Run(u, y, kOrder, count);
}

// The numerators are a FIR filter over the piece; they stand where their results will.
template <class Work>
void RunLong(const Work* b, const Orb64f* rows, Orb32s order, const Work* x, Work* y, Orb32s count) {
  constexpr int kParts = PartsOf<Work>::kCount;
  Work reversed[kMostBlockUnits + 1];
  for (Orb32s k = 0; k <= order; ++k) reversed[k] = b[order - k];
  SlidingProducts(x, reversed, order + 1, y + order, static_cast<size_t>(count - order));
  RunLongRecursion<kParts>(rows, order, Parts(y), count);
}

// The first N samples go through the delay line as single ones do; then the results themselves are the past.
// At the end the delay line is what the last N samples and results leave there.
template <class Kind>
const typename Kind::Work* FilterPiece(IirView<Kind> view, Orb32s count) {
  using N = StepNumber<Kind>;
  constexpr int kParts = Kind::kParts;
  const Orb32s order = view.state->delayLen;
  const auto* const x = view.BlockA();
  auto* const y = view.BlockB();
  for (Orb32s i = 0; i < order; ++i) StepArbitraryOrder(view, N::From(x[i])).To(y + i);
  const Orb32f* const b = Parts(view.Taps());
  if (order == 1) {
    RunShort<kParts, 1>(b, view.ShortRows(), Parts(x), Parts(y), count);
  } else if (order == 2) {
    RunShort<kParts, 2>(b, view.ShortRows(), Parts(x), Parts(y), count);
  } else {
    RunLong(view.Taps(), view.LongRows(), order, x, y, count);
  }
  for (Orb32s i = count - order; i < count; ++i) UpdateDelay(view, N::From(x[i]), N::From(y[i]));
  return y;
}

// ---- Biquads ----

// One section over the piece, from u into y.
template <class Work>
void FilterSection(const Work* t, const Orb32f* rows, Work* d, const Work* u, Work* y, Orb32s count) {
  constexpr int kParts = PartsOf<Work>::kCount;
  using N = Number<Orb32f, kParts>;
  const N b0 = N::From(t[0]);
  const N b1 = N::From(t[1]);
  const N b2 = N::From(t[2]);
  const N a1 = N::From(t[3]);
  const N a2 = N::From(t[4]);
  const N u0 = N::From(u[0]);
  const N y0 = b0 * u0 + N::From(d[0]);
  y0.To(y);
  (b1 * u0 + b0 * N::From(u[1]) + N::From(d[1]) - a1 * y0).To(y + 1);
  RunShort<kParts, 2>(Parts(t), rows, Parts(u), Parts(y), count);
  const N u1 = N::From(u[count - 1]);
  const N y1 = N::From(y[count - 1]);
  (b2 * N::From(u[count - 2]) + b1 * u1 - a1 * y1 - a2 * N::From(y[count - 2])).To(d);
  (b2 * u1 - a2 * y1).To(d + 1);
}

// Sections that fill more than half of a vector go through in lanes, in place; the others, and all where
// there are fewer samples than it takes to reach the last lane, by look-ahead from block to block. Those that
// leave lanes empty come first, see LaneCascade.
template <class Kind>
const typename Kind::Work* FilterCascadePiece(IirView<Kind> view, Orb32s count) {
  using Lanes = LaneCascade<typename Kind::Work>;
  auto* u = view.BlockA();
  auto* y = view.BlockB();
  const auto* t = view.Taps();
  auto* d = view.Delay();
  const Orb32f* rows = view.ShortRows();
  for (Orb32s left = view.state->sectionCount; left > 0;) {
    Orb32s n = (left - 1) % Lanes::kSections + 1;
    if (n > Lanes::kSections / 2 && count >= Lanes::kFill) {
      Lanes lanes(t, d, n);
      lanes.Run(u, count);
      lanes.StoreDelay(d, n);
    } else {
      n = 1;
      FilterSection(t, rows, d, u, y, count);
      std::swap(u, y);
    }
    left -= n;
    t += 5 * n;
    d += 2 * n;
    rows += 2 * kShortRowParts * n;
  }
  return u;
}

template <class Kind>
void RunPiece(IirView<Kind> view, const typename Kind::Data* src, typename Kind::Data* dst, Orb32s count,
              Orb32f factor) {
  const Orb32s parts = count * Kind::kParts;
  VecConvert_16s32f(Parts(src), Parts(view.BlockA()), parts);
  const typename Kind::Work* results;
  if constexpr (Kind::kCascade) {
    results = FilterCascadePiece(view, count);
  } else {
    results = FilterPiece(view, count);
  }
  RoundTimes<RoundNear>(Parts(results), Parts(dst), static_cast<size_t>(parts), factor);
}

#endif

}  // namespace

template <class Kind>
void RunIir(IirView<Kind> view, const typename Kind::Data* src, typename Kind::Data* dst, Orb32s count,
            Orb32s scaleFactor) {
  const Orb32f factor = InversePowerOfTwoModulo128(scaleFactor);
#if ORBS_VECTOR
  for (Orb32s done = 0; done < count;) {
    const Orb32s piece = count - done < kIirPiece ? count - done : kIirPiece;
    // Short of that the first samples and the tables cost more than they yield.
    if (piece <= 4 * int64_t{view.Units()}) {
      RunSteps(view, src + done, dst + done, piece, factor);
    } else {
      RunPiece(view, src + done, dst + done, piece, factor);
    }
    done += piece;
  }
#else
  RunSteps(view, src, dst, count, factor);
#endif
}

template void RunIir(IirView<ArbitraryOrderOf<RealNumbers>>, const Orb16s*, Orb16s*, Orb32s, Orb32s);
template void RunIir(IirView<CascadeOf<RealNumbers>>, const Orb16s*, Orb16s*, Orb32s, Orb32s);
template void RunIir(IirView<ArbitraryOrderOf<ComplexNumbers>>, const Orb16sc*, Orb16sc*, Orb32s, Orb32s);
template void RunIir(IirView<CascadeOf<ComplexNumbers>>, const Orb16sc*, Orb16sc*, Orb32s, Orb32s);

}  // namespace orbs::ORBS_VARIANT::iir
