#pragma once

#include <QMainWindow>
#include <QString>
#include <functional>
#include <optional>
#include <string_view>

#include "catalogue/desktop_words.h"
#include "workspace/anwendung.h"

class QAction;
class QKeySequence;
class QLabel;
class QMenu;
class QTabWidget;
class QToolBar;

namespace linecalc::gui {

class ResultGrid;

// The result window: a page per result table, the table commands in a menu and a tool bar, and the
// running sum of the shown table in the status bar.
class AusgabeneuFensterView : public QMainWindow {
  Q_OBJECT

 public:
  AusgabeneuFensterView(Anwendung& app, const DesktopWords& words, QWidget* parent = nullptr);

  // The display position of the selected calculation column; -1 when none is selected.
  int selectedColumn() const;

  QTabWidget* pageTabs() const { return tabs_; }
  ResultGrid* grid(int page) const;
  QLabel* sumLabel() const { return sum_; }

  // Asks the user for a table's new name, showing its current one; no value when the user cancels.
  std::function<std::optional<QString>(const QString& current)> askTableName;

 public slots:
  void refresh();
  void newTable();
  void renameTable();
  void deleteTable();
  // The selected cells, or the whole table when nothing is selected, as tab-separated text.
  void copyToClipboard();
  void removeSelectedColumn();
  void copySelectedColumnToPanels();

 signals:
  void modelChanged();

 private:
  Anwendung& app_;
  TAusgabeneu_Fenster& window_;
  const DesktopWords& words_;
  QTabWidget* tabs_;
  QToolBar* tools_;
  QLabel* sum_;
  QAction* deleteTableAction_ = nullptr;

  QAction* addCommand(QMenu* menu, std::string_view control, const QKeySequence& keys,
                      void (AusgabeneuFensterView::*command)());
  void buildCommands();
  void showPages();
  void showSum();
  ResultGrid* shownGrid() const;
  ResultGrid* makeGrid(int pageNumber);
  void choosePage(int page);
  void chooseUnit(int tableRow, const QString& unit);
  void moveColumn(int from, int to);
  void keepColumnWidth(int pageNumber, int gridColumn, int width);
  void copyColumnToPanels(int column);
  // The selected calculation column; with none, a note to the user and -1.
  int columnOrNote();
  bool tableDeletable() const;
  void changed();
};

}  // namespace linecalc::gui
