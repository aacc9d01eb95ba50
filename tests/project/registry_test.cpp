// Settings through the store: the round trip of every section, the first start, repairs of stored
// values, the recent files and the INI file store.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <sstream>
#include <string>

#include "base/meldungen.h"
#include "base/unit_lists.h"
#include "project/recent_files.h"
#include "project/registrierung.h"
#include "project/registry.h"
#include "workspace/anwendung.h"

namespace linecalc::test {
namespace {

namespace fs = std::filesystem;

// An application started as the program starts: the language first, then the language files, then
// all other settings.
struct StartedApp {
  RecordingMeldungen meldungen;
  Anwendung app;

  explicit StartedApp(const Registrierung& store, char separator = ',', int screenHeight = 0)
      : app(meldungen, separator) {
    Registry_Sprachversion_lesen(app, store);
    app.start(LINECALC_BUILD_DATA_DIR);
    app.Fenster.screenHeight = screenHeight;
    Registry_Lesen(app, store);
  }
};

// Every setting and every stored control of the panels as text, to compare two applications.
std::map<std::string, std::string> snapshot(Anwendung& app) {
  std::map<std::string, std::string> all;
  const auto combo = [&](const std::string& name, const Combo& c) {
    all[name] = std::to_string(c.ItemIndex) + ":" + c.text();
  };
  // Boxes whose items are words of the language: the second application may run in another one.
  const auto choice = [&](const std::string& name, const Combo& c) { all[name] = std::to_string(c.ItemIndex); };
  const TEinstellungenDlg& s = app.EinstellungenDlg;
  for (const UnitList& list : masterUnitLists()) combo(std::string(list.comboName), *s.unitCombo(list.comboName));
  combo("Combo_SI_US", s.Combo_SI_US);
  choice("settings.ComboBox1", s.ComboBox1);
  combo("settings.ComboBox2", s.ComboBox2);
  combo("settings.ComboBox3", s.ComboBox3);
  combo("settings.ComboBox4", s.ComboBox4);
  all["settings.Edit1"] = s.Edit1.Text;
  all["settings.Edit2"] = s.Edit2.Text;
  all["settings.CheckBox1"] = s.CheckBox1.Checked ? "on" : "off";
  all["settings.CheckBox2"] = s.CheckBox2.Checked ? "on" : "off";
  all["settings.RadioGroup1"] = std::to_string(s.RadioGroup1);
  all["Normspaltenbreite0"] = std::to_string(s.Normspaltenbreite0);
  all["Normspaltenbreite1"] = std::to_string(s.Normspaltenbreite1);

  const auto place = [&](const std::string& name, const std::optional<int>& value) {
    all[name] = value ? std::to_string(*value) : "none";
  };
  place("HF_Left", app.Fenster.HF_Left);
  place("HF_Top", app.Fenster.HF_Top);
  place("AF_Left", app.Fenster.AF_Left);
  place("AF_Top", app.Fenster.AF_Top);
  place("AF_Width", app.Fenster.AF_Width);
  place("AF_Height", app.Fenster.AF_Height);

  const TMyWindow& f = app.MyWindow;
  all["Eingabe_Medium"] = f.Eingabe_Medium.Text;
  choice("ComboBox4", f.ComboBox4);
  combo("ComboBox1", f.ComboBox1);
  all["Label7"] = f.Label7.Caption;
  all["Eingabe_Volumenstrom"] = f.Eingabe_Volumenstrom.Text;
  all["Eingabe_Dichte"] = f.Eingabe_Dichte.Text;
  combo("ComboBox2", f.ComboBox2);
  choice("ComboBox5", f.ComboBox5);
  combo("ComboBox3", f.ComboBox3);
  all["Eingabe_Viskositaet"] = f.Eingabe_Viskositaet.Text;
  all["liquid"] = f.Radio_fluessig.Checked ? "liquid" : "gas";
  all["gas fields enabled"] = f.Edit_EingangsdruckN.Enabled && f.ComboBox8N.Enabled ? "yes" : "no";
  all["Edit_EingangsdruckN"] = f.Edit_EingangsdruckN.Text;
  all["Edit_EingangstemperaturN"] = f.Edit_EingangstemperaturN.Text;
  all["Edit_AusgangstemperaturN"] = f.Edit_AusgangstemperaturN.Text;
  combo("ComboBox6N", f.ComboBox6N);
  combo("ComboBox7N", f.ComboBox7N);
  combo("ComboBox8N", f.ComboBox8N);
  all["element"] = std::to_string(app.state.ElementGruppe) + "," + std::to_string(app.state.ElementNr);
  for (int row = 1; row <= kPanelRows; ++row) {
    if (!f.vaEdit(row).Visible) continue;
    all["Va" + std::to_string(row)] = f.vaEdit(row).Text;
    if (f.comboVar(row).Visible) combo("ComboVar" + std::to_string(row), f.comboVar(row));
  }
  all["roughness"] = f.Edit2.Text;
  combo("ComboBox6", f.ComboBox6);
  for (int i = 0; i < app.RecentFiles.Count(); ++i)
    all["recent" + std::to_string(i)] = app.RecentFiles.GetRecentFileName(i);
  return all;
}

void expectSame(const std::map<std::string, std::string>& want, const std::map<std::string, std::string>& got) {
  for (const auto& [name, value] : want) {
    const auto it = got.find(name);
    ASSERT_NE(it, got.end()) << name;
    EXPECT_EQ(it->second, value) << name;
  }
  EXPECT_EQ(got.size(), want.size());
}

TEST(Registry, EverySettingAndThePanelsComeBackAsTheyWereLeft) {
  MemoryRegistrierung empty;
  StartedApp first(empty);
  Anwendung& app = first.app;
  TEinstellungenDlg& s = app.EinstellungenDlg;
  s.Button2Click();  // every unit list away from its first entry, the tables in US units
  s.combo_Leistung.ItemIndex = 1;
  s.ComboBox1.ItemIndex = 1;
  s.ComboBox2.ItemIndex = 3;  // French from the next start
  s.ComboBox3.ItemIndex = 1;
  s.ComboBox4.ItemIndex = 1;
  s.Edit1.Text = "50";
  s.Edit2.Text = "5";
  s.CheckBox1.Checked = s.CheckBox2.Checked = true;
  s.RadioGroup1 = 2;
  s.Normspaltenbreite0 = 111;
  s.Normspaltenbreite1 = 222;
  app.Fenster = {10, 20, 30, 40, 800, 600};

  // A gas by mass flow with kinematic viscosity: each unit list is rebuilt before its index counts.
  TMyWindow& f = app.MyWindow;
  f.Eingabe_Medium.Text = "Stickstoff";
  f.selectLiquid(false);
  f.ComboBox4.ItemIndex = 1;
  f.Einheiten_Volumenstrom_aktualisieren();
  f.ComboBox1.ItemIndex = 4;  // lb/min
  f.Label7.Caption = f.ComboBox1.text();
  f.Eingabe_Volumenstrom.Text = "12,5";
  f.Eingabe_Dichte.Text = "1,16";
  f.ComboBox2.ItemIndex = 2;
  f.ComboBox5.ItemIndex = 1;
  f.Einheiten_Visko_aktualisieren();
  f.ComboBox3.ItemIndex = 3;  // cSt
  f.Eingabe_Viskositaet.Text = "15,1";
  f.Edit_EingangsdruckN.Text = "3,5";
  f.ComboBox6N.ItemIndex = 11;
  f.Edit_EingangstemperaturN.Text = "310";
  f.ComboBox7N.ItemIndex = 1;
  f.Edit_AusgangstemperaturN.Text = "80";
  f.ComboBox8N.ItemIndex = 2;

  // Element (1,6): a section row and two length rows, in units other than the settings' US units,
  // so the rows must take their stored units after the panel is rebuilt.
  app.state.ElementGruppe = 1;
  app.state.ElementNr = 6;
  f.Element_Fenster_aktualisieren();
  f.Va1_Edit.Text = "0,02";
  f.ComboVar1.ItemIndex = 1;  // cm2
  f.Va2_Edit.Text = "0,5";
  f.ComboVar2.ItemIndex = 0;  // m
  f.Va3_Edit.Text = "12,5";
  f.ComboVar3.ItemIndex = 0;
  f.Edit2.Text = "0,05";
  f.ComboBox6.ItemIndex = 1;
  app.RecentFiles.AddRecentFile("/projekte/a.slf");
  app.RecentFiles.AddRecentFile("/projekte/b.slf");

  MemoryRegistrierung store;
  Registry_Schreiben(app, store);
  const auto left = snapshot(app);
  EXPECT_EQ(left.at("ComboVar1"), "1:cm2");

  StartedApp second(store);
  EXPECT_EQ(second.app.Sprache.Sprachkennung, 'F');
  EXPECT_EQ(second.app.productTitle, "WH Linecalc 7.22");
  expectSame(left, snapshot(second.app));
}

// The value names of every section, as the settings store them.
TEST(Registry, WritingStoresEveryValueNameOfEverySection) {
  MemoryRegistrierung empty;
  StartedApp started(empty);
  started.app.Fenster = {1, 2, 3, 4, 5, 6};
  MemoryRegistrierung store;
  Registry_Schreiben(started.app, store);

  const std::map<std::string, std::vector<std::string>> expected = {
      {"Allgemein",
       {"Sprachversion", "RNormspaltenbreite0", "RNormspaltenbreite1", "Beremethode", "Nachkomma", "Punkte_Dia",
        "Sprache_Stoffe", "Ben_Daba_Einheit", "Zeilenumbruch", "Unit_Umrechnung", "Gasdaten_aktualisieren"}},
      {"Units",
       {"EHVolumenstromA", "EHMassenstromA", "EHDichteA", "EHViskodynA", "EHViskokinA", "EHDruckA", "EHTemperaturA",
        "EHNormvolumenstromA", "EHDurchmesserA", "EHLaengeA", "EHQuerschnittA", "EHGeschwindigkeitA", "EHStromlauf1A",
        "EHStromlauf2A", "EHVolumen", "EHSpezVolumen", "EHLeistung", "EHSI_US"}},
      {"Fenster", {"HF_Left", "HF_Top", "AF_Left", "AF_Top", "AF_Width", "AF_Height"}},
      {"Medium",
       {"Art", "Vol_Mastrom", "Menge", "Menge_Einheit", "Dichte", "Dichte_Einheit", "Dyn_KinVisko", "Visko",
        "Visko_Einheit", "fluessig"}},
      {"Gasdaten", {"E_Druck", "E_Druck_Einheit", "E_Temp", "E_Temp_Einheit", "A_Temp", "A_Temp_Einheit"}},
      {"Rohr",
       {"Gruppe", "UGruppe", "Va1", "Va1_Einheit", "Va2", "Va2_Einheit", "Va3", "Va3_Einheit", "Va4", "Va4_Einheit",
        "Va5", "Va5_Einheit", "VaRauh", "VaRauh_Einheit"}},
      {"RecentFiles",
       {"fMaxEntries", "fPathFormat", "fRecentFile1", "fRecentFile2", "fRecentFile3", "fRecentFile4", "fRecentFile5",
        "fRecentFile6"}},
  };
  ASSERT_EQ(store.sections().size(), expected.size());
  for (const auto& [section, values] : store.sections()) {
    ASSERT_TRUE(expected.contains(section)) << section;
    std::vector<std::string> names;
    for (const auto& value : values) names.push_back(value.first);
    EXPECT_EQ(names, expected.at(section)) << section;
  }
  // Booleans are "j" and "n", the aggregate state "1" for a liquid.
  EXPECT_EQ(store.readString("Allgemein", "Zeilenumbruch"), "n");
  EXPECT_EQ(store.readString("Medium", "fluessig"), "1");
}

TEST(Registry, AFirstStartWithoutAnyValueComesUpInEnglishWithTheDefaults) {
  MemoryRegistrierung empty;
  StartedApp started(empty, '.');
  Anwendung& app = started.app;
  EXPECT_EQ(app.Sprache.Sprachkennung, 'E');
  EXPECT_EQ(app.productTitle, "WH Linecalc 7.22");
  EXPECT_TRUE(started.meldungen.messages().empty());

  const TEinstellungenDlg& s = app.EinstellungenDlg;
  EXPECT_EQ(s.Normspaltenbreite0, 130);
  EXPECT_EQ(s.Normspaltenbreite1, 150);
  EXPECT_EQ(s.Edit2.Text, "3");
  EXPECT_EQ(s.Edit1.Text, "20");
  EXPECT_EQ(s.ComboBox1.ItemIndex, 1);  // substance names in English when the program is not German
  EXPECT_EQ(s.ComboBox2.text(), "English");
  EXPECT_EQ(s.ComboBox3.text(), "metrisch");
  EXPECT_EQ(s.ComboBox4.text(), "Variante A");
  EXPECT_FALSE(s.CheckBox1.Checked);
  EXPECT_FALSE(s.CheckBox2.Checked);
  EXPECT_EQ(s.RadioGroup1, 0);
  for (const UnitList& list : masterUnitLists()) EXPECT_EQ(s.unitCombo(list.comboName)->ItemIndex, 0) << list.comboName;
  EXPECT_EQ(s.Combo_SI_US.text(), "SI");
  EXPECT_FALSE(app.Fenster.HF_Left || app.Fenster.HF_Top || app.Fenster.AF_Left || app.Fenster.AF_Top ||
               app.Fenster.AF_Width || app.Fenster.AF_Height);
  EXPECT_EQ(app.RecentFiles.Count(), 0);

  // Water at 20 °C as a liquid by volume flow, element (1,1), every unit box on its first unit.
  const TMyWindow& f = app.MyWindow;
  EXPECT_EQ(f.Eingabe_Medium.Text, "Water");
  EXPECT_EQ(f.ComboBox4.ItemIndex, 0);
  EXPECT_EQ(f.ComboBox1.text(), "m3/h");
  EXPECT_EQ(f.Label7.Caption, "m3/h");
  EXPECT_EQ(f.Eingabe_Volumenstrom.Text, "1.0");
  EXPECT_EQ(f.Eingabe_Dichte.Text, "998.2");
  EXPECT_EQ(f.ComboBox2.text(), "kg/m3");
  EXPECT_EQ(f.ComboBox5.ItemIndex, 0);
  EXPECT_EQ(f.ComboBox3.text(), "10-6 kg/ms");
  EXPECT_EQ(f.Eingabe_Viskositaet.Text, "1002");
  EXPECT_TRUE(f.Radio_fluessig.Checked);
  EXPECT_FALSE(f.Edit_EingangsdruckN.Enabled);
  EXPECT_EQ(f.Edit_EingangsdruckN.Text, "1");
  EXPECT_EQ(f.Edit_EingangstemperaturN.Text, "300");
  EXPECT_EQ(f.Edit_AusgangstemperaturN.Text, "250");
  EXPECT_EQ(f.ComboBox6N.text(), "bar");
  EXPECT_EQ(f.ComboBox7N.text(), "°C");
  EXPECT_EQ(f.ComboBox8N.text(), "°C");
  EXPECT_EQ(app.state.ElementGruppe, 1);
  EXPECT_EQ(app.state.ElementNr, 1);
  EXPECT_TRUE(f.Va1_Edit.Visible);
  EXPECT_EQ(f.ComboVar1.text(), "mm");
  EXPECT_EQ(f.ComboVar2.text(), "m");
  EXPECT_EQ(f.Edit2.Text, "0.1");
  EXPECT_EQ(f.ComboBox6.text(), "mm");
}

TEST(Registry, TheFirstStartInGermanTakesGermanSubstanceNames) {
  MemoryRegistrierung store;
  store.writeString("Allgemein", "Sprachversion", "0");
  StartedApp started(store);
  EXPECT_EQ(started.app.EinstellungenDlg.ComboBox1.ItemIndex, 0);
  EXPECT_EQ(started.app.EinstellungenDlg.ComboBox2.text(), "Deutsch");
  EXPECT_EQ(started.app.MyWindow.Eingabe_Medium.Text, "Wasser");
}

// Sprachversion 0 to 3: German, English, Dutch, French; the French program has the English title.
// Any other value, or none, leaves the English start.
struct VersionCase {
  const char* stored;  // nullptr: no value
  char language;
  const char* title;
};
constexpr VersionCase kVersions[] = {
    {"0", 'D', "Stromlauf 7.22"},   {"1", 'E', "WH Linecalc 7.22"}, {"2", 'H', "PW Stromkal 7.22"},
    {"3", 'F', "WH Linecalc 7.22"}, {"4", 'E', "WH Linecalc 7.22"}, {"-1", 'E', "WH Linecalc 7.22"},
    {"", 'E', "WH Linecalc 7.22"},  {"x", 'E', "WH Linecalc 7.22"}, {nullptr, 'E', "WH Linecalc 7.22"},
};

TEST(Registry, SprachversionSelectsLanguageAndTitle) {
  for (const VersionCase& c : kVersions) {
    SCOPED_TRACE(c.stored ? c.stored : "(none)");
    MemoryRegistrierung store;
    if (c.stored) store.writeString("Allgemein", "Sprachversion", c.stored);
    RecordingMeldungen meldungen;
    Anwendung app(meldungen);
    Registry_Sprachversion_lesen(app, store);
    EXPECT_EQ(app.Sprache.Sprachkennung, c.language);
    EXPECT_EQ(app.productTitle, c.title);
  }
}

TEST(Registry, AUnitIndexBeyondItsListSelectsTheFirstUnit) {
  MemoryRegistrierung store;
  store.writeString("Units", "EHLaengeA", "2");         // the list holds "m", "ft."
  store.writeString("Units", "EHVolumenstromA", "13");  // 13 entries: 0 to 12
  store.writeString("Units", "EHMassenstromA", "7");    // the last of 8: kept
  store.writeString("Units", "EHDichteA", "-3");
  store.writeString("Units", "EHTemperaturA", "zwei");  // unreadable: its default
  store.writeString("Medium", "Vol_Mastrom", "2");
  store.writeString("Medium", "Menge_Einheit", "99");
  store.writeString("Medium", "Dyn_KinVisko", "5");        // no such kind: the first
  store.writeString("Gasdaten", "E_Druck_Einheit", "15");  // 15 pressure units: 0 to 14
  store.writeString("Rohr", "Va1_Einheit", "5");
  store.writeString("Rohr", "VaRauh_Einheit", "1");
  StartedApp started(store);
  const TEinstellungenDlg& s = started.app.EinstellungenDlg;
  EXPECT_EQ(s.combo_Laenge.ItemIndex, 0);
  EXPECT_EQ(s.combo_Volumenstrom.ItemIndex, 0);
  EXPECT_EQ(s.combo_Massenstrom.text(), "oz/s");
  EXPECT_EQ(s.combo_Dichte.ItemIndex, 0);
  EXPECT_EQ(s.combo_Temperatur.ItemIndex, 0);
  const TMyWindow& f = started.app.MyWindow;
  EXPECT_EQ(f.ComboBox1.text(), "Nm3/h");
  EXPECT_EQ(f.Label7.Caption, "Nm3/h");
  EXPECT_EQ(f.ComboBox5.ItemIndex, 0);
  EXPECT_EQ(f.ComboBox6N.text(), "bar");
  EXPECT_EQ(f.ComboVar1.text(), "mm");
  EXPECT_EQ(f.ComboBox6.text(), "in.");
}

// Only elements of the catalogue are restored; any other stored element, or an unreadable one,
// becomes (1,1).
struct ElementCase {
  const char* group;
  const char* nr;
  int wantGroup, wantNr;
};
constexpr ElementCase kElementsStored[] = {
    {"4", "2", 4, 2}, {"13", "3", 13, 3}, {"12", "5", 1, 1}, {"14", "1", 1, 1},
    {"0", "0", 1, 1}, {"5", "x", 1, 1},   {"3", "-4", 1, 1},
};

TEST(Registry, AStoredElementTheCatalogueLacksBecomesTheStraightPipe) {
  for (const ElementCase& c : kElementsStored) {
    SCOPED_TRACE(std::string(c.group) + "," + c.nr);
    MemoryRegistrierung store;
    store.writeString("Rohr", "Gruppe", c.group);
    store.writeString("Rohr", "UGruppe", c.nr);
    store.writeString("Rohr", "Va1", "80");
    StartedApp started(store);
    EXPECT_EQ(started.app.state.ElementGruppe, c.wantGroup);
    EXPECT_EQ(started.app.state.ElementNr, c.wantNr);
    // The panel is the element's own, and the stored text sits in it.
    const ElementDefinition* element = findElement(c.wantGroup, c.wantNr);
    ASSERT_NE(element, nullptr);
    EXPECT_EQ(started.app.MyWindow.Image1, element->picture);
    EXPECT_EQ(started.app.MyWindow.Va1_Edit.Text, "80");
  }
}

// The result window's top: more than the screen height minus 50, or below 0, becomes 0.
struct TopCase {
  int screenHeight;  // 0: unknown
  const char* stored;
  int want;
};
constexpr TopCase kTops[] = {
    {1080, "1030", 1030}, {1080, "1031", 0}, {1080, "5000", 0}, {1080, "-1", 0},
    {1080, "0", 0},       {768, "719", 0},   {0, "5000", 5000}, {0, "-20", 0},
};

TEST(Registry, AResultWindowBelowTheScreenComesBackAtTheTop) {
  for (const TopCase& c : kTops) {
    SCOPED_TRACE(std::to_string(c.screenHeight) + " / " + c.stored);
    MemoryRegistrierung store;
    store.writeString("Fenster", "AF_Top", c.stored);
    store.writeString("Fenster", "HF_Top", c.stored);
    StartedApp started(store, ',', c.screenHeight);
    EXPECT_EQ(started.app.Fenster.AF_Top, c.want);
    EXPECT_EQ(started.app.Fenster.HF_Top, std::stoi(c.stored));  // only the result window is repaired
  }
}

// Each value falls back to its own default when it is unreadable; the others are still read.
TEST(Registry, UnreadableValuesKeepTheirDefaultsOneByOne) {
  MemoryRegistrierung store;
  store.writeString("Allgemein", "Nachkomma", "9");
  store.writeString("Allgemein", "Punkte_Dia", "1");
  store.writeString("Allgemein", "RNormspaltenbreite0", "breit");
  store.writeString("Allgemein", "RNormspaltenbreite1", "180");
  store.writeString("Allgemein", "Zeilenumbruch", "ja");
  store.writeString("Allgemein", "Unit_Umrechnung", "j");
  store.writeString("Allgemein", "Gasdaten_aktualisieren", "3");
  store.writeString("Allgemein", "Beremethode", "1");
  store.writeString("Medium", "fluessig", "0");
  StartedApp started(store);
  const TEinstellungenDlg& s = started.app.EinstellungenDlg;
  EXPECT_EQ(s.Edit2.Text, "3");
  EXPECT_EQ(s.Edit1.Text, "20");
  EXPECT_EQ(s.Normspaltenbreite0, 130);
  EXPECT_EQ(s.Normspaltenbreite1, 180);
  EXPECT_FALSE(s.CheckBox1.Checked);
  EXPECT_TRUE(s.CheckBox2.Checked);
  EXPECT_EQ(s.RadioGroup1, 0);
  EXPECT_EQ(s.ComboBox4.text(), "Variante B");
  EXPECT_TRUE(started.app.MyWindow.Radio_gas.Checked);  // anything but "1" is a gas
  EXPECT_TRUE(started.app.MyWindow.Edit_EingangsdruckN.Enabled);
}

TEST(RecentFiles, NewestFirstWithoutDoublesAndAtMostSix) {
  TRecentFileList list;
  for (const char* name : {"a", "b", "c", "d", "e", "f", "g"}) list.AddRecentFile(std::string("/p/") + name + ".slf");
  EXPECT_EQ(list.Files(), (std::vector<std::string>{"/p/g.slf", "/p/f.slf", "/p/e.slf", "/p/d.slf", "/p/c.slf",
                                                    "/p/b.slf"}));  // "a" dropped out
  list.AddRecentFile("/p/d.slf");
  EXPECT_EQ(list.Files(),
            (std::vector<std::string>{"/p/d.slf", "/p/g.slf", "/p/f.slf", "/p/e.slf", "/p/c.slf", "/p/b.slf"}));
  list.AddRecentFile("/p/d.slf");  // already on top
  list.AddRecentFile("");
  EXPECT_EQ(list.Count(), 6);
  EXPECT_EQ(list.GetRecentFileName(0), "/p/d.slf");
  EXPECT_EQ(list.GetRecentFileName(5), "/p/b.slf");
  EXPECT_EQ(list.GetRecentFileName(6), "");
  EXPECT_EQ(list.MenuCaption(0), "&1 /p/d.slf");
  EXPECT_EQ(list.MenuCaption(5), "&6 /p/b.slf");
}

TEST(RecentFiles, SaveAndLoadThroughTheStore) {
  TRecentFileList list;
  list.AddRecentFile("/p/alt.slf");
  list.AddRecentFile("/p/neu.slf");
  MemoryRegistrierung store;
  // An older, longer list must not come back.
  for (int n = 1; n <= 6; ++n) store.writeString("RecentFiles", "fRecentFile" + std::to_string(n), "/alt/x.slf");
  list.SaveToReg(store);
  EXPECT_EQ(store.readString("RecentFiles", "fMaxEntries"), "6");
  EXPECT_EQ(store.readString("RecentFiles", "fRecentFile1"), "/p/neu.slf");
  EXPECT_EQ(store.readString("RecentFiles", "fRecentFile3"), "");

  TRecentFileList loaded;
  loaded.AddRecentFile("/vorher.slf");  // loading replaces the list
  loaded.LoadFromReg(store);
  EXPECT_EQ(loaded.Files(), list.Files());

  // A shorter stored list is read only up to its fMaxEntries; doubles and gaps are skipped.
  MemoryRegistrierung other;
  other.writeString("RecentFiles", "fMaxEntries", "4");
  for (auto [n, name] : {std::pair{1, "/a.slf"}, std::pair{2, ""}, std::pair{3, "/a.slf"}, std::pair{4, "/b.slf"},
                         std::pair{5, "/c.slf"}}) {
    other.writeString("RecentFiles", "fRecentFile" + std::to_string(n), name);
  }
  loaded.LoadFromReg(other);
  EXPECT_EQ(loaded.Files(), (std::vector<std::string>{"/a.slf", "/b.slf"}));
}

TEST(RecentFiles, AreReadOnlyWhenTheirSectionExists) {
  MemoryRegistrierung store;
  store.writeString("Allgemein", "Sprachversion", "1");
  StartedApp started(store);
  EXPECT_EQ(started.app.RecentFiles.Count(), 0);
  store.writeString("RecentFiles", "fRecentFile1", "/x/projekt.slf");
  StartedApp again(store);
  EXPECT_EQ(again.app.RecentFiles.GetRecentFileName(0), "/x/projekt.slf");
}

// ---- the INI file store

class IniFile : public ::testing::Test {
 protected:
  fs::path folder;

  void SetUp() override {
    folder = fs::temp_directory_path() /
             ("linecalc-ini-" + std::to_string(::testing::UnitTest::GetInstance()->random_seed()) + "-" +
              ::testing::UnitTest::GetInstance()->current_test_info()->name());
    fs::remove_all(folder);
    fs::create_directories(folder);
  }
  void TearDown() override {
    std::error_code ignored;
    fs::permissions(folder, fs::perms::owner_all, fs::perm_options::add, ignored);
    fs::remove_all(folder, ignored);
  }

  static std::string contents(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    std::stringstream text;
    text << in.rdbuf();
    return text.str();
  }
};

TEST_F(IniFile, ValuesComeBackExactlyThroughTheFile) {
  const fs::path file = folder / "neu" / "settings.ini";  // the folder is made on saving
  const std::map<std::string, std::string> values = {
      {"Art", "Kältemittel R134a"},
      {"Menge", " 1,5 "},
      {"Pfad", "C:\\Projekte\\neu.slf"},
      {"Gleich", "a=b=c"},
      {"Leer", ""},
      {"Zeilen", "eins\nzwei\r\n"},
      {"Klammer", "[Medium]"},
      {"Kommentar", "; kein Kommentar"},
  };
  {
    IniFileRegistrierung store(file);
    EXPECT_FALSE(store.sectionExists("Medium"));
    for (const auto& [name, value] : values) store.writeString("Medium", name, value);
    store.writeString("Rohr", "Gruppe", "4");
    store.save();
  }
  EXPECT_FALSE(fs::exists(folder / "neu" / "settings.ini.tmp"));
  const IniFileRegistrierung read(file);
  for (const auto& [name, value] : values) EXPECT_EQ(read.readString("Medium", name), value) << name;
  EXPECT_EQ(read.readString("Rohr", "Gruppe"), "4");
  EXPECT_EQ(read.readString("Rohr", "Art"), std::nullopt);
  EXPECT_EQ(read.readString("Units", "Gruppe"), std::nullopt);
  EXPECT_TRUE(read.sectionExists("Rohr"));
  EXPECT_FALSE(read.sectionExists("Units"));
  // Plain text a person can read: the sections in brackets, a name=value line for each value.
  const std::string text = contents(file);
  EXPECT_TRUE(text.starts_with("[Medium]\n")) << text;
  EXPECT_NE(text.find("\n[Rohr]\nGruppe=4\n"), std::string::npos) << text;
  EXPECT_NE(text.find("\nArt=Kältemittel R134a\n"), std::string::npos) << text;
}

TEST_F(IniFile, ASettingsRoundTripThroughTheFileRestoresTheApplication) {
  MemoryRegistrierung empty;
  StartedApp first(empty);
  first.app.EinstellungenDlg.Button2Click();
  first.app.MyWindow.Eingabe_Medium.Text = "Öl";
  first.app.RecentFiles.AddRecentFile("/home/ü/projekt 1.slf");
  const fs::path file = folder / "settings.ini";
  {
    IniFileRegistrierung store(file);
    Registry_Schreiben(first.app, store);
    store.save();
  }
  const IniFileRegistrierung store(file);
  StartedApp second(store);
  expectSame(snapshot(first.app), snapshot(second.app));
}

TEST_F(IniFile, AHandWrittenFileIsReadLeniently) {
  const fs::path file = folder / "settings.ini";
  std::ofstream(file, std::ios::binary) << "\xEF\xBB\xBF; comment\r\n"
                                           "orphan=before any section\r\n"
                                           "[Allgemein]\r\n"
                                           "  Nachkomma = 4\r\n"
                                           "no equals sign\r\n"
                                           "# another comment\r\n"
                                           "\r\n"
                                           "[ Leer ]\r\n";
  const IniFileRegistrierung store(file);
  EXPECT_EQ(store.readString("Allgemein", "Nachkomma"), " 4");  // a name is trimmed, a value is not
  EXPECT_EQ(store.readString("Allgemein", "orphan"), std::nullopt);
  EXPECT_TRUE(store.sectionExists("Leer"));
  ASSERT_EQ(store.sections().size(), 2u);
  EXPECT_EQ(store.sections()[0].second.size(), 1u);

  // A file in Windows-1252 from an older installation is read too.
  std::ofstream(file, std::ios::binary) << "[Medium]\nArt=K\xE4ltemittel\n";
  EXPECT_EQ(IniFileRegistrierung(file).readString("Medium", "Art"), "Kältemittel");
}

TEST_F(IniFile, AFailedSaveLeavesTheOldFileWhole) {
  const fs::path file = folder / "settings.ini";
  {
    IniFileRegistrierung store(file);
    store.writeString("Allgemein", "Nachkomma", "2");
    store.save();
  }
  const std::string old = contents(file);

  IniFileRegistrierung store(file);
  store.writeString("Allgemein", "Nachkomma", "5");
  // The temporary file cannot be made: a folder stands in its place.
  fs::create_directory(store.temporaryFile());
  EXPECT_THROW(store.save(), std::runtime_error);
  EXPECT_EQ(contents(file), old);
  EXPECT_EQ(IniFileRegistrierung(file).readString("Allgemein", "Nachkomma"), "2");

  // Once the way is free, the save goes through.
  fs::remove(store.temporaryFile());
  store.save();
  EXPECT_EQ(IniFileRegistrierung(file).readString("Allgemein", "Nachkomma"), "5");
}

TEST_F(IniFile, AMissingFileIsAnEmptyStoreAndAFolderInItsPlaceIsAnError) {
  const IniFileRegistrierung missing(folder / "nicht-da.ini");
  EXPECT_TRUE(missing.sections().empty());
  fs::create_directory(folder / "ordner.ini");
  EXPECT_THROW(IniFileRegistrierung(folder / "ordner.ini"), std::runtime_error);
}

}  // namespace
}  // namespace linecalc::test
