#pragma once

#include <string>
#include <string_view>

#include "base/controls.h"
#include "base/real.h"

namespace linecalc {

class Anwendung;

// The temperature units of the water dialogs. Their positions match the main form's temperature boxes
// ("°C", "K", "°F", "°Re"), so that a unit index can be handed over.
inline constexpr std::string_view kWaterTemperatureUnits[] = {"°C", "K", "degF", "°R"};

// "Wasser/-dampf (allgemein)": density, specific volume and dynamic viscosity of water and steam from
// pressure and temperature by IAPWS-IF97, handed over to the medium fields of the main window.
class TIAPWSDlg : public Form {
 public:
  explicit TIAPWSDlg(Anwendung& app);
  TIAPWSDlg(const TIAPWSDlg&) = delete;
  TIAPWSDlg& operator=(const TIAPWSDlg&) = delete;

  // ---- inputs
  Label inputHeading;
  Label pressureLabel;
  Edit Edit1;       // pressure, absolute
  Combo ComboBox1;  // its unit: the settings' pressure list
  Label temperatureLabel;
  Edit Edit2;       // temperature
  Combo ComboBox2;  // its unit: kWaterTemperatureUnits

  // ---- results, shown in the chosen units
  Label resultHeading;
  Label densityLabel, specificVolumeLabel, viscosityLabel;
  Label Label6;     // density
  Combo ComboBox3;  // its unit: the settings' density list
  Label Label13;    // specific volume
  Combo ComboBox4;  // its unit: the settings' specific volume list
  Label Label7;     // dynamic viscosity
  Combo ComboBox5;  // its unit: the settings' dynamic viscosity list

  // ---- words
  std::string Caption;
  Label rangeHeading, rangeLine1, rangeLine2, standardLabel;
  Button BitBtn1;       // compute
  Button OKBtn;         // hand the result over; enabled only while a result stands
  Button BitBtn2;       // close
  Button SpeedButton7;  // shows SV_Info
  std::string SV_Info;
  std::string wrongNumberText, outOfRangeText, waterWord;

  // ---- the last result, in base units
  Real GL_Dichte = 0;       // kg/m3
  Real GL_Viskositaet = 0;  // 10^-6 kg/(m s)
  bool fluessig = false;    // handed over as a liquid
  int Bereich = 0;          // region mark of the last calculation (1, 2, 3, 5)

  void Sprache_anpassen();
  // Opening: the result units follow the settings.
  void FormShow();
  // Compute from the inputs; shows the result or a message.
  void BitBtn1Click();
  // Hands the standing result to the main window's medium fields and closes; false when no result stands.
  bool OKBtnClick();
  void BitBtn2Click() { Visible = false; }
  void SpeedButton7Click();

  // Input changes clear the result; result unit changes redisplay a standing result.
  void Edit1Change() { Ergebnis_Loeschen(); }
  void Edit2Change() { Ergebnis_Loeschen(); }
  void ComboBox1Change() { Ergebnis_Loeschen(); }
  void ComboBox2Change() { Ergebnis_Loeschen(); }
  void ComboBox3Change() { redisplay(); }
  void ComboBox4Change() { redisplay(); }
  void ComboBox5Change() { redisplay(); }

  void Ergebnis_Loeschen();
  void Daten_ausgeben();
  void Falsche_Eingabe(const std::string& text, const Edit& field);

  bool resultStands() const { return OKBtn.Enabled; }

 private:
  Anwendung& app_;

  void redisplay() {
    if (resultStands()) Daten_ausgeben();
  }
};

}  // namespace linecalc
