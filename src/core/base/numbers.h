#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/real.h"

namespace linecalc {

// Reads a number typed by the user: blanks are removed, comma and point both mark the decimals,
// whatever the locale. An empty text is 0 and no error. A text that does not parse completely
// clears Werteingabe; the partial value returned then is never used by the caller.
Real Zahl_lesen(std::string_view text, bool& Werteingabe);

// Rounds half away from zero.
std::int64_t Runden(Real value);

// Linear interpolation through (x0, y0) and (x1, y1), without clamping.
Real Interpolieren(Real x, Real x0, Real x1, Real y0, Real y1);

// base raised to exponent. The x87 powl of the C library takes hundreds of nanoseconds; whole exponents
// up to 64 are multiplied out, others go through 2^(y lb x), which keeps far more than double
// precision (a relative error of about |y ln x| * 1e-19) at a tenth of the time. A negative base takes
// whole exponents only (NaN otherwise), as pow does.
Real power(Real base, Real exponent);

// Fixed notation with the given number of decimals and decimal separator, no digit grouping.
std::string formatFixed(Real value, int decimals, char separator);

// The shortest text that reads back to exactly the same value, with the given decimal separator.
std::string formatShortest(Real value, char separator);

}  // namespace linecalc
