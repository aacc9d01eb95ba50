#include "properties/water_state.h"

#include "base/numbers.h"
#include "base/units.h"
#include "properties/if97.h"
#include "properties/viscosity85.h"

namespace linecalc {

namespace {

// Above the critical temperature the saturation pressure is taken as the critical pressure.
constexpr Real kCriticalTemperature = 647.096L;
constexpr Real kCriticalPressure = 220.64L;

}  // namespace

bool isInWaterRange(Real p, Real T) {
  const Real t = T - 273.15L;
  if (t < 0 || t > 900 || p <= 0 || p > 1000) return false;
  return t <= 800 || p <= 100;
}

WaterState waterState(Real p, Real T) {
  WaterState s;
  s.pressure = p;
  s.temperature = T;
  s.inRange = isInWaterRange(p, T);
  if (!s.inRange) return s;

  const Real ps = T > kCriticalTemperature ? kCriticalPressure : Rechne_Dampfdruck(T);
  const Real pB23 = boundary23Pressure(T);
  // The temperature limits are tested on whole millikelvin, rounded half away from zero, so that a temperature
  // such as 623.1504 K counts as 623.15 K. The 2-3 boundary is decided by pB23(T) alone: the temperature worked
  // back from it by the inverse B23 equation only restates T.
  const std::int64_t m = Runden(1000 * T);

  // The rules in this order, each one overriding what an earlier one set.
  Real density = 0;
  int region = 1;
  bool region3 = false;
  if (m >= 273150 && m <= 623150 && p >= ps && p <= 1000) density = Rechne_Dichte_Bereich1(T, p);
  if (m >= 273150 && m <= 623150 && p > 0 && p <= ps) {  // at p = ps the vapour wins
    density = Rechne_Dichte_Bereich2(T, p);
    region = 2;
  }
  if (m > 623150 && m <= 863150 && p > 0 && p <= pB23) {
    density = Rechne_Dichte_Bereich2(T, p);
    region = 2;
  }
  if (m > 863150 && m <= 1073150 && p > 0 && p <= 1000) {
    density = Rechne_Dichte_Bereich2(T, p);
    region = 2;
  }
  if (m > 623150 && p >= pB23 && p <= 1000) {  // at p = pB23 Region 3 wins
    region3 = true;
    density = Rechne_Dichte_Bereich3(T, p);
    region = 3;
  }
  if (m >= 1073150 && m <= 2273150 && p > 0 && p <= 100) {  // at 1073.15 K Region 5 wins up to 100 bar
    region3 = false;
    density = Rechne_Dichte_Bereich5(T, p);
    region = 5;
  }

  s.region = region;
  s.liquid = region == 1 || region == 3;
  s.region3Fault = region3 && density == 0;
  if (density == 0) return s;
  s.valid = true;
  s.density = density;
  s.specificVolume = 1 / density;
  s.viscosity = Rechne_Visko(T, density);
  return s;
}

WaterState waterState(Real pressure, std::string_view pressureUnit, Real temperature,
                      std::string_view temperatureUnit) {
  return waterState(Umre_Druck(pressureUnit, "bar", pressure), Umre_Temperatur(temperatureUnit, "K", temperature));
}

}  // namespace linecalc
