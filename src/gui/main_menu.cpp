#include "main_menu.h"

#include <QAction>
#include <QMainWindow>
#include <QMenuBar>
#include <QToolBar>

#include "catalogue/main_form_words.h"
#include "control_binding.h"
#include "toolbar_icons.h"

namespace linecalc::gui {

namespace {

enum class Kind { Menu, Entry, Later, Separator };

// One place of the menu tree: its control name, the menu it belongs to, and what it is.
struct Entry {
  std::string_view name;
  std::string_view parent;
  Kind kind;
  QKeySequence::StandardKey key = QKeySequence::UnknownKey;
  const char* shortcut = nullptr;
};

constexpr std::string_view kWaterGeneral = "IAPWSDlg", kWaterSaturation = "SattdampfDialog";

// The menu tree of the main window in the order of its entries.
const Entry kEntries[] = {
    {"Datei1", "", Kind::Menu},
    {"Neu1", "Datei1", Kind::Entry, QKeySequence::New},
    {"ffnen1", "Datei1", Kind::Entry, QKeySequence::Open},
    {"Speichern1", "Datei1", Kind::Entry, QKeySequence::Save},
    {"Speichernunter1", "Datei1", Kind::Entry, QKeySequence::SaveAs},
    {"RecentFiles", "Datei1", Kind::Separator},
    {"Beenden1", "Datei1", Kind::Entry, QKeySequence::Quit},
    {"Bearbeiten1", "", Kind::Menu},
    {"Kopieren1", "Bearbeiten1", Kind::Entry, QKeySequence::UnknownKey, "Ctrl+C"},
    {"Einfgen1", "Bearbeiten1", Kind::Entry, QKeySequence::UnknownKey, "Ctrl+V"},
    {"Lschen1", "Bearbeiten1", Kind::Entry, QKeySequence::UnknownKey, "Ctrl+Del"},
    {"Tabelle1", "", Kind::Menu},
    {"abelleanzeigen1", "Tabelle1", Kind::Entry, QKeySequence::UnknownKey, "F4"},
    {"Ansichtgrer1", "Tabelle1", Kind::Later},
    {"Ansichtkleiner1", "Tabelle1", Kind::Later},
    {"Schriftartndern1", "Tabelle1", Kind::Later},
    {"Spaltenbreitendern1", "Tabelle1", Kind::Later},
    {"GlobaleTabellennderungen1", "Tabelle1", Kind::Later},
    {"", "Tabelle1", Kind::Separator},
    {"Tabelledrucken2", "Tabelle1", Kind::Later},
    {"DruckformatStandard1", "Tabelle1", Kind::Later},
    {"Druckformatkopieren1", "Tabelle1", Kind::Later},
    {"HeaderFooterkopieren1", "Tabelle1", Kind::Later},
    {"", "Tabelle1", Kind::Separator},
    {"Tabelleneu1", "Tabelle1", Kind::Entry},
    {"abellekopieren1", "Tabelle1", Kind::Later},
    {"AktuelleTabellelschen1", "Tabelle1", Kind::Entry},
    {"Sortieren1", "Tabelle1", Kind::Later},
    {"Tabelleumbenennen1", "Tabelle1", Kind::Entry},
    {"Tabelleneunummerieren1", "Tabelle1", Kind::Later},
    {"", "Tabelle1", Kind::Separator},
    {"KopiereninZwischenablage1", "Tabelle1", Kind::Entry},
    {"abelleimExcelFormatspeichern1", "Tabelle1", Kind::Later},
    {"abellenSpalte1", "Tabelle1", Kind::Menu},
    {"GewhlteTabellenspaltendern1", "abellenSpalte1", Kind::Later},
    {"GewhlteSpalteentfernen1", "abellenSpalte1", Kind::Entry},
    {"KopiereninEingabefelder1", "abellenSpalte1", Kind::Entry},
    {"Kurz1", "Tabelle1", Kind::Menu},
    {"Kurzanzeigeanzeigen1", "Kurz1", Kind::Entry},
    {"Kurzanzeigedrucken1", "Kurz1", Kind::Later},
    {"Frdermedien1", "", Kind::Menu},
    {"StoffdatenWasser1", "Frdermedien1", Kind::Menu},
    {kWaterGeneral, "StoffdatenWasser1", Kind::Entry},
    {kWaterSaturation, "StoffdatenWasser1", Kind::Entry},
    {"StoffdatenLuft1", "Frdermedien1", Kind::Later},
    {"StoffdatenfeuchteLuft1", "Frdermedien1", Kind::Later},
    {"StoffdatenLuftSttigungszustand1", "Frdermedien1", Kind::Later},
    {"StoffdatenCO2allgemein1", "Frdermedien1", Kind::Later},
    {"StoffdatenCO2Sttigungszustand1", "Frdermedien1", Kind::Later},
    {"N12", "Frdermedien1", Kind::Separator},
    {"StoffdatensonstigeMedien1", "Frdermedien1", Kind::Later},
    {"StoffdatensonstigeGase1", "Frdermedien1", Kind::Later},
    {"Stoffdatenabschtzen1", "Frdermedien1", Kind::Later},
    {"WssrigeLsungenberechnen1", "Frdermedien1", Kind::Later},
    {"Kuehlsolenberechnen", "Frdermedien1", Kind::Later},
    {"Wrmetrgerleberechnen1", "Frdermedien1", Kind::Later},
    {"", "Frdermedien1", Kind::Separator},
    {"UserDatenbankFlssigkeiten1", "Frdermedien1", Kind::Later},
    {"UserDatenbankGase1", "Frdermedien1", Kind::Later},
    {"BenutzerdefinierteDatenbankAltVersion", "Frdermedien1", Kind::Later},
    {"BenutzerdefinierteDatenbank2", "Frdermedien1", Kind::Later},
    {"BenutzerdefinierteDatenbankbearbeiten1", "Frdermedien1", Kind::Later},
    {"Rohr1", "", Kind::Menu},
    {"Rohrleitungselementwhlen1", "Rohr1", Kind::Entry, QKeySequence::UnknownKey, "Ctrl+E"},
    {"RohrInformationen1", "Rohr1", Kind::Menu},
    {"Rohre1", "RohrInformationen1", Kind::Later},
    {"Rohrerechteckig1", "RohrInformationen1", Kind::Later},
    {"Bgen1", "RohrInformationen1", Kind::Later},
    {"ReduzierungenErweiterungen1", "RohrInformationen1", Kind::Later},
    {"T_Stuecke1", "RohrInformationen1", Kind::Later},
    {"UserDatenbankRohre1", "RohrInformationen1", Kind::Later},
    {"ZetaWerteBerechnungvonspeziellenRohrleitungselementen1", "Rohr1", Kind::Menu},
    {"Rohrverzweigungen1", "ZetaWerteBerechnungvonspeziellenRohrleitungselementen1", Kind::Later},
    {"ZetaWerteDatenbank1", "Rohr1", Kind::Later},
    {"ZetaWerteDatenbank2", "Rohr1", Kind::Later},
    {"Berechnen1", "", Kind::Menu},
    {"Stromlauf1", "Berechnen1", Kind::Entry, QKeySequence::UnknownKey, "F9"},
    {"StromlauffVolulmenstrom1", "Berechnen1", Kind::Later},
    {"", "Berechnen1", Kind::Separator},
    {"Nennweite1", "Berechnen1", Kind::Later},
    {"NennweiteGase1", "Berechnen1", Kind::Later},
    {"Frderhhe1", "Berechnen1", Kind::Later},
    {"NPSHWert1", "Berechnen1", Kind::Later},
    {"RohrInhaltFllzeit1", "Berechnen1", Kind::Later},
    {"PumpenSchnellauslegung1", "Berechnen1", Kind::Later},
    {"GeschwindigkeitinVolumenstrom1", "Berechnen1", Kind::Later},
    {"VolumenstrominGeschwindigkeit1", "Berechnen1", Kind::Later},
    {"NormminBetriebsm1", "Berechnen1", Kind::Later},
    {"kvinZeta1", "Berechnen1", Kind::Later},
    {"CvinZeta1", "Berechnen1", Kind::Later},
    {"Gerinneberechnen1", "Berechnen1", Kind::Menu},
    {"VorhandenesGerinneberechnen1", "Gerinneberechnen1", Kind::Later},
    {"Gerinneauslegen1", "Gerinneberechnen1", Kind::Later},
    {"AusflussBerechnungen1", "Berechnen1", Kind::Menu},
    {"KonstanterFlssigkeitsspiegel1", "AusflussBerechnungen1", Kind::Later},
    {"AbnehmenderFlssigkeitsspiegel1", "AusflussBerechnungen1", Kind::Later},
    {"DrosselblendeAuslegung1", "Berechnen1", Kind::Later},
    {"Einheitenumrechnen1", "Berechnen1", Kind::Later},
    {"Einstellungen1", "", Kind::Menu},
    {"Einstellungen2", "Einstellungen1", Kind::Entry},
    {"Hilfe1", "", Kind::Menu},
    {"Index1", "Hilfe1", Kind::Later, QKeySequence::HelpContents},
    {"berStromlauf1", "Hilfe1", Kind::Entry},
};

// The tool buttons: control name and the entry they trigger; an empty name is a separator.
struct Tool {
  std::string_view name;
  std::string_view entry;
};

const Tool kTools[] = {
    {"ToolButton1", "Neu1"},
    {"ToolButton3", "ffnen1"},
    {"ToolButton2", "Speichern1"},
    {"", ""},
    {"ToolButton5", "Stromlauf1"},
    {"ToolButton7", "Rohrleitungselementwhlen1"},
    {"ToolButton8", "abelleanzeigen1"},
    {"", ""},
    {"ToolButton9", kWaterGeneral},
    {"ToolButton10", "StoffdatenLuft1"},
    {"ToolButton11", "StoffdatensonstigeMedien1"},
    {"ToolButton13", "StoffdatensonstigeGase1"},
    {"ToolButton14", "Rohre1"},
    {"", ""},
    {"ToolButton12", "Einstellungen2"},
    {"ToolButton17", "Index1"},
};

}  // namespace

void MainMenu::build(QMainWindow& window, const MainFormWords& words, const QString& later, char language) {
  for (const Entry& entry : kEntries) {
    QMenu* parent = entry.parent.empty() ? nullptr : menus_.at(std::string(entry.parent));
    if (entry.kind == Kind::Separator) {
      QAction* separator = parent->addSeparator();
      if (!entry.name.empty()) actions_.emplace(std::string(entry.name), separator);
      continue;
    }
    const QString caption = qs(words.menu(entry.name));
    if (entry.kind == Kind::Menu) {
      QMenu* menu = parent ? parent->addMenu(caption) : window.menuBar()->addMenu(caption);
      menu->setToolTipsVisible(true);
      menus_.emplace(std::string(entry.name), menu);
      actions_.emplace(std::string(entry.name), menu->menuAction());
      continue;
    }
    QAction* action = parent->addAction(caption);
    action->setObjectName(qs(entry.name));
    if (entry.key != QKeySequence::UnknownKey) action->setShortcuts(entry.key);
    const bool editEntry = entry.parent == "Bearbeiten1";
    if (entry.shortcut != nullptr && !(editEntry && language == 'H')) action->setShortcut(QKeySequence(QString::fromLatin1(entry.shortcut)));
    if (entry.kind == Kind::Later) {
      action->setEnabled(false);
      action->setToolTip(later);
    }
    actions_.emplace(std::string(entry.name), action);
  }
  action("Einheitenumrechnen1")->setVisible(language == 'D');
  action("Kurzanzeigeanzeigen1")->setCheckable(true);

  QToolBar* toolbar = window.addToolBar(QStringLiteral("tools"));
  toolbar->setObjectName(QStringLiteral("tools"));
  for (const Tool& tool : kTools) {
    if (tool.name.empty()) {
      toolbar->addSeparator();
      continue;
    }
    QAction* target = action(tool.entry);
    QAction* button = toolbar->addAction(toolbarIcon(tool.name), QString());
    button->setObjectName(qs(tool.name));
    button->setEnabled(target->isEnabled());
    button->setToolTip(target->isEnabled() ? qs(words.hint(tool.name)) : qs(words.hint(tool.name)) + "\n" + later);
    QObject::connect(button, &QAction::triggered, target, &QAction::trigger);
    actions_.emplace(std::string(tool.name), button);
  }
}

void MainMenu::setWaterCaptions(const QString& general, const QString& saturation) {
  action(kWaterGeneral)->setText(general + QStringLiteral(" …"));
  action(kWaterSaturation)->setText(saturation + QStringLiteral(" …"));
}

QAction* MainMenu::action(std::string_view name) const {
  const auto found = actions_.find(name);
  return found == actions_.end() ? nullptr : found->second;
}

QMenu* MainMenu::menu(std::string_view name) const {
  const auto found = menus_.find(name);
  return found == menus_.end() ? nullptr : found->second;
}

}  // namespace linecalc::gui
