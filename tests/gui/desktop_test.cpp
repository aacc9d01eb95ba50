#include <gtest/gtest.h>

#include <QAction>
#include <QGuiApplication>
#include <QScreen>
#include <QLineEdit>
#include <QMenu>
#include <QTemporaryDir>
#include <QTest>
#include <filesystem>

#include "ausgabeneu_fenster_view.h"
#include "btn_bottom_dlg_view.h"
#include "control_binding.h"
#include "desktop.h"
#include "my_window_view.h"
#include "qsettings_registrierung.h"

namespace linecalc::test {
namespace {

using gui::qs;

// The whole desktop program on Qt's offscreen screen, with its settings in a file of a temporary folder
// and the file dialogs answered by the test.
class DesktopTest : public ::testing::Test {
 protected:
  QTemporaryDir folder;
  RecordingMeldungen meldungen;
  std::unique_ptr<gui::QSettingsRegistrierung> store;
  std::unique_ptr<gui::Desktop> desktop;
  std::filesystem::path chosenFile;

  void SetUp() override { ASSERT_TRUE(folder.isValid()); }

  void start(const std::filesystem::path& project = {}) {
    desktop.reset();
    store = std::make_unique<gui::QSettingsRegistrierung>(folder.filePath(QStringLiteral("settings.ini")));
    desktop = std::make_unique<gui::Desktop>(meldungen, *store, ',');
    desktop->fileDialog = [this](bool) { return std::optional(chosenFile); };
    desktop->start(LINECALC_BUILD_DATA_DIR, project);
  }

  // Closes the program as the user does; true when it closed.
  bool closeProgram() {
    const bool closed = desktop->mainWindow().close();
    store->sync();
    return closed;
  }

  std::filesystem::path file(const char* name) const { return folder.filePath(QString::fromLatin1(name)).toStdString(); }
  Anwendung& app() { return desktop->app(); }
  gui::MyWindowView& window() { return desktop->mainWindow(); }

  void type(const Edit& control, const char* text) {
    QLineEdit* field = window().edit(control);
    field->selectAll();
    QTest::keyClicks(field, QString::fromLatin1(text));
  }

  // A pipe of 100 mm and 25 m, then a sudden contraction to 80 mm, with 36 m3/h of water.
  void computeTwoElements() {
    type(app().MyWindow.Eingabe_Volumenstrom, "36");
    type(app().MyWindow.Va1_Edit, "100");
    type(app().MyWindow.Va2_Edit, "25");
    window().action("Stromlauf1")->trigger();
    app().BtnBottomDlg.press(3, 3);
    app().BtnBottomDlg.OKBtnClick();
    desktop->refreshAll();
    type(app().MyWindow.Va2_Edit, "80");
    window().action("Stromlauf1")->trigger();
    ASSERT_TRUE(meldungen.messages().empty());
    ASSERT_EQ(app().Ausgabeneu_Fenster.Anzahl_Berechnungen(), 2);
  }

  std::vector<std::array<Cell, kResultRows>> columns() {
    std::vector<std::array<Cell, kResultRows>> cells;
    const ResultTable& table = app().Ausgabeneu_Fenster.table();
    for (int i = 0; i < table.Anzahl_Berechnungen(); ++i) cells.push_back(table.get_Spalte(i).cells);
    return cells;
  }
};

TEST_F(DesktopTest, SaveNewOpenGivesTheSameTable) {
  start();
  computeTwoElements();
  const auto computed = columns();
  const std::string sum = app().Ausgabeneu_Fenster.table().statusText;

  chosenFile = file("line.slf");
  window().action("Speichernunter1")->trigger();
  ASSERT_TRUE(std::filesystem::exists(chosenFile));
  window().action("Neu1")->trigger();
  EXPECT_EQ(app().Ausgabeneu_Fenster.Anzahl_Berechnungen(), 0);
  window().action("ffnen1")->trigger();

  ASSERT_EQ(app().Ausgabeneu_Fenster.Anzahl_Berechnungen(), 2);
  const auto reopened = columns();
  for (std::size_t c = 0; c < computed.size(); ++c) {
    for (int row = 0; row < kResultRows; ++row) {
      const Cell& before = computed[c][static_cast<std::size_t>(row)];
      const Cell& after = reopened[c][static_cast<std::size_t>(row)];
      EXPECT_EQ(before.text, after.text) << "column " << c << " row " << row;
      ASSERT_EQ(before.number.has_value(), after.number.has_value()) << "column " << c << " row " << row;
      // The file holds the numbers as text with all their digits; a double's 17 digits come back.
      if (before.number) {
        EXPECT_NEAR(*after.number, *before.number, 1e-12L * (1 + std::abs(*before.number)));
      }
    }
  }
  EXPECT_EQ(app().Ausgabeneu_Fenster.table().statusText, sum);
  EXPECT_TRUE(meldungen.messages().empty());
}

TEST_F(DesktopTest, ClosingWithUnsavedCalculationsAsksAndKeepsTheSettings) {
  start();
  computeTwoElements();
  app().EinstellungenDlg.Edit2.Text = "2";
  type(app().MyWindow.Eingabe_Medium, "Kuehlwasser");
  window().move(140, 90);

  meldungen.queueAnswer(Answer::No);
  ASSERT_TRUE(closeProgram());
  ASSERT_EQ(meldungen.messages().size(), 1u);
  EXPECT_EQ(meldungen.messages()[0].kind, MessageKind::YesNo);

  meldungen.clear();
  start();
  // The panels, the element and the settings as they were left.
  EXPECT_EQ(app().state.ElementGruppe, 3);
  EXPECT_EQ(app().state.ElementNr, 3);
  EXPECT_EQ(window().edit(app().MyWindow.Eingabe_Medium)->text(), QStringLiteral("Kuehlwasser"));
  EXPECT_EQ(window().edit(app().MyWindow.Va2_Edit)->text(), QStringLiteral("80"));
  EXPECT_EQ(app().EinstellungenDlg.Edit2.Text, "2");
  EXPECT_EQ(window().pos(), QPoint(140, 90));
  EXPECT_EQ(app().Ausgabeneu_Fenster.Anzahl_Berechnungen(), 0);
}

TEST_F(DesktopTest, CancelledSaveKeepsTheProgramOpen) {
  start();
  computeTwoElements();
  meldungen.queueAnswer(Answer::Yes);
  desktop->fileDialog = [](bool) { return std::optional<std::filesystem::path>(); };
  EXPECT_FALSE(closeProgram());
  EXPECT_EQ(app().Ausgabeneu_Fenster.Anzahl_Berechnungen(), 2);
}

TEST_F(DesktopTest, ProjectOnTheCommandLineOpensAndEntersTheRecentFiles) {
  start();
  computeTwoElements();
  chosenFile = file("pump line.slf");
  window().action("Speichernunter1")->trigger();
  ASSERT_TRUE(closeProgram());

  start(chosenFile);
  EXPECT_EQ(app().Ausgabeneu_Fenster.Anzahl_Berechnungen(), 2);
  QMenu* fileMenu = window().action("Datei1")->menu();
  emit fileMenu->aboutToShow();
  QStringList recent;
  for (QAction* entry : fileMenu->actions()) {
    if (entry->property("recentFile").isValid()) recent << entry->text();
  }
  EXPECT_EQ(recent, QStringList{QStringLiteral("&1 ") + qs(chosenFile.string())});
}

TEST_F(DesktopTest, WindowStoredOutsideTheScreenComesBack) {
  start();
  window().move(9000, 7000);
  ASSERT_TRUE(closeProgram());
  start();
  const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
  EXPECT_TRUE(screen.intersects(window().frameGeometry())) << window().x() << "," << window().y();
}

TEST_F(DesktopTest, MenuEntriesOpenTheirWindows) {
  start();
  window().action("Rohrleitungselementwhlen1")->trigger();
  EXPECT_TRUE(app().BtnBottomDlg.Visible);
  EXPECT_TRUE(desktop->chooser().isVisible());
  desktop->chooser().reject();

  desktop->resultWindow().hide();
  window().action("ToolButton8")->trigger();
  EXPECT_TRUE(desktop->resultWindow().isVisible());
}

}  // namespace
}  // namespace linecalc::test
