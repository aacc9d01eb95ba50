#include "properties/sattdampf_dlg.h"

#include <gtest/gtest.h>

#include "base/numbers.h"
#include "base/units.h"
#include "properties/if97.h"
#include "properties/viscosity85.h"
#include "workspace/app_fixture.h"

namespace linecalc::test {
namespace {

class SattdampfTest : public AppTest {
 protected:
  TSattdampfDialog& dlg = app.SattdampfDialog;

  void fromTemperature(const std::string& text, const std::string& unit = "°C") {
    dlg.FormShow();
    dlg.RadioGroup1Click(0);
    dlg.ComboBox2.selectText(unit);
    dlg.Edit2.Text = text;
    dlg.inputChange();
    dlg.BitBtn2Click();
  }

  void fromPressure(const std::string& text, const std::string& unit = "bar") {
    dlg.FormShow();
    dlg.RadioGroup1Click(1);
    dlg.ComboBox1.selectText(unit);
    dlg.Edit1.Text = text;
    dlg.inputChange();
    dlg.BitBtn2Click();
  }
};

TEST_F(SattdampfTest, BoilingPointAt100Degrees) {
  fromTemperature("100");
  ASSERT_TRUE(dlg.resultStands());
  EXPECT_TRUE(messages().empty());
  EXPECT_EQ(dlg.computedLabel.Caption, "Dampfdruck:");
  EXPECT_NEAR(static_cast<double>(dlg.Dadru), 1.0142, 5e-5);
  EXPECT_EQ(dlg.Label22.Caption, "1,014");
  // Vapour from Region 2, liquid from Region 1; steam tables: 0.598 and 958.35 kg/m3.
  EXPECT_EQ(dlg.DichteG, Rechne_Dichte_Bereich2(dlg.Temp, dlg.Dadru));
  EXPECT_EQ(dlg.DichteF, Rechne_Dichte_Bereich1(dlg.Temp, dlg.Dadru));
  EXPECT_NEAR(static_cast<double>(dlg.DichteG), 0.598, 5e-4);
  EXPECT_NEAR(static_cast<double>(dlg.DichteF), 958.35, 0.01);
  EXPECT_EQ(dlg.ViskoF, Rechne_Visko(dlg.Temp, dlg.DichteF));
  EXPECT_EQ(dlg.Label18.Caption, "0,598");
  EXPECT_EQ(dlg.Label20.Caption, "958,354");
  EXPECT_TRUE(dlg.BitBtn1.Enabled);
  EXPECT_TRUE(dlg.BitBtn3.Enabled);
}

TEST_F(SattdampfTest, TemperatureRangeEndsBelowTheCriticalPoint) {
  fromTemperature("646,15", "K");
  ASSERT_TRUE(dlg.resultStands());
  // Both phases from the Region 3 solver, each on its side of the saturation line.
  EXPECT_EQ(dlg.DichteG, Rechne_Dichte_Bereich3(646.15L, dlg.Dadru - 1e-10L));
  EXPECT_EQ(dlg.DichteF, Rechne_Dichte_Bereich3(646.15L, dlg.Dadru + 1e-10L));
  EXPECT_LT(dlg.DichteG, 322);
  EXPECT_GT(dlg.DichteF, 322);

  fromTemperature("646,16", "K");
  EXPECT_FALSE(dlg.resultStands());
  ASSERT_EQ(messages().size(), 1u);
  EXPECT_EQ(messages()[0].kind, MessageKind::Information);
  EXPECT_EQ(messages()[0].text, dlg.SV_Meldung2);
  EXPECT_EQ(dlg.Fokus, &dlg.Edit2);
  EXPECT_EQ(dlg.Label22.Caption, "");

  meldungen.clear();
  fromTemperature("373");  // the form's upper limit in °C is the same 646.15 K
  EXPECT_TRUE(dlg.resultStands());
  fromTemperature("0");
  EXPECT_TRUE(dlg.resultStands());
  fromTemperature("-0,01");
  EXPECT_FALSE(dlg.resultStands());
}

TEST_F(SattdampfTest, PressureRange) {
  struct Case {
    const char* p;
    bool passes;
  };
  for (const Case& c : {Case{"220", true}, Case{"220,01", false}, Case{"0,007", true}, Case{"0,0069", false}}) {
    meldungen.clear();
    fromPressure(c.p);
    EXPECT_EQ(dlg.resultStands(), c.passes) << c.p;
    EXPECT_EQ(messages().size(), c.passes ? 0u : 1u) << c.p;
    if (!c.passes) {
      EXPECT_EQ(dlg.Fokus, &dlg.Edit1);
    }
  }
  fromPressure("10");
  EXPECT_EQ(dlg.computedLabel.Caption, "Siedetemperatur:");
  // IAPWS-IF97 Table 36: 1 MPa boils at 453.035632 K.
  EXPECT_NEAR(static_cast<double>(dlg.Temp), 453.035632, 1e-6);
  EXPECT_EQ(dlg.Label22.Caption, "179,886");  // in °C
}

TEST_F(SattdampfTest, AtExactly623KelvinTheGibbsRegionsAreUsed) {
  fromTemperature("623,15", "K");
  ASSERT_TRUE(dlg.resultStands());
  EXPECT_EQ(dlg.DichteG, Rechne_Dichte_Bereich2(623.15L, dlg.Dadru));
  EXPECT_EQ(dlg.DichteF, Rechne_Dichte_Bereich1(623.15L, dlg.Dadru));
  fromTemperature("350");  // 350 °C is exactly 623.15 K
  EXPECT_EQ(dlg.DichteF, Rechne_Dichte_Bereich1(623.15L, dlg.Dadru));
}

TEST_F(SattdampfTest, LiquidIsHandedOverWithTheGivenTemperature) {
  fromTemperature("100");
  form.selectLiquid(false);
  ASSERT_TRUE(dlg.BitBtn1Click());
  EXPECT_FALSE(dlg.Visible);
  EXPECT_EQ(form.Fokus, &form.Eingabe_Medium);
  EXPECT_TRUE(form.Radio_fluessig.Checked);
  EXPECT_EQ(form.Eingabe_Dichte.Text, dlg.Label20.Caption);
  EXPECT_EQ(form.ComboBox2.ItemIndex, dlg.ComboBox7.ItemIndex);
  EXPECT_EQ(form.Eingabe_Viskositaet.Text, dlg.Label21.Caption);
  EXPECT_EQ(form.ComboBox5.ItemIndex, 0);
  EXPECT_EQ(form.ComboBox3.ItemIndex, dlg.ComboBox9.ItemIndex);
  EXPECT_EQ(form.Eingabe_Medium.Text, "Wasser, siedend (100 °C)");
}

TEST_F(SattdampfTest, VapourFromATemperatureTakesTheComputedPressure) {
  dlg.FormShow();
  dlg.RadioGroup1Click(0);
  dlg.ComboBox6.selectText("mbar");
  dlg.ComboBox2.selectText("K");
  dlg.Edit2.Text = "373,15";
  dlg.BitBtn2Click();
  ASSERT_TRUE(dlg.resultStands());
  EXPECT_EQ(dlg.Label22.Caption, "1014,180");
  ASSERT_TRUE(dlg.BitBtn3Click());
  EXPECT_TRUE(form.Radio_gas.Checked);
  EXPECT_EQ(form.Eingabe_Dichte.Text, dlg.Label18.Caption);
  EXPECT_EQ(form.ComboBox2.ItemIndex, dlg.ComboBox3.ItemIndex);
  EXPECT_EQ(form.Eingabe_Viskositaet.Text, dlg.Label19.Caption);
  EXPECT_EQ(form.ComboBox3.ItemIndex, dlg.ComboBox5.ItemIndex);
  EXPECT_EQ(form.Edit_EingangstemperaturN.Text, "373,15");
  EXPECT_EQ(form.Edit_AusgangstemperaturN.Text, "373,15");
  EXPECT_EQ(form.ComboBox7N.text(), "K");
  EXPECT_EQ(form.ComboBox8N.text(), "K");
  EXPECT_EQ(form.Edit_EingangsdruckN.Text, "1014,180");
  EXPECT_EQ(form.ComboBox6N.text(), "mbar");
  EXPECT_EQ(form.Eingabe_Medium.Text, "Wasserdampf, gesättigt (373,15 K)");

  // The main window reads back the displayed pressure, with its three decimals.
  form.Eingabe_Volumenstrom.Text = "100";
  form.Werteingabe_Foerdermedium_lesen();
  EXPECT_EQ(state.Eintrittsdruck, Umre_Druck("mbar", "bar", 1014.18L));
  EXPECT_EQ(state.Eintrittstemperatur, 373.15L);
}

TEST_F(SattdampfTest, VapourFromAPressureTakesTheComputedTemperature) {
  fromPressure("10");
  ASSERT_TRUE(dlg.BitBtn3Click());
  EXPECT_EQ(form.Edit_EingangstemperaturN.Text, "179,886");
  EXPECT_EQ(form.Edit_AusgangstemperaturN.Text, "179,886");
  EXPECT_EQ(form.ComboBox7N.ItemIndex, dlg.ComboBox6.ItemIndex);
  EXPECT_EQ(form.ComboBox7N.text(), "°C");
  EXPECT_EQ(form.Edit_EingangsdruckN.Text, "10");
  EXPECT_EQ(form.ComboBox6N.ItemIndex, dlg.ComboBox1.ItemIndex);
  EXPECT_EQ(form.Eingabe_Medium.Text, "Wasserdampf, gesättigt (10 bar)");
}

TEST_F(SattdampfTest, ChangingWhatIsGivenClearsInputsAndResults) {
  fromTemperature("100");
  dlg.Edit1.Text = "5";
  dlg.RadioGroup1Click(1);
  EXPECT_FALSE(dlg.resultStands());
  EXPECT_EQ(dlg.Edit1.Text, "");
  EXPECT_EQ(dlg.Edit2.Text, "");
  EXPECT_EQ(dlg.Label22.Caption, "");
  EXPECT_EQ(dlg.DichteF, 0);
  EXPECT_TRUE(dlg.Edit1.Enabled);
  EXPECT_FALSE(dlg.Edit2.Enabled);
  EXPECT_EQ(dlg.ComboBox6.Items, (std::vector<std::string>{"°C", "K", "degF", "°R"}));
  form.Eingabe_Dichte.Text = "1,2";
  EXPECT_FALSE(dlg.BitBtn1Click());
  EXPECT_FALSE(dlg.BitBtn3Click());
  EXPECT_EQ(form.Eingabe_Dichte.Text, "1,2");
}

TEST_F(SattdampfTest, AResultUnitChangeRedisplaysAnInputChangeClears) {
  fromTemperature("100");
  dlg.ComboBox7.selectText("kg/l");
  dlg.resultUnitChange();
  EXPECT_EQ(dlg.Label20.Caption, "0,958");
  dlg.ComboBox6.selectText("MPa");
  dlg.resultUnitChange();
  EXPECT_EQ(dlg.Label22.Caption, "0,101");
  dlg.inputChange();
  EXPECT_FALSE(dlg.resultStands());
  EXPECT_EQ(dlg.Label20.Caption, "");
}

TEST_F(SattdampfTest, AWrongNumberEndsTheCalculation) {
  fromTemperature("1o0");
  EXPECT_FALSE(dlg.resultStands());
  ASSERT_EQ(messages().size(), 1u);
  EXPECT_EQ(messages()[0],
            (RecordedMessage{MessageKind::Error, "Falsche Eingabe", "Die Eingabe ist keine gültige Zahl:\n\"1o0\"!"}));
  EXPECT_EQ(dlg.Fokus, &dlg.Edit2);
}

}  // namespace
}  // namespace linecalc::test
