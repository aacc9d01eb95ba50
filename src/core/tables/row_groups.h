#pragma once

#include <array>

#include "tables/result_table.h"

namespace linecalc {

// The four row groups of a result table, by their first rows: the medium, the gas data, the piping
// element and the results.
inline constexpr int kRowGroups = 4;
inline constexpr std::array<int, kRowGroups> kFirstRowOfGroup = {0, 8, 12, 21};

// The group (0 to 3) of a row.
constexpr int rowGroup(int row) {
  int group = 0;
  while (group + 1 < kRowGroups && row >= kFirstRowOfGroup[static_cast<std::size_t>(group + 1)]) ++group;
  return group;
}

}  // namespace linecalc
