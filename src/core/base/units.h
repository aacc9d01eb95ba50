#pragma once

#include <span>
#include <string>
#include <string_view>

#include "base/real.h"

namespace linecalc {

// A family of units that convert into each other through one base unit.
enum class UnitFamily {
  Length,              // base "m"
  Diameter,            // base "mm"
  Density,             // base "kg/m3"
  SpecificVolume,      // base "m3/kg"
  VolumeFlow,          // base "m3/h"
  Volume,              // base "m3"
  MassFlow,            // base "kg/h"
  DynamicViscosity,    // base "10-6 kg/ms"
  KinematicViscosity,  // base "10-6 m2/s"
  Pressure,            // base "bar"
  StandardVolumeFlow,  // base "Nm3/h"
  Velocity,            // base "m/s"
  Section,             // base "m2"
  Power,               // base "kW"
  Temperature,         // base "K"
};

// One unit of a family: value_in_base = (value + addBefore) * multiply / divide + addAfter.
// Most units are plain factors; "psig" adds the atmosphere before its factor, temperatures are affine.
struct UnitStep {
  std::string_view text;
  Real multiply = 1;
  Real divide = 1;
  Real addBefore = 0;
  Real addAfter = 0;
};

std::span<const UnitStep> unitSteps(UnitFamily family);
std::string_view baseUnit(UnitFamily family);
std::span<const UnitFamily> allUnitFamilies();

// The unit of the family that a text names, or nullptr. Beside the spelling of the table a text may
// use raised digits ("m³/h"), "^" powers ("m^2"), the dotted American spellings ("cu.ft./hr",
// "lb./cu.ft.", "sq.ft.", "ft./s") and blanks inside ("mPa s", "10-6 g/cm s").
const UnitStep* findUnit(UnitFamily family, std::string_view text);

// Converts value from the unit named `from` to the unit named `to` through the family's base unit.
// A text the family does not know leaves the value as it stands at that step, without a message.
Real convertUnit(UnitFamily family, std::string_view from, std::string_view to, Real value);

Real Umre_Laenge(std::string_view von, std::string_view nach, Real wert);
Real Umre_Durchmesser(std::string_view von, std::string_view nach, Real wert);
Real Umre_Dichte(std::string_view von, std::string_view nach, Real wert);
Real Umre_SpezVolumen(std::string_view von, std::string_view nach, Real wert);
Real Umre_Volumenstrom(std::string_view von, std::string_view nach, Real wert);
Real Umre_Volumen(std::string_view von, std::string_view nach, Real wert);
Real Umre_Massenstrom(std::string_view von, std::string_view nach, Real wert);
Real Umre_dynViskositaet(std::string_view von, std::string_view nach, Real wert);
Real Umre_kinViskositaet(std::string_view von, std::string_view nach, Real wert);
Real Umre_Druck(std::string_view von, std::string_view nach, Real wert);
Real Umre_Normvolumenstrom(std::string_view von, std::string_view nach, Real wert);
Real Umre_Geschwindigkeit(std::string_view von, std::string_view nach, Real wert);
Real Umre_Querschnitt(std::string_view von, std::string_view nach, Real wert);
Real Umre_Leistung(std::string_view von, std::string_view nach, Real wert);
Real Umre_Temperatur(std::string_view von, std::string_view nach, Real wert);

}  // namespace linecalc
