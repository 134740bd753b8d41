#include "transform/integer/init.h"

#define ORBS_SLICE "boundary/exports/transform.def"
#include "boundary/declare_exports.h"

namespace orbs::ORBS_VARIANT {
using namespace transform;

OrbStatus legacy90orbsFFTGetSize_C_16sc(Orb32s order, Orb32s flag, OrbAlgHint hint, Orb32s* planSize,
                                        Orb32s* initSize, Orb32s* workSize) {
  return GetSize<FFTSpec_C_16sc>(order, flag, hint, planSize, initSize, workSize);
}

OrbStatus legacy90orbsFFTInit_C_16sc(FFTSpec_C_16sc** planOut, Orb32s order, Orb32s flag, OrbAlgHint hint,
                                     void* planMemory, void* initBuffer) {
  return Init(planOut, order, flag, hint, planMemory, initBuffer);
}

OrbStatus legacy90orbsFFTInitAlloc_C_16sc(FFTSpec_C_16sc** planOut, Orb32s order, Orb32s flag,
                                          OrbAlgHint hint) {
  return InitAlloc(planOut, order, flag, hint);
}

OrbStatus legacy90orbsFFTFree_C_16sc(FFTSpec_C_16sc* plan) { return Free(plan); }

OrbStatus legacy90orbsFFTGetBufSize_C_16sc(const FFTSpec_C_16sc* plan, Orb32s* size) {
  return GetBufSize(plan, size);
}

OrbStatus legacy90orbsFFTGetSize_C_16s(Orb32s order, Orb32s flag, OrbAlgHint hint, Orb32s* planSize,
                                       Orb32s* initSize, Orb32s* workSize) {
  return GetSize<FFTSpec_C_16s>(order, flag, hint, planSize, initSize, workSize);
}

OrbStatus legacy90orbsFFTInit_C_16s(FFTSpec_C_16s** planOut, Orb32s order, Orb32s flag, OrbAlgHint hint,
                                    void* planMemory, void* initBuffer) {
  return Init(planOut, order, flag, hint, planMemory, initBuffer);
}

OrbStatus legacy90orbsFFTInitAlloc_C_16s(FFTSpec_C_16s** planOut, Orb32s order, Orb32s flag,
                                         OrbAlgHint hint) {
  return InitAlloc(planOut, order, flag, hint);
}

OrbStatus legacy90orbsFFTFree_C_16s(FFTSpec_C_16s* plan) { return Free(plan); }

OrbStatus legacy90orbsFFTGetBufSize_C_16s(const FFTSpec_C_16s* plan, Orb32s* size) {
  return GetBufSize(plan, size);
}

OrbStatus legacy90orbsFFTGetSize_C_32sc(Orb32s order, Orb32s flag, OrbAlgHint hint, Orb32s* planSize,
                                        Orb32s* initSize, Orb32s* workSize) {
  return GetSize<FFTSpec_C_32sc>(order, flag, hint, planSize, initSize, workSize);
}

OrbStatus legacy90orbsFFTInit_C_32sc(FFTSpec_C_32sc** planOut, Orb32s order, Orb32s flag, OrbAlgHint hint,
                                     void* planMemory, void* initBuffer) {
  return Init(planOut, order, flag, hint, planMemory, initBuffer);
}

OrbStatus legacy90orbsFFTInitAlloc_C_32sc(FFTSpec_C_32sc** planOut, Orb32s order, Orb32s flag,
                                          OrbAlgHint hint) {
  return InitAlloc(planOut, order, flag, hint);
}

OrbStatus legacy90orbsFFTFree_C_32sc(FFTSpec_C_32sc* plan) { return Free(plan); }

OrbStatus legacy90orbsFFTGetBufSize_C_32sc(const FFTSpec_C_32sc* plan, Orb32s* size) {
  return GetBufSize(plan, size);
}

OrbStatus legacy90orbsFFTGetSize_C_32s(Orb32s order, Orb32s flag, OrbAlgHint hint, Orb32s* planSize,
                                       Orb32s* initSize, Orb32s* workSize) {
  return GetSize<FFTSpec_C_32s>(order, flag, hint, planSize, initSize, workSize);
}

OrbStatus legacy90orbsFFTInit_C_32s(FFTSpec_C_32s** planOut, Orb32s order, Orb32s flag, OrbAlgHint hint,
                                    void* planMemory, void* initBuffer) {
  return Init(planOut, order, flag, hint, planMemory, initBuffer);
}

OrbStatus legacy90orbsFFTInitAlloc_C_32s(FFTSpec_C_32s** planOut, Orb32s order, Orb32s flag,
                                         OrbAlgHint hint) {
  return InitAlloc(planOut, order, flag, hint);
}

OrbStatus legacy90orbsFFTFree_C_32s(FFTSpec_C_32s* plan) { return Free(plan); }

OrbStatus legacy90orbsFFTGetBufSize_C_32s(const FFTSpec_C_32s* plan, Orb32s* size) {
  return GetBufSize(plan, size);
}

OrbStatus legacy90orbsFFTGetSize_R_16s(Orb32s order, Orb32s flag, OrbAlgHint hint, Orb32s* planSize,
                                       Orb32s* initSize, Orb32s* workSize) {
  return GetSize<FFTSpec_R_16s>(order, flag, hint, planSize, initSize, workSize);
}

OrbStatus legacy90orbsFFTInit_R_16s(FFTSpec_R_16s** planOut, Orb32s order, Orb32s flag, OrbAlgHint hint,
                                    void* planMemory, void* initBuffer) {
  return Init(planOut, order, flag, hint, planMemory, initBuffer);
}

OrbStatus legacy90orbsFFTInitAlloc_R_16s(FFTSpec_R_16s** planOut, Orb32s order, Orb32s flag,
                                         OrbAlgHint hint) {
  return InitAlloc(planOut, order, flag, hint);
}

OrbStatus legacy90orbsFFTFree_R_16s(FFTSpec_R_16s* plan) { return Free(plan); }

OrbStatus legacy90orbsFFTGetBufSize_R_16s(const FFTSpec_R_16s* plan, Orb32s* size) {
  return GetBufSize(plan, size);
}

OrbStatus legacy90orbsFFTGetSize_R_32s(Orb32s order, Orb32s flag, OrbAlgHint hint, Orb32s* planSize,
                                       Orb32s* initSize, Orb32s* workSize) {
  return GetSize<FFTSpec_R_32s>(order, flag, hint, planSize, initSize, workSize);
}

OrbStatus legacy90orbsFFTInit_R_32s(FFTSpec_R_32s** planOut, Orb32s order, Orb32s flag, OrbAlgHint hint,
                                    void* planMemory, void* initBuffer) {
  return Init(planOut, order, flag, hint, planMemory, initBuffer);
}

OrbStatus legacy90orbsFFTInitAlloc_R_32s(FFTSpec_R_32s** planOut, Orb32s order, Orb32s flag,
                                         OrbAlgHint hint) {
  return InitAlloc(planOut, order, flag, hint);
}

OrbStatus legacy90orbsFFTFree_R_32s(FFTSpec_R_32s* plan) { return Free(plan); }

OrbStatus legacy90orbsFFTGetBufSize_R_32s(const FFTSpec_R_32s* plan, Orb32s* size) {
  return GetBufSize(plan, size);
}

OrbStatus legacy90orbsFFTGetSize_R_16s32s(Orb32s order, Orb32s flag, OrbAlgHint hint, Orb32s* planSize,
                                          Orb32s* initSize, Orb32s* workSize) {
  return GetSize<FFTSpec_R_16s32s>(order, flag, hint, planSize, initSize, workSize);
}

OrbStatus legacy90orbsFFTInit_R_16s32s(FFTSpec_R_16s32s** planOut, Orb32s order, Orb32s flag, OrbAlgHint hint,
                                       void* planMemory, void* initBuffer) {
  return Init(planOut, order, flag, hint, planMemory, initBuffer);
}

OrbStatus legacy90orbsFFTInitAlloc_R_16s32s(FFTSpec_R_16s32s** planOut, Orb32s order, Orb32s flag,
                                            OrbAlgHint hint) {
  return InitAlloc(planOut, order, flag, hint);
}

OrbStatus legacy90orbsFFTFree_R_16s32s(FFTSpec_R_16s32s* plan) { return Free(plan); }

OrbStatus legacy90orbsFFTGetBufSize_R_16s32s(const FFTSpec_R_16s32s* plan, Orb32s* size) {
  return GetBufSize(plan, size);
}

}  // namespace orbs::ORBS_VARIANT
