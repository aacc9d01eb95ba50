#include "properties/sattdampf_dlg.h"

#include "base/numbers.h"
#include "base/units.h"
#include "properties/iapws_dlg.h"
#include "properties/if97.h"
#include "properties/viscosity85.h"
#include "workspace/anwendung.h"

namespace linecalc {

namespace {

constexpr int kWrongInputCaptionWord = 197;  // "Falsche Eingabe"

// The range of the calculation: temperatures in K, pressures in bar.
constexpr Real kLowestTemperature = 273.15L, kHighestTemperature = 646.15L;
constexpr Real kLowestPressure = 0.007L, kHighestPressure = 220;

// Above this temperature both phases come from Region 3. The pressure is moved off the saturation line by this
// amount in bar, so that the Region 3 solver starts on the intended side of it.
constexpr Real kRegion3Temperature = 623.15L;
constexpr Real kSaturationShift = 1e-10L;

std::string heading(const std::string& word) {
  return word + ":";
}

}  // namespace

TSattdampfDialog::TSattdampfDialog(Anwendung& app) : app_(app) {
  const TEinstellungenDlg& settings = app_.EinstellungenDlg;
  ComboBox2.setItems(kWaterTemperatureUnits);
  ComboBox2.ItemIndex = 0;
  ComboBox1.Items = settings.combo_Druck.Items;
  ComboBox1.ItemIndex = 0;
  ComboBox3.Items = ComboBox7.Items = settings.combo_Dichte.Items;
  ComboBox4.Items = ComboBox8.Items = settings.combo_spezVolumen.Items;
  ComboBox5.Items = ComboBox9.Items = settings.combo_Visko_dyn.Items;
  selectResultUnits();
  setModeControls();
  BitBtn1.Enabled = BitBtn3.Enabled = false;
}

void TSattdampfDialog::Sprache_anpassen() {
  WordBlock words = app_.Sprache.block("SattdampfDialog");
  Caption = words.next();
  RadioGroup1Caption.Caption = words.next();
  for (std::string& item : RadioGroup1Items) item = words.next();
  temperatureLabel.Caption = heading(words.next());
  pressureLabel.Caption = heading(words.next());
  vapourPressureWord = words.next();
  boilingTemperatureWord = words.next();
  vapourHeading.Caption = words.next();
  liquidHeading.Caption = words.next();
  densityLabel.Caption = heading(words.next());
  specificVolumeLabel.Caption = heading(words.next());
  viscosityLabel.Caption = heading(words.next());
  standardLabel.Caption = words.next();
  rangeLabel.Caption = words.next();
  BitBtn2.Caption = words.next();
  BitBtn1.Caption = words.next();
  BitBtn3.Caption = words.next();
  closeButton.Caption = words.next();
  SV_Meldung1 = words.next();
  SV_Meldung2 = words.next();
  SV_Meldung3 = words.next();
  wrongNumberText = words.next();
  computedLabel.Caption = heading(RadioGroup1 == 0 ? vapourPressureWord : boilingTemperatureWord);
}

void TSattdampfDialog::selectResultUnits() {
  const TEinstellungenDlg& settings = app_.EinstellungenDlg;
  ComboBox3.ItemIndex = ComboBox7.ItemIndex = settings.combo_Dichte.ItemIndex;
  ComboBox4.ItemIndex = ComboBox8.ItemIndex = settings.combo_spezVolumen.ItemIndex;
  ComboBox5.ItemIndex = ComboBox9.ItemIndex = settings.combo_Visko_dyn.ItemIndex;
  if (RadioGroup1 == 0) {
    ComboBox6.ItemIndex = settings.combo_Druck.ItemIndex;
  } else {
    // The settings' temperature list is longer than the dialog's; a unit the dialog lacks selects "°C".
    const int index = settings.combo_Temperatur.ItemIndex;
    ComboBox6.ItemIndex = index >= 0 && index < static_cast<int>(ComboBox6.Items.size()) ? index : 0;
  }
}

void TSattdampfDialog::setModeControls() {
  const bool temperatureGiven = RadioGroup1 == 0;
  for (Control* c : std::initializer_list<Control*>{&temperatureLabel, &Edit2, &ComboBox2})
    c->Enabled = temperatureGiven;
  for (Control* c : std::initializer_list<Control*>{&pressureLabel, &Edit1, &ComboBox1}) c->Enabled = !temperatureGiven;
  if (temperatureGiven) {
    ComboBox6.Items = app_.EinstellungenDlg.combo_Druck.Items;
  } else {
    ComboBox6.setItems(kWaterTemperatureUnits);
  }
  computedLabel.Caption = heading(temperatureGiven ? vapourPressureWord : boilingTemperatureWord);
}

void TSattdampfDialog::FormShow() {
  selectResultUnits();
  resultUnitChange();
  Fokus = nullptr;
  Visible = true;
}

void TSattdampfDialog::RadioGroup1Click(int index) {
  RadioGroup1 = index == 1 ? 1 : 0;
  setModeControls();
  selectResultUnits();
  Edit1.Text.clear();
  Edit2.Text.clear();
  Ergebnis_Loeschen();
}

void TSattdampfDialog::Ergebnis_Loeschen() {
  for (Label* label : {&Label22, &Label18, &Label2, &Label19, &Label20, &Label4, &Label21}) label->Caption.clear();
  Temp = Dadru = DichteG = DichteF = ViskoG = ViskoF = 0;
  BitBtn1.Enabled = BitBtn3.Enabled = false;
}

void TSattdampfDialog::BitBtn2Click() {
  Meldungen& meldungen = app_.meldungen;
  const bool temperatureGiven = RadioGroup1 == 0;
  const Edit& field = temperatureGiven ? Edit2 : Edit1;
  bool readable = true;
  const Real value = Zahl_lesen(field.Text, readable);
  if (!readable) {
    reportWrongInput(meldungen, app_.Sprache.globalWord(kWrongInputCaptionWord), wrongNumberText, field.Text);
    fokus(field);
    return;
  }
  const auto outOfRange = [&] {
    Ergebnis_Loeschen();
    meldungen.information(Caption, SV_Meldung2);
    fokus(field);
  };
  Real T = 0, p = 0;
  if (temperatureGiven) {
    T = Umre_Temperatur(ComboBox2.text(), "K", value);
    if (T < kLowestTemperature || T > kHighestTemperature) return outOfRange();
    p = Rechne_Dampfdruck(T);
  } else {
    p = Umre_Druck(ComboBox1.text(), "bar", value);
    if (p < kLowestPressure || p > kHighestPressure) return outOfRange();
    T = Rechne_Siedetemp(p);
  }

  const bool region3 = T > kRegion3Temperature;
  const Real vapour = region3 ? Rechne_Dichte_Bereich3(T, p - kSaturationShift) : Rechne_Dichte_Bereich2(T, p);
  const Real liquid = region3 ? Rechne_Dichte_Bereich3(T, p + kSaturationShift) : Rechne_Dichte_Bereich1(T, p);
  if (vapour == 0 || liquid == 0) return outOfRange();  // the Region 3 solver found no density

  Temp = T;
  Dadru = p;
  DichteG = vapour;
  ViskoG = Rechne_Visko(T, vapour);
  DichteF = liquid;
  ViskoF = Rechne_Visko(T, liquid);
  Daten_ausgeben();
  BitBtn1.Enabled = BitBtn3.Enabled = true;
}

void TSattdampfDialog::Daten_ausgeben() {
  const int decimals = app_.Ausgabeneu_Fenster.decimals();
  const char separator = app_.Dezimaltrennzeichen;
  const auto text = [&](Real value) { return formatFixed(value, decimals, separator); };
  Label22.Caption = RadioGroup1 == 0 ? text(Umre_Druck("bar", ComboBox6.text(), Dadru))
                                     : text(Umre_Temperatur("K", ComboBox6.text(), Temp));
  Label18.Caption = text(Umre_Dichte("kg/m3", ComboBox3.text(), DichteG));
  Label2.Caption = text(Umre_SpezVolumen("m3/kg", ComboBox4.text(), 1 / DichteG));
  Label19.Caption = text(Umre_dynViskositaet("10-6 kg/ms", ComboBox5.text(), ViskoG));
  Label20.Caption = text(Umre_Dichte("kg/m3", ComboBox7.text(), DichteF));
  Label4.Caption = text(Umre_SpezVolumen("m3/kg", ComboBox8.text(), 1 / DichteF));
  Label21.Caption = text(Umre_dynViskositaet("10-6 kg/ms", ComboBox9.text(), ViskoF));
}

void TSattdampfDialog::handOverPhase(const Label& density, const Combo& densityUnit, const Label& viscosity,
                                     const Combo& viscosityUnit, const std::string& name) {
  TMyWindow& main = app_.MyWindow;
  main.Eingabe_Dichte.Text = density.Caption;
  main.ComboBox2.ItemIndex = densityUnit.ItemIndex;
  main.Eingabe_Viskositaet.Text = viscosity.Caption;
  main.ComboBox5.ItemIndex = 0;  // dynamic viscosity, with the box's change event
  main.Einheiten_Visko_aktualisieren();
  main.ComboBox3.ItemIndex = viscosityUnit.ItemIndex;
  const bool temperatureGiven = RadioGroup1 == 0;
  const Edit& given = temperatureGiven ? Edit2 : Edit1;
  const Combo& givenUnit = temperatureGiven ? ComboBox2 : ComboBox1;
  main.Eingabe_Medium.Text = name + " (" + given.Text + " " + givenUnit.text() + ")";
}

bool TSattdampfDialog::BitBtn1Click() {
  if (!resultStands()) return false;
  TMyWindow& main = app_.MyWindow;
  main.fokus(main.Eingabe_Medium);
  main.selectLiquid(true);
  handOverPhase(Label20, ComboBox7, Label21, ComboBox9, SV_Meldung3);
  Visible = false;
  return true;
}

bool TSattdampfDialog::BitBtn3Click() {
  if (!resultStands()) return false;
  TMyWindow& main = app_.MyWindow;
  main.fokus(main.Eingabe_Medium);
  main.selectLiquid(false);
  handOverPhase(Label18, ComboBox3, Label19, ComboBox5, SV_Meldung1);
  if (RadioGroup1 == 1) {
    // The pressure was given: the temperature fields take the computed boiling temperature.
    main.Edit_EingangstemperaturN.Text = Label22.Caption;
    main.Edit_AusgangstemperaturN.Text = Label22.Caption;
    main.ComboBox7N.ItemIndex = main.ComboBox8N.ItemIndex = ComboBox6.ItemIndex;
    main.Edit_EingangsdruckN.Text = Edit1.Text;
    main.ComboBox6N.ItemIndex = ComboBox1.ItemIndex;
  } else {
    // The temperature was given: the pressure field takes the computed vapour pressure.
    main.Edit_EingangstemperaturN.Text = Edit2.Text;
    main.Edit_AusgangstemperaturN.Text = Edit2.Text;
    main.ComboBox7N.ItemIndex = main.ComboBox8N.ItemIndex = ComboBox2.ItemIndex;
    main.Edit_EingangsdruckN.Text = Label22.Caption;
    main.ComboBox6N.ItemIndex = ComboBox6.ItemIndex;
  }
  Visible = false;
  return true;
}

}  // namespace linecalc
