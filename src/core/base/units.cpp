#include "base/units.h"

#include <array>
#include <string>

namespace linecalc {

namespace {

constexpr Real kCubicFoot = 0.3048L * 0.3048L * 0.3048L;  // m3
constexpr Real kBarrel = 0.158987L;                       // m3 per petroleum barrel, 42 gallons

// The factors are the program's own, rounded ones included; each row reads as its unit's step to the base.
constexpr UnitStep kLength[] = {{"m"}, {"ft.", 0.3048L}};
constexpr UnitStep kDiameter[] = {{"mm"}, {"in.", 25.4L}};
constexpr UnitStep kDensity[] = {
    {"kg/m3"},
    {"kg/l", 1000},
    {"g/l", 1},
    {"gr/ft3", 0.0022884L},
    {"gr/gal", 0.017118L},
    {"oz/ft3", 1.0011541L},
    {"oz/in3", 1729.9942713L},
    {"oz/gal", 7.4891077L},
    {"lb/ft3", 16.0184655L},
    {"lb/in3", 27679.9083411L},
    {"lb/gal", 119.8257233L},
};
// A specific volume unit is the reciprocal of a density unit and divides by its factor.
constexpr UnitStep kSpecificVolume[] = {
    {"m3/kg"},
    {"l/kg", 1, 1000},
    {"l/g", 1},
    {"ft3/gr", 1, 0.0022884L},
    {"gal/gr", 1, 0.017118L},
    {"ft3/oz", 1, 1.0011541L},
    {"in3/oz", 1, 1729.9942713L},
    {"gal/oz", 1, 7.4891077L},
    {"ft3/lb", 1, 16.0184655L},
    {"in3/lb", 1, 27679.9083411L},
    {"gal/lb", 1, 119.8257233L},
};
constexpr UnitStep kVolumeFlow[] = {
    {"m3/h"},
    {"m3/min", 60},
    {"m3/s", 3600},
    {"l/min", 6, 100},
    {"l/s", 36, 10},
    {"ft3/hr", kCubicFoot},
    {"ft3/min", kCubicFoot * 60},
    {"ft3/s", kCubicFoot * 60 * 60},
    {"petr.bl/hr", kBarrel},
    {"petr.bl/day", kBarrel, 24},
    {"gal/hr", kBarrel, 42},
    {"gal/min", kBarrel * 60, 42},
    {"gal/s", kBarrel * 60 * 60, 42},
};
constexpr UnitStep kVolume[] = {{"m3"}, {"Liter", 1, 1000}, {"ft3", kCubicFoot}};
constexpr UnitStep kMassFlow[] = {
    {"kg/h"},
    {"kg/min", 60},
    {"kg/s", 60 * 60},
    {"lb/hr", 0.000126L * 3600},
    {"lb/min", 0.0075599L * 3600},
    {"lb/s", 0.4535924L * 3600},
    {"oz/min", 0.0004725L * 3600},
    {"oz/s", 0.0283495L * 3600},
};
constexpr UnitStep kDynamicViscosity[] = {
    {"10-6 kg/ms"},
    {"10-6 g/cm s", 1, 10},
    {"10-6 Pa s", 1},
    {"10-6 Ns/m2", 1},
    {"mPa s", 1000},
    {"cP", 1000},
    {"Ns/m2", 1},  // passes as if it were already in the base unit: the program has always read it so
    {"lb.av/ft.hr", 0.0004134L * 1000000},
    {"lb.av/ft.s", 1.4881641L * 1000000},
    {"Lb.s/ft2", 47.8802653L * 1000000},
};
constexpr UnitStep kKinematicViscosity[] = {
    {"10-6 m2/s"}, {"cm2/s", 100}, {"mm2/s", 1}, {"cSt", 1}, {"ft2/hr", 25.8L}, {"ft2/s", 92903},
};
constexpr Real kPsi = 0.068947581976L;  // bar
constexpr UnitStep kPressure[] = {
    {"bar"},
    {"mbar", 1, 1000},
    {"Pa", 1, 100000},
    {"MPa", 10},
    {"ata", 0.980665L},
    {"at", 0.980665L},
    {"atm", 1.01325L},
    {"m WS", 0.0980665L},
    {"m H2O", 0.0980665L},
    {"mm WS", 0.0980665L, 1000},
    {"mm H2O", 0.0980665L, 1000},
    {"Torr", 0.001333223684L},
    {"lbw./sq.ft.", 0.000478802653L},
    {"psia", kPsi},
    {"psi", kPsi},
    {"psig", kPsi, 1, 14.7L},  // gauge: the atmosphere of 14.7 psi is added first
    {"ft.wtr.", 0.0298906692L},
    {"in.wtr.", 0.002490889L},
};
constexpr UnitStep kStandardVolumeFlow[] = {{"Nm3/h"}, {"Nm3/min", 60}, {"Nm3/s", 3600}};
constexpr UnitStep kVelocity[] = {
    {"m/s"},
    {"m/min", 1, 60},
    {"km/h", 1, 3.6L},
    {"ft/s", 0.0254L * 12},
    {"ft/min", 0.0254L * 12, 60},
    {"yd/s", 0.0254L * 36},
    {"yd/min", 0.0254L * 36, 60},
};
constexpr UnitStep kSection[] = {
    {"m2"},
    {"cm2", 1, 100 * 100},
    {"mm2", 1, 1000 * 1000},
    {"ft2", 0.09290304L},
    {"in2", 0.00064516L},
    {"yd2", 0.8361274L},
};
constexpr UnitStep kPower[] = {{"kW"}, {"Hp", 0.7457L}};
// The Fahrenheit pair 0.55556 and 255.38 is rounded; it is used in both directions, so a value
// converts back to itself. "degF" reaches "°F" through the normalisation below.
constexpr UnitStep kTemperature[] = {
    {"K"},
    {"°C", 1, 1, 0, 273.15L},
    {"°F", 0.55556L, 1, 0, 255.38L},
    {"°R", 1.25L, 1, 0, 273.15L},
    {"°Re", 1.25L, 1, 0, 273.15L},
    {"°Ra", 5, 9},
};

struct FamilyTable {
  UnitFamily family;
  std::span<const UnitStep> steps;
};

constexpr std::array kFamilies = {
    FamilyTable{UnitFamily::Length, kLength},
    FamilyTable{UnitFamily::Diameter, kDiameter},
    FamilyTable{UnitFamily::Density, kDensity},
    FamilyTable{UnitFamily::SpecificVolume, kSpecificVolume},
    FamilyTable{UnitFamily::VolumeFlow, kVolumeFlow},
    FamilyTable{UnitFamily::Volume, kVolume},
    FamilyTable{UnitFamily::MassFlow, kMassFlow},
    FamilyTable{UnitFamily::DynamicViscosity, kDynamicViscosity},
    FamilyTable{UnitFamily::KinematicViscosity, kKinematicViscosity},
    FamilyTable{UnitFamily::Pressure, kPressure},
    FamilyTable{UnitFamily::StandardVolumeFlow, kStandardVolumeFlow},
    FamilyTable{UnitFamily::Velocity, kVelocity},
    FamilyTable{UnitFamily::Section, kSection},
    FamilyTable{UnitFamily::Power, kPower},
    FamilyTable{UnitFamily::Temperature, kTemperature},
};

constexpr auto kFamilyList = [] {
  std::array<UnitFamily, kFamilies.size()> list{};
  for (std::size_t i = 0; i < kFamilies.size(); ++i) list[i] = kFamilies[i].family;
  return list;
}();

void replaceAll(std::string& text, std::string_view from, std::string_view to) {
  for (std::size_t pos = text.find(from); pos != std::string::npos; pos = text.find(from, pos + to.size())) {
    text.replace(pos, from.size(), to);
  }
}

// One spelling for the variants a unit text comes in: raised digits and "^" powers become plain
// digits, the dotted American forms become the compact ones, points and blanks are dropped.
std::string canonicalSpelling(std::string_view text) {
  std::string s(text);
  replaceAll(s, "³", "3");
  replaceAll(s, "²", "2");
  replaceAll(s, "^", "");
  replaceAll(s, "cu.ft.", "ft3");
  replaceAll(s, "cu.in.", "in3");
  replaceAll(s, "sq.ft.", "ft2");
  replaceAll(s, "sq.in.", "in2");
  replaceAll(s, "sq.yd.", "yd2");
  std::erase(s, '.');
  std::erase(s, ' ');
  return s;
}

// Temperature texts are first normalised by what they contain, in this order.
std::string_view temperatureSpelling(std::string_view text) {
  if (text.find('C') != std::string_view::npos) return "°C";
  if (text.find('F') != std::string_view::npos) return "°F";
  if (text.find("Re") != std::string_view::npos) return "°Re";
  if (text.find("Ra") != std::string_view::npos) return "°Ra";
  return text;
}

Real toBase(const UnitStep& unit, Real value) {
  return (value + unit.addBefore) * unit.multiply / unit.divide + unit.addAfter;
}

Real fromBase(const UnitStep& unit, Real value) {
  return (value - unit.addAfter) * unit.divide / unit.multiply - unit.addBefore;
}

}  // namespace

std::span<const UnitStep> unitSteps(UnitFamily family) {
  for (const auto& table : kFamilies) {
    if (table.family == family) return table.steps;
  }
  return {};
}

std::string_view baseUnit(UnitFamily family) {
  return unitSteps(family).front().text;
}

std::span<const UnitFamily> allUnitFamilies() {
  return kFamilyList;
}

const UnitStep* findUnit(UnitFamily family, std::string_view text) {
  if (family == UnitFamily::Temperature) text = temperatureSpelling(text);
  const auto steps = unitSteps(family);
  for (const auto& unit : steps) {
    if (unit.text == text) return &unit;
  }
  const std::string wanted = canonicalSpelling(text);
  for (const auto& unit : steps) {
    if (canonicalSpelling(unit.text) == wanted) return &unit;
  }
  return nullptr;
}

Real convertUnit(UnitFamily family, std::string_view from, std::string_view to, Real value) {
  if (const UnitStep* source = findUnit(family, from)) value = toBase(*source, value);
  if (const UnitStep* target = findUnit(family, to)) value = fromBase(*target, value);
  return value;
}

#define LINECALC_UMRE(name, family)                                   \
  Real name(std::string_view von, std::string_view nach, Real wert) { \
    return convertUnit(UnitFamily::family, von, nach, wert);          \
  }
LINECALC_UMRE(Umre_Laenge, Length)
LINECALC_UMRE(Umre_Durchmesser, Diameter)
LINECALC_UMRE(Umre_Dichte, Density)
LINECALC_UMRE(Umre_SpezVolumen, SpecificVolume)
LINECALC_UMRE(Umre_Volumenstrom, VolumeFlow)
LINECALC_UMRE(Umre_Volumen, Volume)
LINECALC_UMRE(Umre_Massenstrom, MassFlow)
LINECALC_UMRE(Umre_dynViskositaet, DynamicViscosity)
LINECALC_UMRE(Umre_kinViskositaet, KinematicViscosity)
LINECALC_UMRE(Umre_Druck, Pressure)
LINECALC_UMRE(Umre_Normvolumenstrom, StandardVolumeFlow)
LINECALC_UMRE(Umre_Geschwindigkeit, Velocity)
LINECALC_UMRE(Umre_Querschnitt, Section)
LINECALC_UMRE(Umre_Leistung, Power)
LINECALC_UMRE(Umre_Temperatur, Temperature)
#undef LINECALC_UMRE

}  // namespace linecalc
