#pragma once

#include "base/controls.h"
#include "workspace/calculation_state.h"

namespace linecalc {

class Anwendung;

// The result window. Its calculation steps work on the application's shared calculation state.
class TAusgabeneu_Fenster : public Form {
 public:
  explicit TAusgabeneu_Fenster(Anwendung& app);

  void Berechnung_w_Re();
  // The element's pressure loss; the loss engine connects its dispatchers here.
  void Berechnung_delta_P();
  // Writing the column and the running sums into the active table.
  void Werte_ausgeben();
  void Neue_Summen_bilden();

 private:
  Anwendung& app_;
};

}  // namespace linecalc
