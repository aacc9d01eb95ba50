#include "desktop.h"

#include <QAction>
#include <QFileDialog>
#include <QGuiApplication>
#include <QScreen>

#include "ausgabeneu_fenster_view.h"
#include "btn_bottom_dlg_view.h"
#include "control_binding.h"
#include "einstellungen_dlg_view.h"
#include "iapws_dlg_view.h"
#include "my_window_view.h"
#include "sattdampf_dialog_view.h"

namespace linecalc::gui {

Desktop::Desktop(Meldungen& meldungen, Registrierung& store, char decimalSeparator)
    : app_(meldungen, decimalSeparator), store_(store) {
  fileDialog = [this](bool save) { return askFile(save); };
}

Desktop::~Desktop() = default;

void Desktop::start(const std::filesystem::path& dataFolder, const std::filesystem::path& project) {
  if (const QScreen* screen = QGuiApplication::primaryScreen()) {
    app_.Fenster.screenHeight = screen->availableGeometry().height();
  }
  app_.FormCreate(dataFolder, store_);
  words_ = readDesktopWords(app_.Sprache);
  if (wordsLoaded) wordsLoaded(words_);
  app_.Projekt.saveAsDialog = [this] { return fileDialog(true); };
  app_.FormShow(store_, project);
  makeWindows();
  placeWindows();
  refreshAll();
  main_->show();
  results_->show();
  main_->activateWindow();
}

void Desktop::makeWindows() {
  main_ = std::make_unique<MyWindowView>(app_, words_);
  results_ = std::make_unique<AusgabeneuFensterView>(app_, words_);
  chooser_ = new BtnBottomDlgView(app_, words_, main_.get());
  settings_ = new EinstellungenDlgView(app_, words_, main_.get());
  water_ = new IAPWSDlgView(app_, words_, main_.get());
  saturation_ = new SattdampfDialogView(app_, words_, main_.get());
  main_->fileDialog = [this](bool save) { return fileDialog(save); };
  main_->mayClose = [this] { return close(); };

  connect(main_.get(), &MyWindowView::windowRequested, this, &Desktop::openWindow);
  connect(main_.get(), &MyWindowView::modelChanged, this, &Desktop::refreshAll);
  connect(results_.get(), &AusgabeneuFensterView::modelChanged, this, &Desktop::refreshAll);
  connect(chooser_, &BtnBottomDlgView::modelChanged, this, &Desktop::refreshAll);
  connect(settings_, &EinstellungenDlgView::modelChanged, this, &Desktop::refreshAll);
  connect(water_, &IAPWSDlgView::modelChanged, this, &Desktop::refreshAll);
  connect(saturation_, &SattdampfDialogView::modelChanged, this, &Desktop::refreshAll);
  connectTableCommands();
}

void Desktop::connectTableCommands() {
  const auto forward = [this](std::string_view entry, void (AusgabeneuFensterView::*command)()) {
    connect(main_->action(entry), &QAction::triggered, results_.get(), command);
  };
  forward("Tabelleneu1", &AusgabeneuFensterView::newTable);
  forward("Tabelleumbenennen1", &AusgabeneuFensterView::renameTable);
  forward("AktuelleTabellelschen1", &AusgabeneuFensterView::deleteTable);
  forward("KopiereninZwischenablage1", &AusgabeneuFensterView::copyToClipboard);
  forward("GewhlteSpalteentfernen1", &AusgabeneuFensterView::removeSelectedColumn);
  forward("KopiereninEingabefelder1", &AusgabeneuFensterView::copySelectedColumnToPanels);
}

void Desktop::refreshAll() {
  main_->refresh();
  results_->refresh();
  chooser_->refresh();
  settings_->refresh();
  water_->refresh();
  saturation_->refresh();
}

void Desktop::openWindow(const QString& form) {
  if (form == QLatin1String("BtnBottomDlg")) {
    chooser_->start();
    chooser_->open();
  } else if (form == QLatin1String("Ausgabeneu_Fenster")) {
    app_.Ausgabeneu_Fenster.Visible = true;
    results_->show();
    results_->raise();
    results_->activateWindow();
  } else if (form == QLatin1String("EinstellungenDlg")) {
    app_.EinstellungenDlg.FormShow();
    settings_->refresh();
    settings_->open();
  } else if (form == QLatin1String("IAPWSDlg")) {
    app_.IAPWSDlg.FormShow();
    water_->refresh();
    water_->show();
    water_->raise();
  } else if (form == QLatin1String("SattdampfDialog")) {
    app_.SattdampfDialog.FormShow();
    saturation_->refresh();
    saturation_->show();
    saturation_->raise();
  }
}

void Desktop::placeWindows() {
  const WindowPlacement& place = app_.Fenster;
  if (place.HF_Left && place.HF_Top) main_->move(*place.HF_Left, *place.HF_Top);
  if (place.AF_Width && place.AF_Height && *place.AF_Width > 100 && *place.AF_Height > 100) {
    results_->resize(*place.AF_Width, *place.AF_Height);
  } else {
    results_->resize(900, 640);
  }
  if (place.AF_Left && place.AF_Top) results_->move(*place.AF_Left, *place.AF_Top);
  keepOnScreen(*main_);
  keepOnScreen(*results_);
}

void Desktop::rememberPlaces() {
  WindowPlacement& place = app_.Fenster;
  place.HF_Left = main_->x();
  place.HF_Top = main_->y();
  place.AF_Left = results_->x();
  place.AF_Top = results_->y();
  place.AF_Width = results_->width();
  place.AF_Height = results_->height();
}

bool Desktop::close() {
  rememberPlaces();
  if (!app_.FormClose(store_)) return false;
  results_->hide();
  for (QWidget* dialog : std::initializer_list<QWidget*>{chooser_, settings_, water_, saturation_}) dialog->hide();
  return true;
}

std::optional<std::filesystem::path> Desktop::askFile(bool save) const {
  const QString filter = qs(words_.projectFiles) + QStringLiteral(";;") + qs(words_.allFiles);
  QString name = save ? QFileDialog::getSaveFileName(main_.get(), QString(), QString(), filter)
                      : QFileDialog::getOpenFileName(main_.get(), QString(), QString(), filter);
  if (name.isEmpty()) return std::nullopt;
  if (save && QFileInfo(name).suffix().isEmpty()) name += QStringLiteral(".slf");
  return std::filesystem::path(name.toStdString());
}

void keepOnScreen(QWidget& window) {
  const QRect frame = window.frameGeometry();
  for (const QScreen* screen : QGuiApplication::screens()) {
    if (screen->availableGeometry().intersects(frame.adjusted(40, 40, -40, -40))) return;
  }
  if (const QScreen* primary = QGuiApplication::primaryScreen()) {
    window.move(primary->availableGeometry().topLeft() + QPoint(40, 40));
  }
}

}  // namespace linecalc::gui
