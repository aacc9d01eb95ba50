#include "properties/viscosity85.h"

#include <array>
#include <cmath>

namespace linecalc {

namespace {

// Reference constants of the 1985 formulation: T* in K, rho* in kg/m3, mu* in Pa s.
constexpr Real kTstar = 647.226L;
constexpr Real kRhostar = 317.763L;
constexpr Real kMustar = 55.071e-6L;

// Revised Release on the IAPS Formulation 1985 for the Viscosity of Ordinary Water Substance (IAPWS, 1997),
// Table 1: coefficients H_i of the dilute-gas factor.
constexpr std::array<Real, 4> kH = {1.000000L, 0.978197L, 0.579829L, -0.202354L};

// The same release, Table 2: coefficients H_ij of the residual factor, row i = 0..5 (powers of 1/T - 1),
// column j = 0..6 (powers of rho - 1), in reduced quantities. The 19 non-zero entries are the published ones.
constexpr std::array<std::array<Real, 7>, 6> kHij = {{
    {0.5132047L, 0.2151778L, -0.2818107L, 0.1778064L, -0.04176610L, 0, 0},
    {0.3205656L, 0.7317883L, -1.070786L, 0.4605040L, 0, -0.01578386L, 0},
    {0, 1.241044L, -1.263184L, 0.2340379L, 0, 0, 0},
    {0, 1.476783L, 0, -0.4924179L, 0.1600435L, 0, -0.003629481L},
    {-0.7782567L, 0, 0, 0, 0, 0, 0},
    {0.1885447L, 0, 0, 0, 0, 0, 0},
}};

}  // namespace

Real Rechne_Visko(Real T, Real rho) {
  const Real Tr = kTstar / T;  // reciprocal reduced temperature
  const Real rhor = rho / kRhostar;

  // Dilute-gas factor: 1 / (sqrt(Tr) * sum of H_i Tr^i).
  const Real dilute = kH[0] + Tr * (kH[1] + Tr * (kH[2] + Tr * kH[3]));
  const Real mu0 = 1 / (std::sqrt(Tr) * dilute);

  // Residual factor: exp(rhor * sum of H_ij (Tr - 1)^i (rhor - 1)^j), each row summed by Horner's scheme.
  const Real x = Tr - 1;
  const Real y = rhor - 1;
  Real sum = 0;
  for (int i = 5; i >= 0; --i) {
    const auto& row = kHij[static_cast<std::size_t>(i)];
    Real inner = row[6];
    for (int j = 5; j >= 0; --j) inner = inner * y + row[static_cast<std::size_t>(j)];
    sum = sum * x + inner;
  }
  const Real mu1 = std::exp(rhor * sum);

  return mu0 * mu1 * kMustar * 1e6L;
}

}  // namespace linecalc
