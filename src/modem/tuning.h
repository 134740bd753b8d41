// What differs between the variants of the receivers.
#ifndef ORBS_MODEM_TUNING_H
#define ORBS_MODEM_TUNING_H

#include "core/variant.h"

namespace orbs::ORBS_VARIANT::modem {

// The processors of h9 have dividers that keep up with an estimate and a Newton step; most of them overtake
// it.
inline constexpr bool kDivides = kVariant == Variant::h9;

}  // namespace orbs::ORBS_VARIANT::modem

#endif
