// What differs between the variants of the generators.
#ifndef ORBS_GEN_TUNING_H
#define ORBS_GEN_TUNING_H

#include "core/variant.h"

namespace orbs::ORBS_VARIANT::gen {

// 16-bit random numbers are converted in pairs, and the variants of the younger processors truncate one that
// is alone at the end.
inline constexpr bool kTruncatesLastOdd = kVariant >= Variant::s8;

}  // namespace orbs::ORBS_VARIANT::gen

#endif
