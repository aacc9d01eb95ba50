#include "properties/viscosity85.h"

#include <gtest/gtest.h>

#include "properties/if97.h"

namespace linecalc {
namespace {

// Worked by hand from the published coefficients: at the reference point T = 647.226 K, rho = 317.763 kg/m3
// the dilute-gas factor is 1 / (1 + 0.978197 + 0.579829 - 0.202354) = 0.4245089 and the residual factor
// exp(H00) = exp(0.5132047); with mu* = 55.071 uPa s the viscosity is 39.05621 uPa s. In the dilute-gas limit
// only the first factor remains: 23.37804 uPa s.
TEST(Visko85, ReferencePointWorkedByHand) {
  EXPECT_NEAR(static_cast<double>(Rechne_Visko(647.226L, 317.763L)), 39.056211, 1e-6);
  EXPECT_NEAR(static_cast<double>(Rechne_Visko(647.226L, 0)), 23.378042, 1e-6);
}

// The standard value for water at 20 °C and 101.325 kPa, 1.0016 mPa s (ISO/TR 3666), which the 1985
// formulation reproduces with the IF97 density.
TEST(Visko85, WaterAt20DegreesIsTheStandardValue) {
  const Real rho = Rechne_Dichte_Bereich1(293.15L, 1.01325L);
  EXPECT_NEAR(static_cast<double>(Rechne_Visko(293.15L, rho)), 1001.6, 0.05);
}

// The check values of the IAPWS 2008 viscosity release (Table 4, without critical enhancement), at the states
// where both formulations are valid. The 1985 equation is another fit of the same data and agrees within 1 %,
// the uncertainty of either formulation there; a wrong coefficient moves it further.
TEST(Visko85, AgreesWithTheLaterFormulationWithinItsUncertainty) {
  struct Case {
    Real T, rho, mu;  // K, kg/m3, uPa s
  };
  for (const Case& c :
       {Case{298.15L, 998, 889.735100L}, Case{373.15L, 1000, 307.883622L}, Case{433.15L, 1, 14.538324L},
        Case{433.15L, 1000, 217.685358L}, Case{873.15L, 1, 32.619287L}, Case{873.15L, 100, 35.802262L},
        Case{873.15L, 600, 77.430195L}, Case{1173.15L, 1, 44.217245L}, Case{1173.15L, 100, 47.640433L}}) {
    EXPECT_NEAR(static_cast<double>(Rechne_Visko(c.T, c.rho) / c.mu), 1.0, 0.01)
        << static_cast<double>(c.T) << " K, " << static_cast<double>(c.rho) << " kg/m3";
  }
}

// Steam tables: saturated water at 100 °C, about 282 uPa s; saturated steam about 12.3 uPa s.
TEST(Visko85, SaturatedStatesAt100Degrees) {
  const Real T = 373.15L, p = Rechne_Dampfdruck(T);
  EXPECT_NEAR(static_cast<double>(Rechne_Visko(T, Rechne_Dichte_Bereich1(T, p))), 281.8, 0.5);
  EXPECT_NEAR(static_cast<double>(Rechne_Visko(T, Rechne_Dichte_Bereich2(T, p))), 12.27, 0.05);
}

}  // namespace
}  // namespace linecalc
