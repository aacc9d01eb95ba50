#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "base/real.h"

namespace linecalc {

inline constexpr int kResultRows = 34;

// Rows of a result table that hold numbers (in the unit of their unit cell); the others hold text.
bool isNumericRow(int row);
// The Reynolds rows, shown in scientific notation.
bool isReynoldsRow(int row);

// One cell: a number at full precision, or a text, or nothing.
struct Cell {
  std::optional<Real> number;
  std::string text;

  bool empty() const { return !number && text.empty(); }
  bool operator==(const Cell&) const = default;
};

// One calculation: the 34 cells of an element's inputs and results.
struct CalcColumn {
  std::array<Cell, kResultRows> cells;
  int width = 150;
  std::string caption;  // its running number in the pipe run

  bool empty() const;
};

// One page of the result window: the row titles, the unit cells and the calculation columns in
// display order, which is the order of the pipe run. An empty column always stands at the end,
// ready to receive the next calculation.
class ResultTable {
 public:
  ResultTable(int number, int calculationWidth);

  int number;                                      // the n of "TabSheet" n and "view" n
  std::string caption;                             // the page's caption
  std::array<std::string, kResultRows> unitCells;  // column 2
  std::array<int, 3> fixedWidths{0, 130, 60};      // columns 0 (hidden), 1 and 2
  std::vector<CalcColumn> columns;                 // calculations, then the empty end column
  std::string statusText;                          // the sum of the run, shown in the status bar

  int Anzahl_Berechnungen() const { return static_cast<int>(columns.size()) - 1; }
  // The calculation column at a display position.
  CalcColumn& get_Spalte(int index) { return columns.at(static_cast<std::size_t>(index)); }
  const CalcColumn& get_Spalte(int index) const { return columns.at(static_cast<std::size_t>(index)); }
  CalcColumn& endColumn() { return columns.back(); }

  void Leere_Spalte_anhaengen();
  void Spalten_nummerieren();
  // Removes calculation `index` (display position); the end column cannot be removed.
  bool removeColumn(int index);
  // Moves calculation `from` to display position `to`; the end column stays last.
  bool moveColumn(int from, int to);

 private:
  int calculationWidth_;
};

}  // namespace linecalc
