// The argument checks: four fixed shapes, one line in each function. Each gives the first failure's status,
// or StatusOk.
#ifndef ORBS_CORE_CHECKS_H
#define ORBS_CORE_CHECKS_H

#include <cstring>

#include "core/variant.h"
#include "orbs90lgc/status.h"
#include "orbs90lgc/types.h"

namespace orbs::ORBS_VARIANT {

template <class... Pointers>
ORBS_INLINE bool AnyNull(const Pointers*... pointers) {
  return ((pointers == nullptr) || ...);
}

// By a copy, since some records stand in the caller's memory at any address.
ORBS_INLINE bool HasIdentity(const void* record, Orb32s identity) {
  Orb32s found;
  std::memcpy(&found, record, sizeof found);
  return found == identity;
}

// A stateless function, first part: all data pointers, then the count. Its own parameters follow in argument
// order.
template <class... Data>
ORBS_INLINE OrbStatus CheckArrays(Orb32s len, const Data*... data) {
  if (AnyNull(data...)) return StatusNullPointer;
  if (len < 1) return StatusSize;
  return StatusOk;
}

// A transform with a plan: the plan, its identity, the data pointers. Counts and the rest follow.
template <class... Data>
ORBS_INLINE OrbStatus CheckPlan(const void* plan, Orb32s identity, const Data*... data) {
  if (plan == nullptr) return StatusNullPointer;
  if (!HasIdentity(plan, identity)) return StatusContextMismatch;
  if (AnyNull(data...)) return StatusNullPointer;
  return StatusOk;
}

// A filter with a state: the state and all data pointers in one test, the count, the identity.
template <class... Data>
ORBS_INLINE OrbStatus CheckState(const void* state, Orb32s identity, Orb32s len, const Data*... data) {
  if (state == nullptr || AnyNull(data...)) return StatusNullPointer;
  if (len < 1) return StatusSize;
  if (!HasIdentity(state, identity)) return StatusContextMismatch;
  return StatusOk;
}

// A one-sample form or an accessor of a state: no count.
template <class... Data>
ORBS_INLINE OrbStatus CheckStateOnly(const void* state, Orb32s identity, const Data*... data) {
  return CheckState(state, identity, 1, data...);
}

// A size query: the result pointers. The parameters follow.
template <class... Results>
ORBS_INLINE OrbStatus CheckResults(const Results*... results) {
  return AnyNull(results...) ? StatusNullPointer : StatusOk;
}

}  // namespace orbs::ORBS_VARIANT

#define ORBS_RETURN_IF_BAD(check)                                                 \
  do {                                                                            \
    if (const OrbStatus orbsStatus = (check); orbsStatus != 0) return orbsStatus; \
  } while (false)

#endif
