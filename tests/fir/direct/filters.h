// The direct forms of FIR filters as types with the same static functions.
#ifndef ORBS_TESTS_FIR_DIRECT_FILTERS_H
#define ORBS_TESTS_FIR_DIRECT_FILTERS_H

#include <type_traits>

#include "orbs90lgc.h"
#include "tests/support/rows.h"

namespace orbs::test {

// Block and One take a sample array or a sample and where the result goes; those in place take one pointer.
#define ORBS_TEST_DIRECT(name, tapSuffix, dataSuffix, TapType, DataType, scale, inPlace, tapsFactor, factor) \
  struct name {                                                                                              \
    using Tap = TapType;                                                                                     \
    using Data = DataType;                                                                                   \
    static constexpr const char* kName = #tapSuffix "_Direct" #dataSuffix;                                   \
    static constexpr bool kInteger = std::is_same_v<Tap, Orb32s> || std::is_same_v<Tap, Orb32sc>;            \
    static OrbStatus Block(const Data* x, Data* y, Orb32s count, const Tap* h, Orb32s n,                     \
                           [[maybe_unused]] Orb32s t, Data* line, Orb32s* index,                             \
                           [[maybe_unused]] Orb32s s) {                                                      \
      return legacy90orbsFIR##tapSuffix##_Direct##dataSuffix##scale(x, y, count, h, n tapsFactor, line,      \
                                                                    index factor);                           \
    }                                                                                                        \
    static OrbStatus InPlace(Data* x, Orb32s count, const Tap* h, Orb32s n, [[maybe_unused]] Orb32s t,       \
                             Data* line, Orb32s* index, [[maybe_unused]] Orb32s s) {                         \
      return legacy90orbsFIR##tapSuffix##_Direct##dataSuffix##inPlace(x, count, h, n tapsFactor, line,       \
                                                                      index factor);                         \
    }                                                                                                        \
    static OrbStatus One(Data x, Data* y, const Tap* h, Orb32s n, [[maybe_unused]] Orb32s t, Data* line,     \
                         Orb32s* index, [[maybe_unused]] Orb32s s) {                                         \
      return legacy90orbsFIROne##tapSuffix##_Direct##dataSuffix##scale(x, y, h, n tapsFactor, line,          \
                                                                       index factor);                        \
    }                                                                                                        \
    static OrbStatus OneInPlace(Data* x, const Tap* h, Orb32s n, [[maybe_unused]] Orb32s t, Data* line,      \
                                Orb32s* index, [[maybe_unused]] Orb32s s) {                                  \
      return legacy90orbsFIROne##tapSuffix##_Direct##dataSuffix##inPlace(x, h, n tapsFactor, line,           \
                                                                         index factor);                      \
    }                                                                                                        \
  };
#define ORBS_TEST_PLAIN(name, tapSuffix, dataSuffix, Tap, Data) \
  ORBS_TEST_DIRECT(name, tapSuffix, dataSuffix, Tap, Data, , _I, , )
#define ORBS_TEST_COMMA_S , s
#define ORBS_TEST_COMMA_T , t
#define ORBS_TEST_SCALED(name, tapSuffix, dataSuffix, Tap, Data) \
  ORBS_TEST_DIRECT(name, tapSuffix, dataSuffix, Tap, Data, _Sfs, _ISfs, , ORBS_TEST_COMMA_S)
#define ORBS_TEST_SHIFTED(name, tapSuffix, dataSuffix, Tap, Data) \
  ORBS_TEST_DIRECT(name, tapSuffix, dataSuffix, Tap, Data, _Sfs, _ISfs, ORBS_TEST_COMMA_T, ORBS_TEST_COMMA_S)

ORBS_TEST_PLAIN(Direct32f, , _32f, Orb32f, Orb32f)
ORBS_TEST_PLAIN(Direct32fc, , _32fc, Orb32fc, Orb32fc)
ORBS_TEST_PLAIN(Direct64f, , _64f, Orb64f, Orb64f)
ORBS_TEST_PLAIN(Direct64fc, , _64fc, Orb64fc, Orb64fc)
ORBS_TEST_PLAIN(Direct64f_32f, 64f, _32f, Orb64f, Orb32f)
ORBS_TEST_PLAIN(Direct64fc_32fc, 64fc, _32fc, Orb64fc, Orb32fc)
ORBS_TEST_SCALED(Direct32f_16s, 32f, _16s, Orb32f, Orb16s)
ORBS_TEST_SCALED(Direct32fc_16sc, 32fc, _16sc, Orb32fc, Orb16sc)
ORBS_TEST_SCALED(Direct64f_16s, 64f, _16s, Orb64f, Orb16s)
ORBS_TEST_SCALED(Direct64fc_16sc, 64fc, _16sc, Orb64fc, Orb16sc)
ORBS_TEST_SCALED(Direct64f_32s, 64f, _32s, Orb64f, Orb32s)
ORBS_TEST_SCALED(Direct64fc_32sc, 64fc, _32sc, Orb64fc, Orb32sc)
ORBS_TEST_SHIFTED(Direct32s, 32s, _16s, Orb32s, Orb16s)
ORBS_TEST_SHIFTED(Direct32sc, 32sc, _16sc, Orb32sc, Orb16sc)
#undef ORBS_TEST_PLAIN
#undef ORBS_TEST_SCALED
#undef ORBS_TEST_SHIFTED
#undef ORBS_TEST_COMMA_S
#undef ORBS_TEST_COMMA_T
#undef ORBS_TEST_DIRECT

// The forms on 16-bit data with Q15 taps, in the same shape: two kinds of delay line, so two types.
struct Direct16s {
  using Tap = Orb16s;
  using Data = Orb16s;
  static constexpr const char* kName = "_Direct_16s";
  static constexpr bool kInteger = true;
  static OrbStatus One(Data x, Data* y, const Tap* h, Orb32s n, Orb32s, Data* line, Orb32s* index, Orb32s s) {
    return legacy90orbsFIROne_Direct_16s_Sfs(x, y, h, n, line, index, s);
  }
  static OrbStatus OneInPlace(Data* x, const Tap* h, Orb32s n, Orb32s, Data* line, Orb32s* index, Orb32s s) {
    return legacy90orbsFIROne_Direct_16s_ISfs(x, h, n, line, index, s);
  }
  // Blocks of single calls.
  static OrbStatus Block(const Data* x, Data* y, Orb32s count, const Tap* h, Orb32s n, Orb32s, Data* line,
                         Orb32s* index, Orb32s s) {
    for (Orb32s i = 0; i < count; ++i) {
      if (const OrbStatus status = One(x[i], y + i, h, n, 0, line, index, s); status != StatusOk)
        return status;
    }
    return StatusOk;
  }
  static OrbStatus InPlace(Data* x, Orb32s count, const Tap* h, Orb32s n, Orb32s, Data* line, Orb32s* index,
                           Orb32s s) {
    return Block(x, x, count, h, n, 0, line, index, s);
  }
};

template <class Test>
void ForEachDirect(const Test& test) {
  ForEachRow<Direct32f, Direct32fc, Direct64f, Direct64fc, Direct64f_32f, Direct64fc_32fc, Direct32f_16s,
             Direct32fc_16sc, Direct64f_16s, Direct64fc_16sc, Direct64f_32s, Direct64fc_32sc, Direct32s,
             Direct32sc>(test);
}

}  // namespace orbs::test

#endif
