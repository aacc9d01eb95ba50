#pragma once

#include <QString>

namespace linecalc::gui {

class Desktop;

// Saves PNG pictures of the main window, the element chooser, the result window, the settings dialog,
// the two water dialogs and a contact sheet of every element picture into a folder, for reviews and
// the documentation. Returns the files written.
QStringList saveScreenshots(Desktop& desktop, const QString& folder);

}  // namespace linecalc::gui
