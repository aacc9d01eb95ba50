// Reading the panels into internal units: what a user types, what the run makes of it, and where it stops.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "workspace/app_fixture.h"

namespace linecalc::test {
namespace {

constexpr long double kPi = std::numbers::pi_v<long double>;

class RunInput : public AppTest {};

TEST_F(RunInput, APipeTypedAsAUserWouldGivesVelocityAndReynoldsNumber) {
  choose(1, 1);
  form.Va1_Edit.Text = "100";
  form.Va2_Edit.Text = "10";
  water("36");
  form.Eingabe_Dichte.Text = "1000";
  form.Eingabe_Viskositaet.Text = "1000";
  form.Berechnen(0);
  EXPECT_TRUE(messages().empty());
  EXPECT_TRUE(state.Werteingabe);
  EXPECT_TRUE(state.Bereich_i_O);
  // w = 36 * 4 * 10000 / (pi * 100 * 100 * 36) = 1.2732395447 m/s; Re = w * 1000 * 100 * 1000 / 1000
  EXPECT_NEAR(static_cast<double>(state.w), 1.2732395447, 1e-10);
  EXPECT_NEAR(static_cast<double>(state.Re), 127323.95447, 1e-5);
  EXPECT_EQ(state.Massenstrom, 36000);
  EXPECT_FALSE(app.Projekt_gespeichert);  // a column was asked for
}

TEST_F(RunInput, UnitsOfTheRowsTheMediumAndTheRoughnessAreConverted) {
  choose(1, 1);
  form.Va1_Edit.Text = "4";
  form.ComboVar1.selectText("in.");
  form.Va2_Edit.Text = "32,8084";
  form.ComboVar2.selectText("ft.");
  form.Edit2.Text = "0,004";
  form.ComboBox6.selectText("in.");
  form.ComboBox4.ItemIndex = 1;  // mass flow
  form.Einheiten_Volumenstrom_aktualisieren();
  form.ComboBox1.selectText("kg/s");
  form.Eingabe_Volumenstrom.Text = "10";
  form.Eingabe_Dichte.Text = "1";
  form.ComboBox2.selectText("kg/l");
  form.ComboBox5.ItemIndex = 1;  // kinematic viscosity
  form.Einheiten_Visko_aktualisieren();
  form.ComboBox3.selectText("cSt");
  form.Eingabe_Viskositaet.Text = "1,5";
  form.Berechnen(0);
  ASSERT_TRUE(messages().empty()) << messages().front().text;
  EXPECT_NEAR(static_cast<double>(state.Va1), 101.6, 1e-12);
  EXPECT_NEAR(static_cast<double>(state.Va2), 10.0, 1e-5);
  EXPECT_NEAR(static_cast<double>(state.Rauhigkeit), 0.1016, 1e-14);
  EXPECT_EQ(state.Dichte, 1000);
  EXPECT_EQ(state.Massenstrom, 36000);  // 10 kg/s
  EXPECT_EQ(state.Volumenstrom, 36);
  EXPECT_NEAR(static_cast<double>(state.DynViskositaet), 1500, 1e-9);  // 1.5 mm2/s * 1000 kg/m3
}

TEST_F(RunInput, AFreeSectionIsReadInItsSectionUnit) {
  choose(1, 6);
  form.Va1_Edit.Text = "100";
  form.ComboVar1.selectText("cm2");
  form.Va2_Edit.Text = "0,4";
  form.Va3_Edit.Text = "1";
  water("3,6");
  form.Berechnen(0);
  ASSERT_TRUE(messages().empty());
  EXPECT_NEAR(static_cast<double>(state.Va1), 0.01, 1e-18);
  EXPECT_NEAR(static_cast<double>(state.w), 0.1, 1e-15);       // 3.6 m3/h through 0.01 m2
  EXPECT_NEAR(static_cast<double>(state.d_hydr), 100, 1e-12);  // 4 A / U = 0.1 m
}

TEST_F(RunInput, AHiddenRowWithABadTextStopsTheRunWithThatRowsLabel) {
  choose(1, 2);  // three rows: the length row 3 is labelled "Rohrlänge L:"
  choose(1, 1);  // two rows; row 3 is hidden but keeps its text and label
  form.Va3_Edit.Text = "abc";
  state.w = 7;
  form.Berechnen(0);
  ASSERT_EQ(messages().size(), 1u);
  EXPECT_EQ(messages()[0].caption, word(197));
  EXPECT_EQ(messages()[0].text, word(196) + "\n\"Rohrlänge L:\"!");
  EXPECT_EQ(form.Fokus, &form.Va3_Edit);
  EXPECT_FALSE(state.Werteingabe);
  EXPECT_EQ(state.w, 7);  // nothing computed
  EXPECT_TRUE(app.Projekt_gespeichert);
}

TEST_F(RunInput, PiecesAreRoundedHalfAwayFromZero) {
  choose(1, 1);
  form.VaAnz_Edit.Text = "2,5";
  form.Berechnen(0);
  EXPECT_EQ(state.VaAnz, 3);
  EXPECT_TRUE(messages().empty());

  form.VaAnz_Edit.Text = "-2,5";
  form.Berechnen(0);
  EXPECT_EQ(state.VaAnz, -3);
  EXPECT_FALSE(state.Bereich_i_O);  // fewer than zero pieces are refused on the pieces label
  EXPECT_NE(onlyMessageText().find(">> " + form.VaAnz_Titel.Caption + " << "), std::string::npos);

  meldungen.clear();
  form.VaAnz_Edit.Text = "";
  form.Berechnen(0);
  EXPECT_EQ(state.VaAnz, 0);
  EXPECT_EQ(form.VaAnz_Edit.Text, "0");  // an empty field shows as zero
  EXPECT_TRUE(messages().empty());
}

TEST_F(RunInput, AnEmptyDiameterIsNoParseErrorButARangeFailure) {
  choose(1, 1);
  form.Va1_Edit.Text = "";
  form.Berechnen(0);
  EXPECT_TRUE(state.Werteingabe);
  EXPECT_FALSE(state.Bereich_i_O);
  EXPECT_NE(onlyMessageText().find(">> 0 << "), std::string::npos);
}

TEST_F(RunInput, ALiquidHasNoStandardVolumeFlow) {
  choose(1, 1);
  form.ComboBox4.ItemIndex = 2;
  form.Einheiten_Volumenstrom_aktualisieren();
  form.Eingabe_Dichte.Text = "xyz";  // would fail later: the standard unit is refused first
  form.Berechnen(0);
  EXPECT_EQ(onlyMessageText(), form.words.SV_Werteingabe_Foerdermedium1);
  EXPECT_EQ(form.Fokus, &form.ComboBox1);
}

TEST_F(RunInput, TheBranchFlowMustBePositiveAndSmallerThanTheMainFlow) {
  choose(5, 5);
  EXPECT_TRUE(form.Edit3.Enabled);
  EXPECT_EQ(form.Label7.Caption, "m3/h");
  water("10");
  struct Case {
    const char* branch;
    bool accepted;
  };
  for (const Case c : {Case{"10", false}, Case{"10,0001", false}, Case{"9,999", true}, Case{"0", false},
                       Case{"-1", false}, Case{"x", false}}) {
    meldungen.clear();
    form.Edit3.Text = c.branch;
    form.Berechnen(0);
    EXPECT_EQ(state.Werteingabe, c.accepted) << c.branch;
  }
  form.Edit3.Text = "4";
  form.Berechnen(0);
  EXPECT_EQ(state.Volumenstrom_Z, 4);
  // w2 in the branch D2 = 50 mm with 4 m3/h
  EXPECT_NEAR(static_cast<double>(state.w2), 4 * 4 * 10000 / (kPi * 50 * 50 * 36), 1e-12);
}

TEST_F(RunInput, AGasInOperatingUnitsGetsItsStandardFlowAndTheReverse) {
  choose(1, 1);
  gas("100", "m3/h");  // 2 bar, 20 °C
  form.Berechnen(0);
  ASSERT_TRUE(messages().empty()) << messages().front().text;
  EXPECT_EQ(state.Volumenstrom, 100);
  // 100 m3/h at 2 bar and 293.15 K: 100 / 1.01325 / 293.15 * 2 * 273.15 Nm3/h
  EXPECT_NEAR(static_cast<double>(state.Normvolumenstrom), 100 / 1.01325 / 293.15 * 2 * 273.15, 1e-10);
  EXPECT_NEAR(static_cast<double>(state.Massenstrom), 120, 1e-12);

  gas("100", "Nm3/h");
  form.Berechnen(0);
  ASSERT_TRUE(messages().empty());
  EXPECT_EQ(state.Normvolumenstrom, 100);
  const double operating = 100 * 1.01325 * 293.15 / 2 / 273.15;
  EXPECT_NEAR(static_cast<double>(state.Volumenstrom), operating, 1e-10);
  EXPECT_NEAR(static_cast<double>(state.Massenstrom), 1.2 * operating, 1e-10);
}

TEST_F(RunInput, AGasNeedsItsThreeStateFields) {
  choose(1, 1);
  gas("100", "m3/h");
  form.Edit_EingangstemperaturN.Text = "";
  form.Berechnen(0);
  EXPECT_EQ(onlyMessageText(), word(196) + "\n\"" + form.Label5N.Caption + "\"!");
  EXPECT_EQ(form.Fokus, &form.Edit_EingangstemperaturN);
}

TEST_F(RunInput, SeveralPiecesOfAGasElement) {
  choose(1, 1);
  gas("100", "m3/h");
  form.VaAnz_Edit.Text = "2";
  app.EinstellungenDlg.RadioGroup1 = 1;  // the gas state follows the line: refused
  form.Berechnen(0);
  EXPECT_EQ(onlyMessageText(), form.words.SV_Diverse[14]);
  EXPECT_FALSE(state.Werteingabe);

  meldungen.clear();
  app.EinstellungenDlg.RadioGroup1 = 0;  // the note, and the run goes on
  form.Berechnen(0);
  ASSERT_EQ(messages().size(), 1u);
  EXPECT_EQ(messages()[0].kind, MessageKind::Information);
  EXPECT_EQ(messages()[0].text, app.GaswarnungDlg.Text.Caption);
  EXPECT_TRUE(state.Werteingabe);
  EXPECT_TRUE(state.Bereich_i_O);

  meldungen.clear();
  app.KennlinieDlg.Visible = true;  // not a normal run: no note
  form.Berechnen(0);
  EXPECT_TRUE(messages().empty());
}

TEST_F(RunInput, AGasTemperatureAtOrBelowAbsoluteZeroIsRefused) {
  choose(1, 1);
  gas("100", "m3/h");
  form.Edit_AusgangstemperaturN.Text = "-273,15";
  form.Berechnen(0);
  EXPECT_FALSE(state.Bereich_i_O);
  EXPECT_NE(onlyMessageText().find(form.Label6N.Caption), std::string::npos);
}

TEST_F(RunInput, AColumnIsWrittenOnlyByANormalRun) {
  choose(1, 1);
  app.KennlinieDlg.Visible = true;
  form.Berechnen(0);
  EXPECT_TRUE(app.Projekt_gespeichert);
  EXPECT_FALSE(app.KennlinieDlg.diagrammAktuell);
  app.KennlinieDlg.Visible = false;
  state.Pruefmodus = true;
  form.Berechnen(0);
  EXPECT_TRUE(app.Projekt_gespeichert);
  state.Pruefmodus = false;
  form.Berechnen(0);
  EXPECT_FALSE(app.Projekt_gespeichert);
}

}  // namespace
}  // namespace linecalc::test
