// Which variant this translation unit is compiled for, and the numeric policy that follows from it.
//
// The build compiles every family source seven times, each time with ORBS_VARIANT (the namespace) and
// ORBS_VARIANT_INDEX (its place in the dispatch tables) defined. Code of a variant lives in `namespace
// orbs::ORBS_VARIANT`, headers included: an inline function outside it would be one weak symbol, compiled for
// several instruction sets, and the linker could hand the AVX copy to `px`.
#ifndef ORBS_CORE_VARIANT_H
#define ORBS_CORE_VARIANT_H

#if !defined(ORBS_VARIANT) || !defined(ORBS_VARIANT_INDEX)
#error "compile this file as part of a variant"
#endif

#include <type_traits>

#include "core/variants.h"

// Vector kernels exist in every variant but px.
#define ORBS_VECTOR (ORBS_VARIANT_INDEX != 0)

// In front of a loop over the parts of a butterfly or a tile, which must become straight code to live in
// registers.
#define ORBS_UNROLL _Pragma("GCC unroll 16")

#define ORBS_INLINE inline __attribute__((always_inline))
// The same for a closure, behind its parameters.
#define ORBS_INLINE_CLOSURE __attribute__((always_inline))

namespace orbs::ORBS_VARIANT {

inline constexpr Variant kVariant = static_cast<Variant>(ORBS_VARIANT_INDEX);
inline constexpr bool kIsPx = kVariant == Variant::px;

// The type in which a floating-point expression is evaluated: extended precision in px, the kernel's own type
// elsewhere.
template <class T>
using Wide = std::conditional_t<kIsPx, long double, T>;

}  // namespace orbs::ORBS_VARIANT

#endif
