// The loss step: regime decision, the dispatch rows with their asymmetries, the gas correction.
#include "engine/loss.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "engine/element_state.h"
#include "engine/friction.h"
#include "engine/velocity.h"

namespace linecalc {
namespace {

double d(Real value) {
  return static_cast<double>(value);
}

// The element with 36 m3/h of a medium of 1000 kg/m3 and the given viscosity, its velocities computed.
CalculationState element(int group, int nr, std::initializer_list<Real> va, Real viscosity = 1000) {
  CalculationState s = test::elementState(group, nr, va, viscosity);
  Berechnung_w_Re(s);
  return s;
}

TEST(Loss, CommonLossFormByHand) {
  EXPECT_NEAR(d(Dz(2, 2, 1000)), 0.04, 1e-18);  // (2/2)/100000 * 1000 * 2 * 2 bar
}

TEST(Loss, TheRegimeChangesAt2320AndContractionsAreJudgedInTheNarrowSection) {
  CalculationState s = element(2, 2, {100});
  for (const auto& [re, laminar] : {std::pair{2319.999L, true}, {2320.0L, false}, {2320.001L, false}}) {
    s.Re = re;
    elementLoss(s, {});
    EXPECT_EQ(s.laminar, laminar) << d(re);
  }
  s = element(3, 3, {100, 50});
  s.Re = 100;    // the wide section alone would be laminar
  s.Re2 = 2320;  // the narrow one decides
  elementLoss(s, {});
  EXPECT_FALSE(s.laminar);
}

TEST(Loss, StraightPipeInBothRegimes) {
  CalculationState s = element(1, 1, {100, 10});  // Re = 127324, turbulent
  s.Rauhigkeit = 0.1L;
  elementLoss(s, {});
  EXPECT_EQ(s.Lambda, Lambda_Colebrook(0.1L, s.Re, 100));
  EXPECT_NEAR(d(s.Zeta), d(s.Lambda) * 10 / 100 * 1000, 1e-12);
  // Darcy-Weisbach: lambda L/D rho w^2 / 2 in Pa, / 1e5 to bar
  EXPECT_NEAR(d(s.Delta_P), d(s.Lambda) * 10 / 0.1 * 1000 * d(s.w * s.w) / 2 / 1e5, 1e-14);

  s = element(1, 1, {100, 10}, 1e6);  // a viscous oil: Re = 127, laminar
  elementLoss(s, {});
  EXPECT_TRUE(s.laminar);
  EXPECT_NEAR(d(s.Lambda), 64 / d(s.Re), 1e-15);
}

TEST(Loss, TheFreeSectionShowsItsCoefficientFromPerimeterAndArea) {
  CalculationState s = element(1, 6, {0.02L, 0.6L, 10});
  elementLoss(s, {});
  EXPECT_FALSE(s.laminar);
  EXPECT_NEAR(d(s.Zeta), d(s.Lambda) * 0.6 / 0.02 * 1000, 1e-9);  // perimeter over area
  EXPECT_NEAR(d(s.Delta_P), d(Rohrreibungsverlust(s.Lambda, 10, 1000, s.w, s.d_hydr)), 1e-15);
}

TEST(Loss, ChangesOfSectionTakeTheSecondVelocityOnlyWhenLaminar) {
  CalculationState s = element(3, 1, {50, 100});  // turbulent: Borda-Carnot with the velocity in D1
  elementLoss(s, {});
  EXPECT_NEAR(d(s.Zeta), 0.5625, 1e-15);
  EXPECT_NEAR(d(s.Delta_P), d(Dz(0.5625L, s.w, 1000)), 1e-15);

  s = element(3, 1, {50, 100}, 1e6);
  elementLoss(s, {});
  EXPECT_TRUE(s.laminar);
  EXPECT_NEAR(d(s.Delta_P), d(Dz(s.Zeta, s.w2, 1000)), 1e-15);
}

TEST(Loss, HeightDifferencesAndChangesOfVelocity) {
  CalculationState s = element(13, 1, {10});
  elementLoss(s, {});
  EXPECT_TRUE(s.laminar);                   // Re is 0
  EXPECT_NEAR(d(s.Delta_P), 0.981, 1e-15);  // 1000 * 9.81 * 10 / 100000
  s.Va1 = -10;
  elementLoss(s, {});
  EXPECT_NEAR(d(s.Delta_P), -0.981, 1e-15);
  EXPECT_EQ(s.Zeta, 0);

  // D1 = 50 to D2 = 100 with 36 m3/h: w1 = 5.093 m/s, w2 = 1.273 m/s; (w2^2 - w1^2) * 500 / 1e5
  s = element(13, 2, {50, 100});
  elementLoss(s, {});
  EXPECT_NEAR(d(s.Delta_P), -0.121585, 1e-6);  // a pressure recovery
  s = element(13, 2, {100, 50});
  elementLoss(s, {});
  EXPECT_NEAR(d(s.Delta_P), 0.121585, 1e-6);
}

TEST(Loss, BranchPiecesGiveBothRunsWithTheMainVelocity) {
  CalculationState s = element(5, 5, {100, 50, 0, 45});
  s.Volumenstrom_Z = 12;
  elementLoss(s, {});
  EXPECT_NEAR(d(s.Delta_P), d(Dz(s.Zeta, s.w, 1000)), 1e-15);
  EXPECT_NEAR(d(s.Delta_P_Z), d(Dz(s.Zeta_Z, s.w, 1000)) * 1000, 1e-12);  // mbar
  EXPECT_NE(s.Zeta, s.Zeta_Z);
}

TEST(Loss, CriticalElementsAreMarkedOnlyOnTheLaminarPath) {
  CalculationState s = element(9, 2, {100, 50}, 1e6);
  elementLoss(s, {});
  EXPECT_TRUE(s.laminar);
  EXPECT_TRUE(s.Kritisches_Laminar_Element);
  s = element(9, 4, {100, 50, 10}, 1e6);  // the thick orifice has a laminar coefficient of its own
  elementLoss(s, {});
  EXPECT_FALSE(s.Kritisches_Laminar_Element);
  s = element(9, 2, {100, 50});
  s.Kritisches_Laminar_Element = true;
  elementLoss(s, {});
  EXPECT_TRUE(s.Kritisches_Laminar_Element);  // untouched by the turbulent path
}

TEST(Loss, RestrictionsOutsideTheirReynoldsRangeBringANoteOnTheTurbulentPathOnly) {
  struct Case {
    int nr;
    Real viscosity;
    RangeNote expected;
  };
  // DN 100 with 36 m3/h and density 1000: Re = 127324 * 1000 / viscosity
  for (const Case c : {Case{1, 1000, RangeNote::None},       //
                       Case{1, 10, RangeNote::Bereich1},     // Re 1.27e7 above 1e7
                       Case{1, 30000, RangeNote::Bereich1},  // Re 4244 below 5000
                       Case{2, 1000, RangeNote::None},       //
                       Case{2, 2000, RangeNote::Bereich2},   // Re 63662 below 100000
                       Case{3, 40000, RangeNote::None},      // Re 3183
                       Case{3, 45000, RangeNote::Bereich3},  // Re 2829 below 3000
                       Case{2, 1e6, RangeNote::None}}) {     // laminar: no note
    CalculationState s = element(9, c.nr, {100, 50, 5}, c.viscosity);
    EXPECT_EQ(elementLoss(s, {}).rangeNote, c.expected) << c.nr << " " << d(s.Re);
  }
  // The thick orifice is judged by Re2 in its bore: Re2 = Re * D / d
  CalculationState s = element(9, 4, {100, 80, 10}, 30000);
  EXPECT_NEAR(d(s.Re2), 5305.16, 0.01);
  EXPECT_EQ(elementLoss(s, {}).rangeNote, RangeNote::None);
  s = element(9, 4, {100, 80, 10}, 42441);  // Re 3000, Re2 3750
  EXPECT_EQ(elementLoss(s, {}).rangeNote, RangeNote::Bereich4);
}

TEST(Loss, ALaminarLyreBendKeepsItsCoefficientWhileTheCurveIsDrawn) {
  CalculationState s = element(6, 2, {100}, 1e6);
  s.Zeta = 9;
  elementLoss(s, {0, true});
  EXPECT_EQ(s.Zeta, 9);
  EXPECT_TRUE(s.Kritisches_Laminar_Element);
  elementLoss(s, {0, false});
  EXPECT_NEAR(d(s.Zeta), 0.7, 1e-18);
}

TEST(Loss, UnknownElementsClearTheLossButKeepTheCoefficient) {
  CalculationState s = element(8, 4, {100}, 1e6);
  s.Re = 100;
  s.Zeta = 3;
  s.Lambda = 0.02L;
  s.Delta_P = 1;
  s.Kritisches_Laminar_Element = true;
  elementLoss(s, {});
  EXPECT_EQ(s.Zeta, 3);
  EXPECT_EQ(s.Lambda, 0);
  EXPECT_EQ(s.Delta_P, 0);
  EXPECT_FALSE(s.Kritisches_Laminar_Element);
}

TEST(Loss, InputsWithoutAValueAreReportedNotComputed) {
  CalculationState s = element(4, 4, {100, 10, 100, 90});  // H/B = 0.1 is below the form factor's table
  EXPECT_TRUE(elementLoss(s, {}).undefined);
  s = element(7, 5, {100, 60});  // a cock beyond 50 degrees
  EXPECT_TRUE(elementLoss(s, {}).undefined);
  s = element(4, 1, {100, 100, 90});
  EXPECT_FALSE(elementLoss(s, {}).undefined);
}

TEST(Loss, GasCorrection) {
  CalculationState s;
  s.Eintrittsdruck = 2;
  s.Eintrittstemperatur = s.Austrittstemperatur = 300;
  s.Delta_P = 0.5;  // a quarter of the inlet pressure: (1 - sqrt(1 - 0.5)) * p = 0.2929 p
  EXPECT_TRUE(gasCorrection(s));
  EXPECT_NEAR(d(s.Delta_P), (1 - std::sqrt(0.5)) * 2, 1e-15);

  s.Delta_P = 1;  // exactly half: still corrected, to the whole inlet pressure
  EXPECT_TRUE(gasCorrection(s));
  EXPECT_NEAR(d(s.Delta_P), 2, 1e-15);

  s.Delta_P = 1.0000001L;
  EXPECT_FALSE(gasCorrection(s));
  EXPECT_TRUE(s.gasdruckzuhoch);
  EXPECT_EQ(s.Delta_P, 1.0000001L);  // uncorrected

  s.Delta_P = 0.1L;  // the outlet colder than the inlet: (T1 + T2) / 2 / T1 = 0.9
  s.Austrittstemperatur = 240;
  EXPECT_TRUE(gasCorrection(s));
  EXPECT_FALSE(s.gasdruckzuhoch);
  EXPECT_NEAR(d(s.Delta_P), (1 - std::sqrt(1 - 0.1 * 0.9)) * 2, 1e-15);
}

}  // namespace
}  // namespace linecalc
