// Switching the units of a result table: single rows, the element rows between SI and US, the whole
// table from the settings and on opening a project.
#include <gtest/gtest.h>
#include <stdlib.h>

#include <cmath>
#include <filesystem>

#include "base/numbers.h"
#include "project/project_file.h"
#include "workspace/app_fixture.h"

namespace linecalc::test {
namespace {

namespace fs = std::filesystem;

class UnitSwitch : public AppTest {
 protected:
  TAusgabeneu_Fenster& window() { return app.Ausgabeneu_Fenster; }
  ResultTable& table() { return window().table(); }
  const Cell& cell(int row, int column = 0) {
    return table().get_Spalte(column).cells.at(static_cast<std::size_t>(row));
  }
  Real number(int row, int column = 0) {
    EXPECT_TRUE(cell(row, column).number) << "row " << row << " column " << column;
    return cell(row, column).number.value_or(0);
  }
  // The user picks another unit in a row's unit cell.
  void pickUnit(int row, const std::string& unit) {
    const std::string old = table().unitCells.at(static_cast<std::size_t>(row));
    table().unitCells.at(static_cast<std::size_t>(row)) = unit;
    window().Zeile_Daten_umrechnen(row, old);
  }
  void pickSystem(const std::string& system) {
    table().unitCells[15] = system;
    window().Zeile_Elemente_umrechnen();
  }
  // A straight DN 100 pipe of 10 m with 36 m3/h of water at 1000 kg/m3 and 1000 x 10-6 kg/(m s):
  // w = 0.01 m3/s / (pi/4 * 0.1^2 m2) = 1.2732395 m/s, roughness 0.1 mm.
  void pipe() {
    choose(1, 1);
    form.Va1_Edit.Text = "100";
    form.Va2_Edit.Text = "10";
    form.Eingabe_Volumenstrom.Text = "36";
    form.Eingabe_Dichte.Text = "1000";
    form.Eingabe_Viskositaet.Text = "1000";
    calculate();
  }
  void calculate() {
    const int before = table().Anzahl_Berechnungen();
    form.Berechnen(0);
    ASSERT_EQ(table().Anzahl_Berechnungen(), before + 1) << state.ElementGruppe << "," << state.ElementNr;
  }
};

void expectRelative(Real actual, Real expected, Real tolerance, const std::string& what) {
  EXPECT_LE(std::fabs(actual - expected), tolerance * std::fabs(expected))
      << what << ": " << static_cast<double>(actual) << " instead of " << static_cast<double>(expected);
}

// The unit and the number of an element row "label in unit: value".
struct ElementText {
  std::string unit;
  Real value = 0;
};
ElementText elementText(const std::string& text) {
  const std::size_t colon = text.rfind(": ");
  const std::size_t in = text.rfind(" in ", colon);
  bool readable = true;
  const Real value = Zahl_lesen(text.substr(colon + 2), readable);
  EXPECT_TRUE(readable && colon != std::string::npos && in != std::string::npos) << text;
  return {text.substr(in + 4, colon - in - 4), value};
}

TEST_F(UnitSwitch, ARowTakesTheNewUnitOfItsQuantity) {
  struct Case {
    int row;
    std::string unit;
    Real expected;  // by hand from the pipe's values
  };
  const Case cases[] = {
      {2, "l/s", 10},                                     // 36 m3/h = 36000 l / 3600 s
      {3, "kg/s", 10},                                    // 36000 kg/h
      {5, "kg/l", 1},                                     // 1000 kg/m3
      {6, "mPas", 1},                                     // 1000e-6 Pa s
      {7, "mm2/s", 1},                                    // 1e-3 Pa s / 1000 kg/m3 = 1e-6 m2/s
      {21, "km/h", 4 / 3.14159265358979323846L * 3.6L},  // 4/pi m/s; 1 m/s = 3.6 km/h
      {26, "in.", 0.1L / 25.4L},                          // 1 in = 25.4 mm
  };
  pipe();
  app.Projekt_gespeichert = true;
  for (const Case& c : cases) {
    pickUnit(c.row, c.unit);
    EXPECT_EQ(table().unitCells.at(static_cast<std::size_t>(c.row)), c.unit);
    expectRelative(number(c.row), c.expected, 1e-15L, "row " + std::to_string(c.row));
  }
  EXPECT_FALSE(app.Projekt_gespeichert);
}

TEST_F(UnitSwitch, MbarAndBackRestoresTheFullNumberWhateverTheDecimalsShown) {
  app.EinstellungenDlg.Edit2.Text = "0";
  pipe();
  const Real bar = number(31);
  pickUnit(31, "mbar");
  expectRelative(number(31), bar * 1000, 1e-15L, "in mbar");  // 1 bar = 1000 mbar
  EXPECT_EQ(window().displayText(table(), 31, 0).back(), ',');  // shown without decimals
  pickUnit(31, "bar");
  expectRelative(number(31), bar, 1e-15L, "back in bar");
  EXPECT_EQ(window().displayText(table(), 31, 0), "0,");  // a loss below half a bar shows as 0
}

TEST_F(UnitSwitch, TheSameUnitOrAnUnknownOneChangesNothing) {
  pipe();
  pipe();
  app.Projekt_gespeichert = true;
  const std::vector<CalcColumn> before = table().columns;
  window().Tabellen_Einheiten_umrechnen();  // the settings still hold the table's units
  for (std::size_t i = 0; i < before.size(); ++i) EXPECT_TRUE(table().columns[i].cells == before[i].cells) << i;

  table().get_Spalte(1).cells[33].number = 7;  // sums formed again would not leave the 7
  const std::vector<CalcColumn> marked = table().columns;
  struct Case {
    int row;
    std::string unit;
  };
  const Case cases[] = {{32, "bar"}, {33, "bar"}, {2, "m3/h"}, {31, "kg/h"}, {9, "Elle"}};
  for (const Case& c : cases) {
    const std::string old = table().unitCells.at(static_cast<std::size_t>(c.row));
    pickUnit(c.row, c.unit);
    EXPECT_EQ(table().unitCells.at(static_cast<std::size_t>(c.row)), old) << c.row << " " << c.unit;
  }
  for (std::size_t i = 0; i < marked.size(); ++i) EXPECT_TRUE(table().columns[i].cells == marked[i].cells) << i;
  EXPECT_TRUE(app.Projekt_gespeichert);
}

TEST_F(UnitSwitch, TheLossRowChangesItsNumbersAndTheSumsKeepTheirs) {
  pipe();
  pipe();
  const Real sum0 = number(33, 0), sum1 = number(33, 1), loss = number(32, 1);
  const std::string status = table().statusText;
  pickUnit(32, "mbar");
  expectRelative(number(32, 1), loss * 1000, 1e-15L, "loss in mbar");
  EXPECT_EQ(table().unitCells[33], "bar");
  expectRelative(number(33, 0), sum0, 1e-15L, "first sum");
  expectRelative(number(33, 1), sum1, 1e-15L, "second sum");
  EXPECT_EQ(table().statusText, status);
  pickUnit(33, "Pa");  // the sums are formed again in their new unit: 1 bar = 1e5 Pa
  expectRelative(number(33, 1), sum1 * 100000, 1e-15L, "sum in Pa");
  EXPECT_EQ(table().statusText.substr(table().statusText.size() - 3), " Pa");
}

TEST_F(UnitSwitch, ElementRowsAndRoughnessFollowTheUnitSystemAndOtherUnitsStay) {
  // One column each, with the panel's defaults: (1,1) D 100 mm, L 1 m; (4,2) D, 90 degrees;
  // (10,1) D, 40 %; (12,1) D, coefficient 2; (1,6) A 0.01 m2, 0.4 m, L 1 m.
  for (const auto& [group, nr] : {std::pair{1, 1}, {4, 2}, {10, 1}, {12, 1}, {1, 6}}) {
    choose(group, nr);
    water("36");
    calculate();
  }
  struct Case {
    int column, row;
    std::string usUnit;  // empty: the row stays as written
    Real usValue;        // by hand: 1 in = 25.4 mm, 1 ft = 0.3048 m, 1 yd2 = 0.8361274 m2
  };
  const Case cases[] = {
      {0, 15, "in.", 100 / 25.4L},         {0, 16, "ft.", 1 / 0.3048L},
      {4, 15, "yd2", 0.01L / 0.8361274L},  {4, 16, "ft.", 0.4L / 0.3048L},
      {4, 17, "ft.", 1 / 0.3048L},         {1, 16, "", 0},  // the angle
      {2, 16, "", 0},                      // the free area in percent
      {3, 16, "", 0},                      // the loss coefficient, without a unit
  };
  const ResultTable written = table();
  const auto check = [&](bool us) {
    EXPECT_EQ(table().unitCells[26], us ? "in." : "mm");  // the pipe's roughness of 0.1 mm follows
    expectRelative(number(26), us ? 0.1L / 25.4L : 0.1L, 1e-15L, "roughness");
    for (const Case& c : cases) {
      const auto row = static_cast<std::size_t>(c.row);
      const std::string& now = table().get_Spalte(c.column).cells.at(row).text;
      const std::string& before = written.get_Spalte(c.column).cells.at(row).text;
      if (c.usUnit.empty()) {
        EXPECT_EQ(now, before);
        continue;
      }
      const ElementText expected = us ? ElementText{c.usUnit, c.usValue} : elementText(before);
      const ElementText actual = elementText(now);
      EXPECT_EQ(actual.unit, expected.unit) << now;
      expectRelative(actual.value, expected.value, 1e-15L, now);
    }
  };
  pickSystem("US");
  check(true);
  pickSystem("SI");
  check(false);
}

TEST_F(UnitSwitch, TheSettingsBringTheOpenTableToTheirUnitsAndLeaveEmptyRowsEmpty) {
  pipe();
  choose(1, 1);
  gas("100", "m3/h");  // 2 bar, 20 °C
  calculate();
  const Real loss = number(32, 1), sum = number(33, 1);
  app.EinstellungenDlg.FormShow();
  app.EinstellungenDlg.Button2Click();  // the US set
  ASSERT_TRUE(app.EinstellungenDlg.OKBtnClick());

  struct Case {
    int row;
    std::string unit;
    Real value;  // of the gas column, by hand
    Real tolerance;
  };
  const Case cases[] = {
      // 100 m3/h = 100 / 60 / 0.003785411784 gal/min; the list's gallon is 1/42 of 0.158987 m3
      {2, "gal/min", 100 / 60.0L / 0.003785411784L, 1e-5L},
      {8, "psia", 2 / 0.0689475729L, 1e-6L},  // 1 psi = 6894.75729 Pa
      {9, "°F", 68, 3e-4L},                   // 20 °C = 68 °F; the list's step is 0.55556 for 5/9
      {32, "psi", loss / 0.0689475729L, 1e-6L},
      {33, "psi", sum / 0.0689475729L, 1e-6L},
      {31, "lbw./sq.ft.", loss / 4.788025898e-4L, 1e-6L},  // 1 lbf/ft2 = 47.88025898 Pa
  };
  for (const Case& c : cases) {
    EXPECT_EQ(table().unitCells.at(static_cast<std::size_t>(c.row)), c.unit);
    expectRelative(number(c.row, 1), c.value, c.tolerance, c.unit);
  }
  for (const int row : {4, 8, 9, 10, 11, 23, 30}) EXPECT_TRUE(cell(row, 0).empty()) << "row " << row;
  EXPECT_EQ(table().unitCells[15], "US");
  EXPECT_EQ(elementText(cell(15, 0).text).unit, "in.");
  EXPECT_FALSE(app.Projekt_gespeichert);
}

class OpeningWithUnits : public UnitSwitch {
 protected:
  fs::path folder;

  void SetUp() override {
    UnitSwitch::SetUp();
    std::string pattern = (fs::temp_directory_path() / "linecalc-units-XXXXXX").string();
    ASSERT_NE(::mkdtemp(pattern.data()), nullptr);
    folder = pattern;
  }
  void TearDown() override {
    std::error_code ignored;
    fs::remove_all(folder, ignored);
  }
};

TEST_F(OpeningWithUnits, EveryPageIsConvertedOnceWhenTheSettingsAskForIt) {
  pipe();
  window().Tabelle_hinzufuegen();
  pipe();
  const Real loss = number(31);
  ASSERT_TRUE(saveProjectAs(app, folder / "lauf.slf"));
  ASSERT_TRUE(app.EinstellungenDlg.combo_Stromlauf1.selectText("mbar"));
  for (const bool convert : {false, true}) {
    app.EinstellungenDlg.CheckBox2.Checked = convert;
    ASSERT_TRUE(Datei_oeffnen(app, folder / "lauf.slf"));
    ASSERT_EQ(window().pages.size(), 2u);
    for (int page = 1; page >= 0; --page) {
      window().activePage = page;
      EXPECT_EQ(table().unitCells[31], convert ? "mbar" : "bar");
      expectRelative(number(31), convert ? loss * 1000 : loss, 1e-15L, "page " + std::to_string(page));
    }
    EXPECT_TRUE(app.Projekt_gespeichert);
  }
}

}  // namespace
}  // namespace linecalc::test
