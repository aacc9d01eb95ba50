#pragma once

#include "base/real.h"

namespace linecalc {

// Resistance coefficients of group 5, pipe branches (Rohrverzweigungen). Every coefficient is
// dimensionless and refers to the velocity in the main pipe D1. Volume flows in any one unit (only
// their ratio counts), diameters and radii in mm, angles in degrees. Where a formula has no value,
// the result is quiet NaN; the inputs that give NaN are named per function.

// (5,1) sharp-edged tee, the flow splitting into both runs: 1 + 0.075 * ((D1*D1)/(D2*D2))^2.
// NaN for D2 = 0.
Real Zeta_T_Stueck_scharfkantig(Real D1, Real D2);
// (5,2) spherical tee: 5.
Real Zeta_T_Stueck_kugelfoermig();
// (5,3) tee with rounded bottom, straight: 0.7.
Real Zeta_T_Stueck_abgerundet_Boden_gerade();
// (5,4) spherical tee with rounded neck: 0.9.
Real Zeta_T_Stueck_kugelfoermig_Hals_abgerundet();

// (5,5) branch piece, dividing flow, turbulent (Gardel's correlation). Durchgang true gives the
// coefficient of the main run, false that of the branch. V main flow, Vz branch flow, D1 main and
// D2 branch diameter, R rounding radius of the branch edge, delta branch angle. The branch formula
// works with the supplement 180 - delta inside this function only.
// NaN: V = 0; for the branch also D1 = 0, D2 = 0, R/D1 < 0, delta outside (0, 180).
Real Zeta_Abzweig_Trennung(bool Durchgang, Real V, Real Vz, Real D1, Real D2, Real R, Real delta);

// (5,5) laminar: t is the turbulent coefficient of Zeta_Abzweig_Trennung for the same Durchgang,
// Re the Reynolds number of the main pipe; delta is the angle as entered (90 and above read 90).
// NaN: Re <= 0; for the branch also V = 0, D1 = 0, D2 = 0, and with D2 <= D1: delta < 0 or
// Runden(10*Vz/V) outside 0..10 (Vz/V at or above 1.05).
Real Zeta_Abzweig_Trennung_laminar(bool Durchgang, Real V, Real Vz, Real D1, Real D2, Real delta, Real t, Real Re);

// (5,6) branch piece, combining flow, turbulent (Gardel's correlation); arguments as
// Zeta_Abzweig_Trennung, V being the combined flow. The angle is used as entered.
// NaN: V = 0, D1 = 0, D2 = 0, R/D1 < 0.
Real Zeta_Abzweig_Vereinigung(bool Durchgang, Real V, Real Vz, Real D1, Real D2, Real R, Real delta);

// (5,6) laminar: t is the turbulent coefficient of Zeta_Abzweig_Vereinigung for the same Durchgang,
// Re the Reynolds number of the main pipe (the main-run coefficient does not use it).
// NaN: for the branch Re <= 0; for the main run V = 0, D1 = 0, D2 = 0.
Real Zeta_Abzweig_Vereinigung_laminar(bool Durchgang, Real V, Real Vz, Real D1, Real D2, Real t, Real Re);

// (5,7) straight trouser pipe (Y piece) of angle delta in degrees. NaN outside 0..90.
Real Zeta_Hosenrohr_gerade(Real delta);

// (5,8) curved trouser pipe, diameter D and bend radius R in mm. NaN for D = 0 or R/D outside 0.5..2.
Real Zeta_Hosenrohr_gekruemmt(Real D, Real R);

}  // namespace linecalc
