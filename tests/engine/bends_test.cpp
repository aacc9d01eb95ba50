#include "engine/bends.h"

#include <gtest/gtest.h>

#include "base/numbers.h"

#include <cmath>
#include <limits>
#include <numbers>

namespace linecalc {
namespace {

constexpr Real kInf = std::numeric_limits<Real>::infinity();

double dbl(Real x) {
  return static_cast<double>(x);
}

// Circular bend, one case per roughness regime. Unless stated: δ = 90 (A = 0.21), R/D = 2
// (s = √2 = 1.414213562), λ = 0.02, so Zr = 0.0175 · 0.02 · 2 · 90 = 0.063 and A/s = 0.148492424049.
// λ0 is the Colebrook factor of the smooth pipe (k = 0), solved independently to 30 digits:
// λ0(1e5) = 0.0179898088423, λ0(199999) = 0.0156372716296, λ0(2e5) = 0.0156372563090.
struct BendCase {
  const char* what;
  Real D, R, delta, k, lambda, Re;
  Real expected;
};

constexpr BendCase kRegimeCases[] = {
    // e = 0, Re = 5e5 > Rg = 2.89^12 = 339448.67 and > 2e5: Zu = A/s.
    // λ = 0.0135: Zr = 0.0175 · 0.0135 · 2 · 90 = 0.042525; ζ = 0.042525 + 0.148492424049
    {"smooth, above Rg", 100, 200, 90, 0, 0.0135L, 500000, 0.191017424049L},
    // e = 0, Re = 3e5 < Rg: transitional, Zu = 58.5 · 0.148492424049 / 3e5^(1/3)
    //   = 8.686806807 / 66.943295 = 0.129763658; ζ = 0.042525 + 0.129763658
    {"smooth, below Rg", 100, 200, 90, 0, 0.0135L, 300000, 0.172288657523L},
    // δ = 120: A clamped to 0.21, Zr = 0.0175 · 0.0135 · 2 · 120 = 0.0567; ζ = 0.0567 + 0.148492424
    {"angle above 90", 100, 200, 120, 0, 0.0135L, 500000, 0.205192424049L},
    // e = 1/1000 exactly, Re = 2e5: fully rough, Zu = 2 · 0.148492424049 = 0.296984848098
    {"e = 0.001, Re = 2e5", 1000, 2000, 90, 1, 0.02L, 200000, 0.359984848098L},
    // e = 0.001, Re = 199999: nearly rough, tests 2 and 3 fire, 3 wins:
    //   Zu = λ0(199999) · 128 · 0.21 / √2 = 0.0156372716296 · 19.0070302783 = 0.297218095333
    {"e = 0.001, Re below 2e5", 1000, 2000, 90, 1, 0.02L, 199999, 0.360218095333L},
    // e = 0.0010001, Re = 2e5: fully rough as above
    {"e above 0.001, Re = 2e5", 1000, 2000, 90, 1.0001L, 0.02L, 200000, 0.359984848098L},
    // e = 0.0009999, Re = 2e5: tests 1 and 2 fire, 2 wins:
    //   Zu = λ0(2e5) · 64 · 0.21 · 1.9999 / √2 = 0.0156372563090 · 19.0060799268 = 0.297202943244
    {"e below 0.001, Re = 2e5", 1000, 2000, 90, 0.9999L, 0.02L, 200000, 0.360202943244L},
    // e = 0.0009999, Re = 200001: test 1 only (Idelchik's k_Δ = 1 + 1000·Δ above Re = 2e5):
    //   Zu = 1.9999 · 0.148492424049 = 0.296969998856
    {"e below 0.001, Re above 2e5", 1000, 2000, 90, 0.9999L, 0.02L, 200001, 0.359969998856L},
    // e = 0.002, Re = 1e5 ≥ Rg = (2.89/3)^12 = 0.64: test 3, Zu = 0.0179898088423 · 19.0070302783 = 0.341932841
    {"e = 0.002, Re = 1e5", 1000, 2000, 90, 2, 0.02L, 100000, 0.404932841366L},
    // e = 0.0005, Re = 1e5 ≥ Rg = (2.89/1.5)^12 = 2616.25: test 2,
    //   Zu = 0.0179898088423 · 64 · 0.21 · 1.5 / √2 = 0.0179898088423 · 14.2552727087 = 0.256449631
    {"e = 0.0005, Re = 1e5", 1000, 2000, 90, 0.5L, 0.02L, 100000, 0.319449631024L},
    // e = 0.0005, Re = 2500 < Rg = 2616.25: transitional, Zu = 8.686806807 / 2500^(1/3)
    //   = 8.686806807 / 13.572088 = 0.640049398
    {"e = 0.0005, Re below Rg", 1000, 2000, 90, 0.5L, 0.02L, 2500, 0.703049397983L},
};

TEST(ZetaKreiskruemmer, EachRoughnessRegimeHasItsFormula) {
  for (const auto& c : kRegimeCases) {
    EXPECT_NEAR(dbl(Zeta_Kreiskruemmer(0, c.D, c.R, c.delta, c.k, c.lambda, c.Re)), dbl(c.expected), 1e-10) << c.what;
  }
}

TEST(ZetaKreiskruemmer, LimitRgSeparatesTransitionalFromTheOthers) {
  // Smooth wall: Rg = 2.89^12 = 339448.671. At Rg and above: Zu = A/s; one step below: the
  // transitional branch 58.5 · A/s / Rg^(1/3) = 8.686806807 / 69.7598 = 0.124525 (λ = 0.0135 as above).
  const Real rg0 = power(2.89L, 12);  // the limit as the program computes it
  EXPECT_NEAR(dbl(rg0), 339448.671314612, 1e-6);
  EXPECT_NEAR(dbl(Zeta_Kreiskruemmer(0, 100, 200, 90, 0, 0.0135L, rg0)), 0.191017424049, 1e-11);
  EXPECT_NEAR(dbl(Zeta_Kreiskruemmer(0, 100, 200, 90, 0, 0.0135L, std::nextafter(rg0, kInf))), 0.191017424049, 1e-11);
  EXPECT_NEAR(dbl(Zeta_Kreiskruemmer(0, 100, 200, 90, 0, 0.0135L, std::nextafter(rg0, 0.0L))), 0.167053510063, 1e-11);

  // e = 0.0005: Rg = (2.89 / 1.5)^12 = 2616.2486. At Rg the nearly rough test 2 with
  // λ0(Rg) = 0.0454027972423: Zu = 0.0454027972423 · 14.2552727087 = 0.647229256; ζ = 0.710229256.
  // Just below Rg: 0.063 + 8.686806807 / 2616.2486^(1/3) = 0.063 + 0.630425582 = 0.693425582.
  const Real rg = power(2.89L / (0.5L / 1000 * 1000 + 1), 12);
  EXPECT_NEAR(dbl(rg), 2616.24857266310, 1e-9);
  EXPECT_NEAR(dbl(Zeta_Kreiskruemmer(0, 1000, 2000, 90, 0.5L, 0.02L, rg)), 0.710229256427, 1e-9);
  EXPECT_NEAR(dbl(Zeta_Kreiskruemmer(0, 1000, 2000, 90, 0.5L, 0.02L, std::nextafter(rg, kInf))), 0.710229256427, 1e-9);
  EXPECT_NEAR(dbl(Zeta_Kreiskruemmer(0, 1000, 2000, 90, 0.5L, 0.02L, std::nextafter(rg, 0.0L))), 0.693425582193, 1e-9);
}

TEST(ZetaKreiskruemmer, AngleFactorAtNodesAndBetween) {
  // R = D (s = 1), λ = 0 (no friction part), smooth wall at Re = 1e6: ζ = A.
  struct Row {
    Real delta, A;
  };
  constexpr Row rows[] = {
      {0, 0},
      {20, 0.067L},
      {30, 0.099L},
      {45, 0.136L},
      {60, 0.17L},
      {75, 0.195L},
      {90, 0.21L},
      {150, 0.21L},
      {10, 0.0335L},
      {25, 0.083L},
      {37.5L, 0.1175L},
      {52.5L, 0.153L},
      {67.5L, 0.1825L},
      {82.5L, 0.2025L},
      {89.999L, 0.209999L},    // 0.195 + 0.015 · 14.999 / 15
      {19.999L, 0.06699665L},  // 0.067 · 19.999 / 20
  };
  for (const auto& r : rows) {
    EXPECT_NEAR(dbl(Zeta_Kreiskruemmer(0, 100, 100, r.delta, 0, 0, 1e6L)), dbl(r.A), 1e-12) << r.delta;
  }
  EXPECT_EQ(Zeta_Kreiskruemmer(0, 100, 100, 45, 0, 0, 1e6L), 0.136L);  // a node is hit exactly
}

TEST(ZetaKreiskruemmer, SmoothBendsMatchIdelchik) {
  // Idelchik, Handbook of Hydraulic Resistance, diagram 6-1, smooth 90° bends above Re = 2e5:
  // ζ_M = A1 · B1 with A1 = 1 and B1 = 0.21 / √(R0/D0) for R0/D0 ≥ 1 → 0.210, 0.148, 0.121, 0.105
  // for R0/D0 = 1, 2, 3, 4 (three digits as tabulated). λ = 0 isolates the local part.
  const Real published[] = {0.210L, 0.148L, 0.121L, 0.105L};
  for (int ratio = 1; ratio <= 4; ++ratio) {
    EXPECT_NEAR(dbl(Zeta_Kreiskruemmer(0, 100, 100 * ratio, 90, 0, 0, 1e6L)), dbl(published[ratio - 1]), 0.001)
        << "R/D = " << ratio;
  }
  // Idelchik's angle coefficient A1 = 0.9 · sin δ up to 70°: ζ_M = 0.9 · sin δ · 0.21 gives 0.0646, 0.0945,
  // 0.1336, 0.1637 at 20°, 30°, 45°, 60°; the tabulated factors lie within 5 % of these.
  const Real angles[] = {20, 30, 45, 60};
  for (Real delta : angles) {
    const Real idelchik = 0.9L * std::sin(delta * std::numbers::pi_v<Real> / 180) * 0.21L;
    const Real zeta = Zeta_Kreiskruemmer(0, 100, 100, delta, 0, 0, 1e6L);
    EXPECT_NEAR(dbl(zeta / idelchik), 1.0, 0.05) << delta;
  }
}

TEST(ZetaKreiskruemmer, SmoothFactorUsesTheChosenMethodWithZeroRoughness) {
  // e = 0.0005, Re = 1e5, nearly rough test 2. Method 1 with k = 0 at Re ≤ 1e5 is Blasius:
  // λ0 = 0.3164 · 1e5^(-0.25) = 0.3164 / 17.7827941 = 0.0177924795; Zu = 0.0177924795 · 14.2552727087
  // = 0.253636648; ζ = 0.316636648. (Method 1 with the bend's k = 0.5 would take Colebrook instead.)
  EXPECT_NEAR(dbl(Zeta_Kreiskruemmer(1, 1000, 2000, 90, 0.5L, 0.02L, 100000)), 0.316636647851, 1e-10);
  EXPECT_NEAR(dbl(Zeta_Kreiskruemmer(0, 1000, 2000, 90, 0.5L, 0.02L, 100000)), 0.319449631024, 1e-10);
  // λ0 is evaluated even where the regime does not use it: at Re = 2000 (transitional, e = 0.0005) method 1
  // has no smooth-pipe value below Re = 2320, so the bend has none either; Colebrook has one.
  // Transitional: 0.063 + 8.686806807 / 2000^(1/3) = 0.063 + 8.686806807 / 12.599210 = 0.752472313.
  EXPECT_TRUE(std::isnan(Zeta_Kreiskruemmer(1, 1000, 2000, 90, 0.5L, 0.02L, 2000)));
  EXPECT_NEAR(dbl(Zeta_Kreiskruemmer(0, 1000, 2000, 90, 0.5L, 0.02L, 2000)), 0.752472313174, 1e-11);
}

TEST(ZetaRechteckkruemmer, FormFactorByAspectRatio) {
  // λ = 0, d_hydr = R = 100, δ = 90, smooth, Re = 1e6: the circular bend gives 0.21, ζ = 0.21 · C.
  struct Row {
    Real H, C;
  };
  constexpr Row rows[] = {
      {20, 1.8L},           {100, 1},     {150, 0.5L}, {200, 0.45L}, {300, 0.4L}, {400, 0.42L}, {500, 0.48L},
      {600, 0.56L},         {700, 0.59L}, {800, 0.6L}, {2000, 0.6L}, {60, 1.4L},  // H/B = 0.6: 1.8 − 0.8 · 0.4 / 0.8
      {125, 0.75L},          // H/B = 1.25: halfway between 1 and 0.5
      {799.99L, 0.599999L},  // 0.59 + 0.01 · 0.9999
  };
  for (const auto& r : rows) {
    EXPECT_NEAR(dbl(Zeta_Rechteckkruemmer(0, 100, r.H, 100, 90, 100, 0, 0, 1e6L)), dbl(0.21L * r.C), 1e-9) << r.H;
  }
  EXPECT_TRUE(std::isnan(Zeta_Rechteckkruemmer(0, 100, 19.999L, 100, 90, 100, 0, 0, 1e6L)));
}

TEST(ZetaRechteckkruemmer, OnlyTheDeflectionPartIsScaled) {
  // B = 100, H = 200 (C = 0.45), d_hydr = 100, R = 200, λ = 0.02, smooth, Re = 1e6:
  // Zr = 0.0175 · 0.02 · 2 · 90 = 0.063; Zk = 0.063 + 0.148492424049; ζ = 0.148492424049 · 0.45 + 0.063
  // = 0.066821590822 + 0.063 = 0.129821590822.
  EXPECT_NEAR(dbl(Zeta_Rechteckkruemmer(0, 100, 200, 200, 90, 100, 0, 0.02L, 1e6L)), 0.129821590822, 1e-11);
  // A square duct (C = 1) is the circular bend of d_hydr with the same method, roughness and Re
  // (the e = 0.002, Re = 1e5 case above).
  EXPECT_NEAR(dbl(Zeta_Rechteckkruemmer(0, 100, 100, 2000, 90, 1000, 2, 0.02L, 100000)), 0.404932841366, 1e-10);
}

TEST(ZetaKruemmerLaminar, DeanNumberSelectsTheBranch) {
  struct Row {
    Real d, R, delta, Re, expected;
  };
  constexpr Row rows[] = {
      // d = 100, R = 200: De = Re · 0.5 · √0.25 = Re / 4. Re = 4000: De = 1000, first branch:
      // (0.415 · 90 / 4000) · 2 · 1000^0.36 = 0.018675 · 12.02264 = 0.224522883
      {100, 200, 90, 4000, 0.224522883165L},
      // Re = 4000.001: De just above 1000, second branch:
      // 0.082 · 90 / 4000.001^0.45 · 2^0.725 = 7.38 / 41.78709 · 1.653341 = 0.291995436
      {100, 200, 90, 4000.001L, 0.291995436276L},
      // d = 50, R = 100, Re = 1000: De = 500 · 0.5 = 250; (0.415 · 90 / 1000) · 2 · 250^0.36
      //   = 0.0747 · 7.298783 = 0.545229072
      {50, 100, 90, 1000, 0.545229072337L},
      // d = R = 100, δ = 45, Re = 2000: De = 1000 · √0.5 = 707.107; (0.415 · 45 / 2000) · 707.107^0.36
      //   = 0.0093375 · 10.61242 = 0.099093511
      {100, 100, 45, 2000, 0.0990935108527L},
  };
  for (const auto& r : rows) {
    EXPECT_NEAR(dbl(Zeta_Kruemmer_laminar(r.d, r.R, r.delta, r.Re)), dbl(r.expected), 1e-11) << r.Re;
  }
}

TEST(ZetaSegmentkruemmer, TableNodesAndEnds) {
  struct Row {
    Real delta, zeta;
  };
  constexpr Row rows[] = {
      {0, 0},
      {30, 0.1L},
      {45, 0.15L},
      {60, 0.2L},
      {90, 0.25L},
      {15, 0.05L},
      {75, 0.225L},
      {59.999L, 0.1999966667L},  // 0.15 + 0.05 · 14.999 / 15
      {89.999L, 0.2499983333L},  // 0.2 + 0.05 · 29.999 / 30
  };
  for (const auto& r : rows) EXPECT_NEAR(dbl(Zeta_Segmentkruemmer(r.delta)), dbl(r.zeta), 1e-10) << r.delta;
  EXPECT_EQ(Zeta_Segmentkruemmer(90), 0.25L);
  EXPECT_EQ(Zeta_Segmentkruemmer(60), 0.2L);
  EXPECT_TRUE(std::isnan(Zeta_Segmentkruemmer(std::nextafter(90.0L, kInf))));
  EXPECT_TRUE(std::isnan(Zeta_Segmentkruemmer(-0.001L)));
}

TEST(ZetaGraugusskruemmer, TableNodesAndEnds) {
  struct Row {
    Real DN, zeta;
  };
  constexpr Row rows[] = {
      {50, 1.3L},  {100, 1.5L}, {200, 1.8L},  {300, 2.1L},         {400, 2.2L},
      {500, 2.2L}, {75, 1.4L},  {250, 1.95L}, {399.99L, 2.19999L},  // 2.1 + 0.1 · 99.99 / 100
  };
  for (const auto& r : rows) EXPECT_NEAR(dbl(Zeta_Graugusskruemmer(r.DN)), dbl(r.zeta), 1e-10) << r.DN;
  EXPECT_TRUE(std::isnan(Zeta_Graugusskruemmer(std::nextafter(50.0L, 0.0L))));
}

TEST(ZetaKniestueck, HandCalculations) {
  // C1 = 33.5/δ + 0.95; C2 = 0.95 s² + 2.05 s⁴ with s = sin(δ/2) (Weisbach's mitre bend, 0.9875 at 90°);
  // C3 = 4.06 / Re^0.118 (1e6: 4.06 / 5.105053 = 0.795290937; 1e5: 1.043580688; 4e4: 1.162740914);
  // C4 = 1 + 500 e up to e = 0.001 and 1.5 beyond, only above Re = 4e4 (Idelchik's k_Δ for elbows).
  struct Row {
    Real delta, d, k, Re, expected;
  };
  constexpr Row rows[] = {
      {90, 100, 0, 1e6L, 1.03840695874L},            // 1.3222222 · 0.9875 · 0.795290937
      {60, 100, 0, 1e6L, 0.438590525579L},           // s = 0.5: C2 = 0.2375 + 0.128125 = 0.365625; C1 = 1.5083333
      {180, 100, 0, 1e6L, 2.71061661179L},           // s = 1: C2 = 3; C1 = 1.1361111
      {45, 100, 0, 1e5L, 0.323755820575L},           // 1.6944444 · 0.1830898282 · 1.043580688
      {90, 100, 0.05L, 1e5L, 1.70324688299L},        // e = 0.0005: C4 = 1.25
      {90, 100, 0.05L, 40000, 1.51818435212L},       // Re/1000 = 40 is not above 40: C4 = 1
      {90, 100, 0.05L, 40000.001L, 1.89773043455L},  // just above: C4 = 1.25
      {90, 100, 0.1L, 1e5L, 2.04389625959L},         // e = 0.001: C4 = 1.5 from either side
      {90, 100, 0.2L, 1e5L, 2.04389625959L},         // e = 0.002: C4 = 1.5
      {90, 100, 0.2L, 40000, 1.51818435212L},        // e = 0.002 at Re = 4e4: C4 = 1
  };
  for (const auto& r : rows) {
    EXPECT_NEAR(dbl(Zeta_Kniestueck(r.delta, r.d, r.k, r.Re)), dbl(r.expected), 1e-10) << r.delta << " " << r.Re;
  }
}

TEST(ZetaKniestueckLaminar, TurbulentValueAtOneMillionPlusLaminarTerm) {
  // δ = 90, smooth: A = 1.3, Z = 1.03840695874; ζ = 2.3 · 1.03840695874 + 1200/1000 = 3.588336005
  EXPECT_NEAR(dbl(Zeta_Kniestueck_laminar(90, 100, 1000, 0)), 3.58833600509, 1e-10);
  // δ = 45: A = 3.6, Z(45, Re = 1e6) = 1.6944444 · 0.1830898282 · 0.795290937 = 0.246727515;
  // ζ = 4.6 · 0.246727515 + 1.2 = 2.334946570
  EXPECT_NEAR(dbl(Zeta_Kniestueck_laminar(45, 100, 1000, 0)), 2.33494657008, 1e-10);
  // The roughness correction is that of Re = 1e6 (C4 = 1.25 for e = 0.0005), not of the laminar Re:
  // ζ = 2.3 · 1.03840695874 · 1.25 + 1.2 = 4.185420006
  EXPECT_NEAR(dbl(Zeta_Kniestueck_laminar(90, 100, 1000, 0.05L)), 4.18542000637, 1e-10);
}

TEST(ZetaKniestueckLaminar, AngleFactorOnOpenClosedIntervals) {
  // A recovered from the result: A = (ζ − 1200/Re) / Zeta_Kniestueck(δ, d, k, 1e6) − 1.
  struct Row {
    Real delta, A;
  };
  constexpr Row rows[] = {
      {10, 6},       {30, 6},       {30.0015L, 5.99976L},  // 6 − 2.4 · 0.0015 / 15
      {37.5L, 4.8L}, {45, 3.6L},    {60, 2.55L},           // 3.6 − 2.1 · 15 / 30
      {75, 1.5L},    {82.5L, 1.4L}, {90, 1.3L},           {135, 1.3L},
  };
  for (const auto& r : rows) {
    const Real zeta = Zeta_Kniestueck_laminar(r.delta, 100, 500, 0);
    const Real A = (zeta - 1200.0L / 500) / Zeta_Kniestueck(r.delta, 100, 0, 1e6L) - 1;
    EXPECT_NEAR(dbl(A), dbl(r.A), 1e-12) << r.delta;
  }
}

TEST(Bends, UndefinedInputsGiveNaN) {
  const Real nan = std::numeric_limits<Real>::quiet_NaN();
  struct Row {
    const char* what;
    Real zeta;
  };
  const Row rows[] = {
      {"circular, D = 0", Zeta_Kreiskruemmer(0, 0, 200, 90, 0, 0.02L, 1e5L)},
      {"circular, R = 0", Zeta_Kreiskruemmer(0, 100, 0, 90, 0, 0.02L, 1e5L)},
      {"circular, Re = 0", Zeta_Kreiskruemmer(0, 100, 200, 90, 0, 0.02L, 0)},
      {"circular, negative angle", Zeta_Kreiskruemmer(0, 100, 200, -1, 0, 0.02L, 1e5L)},
      {"circular, negative roughness", Zeta_Kreiskruemmer(0, 100, 200, 90, -0.1L, 0.02L, 1e5L)},
      {"rectangular, H/B just below 0.2", Zeta_Rechteckkruemmer(0, 100, 19.9999L, 200, 90, 33.3L, 0, 0.02L, 1e5L)},
      {"rectangular, B = 0", Zeta_Rechteckkruemmer(0, 0, 100, 200, 90, 100, 0, 0.02L, 1e5L)},
      {"laminar, R = 0", Zeta_Kruemmer_laminar(100, 0, 90, 1000)},
      {"laminar, Re = 0", Zeta_Kruemmer_laminar(100, 200, 90, 0)},
      {"segment, NaN angle", Zeta_Segmentkruemmer(nan)},
      {"cast iron, DN 49.9", Zeta_Graugusskruemmer(49.9L)},
      {"cast iron, NaN size", Zeta_Graugusskruemmer(nan)},
      {"knee, angle 0", Zeta_Kniestueck(0, 100, 0, 1e5L)},
      {"knee, negative roughness", Zeta_Kniestueck(90, 100, -0.1L, 1e5L)},
      {"laminar knee, angle 0", Zeta_Kniestueck_laminar(0, 100, 1000, 0)},
      {"laminar knee, Re = 0", Zeta_Kniestueck_laminar(90, 100, 0, 0)},
  };
  for (const auto& r : rows) EXPECT_TRUE(std::isnan(r.zeta)) << r.what;
}

}  // namespace
}  // namespace linecalc
