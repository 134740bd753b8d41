// Viterbi decoding of four-dimensional trellis codes, one step of the trellis.
#include "core/checks.h"
#include "modem/viterbi_points.h"
#include "modem/viterbi_states.h"

#define ORBS_SLICE "boundary/exports/modem.def"
#include "boundary/declare_exports.h"

namespace orbs::ORBS_VARIANT {
using namespace modem;

OrbStatus legacy90orbsGetVarPointDV_16sc(const Orb16sc* src, Orb16sc* base, Orb32u* variants,
                                         const Orb8u* subsetMap, Orb32s stateCount) {
  if (AnyNull(src, base, variants, subsetMap)) return StatusNullPointer;
  *base = NearestPoints(*src, variants, subsetMap, stateCount == 16).base();
  return StatusOk;
}

OrbStatus legacy90orbsBuildSymblTableDV4D_16sc(const Orb32u* variants, Orb16sc* symbolTable,
                                               Orb32s stateCount, Orb32s indexMask) {
  if (AnyNull(variants, symbolTable)) return StatusNullPointer;
  // The mask's further bits would lead out of the tables.
  if (stateCount == 16) {
    BuildSymbols16(variants, symbolTable, indexMask & 7);
  } else if (stateCount == 32) {
    BuildSymbols32(variants, symbolTable, indexMask & 15);
  } else {
    BuildSymbols64(variants, symbolTable, indexMask & 31);
  }
  return StatusOk;
}

OrbStatus legacy90orbsCalcStatesDV_16sc(const Orb16u* oldMetrics, const Orb8u* nextStates, Orb16u* newMetrics,
                                        const Orb16sc* symbolTable, Orb32u* survivors, Orb32s stateCount,
                                        Orb32s rowIndex) {
  if (AnyNull(oldMetrics, nextStates, newMetrics, symbolTable, survivors)) return StatusNullPointer;
  if (stateCount < 1) return StatusOk;
  SelectPaths({oldMetrics, nextStates, newMetrics, symbolTable, survivors + rowIndex, stateCount});
  return StatusOk;
}

OrbStatus legacy90orbsUpdatePathMetricsDV_16u(Orb16u* newMetrics, Orb16u* leastMetric, Orb8u* bestState,
                                              Orb16u* oldMetrics, Orb32s stateCount) {
  if (AnyNull(newMetrics, leastMetric, bestState, oldMetrics)) return StatusNullPointer;
  Orb16u least = kUnreached;
  Orb32s index = 0;
  if (stateCount >= 1) least = NormaliseMetrics(newMetrics, oldMetrics, stateCount, &index);
  *leastMetric = least;
  *bestState = static_cast<Orb8u>(index);
  return StatusOk;
}

}  // namespace orbs::ORBS_VARIANT
