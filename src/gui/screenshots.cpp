#include "screenshots.h"

#include <QApplication>
#include <QDir>
#include <QWidget>

#include "ausgabeneu_fenster_view.h"
#include "btn_bottom_dlg_view.h"
#include "control_binding.h"
#include "desktop.h"
#include "einstellungen_dlg_view.h"
#include "element_picture.h"
#include "iapws_dlg_view.h"
#include "my_window_view.h"
#include "sattdampf_dialog_view.h"

namespace linecalc::gui {

namespace {

QString shoot(QWidget& window, const QString& folder, const QString& name) {
  window.raise();
  QApplication::processEvents();
  const QString file = QDir(folder).filePath(name + QStringLiteral(".png"));
  window.grab().save(file);
  return file;
}

}  // namespace

QStringList saveScreenshots(Desktop& desktop, const QString& folder) {
  QDir().mkpath(folder);
  QStringList files;
  files << shoot(desktop.mainWindow(), folder, QStringLiteral("main-window"));
  files << shoot(desktop.resultWindow(), folder, QStringLiteral("result-window"));

  struct Dialog {
    const char* form;
    const char* name;
    QWidget* window;
  };
  for (const Dialog& d : {Dialog{"BtnBottomDlg", "element-chooser", &desktop.chooser()},
                          Dialog{"EinstellungenDlg", "settings", &desktop.settingsDialog()},
                          Dialog{"IAPWSDlg", "water-general", &desktop.waterDialog()},
                          Dialog{"SattdampfDialog", "water-saturation", &desktop.saturationDialog()}}) {
    desktop.openWindow(QString::fromLatin1(d.form));
    files << shoot(*d.window, folder, QString::fromLatin1(d.name));
    d.window->hide();
  }

  std::vector<std::pair<int, QString>> pictures;
  const Anwendung& app = desktop.app();
  for (const ElementDefinition& e : allElements()) {
    const auto group = static_cast<std::size_t>(e.group), nr = static_cast<std::size_t>(e.nr);
    pictures.emplace_back(e.picture, QStringLiteral("(%1,%2) %3").arg(e.group).arg(e.nr).arg(qs(app.Sprache.Untergruppe_Name[group][nr])));
  }
  const QString sheet = QDir(folder).filePath(QStringLiteral("element-pictures.png"));
  pictureContactSheet(pictures, 6).save(sheet);
  files << sheet;
  return files;
}

}  // namespace linecalc::gui
