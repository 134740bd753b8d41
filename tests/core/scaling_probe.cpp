// Compiled once per variant, with its flags. Everything but the table has internal linkage: seven objects
// define the same templates, and the linker would keep one copy for all.
#include "tests/core/scaling_probe.h"

#include "core/scaling.h"

namespace orbs::ORBS_VARIANT {
namespace {

using namespace orbs::test;

template <class T>
constexpr Bounds kBounds = {std::numeric_limits<T>::min(), std::numeric_limits<T>::max()};

template <class Result, class Accumulator>
constexpr ShiftProbe Shift(ShiftMethod method) {
  constexpr int kBits = std::numeric_limits<Accumulator>::digits + 1;
  switch (method) {
    case ShiftMethod::kTiesEven:
      return {method, kBits, kBounds<Result>, [](Orb64s x, Orb32s s) -> Orb64s {
                return ShiftTiesEven<Result>(static_cast<Accumulator>(x), s);
              }};
    case ShiftMethod::kHalfUp:
      return {method, kBits, kBounds<Result>, [](Orb64s x, Orb32s s) -> Orb64s {
                return ShiftHalfUp<Result>(static_cast<Accumulator>(x), s);
              }};
    default:
      return {method, kBits, kBounds<Result>, [](Orb64s x, Orb32s s) -> Orb64s {
                return ShiftFloor<Result>(static_cast<Accumulator>(x), s);
              }};
  }
}

#define SHIFT_PROBES(method)                                                                       \
  Shift<Orb8u, Orb32s>(method), Shift<Orb8s, Orb32s>(method), Shift<Orb16u, Orb32s>(method),       \
      Shift<Orb16s, Orb32s>(method), Shift<Orb32s, Orb32s>(method), Shift<Orb16s, Orb64s>(method), \
      Shift<Orb32s, Orb64s>(method), Shift<Orb32u, Orb64s>(method), Shift<Orb64s, Orb64s>(method)

constexpr ShiftProbe kShifts[] = {SHIFT_PROBES(ShiftMethod::kTiesEven), SHIFT_PROBES(ShiftMethod::kHalfUp),
                                  SHIFT_PROBES(ShiftMethod::kFloor)};

template <class Float>
constexpr FloatWidth kWidth = sizeof(Float) == 4   ? FloatWidth::k32
                              : sizeof(Float) == 8 ? FloatWidth::k64
                                                   : FloatWidth::k80;

template <class Result, class Float>
constexpr FloatProbe NearEven() {
  return {FloatMethod::kNearEven, kWidth<Float>, kBounds<Result>,
          [](long double y) -> Orb64s { return FloatNearEven<Result>(static_cast<Float>(y)); }};
}

template <class Result, class Float>
constexpr FloatProbe HalfAway() {
  return {FloatMethod::kHalfAway, kWidth<Float>, kBounds<Result>,
          [](long double y) -> Orb64s { return FloatHalfAway<Result>(static_cast<Float>(y)); }};
}

#define FLOAT_PROBES(Float)                                                                                 \
  NearEven<Orb8u, Float>(), NearEven<Orb8s, Float>(), NearEven<Orb16u, Float>(), NearEven<Orb16s, Float>(), \
      NearEven<Orb32s, Float>(), HalfAway<Orb8u, Float>(), HalfAway<Orb8s, Float>(),                        \
      HalfAway<Orb16u, Float>(), HalfAway<Orb16s, Float>(), HalfAway<Orb32s, Float>()

constexpr FloatProbe kFloats[] = {FLOAT_PROBES(float), FLOAT_PROBES(double), FLOAT_PROBES(long double)};

template <class Float>
constexpr ConversionProbe Conversion() {
  return {kWidth<Float>,
          [](long double y) { return RoundNearToInt(static_cast<Float>(y)); },
          [](long double y) { return TruncateToInt(static_cast<Float>(y)); },
          [](long double y) { return RoundHalfAwayToInt(static_cast<Float>(y)); },
          [](Orb32s s, long double* first, long double* second) {
            const PowerOfTwo<Float> factor = InversePowerOfTwo<Float>(s);
            *first = factor.first;
            *second = factor.second;
          },
          [](long double x, Orb32s s) -> long double {
            const volatile Float y = InversePowerOfTwo<Float>(s)(static_cast<Float>(x));
            return y;  // as stored, without the extra precision of a register
          }};
}

constexpr ConversionProbe kConversions[] = {Conversion<float>(), Conversion<double>(),
                                            Conversion<long double>()};

float FactorModulo128(Orb32s s) { return InversePowerOfTwoModulo128(s); }
float Factor_32s32f(Orb32s s) { return InversePowerOfTwo_32s32f(s); }
double Factor_16s64f(Orb32s s) { return InversePowerOfTwo_16s64f(s); }

template <class T, int kCount>
constexpr int Count(const T (&)[kCount]) {
  return kCount;
}

}  // namespace

#define CONCATENATE_(a, b) a##b
#define CONCATENATE(a, b) CONCATENATE_(a, b)

extern "C" const ScalingProbe CONCATENATE(orbsScalingProbe_, ORBS_VARIANT) = {
    kShifts,         Count(kShifts), kFloats,       Count(kFloats), kConversions, Count(kConversions),
    FactorModulo128, Factor_32s32f,  Factor_16s64f,
};

}  // namespace orbs::ORBS_VARIANT
