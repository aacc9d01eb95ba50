#include "engine/table_lookup.h"

#include <gtest/gtest.h>

namespace linecalc {
namespace {

// The annulus factor table: nodes 1, 5, 10, 20, 50, 100.
constexpr Real kNodes[] = {1, 5, 10, 20, 50, 100};
constexpr Real kValues[] = {1.5L, 1.45L, 1.4L, 1.35L, 1.28L, 1.25L};

TEST(LookupHalfOpen, HitsEveryNodeAndInterpolatesBetween) {
  for (std::size_t i = 0; i < std::size(kNodes); ++i) EXPECT_EQ(lookupHalfOpen(kNodes, kValues, kNodes[i]), kValues[i]);
  // half way between 5 and 10: (1.45 + 1.4) / 2
  EXPECT_NEAR(static_cast<double>(lookupHalfOpen(kNodes, kValues, 7.5L)), 1.425, 1e-15);
  // just below a node the lower interval still holds: 1.45 - (4.999999 / 5) * 0.05
  EXPECT_NEAR(static_cast<double>(lookupHalfOpen(kNodes, kValues, 9.999999L)), 1.40000001, 1e-12);
}

TEST(LookupHalfOpen, OutsideTheTableTakesTheEndValues) {
  EXPECT_EQ(lookupHalfOpen(kNodes, kValues, 0.5L), 1.5L);
  EXPECT_EQ(lookupHalfOpen(kNodes, kValues, 1000), 1.25L);
}

}  // namespace
}  // namespace linecalc
