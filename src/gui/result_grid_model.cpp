#include "result_grid_model.h"

#include <QBrush>
#include <QColor>
#include <QGuiApplication>
#include <QPalette>
#include <QStringList>

#include "control_binding.h"

namespace linecalc::gui {

namespace {

// The group whose heading stands in a grid row; -1 for the rows of the table.
int headingGroup(int gridRow) {
  for (int group = 0; group < kRowGroups; ++group) {
    if (gridRow == kFirstRowOfGroup[static_cast<std::size_t>(group)] + group) return group;
  }
  return -1;
}

}  // namespace

ResultGridModel::ResultGridModel(const TAusgabeneu_Fenster& window, const DesktopWords& words, int pageNumber,
                                 QObject* parent)
    : QAbstractTableModel(parent), window_(window), words_(words), pageNumber_(pageNumber) {
  shownColumns_ = liveColumnCount();
}

int ResultGridModel::gridRow(int tableRow) {
  return tableRow + rowGroup(tableRow) + 1;
}

int ResultGridModel::tableRow(int gridRow) {
  if (gridRow < 0 || gridRow >= kGridRows || headingGroup(gridRow) >= 0) return -1;
  int headingsAbove = 0;
  while (headingsAbove < kRowGroups &&
         gridRow > kFirstRowOfGroup[static_cast<std::size_t>(headingsAbove)] + headingsAbove)
    ++headingsAbove;
  return gridRow - headingsAbove;
}

int ResultGridModel::calculationCount() const {
  const ResultTable* shown = page();
  return shown ? shown->Anzahl_Berechnungen() : 0;
}

QFont ResultGridModel::tableFont() const {
  const TableFont& font = window_.font;
  QFont shown(qs(font.name), font.size);
  shown.setBold(font.bold);
  shown.setItalic(font.italic);
  shown.setUnderline(font.underline);
  shown.setStrikeOut(font.strikeOut);
  return shown;
}

int ResultGridModel::liveColumnCount() const {
  const ResultTable* shown = page();
  return shown ? kFirstCalculationColumn + static_cast<int>(shown->columns.size()) : 0;
}

void ResultGridModel::refresh() {
  const int columns = liveColumnCount();
  if (columns != shownColumns_) {
    beginResetModel();
    shownColumns_ = columns;
    endResetModel();
    return;
  }
  if (columns == 0) return;
  emit dataChanged(index(0, 0), index(kGridRows - 1, columns - 1));
  emit headerDataChanged(Qt::Horizontal, 0, columns - 1);
}

int ResultGridModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() || shownColumns_ == 0 ? 0 : kGridRows;
}

int ResultGridModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : shownColumns_;
}

QVariant ResultGridModel::text(int gridRow, int column) const {
  const ResultTable* shown = page();
  const int group = headingGroup(gridRow);
  if (group >= 0) return column == kTitleColumn ? qs(window_.groupTitles[static_cast<std::size_t>(group)]) : QString();
  const int row = tableRow(gridRow);
  if (column == kTitleColumn) return qs(window_.rowTitles[static_cast<std::size_t>(row)]);
  if (column == kUnitColumn) return qs(shown->unitCells[static_cast<std::size_t>(row)]);
  const int calculation = column - kFirstCalculationColumn;
  if (calculation >= static_cast<int>(shown->columns.size())) return {};
  return qs(window_.displayText(*shown, row, calculation));
}

QVariant ResultGridModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || page() == nullptr) return {};
  const int row = tableRow(index.row());
  switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
    case Qt::ToolTipRole:  // the whole text of a cell too narrow for it
      return text(index.row(), index.column());
    case Qt::TextAlignmentRole: {
      const bool number = row >= 0 && index.column() >= kFirstCalculationColumn && isNumericRow(row);
      return QVariant::fromValue(Qt::AlignVCenter | (number ? Qt::AlignRight : Qt::AlignLeft));
    }
    case Qt::FontRole: {
      QFont font = tableFont();
      if (row < 0) font.setBold(true);
      return font;
    }
    case Qt::ForegroundRole:
      return row == 33 ? QVariant(QBrush(Qt::blue)) : QVariant();  // the running sum
    case Qt::BackgroundRole:
      return row < 0 ? QVariant(QGuiApplication::palette().midlight()) : QVariant();
    case UnitChoicesRole: {
      QStringList units;
      if (row >= 0 && index.column() == kUnitColumn) {
        for (const std::string& unit : window_.unitChoices(row)) units << qs(unit);
      }
      return units;
    }
    default:
      return {};
  }
}

QVariant ResultGridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  const ResultTable* shown = page();
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole || shown == nullptr) return {};
  if (section == kTitleColumn) return qs(words_.quantityColumn);
  if (section == kUnitColumn) return qs(words_.unitColumn);
  const int calculation = section - kFirstCalculationColumn;
  if (calculation < 0 || calculation >= static_cast<int>(shown->columns.size())) return {};
  return qs(shown->get_Spalte(calculation).caption);
}

Qt::ItemFlags ResultGridModel::flags(const QModelIndex& index) const {
  if (!index.isValid()) return Qt::NoItemFlags;
  const Qt::ItemFlags shown = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
  const int row = tableRow(index.row());
  const bool unitCell = index.column() == kUnitColumn && row >= 0 && !window_.unitChoices(row).empty();
  return unitCell ? shown | Qt::ItemIsEditable : shown;
}

bool ResultGridModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  const int row = tableRow(index.row());
  if (role != Qt::EditRole || index.column() != kUnitColumn || row < 0) return false;
  emit unitChosen(row, value.toString());
  return true;
}

}  // namespace linecalc::gui
