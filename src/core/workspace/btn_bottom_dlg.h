#pragma once

#include "base/controls.h"
#include "catalogue/main_form_words.h"

namespace linecalc {

class Anwendung;

// The element chooser: a button for every element on two tabs (groups 1 to 12, group 13).
class TBtnBottomDlg : public Form {
 public:
  explicit TBtnBottomDlg(Anwendung& app);

  int PageIndex = 0;  // the open tab
  int pressedGroup = 1, pressedNr = 1;
  ChooserWords words;

  // Presses the button of the current element and opens its tab.
  void Start_Aktualisierung();
  // Presses the button of an element (a click of the user); false where the catalogue has none.
  bool press(int group, int nr);
  // Takes the pressed element into the main window's panel and closes.
  void OKBtnClick();
  void Sprache_anpassen();

 private:
  Anwendung& app_;
};

}  // namespace linecalc
