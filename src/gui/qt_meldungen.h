#pragma once

#include <functional>

#include "base/meldungen.h"
#include "catalogue/desktop_words.h"

class QWidget;

namespace linecalc::gui {

// The message boxes of the desktop program: a QMessageBox over the active window, with the buttons
// in the program's language.
class QtMeldungen final : public Meldungen {
 public:
  QtMeldungen();

  Answer show(MessageKind kind, const std::string& caption, const std::string& text) override;

  // The button words, set once the language tables are loaded (English until then).
  DesktopWords words;
};

}  // namespace linecalc::gui
