#pragma once

#include <initializer_list>

#include "workspace/calculation_state.h"

namespace linecalc::test {

// The calculation state of an element with its rows Va1.. in internal units, carrying 36 m3/h of a
// medium of density 1000 kg/m3 and the given dynamic viscosity in 10-6 kg/(m s).
inline CalculationState elementState(int group, int nr, std::initializer_list<Real> va, Real viscosity = 1000) {
  CalculationState s;
  s.ElementGruppe = group;
  s.ElementNr = nr;
  Real* rows[] = {&s.Va1, &s.Va2, &s.Va3, &s.Va4, &s.Va5};
  int i = 0;
  for (const Real v : va) *rows[i++] = v;
  s.Volumenstrom = 36;
  s.Dichte = 1000;
  s.DynViskositaet = viscosity;
  return s;
}

}  // namespace linecalc::test
