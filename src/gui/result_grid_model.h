#pragma once

#include <QAbstractTableModel>
#include <QFont>

#include "catalogue/desktop_words.h"
#include "tables/ausgabe_fenster.h"
#include "tables/row_groups.h"

namespace linecalc::gui {

// The page of a result window with the given number; nullptr when there is none.
template <class Pages>
auto* pageWithNumber(Pages& pages, int number) {
  decltype(&pages.front()) found = nullptr;
  for (auto& page : pages) {
    if (page.number == number) found = &page;
  }
  return found;
}

// One page of the result window as a grid: the row titles, the unit cells, then the calculation
// columns in the order of the pipe run, the empty end column last. A heading row with the group's
// title stands before each row group. The grid only shows the page; a unit the user chooses is
// handed on as unitChosen.
class ResultGridModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  static constexpr int kTitleColumn = 0, kUnitColumn = 1, kFirstCalculationColumn = 2;
  static constexpr int kGridRows = kResultRows + kRowGroups;
  static constexpr int UnitChoicesRole = Qt::UserRole + 1;  // the units of a unit cell, a QStringList

  ResultGridModel(const TAusgabeneu_Fenster& window, const DesktopWords& words, int pageNumber,
                  QObject* parent = nullptr);

  int pageNumber() const { return pageNumber_; }
  const ResultTable* page() const { return pageWithNumber(window_.pages, pageNumber_); }
  int calculationCount() const;
  // The grid row of a table row; and the table row of a grid row, -1 for a heading row.
  static int gridRow(int tableRow);
  static int tableRow(int gridRow);
  // The font of the tables, as the project keeps it.
  QFont tableFont() const;

  // Shows the page as it is now: a changed count of columns resets the grid, otherwise every cell
  // and caption is shown anew.
  void refresh();

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;

 signals:
  void unitChosen(int tableRow, const QString& unit);

 private:
  const TAusgabeneu_Fenster& window_;
  const DesktopWords& words_;
  int pageNumber_;
  int shownColumns_ = 0;

  int liveColumnCount() const;
  QVariant text(int gridRow, int column) const;
};

}  // namespace linecalc::gui
