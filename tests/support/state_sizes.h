// The sizes of states that callers allocate by, as a record: they must not change.
#ifndef ORBS_TESTS_SUPPORT_STATE_SIZES_H
#define ORBS_TESTS_SUPPORT_STATE_SIZES_H

#include <vector>

#include "orbs90lgc.h"
#include "tests/support/samples.h"
#include "tests/support/variants.h"

namespace orbs::test {

struct SizeRow {
  Orb32s count;  // of taps, sections or the order
  Orb32s px, w7, v8, s8, g9;

  // p8 has the sizes of v8, h9 those of g9.
  Orb32s Of(Variant variant) const {
    const Orb32s sizes[kVariantCount] = {px, w7, v8, s8, v8, g9, g9};
    return sizes[static_cast<int>(variant)];
  }
};

// What the queries for one kind of state report.
struct RecordedSizes {
  const char* name;
  std::vector<OrbStatus (*)(Orb32s, Orb32s*)> queries;
  std::vector<SizeRow> rows;
};

inline void ExpectSizes(Variant variant, const std::vector<RecordedSizes>& records) {
  for (const RecordedSizes& record : records) {
    for (const auto query : record.queries) {
      Orb32s size = 0;
      for (const SizeRow& row : record.rows) {
        EXPECT_EQ(query(row.count, &size), StatusOk);
        EXPECT_EQ(size, row.Of(variant)) << record.name << ", " << row.count;
      }
      // A size beyond 31 bits.
      EXPECT_EQ(query(kMost, &size), StatusOk);
      EXPECT_EQ(size, kMost) << record.name;
    }
  }
}

}  // namespace orbs::test

#endif
