// Receivers' primitives, called through the shared library.
#include <cmath>
#include <cstring>
#include <string>

#include "bench/compare.h"
#include "bench/modem/peers.h"
#include "orbs90lgc.h"

namespace orbs::bench {
namespace {

constexpr double kTwoPi = 6.283185307179586;
const Orb32f kFrequencies[2] = {697.0f / 8000, 1209.0f / 8000};

Orb16s Sample(Orb32s i) { return static_cast<Orb16s>(8000 * Random(i)); }

template <class T>
T Element(Orb32s i) {
  if constexpr (std::is_class_v<T>) {
    return {static_cast<decltype(T::re)>(Sample(2 * i)), static_cast<decltype(T::re)>(Sample(2 * i + 1))};
  } else {
    return static_cast<T>(Sample(i));
  }
}

// A block of the touch-tone detectors at 8 kHz, the largest block that is summed in one go, and a long one.
// The peers are for real signals; on a complex one they would run twice.
template <class Source, class Result, class Frequency>
void CompareGoertzel(const char* name, OrbStatus (*ours)(const Source*, Orb32s, Result*, const Frequency*)) {
  // Two frequencies, each a complex multiplication by a rotation and an addition for each real part.
  CompareAtSizes(name, {sizeof(Source), 0}, {205, 1024, 16384}, [=](Comparison& c, Orb32s n) {
    const Source* src = c.Array<Source>(n, Element<Source>);
    const Orb16s* samples = c.Array<Orb16s>(n, Sample);
    Result* result = c.Array<Result>(2);
    const Frequency* frequencies = c.Array<Frequency>(2, [](Orb32s k) { return kFrequencies[k]; });
    c.Ours([=] { ours(src, n, result, frequencies); });
    c.Peer("spandsp", native::SpandspGoertzels(samples, n, kFrequencies[0], kFrequencies[1]));
    c.Peer("loop", native::GoertzelLoop(samples, n, kFrequencies[0], kFrequencies[1]));
  });
}

// A carrier that swings between -0.2 and 0.2 cycles a sample.
Orb32fc Carrier(Orb32s i) {
  const double phase = 0.2 * kTwoPi * 100 * std::sin(i / 100.0);
  return {static_cast<Orb32f>(20000 * std::cos(phase)), static_cast<Orb32f>(20000 * std::sin(phase))};
}

void CompareFM() {
  constexpr double kRead = 2 * sizeof(Orb16s);
  CompareAtSizes("DemodulateFM_CToR_16s", {kRead, sizeof(Orb16s)}, {160, 4096}, [](Comparison& c, Orb32s n) {
    const Orb16s* re = c.Array<Orb16s>(n, [](Orb32s i) { return Carrier(i).re; });
    const Orb16s* im = c.Array<Orb16s>(n, [](Orb32s i) { return Carrier(i).im; });
    const Orb32fc* pairs = c.Array<Orb32fc>(n, Carrier);
    Orb16s* dst = c.Array<Orb16s>(n);
    Orb32f* steps = c.Array<Orb32f>(n);
    Orb16sc* delayPoint = c.Array<Orb16sc>(1);
    c.Ours([=] { legacy90orbsDemodulateFM_CToR_16s(re, im, dst, n, delayPoint); });
    c.Peer("freqdem", native::LiquidDemodulateFM(pairs, steps, n));
    c.Peer("atan2", native::ArctangentLoop(re, im, dst, n));
  });
}

// An element is a branch of the trellis. The steps are many and different, so that a branch predictor cannot
// learn them; new metrics are put back to 65535 before each, on both sides.
template <int kBranches>
void CompareSelect() {
  constexpr Orb32s kStates = 4 * kBranches;
  constexpr Orb32s kSteps = 65536 / (kStates * kBranches);
  CompareAtSizes(
      "CalcStatesDV_16sc " + std::to_string(kStates) + " states", {0, 0, 1}, {kSteps * kStates * kBranches},
      [](Comparison& c, Orb32s) {
        Orb8u* next = c.Array<Orb8u>(kStates * kBranches, [](Orb32s i) {
          const Orb32s s = i / kBranches;
          return s >> 1 ^ ((s & 1) != 0 ? kStates / 2 + 1 : 0) ^ 2 * (i % kBranches) % kStates;
        });
        const auto metric = [](Orb32s i) { return 4000 + 4000 * Random(i); };
        const Orb16u* old = c.Array<Orb16u>(kSteps * kStates, metric);
        const Orb16sc* symbols = c.Array<Orb16sc>(kSteps * 2 * kBranches, [=](Orb32s i) {
          return Orb16sc{static_cast<Orb16s>(i), static_cast<Orb16s>(metric(i + 99991))};
        });
        Orb16u* metrics = c.Array<Orb16u>(kStates);
        Orb32u* survivors = c.Array<Orb32u>(kStates);
        const auto each = [=](auto select) {
          return [=] {
            for (Orb32s step = 0; step < kSteps; ++step) {
              std::memset(metrics, 0xFF, kStates * sizeof *metrics);
              select(old + step * kStates, next, metrics, symbols + step * 2 * kBranches, survivors);
            }
          };
        };
        c.Ours(each([](auto... tables) { legacy90orbsCalcStatesDV_16sc(tables..., kStates, 0); }));
        c.Peer("loop", each([](auto... tables) { native::SelectPathsLoop<kBranches>(tables...); }));
      });
}

OrbStatus ScaledTwo(const Orb16sc* src, Orb32s len, Orb16sc* result, const Orb32f* f) {
  return legacy90orbsGoertzTwo_16sc_Sfs(src, len, result, f, 8);
}

void Declare() {
  CompareGoertzel("GoertzTwo_32f", legacy90orbsGoertzTwo_32f);
  CompareGoertzel("GoertzTwo_32fc", legacy90orbsGoertzTwo_32fc);
  CompareGoertzel("GoertzTwo_16sc_Sfs", ScaledTwo);
  CompareGoertzel("GoertzTwo_64f", legacy90orbsGoertzTwo_64f);
  CompareGoertzel("GoertzTwo_64fc", legacy90orbsGoertzTwo_64fc);
  CompareFM();
  CompareSelect<4>();
  CompareSelect<8>();
  CompareSelect<16>();
}

const Family family(kEveryVariant, Declare);

}  // namespace
}  // namespace orbs::bench
