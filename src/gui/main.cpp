#include <QApplication>
#include <QCommandLineParser>
#include <QLocale>
#include <QMessageBox>
#include <cstdio>
#include <exception>

#include "base/directories.h"
#include "control_binding.h"
#include "desktop.h"
#include "qsettings_registrierung.h"
#include "qt_meldungen.h"
#include "screenshots.h"

// WH Linecalc, the desktop program: `linecalc [PROJECT.slf]`.
int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setOrganizationName(QStringLiteral("Werkhof"));
  QApplication::setApplicationName(QStringLiteral("WH Linecalc"));
  QApplication::setApplicationVersion(QStringLiteral(LINECALC_VERSION));

  QCommandLineParser arguments;
  arguments.setApplicationDescription(QStringLiteral("WH Linecalc: pressure loss of pipe runs"));
  arguments.addHelpOption();
  arguments.addVersionOption();
  arguments.addPositionalArgument(QStringLiteral("project"), QStringLiteral("a project file (.slf) to open"));
  const QCommandLineOption screenshots(QStringLiteral("screenshots"),
                                       QStringLiteral("save pictures of every window into FOLDER and quit"),
                                       QStringLiteral("FOLDER"));
  arguments.addOption(screenshots);
  arguments.process(application);
  const QStringList projects = arguments.positionalArguments();
  const std::filesystem::path project = 
      projects.isEmpty() ? std::filesystem::path() : std::filesystem::path(projects.first().toStdString());

  linecalc::gui::QtMeldungen meldungen;
  linecalc::gui::QSettingsRegistrierung store;
  // The program writes numbers with the decimal separator of the user's locale.
  const char separator = QLocale().decimalPoint() == QStringLiteral(",") ? ',' : '.';
  linecalc::gui::Desktop desktop(meldungen, store, separator);
  desktop.wordsLoaded = [&meldungen](const linecalc::DesktopWords& words) { meldungen.words = words; };
  try {
    desktop.start(linecalc::dataDirectory(), project);
  } catch (const std::exception& e) {
    QMessageBox::critical(nullptr, QStringLiteral("WH Linecalc"), linecalc::gui::qs(e.what()));
    return 1;
  }
  if (arguments.isSet(screenshots)) {
    for (const QString& file : linecalc::gui::saveScreenshots(desktop, arguments.value(screenshots))) {
      std::printf("%s\n", file.toLocal8Bit().constData());
    }
    return 0;
  }
  const int status = QApplication::exec();
  store.sync();
  return status;
}
