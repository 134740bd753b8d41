// Companding: the ten functions, called through the shared library.
#include "bench/compare.h"
#include "bench/gen/companding_peers.h"
#include "orbs90lgc.h"

namespace orbs::bench {
namespace {

template <class T>
T Element(Orb32s i);
template <>
Orb8u Element<Orb8u>(Orb32s i) {
  return static_cast<Orb8u>(static_cast<int>(128 + 128 * Random(i)));
}
// Half of the samples below an eighth of full scale, as in speech the small values are more frequent.
template <>
Orb32f Element<Orb32f>(Orb32s i) {
  const double x = Random(i);
  return static_cast<Orb32f>(x * x * x);
}
template <>
Orb16s Element<Orb16s>(Orb32s i) {
  return static_cast<Orb16s>(32767 * Element<Orb32f>(i));
}

// A telephone frame of 20 ms, a block in the first-level cache, and two minutes of speech.
template <Law kLaw, class Source, class Result>
void CompareCompanding(const char* name, OrbStatus (*ours)(const Source*, Result*, Orb32s)) {
  CompareAtSizes(name, {sizeof(Source), sizeof(Result)}, {160, 4096, 1 << 20}, [=](Comparison& c, Orb32s n) {
    const Source* src = c.Array<Source>(n, Element<Source>);
    Result* dst = c.Array<Result>(n);
    c.Ours([=] { ours(src, dst, n); });
    c.Peer("spandsp", [=] { baseline::SpandspLoop<kLaw>(src, dst, n); });
    c.Peer("table", [=] { baseline::TableLoop<kLaw>(src, dst, n); });
    c.Peer("spandsp native", [=] { native::SpandspLoop<kLaw>(src, dst, n); });
    c.Peer("table native", [=] { native::TableLoop<kLaw>(src, dst, n); });
  });
}

void Declare() {
  constexpr Law kA = Law::kALaw;
  constexpr Law kMu = Law::kMuLaw;
  CompareCompanding<kA>("ALawToLin_8u16s", legacy90orbsALawToLin_8u16s);
  CompareCompanding<kA>("ALawToLin_8u32f", legacy90orbsALawToLin_8u32f);
  CompareCompanding<kMu>("MuLawToLin_8u16s", legacy90orbsMuLawToLin_8u16s);
  CompareCompanding<kMu>("MuLawToLin_8u32f", legacy90orbsMuLawToLin_8u32f);
  CompareCompanding<kA>("ALawToMuLaw_8u", legacy90orbsALawToMuLaw_8u);
  CompareCompanding<kMu>("MuLawToALaw_8u", legacy90orbsMuLawToALaw_8u);
  CompareCompanding<kA>("LinToALaw_16s8u", legacy90orbsLinToALaw_16s8u);
  CompareCompanding<kA>("LinToALaw_32f8u", legacy90orbsLinToALaw_32f8u);
  CompareCompanding<kMu>("LinToMuLaw_16s8u", legacy90orbsLinToMuLaw_16s8u);
  CompareCompanding<kMu>("LinToMuLaw_32f8u", legacy90orbsLinToMuLaw_32f8u);
}

const Family family(kEveryVariant, Declare);

}  // namespace
}  // namespace orbs::bench
