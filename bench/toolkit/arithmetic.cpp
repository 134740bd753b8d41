// The computing primitives of the toolkit. Compiled once per variant.
#include <volk/volk.h>

#include "bench/compare.h"
#include "bench/toolkit/loops.h"
#include "toolkit/toolkit.h"

namespace orbs::ORBS_VARIANT {
namespace {

using bench::CompareInPlaces;
using bench::Comparison;
using bench::OnUnitCircle;
using bench::Random;

Orb64fc OnUnitCircle64(Orb32s i) {
  const Orb32fc z = OnUnitCircle(i);
  return {z.re, z.im};
}
double Positive(Orb32s i) { return 1.5 + Random(i); }
Orb16s Sample(Orb32s i) { return static_cast<Orb16s>(32767 * Random(i)); }

// VOLK's complex type is C's own; the layout is the same.
lv_32fc_t* Volk(Orb32fc* p) { return reinterpret_cast<lv_32fc_t*>(p); }
const lv_32fc_t* Volk(const Orb32fc* p) { return reinterpret_cast<const lv_32fc_t*>(p); }

void DeclareComplex() {
  CompareInPlaces("VecMul_32fc", {16, 8}, [](Comparison& c, Orb32s n) {
    const Orb32fc* a = c.Array<Orb32fc>(n, OnUnitCircle);
    const Orb32fc* b = c.Array<Orb32fc>(n, OnUnitCircle);
    Orb32fc* dst = c.Array<Orb32fc>(n);
    c.Ours([=] { VecMul_32fc(a, b, dst, n); });
    c.Peer("VOLK", [=] { volk_32fc_x2_multiply_32fc(Volk(dst), Volk(a), Volk(b), static_cast<Orb32u>(n)); });
    ORBS_PEER_LOOPS(c, Multiply(a, b, dst, n));
  });
  // Factors of magnitude 1 keep the product from growing over the calls.
  CompareInPlaces("VecMul_32fc_I", {16, 8}, [](Comparison& c, Orb32s n) {
    const Orb32fc* src = c.Array<Orb32fc>(n, OnUnitCircle);
    Orb32fc* x = c.Array<Orb32fc>(n, OnUnitCircle);
    c.Ours([=] { VecMul_32fc_I(src, x, n); });
    c.Peer("VOLK", [=] { volk_32fc_x2_multiply_32fc(Volk(x), Volk(src), Volk(x), static_cast<Orb32u>(n)); });
    ORBS_PEER_LOOPS(c, Multiply(src, x, x, n));
  });
  CompareInPlaces("VecMul_64fc", {32, 16}, [](Comparison& c, Orb32s n) {
    const Orb64fc* a = c.Array<Orb64fc>(n, OnUnitCircle64);
    const Orb64fc* b = c.Array<Orb64fc>(n, OnUnitCircle64);
    Orb64fc* dst = c.Array<Orb64fc>(n);
    c.Ours([=] { VecMul_64fc(a, b, dst, n); });
    ORBS_PEER_LOOPS(c, Multiply(a, b, dst, n));
  });
  CompareInPlaces("VecConj_32fc", {8, 8}, [](Comparison& c, Orb32s n) {
    const Orb32fc* src = c.Array<Orb32fc>(n, OnUnitCircle);
    Orb32fc* dst = c.Array<Orb32fc>(n);
    c.Ours([=] { VecConj_32fc(src, dst, n); });
    c.Peer("VOLK", [=] { volk_32fc_conjugate_32fc(Volk(dst), Volk(src), static_cast<Orb32u>(n)); });
    ORBS_PEER_LOOPS(c, Conjugate(src, dst, n));
  });
}

void DeclareReal() {
  CompareInPlaces("VecAdd_32f_I", {8, 4}, [](Comparison& c, Orb32s n) {
    const Orb32f* src = c.Array<Orb32f>(n, Random);
    Orb32f* sum = c.Array<Orb32f>(n, Random);
    c.Ours([=] { VecAdd_32f_I(src, sum, n); });
    c.Peer("VOLK", [=] { volk_32f_x2_add_32f(sum, sum, src, static_cast<Orb32u>(n)); });
    ORBS_PEER_LOOPS(c, Add(src, sum, n));
  });
  // The constant -1 leaves the magnitudes as they are over the calls.
  CompareInPlaces("VecMulC_32f_I", {4, 4}, [](Comparison& c, Orb32s n) {
    Orb32f* x = c.Array<Orb32f>(n, Random);
    c.Ours([=] { VecMulC_32f_I(-1, x, n); });
    c.Peer("VOLK", [=] { volk_32f_s32f_multiply_32f(x, x, -1, static_cast<Orb32u>(n)); });
    ORBS_PEER_LOOPS(c, MultiplyBy(-1, x, n));
  });
  CompareInPlaces("VecDiv_32f", {8, 4}, [](Comparison& c, Orb32s n) {
    const Orb32f* divisor = c.Array<Orb32f>(n, Positive);
    const Orb32f* dividend = c.Array<Orb32f>(n, Random);
    Orb32f* dst = c.Array<Orb32f>(n);
    c.Ours([=] { VecDiv_32f(divisor, dividend, dst, n); });
    c.Peer("VOLK", [=] { volk_32f_x2_divide_32f(dst, dividend, divisor, static_cast<Orb32u>(n)); });
    ORBS_PEER_LOOPS(c, Divide(divisor, dividend, dst, n));
  });
  CompareInPlaces("VecDiv_64f", {16, 8}, [](Comparison& c, Orb32s n) {
    const Orb64f* divisor = c.Array<Orb64f>(n, Positive);
    const Orb64f* dividend = c.Array<Orb64f>(n, Random);
    Orb64f* dst = c.Array<Orb64f>(n);
    c.Ours([=] { VecDiv_64f(divisor, dividend, dst, n); });
    ORBS_PEER_LOOPS(c, Divide(divisor, dividend, dst, n));
  });
}

void DeclareOrderAndSums() {
  CompareInPlaces("VecFlip_32f", {4, 4}, [](Comparison& c, Orb32s n) {
    const Orb32f* src = c.Array<Orb32f>(n, Random);
    Orb32f* dst = c.Array<Orb32f>(n);
    c.Ours([=] { VecFlip_32f(src, dst, n); });
    ORBS_PEER_LOOPS(c, Reverse(src, dst, n));
  });
  CompareInPlaces("VecFlip_32f_I", {4, 4}, [](Comparison& c, Orb32s n) {
    Orb32f* x = c.Array<Orb32f>(n, Random);
    c.Ours([=] { VecFlip_32f_I(x, n); });
    ORBS_PEER_LOOPS(c, ReverseInPlace(x, n));
  });
  CompareInPlaces("VecDot_16s64s", {4, 0}, [](Comparison& c, Orb32s n) {
    const Orb16s* a = c.Array<Orb16s>(n, Sample);
    const Orb16s* b = c.Array<Orb16s>(n, Sample);
    Orb64s* dot = c.Array<Orb64s>(1);
    c.Ours([=] { VecDot_16s64s(a, b, n, dot); });
    c.Peer("loop", [=] { *dot = bench::loops::ORBS_VARIANT::Dot(a, b, n); });
    c.Peer("loop native", [=] { *dot = bench::loops::native::Dot(a, b, n); });
  });
}

void DeclareElementary() {
  // Logarithm in place: each call of each side starts from a fresh copy.
  CompareInPlaces("VecLn_32f_I", {4, 4}, [](Comparison& c, Orb32s n) {
    const Orb32f* src = c.Array<Orb32f>(n, Positive);
    Orb32f* x = c.Array<Orb32f>(n);
    const auto refill = [=] { VecCopy_32s(src, x, n); };
    c.Ours([=] {
      refill();
      VecLn_32f_I(x, n);
    });
    c.Peer("VOLK log2", [=] {
      refill();
      volk_32f_log2_32f(x, x, static_cast<Orb32u>(n));
    });
    c.Peer("loop of logf", [=] {
      refill();
      bench::loops::ORBS_VARIANT::Ln(x, x, n);
    });
  });
  CompareInPlaces("VecExp_64f", {8, 8}, [](Comparison& c, Orb32s n) {
    const Orb64f* src = c.Array<Orb64f>(n, [](Orb32s i) { return 20 * Random(i); });
    Orb64f* dst = c.Array<Orb64f>(n);
    c.Ours([=] { VecExp_64f(src, dst, n); });
    c.Peer("loop of exp", [=] { bench::loops::ORBS_VARIANT::Exp(src, dst, n); });
  });
}

const bench::Family complexNumbers(ORBS_VARIANT_INDEX, DeclareComplex);
const bench::Family realNumbers(ORBS_VARIANT_INDEX, DeclareReal);
const bench::Family orderAndSums(ORBS_VARIANT_INDEX, DeclareOrderAndSums);
const bench::Family elementary(ORBS_VARIANT_INDEX, DeclareElementary);

}  // namespace
}  // namespace orbs::ORBS_VARIANT
