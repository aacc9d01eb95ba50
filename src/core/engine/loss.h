#pragma once

#include "workspace/calculation_state.h"

namespace linecalc {

// What the loss calculation of one element needs beyond the calculation state.
struct LossSettings {
  int Methode = 0;                  // friction method of the settings
  bool curveDialogVisible = false;  // the loss curve over volume flow is being drawn
};

// The information note of a restriction used outside the Reynolds range of its coefficient.
enum class RangeNote { None, Bereich1, Bereich2, Bereich3, Bereich4 };

struct LossOutcome {
  RangeNote rangeNote = RangeNote::None;  // turbulent path only
  bool undefined = false;                 // a coefficient has no value for these inputs
};

// The common loss form in bar: ((zeta / 2) / 100000) * density * v * v.
Real Dz(Real zeta, Real v, Real Dichte);

// The element dispatchers: Zeta (and Zeta_Z, Delta_P_Z of the branch pieces), Lambda and Delta_P of
// one piece, by element and regime. The laminar one first clears Kritisches_Laminar_Element and sets
// it for elements whose coefficient is a turbulent value.
LossOutcome Berechnung_delta_P_laminar(CalculationState& s, const LossSettings& settings);
LossOutcome Berechnung_delta_P_turbulent(CalculationState& s, const LossSettings& settings);

// The regime decision (Re below 2320 is laminar; contractions are judged by Re2 of the narrow
// section), clearing Lambda, Delta_P and Delta_P_2, and the dispatcher of the regime.
LossOutcome elementLoss(CalculationState& s, const LossSettings& settings);

// The compressibility correction of a gas loss with the inlet pressure and both temperatures.
// Returns false, and sets gasdruckzuhoch, when the loss exceeds half the inlet pressure: then the
// loss stays uncorrected.
bool gasCorrection(CalculationState& s);

}  // namespace linecalc
