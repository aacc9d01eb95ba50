// The result table: formats, columns in the order of the pipe run, and the running sum.
#include <gtest/gtest.h>

#include "tables/number_format.h"
#include "workspace/app_fixture.h"

namespace linecalc::test {
namespace {

TEST(NumberFormat, FixedWithTheDecimalsSettingAndATrailingPointAtNone) {
  EXPECT_EQ(formatTableNumber(12.345L, 0, ','), "12,");
  EXPECT_EQ(formatTableNumber(12.345L, 2, ','), "12,35");  // 12.345 lies just above the half in binary
  EXPECT_EQ(formatTableNumber(-0.5L, 3, '.'), "-0.500");
  EXPECT_EQ(formatTableNumber(1234567.0L, 1, '.'), "1234567.0");  // no digit grouping
}

TEST(NumberFormat, ReynoldsNumbersInScientificForm) {
  EXPECT_EQ(formatScientific(127323.95447L, '.'), "1.273E+05");
  EXPECT_EQ(formatScientific(2319.9L, ','), "2,320E+03");
  EXPECT_EQ(formatScientific(99995, '.'), "1.000E+05");  // rounding carries into the exponent
  EXPECT_EQ(formatScientific(0.00123L, '.'), "1.230E-03");
  EXPECT_EQ(formatScientific(0, '.'), "0.000E+00");
}

class ResultTables : public AppTest {
 protected:
  ResultTable& table() { return app.Ausgabeneu_Fenster.table(); }
  const Cell& cell(int row, int column = 0) {
    return table().get_Spalte(column).cells.at(static_cast<std::size_t>(row));
  }
  double number(int row, int column = 0) {
    EXPECT_TRUE(cell(row, column).number) << "row " << row;
    return static_cast<double>(cell(row, column).number.value_or(0));
  }
  // A straight DN 100 pipe of the given length with 36 m3/h of water (1000 kg/m3, 1000 x 10-6 kg/(m s)).
  void pipe(const std::string& length) {
    choose(1, 1);
    form.Va1_Edit.Text = "100";
    form.Va2_Edit.Text = length;
    form.Eingabe_Volumenstrom.Text = "36";
    form.Eingabe_Dichte.Text = "1000";
    form.Eingabe_Viskositaet.Text = "1000";
    form.Berechnen(0);
  }
  void height(const std::string& h) {
    choose(13, 1);
    form.Va1_Edit.Text = h;
    form.Berechnen(0);
  }
};

TEST_F(ResultTables, ANewTableHasOnlyItsEmptyEndColumn) {
  EXPECT_EQ(table().Anzahl_Berechnungen(), 0);
  EXPECT_EQ(table().columns.size(), 1u);
  EXPECT_TRUE(table().statusText.empty());
  EXPECT_EQ(table().unitCells[2], "m3/h");
  EXPECT_EQ(table().unitCells[33], "bar");
  EXPECT_EQ(table().unitCells[12], "");
  EXPECT_EQ(app.Ausgabeneu_Fenster.rowTitles[7], "Kin.Viskosität");
  app.Ausgabeneu_Fenster.Neue_Summen_bilden();
  EXPECT_TRUE(table().get_Spalte(0).cells[33].empty());
}

TEST_F(ResultTables, ALiquidPipeFillsItsColumn) {
  pipe("10");
  ASSERT_EQ(table().Anzahl_Berechnungen(), 1);
  EXPECT_EQ(cell(0).text, "Wasser");
  EXPECT_EQ(cell(1).text, word(57));
  EXPECT_EQ(number(2), 36);
  EXPECT_EQ(number(3), 36000);
  EXPECT_TRUE(cell(4).empty());  // only the branch pieces have a branch flow
  EXPECT_TRUE(cell(8).empty());  // gas data only for a gas
  EXPECT_EQ(cell(12).text, "kreisförmig");
  EXPECT_EQ(cell(13).text, "1");
  EXPECT_EQ(cell(15).text, "Rohrdurchmesser D in mm: 100");
  EXPECT_EQ(cell(16).text, "Rohrlänge L in m: 10");
  EXPECT_TRUE(cell(17).empty());
  EXPECT_NEAR(number(21), 1.2732395447, 1e-10);
  EXPECT_NEAR(number(22), 127323.95447, 1e-5);
  EXPECT_EQ(cell(25).text, word(151));
  EXPECT_NEAR(number(26), 0.1, 1e-15);
  EXPECT_EQ(cell(27).number, state.Lambda);
  EXPECT_EQ(cell(31).number, state.Delta_P);
  EXPECT_EQ(cell(33).number, state.Delta_P);  // one column: the sum is its loss
  EXPECT_EQ(app.Ausgabeneu_Fenster.displayText(table(), 22, 0), "1,273E+05");
  EXPECT_EQ(table().statusText, app.Ausgabeneu_Fenster.displayText(table(), 33, 0) + " bar");
  EXPECT_EQ(table().get_Spalte(0).caption, "1");
  EXPECT_EQ(table().get_Spalte(1).caption, "2");
}

TEST_F(ResultTables, NumbersAreWrittenInTheUnitsOfTheirRows) {
  table().unitCells[2] = "l/s";
  table().unitCells[31] = "mbar";
  table().unitCells[21] = "km/h";
  table().unitCells[15] = "US";
  pipe("10");
  EXPECT_NEAR(number(2), 10, 1e-15);  // 36 m3/h
  EXPECT_NEAR(number(31), static_cast<double>(state.Delta_P) * 1000, 1e-12);
  EXPECT_NEAR(number(21), 1.2732395447 * 3.6, 1e-9);
  EXPECT_EQ(cell(15).text.rfind("Rohrdurchmesser D in in.: 3,93700787", 0), 0u) << cell(15).text;
  EXPECT_EQ(cell(16).text.rfind("Rohrlänge L in ft.: 32,808398", 0), 0u) << cell(16).text;
}

TEST_F(ResultTables, AGasWritesItsStateRows) {
  choose(1, 1);
  gas("100", "m3/h");
  form.Berechnen(0);
  EXPECT_EQ(cell(1).text, word(67));
  EXPECT_NEAR(number(8), 2, 1e-15);   // bar
  EXPECT_NEAR(number(9), 20, 1e-13);  // °C
  EXPECT_NEAR(number(11), 100 / 1.01325 / 293.15 * 2 * 273.15, 1e-10);
}

TEST_F(ResultTables, RowsAreWrittenOnlyForTheElementsThatHaveThem) {
  struct Case {
    int group, nr;
    std::vector<int> filled, empty;
  };
  const Case cases[] = {
      {2, 1, {20, 21, 22, 28}, {23, 24, 26, 27, 29, 30}},
      {9, 1, {23, 24}, {26, 27}},
      {10, 1, {23}, {24}},
      {5, 5, {4, 23, 24, 29, 30}, {26}},
      {4, 1, {26, 27}, {23}},
      {13, 1, {22, 28}, {21, 23}},
  };
  for (const auto& c : cases) {
    choose(c.group, c.nr);
    form.Va1_Edit.Text = "80";
    form.Edit3.Text = "0,5";
    form.Eingabe_Volumenstrom.Text = "40";
    const int column = table().Anzahl_Berechnungen();
    form.Berechnen(0);
    ASSERT_EQ(table().Anzahl_Berechnungen(), column + 1) << c.group << "," << c.nr;
    for (const int row : c.filled) EXPECT_FALSE(cell(row, column).empty()) << c.group << "," << c.nr << " row " << row;
    for (const int row : c.empty) EXPECT_TRUE(cell(row, column).empty()) << c.group << "," << c.nr << " row " << row;
  }
}

TEST_F(ResultTables, SumsRunInTheOrderOfThePipeRun) {
  pipe("10");
  const double a = number(32, 0);
  height("10");  // 1000 kg/m3 * 9.81 * 10 m = 0.981 bar
  height("-4");  // a falling line reduces the sum: -0.3924 bar
  EXPECT_NEAR(number(32, 1), 0.981, 1e-15);
  EXPECT_NEAR(number(33, 2), a + 0.981 - 0.3924, 1e-14);

  app.Ausgabeneu_Fenster.moveColumn(2, 0);  // the falling line first
  EXPECT_NEAR(number(33, 0), -0.3924, 1e-15);
  EXPECT_NEAR(number(33, 1), -0.3924 + a, 1e-14);
  EXPECT_NEAR(number(33, 2), a + 0.981 - 0.3924, 1e-14);  // the last sum stays
  EXPECT_EQ(table().get_Spalte(0).caption, "1");

  app.Ausgabeneu_Fenster.Gewaehlte_Spalte_loeschen(1);  // the pipe
  ASSERT_EQ(table().Anzahl_Berechnungen(), 2);
  EXPECT_NEAR(number(33, 1), 0.981 - 0.3924, 1e-14);

  table().unitCells[33] = "mbar";  // the sum in its own unit
  app.Ausgabeneu_Fenster.Neue_Summen_bilden();
  EXPECT_NEAR(number(33, 1), (0.981 - 0.3924) * 1000, 1e-11);
  EXPECT_FALSE(app.Ausgabeneu_Fenster.moveColumn(0, 2));  // the end column stays last
}

TEST_F(ResultTables, ARecalculatedColumnIsClearedAndWrittenInPlace) {
  pipe("10");
  choose(9, 2);
  form.Berechnen(0);
  ASSERT_FALSE(cell(23, 1).empty());
  app.Ausgabeneu_Fenster.recalculatedColumn = 1;
  app.TabelleAendern.Visible = true;
  pipe("20");  // the orifice's column now holds a pipe
  app.TabelleAendern.Visible = false;
  EXPECT_EQ(table().Anzahl_Berechnungen(), 2);
  EXPECT_EQ(cell(12, 1).text, "kreisförmig");
  EXPECT_TRUE(cell(23, 1).empty());
  EXPECT_NEAR(number(33, 1), number(32, 0) + number(32, 1), 1e-15);
}

TEST_F(ResultTables, AColumnGoesBackIntoThePanels) {
  choose(9, 7);
  form.Va1_Edit.Text = "150";
  form.ComboVar1.selectText("in.");  // inches in the panel, millimetres in the table
  form.Va2_Edit.Text = "2000";       // (d/D)^2 = 0.276
  form.RadioButton2.Checked = true;
  form.RadioButton1.Checked = false;
  form.Edit1.Text = "Messstrecke";
  form.VaAnz_Edit.Text = "2";
  form.Eingabe_Volumenstrom.Text = "5000";
  form.Berechnen(0);
  pipe("10");
  ASSERT_TRUE(app.Ausgabeneu_Fenster.Spalte_nach_oben_kopieren(0, 'A'));
  EXPECT_EQ(state.ElementGruppe, 9);
  EXPECT_EQ(state.ElementNr, 7);
  EXPECT_EQ(form.Va1_Edit.Text, "3810");  // 150 in. as the table holds it, in mm
  EXPECT_EQ(form.ComboVar1.text(), "mm");
  EXPECT_TRUE(form.RadioButton2.Checked);
  EXPECT_EQ(form.Edit1.Text, "Messstrecke");
  EXPECT_EQ(form.VaAnz_Edit.Text, "2");
  EXPECT_EQ(form.Eingabe_Volumenstrom.Text, "5000");
  EXPECT_EQ(form.ComboBox1.text(), "m3/h");
  // the same inputs give the same result
  form.Berechnen(0);
  EXPECT_EQ(cell(31, 2).number, cell(31, 0).number);
}

TEST_F(ResultTables, TheTableCheckReplaysEveryColumnAndRestoresThePanels) {
  pipe("10");
  choose(3, 1);
  form.Va1_Edit.Text = "50";
  form.Berechnen(0);
  pipe("5");
  form.Va2_Edit.Text = "7";
  const int before = table().Anzahl_Berechnungen();
  EXPECT_TRUE(form.Tabelle_pruefen());
  EXPECT_EQ(form.Va2_Edit.Text, "7");
  EXPECT_EQ(state.ElementGruppe, 1);
  EXPECT_EQ(table().Anzahl_Berechnungen(), before);  // nothing written
  EXPECT_FALSE(state.Pruefmodus);

  // A column that no longer passes: the check goes on and fails; its messages name the column.
  table().get_Spalte(1).cells[16].text = "Rohrdurchmesser D2 in mm: 40";
  meldungen.clear();
  EXPECT_FALSE(form.Tabelle_pruefen());
  ASSERT_FALSE(messages().empty());
  EXPECT_EQ(messages()[0].text.rfind(word(140) + ": 2\n", 0), 0u);
}

}  // namespace
}  // namespace linecalc::test
