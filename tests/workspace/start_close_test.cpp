// The start and close order of the program: settings come back, unsaved work is offered for saving,
// a project named at start opens.
#include <gtest/gtest.h>

#include <filesystem>

#include "project/project_file.h"
#include "project/registrierung.h"
#include "workspace/app_fixture.h"

namespace linecalc::test {
namespace {

TEST(StartAndClose, TheProgramComesUpAsItWasLeft) {
  MemoryRegistrierung store;
  {
    RecordingMeldungen meldungen;
    Anwendung app(meldungen, ',');
    app.FormCreate(LINECALC_BUILD_DATA_DIR, store);
    app.FormShow(store);
    EXPECT_EQ(app.Sprache.Sprachkennung, 'E');  // a first start speaks English
    app.BtnBottomDlg.press(4, 1);
    app.BtnBottomDlg.OKBtnClick();
    app.MyWindow.Va1_Edit.Text = "2,5";
    app.MyWindow.ComboVar1.selectText("in.");
    app.EinstellungenDlg.ComboBox2.ItemIndex = 0;  // German from the next start on
    app.MyWindow.Berechnen(0);
    ASSERT_EQ(app.Ausgabeneu_Fenster.Anzahl_Berechnungen(), 1);
    meldungen.queueAnswer(Answer::No);  // do not save the calculation
    EXPECT_TRUE(app.FormClose(store));
    ASSERT_EQ(meldungen.messages().size(), 1u);
    EXPECT_EQ(meldungen.messages()[0].kind, MessageKind::YesNo);
    EXPECT_EQ(meldungen.messages()[0].caption, app.Sprache.globalWord(8));
    EXPECT_EQ(meldungen.messages()[0].text, app.Sprache.globalWord(203));
  }
  RecordingMeldungen meldungen;
  Anwendung app(meldungen, ',');
  app.FormCreate(LINECALC_BUILD_DATA_DIR, store);
  app.FormShow(store);
  EXPECT_EQ(app.Sprache.Sprachkennung, 'D');
  EXPECT_EQ(app.state.ElementGruppe, 4);
  EXPECT_EQ(app.MyWindow.Statisch_Element_Name1.Caption, "Rohrumlenkungen - Kreiskrümmer");
  EXPECT_EQ(app.MyWindow.Va1_Edit.Text, "2,5");
  EXPECT_EQ(app.MyWindow.ComboVar1.text(), "in.");
  EXPECT_EQ(app.Ausgabeneu_Fenster.Anzahl_Berechnungen(), 0);  // the calculation was not kept
  EXPECT_EQ(app.Projekt.Dateiname_Projekt, app.Sprache.globalWord(153));
  EXPECT_TRUE(meldungen.messages().empty());
}

TEST(StartAndClose, AProjectNamedAtStartOpens) {
  const std::filesystem::path file = std::filesystem::temp_directory_path() / "linecalc-start-project.slf";
  MemoryRegistrierung store;
  {
    RecordingMeldungen meldungen;
    Anwendung app(meldungen, ',');
    app.FormCreate(LINECALC_BUILD_DATA_DIR, store);
    app.FormShow(store);
    app.MyWindow.Berechnen(0);
    app.MyWindow.Berechnen(0);
    ASSERT_TRUE(saveProjectAs(app, file));
    EXPECT_TRUE(app.FormClose(store));
    EXPECT_TRUE(meldungen.messages().empty());  // saved: nothing to ask
  }
  RecordingMeldungen meldungen;
  Anwendung app(meldungen, ',');
  app.FormCreate(LINECALC_BUILD_DATA_DIR, store);
  app.FormShow(store, file);
  EXPECT_EQ(app.Ausgabeneu_Fenster.Anzahl_Berechnungen(), 2);
  EXPECT_TRUE(app.Projekt_gespeichert);
  EXPECT_TRUE(app.Projekt.isOpen());
  EXPECT_TRUE(app.FormClose(store));
  std::filesystem::remove(file);
}

}  // namespace
}  // namespace linecalc::test
