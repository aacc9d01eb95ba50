#pragma once

#include <string>

namespace linecalc {

// An element row of a result table, "label in unit: value", split at its last ": " and at the word
// for "in" before the unit. Without ": " every part is empty; without the word the unit is empty and
// the head is the whole label.
struct ElementRowText {
  std::string head;  // the text before the unit, the word for "in" and its blank included
  std::string unit;
  std::string value;
};
ElementRowText splitElementRow(const std::string& text, const std::string& inWord);

}  // namespace linecalc
