#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/element_catalogue.h"

namespace linecalc {

inline constexpr int kGlobalWordRows = 205;

// Column of a language in varsonst.gru1 and varglob.gru1: D 4, E 5, F 6, H 7 (elemente.gru1 uses one less).
int Sprachspalte(char Sprachkennung);

// The words of one form's block, taken row after row in strict order.
class WordBlock {
 public:
  WordBlock(const std::vector<std::string>& lines, std::size_t firstRow, int column)
      : lines_(&lines), row_(firstRow), column_(column) {}

  // The next row's word; past the end of the file, or for a text of blanks only, the empty word.
  std::string next();
  // The next `rows` rows joined by line breaks (information texts spanning several rows).
  std::string nextJoined(int rows);

 private:
  const std::vector<std::string>* lines_;
  std::size_t row_;
  int column_;
};

using ElementNames = std::array<std::array<std::string, kElementsPerGroup + 1>, kGroupCount + 1>;

// The three language files: element names, form words and the global words shared by the forms.
class LanguageTables {
 public:
  char Sprachkennung = 'E';

  std::vector<std::string> Sprachdateiliste;  // varsonst.gru1
  std::vector<std::string> GlobalVariablen;   // varglob.gru1

  std::array<std::string, kGroupCount + 1> Gruppe_Name;  // [1..13]
  ElementNames Untergruppe_Name;                         // [1..13][1..9], current language
  ElementNames Untergruppe_D_Name;
  ElementNames Untergruppe_E_Name;
  ElementNames Untergruppe_F_Name;

  // Loads elemente.gru1 (plain text) from the folder and fills the group and element names.
  void Gruppen_laden(const std::filesystem::path& folder);
  // The same from the file's lines.
  void fillNames(const std::vector<std::string>& elementLines);

  // Deciphers varsonst.gru1 and varglob.gru1 from the folder and reads the global words.
  void Sprachdatei_laden(const std::filesystem::path& folder);
  // Reads the global words from GlobalVariablen: rows 6 to 165, then 176 to 204.
  void readGlobalWords();

  // The global word of a row; empty for rows that are not read as words.
  const std::string& globalWord(int row) const;

  // The block of a form: the rows after the first row whose field 1 is the form's name.
  WordBlock block(std::string_view formName) const;

 private:
  std::array<std::string, kGlobalWordRows> globalWords_{};
};

}  // namespace linecalc
