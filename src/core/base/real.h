#pragma once

namespace linecalc {

// All calculation state is held in 80-bit extended precision on x86-64: region and range tests at
// exact boundaries (1073.15 K - 273.15 = 800) and iterations that stop at 1e-8 depend on it.
using Real = long double;

}  // namespace linecalc
