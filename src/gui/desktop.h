#pragma once

#include <QObject>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>

#include "catalogue/desktop_words.h"
#include "workspace/anwendung.h"

class QWidget;

namespace linecalc::gui {

class AusgabeneuFensterView;
class BtnBottomDlgView;
class EinstellungenDlgView;
class IAPWSDlgView;
class MyWindowView;
class SattdampfDialogView;

// The desktop program: the application object with its settings store, and a window for each form.
// After any window changed a model, every window shows the models again.
class Desktop : public QObject {
  Q_OBJECT

 public:
  Desktop(Meldungen& meldungen, Registrierung& store, char decimalSeparator);
  ~Desktop() override;

  // The start of the program: the language and data files, the settings and the last panels, the
  // windows at their stored places, and the project named on the command line.
  void start(const std::filesystem::path& dataFolder, const std::filesystem::path& project = {});

  Anwendung& app() { return app_; }
  const DesktopWords& words() const { return words_; }
  MyWindowView& mainWindow() const { return *main_; }
  AusgabeneuFensterView& resultWindow() const { return *results_; }
  BtnBottomDlgView& chooser() const { return *chooser_; }
  EinstellungenDlgView& settingsDialog() const { return *settings_; }
  IAPWSDlgView& waterDialog() const { return *water_; }
  SattdampfDialogView& saturationDialog() const { return *saturation_; }

  // Called once the language files are loaded, before anything can ask a question.
  std::function<void(const DesktopWords&)> wordsLoaded;
  // Asks for a project file: for Save As when `save`, else for Open; the tests replace it.
  std::function<std::optional<std::filesystem::path>(bool save)> fileDialog;

 public slots:
  void refreshAll();
  // Opens the window of a form by its name ("BtnBottomDlg", "Ausgabeneu_Fenster", ...).
  void openWindow(const QString& form);

 private:
  Anwendung app_;
  Registrierung& store_;
  DesktopWords words_;
  std::unique_ptr<MyWindowView> main_;
  std::unique_ptr<AusgabeneuFensterView> results_;
  BtnBottomDlgView* chooser_ = nullptr;
  EinstellungenDlgView* settings_ = nullptr;
  IAPWSDlgView* water_ = nullptr;
  SattdampfDialogView* saturation_ = nullptr;

  void makeWindows();
  void connectTableCommands();
  void placeWindows();
  void rememberPlaces();
  // The close of the program: false keeps it running (a save was wanted and did not happen).
  bool close();
  std::optional<std::filesystem::path> askFile(bool save) const;
};

// Moves a window whose stored place lies outside every screen back onto the primary screen.
void keepOnScreen(QWidget& window);

}  // namespace linecalc::gui
