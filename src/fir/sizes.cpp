// The proof that the blocks of FIR states fit the sizes that their queries report, wherever the caller's
// memory starts. It takes place in the compiler; nothing here becomes code.
#include "fir/sizes.h"

#include "core/size_grid.h"
#include "fir/integer/state.h"
#include "fir/layout.h"

namespace orbs::ORBS_VARIANT::fir {
namespace {

// With a path the bytes of its plan come to both sides, so a made-up plan will do; its sizes are odd, since
// nothing behind it counts on more.
constexpr FirFftSizes MadeUpFft(Orb32s n) {
  const Orb32s order = FirFftOrder(n);
  return order <= 29 ? FirFftSizes{order, Orb32s{1} << order, 89, 7, 1} : FirFftSizes{};
}

constexpr int64_t Slack(int64_t reported, const BlockLayout& block, uintptr_t alignment) {
  return reported - block.Bytes() - static_cast<int64_t>(alignment - 1);
}

template <class Tap>
constexpr bool FloatStatesFit() {
  const auto slack = [](Orb32s n, const FirFftSizes& fft) {
    return Slack(FirStateBytes<Tap>(n, fft), DescribeFir<Tap>(n, fft).block, kFirAlignment<Tap>);
  };
  return LeastOnSizeGrid([=](Orb32s n) { return slack(n, {}); }) >= 0 &&
         LeastOnSizeGrid([=](Orb32s n) { return slack(n, MadeUpFft(n)); }) >= 0;
}
static_assert(FloatStatesFit<Orb32f>());
static_assert(FloatStatesFit<Orb32fc>());
static_assert(FloatStatesFit<Orb64f>());
static_assert(FloatStatesFit<Orb64fc>());

constexpr int64_t Slack_32s(Orb32s n) {
  return Slack(FirBytes_32s(n), DescribeFir<Orb64f>(n, {}).block, kFirAlignment_32s);
}
static_assert(LeastOnSizeGrid(Slack_32s) >= 0);

template <class Kind>
constexpr int64_t IntegerSlack(Orb32s n) {
  BlockLayout block(0, 1);
  DescribeFirInt<Kind>(n, &block);
  return Slack(FirIntStateBytes<Kind>(n), block, kFirIntAlignment);
}
static_assert(LeastOnSizeGrid(IntegerSlack<Fir16s>) >= 0);
static_assert(LeastOnSizeGrid(IntegerSlack<Fir32s_16s>) >= 0);
static_assert(LeastOnSizeGrid(IntegerSlack<Fir32sc_16sc>) >= 0);

}  // namespace
}  // namespace orbs::ORBS_VARIANT::fir
