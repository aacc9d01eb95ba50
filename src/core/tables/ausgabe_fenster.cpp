#include "tables/ausgabe_fenster.h"

#include "engine/velocity.h"
#include "workspace/anwendung.h"

namespace linecalc {

TAusgabeneu_Fenster::TAusgabeneu_Fenster(Anwendung& app) : app_(app) {}

void TAusgabeneu_Fenster::Berechnung_w_Re() {
  linecalc::Berechnung_w_Re(app_.state);
}

void TAusgabeneu_Fenster::Berechnung_delta_P() {}

void TAusgabeneu_Fenster::Werte_ausgeben() {}

void TAusgabeneu_Fenster::Neue_Summen_bilden() {}

}  // namespace linecalc
