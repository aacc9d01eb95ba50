#pragma once

#include "workspace/calculation_state.h"

namespace linecalc {

// Velocity w in the element's reference section, a second velocity w2 where it has one, the
// hydraulic diameter d_hydr of non-circular sections and the Reynolds numbers Re and Re2.
// Outputs the element does not assign keep their old values; an unknown element changes nothing.
void Berechnung_w_Re(CalculationState& s);

}  // namespace linecalc
