// The element panel follows the catalogue; the whole panel survives a save and restore.
#include <gtest/gtest.h>

#include <map>

#include "workspace/app_fixture.h"

namespace linecalc::test {
namespace {

class ElementPanel : public AppTest {
 protected:
  // Every control of the main window as text, to compare two states of the whole form. Hidden labels
  // and choice buttons are compared by their flags only: no run reads them (but it reads the row labels).
  std::map<std::string, std::string> snapshot() {
    std::map<std::string, std::string> all;
    const auto control = [](const Control& c) { return std::string(c.Visible ? "v" : "-") + (c.Enabled ? "e" : "-"); };
    const auto edit = [&](const std::string& name, const Edit& e) { all[name] = control(e) + e.Text; };
    const auto label = [&](const std::string& name, const Label& l) {
      all[name] = control(l) + (l.Visible ? l.Caption : "");
    };
    const auto combo = [&](const std::string& name, const Combo& c) {
      std::string items;
      for (const auto& item : c.Items) items += item + "|";
      all[name] = control(c) + std::to_string(c.ItemIndex) + ":" + items;
    };
    const auto check = [&](const std::string& name, const Check& c) {
      all[name] = control(c) + (c.Visible ? c.Caption + (c.Checked ? "[x]" : "[ ]") : "");
    };
    for (int row = 1; row <= 5; ++row) {
      const std::string n = std::to_string(row);
      all["Va" + n + "_Static"] = control(form.vaStatic(row)) + form.vaStatic(row).Caption;  // read by the run
      edit("Va" + n + "_Edit", form.vaEdit(row));
      label("LabelVar" + n, form.labelVar(row));
      combo("ComboVar" + n, form.comboVar(row));
    }
    edit("VaAnz_Edit", form.VaAnz_Edit);
    edit("Edit1", form.Edit1);
    edit("Edit2", form.Edit2);
    edit("Edit3", form.Edit3);
    label("Label5", form.Label5);
    label("Label7", form.Label7);
    label("Statisch_Element_Name1", form.Statisch_Element_Name1);
    check("RadioButton1", form.RadioButton1);
    check("RadioButton2", form.RadioButton2);
    combo("ComboBox6", form.ComboBox6);
    edit("Eingabe_Medium", form.Eingabe_Medium);
    edit("Eingabe_Volumenstrom", form.Eingabe_Volumenstrom);
    edit("Eingabe_Dichte", form.Eingabe_Dichte);
    edit("Eingabe_Viskositaet", form.Eingabe_Viskositaet);
    for (const auto& [name, c] : {std::pair{"ComboBox1", &form.ComboBox1},
                                  {"ComboBox2", &form.ComboBox2},
                                  {"ComboBox3", &form.ComboBox3},
                                  {"ComboBox4", &form.ComboBox4},
                                  {"ComboBox5", &form.ComboBox5},
                                  {"ComboBox6N", &form.ComboBox6N},
                                  {"ComboBox7N", &form.ComboBox7N},
                                  {"ComboBox8N", &form.ComboBox8N}}) {
      combo(name, *c);
    }
    check("Radio_fluessig", form.Radio_fluessig);
    check("Radio_gas", form.Radio_gas);
    edit("Edit_EingangsdruckN", form.Edit_EingangsdruckN);
    edit("Edit_EingangstemperaturN", form.Edit_EingangstemperaturN);
    edit("Edit_AusgangstemperaturN", form.Edit_AusgangstemperaturN);
    all["Image1"] = std::to_string(form.Image1);
    all["ToolButton15"] = control(form.ToolButton15);
    all["element"] = std::to_string(state.ElementGruppe) + "," + std::to_string(state.ElementNr);
    return all;
  }
};

TEST_F(ElementPanel, FirstStartShowsTheStraightPipeAndTheDefaultMedium) {
  EXPECT_EQ(form.Statisch_Element_Name1.Caption, "Gerade Rohre - kreisförmig");
  EXPECT_EQ(form.Va1_Static.Caption, "Rohrdurchmesser D:");
  EXPECT_EQ(form.Va1_Edit.Text, "100");  // empty keep row
  EXPECT_EQ(form.Va2_Edit.Text, "1,0");  // default with the decimal comma
  EXPECT_FALSE(form.Va3_Edit.Visible);
  EXPECT_EQ(form.ComboVar2.text(), "m");
  EXPECT_EQ(form.Eingabe_Medium.Text, "Wasser");
  EXPECT_EQ(form.Eingabe_Dichte.Text, "998,2");
  EXPECT_EQ(form.Edit2.Text, "0,1");
  EXPECT_TRUE(form.Edit2.Enabled);
  EXPECT_TRUE(form.Radio_fluessig.Checked);
  EXPECT_FALSE(form.Edit_EingangsdruckN.Enabled);
  EXPECT_EQ(form.Volumenstrom_Titel.Caption, "Volumenstrom:");
  EXPECT_EQ(form.ComboBox1.text(), "m3/h");
  EXPECT_EQ(form.Image1, 1601);
}

TEST_F(ElementPanel, AnElementChangeKeepsTheKeepRowsAndOverwritesTheOthers) {
  choose(1, 2);
  form.Va1_Edit.Text = "250";
  form.Va2_Edit.Text = "abc";  // not a number, kept all the same
  form.Va3_Edit.Text = "77";
  choose(4, 4);  // B, H keep; R and angle take their defaults
  EXPECT_EQ(form.Va1_Edit.Text, "250");
  EXPECT_EQ(form.Va2_Edit.Text, "abc");
  EXPECT_EQ(form.Va3_Edit.Text, "100");
  EXPECT_EQ(form.Va4_Edit.Text, "90");
  EXPECT_EQ(form.LabelVar4.Caption, "Grad");
  EXPECT_FALSE(form.ComboVar4.Visible);

  form.Va2_Edit.Text = "";
  choose(3, 1);  // D2 has the default "100", D1 keeps
  EXPECT_EQ(form.Va1_Edit.Text, "250");
  EXPECT_EQ(form.Va2_Edit.Text, "100");
  choose(1, 4);  // channel: both rows take defaults
  EXPECT_EQ(form.Va1_Edit.Text, "1000");
}

TEST_F(ElementPanel, TheRectangularPressureChangeStartsFromTheFirstSection) {
  choose(13, 2);
  form.Va1_Edit.Text = "80";
  form.Va2_Edit.Text = "120";
  choose(13, 3);
  EXPECT_EQ(form.Va3_Edit.Text, "80");
  EXPECT_EQ(form.Va4_Edit.Text, "120");
  EXPECT_EQ(form.Va3_Static.Caption, "Breite B2:");
}

TEST_F(ElementPanel, UnitPositionsStayWithinTheirFamily) {
  choose(1, 1);
  form.ComboVar1.selectText("in.");
  form.ComboVar2.selectText("ft.");
  choose(4, 1);  // diameters on rows 1 and 2: row 1 keeps inches, row 2 changes family and takes the setting
  EXPECT_EQ(form.ComboVar1.text(), "in.");
  EXPECT_EQ(form.ComboVar2.text(), "mm");
  choose(1, 6);  // the free section: row 1 in the section family
  EXPECT_EQ(form.ComboVar1.text(), "m2");
  app.EinstellungenDlg.combo_Laenge.ItemIndex = 1;
  choose(13, 1);
  EXPECT_EQ(form.ComboVar1.text(), "ft.");
}

TEST_F(ElementPanel, InputsThatOnlySomeElementsHave) {
  choose(2, 1);
  EXPECT_FALSE(form.Edit2.Enabled);
  EXPECT_TRUE(form.RadioButton1.Visible);
  EXPECT_TRUE(form.RadioButton1.Checked);
  choose(9, 7);
  EXPECT_EQ(form.RadioButton1.Caption, "30 Grad");
  EXPECT_EQ(form.RadioButton2.Caption, "15 Grad");
  choose(9, 6);
  EXPECT_EQ(form.Image1, 26051);
  EXPECT_FALSE(form.RadioButton1.Visible);
  EXPECT_FALSE(form.Edit3.Enabled);
  choose(5, 6);
  EXPECT_TRUE(form.Edit3.Enabled);
  EXPECT_TRUE(form.ToolButton15.Enabled);
  choose(12, 1);
  EXPECT_EQ(form.Va2_Edit.Text, "2");
  EXPECT_FALSE(form.ComboVar2.Visible);
  EXPECT_FALSE(form.LabelVar2.Visible);
}

TEST_F(ElementPanel, TheChooserOpensTheTabOfTheCurrentElement) {
  choose(13, 2);
  app.BtnBottomDlg.Start_Aktualisierung();
  EXPECT_EQ(app.BtnBottomDlg.PageIndex, 1);
  EXPECT_FALSE(app.BtnBottomDlg.press(8, 4));
  choose(8, 3);
  app.BtnBottomDlg.Start_Aktualisierung();
  EXPECT_EQ(app.BtnBottomDlg.PageIndex, 0);
  EXPECT_EQ(form.Statisch_Element_Name1.Caption, "Rückschlagarmaturen - Rückschlagklappe");
}

TEST_F(ElementPanel, SaveAndRestoreReturnEveryControlExactly) {
  choose(5, 5);
  form.Va1_Edit.Text = "150";
  form.ComboVar1.selectText("in.");
  form.Va3_Edit.Text = "12,5";
  form.Edit1.Text = "Leitung 7";
  form.VaAnz_Edit.Text = "2";
  form.Edit3.Text = "0,3";
  form.selectLiquid(false);
  form.ComboBox4.ItemIndex = 1;
  form.Einheiten_Volumenstrom_aktualisieren();
  form.ComboBox1.selectText("lb/hr");
  form.Label7.Caption = form.ComboBox1.text();
  form.Eingabe_Volumenstrom.Text = "1500";
  form.ComboBox5.ItemIndex = 1;
  form.Einheiten_Visko_aktualisieren();
  form.ComboBox3.selectText("cSt");
  form.ComboBox7N.selectText("K");
  form.Edit_EingangstemperaturN.Text = "310";
  const auto before = snapshot();

  form.Hauptfenster_sichern();
  choose(9, 7);
  form.RadioButton2.Checked = true;
  form.selectLiquid(true);
  form.ComboBox4.ItemIndex = 0;
  form.Einheiten_Volumenstrom_aktualisieren();
  form.Eingabe_Dichte.Text = "1,5";
  form.Hauptfenster_wiederherstellen();

  const auto after = snapshot();
  for (const auto& [name, value] : before) EXPECT_EQ(after.at(name), value) << name;
}

}  // namespace
}  // namespace linecalc::test
