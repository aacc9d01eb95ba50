#include "catalogue/language_tables.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "base/fields.h"
#include "catalogue/main_form_words.h"

namespace linecalc {
namespace {

const std::filesystem::path kDataFolder = LINECALC_BUILD_DATA_DIR;

LanguageTables loadTables(char language) {
  LanguageTables tables;
  tables.Sprachkennung = language;
  tables.Sprachdatei_laden(kDataFolder);
  tables.Gruppen_laden(kDataFolder);
  return tables;
}

std::string rowLabel(const LanguageTables& tables, const PanelRow& row) {
  return tables.globalWord(row.labelRow) + std::string(row.suffix);
}

class EveryLanguage : public ::testing::TestWithParam<char> {};

TEST_P(EveryLanguage, EveryElementHasItsGroupNameElementNameAndRowLabels) {
  const LanguageTables tables = loadTables(GetParam());
  for (const auto& element : allElements()) {
    const auto where = std::to_string(element.group) + "," + std::to_string(element.nr);
    EXPECT_FALSE(tables.Gruppe_Name[element.group].empty()) << where;
    EXPECT_FALSE(tables.Untergruppe_Name[element.group][element.nr].empty()) << where;
    EXPECT_EQ(tables.Untergruppe_D_Name[element.group][element.nr], element.germanName) << where;
    for (const auto& row : element.rows) {
      if (!row.used()) continue;
      EXPECT_FALSE(tables.globalWord(row.labelRow).empty()) << where << " label " << rowLabel(tables, row);
      if (row.fixedUnitRow != 0) {
        EXPECT_FALSE(tables.globalWord(row.fixedUnitRow).empty()) << where;
      }
    }
    if (element.choice.labelRow != 0) {
      for (const int wordRow : {element.choice.labelRow, element.choice.first.wordRow, element.choice.second.wordRow}) {
        EXPECT_FALSE(tables.globalWord(wordRow).empty()) << where << " choice row " << wordRow;
      }
    }
  }
}

TEST_P(EveryLanguage, ElementNamesAreUniqueKeys) {
  const LanguageTables tables = loadTables(GetParam());
  std::set<std::string> names;
  for (const auto& element : allElements()) {
    EXPECT_TRUE(names.insert(tables.Untergruppe_Name[element.group][element.nr]).second)
        << tables.Untergruppe_Name[element.group][element.nr];
  }
}

TEST_P(EveryLanguage, TheMainFormBlockHasEveryWordAndEndsWhereTheChooserBlockBegins) {
  const LanguageTables tables = loadTables(GetParam());
  const MainFormWords words = readMainFormWords(tables);
  for (const auto& menu : words.menuCaptions) EXPECT_FALSE(menu.word.empty()) << menu.control;
  for (const auto& hint : words.hints) EXPECT_FALSE(hint.word.empty()) << hint.control;
  for (int i = 1; i <= 37; ++i) EXPECT_FALSE(words.SV_Bereichspruefung_Elemente[i].empty()) << i;
  for (int i = 1; i <= 15; ++i) EXPECT_FALSE(words.SV_Diverse[i].empty()) << i;
  EXPECT_FALSE(words.SV_Diverse10F.empty());
  EXPECT_EQ(std::count(words.SV_InfoRohrerweiterung.begin(), words.SV_InfoRohrerweiterung.end(), '\n'), 2);
  for (const auto& element : allElements()) {
    EXPECT_FALSE(words.SV_Elementinfo[element.group][element.nr].empty()) << element.group << "," << element.nr;
  }
  EXPECT_EQ(words.SV_Elementinfo[13][3], words.SV_Elementinfo[13][2]);

  // 100 menu rows, 18 hints, 3 panel words, 37 range messages, 7 medium and file messages, 21 others,
  // 3 rows of the expansion hint and the element information rows: then the chooser's block follows.
  int infoRows = 0;
  for (int g = 1; g <= kGroupCount; ++g) {
    for (int e = 1; e <= kElementsPerGroup; ++e) infoRows += elementInfoRows(g, e);
  }
  EXPECT_EQ(infoRows, 132);
  std::size_t head = 0;
  while (Feld_holen(tables.Sprachdateiliste.at(head), '\t', 1) != "MyWindow") ++head;
  const std::size_t next = head + 1 + 100 + 18 + 3 + 37 + 7 + 21 + 3 + static_cast<std::size_t>(infoRows);
  EXPECT_EQ(Feld_holen(tables.Sprachdateiliste.at(next), '\t', 1), "BtnBottomDlg");

  const ChooserWords chooser = readChooserWords(tables);
  for (const auto* word :
       {&chooser.caption, &chooser.elementsTab, &chooser.reversibleTab, &chooser.ok, &chooser.cancel}) {
    EXPECT_FALSE(word->empty());
  }
}

INSTANTIATE_TEST_SUITE_P(Languages, EveryLanguage, ::testing::Values('D', 'E', 'F', 'H'),
                         [](const auto& info) { return std::string(1, info.param); });

TEST(LanguageTables, WordsComeFromTheColumnOfTheLanguage) {
  EXPECT_EQ(loadTables('D').Untergruppe_Name[4][1], "Kreiskrümmer");
  EXPECT_EQ(loadTables('D').Gruppe_Name[13], "Reversible Druckänderungen");
  const LanguageTables french = loadTables('F');
  EXPECT_EQ(french.Untergruppe_Name[4][1], french.Untergruppe_F_Name[4][1]);
  EXPECT_NE(french.Untergruppe_F_Name[4][1], french.Untergruppe_E_Name[4][1]);
  EXPECT_EQ(loadTables('H').Sprachdateiliste, french.Sprachdateiliste);  // one file, four columns
  EXPECT_EQ(Sprachspalte('D'), 4);
  EXPECT_EQ(Sprachspalte('E'), 5);
  EXPECT_EQ(Sprachspalte('F'), 6);
  EXPECT_EQ(Sprachspalte('H'), 7);
}

TEST(LanguageTables, OnlyRowsSixTo165And176To204AreWords) {
  LanguageTables tables;
  tables.Sprachkennung = 'D';
  for (int row = 0; row < kGlobalWordRows; ++row) tables.GlobalVariablen.push_back("\t\t\tw" + std::to_string(row));
  tables.readGlobalWords();
  for (int row = 0; row < kGlobalWordRows; ++row) {
    const bool word = (row >= 6 && row <= 165) || (row >= 176 && row <= 204);
    EXPECT_EQ(tables.globalWord(row), word ? "w" + std::to_string(row) : "") << row;
  }
  EXPECT_EQ(tables.globalWord(205), "");
  EXPECT_EQ(tables.globalWord(-1), "");
}

TEST(LanguageTables, BlocksAreScannedByFormNameAndRunOutIntoEmptyWords) {
  LanguageTables tables;
  tables.Sprachkennung = 'E';
  tables.Sprachdateiliste = {"#\t\tcomment", "Other\t\t\tx\ty", "\t\t\tDatei\tFile", "MyWindow", "\t\t\tA\tB",
                             "\t\t\tC\t   ", "\t\t\tE"};
  WordBlock block = tables.block("MyWindow");
  EXPECT_EQ(block.next(), "B");
  EXPECT_EQ(block.next(), "");  // blanks only count as empty
  EXPECT_EQ(block.next(), "");  // the row is too short
  EXPECT_EQ(block.next(), "");  // past the end of the file
  EXPECT_EQ(tables.block("Missing").next(), "");
  WordBlock other = tables.block("Other");
  EXPECT_EQ(other.nextJoined(3), "File\n\nB");  // a block runs on into the rows that follow
}

}  // namespace
}  // namespace linecalc
