#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QToolButton>
#include <functional>
#include <memory>
#include <string>

#include "gui/gui_fixture.h"
#include "iapws_dlg_view.h"
#include "sattdampf_dialog_view.h"

namespace linecalc::test {
namespace {

using gui::IAPWSDlgView;
using gui::InputRow;
using gui::qs;
using gui::SattdampfDialogView;
using gui::ss;

void choose(QComboBox* box, const std::string& item) {
  const int index = box->findText(qs(item));
  ASSERT_GE(index, 0) << item;
  box->setCurrentIndex(index);  // as a user's pick: the box reports the change
}

std::string shown(const QLabel* label) {
  return ss(label->text());
}

// Opens a water dialog as the application does: the model takes the settings' units, the view shows it.
template <class View, class Model>
std::unique_ptr<View> openDialog(Anwendung& app, const DesktopWords& words, Model& model) {
  auto view = std::make_unique<View>(app, words);
  model.FormShow();
  view->refresh();
  view->show();
  view->activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(view.get()));
  return view;
}

class WaterGeneralViewTest : public GuiTest {
 protected:
  TIAPWSDlg& model = app.IAPWSDlg;
  std::unique_ptr<IAPWSDlgView> view;

  void SetUp() override {
    GuiTest::SetUp();
    view = openDialog<IAPWSDlgView>(app, words, model);
  }

  void enter(const std::string& pressure, const std::string& temperature) {
    typeInto(view->pressure().edit, pressure);
    typeInto(view->temperature().edit, temperature);
  }
  void compute(const std::string& pressure, const std::string& temperature) {
    enter(pressure, temperature);
    click(view->computeButton());
  }
};

TEST_F(WaterGeneralViewTest, ShowsTheDialogWithItsWordsAndDefaults) {
  EXPECT_EQ(ss(view->windowTitle()), "Wasser/-dampf (allgemein)");
  EXPECT_EQ(ss(view->pressure().edit->text()), "1,013");
  EXPECT_EQ(ss(view->pressure().unit->currentText()), "bar");
  EXPECT_EQ(view->pressure().unit->count(), 15);
  EXPECT_EQ(ss(view->temperature().unit->currentText()), "°C");
  EXPECT_EQ(shown(view->pressure().caption), "Druck (abs.):");
  EXPECT_EQ(ss(view->computeButton()->text()), "&Berechnen");
  EXPECT_TRUE(view->computeButton()->isDefault());
  EXPECT_FALSE(view->handOverButton()->isEnabled());
  EXPECT_EQ(shown(view->density().value), "");
}

// 1 bar and 20 °C, typed with the decimal comma: IAPWS-IF97 Region 1 gives 998.2 kg/m3 (the scientific
// formulation IAPWS-95 gives 998.207 kg/m3 at 293.15 K; the 1985 viscosity 1001.6e-6 Pa s). One decimal
// set in the settings. The button and the Enter key both compute.
TEST_F(WaterGeneralViewTest, ComputesColdWaterWithTheSettingsDecimals) {
  app.EinstellungenDlg.Edit2.Text = "1";
  const std::function<void()> ways[] = {[this] { click(view->computeButton()); },
                                        [this] { QTest::keyClick(view->temperature().edit, Qt::Key_Return); }};
  for (const auto& computeNow : ways) {
    enter("1", "20");
    EXPECT_FALSE(view->handOverButton()->isEnabled());
    computeNow();
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(shown(view->density().value), "998,2");
    EXPECT_EQ(shown(view->specificVolume().value), "0,0");
    EXPECT_EQ(shown(view->viscosity().value), "1001,6");
    EXPECT_TRUE(view->handOverButton()->isEnabled());
  }
}

// The verification values of the IAPWS-IF97 release (specific volume v at T, p; Tables 5, 15 and 33),
// entered in MPa and K through the unit boxes. Density 1/v, three decimals.
TEST_F(WaterGeneralViewTest, MatchesTheIf97VerificationValues) {
  choose(view->pressure().unit, "MPa");
  choose(view->temperature().unit, "K");
  struct Case {
    const char* p;  // MPa
    const char* T;  // K
    const char* density;
    const char* specificVolume;
  };
  for (const Case& c : {
           Case{"3", "300", "997,853", "0,001"},           // Region 1: v = 0.100215168e-2
           Case{"80", "300", "1029,674", "0,001"},         // Region 1: v = 0.971180894e-3
           Case{"3", "500", "831,658", "0,001"},           // Region 1: v = 0.120241800e-2
           Case{"0,0035", "300", "0,025", "39,491"},       // Region 2: v = 0.394913866e2
           Case{"0,0035", "700", "0,011", "92,302"},       // Region 2: v = 0.923015898e2
           Case{"30", "700", "184,180", "0,005"},          // Region 2: v = 0.542946619e-2
           Case{"25,5837018", "650", "500,000", "0,002"},  // Region 3: rho = 500 gives p = 25.5837018 MPa
           Case{"22,2930643", "650", "200,000", "0,005"},  // Region 3: rho = 200
           Case{"78,3095639", "750", "500,000", "0,002"},  // Region 3: rho = 500
       }) {
    compute(c.p, c.T);
    EXPECT_EQ(shown(view->density().value), c.density) << c.p << " MPa " << c.T << " K";
    EXPECT_EQ(shown(view->specificVolume().value), c.specificVolume) << c.p << " MPa " << c.T << " K";
  }
}

TEST_F(WaterGeneralViewTest, AnInputChangeClearsTheResultAResultUnitRedisplays) {
  const std::function<void()> changes[] = {
      [this] { QTest::keyClick(view->pressure().edit, Qt::Key_0); },
      [this] { QTest::keyClick(view->temperature().edit, Qt::Key_Backspace); },
      [this] { choose(view->pressure().unit, "mbar"); },
      [this] { choose(view->temperature().unit, "K"); },
  };
  for (const auto& change : changes) {
    choose(view->pressure().unit, "bar");
    choose(view->temperature().unit, "°C");
    compute("1,013", "20");
    ASSERT_EQ(shown(view->density().value), "998,206");
    change();
    EXPECT_FALSE(view->handOverButton()->isEnabled());
    EXPECT_EQ(shown(view->density().value), "");
    EXPECT_EQ(shown(view->specificVolume().value), "");
    EXPECT_EQ(shown(view->viscosity().value), "");
  }
  // A result unit only converts what stands: 998.206 kg/m3 = 0.998 kg/l, 1001.6e-6 Pa s = 1.002 mPa s.
  choose(view->temperature().unit, "°C");
  compute("1,013", "20");
  choose(view->density().unit, "kg/l");
  choose(view->viscosity().unit, "mPas");
  choose(view->specificVolume().unit, "l/kg");
  EXPECT_EQ(shown(view->density().value), "0,998");
  EXPECT_EQ(shown(view->viscosity().value), "1,002");
  EXPECT_EQ(shown(view->specificVolume().value), "1,002");
  EXPECT_TRUE(view->handOverButton()->isEnabled());
}

TEST_F(WaterGeneralViewTest, HandsWaterOverAsLiquidAndSteamAsGas) {
  TMyWindow& main = app.MyWindow;
  QSignalSpy changed(view.get(), &IAPWSDlgView::modelChanged);
  compute("1,013", "20");
  click(view->handOverButton());
  EXPECT_FALSE(view->isVisible());
  EXPECT_FALSE(model.Visible);
  EXPECT_EQ(changed.count(), 1);
  EXPECT_TRUE(main.Radio_fluessig.Checked);
  EXPECT_EQ(main.Eingabe_Dichte.Text, "998,206");
  EXPECT_EQ(main.ComboBox2.text(), "kg/m3");
  EXPECT_EQ(main.Eingabe_Viskositaet.Text, "1001,605");
  EXPECT_EQ(main.ComboBox3.text(), "10-6 kg/ms");
  EXPECT_EQ(main.Eingabe_Medium.Text, "Wasser (1,013 bar, 20 °C)");

  // Steam at 1 bar and 200 °C (IF97 Region 2, about 0.460 kg/m3) also fills the gas fields.
  model.FormShow();
  view->refresh();
  view->show();
  compute("1", "200");
  EXPECT_EQ(shown(view->density().value), "0,460");
  click(view->handOverButton());
  EXPECT_EQ(changed.count(), 2);
  EXPECT_TRUE(main.Radio_gas.Checked);
  EXPECT_EQ(main.Eingabe_Dichte.Text, "0,460");
  EXPECT_EQ(main.Edit_EingangsdruckN.Text, "1");
  EXPECT_EQ(main.Edit_EingangstemperaturN.Text, "200");
  EXPECT_EQ(main.Edit_AusgangstemperaturN.Text, "200");
  EXPECT_EQ(main.Eingabe_Medium.Text, "Wasser");
}

TEST_F(WaterGeneralViewTest, RefusalsReportAndMoveTheFocus) {
  struct Case {
    const char* p;
    const char* t;
    const char* text;
    bool focusOnTemperature;  // else on the pressure
  };
  const char* const outOfRange = "Der Zustand liegt außerhalb des Gültigkeitsbereichs der Berechnung.";
  for (const Case& c : {Case{"1", "2o", "Die Eingabe ist keine gültige Zahl:\n\"2o\"!", true},
                        Case{"0", "20", outOfRange, false}, Case{"100,01", "800,01", outOfRange, false}}) {
    meldungen.clear();
    compute(c.p, c.t);
    ASSERT_EQ(messages().size(), 1u) << c.p << " " << c.t;
    EXPECT_EQ(messages()[0].kind, MessageKind::Error);
    EXPECT_EQ(messages()[0].text, c.text);
    const InputRow& field = c.focusOnTemperature ? view->temperature() : view->pressure();
    EXPECT_TRUE(field.edit->hasFocus()) << c.p << " " << c.t;
    EXPECT_FALSE(view->handOverButton()->isEnabled());
  }
}

TEST_F(WaterGeneralViewTest, InformationAndClose) {
  click(view->infoButton());
  ASSERT_EQ(messages().size(), 1u);
  EXPECT_EQ(messages()[0].kind, MessageKind::Information);
  EXPECT_NE(messages()[0].text.find("IAPWS-IF97"), std::string::npos);
  EXPECT_EQ(ss(view->infoButton()->toolTip()), "Hinweise zur Berechnung");
  click(view->closeButton());
  EXPECT_FALSE(view->isVisible());
  EXPECT_FALSE(model.Visible);
}

class WaterSaturationViewTest : public GuiTest {
 protected:
  TSattdampfDialog& model = app.SattdampfDialog;
  std::unique_ptr<SattdampfDialogView> view;

  void SetUp() override {
    GuiTest::SetUp();
    view = openDialog<SattdampfDialogView>(app, words, model);
  }

  void given(int index) { click(view->givenButton(index)); }
  void compute(const InputRow& input, const std::string& text) {
    typeInto(input.edit, text);
    click(view->computeButton());
  }
};

TEST_F(WaterSaturationViewTest, ChoosingWhatIsGivenSwapsTheFieldInUse) {
  EXPECT_EQ(ss(view->windowTitle()), "Wasser/-dampf (Sättigungszustand)");
  EXPECT_TRUE(view->givenButton(0)->isChecked());
  EXPECT_TRUE(view->temperature().edit->isEnabled());
  EXPECT_FALSE(view->pressure().edit->isEnabled());
  EXPECT_EQ(shown(view->computed().value), "");

  compute(view->temperature(), "100");
  given(1);
  EXPECT_EQ(model.RadioGroup1, 1);
  EXPECT_FALSE(view->temperature().edit->isEnabled());
  EXPECT_TRUE(view->pressure().edit->isEnabled());
  EXPECT_EQ(ss(view->temperature().edit->text()), "");
  EXPECT_EQ(shown(view->computed().value), "");
  EXPECT_EQ(ss(view->computed().unit->currentText()), "°C");
  EXPECT_FALSE(view->vapourButton()->isEnabled());
}

// 100 °C boils at 1.0142 bar (IF97 saturation pressure at 373.15 K: 0.101418 MPa); four decimals.
TEST_F(WaterSaturationViewTest, OneHundredDegreesBoilAtOneBar) {
  app.EinstellungenDlg.Edit2.Text = "4";
  compute(view->temperature(), "100");
  EXPECT_TRUE(messages().empty());
  EXPECT_EQ(shown(view->computed().value), "1,0142");
  // Steam tables: saturated vapour 0.598 kg/m3, saturated liquid 958.35 kg/m3.
  EXPECT_EQ(shown(view->vapour(SattdampfDialogView::Density).value).substr(0, 5), "0,598");
  EXPECT_EQ(shown(view->liquid(SattdampfDialogView::Density).value).substr(0, 6), "958,35");
  EXPECT_TRUE(view->liquidButton()->isEnabled());
  EXPECT_TRUE(view->vapourButton()->isEnabled());
}

// The verification values of the IF97 saturation equations (Tables 35 and 36), through the unit boxes.
TEST_F(WaterSaturationViewTest, MatchesTheIf97SaturationValues) {
  struct Case {
    int given;
    const char* input;
    const char* inputUnit;
    const char* resultUnit;
    const char* decimals;
    const char* result;
  };
  for (const Case& c : {
           Case{0, "300", "K", "MPa", "6", "0,003537"},   // ps = 0.353658941e-2 MPa
           Case{0, "500", "K", "MPa", "6", "2,638898"},   // ps = 0.263889776e1 MPa
           Case{0, "600", "K", "MPa", "6", "12,344315"},  // ps = 0.123443146e2 MPa
           Case{1, "0,1", "MPa", "K", "4", "372,7559"},   // Ts = 0.372755919e3 K
           Case{1, "1", "MPa", "K", "4", "453,0356"},     // Ts = 0.453035632e3 K
           Case{1, "10", "MPa", "K", "4", "584,1495"},    // Ts = 0.584149488e3 K
       }) {
    app.EinstellungenDlg.Edit2.Text = c.decimals;
    given(c.given);
    const InputRow& input = c.given == 0 ? view->temperature() : view->pressure();
    choose(input.unit, c.inputUnit);
    choose(view->computed().unit, c.resultUnit);
    compute(input, c.input);
    EXPECT_EQ(shown(view->computed().value), c.result) << c.input << " " << c.inputUnit;
  }
}

// 646.15 K is the upper end of the temperatures; 646.16 K is refused though the critical point lies higher.
TEST_F(WaterSaturationViewTest, RefusesTemperaturesAbove646Point15Kelvin) {
  choose(view->temperature().unit, "K");
  compute(view->temperature(), "646,15");
  EXPECT_TRUE(messages().empty());
  EXPECT_TRUE(view->vapourButton()->isEnabled());

  compute(view->temperature(), "646,16");
  ASSERT_EQ(messages().size(), 1u);
  EXPECT_EQ(messages()[0].kind, MessageKind::Information);
  EXPECT_EQ(messages()[0].text.rfind("Der Wert liegt außerhalb des Gültigkeitsbereichs", 0), 0u);
  EXPECT_TRUE(view->temperature().edit->hasFocus());
  EXPECT_EQ(shown(view->computed().value), "");
  EXPECT_FALSE(view->liquidButton()->isEnabled());
  EXPECT_FALSE(view->vapourButton()->isEnabled());
}

TEST_F(WaterSaturationViewTest, InputsClearResultUnitsRedisplay) {
  compute(view->temperature(), "100");
  choose(view->liquid(SattdampfDialogView::Density).unit, "kg/l");
  EXPECT_EQ(shown(view->liquid(SattdampfDialogView::Density).value), "0,958");
  choose(view->computed().unit, "mbar");
  EXPECT_EQ(shown(view->computed().value), "1014,180");
  choose(view->temperature().unit, "K");
  EXPECT_EQ(shown(view->computed().value), "");
  EXPECT_EQ(shown(view->liquid(SattdampfDialogView::Density).value), "");
  EXPECT_FALSE(view->liquidButton()->isEnabled());
}

TEST_F(WaterSaturationViewTest, HandsOverEitherPhase) {
  TMyWindow& main = app.MyWindow;
  QSignalSpy changed(view.get(), &SattdampfDialogView::modelChanged);
  compute(view->temperature(), "100");
  click(view->liquidButton());
  EXPECT_FALSE(view->isVisible());
  EXPECT_EQ(changed.count(), 1);
  EXPECT_TRUE(main.Radio_fluessig.Checked);
  EXPECT_EQ(main.Eingabe_Dichte.Text, "958,354");
  EXPECT_EQ(main.Eingabe_Medium.Text, "Wasser, siedend (100 °C)");

  model.FormShow();
  view->refresh();
  view->show();
  given(1);
  compute(view->pressure(), "10");
  click(view->vapourButton());
  EXPECT_EQ(changed.count(), 2);
  EXPECT_TRUE(main.Radio_gas.Checked);
  EXPECT_EQ(main.Edit_EingangsdruckN.Text, "10");
  EXPECT_EQ(main.Edit_EingangstemperaturN.Text, "179,886");  // IF97: 1 MPa boils at 453.036 K
  EXPECT_EQ(main.Eingabe_Medium.Text, "Wasserdampf, gesättigt (10 bar)");
}

}  // namespace
}  // namespace linecalc::test
