#include "workspace/anwendung.h"

namespace linecalc {

Anwendung::Anwendung(Meldungen& m, char decimalSeparator)
    : meldungen(m),
      Dezimaltrennzeichen(decimalSeparator),
      Ausgabeneu_Fenster(*this),
      BtnBottomDlg(*this),
      MyWindow(*this) {}

void Anwendung::start(const std::filesystem::path& dataFolder) {
  Sprache.Sprachdatei_laden(dataFolder);
  Sprache.Gruppen_laden(dataFolder);
  MyWindow.Standardeinstellungen();
  MyWindow.Sprache_anpassen();
  BtnBottomDlg.Sprache_anpassen();
  Ausgabeneu_Fenster.Sprache_anpassen();
  WordBlock gasNote = Sprache.block("GaswarnungDlg");
  GaswarnungDlg.Caption.Caption = gasNote.next();
  GaswarnungDlg.Text.Caption = gasNote.next();
  state.ElementGruppe = 1;
  state.ElementNr = 1;
  MyWindow.Element_Fenster_aktualisieren();
  MyWindow.Visible = true;
  Ausgabeneu_Fenster.Visible = true;
}

}  // namespace linecalc
