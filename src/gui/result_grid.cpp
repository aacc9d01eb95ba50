#include "result_grid.h"

#include <QAbstractItemDelegate>
#include <QFontMetrics>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QScrollBar>
#include <QTableView>
#include <algorithm>

#include "control_binding.h"
#include "unit_cell_delegate.h"

namespace linecalc::gui {

namespace {

constexpr int kFirst = ResultGridModel::kFirstCalculationColumn;

QTableView* makeBand(ResultGridModel* model, QWidget* parent) {
  auto* band = new QTableView(parent);
  band->setModel(model);
  band->verticalHeader()->hide();
  band->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  band->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  // Both bands keep a horizontal scroll bar, so that their rows stand at the same heights.
  band->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  band->setEditTriggers(QAbstractItemView::NoEditTriggers);  // the unit cells show their combo boxes always
  return band;
}

}  // namespace

ResultGrid::ResultGrid(const TAusgabeneu_Fenster& window, const DesktopWords& words, int pageNumber, QWidget* parent)
    : QWidget(parent), model_(new ResultGridModel(window, words, pageNumber, this)) {
  fixed_ = makeBand(model_, this);
  calculations_ = makeBand(model_, this);
  fixed_->setSelectionModel(calculations_->selectionModel());
  fixed_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  fixed_->setItemDelegateForColumn(ResultGridModel::kUnitColumn, new UnitCellDelegate(fixed_));
  calculations_->horizontalHeader()->setSectionsMovable(true);

  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(fixed_);
  layout->addWidget(calculations_, 1);

  connect(calculations_->verticalScrollBar(), &QScrollBar::valueChanged, fixed_->verticalScrollBar(),
          &QScrollBar::setValue);
  connect(fixed_->verticalScrollBar(), &QScrollBar::valueChanged, calculations_->verticalScrollBar(),
          &QScrollBar::setValue);
  connect(model_, &ResultGridModel::unitChosen, this, &ResultGrid::unitChosen);
  connect(calculations_->horizontalHeader(), &QHeaderView::sectionMoved, this, &ResultGrid::takeMovedSection);
  connect(fixed_->horizontalHeader(), &QHeaderView::sectionResized, this,
          [this](int logical, int, int newSize) { takeResizedSection(logical, newSize, true); });
  connect(calculations_->horizontalHeader(), &QHeaderView::sectionResized, this,
          [this](int logical, int, int newSize) { takeResizedSection(logical, newSize, false); });
  const auto doubleClicked = [this](int gridColumn) {
    if (gridColumn >= kFirst) emit columnDoubleClicked(gridColumn - kFirst);
  };
  connect(calculations_, &QTableView::doubleClicked, this,
          [doubleClicked](const QModelIndex& index) { doubleClicked(index.column()); });
  connect(calculations_->horizontalHeader(), &QHeaderView::sectionDoubleClicked, this, doubleClicked);
}

void ResultGrid::refresh(bool wrapText) {
  showing_ = true;
  model_->refresh();
  showBands();
  showWidths();
  showUnitEditors();
  showRowHeights(wrapText);
  showing_ = false;
}

void ResultGrid::showBands() {
  const QFont font = model_->tableFont();
  for (QTableView* band : {fixed_, calculations_}) band->setFont(font);
  for (int column = 0; column < model_->columnCount(); ++column) {
    fixed_->setColumnHidden(column, column >= kFirst);
    calculations_->setColumnHidden(column, column < kFirst);
  }
  fixed_->clearSpans();
  if (model_->rowCount() == 0) return;
  for (const int firstRow : kFirstRowOfGroup) fixed_->setSpan(ResultGridModel::gridRow(firstRow) - 1, 0, 1, kFirst);
}

void ResultGrid::showWidths() {
  const ResultTable* page = model_->page();
  if (page == nullptr) return;
  fixed_->setColumnWidth(ResultGridModel::kTitleColumn, page->fixedWidths[1]);
  // The stored width of the unit cells was measured for a smaller font; a unit list shows whole.
  constexpr int kReadableUnitWidth = 100;
  fixed_->setColumnWidth(ResultGridModel::kUnitColumn, std::max(page->fixedWidths[2], kReadableUnitWidth));
  for (std::size_t i = 0; i < page->columns.size(); ++i) {
    calculations_->setColumnWidth(kFirst + static_cast<int>(i), page->columns[i].width);
  }
  keepFixedBandWidth();
}

void ResultGrid::keepFixedBandWidth() {
  fixed_->setFixedWidth(fixed_->columnWidth(ResultGridModel::kTitleColumn) +
                        fixed_->columnWidth(ResultGridModel::kUnitColumn) + 2 * fixed_->frameWidth());
}

void ResultGrid::showUnitEditors() {
  QAbstractItemDelegate* delegate = fixed_->itemDelegateForColumn(ResultGridModel::kUnitColumn);
  for (int row = 0; row < model_->rowCount(); ++row) {
    const QModelIndex cell = model_->index(row, ResultGridModel::kUnitColumn);
    if (!(model_->flags(cell) & Qt::ItemIsEditable)) continue;
    if (QWidget* editor = fixed_->indexWidget(cell)) {
      delegate->setEditorData(editor, cell);
    } else {
      fixed_->openPersistentEditor(cell);
    }
  }
}

void ResultGrid::showRowHeights(bool wrapText) {
  int height = QFontMetrics(model_->tableFont()).height() + 8;
  for (int row = 0; row < model_->rowCount(); ++row) {
    if (QWidget* editor = fixed_->indexWidget(model_->index(row, ResultGridModel::kUnitColumn)))
      height = std::max(height, editor->sizeHint().height());
  }
  for (QTableView* band : {fixed_, calculations_}) {
    band->setWordWrap(wrapText);
    if (wrapText) band->resizeRowsToContents();
  }
  for (int row = 0; row < model_->rowCount(); ++row) {
    const int rowHeight = wrapText ? std::max({height, fixed_->rowHeight(row), calculations_->rowHeight(row)}) : height;
    fixed_->setRowHeight(row, rowHeight);
    calculations_->setRowHeight(row, rowHeight);
  }
}

void ResultGrid::takeMovedSection(int logical, int oldVisual, int newVisual) {
  if (showing_) return;
  // The header goes back to the model's order; the model moves the calculation and the grid shows it.
  showing_ = true;
  calculations_->horizontalHeader()->moveSection(newVisual, oldVisual);
  showing_ = false;
  emit columnMoved(logical - kFirst, std::max(newVisual - kFirst, 0));
}

void ResultGrid::takeResizedSection(int logical, int newSize, bool fixedBand) {
  const bool bandsColumn = fixedBand == (logical < kFirst);
  if (showing_ || newSize <= 0 || !bandsColumn) return;
  if (fixedBand) keepFixedBandWidth();
  emit columnResized(logical, newSize);
}

int ResultGrid::selectedColumn() const {
  const QModelIndex current = calculations_->currentIndex();
  if (!current.isValid() || !calculations_->selectionModel()->isSelected(current)) return -1;
  const int column = current.column() - kFirst;
  return column >= 0 && column < model_->calculationCount() ? column : -1;
}

void ResultGrid::selectColumn(int column) {
  calculations_->selectColumn(column + kFirst);
}

std::string ResultGrid::cellText(int gridRow, int column) const {
  return ss(model_->data(model_->index(gridRow, column), Qt::DisplayRole).toString());
}

std::vector<std::vector<std::string>> ResultGrid::copiedTexts() const {
  std::vector<std::vector<std::string>> rows;
  const QItemSelectionModel* selection = calculations_->selectionModel();
  const QModelIndexList chosen = selection->selectedIndexes();
  if (chosen.isEmpty()) {
    const int columns = kFirst + model_->calculationCount();  // the empty end column is left out
    auto& headings = rows.emplace_back();
    for (int column = 0; column < columns; ++column)
      headings.push_back(ss(model_->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString()));
    for (int row = 0; row < model_->rowCount(); ++row) {
      auto& texts = rows.emplace_back();
      for (int column = 0; column < columns; ++column) texts.push_back(cellText(row, column));
    }
    return rows;
  }
  const auto [top, bottom] =
      std::minmax_element(chosen.begin(), chosen.end(), [](const auto& a, const auto& b) { return a.row() < b.row(); });
  const auto [left, right] = std::minmax_element(chosen.begin(), chosen.end(),
                                                 [](const auto& a, const auto& b) { return a.column() < b.column(); });
  for (int row = top->row(); row <= bottom->row(); ++row) {
    auto& texts = rows.emplace_back();
    for (int column = left->column(); column <= right->column(); ++column) {
      texts.push_back(selection->isSelected(model_->index(row, column)) ? cellText(row, column) : std::string());
    }
  }
  return rows;
}

}  // namespace linecalc::gui
