#pragma once

#include <gtest/gtest.h>

#include <string>

#include "base/meldungen.h"
#include "workspace/anwendung.h"

namespace linecalc::test {

// A started application in German with the decimal comma, its message boxes recorded.
class AppTest : public ::testing::Test {
 protected:
  RecordingMeldungen meldungen;
  Anwendung app{meldungen, ','};
  TMyWindow& form = app.MyWindow;
  CalculationState& state = app.state;

  void SetUp() override {
    app.Sprache.Sprachkennung = 'D';
    app.start(LINECALC_BUILD_DATA_DIR);
  }

  void choose(int group, int nr) {
    app.BtnBottomDlg.Start_Aktualisierung();
    ASSERT_TRUE(app.BtnBottomDlg.press(group, nr));
    app.BtnBottomDlg.OKBtnClick();
  }

  // Water at 20 °C as the defaults give it: 998.2 kg/m3, 1002 x 10-6 kg/(m s); the flow in m3/h.
  void water(const std::string& flow) {
    form.selectLiquid(true);
    form.Eingabe_Volumenstrom.Text = flow;
  }

  void gas(const std::string& flow, const std::string& unit) {
    form.selectLiquid(false);
    form.ComboBox4.ItemIndex = unit.rfind("Nm3", 0) == 0 ? 2 : 0;
    form.Einheiten_Volumenstrom_aktualisieren();
    form.ComboBox1.selectText(unit);
    form.Eingabe_Volumenstrom.Text = flow;
    form.Eingabe_Dichte.Text = "1,2";
    form.Eingabe_Viskositaet.Text = "18";
    form.Edit_EingangsdruckN.Text = "2";
    form.Edit_EingangstemperaturN.Text = "20";
    form.Edit_AusgangstemperaturN.Text = "20";
  }

  std::string word(int row) const { return app.Sprache.globalWord(row); }
  const std::vector<RecordedMessage>& messages() const { return meldungen.messages(); }
  std::string onlyMessageText() const {
    EXPECT_EQ(messages().size(), 1u);
    return messages().empty() ? std::string() : messages().front().text;
  }
};

}  // namespace linecalc::test
