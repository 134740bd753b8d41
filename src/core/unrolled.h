// Loops over a count known at compile time that become straight code whatever the compiler thinks of them.
#ifndef ORBS_CORE_UNROLLED_H
#define ORBS_CORE_UNROLLED_H

#include <type_traits>
#include <utility>

#include "core/variant.h"

namespace orbs::ORBS_VARIANT {

// body(0), body(1), ... body(count - 1) with each argument a constant: an array that is indexed by them, or
// by what is computed from them, can live in registers. ORBS_UNROLL suffices where the index is used as it
// is.
template <class Body, int... i>
ORBS_INLINE void UnrolledOver([[maybe_unused]] Body body, std::integer_sequence<int, i...>) {
  (body(std::integral_constant<int, i>{}), ...);
}
template <int count, class Body>
ORBS_INLINE void Unrolled(Body body) {
  UnrolledOver(body, std::make_integer_sequence<int, count>{});
}

}  // namespace orbs::ORBS_VARIANT

#endif
