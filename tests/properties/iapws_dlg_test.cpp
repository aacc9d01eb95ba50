#include "properties/iapws_dlg.h"

#include <gtest/gtest.h>

#include <functional>

#include "base/numbers.h"
#include "base/units.h"
#include "properties/if97.h"
#include "properties/viscosity85.h"
#include "workspace/app_fixture.h"

namespace linecalc::test {
namespace {

class IAPWSDlgTest : public AppTest {
 protected:
  TIAPWSDlg& dlg = app.IAPWSDlg;

  void compute(const std::string& pressure, const std::string& temperature) {
    dlg.FormShow();
    dlg.Edit1.Text = pressure;
    dlg.Edit1Change();
    dlg.Edit2.Text = temperature;
    dlg.Edit2Change();
    dlg.BitBtn1Click();
  }
};

TEST_F(IAPWSDlgTest, StartsWithItsDefaultsAndWords) {
  EXPECT_EQ(dlg.Caption, "Wasser/-dampf (allgemein)");
  EXPECT_EQ(dlg.Edit1.Text, "1,013");  // with the decimal separator of the system
  EXPECT_EQ(dlg.ComboBox1.Items, app.EinstellungenDlg.combo_Druck.Items);
  EXPECT_EQ(dlg.ComboBox1.text(), "bar");
  EXPECT_EQ(dlg.ComboBox2.Items, (std::vector<std::string>{"°C", "K", "degF", "°R"}));
  EXPECT_EQ(dlg.ComboBox3.Items, app.EinstellungenDlg.combo_Dichte.Items);
  EXPECT_EQ(dlg.ComboBox4.Items, app.EinstellungenDlg.combo_spezVolumen.Items);
  EXPECT_EQ(dlg.ComboBox5.Items, app.EinstellungenDlg.combo_Visko_dyn.Items);
  EXPECT_FALSE(dlg.OKBtn.Enabled);
  EXPECT_EQ(dlg.rangeLine1.Caption, "0° C <= Temp. <= 800° C bei Druck (abs.) <= 1000 bar");
  EXPECT_EQ(dlg.standardLabel.Caption, "Berechnung nach Industrie-Standard IAPWS-IF 97");
}

TEST_F(IAPWSDlgTest, ColdWaterIsHandedOverAsLiquidWithTheDisplayedTexts) {
  compute("1,013", "20");
  ASSERT_TRUE(dlg.OKBtn.Enabled);
  EXPECT_TRUE(messages().empty());
  EXPECT_TRUE(dlg.fluessig);
  EXPECT_EQ(dlg.Bereich, 1);
  // IAPWS-IF97 Region 1 and the 1985 viscosity at 293.15 K and 1.013 bar, three decimals.
  EXPECT_EQ(dlg.Label6.Caption, "998,206");
  EXPECT_EQ(dlg.Label13.Caption, "0,001");
  EXPECT_EQ(dlg.Label7.Caption, "1001,605");

  form.selectLiquid(false);
  form.Edit_EingangsdruckN.Text = "7";
  ASSERT_TRUE(dlg.OKBtnClick());
  EXPECT_FALSE(dlg.Visible);
  EXPECT_EQ(form.Fokus, &form.Eingabe_Medium);
  EXPECT_TRUE(form.Radio_fluessig.Checked);
  EXPECT_FALSE(form.Radio_gas.Checked);
  EXPECT_EQ(form.Edit_EingangsdruckN.Text, "7");  // a liquid leaves the gas fields alone
  EXPECT_EQ(form.Eingabe_Dichte.Text, dlg.Label6.Caption);
  EXPECT_EQ(form.ComboBox2.ItemIndex, dlg.ComboBox3.ItemIndex);
  EXPECT_EQ(form.Eingabe_Viskositaet.Text, dlg.Label7.Caption);
  EXPECT_EQ(form.ComboBox5.ItemIndex, 0);
  EXPECT_EQ(form.ComboBox3.Items, app.EinstellungenDlg.combo_Visko_dyn.Items);
  EXPECT_EQ(form.ComboBox3.ItemIndex, dlg.ComboBox5.ItemIndex);
  EXPECT_EQ(form.Eingabe_Medium.Text, "Wasser (1,013 bar, 20 °C)");
}

TEST_F(IAPWSDlgTest, SteamIsHandedOverAsGasWithItsPressureAndTemperature) {
  dlg.ComboBox1.selectText("psia");
  dlg.ComboBox2.selectText("degF");
  compute("14,7", "400");
  ASSERT_TRUE(dlg.OKBtn.Enabled);
  EXPECT_FALSE(dlg.fluessig);
  EXPECT_EQ(dlg.Bereich, 2);
  form.ComboBox5.ItemIndex = 1;  // kinematic before: the hand-over switches to dynamic
  form.Einheiten_Visko_aktualisieren();
  ASSERT_TRUE(dlg.OKBtnClick());
  EXPECT_TRUE(form.Radio_gas.Checked);
  EXPECT_TRUE(form.Edit_EingangsdruckN.Enabled);
  EXPECT_EQ(form.Edit_EingangsdruckN.Text, "14,7");
  EXPECT_EQ(form.ComboBox6N.text(), "psia");
  EXPECT_EQ(form.Edit_EingangstemperaturN.Text, "400");
  EXPECT_EQ(form.Edit_AusgangstemperaturN.Text, "400");
  EXPECT_EQ(form.ComboBox7N.text(), "°F");  // the same position in the main form's list
  EXPECT_EQ(form.ComboBox8N.text(), "°F");
  EXPECT_EQ(form.ComboBox5.ItemIndex, 0);
  EXPECT_EQ(form.ComboBox3.Items, app.EinstellungenDlg.combo_Visko_dyn.Items);
  EXPECT_EQ(form.Eingabe_Medium.Text, "Wasser");  // no state appended for a gas

  // The main window reads back exactly the numbers the dialog displayed.
  state.Volumenstrom = 0;
  form.Eingabe_Volumenstrom.Text = "100";
  form.Werteingabe_Foerdermedium_lesen();
  bool read = true;
  EXPECT_EQ(state.Dichte, Zahl_lesen(dlg.Label6.Caption, read));
  EXPECT_EQ(state.DynViskositaet, Zahl_lesen(dlg.Label7.Caption, read));
  EXPECT_EQ(state.Eintrittsdruck, Umre_Druck("psia", "bar", 14.7L));
}

TEST_F(IAPWSDlgTest, SupercriticalRegion3IsHandedOverAsLiquid) {
  compute("300", "400");
  ASSERT_TRUE(dlg.OKBtn.Enabled);
  EXPECT_EQ(dlg.Bereich, 3);
  EXPECT_TRUE(dlg.fluessig);
  EXPECT_EQ(dlg.GL_Dichte, Rechne_Dichte_Bereich3(673.15L, 300));
  ASSERT_TRUE(dlg.OKBtnClick());
  EXPECT_TRUE(form.Radio_fluessig.Checked);
  EXPECT_EQ(form.Eingabe_Medium.Text, "Wasser (300 bar, 400 °C)");
}

TEST_F(IAPWSDlgTest, AResultUnitChangeOnlyRedisplays) {
  compute("1,013", "20");
  const Real density = dlg.GL_Dichte;
  dlg.Edit2.Text = "80";  // typed without the change event: nothing is recalculated
  dlg.ComboBox3.selectText("kg/l");
  dlg.ComboBox3Change();
  EXPECT_EQ(dlg.Label6.Caption, "0,998");
  dlg.ComboBox4.selectText("l/kg");
  dlg.ComboBox4Change();
  EXPECT_EQ(dlg.Label13.Caption, "1,002");
  dlg.ComboBox5.selectText("mPas");
  dlg.ComboBox5Change();
  EXPECT_EQ(dlg.Label7.Caption, "1,002");
  EXPECT_EQ(dlg.GL_Dichte, density);
  EXPECT_TRUE(dlg.OKBtn.Enabled);
}

TEST_F(IAPWSDlgTest, AnInputChangeClearsTheResultAndTheHandOver) {
  compute("1,013", "20");
  const std::function<void()> changes[] = {[this] { dlg.Edit1Change(); }, [this] { dlg.Edit2Change(); },
                                           [this] { dlg.ComboBox1Change(); }, [this] { dlg.ComboBox2Change(); }};
  for (const auto& change : changes) {
    dlg.BitBtn1Click();
    ASSERT_TRUE(dlg.OKBtn.Enabled);
    change();
    EXPECT_FALSE(dlg.OKBtn.Enabled);
    EXPECT_EQ(dlg.Label6.Caption, "");
    EXPECT_EQ(dlg.Label13.Caption, "");
    EXPECT_EQ(dlg.Label7.Caption, "");
    EXPECT_EQ(dlg.GL_Dichte, 0);
    EXPECT_EQ(dlg.GL_Viskositaet, 0);
  }
  form.Eingabe_Dichte.Text = "1,2";
  EXPECT_FALSE(dlg.OKBtnClick());
  EXPECT_EQ(form.Eingabe_Dichte.Text, "1,2");
}

TEST_F(IAPWSDlgTest, ResultsFollowTheSettingsDecimalsAndUnits) {
  app.EinstellungenDlg.Edit2.Text = "5";
  app.EinstellungenDlg.combo_Dichte.selectText("kg/l");
  compute("1,013", "20");
  EXPECT_EQ(dlg.ComboBox3.text(), "kg/l");
  EXPECT_EQ(dlg.Label6.Caption, "0,99821");
}

TEST_F(IAPWSDlgTest, WrongNumbersAreReportedWithTheFieldText) {
  compute("1,0x", "2o");
  ASSERT_EQ(messages().size(), 2u);
  EXPECT_EQ(messages()[0],
            (RecordedMessage{MessageKind::Error, "Falsche Eingabe", "Die Eingabe ist keine gültige Zahl:\n\"1,0x\"!"}));
  EXPECT_EQ(messages()[1].text, "Die Eingabe ist keine gültige Zahl:\n\"2o\"!");
  EXPECT_EQ(dlg.Fokus, &dlg.Edit2);
  EXPECT_FALSE(dlg.OKBtn.Enabled);
}

TEST_F(IAPWSDlgTest, TheRangeTestRefusesWithoutTouchingTheResult) {
  struct Case {
    const char* p;
    const char* t;
    bool passes;
  };
  for (const Case& c : {Case{"100", "900", true}, Case{"100,01", "800,01", false}, Case{"1", "900,01", false},
                        Case{"0", "20", false}, Case{"1000", "800", true}, Case{"1", "-0,01", false}}) {
    meldungen.clear();
    compute(c.p, c.t);
    EXPECT_EQ(dlg.OKBtn.Enabled, c.passes) << c.p << " bar " << c.t << " °C";
    if (!c.passes) {
      ASSERT_EQ(messages().size(), 1u);
      EXPECT_EQ(messages()[0].kind, MessageKind::Error);
      EXPECT_EQ(messages()[0].text, dlg.outOfRangeText);
      EXPECT_EQ(dlg.Fokus, &dlg.Edit1);
    }
  }
  // A refused input typed over a standing result without the change event leaves the result as it was.
  compute("1,013", "20");
  dlg.Edit2.Text = "950";
  dlg.BitBtn1Click();
  EXPECT_TRUE(dlg.OKBtn.Enabled);
  EXPECT_EQ(dlg.Label6.Caption, "998,206");
}

TEST_F(IAPWSDlgTest, InformationButtonShowsTheInformationText) {
  dlg.SpeedButton7Click();
  ASSERT_EQ(messages().size(), 1u);
  EXPECT_EQ(messages()[0].kind, MessageKind::Information);
  EXPECT_EQ(messages()[0].text, dlg.SV_Info);
  EXPECT_NE(dlg.SV_Info.find("IAPWS-IF97"), std::string::npos);
}

// Every word of both water dialogs is there in every language: a missing row would shift all that follow.
TEST(WaterDialogWords, EveryLanguageHasEveryWord) {
  for (const char language : {'D', 'E', 'F', 'H'}) {
    RecordingMeldungen meldungen;
    Anwendung app(meldungen, '.');
    app.Sprache.Sprachkennung = language;
    app.start(LINECALC_BUILD_DATA_DIR);
    const TIAPWSDlg& w = app.IAPWSDlg;
    for (const std::string* word : {&w.Caption,
                                    &w.inputHeading.Caption,
                                    &w.pressureLabel.Caption,
                                    &w.temperatureLabel.Caption,
                                    &w.resultHeading.Caption,
                                    &w.densityLabel.Caption,
                                    &w.specificVolumeLabel.Caption,
                                    &w.viscosityLabel.Caption,
                                    &w.rangeHeading.Caption,
                                    &w.rangeLine1.Caption,
                                    &w.rangeLine2.Caption,
                                    &w.standardLabel.Caption,
                                    &w.BitBtn1.Caption,
                                    &w.OKBtn.Caption,
                                    &w.BitBtn2.Caption,
                                    &w.SpeedButton7.Hint,
                                    &w.wrongNumberText,
                                    &w.outOfRangeText,
                                    &w.waterWord,
                                    &w.SV_Info}) {
      EXPECT_FALSE(word->empty()) << language;
    }
    const TSattdampfDialog& s = app.SattdampfDialog;
    for (const std::string* word : {&s.Caption,
                                    &s.RadioGroup1Caption.Caption,
                                    &s.RadioGroup1Items[0],
                                    &s.RadioGroup1Items[1],
                                    &s.temperatureLabel.Caption,
                                    &s.pressureLabel.Caption,
                                    &s.vapourPressureWord,
                                    &s.boilingTemperatureWord,
                                    &s.vapourHeading.Caption,
                                    &s.liquidHeading.Caption,
                                    &s.densityLabel.Caption,
                                    &s.specificVolumeLabel.Caption,
                                    &s.viscosityLabel.Caption,
                                    &s.standardLabel.Caption,
                                    &s.rangeLabel.Caption,
                                    &s.BitBtn2.Caption,
                                    &s.BitBtn1.Caption,
                                    &s.BitBtn3.Caption,
                                    &s.closeButton.Caption,
                                    &s.SV_Meldung1,
                                    &s.SV_Meldung2,
                                    &s.SV_Meldung3,
                                    &s.wrongNumberText}) {
      EXPECT_FALSE(word->empty()) << language;
    }
    // The last word of each block is its own, not the first of the next block.
    EXPECT_NE(w.SV_Info, s.Caption);
    EXPECT_EQ(s.wrongNumberText, w.wrongNumberText);
  }
}

}  // namespace
}  // namespace linecalc::test
