#include "ausgabeneu_fenster_view.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QInputDialog>
#include <QKeySequence>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QSignalBlocker>
#include <QStatusBar>
#include <QTabWidget>
#include <QToolBar>
#include <algorithm>

#include "control_binding.h"
#include "result_grid.h"
#include "tables/table_text.h"

namespace linecalc::gui {

AusgabeneuFensterView::AusgabeneuFensterView(Anwendung& app, const DesktopWords& words, QWidget* parent)
    : QMainWindow(parent),
      app_(app),
      window_(app.Ausgabeneu_Fenster),
      words_(words),
      tabs_(new QTabWidget(this)),
      sum_(new QLabel(this)) {
  askTableName = [this](const QString& current) -> std::optional<QString> {
    bool accepted = false;
    const QString name = QInputDialog::getText(this, qs(app_.productTitle), qs(words_.renameTable), QLineEdit::Normal,
                                               current, &accepted);
    return accepted ? std::optional(name) : std::nullopt;
  };
  setCentralWidget(tabs_);
  statusBar()->addPermanentWidget(sum_);
  buildCommands();
  connect(tabs_, &QTabWidget::currentChanged, this, &AusgabeneuFensterView::choosePage);
  resize(900, 650);
  refresh();
}

QAction* AusgabeneuFensterView::addCommand(QMenu* menu, std::string_view control, const QKeySequence& keys,
                                           void (AusgabeneuFensterView::*command)()) {
  QAction* action = menu->addAction(qs(app_.MyWindow.words.menu(control)));
  action->setShortcut(keys);
  connect(action, &QAction::triggered, this, command);
  tools_->addAction(action);
  return action;
}

void AusgabeneuFensterView::buildCommands() {
  const MainFormWords& menus = app_.MyWindow.words;
  tools_ = addToolBar(qs(menus.menu("Tabelle1")));
  QMenu* table = menuBar()->addMenu(qs(menus.menu("Tabelle1")));
  addCommand(table, "Tabelleneu1", QKeySequence::AddTab, &AusgabeneuFensterView::newTable);
  addCommand(table, "Tabelleumbenennen1", QKeySequence(Qt::Key_F2), &AusgabeneuFensterView::renameTable);
  deleteTableAction_ = addCommand(table, "AktuelleTabellelschen1", {}, &AusgabeneuFensterView::deleteTable);
  table->addSeparator();
  tools_->addSeparator();
  addCommand(table, "KopiereninZwischenablage1", QKeySequence::Copy, &AusgabeneuFensterView::copyToClipboard);
  QMenu* column = menuBar()->addMenu(qs(menus.menu("abellenSpalte1")));
  tools_->addSeparator();
  addCommand(column, "GewhlteSpalteentfernen1", QKeySequence::Delete, &AusgabeneuFensterView::removeSelectedColumn);
  addCommand(column, "KopiereninEingabefelder1", {}, &AusgabeneuFensterView::copySelectedColumnToPanels);
}

ResultGrid* AusgabeneuFensterView::grid(int page) const {
  return qobject_cast<ResultGrid*>(tabs_->widget(page));
}

ResultGrid* AusgabeneuFensterView::shownGrid() const {
  return grid(tabs_->currentIndex());
}

int AusgabeneuFensterView::selectedColumn() const {
  const ResultGrid* shown = shownGrid();
  return shown ? shown->selectedColumn() : -1;
}

void AusgabeneuFensterView::refresh() {
  setWindowTitle(qs(app_.Projekt.Caption));
  showPages();
  for (int page = 0; page < tabs_->count(); ++page) grid(page)->refresh(app_.EinstellungenDlg.CheckBox1.Checked);
  showSum();
  deleteTableAction_->setEnabled(tableDeletable());
}

void AusgabeneuFensterView::showPages() {
  const QSignalBlocker showOnly(tabs_);
  const int count = static_cast<int>(window_.pages.size());
  for (int page = 0; page < count; ++page) {
    const ResultTable& table = window_.pages[static_cast<std::size_t>(page)];
    ResultGrid* shown = nullptr;
    for (int tab = page; tab < tabs_->count() && shown == nullptr; ++tab) {
      if (grid(tab)->pageNumber() == table.number) shown = grid(tab);
    }
    if (shown == nullptr) shown = makeGrid(table.number);
    if (tabs_->indexOf(shown) != page) {
      if (tabs_->indexOf(shown) >= 0) tabs_->removeTab(tabs_->indexOf(shown));
      tabs_->insertTab(page, shown, QString());
    }
    tabs_->setTabText(page, qs(table.caption));
  }
  while (tabs_->count() > count) {
    QWidget* gone = tabs_->widget(count);
    tabs_->removeTab(count);
    gone->deleteLater();
  }
  tabs_->setCurrentIndex(window_.activePage);
}

ResultGrid* AusgabeneuFensterView::makeGrid(int pageNumber) {
  auto* made = new ResultGrid(window_, words_, pageNumber);
  connect(made, &ResultGrid::unitChosen, this, &AusgabeneuFensterView::chooseUnit);
  connect(made, &ResultGrid::columnMoved, this, &AusgabeneuFensterView::moveColumn);
  connect(made, &ResultGrid::columnDoubleClicked, this, &AusgabeneuFensterView::copyColumnToPanels);
  connect(made, &ResultGrid::columnResized, this,
          [this, pageNumber](int gridColumn, int width) { keepColumnWidth(pageNumber, gridColumn, width); });
  return made;
}

void AusgabeneuFensterView::showSum() {
  const std::string& sum = window_.table().statusText;
  sum_->setText(sum.empty() ? QString() : qs(words_.sum + ": " + sum));
}

void AusgabeneuFensterView::choosePage(int page) {
  if (page < 0) return;
  window_.activePage = page;
  showSum();
}

bool AusgabeneuFensterView::tableDeletable() const {
  return window_.pages.size() > 1;  // the last table stays
}

void AusgabeneuFensterView::changed() {
  refresh();
  emit modelChanged();
}

void AusgabeneuFensterView::newTable() {
  window_.Leere_Tabelle_erzeugen();
  changed();
}

void AusgabeneuFensterView::renameTable() {
  const std::optional<QString> name = askTableName(qs(window_.table().caption));
  if (!name || name->isEmpty()) return;
  if (window_.renamePage(window_.activePage, ss(*name))) changed();
}

void AusgabeneuFensterView::deleteTable() {
  if (!tableDeletable() || !app_.meldungen.askYesNo(app_.productTitle, words_.deleteTable)) return;
  if (window_.removePage(window_.activePage)) changed();
}

void AusgabeneuFensterView::copyToClipboard() {
  QGuiApplication::clipboard()->setText(qs(tabSeparatedText(shownGrid()->copiedTexts())));
}

int AusgabeneuFensterView::columnOrNote() {
  const int column = selectedColumn();
  if (column < 0) app_.meldungen.information(window_.noteCaption, words_.noColumn);
  return column;
}

void AusgabeneuFensterView::removeSelectedColumn() {
  const int column = columnOrNote();
  if (column >= 0 && window_.Gewaehlte_Spalte_loeschen(column)) changed();
}

void AusgabeneuFensterView::copySelectedColumnToPanels() {
  const int column = columnOrNote();
  if (column >= 0) copyColumnToPanels(column);
}

void AusgabeneuFensterView::copyColumnToPanels(int column) {
  if (window_.Spalte_nach_oben_kopieren(column, 'A')) emit modelChanged();
}

void AusgabeneuFensterView::moveColumn(int from, int to) {
  // A drop behind the last calculation puts the column last; the empty end column stays at the end.
  to = std::min(to, window_.Anzahl_Berechnungen() - 1);
  if (from == to || !window_.moveColumn(from, to)) return;
  changed();
  shownGrid()->selectColumn(to);
}

void AusgabeneuFensterView::chooseUnit(int tableRow, const QString& unit) {
  std::string& unitCell = window_.table().unitCells.at(static_cast<std::size_t>(tableRow));
  const std::string oldUnit = unitCell;
  if (ss(unit) == oldUnit) return;
  unitCell = ss(unit);
  if (tableRow == 15) {
    window_.Zeile_Elemente_umrechnen();  // the unit system of the element rows
  } else {
    window_.Zeile_Daten_umrechnen(tableRow, oldUnit);
  }
  changed();
}

void AusgabeneuFensterView::keepColumnWidth(int pageNumber, int gridColumn, int width) {
  ResultTable* page = pageWithNumber(window_.pages, pageNumber);
  if (page == nullptr) return;
  if (gridColumn == ResultGridModel::kTitleColumn) {
    page->fixedWidths[1] = width;
  } else if (gridColumn == ResultGridModel::kUnitColumn) {
    page->fixedWidths[2] = width;
  } else if (const auto i = static_cast<std::size_t>(gridColumn - ResultGridModel::kFirstCalculationColumn);
             i < page->columns.size()) {
    page->columns[i].width = width;
  }
}

}  // namespace linecalc::gui
