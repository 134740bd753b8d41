// The direct forms of FIR filters, called through the shared library.
#include "bench/fir/peers.h"
#include "bench/fir/setup.h"
#include "orbs90lgc.h"

namespace orbs::ORBS_VARIANT {
namespace {

using bench::native::Call;

// What every call of a direct form needs.
template <class Tap, class Data>
struct Arrays {
  Tap* taps;
  const Data* src;
  Data* dst;
  Data* line;
  Orb32s* index;

  Arrays(Comparison& c, Orb32s tapCount, Orb32s n)
      : taps(c.Array<Tap>(tapCount, Element<Tap>)),
        src(c.Array<Data>(n + tapCount, Element<Data>)),
        dst(c.Array<Data>(n)),
        line(c.Array<Data>(2 * tapCount)),
        index(c.Array<Orb32s>(1)) {}
};

// `filter` makes the call on given arrays; `peers` adds what it is held against.
template <class Tap, class Data, class Filter, class Peers>
void Compare(const char* function, double operations, Orb32s tapCount, std::initializer_list<Orb32s> sizes,
             Filter filter, Peers peers) {
  CompareAtSizes(Name(function, tapCount), {0, 0, operations * tapCount}, sizes,
                 [=](Comparison& c, Orb32s n) {
                   const Arrays<Tap, Data> a(c, tapCount, n);
                   c.Ours([=] { filter(a, tapCount, n); });
                   peers(c, a, n);
                 });
}

void CompareBlocks(Orb32s tapCount) {
  Compare<Orb32f, Orb32f>(
      "FIR_Direct_32f", 2, tapCount, {32, 160, 4096},
      [](auto a, Orb32s t, Orb32s n) {
        legacy90orbsFIR_Direct_32f(a.src, a.dst, n, a.taps, t, a.line, a.index);
      },
      [=](Comparison& c, auto a, Orb32s n) {
        AddPeak<Orb32f>(c, 1.0 * tapCount * n);
        c.Peer("firfilt", bench::native::LiquidBlock(a.taps, tapCount, a.src, a.dst, n));
        c.Peer("loop", bench::native::Loop(a.taps, tapCount, a.src, a.dst, n));
      });
  Compare<Orb32fc, Orb32fc>(
      "FIR_Direct_32fc", 8, tapCount, {160, 4096},
      [](auto a, Orb32s t, Orb32s n) {
        legacy90orbsFIR_Direct_32fc(a.src, a.dst, n, a.taps, t, a.line, a.index);
      },
      [=](Comparison& c, auto a, Orb32s n) {
        AddPeak<Orb32f>(c, 4.0 * tapCount * n);
        c.Peer("firfilt", bench::native::LiquidBlock(a.taps, tapCount, a.src, a.dst, n));
      });
  Compare<Orb64f, Orb64f>(
      "FIR_Direct_64f", 2, tapCount, {160, 4096},
      [](auto a, Orb32s t, Orb32s n) {
        legacy90orbsFIR_Direct_64f(a.src, a.dst, n, a.taps, t, a.line, a.index);
      },
      [=](Comparison& c, auto a, Orb32s n) {
        AddPeak<Orb64f>(c, 1.0 * tapCount * n);
        c.Peer("loop", bench::native::Loop(a.taps, tapCount, a.src, a.dst, n));
      });
  Compare<Orb32f, Orb16s>(
      "FIR32f_Direct_16s_Sfs", 2, tapCount, {160, 4096},
      [](auto a, Orb32s t, Orb32s n) {
        legacy90orbsFIR32f_Direct_16s_Sfs(a.src, a.dst, n, a.taps, t, a.line, a.index, 0);
      },
      [=](Comparison& c, auto, Orb32s n) { AddPeak<Orb32f>(c, 1.0 * tapCount * n); });
  // Taps of 16 significant bits, and of more.
  const auto shifted = [](auto a, Orb32s t, Orb32s n) {
    legacy90orbsFIR32s_Direct_16s_Sfs(a.src, a.dst, n, a.taps, t, -15, a.line, a.index, 0);
  };
  Compare<Orb32s, Orb16s>("FIR32s_Direct_16s_Sfs", 2, tapCount, {160, 4096}, shifted,
                          [=](Comparison& c, auto a, Orb32s n) {
                            AddPeak<Orb16s>(c, 1.0 * tapCount * n);
                            const Orb16s* taps = c.Array<Orb16s>(tapCount, Element<Orb16s>);
                            c.Peer("loop", bench::native::Loop(taps, tapCount, a.src, a.dst, n));
                          });
  Compare<Orb32s, Orb16s>("FIR32s_Direct_16s_Sfs wide", 2, tapCount, {4096}, shifted,
                          [=](Comparison& c, auto a, Orb32s n) {
                            for (Orb32s k = 0; k < tapCount; ++k) a.taps[k] *= 1000;
                            AddPeak<Orb16s>(c, 2.0 * tapCount * n);
                          });
}

void CompareOne(Orb32s tapCount) {
  Compare<Orb32f, Orb32f>(
      "FIROne_Direct_32f", 2, tapCount, {1},
      [](auto a, Orb32s t, Orb32s) {
        legacy90orbsFIROne_Direct_32f(*a.src, a.dst, a.taps, t, a.line, a.index);
      },
      [=](Comparison& c, auto a, Orb32s) {
        c.Peer("firfilt", bench::native::LiquidOne(a.taps, tapCount, a.src, a.dst));
      });
  Compare<Orb16s, Orb16s>(
      "FIROne_Direct_16s_Sfs", 2, tapCount, {1},
      [](auto a, Orb32s t, Orb32s) {
        legacy90orbsFIROne_Direct_16s_Sfs(*a.src, a.dst, a.taps, t, a.line, a.index, 0);
      },
      [=](Comparison& c, auto a, Orb32s) {
        c.Peer("loop",
               bench::native::RingStep(a.taps, tapCount, a.src, a.dst, c.Array<Orb16s>(2 * tapCount)));
      });
  Compare<Orb32s, Orb16s>(
      "FIROne32s_Direct_16s_Sfs", 2, tapCount, {1},
      [](auto a, Orb32s t, Orb32s) {
        legacy90orbsFIROne32s_Direct_16s_Sfs(*a.src, a.dst, a.taps, t, -15, a.line, a.index, 0);
      },
      [=](Comparison& c, auto a, Orb32s) {
        c.Peer("loop",
               bench::native::RingStep(a.taps, tapCount, a.src, a.dst, c.Array<Orb16s>(2 * tapCount)));
      });
}

void Declare() {
  for (const Orb32s tapCount : {16, 64, 300}) CompareBlocks(tapCount);
  for (const Orb32s tapCount : {6, 16, 64, 256}) CompareOne(tapCount);
}

const bench::Family family(ORBS_VARIANT_INDEX, Declare);

}  // namespace
}  // namespace orbs::ORBS_VARIANT
