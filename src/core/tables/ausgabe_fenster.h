#pragma once

#include <array>
#include <string>

#include "base/controls.h"
#include "workspace/calculation_state.h"

namespace linecalc {

class Anwendung;

// The result window. Its calculation steps work on the application's shared calculation state.
class TAusgabeneu_Fenster : public Form {
 public:
  explicit TAusgabeneu_Fenster(Anwendung& app);

  // message texts
  std::string noteCaption;
  std::string dp_zu_gross_Gase;
  std::string SV_Laminar_Zeta_Turbulent;
  std::array<std::string, 5> SV_Bereich;  // [1..4]
  std::string undefinedResultText;

  void Sprache_anpassen();

  void Berechnung_w_Re();
  // The element's pressure loss: regime, coefficient, gas correction, pieces and the notes.
  void Berechnung_delta_P();
  // Writing the column and the running sums into the active table.
  void Werte_ausgeben();
  void Neue_Summen_bilden();

 private:
  Anwendung& app_;
};

}  // namespace linecalc
