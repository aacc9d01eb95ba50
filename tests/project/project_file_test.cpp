// Project files: the line layout, the translation of words and decimal marks between the program and
// the file's German base form, opening into a new project only when the whole file is sound, saving by
// replacing the file, and the lock that keeps a second instance from writing an open project.
#include "project/project_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/fsuid.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <cstring>
#include <fstream>
#include <iterator>
#include <memory>
#include <sstream>

#include "base/cp1252.h"
#include "base/numbers.h"
#include "project/intermediate_table.h"
#include "workspace/app_fixture.h"

namespace linecalc::test {
namespace {

namespace fs = std::filesystem;

Cell num(Real value) {
  return Cell{value, {}};
}
Cell txt(std::string text) {
  return Cell{std::nullopt, std::move(text)};
}

// Puts a calculation column written out by hand before the empty end column.
void addColumn(ResultTable& page, std::initializer_list<std::pair<int, Cell>> cells) {
  CalcColumn column;
  for (const auto& [row, cell] : cells) column.cells.at(static_cast<std::size_t>(row)) = cell;
  page.columns.insert(page.columns.end() - 1, column);
  page.Spalten_nummerieren();
}

std::string readBytes(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

void writeBytes(const fs::path& file, const std::string& bytes) {
  std::ofstream(file, std::ios::binary) << bytes;
}

std::vector<std::string> fileLines(const std::string& bytes) {
  std::vector<std::string> lines;
  std::size_t start = 0;
  for (std::size_t end; (end = bytes.find("\r\n", start)) != std::string::npos; start = end + 2) {
    lines.push_back(bytes.substr(start, end - start));
  }
  EXPECT_EQ(start, bytes.size()) << "every line ends in CR LF";
  return lines;
}

std::string crlf(const std::vector<std::string>& lines) {
  std::string bytes;
  for (const std::string& line : lines) bytes += line + "\r\n";
  return bytes;
}

// As root, file permissions are checked as the user "nobody" (the file system user id) while this
// lives, so that write-protected files and folders protect as they do for a user.
class AsOrdinaryUser {
 public:
  AsOrdinaryUser() : root_(::geteuid() == 0) {
    if (!root_) return;
    ::setfsuid(65534);
    active_ = ::setfsuid(65534) == 65534;
  }
  ~AsOrdinaryUser() {
    if (root_) ::setfsuid(0);
  }
  bool active() const { return !root_ || active_; }

 private:
  bool root_;
  bool active_ = false;
};

// A second program instance with its own message boxes.
struct Instance {
  RecordingMeldungen meldungen;
  Anwendung app;
  Instance(char language, char separator) : app(meldungen, separator) {
    app.Sprache.Sprachkennung = language;
    app.start(LINECALC_BUILD_DATA_DIR);
  }
};

// What the open project shows, to compare before and after.
struct Snapshot {
  std::vector<ResultTable> pages;
  std::string title, fileName, caption;
  TableFont font;
  bool saved;
};

void expectSamePages(const std::vector<ResultTable>& expected, const std::vector<ResultTable>& actual) {
  ASSERT_EQ(expected.size(), actual.size());
  for (std::size_t p = 0; p < expected.size(); ++p) {
    SCOPED_TRACE("page " + std::to_string(p));
    EXPECT_EQ(expected[p].caption, actual[p].caption);
    EXPECT_EQ(expected[p].unitCells, actual[p].unitCells);
    EXPECT_EQ(expected[p].fixedWidths, actual[p].fixedWidths);
    EXPECT_EQ(expected[p].statusText, actual[p].statusText);
    ASSERT_EQ(expected[p].columns.size(), actual[p].columns.size());
    for (std::size_t c = 0; c < expected[p].columns.size(); ++c) {
      EXPECT_EQ(expected[p].columns[c].width, actual[p].columns[c].width) << "column " << c;
      EXPECT_EQ(expected[p].columns[c].caption, actual[p].columns[c].caption) << "column " << c;
      for (int row = 0; row < kResultRows; ++row) {
        EXPECT_EQ(expected[p].columns[c].cells[row], actual[p].columns[c].cells[row])
            << "column " << c << " row " << row;
      }
    }
  }
}

class ProjectFiles : public AppTest {
 protected:
  fs::path folder;

  void SetUp() override {
    AppTest::SetUp();
    std::string pattern = (fs::temp_directory_path() / "linecalc-project-XXXXXX").string();
    ASSERT_NE(::mkdtemp(pattern.data()), nullptr);
    folder = pattern;
    fs::permissions(folder, fs::perms::all);  // reachable for the ordinary user of AsOrdinaryUser
  }
  void TearDown() override {
    std::error_code ignored;
    fs::permissions(folder, fs::perms::all, ignored);
    fs::remove_all(folder, ignored);
  }

  fs::path file(const std::string& name) const { return folder / name; }
  TAusgabeneu_Fenster& window() { return app.Ausgabeneu_Fenster; }
  ResultTable& table() { return window().table(); }

  // A straight DN 100 pipe with 36 m3/h of water.
  void pipe(const std::string& length) {
    choose(1, 1);
    form.Va1_Edit.Text = "100";
    form.Va2_Edit.Text = length;
    form.Eingabe_Volumenstrom.Text = "36";
    form.Berechnen(0);
  }

  Snapshot snapshot() {
    return {window().pages,      window().Edit1.Text, app.Projekt.Dateiname_Projekt,
            app.Projekt.Caption, window().font,       app.Projekt_gespeichert};
  }
  void expectUnchanged(const Snapshot& before) {
    expectSamePages(before.pages, window().pages);
    EXPECT_EQ(before.title, window().Edit1.Text);
    EXPECT_EQ(before.fileName, app.Projekt.Dateiname_Projekt);
    EXPECT_EQ(before.caption, app.Projekt.Caption);
    EXPECT_EQ(before.font, window().font);
    EXPECT_EQ(before.saved, app.Projekt_gespeichert);
  }
};

// ---- Layout

TEST_F(ProjectFiles, AnEmptyPageIsCaptionZeroThreeWidthsAndTheUnits) {
  window().Edit1.Text = "Kühlwasser Süd";
  window().font = {"Tahoma", 255, 10, true, false, false, true};
  table().caption = "Zulauf";
  table().unitCells = {"", "", "m3/h", "kg/h", "m3/h", "kg/m3", "mPa s", "10-6 m2/s", "bar", "°C",  "°C", "Nm3/h",
                       "", "", "",     "SI",   "",     "",      "",      "",          "",    "m/s", "",   "m/s",
                       "", "", "mm",   "",     "",     "",      "mbar",  "bar",       "bar", "psi"};
  ASSERT_TRUE(saveProjectAs(app, file("leer.slf")));
  const std::string expected =
      "7.0\r\nDiagramm:\r\n0\r\n0\r\n0\r\n0\r\n0\r\nK\xFChlwasser S\xFC"
      "d\r\n1\r\nTahoma\r\n255\r\n10\r\n1\r\n0\r\n0\r\n1\r\n"
      "Zulauf\r\n0\r\n0\t130\t60\t\r\n"
      "\r\n\r\nm3/h\r\nkg/h\r\nm3/h\r\nkg/m3\r\nmPa s\r\n10-6 m2/s\r\nbar\r\n\xB0"
      "C\r\n\xB0"
      "C\r\nNm3/h\r\n"
      "\r\n\r\n\r\nSI\r\n\r\n\r\n\r\n\r\n\r\nm/s\r\n\r\nm/s\r\n"
      "\r\n\r\nmm\r\n\r\n\r\n\r\nmbar\r\nbar\r\nbar\r\npsi\r\n";
  EXPECT_EQ(readBytes(file("leer.slf")), expected);
  EXPECT_EQ(app.Projekt.Caption, "leer.slf");
  EXPECT_FALSE(fs::exists(chartFileOf(file("leer.slf"))));  // no loss curve, no chart file
}

TEST_F(ProjectFiles, SavingTwiceWritesTheSameBytesAndAShorterProjectLeavesNoTail) {
  pipe("10");
  pipe("25");
  ASSERT_TRUE(saveProjectAs(app, file("a.slf")));
  const std::string first = readBytes(file("a.slf"));
  // 16 header lines, one page: caption, count, widths, 34 units and 34 lines per calculation
  EXPECT_EQ(fileLines(first).size(), 16u + 37 + 2 * 34);
  EXPECT_EQ(fileLines(first)[17], "2");
  EXPECT_EQ(fileLines(first)[18], "0\t130\t60\t150\t150\t");
  ASSERT_TRUE(Datei_speichern(app));
  EXPECT_EQ(readBytes(file("a.slf")), first);

  window().Gewaehlte_Spalte_loeschen(0);
  EXPECT_FALSE(app.Projekt_gespeichert);
  ASSERT_TRUE(Datei_speichern(app));
  EXPECT_TRUE(app.Projekt_gespeichert);
  const std::vector<std::string> lines = fileLines(readBytes(file("a.slf")));
  EXPECT_EQ(lines.size(), 16u + 37 + 34);
  EXPECT_EQ(lines[17], "1");
  EXPECT_EQ(lines.back(), formatShortest(*table().get_Spalte(0).cells[33].number, ','));
}

TEST_F(ProjectFiles, RowsTwelveToFourteenStandInTheFileAsDesignationNamePieces) {
  pipe("10");
  table().get_Spalte(0).cells[13] = txt("3");
  table().get_Spalte(0).cells[14] = txt("Leitung A");
  ASSERT_TRUE(saveProjectAs(app, file("b.slf")));
  const std::vector<std::string> lines = fileLines(readBytes(file("b.slf")));
  const std::size_t column = 16 + 3 + 34;  // first line of the calculation
  EXPECT_EQ(lines[column + 12], "Leitung A");
  EXPECT_EQ(lines[column + 13], "kreisf\xF6rmig");
  EXPECT_EQ(lines[column + 14], "3");
  ASSERT_TRUE(Datei_oeffnen(app, file("b.slf")));
  EXPECT_EQ(table().get_Spalte(0).cells[12].text, "kreisförmig");
  EXPECT_EQ(table().get_Spalte(0).cells[13].text, "3");
  EXPECT_EQ(table().get_Spalte(0).cells[14].text, "Leitung A");
}

// ---- Round trip

TEST_F(ProjectFiles, SaveNewOpenGivesTheSameProject) {
  pipe("10");
  choose(13, 1);
  form.Va1_Edit.Text = "-4,5";
  form.Berechnen(0);
  choose(1, 1);
  gas("100", "m3/h");
  form.Va1_Edit.Text = "50";
  form.Va2_Edit.Text = "7";
  form.Berechnen(0);
  window().moveColumn(2, 0);
  table().get_Spalte(1).width = 212;
  ResultTable& second = window().Tabelle_hinzufuegen();
  second.caption = "Rücklauf; 2. Strang";
  second.unitCells[33] = "mbar";
  second.fixedWidths = {0, 180, 75};
  pipe("3,25");
  ResultTable& third = window().Tabelle_hinzufuegen();  // an empty page stays empty
  third.caption = "Reserve";
  window().activePage = 0;
  window().Edit1.Text = "Heizzentrale Nord – Bauabschnitt 2";
  window().font = {"Courier New", 8421504, 11, false, true, true, false};
  ASSERT_TRUE(saveProjectAs(app, file("rund.slf")));
  const Snapshot saved = snapshot();
  const std::string bytes = readBytes(file("rund.slf"));

  ASSERT_TRUE(Leere_Tabelle_erstellen(app, false));
  EXPECT_TRUE(meldungen.messages().empty());  // nothing unsaved: no question
  EXPECT_EQ(window().pages.size(), 1u);
  EXPECT_EQ(app.Projekt.Dateiname_Projekt, "Unbenannt");
  EXPECT_FALSE(app.Projekt.isOpen());
  window().font = {};

  ASSERT_TRUE(Datei_oeffnen(app, file("rund.slf")));
  expectUnchanged(saved);
  EXPECT_EQ(window().activePage, 0);
  EXPECT_EQ(window().pages[1].columns.back().width, app.EinstellungenDlg.Normspaltenbreite1);  // the end column
  EXPECT_TRUE(meldungen.messages().empty());
  // the file comes back byte for byte; the dash of the title is its Windows-1252 byte
  EXPECT_EQ(projectFileBytes(app), bytes);
  EXPECT_NE(bytes.find("Heizzentrale Nord \x96 Bauabschnitt 2\r\n"), std::string::npos);
}

TEST_F(ProjectFiles, NumbersAreTheShortestExactTextWithTheDecimalComma) {
  Instance dot('D', '.');
  const Real third = 1.0L / 3;
  addColumn(dot.app.Ausgabeneu_Fenster.table(), {{2, num(36.5L)},
                                                 {5, num(third)},
                                                 {6, num(-1.25e-7L)},
                                                 {12, txt("kreisförmig")},
                                                 {14, txt("DN 1.5")},
                                                 {15, txt("Rohrdurchmesser D in in.: 4.5")},
                                                 {16, txt("Rohrlänge L in ft.: 10.25")},
                                                 {22, num(127323.95447L)}});
  ASSERT_TRUE(saveProjectAs(dot.app, file("punkt.slf")));
  const std::vector<std::string> lines = fileLines(readBytes(file("punkt.slf")));
  const std::size_t column = 16 + 3 + 34;
  EXPECT_EQ(lines[column + 2], "36,5");
  // 1/3 in 64 bits of mantissa: 20 digits are the fewest that read back (printf "%.20Lg", strtold)
  EXPECT_EQ(lines[column + 5], "0,33333333333333333334");
  EXPECT_EQ(lines[column + 6], "-1,25e-07");
  EXPECT_EQ(lines[column + 12], "DN 1.5");  // the designation is the user's text
  EXPECT_EQ(lines[column + 15], "Rohrdurchmesser D in in.: 4,5");
  EXPECT_EQ(lines[column + 16], "Rohrl\xE4nge L in ft.: 10,25");
  EXPECT_EQ(lines[column + 22], "127323,95447");

  ASSERT_TRUE(Datei_oeffnen(app, file("punkt.slf")));  // the fixture's program uses the comma
  const auto& cells = table().get_Spalte(0).cells;
  EXPECT_EQ(cells[2], num(36.5L));
  EXPECT_EQ(cells[5], num(third));  // exactly
  EXPECT_EQ(cells[6], num(-1.25e-7L));
  EXPECT_EQ(cells[14].text, "DN 1.5");
  EXPECT_EQ(cells[15].text, "Rohrdurchmesser D in in.: 4,5");
  EXPECT_EQ(cells[16].text, "Rohrlänge L in ft.: 10,25");

  ASSERT_TRUE(Datei_oeffnen(dot.app, file("punkt.slf")));  // and back with the point
  const auto& again = dot.app.Ausgabeneu_Fenster.table().get_Spalte(0).cells;
  EXPECT_EQ(again[15].text, "Rohrdurchmesser D in in.: 4.5");
  EXPECT_EQ(again[16].text, "Rohrlänge L in ft.: 10.25");
  EXPECT_EQ(again[5], num(third));
  EXPECT_FALSE(dot.app.Projekt.Nur_Lesen);
}

// ---- Words

TEST_F(ProjectFiles, ATableSavedInEnglishHoldsGermanWordsAndOpensInFrench) {
  struct Row {
    int row;
    std::string english, german, french;
  };
  // The label words of the language tables, each language written out.
  const Row rows[] = {
      {1, "liquid", "flüssig", "liquide"},
      {12, "circular", "kreisförmig", "circulaire"},
      {15, "Pipe diameter D in mm: 100.5", "Rohrdurchmesser D in mm: 100,5", "Diamètre de la conduite D en mm: 100,5"},
      {16, "Angle w in degree: 30", "Winkel w in Grad: 30", "Angle w en degré: 30"},
      {17, "Number of convolutions in convolutions: 12", "Anzahl der Wellen in Wellen: 12",
       "Nombre d'ondes en ondes: 12"},
      {18, "Element diameter D in in.: 4.5", "Elementdurchm. D in in.: 4,5", "Diamètre de l'élément D en in.: 4,5"},
      {19, "Vertical difference H in ft.: -3.5", "Höhendifferenz H in ft.: -3,5", "Dénivelé H en ft.: -3,5"},
      {20, "sharp", "scharf", "vive"},
      {25, "laminar", "laminar", "laminaire"},
  };
  Instance english('E', '.');
  ResultTable& page = english.app.Ausgabeneu_Fenster.table();
  addColumn(page, {{0, txt("Water")}, {2, num(1.5L)}, {13, txt("2")}});
  addColumn(page, {{1, txt("gaseous")},
                   {12, txt("Resistance coefficient")},
                   {15, txt("Resistance coefficient: 0.75")},
                   {25, txt("turbulent")}});
  for (const Row& r : rows) page.get_Spalte(0).cells[r.row] = txt(r.english);
  ASSERT_TRUE(saveProjectAs(english.app, file("en.slf")));

  const std::vector<std::string> lines = fileLines(readBytes(file("en.slf")));
  const std::size_t first = 16 + 3 + 34, second = first + 34;
  const auto fileRow = [](int row) { return row == 12 ? 13 : row; };  // the element name stands in file row 13
  for (const Row& r : rows) EXPECT_EQ(cp1252ToUtf8(lines[first + fileRow(r.row)]), r.german) << "row " << r.row;
  EXPECT_EQ(lines[first + 0], "Water");  // the medium name is the user's text
  EXPECT_EQ(lines[first + 2], "1,5");
  EXPECT_EQ(cp1252ToUtf8(lines[second + 1]), "gasförmig");
  EXPECT_EQ(lines[second + 13], "Resistance coefficient");  // no element of that name: stays
  EXPECT_EQ(lines[second + 15], "Widerstandsbeiwert: 0,75");
  EXPECT_EQ(lines[second + 25], "turbulent");

  Instance french('F', ',');
  ASSERT_TRUE(Datei_oeffnen(french.app, file("en.slf")));
  const ResultTable& opened = french.app.Ausgabeneu_Fenster.table();
  for (const Row& r : rows) EXPECT_EQ(opened.get_Spalte(0).cells[r.row].text, r.french) << "row " << r.row;
  EXPECT_EQ(opened.get_Spalte(0).cells[2], num(1.5L));
  EXPECT_EQ(opened.get_Spalte(1).cells[1].text, "gazeux");
  EXPECT_EQ(opened.get_Spalte(1).cells[15].text, "Coefficient de résistance: 0,75");
  EXPECT_EQ(opened.get_Spalte(1).cells[25].text, "turbulent");
}

TEST_F(ProjectFiles, TheOldNameZetaWertBecomesTheKnownCoefficientInACircularPipe) {
  // The repair's target is a name of the catalogue: element (12,1).
  ASSERT_NE(findElement(12, 1), nullptr);
  EXPECT_EQ(app.Sprache.Untergruppe_D_Name[12][1], "Berechnen mit bekanntem Zeta-Wert Kreisrohr");
  EXPECT_EQ(repairedElementName("Zeta-Wert", app.Sprache), "Berechnen mit bekanntem Zeta-Wert Kreisrohr");
  EXPECT_EQ(repairedElementName("Zeta-Wert Abzweig", app.Sprache), "Zeta-Wert Abzweig");

  StringGrid grid;
  grid.columns.resize(2);
  grid.columns[0][kFileElementRow] = "Zeta-Wert";
  grid.columns[1][kFileElementRow] = "Doppelgitter Rundrohr";  // the catalogue's own name
  repairOldElementNames(grid, app.Sprache);
  EXPECT_EQ(grid.columns[0][kFileElementRow], "Berechnen mit bekanntem Zeta-Wert Kreisrohr");
  // Files of format 6.0 would map this name to "Doppelgitter Kreisrohr", which is no catalogue name.
  Zwischentabelle_bearbeiten_nach_Oeffnen(grid, 6, app.Sprache);
  EXPECT_EQ(grid.columns[1][kFileElementRow], "Doppelgitter Rundrohr");

  Instance dutch('H', ',');
  std::vector<std::string> lines = {
      "7.0", "Diagramm:",        "0", "0", "0", "0", "0", "", "1", "Arial", "0", "9", "0", "0", "0", "0", "T",
      "1",   "0\t130\t60\t150\t"};
  lines.resize(lines.size() + 34 + 34);
  lines[16 + 3 + 34 + 13] = "Zeta-Wert";
  writeBytes(file("alt.slf"), crlf(lines));
  ASSERT_TRUE(Datei_oeffnen(dutch.app, file("alt.slf")));
  EXPECT_EQ(dutch.app.Ausgabeneu_Fenster.table().get_Spalte(0).cells[12].text, "Bekende zeta-waarde, ronde buis");
}

TEST(ProjectIntermediateTable, SavingTranslatesPhrasesBeforeSingleWordsAndOpeningWordByWord) {
  // Label fragments in the layout of the global words: mark, row, note, German, English, French, Dutch.
  LanguageTables Sprache;
  Sprache.GlobalVariablen = {"x\t1\t\tKante\tedge\tarête\trand",
                             "x\t2\t\tEinlaufkante scharf\tsharp edge\tarête vive\tscherpe rand",
                             "\t3\t\tscharf\tsharp\tvive\tscherp", "x\t4\t\tGrad\tdegree\tdegré\tgraad"};
  Sprache.Sprachkennung = 'E';
  StringGrid grid;
  grid.columns.resize(1);
  grid.columns[0][15] = "sharp edge";          // the phrase goes first, though "edge" stands above it
  grid.columns[0][16] = "edge sharp";          // "sharp" is no fragment: only "edge" is translated
  grid.columns[0][17] = "degree edge degree";  // every occurrence of a word
  Zwischentabelle_bearbeiten_vor_SpeichernV7(grid, Sprache, '.');
  EXPECT_EQ(grid.columns[0][15], "Einlaufkante scharf");
  EXPECT_EQ(grid.columns[0][16], "Kante sharp");
  EXPECT_EQ(grid.columns[0][17], "Grad Kante Grad");

  Sprache.Sprachkennung = 'F';
  Zwischentabelle_bearbeiten_nach_Oeffnen(grid, 7, Sprache);
  // Opening takes the first German word top down in each of its two passes, case-sensitive.
  EXPECT_EQ(grid.columns[0][15], "arête vive");
  EXPECT_EQ(grid.columns[0][16], "arête sharp");
  EXPECT_EQ(grid.columns[0][17], "degré arête degré");
}

TEST(ProjectIntermediateTable, TheDecimalMarkAndTheAbbreviationsItHits) {
  struct Case {
    int row;
    std::string before, points, commas;  // as saved with ".", after "." -> ",", after "," -> "."
  };
  const Case cases[] = {
      {2, "36.5", "36,5", "36.5"},
      {18, "Elementdurchm. D in mm: 1.5", "Elementdurchm. D in mm: 1,5", "Elementdurchm. D in mm: 1.5"},
      {15, "Rohrdurchmesser D in in.: 4.5", "Rohrdurchmesser D in in.: 4,5", "Rohrdurchmesser D in in.: 4.5"},
      {16, "Querschnittsfläche A in sq.yd.: 0.25", "Querschnittsfläche A in sq.yd.: 0,25",
       "Querschnittsfläche A in sq.yd.: 0.25"},
      {17, "Rohrlänge L in ft.: 10.5", "Rohrlänge L in ft.: 10,5", "Rohrlänge L in ft.: 10.5"},
      // The last repair drops the second point, as older files need it.
      {19, "Corrug. distance. in mm: 0.5", "Corrug. distance in mm: 0,5", "Corrug. distance in mm: 0.5"},
      {24, "1.5e+05", "1,5e+05", "1.5e+05"},
      {0, "Wasser 1.5", "Wasser 1.5", "Wasser 1.5"},  // text rows keep their points
      {12, "DN 1.5", "DN 1.5", "DN 1.5"},
      {25, "lam.inar", "lam.inar", "lam.inar"},
  };
  StringGrid grid;
  grid.columns.resize(1);
  for (const Case& c : cases) grid.columns[0][c.row] = c.before;
  Zwischentabelle_Dezimaltrennzeichen(grid, '.', ',');
  for (const Case& c : cases) EXPECT_EQ(grid.columns[0][c.row], c.points) << "row " << c.row;
  Zwischentabelle_Dezimaltrennzeichen(grid, ',', '.');
  for (const Case& c : cases) EXPECT_EQ(grid.columns[0][c.row], c.commas) << "row " << c.row;
}

// ---- Failures

TEST_F(ProjectFiles, AMalformedFileLeavesTheOpenProjectAsItWas) {
  // A sound project of one page with one calculation, written out line by line (lines counted from 1).
  std::vector<std::string> sound = {"7.0",
                                    "Diagramm:",
                                    "0",
                                    "0",
                                    "0",
                                    "0",
                                    "0",
                                    "Titel",
                                    "1",
                                    "Arial",
                                    "0",
                                    "9",
                                    "0",
                                    "0",
                                    "0",
                                    "0",
                                    "Tabelle 1",
                                    "1",
                                    "0\t130\t60\t150\t"};
  sound.resize(sound.size() + 34 + 34, "");
  sound[19 + 34 + 31] = "0,25";
  ASSERT_EQ(sound.size(), 87u);
  struct Case {
    std::string name;
    std::function<void(std::vector<std::string>&)> damage;
    std::string expected;  // line and problem as the message names them
  };
  const auto set = [](std::size_t line, std::string text) {
    return [=](std::vector<std::string>& l) { l[line - 1] = text; };
  };
  const Case cases[] = {
      {"format 6.0", set(1, "6.0"), "Zeile 1: Dieses Format der Projektdatei wird nicht gelesen: \"6.0\""},
      {"page count", set(9, "zwei"), "Zeile 9: Die Anzahl der Tabellen ist keine gültige Zahl: \"zwei\""},
      {"negative page count", set(9, "-1"), "Zeile 9: Die Anzahl der Tabellen"},
      {"more pages than blocks", set(9, "2"), "Zeile 88: Die Datei ist unvollständig"},
      {"font size", set(12, "neun"), "Zeile 12: Die Angabe zur Schrift"},
      {"column count", set(18, "1x"), "Zeile 18: Die Anzahl der Berechnungen ist keine gültige Zahl: \"1x\""},
      {"more columns than lines", set(18, "2"), "Zeile 88: Die Datei ist unvollständig"},
      {"a missing width", set(19, "0\t130\t60\t"), "Zeile 19: Die Spaltenbreiten"},
      {"a width that is no number", set(19, "0\t130\tsechzig\t150\t"), "Zeile 19: Die Spaltenbreiten"},
      {"missing lines", [](auto& l) { l.resize(80); }, "Zeile 81: Die Datei ist unvollständig"},
      {"empty file", [](auto& l) { l.clear(); }, "Zeile 1: Die Datei ist unvollständig"},
      {"lines after the last page", [](auto& l) { l.push_back("Tabelle 2"); }, "Zeile 88: Nach der letzten Tabelle"},
  };

  ASSERT_TRUE(Datei_oeffnen(app, [&] {
    writeBytes(file("gut.slf"), crlf(sound) + "\r\n");  // a trailing empty line is allowed
    return file("gut.slf");
  }()));
  EXPECT_EQ(table().get_Spalte(0).cells[31], num(0.25L));
  pipe("10");
  pipe("20");
  const int lockedDescriptor = app.Projekt.Projektstream.descriptor();
  const Snapshot before = snapshot();
  meldungen.clear();

  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    std::vector<std::string> lines = sound;
    c.damage(lines);
    writeBytes(file("kaputt.slf"), crlf(lines));
    EXPECT_FALSE(Datei_oeffnen(app, file("kaputt.slf")));
    ASSERT_EQ(messages().size(), 1u);
    EXPECT_EQ(messages()[0].kind, MessageKind::Error);
    EXPECT_EQ(messages()[0].caption, "Projektdatei");
    EXPECT_EQ(messages()[0].text.rfind(file("kaputt.slf").string() + "\n" + c.expected, 0), 0u) << messages()[0].text;
    EXPECT_NE(messages()[0].text.find("das geöffnete Projekt bleibt unverändert"), std::string::npos);
    expectUnchanged(before);
    EXPECT_EQ(app.Projekt.Projektstream.descriptor(), lockedDescriptor);
    EXPECT_TRUE(app.Projekt.Projektstream.locked());
    meldungen.clear();
  }

  EXPECT_FALSE(Datei_oeffnen(app, file("fehlt.slf")));
  EXPECT_EQ(onlyMessageText(), file("fehlt.slf").string() +
                                   "\nDie Datei wurde nicht gefunden.\nDas Projekt wurde nicht geöffnet; das geöffnete "
                                   "Projekt bleibt unverändert.");
  expectUnchanged(before);
}

TEST_F(ProjectFiles, ASecondInstanceOpensAnOpenProjectReadOnly) {
  pipe("10");
  ASSERT_TRUE(saveProjectAs(app, file("geteilt.slf")));
  const std::string bytes = readBytes(file("geteilt.slf"));
  {
    // Any other holder finds the file locked.
    const int fd = ::open(file("geteilt.slf").c_str(), O_RDONLY);
    EXPECT_NE(::flock(fd, LOCK_EX | LOCK_NB), 0);
    ::close(fd);
  }

  Instance other('D', ',');
  int dialogs = 0;
  other.app.Projekt.saveAsDialog = [&] { return ++dialogs, std::optional<fs::path>(); };
  ASSERT_TRUE(Datei_oeffnen(other.app, file("geteilt.slf")));
  EXPECT_TRUE(other.app.Projekt.Nur_Lesen);
  EXPECT_EQ(other.app.Projekt.Caption, "geteilt.slf [schreibgeschützt]");
  EXPECT_EQ(other.app.Ausgabeneu_Fenster.table().Anzahl_Berechnungen(), 1);
  EXPECT_FALSE(Datei_speichern(other.app));  // Save becomes Save As, which the user cancels here
  EXPECT_EQ(dialogs, 1);
  EXPECT_FALSE(saveProjectAs(other.app, file("geteilt.slf")));  // nor may Save As write over it
  ASSERT_FALSE(other.meldungen.messages().empty());
  EXPECT_NE(other.meldungen.messages().back().text.find("in einem anderen Programmfenster"), std::string::npos);
  EXPECT_EQ(readBytes(file("geteilt.slf")), bytes);

  // The project's own instance opens its file again and keeps it writable.
  ASSERT_TRUE(Datei_oeffnen(app, file("geteilt.slf")));
  EXPECT_FALSE(app.Projekt.Nur_Lesen);
  EXPECT_TRUE(app.Projekt.Projektstream.locked());

  // Once the first instance has closed the project, the file opens for writing.
  ASSERT_TRUE(closeProject(app));
  ASSERT_TRUE(Datei_oeffnen(other.app, file("geteilt.slf")));
  EXPECT_FALSE(other.app.Projekt.Nur_Lesen);
  EXPECT_EQ(other.app.Projekt.Caption, "geteilt.slf");
}

TEST_F(ProjectFiles, AWriteProtectedFileOpensReadOnly) {
  pipe("10");
  ASSERT_TRUE(saveProjectAs(app, file("fest.slf")));
  ASSERT_TRUE(Leere_Tabelle_erstellen(app, true));
  fs::permissions(file("fest.slf"), fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
  AsOrdinaryUser user;
  if (!user.active()) GTEST_SKIP() << "cannot drop the file access rights of root here";
  ASSERT_TRUE(Datei_oeffnen(app, file("fest.slf")));
  EXPECT_TRUE(app.Projekt.Nur_Lesen);
  EXPECT_EQ(app.Projekt.Caption, "fest.slf [schreibgeschützt]");
  EXPECT_EQ(table().Anzahl_Berechnungen(), 1);
}

TEST_F(ProjectFiles, ASaveThatCannotWriteLeavesTheOldFileWhole) {
  pipe("10");
  ASSERT_TRUE(saveProjectAs(app, file("alt.slf")));
  const std::string bytes = readBytes(file("alt.slf"));
  fs::permissions(file("alt.slf"), fs::perms::all);
  fs::permissions(folder, fs::perms::owner_read | fs::perms::owner_exec | fs::perms::group_read |
                              fs::perms::group_exec | fs::perms::others_read | fs::perms::others_exec);
  pipe("20");
  {
    AsOrdinaryUser user;
    if (!user.active()) GTEST_SKIP() << "cannot drop the file access rights of root here";
    EXPECT_FALSE(Datei_speichern(app));
  }
  EXPECT_EQ(readBytes(file("alt.slf")), bytes);
  EXPECT_EQ(std::distance(fs::directory_iterator(folder), fs::directory_iterator()), 1);  // no temporary file left
  EXPECT_EQ(onlyMessageText(), "Das Projekt konnte nicht gespeichert werden:\n" + file("alt.slf").string() +
                                   "\nKeine Berechtigung zum Schreiben in diesen Ordner.\nDie bisherige Datei ist "
                                   "unverändert.");
  EXPECT_FALSE(app.Projekt_gespeichert);
  EXPECT_TRUE(app.Projekt.Projektstream.locked());
}

TEST_F(ProjectFiles, ASaveThatFailsMidwayLeavesTheOldFileWhole) {
  pipe("10");
  ASSERT_TRUE(saveProjectAs(app, file("voll.slf")));
  const std::string bytes = readBytes(file("voll.slf"));
  for (int i = 0; i < 4; ++i) pipe("20");
  ASSERT_GT(projectFileBytes(app).size(), bytes.size() + 1000);
  // A file size limit just above the old file lets the new one fail as on a full disk.
  rlimit before{};
  ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
  const rlimit small{bytes.size() + 100, before.rlim_max};
  const auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);
  ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
  const bool saved = Datei_speichern(app);
  ::setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, oldHandler);

  EXPECT_FALSE(saved);
  EXPECT_EQ(readBytes(file("voll.slf")), bytes);
  EXPECT_EQ(std::distance(fs::directory_iterator(folder), fs::directory_iterator()), 1);  // no temporary file left
  EXPECT_EQ(onlyMessageText(), "Das Projekt konnte nicht gespeichert werden:\n" + file("voll.slf").string() +
                                   "\nSystemmeldung: " + std::strerror(EFBIG) +
                                   "\nDie bisherige Datei ist unverändert.");
  EXPECT_FALSE(app.Projekt_gespeichert);
}

// ---- Questions

TEST_F(ProjectFiles, NewAsksToSaveUnsavedCalculations) {
  struct Case {
    std::string name;
    bool saveFirst;
    Answer answer;
    bool dialogGivesName;
    bool asked, savedAsNew, emptied;
  };
  const Case cases[] = {
      {"saved project", true, Answer::Yes, true, false, false, true},
      {"no", false, Answer::No, true, true, false, true},
      {"yes", false, Answer::Yes, true, true, true, true},
      {"yes, dialog cancelled", false, Answer::Yes, false, true, false, false},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    ASSERT_TRUE(Leere_Tabelle_erstellen(app, true));
    std::error_code ignored;
    fs::remove(file("neu.slf"), ignored);
    pipe("10");
    if (c.saveFirst) {
      ASSERT_TRUE(saveProjectAs(app, file("vorher.slf")));
    }
    app.Projekt.saveAsDialog = [&] { return c.dialogGivesName ? std::optional(file("neu.slf")) : std::nullopt; };
    meldungen.clear();
    if (c.asked) meldungen.queueAnswer(c.answer);
    const std::string captionBefore = app.Projekt.Caption;
    EXPECT_EQ(Leere_Tabelle_erstellen(app, false), c.emptied);
    EXPECT_EQ(!messages().empty(), c.asked);
    if (c.asked && !messages().empty()) {
      EXPECT_EQ(messages()[0], (RecordedMessage{MessageKind::YesNo, word(8), word(203)}));
    }
    EXPECT_EQ(fs::exists(file("neu.slf")), c.savedAsNew);
    EXPECT_EQ(table().Anzahl_Berechnungen(), c.emptied ? 0 : 1);
    EXPECT_EQ(app.Projekt.Caption, c.emptied ? "Unbenannt" : captionBefore);
  }
}

TEST_F(ProjectFiles, SavingWithoutACalculationOnlyNotes) {
  int dialogs = 0;
  app.Projekt.saveAsDialog = [&] { return ++dialogs, std::optional(file("nichts.slf")); };
  EXPECT_FALSE(Datei_speichern(app));
  EXPECT_EQ(messages(), (std::vector<RecordedMessage>{{MessageKind::Information, word(78), word(201)}}));
  EXPECT_EQ(dialogs, 0);
  EXPECT_FALSE(fs::exists(file("nichts.slf")));

  pipe("10");  // with a calculation and no file yet, Save is Save As
  EXPECT_TRUE(Datei_speichern(app));
  EXPECT_EQ(dialogs, 1);
  EXPECT_EQ(app.RecentFiles.GetRecentFileName(0), file("nichts.slf").string());
}

}  // namespace
}  // namespace linecalc::test
