// The range checks of a run: one value against its bounds, and the validity rules of each element's
// correlation. A failed check shows its message and clears Bereich_i_O; the checks go on, so that
// one run can show several messages.
#include <cmath>
#include <string>

#include "base/numbers.h"
#include "workspace/anwendung.h"
#include "workspace/my_window.h"

namespace linecalc {

namespace {

// Global word rows of the messages.
constexpr int kCaption = 197, kRuleLeadIn = 196, kFieldLeadIn = 190, kTooSmall = 199, kTooLarge = 200, kColumn = 140;

// One decimal, at least three characters wide, with the current decimal separator.
std::string limitText(Real limit, char separator) {
  std::string text = formatFixed(limit, 1, separator);
  if (text.size() < 3) text.insert(0, 3 - text.size(), ' ');
  return text;
}

}  // namespace

std::string TMyWindow::elementName() const {
  return app_.SpalteAendernDlg.Visible ? app_.SpalteAendernDlg.Label12.Caption : Statisch_Element_Name1.Caption;
}

std::string TMyWindow::columnPrefix() const {
  if (currentSpalte_ <= 0) return {};
  return app_.Sprache.globalWord(kColumn) + ": " + std::to_string(currentSpalte_) + "\n";
}

void TMyWindow::reportRange(const Label& label, const std::string& limitWord, const std::string& limit,
                            const Control& field) {
  const LanguageTables& tables = app_.Sprache;
  app_.state.Bereich_i_O = false;
  app_.meldungen.error(tables.globalWord(kCaption), columnPrefix() + elementName() + ":\n" +
                                                        tables.globalWord(kFieldLeadIn) + " \n>> " + label.Caption +
                                                        " << \n" + limitWord + "\n>> " + limit + " << ");
  fokus(field);
}

void TMyWindow::Pruefe_Bereich(bool Untergrenze_pruefen, bool Obergrenze_pruefen, Real Wert, Real Untergrenze,
                               Real Obergrenze, bool Null_erlaubt, const Label& Beschriftung,
                               const Control& Eingabefeld) {
  const std::string& tooSmall = app_.Sprache.globalWord(kTooSmall);
  const char separator = app_.Dezimaltrennzeichen;
  if (Wert < 0) reportRange(Beschriftung, tooSmall, "0", Eingabefeld);
  if (Untergrenze_pruefen && Wert < Untergrenze) {
    reportRange(Beschriftung, tooSmall, limitText(Untergrenze, separator), Eingabefeld);
  }
  if (Obergrenze_pruefen && Wert >= Obergrenze) {  // the upper bound itself fails
    reportRange(Beschriftung, app_.Sprache.globalWord(kTooLarge), limitText(Obergrenze, separator), Eingabefeld);
  }
  if (Wert == 0 && !Null_erlaubt) reportRange(Beschriftung, tooSmall, "0", Eingabefeld);
}

void TMyWindow::ruleMessage(std::initializer_list<int> entries, const Control& field, bool warning) {
  const LanguageTables& tables = app_.Sprache;
  std::string text = columnPrefix() + elementName() + "\n" + tables.globalWord(kRuleLeadIn) + "\n";
  bool first = true;
  for (const int entry : entries) {
    text += (first ? "" : "\n") + words.SV_Bereichspruefung_Elemente[static_cast<std::size_t>(entry)];
    first = false;
  }
  if (warning) {
    app_.meldungen.warning(tables.globalWord(kCaption), text);
  } else {
    app_.state.Bereich_i_O = false;
    app_.meldungen.error(tables.globalWord(kCaption), text);
  }
  fokus(field);
}

void TMyWindow::Bereichspruefung_Elemente(int Spalte) {
  currentSpalte_ = Spalte;
  const CalculationState& s = app_.state;
  const Real va[] = {0, s.Va1, s.Va2, s.Va3, s.Va4, s.Va5};
  const auto plain = [&](std::initializer_list<int> rows) {
    for (const int row : rows) Pruefe_Bereich(false, false, va[row], 0, 0, false, vaStatic(row), vaEdit(row));
  };
  const auto angleBelow = [&](int row, Real upper) {  // an angle is checked against 0 as well
    Pruefe_Bereich(true, true, va[row], 0, upper, false, vaStatic(row), vaEdit(row));
  };
  const auto openingRatio = [&](int row) {  // free opening in per cent: 1 <= value < 99
    Pruefe_Bereich(true, true, va[row], 1, 99, false, vaStatic(row), vaEdit(row));
  };
  const auto rule = [&](bool failed, std::initializer_list<int> entries, int focusRow, bool warning = false) {
    if (failed) ruleMessage(entries, vaEdit(focusRow), warning);
  };

  const Real v1 = s.Va1, v2 = s.Va2, v3 = s.Va3, v4 = s.Va4;
  switch (s.ElementGruppe * 10 + s.ElementNr) {
    case 11:
      plain({1, 2});
      break;
    case 12:
    case 14:
    case 16:
      plain({1, 2, 3});
      break;
    case 13:
      plain({1, 2, 3});
      rule(v2 > v1, {4}, 1);
      rule(v2 > 0 && v1 > 0 && v1 / v2 > 100, {5}, 1);
      rule(v1 == v2, {6}, 1);
      break;
    case 15:  // each ratio is judged only when its divisor is positive
      plain({1, 2, 3, 4});
      rule(v3 > 0 && (v2 / v3 < 0.2L || v2 / v3 > 1.2L), {1}, 2);
      rule(v1 > 0 && (v2 / v1 < 0.0455L || v2 / v1 > 1), {2}, 1);
      rule(v4 < v3 / 1000, {3}, 4);
      break;
    case 21:
    case 22:
    case 24:
      plain({1});
      break;
    case 23:
      plain({1});
      angleBelow(2, 90);
      break;
    case 31:
      plain({1, 2});
      rule(v2 <= v1, {7}, 1);
      break;
    case 32:
      plain({1, 2});
      rule(v2 <= v1, {7}, 1);
      angleBelow(3, 90);
      break;
    case 33:
    case 34:
      plain({1, 2});
      rule(v1 <= v2, {8}, 1);
      break;
    case 41:
      plain({1, 2, 3});
      rule(v3 > 180, {9}, 3);
      rule(v3 < 15, {10}, 3);
      rule(v1 > 0 && v2 > 0 && v2 / v1 < 1, {11}, 1);
      break;
    case 42:
      plain({1, 2});
      rule(v2 > 90, {12}, 2);
      break;
    case 43:
      plain({1});
      rule(v1 < 50 || v1 > 500, {13, 14, 15}, 1);
      break;
    case 44:
      plain({1, 2, 3, 4});
      rule(v4 > 180, {16}, 4);
      rule(v1 > 0 && v2 > 0 && v3 > 0 && v3 / v1 < 1, {17}, 1);
      break;
    case 45:
      plain({1, 2});
      rule(v2 > 180, {18}, 2);
      break;
    case 46:
      plain({1, 2, 3});
      rule(v3 > 180, {18}, 3);
      break;
    case 51:
      plain({1, 2});
      break;
    case 52:
    case 53:
    case 54:
      plain({1});
      break;
    case 55:
    case 56:
      plain({1, 2});
      Pruefe_Bereich(false, false, v3, 0, 0, true, Va3_Static, Va3_Edit);
      angleBelow(4, 180);
      break;
    case 57:
      plain({1, 2});
      rule(v2 > 90, {19}, 2);
      break;
    case 58:
      plain({1, 2});
      rule(v1 > 0 && v2 > 0 && (v2 / v1 < 0.5L || v2 / v1 > 2), {20}, 2);
      break;
    case 61:
      plain({1, 2});
      break;
    case 62:
      plain({1});
      break;
    case 63:
      plain({1});
      rule(v1 > 0 && v2 / v1 > 10, {21}, 1);
      break;
    case 71:
    case 72:
    case 73:
      plain({1});
      break;
    case 74:
      plain({1, 2});
      rule(v2 >= v1, {22}, 1, true);  // a warning only: the run goes on
      break;
    case 75:
      plain({1});
      rule(v2 > 50, {23}, 2);
      break;
    case 76:
      plain({1});
      rule(v2 > 70, {24}, 2);
      break;
    case 81:
    case 82:
    case 83:
      plain({1});
      break;
    case 91:
      plain({1, 2});
      rule(v2 >= v1, {25}, 1);
      rule(v1 < 50 || v1 > 1000 || v2 < 12.5L || v2 / v1 < 0.1L || v2 / v1 > 0.75L, {26, 27, 28, 29}, 1);
      break;
    case 92:
    case 93:
      plain({1, 2});
      rule(v2 >= v1, {30}, 1);
      break;
    case 94:
      plain({1, 2, 3});
      rule(v2 >= v1, {30}, 1);
      break;
    case 95:
      plain({1, 2});
      rule(v1 < 50 || v1 > 500 || v2 / v1 < 0.299999L || v2 / v1 > 0.800001L, {31, 32, 33}, 1);
      break;
    case 96:
      plain({1, 2});
      rule(v1 < 50 || v1 > 630 || v2 / v1 < 0.2L || v2 / v1 > 0.800001L, {34, 35, 36}, 1);
      break;
    case 97:
      plain({1, 2});
      rule(v1 > 0 && v2 > 0 && ((v2 / v1) * (v2 / v1) < 0.1L || (v2 / v1) * (v2 / v1) > 0.6L), {37}, 1);
      break;
    case 101:
    case 111:
    case 113:
    case 115:
      plain({1});
      openingRatio(2);
      break;
    case 102:
    case 112:
    case 114:
    case 116:
      plain({1, 2});
      openingRatio(3);
      break;
    case 103:
      plain({1, 2, 3});
      openingRatio(4);
      break;
    case 104:
      plain({1, 2, 3, 4});
      openingRatio(5);
      break;
    case 117:
    case 118:
    case 119:
      plain({1});
      break;
    // The known coefficients and the reversible changes have no validity range, but their sections
    // are divided by: an empty or zero size is refused.
    case 121:
      plain({1});
      break;
    case 122:
      plain({1, 2});
      break;
    case 132:
      plain({1, 2});
      break;
    case 133:
      plain({1, 2, 3, 4});
      break;
    default:
      break;
  }
  // Zero pieces give a column without loss; fewer than zero are refused.
  Pruefe_Bereich(false, false, static_cast<Real>(s.VaAnz), 0, 0, true, VaAnz_Titel, VaAnz_Edit);
}

void TMyWindow::Bereichspruefung_Medium() {
  const CalculationState& s = app_.state;
  Pruefe_Bereich(false, false, s.Volumenstrom, 0, 0, false, Volumenstrom_Titel, Eingabe_Volumenstrom);
  Pruefe_Bereich(false, false, s.Dichte, 0, 0, false, Dichte_Titel, Eingabe_Dichte);
  Pruefe_Bereich(false, false, s.DynViskositaet, 0, 0, false, Visko_Titel, Eingabe_Viskositaet);
  if (Radio_gas.Checked) {
    Pruefe_Bereich(false, false, s.Eintrittsdruck, 0, 0, false, Label4N, Edit_EingangsdruckN);
    // The gas correction divides by the absolute temperatures.
    Pruefe_Bereich(false, false, s.Eintrittstemperatur, 0, 0, false, Label5N, Edit_EingangstemperaturN);
    Pruefe_Bereich(false, false, s.Austrittstemperatur, 0, 0, false, Label6N, Edit_AusgangstemperaturN);
  }
}

}  // namespace linecalc
