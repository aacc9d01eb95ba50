#pragma once

#include "base/real.h"

namespace linecalc {

// Resistance coefficients of changes of direction (group 4): circular and rectangular bends,
// mitred segment bends, cast-iron bends and sharp knees. Diameters and radii in mm, angles in
// degrees. Every function returns a quiet NaN for inputs outside its correlation (listed per
// function); the caller stops the run on a non-finite result.

// Circular bend in turbulent flow, after Idelchik: the friction term 0.0175·λ·R/D·δ plus a deflection
// part that depends on the roughness regime (smooth, transitional, nearly rough, fully rough).
// Methode is the friction method (0, 1, 2) used for the smooth-pipe factor λ0; D pipe diameter,
// R bend radius, delta angle, k roughness (mm), Lambda the friction factor of the pipe; Re is the
// Reynolds number of the element (the shared calculation value), passed as the last argument.
// NaN for D ≤ 0, R ≤ 0, Re ≤ 0, delta < 0, k < 0, and whenever λ0 is not finite.
Real Zeta_Kreiskruemmer(int Methode, Real D, Real R, Real delta, Real k, Real Lambda, Real Re);

// Rectangular bend in turbulent flow: the circular bend of the hydraulic diameter, its deflection
// part scaled by a form factor of the aspect ratio H/B. B, H sides, R radius, delta angle, d_hydr
// hydraulic diameter, k roughness, Lambda friction factor; Re as for Zeta_Kreiskruemmer.
// NaN for B ≤ 0, H/B < 0.2 and wherever Zeta_Kreiskruemmer gives NaN.
Real Zeta_Rechteckkruemmer(int Methode, Real B, Real H, Real R, Real delta, Real d_hydr, Real k, Real Lambda, Real Re);

// Circular or rectangular bend in laminar flow, by the Dean number: d (hydraulic) diameter,
// R radius, delta angle. NaN for d ≤ 0, R ≤ 0 or Re ≤ 0.
Real Zeta_Kruemmer_laminar(Real d, Real R, Real delta, Real Re);

// Mitred segment bend, tabulated by angle 0..90°. NaN below 0° and above 90°.
Real Zeta_Segmentkruemmer(Real delta);

// Cast-iron bend, tabulated by nominal size DN from 50 on (2.2 from DN 400). NaN below DN 50.
Real Zeta_Graugusskruemmer(Real DN);

// Sharp knee (mitre elbow without guide vanes) in turbulent flow: delta angle, d (hydraulic)
// diameter, k roughness. NaN for delta = 0, d ≤ 0, k < 0 or Re ≤ 0.
Real Zeta_Kniestueck(Real delta, Real d, Real k, Real Re);

// Sharp knee in laminar flow: the turbulent value at Re = 1e6 raised by an angle factor, plus
// 1200/Re. Rauhigkeit is the roughness k of the element (shared calculation value), passed last.
// NaN for Re ≤ 0 and wherever Zeta_Kniestueck gives NaN (delta = 0 included).
Real Zeta_Kniestueck_laminar(Real delta, Real d, Real Re, Real Rauhigkeit);

}  // namespace linecalc
