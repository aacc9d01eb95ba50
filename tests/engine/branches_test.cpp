#include "engine/branches.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace linecalc {
namespace {

constexpr Real kNaN = std::numeric_limits<Real>::quiet_NaN();

// Asserts a coefficient: NaN expected means "no value", otherwise within tol.
void expectZeta(Real got, Real want, double tol, const char* what) {
  if (std::isnan(want)) {
    EXPECT_TRUE(std::isnan(got)) << what << ": got " << static_cast<double>(got) << ", want NaN";
  } else {
    EXPECT_NEAR(static_cast<double>(got), static_cast<double>(want), tol) << what;
  }
}

// ---------------------------------------------------------------------------------------------------------
// Tees (5,1) to (5,4)

TEST(TStueck, FixedCoefficientsAndSharpEdgedFormula) {
  // (5,1): 1 + 0.075 * ((D1*D1)/(D2*D2))^2
  //   D1 = 100, D2 = 50:  (10000/2500)^2 = 16, 1 + 1.2 = 2.2
  //   D1 = D2:            1 + 0.075 = 1.075
  //   D1 = 50, D2 = 100:  (1/4)^2 = 1/16, 1 + 0.075/16 = 1.0046875
  expectZeta(Zeta_T_Stueck_scharfkantig(100, 50), 2.2L, 1e-15, "scharfkantig 100/50");
  expectZeta(Zeta_T_Stueck_scharfkantig(80, 80), 1.075L, 1e-15, "scharfkantig equal");
  expectZeta(Zeta_T_Stueck_scharfkantig(50, 100), 1.0046875L, 1e-15, "scharfkantig 50/100");
  expectZeta(Zeta_T_Stueck_scharfkantig(100, 0), kNaN, 0, "scharfkantig D2 = 0");
  EXPECT_EQ(Zeta_T_Stueck_kugelfoermig(), 5);
  EXPECT_EQ(Zeta_T_Stueck_abgerundet_Boden_gerade(), 0.7L);
  EXPECT_EQ(Zeta_T_Stueck_kugelfoermig_Hals_abgerundet(), 0.9L);
}

// ---------------------------------------------------------------------------------------------------------
// (5,5) dividing flow, turbulent

struct BranchCase {
  const char* what;
  bool Durchgang;
  Real V, Vz, D1, D2, R, delta;
  Real want;
  double tol;
};

TEST(AbzweigTrennung, MainRunAndBranchByHand) {
  const BranchCase cases[] = {
      // Main run: 0.35 q^2 + 0.03 (1-q)^2 - 0.2 q (1-q), independent of geometry and angle.
      {"run q = 0", true, 100, 0, 100, 100, 0, 90, 0.03L, 1e-15},
      // 0.35*0.25 + 0.03*0.25 - 0.2*0.25 = 0.0875 + 0.0075 - 0.05 = 0.045
      {"run q = 0.5", true, 100, 50, 100, 100, 0, 90, 0.045L, 1e-15},
      {"run q = 0.5, other geometry", true, 100, 50, 100, 50, 10, 45, 0.045L, 1e-15},
      // q = 1: the (1-q) terms vanish, 0.35
      {"run q = 1", true, 100, 100, 100, 100, 0, 90, 0.35L, 1e-15},

      // Branch, q = 0.5, f = 1, r = 0, delta = 90: 180 - 90 = 90, T = tan 45 = 1
      //   a = 0.4*0.5*0.5*(1+1)/1 = 0.2;  b = 0.95*0.25 + 0.2 = 0.4375
      //   c = 1.3 - 0.3 = 1;  d = 1;  e = (0.3/1)*1 + 1 = 1.3
      //   zeta = 0.25*1.3 + 0.4375 = 0.7625
      {"branch 90 deg, q = 0.5", false, 100, 50, 100, 100, 0, 90, 0.7625L, 1e-15},
      // Branch at an entered 45 deg: works as 135, T = tan 67.5 = 1 + sqrt 2, 1/T = sqrt 2 - 1 = 0.41421356
      //   a = 0.4*0.25*2*0.41421356 = 0.08284271;  b = 0.2375 + 0.08284271 = 0.32034271
      //   c = 1.3*0.41421356 - 0.3 = 0.23847763;  e = 0.3 + 0.23847763 = 0.53847763
      //   zeta = 0.25*0.53847763 + 0.32034271 = 0.45496212
      // (the plain angle, T = tan 22.5, would give 1.50496212)
      {"branch 45 deg works as 135", false, 100, 50, 100, 100, 0, 45, 0.45496212L, 1e-8},
      // An entered 135 deg works as 45: T = tan 22.5 = sqrt 2 - 1, 1/T = 2.41421356
      //   a = 0.4*0.25*2*2.41421356 = 0.48284271;  b = 0.2375 + 0.48284271 = 0.72034271
      //   c = 1.3*2.41421356 - 0.3 = 2.83847763;  e = 3.13847763;  zeta = 0.78461941 + 0.72034271
      {"branch 135 deg works as 45", false, 100, 50, 100, 100, 0, 135, 1.50496212L, 1e-8},
      // Reduced, rounded branch: D2/D1 = 0.5, f = 0.25; r = 10/100 = 0.1; q = 0.3;
      // entered 60 -> 120, T = tan 60 = sqrt 3, 1/T = 0.57735027
      //   a = 0.4*0.3*0.7*(4 + 1)*0.57735027 = 0.42*0.57735027 = 0.24248711
      //   b = 0.95*0.49 + 0.24248711 = 0.70798711
      //   c = 1.3*0.57735027 - 0.3 = 0.45055535
      //   d = 1 - 0.9*sqrt(0.1/0.25) = 1 - 0.9*0.63245553 = 0.43079002
      //   e = ((0.4 - 0.025)/0.0625)*0.43079002 + 0.45055535 = 6*0.43079002 + 0.45055535 = 3.03529547
      //   zeta = 0.09*3.03529547 + 0.70798711 = 0.98116371
      {"branch reduced and rounded", false, 100, 30, 100, 50, 10, 60, 0.98116371L, 1e-8},
      // Vz = V (q = 1): a = 0, b = 0, zeta = e = 0.3 + 1 = 1.3 at 90 deg
      {"branch q = 1", false, 100, 100, 100, 100, 0, 90, 1.3L, 1e-15},
      // Vz -> 0: zeta -> 0.95 (only the 0.95 (1-q)^2 term is left); q = 1e-9 lies 1.9e-9 below
      {"branch q -> 0", false, 1e9L, 1, 100, 100, 0, 90, 0.95L, 3e-9},
  };
  for (const auto& c : cases) {
    expectZeta(Zeta_Abzweig_Trennung(c.Durchgang, c.V, c.Vz, c.D1, c.D2, c.R, c.delta), c.want, c.tol, c.what);
  }
}

TEST(AbzweigTrennung, NoValueOutsideTheFormulasDomain) {
  const BranchCase cases[] = {
      {"run V = 0", true, 0, 10, 100, 100, 0, 90, kNaN, 0},
      {"branch V = 0", false, 0, 10, 100, 100, 0, 90, kNaN, 0},
      {"branch D1 = 0", false, 100, 50, 0, 100, 0, 90, kNaN, 0},
      {"branch D2 = 0", false, 100, 50, 100, 0, 0, 90, kNaN, 0},
      {"branch R < 0", false, 100, 50, 100, 100, -1, 90, kNaN, 0},
      {"branch delta = 0 (pole of the tangent)", false, 100, 50, 100, 100, 0, 0, kNaN, 0},
      {"branch delta = 180 (tangent 0)", false, 100, 50, 100, 100, 0, 180, kNaN, 0},
      {"branch delta < 0", false, 100, 50, 100, 100, 0, -10, kNaN, 0},
      // the main run has no use for the geometry: D2 = 0 and delta = 180 still give 0.045
      {"run ignores D2 = 0 and delta = 180", true, 100, 50, 100, 0, 0, 180, 0.045L, 1e-15},
  };
  for (const auto& c : cases) {
    expectZeta(Zeta_Abzweig_Trennung(c.Durchgang, c.V, c.Vz, c.D1, c.D2, c.R, c.delta), c.want, c.tol, c.what);
  }
  // Just inside the angle range there is a value.
  EXPECT_TRUE(std::isfinite(Zeta_Abzweig_Trennung(false, 100, 50, 100, 100, 0, 0.001L)));
  EXPECT_TRUE(std::isfinite(Zeta_Abzweig_Trennung(false, 100, 50, 100, 100, 0, 179.999L)));
}

// ---------------------------------------------------------------------------------------------------------
// (5,6) combining flow, turbulent

TEST(AbzweigVereinigung, MainRunAndBranchByHand) {
  const BranchCase cases[] = {
      // q = 0.5, f = 1, r = 0, delta = 90 (cos = 0)
      // run:    a = 1.62;  b = ((0 - 1)*1.62 + 1) - 0 = -0.62
      //         zeta = 0.03*0.25 + 0.25*1 - 0.25*(-0.62) = 0.0075 + 0.25 + 0.155 = 0.4125
      {"run 90 deg, q = 0.5", true, 100, 50, 100, 100, 0, 90, 0.4125L, 1e-15},
      // branch: a = 1.2;  b = -1.2;  c = 0 - 1.2;  e = -1.2 - 0
      //         zeta = -0.92*0.25 + 0.25 - 0.25*(-1.2) = -0.23 + 0.25 + 0.3 = 0.32
      {"branch 90 deg, q = 0.5", false, 100, 50, 100, 100, 0, 90, 0.32L, 1e-15},
      // The angle as entered: f = 0.25, r = 0.1 (sqrt = 0.31622777), q = 0.3, cos 45 = 0.70710678,
      // cos/f = 2.82842712
      // run:    a = 1.62 - 0.31622777 = 1.30377223
      //         b = (1.82842712*1.30377223 + 1) - 0.38*0.75 = 3.38385251 - 0.285 = 3.09885251
      //         zeta = 0.03*0.49 + 0.7*0.3*1.75 - 0.09*3.09885251 = 0.0147 + 0.3675 - 0.27889673 = 0.10330327
      {"run 45 deg, reduced", true, 100, 30, 100, 50, 10, 45, 0.10330327L, 1e-8},
      // branch: a = 1.2 - 0.31622777 = 0.88377223;  b = 1.82842712*0.88377223 = 1.61591312
      //         c = (1 - 16)*0.8 + 1.61591312 = -10.38408688
      //         e = -10.38408688 - 0.70710678*(0.75/0.25) = -12.50540722
      //         zeta = -0.92*0.49 + 0.3675 + 0.09*12.50540722 = -0.4508 + 0.3675 + 1.12548665 = 1.04218665
      {"branch 45 deg, reduced", false, 100, 30, 100, 50, 10, 45, 1.04218665L, 1e-8},
      // q = 1: (1-q) terms vanish, run = -b = 0.62, branch = -e = 1.2 (f = 1, r = 0, 90 deg)
      {"run q = 1", true, 100, 100, 100, 100, 0, 90, 0.62L, 1e-15},
      {"branch q = 1", false, 100, 100, 100, 100, 0, 90, 1.2L, 1e-15},
      // Vz -> 0: run -> 0.03, branch -> -0.92; q = 1e-9 moves them by about 1e-9
      {"run q -> 0", true, 1e9L, 1, 100, 100, 0, 90, 0.03L, 2e-9},
      {"branch q -> 0", false, 1e9L, 1, 100, 100, 0, 90, -0.92L, 3e-9},
      // Combining flow allows a branch flow above the main flow: q = 2, f = 1, r = 0, 90 deg
      //   run: 0.03*1 + (-1)*2*1 - 4*(-0.62) = 0.03 - 2 + 2.48 = 0.51
      {"run q = 2", true, 50, 100, 100, 100, 0, 90, 0.51L, 1e-15},
  };
  for (const auto& c : cases) {
    expectZeta(Zeta_Abzweig_Vereinigung(c.Durchgang, c.V, c.Vz, c.D1, c.D2, c.R, c.delta), c.want, c.tol, c.what);
  }
}

TEST(AbzweigVereinigung, NoValueOutsideTheFormulasDomain) {
  const BranchCase cases[] = {
      {"run V = 0", true, 0, 10, 100, 100, 0, 90, kNaN, 0},
      {"branch V = 0", false, 0, 10, 100, 100, 0, 90, kNaN, 0},
      {"run D1 = 0", true, 100, 50, 0, 100, 0, 90, kNaN, 0},
      {"branch D2 = 0", false, 100, 50, 100, 0, 0, 90, kNaN, 0},
      {"run R < 0", true, 100, 50, 100, 100, -1, 90, kNaN, 0},
      {"branch R < 0", false, 100, 50, 100, 100, -1, 90, kNaN, 0},
  };
  for (const auto& c : cases) {
    expectZeta(Zeta_Abzweig_Vereinigung(c.Durchgang, c.V, c.Vz, c.D1, c.D2, c.R, c.delta), c.want, c.tol, c.what);
  }
}

// The supplement 180 - delta belongs to the dividing-flow branch only: the combining flow takes cos of the
// entered angle. Run coefficient with f = 1, r = 0, q = 0.5: zeta = 0.0075 + 0.25 - 0.25 b,
// b = (cos delta - 1)*1.62 + 1.
//   45 deg:  b = -0.29289322*1.62 + 1 = 0.52551299;   zeta = 0.2575 - 0.13137825 = 0.12612175
//   135 deg: b = -1.70710678*1.62 + 1 = -1.76551299;  zeta = 0.2575 + 0.44137825 = 0.69887825
// Had 45 been replaced by 135 as in the dividing branch, the first would read 0.699.
TEST(AbzweigVereinigung, AngleIsUsedAsEnteredUnlikeTrennung) {
  EXPECT_NEAR(static_cast<double>(Zeta_Abzweig_Vereinigung(true, 100, 50, 100, 100, 0, 45)), 0.12612175, 1e-8);
  EXPECT_NEAR(static_cast<double>(Zeta_Abzweig_Vereinigung(true, 100, 50, 100, 100, 0, 135)), 0.69887825, 1e-8);
}

// Published counterparts: Crane Technical Paper 410 (2009), Examples 7-35 and 7-36, which follow
// Idelchik's tee correlations. Both refer the coefficient to the velocity of the combined stream, as here.
// The correlations differ, so these are checks of magnitude, not of digits.
TEST(AbzweigPublished, MagnitudeAgainstCraneExamples) {
  // Example 7-35: DN 100 tee, equal bores, 90 deg, 1135 l/min straight and 380 l/min joining through the
  // branch; q = 380/1515 = 0.2508. Crane: run 0.3258, branch -0.0403.
  // Here: run 0.2438 (by hand: 0.03*0.5613 + 0.7492*0.2508 + 0.62*0.0629),
  //       branch -0.2530 (-0.92*0.5613 + 0.1879 + 1.2*0.0629).
  const Real run735 = Zeta_Abzweig_Vereinigung(true, 1515, 380, 102.3L, 102.3L, 0, 90);
  const Real branch735 = Zeta_Abzweig_Vereinigung(false, 1515, 380, 102.3L, 102.3L, 0, 90);
  EXPECT_NEAR(static_cast<double>(run735), 0.3258, 0.1);
  // Both show the negative branch coefficient of a small joining stream drawn in by the main stream;
  // Gardel's form gives the stronger suction.
  EXPECT_LT(static_cast<double>(branch735), 0.0);
  EXPECT_NEAR(static_cast<double>(branch735), -0.0403, 0.25);

  // Example 7-36: DN 150 wye, equal bores, 45 deg, 1515 l/min straight on and 950 l/min leaving through
  // the branch; q = 950/2465 = 0.3854. Crane: branch 0.4640, run -0.0681.
  // Here: branch 0.5173 (the 45 deg working as 135 in the tangent; the plain tangent would give 1.28),
  //       run 0.0159 (0.35*0.1485 + 0.03*0.3777 - 0.2*0.2369).
  const Real branch736 = Zeta_Abzweig_Trennung(false, 2465, 950, 146.3L, 146.3L, 0, 45);
  const Real run736 = Zeta_Abzweig_Trennung(true, 2465, 950, 146.3L, 146.3L, 0, 45);
  EXPECT_NEAR(static_cast<double>(branch736), 0.4640, 0.1);
  EXPECT_NEAR(static_cast<double>(run736), -0.0681, 0.1);
}

// ---------------------------------------------------------------------------------------------------------
// (5,5) laminar

struct LaminarCase {
  const char* what;
  bool Durchgang;
  Real V, Vz, D1, D2, delta, t, Re;
  Real want;
  double tol;
};

TEST(AbzweigTrennungLaminar, MainRunAndTableOfTheBranch) {
  // With t = 1 and Re = 150 the branch gives (A + 1)*1 + 150/150 = A + 2, so each row reads A directly.
  const LaminarCase cases[] = {
      // run: 3 t + 33/Re = 3*0.045 + 33/1000 = 0.135 + 0.033 = 0.168
      {"run", true, 100, 50, 100, 100, 90, 0.045L, 1000, 0.168L, 1e-15},
      // branch, general form: q = 0.5 -> i = 5, 45 deg -> A = 3.6; (3.6 + 1)*0.5 + 150/1500 = 2.3 + 0.1 = 2.4
      {"branch i = 5, 45 deg", false, 100, 50, 100, 100, 45, 0.5L, 1500, 2.4L, 1e-15},

      // Row i = 5 over the angle: starts at (0, 0), nodes 30, 45, 60, 90, column 90 from 90 on.
      {"i = 5, 0 deg: A = 0", false, 100, 50, 100, 100, 0, 1, 150, 2, 1e-15},
      {"i = 5, 15 deg: A = 4.75/2", false, 100, 50, 100, 100, 15, 1, 150, 2 + 2.375L, 1e-15},
      // just below 30: 4.75*29.999/30 = 4.74984167
      {"i = 5, 29.999 deg", false, 100, 50, 100, 100, 29.999L, 1, 150, 2 + 4.74984167L, 1e-8},
      {"i = 5, 30 deg", false, 100, 50, 100, 100, 30, 1, 150, 2 + 4.75L, 1e-15},
      // just above 30: 4.75 + (0.001/15)*(3.6 - 4.75) = 4.74992333
      {"i = 5, 30.001 deg", false, 100, 50, 100, 100, 30.001L, 1, 150, 2 + 4.74992333L, 1e-8},
      {"i = 5, 60 deg", false, 100, 50, 100, 100, 60, 1, 150, 2 + 2.6L, 1e-15},
      // just below 90: 2.6 + (29.999/30)*(1.4 - 2.6) = 1.40004
      {"i = 5, 89.999 deg", false, 100, 50, 100, 100, 89.999L, 1, 150, 2 + 1.40004L, 1e-8},
      {"i = 5, 90 deg", false, 100, 50, 100, 100, 90, 1, 150, 2 + 1.4L, 1e-15},
      {"i = 5, 120 deg reads column 90", false, 100, 50, 100, 100, 120, 1, 150, 2 + 1.4L, 1e-15},
      // The angle as entered: 45 reads column 45 (3.6), not the supplement 135 (column 90, 1.4).
      {"i = 5, 45 deg as entered", false, 100, 50, 100, 100, 45, 1, 150, 2 + 3.6L, 1e-15},

      // Row i = 1: the interval [45, 60) starts with 1.35, the same as at 30, so 30..45 is flat.
      {"i = 1, 44.999 deg", false, 100, 10, 100, 100, 44.999L, 1, 150, 2 + 1.35L, 1e-15},
      {"i = 1, 45 deg", false, 100, 10, 100, 100, 45, 1, 150, 2 + 1.35L, 1e-15},
      // 1.35 + (5/15)*(1.2 - 1.35) = 1.3
      {"i = 1, 50 deg", false, 100, 10, 100, 100, 50, 1, 150, 2 + 1.3L, 1e-15},

      // Row index Runden(10 q): 0.04 -> 0 gives 0.9 at any angle; 0.05 -> 1.
      {"q = 0.04 -> i = 0", false, 100, 4, 100, 100, 45, 1, 150, 2 + 0.9L, 1e-15},
      {"q = 0.05 -> i = 1", false, 100, 5, 100, 100, 45, 1, 150, 2 + 1.35L, 1e-15},
      {"q = 0.149 -> i = 1", false, 1000, 149, 100, 100, 90, 1, 150, 2 + 1.0L, 1e-15},
      {"q = 0.15 -> i = 2", false, 100, 15, 100, 100, 90, 1, 150, 2 + 1.1L, 1e-15},
      {"q = 1 -> i = 10", false, 100, 100, 100, 100, 30, 1, 150, 2 + 6.0L, 1e-15},
      {"q = 1.04 -> i = 10", false, 100, 104, 100, 100, 90, 1, 150, 2 + 1.3L, 1e-15},

      // Branch wider than the main pipe (f > 1): 0.9 up to q = 0.4, 0 above, whatever the angle.
      {"f > 1, q = 0.4", false, 100, 40, 100, 120, 45, 1, 150, 2 + 0.9L, 1e-15},
      {"f > 1, q = 0.41", false, 100, 41, 100, 120, 45, 1, 150, 2, 1e-15},
      {"f > 1, q = 1.2", false, 100, 120, 100, 120, 45, 1, 150, 2, 1e-15},
      // f = 1 exactly belongs to the table: q = 0.41 -> i = 4, 90 deg -> 1.3
      {"f = 1, q = 0.41", false, 100, 41, 100, 100, 90, 1, 150, 2 + 1.3L, 1e-15},
  };
  for (const auto& c : cases) {
    expectZeta(Zeta_Abzweig_Trennung_laminar(c.Durchgang, c.V, c.Vz, c.D1, c.D2, c.delta, c.t, c.Re), c.want, c.tol,
               c.what);
  }
}

TEST(AbzweigTrennungLaminar, NoValueOutsideTheTable) {
  const LaminarCase cases[] = {
      {"run Re = 0", true, 100, 50, 100, 100, 90, 1, 0, kNaN, 0},
      {"branch Re = 0", false, 100, 50, 100, 100, 90, 1, 0, kNaN, 0},
      {"branch V = 0", false, 0, 50, 100, 100, 90, 1, 150, kNaN, 0},
      {"branch D2 = 0", false, 100, 50, 100, 0, 90, 1, 150, kNaN, 0},
      // q = 1.05 rounds to i = 11, for which there is no row
      {"q = 1.05 -> i = 11", false, 100, 105, 100, 100, 90, 1, 150, kNaN, 0},
      {"q = 1e30", false, 1, 1e30L, 100, 100, 90, 1, 150, kNaN, 0},
      {"angle below the table", false, 100, 50, 100, 100, -1, 1, 150, kNaN, 0},
      // with f > 1 the table is not read, so q = 1.05 still has a value: A = 0
      {"f > 1, q = 1.05", false, 100, 105, 100, 120, 90, 1, 150, 2, 1e-15},
  };
  for (const auto& c : cases) {
    expectZeta(Zeta_Abzweig_Trennung_laminar(c.Durchgang, c.V, c.Vz, c.D1, c.D2, c.delta, c.t, c.Re), c.want, c.tol,
               c.what);
  }
}

// ---------------------------------------------------------------------------------------------------------
// (5,6) laminar

TEST(AbzweigVereinigungLaminar, BranchAndMainRun) {
  const LaminarCase cases[] = {
      // branch: 2 t + 150/Re = 0.64 + 0.1 = 0.74
      {"branch", false, 100, 50, 100, 100, 0, 0.32L, 1500, 0.74L, 1e-15},
      // run, n = 1, q = 0.5: C = 1.2 - 0.5 = 0.7; u = 0.25*0.7 - 0.25*1.3 = -0.15; 2*0.4125 - 0.15 = 0.675
      {"run n = 1, q = 0.5", true, 100, 50, 100, 100, 0, 0.4125L, 1500, 0.675L, 1e-15},
      // t = 0 from here on, so the result is u.
      // n = 1, q = 0.1: C = 1.8 - 0.4 = 1.4; u = 0.81*1.4 - 0.01*1.3 = 1.134 - 0.013 = 1.121
      {"run n = 1, q = 0.1", true, 100, 10, 100, 100, 0, 0, 1500, 1.121L, 1e-15},
      // n = 1, q = 0.2 (last of 1.8 - 4q): C = 1.0; u = 0.64 - 0.04*1.3 = 0.588
      {"run n = 1, q = 0.2", true, 100, 20, 100, 100, 0, 0, 1500, 0.588L, 1e-15},
      // n = 1, q = 0.3: C = 1.2 - 0.3 = 0.9; u = 0.49*0.9 - 0.09*1.3 = 0.441 - 0.117 = 0.324
      {"run n = 1, q = 0.3", true, 100, 30, 100, 100, 0, 0, 1500, 0.324L, 1e-15},
      // n = 0.25 (<= 0.35), q = 0.1: C = 1.7; m = 4; u = 0.81*1.7 - 0.16*(1.6 - 0.075) = 1.377 - 0.244 = 1.133
      {"run n = 0.25, q = 0.1", true, 100, 10, 100, 50, 0, 0, 1500, 1.133L, 1e-15},
      // n = 0.25, q = 0.5: C = 1.3; u = 0.25*1.3 - (4*0.5)^2*1.525 = 0.325 - 6.1 = -5.775
      {"run n = 0.25, q = 0.5", true, 100, 50, 100, 50, 0, 0, 1500, -5.775L, 1e-14},
      // Around n = 0.35 at q = 0.1:
      //   D2 = 59.16 mm: n = 0.34999056 -> C = 1.7; m = 2.85722 -> u = 1.37700 - 0.12205 = 1.25495237
      //   D2 = 59.17 mm: n = 0.35010889 -> C = 1.4; m = 2.85625 -> u = 1.13400 - 0.12196 = 1.01203775
      {"run n just below 0.35", true, 100, 10, 100, 59.16L, 0, 0, 1500, 1.25495237L, 1e-8},
      {"run n just above 0.35", true, 100, 10, 100, 59.17L, 0, 0, 1500, 1.01203775L, 1e-8},
      // n = 0.36: m = 2.7777778, (m q)^2 = 0.07716049, 1.6 - 0.108 = 1.492
      //   u = 0.81*1.4 - 0.07716049*1.492 = 1.134 - 0.11512346 = 1.01887654
      {"run n = 0.36, q = 0.1", true, 100, 10, 100, 60, 0, 0, 1500, 1.01887654L, 1e-8},
      // The main run has no Reynolds term: Re = 0 is no obstacle there.
      {"run Re = 0", true, 100, 10, 100, 100, 0, 0, 0, 1.121L, 1e-15},
      {"branch Re = 0", false, 100, 10, 100, 100, 0, 0, 0, kNaN, 0},
      {"run V = 0", true, 0, 10, 100, 100, 0, 0, 1500, kNaN, 0},
      {"run D2 = 0", true, 100, 10, 100, 0, 0, 0, 1500, kNaN, 0},
  };
  for (const auto& c : cases) {
    expectZeta(Zeta_Abzweig_Vereinigung_laminar(c.Durchgang, c.V, c.Vz, c.D1, c.D2, c.t, c.Re), c.want, c.tol, c.what);
  }
}

// ---------------------------------------------------------------------------------------------------------
// Trouser pipes (5,7), (5,8)

struct TableCase {
  const char* what;
  Real x;
  Real want;
  double tol;
};

TEST(HosenrohrGerade, NodesBetweenAndOutside) {
  const TableCase cases[] = {
      {"0", 0, 0, 1e-15},
      {"5: half of 0.1", 5, 0.05L, 1e-15},
      {"10", 10, 0.1L, 1e-15},
      {"30", 30, 0.3L, 1e-15},
      // 0.3 + (7.5/15)*0.4 = 0.5
      {"37.5", 37.5L, 0.5L, 1e-15},
      // just below 45: 0.7 - 0.001*(0.4/15) = 0.69997333
      {"44.999", 44.999L, 0.69997333L, 1e-8},
      {"45", 45, 0.7L, 1e-15},
      {"60", 60, 1.0L, 1e-15},
      // 1 + (15/30)*0.4 = 1.2
      {"75", 75, 1.2L, 1e-15},
      {"90", 90, 1.4L, 1e-15},
      {"above 90", 90.001L, kNaN, 0},
      {"below 0", -0.001L, kNaN, 0},
  };
  for (const auto& c : cases) expectZeta(Zeta_Hosenrohr_gerade(c.x), c.want, c.tol, c.what);
}

TEST(HosenrohrGekruemmt, NodesBetweenAndOutside) {
  // x is R in mm with D = 100 mm, so r = x/100.
  const TableCase cases[] = {
      {"r = 0.5", 50, 1.1L, 1e-15},
      // 1.1 + (0.125/0.25)*(0.6 - 1.1) = 0.85
      {"r = 0.625", 62.5L, 0.85L, 1e-15},
      {"r = 0.75", 75, 0.6L, 1e-15},
      {"r = 1", 100, 0.4L, 1e-15},
      {"r = 1.5", 150, 0.25L, 1e-15},
      // 0.25 + (0.25/0.5)*(0.2 - 0.25) = 0.225
      {"r = 1.75", 175, 0.225L, 1e-15},
      // just below 2: 0.25 + (0.4999/0.5)*(-0.05) = 0.20001
      {"r = 1.9999", 199.99L, 0.20001L, 1e-12},
      {"r = 2", 200, 0.2L, 1e-15},
      {"r above 2", 200.01L, kNaN, 0},
      {"r below 0.5", 49.99L, kNaN, 0},
  };
  for (const auto& c : cases) expectZeta(Zeta_Hosenrohr_gekruemmt(100, c.x), c.want, c.tol, c.what);
  expectZeta(Zeta_Hosenrohr_gekruemmt(0, 100), kNaN, 0, "D = 0");
}

}  // namespace
}  // namespace linecalc
