// What differs between the variants of the IIR filters, and the sizes of the blocks that their kernels work
// on.
#ifndef ORBS_IIR_TUNING_H
#define ORBS_IIR_TUNING_H

#include "core/variant.h"
#include "orbs90lgc/types.h"
#include "simd/simd.h"

namespace orbs::ORBS_VARIANT::iir {

// Samples of a piece: two blocks of them, with the tables, stay in the first-level cache.
inline constexpr Orb32s kIirPiece = 1024;
// The largest order, or number of sections, that goes by blocks. With pieces no longer than four times that
// many samples, the first samples and the tables cost more than they yield.
inline constexpr Orb32s kMostBlockUnits = kIirPiece / 4;

// A row of the look-ahead table. For the orders 1 and 2, and so for biquads, it is in binary32 and for two
// vectors of results; for higher orders in binary64 and for four results, which is what the states of real
// filters have room for.
#if ORBS_VECTOR
inline constexpr int kShortRowParts = 2 * F32::kLanes;
#endif
inline constexpr int kRowElements = 4;
inline constexpr Orb32s kFirstLongOrder = 3;

// A section's coefficients for the one-sample step, padded to whole vectors.
inline constexpr int kSectionTableElements = 8;

}  // namespace orbs::ORBS_VARIANT::iir

#endif
