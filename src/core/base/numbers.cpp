#include "base/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace linecalc {

namespace {

std::string withSeparator(std::string text, char separator) {
  std::replace(text.begin(), text.end(), '.', separator);
  return text;
}

}  // namespace

Real Zahl_lesen(std::string_view text, bool& Werteingabe) {
  std::string cleaned;
  cleaned.reserve(text.size());
  for (char c : text) {
    if (c == ' ') continue;
    cleaned.push_back(c == ',' ? '.' : c);
  }
  if (cleaned.empty()) return 0;

  // from_chars rejects a leading plus sign, which typed numbers may carry.
  const std::size_t skip = (cleaned.size() > 1 && cleaned[0] == '+' && cleaned[1] != '-') ? 1 : 0;
  const char* first = cleaned.data() + skip;
  const char* last = cleaned.data() + cleaned.size();
  Real value = 0;
  const auto [end, error] = std::from_chars(first, last, value);
  if (error != std::errc{} || end != last || !std::isfinite(value)) Werteingabe = false;
  return error == std::errc{} ? value : 0;
}

std::int64_t Runden(Real value) {
  return static_cast<std::int64_t>(value >= 0 ? value + 0.5L : value - 0.5L);
}

Real Interpolieren(Real x, Real x0, Real x1, Real y0, Real y1) {
  return ((x - x0) * (y1 - y0)) / (x1 - x0) + y0;
}

Real power(Real base, Real exponent) {
  // Whole exponents by repeated squaring: squares and cubes of diameter ratios stay exact products.
  // (rint and lrint round in the current mode; truncating would switch the x87 control word.)
  const bool whole = exponent == std::rint(exponent);
  if (whole && std::fabs(exponent) <= 64) {
    long n = std::lrint(std::fabs(exponent));
    Real result = 1, factor = base;
    for (; n > 0; n >>= 1, factor *= factor) {
      if (n & 1) result *= factor;
    }
    return exponent < 0 ? 1 / result : result;
  }
  if (base > 0) return std::exp2(exponent * std::log2(base));
  if (base == 0) return exponent > 0 ? 0 : INFINITY;
  if (!whole) return NAN;
  const Real magnitude = std::exp2(exponent * std::log2(-base));
  return std::fmod(exponent, 2) == 0 ? magnitude : -magnitude;
}

std::string formatFixed(Real value, int decimals, char separator) {
  decimals = std::clamp(decimals, 0, 30);
  std::array<char, 256> buffer{};
  char* const first = buffer.data();
  char* const last = first + buffer.size();
  // A value exactly half-way between two outputs is rounded away from zero, as a calculator shows it:
  // when one more decimal prints the value exactly and ends in 5, format its neighbour away from zero.
  const auto oneMore = std::to_chars(first, last, value, std::chars_format::fixed, decimals + 1);
  if (oneMore.ec != std::errc{}) return formatShortest(value, separator);  // too long for a fixed form
  Real printed = 0;
  std::from_chars(first, oneMore.ptr, printed);
  if (printed == value && oneMore.ptr[-1] == '5') value = std::nextafter(value, value < 0 ? -INFINITY : INFINITY);
  const auto result = std::to_chars(first, last, value, std::chars_format::fixed, decimals);
  return withSeparator(std::string(first, result.ptr), separator);
}

std::string formatShortest(Real value, char separator) {
  std::array<char, 128> buffer{};
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
  return withSeparator(std::string(buffer.data(), result.ptr), separator);
}

}  // namespace linecalc
