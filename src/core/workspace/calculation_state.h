#pragma once

#include <cstdint>

#include "base/real.h"

namespace linecalc {

// The shared state of one calculation: the current element, its inputs and the medium in internal
// units, the results and the flags of the run. Each step of a run reads what the one before wrote;
// an output that an element does not assign keeps its old value.
struct CalculationState {
  // the current element
  int ElementGruppe = 1;
  int ElementNr = 1;

  // element inputs: mm for diameters, m for lengths, m2 for sections, degrees, percent, coefficients
  Real Va1 = 0, Va2 = 0, Va3 = 0, Va4 = 0, Va5 = 0;
  std::int64_t VaAnz = 1;    // pieces
  Real Rauhigkeit = 0;       // mm
  bool ersteAuswahl = true;  // the first of the element's two choices is on

  // medium
  Real Volumenstrom = 0;         // m3/h
  Real Volumenstrom_Z = 0;       // m3/h, branch of (5,5) and (5,6)
  Real Massenstrom = 0;          // kg/h
  Real Normvolumenstrom = 0;     // Nm3/h (1.01325 bar, 273.15 K)
  Real Dichte = 0;               // kg/m3
  Real DynViskositaet = 0;       // 10-6 kg/(m s)
  Real KinViskositaet = 0;       // 10-6 m2/s
  Real Eintrittsdruck = 0;       // bar absolute
  Real Eintrittstemperatur = 0;  // K
  Real Austrittstemperatur = 0;  // K
  bool gas = false;

  // results
  Real w = 0, w2 = 0;  // m/s
  Real Re = 0, Re2 = 0;
  Real d_hydr = 0;  // mm
  Real Lambda = 0;
  Real Zeta = 0, Zeta_Z = 0;
  Real Delta_P = 0;    // bar, all pieces
  Real Delta_P_2 = 0;  // bar, reserved: cleared and never set
  Real Delta_P_Z = 0;  // mbar, branch of one piece
  bool laminar = false;
  bool gasdruckzuhoch = false;
  bool Kritisches_Laminar_Element = false;
  bool undefinedResult = false;  // a correlation had no value for the inputs: the run stopped

  // flags of the run
  bool Werteingabe = true;
  bool Bereich_i_O = true;
  bool Pruefmodus = false;
};

}  // namespace linecalc
