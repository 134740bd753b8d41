// States in blocks of the library's own: how every InitAlloc ends, and every Free. A state is a record with
// the member `owned`, which is 1 for such a block.
#ifndef ORBS_CORE_OWNED_STATE_H
#define ORBS_CORE_OWNED_STATE_H

#include "core/memory.h"
#include "core/variant.h"
#include "orbs90lgc/status.h"
#include "orbs90lgc/types.h"

namespace orbs::ORBS_VARIANT {

// build(state) makes the state in a block of this many bytes. If it fails, or the block cannot be had,
// *stateOut stays as it is.
template <class State, class Build>
ORBS_INLINE OrbStatus AllocateState(State** stateOut, int64_t bytes, Build build) {
  auto* const state = static_cast<State*>(AllocAligned(bytes));
  if (state == nullptr) return StatusMemAlloc;
  const OrbStatus status = build(state);
  if (status != StatusOk) {
    FreeAligned(state);
    return status;
  }
  state->owned = 1;
  *stateOut = state;
  return StatusOk;
}

template <class State>
ORBS_INLINE void ReleaseState(State* state) {
  if (state->owned == 1) FreeAligned(state);
}

}  // namespace orbs::ORBS_VARIANT

#endif
