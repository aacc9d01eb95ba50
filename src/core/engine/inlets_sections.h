#pragma once

#include "base/real.h"

namespace linecalc {

// Resistance coefficients of pipe inlets (group 2) and of changes of section (group 3). Diameters in mm,
// angles in degrees; every coefficient is dimensionless.

// Sharp-edged inlet flush with the wall: 0.5 for the first choice, 0.25 for the second.
Real Zeta_Einlauf_kantig(bool ersteAuswahl);
// Rounded inlet: 0.05.
Real Zeta_Einlauf_abgerundet();
// Sharp-edged inlet at an angle delta to the wall: 0.5 + 0.3 cos delta + 0.2 cos^2 delta.
Real Zeta_Einlauf_Winkel(Real Winkel);
// Sharp-edged inlet projecting far into the vessel: 3 for the first choice, 1 for the second.
Real Zeta_Einlauf_vorstehend(bool ersteAuswahl);
// Laminar coefficient of any inlet: its turbulent value plus 30/Re; NaN for Re = 0.
Real Zeta_Einlauf_laminar(Real turbulent, Real Re);

// Sudden enlargement from D1 to D2, turbulent, referred to the velocity in D1; NaN for D2 = 0.
Real Zeta_Erweiterung(Real D1, Real D2);
// Sudden enlargement, laminar (Re of section D1); NaN for Re = 0 or D2 = 0.
Real Zeta_Erweiterung_laminar(Real Re, Real D1, Real D2);
// Conical diffuser from D1 to D2 with angle delta and the friction factor lambda of D1, turbulent;
// NaN for delta outside (0, 90), D1 = D2, or a zero diameter.
Real Zeta_Diffusor(Real D1, Real D2, Real Winkel, Real Lambda);
// Conical diffuser, laminar; NaN for delta outside (0, 90), D1 = 0 or Re = 0.
Real Zeta_Diffusor_laminar(Real D1, Real D2, Real Winkel, Real Re);
// Sudden contraction from D1 to D2, turbulent, referred to the velocity in D1; NaN for a zero diameter
// and for D2 > D1.
Real Zeta_Verengung(Real D1, Real D2);
// Sudden contraction, laminar, by Re2 of the narrow section D2 (table over Re2 and (D2/D1)^2); NaN for
// D1 = 0 or an undefined Re2.
Real Zeta_Verengung_laminar(Real Re2, Real D1, Real D2);
// Conical contraction from D1 to D2 with angle delta and friction factor lambda, turbulent, referred to
// the velocity in D1; NaN for delta outside (0, 90) or a zero diameter.
Real Zeta_Konfusor(Real D1, Real D2, Real Winkel, Real Lambda);
// Conical contraction, laminar, by Re2 of the narrow section; NaN for delta outside (0, 90), a zero
// diameter or Re2 = 0.
Real Zeta_Konfusor_laminar(Real D1, Real D2, Real Winkel, Real Re2);

}  // namespace linecalc
