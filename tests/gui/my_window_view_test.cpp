#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QToolButton>
#include <cmath>

#include "btn_bottom_dlg_view.h"
#include "element_picture.h"
#include "gui/gui_fixture.h"
#include "my_window_view.h"

namespace linecalc::test {
namespace {

using gui::qs;

class MyWindowViewTest : public GuiTest {
 protected:
  std::unique_ptr<gui::MyWindowView> view;
  TMyWindow& form = app.MyWindow;

  void SetUp() override {
    GuiTest::SetUp();
    view = std::make_unique<gui::MyWindowView>(app, words);
    QObject::connect(view.get(), &gui::MyWindowView::modelChanged, view.get(), &gui::MyWindowView::refresh);
    view->show();
    view->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(view.get()));
  }

  QLineEdit* field(const Edit& control) const { return view->edit(control); }

  // A calculation's number in a row of the current table, in the row's unit.
  Real cell(int column, int row) const {
    const Cell& c = app.Ausgabeneu_Fenster.table().get_Spalte(column).cells[static_cast<std::size_t>(row)];
    EXPECT_TRUE(c.number.has_value()) << "row " << row;
    return c.number.value_or(0);
  }
};

TEST_F(MyWindowViewTest, TypedPipeCalculatesIntoANewColumn) {
  // Water at 20 °C (998.2 kg/m3, 1002e-6 kg/(m s)), 10 m3/h through a circular pipe of 100 mm:
  // w = (10/3600) / (pi 0.05^2) = 0.353678 m/s; Re = w D rho / eta = 0.353678 0.1 998.2 / 1002e-6 = 35234.
  typeInto(field(form.Eingabe_Volumenstrom), "10");
  typeInto(field(form.Va1_Edit), "100");
  typeInto(field(form.Va2_Edit), "1");
  click(view->calculateButton());

  EXPECT_TRUE(messages().empty());
  ASSERT_EQ(app.Ausgabeneu_Fenster.Anzahl_Berechnungen(), 1);
  EXPECT_NEAR(cell(0, 21), 0.353678, 1e-6);
  EXPECT_NEAR(cell(0, 22), 35234, 1);
  EXPECT_EQ(app.Ausgabeneu_Fenster.table().get_Spalte(0).cells[13].text, "1");
}

TEST_F(MyWindowViewTest, EnterInAFieldCalculates) {
  typeInto(field(form.Va2_Edit), "2");
  QTest::keyClick(field(form.Va2_Edit), Qt::Key_Return);
  EXPECT_EQ(app.Ausgabeneu_Fenster.Anzahl_Berechnungen(), 1);
  QTest::keyClick(field(form.Eingabe_Volumenstrom), Qt::Key_Enter);
  EXPECT_EQ(app.Ausgabeneu_Fenster.Anzahl_Berechnungen(), 2);
}

TEST_F(MyWindowViewTest, BadNumberReportsTheFieldAndTakesTheFocus) {
  typeInto(field(form.Va1_Edit), "1x0");
  click(view->calculateButton());

  ASSERT_EQ(messages().size(), 1u);
  EXPECT_EQ(messages()[0].kind, MessageKind::Error);
  EXPECT_NE(messages()[0].text.find("\"" + form.Va1_Static.Caption + "\""), std::string::npos) << messages()[0].text;
  EXPECT_EQ(QApplication::focusWidget(), field(form.Va1_Edit));
  EXPECT_EQ(app.Ausgabeneu_Fenster.Anzahl_Berechnungen(), 0);
}

TEST_F(MyWindowViewTest, GasFieldsFollowTheStateOfTheMedium) {
  QLineEdit* inletPressure = field(form.Edit_EingangsdruckN);
  EXPECT_FALSE(inletPressure->isEnabled());
  click(view->radio(form.Radio_gas));
  EXPECT_TRUE(form.Radio_gas.Checked);
  EXPECT_TRUE(inletPressure->isEnabled());
  EXPECT_TRUE(view->combo(form.ComboBox8N)->isEnabled());
  click(view->radio(form.Radio_fluessig));
  EXPECT_FALSE(inletPressure->isEnabled());
}

TEST_F(MyWindowViewTest, KindOfFlowChangesTheUnitList) {
  QComboBox* kind = view->combo(form.ComboBox4);
  kind->setFocus();
  QTest::keyClick(kind, Qt::Key_Down);  // volume flow -> mass flow
  QComboBox* unit = view->combo(form.ComboBox1);
  EXPECT_EQ(form.ComboBox4.ItemIndex, 1);
  ASSERT_EQ(unit->count(), static_cast<int>(app.EinstellungenDlg.combo_Massenstrom.Items.size()));
  EXPECT_EQ(unit->itemText(0), qs(app.EinstellungenDlg.combo_Massenstrom.Items[0]));
  EXPECT_EQ(view->label(form.Volumenstrom_Titel)->text(), qs(form.Volumenstrom_Titel.Caption));
}

TEST_F(MyWindowViewTest, MenuEntriesOfLaterWindowsAreDisabledWithAHint) {
  struct Case {
    const char* entry;
    bool enabled;
  };
  for (const Case& c : {Case{"Stromlauf1", true}, Case{"Neu1", true}, Case{"Rohrleitungselementwhlen1", true},
                        Case{"StromlauffVolulmenstrom1", false}, Case{"Nennweite1", false},
                        Case{"StoffdatenLuft1", false}, Case{"ToolButton10", false}, Case{"ToolButton5", true}}) {
    QAction* action = view->action(c.entry);
    ASSERT_NE(action, nullptr) << c.entry;
    EXPECT_EQ(action->isEnabled(), c.enabled) << c.entry;
    if (!c.enabled) {
      EXPECT_TRUE(action->toolTip().contains(qs(words.notYetAvailable))) << c.entry;
    }
  }
  // The unit conversion entry belongs to the German program only.
  EXPECT_TRUE(view->action("Einheitenumrechnen1")->isVisible());
  EXPECT_EQ(view->action("Stromlauf1")->text(), qs(form.words.menu("Stromlauf1")));
}

TEST_F(MyWindowViewTest, CalculateEntryAndToolButtonRunTheCalculation) {
  QAction* removeColumn = view->action("GewhlteSpalteentfernen1");
  emit view->action("abellenSpalte1")->menu()->aboutToShow();
  EXPECT_FALSE(removeColumn->isEnabled());  // nothing to remove yet

  view->action("Stromlauf1")->trigger();
  view->action("ToolButton5")->trigger();
  EXPECT_EQ(app.Ausgabeneu_Fenster.Anzahl_Berechnungen(), 2);
  emit view->action("abellenSpalte1")->menu()->aboutToShow();
  EXPECT_TRUE(removeColumn->isEnabled());
}

TEST_F(MyWindowViewTest, EditEntriesCopyAndPasteTheFieldText) {
  QLineEdit* medium = field(form.Eingabe_Medium);
  QLineEdit* designation = field(form.Edit1);
  typeInto(medium, "Kuehlwasser");
  medium->selectAll();
  view->action("Kopieren1")->trigger();
  EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("Kuehlwasser"));

  designation->setFocus();
  view->action("Einfgen1")->trigger();
  EXPECT_EQ(form.Edit1.Text, "Kuehlwasser");

  designation->selectAll();
  view->action("Lschen1")->trigger();
  EXPECT_EQ(form.Edit1.Text, "");
}

TEST_F(MyWindowViewTest, ElementInformationShowsTheElementText) {
  // (1,5), the corrugated pipe, has an information text of three rows.
  app.state.ElementGruppe = 1;
  app.state.ElementNr = 5;
  form.Element_Fenster_aktualisieren();
  view->refresh();
  QToolButton* button = view->informationButton();
  ASSERT_TRUE(button->isEnabled());
  click(button);
  ASSERT_EQ(messages().size(), 1u);
  EXPECT_EQ(messages()[0].text, form.words.SV_Elementinfo[1][5]);
}

TEST_F(MyWindowViewTest, AboutBoxNamesTheProgramInItsLanguage) {
  view->action("berStromlauf1")->trigger();
  ASSERT_EQ(messages().size(), 1u);
  EXPECT_EQ(messages()[0].caption, app.productTitle);
  EXPECT_NE(messages()[0].text.find("Druckverlustberechnung"), std::string::npos) << messages()[0].text;
}

class ChooserViewTest : public MyWindowViewTest {
 protected:
  std::unique_ptr<gui::BtnBottomDlgView> chooser;

  void SetUp() override {
    MyWindowViewTest::SetUp();
    chooser = std::make_unique<gui::BtnBottomDlgView>(app, words, view.get());
    QObject::connect(chooser.get(), &gui::BtnBottomDlgView::modelChanged, view.get(), &gui::MyWindowView::refresh);
    chooser->start();
    chooser->open();
  }

  QPushButton* okButton() const {
    for (QPushButton* b : chooser->findChildren<QPushButton*>()) {
      if (b->text() == qs(app.BtnBottomDlg.words.ok)) return b;
    }
    return nullptr;
  }
};

TEST_F(ChooserViewTest, OpensOnTheCurrentElementWithEveryElementAButton) {
  EXPECT_EQ(chooser->tabs()->currentIndex(), 0);
  EXPECT_TRUE(chooser->elementButton(1, 1)->isChecked());
  int buttons = 0;
  for (const ElementDefinition& e : allElements()) buttons += chooser->elementButton(e.group, e.nr) != nullptr;
  EXPECT_EQ(buttons, static_cast<int>(allElements().size()));
  EXPECT_EQ(chooser->elementButton(4, 9), nullptr);
}

TEST_F(ChooserViewTest, ChosenBendRebuildsThePanel) {
  // The circular bend (4,1) asks for D, R and the angle w in degrees, with the roughness input.
  click(chooser->elementButton(4, 1));
  click(okButton());

  EXPECT_EQ(app.state.ElementGruppe, 4);
  EXPECT_EQ(app.state.ElementNr, 1);
  EXPECT_EQ(view->picture()->pictureNumber(), 2101);
  EXPECT_EQ(view->label(form.Statisch_Element_Name1)->text(),
            qs(app.Sprache.Gruppe_Name[4] + " - " + app.Sprache.Untergruppe_Name[4][1]));
  EXPECT_FALSE(view->label(form.Va3_Static)->isHidden());
  EXPECT_TRUE(view->label(form.Va4_Static)->isHidden());
  EXPECT_TRUE(field(form.Va4_Edit)->isHidden());
  EXPECT_EQ(field(form.Va3_Edit)->text(), QStringLiteral("90"));
  EXPECT_EQ(view->label(form.LabelVar3)->text(), qs(app.Sprache.globalWord(73)));
  EXPECT_TRUE(field(form.Edit2)->isEnabled());
  EXPECT_FALSE(chooser->isVisible());
}

TEST_F(ChooserViewTest, DoubleClickTakesAnElementOfTheSecondTab) {
  // (13,1), the height difference, is on the tab of the reversible changes.
  chooser->tabs()->setCurrentIndex(1);
  QTest::mouseDClick(chooser->elementButton(13, 1), Qt::LeftButton);
  EXPECT_EQ(app.state.ElementGruppe, 13);
  EXPECT_EQ(view->picture()->pictureNumber(), 2801);
  EXPECT_TRUE(field(form.Va2_Edit)->isHidden());

  chooser->start();
  EXPECT_EQ(chooser->tabs()->currentIndex(), 1);
}

TEST_F(ChooserViewTest, BranchFlowFieldOnlyForDividingAndCombiningBranches) {
  for (int nr : {1, 5, 6, 7}) {
    chooser->start();
    chooser->open();
    click(chooser->elementButton(5, nr));
    click(okButton());
    EXPECT_EQ(field(form.Edit3)->isEnabled(), nr == 5 || nr == 6) << "(5," << nr << ")";
  }
}

}  // namespace
}  // namespace linecalc::test
