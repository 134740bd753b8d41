// What FIR states with floating-point and with integer taps have in common, for the types that stand for
// them.
#ifndef ORBS_TESTS_FIR_STATE_FUNCTIONS_H
#define ORBS_TESTS_FIR_STATE_FUNCTIONS_H

#include "orbs90lgc.h"

// `delay` is the kind that the functions for delay lines are named after.
#define ORBS_TEST_FIR_STATE(suffix, delay, TapType, DataType)          \
  using Tap = TapType;                                                 \
  using Data = DataType;                                               \
  static constexpr const char* kName = #suffix;                        \
  static constexpr auto* Size = legacy90orbsFIRGetStateSize##suffix;   \
  static constexpr auto* Init = legacy90orbsFIRInit##suffix;           \
  static constexpr auto* InitAlloc = legacy90orbsFIRInitAlloc##suffix; \
  static constexpr auto* Free = legacy90orbsFIRFree##suffix;           \
  static constexpr auto* GetTaps = legacy90orbsFIRGetTaps##suffix;     \
  static constexpr auto* SetTaps = legacy90orbsFIRSetTaps##suffix;     \
  static constexpr auto* GetDelay = legacy90orbsFIRGetDlyLine##delay;  \
  static constexpr auto* SetDelay = legacy90orbsFIRSetDlyLine##delay;

#endif
