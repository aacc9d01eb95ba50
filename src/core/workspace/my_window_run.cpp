// One calculation run: the panels' texts into internal units, the checks, the loss, and the column.
#include "base/numbers.h"
#include "base/units.h"
#include "workspace/anwendung.h"
#include "workspace/my_window.h"

namespace linecalc {

namespace {

constexpr int kCaptionWrongInput = 197;  // global word rows
constexpr int kTextWrongInput = 196;

bool isOneOf(const std::string& text, std::initializer_list<std::string_view> items) {
  for (const auto item : items) {
    if (text == item) return true;
  }
  return false;
}

// The two factors of the element rows: inches to mm, feet to m; other units stand as typed.
Real inchOrFoot(const std::string& unit, Real value) {
  if (unit == "in.") return value * 25.4L;
  if (unit == "ft.") return value * 0.3048L;
  return value;
}

}  // namespace

void TMyWindow::Berechnen(int Spalte) {
  CalculationState& s = app_.state;
  currentSpalte_ = Spalte;
  app_.KennlinieDlg.Diagramm_aktuell(false);
  s.Werteingabe = true;
  s.Bereich_i_O = true;
  s.gasdruckzuhoch = false;
  s.undefinedResult = false;

  Werteingabe_Rohrleitungselement_lesen();
  if (s.Werteingabe) Werteingabe_Foerdermedium_lesen();
  if (!s.Werteingabe) return;
  Bereichspruefung_Elemente(Spalte);
  Bereichspruefung_Medium();
  if (!s.Bereich_i_O) return;

  app_.Ausgabeneu_Fenster.Berechnung_w_Re();
  app_.Ausgabeneu_Fenster.Berechnung_delta_P();
  if (s.gasdruckzuhoch || s.undefinedResult) {
    app_.TabelleAendern.Berechnung_abbrechen = true;
    app_.KennlinieDlg.Berechnung_abbrechen = true;
    return;
  }
  if (!app_.SpalteAendernDlg.Visible && !s.Pruefmodus && Radio_gas.Checked) {
    if (app_.EinstellungenDlg.RadioGroup1 == 1) Gasdaten_neu_berechnen_real();
    if (app_.EinstellungenDlg.RadioGroup1 == 2) Gasdaten_neu_berechnen_ideal();
  }
  if (!app_.KennlinieDlg.Visible && !s.Pruefmodus) {
    app_.Ausgabeneu_Fenster.Werte_ausgeben();
    app_.Ausgabeneu_Fenster.Neue_Summen_bilden();
    app_.Projekt_gespeichert = false;
  }
}

Real TMyWindow::readNumber(const Edit& field, const Label& label) {
  bool readable = true;
  const Real value = Zahl_lesen(field.Text, readable);
  if (!readable) {
    app_.state.Werteingabe = false;
    Falsche_Eingabe(label, field);
  }
  return value;
}

void TMyWindow::Falsche_Eingabe(const Label& Beschriftung, const Control& Eingabefeld) {
  reportWrongInput(app_.meldungen, app_.Sprache.globalWord(kCaptionWrongInput),
                   app_.Sprache.globalWord(kTextWrongInput), Beschriftung.Caption);
  fokus(Eingabefeld);
}

void TMyWindow::Werteingabe_Rohrleitungselement_lesen() {
  CalculationState& s = app_.state;
  // Every row is read, also those the element hides: a hidden row keeps its last text.
  Real* values[] = {&s.Va1, &s.Va2, &s.Va3, &s.Va4, &s.Va5};
  for (int row = 1; row <= kPanelRows; ++row) {
    *values[row - 1] = readNumber(vaEdit(row), vaStatic(row));
    if (!s.Werteingabe) return;
  }
  const Real pieces = readNumber(VaAnz_Edit, VaAnz_Titel);
  if (!s.Werteingabe) return;
  s.VaAnz = Runden(pieces);
  if (s.VaAnz == 0) VaAnz_Edit.Text.assign(1, '0');  // an empty field shows as zero

  // Several pieces of a gas element share the state of the first; a run that updates the gas state
  // along the line cannot compute them.
  const bool normalRun =
      !app_.TabelleAendern.Visible && !app_.KennlinieDlg.Visible && !app_.SpalteAendernDlg.Visible && !s.Pruefmodus;
  if (s.VaAnz > 1 && Radio_gas.Checked && normalRun) {
    if (app_.EinstellungenDlg.RadioGroup1 != 0) {
      app_.meldungen.error(app_.Sprache.globalWord(kCaptionWrongInput), words.SV_Diverse[14]);
      s.Werteingabe = false;
      return;
    }
    app_.meldungen.information(app_.GaswarnungDlg.Caption.Caption, app_.GaswarnungDlg.Text.Caption);
  }
  if (Edit2.Enabled) {
    s.Rauhigkeit = readNumber(Edit2, Label4);
    if (!s.Werteingabe) return;
  }
  s.ersteAuswahl = RadioButton1.Checked;
  Umrechnung_Daten_Rohrleitungselement();
}

void TMyWindow::Umrechnung_Daten_Rohrleitungselement() {
  CalculationState& s = app_.state;
  const std::string unit1 = ComboVar1.text();
  s.Va1 = inchOrFoot(unit1, s.Va1);
  for (const auto& section : app_.EinstellungenDlg.Combo_Querschnitt.Items) {
    if (unit1 == section) s.Va1 = Umre_Querschnitt(unit1, "m2", s.Va1);
  }
  Real* values[] = {&s.Va2, &s.Va3, &s.Va4, &s.Va5};
  for (int row = 2; row <= kPanelRows; ++row) {
    if (comboVar(row).Visible) *values[row - 2] = inchOrFoot(comboVar(row).text(), *values[row - 2]);
  }
  if (Edit2.Enabled) s.Rauhigkeit = inchOrFoot(ComboBox6.text(), s.Rauhigkeit);
}

bool TMyWindow::isStandardFlowUnit() const {
  return isOneOf(ComboBox1.text(), {"Nm3/h", "Nm3/min", "Nm3/s"});
}

bool TMyWindow::branchFlowIsRead() const {
  const CalculationState& s = app_.state;
  return !app_.PSchnellAuslegung.Visible && app_.KennlinieDlg.Werte_Medium_lesen_mit_Abzw && s.ElementGruppe == 5 &&
         (s.ElementNr == 5 || s.ElementNr == 6);
}

void TMyWindow::Werteingabe_Foerdermedium_lesen() {
  CalculationState& s = app_.state;
  s.Werteingabe = true;
  s.gas = Radio_gas.Checked;
  const std::string flowUnit = ComboBox1.text();
  const bool standardFlow = isStandardFlowUnit();
  if (Radio_fluessig.Checked && standardFlow) {  // a liquid has no standard volume flow
    s.Werteingabe = false;
    app_.meldungen.error(app_.Sprache.globalWord(kCaptionWrongInput), words.SV_Werteingabe_Foerdermedium1);
    fokus(ComboBox1);
    return;
  }
  s.Dichte = readNumber(Eingabe_Dichte, Dichte_Titel);
  if (!s.Werteingabe) return;
  s.Dichte = Umre_Dichte(ComboBox2.text(), "kg/m3", s.Dichte);

  if (standardFlow) {
    s.Normvolumenstrom = readNumber(Eingabe_Volumenstrom, Volumenstrom_Titel);
    if (!s.Werteingabe) return;
    s.Normvolumenstrom = Umre_Normvolumenstrom(flowUnit, "Nm3/h", s.Normvolumenstrom);
  }
  if (ComboBox4.ItemIndex == 0) {
    s.Volumenstrom = readNumber(Eingabe_Volumenstrom, Volumenstrom_Titel);
    if (!s.Werteingabe) return;
    s.Volumenstrom = Umre_Volumenstrom(flowUnit, "m3/h", s.Volumenstrom);
    s.Massenstrom = s.Dichte * s.Volumenstrom;
  }
  if (ComboBox4.ItemIndex == 1) {
    s.Massenstrom = readNumber(Eingabe_Volumenstrom, Volumenstrom_Titel);
    if (!s.Werteingabe) return;
    s.Massenstrom = Umre_Massenstrom(flowUnit, "kg/h", s.Massenstrom);
    s.Volumenstrom = s.Massenstrom / s.Dichte;
  }
  if (ComboBox5.ItemIndex == 0) {
    s.DynViskositaet = readNumber(Eingabe_Viskositaet, Visko_Titel);
    if (!s.Werteingabe) return;
    s.DynViskositaet = Umre_dynViskositaet(ComboBox3.text(), "10-6 kg/ms", s.DynViskositaet);
    s.KinViskositaet = s.DynViskositaet / s.Dichte;  // with kg/m3 the quotient is already in 10-6 m2/s
  } else {
    s.KinViskositaet = readNumber(Eingabe_Viskositaet, Visko_Titel);
    if (!s.Werteingabe) return;
    s.KinViskositaet = Umre_kinViskositaet(ComboBox3.text(), "10-6 m2/s", s.KinViskositaet);
    s.DynViskositaet = s.KinViskositaet * s.Dichte;
  }
  if (branchFlowIsRead()) {
    bool readable = true;
    s.Volumenstrom_Z = Zahl_lesen(Edit3.Text, readable);
    if (!readable || s.Volumenstrom_Z <= 0) {
      s.Werteingabe = false;
      Falsche_Eingabe(Label6, Edit3);
      return;
    }
  }
  if (Radio_gas.Checked) {
    const std::pair<const Edit*, const Label*> gasFields[] = {
        {&Edit_EingangsdruckN, &Label4N}, {&Edit_EingangstemperaturN, &Label5N}, {&Edit_AusgangstemperaturN, &Label6N}};
    for (const auto& [field, label] : gasFields) {
      if (field->Text.empty()) {
        s.Werteingabe = false;
        Falsche_Eingabe(*label, *field);
        return;
      }
    }
    Real values[3] = {};
    for (std::size_t i = 0; i < 3; ++i) {
      values[i] = readNumber(*gasFields[i].first, *gasFields[i].second);
      if (!s.Werteingabe) return;
    }
    s.Eintrittsdruck = Umre_Druck(ComboBox6N.text(), "bar", values[0]);
    s.Eintrittstemperatur = Umre_Temperatur(ComboBox7N.text(), "K", values[1]);
    s.Austrittstemperatur = Umre_Temperatur(ComboBox8N.text(), "K", values[2]);
    const Real p = s.Eintrittsdruck;
    const Real T = s.Eintrittstemperatur;
    if (!standardFlow) {
      s.Normvolumenstrom = s.Volumenstrom / 1.01325L / T * p * 273.15L;
    } else {
      s.Volumenstrom = s.Normvolumenstrom * 1.01325L * T / p / 273.15L;
      s.Massenstrom = s.Dichte * s.Volumenstrom;
    }
  }
  if (branchFlowIsRead()) {
    Umrechnung_Daten_Foerdermedium_Abzweig();
    if (!(s.Volumenstrom > s.Volumenstrom_Z)) {
      s.Werteingabe = false;
      app_.meldungen.error(app_.Sprache.globalWord(kCaptionWrongInput), words.SV_Werteingabe_Foerdermedium2);
    }
  }
}

void TMyWindow::Umrechnung_Daten_Foerdermedium_Abzweig() {
  CalculationState& s = app_.state;
  const std::string& unit = Label7.Caption;
  switch (ComboBox4.ItemIndex) {
    case 1:
      s.Volumenstrom_Z = Umre_Massenstrom(unit, "kg/h", s.Volumenstrom_Z) / s.Dichte;
      break;
    case 2:
      s.Volumenstrom_Z = Umre_Normvolumenstrom(unit, "Nm3/h", s.Volumenstrom_Z) * 1.01325L * s.Eintrittstemperatur /
                         s.Eintrittsdruck / 273.15L;
      break;
    default:
      s.Volumenstrom_Z = Umre_Volumenstrom(unit, "m3/h", s.Volumenstrom_Z);
      break;
  }
}

bool TMyWindow::Tabelle_pruefen(std::vector<int>* failedColumns) {
  CalculationState& s = app_.state;
  s.Pruefmodus = true;
  Hauptfenster_sichern();
  bool result = true;
  const int calculations = app_.Ausgabeneu_Fenster.Anzahl_Berechnungen();
  for (int i = 0; i < calculations; ++i) {
    app_.Ausgabeneu_Fenster.Spalte_nach_oben_kopieren(i, 'A');
    Berechnen(i + 1);
    const bool stops = (Radio_gas.Checked && s.gasdruckzuhoch) || s.Volumenstrom <= 0;
    if (!s.Bereich_i_O || stops) {
      result = false;
      if (failedColumns) failedColumns->push_back(i + 1);
    }
    if (stops) break;
  }
  Hauptfenster_wiederherstellen();
  s.Pruefmodus = false;
  return result;
}

std::string TMyWindow::elementInputsText() const {
  std::string text;
  for (int row = 1; row <= kPanelRows; ++row) {
    const Label& label = vaStatic(row);
    if (!label.Visible) continue;
    const std::string unit = comboVar(row).Visible   ? comboVar(row).text()
                             : labelVar(row).Visible ? labelVar(row).Caption
                                                     : std::string();
    text += "\n" + label.Caption + " " + vaEdit(row).Text + (unit.empty() ? "" : " " + unit);
  }
  return text.empty() ? text : text.substr(1);
}

void TMyWindow::Gasdaten_neu_berechnen_real() {}

void TMyWindow::Gasdaten_neu_berechnen_ideal() {}

}  // namespace linecalc
