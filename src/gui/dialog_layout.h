#pragma once

#include <functional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "base/controls.h"
#include "control_binding.h"

class QAbstractButton;
class QButtonGroup;
class QComboBox;
class QGridLayout;
class QGroupBox;
class QLabel;
class QLineEdit;

namespace linecalc::gui {

// The rows the property and settings dialogs are built of: a caption, a field or a result, and a
// unit box, side by side in a grid.
struct InputRow {
  QLabel* caption;
  QLineEdit* edit;
  QComboBox* unit;
};
struct ChoiceRow {
  QLabel* caption;
  QComboBox* box;
};
struct ResultCell {
  QLabel* value;
  QComboBox* unit;
};
struct RadioGroup {
  QGroupBox* box;
  QButtonGroup* buttons;  // the button ids are the item indexes
};

// A caption in a column of a row (the first by default).
QLabel* addCaption(QGridLayout* grid, int row, int column = 0);
InputRow addInputRow(QGridLayout* grid, int row);
// A caption and a list box in the two columns from `column` on.
ChoiceRow addChoiceRow(QGridLayout* grid, int row, int column = 0);
// A result and its unit box in the two columns from `column` on.
ResultCell addResultCell(QGridLayout* grid, int row, int column);

// The widgets of a dialog and the model controls they show. `showAll` shows every control; a user's
// change of a bound widget is written into its control, the model's change handler runs (if any), and
// the view refreshes. Showing never reads back as a change: the widgets' signals are blocked meanwhile.
class DialogControls {
 public:
  explicit DialogControls(std::function<void()> refresh) : refresh_(std::move(refresh)) {}

  void show(const Label& label, QLabel* widget);
  void show(const Button& button, QAbstractButton* widget);
  // A frame with the label's caption as its title.
  QGroupBox* group(const Label& caption);
  void bind(Edit& edit, QLineEdit* widget, std::function<void()> handler = {});
  void bind(Combo& combo, QComboBox* widget, std::function<void()> handler = {});
  void bind(Check& check, QAbstractButton* widget);
  // A group of radio buttons, one an item, with the index of the checked one in `index`. A click
  // passes the item's index to `clicked`.
  RadioGroup radioGroup(const Label& caption, std::span<const std::string> items, const int& index,
                        std::function<void(int)> clicked);

  void showAll() const;
  // Gives the keyboard focus to the widget of the control the form asks for.
  void moveFocus(Form& form) const { focus_.apply(form); }

 private:
  std::function<void()> refresh_;
  std::vector<std::function<void()>> shows_;
  FocusMap focus_;
};

}  // namespace linecalc::gui
