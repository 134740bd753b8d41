// The toolkit's primitives as a table of function pointers, one table a variant.
//
//   class ConvertTest : public ToolkitTest {};
//   TEST_P(ConvertTest, ...) { t.VecConvert_16s32f(...); }
#ifndef ORBS_TESTS_TOOLKIT_TOOLKIT_TABLE_H
#define ORBS_TESTS_TOOLKIT_TOOLKIT_TABLE_H

// The types of the functions are the same in all variants: they are taken from px.
#define ORBS_VARIANT px
#define ORBS_VARIANT_INDEX 0
#include "toolkit/toolkit.h"
#undef ORBS_VARIANT
#undef ORBS_VARIANT_INDEX

#include "tests/support/variants.h"

// X(argument, row) for every row: with a status, without one, and without a count.
// clang-format off
#define ORBS_STATUS_ROWS(X, a)                                                                       \
  X(a, VecZero_8u) X(a, VecZero_16s) X(a, VecZero_32s) X(a, VecZero_64s) X(a, VecZero_128)           \
  X(a, VecSet_8u) X(a, VecSet_32s)                                                                   \
  X(a, VecCopy_8u) X(a, VecCopy_16s) X(a, VecCopy_32s) X(a, VecCopy_64s) X(a, VecCopy_128)           \
  X(a, VecMove_16s) X(a, VecMove_32s) X(a, VecMove_64s) X(a, VecMove_128)                            \
  X(a, VecConvert_8s32f) X(a, VecConvert_16s32f) X(a, VecConvert_32s32f) X(a, VecConvert_32s64f)     \
  X(a, VecConvert_32f64f) X(a, VecConvert_64f32f)                                                    \
  X(a, VecConvert_32s32f_Sfs) X(a, VecConvert_16s64f_Sfs)                                            \
  X(a, VecConvert_32f16s_Sfs) X(a, VecConvert_32f32s_Sfs) X(a, VecConvert_64f32s_Sfs)                \
  X(a, VecMulC_32f_I) X(a, VecMulC_64f_I) X(a, VecAdd_32f_I) X(a, VecSqrt_64f_I)                     \
  X(a, VecDiv_32f) X(a, VecDiv_64f) X(a, VecDiv_32f_I) X(a, VecDiv_64f_I)                            \
  X(a, VecLn_32f_I) X(a, VecExp_64f)                                                                 \
  X(a, VecMul_32fc) X(a, VecMul_64fc) X(a, VecMul_32fc_I) X(a, VecMul_64fc_I)                        \
  X(a, VecConj_32fc) X(a, VecConj_64fc) X(a, VecConj_32fc_I) X(a, VecConj_64fc_I)                    \
  X(a, VecMulPackConj_32f_I) X(a, VecMulPackConj_64f_I)                                              \
  X(a, VecMulPerm_32f_I) X(a, VecMulPerm_64f_I)                                                      \
  X(a, VecFlip_32f) X(a, VecFlip_32f_I) X(a, VecFlip_64f_I) X(a, VecFlip_32fc_I) X(a, VecFlip_64fc_I) \
  X(a, VecDot_16s64s)
#define ORBS_COUNTED_VOID_ROWS(X, a)                                                                 \
  X(a, VecZeroBytes) X(a, VecCopyBytes)                                                              \
  X(a, VecConvert_32s16s_Sfs) X(a, VecShiftL_16s32s) X(a, VecMulSqrt2_32s_I)
#define ORBS_ORDER_ROWS(X, a) X(a, VecInterleave_16s) X(a, VecDeinterleave_16s)
#define ORBS_TOOLKIT_ROWS(X, a) ORBS_STATUS_ROWS(X, a) ORBS_COUNTED_VOID_ROWS(X, a) ORBS_ORDER_ROWS(X, a)
// clang-format on

namespace orbs::test {

struct Toolkit {
#define ORBS_MEMBER(a, row) decltype(&px::row) row;
  ORBS_TOOLKIT_ROWS(ORBS_MEMBER, )
#undef ORBS_MEMBER
};

const Toolkit& ToolkitOf(Variant variant);

class ToolkitTest : public testing::TestWithParam<Variant> {
 protected:
  void SetUp() override {
    const Variant variant = GetParam();
    if (!CanRun(variant)) GTEST_SKIP() << "this processor cannot run " << VariantName(variant);
    if (variant != Variant::px && t.VecMulC_32f_I == ToolkitOf(Variant::px).VecMulC_32f_I) {
      GTEST_SKIP() << "this build leaves out " << VariantName(variant);
    }
  }

  const Toolkit& t = ToolkitOf(GetParam());
};

}  // namespace orbs::test

#endif
