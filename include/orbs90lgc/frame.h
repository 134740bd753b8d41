/**
 * @file frame.h
 * @brief Start-up, version and thread count.
 *
 * Every operation exists in seven variants, each for a level of the x86 instruction set: `px` (plain code),
 * `w7` (SSE2), `v8` (SSSE3), `s8` (SSSE3, tuned for in-order processors, which MOVBE tells from others),
 * `p8` (SSE4.1), `g9` (AVX), `h9` (AVX2, FMA, BMI). The first call of any function selects the variant for
 * the process; from then on a call costs one load and one indirect jump more than a direct one. There is
 * nothing to configure and nothing to release.
 */
#ifndef ORBS90LGC_FRAME_H
#define ORBS90LGC_FRAME_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Selects the variant for this processor. Optional, since the first call of any other function does it; may
 * be called any number of times and from any thread, with the same result.
 *
 * @return ::StatusOk; ::StatusNoCpuSupport, which is a note and not an error, when the processor has no CPUID
 * or not the vendor string that the library was built to expect. The variant is selected by the features
 * alone, whatever the vendor, and every function works. What the note tells is that the library does not ask
 * such a processor for the size of its cache, so that large fills do not bypass it.
 */
OrbStatus legacy90orbsInit(void);

/**
 * Tells which variant runs.
 *
 * @return the constant version record of the selected variant; never null.
 */
const OrbLibraryVersion* legacy90orbsGetLibVersion(void);

/**
 * The number of threads that the library uses: always 1.
 *
 * @param[out] numThreads receives 1.
 * @return ::StatusNoThreads; ::StatusNullPointer when `numThreads` is null.
 */
OrbStatus legacy90orbsGetNumThreads(Orb32s* numThreads);

/**
 * Does nothing: the library starts no threads.
 *
 * @param numThreads ignored.
 * @return ::StatusNoThreads.
 */
OrbStatus legacy90orbsSetNumThreads(Orb32s numThreads);

#ifdef __cplusplus
}
#endif

#endif
