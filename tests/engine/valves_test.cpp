#include "engine/valves.h"

#include <gtest/gtest.h>

#include <cmath>

namespace linecalc {
namespace {

struct Fall {
  Real x;
  double erwartet;
};

void expectTable(Real (*f)(Real), const Fall* faelle, std::size_t n, double tol) {
  for (std::size_t i = 0; i < n; ++i) {
    SCOPED_TRACE(static_cast<double>(faelle[i].x));
    EXPECT_NEAR(static_cast<double>(f(faelle[i].x)), faelle[i].erwartet, tol);
  }
}

TEST(Dehnungsausgleicher, WavesLyreAndUBend) {
  EXPECT_NEAR(static_cast<double>(Zeta_Wellrohrausgleicher(3)), 0.6, 1e-15);
  EXPECT_NEAR(static_cast<double>(Zeta_Lyrabogen(true)), 0.7, 1e-15);
  EXPECT_NEAR(static_cast<double>(Zeta_Lyrabogen(false)), 1.4, 1e-15);

  // U bend, D = 100 mm: line from 0.33 at L/D = 0 to 0.21 at L/D = 2, i.e. 0.33 - 0.06 * L/D.
  const Fall faelle[] = {
      {0, 0.33},         // node
      {100, 0.27},       // L/D = 1: 0.33 - 0.06
      {199.9, 0.21006},  // L/D = 1.999: 0.33 - 0.11994
      {200, 0.21},       // node, from here on constant
      {200.1, 0.21},    {1000, 0.21},
  };
  for (const auto& f : faelle) {
    SCOPED_TRACE(static_cast<double>(f.x));
    EXPECT_NEAR(static_cast<double>(Zeta_U_Bogen(100, f.x)), f.erwartet, 1e-15);
  }
  EXPECT_TRUE(std::isnan(Zeta_U_Bogen(100, -0.001L)));  // r < 0
  EXPECT_TRUE(std::isnan(Zeta_U_Bogen(0, 200)));
}

TEST(Reibungstabelle, CraneNodesAndTheTenfoldEntries) {
  // Crane TP-410, friction factor in complete turbulence: 1/2" .027, 3/4" .025, 1" .023, 1-1/4" .022,
  // 1-1/2" .021, 2" .019, 2-1/2" .018, 4" .017, 5" .016, 6" .015, 8-10" .014, 12-16" .013, 18-24" .012.
  const Fall faelle[] = {
      {10, 0.027},        {14.999L, 0.027}, {15, 0.027},    {20, 0.025},   {25, 0.023},     {32, 0.022},
      {40, 0.021},        {50, 0.019},      {65.8L, 0.018}, {100, 0.017},  {125, 0.016},    {150, 0.015},
      {250, 0.014},       {400, 0.013},     {450, 0.012},   {2000, 0.012}, {57.9L, 0.0185},  // half way 50..65.8
      {17.5L, 0.026},                                                                        // half way 15..20
      {199.9L, 0.014002},                                                                    // 0.015 - 0.001 * 49.9/50
      {200, 0.14},                        // the product's tenfold entry starts here
      {249.999L, 0.14},                   //   ... and holds up to 250
      {275, 0.0135},                      // half way 250..300
      {299.9L, 0.013002},                 // 0.014 - 0.001 * 49.9/50
      {300, 0.13},                        // second tenfold entry
      {399.999L, 0.13},   {425, 0.0125},  // half way 400..450
      {449.9L, 0.012002},                 // 0.013 - 0.001 * 49.9/50
  };
  expectTable(Reibungstabelle, faelle, std::size(faelle), 1e-15);
}

TEST(Ventile, AngleAndObliqueCheckValveFollowTheFrictionTable) {
  // 150 * fT and 55 * fT, by hand from the table values.
  const Fall eck[] = {{100, 2.55}, {50, 2.85}, {200, 21}, {250, 2.1}, {10, 4.05}};
  expectTable(Zeta_Eckventil, eck, std::size(eck), 1e-13);
  const Fall rs[] = {{50, 1.045}, {300, 7.15}, {299.9L, 0.71511}, {450, 0.66}};
  expectTable(Zeta_Rueckschlag_Schraegsitz, rs, std::size(rs), 1e-13);
}

TEST(Ventile, TwoConstantFormMatchesHooper) {
  // Hooper, "The two-K method predicts head losses in pipe fittings", Chem. Eng. 1981:
  // K = K1/Re + Kinf (1 + 1/D[in]) with globe standard 1500/4.0, globe Y 1000/2.0, lift check 2000/10,
  // swing check 1500/1.5.
  struct Ventil {
    Real (*f)(Real, Real);
    Real D, Re;
    double erwartet;
  };
  const Ventil faelle[] = {
      // D = 25.4 mm = 1 in: the size term is 2 * Kinf.
      {Zeta_Geradsitzventil, 25.4L, 1e5, 8.015},        // 0.015 + 8
      {Zeta_Schraegsitzventil, 25.4L, 1e5, 4.01},       // 0.01 + 4
      {Zeta_Rueckschlag_Geradsitz, 25.4L, 1e5, 20.02},  // 0.02 + 20
      {Zeta_Rueckschlagklappe, 25.4L, 1e5, 3.015},      // 0.015 + 3
      // D = 50 mm: 1/D[in] = 25.4/50 = 0.508; 1500/1e5 + 1.508 * 4 = 0.015 + 6.032
      {Zeta_Geradsitzventil, 50, 1e5, 6.047},
      // D = 100 mm, laminar: 2000/2000 + 1.254 * 10 = 1 + 12.54
      {Zeta_Rueckschlag_Geradsitz, 100, 2000, 13.54},
      // D = 200 mm: 1500/1e6 + 1.127 * 1.5 = 0.0015 + 1.6905
      {Zeta_Rueckschlagklappe, 200, 1e6, 1.692},
      // D = 254 mm = 10 in: 1000/500 + 1.1 * 2 = 2 + 2.2
      {Zeta_Schraegsitzventil, 254, 500, 4.2},
  };
  for (const auto& v : faelle) {
    SCOPED_TRACE(static_cast<double>(v.D));
    EXPECT_NEAR(static_cast<double>(v.f(v.D, v.Re)), v.erwartet, 1e-13);
  }
  EXPECT_TRUE(std::isnan(Zeta_Geradsitzventil(50, 0)));
  EXPECT_TRUE(std::isnan(Zeta_Rueckschlagklappe(0, 1e5)));
}

TEST(Schieber, OpenShareOfTheBore) {
  // n = 1 - 2 A/(pi R^2), with A/R^2 = arccos h - h sqrt(1 - h^2) the circular segment at chord distance h R.
  // h = 0.5: arccos 0.5 = pi/3 = 1.0471975512, 0.5 sqrt(0.75) = 0.4330127019, A/R^2 = 0.6141848493,
  //   n = 1 - 0.6141848493 * 2/pi = 0.6089977810, zeta = 3.5 (1/n - 1)^2 + 0.78 = 3.5 * 0.6420421^2 + 0.78
  //   = 2.2227632384.
  // h = 0.25: A/R^2 = 1.3181160717 - 0.2420614591 = 1.0760546125, n = 0.3149623575, zeta = 17.336922354.
  // h = 0.75: A/R^2 = 0.7227342478 - 0.4960783708 = 0.2266558770, n = 0.8557063872, zeta = 0.8795205372.
  // h = 0.1: A/R^2 = 1.4706289056 - 0.0994987437 = 1.3711301619, n = 0.1271114284, zeta = 165.83035429.
  struct Offen {
    Real H;
    double zeta;
  };
  const Offen faelle[] = {
      {100, 0.78}, {50, 2.2227632384273}, {25, 17.336922354077}, {75, 0.87952053723536}, {10, 165.83035428827},
  };
  for (const auto& f : faelle) {
    SCOPED_TRACE(static_cast<double>(f.H));
    EXPECT_NEAR(static_cast<double>(Zeta_Schieber(100, f.H)), f.zeta, 1e-11 * f.zeta);
  }
  // A gate lifted above the bore (after its warning), a closed gate and no bore have no coefficient.
  EXPECT_TRUE(std::isnan(Zeta_Schieber(100, 100.0001L)));
  EXPECT_TRUE(std::isnan(Zeta_Schieber(100, 0)));
  EXPECT_TRUE(std::isnan(Zeta_Schieber(100, -10)));
  EXPECT_TRUE(std::isnan(Zeta_Schieber(0, 10)));
}

TEST(Armaturen, PlugCockTable) {
  const Fall faelle[] = {
      {0, 0},
      {10, 0.31},
      {20, 1.84},
      {30, 6.15},
      {40, 20.7},
      {50, 95.3},
      {25, 3.995},         // (1.84 + 6.15) / 2
      {9.99L, 0.309690},   // 0.31 * 0.999
      {10.01L, 0.311530},  // 0.31 + 1.53 * 0.001
      {49.9L, 94.554},     // 20.7 + 74.6 * 0.99
  };
  expectTable(Zeta_Hahn, faelle, std::size(faelle), 1e-12);
  EXPECT_TRUE(std::isnan(Zeta_Hahn(50.0001L)));
  EXPECT_TRUE(std::isnan(Zeta_Hahn(60)));
  EXPECT_TRUE(std::isnan(Zeta_Hahn(-0.0001L)));
}

TEST(Armaturen, ButterflyValveTable) {
  const Fall faelle[] = {
      {0, 0},           {10, 0.52}, {20, 1.54}, {30, 3.91},  {40, 10.8},
      {50, 32.6},       {60, 118},  {70, 251},  {35, 7.355},  // (3.91 + 10.8) / 2
      {69.9L, 249.67},                                        // 118 + 133 * 0.99
      {59.9L, 117.146},                                       // 32.6 + 85.4 * 0.99
      {60.1L, 119.33},                                        // 118 + 133 * 0.01
  };
  expectTable(Zeta_Klappe, faelle, std::size(faelle), 1e-11);
  EXPECT_TRUE(std::isnan(Zeta_Klappe(70.01L)));
  EXPECT_TRUE(std::isnan(Zeta_Klappe(-1)));
}

}  // namespace
}  // namespace linecalc
