// The functions of core/scaling.h as one variant compiles them.
#ifndef ORBS_TESTS_CORE_SCALING_PROBE_H
#define ORBS_TESTS_CORE_SCALING_PROBE_H

#include "orbs90lgc/types.h"

namespace orbs::test {

enum class ShiftMethod { kTiesEven, kHalfUp, kFloor };
enum class FloatMethod { kNearEven, kHalfAway };
enum class FloatWidth { k32, k64, k80 };

struct Bounds {
  Orb64s min;
  Orb64s max;
};

// One instance of an integer method: the accumulator has this many bits and holds x.
struct ShiftProbe {
  ShiftMethod method;
  int accumulatorBits;
  Bounds result;
  Orb64s (*scale)(Orb64s x, Orb32s s);
};

// One instance of a floating-point method: y is a value of the given width.
struct FloatProbe {
  FloatMethod method;
  FloatWidth width;
  Bounds result;
  Orb64s (*convert)(long double y);
};

// The conversions and the factor 2^-s in one floating-point type.
struct ConversionProbe {
  FloatWidth width;
  Orb32s (*roundNear)(long double y);
  Orb32s (*truncate)(long double y);
  Orb32s (*roundHalfAway)(long double y);
  void (*factors)(Orb32s s, long double* first, long double* second);
  long double (*scale)(long double x, Orb32s s);
};

struct ScalingProbe {
  const ShiftProbe* shifts;
  int shiftCount;
  const FloatProbe* floats;
  int floatCount;
  const ConversionProbe* conversions;
  int conversionCount;
  float (*factorModulo128)(Orb32s s);
  float (*factor_32s32f)(Orb32s s);
  double (*factor_16s64f)(Orb32s s);
};

extern "C" const ScalingProbe orbsScalingProbe_px, orbsScalingProbe_w7, orbsScalingProbe_v8,
    orbsScalingProbe_s8, orbsScalingProbe_p8, orbsScalingProbe_g9, orbsScalingProbe_h9;

}  // namespace orbs::test

#endif
