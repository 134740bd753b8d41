// Compiled twice, each time in a namespace of its own, ORBS_LOOPS.
#include "bench/gen/companding_peers.h"

#include <stdint.h>

// Without an order of its own: g711.h uses the two before it.
// clang-format off
#include <spandsp/telephony.h>
#include <spandsp/bit_operations.h>
#include <spandsp/g711.h>
// clang-format on

namespace orbs::bench::ORBS_LOOPS {
namespace {

Orb32f ToFloat(Orb16s x) { return static_cast<Orb32f>(x) * (1.0f / 32768); }
Orb16s ToSample(Orb32f x) {
  const Orb32f y = x * 32768;
  return static_cast<Orb16s>(__builtin_rintf(y > 32767 ? 32767 : y < -32768 ? -32768 : y));
}

template <Law kLaw>
void Compand(Orb8u code, Orb16s* sample) {
  *sample = kLaw == Law::kALaw ? alaw_to_linear(code) : ulaw_to_linear(code);
}
template <Law kLaw>
void Compand(Orb8u code, Orb32f* sample) {
  Orb16s x;
  Compand<kLaw>(code, &x);
  *sample = ToFloat(x);
}
template <Law kLaw>
void Compand(Orb8u code, Orb8u* other) {
  *other = kLaw == Law::kALaw ? alaw_to_ulaw(code) : ulaw_to_alaw(code);
}
template <Law kLaw>
void Compand(Orb16s sample, Orb8u* code) {
  *code = kLaw == Law::kALaw ? linear_to_alaw(sample) : linear_to_ulaw(sample);
}
template <Law kLaw>
void Compand(Orb32f sample, Orb8u* code) {
  Compand<kLaw>(ToSample(sample), code);
}

template <Law kLaw>
struct Tables {
  Orb16s samples[256];
  Orb32f floats[256];
  Orb8u otherCodes[256];
  Orb8u codes[65536];  // by the sample's 16 bits

  Tables() {
    for (int i = 0; i < 256; ++i) {
      const auto code = static_cast<Orb8u>(i);
      Compand<kLaw>(code, &samples[i]);
      Compand<kLaw>(code, &floats[i]);
      Compand<kLaw>(code, &otherCodes[i]);
    }
    for (int i = 0; i < 65536; ++i) Compand<kLaw>(static_cast<Orb16s>(i), &codes[i]);
  }
};

template <Law kLaw>
const Tables<kLaw> kTables;

template <Law kLaw>
void LookUp(Orb8u code, Orb16s* sample) {
  *sample = kTables<kLaw>.samples[code];
}
template <Law kLaw>
void LookUp(Orb8u code, Orb32f* sample) {
  *sample = kTables<kLaw>.floats[code];
}
template <Law kLaw>
void LookUp(Orb8u code, Orb8u* other) {
  *other = kTables<kLaw>.otherCodes[code];
}
template <Law kLaw>
void LookUp(Orb16s sample, Orb8u* code) {
  *code = kTables<kLaw>.codes[static_cast<Orb16u>(sample)];
}
template <Law kLaw>
void LookUp(Orb32f sample, Orb8u* code) {
  LookUp<kLaw>(ToSample(sample), code);
}

}  // namespace

template <Law kLaw, class Source, class Result>
void SpandspLoop(const Source* src, Result* dst, Orb32s n) {
  for (Orb32s i = 0; i < n; ++i) Compand<kLaw>(src[i], dst + i);
}

template <Law kLaw, class Source, class Result>
void TableLoop(const Source* src, Result* dst, Orb32s n) {
  for (Orb32s i = 0; i < n; ++i) LookUp<kLaw>(src[i], dst + i);
}

#define ORBS_INSTANTIATE(loop, law)                            \
  template void loop<Law::law>(const Orb8u*, Orb16s*, Orb32s); \
  template void loop<Law::law>(const Orb8u*, Orb32f*, Orb32s); \
  template void loop<Law::law>(const Orb8u*, Orb8u*, Orb32s);  \
  template void loop<Law::law>(const Orb16s*, Orb8u*, Orb32s); \
  template void loop<Law::law>(const Orb32f*, Orb8u*, Orb32s);
ORBS_INSTANTIATE(SpandspLoop, kALaw)
ORBS_INSTANTIATE(SpandspLoop, kMuLaw)
ORBS_INSTANTIATE(TableLoop, kALaw)
ORBS_INSTANTIATE(TableLoop, kMuLaw)

}  // namespace orbs::bench::ORBS_LOOPS
