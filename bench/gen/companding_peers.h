// The peers of companding: one sample at a time, for the level that every processor has, as distributed
// programs are compiled, and for all that the building machine has, where the compiler vectorises some.
#ifndef ORBS_BENCH_GEN_COMPANDING_PEERS_H
#define ORBS_BENCH_GEN_COMPANDING_PEERS_H

#include "orbs90lgc/types.h"

namespace orbs::bench {

enum class Law { kALaw, kMuLaw };

namespace baseline {
#include "bench/gen/companding_peers_declare.inc"
}
namespace native {
#include "bench/gen/companding_peers_declare.inc"
}

}  // namespace orbs::bench

#endif
