// Tones and triangles, called through the shared library.
#include <algorithm>
#include <complex>
#include <memory>

#include "bench/compare.h"
#include "orbs90lgc.h"

#include <liquid/liquid.h>
#include <stdint.h>

// Without an order of its own: dds.h uses the two before it.
// clang-format off
#include <spandsp/telephony.h>
#include <spandsp/complex.h>
#include <spandsp/dds.h>
// clang-format on

namespace orbs::bench {
namespace {

constexpr float kFrequency = 0.0371f;
constexpr float kSampleRate = 8000;
constexpr Orb32f kMagnitude = 20000;

// ---- spandsp: a table of sines, one sample a call ----

struct Dds {
  uint32_t phase = 0;
  int32_t rate = dds_phase_ratef(kFrequency * kSampleRate);

  void Next(Orb16s* y) { *y = dds_mod(&phase, rate, static_cast<Orb16s>(kMagnitude), 0); }
  void Next(Orb32f* y) { *y = dds_modf(&phase, rate, kMagnitude, 0); }
  void Next(Orb16sc* y) {
    const complexi16_t z = dds_complexi16_mod(&phase, rate, static_cast<Orb16s>(kMagnitude), 0);
    *y = {z.re, z.im};
  }
  void Next(Orb32fc* y) {
    const complexf_t z = dds_complex_modf(&phase, rate, kMagnitude, 0);
    *y = {z.re, z.im};
  }
};

template <class Sample>
void CompareWithDds(Comparison& c, Sample* dst, Orb32s n) {
  const auto dds = std::make_shared<Dds>();
  c.Peer("spandsp", [=] {
    for (Orb32s i = 0; i < n; ++i) dds->Next(dst + i);
  });
}

// ---- liquid-dsp: an oscillator's cosine and step, and its mixing of a block of ones ----

using Oscillator = std::shared_ptr<nco_crcf_s>;

Oscillator MakeOscillator() {
  Oscillator oscillator(nco_crcf_create(LIQUID_NCO), nco_crcf_destroy);
  nco_crcf_set_frequency(oscillator.get(), kFrequency * 2 * 3.14159265f);
  return oscillator;
}

template <class Deliver>
void CompareWithOscillator(Comparison& c, Deliver deliver, Orb32s n) {
  const Oscillator oscillator = MakeOscillator();
  c.Peer("liquid-dsp", [=] {
    for (Orb32s i = 0; i < n; ++i) {
      deliver(i, nco_crcf_cos(oscillator.get()));
      nco_crcf_step(oscillator.get());
    }
  });
}

void CompareWithMixing(Comparison& c, Orb32fc* dst, Orb32s n) {
  using Complex = std::complex<float>;
  const Oscillator oscillator = MakeOscillator();
  auto* ones = reinterpret_cast<Complex*>(c.Array<Orb32fc>(n, [](Orb32s) { return Orb32fc{kMagnitude, 0}; }));
  c.Peer("liquid-dsp", [=] {
    nco_crcf_mix_block_up(oscillator.get(), ones, reinterpret_cast<Complex*>(dst), static_cast<unsigned>(n));
  });
}

// ---- The comparisons: a telephone frame of 20 ms, a block in the first-level cache, and beyond the caches
// ----

constexpr std::initializer_list<Orb32s> kSizes = {160, 4096, 1 << 20};

template <class Sample, class Magnitude, class Real, class Peers>
void CompareTones(const char* name, OrbStatus (*ours)(Sample*, Orb32s, Magnitude, Real, Real*, OrbAlgHint),
                  Peers peers) {
  for (OrbAlgHint hint : {HintFast, HintAccurate}) {
    const std::string title = std::string(name) + (hint == HintFast ? " fast" : " accurate");
    CompareAtSizes(title, {0, sizeof(Sample)}, kSizes, [=](Comparison& c, Orb32s n) {
      Sample* dst = c.Array<Sample>(n);
      Real* phase = c.Array<Real>(1);
      c.Ours([=] { ours(dst, n, static_cast<Magnitude>(kMagnitude), Real(kFrequency), phase, hint); });
      peers(c, dst, n);
    });
  }
}

// The formula, sample by sample, as a program would write it: the phase kept in turns.
template <class Sample, class Magnitude, class Real>
void CompareTriangles(const char* name, OrbStatus (*ours)(Sample*, Orb32s, Magnitude, Real, Real, Real*)) {
  CompareAtSizes(name, {0, sizeof(Sample)}, kSizes, [=](Comparison& c, Orb32s n) {
    Sample* dst = c.Array<Sample>(n);
    Real* phase = c.Array<Real>(1);
    c.Ours([=] { ours(dst, n, static_cast<Magnitude>(kMagnitude), Real(kFrequency), Real(0.5), phase); });
    c.Peer("loop", [=] {
      const double bottom = 0.5 + 0.5 / 6.283185307179586;
      double turns = 0;
      for (Orb32s i = 0; i < n; ++i) {
        const double y = turns < bottom ? 1 - 2 * turns / bottom : 2 * (turns - bottom) / (1 - bottom) - 1;
        dst[i] = static_cast<Sample>(static_cast<double>(kMagnitude) * y);
        turns += static_cast<double>(kFrequency);
        if (turns >= 1) turns -= 1;
      }
    });
  });
}

void Declare() {
  CompareTones("Tone_Direct_16s", legacy90orbsTone_Direct_16s, [](Comparison& c, Orb16s* dst, Orb32s n) {
    CompareWithDds(c, dst, n);
    CompareWithOscillator(
        c, [dst](Orb32s i, float y) { dst[i] = static_cast<Orb16s>(kMagnitude * y); }, n);
  });
  CompareTones("Tone_Direct_32f", legacy90orbsTone_Direct_32f, [](Comparison& c, Orb32f* dst, Orb32s n) {
    CompareWithDds(c, dst, n);
    CompareWithOscillator(
        c, [dst](Orb32s i, float y) { dst[i] = kMagnitude * y; }, n);
  });
  CompareTones("Tone_Direct_64f", legacy90orbsTone_Direct_64f, [](Comparison& c, Orb64f* dst, Orb32s n) {
    CompareWithOscillator(
        c, [dst](Orb32s i, float y) { dst[i] = static_cast<Orb64f>(kMagnitude * y); }, n);
  });
  CompareTones("Tone_Direct_16sc", legacy90orbsTone_Direct_16sc,
               [](Comparison& c, Orb16sc* dst, Orb32s n) { CompareWithDds(c, dst, n); });
  CompareTones("Tone_Direct_32fc", legacy90orbsTone_Direct_32fc, [](Comparison& c, Orb32fc* dst, Orb32s n) {
    CompareWithDds(c, dst, n);
    CompareWithMixing(c, dst, n);
  });
  CompareAtSizes("ToneQ15_Direct_16s", {0, 2}, kSizes, [](Comparison& c, Orb32s n) {
    auto* dst = c.Array<Orb16s>(n);
    c.Ours([=] { legacy90orbsToneQ15_Direct_16s(dst, n, 20000, 1216, 0); });
    CompareWithDds(c, dst, n);
  });
  CompareTriangles("Triangle_Direct_16s", legacy90orbsTriangle_Direct_16s);
  CompareTriangles("Triangle_Direct_32f", legacy90orbsTriangle_Direct_32f);
  CompareTriangles("Triangle_Direct_64f", legacy90orbsTriangle_Direct_64f);
}

const Family family(kEveryVariant, Declare);

}  // namespace
}  // namespace orbs::bench
