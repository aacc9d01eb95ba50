#include "tables/number_format.h"

#include <cmath>
#include <cstdlib>

#include "base/numbers.h"

namespace linecalc {

std::string formatTableNumber(Real value, int decimals, char separator) {
  std::string text = formatFixed(value, decimals, separator);
  if (decimals <= 0) text += separator;
  return text;
}

std::string formatScientific(Real value, char separator) {
  if (value == 0) return formatFixed(0, 3, separator) + "E+00";
  int exponent = static_cast<int>(std::floor(std::log10(std::fabs(value))));
  std::string mantissa = formatFixed(value / std::pow(10.0L, exponent), 3, separator);
  if (mantissa.find("10") == (value < 0 ? 1u : 0u)) {  // 9.9996 rounds up to 10.000
    ++exponent;
    mantissa = formatFixed(value / std::pow(10.0L, exponent), 3, separator);
  }
  const std::string digits = std::to_string(std::abs(exponent));
  return mantissa + (exponent < 0 ? "E-" : "E+") + (digits.size() < 2 ? "0" : "") + digits;
}

}  // namespace linecalc
