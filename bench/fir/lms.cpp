// Adaptive filters: a stream of noise, a sample at a time, toward another one that the filter can imitate in
// part, so that the taps keep moving and stay small.
#include <string>
#include <vector>

#include "bench/compare.h"
#include "bench/fir/lms_peers.h"
#include "orbs90lgc.h"

namespace orbs::bench {
namespace {

constexpr Orb32s kSamples = 1000;

// The caller's side of a filter.
template <class Tap, class Sample>
struct Caller {
  Caller(Comparison& c, Orb32s tapCount, double level)
      : n(tapCount), taps(c.Array<Tap>(n)), line(c.Array<Sample>(2 * n)), index(c.Array<Orb32s>(1)) {
    const auto noise = [level](Orb32s i) { return static_cast<Sample>(level * Random(i)); };
    src = c.Array<Sample>(kSamples, noise);
    reference = c.Array<Sample>(
        kSamples, [noise](Orb32s i) { return (noise(i) + noise(i > 2 ? i - 3 : 0) + noise(2 * i + 1)) / 3; });
    dst = c.Array<Sample>(kSamples);
  }

  Orb32s n;
  Tap* taps;
  Sample* line;
  Orb32s* index;
  Sample* src;
  Sample* reference;
  Sample* dst;
};

template <class Step, class Tap, class Sample, class Mu>
auto Stream(Step step, const Caller<Tap, Sample>& f, Mu mu) {
  return [=] {
    for (Orb32s i = 0; i < kSamples; ++i) {
      step(f.src[i], f.reference[i], f.dst + i, f.taps, f.n, mu, f.line, f.index);
    }
  };
}

// Operations are counted for a tap and a sample: two for the output, two for the tap's step.
void Compare(const char* name, Orb32s tapCount, double operations, const Body& body) {
  CompareAtSizes(std::string(name) + " " + std::to_string(tapCount) + " taps", {0, 0, operations * tapCount},
                 {kSamples}, body);
}

void CompareTapCount(Orb32s n) {
  Compare("FIRLMSOne_Direct_32f", n, 4, [n](Comparison& c, Orb32s) {
    const Caller<Orb32f, Orb32f> f(c, n, 1.0);
    const Orb32f mu = 0.1f / static_cast<Orb32f>(n);
    c.Ours(Stream(legacy90orbsFIRLMSOne_Direct_32f, f, mu));
    c.Peer("eqlms", native::LiquidLms(n, 0.1f, f.src, f.reference, f.dst, kSamples));
    c.Peer("loop", native::LoopLms(n, mu, f.src, f.reference, f.dst, kSamples));
  });
  Compare("FIRLMSOne_Direct32f_16s", n, 4, [n](Comparison& c, Orb32s) {
    const Caller<Orb32f, Orb16s> f(c, n, 10000.0);
    const Orb32f mu = 0.1e-8f / static_cast<Orb32f>(n);
    c.Ours(Stream(legacy90orbsFIRLMSOne_Direct32f_16s, f, mu));
    c.Peer("loop", native::LoopLms(n, mu, f.src, f.reference, f.dst, kSamples));
  });
  // Two more for the energy.
  Compare("FIRLMSOne_DirectQ15_16s", n, 6, [n](Comparison& c, Orb32s) {
    const Caller<Orb32s, Orb16s> f(c, n, 10000.0);
    constexpr Orb32s kMu = 3000;
    c.Ours(Stream(legacy90orbsFIRLMSOne_DirectQ15_16s, f, kMu));
    c.Peer("loop", native::LoopLmsQ15(n, kMu, f.src, f.reference, f.dst, kSamples));
  });
}

void Declare() {
  for (const Orb32s n : {1, 3, 5, 8, 16, 30, 32, 64, 100, 256}) CompareTapCount(n);
}

const Family family(kEveryVariant, Declare);

}  // namespace
}  // namespace orbs::bench
