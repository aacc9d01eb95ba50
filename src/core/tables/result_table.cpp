#include "tables/result_table.h"

#include <algorithm>

namespace linecalc {

bool isNumericRow(int row) {
  return (row >= 2 && row <= 11) || (row >= 21 && row <= 24) || (row >= 26 && row <= 33);
}

bool isReynoldsRow(int row) {
  return row == 22 || row == 24;
}

bool CalcColumn::empty() const {
  return std::all_of(cells.begin(), cells.end(), [](const Cell& c) { return c.empty(); });
}

ResultTable::ResultTable(int n, int calculationWidth) : number(n), calculationWidth_(calculationWidth) {
  Leere_Spalte_anhaengen();
  Spalten_nummerieren();
}

void ResultTable::Leere_Spalte_anhaengen() {
  CalcColumn column;
  column.width = calculationWidth_;
  columns.push_back(column);
}

void ResultTable::Spalten_nummerieren() {
  for (std::size_t i = 0; i < columns.size(); ++i) columns[i].caption = std::to_string(i + 1);
}

bool ResultTable::removeColumn(int index) {
  if (index < 0 || index >= Anzahl_Berechnungen()) return false;
  columns.erase(columns.begin() + index);
  Spalten_nummerieren();
  return true;
}

bool ResultTable::moveColumn(int from, int to) {
  const int n = Anzahl_Berechnungen();
  if (from < 0 || from >= n || to < 0 || to >= n) return false;
  CalcColumn moved = std::move(columns[static_cast<std::size_t>(from)]);
  columns.erase(columns.begin() + from);
  columns.insert(columns.begin() + to, std::move(moved));
  Spalten_nummerieren();
  return true;
}

}  // namespace linecalc
