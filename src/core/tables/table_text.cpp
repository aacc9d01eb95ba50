#include "tables/table_text.h"

namespace linecalc {

namespace {

void appendCell(std::string& out, const std::string& cell) {
  for (const char c : cell) out += (c == '\t' || c == '\n' || c == '\r') ? ' ' : c;
}

}  // namespace

std::string tabSeparatedText(const std::vector<std::vector<std::string>>& rows) {
  std::string out;
  for (const auto& row : rows) {
    for (std::size_t i = 0; i < row.size(); ++i) {
      if (i > 0) out += '\t';
      appendCell(out, row[i]);
    }
    out += '\n';
  }
  return out;
}

}  // namespace linecalc
