#pragma once

#include <QString>
#include <map>
#include <string>
#include <string_view>

class QAction;
class QMainWindow;
class QMenu;
class QToolBar;

namespace linecalc {
struct MainFormWords;
}

namespace linecalc::gui {

// The menu bar and the toolbar of the main window, built from the menu entries of the main form in
// their order. Entries whose windows the program does not have yet stay visible and disabled, with a
// hint saying so. Every entry and tool button is found by its control name.
class MainMenu {
 public:
  // Builds the menus and the toolbar into the window; `later` is the hint of the entries to come. The
  // language code decides the entry that converts units (German only) and the shortcuts of the edit
  // entries (all languages but Dutch).
  void build(QMainWindow& window, const MainFormWords& words, const QString& later, char language);
  // Sets the captions of the two water entries, which come from the water dialogs.
  void setWaterCaptions(const QString& general, const QString& saturation);

  QAction* action(std::string_view name) const;
  QMenu* menu(std::string_view name) const;

 private:
  std::map<std::string, QAction*, std::less<>> actions_;
  std::map<std::string, QMenu*, std::less<>> menus_;
};

}  // namespace linecalc::gui
