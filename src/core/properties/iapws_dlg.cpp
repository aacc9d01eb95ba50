#include "properties/iapws_dlg.h"

#include "base/numbers.h"
#include "base/units.h"
#include "properties/water_state.h"
#include "workspace/anwendung.h"

namespace linecalc {

namespace {

constexpr int kWrongInputCaptionWord = 197;  // "Falsche Eingabe"

std::string heading(const std::string& word) {
  return word + ":";
}

}  // namespace

TIAPWSDlg::TIAPWSDlg(Anwendung& app) : app_(app) {
  const TEinstellungenDlg& settings = app_.EinstellungenDlg;
  ComboBox1.Items = settings.combo_Druck.Items;
  ComboBox1.ItemIndex = 0;
  ComboBox2.setItems(kWaterTemperatureUnits);
  ComboBox2.ItemIndex = 0;
  ComboBox3.Items = settings.combo_Dichte.Items;
  ComboBox4.Items = settings.combo_spezVolumen.Items;
  ComboBox5.Items = settings.combo_Visko_dyn.Items;
  ComboBox3.ItemIndex = settings.combo_Dichte.ItemIndex;
  ComboBox4.ItemIndex = settings.combo_spezVolumen.ItemIndex;
  ComboBox5.ItemIndex = settings.combo_Visko_dyn.ItemIndex;
  Edit1.Text = std::string("1") + app_.Dezimaltrennzeichen + "013";
  OKBtn.Enabled = false;
}

void TIAPWSDlg::Sprache_anpassen() {
  WordBlock words = app_.Sprache.block("IAPWSDlg");
  Caption = words.next();
  inputHeading.Caption = words.next();
  pressureLabel.Caption = heading(words.next());
  temperatureLabel.Caption = heading(words.next());
  resultHeading.Caption = words.next();
  densityLabel.Caption = heading(words.next());
  specificVolumeLabel.Caption = heading(words.next());
  viscosityLabel.Caption = heading(words.next());
  rangeHeading.Caption = heading(words.next());
  rangeLine1.Caption = words.next();
  rangeLine2.Caption = words.next();
  standardLabel.Caption = words.next();
  BitBtn1.Caption = words.next();
  OKBtn.Caption = words.next();
  BitBtn2.Caption = words.next();
  SpeedButton7.Hint = words.next();
  wrongNumberText = words.next();
  outOfRangeText = words.next();
  waterWord = words.next();
  SV_Info = words.next();
}

void TIAPWSDlg::FormShow() {
  const TEinstellungenDlg& settings = app_.EinstellungenDlg;
  ComboBox3.ItemIndex = settings.combo_Dichte.ItemIndex;
  ComboBox4.ItemIndex = settings.combo_spezVolumen.ItemIndex;
  ComboBox5.ItemIndex = settings.combo_Visko_dyn.ItemIndex;
  redisplay();
  Fokus = nullptr;
  Visible = true;
}

void TIAPWSDlg::Ergebnis_Loeschen() {
  Label6.Caption.clear();
  Label13.Caption.clear();
  Label7.Caption.clear();
  GL_Dichte = 0;
  GL_Viskositaet = 0;
  OKBtn.Enabled = false;
}

void TIAPWSDlg::Falsche_Eingabe(const std::string& text, const Edit& field) {
  reportWrongInput(app_.meldungen, app_.Sprache.globalWord(kWrongInputCaptionWord), wrongNumberText, text);
  fokus(field);
}

void TIAPWSDlg::BitBtn1Click() {
  // Both fields are read and each failure is reported; then a failure ends the calculation.
  bool pressureRead = true, temperatureRead = true;
  const Real pressureValue = Zahl_lesen(Edit1.Text, pressureRead);
  if (!pressureRead) Falsche_Eingabe(Edit1.Text, Edit1);
  const Real temperatureValue = Zahl_lesen(Edit2.Text, temperatureRead);
  if (!temperatureRead) Falsche_Eingabe(Edit2.Text, Edit2);
  if (!pressureRead || !temperatureRead) return;

  const Real p = Umre_Druck(ComboBox1.text(), "bar", pressureValue);
  const Real T = Umre_Temperatur(ComboBox2.text(), "K", temperatureValue);
  if (!isInWaterRange(p, T)) {
    app_.meldungen.error(app_.Sprache.globalWord(kWrongInputCaptionWord), outOfRangeText);
    fokus(Edit1);
    return;
  }

  const WaterState state = waterState(p, T);
  Bereich = state.region;
  fluessig = state.liquid;
  if (state.region3Fault) app_.meldungen.information(Caption, outOfRangeText);
  if (!state.valid) {
    // A plain message: the program's title as caption, no icon of its own.
    app_.meldungen.information(app_.productTitle, outOfRangeText);
    return;
  }
  GL_Dichte = state.density;
  GL_Viskositaet = state.viscosity;
  Daten_ausgeben();
  OKBtn.Enabled = true;
}

void TIAPWSDlg::Daten_ausgeben() {
  const int decimals = app_.Ausgabeneu_Fenster.decimals();
  const char separator = app_.Dezimaltrennzeichen;
  Label6.Caption = formatFixed(Umre_Dichte("kg/m3", ComboBox3.text(), GL_Dichte), decimals, separator);
  Label13.Caption = formatFixed(Umre_SpezVolumen("m3/kg", ComboBox4.text(), 1 / GL_Dichte), decimals, separator);
  Label7.Caption =
      formatFixed(Umre_dynViskositaet("10-6 kg/ms", ComboBox5.text(), GL_Viskositaet), decimals, separator);
}

bool TIAPWSDlg::OKBtnClick() {
  if (!resultStands()) return false;
  TMyWindow& main = app_.MyWindow;
  main.fokus(main.Eingabe_Medium);
  main.selectLiquid(fluessig);
  if (!fluessig) {
    main.Edit_EingangsdruckN.Text = Edit1.Text;
    main.ComboBox6N.ItemIndex = ComboBox1.ItemIndex;
    main.Edit_EingangstemperaturN.Text = Edit2.Text;
    main.Edit_AusgangstemperaturN.Text = Edit2.Text;
    main.ComboBox7N.ItemIndex = ComboBox2.ItemIndex;
    main.ComboBox8N.ItemIndex = ComboBox2.ItemIndex;
  }
  main.Eingabe_Dichte.Text = Label6.Caption;
  main.ComboBox2.ItemIndex = ComboBox3.ItemIndex;
  main.Eingabe_Viskositaet.Text = Label7.Caption;
  main.ComboBox5.ItemIndex = 0;  // dynamic viscosity, with the box's change event
  main.Einheiten_Visko_aktualisieren();
  main.ComboBox3.ItemIndex = ComboBox5.ItemIndex;
  main.Eingabe_Medium.Text = waterWord;
  if (fluessig) {
    main.Eingabe_Medium.Text +=
        " (" + Edit1.Text + " " + ComboBox1.text() + ", " + Edit2.Text + " " + ComboBox2.text() + ")";
  }
  Visible = false;
  return true;
}

void TIAPWSDlg::SpeedButton7Click() {
  app_.meldungen.information(Caption, SV_Info);
}

}  // namespace linecalc
