/**
 * @file types.h
 * @brief Element types, record types and enumerations shared by all functions of orbs90lgc.
 *
 * All arrays are plain, densely packed and little-endian. A length is a signed 32-bit count of elements; one
 * complex value is one element. The name suffix of a function tells its element types:
 *
 * | Suffix | Type     | Saturates at                |
 * |--------|----------|-----------------------------|
 * | `8u`   | Orb8u    | 0, 255                      |
 * | `8s`   | Orb8s    | -128, 127                   |
 * | `16u`  | Orb16u   | 0, 65535                    |
 * | `16s`  | Orb16s   | -32768, 32767               |
 * | `24s`  | 3 bytes, low byte first | -8388608, 8388607 |
 * | `32u`  | Orb32u   | 0, 4294967295               |
 * | `32s`  | Orb32s   | -2147483648, 2147483647     |
 * | `64s`  | Orb64s   | -2^63, 2^63-1               |
 * | `32f`, `64f` | Orb32f, Orb64f | IEEE 754 binary32, binary64 |
 * | `16sc`, `32sc`, `32fc`, `64fc` | pairs, `re` first | by component |
 * | `1u`   | a bit stream in bytes, most significant bit first | |
 */
#ifndef ORBS90LGC_TYPES_H
#define ORBS90LGC_TYPES_H

#include <stdint.h>

typedef uint8_t Orb8u;   /**< 8-bit unsigned integer. */
typedef int8_t Orb8s;    /**< 8-bit signed integer. */
typedef uint16_t Orb16u; /**< 16-bit unsigned integer. */
typedef int16_t Orb16s;  /**< 16-bit signed integer. */
typedef uint32_t Orb32u; /**< 32-bit unsigned integer. */
typedef int32_t Orb32s;  /**< 32-bit signed integer; also the type of every length. */
typedef int64_t Orb64s;  /**< 64-bit signed integer. */
typedef float Orb32f;    /**< IEEE 754 binary32. */
typedef double Orb64f;   /**< IEEE 754 binary64. */

/** Complex 16-bit integer. */
typedef struct {
  Orb16s re; /**< Real part. */
  Orb16s im; /**< Imaginary part. */
} Orb16sc;

/** Complex 32-bit integer. */
typedef struct {
  Orb32s re; /**< Real part. */
  Orb32s im; /**< Imaginary part. */
} Orb32sc;

/** Complex binary32. */
typedef struct {
  Orb32f re; /**< Real part. */
  Orb32f im; /**< Imaginary part. */
} Orb32fc;

/** Complex binary64. */
typedef struct {
  Orb64f re; /**< Real part. */
  Orb64f im; /**< Imaginary part. */
} Orb64fc;

/** Result of every function but one: 0 success, negative an error, positive a warning after finished work.
 * See status.h. */
typedef Orb32s OrbStatus;

/**
 * A preference between speed and accuracy. Never validated: every value other than ::HintNone and ::HintFast
 * acts as
 * ::HintAccurate, which is why this is an integer and not an enumeration.
 */
typedef Orb32s OrbAlgHint;

enum {
  HintNone = 0,    /**< No preference; the function's reference text says what it takes. */
  HintFast = 1,    /**< The function may take its fast path. */
  HintAccurate = 2 /**< The function takes its accurate path. */
};

/** Where a transform divides. Any other value is ::StatusFftFlag. */
enum {
  FftScaleFwdByN = 1,  /**< The forward transform divides by N. */
  FftScaleInvByN = 2,  /**< The inverse transform divides by N. */
  FftScaleBySqrtN = 4, /**< Both directions divide by sqrt(N). */
  FftScaleNone = 8     /**< Neither direction divides. */
};

/** Rounding of a conversion to integers. */
enum {
  RoundZero = 0,    /**< Toward zero. */
  RoundNear = 1,    /**< To nearest, ties to even. */
  RoundHalfAway = 2 /**< To nearest, ties away from zero. */
};

/**
 * @name Plans
 *
 * Opaque: a plan is made, used and ended by the functions of its family, through a pointer. It must not be
 * copied or moved.
 * @{
 */
typedef struct FFTSpec_C_16sc FFTSpec_C_16sc;     /**< Transform of Orb16sc. See fft.h. */
typedef struct FFTSpec_C_16s FFTSpec_C_16s;       /**< Transform of 16-bit real and imaginary arrays. */
typedef struct FFTSpec_C_32sc FFTSpec_C_32sc;     /**< Transform of Orb32sc. */
typedef struct FFTSpec_C_32s FFTSpec_C_32s;       /**< Transform of 32-bit real and imaginary arrays. */
typedef struct FFTSpec_R_16s FFTSpec_R_16s;       /**< Transform of 16-bit real signals. */
typedef struct FFTSpec_R_32s FFTSpec_R_32s;       /**< Transform of 32-bit real signals. */
typedef struct FFTSpec_R_16s32s FFTSpec_R_16s32s; /**< 16-bit real signals with a 32-bit spectrum. */
/** @} */

/**
 * @name States
 *
 * Opaque, as plans are: made, used and ended by the functions of their family, through a pointer.
 * @{
 */
typedef struct FIRFloatState FIRFloatState; /**< FIR filter with floating-point taps. See fir.h. */
typedef struct FIRIntState FIRIntState;     /**< FIR filter with integer taps. See fir.h. */
typedef struct ToneState ToneState;         /**< Tone generator. See tone.h. */
typedef struct TriangleState TriangleState; /**< Triangle generator. See triangle.h. */
typedef struct IIRState IIRState; /**< IIR filter, of any order or a cascade of biquads. See iir.h. */
/** @} */

/** The version record that legacy90orbsGetLibVersion() points to. Static: never free or change it. */
typedef struct {
  Orb32s major;          /**< 9 */
  Orb32s minor;          /**< 0 */
  Orb32s majorBuild;     /**< 0 */
  Orb32s build;          /**< -1 */
  char targetCpu[4];     /**< The variant's code, such as "px" or "h9", zero-padded. */
  const char* name;      /**< The variant's name, such as "orbSP AVX2 (h9)". */
  const char* version;   /**< The version text. */
  const char* buildDate; /**< The date text. */
} OrbLibraryVersion;

#endif
