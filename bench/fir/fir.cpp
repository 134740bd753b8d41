// FIR filters, called through the shared library. Compiled once per variant for the peak of its arithmetic.
#include <memory>
#include <string>

#include "bench/compare.h"
#include "bench/fir/peers.h"
#include "bench/fir/setup.h"
#include "orbs90lgc.h"

namespace orbs::ORBS_VARIANT {
namespace {

template <class State, class Free>
std::shared_ptr<State> Owned(State* state, Free release) {
  return {state, release};
}

void CompareBlocks32f(Orb32s tapCount, std::initializer_list<Orb32s> sizes) {
  CompareAtSizes(Name("FIR_32f", tapCount), {0, 0, 2.0 * tapCount}, sizes, [=](Comparison& c, Orb32s n) {
    const Orb32f* taps = c.Array<Orb32f>(tapCount, Element<Orb32f>);
    const Orb32f* src = c.Array<Orb32f>(n + tapCount, Element<Orb32f>);
    Orb32f* dst = c.Array<Orb32f>(n);
    FIRFloatState* state = nullptr;
    legacy90orbsFIRInitAlloc_32f(&state, taps, tapCount, nullptr);
    c.Ours([=, owned = Owned(state, legacy90orbsFIRFree_32f)] {
      legacy90orbsFIR_32f(src, dst, n, owned.get());
    });
    AddPeak<Orb32f>(c, 1.0 * tapCount * n);
    c.Peer("firfilt", bench::native::LiquidBlock(taps, tapCount, src, dst, n));
    c.Peer("VOLK", bench::native::VolkDots(taps, tapCount, src, dst, n));
    c.Peer("loop", bench::native::Loop(taps, tapCount, src, dst, n));
    if (n >= 4 * tapCount) c.Peer("fftfilt", bench::native::LiquidByTransform(taps, tapCount, src, dst, n));
  });
}

void CompareBlocks32fc(Orb32s tapCount, std::initializer_list<Orb32s> sizes) {
  CompareAtSizes(Name("FIR_32fc", tapCount), {0, 0, 8.0 * tapCount}, sizes, [=](Comparison& c, Orb32s n) {
    const Orb32fc* taps = c.Array<Orb32fc>(tapCount, Element<Orb32fc>);
    const Orb32fc* src = c.Array<Orb32fc>(n + tapCount, Element<Orb32fc>);
    Orb32fc* dst = c.Array<Orb32fc>(n);
    FIRFloatState* state = nullptr;
    legacy90orbsFIRInitAlloc_32fc(&state, taps, tapCount, nullptr);
    c.Ours([=, owned = Owned(state, legacy90orbsFIRFree_32fc)] {
      legacy90orbsFIR_32fc(src, dst, n, owned.get());
    });
    AddPeak<Orb32f>(c, 4.0 * tapCount * n);
    c.Peer("firfilt", bench::native::LiquidBlock(taps, tapCount, src, dst, n));
    c.Peer("VOLK", bench::native::VolkDots(taps, tapCount, src, dst, n));
  });
}

void CompareBlocks64f(Orb32s tapCount, std::initializer_list<Orb32s> sizes) {
  CompareAtSizes(Name("FIR_64f", tapCount), {0, 0, 2.0 * tapCount}, sizes, [=](Comparison& c, Orb32s n) {
    const Orb64f* taps = c.Array<Orb64f>(tapCount, Element<Orb64f>);
    const Orb64f* src = c.Array<Orb64f>(n + tapCount, Element<Orb64f>);
    Orb64f* dst = c.Array<Orb64f>(n);
    FIRFloatState* state = nullptr;
    legacy90orbsFIRInitAlloc_64f(&state, taps, tapCount, nullptr);
    c.Ours([=, owned = Owned(state, legacy90orbsFIRFree_64f)] {
      legacy90orbsFIR_64f(src, dst, n, owned.get());
    });
    AddPeak<Orb64f>(c, 1.0 * tapCount * n);
    c.Peer("loop", bench::native::Loop(taps, tapCount, src, dst, n));
  });
}

void CompareBlocks16s(Orb32s tapCount, std::initializer_list<Orb32s> sizes) {
  CompareAtSizes(Name("FIR_16s_Sfs", tapCount), {0, 0, 2.0 * tapCount}, sizes, [=](Comparison& c, Orb32s n) {
    const Orb16s* taps = c.Array<Orb16s>(tapCount, Element<Orb16s>);
    const Orb16s* src = c.Array<Orb16s>(n + tapCount, Element<Orb16s>);
    Orb16s* dst = c.Array<Orb16s>(n);
    FIRIntState* state = nullptr;
    legacy90orbsFIRInitAlloc_16s(&state, taps, tapCount, -15, nullptr);
    c.Ours([=, owned = Owned(state, legacy90orbsFIRFree_16s)] {
      legacy90orbsFIR_16s_Sfs(src, dst, n, owned.get(), 0);
    });
    AddPeak<Orb16s>(c, 1.0 * tapCount * n);
    c.Peer("loop", bench::native::Loop(taps, tapCount, src, dst, n));
  });
}

// Mixed types pay for conversions on top of the sums.
void CompareBlocks32f16s(Orb32s tapCount, std::initializer_list<Orb32s> sizes) {
  CompareAtSizes(Name("FIR32f_16s_Sfs", tapCount), {0, 0, 2.0 * tapCount}, sizes,
                 [=](Comparison& c, Orb32s n) {
                   const Orb32f* taps = c.Array<Orb32f>(tapCount, Element<Orb32f>);
                   const Orb16s* src = c.Array<Orb16s>(n + tapCount, Element<Orb16s>);
                   Orb16s* dst = c.Array<Orb16s>(n);
                   FIRFloatState* state = nullptr;
                   legacy90orbsFIRInitAlloc32f_16s(&state, taps, tapCount, nullptr);
                   c.Ours([=, owned = Owned(state, legacy90orbsFIRFree32f_16s)] {
                     legacy90orbsFIR32f_16s_Sfs(src, dst, n, owned.get(), 0);
                   });
                   AddPeak<Orb32f>(c, 1.0 * tapCount * n);
                 });
}

void CompareOne(Orb32s tapCount) {
  CompareAtSizes(Name("FIROne_32f", tapCount), {0, 0, 2.0 * tapCount}, {1}, [=](Comparison& c, Orb32s) {
    const Orb32f* taps = c.Array<Orb32f>(tapCount, Element<Orb32f>);
    const Orb32f* src = c.Array<Orb32f>(1, Element<Orb32f>);
    Orb32f* dst = c.Array<Orb32f>(1);
    FIRFloatState* state = nullptr;
    legacy90orbsFIRInitAlloc_32f(&state, taps, tapCount, nullptr);
    c.Ours([=, owned = Owned(state, legacy90orbsFIRFree_32f)] {
      legacy90orbsFIROne_32f(*src, dst, owned.get());
    });
    c.Peer("firfilt", bench::native::LiquidOne(taps, tapCount, src, dst));
  });
}

// Blocks that stay below 512 real or 256 complex samples go by inner products whatever the taps.
void Declare() {
  for (const Orb32s tapCount : {16, 32, 63}) CompareBlocks32f(tapCount, {160, 511, 4096});
  for (const Orb32s tapCount : {64, 96, 128, 256, 512}) CompareBlocks32f(tapCount, {511, 4096});
  for (const Orb32s tapCount : {8, 15, 16, 32, 64, 128, 256}) CompareBlocks32fc(tapCount, {255, 4096});
  for (const Orb32s tapCount : {16, 32, 63}) CompareBlocks64f(tapCount, {511, 4096});
  for (const Orb32s tapCount : {16, 64, 256}) CompareBlocks16s(tapCount, {160, 4096});
  for (const Orb32s tapCount : {16, 63}) CompareBlocks32f16s(tapCount, {160, 4096});
  for (const Orb32s tapCount : {16, 64, 256}) CompareOne(tapCount);
}

const bench::Family family(ORBS_VARIANT_INDEX, Declare);

}  // namespace
}  // namespace orbs::ORBS_VARIANT
