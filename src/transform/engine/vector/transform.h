// The complex transforms of the vector variants above the codelets, as the front ends call them.
//
// The front ends have checked the arguments and settled the work buffer. Up to kFftTuning.onePassCeiling a
// plan holds `bitRev` and `coreTw`, in the room that FftTables promises for the order, and its work size is
// one copy of the data (none for interleaved 64f data in s8). Above it the layout is that of
// DescribeVectorLarge.
#ifndef ORBS_TRANSFORM_ENGINE_VECTOR_TRANSFORM_H
#define ORBS_TRANSFORM_ENGINE_VECTOR_TRANSFORM_H

#include "core/variant.h"

#if ORBS_VECTOR

#include "transform/engine/data.h"
#include "transform/engine/layout.h"
#include "transform/engine/plan.h"
#include "transform/engine/tables/sine.h"

namespace orbs::ORBS_VARIANT::transform {

// The transform of 2^order complex points, natural order in and out. `order` is the plan's own, or one less
// for a real plan. dst may be src (each array of a split pair by itself); neither needs to be aligned. All
// values are multiplied by `scale`, which is 1 where none is wanted. `work` is 64-byte aligned and has
// plan.workSize bytes; null if that is 0.
//
// Data is Interleaved or Split.
template <bool kForward, template <class> class Data, class T>
void VectorTransform(const FftPlan<T>& plan, int order, Data<const T> src, Data<T> dst, T scale, void* work);

// The tables of a one-pass transform of 2^order points. There is room for 2^order / 4 + 1 elements at bitRev
// and for 2^order + 1 complex values at coreTw. `sine` gives cosine and sine of 2 pi k / 2^order.
template <class T>
void BuildVectorTables(int order, SineTable<T> sine, Orb32s* bitRev, T* coreTw);

// Above the one-pass ceiling: what the plan and the init buffer hold (the sine table stands in the init
// buffer already, and is given), and the work size.
template <class T>
void DescribeVectorLarge(int order, FftLayout<T>* layout);
template <class T>
void BuildVectorLarge(int order, SineTable<T> sine, FftPlan<T>* plan);

}  // namespace orbs::ORBS_VARIANT::transform

#endif
#endif
