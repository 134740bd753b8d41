// The base of all tests of exports: pins the variant before each test.
#ifndef ORBS_TESTS_SUPPORT_EXPORT_TEST_H
#define ORBS_TESTS_SUPPORT_EXPORT_TEST_H

#include "boundary/pin.h"
#include "orbs90lgc.h"
#include "tests/support/variants.h"

namespace orbs::test {

class ExportTest : public testing::TestWithParam<Variant> {
 protected:
  void SetUp() override {
    if (!CanRun(GetParam())) GTEST_SKIP() << "this processor cannot run " << VariantName(GetParam());
    orbsPinVariant(static_cast<int>(GetParam()));
  }

  bool IsPx() const { return GetParam() == Variant::px; }
  bool IsAvx() const { return GetParam() == Variant::g9 || GetParam() == Variant::h9; }
};

}  // namespace orbs::test

#endif
