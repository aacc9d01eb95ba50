// The main window's panels: words, unit lists, the element panel built from the catalogue, and the
// saving and restoring of the whole panel around table operations.
#include <algorithm>

#include "workspace/anwendung.h"
#include "workspace/my_window.h"

namespace linecalc {

namespace {

// Global word rows of the medium panel.
constexpr int kMediumWord = 15, kStateWord = 16, kFlowKindWord = 17, kDensityWord = 20, kViscosityWord = 21;
constexpr int kGasDataWord = 25, kInletPressureWord = 26, kInletTemperatureWord = 27, kOutletTemperatureWord = 28;
constexpr int kDesignationWord = 7, kPiecesWord = 9, kRoughnessWord = 10;
constexpr int kLiquidWord = 57, kGasWord = 67;

std::string heading(const std::string& word) {
  return word + ":";
}

}  // namespace

TMyWindow::TMyWindow(Anwendung& app) : app_(app) {
  const TEinstellungenDlg& settings = app_.EinstellungenDlg;
  ComboBox4.Items = {"", "", ""};
  ComboBox4.ItemIndex = 0;
  ComboBox5.Items = {"", ""};
  ComboBox5.ItemIndex = 0;
  for (auto [combo, master] :
       {std::pair{&ComboBox2, &settings.combo_Dichte}, std::pair{&ComboBox6N, &settings.combo_Druck},
        std::pair{&ComboBox7N, &settings.combo_Temperatur}, std::pair{&ComboBox8N, &settings.combo_Temperatur},
        std::pair{&ComboBox6, &settings.combo_Durchmesser}}) {
    combo->Items = master->Items;
    combo->ItemIndex = 0;
  }
  Einheiten_Volumenstrom_aktualisieren();
  Einheiten_Visko_aktualisieren();
  selectLiquid(true);
  VaAnz_Edit.Text = "1";
}

Label& TMyWindow::vaStatic(int row) {
  Label* rows[] = {&Va1_Static, &Va2_Static, &Va3_Static, &Va4_Static, &Va5_Static};
  return *rows[row - 1];
}
Edit& TMyWindow::vaEdit(int row) {
  Edit* rows[] = {&Va1_Edit, &Va2_Edit, &Va3_Edit, &Va4_Edit, &Va5_Edit};
  return *rows[row - 1];
}
Label& TMyWindow::labelVar(int row) {
  Label* rows[] = {&LabelVar1, &LabelVar2, &LabelVar3, &LabelVar4, &LabelVar5};
  return *rows[row - 1];
}
Combo& TMyWindow::comboVar(int row) {
  Combo* rows[] = {&ComboVar1, &ComboVar2, &ComboVar3, &ComboVar4, &ComboVar5};
  return *rows[row - 1];
}

void TMyWindow::Sprache_anpassen() {
  const LanguageTables& tables = app_.Sprache;
  words = readMainFormWords(tables);
  const auto word = [&](int row) { return tables.globalWord(row); };
  Medium_Titel.Caption = heading(word(kMediumWord));
  Label3.Caption = heading(word(kStateWord));
  Radio_fluessig.Caption = word(kLiquidWord);
  Radio_gas.Caption = word(kGasWord);
  for (int kind = 0; kind < 3; ++kind) ComboBox4.Items[static_cast<std::size_t>(kind)] = word(kFlowKindWord + kind);
  Volumenstrom_Titel.Caption = heading(word(kFlowKindWord + std::max(ComboBox4.ItemIndex, 0)));
  Dichte_Titel.Caption = heading(word(kDensityWord));
  Visko_Titel.Caption = heading(word(kViscosityWord));
  ComboBox5.Items = {words.viscosityKinds[0], words.viscosityKinds[1]};
  Label2N.Caption = word(kGasDataWord);
  Label4N.Caption = heading(word(kInletPressureWord));
  Label5N.Caption = heading(word(kInletTemperatureWord));
  Label6N.Caption = heading(word(kOutletTemperatureWord));
  Label6.Caption = heading(words.Label6);
  Label2.Caption = heading(word(kDesignationWord));
  VaAnz_Titel.Caption = heading(word(kPiecesWord));
  Label4.Caption = heading(word(kRoughnessWord));
  ToolButton15.Hint = words.hint("ToolButton15");
  SpeedButton1.Hint = words.hint("SpeedButton1");
}

void TMyWindow::Einheiten_Volumenstrom_aktualisieren() {
  const TEinstellungenDlg& settings = app_.EinstellungenDlg;
  const int kind = std::clamp(ComboBox4.ItemIndex, 0, 2);
  const Combo* lists[] = {&settings.combo_Volumenstrom, &settings.combo_Massenstrom, &settings.combo_Normvolumenstrom};
  ComboBox1.Items = lists[kind]->Items;
  ComboBox1.ItemIndex = 0;
  Volumenstrom_Titel.Caption = heading(app_.Sprache.globalWord(kFlowKindWord + kind));
  Label7.Caption = ComboBox1.text();
}

void TMyWindow::Einheiten_Visko_aktualisieren() {
  const TEinstellungenDlg& settings = app_.EinstellungenDlg;
  ComboBox3.Items = ComboBox5.ItemIndex == 1 ? settings.combo_Visko_kin.Items : settings.combo_Visko_dyn.Items;
  ComboBox3.ItemIndex = 0;
}

void TMyWindow::enableGasFields(bool enabled) {
  for (Control* c : std::initializer_list<Control*>{&Label2N, &Label4N, &Label5N, &Label6N, &Edit_EingangsdruckN,
                                                    &Edit_EingangstemperaturN, &Edit_AusgangstemperaturN, &ComboBox6N,
                                                    &ComboBox7N, &ComboBox8N}) {
    c->Enabled = enabled;
  }
}

void TMyWindow::Gasdaten_grau() {
  enableGasFields(false);
}

void TMyWindow::Gasdaten_schwarz() {
  enableGasFields(true);
}

void TMyWindow::selectLiquid(bool liquid) {
  Radio_fluessig.Checked = liquid;
  Radio_gas.Checked = !liquid;
  liquid ? Gasdaten_grau() : Gasdaten_schwarz();
}

void TMyWindow::Element_Fenster_aktualisieren() {
  const int group = app_.state.ElementGruppe;
  const int nr = app_.state.ElementNr;
  Edit1.Text.clear();
  for (int row = 1; row <= kPanelRows; ++row) {
    vaStatic(row).Visible = vaEdit(row).Visible = labelVar(row).Visible = comboVar(row).Visible = false;
  }
  Label5.Visible = RadioButton1.Visible = RadioButton2.Visible = false;
  for (Control* c :
       std::initializer_list<Control*>{&Label6, &Label7, &Edit3, &Label4, &Edit2, &ComboBox6, &SpeedButton1}) {
    c->Enabled = false;
  }
  const ElementDefinition* element = findElement(group, nr);
  if (!element) return;

  const LanguageTables& tables = app_.Sprache;
  Image1 = element->picture;
  Statisch_Element_Name1.Caption = tables.Gruppe_Name[group] + " - " + tables.Untergruppe_Name[group][nr];
  for (int row = 1; row <= kPanelRows; ++row) {
    const PanelRow& definition = element->rows[static_cast<std::size_t>(row - 1)];
    if (!definition.used()) continue;
    const std::string fixedUnit =
        definition.fixedUnitRow ? tables.globalWord(definition.fixedUnitRow) : std::string(definition.fixedUnit);
    const std::string preset = definition.keep       ? std::string("k")
                               : definition.copyFrom ? vaEdit(definition.copyFrom).Text
                                                     : buildDefault(definition.defaultText, app_.Dezimaltrennzeichen);
    El_Zeile_belegen(row, tables.globalWord(definition.labelRow) + std::string(definition.suffix), definition.unit,
                     fixedUnit, preset);
  }
  if (const ChoicePair& choice = element->choice; choice.labelRow != 0) {
    const auto text = [&](const ChoiceText& c) { return std::string(c.prefix) + tables.globalWord(c.wordRow); };
    Belege_ElementGruppe(tables.globalWord(choice.labelRow), text(choice.first), text(choice.second));
  }
  ToolButton15.Enabled = !words.SV_Elementinfo[group][nr].empty();
  if (element->roughness) Label4.Enabled = Edit2.Enabled = ComboBox6.Enabled = SpeedButton1.Enabled = true;
  if (element->branchFlow) Belege_abzw_Volumenstrom();
}

void TMyWindow::El_Zeile_belegen(int Zeile, const std::string& Beschriftung, RowUnit Einheiten_Art,
                                 const std::string& Feste_Einheit, const std::string& Vorgabe) {
  const TEinstellungenDlg& settings = app_.EinstellungenDlg;
  const Combo* TempoBox = Einheiten_Art == RowUnit::Durchmesser   ? &settings.combo_Durchmesser
                          : Einheiten_Art == RowUnit::Laenge      ? &settings.combo_Laenge
                          : Einheiten_Art == RowUnit::Querschnitt ? &settings.Combo_Querschnitt
                                                                  : nullptr;
  if (!Beschriftung.empty()) {
    vaStatic(Zeile).Caption = Beschriftung;
    vaStatic(Zeile).Visible = true;
  }
  if (!Vorgabe.empty()) {
    Edit& edit = vaEdit(Zeile);
    edit.Visible = true;
    if (Zeile > 2 || Vorgabe != "k") edit.Text = Vorgabe;
    if (Zeile <= 2 && edit.Text.empty()) edit.Text = "100";
  }
  if (!Feste_Einheit.empty()) {
    labelVar(Zeile).Caption = Feste_Einheit;
    labelVar(Zeile).Visible = true;
  }
  if (TempoBox) {
    // A row keeps its unit position while it stays in the same unit family; otherwise it takes the
    // unit selected in the settings.
    Combo& combo = comboVar(Zeile);
    RowUnit& family = rowFamilies_[static_cast<std::size_t>(Zeile - 1)];
    const int index = family == Einheiten_Art ? std::max(combo.ItemIndex, 0) : TempoBox->ItemIndex;
    combo.Visible = true;
    combo.Items = TempoBox->Items;
    combo.ItemIndex = index < static_cast<int>(combo.Items.size()) ? index : -1;
    family = Einheiten_Art;
  }
}

void TMyWindow::Belege_ElementGruppe(const std::string& Beschriftung, const std::string& Auswahl1,
                                     const std::string& Auswahl2) {
  Label5.Caption = Beschriftung;
  RadioButton1.Caption = Auswahl1;
  RadioButton2.Caption = Auswahl2;
  Label5.Visible = RadioButton1.Visible = RadioButton2.Visible = true;
  RadioButton1.Checked = true;
  RadioButton2.Checked = false;
}

void TMyWindow::Belege_abzw_Volumenstrom() {
  Label6.Enabled = Label7.Enabled = Edit3.Enabled = true;
  Label7.Caption = ComboBox1.text();
}

void TMyWindow::Hauptfenster_sichern() {
  SavedPanel& s = saved;
  s.SiGruppe = app_.state.ElementGruppe;
  s.SiUGruppe = app_.state.ElementNr;
  s.SiRohrbezeichnung = Edit1.Text;
  s.SiAnzahl = VaAnz_Edit.Text;
  for (int row = 1; row <= kPanelRows; ++row) {
    const auto i = static_cast<std::size_t>(row - 1);
    s.SiVar_Static[i] = vaStatic(row).Caption;
    s.SiVar_Edit[i] = vaEdit(row).Text;
    s.SiComboVarIndex[i] = comboVar(row).ItemIndex;
  }
  s.SiRadioGroupItemindex = RadioButton1.Checked ? 0 : 1;
  s.SiComboRauhigkeit = ComboBox6.ItemIndex;
  s.SiRauhigkeit = Edit2.Text;
  s.SiVolMa = ComboBox4.ItemIndex;
  s.SiVolumenstrom_EH = ComboBox1.ItemIndex;
  s.SiDichte_EH = ComboBox2.ItemIndex;
  s.SiKinDyn = ComboBox5.ItemIndex;
  s.SiVisko_EH = ComboBox3.ItemIndex;
  s.SiMedium = Eingabe_Medium.Text;
  s.SiVolumenstrom = Eingabe_Volumenstrom.Text;
  s.SiabzwVolumenstrom = Edit3.Text;
  s.SiDichte = Eingabe_Dichte.Text;
  s.SiVisko = Eingabe_Viskositaet.Text;
  s.SiRadio = Radio_fluessig.Checked;
  s.SiEGDruck = Edit_EingangsdruckN.Text;
  s.SiEGTemp = Edit_EingangstemperaturN.Text;
  s.SiAGTemp = Edit_AusgangstemperaturN.Text;
  s.SiEGDruck_EH = ComboBox6N.ItemIndex;
  s.SiEGTemp_EH = ComboBox7N.ItemIndex;
  s.SiAGTemp_EH = ComboBox8N.ItemIndex;
}

void TMyWindow::Hauptfenster_wiederherstellen() {
  const SavedPanel& s = saved;
  app_.state.ElementGruppe = s.SiGruppe;
  app_.state.ElementNr = s.SiUGruppe;
  Element_Fenster_aktualisieren();
  Edit1.Text = s.SiRohrbezeichnung;
  VaAnz_Edit.Text = s.SiAnzahl;
  for (int row = 1; row <= kPanelRows; ++row) {
    const auto i = static_cast<std::size_t>(row - 1);
    vaEdit(row).Text = s.SiVar_Edit[i];
    vaStatic(row).Caption = s.SiVar_Static[i];
    comboVar(row).ItemIndex = s.SiComboVarIndex[i];
  }
  RadioButton1.Checked = s.SiRadioGroupItemindex == 0;
  RadioButton2.Checked = !RadioButton1.Checked;
  ComboBox6.ItemIndex = s.SiComboRauhigkeit;
  Edit2.Text = s.SiRauhigkeit;
  Eingabe_Medium.Text = s.SiMedium;
  ComboBox4.ItemIndex = s.SiVolMa;  // each list is rebuilt before its index is restored
  Einheiten_Volumenstrom_aktualisieren();
  ComboBox1.ItemIndex = s.SiVolumenstrom_EH;
  Label7.Caption = ComboBox1.text();
  Eingabe_Volumenstrom.Text = s.SiVolumenstrom;
  Edit3.Text = s.SiabzwVolumenstrom;
  ComboBox2.ItemIndex = s.SiDichte_EH;
  Eingabe_Dichte.Text = s.SiDichte;
  ComboBox5.ItemIndex = s.SiKinDyn;
  Einheiten_Visko_aktualisieren();
  ComboBox3.ItemIndex = s.SiVisko_EH;
  Eingabe_Viskositaet.Text = s.SiVisko;
  selectLiquid(s.SiRadio);
  Edit_EingangsdruckN.Text = s.SiEGDruck;
  Edit_EingangstemperaturN.Text = s.SiEGTemp;
  Edit_AusgangstemperaturN.Text = s.SiAGTemp;
  ComboBox6N.ItemIndex = s.SiEGDruck_EH;
  ComboBox7N.ItemIndex = s.SiEGTemp_EH;
  ComboBox8N.ItemIndex = s.SiAGTemp_EH;
}

}  // namespace linecalc
