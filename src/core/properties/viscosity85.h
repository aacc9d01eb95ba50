#pragma once

#include "base/real.h"

namespace linecalc {

// Dynamic viscosity of water and steam in 10^-6 kg/(m s) from the temperature in K and the density in kg/m3, by
// the IAPS Formulation 1985 for the Viscosity of Ordinary Water Substance (revised release, IAPWS 1997): the
// dilute-gas factor times the residual factor. The critical enhancement factor is left out (taken as 1), as
// the release itself recommends for industrial use.
Real Rechne_Visko(Real T, Real rho);

}  // namespace linecalc
