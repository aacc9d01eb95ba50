#pragma once

#include <string>

#include "base/real.h"

namespace linecalc {

// A result number as the table shows it: fixed with the decimals setting (0 to 6; at 0 decimals a
// trailing point, as "12."), no digit grouping, the current decimal separator.
std::string formatTableNumber(Real value, int decimals, char separator);

// The Reynolds numbers' scientific form "0.000E+00": three decimals, a signed exponent of at least
// two digits.
std::string formatScientific(Real value, char separator);

}  // namespace linecalc
