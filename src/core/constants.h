// The circle's constants.
#ifndef ORBS_CORE_CONSTANTS_H
#define ORBS_CORE_CONSTANTS_H

#include "core/variant.h"
#include "orbs90lgc/types.h"

namespace orbs::ORBS_VARIANT {

inline constexpr long double kExtendedPi = 3.14159265358979323846264338327950288L;
inline constexpr Orb64f kPi = 3.141592653589793;
inline constexpr Orb64f kTwoPi = 6.283185307179586;

}  // namespace orbs::ORBS_VARIANT

#endif
