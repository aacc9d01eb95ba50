#include "control_binding.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>

namespace linecalc::gui {

void showControl(QWidget* widget, const Control& control) {
  // A widget whose window is not shown yet reports itself hidden; only the explicit state counts.
  if (widget->isHidden() == control.Visible) widget->setHidden(!control.Visible);
  widget->setEnabled(control.Enabled);
}

void showLabel(QLabel* widget, const Label& label) {
  widget->setText(qs(label.Caption));
  showControl(widget, label);
}

void showEdit(QLineEdit* widget, const Edit& edit) {
  const QSignalBlocker block(widget);
  // Setting an equal text would move the cursor to the end while the user types.
  if (widget->text() != qs(edit.Text)) widget->setText(qs(edit.Text));
  showControl(widget, edit);
}

void showCombo(QComboBox* widget, const Combo& combo) {
  const QSignalBlocker block(widget);
  bool same = widget->count() == static_cast<int>(combo.Items.size());
  for (int i = 0; same && i < widget->count(); ++i) {
    same = widget->itemText(i) == qs(combo.Items[static_cast<std::size_t>(i)]);
  }
  if (!same) {
    widget->clear();
    for (const std::string& item : combo.Items) widget->addItem(qs(item));
  }
  widget->setCurrentIndex(combo.ItemIndex < widget->count() ? combo.ItemIndex : -1);
  showControl(widget, combo);
}

void showCheck(QAbstractButton* widget, const Check& check) {
  const QSignalBlocker block(widget);
  if (!check.Caption.empty()) widget->setText(qs(check.Caption));
  widget->setChecked(check.Checked);
  showControl(widget, check);
}

void showButton(QAbstractButton* widget, const Button& button) {
  if (!button.Caption.empty()) widget->setText(qs(button.Caption));
  widget->setToolTip(qs(button.Hint));
  showControl(widget, button);
}

void FocusMap::apply(Form& form) const {
  if (form.Fokus == nullptr) return;
  for (const auto& [control, widget] : entries_) {
    if (control == form.Fokus) {
      widget->setFocus(Qt::OtherFocusReason);
      if (auto* edit = qobject_cast<QLineEdit*>(widget)) edit->selectAll();
      break;
    }
  }
  form.Fokus = nullptr;
}

}  // namespace linecalc::gui
