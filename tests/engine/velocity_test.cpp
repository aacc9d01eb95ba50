// Velocities, hydraulic diameters and Reynolds numbers of the section forms, against hand calculations.
#include "engine/velocity.h"

#include <gtest/gtest.h>

#include <numbers>

#include "engine/element_state.h"

namespace linecalc {
namespace {

constexpr long double kPi = std::numbers::pi_v<long double>;

CalculationState element(int group, int nr, std::initializer_list<Real> va) {
  return test::elementState(group, nr, va);
}

double d(Real value) {
  return static_cast<double>(value);
}

TEST(Velocity, CircularPipeOfTheWorkedExample) {
  CalculationState s = element(1, 1, {100});
  Berechnung_w_Re(s);
  EXPECT_NEAR(d(s.w), 1.2732395447351628, 1e-15);  // 36 * 4 * 10000 / (pi * 100 * 100 * 36)
  EXPECT_NEAR(d(s.Re), 127323.95447351628, 1e-9);  // w * 1000 * 100 * 1000 / 1000
}

struct SectionCase {
  int group, nr;
  std::initializer_list<Real> va;
  double w, d_hydr;
};

TEST(Velocity, SectionFormsAgainstHandCalculations) {
  const SectionCase cases[] = {
      // rectangle 200 x 100 mm, 36 m3/h = 0.01 m3/s over 0.02 m2: 0.5 m/s; d_hydr = 2*200*100/300
      {1, 2, {200, 100}, 0.5, 400.0 / 3},
      // square duct: d_hydr equals the side
      {4, 4, {100, 100}, 1.0, 100},
      // annulus D 100, Di 50: 0.01 m3/s over pi/4*(0.01-0.0025) m2; d_hydr = D - Di
      {1, 3, {100, 50}, 0.01 / (kPi / 4 * 0.0075), 50},
      // open channel 1000 x 500 mm: d_hydr = 4*B*H/(B+2H) = 1000, the free surface not wetted
      {1, 4, {1000, 500}, 0.02, 1000},
      // free section 0.02 m2 with 0.6 m wetted circumference: d_hydr = 4A/U = 133.33 mm
      {1, 6, {0.02L, 0.6L}, 0.5, 400.0 / 3},
  };
  for (const auto& c : cases) {
    CalculationState s = element(c.group, c.nr, c.va);
    Berechnung_w_Re(s);
    EXPECT_NEAR(d(s.w), c.w, 1e-14) << c.group << "," << c.nr;
    EXPECT_NEAR(d(s.d_hydr), c.d_hydr, 1e-11) << c.group << "," << c.nr;
    EXPECT_NEAR(d(s.Re), c.w * 1000 * c.d_hydr, 1e-8) << c.group << "," << c.nr;
  }
}

TEST(Velocity, SecondSections) {
  CalculationState s = element(3, 1, {50, 100});
  Berechnung_w_Re(s);
  EXPECT_NEAR(d(s.w2), d(s.w) / 4, 1e-15);  // twice the diameter, a quarter of the velocity
  EXPECT_NEAR(d(s.Re2), d(s.Re) / 2, 1e-9);

  s = element(5, 1, {100, 100});  // a tee halves the flow into the branch
  Berechnung_w_Re(s);
  EXPECT_NEAR(d(s.w2), d(s.w) / 2, 1e-15);

  s = element(5, 5, {100, 50});
  s.Volumenstrom_Z = 72;  // the branch flow as entered, even above the main flow
  Berechnung_w_Re(s);
  EXPECT_NEAR(d(s.w2), d(s.w) * 8, 1e-13);

  s = element(9, 1, {100, 60});  // orifices scale Re by the diameters
  Berechnung_w_Re(s);
  EXPECT_EQ(s.Re2, s.Re * 100 / 60);
  EXPECT_NEAR(d(s.w2), d(s.w) * 100 * 100 / 3600, 1e-14);

  s = element(10, 4, {200, 100, 5, 5, 40});  // free opening of 40 %
  Berechnung_w_Re(s);
  EXPECT_NEAR(d(s.w2), 0.5 / 0.4, 1e-15);
}

TEST(Velocity, TheRectangularPressureChangeUsesTheFirstVelocityWithTheSecondDiameter) {
  CalculationState s = element(13, 3, {200, 100, 100, 100});
  Berechnung_w_Re(s);
  EXPECT_NEAR(d(s.w), 0.5, 1e-15);
  EXPECT_NEAR(d(s.w2), 1.0, 1e-15);
  EXPECT_EQ(s.d_hydr, 100);  // the second section's
  EXPECT_NEAR(d(s.Re), 0.5 * 1000 * 400.0 / 3, 1e-8);
  EXPECT_NEAR(d(s.Re2), 0.5 * 1000 * 100, 1e-9);  // w, not w2
}

TEST(Velocity, OutputsAnElementDoesNotAssignKeepTheirValues) {
  CalculationState s = element(1, 2, {200, 100});
  s.w2 = 9;
  s.Re2 = 99;
  Berechnung_w_Re(s);
  EXPECT_EQ(s.w2, 9);
  EXPECT_EQ(s.Re2, 99);

  const Real w = s.w, dh = s.d_hydr;
  s.ElementGruppe = 13;
  s.ElementNr = 1;  // a height difference: Re is 0, the rest stays
  Berechnung_w_Re(s);
  EXPECT_EQ(s.Re, 0);
  EXPECT_EQ(s.w, w);
  EXPECT_EQ(s.d_hydr, dh);

  s.Re = 5;
  for (const auto& [group, nr] : {std::pair{1, 7}, {8, 4}, {0, 1}, {14, 1}, {2, 0}}) {
    s.ElementGruppe = group;
    s.ElementNr = nr;
    Berechnung_w_Re(s);
    EXPECT_EQ(s.Re, 5) << group << "," << nr;
    EXPECT_EQ(s.w, w);
  }
}

}  // namespace
}  // namespace linecalc
