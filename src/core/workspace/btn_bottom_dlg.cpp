#include "workspace/btn_bottom_dlg.h"

#include "workspace/anwendung.h"

namespace linecalc {

TBtnBottomDlg::TBtnBottomDlg(Anwendung& app) : app_(app) {}

void TBtnBottomDlg::Start_Aktualisierung() {
  pressedGroup = app_.state.ElementGruppe;
  pressedNr = app_.state.ElementNr;
  PageIndex = chooserTab(pressedGroup);
}

bool TBtnBottomDlg::press(int group, int nr) {
  if (!findElement(group, nr)) return false;
  pressedGroup = group;
  pressedNr = nr;
  PageIndex = chooserTab(group);
  return true;
}

void TBtnBottomDlg::OKBtnClick() {
  app_.state.ElementGruppe = pressedGroup;
  app_.state.ElementNr = pressedNr;
  app_.MyWindow.Element_Fenster_aktualisieren();
  Visible = false;
}

void TBtnBottomDlg::Sprache_anpassen() {
  words = readChooserWords(app_.Sprache);
}

}  // namespace linecalc
