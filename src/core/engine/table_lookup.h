#pragma once

#include <span>

#include "base/real.h"

namespace linecalc {

// The lookup shared by the tabulated coefficients: linear interpolation (Interpolieren) between
// neighbouring nodes in half-open intervals [x_i, x_i+1). A value at or beyond the last node takes
// the last value; a value below the first node takes the first. nodes must rise and have as many
// entries as values. Tables with other rules outside their range test those ranges themselves.
Real lookupHalfOpen(std::span<const Real> nodes, std::span<const Real> values, Real x);

}  // namespace linecalc
