#include "engine/inlets_sections.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace linecalc {
namespace {

constexpr Real kInf = std::numeric_limits<Real>::infinity();

double d(Real value) {
  return static_cast<double>(value);
}

TEST(Einlauf, FixedCoefficientsAndTheLaminarAddition) {
  EXPECT_EQ(Zeta_Einlauf_kantig(true), 0.5L);
  EXPECT_EQ(Zeta_Einlauf_kantig(false), 0.25L);
  EXPECT_EQ(Zeta_Einlauf_abgerundet(), 0.05L);
  EXPECT_EQ(Zeta_Einlauf_vorstehend(true), 3);
  EXPECT_EQ(Zeta_Einlauf_vorstehend(false), 1);
  // 0.5 + 30/1500 = 0.52; 3 + 30/200 = 3.15
  EXPECT_NEAR(d(Zeta_Einlauf_laminar(0.5L, 1500)), 0.52, 1e-15);
  EXPECT_NEAR(d(Zeta_Einlauf_laminar(3, 200)), 3.15, 1e-15);
  EXPECT_TRUE(std::isnan(Zeta_Einlauf_laminar(0.5L, 0)));
}

TEST(EinlaufWinkel, CosineOfTheAngleInDegrees) {
  struct Case {
    Real angle, zeta;
  };
  const Case cases[] = {
      {90, 0.5L},           // cos 90 deg = 0: the flush inlet
      {0, 1},               // 0.5 + 0.3 + 0.2
      {60, 0.7L},           // 0.5 + 0.3 * 0.5 + 0.2 * 0.25
      {45, 0.8121320344L},  // 0.5 + 0.3 * 0.7071068 + 0.2 * 0.5
  };
  for (const auto& c : cases) EXPECT_NEAR(d(Zeta_Einlauf_Winkel(c.angle)), d(c.zeta), 1e-10) << c.angle;
}

TEST(Erweiterung, BordaCarnot) {
  // (1 - A1/A2)^2 from the area ratio.
  struct Case {
    Real D1, D2, areaRatio;
  };
  const Case cases[] = {{50, 100, 0.25L}, {80, 100, 0.64L}, {10, 1000, 0.0001L}, {100, 100, 1}};
  for (const auto& c : cases) {
    EXPECT_NEAR(d(Zeta_Erweiterung(c.D1, c.D2)), d((1 - c.areaRatio) * (1 - c.areaRatio)), 1e-15) << c.D1;
  }
  EXPECT_EQ(Zeta_Erweiterung(50, 100), 0.5625L);
  EXPECT_TRUE(std::isnan(Zeta_Erweiterung(50, 0)));
}

TEST(ErweiterungLaminar, FormulaSwitchesAt500And10) {
  // D1 = 50, D2 = 100: f = 1 - 0.25 = 0.75, f^2 = 0.5625, f^4 = 0.31640625.
  // From Re 500, y = lg Re:
  //   c0 = -8.44556 - 26.163 * 0.5625 - 5.38086 * 0.31640625 = -24.864785234375
  //   c1 = 6.007 + 18.5372 * 0.5625 + 3.9978 * 0.31640625 = 17.69910390625
  //   c2 = -1.02318 - 3.0916 * 0.5625 - 0.680943 * 0.31640625 = -2.97765962109375
  //   Re 500 (y = 2.698970004): -24.864785 + 17.699104 * 2.698970 - 2.977660 * 7.284439 = 1.2139851886
  //   Re 1000 (y = 3): -24.864785 + 53.097312 - 26.798937 = 1.4335898945
  // From Re 10 to below 500:
  //   b0 = 3.62536 + 10.744 * 0.5625 - 4.41041 * 0.31640625 = 8.2733787109375
  //   b1 = -18.13 - 56.77855 * 0.5625 + 33.40344 * 0.31640625 = -39.4988771875
  //   b2 = 30.8558 + 99.9542 * 0.5625 - 62.78 * 0.31640625 = 67.216053125
  //   b3 = -13.217 - 53.9555 * 0.5625 + 33.8053 * 0.31640625 = -32.870760546875
  //   Re 10 (y = 1): b0 + b1 + b2 + b3 = 3.1197941015625
  //   Re 100 (y = 2): 8.273379 - 19.749439 + 16.804013 - 4.108845 = 1.219108330078
  //   Re just below 500: 8.273379 - 14.634614 + 9.227283 - 1.671926 = 1.1940095496
  // Below 10: 30/Re.
  struct Case {
    const char* what;
    Real Re, zeta;
  };
  const Case cases[] = {
      {"1000", 1000, 1.43358989453125L},
      {"500 takes the upper formula", 500, 1.21398518856638L},
      {"just below 500", std::nextafter(500.0L, 0.0L), 1.19400954958161L},
      {"100", 100, 1.219108330078125L},
      {"10 takes the middle formula", 10, 3.1197941015625L},
      {"just below 10", std::nextafter(10.0L, 0.0L), 3},
      {"5", 5, 6},
  };
  for (const auto& c : cases) EXPECT_NEAR(d(Zeta_Erweiterung_laminar(c.Re, 50, 100)), d(c.zeta), 1e-12) << c.what;
  EXPECT_TRUE(std::isnan(Zeta_Erweiterung_laminar(0, 50, 100)));
}

TEST(Diffusor, HandCalculation) {
  // D1 = 50, D2 = 100, delta = 10 deg, lambda = 0.02:
  //   m = 0.25;  a = 20;  c = 1.41 * 20 / 100 = 0.282;  t = tanh 0.282 = 0.2747551140
  //   p = 522 * 0.2^4.365 = 0.4641586348;  q = exp(-1.6) = 0.2018965180
  //   K = 0.4641586348 * 0.2018965180 + 0.2747551140 = 0.3684671261
  //   l = 25 / tan 10 deg = 25 / 0.1763269807 = 141.7820455
  //   r = ((1 - 0.0625) * (0.02 * 141.7820455 / 50) / 4) / (1/0.5 - 1) = 0.9375 * 0.05671281820 / 4 = 0.0132920668
  //   zeta = 0.75^2 * 0.3684671261 + 0.0132920668 = 0.2072627584 + 0.0132920668 = 0.2205548252
  EXPECT_NEAR(d(Zeta_Diffusor(50, 100, 10, 0.02L)), 0.220554825208258, 1e-13);
  // Without friction only the expansion part remains: 0.5625 * K.
  EXPECT_NEAR(d(Zeta_Diffusor(50, 100, 10, 0)), 0.5625 * 0.368467126121830, 1e-13);
}

TEST(Diffusor, LaminarHandCalculation) {
  // D1 = 50, D2 = 100, delta = 10 deg, Re = 1000: n = 4;
  //   zeta = 20 * 4^0.33 / (tan 10 deg)^0.75 / 1000 = 20 * 1.5800826237 / 0.2721066016 / 1000 = 0.1161370297
  EXPECT_NEAR(d(Zeta_Diffusor_laminar(50, 100, 10, 1000)), 0.116137029732086, 1e-13);
}

TEST(Konfusor, HandCalculation) {
  // D1 = 100, D2 = 50, delta = 20 deg, lambda = 0.02: n = 0.25, m = 4;
  //   x = 0.01745 * 20 * 2 = 0.698
  //   P = -0.0125 * 0.00390625 + 0.0224 * 0.015625 - 0.00723 * 0.0625 + 0.00444 * 0.25 - 0.00745 = -0.006490703125
  //   A = (0.698^3 - 2 pi 0.698^2 - 10 * 0.698) * P = (0.340068392 - 3.0611930144 - 6.98) * P
  //     = -9.7011246224 * -0.006490703125 = 0.0629671199
  //   B = ((1 - 1/16) * 0.02 / 8) / sin 20 deg = 0.00234375 / 0.3420201433 = 0.0068526666
  //   zeta = (0.0629671199 + 0.0068526666) / 50^4 * 100^4 = 0.0698197865 * 16 = 1.1171165834
  EXPECT_NEAR(d(Zeta_Konfusor(100, 50, 20, 0.02L)), 1.11711658344804, 1e-12);
  // The rounded 0.01745 stands: with the exact pi/90 (x = 0.6981317) the result would be 1.1173533.
  EXPECT_GT(std::fabs(d(Zeta_Konfusor(100, 50, 20, 0.02L)) - 1.1173533), 2e-4);
}

TEST(Konfusor, LaminarHandCalculation) {
  // D1 = 100, D2 = 50, delta = 20 deg, Re2 = 1000: n = 0.25;
  //   zeta = 20.5 / 0.5 / (tan 20 deg)^0.75 / 1000 = 41 / 0.4685968892 / 1000 = 0.0874952458
  EXPECT_NEAR(d(Zeta_Konfusor_laminar(100, 50, 20, 1000)), 0.0874952458037991, 1e-13);
}

TEST(Konen, AnglesOutsideZeroToNinetyGiveNaN) {
  const Real angles[] = {0, 90, 120, -10};
  for (const Real a : angles) {
    EXPECT_TRUE(std::isnan(Zeta_Konfusor(100, 50, a, 0.02L))) << a;
    EXPECT_TRUE(std::isnan(Zeta_Konfusor_laminar(100, 50, a, 1000))) << a;
    EXPECT_TRUE(std::isnan(Zeta_Diffusor(50, 100, a, 0.02L))) << a;
    EXPECT_TRUE(std::isnan(Zeta_Diffusor_laminar(50, 100, a, 1000))) << a;
  }
  EXPECT_TRUE(std::isfinite(Zeta_Konfusor(100, 50, std::nextafter(90.0L, 0.0L), 0.02L)));
  EXPECT_TRUE(std::isfinite(Zeta_Konfusor_laminar(100, 50, 89.9L, 1000)));
  EXPECT_TRUE(std::isnan(Zeta_Diffusor(50, 50, 10, 0.02L)));  // no change of section
}

TEST(Verengung, IdelchikReferredToTheWideSection) {
  // Idelchik's 0.5 (1 - A2/A1)^0.75 in the narrow section, times (A1/A2)^2 for the velocity in D1.
  // D1 = 100, D2 = 50: 0.5 * 0.75^0.75 * 16 = 0.5 * 0.8059274489 * 16 = 6.4474195909
  EXPECT_NEAR(d(Zeta_Verengung(100, 50)), 6.44741959094125, 1e-12);
  struct Case {
    Real D1, D2;
  };
  const Case cases[] = {{100, 90}, {100, 70}, {100, 30}, {1000, 10}};
  for (const auto& c : cases) {
    const Real areaRatio = (c.D2 / c.D1) * (c.D2 / c.D1);
    const Real narrow = Zeta_Verengung(c.D1, c.D2) * areaRatio * areaRatio;
    EXPECT_NEAR(d(narrow), d(0.5L * std::pow(1 - areaRatio, 0.75L)), 1e-15) << c.D2;
  }
  // A very small outlet approaches the sharp-edged inlet, 0.5 in its own section.
  EXPECT_NEAR(d(Zeta_Verengung(1000, 1) * 1e-12L), 0.5, 1e-6);
  EXPECT_EQ(Zeta_Verengung(100, 100), 0);
}

TEST(VerengungLaminar, RowFromTheRoundedAreaRatio) {
  // At Re2 = 20 the rows differ: 3.2, 3.1, 2.95, 2.8, 2.7, 2.6.
  struct Case {
    const char* what;
    Real D1, D2;
    Real zeta;
  };
  const Case cases[] = {
      {"ratio 0.05 -> row 1 by clamping", 100, std::sqrt(0.05L) * 100, 3.2L},
      {"ratio 0.01 -> 0 -> row 1", 100, 10, 3.2L},
      {"ratio 0.09 -> 0.9 -> row 1", 100, 30, 3.2L},
      {"ratio 0.16 -> 1.6 -> row 2", 100, 40, 3.1L},
      {"ratio 0.25 -> 2.5 rounds away from zero -> row 3", 100, 50, 2.95L},
      {"ratio 0.36 -> 3.6 -> row 4", 100, 60, 2.8L},
      {"ratio 0.49 -> 4.9 -> row 5", 100, 70, 2.7L},
      {"ratio 0.6 -> row 6", 100, std::sqrt(0.6L) * 100, 2.6L},
      {"ratio 0.65 -> 7 clamped to row 6", 100, std::sqrt(0.65L) * 100, 2.6L},
      {"ratio 0.81 -> 8.1 clamped to row 6", 100, 90, 2.6L},
  };
  for (const auto& c : cases) EXPECT_NEAR(d(Zeta_Verengung_laminar(20, c.D1, c.D2)), d(c.zeta), 1e-15) << c.what;
}

TEST(VerengungLaminar, NodesIntervalsAndTheStepAt10000) {
  struct Case {
    const char* what;
    Real D2;  // D1 = 100; D2 = 30 is row 1, D2 = 40 row 2, D2 = 90 row 6
    Real Re2, zeta;
  };
  const Case cases[] = {
      {"row 1 below 10", 30, 9.99L, 5},
      {"row 6 below 10", 90, 9.99L, 5},
      {"row 1 at 10", 30, 10, 5},
      {"row 6 at 10", 90, 10, 5},
      {"row 1 far below", 30, 0.5L, 5},
      {"row 1 at 15: (5 + 3.2) / 2", 30, 15, 4.1L},
      {"row 1 at 50, a node", 30, 50, 1.8L},
      {"row 1 at 75: (1.8 + 1.3) / 2", 30, 75, 1.55L},
      {"row 1 at 2000", 30, 2000, 0.5L},
      {"row 1 at 3000: the rise to 0.8", 30, 3000, 0.65L},
      {"row 1 at 4000", 30, 4000, 0.8L},
      {"row 1 at 7500: (0.75 + 0.5) / 2", 30, 7500, 0.625L},
      {"row 1 just below 10000", 30, 9999.99L, 0.5000005L},
      {"row 1 at 10000 steps to 0.45", 30, 10000, 0.45L},
      {"row 1 above 10000", 30, 1e6L, 0.45L},
      {"row 2 at 1000", 40, 1000, 0.5L},
      {"row 2 at 5000", 40, 5000, 0.6L},
      {"row 2 at 10000", 40, 10000, 0.4L},
      {"row 6 at 150: (0.8 + 0.56) / 2", 90, 150, 0.68L},
      {"row 6 just below 10000", 90, std::nextafter(10000.0L, 0.0L), 0.2L},
      {"row 6 at 10000", 90, 10000, 0.2L},
  };
  for (const auto& c : cases) EXPECT_NEAR(d(Zeta_Verengung_laminar(c.Re2, 100, c.D2)), d(c.zeta), 1e-12) << c.what;
  EXPECT_TRUE(std::isnan(Zeta_Verengung_laminar(100, 0, 50)));
  EXPECT_TRUE(std::isnan(Zeta_Verengung_laminar(std::numeric_limits<Real>::quiet_NaN(), 100, 50)));
  EXPECT_EQ(Zeta_Verengung_laminar(kInf, 100, 30), 0.45L);
}

}  // namespace
}  // namespace linecalc
