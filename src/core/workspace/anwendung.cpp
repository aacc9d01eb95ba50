#include "workspace/anwendung.h"

#include "project/registrierung.h"

namespace linecalc {

Anwendung::Anwendung(Meldungen& m, char decimalSeparator)
    : meldungen(m),
      Dezimaltrennzeichen(decimalSeparator),
      EinstellungenDlg(*this),
      Ausgabeneu_Fenster(*this),
      BtnBottomDlg(*this),
      MyWindow(*this),
      IAPWSDlg(*this),
      SattdampfDialog(*this) {}

void Anwendung::FormCreate(const std::filesystem::path& dataFolder, const Registrierung& store) {
  Registry_Sprachversion_lesen(*this, store);
  Sprache.Sprachdatei_laden(dataFolder);
  Sprache.Gruppen_laden(dataFolder);
}

void Anwendung::FormShow(const Registrierung& store, const std::filesystem::path& project) {
  state.Pruefmodus = false;
  Standardeinstellungen(*this);
  EinstellungenDlg.Sprache_anpassen();
  MyWindow.Sprache_anpassen();
  BtnBottomDlg.Sprache_anpassen();
  Ausgabeneu_Fenster.Sprache_anpassen();
  IAPWSDlg.Sprache_anpassen();
  SattdampfDialog.Sprache_anpassen();
  WordBlock gasNote = Sprache.block("GaswarnungDlg");
  GaswarnungDlg.Caption.Caption = gasNote.next();
  GaswarnungDlg.Text.Caption = gasNote.next();
  state.ElementGruppe = 1;
  state.ElementNr = 1;
  MyWindow.Element_Fenster_aktualisieren();
  // The stored settings rebuild the panel for the stored element themselves.
  Registry_Lesen(*this, store);
  // The first table takes its captions and units after the settings; the project is untitled.
  Leere_Tabelle_erstellen(*this, true);
  Projekt_gespeichert = true;
  if (!project.empty()) Datei_oeffnen(*this, project);
  MyWindow.Visible = true;
  Ausgabeneu_Fenster.Visible = true;
}

bool Anwendung::FormClose(Registrierung& store) {
  if (!closeProject(*this)) return false;  // asks to save unsaved calculations; a failed save keeps it open
  Registry_Schreiben(*this, store);
  return true;
}

void Anwendung::start(const std::filesystem::path& dataFolder) {
  const MemoryRegistrierung firstStart;
  FormCreate(dataFolder, firstStart);
  FormShow(firstStart);
}

}  // namespace linecalc
