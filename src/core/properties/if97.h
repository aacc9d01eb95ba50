#pragma once

#include "base/real.h"

namespace linecalc {

// Water and steam by the IAPWS Industrial Formulation 1997 (IAPWS-IF97). All functions are pure: pressures
// in bar absolute, temperatures in K, densities in kg/m3.

// Saturation pressure from the temperature (IF97 Eq. 30); defined up to the critical temperature 647.096 K.
Real Rechne_Dampfdruck(Real T);
// Saturation temperature from the pressure (IF97 Eq. 31).
Real Rechne_Siedetemp(Real p);

// Density from the Gibbs equations: Region 1 (liquid, Eq. 7), Region 2 (vapour, Eq. 15, where the ideal-gas
// part enters only as 1/pi) and Region 5 (high temperature, Eq. 32 in the five-term form of the 1997 release).
Real Rechne_Dichte_Bereich1(Real T, Real p);
Real Rechne_Dichte_Bereich2(Real T, Real p);
Real Rechne_Dichte_Bereich5(Real T, Real p);

// Density in Region 3 from the Helmholtz equation (Eq. 28) by a finite-difference Newton iteration from a start
// value; a root that is not the physical one is replaced by the root on the right branch. 0 when no usable
// density was found (the iteration met an arithmetic fault and no root could be bracketed).
Real Rechne_Dichte_Bereich3(Real T, Real p);

// The Region 3 solution with how it was found.
struct Region3Solution {
  Real density = 0;      // kg/m3; 0 when none was found
  Real iterated = 0;     // what the Newton iteration from the start value gave (NaN after an arithmetic fault)
  bool rescued = false;  // the iterated root was not the physical one, the density comes from the right branch
};
Region3Solution solveRegion3(Real T, Real p);

// The start value of the Region 3 iteration by pressure: 77 kg/m3 below 170 bar, linear between the points
// of the table above, 693 kg/m3 from 1000 bar on.
Real Startdichte_Bereich3(Real p);

// Pressure of the Region 3 equation at a density and temperature (IF97 Eq. 28 and Table 31).
Real region3Pressure(Real rho, Real T);

// The boundary between Regions 2 and 3 (IF97 Eqs. 5 and 6): pressure from temperature and back.
Real boundary23Pressure(Real T);
Real boundary23Temperature(Real p);

}  // namespace linecalc
