#pragma once

#include "base/real.h"

namespace linecalc {

// Resistance coefficients (for one piece, related to the pipe velocity) of expansion joints (group 6),
// shut-off and control valves (group 7) and check valves (group 8). D, H and L in mm, angles in degrees.
// Inputs the range checks let through but the correlations cannot handle give NaN; the caller stops the
// run with a message naming the element and the input.

// (6,1) Corrugated-tube expansion joint: 0.2 per wave.
Real Zeta_Wellrohrausgleicher(Real Wellen);

// (6,2) Lyre bend: 0.7 for the first choice, 1.4 for the second.
Real Zeta_Lyrabogen(bool ersteAuswahl);

// (6,3) U bend of diameter D and leg length L: 0.33 at L/D = 0 falling linearly to 0.21 at L/D = 2, then
// 0.21. NaN for L/D < 0 or D = 0.
Real Zeta_U_Bogen(Real D, Real L);

// Friction factor of clean steel pipe in complete turbulence by nominal diameter D (mm), after the table
// of Crane TP-410, with the product's tenfold entries 0.14 for 200 <= D < 250 and 0.13 for 300 <= D < 400.
Real Reibungstabelle(Real D);

// Two-constant valve coefficients, zeta = a/Re + (1/(D/25.4) + 1) * b (Hooper's 2-K form with the size
// term in inches). Re is the shared Reynolds number of the pipe. NaN for D = 0 or Re = 0.
Real Zeta_Geradsitzventil(Real D, Real Re);        // (7,1) straight-seat globe valve, a = 1500, b = 4
Real Zeta_Schraegsitzventil(Real D, Real Re);      // (7,2) oblique-seat (Y) globe valve, a = 1000, b = 2
Real Zeta_Rueckschlag_Geradsitz(Real D, Real Re);  // (8,1) straight-seat lift check valve, a = 2000, b = 10
Real Zeta_Rueckschlagklappe(Real D, Real Re);      // (8,3) swing check valve, a = 1500, b = 1.5

// (7,3) Angle valve: 150 * Reibungstabelle(D).
Real Zeta_Eckventil(Real D);

// (7,4) Gate valve of bore D opened by H. NaN for H/D above 1 (a gate lifted above the bore), for
// H/D <= 0 (a closed gate leaves no open area) and for D = 0.
Real Zeta_Schieber(Real D, Real H);

// (7,5) Plug cock turned by delta degrees, 0 at 0 deg up to 95.3 at 50 deg. NaN outside 0..50 deg.
Real Zeta_Hahn(Real delta);

// (7,6) Butterfly valve turned by delta degrees, 0 at 0 deg up to 251 at 70 deg. NaN outside 0..70 deg.
Real Zeta_Klappe(Real delta);

// (8,2) Oblique-seat (Y) check valve: 55 * Reibungstabelle(D).
Real Zeta_Rueckschlag_Schraegsitz(Real D);

}  // namespace linecalc
