#pragma once

#include <array>
#include <string>
#include <vector>

#include "base/controls.h"
#include "tables/result_table.h"
#include "workspace/calculation_state.h"

namespace linecalc {

class Anwendung;

// The font of the result tables, kept with a project.
struct TableFont {
  std::string name = "Arial";
  int colour = 0;
  int size = 9;
  bool bold = false, italic = false, underline = false, strikeOut = false;
  bool operator==(const TableFont&) const = default;
};

// The result window: pages of result tables that receive one column per calculation, with their
// units, number formats and running sums. Its calculation steps work on the shared calculation state.
class TAusgabeneu_Fenster : public Form {
 public:
  explicit TAusgabeneu_Fenster(Anwendung& app);

  // message texts
  std::string noteCaption;
  std::string dp_zu_gross_Gase;
  std::string SV_Laminar_Zeta_Turbulent;
  std::array<std::string, 5> SV_Bereich;  // [1..4]
  std::string undefinedResultText;
  // table words
  std::array<std::string, 4> groupTitles;
  std::array<std::string, kResultRows> rowTitles;
  std::string pageWord;  // the caption of a new page: the word and its number

  Edit Edit1;  // the project's title line
  TableFont font;
  std::vector<ResultTable> pages;
  int activePage = 0;
  int recalculatedColumn = -1;  // while a column is changed in bulk: the column a run writes into

  void Sprache_anpassen();

  // ---- calculation steps of a run
  void Berechnung_w_Re();
  void Berechnung_delta_P();
  void Werte_ausgeben();
  void Neue_Summen_bilden();

  // ---- pages and columns
  ResultTable& table() { return pages.at(static_cast<std::size_t>(activePage)); }
  const ResultTable& table() const { return pages.at(static_cast<std::size_t>(activePage)); }
  int Anzahl_Berechnungen() const { return table().Anzahl_Berechnungen(); }
  // A new page with its row titles and unit cells from the settings; it becomes the active page.
  ResultTable& Leere_Tabelle_erzeugen();
  void TabelleTitelbelegen(ResultTable& page);
  ResultTable& Tabelle_hinzufuegen() { return Leere_Tabelle_erzeugen(); }
  // All pages removed, one empty page created.
  void Tabelle_Leeren();
  bool renamePage(int page, const std::string& caption);
  bool removePage(int page);  // the last page stays
  bool Gewaehlte_Spalte_loeschen(int column);
  bool moveColumn(int from, int to);
  // ---- units of a table
  // Brings every unit row of the current table to the units now set in the settings dialog, the
  // element rows to its unit system, and forms the sums again.
  void Tabellen_Einheiten_umrechnen();
  // After the user changed the unit cell of a numeric row (the cell already holds the new unit):
  // converts the row's numbers from oldUnit; after rows 31 to 33 the sums are formed again.
  void Zeile_Daten_umrechnen(int row, const std::string& oldUnit);
  // After a change of the unit system cell (row 15): rewrites the element rows 15 to 19 and row 26.
  void Zeile_Elemente_umrechnen();

  // Takes a column back into the main window's panels: 'A' element and medium, 'C' element rows only.
  bool Spalte_nach_oben_kopieren(int column, char Art);

  // ---- display
  int decimals() const;
  // The text a cell shows: numbers in the row's format, texts as they are.
  std::string displayText(const ResultTable& page, int row, int column) const;
  // The unit list of a row's unit cell (empty for rows without a unit).
  std::vector<std::string> unitChoices(int row) const;

 private:
  Anwendung& app_;
  int createdPages_ = 0;

  void projectChanged();
  std::string rowText(int row) const;  // an element row "label in unit: value"
};

// The settings combo box a row's unit cell takes its units from ("" for rows without a unit).
std::string_view unitSourceOfRow(int row);

}  // namespace linecalc
