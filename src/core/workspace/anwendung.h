#pragma once

#include <filesystem>
#include <string>

#include "base/meldungen.h"
#include "catalogue/language_tables.h"
#include "project/einstellungen_dlg.h"
#include "project/project_file.h"
#include "project/recent_files.h"
#include "project/registrierung.h"
#include "project/registry.h"
#include "properties/iapws_dlg.h"
#include "properties/sattdampf_dlg.h"
#include "tables/ausgabe_fenster.h"
#include "workspace/btn_bottom_dlg.h"
#include "workspace/calculation_state.h"
#include "workspace/dialogs.h"
#include "workspace/my_window.h"

namespace linecalc {

// The application object: owns every form model, the language tables and the shared calculation
// state, and gives each form a reference to itself. The desktop program, the command-line tool and
// the tests each make one.
class Anwendung {
 public:
  explicit Anwendung(Meldungen& meldungen, char decimalSeparator = '.');
  Anwendung(const Anwendung&) = delete;
  Anwendung& operator=(const Anwendung&) = delete;

  Meldungen& meldungen;
  char Dezimaltrennzeichen;  // the current decimal separator
  LanguageTables Sprache;
  CalculationState state;
  std::string productTitle{kProductTitles[1]};  // the window caption; Registry_Sprachversion_lesen sets it
  WindowPlacement Fenster;                      // stored window places, kept for the desktop program
  TRecentFileList RecentFiles;

  TEinstellungenDlg EinstellungenDlg;
  TGaswarnungDlg GaswarnungDlg;
  TAusgabeneu_Fenster Ausgabeneu_Fenster;
  TKennlinieDlg KennlinieDlg;
  TSpalteAendernDlg SpalteAendernDlg;
  TTabelleAendern TabelleAendern;
  TPSchnellAuslegung PSchnellAuslegung;
  TBtnBottomDlg BtnBottomDlg;
  TMyWindow MyWindow;
  TIAPWSDlg IAPWSDlg;
  TSattdampfDialog SattdampfDialog;

  bool Projekt_gespeichert = true;
  ProjectFile Projekt;  // the open project's file, its lock and its read-only state

  // The start of the program: the language first, then the language and catalogue files.
  void FormCreate(const std::filesystem::path& dataFolder, const Registrierung& store);
  // Then the words of every form, the stored settings and the last panel state, an untitled empty
  // project, and the project named on the command line if there is one.
  void FormShow(const Registrierung& store, const std::filesystem::path& project = {});
  // The close: offers to save unsaved calculations, closes the project and writes the settings.
  // False when the project could not be closed (its save failed or was cancelled).
  bool FormClose(Registrierung& store);

  // A first start without stored settings in the language Sprache.Sprachkennung, as the tests and the
  // command-line tool use it: default medium, element (1,1), words on every form.
  void start(const std::filesystem::path& dataFolder);
};

}  // namespace linecalc
