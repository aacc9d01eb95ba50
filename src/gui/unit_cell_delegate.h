#pragma once

#include <QStyledItemDelegate>

namespace linecalc::gui {

// The unit cells of a result grid: a combo box of the row's units. A unit the user picks is handed to
// the model at once.
class UnitCellDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  void setEditorData(QWidget* editor, const QModelIndex& index) const override;
  void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
  void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const override;

 private slots:
  void commitChoice();
};

}  // namespace linecalc::gui
