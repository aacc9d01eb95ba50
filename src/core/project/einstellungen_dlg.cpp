#include "project/einstellungen_dlg.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <utility>

#include "base/unit_lists.h"
#include "workspace/anwendung.h"

namespace linecalc {

namespace {

constexpr int kWrongInputCaptionWord = 197;  // "Falsche Eingabe"

// The sets of the two buttons: the unit each master list takes in the SI and in the US set.
struct UnitSet {
  std::string_view comboName;
  std::string_view si;
  std::string_view us;
};

constexpr UnitSet kUnitSets[] = {
    {"combo_Volumenstrom", "m3/h", "gal/min"},
    {"combo_Massenstrom", "kg/h", "lb/hr"},
    {"combo_Dichte", "kg/m3", "lb/ft3"},
    {"combo_Visko_dyn", "10-6 kg/ms", "cP"},
    {"combo_Visko_kin", "10-6 m2/s", "cSt"},
    {"combo_Druck", "bar", "psia"},
    {"combo_Temperatur", "°C", "°F"},
    {"combo_Normvolumenstrom", "Nm3/h", "Nm3/h"},
    {"combo_Durchmesser", "mm", "in."},
    {"combo_Laenge", "m", "ft."},
    {"Combo_Querschnitt", "m2", "yd2"},
    {"combo_geschwindigkeit", "m/s", "ft/s"},
    {"combo_Stromlauf1", "mbar", "lbw./sq.ft."},
    {"combo_Stromlauf2", "mbar", "psi"},
    {"combo_Volumen", "m3", "ft3"},
    {"combo_spezVolumen", "m3/kg", "ft3/lb"},
    {"combo_Leistung", "kW", "Hp"},
};

// The section units: "m2", "cm2", "mm2" are metric, "in2", "ft2", "yd2" US.
constexpr int kFirstUsSection = 3;

std::string heading(const std::string& word) {
  return word + ":";
}

// A whole number typed into a field, blanks around it allowed; nothing for any other text.
std::optional<int> wholeNumber(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return std::nullopt;
  text = text.substr(first, text.find_last_not_of(' ') - first + 1);
  if (text.starts_with('+')) text.remove_prefix(1);
  int value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return value;
}

}  // namespace

int sprachversionIndex(char Sprachkennung) {
  const auto it = std::find(kSprachversionen.begin(), kSprachversionen.end(), Sprachkennung);
  return it == kSprachversionen.end() ? 1 : static_cast<int>(it - kSprachversionen.begin());
}

TEinstellungenDlg::TEinstellungenDlg(Anwendung& app) : app_(app) {
  for (const UnitList& list : masterUnitLists()) {
    Combo* combo = unitCombo(list.comboName);
    combo->setItems(list.units);
    combo->ItemIndex = 0;
  }
  Combo_SI_US.Items = {"SI", "US"};
  Combo_SI_US.ItemIndex = 0;
  ComboBox1.Items = {"Deutsch", "English"};  // words of the language come with Sprache_anpassen
  ComboBox1.ItemIndex = 1;
  ComboBox2.Items = {"Deutsch", "English", "Nederlands", "Français"};  // each language in its own words
  ComboBox2.ItemIndex = 1;
  ComboBox3.Items = {"metrisch", "US"};
  ComboBox3.ItemIndex = 0;
  ComboBox4.Items = {"Variante A", "Variante B"};
  ComboBox4.ItemIndex = 0;
  Edit1.Text = "20";
  Edit2.Text = "3";
  Alte_Einstellungen_sicher();
}

Combo* TEinstellungenDlg::unitCombo(std::string_view comboName) {
  const std::pair<std::string_view, Combo*> combos[] = {
      {"combo_Volumenstrom", &combo_Volumenstrom},
      {"combo_Massenstrom", &combo_Massenstrom},
      {"combo_Normvolumenstrom", &combo_Normvolumenstrom},
      {"combo_Visko_dyn", &combo_Visko_dyn},
      {"combo_Visko_kin", &combo_Visko_kin},
      {"combo_Dichte", &combo_Dichte},
      {"combo_Druck", &combo_Druck},
      {"combo_Stromlauf1", &combo_Stromlauf1},
      {"combo_Stromlauf2", &combo_Stromlauf2},
      {"combo_Temperatur", &combo_Temperatur},
      {"combo_geschwindigkeit", &combo_geschwindigkeit},
      {"combo_Laenge", &combo_Laenge},
      {"combo_Durchmesser", &combo_Durchmesser},
      {"Combo_Querschnitt", &Combo_Querschnitt},
      {"combo_Volumen", &combo_Volumen},
      {"combo_spezVolumen", &combo_spezVolumen},
      {"combo_Leistung", &combo_Leistung},
      {"Combo_SI_US", &Combo_SI_US},  // the unit system of a result table
  };
  for (const auto& [name, combo] : combos) {
    if (name == comboName) return combo;
  }
  return nullptr;
}

Label* TEinstellungenDlg::unitLabel(std::string_view comboName) {
  const auto lists = masterUnitLists();
  for (std::size_t i = 0; i < lists.size() && i < unitLabels_.size(); ++i) {
    if (lists[i].comboName == comboName) return &unitLabels_[i];
  }
  return nullptr;
}

void TEinstellungenDlg::Sprache_anpassen() {
  WordBlock words = app_.Sprache.block("EinstellungenDlg");
  Caption = words.next();
  TabSheet1.Caption = words.next();
  TabSheet2.Caption = words.next();
  programLanguageLabel.Caption = heading(words.next());
  substanceLanguageLabel.Caption = heading(words.next());
  ComboBox1.Items = {words.next(), words.next()};
  userDatabaseUnitsLabel.Caption = heading(words.next());
  frictionMethodLabel.Caption = heading(words.next());
  diagramPointsLabel.Caption = heading(words.next());
  decimalsLabel.Caption = heading(words.next());
  CheckBox1.Caption = words.next();
  CheckBox2.Caption = words.next();
  RadioGroup1Caption.Caption = words.next();
  for (std::string& item : RadioGroup1Items) item = words.next();
  unitSystemLabel.Caption = heading(words.next());
  for (Label& label : unitLabels_) label.Caption = heading(words.next());
  Button1.Caption = words.next();
  Button2.Caption = words.next();
  OKBtn.Caption = words.next();
  CancelBtn.Caption = words.next();
  decimalsMessage = words.next();
  diagramPointsMessage = words.next();
}

void TEinstellungenDlg::selectLanguage(char Sprachkennung) {
  ComboBox2.ItemIndex = sprachversionIndex(Sprachkennung);
}

void TEinstellungenDlg::FormShow() {
  Alte_Einstellungen_sicher();
  Fokus = nullptr;
  Visible = true;
}

void TEinstellungenDlg::Alte_Einstellungen_sicher() {
  Anz_Nachkomma_alt = Edit2.Text;
  Anz_BerePunkte_alt = Edit1.Text;
  Volumenstrom_alt = combo_Volumenstrom.ItemIndex;
  Massenstrom_alt = combo_Massenstrom.ItemIndex;
  Normvolumenstrom_alt = combo_Normvolumenstrom.ItemIndex;
  Visko_dyn_alt = combo_Visko_dyn.ItemIndex;
  Visko_kin_alt = combo_Visko_kin.ItemIndex;
  Dichte_alt = combo_Dichte.ItemIndex;
  Druck_alt = combo_Druck.ItemIndex;
  Stromlauf1_alt = combo_Stromlauf1.ItemIndex;
  Stromlauf2_alt = combo_Stromlauf2.ItemIndex;
  Temperatur_alt = combo_Temperatur.ItemIndex;
  Geschwindigkeit_alt = combo_geschwindigkeit.ItemIndex;
  Laenge_alt = combo_Laenge.ItemIndex;
  Durchmesser_alt = combo_Durchmesser.ItemIndex;
  Querschnitt_alt = Combo_Querschnitt.ItemIndex;
  Volumen_alt = combo_Volumen.ItemIndex;
  spezVolumen_alt = combo_spezVolumen.ItemIndex;
  Leistung_alt = combo_Leistung.ItemIndex;
  EHSI_US_alt = Combo_SI_US.ItemIndex;
  Sprachversion_alt = ComboBox2.ItemIndex;
  Stoffnamen_alt = ComboBox1.ItemIndex;
  Ben_Daba_Einheit_alt = ComboBox3.ItemIndex;
  Variante_alt = ComboBox4.ItemIndex;
  GasBere_alt = RadioGroup1;
  Zeilenumbruch_alt = CheckBox1.Checked;
  Einheiten_Umrechnen_alt = CheckBox2.Checked;
}

void TEinstellungenDlg::Alte_Einstellungen_wieder() {
  Edit2.Text = Anz_Nachkomma_alt;
  Edit1.Text = Anz_BerePunkte_alt;
  combo_Volumenstrom.ItemIndex = Volumenstrom_alt;
  combo_Massenstrom.ItemIndex = Massenstrom_alt;
  combo_Normvolumenstrom.ItemIndex = Normvolumenstrom_alt;
  combo_Visko_dyn.ItemIndex = Visko_dyn_alt;
  combo_Visko_kin.ItemIndex = Visko_kin_alt;
  combo_Dichte.ItemIndex = Dichte_alt;
  combo_Druck.ItemIndex = Druck_alt;
  combo_Stromlauf1.ItemIndex = Stromlauf1_alt;
  combo_Stromlauf2.ItemIndex = Stromlauf2_alt;
  combo_Temperatur.ItemIndex = Temperatur_alt;
  combo_geschwindigkeit.ItemIndex = Geschwindigkeit_alt;
  combo_Laenge.ItemIndex = Laenge_alt;
  combo_Durchmesser.ItemIndex = Durchmesser_alt;
  Combo_Querschnitt.ItemIndex = Querschnitt_alt;
  combo_Volumen.ItemIndex = Volumen_alt;
  combo_spezVolumen.ItemIndex = spezVolumen_alt;
  combo_Leistung.ItemIndex = Leistung_alt;
  Combo_SI_US.ItemIndex = EHSI_US_alt;
  ComboBox2.ItemIndex = Sprachversion_alt;
  ComboBox1.ItemIndex = Stoffnamen_alt;
  ComboBox3.ItemIndex = Ben_Daba_Einheit_alt;
  ComboBox4.ItemIndex = Variante_alt;
  RadioGroup1 = GasBere_alt;
  CheckBox1.Checked = Zeilenumbruch_alt;
  CheckBox2.Checked = Einheiten_Umrechnen_alt;
}

bool TEinstellungenDlg::OKBtnClick() {
  const auto refuse = [&](const Edit& field, const std::string& message) {
    app_.meldungen.error(app_.Sprache.globalWord(kWrongInputCaptionWord), message);
    fokus(field);
    return false;
  };
  if (!isValidDecimals(Edit2.Text)) return refuse(Edit2, decimalsMessage);
  if (!isValidDiagramPoints(Edit1.Text)) return refuse(Edit1, diagramPointsMessage);
  Tabellen_Einheiten_umrechnen();
  Visible = false;
  return true;
}

bool TEinstellungenDlg::isValidDecimals(std::string_view text) {
  const std::optional<int> decimals = wholeNumber(text);
  return decimals && *decimals >= 0 && *decimals <= 6;
}

bool TEinstellungenDlg::isValidDiagramPoints(std::string_view text) {
  const std::optional<int> points = wholeNumber(text);
  return points && *points >= 2;
}

void TEinstellungenDlg::CancelBtnClick() {
  Alte_Einstellungen_wieder();
  Visible = false;
}

void TEinstellungenDlg::Tabellen_Einheiten_umrechnen() {
  app_.Ausgabeneu_Fenster.Tabellen_Einheiten_umrechnen();
}

int TEinstellungenDlg::Hole_Itemindex_von_Box_m(const Combo& Box, std::string_view Text) {
  const auto it = std::find(Box.Items.begin(), Box.Items.end(), Text);
  return it == Box.Items.end() ? -1 : static_cast<int>(it - Box.Items.begin());
}

void TEinstellungenDlg::selectSet(bool us) {
  for (const UnitSet& set : kUnitSets) {
    Combo& combo = *unitCombo(set.comboName);
    const int index = Hole_Itemindex_von_Box_m(combo, us ? set.us : set.si);
    if (index >= 0) combo.ItemIndex = index;
  }
  Combo_SI_US.ItemIndex = Hole_Itemindex_von_Box_m(Combo_SI_US, us ? "US" : "SI");
}

void TEinstellungenDlg::Button1Click() {
  selectSet(false);
}

void TEinstellungenDlg::Button2Click() {
  selectSet(true);
}

void TEinstellungenDlg::keepUnitSystem(bool us) {
  const auto select = [](Combo& combo, std::string_view text) {
    const int index = Hole_Itemindex_von_Box_m(combo, text);
    if (index >= 0) combo.ItemIndex = index;
  };
  select(combo_Laenge, us ? "ft." : "m");
  select(combo_Durchmesser, us ? "in." : "mm");
  if (us && Combo_Querschnitt.ItemIndex < kFirstUsSection) Combo_Querschnitt.ItemIndex = kFirstUsSection;
  if (!us && Combo_Querschnitt.ItemIndex >= kFirstUsSection) Combo_Querschnitt.ItemIndex = 0;
}

void TEinstellungenDlg::combo_LaengeChange() {
  if (combo_Laenge.ItemIndex >= 0) keepUnitSystem(combo_Laenge.text() == "ft.");
}

void TEinstellungenDlg::combo_DurchmesserChange() {
  if (combo_Durchmesser.ItemIndex >= 0) keepUnitSystem(combo_Durchmesser.text() == "in.");
}

void TEinstellungenDlg::Combo_QuerschnittChange() {
  if (Combo_Querschnitt.ItemIndex >= 0) keepUnitSystem(Combo_Querschnitt.ItemIndex >= kFirstUsSection);
}

}  // namespace linecalc
