#pragma once

#include <QString>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/controls.h"

class QAbstractButton;
class QComboBox;
class QLabel;
class QLineEdit;
class QWidget;

namespace linecalc::gui {

// Texts of the models are UTF-8.
inline QString qs(std::string_view text) { return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())); }
inline std::string ss(const QString& text) { return text.toStdString(); }

// Show a model control on its widget: text, items, selection, visibility and enabled state. The
// widget's signals are blocked meanwhile, so that showing never reads back as a user's change.
void showLabel(QLabel* widget, const Label& label);
void showEdit(QLineEdit* widget, const Edit& edit);
void showCombo(QComboBox* widget, const Combo& combo);
void showCheck(QAbstractButton* widget, const Check& check);
void showButton(QAbstractButton* widget, const Button& button);
void showControl(QWidget* widget, const Control& control);

// Which widget shows which control of a form, so that a view can move the keyboard focus where the
// model asks for it.
class FocusMap {
 public:
  void add(const Control& control, QWidget* widget) { entries_.emplace_back(&control, widget); }
  // Gives the focus to the widget of the form's requested control and clears the request.
  void apply(Form& form) const;

 private:
  std::vector<std::pair<const Control*, QWidget*>> entries_;
};

}  // namespace linecalc::gui
