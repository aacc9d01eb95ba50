// The row groups of a result table.
#include <gtest/gtest.h>

#include "tables/row_groups.h"

namespace linecalc {
namespace {

TEST(RowGroups, EveryRowBelongsToItsGroup) {
  // The rows of each group as the result table lists them: medium 0-7, gas data 8-11,
  // piping element 12-20, results 21-33.
  struct Range {
    int first, last, group;
  };
  const Range ranges[] = {{0, 7, 0}, {8, 11, 1}, {12, 20, 2}, {21, 33, 3}};
  int covered = 0;
  for (const auto& r : ranges) {
    for (int row = r.first; row <= r.last; ++row, ++covered) EXPECT_EQ(rowGroup(row), r.group) << "row " << row;
  }
  EXPECT_EQ(covered, kResultRows);
}

}  // namespace
}  // namespace linecalc
