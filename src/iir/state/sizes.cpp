// The proof that the blocks of IIR states fit the sizes that their queries report, wherever the caller's
// memory starts. It takes place in the compiler; nothing here becomes code.
#include "iir/state/sizes.h"

#include "core/size_grid.h"
#include "iir/state/layout.h"

namespace orbs::ORBS_VARIANT::iir {
namespace {

// The direct forms allocate the size less kIirAlignment. That is one byte more than aligning the caller's
// memory may cost, so it proves both. The tightest blocks are those of px, complex cascades apart: they fill
// what the direct forms allocate, for every count, and leave a caller's memory a single byte at its worst
// address.
template <class Kind>
constexpr int64_t Slack(Orb32s units) {
  return IirStateBytes<Kind>(units) - DescribeIir<Kind>(units).block.Bytes() -
         static_cast<int64_t>(kIirAlignment);
}
static_assert(LeastOnSizeGrid(Slack<ArbitraryOrderOf<RealNumbers>>) >= 0);
static_assert(LeastOnSizeGrid(Slack<CascadeOf<RealNumbers>>) >= 0);
static_assert(LeastOnSizeGrid(Slack<ArbitraryOrderOf<ComplexNumbers>>) >= 0);
static_assert(LeastOnSizeGrid(Slack<CascadeOf<ComplexNumbers>>) >= 0);

}  // namespace
}  // namespace orbs::ORBS_VARIANT::iir
