// Fills and copies of the toolkit. Compiled once per variant.
#include <cstring>

#include "bench/compare.h"
#include "bench/toolkit/loops.h"
#include "toolkit/toolkit.h"

namespace orbs::ORBS_VARIANT {
namespace {

using bench::CompareInPlaces;
using bench::Comparison;

void Declare() {
  CompareInPlaces("VecZero_8u", {0, 1}, [](Comparison& c, Orb32s n) {
    Orb8u* dst = c.Array<Orb8u>(n);
    c.Ours([=] { VecZero_8u(dst, n); });
    c.Peer("memset", [=] { std::memset(dst, 0, static_cast<size_t>(n)); });
  });
  CompareInPlaces("VecSet_8u", {0, 1}, [](Comparison& c, Orb32s n) {
    Orb8u* dst = c.Array<Orb8u>(n);
    c.Ours([=] { VecSet_8u(0xD5, dst, n); });
    c.Peer("memset", [=] { std::memset(dst, 0xD5, static_cast<size_t>(n)); });
  });
  CompareInPlaces("VecSet_32s", {0, 4}, [](Comparison& c, Orb32s n) {
    Orb32s* dst = c.Array<Orb32s>(n);
    c.Ours([=] { VecSet_32s(0x12345678, dst, n); });
    ORBS_PEER_LOOPS(c, Fill(0x12345678, dst, n));
    // Another pattern, but the same bytes.
    c.Peer("memset", [=] { std::memset(dst, 0xD5, static_cast<size_t>(n) * sizeof *dst); });
  });
  CompareInPlaces("VecCopy_32s", {4, 4}, [](Comparison& c, Orb32s n) {
    const Orb32s* src = c.Array<Orb32s>(n);
    Orb32s* dst = c.Array<Orb32s>(n);
    c.Ours([=] { VecCopy_32s(src, dst, n); });
    c.Peer("memcpy", [=] { std::memcpy(dst, src, static_cast<size_t>(n) * sizeof *dst); });
  });
}

const bench::Family family(ORBS_VARIANT_INDEX, Declare);

}  // namespace
}  // namespace orbs::ORBS_VARIANT
