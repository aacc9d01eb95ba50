#pragma once

#include <string>
#include <string_view>

namespace linecalc {

// The n-th field (counted from 1) of a delimited row; empty when the row has fewer fields.
// The last field needs no trailing delimiter.
std::string Feld_holen(std::string_view line, char delimiter, int n);

}  // namespace linecalc
