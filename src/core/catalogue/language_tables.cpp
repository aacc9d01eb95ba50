#include "catalogue/language_tables.h"

#include "base/fields.h"
#include "project/data_file.h"

namespace linecalc {

namespace {

bool isBlank(std::string_view text) {
  return text.find_first_not_of(' ') == std::string_view::npos;
}

std::string wordOf(const std::vector<std::string>& lines, std::size_t row, int column) {
  if (row >= lines.size()) return {};
  std::string word = Feld_holen(lines[row], '\t', column);
  return isBlank(word) ? std::string() : word;
}

bool isReadAsWord(int row) {
  return (row >= 6 && row <= 165) || (row >= 176 && row <= 204);
}

}  // namespace

int Sprachspalte(char Sprachkennung) {
  switch (Sprachkennung) {
    case 'D':
      return 4;
    case 'F':
      return 6;
    case 'H':
      return 7;
    default:
      return 5;
  }
}

std::string WordBlock::next() {
  return wordOf(*lines_, row_++, column_);
}

std::string WordBlock::nextJoined(int rows) {
  std::string text = next();
  for (int i = 1; i < rows; ++i) text += "\n" + next();
  return text;
}

void LanguageTables::Gruppen_laden(const std::filesystem::path& folder) {
  fillNames(splitTextLines(readWholeFile(folder / "elemente.gru1")));
}

void LanguageTables::fillNames(const std::vector<std::string>& lines) {
  const int column = Sprachspalte(Sprachkennung) - 1;
  for (int g = 1; g <= kGroupCount; ++g) {
    Gruppe_Name[g] = wordOf(lines, static_cast<std::size_t>(g + 1), column);
    for (int e = 1; e <= kElementsPerGroup; ++e) {
      const auto line = static_cast<std::size_t>((g - 1) * 9 + 23 + e);
      Untergruppe_Name[g][e] = wordOf(lines, line, column);
      Untergruppe_D_Name[g][e] = wordOf(lines, line, 3);
      Untergruppe_E_Name[g][e] = wordOf(lines, line, 4);
      Untergruppe_F_Name[g][e] = wordOf(lines, line, 5);
    }
  }
}

void LanguageTables::Sprachdatei_laden(const std::filesystem::path& folder) {
  DataLists lists;
  Datei_laden_entschluesseln(folder / "varsonst.gru1", Schluessel07, 'S', lists);
  Datei_laden_entschluesseln(folder / "varglob.gru1", Schluessel07, 'T', lists);
  Sprachdateiliste = std::move(lists.Sprachdateiliste);
  GlobalVariablen = std::move(lists.GlobalVariablen);
  readGlobalWords();
}

void LanguageTables::readGlobalWords() {
  const int column = Sprachspalte(Sprachkennung);
  for (int row = 0; row < kGlobalWordRows; ++row) {
    globalWords_[static_cast<std::size_t>(row)] =
        isReadAsWord(row) ? wordOf(GlobalVariablen, static_cast<std::size_t>(row), column) : std::string();
  }
}

const std::string& LanguageTables::globalWord(int row) const {
  static const std::string none;
  return row >= 0 && row < kGlobalWordRows ? globalWords_[static_cast<std::size_t>(row)] : none;
}

WordBlock LanguageTables::block(std::string_view formName) const {
  std::size_t row = 0;
  while (row < Sprachdateiliste.size() && Feld_holen(Sprachdateiliste[row], '\t', 1) != formName) ++row;
  return WordBlock(Sprachdateiliste, row + 1, Sprachspalte(Sprachkennung));
}

}  // namespace linecalc
