#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "tables/result_table.h"

namespace linecalc {

class LanguageTables;

// Rows of a calculation as a project file holds them. They equal the rows of a result table except
// rows 12 to 14: the file keeps designation, element name and pieces there, the table element name,
// pieces and designation.
inline constexpr int kFileDesignationRow = 12;
inline constexpr int kFileElementRow = 13;
inline constexpr int kFilePiecesRow = 14;

using FileColumn = std::array<std::string, kResultRows>;

// The intermediate table of saving and opening: one column a calculation, 34 rows of text in the
// file's row order. Words and decimal marks are translated on it, between the language and separator
// of the program and the fixed base form of the file (German words, decimal comma).
struct StringGrid {
  std::vector<FileColumn> columns;
};

// A calculation column of a result table as file text: numbers as the shortest text that reads back
// exactly, with the given decimal separator; rows 12 to 14 in the file's order.
FileColumn toFileColumn(const CalcColumn& column, char separator);

// File text back into the cells of a result table: the rows that hold numbers become numbers at full
// precision (a text that is no number stays text), the others text; rows 12 to 14 in the table's order.
std::array<Cell, kResultRows> fromFileColumn(const FileColumn& column);

// Exchanges the decimal mark Von by Nach in the number rows and the element data rows. When points
// become commas the abbreviations of the element data rows are put right again.
void Zwischentabelle_Dezimaltrennzeichen(StringGrid& StringGrid1, char Von, char Nach);

// Current language to German, before saving: state word, numbers to the decimal comma, element name,
// the label words of the element data rows and the word " in ", flow regime.
void Zwischentabelle_bearbeiten_vor_SpeichernV7(StringGrid& StringGrid1, const LanguageTables& Sprache, char separator);

// German to the current language, after opening a file of the given format version.
void Zwischentabelle_bearbeiten_nach_Oeffnen(StringGrid& StringGrid1, int Version, const LanguageTables& Sprache);

// Old element names that project files may hold, mapped to the German catalogue name that replaced
// them: "Zeta-Wert" is the known coefficient in a circular pipe. Applied to the element row of every
// column on opening.
void repairOldElementNames(StringGrid& StringGrid1, const LanguageTables& Sprache);

// The German catalogue name an old element name stands for; the name itself when it needs no repair.
std::string repairedElementName(const std::string& name, const LanguageTables& Sprache);

}  // namespace linecalc
