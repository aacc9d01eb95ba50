// Writing a calculation into its column, and taking a column back into the main window's panels.
#include <algorithm>

#include "base/numbers.h"
#include "base/units.h"
#include "tables/ausgabe_fenster.h"
#include "tables/element_row_text.h"
#include "workspace/anwendung.h"

namespace linecalc {

namespace {

// Global word rows of the column texts.
constexpr int kLiquidWord = 57, kGasWord = 67, kInWord = 77, kLaminarWord = 92, kTurbulentWord = 151;

bool isOneOf(const std::string& text, std::initializer_list<std::string_view> items) {
  return std::find(items.begin(), items.end(), text) != items.end();
}

// The unit family of an element row by the unit its panel combo shows.
UnitFamily familyOfPanelUnit(const std::string& unit) {
  if (isOneOf(unit, {"m", "ft."})) return UnitFamily::Length;
  if (isOneOf(unit, {"m2", "mm2", "cm2", "yd2", "in2", "ft2"})) return UnitFamily::Section;
  return UnitFamily::Diameter;
}

// The family's unit in the table's unit system, and the internal unit it converts from.
std::string_view tableUnit(UnitFamily family, bool us) {
  switch (family) {
    case UnitFamily::Length:
      return us ? "ft." : "m";
    case UnitFamily::Section:
      return us ? "yd2" : "m2";
    default:
      return us ? "in." : "mm";
  }
}

std::string withoutTrailingColon(std::string label) {
  if (!label.empty() && label.back() == ':') label.pop_back();
  return label;
}

}  // namespace

void TAusgabeneu_Fenster::Werte_ausgeben() {
  const CalculationState& s = app_.state;
  TMyWindow& form = app_.MyWindow;
  ResultTable& page = table();
  const bool changingColumn = app_.TabelleAendern.Visible || app_.SpalteAendernDlg.Visible;
  const int target = changingColumn && recalculatedColumn >= 0 ? recalculatedColumn : page.Anzahl_Berechnungen();
  CalcColumn& column = page.get_Spalte(target);
  column.cells = {};  // a recalculated column starts empty
  const auto& units = page.unitCells;
  const auto number = [&](int row, Real value) { column.cells[static_cast<std::size_t>(row)] = Cell{value, {}}; };
  const auto text = [&](int row, std::string value) {
    column.cells[static_cast<std::size_t>(row)] = Cell{std::nullopt, std::move(value)};
  };
  const auto word = [&](int row) { return app_.Sprache.globalWord(row); };

  text(0, form.Eingabe_Medium.Text);
  text(1, word(s.gas ? kGasWord : kLiquidWord));
  number(2, Umre_Volumenstrom("m3/h", units[2], s.Volumenstrom));
  number(3, Umre_Massenstrom("kg/h", units[3], s.Massenstrom));
  const bool branchPiece = s.ElementGruppe == 5 && (s.ElementNr == 5 || s.ElementNr == 6);
  if (branchPiece) number(4, Umre_Volumenstrom("m3/h", units[4], s.Volumenstrom_Z));
  number(5, Umre_Dichte("kg/m3", units[5], s.Dichte));
  number(6, Umre_dynViskositaet("10-6 kg/ms", units[6], s.DynViskositaet));
  number(7, Umre_kinViskositaet("10-6 m2/s", units[7], s.KinViskositaet));
  if (s.gas) {
    number(8, Umre_Druck("bar", units[8], s.Eintrittsdruck));
    number(9, Umre_Temperatur("K", units[9], s.Eintrittstemperatur));
    number(10, Umre_Temperatur("K", units[10], s.Austrittstemperatur));
    number(11, Umre_Normvolumenstrom("Nm3/h", units[11], s.Normvolumenstrom));
  }
  text(12, app_.Sprache.Untergruppe_Name[s.ElementGruppe][s.ElementNr]);
  text(13, std::to_string(s.VaAnz));
  text(14, form.Edit1.Text);
  for (int row = 1; row <= kPanelRows; ++row) {
    if (form.vaStatic(row).Visible) text(14 + row, rowText(row));
  }
  if (form.RadioButton1.Visible)
    text(20, form.RadioButton1.Checked ? form.RadioButton1.Caption : form.RadioButton2.Caption);

  const int g = s.ElementGruppe, nr = s.ElementNr;
  if (g != 13 || nr != 1) number(21, Umre_Geschwindigkeit("m/s", units[21], s.w));  // a height has no velocity
  number(22, s.Re);
  const bool secondSection =
      g == 3 || g == 9 || (g == 13 && (nr == 2 || nr == 3)) || (g == 5 && (nr == 1 || branchPiece));
  const bool freeOpening = g == 10 || (g == 11 && nr <= 6);
  if (secondSection || freeOpening) number(23, Umre_Geschwindigkeit("m/s", units[23], s.w2));
  if (secondSection) number(24, s.Re2);
  text(25, word(s.laminar ? kLaminarWord : kTurbulentWord));
  const bool frictionElement =
      (g == 1 && nr != 5) || (g == 3 && (nr == 2 || nr == 4)) || (g == 4 && nr != 2 && nr != 3);
  if (!s.laminar && frictionElement) number(26, Umre_Durchmesser("mm", units[26], s.Rauhigkeit));
  const bool frictionShown = g == 1 || (!s.laminar && frictionElement);
  if (frictionShown) number(27, s.Lambda);
  number(28, s.Zeta);
  if (branchPiece) {
    number(29, s.Zeta_Z);
    number(30, Umre_Druck("mbar", units[30], s.Delta_P_Z));
  }
  number(31, Umre_Druck("bar", units[31], s.Delta_P));
  number(32, Umre_Druck("bar", units[32], s.Delta_P));

  if (!changingColumn) {
    page.Leere_Spalte_anhaengen();
    page.Spalten_nummerieren();
  }
  Neue_Summen_bilden();
  projectChanged();
}

std::string TAusgabeneu_Fenster::rowText(int row) const {
  const TMyWindow& form = app_.MyWindow;
  const CalculationState& s = app_.state;
  const Real values[] = {s.Va1, s.Va2, s.Va3, s.Va4, s.Va5};
  const Real value = values[row - 1];
  const std::string label = withoutTrailingColon(form.vaStatic(row).Caption);
  const char separator = app_.Dezimaltrennzeichen;
  const std::string in = " " + app_.Sprache.globalWord(kInWord) + " ";
  if (form.comboVar(row).Visible) {
    const UnitFamily family = familyOfPanelUnit(form.comboVar(row).text());
    const std::string_view unit = tableUnit(family, table().unitCells[15] == "US");
    const Real converted = convertUnit(family, baseUnit(family), unit, value);
    return label + in + std::string(unit) + ": " + formatShortest(converted, separator);
  }
  if (form.labelVar(row).Visible)
    return label + in + form.labelVar(row).Caption + ": " + formatShortest(value, separator);
  return label + ": " + formatShortest(value, separator);  // a known coefficient has no unit
}

bool TAusgabeneu_Fenster::Spalte_nach_oben_kopieren(int column, char Art) {
  const ResultTable& page = table();
  if (column < 0 || column >= page.Anzahl_Berechnungen()) return false;
  const auto& cells = page.get_Spalte(column).cells;
  const LanguageTables& tables = app_.Sprache;
  int group = 0, nr = 0;
  for (int g = 1; g <= kGroupCount; ++g) {
    for (int e = 1; e <= kElementsPerGroup; ++e) {
      if (findElement(g, e) && tables.Untergruppe_Name[g][e] == cells[12].text) group = g, nr = e;
    }
  }
  if (group == 0) return false;
  TMyWindow& form = app_.MyWindow;
  app_.state.ElementGruppe = group;
  app_.state.ElementNr = nr;
  form.Element_Fenster_aktualisieren();
  const std::string inWord = tables.globalWord(kInWord);
  for (int row = 1; row <= kPanelRows; ++row) {
    const ElementRowText parts = splitElementRow(cells[static_cast<std::size_t>(14 + row)].text, inWord);
    if (parts.value.empty()) continue;
    form.vaEdit(row).Text = parts.value;
    if (form.comboVar(row).Visible && !parts.unit.empty()) form.comboVar(row).selectText(parts.unit);
  }
  if (form.RadioButton1.Visible) {
    form.RadioButton1.Checked = cells[20].text != form.RadioButton2.Caption;
    form.RadioButton2.Checked = !form.RadioButton1.Checked;
  }
  const auto numberText = [&](int row) {
    const Cell& cell = cells[static_cast<std::size_t>(row)];
    return cell.number ? formatShortest(*cell.number, app_.Dezimaltrennzeichen) : cell.text;
  };
  if (cells[26].number) {
    form.Edit2.Text = numberText(26);
    form.ComboBox6.selectText(page.unitCells[26]);
  }
  if (Art != 'A') return true;

  form.VaAnz_Edit.Text = cells[13].text;
  form.Edit1.Text = cells[14].text;
  form.Eingabe_Medium.Text = cells[0].text;
  form.selectLiquid(cells[1].text != tables.globalWord(kGasWord));
  form.ComboBox4.ItemIndex = 0;  // the volume flow and the dynamic viscosity stand in the table
  form.Einheiten_Volumenstrom_aktualisieren();
  form.ComboBox1.selectText(page.unitCells[2]);
  form.Label7.Caption = form.ComboBox1.text();
  form.Eingabe_Volumenstrom.Text = numberText(2);
  form.Edit3.Text = numberText(4);
  form.ComboBox2.selectText(page.unitCells[5]);
  form.Eingabe_Dichte.Text = numberText(5);
  form.ComboBox5.ItemIndex = 0;
  form.Einheiten_Visko_aktualisieren();
  form.ComboBox3.selectText(page.unitCells[6]);
  form.Eingabe_Viskositaet.Text = numberText(6);
  if (cells[8].number) {
    form.ComboBox6N.selectText(page.unitCells[8]);
    form.Edit_EingangsdruckN.Text = numberText(8);
    form.ComboBox7N.selectText(page.unitCells[9]);
    form.Edit_EingangstemperaturN.Text = numberText(9);
    form.ComboBox8N.selectText(page.unitCells[10]);
    form.Edit_AusgangstemperaturN.Text = numberText(10);
  }
  return true;
}

}  // namespace linecalc
