#include "tables/element_row_text.h"

namespace linecalc {

ElementRowText splitElementRow(const std::string& text, const std::string& inWord) {
  ElementRowText parts;
  const std::size_t colon = text.rfind(": ");
  if (colon == std::string::npos) return parts;
  parts.value = text.substr(colon + 2);
  const std::string label = text.substr(0, colon);
  const std::string marker = " " + inWord + " ";
  const std::size_t in = label.rfind(marker);
  if (in == std::string::npos) {
    parts.head = label;
    return parts;
  }
  parts.head = label.substr(0, in + marker.size());
  parts.unit = label.substr(in + marker.size());
  return parts;
}

}  // namespace linecalc
