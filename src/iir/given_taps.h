// Coefficients as floating point: the caller's own array, or a temporary one converted from integers.
#ifndef ORBS_IIR_GIVEN_TAPS_H
#define ORBS_IIR_GIVEN_TAPS_H

#include "core/memory.h"
#include "iir/recursion/coefficients.h"
#include "toolkit/toolkit.h"

namespace orbs::ORBS_VARIANT::iir {

template <class Kind, class Given>
class GivenTaps {
 public:
  using Work = typename Kind::Work;

  // Integer taps count value * 2^-tapsFactor.
  GivenTaps(const Given* taps, Orb32s units, Orb32s tapsFactor) {
    if constexpr (kInteger) {
      const int64_t parts = Kind::GivenTaps(units) * Kind::kParts;
      auto* const converted = reinterpret_cast<Orb32f*>(AllocElems_32s(parts));
      if (converted == nullptr) return;
      VecConvert_32s32f_Sfs(Parts(taps), converted, static_cast<Orb32s>(parts), tapsFactor);
      taps_ = reinterpret_cast<const Work*>(converted);
    } else {
      taps_ = taps;
    }
  }
  GivenTaps(const GivenTaps&) = delete;
  GivenTaps& operator=(const GivenTaps&) = delete;
  ~GivenTaps() {
    if (kInteger) FreeAligned(const_cast<Work*>(taps_));
  }

  // Null if there was no memory.
  const Work* Get() const { return taps_; }

 private:
  static constexpr bool kInteger = !std::is_same_v<Given, Work>;

  const Work* taps_ = nullptr;
};

}  // namespace orbs::ORBS_VARIANT::iir

#endif
