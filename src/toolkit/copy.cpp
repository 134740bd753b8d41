// Copies, through the C library's memmove: it picks the fastest copy of the processor by itself, and an
// overlap-safe move is an ascending copy wherever an ascending copy is defined.
#include <cstring>

#include "core/checks.h"
#include "toolkit/toolkit.h"

namespace orbs::ORBS_VARIANT {
namespace {

template <int kElementBytes>
ORBS_INLINE OrbStatus CopyElements(const void* src, void* dst, Orb32s n) {
  ORBS_RETURN_IF_BAD(CheckArrays(n, src, dst));
  VecCopyBytes(src, dst, static_cast<Orb64s>(n) * kElementBytes);
  return StatusOk;
}

}  // namespace

void VecCopyBytes(const void* src, void* dst, Orb64s bytes) {
  if (bytes >= 1) std::memmove(dst, src, static_cast<size_t>(bytes));
}

OrbStatus VecCopy_8u(const void* src, void* dst, Orb32s n) { return CopyElements<1>(src, dst, n); }
OrbStatus VecCopy_16s(const void* src, void* dst, Orb32s n) { return CopyElements<2>(src, dst, n); }
OrbStatus VecCopy_32s(const void* src, void* dst, Orb32s n) { return CopyElements<4>(src, dst, n); }
OrbStatus VecCopy_64s(const void* src, void* dst, Orb32s n) { return CopyElements<8>(src, dst, n); }
OrbStatus VecCopy_128(const void* src, void* dst, Orb32s n) { return CopyElements<16>(src, dst, n); }

OrbStatus VecMove_16s(const void* src, void* dst, Orb32s n) { return CopyElements<2>(src, dst, n); }
OrbStatus VecMove_32s(const void* src, void* dst, Orb32s n) { return CopyElements<4>(src, dst, n); }
OrbStatus VecMove_64s(const void* src, void* dst, Orb32s n) { return CopyElements<8>(src, dst, n); }
OrbStatus VecMove_128(const void* src, void* dst, Orb32s n) { return CopyElements<16>(src, dst, n); }

}  // namespace orbs::ORBS_VARIANT
