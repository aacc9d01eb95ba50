#include "engine/table_lookup.h"

#include "base/numbers.h"

namespace linecalc {

Real lookupHalfOpen(std::span<const Real> nodes, std::span<const Real> values, Real x) {
  if (x < nodes.front()) return values.front();
  for (std::size_t i = 0; i + 1 < nodes.size(); ++i) {
    if (x < nodes[i + 1]) return Interpolieren(x, nodes[i], nodes[i + 1], values[i], values[i + 1]);
  }
  return values.back();
}

}  // namespace linecalc
