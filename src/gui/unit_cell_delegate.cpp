#include "unit_cell_delegate.h"

#include <QComboBox>
#include <QSignalBlocker>

#include "result_grid_model.h"

namespace linecalc::gui {

QWidget* UnitCellDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex& index) const {
  auto* units = new QComboBox(parent);
  units->addItems(index.data(ResultGridModel::UnitChoicesRole).toStringList());
  connect(units, &QComboBox::currentIndexChanged, this, &UnitCellDelegate::commitChoice);
  return units;
}

void UnitCellDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
  auto* units = qobject_cast<QComboBox*>(editor);
  const QSignalBlocker showOnly(units);
  units->setCurrentIndex(units->findText(index.data(Qt::EditRole).toString()));
  units->setToolTip(units->currentText());  // the cell is narrower than most units
}

void UnitCellDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const {
  model->setData(index, qobject_cast<QComboBox*>(editor)->currentText(), Qt::EditRole);
}

void UnitCellDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                            const QModelIndex&) const {
  editor->setGeometry(option.rect);
}

void UnitCellDelegate::commitChoice() {
  if (auto* units = qobject_cast<QWidget*>(sender())) emit commitData(units);
}

}  // namespace linecalc::gui
