#include "einstellungen_dlg_view.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <functional>
#include <memory>
#include <string>

#include "gui/gui_fixture.h"

namespace linecalc::test {
namespace {

using gui::EinstellungenDlgView;
using gui::qs;
using gui::ss;

class EinstellungenViewTest : public GuiTest {
 protected:
  TEinstellungenDlg& model = app.EinstellungenDlg;
  std::unique_ptr<EinstellungenDlgView> view;

  // Opens the dialog as the application does: the model saves the settings, the view shows them.
  void SetUp() override {
    GuiTest::SetUp();
    view = std::make_unique<EinstellungenDlgView>(app, words);
    model.FormShow();
    view->refresh();
    view->show();
    view->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(view.get()));
  }

  QComboBox* unit(const char* comboName) const { return view->unitBox(comboName); }
  // A check box or radio button toggled from the keyboard.
  static void press(QAbstractButton* button) {
    button->setFocus();
    QTest::keyClick(button, Qt::Key_Space);
  }
  static void choose(QComboBox* box, const std::string& item) {
    const int index = box->findText(qs(item));
    ASSERT_GE(index, 0) << item;
    box->setCurrentIndex(index);  // as a user's pick: the box reports the change
  }
};

TEST_F(EinstellungenViewTest, ShowsEveryControlWithItsWords) {
  EXPECT_EQ(ss(view->windowTitle()), "Einstellungen");
  EXPECT_EQ(ss(view->pages()->tabText(0)), "Allgemein");
  EXPECT_EQ(ss(view->pages()->tabText(1)), "Einheiten");
  EXPECT_EQ(ss(view->okButton()->text()), "OK");
  EXPECT_EQ(ss(view->cancelButton()->text()), "Abbrechen");
  EXPECT_EQ(ss(view->usButton()->text()), "Standard-Units US");
  EXPECT_EQ(ss(view->gasUpdateButton(1)->text()), "als reales Gas aktualisieren");
  EXPECT_TRUE(view->gasUpdateButton(0)->isChecked());
  EXPECT_EQ(view->programLanguageBox()->count(), 4);
  EXPECT_EQ(ss(view->programLanguageBox()->currentText()), "Deutsch");  // the program runs in German
  EXPECT_EQ(ss(view->programLanguageBox()->itemText(3)), "Français");
  EXPECT_EQ(ss(view->substanceLanguageBox()->currentText()), "Deutsch");
  EXPECT_EQ(ss(view->decimalsEdit()->text()), "3");
  EXPECT_EQ(ss(view->diagramPointsEdit()->text()), "20");

  // The master unit lists with their lengths and first units, as the settings define them.
  struct Case {
    const char* combo;
    int count;
    const char* first;
  };
  for (const Case& c :
       {Case{"combo_Volumenstrom", 13, "m3/h"}, Case{"combo_Massenstrom", 8, "kg/h"},
        Case{"combo_Normvolumenstrom", 3, "Nm3/h"}, Case{"combo_Visko_dyn", 9, "10-6 kg/ms"},
        Case{"combo_Visko_kin", 6, "10-6 m2/s"}, Case{"combo_Dichte", 11, "kg/m3"}, Case{"combo_Druck", 15, "bar"},
        Case{"combo_Stromlauf1", 14, "bar"}, Case{"combo_Stromlauf2", 14, "bar"}, Case{"combo_Temperatur", 5, "°C"},
        Case{"combo_geschwindigkeit", 7, "m/s"}, Case{"combo_Laenge", 2, "m"}, Case{"combo_Durchmesser", 2, "mm"},
        Case{"Combo_Querschnitt", 6, "m2"}, Case{"combo_Volumen", 3, "m3"}, Case{"combo_spezVolumen", 11, "m3/kg"},
        Case{"combo_Leistung", 2, "kW"}, Case{"Combo_SI_US", 2, "SI"}}) {
    QComboBox* box = unit(c.combo);
    ASSERT_NE(box, nullptr) << c.combo;
    EXPECT_EQ(box->count(), c.count) << c.combo;
    EXPECT_EQ(ss(box->currentText()), c.first) << c.combo;
  }
}

TEST_F(EinstellungenViewTest, TheGeneralControlsWriteTheModel) {
  choose(view->substanceLanguageBox(), "Englisch");
  choose(view->frictionMethodBox(), "Variante B");
  press(view->lineWrapCheck());
  press(view->gasUpdateButton(2));
  typeInto(view->diagramPointsEdit(), "35");
  EXPECT_EQ(model.ComboBox1.ItemIndex, 1);
  EXPECT_EQ(model.ComboBox4.ItemIndex, 1);
  EXPECT_TRUE(model.CheckBox1.Checked);
  EXPECT_EQ(model.RadioGroup1, 2);
  EXPECT_FALSE(view->gasUpdateButton(0)->isChecked());
  EXPECT_EQ(model.Edit1.Text, "35");
}

// Cancel, Escape and the close box all bring back what was set when the dialog opened.
TEST_F(EinstellungenViewTest, CancelRestoresTheSettingsOfTheOpening) {
  const std::function<void(EinstellungenDlgView&)> ways[] = {
      [](EinstellungenDlgView& v) { click(v.cancelButton()); },
      [](EinstellungenDlgView& v) { QTest::keyClick(&v, Qt::Key_Escape); },
      [](EinstellungenDlgView& v) { v.close(); },
  };
  for (const auto& cancel : ways) {
    model.FormShow();
    view->refresh();
    view->show();
    QSignalSpy changed(view.get(), &EinstellungenDlgView::modelChanged);
    choose(unit("combo_Druck"), "psia");
    choose(unit("combo_Temperatur"), "K");
    choose(unit("combo_Dichte"), "lb/ft3");
    choose(view->programLanguageBox(), "Nederlands");
    press(view->gasUpdateButton(1));
    typeInto(view->decimalsEdit(), "5");
    // The dialog writes each change into the settings at once ...
    ASSERT_EQ(model.combo_Druck.text(), "psia");
    ASSERT_EQ(model.Edit2.Text, "5");

    cancel(*view);
    // ... and the cancel takes all of them back.
    EXPECT_FALSE(view->isVisible());
    EXPECT_FALSE(model.Visible);
    EXPECT_EQ(model.combo_Druck.text(), "bar");
    EXPECT_EQ(model.combo_Temperatur.text(), "°C");
    EXPECT_EQ(model.combo_Dichte.text(), "kg/m3");
    EXPECT_EQ(model.ComboBox2.ItemIndex, 0);
    EXPECT_EQ(model.RadioGroup1, 0);
    EXPECT_EQ(model.Edit2.Text, "3");
    EXPECT_EQ(changed.count(), 1);
    EXPECT_TRUE(messages().empty());  // no note on the language: it was not changed
  }
}

// A number the model refuses keeps the dialog open, with the message and the focus on the field, even
// when the user pressed OK on the units page.
TEST_F(EinstellungenViewTest, OkWithABadNumberStaysOpenWithTheFocusOnTheField) {
  struct Case {
    QLineEdit* (EinstellungenDlgView::*field)() const;
    const char* text;
    const char* message;
  };
  const Case cases[] = {
      {&EinstellungenDlgView::decimalsEdit, "7",
       "Die Zahl der Nachkommastellen muss eine ganze Zahl von 0 bis 6 sein."},
      {&EinstellungenDlgView::decimalsEdit, "2,5",
       "Die Zahl der Nachkommastellen muss eine ganze Zahl von 0 bis 6 sein."},
      {&EinstellungenDlgView::diagramPointsEdit, "1",
       "Die Zahl der Punkte eines Diagramms muss eine ganze Zahl von mindestens 2 sein."},
  };
  for (const Case& c : cases) {
    meldungen.clear();
    QLineEdit* field = (view.get()->*c.field)();
    typeInto(field, c.text);
    view->pages()->setCurrentIndex(1);
    QSignalSpy changed(view.get(), &EinstellungenDlgView::modelChanged);
    click(view->okButton());
    EXPECT_TRUE(view->isVisible()) << c.text;
    EXPECT_TRUE(model.Visible) << c.text;
    ASSERT_EQ(messages().size(), 1u) << c.text;
    EXPECT_EQ(messages()[0].kind, MessageKind::Error);
    EXPECT_EQ(messages()[0].caption, "Falsche Eingabe");
    EXPECT_EQ(messages()[0].text, c.message);
    EXPECT_EQ(view->pages()->currentIndex(), 0) << c.text;
    EXPECT_TRUE(field->hasFocus()) << c.text;
    EXPECT_EQ(changed.count(), 0);
    typeInto(field, "4");
  }
  click(view->okButton());
  EXPECT_FALSE(view->isVisible());
  EXPECT_EQ(model.Edit2.Text, "4");
  EXPECT_EQ(model.Edit1.Text, "4");
}

// The two buttons reach the model and the boxes show its sets (the whole sets are checked on the model).
TEST_F(EinstellungenViewTest, TheSetButtonsSelectTheSiAndUsUnits) {
  struct Case {
    const char* combo;
    const char* si;
    const char* us;
  };
  const Case cases[] = {
      {"combo_Volumenstrom", "m3/h", "gal/min"},
      {"combo_Durchmesser", "mm", "in."},
      {"combo_Stromlauf2", "mbar", "psi"},
      {"Combo_SI_US", "SI", "US"},
  };
  click(view->usButton());
  for (const Case& c : cases) {
    EXPECT_EQ(ss(unit(c.combo)->currentText()), c.us) << c.combo;
    EXPECT_EQ(model.unitCombo(c.combo)->text(), c.us) << c.combo;
  }
  click(view->siButton());
  for (const Case& c : cases) {
    EXPECT_EQ(ss(unit(c.combo)->currentText()), c.si) << c.combo;
    EXPECT_EQ(model.unitCombo(c.combo)->text(), c.si) << c.combo;
  }
}

// Length, diameter and cross section stay in one unit system whichever of the three the user picks.
TEST_F(EinstellungenViewTest, LengthDiameterAndSectionKeepOneUnitSystem) {
  struct Case {
    const char* combo;
    const char* pick;
    const char* length;
    const char* diameter;
    const char* section;
  };
  for (const Case& c :
       {Case{"combo_Laenge", "ft.", "ft.", "in.", "in2"}, Case{"Combo_Querschnitt", "cm2", "m", "mm", "cm2"},
        Case{"combo_Durchmesser", "in.", "ft.", "in.", "in2"}, Case{"Combo_Querschnitt", "ft2", "ft.", "in.", "ft2"},
        Case{"combo_Durchmesser", "mm", "m", "mm", "m2"}}) {
    choose(unit(c.combo), c.pick);
    EXPECT_EQ(ss(unit("combo_Laenge")->currentText()), c.length) << c.combo << " " << c.pick;
    EXPECT_EQ(ss(unit("combo_Durchmesser")->currentText()), c.diameter) << c.combo << " " << c.pick;
    EXPECT_EQ(ss(unit("Combo_Querschnitt")->currentText()), c.section) << c.combo << " " << c.pick;
  }
}

// A new program language is kept on OK with a note that it takes effect at the next start.
TEST_F(EinstellungenViewTest, ANewLanguageOnOkGivesTheNote) {
  struct Case {
    const char* language;
    bool note;
  };
  for (const Case& c : {Case{"Deutsch", false}, Case{"English", true}, Case{"English", false}}) {
    meldungen.clear();
    model.FormShow();
    view->refresh();
    view->show();
    QSignalSpy changed(view.get(), &EinstellungenDlgView::modelChanged);
    choose(view->programLanguageBox(), c.language);
    click(view->okButton());
    EXPECT_FALSE(view->isVisible());
    EXPECT_EQ(model.ComboBox2.text(), c.language);
    EXPECT_EQ(changed.count(), 1);
    if (c.note) {
      ASSERT_EQ(messages().size(), 1u) << c.language;
      EXPECT_EQ(messages()[0].kind, MessageKind::Information);
      EXPECT_EQ(messages()[0].text, "Die neue Sprache gilt ab dem nächsten Start des Programms.");
    } else {
      EXPECT_TRUE(messages().empty()) << c.language;  // the third round opens on English already
    }
  }
}

}  // namespace
}  // namespace linecalc::test
