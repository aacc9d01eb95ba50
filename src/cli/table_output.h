#pragma once

#include <nlohmann/json.hpp>
#include <ostream>

#include "tables/ausgabe_fenster.h"

namespace linecalc::cli {

// The cells of one column: row, title, unit, the text the table shows and, for numbers, the full value.
nlohmann::json columnJson(const TAusgabeneu_Fenster& window, const ResultTable& page, int column);

// A whole table: caption, units and every calculation column.
nlohmann::json tableJson(const TAusgabeneu_Fenster& window, const ResultTable& page);

// The table as the result window shows it: row titles, units and one column per calculation, aligned.
void printTable(std::ostream& out, const TAusgabeneu_Fenster& window, const ResultTable& page);

// The same as comma-separated values (RFC 4180 quoting).
void printCsv(std::ostream& out, const TAusgabeneu_Fenster& window, const ResultTable& page);

}  // namespace linecalc::cli
