// Over which counts the proofs go that blocks fit the sizes that their queries report.
//
// Both sides are sums of c * n + d, each rounded up to a multiple of at most 128 bytes. So the slack is a
// straight line plus a function of n whose period is at most 128: the first 200 counts show all of that with
// the offset of the line, the powers of two show its slope.
#ifndef ORBS_CORE_SIZE_GRID_H
#define ORBS_CORE_SIZE_GRID_H

#include "core/variant.h"
#include "orbs90lgc/types.h"

namespace orbs::ORBS_VARIANT {

// The least of slack(n), for n from 1 up to where no block fits 31 bits any more.
template <class Slack>
constexpr int64_t LeastOnSizeGrid(Slack slack) {
  int64_t least = slack(1);
  const auto look = [&](Orb32s n) {
    const int64_t found = slack(n);
    if (found < least) least = found;
  };
  for (Orb32s n = 2; n <= 200; ++n) look(n);
  for (Orb32s power = 256; power <= 1 << 29; power *= 2) {
    for (Orb32s n = power - 1; n <= power + 1; ++n) look(n);
  }
  return least;
}

}  // namespace orbs::ORBS_VARIANT

#endif
