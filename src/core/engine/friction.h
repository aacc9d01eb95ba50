#pragma once

#include "base/real.h"

namespace linecalc {

// Pipe friction factor by method: 0 Colebrook ("Variante A"), 1 by sections ("Variante B"),
// 2 Churchill; any other method gives 0. k roughness and d diameter in mm.
Real Rohrreibungszahl(int Methode, Real Rauhigkeit, Real Re, Real d);
// Turbulent friction factor by the Colebrook equation; NaN for Re <= 0, d <= 0 or k < 0, and where the
// equation has no root (0.269 k/d >= 1).
Real Lambda_Colebrook(Real k, Real Re, Real d);
// Turbulent friction factor by ranges of Re and k (Blasius, Nikuradse, Prandtl, rough-pipe law, Colebrook);
// NaN for Re <= 0, d <= 0, k < 0, and for k = 0 below Re 2320.
Real Lambda_Abschnitte(Real k, Real Re, Real d);
// Friction factor of Churchill (1977), laminar through turbulent; NaN for Re <= 0, d <= 0 or k < 0.
Real Lambda_Churchill(Real k, Real Re, Real d);

// Straight-pipe loss in bar: lambda, length L in m, density, velocity w, diameter d in mm. NaN for d = 0.
Real Rohrreibungsverlust(Real Lambda, Real L, Real Dichte, Real w, Real d);

// Laminar friction factors of non-circular sections and the friction factor of corrugated pipe.
Real Lambda_laminar_Rechteck(Real Re, Real B, Real H);    // NaN for Re = 0, negative sides or B = H = 0
Real Lambda_laminar_Ringspalt(Real Re, Real D, Real Di);  // NaN outside D/Di in 1..100 and for Re = 0
// Diameter D, corrugation depth t and pitch T in mm; NaN unless D, t and T are all positive.
Real Lambda_Wellrohr(Real D, Real t, Real T, Real Re);

}  // namespace linecalc
