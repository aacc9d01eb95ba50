#include "dialog_layout.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace linecalc::gui {

namespace {

constexpr int kValueWidth = 110;  // room for a value of seven digits and six decimals

QComboBox* addBox(QGridLayout* grid, int row, int column) {
  auto* unit = new QComboBox;
  unit->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  grid->addWidget(unit, row, column);
  return unit;
}

}  // namespace

QLabel* addCaption(QGridLayout* grid, int row, int column) {
  auto* caption = new QLabel;
  grid->addWidget(caption, row, column);
  return caption;
}

InputRow addInputRow(QGridLayout* grid, int row) {
  QLabel* caption = addCaption(grid, row);
  auto* edit = new QLineEdit;
  edit->setMinimumWidth(kValueWidth);
  edit->setAlignment(Qt::AlignRight);
  caption->setBuddy(edit);
  grid->addWidget(edit, row, 1);
  return {caption, edit, addBox(grid, row, 2)};
}

ChoiceRow addChoiceRow(QGridLayout* grid, int row, int column) {
  QLabel* caption = addCaption(grid, row, column);
  QComboBox* box = addBox(grid, row, column + 1);
  caption->setBuddy(box);
  return {caption, box};
}

ResultCell addResultCell(QGridLayout* grid, int row, int column) {
  auto* value = new QLabel;
  value->setMinimumWidth(kValueWidth);
  value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  value->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  value->setTextInteractionFlags(Qt::TextSelectableByMouse);
  grid->addWidget(value, row, column);
  return {value, addBox(grid, row, column + 1)};
}

void DialogControls::show(const Label& label, QLabel* widget) {
  shows_.emplace_back([&label, widget] { showLabel(widget, label); });
}

void DialogControls::show(const Button& button, QAbstractButton* widget) {
  shows_.emplace_back([&button, widget] { showButton(widget, button); });
  focus_.add(button, widget);
}

QGroupBox* DialogControls::group(const Label& caption) {
  auto* box = new QGroupBox;
  shows_.emplace_back([&caption, box] {
    box->setTitle(qs(caption.Caption));
    showControl(box, caption);
  });
  return box;
}

void DialogControls::bind(Edit& edit, QLineEdit* widget, std::function<void()> handler) {
  shows_.emplace_back([&edit, widget] { showEdit(widget, edit); });
  focus_.add(edit, widget);
  QObject::connect(widget, &QLineEdit::textEdited, widget,
                   [&edit, handler = std::move(handler), refresh = refresh_](const QString& text) {
                     edit.Text = ss(text);
                     if (handler) handler();
                     refresh();
                   });
}

void DialogControls::bind(Combo& combo, QComboBox* widget, std::function<void()> handler) {
  shows_.emplace_back([&combo, widget] { showCombo(widget, combo); });
  focus_.add(combo, widget);
  QObject::connect(widget, &QComboBox::currentIndexChanged, widget,
                   [&combo, handler = std::move(handler), refresh = refresh_](int index) {
                     combo.ItemIndex = index;
                     if (handler) handler();
                     refresh();
                   });
}

void DialogControls::bind(Check& check, QAbstractButton* widget) {
  shows_.emplace_back([&check, widget] { showCheck(widget, check); });
  focus_.add(check, widget);
  QObject::connect(widget, &QAbstractButton::toggled, widget, [&check, refresh = refresh_](bool checked) {
    check.Checked = checked;
    refresh();
  });
}

RadioGroup DialogControls::radioGroup(const Label& caption, std::span<const std::string> items, const int& index,
                                      std::function<void(int)> clicked) {
  QGroupBox* box = group(caption);
  auto* column = new QVBoxLayout(box);
  auto* buttons = new QButtonGroup(box);
  for (int i = 0; i < static_cast<int>(items.size()); ++i) {
    auto* button = new QRadioButton;
    buttons->addButton(button, i);
    column->addWidget(button);
  }
  shows_.emplace_back([items, &index, buttons] {
    for (int i = 0; i < static_cast<int>(items.size()); ++i) {
      QAbstractButton* button = buttons->button(i);
      const QSignalBlocker block(button);
      button->setText(qs(items[static_cast<std::size_t>(i)]));
      button->setChecked(i == index);
    }
  });
  QObject::connect(buttons, &QButtonGroup::idClicked, box, [clicked = std::move(clicked), refresh = refresh_](int id) {
    clicked(id);
    refresh();
  });
  return {box, buttons};
}

void DialogControls::showAll() const {
  for (const auto& show : shows_) show();
}

}  // namespace linecalc::gui
