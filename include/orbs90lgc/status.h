/**
 * @file status.h
 * @brief The status codes. The numbers are part of the interface; no function returns any other.
 *
 * Arguments are checked before any work, and nothing is written on a failed check. A negative status means
 * that no result was produced; a positive one that the call finished and its results are defined.
 *
 * The order of checks is one of four:
 *  1. a transform with a plan: the plan against null, its identity, the data pointers, then the rest;
 *  2. a filter with a state: the state and all data pointers, the count, the state's identity;
 *  3. a stateless function: all data pointers, the count, its own parameters in argument order;
 *  4. a size query: the result pointer, then the parameters (FFT and DCT size queries: the length first).
 */
#ifndef ORBS90LGC_STATUS_H
#define ORBS90LGC_STATUS_H

enum {
  StatusOk = 0,            /**< Success. */
  StatusNoThreads = 1,     /**< The library has no threads; the call did its constant job. */
  WarnSqrtNegative = 3,    /**< A source element of a square root was negative; its result is 0. */
  WarnLogZero = 7,         /**< The deciding bad element of a logarithm was 0. */
  WarnLogNegative = 8,     /**< The deciding bad element of a logarithm was negative. */
  StatusNoCpuSupport = 20, /**< legacy90orbsInit() only, a note: processor not identified or not of the
                              expected vendor. A variant was selected all the same; everything works. */
  WarnBitWidth = 27,       /**< A width was outside 0 to 32 and was limited. */

  StatusBadArgument = -5, /**< An index outside the state's delay line. */
  StatusSize = -6,        /**< A count below 1, or a size that the algorithm cannot take. */
  StatusNullPointer = -8, /**< A required pointer is null. */
  StatusMemAlloc = -9,    /**< An allocation of the library's own failed. */
  StatusDivByZero = -10,  /**< A leading filter coefficient is exactly zero. */
  StatusOutOfRange = -11, /**< A parameter that must be above 0 is not. */
  StatusTapValue = -13,   /**< A coefficient that must not be negative is negative. */
  StatusFftOrder = -15,   /**< FFT order outside what the family takes. */
  StatusFftFlag = -16,    /**< FFT flag not one of 1, 2, 4, 8. */
  StatusContextMismatch =
      -17,                /**< The plan or state is not of the kind that the function expects, or is freed. */
  StatusDelayIndex = -24, /**< Delay-line index below 0 or not below the tap count. */
  StatusIirOrder = -25,   /**< IIR order or number of sections below 1. */
  StatusFirLength = -26,  /**< FIR tap count below 1. */
  StatusRelFreq = -27,    /**< Relative frequency outside the legal interval. */
  StatusFirMrPhase = -28, /**< Multi-rate phase outside 0 to factor-1. */
  StatusFirMrFactor = -29,       /**< Multi-rate factor below 1. */
  StatusWaveletOffset = -35,     /**< Wavelet filter offset below -1. */
  StatusJaehneMagnitude = -38,   /**< Jaehne magnitude below 0. */
  StatusKaiserAlpha = -39,       /**< Kaiser alpha outside its range. */
  StatusTriangleAsymmetry = -40, /**< Triangle asymmetry outside its range. */
  StatusTrianglePhase = -41,     /**< Triangle phase outside its range. */
  StatusTriangleFrequency = -42, /**< Triangle frequency outside its range. */
  StatusTriangleMagnitude = -43, /**< Triangle magnitude not above 0. */
  StatusTonePhase = -44,         /**< Tone phase outside its range. */
  StatusToneFrequency = -45,     /**< Tone frequency outside its range. */
  StatusToneMagnitude = -46,     /**< Tone magnitude not above 0. */
  StatusRoundMode = -213         /**< Rounding mode other than 0, 1, 2. */
};

#endif
