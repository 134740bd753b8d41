// Forward transforms of other libraries, as calls on given arrays of n points. Making one plans it, which
// overwrites the arrays; the plan lives as long as the call.
#ifndef ORBS_BENCH_TRANSFORM_PEERS_H
#define ORBS_BENCH_TRANSFORM_PEERS_H

#include <functional>

#include "orbs90lgc/types.h"

namespace orbs::bench::native {

using Call = std::function<void()>;

// Planned with FFTW_MEASURE, for arrays of any content and the alignment of the ones given. The arrays hold
// pairs; dst of a real transform has n/2+1 of them. dst may be src.
Call FftwComplex(Orb32s n, Orb32f* src, Orb32f* dst);
Call FftwComplex(Orb32s n, Orb64f* src, Orb64f* dst);
Call FftwReal(Orb32s n, Orb32f* src, Orb32f* dst);
Call FftwReal(Orb32s n, Orb64f* src, Orb64f* dst);

// The C library in binary32, the C++ template in binary64; dst is not src.
Call KissComplex(Orb32s n, const Orb32f* src, Orb32f* dst);
Call KissComplex(Orb32s n, const Orb64f* src, Orb64f* dst);
Call KissReal(Orb32s n, const Orb32f* src, Orb32f* dst);
Call KissReal(Orb32s n, const Orb64f* src, Orb64f* dst);

// What a program does that has integers and FFTW: converts, transforms, scales, rounds and saturates. 16-bit
// data in binary32, 32-bit data in binary64.
Call ConvertComplex(Orb32s n, const Orb16s* src, Orb16s* dst, int scaleFactor);
Call ConvertComplex(Orb32s n, const Orb32s* src, Orb32s* dst, int scaleFactor);
Call ConvertReal(Orb32s n, const Orb16s* src, Orb16s* dst, int scaleFactor);
Call ConvertReal(Orb32s n, const Orb32s* src, Orb32s* dst, int scaleFactor);

}  // namespace orbs::bench::native

#endif
