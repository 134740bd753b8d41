// The seven variants, in the order of their entries in a dispatch table.
#ifndef ORBS_CORE_VARIANTS_H
#define ORBS_CORE_VARIANTS_H

namespace orbs {

enum class Variant { px, w7, v8, s8, p8, g9, h9 };

inline constexpr int kVariantCount = 7;

}  // namespace orbs

#endif
