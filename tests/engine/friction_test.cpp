#include "engine/friction.h"

#include <gtest/gtest.h>

#include "base/numbers.h"

#include <cmath>
#include <limits>
#include <numbers>

namespace linecalc {
namespace {

constexpr Real kInf = std::numeric_limits<Real>::infinity();

// Colebrook's equation written in x = 1/sqrt(lambda): x + c1 ln(2.51 x / Re + c2 k/d) = 0. The left side rises
// strictly with x, so plain bisection on x in [0.5, 100] (lambda from 1e-4 to 4) finds the root to 1e-15.
Real colebrookByBisection(Real kd, Real Re, Real c1 = 0.868588L, Real c2 = 0.269L) {
  Real lo = 0.5L, hi = 100;
  while (hi - lo > 1e-15L) {
    const Real x = (lo + hi) / 2;
    (x + c1 * std::log(2.51L * x / Re + c2 * kd) > 0 ? hi : lo) = x;
  }
  const Real x = (lo + hi) / 2;
  return 1 / (x * x);
}

// Prandtl's smooth-pipe law in x = 1/sqrt(lambda): x - (0.868588 ln(Re / x) - 0.8) = 0, rising with x.
Real prandtlByBisection(Real Re) {
  Real lo = 0.5L, hi = 100;
  while (hi - lo > 1e-15L) {
    const Real x = (lo + hi) / 2;
    (x - (0.868588L * std::log(Re / x) - 0.8L) > 0 ? hi : lo) = x;
  }
  const Real x = (lo + hi) / 2;
  return 1 / (x * x);
}

// Residuals of the two equations in the lambda form used for the friction factor.
Real colebrookResidual(Real lambda, Real kd, Real Re) {
  return 1 / std::sqrt(lambda) + 0.868588L * std::log(2.51L / (std::sqrt(lambda) * Re) + 0.269L * kd);
}
Real prandtlResidual(Real lambda, Real Re) {
  return 1 / std::sqrt(lambda) - (0.868588L * std::log(std::sqrt(lambda) * Re) - 0.8L);
}

struct ColebrookCase {
  Real k;  // mm, with d = 100 mm
  Real Re;
};

TEST(LambdaColebrook, SolvesTheEquationWithItsRoundedConstants) {
  // Converging cases of the iteration and the two regimes where it leaves lambda > 0 (k/d = 1e-5 beyond
  // Re 1.2e7) and the bracketed solution takes over. Cross-checked with a 40-digit solution (mpmath):
  // (0, 1e4) 0.0308830098, (1e-4, 1e5) 0.0185115202, (1e-3, 1e6) 0.0199220659, (1e-2, 1e5) 0.0384451163,
  // (1e-5, 2e7) 0.0085949722, (0, 1e8) 0.0059404787.
  const ColebrookCase cases[] = {
      {0, 1e4L}, {0.01L, 1e5L},  {0.1L, 1e6L},   {1, 1e5L},        {0, 1e8L},
      {5, 3000}, {0.001L, 2e7L}, {0.001L, 1e7L}, {0.001L, 1.3e7L}, {0.001L, 1e9L},
  };
  for (const auto& c : cases) {
    const Real expected = colebrookByBisection(c.k / 100, c.Re);
    const Real lambda = Lambda_Colebrook(c.k, c.Re, 100);
    EXPECT_NEAR(static_cast<double>(lambda), static_cast<double>(expected), 1e-12) << c.k << " " << c.Re;
  }
}

TEST(LambdaColebrook, LargeReynoldsNumbersWithSmoothWallsStillGetARoot) {
  // Started at 0.02, the iteration steps onto lambda <= 0 here; the result must still satisfy the equation.
  const ColebrookCase cases[] = {{0.001L, 2e7L}, {0.001L, 1e8L}, {0.0001L, 5e8L}, {0, 1e9L}};
  for (const auto& c : cases) {
    const Real lambda = Lambda_Colebrook(c.k, c.Re, 100);
    ASSERT_TRUE(std::isfinite(lambda)) << c.k << " " << c.Re;
    EXPECT_LT(std::fabs(colebrookResidual(lambda, c.k / 100, c.Re)), 1e-10L) << c.k << " " << c.Re;
  }
  // 40-digit solution at k/d = 1e-5, Re = 2e7: 0.008594972200459122594
  EXPECT_NEAR(static_cast<double>(Lambda_Colebrook(0.001L, 2e7L, 100)), 0.008594972200459122594, 1e-15);
}

TEST(LambdaColebrook, AgreesWithTheMoodyChartAndShowsTheRoundedConstants) {
  // Smooth pipe at Re = 1e5: Moody chart 0.0180; Colebrook with exact 2/ln 10 gives 0.017989773. The rounded
  // 0.868588 (2/ln 10 = 0.8685889638) raises it by only 3.6e-8 to 0.017989809.
  const Real smooth = Lambda_Colebrook(0, 1e5L, 100);
  const Real smoothExact = colebrookByBisection(0, 1e5L, 2 / std::numbers::ln10_v<Real>, 1 / 3.7L);
  EXPECT_NEAR(static_cast<double>(smooth), 0.0180, 1e-4);
  EXPECT_NEAR(static_cast<double>(smoothExact), 0.0179897731, 1e-10);
  EXPECT_NEAR(static_cast<double>(smooth - smoothExact), 3.58e-8, 0.05e-8);

  // Smooth pipe at Re = 1e6: Moody chart 0.0116.
  EXPECT_NEAR(static_cast<double>(Lambda_Colebrook(0, 1e6L, 100)), 0.0116, 1e-4);

  // Fully rough, k/d = 1e-3: von Karman/Nikuradse 1/sqrt(lambda) = 2 lg(3.7 d/k) gives 0.0196355. Here the
  // rounded 0.269 (1/3.7 = 0.27027) matters: 0.0196162 against 0.0196386 with the exact constants at Re 1e8.
  const Real rough = Lambda_Colebrook(0.1L, 1e8L, 100);
  EXPECT_NEAR(static_cast<double>(rough), 0.0196162, 1e-7);
  EXPECT_NEAR(static_cast<double>(colebrookByBisection(1e-3L, 1e8L, 2 / std::numbers::ln10_v<Real>, 1 / 3.7L)),
              0.0196386, 1e-7);
  EXPECT_NEAR(static_cast<double>(rough), 0.0196355, 0.0001);
}

TEST(LambdaColebrook, UndefinedInputsGiveNaN) {
  EXPECT_TRUE(std::isnan(Lambda_Colebrook(0, 0, 100)));
  EXPECT_TRUE(std::isnan(Lambda_Colebrook(0, -1e5L, 100)));
  EXPECT_TRUE(std::isnan(Lambda_Colebrook(0, 1e5L, 0)));
  EXPECT_TRUE(std::isnan(Lambda_Colebrook(-0.1L, 1e5L, 100)));
  // 0.269 k/d >= 1 leaves no root: k = 380 mm in d = 100 mm.
  EXPECT_TRUE(std::isnan(Lambda_Colebrook(380, 1e5L, 100)));
  EXPECT_TRUE(std::isfinite(Lambda_Colebrook(360, 1e5L, 100)));
}

struct BranchCase {
  const char* what;
  Real k;
  Real Re;
  Real expected;
};

TEST(LambdaAbschnitte, SmoothPipeBranchesAndTheirBoundaries) {
  // Blasius 0.3164 Re^-0.25:  Re = 1e5: 0.3164 / 17.7827941 = 0.0177924795290226;
  //                           Re = 2320: 0.3164 / 6.94022 = 0.0455894632038448.
  // Nikuradse 0.221 Re^-0.237 + 0.0032:  Re = 1e5: 0.221 * 0.0653130 + 0.0032 = 0.0176341852135091;
  //                                      Re = 1e6: 0.221 * 0.0378443 + 0.0032 = 0.0115635811222478.
  // Prandtl just above Re = 1e6 (40-digit root): 0.0116465663202952.
  const BranchCase cases[] = {
      {"2320 Blasius", 0, 2320, 0.0455894632038448L},
      {"1e5 Blasius", 0, 100000, 0.0177924795290226L},
      {"just above 1e5", 0, std::nextafter(100000.0L, kInf), 0.0176341852135091L},
      {"1e6 Nikuradse", 0, 1000000, 0.0115635811222478L},
      {"just above 1e6", 0, std::nextafter(1000000.0L, kInf), 0.0116465663202952L},
  };
  for (const auto& c : cases) {
    EXPECT_NEAR(static_cast<double>(Lambda_Abschnitte(c.k, c.Re, 100)), static_cast<double>(c.expected), 2e-16)
        << c.what;
  }
  // The Blasius value is the formula's, not the rounded 0.017793.
  EXPECT_NE(static_cast<double>(Lambda_Abschnitte(0, 100000, 100)), 0.017793);
  // Below 2320 there is no turbulent smooth-pipe value.
  EXPECT_TRUE(std::isnan(Lambda_Abschnitte(0, std::nextafter(2320.0L, 0.0L), 100)));
}

TEST(LambdaAbschnitte, PrandtlLawHoldsUpToVeryLargeReynoldsNumbers) {
  // From about Re 5.9e6 the iteration started at 0.02 steps onto lambda <= 0; the root must still be found.
  const Real reynolds[] = {2e6L, 5.8e6L, 6e6L, 1e7L, 1e8L, 1e10L};
  for (const Real Re : reynolds) {
    const Real lambda = Lambda_Abschnitte(0, Re, 100);
    ASSERT_TRUE(std::isfinite(lambda)) << Re;
    EXPECT_LT(std::fabs(prandtlResidual(lambda, Re)), 1e-10L) << Re;
    EXPECT_NEAR(static_cast<double>(lambda), static_cast<double>(prandtlByBisection(Re)), 1e-12) << Re;
  }
  // 40-digit roots: Re 1e7 0.0081035702526228, Re 1e8 0.0059410395726631.
  EXPECT_NEAR(static_cast<double>(Lambda_Abschnitte(0, 1e7L, 100)), 0.0081035702526228, 1e-15);
  EXPECT_NEAR(static_cast<double>(Lambda_Abschnitte(0, 1e8L, 100)), 0.0059410395726631, 1e-15);
}

TEST(LambdaAbschnitte, RoughFormulasTakeTheLargerValue) {
  // Re = 1e6, d = 100: kg = 34.2 * 100 / 500000^0.875 = 3420 / 96970 = 0.0353, kg/4 = 0.0088 < k.
  // k = 0.1: a = 0.15 * (0.001)^(1/3) + 0.0055 = 0.15 * 0.1 + 0.0055 = 0.0205;
  //          b = (1 / (0.868588 * ln 1000 + 1.14))^2 = (1 / (0.868588 * 6.907755 + 1.14))^2 = 1/7.139993^2
  //            = 0.0196157; a wins.
  // k = 5:   a = 0.15 * 0.05^(1/3) + 0.0055 = 0.15 * 0.3684031 + 0.0055 = 0.0607605;
  //          b = (1 / (0.868588 * ln 20 + 1.14))^2 = (1 / (0.868588 * 2.995732 + 1.14))^2 = 1/3.742057^2
  //            = 0.0714133; b wins.
  const BranchCase cases[] = {
      {"a wins", 0.1L, 1e6L, 0.0205L},
      {"b wins", 5, 1e6L, 0.0714133126L},
  };
  for (const auto& c : cases) {
    EXPECT_NEAR(static_cast<double>(Lambda_Abschnitte(c.k, c.Re, 100)), static_cast<double>(c.expected), 1e-10)
        << c.what;
  }
}

TEST(LambdaAbschnitte, RoughnessExactlyAQuarterOfTheLimitTakesColebrook) {
  // Re = 131072: (Re/2)^0.875 = 65536^(7/8) = 16384, so kg = 34.2 * 100 / 16384 and kg/4 = 0.0521850586 mm.
  const Real Re = 131072;
  const Real kg = (34.2L * 100) / power(Re * 0.5L, 0.875L);  // the limit as the program computes it
  const Real k = kg / 4;
  EXPECT_NEAR(static_cast<double>(k), 0.0521850586, 1e-10);
  // At kg/4: Colebrook, 40-digit root 0.0197475041930429.
  EXPECT_NEAR(static_cast<double>(Lambda_Abschnitte(k, Re, 100)), 0.0197475041930429, 1e-13);
  EXPECT_NEAR(static_cast<double>(Lambda_Abschnitte(k, Re, 100)),
              static_cast<double>(colebrookByBisection(k / 100, Re)), 1e-12);
  // Just above: a = 0.15 * (5.2185e-4)^(1/3) + 0.0055 = 0.15 * 0.0805098 + 0.0055 = 0.0175765;
  // b = (1 / (0.868588 * ln 1916.24 + 1.14))^2 = (1 / 7.704900)^2 = 0.0168448; a wins.
  EXPECT_NEAR(static_cast<double>(Lambda_Abschnitte(std::nextafter(k, kInf), Re, 100)), 0.0175764694, 1e-10);
  // Well below the limit: Colebrook as well.
  EXPECT_NEAR(static_cast<double>(Lambda_Abschnitte(0.001L, 1e5L, 100)),
              static_cast<double>(colebrookByBisection(1e-5L, 1e5L)), 1e-12);
}

TEST(LambdaChurchill, HandCalculationAndLimits) {
  // Re = 1e5, k = 0:
  //   A = (7/1e5)^0.9 = 1.822167e-4;  ln(1/A) = 8.610314;  B = (2.457 * 8.610314)^16 = 21.155541^16 = 1.609853e21
  //   C = (37530/1e5)^16 = 0.3753^16 = 1.549020e-7;  D = (8/1e5)^12 = 6.87e-50
  //   E = 1 / (B + C)^1.5 = 1.548178e-32;  lambda = 8 * (D + E)^(1/12) = 8 * 0.00223435 = 0.0178748216
  EXPECT_NEAR(static_cast<double>(Lambda_Churchill(0, 1e5L, 100)), 0.0178748216282, 1e-12);
  // Re = 1e6, k/d = 1e-3 (the roughness term takes 0.27, not Colebrook's 0.269, which would give 0.0200051):
  //   A = (7/1e6)^0.9 + 0.27 * 0.001 = 2.29397e-5 + 2.7e-4 = 2.929397e-4;  ln(1/A) = 8.135544
  //   B = (2.457 * 8.135544)^16 = 19.989031^16 = 6.496326e20;  C = 0.03753^16 = 1.549e-23;  D negligible
  //   E = 1 / (B + C)^1.5 = 6.039463e-32;  lambda = 8 * E^(1/12) = 8 * 0.00250274455 = 0.0200219564
  EXPECT_NEAR(static_cast<double>(Lambda_Churchill(0.1L, 1e6L, 100)), 0.0200219564100, 1e-12);
  // Laminar: Hagen-Poiseuille 64/Re.
  EXPECT_NEAR(static_cast<double>(Lambda_Churchill(0, 1000, 100)), 0.064, 1e-12);
  // Turbulent: within 1 % of Colebrook.
  const ColebrookCase turbulent[] = {{0, 1e5L}, {0.01L, 1e6L}, {0.1L, 1e7L}};
  for (const auto& c : turbulent) {
    const Real colebrook = colebrookByBisection(c.k / 100, c.Re);
    EXPECT_NEAR(static_cast<double>(Lambda_Churchill(c.k, c.Re, 100) / colebrook), 1.0, 0.01) << c.Re;
  }
  EXPECT_TRUE(std::isnan(Lambda_Churchill(0, 0, 100)));
}

TEST(LambdaChurchill, SmoothThroughTheTransition) {
  // From 0.0312 at Re 2320 to 0.0406 at 4000 in steps of one: no step changes lambda by 0.1 %. Method 1
  // jumps by 0.9 % at Re 1e5 between Blasius and Nikuradse.
  Real previous = Lambda_Churchill(0, 2320, 100);
  EXPECT_NEAR(static_cast<double>(previous), 0.0311565, 1e-6);
  for (Real Re = 2321; Re <= 4000; Re += 1) {
    const Real lambda = Lambda_Churchill(0, Re, 100);
    ASSERT_LT(std::fabs(lambda - previous) / previous, 1e-3L) << Re;
    previous = lambda;
  }
  EXPECT_NEAR(static_cast<double>(previous), 0.0405897, 1e-6);
  const Real below = Lambda_Abschnitte(0, 100000, 100);
  const Real above = Lambda_Abschnitte(0, 100001, 100);
  EXPECT_GT((below - above) / below, 0.008L);
  const Real churchill = Lambda_Churchill(0, 100000, 100);
  EXPECT_LT(std::fabs(churchill - Lambda_Churchill(0, 100001, 100)) / churchill, 1e-5L);
}

TEST(Rohrreibungszahl, DispatchesByMethod) {
  // Re = 1e5, smooth: Colebrook 0.0179898088, Blasius 0.0177924795, Churchill 0.0178748216.
  EXPECT_NEAR(static_cast<double>(Rohrreibungszahl(0, 0, 1e5L, 100)), 0.0179898088, 1e-10);
  EXPECT_NEAR(static_cast<double>(Rohrreibungszahl(1, 0, 1e5L, 100)), 0.0177924795, 1e-10);
  EXPECT_NEAR(static_cast<double>(Rohrreibungszahl(2, 0, 1e5L, 100)), 0.0178748216, 1e-10);
  EXPECT_EQ(Rohrreibungszahl(3, 0, 1e5L, 100), 0);
  EXPECT_EQ(Rohrreibungszahl(-1, 0, 1e5L, 100), 0);
}

TEST(Rohrreibungsverlust, DarcyWeisbachInBar) {
  struct Case {
    Real lambda, L, rho, w, d, bar;
  };
  const Case cases[] = {
      // 0.02 * (10 m / 0.1 m) * 1000 * 2^2 / 2 = 4000 Pa = 0.04 bar
      {0.02L, 10, 1000, 2, 100, 0.04L},
      // 0.03 * (50 / 0.08) * 998.2 * 1.5^2 / 2 = 18.75 * 1122.975 = 21055.78125 Pa
      {0.03L, 50, 998.2L, 1.5L, 80, 0.2105578125L},
  };
  for (const auto& c : cases) {
    EXPECT_NEAR(static_cast<double>(Rohrreibungsverlust(c.lambda, c.L, c.rho, c.w, c.d)), static_cast<double>(c.bar),
                1e-15);
  }
  EXPECT_TRUE(std::isnan(Rohrreibungsverlust(0.02L, 10, 1000, 2, 0)));
}

struct LaminarCase {
  Real a, b;        // B and H, or D and Di
  Real phiTimes64;  // lambda * Re
};

TEST(LambdaLaminarRechteck, FactorsOverTheSideRatio) {
  const LaminarCase cases[] = {
      {50, 50, 56.32L},     // square: 0.88 * 64
      {100, 50, 62.08L},    // r = 0.5: 0.97 * 64
      {50, 100, 62.08L},    // either side may be the longer
      {10, 100, 85.76L},    // r = 0.1, a node: 1.34 * 64
      {5, 100, 90.88L},     // r = 0.05: (1.5 + 1.34) / 2 * 64 = 1.42 * 64
      {1, 1000, 95.8976L},  // r = 0.001: (1.5 - 0.16 * 0.01) * 64 = 1.4984 * 64, approaching 96
      {0, 100, 96},         // r = 0: 1.5 * 64
      {25, 100, 73.6L},     // r = 0.25: (1.2 + 1.1) / 2 * 64 = 1.15 * 64
      {95, 100, 56.64L},    // r = 0.95: (0.89 + 0.88) / 2 * 64 = 0.885 * 64
  };
  for (const auto& c : cases) {
    EXPECT_NEAR(static_cast<double>(Lambda_laminar_Rechteck(1000, c.a, c.b) * 1000), static_cast<double>(c.phiTimes64),
                1e-12)
        << c.a << " x " << c.b;
  }
  EXPECT_TRUE(std::isnan(Lambda_laminar_Rechteck(1000, 0, 0)));
  EXPECT_TRUE(std::isnan(Lambda_laminar_Rechteck(1000, -5, 100)));
  EXPECT_TRUE(std::isnan(Lambda_laminar_Rechteck(0, 50, 100)));
}

TEST(LambdaLaminarRingspalt, FactorsOverTheDiameterRatio) {
  const LaminarCase cases[] = {
      {100, 1, 80},       // r = 100: 1.25 * 64
      {100, 100, 96},     // r = 1: 1.5 * 64
      {75, 10, 91.2L},    // r = 7.5: 1.425 * 64
      {99, 1, 80.0384L},  // r = 99: (1.28 - 0.03 * 49/50) * 64 = 1.2506 * 64
      {50, 1, 81.92L},    // r = 50, a node: 1.28 * 64
  };
  for (const auto& c : cases) {
    EXPECT_NEAR(static_cast<double>(Lambda_laminar_Ringspalt(1000, c.a, c.b) * 1000), static_cast<double>(c.phiTimes64),
                1e-12)
        << c.a << " / " << c.b;
  }
  EXPECT_TRUE(std::isnan(Lambda_laminar_Ringspalt(1000, 101, 1)));
  EXPECT_TRUE(std::isnan(Lambda_laminar_Ringspalt(1000, std::nextafter(100.0L, kInf), 1)));
  EXPECT_TRUE(std::isnan(Lambda_laminar_Ringspalt(1000, 0.5L, 1)));
  EXPECT_TRUE(std::isnan(Lambda_laminar_Ringspalt(1000, 100, 0)));
}

TEST(LambdaWellrohr, ShallowAndDeepCorrugationAtTheStrictBoundaries) {
  // D = 100, t = 3, T = 5 (t/T = 0.6 exactly, t/D = 0.03), Re = 1e5:
  //   lambda1 = 0.2 * ((5/3)^7 * 0.03^6)^0.1 = 0.2 * (35.722451 * 7.29e-10)^0.1 = 0.0348816382
  //   n = 0.193 * 0.6 * exp(-3300 * 0.03^2.6) = 0.0806079442
  //   shallow = lambda1 * 17000 * 0.03^3.53 * 0.6^(230 * 0.03^2.1) * 1e5^n
  //           = 0.0348816382 * 0.0715627384 * 0.6^0.1457748 * 2.5295293 = 0.0348816382 * 0.0715627384
  //             * 0.9282395 * 2.5295293 = 0.00586116013
  // D = 2000, t = 127, T = 300 (t/D = 0.0635 exactly, t/T = 0.42333), Re = 1e5:
  //   lambda1 = 0.2 * ((300/127)^7 * 0.0635^6)^0.1 = 0.2 * (410.41454 * 6.5560514e-8)^0.1 = 0.0698258939
  //   n = 0.193 * 0.42333 * exp(-3300 * 0.0635^2.6) = 0.00641008834
  //   shallow = 0.0698258939 * 1.00981117 * 0.42333^(230 * 0.0635^2.1) * 1e5^n
  //           = 0.0698258939 * 1.00981117 * 0.54600492 * 1.07659025 = 0.0414480093
  // Just above either boundary the deep value lambda1 holds.
  struct Case {
    const char* what;
    Real D, t, T;
    Real expected;
  };
  const Case cases[] = {
      {"t/T = 0.6", 100, 3, 5, 0.00586116012945530L},
      {"t/T just above 0.6", 100, 3, 5 * (1 - 1e-12L), 0.0348816382038804L},
      {"t/D = 0.0635", 2000, 127, 300, 0.0414480093140094L},
      {"t/D just above 0.0635", 2000 * (1 - 1e-12L), 127, 300, 0.0698258939476185L},
  };
  for (const auto& c : cases) {
    EXPECT_NEAR(static_cast<double>(Lambda_Wellrohr(c.D, c.t, c.T, 1e5L)), static_cast<double>(c.expected), 1e-12)
        << c.what;
  }
  EXPECT_TRUE(std::isnan(Lambda_Wellrohr(100, 0, 5, 1e5L)));
  EXPECT_TRUE(std::isnan(Lambda_Wellrohr(0, 3, 5, 1e5L)));
}

}  // namespace
}  // namespace linecalc
