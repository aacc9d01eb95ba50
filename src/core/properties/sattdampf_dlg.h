#pragma once

#include <array>
#include <string>

#include "base/controls.h"
#include "base/real.h"

namespace linecalc {

class Anwendung;

// "Wasser/-dampf (Sättigungszustand)": the saturation state of water from a temperature or a pressure, with
// density, specific volume and dynamic viscosity of both phases by IAPWS-IF97. Either phase can be handed
// over to the main window.
class TSattdampfDialog : public Form {
 public:
  explicit TSattdampfDialog(Anwendung& app);
  TSattdampfDialog(const TSattdampfDialog&) = delete;
  TSattdampfDialog& operator=(const TSattdampfDialog&) = delete;

  // ---- what is given: 0 the temperature, 1 the pressure
  Label RadioGroup1Caption;
  std::array<std::string, 2> RadioGroup1Items;
  int RadioGroup1 = 0;

  Label temperatureLabel;
  Edit Edit2;       // temperature, in use with 0
  Combo ComboBox2;  // its unit: kWaterTemperatureUnits
  Label pressureLabel;
  Edit Edit1;       // pressure, in use with 1
  Combo ComboBox1;  // its unit: the settings' pressure list

  // ---- results in the chosen units
  Label computedLabel;  // heading of Label22: vapour pressure in mode 0, boiling temperature in mode 1
  Label Label22;        // the computed pressure (mode 0) or temperature (mode 1)
  Combo ComboBox6;      // its unit: pressure list in mode 0, temperature list in mode 1
  Label vapourHeading, liquidHeading;
  Label densityLabel, specificVolumeLabel, viscosityLabel;
  Label Label18;    // vapour density
  Combo ComboBox3;  // its unit
  Label Label2;     // vapour specific volume
  Combo ComboBox4;  // its unit
  Label Label19;    // vapour viscosity
  Combo ComboBox5;  // its unit
  Label Label20;    // liquid density
  Combo ComboBox7;  // its unit
  Label Label4;     // liquid specific volume
  Combo ComboBox8;  // its unit
  Label Label21;    // liquid viscosity
  Combo ComboBox9;  // its unit

  // ---- words
  std::string Caption;
  Label standardLabel, rangeLabel;
  Button BitBtn2;  // compute
  Button BitBtn1;  // hand over the liquid
  Button BitBtn3;  // hand over the vapour
  Button closeButton;
  std::string vapourPressureWord, boilingTemperatureWord;
  std::string SV_Meldung1;  // the medium's name when vapour is handed over
  std::string SV_Meldung2;  // the input lies outside the range
  std::string SV_Meldung3;  // the medium's name when liquid is handed over
  std::string wrongNumberText;

  // ---- the last result, in base units
  Real Temp = 0;     // K
  Real Dadru = 0;    // vapour pressure, bar
  Real DichteG = 0;  // kg/m3
  Real DichteF = 0;
  Real ViskoG = 0;  // 10^-6 kg/(m s)
  Real ViskoF = 0;

  void Sprache_anpassen();
  // Opening: the result units follow the settings.
  void FormShow();
  // Choosing what is given: swaps the field in use, clears both input fields and the results.
  void RadioGroup1Click(int index);
  // Compute from the input in use.
  void BitBtn2Click();
  // Hand over the liquid (BitBtn1) or the vapour (BitBtn3) and close; false when no result stands.
  bool BitBtn1Click();
  bool BitBtn3Click();
  void closeButtonClick() { Visible = false; }

  // Input changes clear the result; result unit changes redisplay a standing result.
  void inputChange() { Ergebnis_Loeschen(); }
  void resultUnitChange() {
    if (resultStands()) Daten_ausgeben();
  }

  void Ergebnis_Loeschen();
  void Daten_ausgeben();

  bool resultStands() const { return BitBtn1.Enabled; }

 private:
  Anwendung& app_;

  void setModeControls();
  void selectResultUnits();
  void handOverPhase(const Label& density, const Combo& densityUnit, const Label& viscosity, const Combo& viscosityUnit,
                     const std::string& name);
};

}  // namespace linecalc
