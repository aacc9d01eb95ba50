#include "ausgabeneu_fenster_view.h"

#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTableView>
#include <QToolBar>
#include <memory>
#include <string>
#include <vector>

#include "gui/gui_fixture.h"
#include "result_grid.h"

namespace linecalc::test {
namespace {

using gui::AusgabeneuFensterView;
using gui::qs;
using gui::ResultGrid;
using gui::ResultGridModel;
using gui::ss;

constexpr int kFirst = ResultGridModel::kFirstCalculationColumn;

// The result window over a started application. The medium of every run is water as the fields give
// it: 36 m3/h, 1000 kg/m3, 1000 x 10-6 kg/(m s).
class AusgabeneuFensterViewTest : public GuiTest {
 protected:
  TAusgabeneu_Fenster& window = app.Ausgabeneu_Fenster;
  std::unique_ptr<AusgabeneuFensterView> view;

  void SetUp() override {
    GuiTest::SetUp();
    view = std::make_unique<AusgabeneuFensterView>(app, words);
    view->show();
    view->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(view.get()));
  }

  void choose(int group, int nr) {
    app.BtnBottomDlg.Start_Aktualisierung();
    ASSERT_TRUE(app.BtnBottomDlg.press(group, nr));
    app.BtnBottomDlg.OKBtnClick();
  }
  void run(const std::string& va1, const std::string& va2 = {}) {
    app.MyWindow.Eingabe_Volumenstrom.Text = "36";
    app.MyWindow.Eingabe_Dichte.Text = "1000";
    app.MyWindow.Eingabe_Viskositaet.Text = "1000";
    app.MyWindow.Va1_Edit.Text = va1;
    if (!va2.empty()) app.MyWindow.Va2_Edit.Text = va2;
    const int before = window.Anzahl_Berechnungen();
    app.MyWindow.Berechnen(0);
    ASSERT_EQ(window.Anzahl_Berechnungen(), before + 1) << messages().size();
    view->refresh();  // as the application does after a run
  }
  // A straight pipe of 100 mm and 10 m: w = 0.01 m3/s / (pi/4 * 0.1^2 m2) = 1.2732 m/s,
  // Re = 1.2732 * 0.1 * 1000 / 0.001 = 127324.
  void pipe() {
    choose(1, 1);
    run("100", "10");
  }
  // A height difference: its loss is rho * g * h = 1000 * 9.81 * h Pa = 0.0981 * h bar.
  void height(const std::string& h) {
    choose(13, 1);
    run(h);
  }

  ResultGrid* grid() const { return view->grid(view->pageTabs()->currentIndex()); }
  QTableView* calculations() const { return grid()->calculationBand(); }
  // The text a cell of the calculation band shows.
  std::string shown(int tableRow, int column) const {
    const QModelIndex cell = grid()->model()->index(ResultGridModel::gridRow(tableRow), kFirst + column);
    return ss(cell.data().toString());
  }
  std::vector<std::string> shownRow(int tableRow) const {
    std::vector<std::string> texts;
    for (int column = 0; column < window.Anzahl_Berechnungen(); ++column) texts.push_back(shown(tableRow, column));
    return texts;
  }
  std::string header(int column) const {
    return ss(grid()->model()->headerData(kFirst + column, Qt::Horizontal, Qt::DisplayRole).toString());
  }
  QComboBox* unitBox(int tableRow) const {
    const QModelIndex cell = grid()->model()->index(ResultGridModel::gridRow(tableRow), ResultGridModel::kUnitColumn);
    return qobject_cast<QComboBox*>(grid()->fixedBand()->indexWidget(cell));
  }
  // Clicks the header of a calculation column, as the user selects it.
  void clickHeader(int column) {
    QHeaderView* headers = calculations()->horizontalHeader();
    const int logical = kFirst + column;
    const QPoint centre(headers->sectionViewportPosition(logical) + headers->sectionSize(logical) / 2,
                        headers->height() / 2);
    QTest::mouseClick(headers->viewport(), Qt::LeftButton, {}, centre);
  }
  QStringList clipboardLines() const { return QGuiApplication::clipboard()->text().split('\n'); }
};

TEST_F(AusgabeneuFensterViewTest, ACalculationAppearsAsAColumn) {
  pipe();
  EXPECT_EQ(view->pageTabs()->count(), 1);
  EXPECT_EQ(ss(view->pageTabs()->tabText(0)), "Tabelle 1");
  const ResultGridModel* model = grid()->model();
  EXPECT_EQ(model->columnCount(), kFirst + 2);  // the calculation and the empty end column
  EXPECT_EQ(header(0), "1");
  EXPECT_EQ(header(1), "2");

  struct Case {
    int row;
    const char* text;
  };
  const Case cases[] = {
      {0, "Wasser"},
      {2, "36,000"},
      {3, "36000,000"},  // 36 m3/h * 1000 kg/m3
      {5, "1000,000"},
      {8, ""},  // no gas data for a liquid
      {12, "kreisförmig"},
      {13, "1"},
      {15, "Rohrdurchmesser D in mm: 100"},
      {16, "Rohrlänge L in m: 10"},
      {21, "1,273"},
      {22, "1,273E+05"},
      {26, "0,100"},  // the roughness of the pipe, 0.1 mm
  };
  for (const Case& c : cases) EXPECT_EQ(shown(c.row, 0), c.text) << "row " << c.row;
  for (const Case& c : cases) EXPECT_EQ(shown(c.row, 1), "") << "end column, row " << c.row;

  // Titles and units in the fixed band, a heading row before each group.
  const auto fixedText = [&](int gridRow, int column) { return ss(model->index(gridRow, column).data().toString()); };
  EXPECT_EQ(fixedText(0, ResultGridModel::kTitleColumn), "1. Fördermedium");
  EXPECT_EQ(fixedText(ResultGridModel::gridRow(21) - 1, ResultGridModel::kTitleColumn), "4. Ergebnisse");
  EXPECT_EQ(fixedText(ResultGridModel::gridRow(7), ResultGridModel::kTitleColumn), "Kin.Viskosität");
  EXPECT_EQ(fixedText(ResultGridModel::gridRow(31), ResultGridModel::kUnitColumn), "bar");
  EXPECT_EQ(ss(model->headerData(0, Qt::Horizontal, Qt::DisplayRole).toString()), "Größe");
  EXPECT_EQ(ss(model->headerData(1, Qt::Horizontal, Qt::DisplayRole).toString()), "Einheit");
  EXPECT_TRUE(grid()->fixedBand()->isColumnHidden(kFirst));
  EXPECT_TRUE(calculations()->isColumnHidden(ResultGridModel::kTitleColumn));

  // Numbers right-aligned, the running sum in blue, texts left-aligned.
  const auto cell = [&](int row) { return model->index(ResultGridModel::gridRow(row), kFirst); };
  EXPECT_TRUE(cell(21).data(Qt::TextAlignmentRole).value<Qt::Alignment>() & Qt::AlignRight);
  EXPECT_TRUE(cell(12).data(Qt::TextAlignmentRole).value<Qt::Alignment>() & Qt::AlignLeft);
  EXPECT_EQ(cell(33).data(Qt::ForegroundRole).value<QBrush>().color(), QColor(Qt::blue));
  EXPECT_FALSE(cell(32).data(Qt::ForegroundRole).isValid());

  // Widths as the settings give them: the title column, a calculation; the stored 60 of the unit
  // cells is widened so that a unit list shows whole.
  EXPECT_EQ(grid()->fixedBand()->columnWidth(ResultGridModel::kTitleColumn), 130);
  EXPECT_EQ(grid()->fixedBand()->columnWidth(ResultGridModel::kUnitColumn), 100);
  EXPECT_EQ(calculations()->columnWidth(kFirst), 150);

  // The sum in the status bar; fewer decimals show after a refresh (at 0 a trailing separator).
  EXPECT_EQ(ss(view->sumLabel()->text()), "Summe: " + window.table().statusText);
  app.EinstellungenDlg.Edit2.Text = "0";
  view->refresh();
  EXPECT_EQ(shown(2, 0), "36,");
  EXPECT_EQ(shown(22, 0), "1,273E+05");  // the Reynolds number keeps its form
}

TEST_F(AusgabeneuFensterViewTest, AUnitPickedInItsCellConvertsTheRow) {
  pipe();
  height("10");
  const Real pipeLoss = *window.table().get_Spalte(0).cells[31].number;  // bar
  const std::string pipeLossShown = shown(32, 0);
  QSignalSpy changes(view.get(), &AusgabeneuFensterView::modelChanged);
  const auto pick = [&](int row, const char* unit) {
    QComboBox* box = unitBox(row);
    ASSERT_NE(box, nullptr) << "row " << row;
    const int item = box->findText(qs(unit));
    ASSERT_GE(item, 0) << unit;
    box->setCurrentIndex(item);  // the user's pick
    EXPECT_EQ(window.table().unitCells[static_cast<std::size_t>(row)], unit);
    EXPECT_EQ(ss(unitBox(row)->currentText()), unit) << "row " << row;
  };
  // Each case picks a unit in a row's combo box; the shown values of both columns follow.
  struct Case {
    int row;
    const char* unit;
    std::vector<std::string> texts;
  };
  const Case cases[] = {
      {2, "l/s", {"10,000", "10,000"}},  // 36 m3/h / 3.6 = 10 l/s
      {5, "kg/l", {"1,000", "1,000"}},   // 1000 kg/m3 = 1 kg/l
      {21, "km/h", {"4,584", ""}},       // 1.27324 m/s * 3.6; a height has no velocity
      {26, "in.", {"0,004", ""}},        // 0.1 mm / 25.4
      {31, "mbar", {"", "981,000"}},     // 0.981 bar of the height
  };
  for (const Case& c : cases) {
    pick(c.row, c.unit);
    const std::vector<std::string> texts = shownRow(c.row);
    EXPECT_EQ(texts[1], c.texts[1]) << "row " << c.row;
    if (!c.texts[0].empty()) {
      EXPECT_EQ(texts[0], c.texts[0]) << "row " << c.row;
    }
  }
  EXPECT_EQ(changes.count(), 5);
  // The pipe's loss in mbar is its loss in bar times 1000; row 32 keeps its unit and values.
  EXPECT_NEAR(static_cast<double>(*window.table().get_Spalte(0).cells[31].number), static_cast<double>(pipeLoss) * 1000,
              1e-12);
  EXPECT_EQ(shownRow(32), (std::vector<std::string>{pipeLossShown, "0,981"}));

  // The sum in mbar: the pipe's loss, then plus 981 mbar of the height.
  pick(33, "mbar");
  EXPECT_NEAR(static_cast<double>(*window.table().get_Spalte(1).cells[33].number),
              static_cast<double>(pipeLoss) * 1000 + 981, 1e-9);
  EXPECT_EQ(ss(view->sumLabel()->text()), "Summe: " + shown(33, 1) + " mbar");

  // The same unit again changes nothing.
  pick(33, "mbar");
  EXPECT_EQ(changes.count(), 6);

  // The unit system of the element rows: 100 mm = 3.937 in., 10 m = 32.81 ft.
  pick(15, "US");
  EXPECT_EQ(shown(15, 0).rfind("Rohrdurchmesser D in in.: 3,937", 0), 0u) << shown(15, 0);
  EXPECT_EQ(shown(16, 0).rfind("Rohrlänge L in ft.: 32,8", 0), 0u) << shown(16, 0);
}

TEST_F(AusgabeneuFensterViewTest, DraggingAHeaderReordersTheRunningSums) {
  height("10");                                                                    // 0.981 bar
  height("-4");                                                                    // -0.3924 bar
  height("2");                                                                     // 0.1962 bar
  EXPECT_EQ(shownRow(33), (std::vector<std::string>{"0,981", "0,589", "0,785"}));  // 0.981, 0.5886, 0.7848
  QSignalSpy changes(view.get(), &AusgabeneuFensterView::modelChanged);

  // Drag the third header onto the first.
  QHeaderView* headers = calculations()->horizontalHeader();
  const auto centre = [&](int column) {
    return QPoint(headers->sectionViewportPosition(kFirst + column) + headers->sectionSize(kFirst + column) / 2,
                  headers->height() / 2);
  };
  QTest::mousePress(headers->viewport(), Qt::LeftButton, {}, centre(2));
  QTest::mouseMove(headers->viewport(), centre(1));
  QTest::mouseMove(headers->viewport(), centre(0) - QPoint(headers->sectionSize(kFirst) / 4, 0));
  QTest::mouseRelease(headers->viewport(), Qt::LeftButton, {}, centre(0) - QPoint(headers->sectionSize(kFirst) / 4, 0));

  // In the new order 0.1962, 0.981, -0.3924 the sums are 0.1962, 1.1772, 0.7848: the last one stays.
  EXPECT_EQ(shownRow(32), (std::vector<std::string>{"0,196", "0,981", "-0,392"}));
  EXPECT_EQ(shownRow(33), (std::vector<std::string>{"0,196", "1,177", "0,785"}));
  EXPECT_EQ(header(0), "1");                        // the captions run in display order
  EXPECT_EQ(headers->visualIndex(kFirst), kFirst);  // the header shows the model's order
  EXPECT_EQ(view->selectedColumn(), 0);             // the moved column stays selected
  EXPECT_EQ(changes.count(), 1);

  // A move onto the empty end column puts the calculation last; the end column itself stays.
  headers->moveSection(kFirst, kFirst + 3);
  EXPECT_EQ(shownRow(32), (std::vector<std::string>{"0,981", "-0,392", "0,196"}));
  headers->moveSection(kFirst + 3, kFirst);
  EXPECT_EQ(shownRow(32), (std::vector<std::string>{"0,981", "-0,392", "0,196"}));
  EXPECT_EQ(window.table().get_Spalte(3).empty(), true);
}

TEST_F(AusgabeneuFensterViewTest, TheSelectedColumnIsRemoved) {
  height("10");
  height("-4");
  height("2");
  // Nothing selected: a note, and every column stays.
  view->removeSelectedColumn();
  ASSERT_EQ(messages().size(), 1u);
  EXPECT_EQ(messages()[0].text, words.noColumn);
  EXPECT_EQ(window.Anzahl_Berechnungen(), 3);

  clickHeader(1);
  EXPECT_EQ(view->selectedColumn(), 1);
  QTest::keyClick(calculations(), Qt::Key_Delete);
  // Left: 0.981 and 0.1962 bar, summed 0.981 and 1.1772.
  ASSERT_EQ(window.Anzahl_Berechnungen(), 2);
  EXPECT_EQ(shownRow(33), (std::vector<std::string>{"0,981", "1,177"}));
  EXPECT_EQ(header(1), "2");
  EXPECT_EQ(header(2), "3");  // the empty end column
  EXPECT_EQ(grid()->model()->columnCount(), kFirst + 3);

  clickHeader(2);  // the empty end column holds no calculation
  EXPECT_EQ(view->selectedColumn(), -1);
}

TEST_F(AusgabeneuFensterViewTest, CopiesTheTableOrTheSelectionAsTabSeparatedText) {
  height("10");
  height("-4");
  // Nothing selected: the whole table with its headings and group rows, without the end column.
  view->copyToClipboard();
  const QStringList lines = clipboardLines();
  ASSERT_EQ(lines.size(), 1 + ResultGridModel::kGridRows + 1);  // the text ends with a line feed
  EXPECT_EQ(ss(lines[0]), "Größe\tEinheit\t1\t2");
  EXPECT_EQ(ss(lines[1]), "1. Fördermedium\t\t\t");
  EXPECT_EQ(ss(lines[1 + ResultGridModel::gridRow(0)]), "Medium\t\tWasser\tWasser");
  EXPECT_EQ(ss(lines[1 + ResultGridModel::gridRow(32)]), "Druckverlust\tbar\t0,981\t-0,392");
  EXPECT_EQ(ss(lines[1 + ResultGridModel::gridRow(33)]), "Summe Druckverlust\tbar\t0,981\t0,589");
  EXPECT_TRUE(lines.last().isEmpty());

  // A selection: rows 32 and 33 of both calculations, by keyboard, copied with Ctrl+C.
  const ResultGridModel* model = grid()->model();
  calculations()->setFocus();
  calculations()->setCurrentIndex(model->index(ResultGridModel::gridRow(32), kFirst));
  QTest::keyClick(calculations(), Qt::Key_Right, Qt::ShiftModifier);
  QTest::keyClick(calculations(), Qt::Key_Down, Qt::ShiftModifier);
  QTest::keyClick(calculations(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(ss(QGuiApplication::clipboard()->text()), "0,981\t-0,392\n0,981\t0,589\n");
}

TEST_F(AusgabeneuFensterViewTest, TablesAreAddedRenamedAndDeleted) {
  QSignalSpy changes(view.get(), &AusgabeneuFensterView::modelChanged);
  height("10");
  view->newTable();
  ASSERT_EQ(view->pageTabs()->count(), 2);
  EXPECT_EQ(view->pageTabs()->currentIndex(), 1);
  EXPECT_EQ(ss(view->pageTabs()->tabText(1)), "Tabelle 2");
  EXPECT_EQ(window.activePage, 1);
  height("2");  // the next run goes into the new table
  EXPECT_EQ(shownRow(32), std::vector<std::string>{"0,196"});
  EXPECT_EQ(window.pages[0].Anzahl_Berechnungen(), 1);

  // Rename: the name the user gives; a cancel or an empty name changes nothing.
  std::vector<QString> asked;
  std::optional<QString> answer = QString("Saugleitung");
  view->askTableName = [&](const QString& current) {
    asked.push_back(current);
    return answer;
  };
  view->renameTable();
  EXPECT_EQ(ss(view->pageTabs()->tabText(1)), "Saugleitung");
  EXPECT_EQ(window.pages[1].caption, "Saugleitung");
  for (const std::optional<QString>& refused : {std::optional<QString>(), std::optional<QString>("")}) {
    answer = refused;
    view->renameTable();
    EXPECT_EQ(window.pages[1].caption, "Saugleitung");
  }
  EXPECT_EQ(asked, (std::vector<QString>{"Tabelle 2", "Saugleitung", "Saugleitung"}));

  // Switching pages by their tabs: the status bar shows the sum of the page shown.
  view->pageTabs()->setCurrentIndex(0);
  EXPECT_EQ(window.activePage, 0);
  EXPECT_EQ(ss(view->sumLabel()->text()), "Summe: 0,981 bar");
  view->pageTabs()->setCurrentIndex(1);
  EXPECT_EQ(ss(view->sumLabel()->text()), "Summe: 0,196 bar");

  // Delete after a question: No keeps the table, Yes removes it; the last table stays.
  meldungen.queueAnswer(Answer::No);
  view->deleteTable();
  EXPECT_EQ(view->pageTabs()->count(), 2);
  view->deleteTable();
  ASSERT_EQ(view->pageTabs()->count(), 1);
  EXPECT_EQ(ss(view->pageTabs()->tabText(0)), "Tabelle 1");
  EXPECT_EQ(shownRow(32), std::vector<std::string>{"0,981"});
  ASSERT_EQ(messages().size(), 2u);
  EXPECT_EQ(messages()[1].kind, MessageKind::YesNo);
  EXPECT_EQ(messages()[1].text, words.deleteTable);
  view->deleteTable();
  EXPECT_EQ(messages().size(), 2u);  // no question for the last table
  EXPECT_EQ(view->pageTabs()->count(), 1);
  EXPECT_EQ(changes.count(), 3);  // new, rename, delete
}

TEST_F(AusgabeneuFensterViewTest, ADoubleClickedColumnGoesBackIntoThePanels) {
  pipe();
  height("10");
  EXPECT_EQ(app.state.ElementGruppe, 13);
  QSignalSpy changes(view.get(), &AusgabeneuFensterView::modelChanged);
  const QModelIndex pipeCell = grid()->model()->index(ResultGridModel::gridRow(12), kFirst);
  // A real double click: press and release, then the double click event.
  const QPoint where = calculations()->visualRect(pipeCell).center();
  QTest::mouseClick(calculations()->viewport(), Qt::LeftButton, {}, where);
  QTest::mouseDClick(calculations()->viewport(), Qt::LeftButton, {}, where);
  EXPECT_EQ(app.state.ElementGruppe, 1);
  EXPECT_EQ(app.state.ElementNr, 1);
  EXPECT_EQ(app.MyWindow.Va1_Edit.Text, "100");
  EXPECT_EQ(app.MyWindow.Va2_Edit.Text, "10");
  EXPECT_EQ(app.MyWindow.Eingabe_Volumenstrom.Text, "36");
  EXPECT_EQ(changes.count(), 1);

  // The menu entry takes the selected column.
  clickHeader(1);
  view->copySelectedColumnToPanels();
  EXPECT_EQ(app.state.ElementGruppe, 13);
  EXPECT_EQ(app.MyWindow.Va1_Edit.Text, "10");
  EXPECT_EQ(changes.count(), 2);
}

TEST_F(AusgabeneuFensterViewTest, TheCommandsStandInTheMenusWithTheirWords) {
  // The menus and their entries in the program's language, each entry also on the tool bar.
  const QList<QAction*> menus = view->menuBar()->actions();
  ASSERT_EQ(menus.size(), 2);
  EXPECT_EQ(ss(menus[0]->text()), "&Tabelle");
  EXPECT_EQ(ss(menus[1]->text()), "&Spalte");
  std::vector<std::string> entries;
  for (QAction* menu : menus) {
    for (QAction* entry : menu->menu()->actions()) {
      if (!entry->isSeparator()) entries.push_back(ss(entry->text()));
    }
  }
  EXPECT_EQ(entries, (std::vector<std::string>{"&Neue Tabelle", "Tabelle &umbenennen...", "Aktuelle Tabelle &löschen",
                                               "In &Zwischenablage kopieren", "Gewählte Spalte &entfernen",
                                               "In &Eingabefelder kopieren"}));
  const QList<QToolBar*> bars = view->findChildren<QToolBar*>();
  ASSERT_EQ(bars.size(), 1);
  int tools = 0;
  for (QAction* tool : bars[0]->actions()) tools += tool->isSeparator() ? 0 : 1;
  EXPECT_EQ(tools, 6);

  // The caption names the project.
  app.Projekt.Caption = "Saugleitung.slf";
  view->refresh();
  EXPECT_EQ(ss(view->windowTitle()), "Saugleitung.slf");

  // Deleting a table is offered only while there is more than one.
  QAction* deleteTable = menus[0]->menu()->actions()[2];
  EXPECT_FALSE(deleteTable->isEnabled());
  menus[0]->menu()->actions()[0]->trigger();  // a new table
  EXPECT_TRUE(deleteTable->isEnabled());
  EXPECT_EQ(view->pageTabs()->count(), 2);
}

TEST_F(AusgabeneuFensterViewTest, AResizedColumnKeepsItsWidth) {
  height("10");
  calculations()->setColumnWidth(kFirst, 210);
  grid()->fixedBand()->setColumnWidth(ResultGridModel::kTitleColumn, 180);
  EXPECT_EQ(window.table().get_Spalte(0).width, 210);
  EXPECT_EQ(window.table().fixedWidths[1], 180);
  height("2");  // a later run keeps the widths
  EXPECT_EQ(calculations()->columnWidth(kFirst), 210);
  EXPECT_EQ(grid()->fixedBand()->columnWidth(ResultGridModel::kTitleColumn), 180);
  EXPECT_EQ(grid()->fixedBand()->width(), 180 + 100 + 2 * grid()->fixedBand()->frameWidth());
}

}  // namespace
}  // namespace linecalc::test
