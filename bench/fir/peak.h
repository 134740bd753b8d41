// The multiply-add peak of the measured variant: the same number of multiply-adds as a filter makes, with
// nothing to load or store. What a kernel reaches of it is how busy it keeps the arithmetic units.
#ifndef ORBS_BENCH_FIR_PEAK_H
#define ORBS_BENCH_FIR_PEAK_H

#include "core/variant.h"
#include "orbs90lgc/types.h"

namespace orbs::ORBS_VARIANT {

// Two factors stand in result; the third element takes what is left of the sums, so that they are needed.
void MultiplyAddPeak(double multiplyAdds, Orb32f* result);
void MultiplyAddPeak(double multiplyAdds, Orb64f* result);
void MultiplyAddPeak(double multiplyAdds, Orb16s* result);

}  // namespace orbs::ORBS_VARIANT

#endif
