// The seven kinds of plan and the 42 transforms of the integer FFT as rows of two tables, without their
// types.
#ifndef ORBS_TESTS_TRANSFORM_INTEGER_CASES_H
#define ORBS_TESTS_TRANSFORM_INTEGER_CASES_H

#include "tests/support/export_test.h"
#include "tests/transform/integer/reference.h"

namespace orbs::test {

inline constexpr Orb32s kFlags[] = {FftScaleFwdByN, FftScaleInvByN, FftScaleBySqrtN, FftScaleNone};

struct PlanKind {
  const char* name;
  Orb32s id;
  bool real;
  bool wide;   // binary64 inside
  bool fixed;  // has a fixed-point path
  bool parts;  // two arrays a side
  OrbStatus (*getSize)(Orb32s, Orb32s, OrbAlgHint, Orb32s*, Orb32s*, Orb32s*);
  OrbStatus (*init)(void**, Orb32s, Orb32s, OrbAlgHint, void*, void*);
  OrbStatus (*initAlloc)(void**, Orb32s, Orb32s, OrbAlgHint);
  OrbStatus (*free)(void*);
  OrbStatus (*getBufSize)(const void*, Orb32s*);
};

template <class Spec, class Call>
OrbStatus WithOut(void** out, Call call) {
  if (out == nullptr) return call(static_cast<Spec**>(nullptr));
  auto* plan = static_cast<Spec*>(*out);
  const OrbStatus status = call(&plan);
  *out = plan;
  return status;
}

#define KIND(T, id, real, wide, fixed, parts)                                                           \
  {                                                                                                     \
#T, id, real, wide, fixed, parts, legacy90orbsFFTGetSize_##T,                                         \
   [](void** out, Orb32s order, Orb32s flag, OrbAlgHint hint, void* memory, void* init) {                \
     return WithOut<FFTSpec_##T>(                                                                        \
         out, [=](FFTSpec_##T** p) { return legacy90orbsFFTInit_##T(p, order, flag, hint, memory, init); }); \
   },                                                                                                    \
   [](void** out, Orb32s order, Orb32s flag, OrbAlgHint hint) {                                          \
     return WithOut<FFTSpec_##T>(                                                                        \
         out, [=](FFTSpec_##T** p) { return legacy90orbsFFTInitAlloc_##T(p, order, flag, hint); });      \
   },                                                                                                    \
   [](void* plan) { return legacy90orbsFFTFree_##T(static_cast<FFTSpec_##T*>(plan)); },                  \
   [](const void* plan, Orb32s* size) {                                                                  \
     return legacy90orbsFFTGetBufSize_##T(static_cast<const FFTSpec_##T*>(plan), size);                  \
   } \
  }

enum { kC16sc, kC16s, kR16s, kC32sc, kC32s, kR32s, kR16s32s };
inline const PlanKind kPlanKinds[] = {KIND(C_16sc, 1, false, false, true, false),
                                      KIND(C_16s, 2, false, false, true, true),
                                      KIND(R_16s, 3, true, false, true, false),
                                      KIND(C_32sc, 0x434d414c, false, true, false, false),
                                      KIND(C_32s, 0x434d414d, false, true, false, true),
                                      KIND(R_32s, 0x434d414e, true, true, false, false),
                                      KIND(R_16s32s, 0x434d414f, true, false, false, false)};
#undef KIND

// The arrays of a call: one a side, or the real and the imaginary parts.
struct Arrays {
  const void* src[2];
  void* dst[2];
};

struct Operation {
  const char* name;
  const PlanKind& plan;
  bool forward;
  Layout layout;
  int sourceBytes;  // of an element
  int resultBytes;
  OrbStatus (*run)(const Arrays&, const void* plan, Orb32s scaleFactor, void* work);
  OrbStatus (*runInPlace)(const Arrays&, const void* plan, Orb32s scaleFactor, void* work);  // on dst

  // Elements of all arrays of a side.
  size_t Count(int order, bool spectrum) const {
    const size_t n = size_t{1} << order;
    if (!plan.real) return 2 * n;
    if (!spectrum || layout != Layout::kCcs) return n;
    return n == 1 ? 2 : n + 2;
  }
  size_t SourceCount(int order) const { return Count(order, !forward); }
  size_t ResultCount(int order) const { return Count(order, forward); }
};

#define CALL(name) [](const Arrays& x, const void* plan, Orb32s s, void* work)
#define ONE(name, kind, forward, layout, bytes, T, Spec)                                                    \
  {                                                                                                         \
#name, kPlanKinds[kind], forward, layout, bytes, bytes, CALL() {                                        \
      return legacy90orbs##name##_Sfs(static_cast<const T*>(x.src[0]), static_cast<T*>(x.dst[0]),           \
                                      static_cast<const Spec*>(plan), s, work);                             \
    }                                                                                                       \
    , CALL() {                                                                                              \
      return legacy90orbs##name##_ISfs(static_cast<T*>(x.dst[0]), static_cast<const Spec*>(plan), s, work); \
    }                                                                                                       \
  }
#define TWO(name, kind, forward, bytes, T, Spec)                                                        \
  {                                                                                                     \
#name, kPlanKinds[kind], forward, Layout::kNone, bytes, bytes, CALL() {                             \
      return legacy90orbs##name##_Sfs(static_cast<const T*>(x.src[0]), static_cast<const T*>(x.src[1]), \
                                      static_cast<T*>(x.dst[0]), static_cast<T*>(x.dst[1]),             \
                                      static_cast<const Spec*>(plan), s, work);                         \
    }                                                                                                   \
    , CALL() {                                                                                          \
      return legacy90orbs##name##_ISfs(static_cast<T*>(x.dst[0]), static_cast<T*>(x.dst[1]),            \
                                       static_cast<const Spec*>(plan), s, work);                        \
    }                                                                                                   \
  }
#define COMPLEX(dir, forward)                                                                \
  ONE(FFT##dir##_CToC_16sc, kC16sc, forward, Layout::kNone, 2, Orb16sc, FFTSpec_C_16sc),     \
      TWO(FFT##dir##_CToC_16s, kC16s, forward, 2, Orb16s, FFTSpec_C_16s),                    \
      ONE(FFT##dir##_CToC_32sc, kC32sc, forward, Layout::kNone, 4, Orb32sc, FFTSpec_C_32sc), \
      TWO(FFT##dir##_CToC_32s, kC32s, forward, 4, Orb32s, FFTSpec_C_32s)
#define REAL(L, layout)                                                         \
  ONE(FFTFwd_RTo##L##_16s, kR16s, true, layout, 2, Orb16s, FFTSpec_R_16s),      \
      ONE(FFTFwd_RTo##L##_32s, kR32s, true, layout, 4, Orb32s, FFTSpec_R_32s),  \
      ONE(FFTInv_##L##ToR_16s, kR16s, false, layout, 2, Orb16s, FFTSpec_R_16s), \
      ONE(FFTInv_##L##ToR_32s, kR32s, false, layout, 4, Orb32s, FFTSpec_R_32s)

inline const Operation kOperations[] = {
    COMPLEX(Fwd, true), COMPLEX(Inv, false), REAL(CCS, Layout::kCcs), REAL(Pack, Layout::kPack),
    REAL(Perm, Layout::kPerm),
    {"FFTFwd_RToCCS_16s32s", kPlanKinds[kR16s32s], true, Layout::kCcs, 2, 4,
     CALL(){return legacy90orbsFFTFwd_RToCCS_16s32s_Sfs(static_cast<const Orb16s*>(x.src[0]),
                                                        static_cast<Orb32s*>(x.dst[0]),
                                                        static_cast<const FFTSpec_R_16s32s*>(plan), s, work);
}  // namespace orbs::test
, nullptr
}
, {"FFTInv_CCSToR_32s16s", kPlanKinds[kR16s32s], false, Layout::kCcs, 4, 2,
   CALL(){return legacy90orbsFFTInv_CCSToR_32s16s_Sfs(static_cast<const Orb32s*>(x.src[0]),
                                                      static_cast<Orb16s*>(x.dst[0]),
                                                      static_cast<const FFTSpec_R_16s32s*>(plan), s, work);
}
, nullptr
}
,
}
;
#undef REAL
#undef COMPLEX
#undef TWO
#undef ONE
#undef CALL

// Orders below it are fixed point in the 16-bit plans.
inline int FixedLimit(Variant variant) { return variant == Variant::px ? 9 : 4; }

}  // namespace orbs::test

#endif
