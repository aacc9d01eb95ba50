#include "tables/ausgabe_fenster.h"

#include <algorithm>

#include "base/numbers.h"
#include "base/units.h"
#include "engine/loss.h"
#include "engine/velocity.h"
#include "tables/number_format.h"
#include "workspace/anwendung.h"

namespace linecalc {

namespace {

constexpr int kErrorCaption = 197;  // global word row

constexpr std::string_view kUnitSources[kResultRows] = {"",
                                                        "",
                                                        "combo_Volumenstrom",
                                                        "combo_Massenstrom",
                                                        "combo_Volumenstrom",
                                                        "combo_Dichte",
                                                        "combo_Visko_dyn",
                                                        "combo_Visko_kin",
                                                        "combo_Druck",
                                                        "combo_Temperatur",
                                                        "combo_Temperatur",
                                                        "combo_Normvolumenstrom",
                                                        "",
                                                        "",
                                                        "",
                                                        "Combo_SI_US",
                                                        "",
                                                        "",
                                                        "",
                                                        "",
                                                        "",
                                                        "combo_geschwindigkeit",
                                                        "",
                                                        "combo_geschwindigkeit",
                                                        "",
                                                        "",
                                                        "combo_Durchmesser",
                                                        "",
                                                        "",
                                                        "",
                                                        "combo_Stromlauf1",
                                                        "combo_Stromlauf1",
                                                        "combo_Stromlauf2",
                                                        "combo_Stromlauf2"};

}  // namespace

std::string_view unitSourceOfRow(int row) {
  return row >= 0 && row < kResultRows ? kUnitSources[row] : "";
}

TAusgabeneu_Fenster::TAusgabeneu_Fenster(Anwendung& app) : app_(app) {
  Leere_Tabelle_erzeugen();
}

void TAusgabeneu_Fenster::Sprache_anpassen() {
  WordBlock block = app_.Sprache.block("Ausgabeneu_Fenster");
  noteCaption = block.next();
  dp_zu_gross_Gase = block.next();
  SV_Laminar_Zeta_Turbulent = block.next();
  for (int i = 1; i <= 4; ++i) SV_Bereich[static_cast<std::size_t>(i)] = block.next();
  undefinedResultText = block.next();
  pageWord = block.next();
  for (auto& title : groupTitles) title = block.next();
  for (auto& title : rowTitles) title = block.next();
}

void TAusgabeneu_Fenster::projectChanged() {
  app_.Projekt_gespeichert = false;
}

int TAusgabeneu_Fenster::decimals() const {
  bool readable = true;
  const Real value = Zahl_lesen(app_.EinstellungenDlg.Edit2.Text, readable);
  return readable ? std::clamp(static_cast<int>(Runden(value)), 0, 6) : 3;
}

std::vector<std::string> TAusgabeneu_Fenster::unitChoices(int row) const {
  const std::string_view source = unitSourceOfRow(row);
  if (source.empty()) return {};
  const Combo* combo = app_.EinstellungenDlg.unitCombo(source);
  return combo ? combo->Items : std::vector<std::string>{};
}

std::string TAusgabeneu_Fenster::displayText(const ResultTable& page, int row, int column) const {
  const Cell& cell = page.get_Spalte(column).cells.at(static_cast<std::size_t>(row));
  if (!cell.number) return cell.text;
  const char separator = app_.Dezimaltrennzeichen;
  return isReynoldsRow(row) ? formatScientific(*cell.number, separator)
                            : formatTableNumber(*cell.number, decimals(), separator);
}

ResultTable& TAusgabeneu_Fenster::Leere_Tabelle_erzeugen() {
  ++createdPages_;
  pages.emplace_back(createdPages_, app_.EinstellungenDlg.Normspaltenbreite1);
  activePage = static_cast<int>(pages.size()) - 1;
  ResultTable& page = pages.back();
  page.caption = (pageWord.empty() ? "TabSheet" : pageWord) + " " + std::to_string(createdPages_);
  TabelleTitelbelegen(page);
  return page;
}

void TAusgabeneu_Fenster::TabelleTitelbelegen(ResultTable& page) {
  page.fixedWidths[1] = app_.EinstellungenDlg.Normspaltenbreite0;
  for (int row = 0; row < kResultRows; ++row) {
    const std::string_view source = unitSourceOfRow(row);
    const Combo* combo = source.empty() ? nullptr : app_.EinstellungenDlg.unitCombo(source);
    page.unitCells[static_cast<std::size_t>(row)] = combo ? combo->text() : std::string();
  }
}

void TAusgabeneu_Fenster::Tabelle_Leeren() {
  pages.clear();
  createdPages_ = 0;
  Leere_Tabelle_erzeugen();
  activePage = 0;
}

bool TAusgabeneu_Fenster::renamePage(int page, const std::string& caption) {
  if (page < 0 || page >= static_cast<int>(pages.size())) return false;
  pages[static_cast<std::size_t>(page)].caption = caption;
  projectChanged();
  return true;
}

bool TAusgabeneu_Fenster::removePage(int page) {
  if (pages.size() < 2 || page < 0 || page >= static_cast<int>(pages.size())) return false;
  pages.erase(pages.begin() + page);
  activePage = std::min(activePage, static_cast<int>(pages.size()) - 1);
  projectChanged();
  return true;
}

bool TAusgabeneu_Fenster::Gewaehlte_Spalte_loeschen(int column) {
  if (!table().removeColumn(column)) return false;
  Neue_Summen_bilden();
  projectChanged();
  return true;
}

bool TAusgabeneu_Fenster::moveColumn(int from, int to) {
  if (!table().moveColumn(from, to)) return false;
  Neue_Summen_bilden();
  projectChanged();
  return true;
}

void TAusgabeneu_Fenster::Neue_Summen_bilden() {
  ResultTable& page = table();
  if (page.Anzahl_Berechnungen() < 1) return;
  const std::string& u32 = page.unitCells[32];
  const std::string& u33 = page.unitCells[33];
  Real sum = 0;
  for (int i = 0; i < page.Anzahl_Berechnungen(); ++i) {
    CalcColumn& column = page.get_Spalte(i);
    const Cell& loss = column.cells[32];
    if (loss.number) sum += Umre_Druck(u32, u33, *loss.number);
    column.cells[33] = Cell{sum, {}};
  }
  page.statusText = displayText(page, 33, page.Anzahl_Berechnungen() - 1) + " " + u33;
}

void TAusgabeneu_Fenster::Berechnung_w_Re() {
  linecalc::Berechnung_w_Re(app_.state);
}

void TAusgabeneu_Fenster::Berechnung_delta_P() {
  CalculationState& s = app_.state;
  const CalculationState before = s;
  const bool curveShown = app_.KennlinieDlg.Visible;
  const LossOutcome outcome = elementLoss(s, {app_.EinstellungenDlg.ComboBox4.ItemIndex, curveShown});
  if (outcome.rangeNote != RangeNote::None && !curveShown) {
    app_.meldungen.information(noteCaption, SV_Bereich[static_cast<std::size_t>(outcome.rangeNote)]);
  }
  const std::string elementName = app_.MyWindow.Statisch_Element_Name1.Caption;
  if (outcome.undefined) {
    // A correlation without a value for these inputs: the run stops and the results stay as they were.
    s = before;
    s.undefinedResult = true;
    app_.meldungen.error(app_.Sprache.globalWord(kErrorCaption),
                         elementName + ":\n" + undefinedResultText + "\n" + app_.MyWindow.elementInputsText());
    return;
  }
  if (s.gas && !gasCorrection(s)) {
    app_.meldungen.error(app_.Sprache.globalWord(kErrorCaption), elementName + ":\n" + dp_zu_gross_Gase);
  }
  s.Delta_P = static_cast<Real>(s.VaAnz) * s.Delta_P;
  if (s.laminar && s.Kritisches_Laminar_Element && !curveShown && !s.Pruefmodus && !app_.TabelleAendern.Visible) {
    app_.meldungen.information(noteCaption, SV_Laminar_Zeta_Turbulent);
  }
}

}  // namespace linecalc
