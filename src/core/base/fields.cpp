#include "base/fields.h"

namespace linecalc {

std::string Feld_holen(std::string_view line, char delimiter, int n) {
  if (n < 1) return {};
  std::size_t start = 0;
  for (int field = 1; field < n; ++field) {
    const std::size_t next = line.find(delimiter, start);
    if (next == std::string_view::npos) return {};
    start = next + 1;
  }
  const std::size_t end = line.find(delimiter, start);
  return std::string(line.substr(start, end == std::string_view::npos ? line.size() - start : end - start));
}

}  // namespace linecalc
