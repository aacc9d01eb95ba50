#pragma once

#include "base/controls.h"

namespace linecalc {

// Dialogs whose visibility the calculation run tests; their windows come with their own features.

// The loss curve over volume flow.
struct TKennlinieDlg : Form {
  bool Berechnung_abbrechen = false;
  bool Werte_Medium_lesen_mit_Abzw = true;  // read the branch flow of (5,5), (5,6); the curve clears it
  bool diagrammAktuell = false;

  void Diagramm_aktuell(bool aktuell) { diagrammAktuell = aktuell; }
};

// The bulk change of table data.
struct TTabelleAendern : Form {
  bool Berechnung_abbrechen = false;
};

// Changing one column of a table; while it is shown, range messages name the element of Label12.
struct TSpalteAendernDlg : Form {
  Label Label12;
};

// The pump quick design.
struct TPSchnellAuslegung : Form {};

// The note that several pieces of a gas element are computed with the state of the first.
struct TGaswarnungDlg : Form {
  Label Caption;
  Label Text;
};

}  // namespace linecalc
