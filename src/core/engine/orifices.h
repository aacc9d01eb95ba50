#pragma once

#include "base/real.h"

namespace linecalc {

// Resistance coefficients of throttling devices (group 9), perforated plates (group 10) and screens and
// grids (group 11), related to the velocity in the pipe. D, d, R, l, a, B, H in mm; percent is the free
// area of a plate, screen or grid in percent of the pipe section. Inputs the range checks let through but
// the correlations cannot handle give NaN; the caller stops the run with a message naming the element and
// the input.

// Permanent-loss coefficient of a differential-pressure device with diameter ratio beta and discharge
// coefficient C (ISO 5167-2:2003, 5.4.3): (sqrt(1 - (1 - C^2) beta^4) / (beta^2 C) - 1)^2.
// NaN for beta^2 C = 0 or a negative radicand.
Real dischargeLossCoefficient(Real beta, Real C);

// Discharge coefficient of the standard orifice plate: the Reader-Harris/Gallagher equation of
// ISO 5167-2:2003 with the upstream tapping term at 0.043, no downstream tapping term, and the small-pipe
// term below D = 71.12 mm. NaN for D, d or Re <= 0 and for d = D.
Real orificeDischargeCoefficient(Real D, Real d, Real Re);

// Discharge coefficient of the ISA 1932 nozzle (ISO 5167-3:2003). NaN for D, d or Re <= 0.
Real isaNozzleDischargeCoefficient(Real D, Real d, Real Re);

// Discharge coefficient of the long-radius nozzle, 0.9965 - sqrt(10^6/Re) sqrt(0.00653 beta).
// NaN for D, d or Re <= 0.
Real longRadiusNozzleDischargeCoefficient(Real D, Real d, Real Re);

// Free area ratio of a plate or screen of section S with the given free area in percent, computed as the
// free area over the section, ((S * percent) / 100) / S. NaN for S = 0.
Real freeAreaRatio(Real S, Real percent);

// (9,1) Standard orifice plate ISO 5167, pipe bore D, orifice bore d; Re is the shared pipe Reynolds number.
// NaN as orificeDischargeCoefficient.
Real Zeta_Normblende(Real D, Real d, Real Re);

// (9,2) Thin sharp-edged orifice (Idelchik). NaN for d = 0, D = 0 and d > D.
Real Zeta_Blende_scharfkantig(Real D, Real d);

// (9,3) Orifice with inlet edge rounded to radius R (Idelchik). NaN for d = 0, D = 0 and d > D.
Real Zeta_Blende_rundkantig(Real D, Real d, Real R);

// (9,4) Thick orifice of length l; Re2 is the shared Reynolds number of the orifice bore.
// NaN for D, d or Re2 <= 0 and for d > D.
Real Zeta_Lochscheibe(Real D, Real d, Real l, Real Re2);

// (9,5) ISA 1932 nozzle and (9,6) long-radius nozzle; Re is the shared pipe Reynolds number.
// NaN for D, d or Re <= 0 and where the loss conversion has no real value.
Real Zeta_Normduese(Real D, Real d, Real Re);
Real Zeta_Langradiusduese(Real D, Real d, Real Re);

// (9,7) Classical venturi nozzle with a 30 deg (first choice) or 15 deg diffuser, tabulated over the area
// ratio (d/D)^2. NaN for an area ratio outside 0.1..0.6 and for D = 0.
Real Zeta_Venturi(bool ersteAuswahl, Real D, Real d);

// (10,1), (11,1) Thin perforated plate or metal grid in a round pipe / (10,2), (11,2) in a B x H duct,
// turbulent (Idelchik). NaN for a free area of 0 or above 100 percent and for a section of 0; at exactly
// 100 percent the result is 0, or NaN where the rounding of the free area lands a unit above the section.
Real Zeta_Lochplatte_duenn(Real D, Real percent);
Real Zeta_Lochplatte_duenn_R(Real B, Real H, Real percent);

// The same at low Reynolds numbers Re (shared pipe Reynolds number). NaN as above and for Re <= 0.
Real Zeta_Lochplatte_duenn_laminar(Real D, Real percent, Real Re);
Real Zeta_Lochplatte_duenn_R_laminar(Real B, Real H, Real percent, Real Re);

// (10,3), (10,4) Thick perforated plate with holes of diameter d and plate thickness a, Re the shared pipe
// Reynolds number. NaN for d = 0, Re <= 0, a free area of 0 or above 100 percent and a section of 0.
Real Zeta_Lochplatte_dick(Real D, Real d, Real a, Real percent, Real Re);
Real Zeta_Lochplatte_dick_R(Real B, Real H, Real d, Real a, Real percent, Real Re);

// (11,3), (11,4) Wire screen, turbulent (Idelchik): (1/f - 1)^2 + 1.3 (1 - f).
// NaN for a free area of 0 and a section of 0.
Real Zeta_Drahtsieb(Real D, Real percent);
Real Zeta_Drahtsieb_R(Real B, Real H, Real percent);

// The same at low Reynolds numbers Re (shared pipe Reynolds number). NaN as above and for Re <= 0.
Real Zeta_Drahtsieb_laminar(Real D, Real percent, Real Re);
Real Zeta_Drahtsieb_R_laminar(Real B, Real H, Real percent, Real Re);

// (11,5), (11,6) Double grid: 1.28 (1 - f) / f^2. NaN for a free area of 0 and a section of 0.
Real Zeta_Doppelgitter(Real D, Real percent);
Real Zeta_Doppelgitter_R(Real B, Real H, Real percent);

// (11,7) Y-strainer, tabulated over the bore D: 3.07 below 17.3 mm, 3.5 from 392.2 mm on.
Real Zeta_Schmutzfaenger(Real D);

}  // namespace linecalc
