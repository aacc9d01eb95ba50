#include "base/unit_lists.h"

#include <array>

namespace linecalc {

namespace {

constexpr std::string_view kVolumeFlow[] = {"m3/h",   "m3/min",  "m3/s",  "l/min",      "l/s",
                                            "ft3/hr", "ft3/min", "ft3/s", "petr.bl/hr", "petr.bl/day",
                                            "gal/hr", "gal/min", "gal/s"};
constexpr std::string_view kMassFlow[] = {"kg/h", "kg/min", "kg/s", "lb/hr", "lb/min", "lb/s", "oz/min", "oz/s"};
constexpr std::string_view kStandardVolumeFlow[] = {"Nm3/h", "Nm3/min", "Nm3/s"};
constexpr std::string_view kDynamicViscosity[] = {"10-6 kg/ms", "10-6 g/cms",  "10-6 Pas",   "mPas",    "10-6 Ns/m2",
                                                  "cP",         "lb.av/ft.hr", "lb.av/ft.s", "Lb.s/ft2"};
constexpr std::string_view kKinematicViscosity[] = {"10-6 m2/s", "cm2/s", "mm2/s", "cSt", "ft2/hr", "ft2/s"};
constexpr std::string_view kDensity[] = {"kg/m3",  "kg/l",   "g/l",    "gr/ft3", "gr/gal", "oz/ft3",
                                         "oz/in3", "oz/gal", "lb/ft3", "lb/in3", "lb/gal"};
constexpr std::string_view kPressure[] = {"bar",    "mbar", "Pa",          "MPa",  "ata",  "atm",     "at",     "m H2O",
                                          "mm H2O", "Torr", "lbw./sq.ft.", "psia", "psig", "ft.wtr.", "in.wtr."};
constexpr std::string_view kPressureLoss[] = {"bar",   "mbar",   "Pa",   "MPa",         "ata", "atm",     "at",
                                              "m H2O", "mm H2O", "Torr", "lbw./sq.ft.", "psi", "ft.wtr.", "in.wtr."};
constexpr std::string_view kTemperature[] = {"°C", "K", "°F", "°Re", "°Ra"};
constexpr std::string_view kVelocity[] = {"m/s", "m/min", "km/h", "ft/s", "ft/min", "yd/s", "yd/min"};
constexpr std::string_view kLength[] = {"m", "ft."};
constexpr std::string_view kDiameter[] = {"mm", "in."};
constexpr std::string_view kSection[] = {"m2", "cm2", "mm2", "in2", "ft2", "yd2"};
constexpr std::string_view kVolume[] = {"m3", "ft3", "Liter"};
constexpr std::string_view kSpecificVolume[] = {"m3/kg",  "l/kg",   "l/g",    "ft3/gr", "gal/gr", "ft3/oz",
                                                "in3/oz", "gal/oz", "ft3/lb", "in3/lb", "gal/lb"};
constexpr std::string_view kPower[] = {"kW", "Hp"};

constexpr std::array kLists = {
    UnitList{"combo_Volumenstrom", UnitFamily::VolumeFlow, kVolumeFlow},
    UnitList{"combo_Massenstrom", UnitFamily::MassFlow, kMassFlow},
    UnitList{"combo_Normvolumenstrom", UnitFamily::StandardVolumeFlow, kStandardVolumeFlow},
    UnitList{"combo_Visko_dyn", UnitFamily::DynamicViscosity, kDynamicViscosity},
    UnitList{"combo_Visko_kin", UnitFamily::KinematicViscosity, kKinematicViscosity},
    UnitList{"combo_Dichte", UnitFamily::Density, kDensity},
    UnitList{"combo_Druck", UnitFamily::Pressure, kPressure},
    UnitList{"combo_Stromlauf1", UnitFamily::Pressure, kPressureLoss},
    UnitList{"combo_Stromlauf2", UnitFamily::Pressure, kPressureLoss},
    UnitList{"combo_Temperatur", UnitFamily::Temperature, kTemperature},
    UnitList{"combo_geschwindigkeit", UnitFamily::Velocity, kVelocity},
    UnitList{"combo_Laenge", UnitFamily::Length, kLength},
    UnitList{"combo_Durchmesser", UnitFamily::Diameter, kDiameter},
    UnitList{"Combo_Querschnitt", UnitFamily::Section, kSection},
    UnitList{"combo_Volumen", UnitFamily::Volume, kVolume},
    UnitList{"combo_spezVolumen", UnitFamily::SpecificVolume, kSpecificVolume},
    UnitList{"combo_Leistung", UnitFamily::Power, kPower},
};

}  // namespace

std::span<const UnitList> masterUnitLists() {
  return kLists;
}

std::span<const std::string_view> masterUnits(std::string_view comboName) {
  for (const auto& list : kLists) {
    if (list.comboName == comboName) return list.units;
  }
  return {};
}

}  // namespace linecalc
