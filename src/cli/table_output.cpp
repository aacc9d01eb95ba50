#include "table_output.h"

#include <algorithm>
#include <string>
#include <vector>

namespace linecalc::cli {

namespace {

// Characters of a UTF-8 text, for aligning columns ("Viskosität" has ten, not eleven).
std::size_t characters(const std::string& text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

std::string padded(const std::string& text, std::size_t width) {
  return text + std::string(width > characters(text) ? width - characters(text) : 0, ' ');
}

std::string csvField(const std::string& text) {
  if (text.find_first_of(",\"\n") == std::string::npos) return text;
  std::string quoted = "\"";
  for (char c : text) quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
  return quoted + "\"";
}

// The rows that hold anything in at least one column, as [title, unit, cell texts...].
std::vector<std::vector<std::string>> tableRows(const TAusgabeneu_Fenster& window, const ResultTable& page) {
  std::vector<std::vector<std::string>> rows;
  const int n = page.Anzahl_Berechnungen();
  std::vector<std::string> header{"", ""};
  for (int c = 0; c < n; ++c) header.push_back(page.get_Spalte(c).caption);
  rows.push_back(header);
  for (int row = 0; row < kResultRows; ++row) {
    std::vector<std::string> line{window.rowTitles[static_cast<std::size_t>(row)],
                                  page.unitCells[static_cast<std::size_t>(row)]};
    bool any = false;
    for (int c = 0; c < n; ++c) {
      any = any || !page.get_Spalte(c).cells[static_cast<std::size_t>(row)].empty();
      line.push_back(window.displayText(page, row, c));
    }
    if (any) rows.push_back(line);
  }
  return rows;
}

}  // namespace

nlohmann::json columnJson(const TAusgabeneu_Fenster& window, const ResultTable& page, int column) {
  nlohmann::json rows = nlohmann::json::array();
  for (int row = 0; row < kResultRows; ++row) {
    const Cell& cell = page.get_Spalte(column).cells[static_cast<std::size_t>(row)];
    if (cell.empty()) continue;
    nlohmann::json entry = {{"row", row},
                            {"title", window.rowTitles[static_cast<std::size_t>(row)]},
                            {"unit", page.unitCells[static_cast<std::size_t>(row)]},
                            {"text", window.displayText(page, row, column)}};
    if (cell.number) entry["value"] = static_cast<double>(*cell.number);
    rows.push_back(entry);
  }
  return rows;
}

nlohmann::json tableJson(const TAusgabeneu_Fenster& window, const ResultTable& page) {
  nlohmann::json columns = nlohmann::json::array();
  for (int c = 0; c < page.Anzahl_Berechnungen(); ++c) columns.push_back(columnJson(window, page, c));
  return {{"caption", page.caption}, {"units", page.unitCells}, {"sum", page.statusText}, {"columns", columns}};
}

void printTable(std::ostream& out, const TAusgabeneu_Fenster& window, const ResultTable& page) {
  const auto rows = tableRows(window, page);
  std::vector<std::size_t> widths(rows.front().size(), 0);
  for (const auto& row : rows) {
    for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], characters(row[i]));
  }
  for (const auto& row : rows) {
    std::string line;
    for (std::size_t i = 0; i < row.size(); ++i) line += padded(row[i], widths[i] + 2);
    line.erase(line.find_last_not_of(' ') + 1);
    out << line << '\n';
  }
}

void printCsv(std::ostream& out, const TAusgabeneu_Fenster& window, const ResultTable& page) {
  for (const auto& row : tableRows(window, page)) {
    for (std::size_t i = 0; i < row.size(); ++i) out << (i ? "," : "") << csvField(row[i]);
    out << '\n';
  }
}

}  // namespace linecalc::cli
