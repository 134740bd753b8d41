// The delay line of a filter without a state: a ring of 2n elements that belongs to the caller.
//
// Each sample stands in it twice, n elements apart, so that from any index on the n newest stand in a row.
#ifndef ORBS_FIR_LMS_RING_H
#define ORBS_FIR_LMS_RING_H

#include <cstddef>

#include "frame/variant.h"
#include "orbs90lgc/types.h"

namespace orbs::ORBS_VARIANT {

template <class Sample>
class LmsRing {
 public:
  // The index has been checked: 0 to n-1.
  ORBS_INLINE LmsRing(Sample* line, Orb32s tapCount, Orb32s* delayIndex)
      : line_(line), n_(static_cast<size_t>(tapCount)), index_(delayIndex) {
    const auto i = static_cast<size_t>(*delayIndex);
    slot_ = i;
    next_ = i + 1 == n_ ? 0 : i + 1;
  }

  ORBS_INLINE size_t Count() const { return n_; }

  // The n samples in time order. The newest, the last one, is there only after Push.
  ORBS_INLINE const Sample* Samples() const { return line_ + next_; }

  ORBS_INLINE void Push(Sample newest) const {
    line_[slot_] = line_[slot_ + n_] = newest;
    *index_ = static_cast<Orb32s>(next_);
  }

 private:
  Sample* line_;
  size_t n_;
  Orb32s* index_;
  size_t slot_;
  size_t next_;
};

}  // namespace orbs::ORBS_VARIANT

#endif
