// Q15 windows, called through the shared library.
#include "bench/compare.h"
#include "bench/gen/window_peers.h"
#include "orbs90lgc.h"

namespace orbs::bench {
namespace {

constexpr Orb32s kBlackmanAlpha = -5243;
constexpr Orb32f kBeta = 8;

Orb16s Sample(Orb32s i) { return static_cast<Orb16s>(32767 * Random(i)); }
Orb16sc ComplexSample(Orb32s i) { return {Sample(2 * i), Sample(2 * i + 1)}; }
Orb32s KaiserAlpha(Orb32s n) { return static_cast<Orb32s>(32768 * 2 * kBeta / static_cast<Orb32f>(n - 1)); }

void Declare() {
  CompareAtSizes("WinBlackmanQ15_16s", {2, 2}, {160, 1024, 65536}, [](Comparison& c, Orb32s n) {
    const Orb16s* src = c.Array<Orb16s>(n, Sample);
    const Orb32f* table = c.Array<Orb32f>(n, Random);
    Orb16s* dst = c.Array<Orb16s>(n);
    c.Ours([=] { legacy90orbsWinBlackmanQ15_16s(src, dst, n, kBlackmanAlpha); });
    c.Peer("liquid", [=] { native::LiquidBlackmanHarris(src, dst, n); });
    c.Peer("loop", [=] { native::BlackmanLoop(src, dst, n, -0.16f); });
    c.Peer("kept table", [=] { native::TableLoop(table, src, dst, n); });
  });
  // In place: the samples soon are 0, which does not change the time.
  CompareAtSizes("WinBlackmanQ15_16s_ISfs", {2, 2}, {1024}, [](Comparison& c, Orb32s n) {
    Orb16s* x = c.Array<Orb16s>(n, Sample);
    const Orb16s* src = c.Array<Orb16s>(n, Sample);
    c.Ours([=] { legacy90orbsWinBlackmanQ15_16s_ISfs(x, n, kBlackmanAlpha, 1); });
    c.Peer("liquid", [=] { native::LiquidBlackmanHarris(src, x, n); });
  });
  CompareAtSizes("WinBlackmanQ15_16sc", {4, 4}, {1024}, [](Comparison& c, Orb32s n) {
    const Orb16sc* src = c.Array<Orb16sc>(n, ComplexSample);
    Orb16sc* dst = c.Array<Orb16sc>(n);
    c.Ours([=] { legacy90orbsWinBlackmanQ15_16sc(src, dst, n, kBlackmanAlpha); });
    // One part of the samples only.
    c.Peer("liquid", [=] {
      native::LiquidBlackmanHarris(reinterpret_cast<const Orb16s*>(src), reinterpret_cast<Orb16s*>(dst), n);
    });
  });
  CompareAtSizes("WinKaiserQ15_16s", {2, 2}, {160, 1024, 65536}, [](Comparison& c, Orb32s n) {
    const Orb16s* src = c.Array<Orb16s>(n, Sample);
    const Orb32f* table = c.Array<Orb32f>(n, Random);
    Orb16s* dst = c.Array<Orb16s>(n);
    c.Ours([=] { legacy90orbsWinKaiserQ15_16s(src, dst, n, KaiserAlpha(n)); });
    c.Peer("liquid", [=] { native::LiquidKaiser(src, dst, n, kBeta); });
    c.Peer("kept table", [=] { native::TableLoop(table, src, dst, n); });
  });
  CompareAtSizes("WinKaiserQ15_16sc", {4, 4}, {1024}, [](Comparison& c, Orb32s n) {
    const Orb16sc* src = c.Array<Orb16sc>(n, ComplexSample);
    Orb16sc* dst = c.Array<Orb16sc>(n);
    c.Ours([=] { legacy90orbsWinKaiserQ15_16sc(src, dst, n, KaiserAlpha(n)); });
    c.Peer("liquid", [=] {
      native::LiquidKaiser(reinterpret_cast<const Orb16s*>(src), reinterpret_cast<Orb16s*>(dst), n, kBeta);
    });
  });
}

const Family family(kEveryVariant, Declare);

}  // namespace
}  // namespace orbs::bench
