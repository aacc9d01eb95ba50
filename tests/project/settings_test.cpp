// The settings dialog: unit sets, tied length units, Cancel and OK, and its words.
#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

#include "base/fields.h"
#include "base/unit_lists.h"
#include "workspace/app_fixture.h"

namespace linecalc::test {
namespace {

class SettingsDialog : public AppTest {
 protected:
  TEinstellungenDlg& dlg = app.EinstellungenDlg;

  Combo& unit(const std::string& name) { return *dlg.unitCombo(name); }

  // Every setting of the dialog as text, to compare two states.
  std::map<std::string, std::string> snapshot() {
    std::map<std::string, std::string> all;
    for (const UnitList& list : masterUnitLists())
      all[std::string(list.comboName)] = unit(std::string(list.comboName)).text();
    all["Combo_SI_US"] = dlg.Combo_SI_US.text();
    for (auto [name, combo] : {std::pair{"ComboBox1", &dlg.ComboBox1}, std::pair{"ComboBox2", &dlg.ComboBox2},
                               std::pair{"ComboBox3", &dlg.ComboBox3}, std::pair{"ComboBox4", &dlg.ComboBox4}}) {
      all[name] = std::to_string(combo->ItemIndex);
    }
    all["Edit1"] = dlg.Edit1.Text;
    all["Edit2"] = dlg.Edit2.Text;
    all["CheckBox1"] = dlg.CheckBox1.Checked ? "j" : "n";
    all["CheckBox2"] = dlg.CheckBox2.Checked ? "j" : "n";
    all["RadioGroup1"] = std::to_string(dlg.RadioGroup1);
    return all;
  }

  // Moves every setting away from its default.
  void changeEverything() {
    for (const UnitList& list : masterUnitLists()) {
      Combo& combo = unit(std::string(list.comboName));
      combo.ItemIndex = static_cast<int>(combo.Items.size()) - 1;
    }
    dlg.Combo_SI_US.ItemIndex = 1;
    dlg.ComboBox1.ItemIndex = 1;
    dlg.ComboBox2.ItemIndex = 3;
    dlg.ComboBox3.ItemIndex = 1;
    dlg.ComboBox4.ItemIndex = 1;
    dlg.Edit1.Text = "55";
    dlg.Edit2.Text = "6";
    dlg.CheckBox1.Checked = dlg.CheckBox2.Checked = true;
    dlg.RadioGroup1 = 2;
  }
};

// The two sets of the dialog's buttons, unit by unit as the settings describe them; the US set also
// takes "ft3", "ft3/lb" and "Hp", "lbw./sq.ft." for the element loss and "psi" for the running sum.
struct SetEntry {
  const char* combo;
  const char* si;
  const char* us;
};
constexpr SetEntry kSets[] = {
    {"combo_Volumenstrom", "m3/h", "gal/min"},
    {"combo_Massenstrom", "kg/h", "lb/hr"},
    {"combo_Dichte", "kg/m3", "lb/ft3"},
    {"combo_Visko_dyn", "10-6 kg/ms", "cP"},
    {"combo_Visko_kin", "10-6 m2/s", "cSt"},
    {"combo_Druck", "bar", "psia"},
    {"combo_Temperatur", "°C", "°F"},
    {"combo_Normvolumenstrom", "Nm3/h", "Nm3/h"},
    {"combo_Durchmesser", "mm", "in."},
    {"combo_Laenge", "m", "ft."},
    {"Combo_Querschnitt", "m2", "yd2"},
    {"combo_geschwindigkeit", "m/s", "ft/s"},
    {"combo_Stromlauf1", "mbar", "lbw./sq.ft."},
    {"combo_Stromlauf2", "mbar", "psi"},
    {"combo_Volumen", "m3", "ft3"},
    {"combo_spezVolumen", "m3/kg", "ft3/lb"},
    {"combo_Leistung", "kW", "Hp"},
};

TEST_F(SettingsDialog, TheSiAndUsButtonsSelectTheirWholeSetByText) {
  std::set<std::string> covered;
  for (const auto& entry : kSets) covered.insert(entry.combo);
  for (const UnitList& list : masterUnitLists())
    EXPECT_TRUE(covered.contains(std::string(list.comboName))) << list.comboName;

  changeEverything();  // every box on its last entry, the unit system "US"
  dlg.Button1Click();
  for (const auto& entry : kSets) EXPECT_EQ(unit(entry.combo).text(), entry.si) << entry.combo;
  EXPECT_EQ(dlg.Combo_SI_US.text(), "SI");

  dlg.Button2Click();
  for (const auto& entry : kSets) EXPECT_EQ(unit(entry.combo).text(), entry.us) << entry.combo;
  EXPECT_EQ(dlg.Combo_SI_US.text(), "US");

  // Nothing else of the dialog belongs to a unit set.
  EXPECT_EQ(dlg.Edit2.Text, "6");
  EXPECT_EQ(dlg.ComboBox3.ItemIndex, 1);
}

// Length, diameter and section units stay in one system. Choosing "m" moves a section unit beyond
// "mm2" (index 2) to "m2"; choosing "ft." moves one before "in2" (index 3) to "in2"; a unit of the
// chosen system stays.
struct TiedCase {
  const char* box;
  const char* chosen;
  const char *length, *diameter, *section;              // before
  const char *wantLength, *wantDiameter, *wantSection;  // after
};
constexpr TiedCase kTied[] = {
    {"combo_Laenge", "m", "ft.", "in.", "ft2", "m", "mm", "m2"},
    {"combo_Laenge", "m", "ft.", "mm", "cm2", "m", "mm", "cm2"},
    {"combo_Laenge", "ft.", "m", "mm", "mm2", "ft.", "in.", "in2"},
    {"combo_Laenge", "ft.", "m", "in.", "yd2", "ft.", "in.", "yd2"},
    {"combo_Durchmesser", "in.", "m", "mm", "cm2", "ft.", "in.", "in2"},
    {"combo_Durchmesser", "mm", "ft.", "in.", "yd2", "m", "mm", "m2"},
    {"Combo_Querschnitt", "ft2", "m", "mm", "ft2", "ft.", "in.", "ft2"},
    {"Combo_Querschnitt", "mm2", "ft.", "in.", "mm2", "m", "mm", "mm2"},
};

TEST_F(SettingsDialog, LengthDiameterAndSectionUnitsStayInOneSystem) {
  for (const TiedCase& c : kTied) {
    SCOPED_TRACE(std::string(c.box) + " := " + c.chosen);
    ASSERT_TRUE(dlg.combo_Laenge.selectText(c.length));
    ASSERT_TRUE(dlg.combo_Durchmesser.selectText(c.diameter));
    ASSERT_TRUE(dlg.Combo_Querschnitt.selectText(c.section));
    ASSERT_TRUE(unit(c.box).selectText(c.chosen));  // the user's choice, then the box's change handler
    const std::string box = c.box;
    if (box == "combo_Laenge") dlg.combo_LaengeChange();
    if (box == "combo_Durchmesser") dlg.combo_DurchmesserChange();
    if (box == "Combo_Querschnitt") dlg.Combo_QuerschnittChange();
    EXPECT_EQ(dlg.combo_Laenge.text(), c.wantLength);
    EXPECT_EQ(dlg.combo_Durchmesser.text(), c.wantDiameter);
    EXPECT_EQ(dlg.Combo_Querschnitt.text(), c.wantSection);
  }
}

TEST_F(SettingsDialog, CancelRestoresTheSettingsOfTheOpeningAndOkKeepsTheChanges) {
  dlg.Button2Click();
  dlg.Edit2.Text = "2";
  const auto opened = snapshot();

  dlg.FormShow();
  EXPECT_TRUE(dlg.Visible);
  changeEverything();
  dlg.Button1Click();
  ASSERT_NE(snapshot(), opened);
  dlg.CancelBtnClick();
  EXPECT_FALSE(dlg.Visible);
  EXPECT_EQ(snapshot(), opened);

  dlg.FormShow();
  changeEverything();
  const auto changed = snapshot();
  EXPECT_TRUE(dlg.OKBtnClick());
  EXPECT_FALSE(dlg.Visible);
  EXPECT_EQ(snapshot(), changed);

  // The next Cancel goes back to what OK accepted, not to the first opening.
  dlg.FormShow();
  dlg.Button1Click();
  dlg.CancelBtnClick();
  EXPECT_EQ(snapshot(), changed);
}

// Decimals must be a whole number from 0 to 6, diagram points a whole number of at least 2.
struct OkCase {
  const char* decimals;
  const char* points;
  bool closes;
  const char* message;  // the German word of the refusal; "" when it closes
  bool decimalsField;   // the refused field gets the focus
};
constexpr const char* kDecimalsWord = "Die Zahl der Nachkommastellen muss eine ganze Zahl von 0 bis 6 sein.";
constexpr const char* kPointsWord = "Die Zahl der Punkte eines Diagramms muss eine ganze Zahl von mindestens 2 sein.";
constexpr OkCase kOk[] = {
    {"3", "20", true, "", false},
    {"0", "2", true, "", false},
    {"6", "1000", true, "", false},
    {" 4 ", " 7", true, "", false},
    {"7", "20", false, kDecimalsWord, true},
    {"-1", "20", false, kDecimalsWord, true},
    {"2,5", "20", false, kDecimalsWord, true},
    {"", "20", false, kDecimalsWord, true},
    {"drei", "20", false, kDecimalsWord, true},
    {"3", "1", false, kPointsWord, false},
    {"3", "0", false, kPointsWord, false},
    {"3", "2.0", false, kPointsWord, false},
    {"9", "1", false, kDecimalsWord, true},  // the first bad field is reported, only that one
};

TEST_F(SettingsDialog, OkRefusesDecimalsOutside0To6AndFewerThanTwoDiagramPoints) {
  for (const OkCase& c : kOk) {
    SCOPED_TRACE(std::string("decimals '") + c.decimals + "', points '" + c.points + "'");
    meldungen.clear();
    dlg.FormShow();
    dlg.Edit2.Text = c.decimals;
    dlg.Edit1.Text = c.points;
    EXPECT_EQ(dlg.OKBtnClick(), c.closes);
    EXPECT_EQ(dlg.Visible, !c.closes);
    if (c.closes) {
      EXPECT_TRUE(messages().empty());
      continue;
    }
    ASSERT_EQ(messages().size(), 1u);
    EXPECT_EQ(messages()[0], (RecordedMessage{MessageKind::Error, "Falsche Eingabe", c.message}));
    EXPECT_EQ(dlg.Fokus, c.decimalsField ? static_cast<const Control*>(&dlg.Edit2) : &dlg.Edit1);
    dlg.CancelBtnClick();
  }
}

TEST_F(SettingsDialog, TheProgramLanguageBoxListsFourLanguagesWithFrenchLast) {
  EXPECT_EQ(dlg.ComboBox2.Items, (std::vector<std::string>{"Deutsch", "English", "Nederlands", "Français"}));
  EXPECT_EQ(dlg.ComboBox3.Items, (std::vector<std::string>{"metrisch", "US"}));
  EXPECT_EQ(dlg.ComboBox4.Items, (std::vector<std::string>{"Variante A", "Variante B"}));
  EXPECT_EQ(dlg.Combo_SI_US.Items, (std::vector<std::string>{"SI", "US"}));
}

class SettingsWords : public ::testing::TestWithParam<char> {};

// The dialog's block has a word for every caption in every language, and exactly 41 rows: a row
// added or lost inside it would shift every later word.
TEST_P(SettingsWords, EveryCaptionHasItsWordAndTheBlockHas41Rows) {
  RecordingMeldungen meldungen;
  Anwendung app{meldungen};
  app.Sprache.Sprachkennung = GetParam();
  app.start(LINECALC_BUILD_DATA_DIR);
  TEinstellungenDlg& dlg = app.EinstellungenDlg;

  std::vector<std::string> words = {dlg.Caption,
                                    dlg.TabSheet1.Caption,
                                    dlg.TabSheet2.Caption,
                                    dlg.programLanguageLabel.Caption,
                                    dlg.substanceLanguageLabel.Caption,
                                    dlg.userDatabaseUnitsLabel.Caption,
                                    dlg.frictionMethodLabel.Caption,
                                    dlg.diagramPointsLabel.Caption,
                                    dlg.decimalsLabel.Caption,
                                    dlg.unitSystemLabel.Caption,
                                    dlg.CheckBox1.Caption,
                                    dlg.CheckBox2.Caption,
                                    dlg.RadioGroup1Caption.Caption,
                                    dlg.Button1.Caption,
                                    dlg.Button2.Caption,
                                    dlg.OKBtn.Caption,
                                    dlg.CancelBtn.Caption,
                                    dlg.decimalsMessage,
                                    dlg.diagramPointsMessage};
  words.insert(words.end(), dlg.RadioGroup1Items.begin(), dlg.RadioGroup1Items.end());
  words.insert(words.end(), dlg.ComboBox1.Items.begin(), dlg.ComboBox1.Items.end());
  for (const UnitList& list : masterUnitLists()) words.push_back(dlg.unitLabel(list.comboName)->Caption);
  for (const auto& word : words) {
    EXPECT_FALSE(word.empty() || word == ":") << "a caption without its word";
  }
  EXPECT_EQ(dlg.ComboBox1.Items.size(), 2u);

  const auto& lines = app.Sprache.Sprachdateiliste;
  std::size_t head = 0;
  while (head < lines.size() && Feld_holen(lines[head], '\t', 1) != "EinstellungenDlg") ++head;
  ASSERT_LT(head, lines.size());
  for (std::size_t row = head + 1; row <= head + 41; ++row) {
    ASSERT_LT(row, lines.size());
    EXPECT_EQ(Feld_holen(lines[row], '\t', 1), "") << "row " << row - head << " is a block head";
  }
  EXPECT_TRUE(head + 42 >= lines.size() || !Feld_holen(lines[head + 42], '\t', 1).empty())
      << "the block runs on past its 41 rows";
}

INSTANTIATE_TEST_SUITE_P(Languages, SettingsWords, ::testing::Values('D', 'E', 'F', 'H'),
                         [](const auto& info) { return std::string(1, info.param); });

TEST_F(SettingsDialog, GermanWordsAreThoseOfTheLanguageFile) {
  EXPECT_EQ(dlg.Caption, "Einstellungen");
  EXPECT_EQ(dlg.Button1.Caption, "Standard-Units SI (metrisch)");
  EXPECT_EQ(dlg.Button2.Caption, "Standard-Units US");
  EXPECT_EQ(dlg.unitLabel("combo_Laenge")->Caption, "Länge:");
  EXPECT_EQ(dlg.unitLabel("combo_Leistung")->Caption, "Leistung:");
  EXPECT_EQ(dlg.RadioGroup1Items[1], "als reales Gas aktualisieren");
  EXPECT_EQ(dlg.decimalsMessage, kDecimalsWord);
  EXPECT_EQ(dlg.diagramPointsMessage, kPointsWord);
}

}  // namespace
}  // namespace linecalc::test
