// Running a test in every variant that this processor can run.
#ifndef ORBS_TESTS_SUPPORT_VARIANTS_H
#define ORBS_TESTS_SUPPORT_VARIANTS_H

#include <gtest/gtest.h>

#include <string>

#include "tests/support/runnable_variants.h"

namespace orbs::test {

inline constexpr Variant kAllVariants[kVariantCount] = {Variant::px, Variant::w7, Variant::v8, Variant::s8,
                                                        Variant::p8, Variant::g9, Variant::h9};

// The name of the variant as the last part of the test's name.
struct VariantNamer {
  std::string operator()(const testing::TestParamInfo<Variant>& info) const {
    return VariantName(info.param);
  }
};

}  // namespace orbs::test

// Makes every TEST_P of a suite derived from testing::TestWithParam<orbs::Variant> run in all variants.
#define ORBS_INSTANTIATE_VARIANTS(suite)                                                    \
  INSTANTIATE_TEST_SUITE_P(AllVariants, suite, testing::ValuesIn(orbs::test::kAllVariants), \
                           orbs::test::VariantNamer())

#endif
