#pragma once

#include <string>
#include <vector>

namespace linecalc {

// Rows of cell texts as spreadsheets paste them: the cells of a row separated by a tab, every row
// ended by a line feed. A tab or a line break inside a cell would split it, so it becomes a blank.
std::string tabSeparatedText(const std::vector<std::vector<std::string>>& rows);

}  // namespace linecalc
