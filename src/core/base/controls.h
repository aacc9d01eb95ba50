#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace linecalc {

// The state of a form's controls, kept without any toolkit: the program's rules read and write it,
// and a view shows it.
struct Control {
  bool Visible = true;
  bool Enabled = true;
};

struct Edit : Control {
  std::string Text;
};

struct Label : Control {
  std::string Caption;
};

// Check boxes and radio buttons.
struct Check : Control {
  std::string Caption;
  bool Checked = false;
};

struct Button : Control {
  std::string Caption;
  std::string Hint;
};

struct Combo : Control {
  std::vector<std::string> Items;
  int ItemIndex = -1;

  // The selected item, or "" when nothing is selected.
  std::string text() const {
    return ItemIndex >= 0 && ItemIndex < static_cast<int>(Items.size()) ? Items[static_cast<std::size_t>(ItemIndex)]
                                                                        : std::string();
  }
  void setItems(std::span<const std::string_view> items) { Items.assign(items.begin(), items.end()); }
  // Selects the item with this text; returns false (and selects nothing) when there is none.
  bool selectText(std::string_view item) {
    for (std::size_t i = 0; i < Items.size(); ++i) {
      if (Items[i] == item) {
        ItemIndex = static_cast<int>(i);
        return true;
      }
    }
    ItemIndex = -1;
    return false;
  }
};

// A form: whether it is shown, and the control that should have the keyboard focus.
struct Form {
  bool Visible = false;
  const Control* Fokus = nullptr;

  void fokus(const Control& control) { Fokus = &control; }
};

}  // namespace linecalc
