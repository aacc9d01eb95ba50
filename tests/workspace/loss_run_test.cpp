// Whole runs through the loss step: every element in both regimes, the gas limit, pieces and notes.
#include <gtest/gtest.h>

#include <cmath>

#include "workspace/app_fixture.h"

namespace linecalc::test {
namespace {

class LossRun : public AppTest {
 protected:
  bool errorShown() const {
    for (const auto& m : messages()) {
      if (m.kind == MessageKind::Error) return true;
    }
    return false;
  }
};

// With the catalogue's defaults (and 80 mm where a row keeps its input), water-like media of 1000 kg/m3:
// 100 m3/h at 1000 x 10-6 kg/(m s) is turbulent everywhere, 1 m3/h at 1e6 laminar everywhere.
TEST_F(LossRun, EveryElementComputesInBothRegimes) {
  for (const auto& element : allElements()) {
    for (const bool laminar : {false, true}) {
      choose(element.group, element.nr);
      for (int row = 1; row <= kPanelRows; ++row) {
        if (element.rows[static_cast<std::size_t>(row - 1)].keep) form.vaEdit(row).Text = "80";
      }
      form.Edit3.Text = laminar ? "0,4" : "40";
      form.Eingabe_Volumenstrom.Text = laminar ? "1" : "100";
      form.Eingabe_Dichte.Text = "1000";
      form.Eingabe_Viskositaet.Text = laminar ? "1000000" : "1000";
      meldungen.clear();
      state.Delta_P = -99;
      form.Berechnen(0);
      const std::string where =
          std::to_string(element.group) + "," + std::to_string(element.nr) + (laminar ? " laminar" : " turbulent");
      EXPECT_FALSE(errorShown()) << where << ": " << messages().front().text;
      EXPECT_TRUE(std::isfinite(state.Delta_P)) << where;
      EXPECT_NE(state.Delta_P, -99) << where << " " << state.Werteingabe << state.Bereich_i_O;
      if (element.group != 13) {
        EXPECT_EQ(state.laminar, laminar) << where;
      }
    }
  }
}

TEST_F(LossRun, PiecesMultiplyTheLossButNotTheBranchLoss) {
  choose(5, 5);
  form.Edit3.Text = "0,4";
  form.Berechnen(0);
  const Real one = state.Delta_P, branch = state.Delta_P_Z;
  form.VaAnz_Edit.Text = "3";
  form.Berechnen(0);
  EXPECT_NEAR(static_cast<double>(state.Delta_P), 3 * static_cast<double>(one), 1e-18);
  EXPECT_EQ(state.Delta_P_Z, branch);
}

TEST_F(LossRun, AGasLossAboveHalfTheInletPressureStopsTheRun) {
  choose(1, 1);
  gas("2000", "m3/h");  // 2000 m3/h of gas through DN 100 over 1 m at 2 bar
  form.Va2_Edit.Text = "1000";
  form.Berechnen(0);
  EXPECT_TRUE(state.gasdruckzuhoch);
  ASSERT_EQ(messages().size(), 1u);
  EXPECT_EQ(messages()[0].text, form.Statisch_Element_Name1.Caption + ":\n" + app.Ausgabeneu_Fenster.dp_zu_gross_Gase);
  EXPECT_TRUE(app.Projekt_gespeichert);  // no column
  EXPECT_TRUE(app.TabelleAendern.Berechnung_abbrechen);
  EXPECT_TRUE(app.KennlinieDlg.Berechnung_abbrechen);

  form.Va2_Edit.Text = "1";  // the next run starts afresh
  form.Berechnen(0);
  EXPECT_FALSE(state.gasdruckzuhoch);
  EXPECT_FALSE(app.Projekt_gespeichert);
}

TEST_F(LossRun, TheLaminarWarningOfCriticalElementsIsShownOnlyInANormalRun) {
  choose(9, 2);
  form.Eingabe_Viskositaet.Text = "1000000";
  form.Berechnen(0);
  ASSERT_EQ(messages().size(), 1u);
  EXPECT_EQ(messages()[0].text, app.Ausgabeneu_Fenster.SV_Laminar_Zeta_Turbulent);
  for (bool* hides : {&app.KennlinieDlg.Visible, &state.Pruefmodus, &app.TabelleAendern.Visible}) {
    meldungen.clear();
    *hides = true;
    form.Berechnen(0);
    EXPECT_TRUE(messages().empty());
    *hides = false;
  }
}

TEST_F(LossRun, RangeNotesOfRestrictionsAreHiddenWhileTheCurveIsDrawn) {
  choose(9, 2);
  form.Eingabe_Volumenstrom.Text = "10";  // Re = 35000 in DN 100: below the orifice's 100000
  form.Berechnen(0);
  ASSERT_EQ(messages().size(), 1u);
  EXPECT_EQ(messages()[0].text, app.Ausgabeneu_Fenster.SV_Bereich[2]);
  meldungen.clear();
  app.KennlinieDlg.Visible = true;
  form.Berechnen(0);
  EXPECT_TRUE(messages().empty());
}

TEST_F(LossRun, InputsWithoutAValueStopTheRunAndNameTheElementAndItsInputs) {
  choose(4, 4);
  form.Va1_Edit.Text = "100";
  form.Va2_Edit.Text = "10";  // H/B = 0.1: the rectangular bend's form factor has no value there
  state.Zeta = 1.5;
  form.Berechnen(0);
  ASSERT_EQ(messages().size(), 1u);
  const std::string text = messages()[0].text;
  EXPECT_EQ(text.rfind(form.Statisch_Element_Name1.Caption + ":\n" + app.Ausgabeneu_Fenster.undefinedResultText, 0),
            0u);
  EXPECT_NE(text.find(form.Va2_Static.Caption + " 10 mm"), std::string::npos) << text;
  EXPECT_TRUE(state.undefinedResult);
  EXPECT_EQ(state.Zeta, 1.5);            // the results stay as they were
  EXPECT_TRUE(app.Projekt_gespeichert);  // and no column is written
}

}  // namespace
}  // namespace linecalc::test
