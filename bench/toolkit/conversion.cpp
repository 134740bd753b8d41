// The converting primitives of the toolkit. Compiled once per variant.
#include <volk/volk.h>

#include "bench/compare.h"
#include "bench/toolkit/loops.h"
#include "toolkit/toolkit.h"

namespace orbs::ORBS_VARIANT {
namespace {

using bench::CompareInPlaces;
using bench::Comparison;
using bench::Random;
using bench::Work;

template <class T>
T FullScale(Orb32s i) {
  return static_cast<T>(Random(i) * 0x1p31 / (int64_t{1} << (32 - 8 * sizeof(T))));
}
// Beyond the range of 16 bits at times, so that saturation has work.
Orb32f AboutFullScale(Orb32s i) { return static_cast<Orb32f>(40000 * Random(i)); }

template <class Source, class Result>
constexpr Work Converting() {
  return {sizeof(Source), sizeof(Result)};
}

template <class Source, class Result, class Ours, class Element>
void CompareConversion(const char* name, Ours ours, void (*volk)(Result*, const Source*, Orb32u),
                       Element element) {
  CompareInPlaces(name, Converting<Source, Result>(), [=](Comparison& c, Orb32s n) {
    const Source* src = c.Array<Source>(n, element);
    Result* dst = c.Array<Result>(n);
    c.Ours([=] { ours(src, dst, n); });
    if (volk != nullptr) c.Peer("VOLK", [=] { volk(dst, src, static_cast<Orb32u>(n)); });
    ORBS_PEER_LOOPS(c, Convert(src, dst, n));
  });
}

void DeclareExact() {
  CompareConversion<Orb8s, Orb32f>(
      "VecConvert_8s32f", VecConvert_8s32f,
      [](Orb32f* dst, const Orb8s* src, Orb32u n) { volk_8i_s32f_convert_32f(dst, src, 1, n); },
      FullScale<Orb8s>);
  CompareConversion<Orb16s, Orb32f>(
      "VecConvert_16s32f", VecConvert_16s32f,
      [](Orb32f* dst, const Orb16s* src, Orb32u n) { volk_16i_s32f_convert_32f(dst, src, 1, n); },
      FullScale<Orb16s>);
  CompareConversion<Orb32s, Orb32f>(
      "VecConvert_32s32f", VecConvert_32s32f,
      [](Orb32f* dst, const Orb32s* src, Orb32u n) { volk_32i_s32f_convert_32f(dst, src, 1, n); },
      FullScale<Orb32s>);
  CompareConversion<Orb32s, Orb64f>("VecConvert_32s64f", VecConvert_32s64f, nullptr, FullScale<Orb32s>);
  CompareConversion<Orb32f, Orb64f>(
      "VecConvert_32f64f", VecConvert_32f64f,
      [](Orb64f* dst, const Orb32f* src, Orb32u n) { volk_32f_convert_64f(dst, src, n); }, Random);
  CompareConversion<Orb64f, Orb32f>(
      "VecConvert_64f32f", VecConvert_64f32f,
      [](Orb32f* dst, const Orb64f* src, Orb32u n) { volk_64f_convert_32f(dst, src, n); }, Random);
}

void DeclareRounding() {
  for (const Orb32s s : {0, 3}) {
    const auto factor = static_cast<Orb32f>(1.0 / (1 << s));
    const std::string suffix = " s=" + std::to_string(s);
    CompareInPlaces(
        "VecConvert_32f16s_Sfs" + suffix, Converting<Orb32f, Orb16s>(), [s, factor](Comparison& c, Orb32s n) {
          const Orb32f* src = c.Array<Orb32f>(n, AboutFullScale);
          Orb16s* dst = c.Array<Orb16s>(n);
          c.Ours([=] { VecConvert_32f16s_Sfs(src, dst, n, RoundNear, s); });
          c.Peer("VOLK", [=] { volk_32f_s32f_convert_16i(dst, src, factor, static_cast<Orb32u>(n)); });
          ORBS_PEER_LOOPS(c, Round(src, dst, n, factor));
        });
    CompareInPlaces(
        "VecConvert_32f32s_Sfs" + suffix, Converting<Orb32f, Orb32s>(), [s, factor](Comparison& c, Orb32s n) {
          const Orb32f* src = c.Array<Orb32f>(n, AboutFullScale);
          Orb32s* dst = c.Array<Orb32s>(n);
          c.Ours([=] { VecConvert_32f32s_Sfs(src, dst, n, RoundNear, s); });
          c.Peer("VOLK", [=] { volk_32f_s32f_convert_32i(dst, src, factor, static_cast<Orb32u>(n)); });
          ORBS_PEER_LOOPS(c, Round(src, dst, n, factor));
        });
  }
  CompareInPlaces("VecConvert_64f32s_Sfs s=3", Converting<Orb64f, Orb32s>(), [](Comparison& c, Orb32s n) {
    const Orb64f* src = c.Array<Orb64f>(n, AboutFullScale);
    Orb32s* dst = c.Array<Orb32s>(n);
    c.Ours([=] { VecConvert_64f32s_Sfs(src, dst, n, RoundNear, 3); });
    ORBS_PEER_LOOPS(c, Round(src, dst, n, 0.125));
  });
}

void DeclareScalingIntegers() {
  CompareInPlaces("VecConvert_32s32f_Sfs s=3", Converting<Orb32s, Orb32f>(), [](Comparison& c, Orb32s n) {
    const Orb32s* src = c.Array<Orb32s>(n, FullScale<Orb32s>);
    Orb32f* dst = c.Array<Orb32f>(n);
    c.Ours([=] { VecConvert_32s32f_Sfs(src, dst, n, 3); });
    c.Peer("VOLK", [=] { volk_32i_s32f_convert_32f(dst, src, 8, static_cast<Orb32u>(n)); });
    ORBS_PEER_LOOPS(c, Scale(src, dst, n, 0.125f));
  });
  CompareInPlaces("VecConvert_16s64f_Sfs s=3", Converting<Orb16s, Orb64f>(), [](Comparison& c, Orb32s n) {
    const Orb16s* src = c.Array<Orb16s>(n, FullScale<Orb16s>);
    Orb64f* dst = c.Array<Orb64f>(n);
    c.Ours([=] { VecConvert_16s64f_Sfs(src, dst, n, 3); });
    ORBS_PEER_LOOPS(c, Scale(src, dst, n, 0.125));
  });
  CompareInPlaces("VecConvert_32s16s_Sfs s=15", Converting<Orb32s, Orb16s>(), [](Comparison& c, Orb32s n) {
    const Orb32s* src = c.Array<Orb32s>(n, FullScale<Orb32s>);
    Orb16s* dst = c.Array<Orb16s>(n);
    c.Ours([=] { VecConvert_32s16s_Sfs(src, dst, n, 15); });
    ORBS_PEER_LOOPS(c, ShiftRight(src, dst, n, 15));
  });
  CompareInPlaces("VecShiftL_16s32s", Converting<Orb16s, Orb32s>(), [](Comparison& c, Orb32s n) {
    const Orb16s* src = c.Array<Orb16s>(n, FullScale<Orb16s>);
    Orb32s* dst = c.Array<Orb32s>(n);
    c.Ours([=] { VecShiftL_16s32s(src, dst, n, 15); });
    ORBS_PEER_LOOPS(c, ShiftLeft(src, dst, n, 15));
  });
}

const bench::Family exact(ORBS_VARIANT_INDEX, DeclareExact);
const bench::Family rounding(ORBS_VARIANT_INDEX, DeclareRounding);
const bench::Family scalingIntegers(ORBS_VARIANT_INDEX, DeclareScalingIntegers);

}  // namespace
}  // namespace orbs::ORBS_VARIANT
