#include "base/units.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "base/unit_lists.h"

namespace linecalc {
namespace {

double relativeError(Real actual, Real expected) {
  return static_cast<double>(std::fabs(actual - expected) / std::fabs(expected));
}

TEST(Units, EveryUnitOfEveryFamilyGoesToTheBaseAndBackToItself) {
  for (const UnitFamily family : allUnitFamilies()) {
    const std::string base(baseUnit(family));
    for (const UnitStep& unit : unitSteps(family)) {
      for (const Real value : {1.0L, 37.25L, -4.5L, 1234567.0L}) {
        const Real inBase = convertUnit(family, unit.text, base, value);
        EXPECT_LT(relativeError(convertUnit(family, base, unit.text, inBase), value), 1e-17)
            << unit.text << " value " << static_cast<double>(value);
      }
    }
  }
}

// Reference values from the NIST guide to SI units (SP 811, appendix B) and the definitions of the
// units; where the program's factor is rounded, the tolerance says how far.
struct FactorCase {
  UnitFamily family;
  const char* from;
  const char* to;
  Real value;
  Real expected;
  double tolerance;
};

TEST(Units, FactorsAgreeWithIndependentValues) {
  const FactorCase cases[] = {
      {UnitFamily::Pressure, "psi", "bar", 1, 0.0689475729L, 1e-6},
      {UnitFamily::Pressure, "psia", "Pa", 1, 6894.757L, 1e-6},
      {UnitFamily::Pressure, "atm", "Pa", 1, 101325, 1e-15},
      {UnitFamily::Pressure, "Torr", "Pa", 760, 101325, 1e-9},
      {UnitFamily::Pressure, "m H2O", "Pa", 1, 9806.65L, 1e-15},
      {UnitFamily::Pressure, "in.wtr.", "Pa", 1, 249.0889L, 1e-7},
      {UnitFamily::Pressure, "ft.wtr.", "Pa", 1, 2989.067L, 1e-6},
      {UnitFamily::Pressure, "lbw./sq.ft.", "Pa", 1, 47.88026L, 1e-6},
      {UnitFamily::Pressure, "at", "bar", 1, 0.980665L, 1e-15},
      {UnitFamily::Pressure, "MPa", "mbar", 1, 10000, 1e-15},
      {UnitFamily::VolumeFlow, "gal/min", "m3/h", 1, 0.2271247L, 5e-6},  // the barrel of 0.158987 m3 is rounded
      {UnitFamily::VolumeFlow, "ft3/min", "m3/h", 1, 1.699011L, 1e-6},
      {UnitFamily::VolumeFlow, "l/s", "m3/h", 1, 3.6L, 1e-15},
      {UnitFamily::VolumeFlow, "petr.bl/day", "l/min", 1, 0.1104076L, 1e-6},
      {UnitFamily::Length, "ft.", "m", 1, 0.3048L, 1e-15},
      {UnitFamily::Diameter, "in.", "mm", 2, 50.8L, 1e-15},
      {UnitFamily::Density, "lb/ft3", "kg/m3", 1, 16.01846L, 1e-6},
      {UnitFamily::Density, "lb/gal", "kg/m3", 1, 119.8264L, 1e-5},  // US gallon
      {UnitFamily::Density, "kg/l", "g/l", 1, 1000, 1e-15},
      {UnitFamily::SpecificVolume, "ft3/lb", "m3/kg", 1, 0.06242796L, 1e-6},
      {UnitFamily::SpecificVolume, "l/kg", "m3/kg", 1000, 1, 1e-15},
      {UnitFamily::MassFlow, "lb/s", "kg/h", 1, 1632.933L, 1e-6},
      {UnitFamily::MassFlow, "lb/hr", "kg/h", 1, 0.4535924L, 2e-4},  // the program's factor is rounded
      {UnitFamily::MassFlow, "kg/s", "kg/min", 1, 60, 1e-15},
      {UnitFamily::DynamicViscosity, "cP", "10-6 kg/ms", 1, 1000, 1e-15},
      {UnitFamily::DynamicViscosity, "mPa s", "10-6 Pa s", 1, 1000, 1e-15},
      {UnitFamily::DynamicViscosity, "10-6 g/cm s", "10-6 kg/ms", 1, 0.1L, 1e-15},  // 1 P = 0.1 Pa s
      {UnitFamily::DynamicViscosity, "Lb.s/ft2", "cP", 1, 47880.26L, 1e-6},
      {UnitFamily::KinematicViscosity, "ft2/s", "10-6 m2/s", 1, 92903.04L, 1e-6},
      {UnitFamily::KinematicViscosity, "cSt", "mm2/s", 1, 1, 1e-15},
      {UnitFamily::KinematicViscosity, "cm2/s", "10-6 m2/s", 1, 100, 1e-15},
      {UnitFamily::Velocity, "ft/s", "m/s", 1, 0.3048L, 1e-15},
      {UnitFamily::Velocity, "km/h", "m/s", 36, 10, 1e-15},
      {UnitFamily::Velocity, "yd/min", "m/s", 60, 0.9144L, 1e-15},
      {UnitFamily::Section, "ft2", "m2", 1, 0.09290304L, 1e-15},
      {UnitFamily::Section, "mm2", "cm2", 100, 1, 1e-15},
      {UnitFamily::Volume, "ft3", "Liter", 1, 28.31685L, 1e-6},
      {UnitFamily::StandardVolumeFlow, "Nm3/s", "Nm3/min", 1, 60, 1e-15},
      {UnitFamily::Power, "Hp", "kW", 1, 0.7457L, 1e-15},
      {UnitFamily::Temperature, "°C", "K", 100, 373.15L, 1e-15},
      {UnitFamily::Temperature, "°Re", "°C", 80, 100, 1e-15},          // Réaumur: water boils at 80
      {UnitFamily::Temperature, "°Ra", "K", 491.67L, 273.15L, 1e-15},  // Rankine
      {UnitFamily::Temperature, "°F", "°C", 212, 100, 1e-4},           // rounded pair, within 0.01 K
  };
  for (const auto& c : cases) {
    const Real result = convertUnit(c.family, c.from, c.to, c.value);
    EXPECT_LT(relativeError(result, c.expected), c.tolerance)
        << c.from << " -> " << c.to << ": " << static_cast<double>(result);
  }
}

TEST(Units, KeepsTheProgramsOwnQuirks) {
  // 0 °F is 255.372 K; the program's rounded pair says 255.38 in both directions.
  EXPECT_EQ(Umre_Temperatur("°F", "K", 0), 255.38L);
  EXPECT_EQ(Umre_Temperatur("K", "°F", 255.38L), 0);
  // "Ns/m2" passes as if it were the base unit, where 1 N s/m2 would really be 1e6.
  EXPECT_EQ(Umre_dynViskositaet("Ns/m2", "10-6 kg/ms", 1), 1);
  // Gauge psi adds an atmosphere of 14.7 psi before its factor.
  EXPECT_EQ(Umre_Druck("psig", "bar", 0), 14.7L * 0.068947581976L);
  EXPECT_NEAR(static_cast<double>(Umre_Druck("psig", "psia", 10)), 24.7, 1e-12);
  EXPECT_NEAR(static_cast<double>(Umre_Druck("bar", "psig", 1.01325L)), -0.00405, 1e-5);  // 1 atm is 14.69595 psi
}

TEST(Units, TemperatureTextsAreNormalisedByWhatTheyContain) {
  const std::pair<const char*, Real> inKelvinOf10[] = {
      {"°C", 283.15L}, {"C", 283.15L},  {"deg C", 283.15L}, {"degF", 260.9356L}, {"F", 260.9356L},
      {"°R", 285.65L}, {"Re", 285.65L}, {"Ra", 50.0L / 9},  {"K", 10},           {"kelvin", 10},
  };
  for (const auto& [text, kelvin] : inKelvinOf10) {
    EXPECT_LT(relativeError(Umre_Temperatur(text, "K", 10), kelvin), 1e-15) << text;
  }
}

TEST(Units, AnUnknownTextLeavesTheValueAsItStands) {
  EXPECT_EQ(Umre_Druck("furlong", "bar", 5), 5);
  EXPECT_EQ(Umre_Druck("bar", "furlong", 5), 5);
  EXPECT_EQ(Umre_Druck("mbar", "furlong", 5), 0.005L);  // the known source step still applies
  EXPECT_EQ(Umre_Volumenstrom("", "m3/h", 7), 7);
  EXPECT_EQ(Umre_Dichte("bar", "kg/m3", 3), 3);  // a unit of another family is unknown here
}

TEST(Units, EveryItemOfTheMasterListsConverts) {
  for (const UnitList& list : masterUnitLists()) {
    ASSERT_FALSE(list.units.empty()) << list.comboName;
    for (const std::string_view unit : list.units) {
      EXPECT_NE(findUnit(list.family, unit), nullptr) << list.comboName << ": " << unit;
      const Real inBase = convertUnit(list.family, unit, baseUnit(list.family), 3.5L);
      EXPECT_LT(relativeError(convertUnit(list.family, baseUnit(list.family), unit, inBase), 3.5L), 1e-17) << unit;
    }
  }
  EXPECT_EQ(masterUnits("combo_Volumenstrom").front(), "m3/h");
  EXPECT_EQ(masterUnits("combo_Stromlauf2").size(), 14u);
  EXPECT_TRUE(masterUnits("no such combo").empty());
}

// Lists and dialogs spell some units otherwise than the conversion table; each pair must convert alike.
struct SpellingCase {
  UnitFamily family;
  const char* spelling;
  const char* tableText;
};

TEST(Units, OtherSpellingsOfTheSameUnitConvertAlike) {
  const SpellingCase cases[] = {
      {UnitFamily::DynamicViscosity, "10-6 g/cms", "10-6 g/cm s"},
      {UnitFamily::DynamicViscosity, "10-6 Pas", "10-6 Pa s"},
      {UnitFamily::DynamicViscosity, "mPas", "mPa s"},
      {UnitFamily::DynamicViscosity, "10-6 kg/m s", "10-6 kg/ms"},
      {UnitFamily::DynamicViscosity, "lb.av./ft.hr", "lb.av/ft.hr"},
      {UnitFamily::DynamicViscosity, "Lb.s/sq.ft.", "Lb.s/ft2"},
      {UnitFamily::KinematicViscosity, "10^-6 m²/s", "10-6 m2/s"},
      {UnitFamily::KinematicViscosity, "sq.ft./hr", "ft2/hr"},
      {UnitFamily::VolumeFlow, "m³/h", "m3/h"},
      {UnitFamily::VolumeFlow, "cu.ft./hr", "ft3/hr"},
      {UnitFamily::VolumeFlow, "petr.bl./day", "petr.bl/day"},
      {UnitFamily::StandardVolumeFlow, "Nm³/min", "Nm3/min"},
      {UnitFamily::Density, "kg/m³", "kg/m3"},
      {UnitFamily::Density, "lb./cu.ft.", "lb/ft3"},
      {UnitFamily::Density, "gr./gal.", "gr/gal"},
      {UnitFamily::Density, "oz./cu.in.", "oz/in3"},
      {UnitFamily::SpecificVolume, "cu.ft./lb", "ft3/lb"},
      {UnitFamily::Volume, "cu.ft.", "ft3"},
      {UnitFamily::Volume, "m³", "m3"},
      {UnitFamily::Section, "sq.ft.", "ft2"},
      {UnitFamily::Section, "m^2", "m2"},
      {UnitFamily::Section, "in^2", "in2"},
      {UnitFamily::Section, "cm²", "cm2"},
      {UnitFamily::Velocity, "ft./s", "ft/s"},
      {UnitFamily::Velocity, "yd./min", "yd/min"},
      {UnitFamily::Pressure, "m WS", "m H2O"},
      {UnitFamily::Length, "ft", "ft."},
  };
  for (const auto& c : cases) {
    const UnitStep* unit = findUnit(c.family, c.spelling);
    ASSERT_NE(unit, nullptr) << c.spelling;
    EXPECT_EQ(convertUnit(c.family, c.spelling, baseUnit(c.family), 2),
              convertUnit(c.family, c.tableText, baseUnit(c.family), 2))
        << c.spelling;
  }
}

TEST(Units, NoTwoUnitsOfAFamilyShareASpelling) {
  for (const UnitFamily family : allUnitFamilies()) {
    for (const UnitStep& unit : unitSteps(family)) EXPECT_EQ(findUnit(family, unit.text), &unit) << unit.text;
  }
}

}  // namespace
}  // namespace linecalc
