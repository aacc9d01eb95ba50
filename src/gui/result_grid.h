#pragma once

#include <QWidget>
#include <string>
#include <vector>

#include "result_grid_model.h"

class QTableView;

namespace linecalc::gui {

// One page of the result window: the row titles and unit cells in a fixed band on the left, the
// calculation columns beside it in a band that scrolls. Both bands show one model and share one
// selection; the user moves a calculation by dragging its header.
class ResultGrid : public QWidget {
  Q_OBJECT

 public:
  ResultGrid(const TAusgabeneu_Fenster& window, const DesktopWords& words, int pageNumber, QWidget* parent = nullptr);

  ResultGridModel* model() const { return model_; }
  QTableView* fixedBand() const { return fixed_; }
  QTableView* calculationBand() const { return calculations_; }
  int pageNumber() const { return model_->pageNumber(); }

  // Shows the page as it is now, the cells of long texts wrapped onto more lines when wrapText.
  void refresh(bool wrapText);
  // The display position of the calculation column of the selected cells; -1 when none is selected.
  int selectedColumn() const;
  void selectColumn(int column);
  // The shown texts of the selected cells, one row each, cells left out of the selection empty; with
  // nothing selected, the whole table with its headings.
  std::vector<std::vector<std::string>> copiedTexts() const;

 signals:
  void unitChosen(int tableRow, const QString& unit);
  void columnMoved(int from, int to);
  void columnDoubleClicked(int column);
  // The user resized a grid column (kTitleColumn, kUnitColumn or a calculation column).
  void columnResized(int gridColumn, int width);

 private:
  ResultGridModel* model_;
  QTableView* fixed_;
  QTableView* calculations_;
  int baseRowHeight_ = 0;
  bool showing_ = false;  // while the grid shows the model: header changes are not the user's

  void showBands();
  void showWidths();
  void showUnitEditors();
  void showRowHeights(bool wrapText);
  void keepFixedBandWidth();
  void takeMovedSection(int logical, int oldVisual, int newVisual);
  void takeResizedSection(int logical, int newSize, bool fixedBand);
  std::string cellText(int gridRow, int column) const;
};

}  // namespace linecalc::gui
