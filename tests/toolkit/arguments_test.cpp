// The answer of every row to bad arguments.
#include "tests/support/bad_calls.h"
#include "tests/support/rows.h"
#include "tests/toolkit/toolkit_table.h"

namespace orbs::test {
namespace {

class ToolkitArgumentsTest : public ToolkitTest {};
ORBS_INSTANTIATE_VARIANTS(ToolkitArgumentsTest);

TEST_P(ToolkitArgumentsTest, BadArgumentsGiveTheirStatusAndWriteNothing) {
#define ORBS_CHECK(a, row) CheckBadCalls(NamedFunction{#row, t.row});
  ORBS_STATUS_ROWS(ORBS_CHECK, )
  ORBS_COUNTED_VOID_ROWS(ORBS_CHECK, )
#undef ORBS_CHECK
}

}  // namespace
}  // namespace orbs::test
