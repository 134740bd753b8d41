// What a programmer without a library writes: plain loops, which the compiler vectorises. They are compiled
// with the instructions of the measured variant, as the peer "loop", and with all that the building machine
// has, which may be more than any variant uses, as the peer "loop native".
//
// They promise less than the library: no checks, no limit to finite values in the conversion to binary32, no
// rule for a division by 0.
#ifndef ORBS_BENCH_TOOLKIT_LOOPS_H
#define ORBS_BENCH_TOOLKIT_LOOPS_H

#include "core/variant.h"
#include "orbs90lgc/types.h"

namespace orbs::bench::loops {

namespace native {
#include "bench/toolkit/loops_declare.inc"
}
namespace ORBS_VARIANT {
#include "bench/toolkit/loops_declare.inc"
}

}  // namespace orbs::bench::loops

// Adds both to a comparison: ORBS_PEER_LOOPS(c, Add(src, sum, n)).
#define ORBS_PEER_LOOPS(comparison, call)                                     \
  comparison.Peer("loop", [=] { ::orbs::bench::loops::ORBS_VARIANT::call; }); \
  comparison.Peer("loop native", [=] { ::orbs::bench::loops::native::call; })

#endif
