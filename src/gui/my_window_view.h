#pragma once

#include <QMainWindow>
#include <array>
#include <filesystem>
#include <functional>
#include <optional>
#include <string_view>

#include "catalogue/desktop_words.h"
#include "control_binding.h"
#include "main_menu.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QToolButton;
class QGroupBox;

namespace linecalc {
class Anwendung;
}

namespace linecalc::gui {

class ElementPictureWidget;

// The main window: the medium panel and the element panel over TMyWindow, the menus and the toolbar.
// Commands that open other windows are only announced (windowRequested); the application opens them.
class MyWindowView : public QMainWindow {
  Q_OBJECT

 public:
  MyWindowView(Anwendung& app, const DesktopWords& words, QWidget* parent = nullptr);

  // The menu entry or tool button of a control name ("Stromlauf1", "ToolButton5"); nullptr when unknown.
  QAction* action(std::string_view name) const { return menu_.action(name); }
  // Asks for a project file name: for Save As when `save`, else for Open; nothing when the user cancels.
  std::function<std::optional<std::filesystem::path>(bool save)> fileDialog;
  // Asked when the window is to close: true lets it close. Without it the window closes.
  std::function<bool()> mayClose;

  // The widgets of the panels, for the application's placement and for the tests.
  QLineEdit* edit(const Edit& control) const;
  QComboBox* combo(const Combo& control) const;
  QRadioButton* radio(const Check& control) const;
  QLabel* label(const Label& control) const;
  QPushButton* calculateButton() const { return calculate_; }
  QToolButton* informationButton() const { return information_; }
  ElementPictureWidget* picture() const { return picture_; }

 public slots:
  void refresh();
  void calculate();

 signals:
  void modelChanged();
  // A window of another form is wanted: "BtnBottomDlg", "Ausgabeneu_Fenster", "EinstellungenDlg",
  // "IAPWSDlg", "SattdampfDialog".
  void windowRequested(const QString& form);

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  Anwendung& app_;
  const DesktopWords& words_;
  MainMenu menu_;
  FocusMap focus_;
  std::vector<std::pair<const Edit*, QLineEdit*>> edits_;
  std::vector<std::pair<const Combo*, QComboBox*>> combos_;
  std::vector<std::pair<const Label*, QLabel*>> labels_;
  std::vector<std::pair<const Check*, QRadioButton*>> radios_;
  QGroupBox* mediumPanel_ = nullptr;
  QGroupBox* elementPanel_ = nullptr;
  QLabel* elementCaption_ = nullptr;
  ElementPictureWidget* picture_ = nullptr;
  QToolButton* information_ = nullptr;
  QToolButton* roughnessDatabase_ = nullptr;
  QPushButton* chooseElement_ = nullptr;
  QPushButton* calculate_ = nullptr;

  QWidget* makeMediumPanel();
  QWidget* makeElementPanel();
  QLineEdit* addEdit(Edit& control);
  QComboBox* addCombo(Combo& control, std::function<void()> changed = {});
  QLabel* addLabel(const Label& control);
  QRadioButton* addRadio(Check& control, std::function<void()> chosen);
  void connectCommands();
  void showElementInformation();
  void showAbout();

  // ---- file menu
  void newProject();
  void openProject();
  void refreshRecentFiles();
  // ---- edit menu and the context menu of the fields
  void enableEditCommands(QAction* copy, QAction* paste, QAction* remove, QWidget* target) const;
  void showFieldMenu(QLineEdit* field, const QPoint& at);
};

}  // namespace linecalc::gui
