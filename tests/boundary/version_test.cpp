// The version record of each variant; what they have in common stands in the test of the first call.
#include "tests/support/export_test.h"

namespace orbs::test {
namespace {

class VersionTest : public ExportTest {};

TEST_P(VersionTest, TheRecordNamesTheVariant) {
  const OrbLibraryVersion* const version = legacy90orbsGetLibVersion();
  ASSERT_NE(version, nullptr);
  EXPECT_EQ(legacy90orbsGetLibVersion(), version);
  EXPECT_EQ(std::string(version->targetCpu, 2), VariantName(GetParam()));
  EXPECT_NE(std::string(version->name).find(std::string("(") + VariantName(GetParam()) + ")"),
            std::string::npos);
}

ORBS_INSTANTIATE_VARIANTS(VersionTest);

}  // namespace
}  // namespace orbs::test
