#include "properties/if97.h"

#include <gtest/gtest.h>

#include <cmath>

#include "properties/viscosity85.h"
#include "properties/water_state.h"

namespace linecalc {
namespace {

// The verification tables give nine significant digits.
void expectNineDigits(Real actual, Real expected) {
  EXPECT_NEAR(static_cast<double>(actual / expected), 1.0, 5e-9) << static_cast<double>(actual);
}

struct GibbsCase {
  Real T;  // K
  Real p;  // MPa, as the tables give it
  Real v;  // m3/kg
};

// IAPWS-IF97 (2007 revision), Table 5: specific volume of Region 1.
TEST(IF97, Region1MatchesTheVerificationTable) {
  for (const GibbsCase& c :
       {GibbsCase{300, 3, 0.100215168e-2L}, GibbsCase{300, 80, 0.971180894e-3L}, GibbsCase{500, 3, 0.120241800e-2L}}) {
    expectNineDigits(Rechne_Dichte_Bereich1(c.T, 10 * c.p), 1 / c.v);
  }
}

// IAPWS-IF97 (2007 revision), Table 15: specific volume of Region 2.
TEST(IF97, Region2MatchesTheVerificationTable) {
  for (const GibbsCase& c : {GibbsCase{300, 0.0035L, 0.394913866e2L}, GibbsCase{700, 0.0035L, 0.923015898e2L},
                             GibbsCase{700, 30, 0.542946619e-2L}}) {
    expectNineDigits(Rechne_Dichte_Bereich2(c.T, 10 * c.p), 1 / c.v);
  }
}

// IAPWS-IF97 as first released (1997), Table 42: specific volume of Region 5 by the five-term residual part.
// The 2007 revision replaced those terms and its table gives other numbers (1500 K, 0.5 MPa: 0.138455090e1
// m3/kg), so references built on the revision must not be used here.
TEST(IF97, Region5MatchesTheFirstReleaseVerificationTable) {
  for (const GibbsCase& c :
       {GibbsCase{1500, 0.5L, 0.138455354e1L}, GibbsCase{1500, 8, 0.865156616e-1L}, GibbsCase{2000, 8, 0.115743146L}}) {
    expectNineDigits(Rechne_Dichte_Bereich5(c.T, 10 * c.p), 1 / c.v);
  }
  EXPECT_GT(std::fabs(1 / Rechne_Dichte_Bereich5(1500, 5) - 0.138455090e1L), 2e-6L);  // not the revision's value
}

// IAPWS-IF97 (2007 revision), Table 33: pressure of the Region 3 equation at given density and temperature;
// the iteration finds those densities back from the pressures.
TEST(IF97, Region3MatchesTheVerificationTableBothWays) {
  struct Case {
    Real T, rho, p;  // K, kg/m3, MPa
  };
  for (const Case& c :
       {Case{650, 500, 0.255837018e2L}, Case{650, 200, 0.222930643e2L}, Case{750, 500, 0.783095639e2L}}) {
    expectNineDigits(region3Pressure(c.rho, c.T), 10 * c.p);
    const Region3Solution s = solveRegion3(c.T, 10 * c.p);
    EXPECT_NEAR(static_cast<double>(s.density), static_cast<double>(c.rho), 2e-5) << static_cast<double>(c.T);
    EXPECT_FALSE(s.rescued);
  }
}

// IAPWS-IF97 (2007 revision), Tables 35 and 36: saturation pressure and temperature.
TEST(IF97, SaturationMatchesTheVerificationTables) {
  struct Case {
    Real T, p;  // K, MPa
  };
  for (const Case& c : {Case{300, 0.353658941e-2L}, Case{500, 0.263889776e1L}, Case{600, 0.123443146e2L}}) {
    expectNineDigits(Rechne_Dampfdruck(c.T), 10 * c.p);
  }
  for (const Case& c : {Case{0.372755919e3L, 0.1L}, Case{0.453035632e3L, 1}, Case{0.584149488e3L, 10}}) {
    expectNineDigits(Rechne_Siedetemp(10 * c.p), c.T);
  }
  // Steam tables: water boils at 100 °C under 1.01418 bar.
  EXPECT_NEAR(static_cast<double>(Rechne_Dampfdruck(373.15L)), 1.01418, 5e-5);
}

// IAPWS-IF97 (2007 revision), Section 4: the B23 equation gives 16.5291643 MPa at 623.15 K, and back.
TEST(IF97, BoundaryBetweenRegions2And3) {
  expectNineDigits(boundary23Pressure(623.15L), 165.291643L);
  EXPECT_NEAR(static_cast<double>(boundary23Temperature(165.291643L)), 623.15, 1e-6);
}

// From the start table the Newton iteration converges, near saturation below the critical temperature, to
// a root of the Region 3 equation far beyond the states of water; the physical root replaces it.
TEST(IF97, Region3LandsOnThePhysicalRoot) {
  struct Case {
    Real T, p, spurious, physical;  // K, bar, kg/m3, kg/m3
  };
  for (const Case& c : {Case{630, 225, 968.9L, 586.9L}, Case{624.2L, 221, 958.9L, 608.3L}}) {
    const Region3Solution s = solveRegion3(c.T, c.p);
    EXPECT_NEAR(static_cast<double>(s.iterated), static_cast<double>(c.spurious), 0.05);
    EXPECT_TRUE(s.rescued);
    EXPECT_NEAR(static_cast<double>(s.density), static_cast<double>(c.physical), 0.05);
    expectNineDigits(region3Pressure(s.density, c.T), c.p);
    EXPECT_EQ(Rechne_Dichte_Bereich3(c.T, c.p), s.density);
  }
}

// Over the whole of Region 3 the density found reproduces the pressure and lies where the neighbouring
// regions put the states: at 623.15 K beside Region 1, along the B23 line beside Region 2 (the equations
// agree there to well within 0.2 percent).
TEST(IF97, Region3IsConsistentWithItsNeighbours) {
  for (Real T = 623.16L; T <= 863.15L; T += 4) {
    for (Real p = std::ceil(boundary23Pressure(T)); p <= 1000; p += 15) {
      const Real rho = Rechne_Dichte_Bereich3(T, p);
      ASSERT_GT(rho, 0) << static_cast<double>(T) << " K " << static_cast<double>(p) << " bar";
      EXPECT_NEAR(static_cast<double>(region3Pressure(rho, T) / p), 1.0, 1e-9);
    }
  }
  for (Real p = 170; p <= 1000; p += 30) {
    EXPECT_NEAR(static_cast<double>(Rechne_Dichte_Bereich3(623.15L, p) / Rechne_Dichte_Bereich1(623.15L, p)), 1.0, 2e-3)
        << static_cast<double>(p);
  }
  for (Real T = 630; T <= 860; T += 20) {
    const Real p = boundary23Pressure(T);
    EXPECT_NEAR(static_cast<double>(Rechne_Dichte_Bereich3(T, p) / Rechne_Dichte_Bereich2(T, p)), 1.0, 2e-3)
        << static_cast<double>(T);
  }
}

// ---- the region rules of the calculation

struct RuleCase {
  const char* what;
  Real p;  // bar
  Real T;  // K
  bool inRange;
  int region;
  bool liquid;
};

TEST(WaterState, RegionRulesAndRange) {
  const RuleCase cases[] = {
      {"cold water", 1.013L, 293.15L, true, 1, true},
      {"steam at atmospheric pressure", 1.013L, 473.15L, true, 2, false},
      {"400 °C, 300 bar, supercritical", 300, 673.15L, true, 3, true},
      {"Region 5 at exactly 1073.15 K up to 100 bar", 50, 1073.15L, true, 5, false},
      {"Region 2 at 1073.15 K above 100 bar", 200, 1073.15L, true, 2, false},
      {"900 °C and 100 bar pass", 100, 1173.15L, true, 5, false},
      {"1000 bar at 800 °C pass", 1000, 1073.15L, true, 2, false},
      {"100.01 bar at 800.01 °C", 100.01L, 1073.16L, false, 1, true},
      {"900.01 °C", 1, 1173.16L, false, 1, true},
      {"no pressure", 0, 293.15L, false, 1, true},
      {"above 1000 bar", 1000.01L, 293.15L, false, 1, true},
      {"below 0 °C", 1, 273.14L, false, 1, true},
      {"0 °C", 1, 273.15L, true, 1, true},
      {"623.1504 K counts as 623.15 K", 200, 623.1504L, true, 1, true},
      {"623.1506 K lies above the Region 1 limit", 200, 623.1506L, true, 3, true},
      {"vapour beside the critical point below the B23 line", 180, 640, true, 2, false},
      {"Region 3 vapour between the B23 line and saturation", 200, 640, true, 3, true},
  };
  for (const RuleCase& c : cases) {
    const WaterState s = waterState(c.p, c.T);
    EXPECT_EQ(s.inRange, c.inRange) << c.what;
    EXPECT_EQ(s.region, c.region) << c.what;
    EXPECT_EQ(s.liquid, c.liquid) << c.what;
    EXPECT_EQ(s.valid, c.inRange) << c.what;
  }
}

TEST(WaterState, TheDensityComesFromTheRegionItsRuleNames) {
  EXPECT_EQ(waterState(50, 1073.15L).density, Rechne_Dichte_Bereich5(1073.15L, 50));
  EXPECT_EQ(waterState(200, 1073.15L).density, Rechne_Dichte_Bereich2(1073.15L, 200));
  EXPECT_EQ(waterState(300, 673.15L).density, Rechne_Dichte_Bereich3(673.15L, 300));
  EXPECT_EQ(waterState(1.013L, 293.15L).density, Rechne_Dichte_Bereich1(293.15L, 1.013L));
  const WaterState s = waterState(1.013L, 293.15L);
  EXPECT_EQ(s.specificVolume, 1 / s.density);
  EXPECT_EQ(s.viscosity, Rechne_Visko(293.15L, s.density));
}

TEST(WaterState, AtTheBoundariesTheLaterRuleWins) {
  // At p = ps Region 2 wins over Region 1.
  const Real T = 423.15L;
  const WaterState saturated = waterState(Rechne_Dampfdruck(T), T);
  EXPECT_EQ(saturated.region, 2);
  EXPECT_FALSE(saturated.liquid);
  EXPECT_EQ(waterState(std::nextafter(Rechne_Dampfdruck(T), 1000.0L), T).region, 1);
  // At p = pB23 Region 3 wins over Region 2.
  EXPECT_EQ(waterState(boundary23Pressure(700), 700).region, 3);
  EXPECT_EQ(waterState(std::nextafter(boundary23Pressure(700), 0.0L), 700).region, 2);
  // Region 3 below saturation lies on the vapour branch, above it on the liquid branch.
  EXPECT_LT(waterState(200, 640).density, 322);
  EXPECT_GT(waterState(210, 640).density, 322);
}

TEST(WaterState, ReadsUnitsLikeTheDialog) {
  const WaterState s = waterState(14.7L, "psia", 68, "degF");
  EXPECT_NEAR(static_cast<double>(s.pressure), 14.7 * 0.068947581976, 1e-12);
  EXPECT_NEAR(static_cast<double>(s.temperature), 0.55556 * 68 + 255.38, 1e-12);
  EXPECT_EQ(s.region, 1);
  // 800 °C is exactly 1073.15 K in extended precision: Region 5 at 50 bar.
  EXPECT_EQ(waterState(50, "bar", 800, "°C").region, 5);
  EXPECT_EQ(waterState(0.1L, "MPa", 100, "°C").region, 2);  // water boils at 100 °C only from 1.01418 bar
  EXPECT_EQ(waterState(0.102L, "MPa", 100, "°C").region, 1);
}

}  // namespace
}  // namespace linecalc
