// What dispatch costs: a call of one sample through the shared library's stub, beside the same call made
// directly to the variant's function. Compiled once per variant.
#include "bench/compare.h"
#define ORBS_SLICE "boundary/exports/gen.def"
#include "boundary/declare_exports.h"
#include "orbs90lgc.h"

namespace orbs::ORBS_VARIANT {
namespace {

void Declare() {
  bench::CompareAtSizes("stub: ALawToLin_8u16s", {1, 2}, {1}, [](bench::Comparison& c, Orb32s n) {
    const Orb8u* src = c.Array<Orb8u>(n);
    Orb16s* dst = c.Array<Orb16s>(n);
    c.Ours([=] { ::legacy90orbsALawToLin_8u16s(src, dst, n); });
    c.Peer("direct call", [=] { ORBS_VARIANT::legacy90orbsALawToLin_8u16s(src, dst, n); });
  });
}

const bench::Family family(ORBS_VARIANT_INDEX, Declare);

}  // namespace
}  // namespace orbs::ORBS_VARIANT
