#pragma once

#include <string_view>

#include "base/real.h"

namespace linecalc {

// The state of water or steam at a pressure and temperature as the water dialog computes it: the region by
// the rules of IAPWS-IF97 (with the temperature rounded to whole millikelvin for the region limits), density,
// specific volume and dynamic viscosity. Usable without any dialog.
struct WaterState {
  Real pressure = 0;     // bar absolute
  Real temperature = 0;  // K
  // The range of the calculation: 0 to 900 °C, above 0 up to 1000 bar, above 800 °C only up to 100 bar.
  bool inRange = false;
  // The region mark: 1, 2, 3 or 5. It is 1 also when no region rule applied; then `valid` is false.
  int region = 1;
  bool liquid = true;  // handed over as a liquid: Regions 1 and 3 (supercritical states of Region 3 too)
  bool valid = false;  // a density was found
  // The Region 3 solver found no usable root (an arithmetic fault); `valid` is false then.
  bool region3Fault = false;
  Real density = 0;         // kg/m3
  Real specificVolume = 0;  // m3/kg
  Real viscosity = 0;       // 10^-6 kg/(m s)
};

// The range test of the water dialog on a pressure in bar and a temperature in K.
bool isInWaterRange(Real pressure, Real temperature);

// From pressure in bar absolute and temperature in K.
WaterState waterState(Real pressure, Real temperature);
// From values in the given units ("bar", "psia", "°C", "K", ...); a unit text that the conversions do not know
// leaves the value as it stands.
WaterState waterState(Real pressure, std::string_view pressureUnit, Real temperature, std::string_view temperatureUnit);

}  // namespace linecalc
