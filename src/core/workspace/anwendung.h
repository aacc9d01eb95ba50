#pragma once

#include <filesystem>

#include "base/meldungen.h"
#include "catalogue/language_tables.h"
#include "project/einstellungen_dlg.h"
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

  TEinstellungenDlg EinstellungenDlg;
  TGaswarnungDlg GaswarnungDlg;
  TAusgabeneu_Fenster Ausgabeneu_Fenster;
  TKennlinieDlg KennlinieDlg;
  TSpalteAendernDlg SpalteAendernDlg;
  TTabelleAendern TabelleAendern;
  TPSchnellAuslegung PSchnellAuslegung;
  TBtnBottomDlg BtnBottomDlg;
  TMyWindow MyWindow;

  bool Projekt_gespeichert = true;

  // Loads the language files of the data folder in the language Sprache.Sprachkennung and sets up
  // the main window as a first start does: default medium, element (1,1), words on every form.
  void start(const std::filesystem::path& dataFolder);
};

}  // namespace linecalc
