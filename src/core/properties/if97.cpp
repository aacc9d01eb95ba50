#include "properties/if97.h"

#include <array>
#include <cmath>
#include <limits>

#include "base/numbers.h"

namespace linecalc {

namespace {

// Specific gas constant of water in kJ/(kg K) (IAPWS-IF97, Eq. 1).
constexpr Real kR = 0.461526L;
// Critical temperature in K and critical density in kg/m3 (IAPWS-IF97, Eqs. 2 and 4).
constexpr Real kTc = 647.096L;
constexpr Real kRhoc = 322;

struct Term {
  int I;
  int J;
  Real n;
};

// IAPWS-IF97 (2007 revision), Table 1: coefficients of the B23 equation, Eqs. 5 and 6.
constexpr std::array<Real, 5> kB23 = {0.34805185628969e3L, -0.11671859879975e1L, 0.10192970039326e-2L,
                                      0.57254459862746e3L, 0.13918839778870e2L};

// IAPWS-IF97 (2007 revision), Table 2: coefficients and exponents of the dimensionless Gibbs free energy of
// Region 1, Eq. 7.
constexpr std::array<Term, 34> kRegion1 = {{
    {0, -2, 0.14632971213167L},        {0, -1, -0.84548187169114L},       {0, 0, -0.37563603672040e1L},
    {0, 1, 0.33855169168385e1L},       {0, 2, -0.95791963387872L},        {0, 3, 0.15772038513228L},
    {0, 4, -0.16616417199501e-1L},     {0, 5, 0.81214629983568e-3L},      {1, -9, 0.28319080123804e-3L},
    {1, -7, -0.60706301565874e-3L},    {1, -1, -0.18990068218419e-1L},    {1, 0, -0.32529748770505e-1L},
    {1, 1, -0.21841717175414e-1L},     {1, 3, -0.52838357969930e-4L},     {2, -3, -0.47184321073267e-3L},
    {2, 0, -0.30001780793026e-3L},     {2, 1, 0.47661393906987e-4L},      {2, 3, -0.44141845330846e-5L},
    {2, 17, -0.72694996297594e-15L},   {3, -4, -0.31679644845054e-4L},    {3, 0, -0.28270797985312e-5L},
    {3, 6, -0.85205128120103e-9L},     {4, -5, -0.22425281908000e-5L},    {4, -2, -0.65171222895601e-6L},
    {4, 10, -0.14341729937924e-12L},   {5, -8, -0.40516996860117e-6L},    {8, -11, -0.12734301741641e-8L},
    {8, -6, -0.17424871230634e-9L},    {21, -29, -0.68762131295531e-18L}, {23, -31, 0.14478307828521e-19L},
    {29, -38, 0.26335781662795e-22L},  {30, -39, -0.11947622640071e-22L}, {31, -40, 0.18228094581404e-23L},
    {32, -41, -0.93537087292458e-25L},
}};

// IAPWS-IF97 (2007 revision), Table 11: coefficients and exponents of the residual part of the dimensionless
// Gibbs free energy of Region 2, Eq. 17.
constexpr std::array<Term, 43> kRegion2 = {{
    {1, 0, -0.17731742473213e-2L},    {1, 1, -0.17834862292358e-1L},    {1, 2, -0.45996013696365e-1L},
    {1, 3, -0.57581259083432e-1L},    {1, 6, -0.50325278727930e-1L},    {2, 1, -0.33032641670203e-4L},
    {2, 2, -0.18948987516315e-3L},    {2, 4, -0.39392777243355e-2L},    {2, 7, -0.43797295650573e-1L},
    {2, 36, -0.26674547914087e-4L},   {3, 0, 0.20481737692309e-7L},     {3, 1, 0.43870667284435e-6L},
    {3, 3, -0.32277677238570e-4L},    {3, 6, -0.15033924542148e-2L},    {3, 35, -0.40668253562649e-1L},
    {4, 1, -0.78847309559367e-9L},    {4, 2, 0.12790717852285e-7L},     {4, 3, 0.48225372718507e-6L},
    {5, 7, 0.22922076337661e-5L},     {6, 3, -0.16714766451061e-10L},   {6, 16, -0.21171472321355e-2L},
    {6, 35, -0.23895741934104e2L},    {7, 0, -0.59059564324270e-17L},   {7, 11, -0.12621808899101e-5L},
    {7, 25, -0.38946842435739e-1L},   {8, 8, 0.11256211360459e-10L},    {8, 36, -0.82311340897998e1L},
    {9, 13, 0.19809712802088e-7L},    {10, 4, 0.10406965210174e-18L},   {10, 10, -0.10234747095929e-12L},
    {10, 14, -0.10018179379511e-8L},  {16, 29, -0.80882908646985e-10L}, {16, 50, 0.10693031879409L},
    {18, 57, -0.33662250574171L},     {20, 20, 0.89185845355421e-24L},  {20, 35, 0.30629316876232e-12L},
    {20, 48, -0.42002467698208e-5L},  {21, 21, -0.59056029685639e-25L}, {22, 53, 0.37826947613457e-5L},
    {23, 39, -0.12768608934681e-14L}, {24, 26, 0.73087610595061e-28L},  {24, 40, 0.55414715350778e-16L},
    {24, 58, -0.94369707241210e-6L},
}};

// IAPWS-IF97 (2007 revision), Table 30: coefficients and exponents of the dimensionless Helmholtz free energy
// of Region 3, Eq. 28. The first coefficient belongs to the term n1 ln(delta).
constexpr Real kRegion3LogTerm = 0.10658070028513e1L;
constexpr std::array<Term, 39> kRegion3 = {{
    {0, 0, -0.15732845290239e2L},   {0, 1, 0.20944396974307e2L},    {0, 2, -0.76867707878716e1L},
    {0, 7, 0.26185947787954e1L},    {0, 10, -0.28080781148620e1L},  {0, 12, 0.12053369696517e1L},
    {0, 23, -0.84566812812502e-2L}, {1, 2, -0.12654315477714e1L},   {1, 6, -0.11524407806681e1L},
    {1, 15, 0.88521043984318L},     {1, 17, -0.64207765181607L},    {2, 0, 0.38493460186671L},
    {2, 2, -0.85214708824206L},     {2, 6, 0.48972281541877e1L},    {2, 7, -0.30502617256965e1L},
    {2, 22, 0.39420536879154e-1L},  {2, 26, 0.12558408424308L},     {3, 0, -0.27999329698710L},
    {3, 2, 0.13899799569460e1L},    {3, 4, -0.20189915023570e1L},   {3, 16, -0.82147637173963e-2L},
    {3, 26, -0.47596035734923L},    {4, 0, 0.43984074473500e-1L},   {4, 2, -0.44476435428739L},
    {4, 4, 0.90572070719733L},      {4, 26, 0.70522450087967L},     {5, 1, 0.10770512626332L},
    {5, 3, -0.32913623258954L},     {5, 26, -0.50871062041158L},    {6, 0, -0.22175400873096e-1L},
    {6, 2, 0.94260751665092e-1L},   {6, 26, 0.16436278447961L},     {7, 2, -0.13503372241348e-1L},
    {8, 26, -0.14834345352472e-1L}, {9, 2, 0.57922953628084e-3L},   {9, 26, 0.32308904703711e-2L},
    {10, 0, 0.80964802996215e-4L},  {10, 1, -0.16557679795037e-3L}, {11, 26, -0.44923899061815e-4L},
}};

// IAPWS-IF97 as first released (Erlangen, September 1997), Table 38: the five residual terms of the
// dimensionless Gibbs free energy of Region 5, Eq. 34. The 2007 revision, which extended Region 5 to 50 MPa,
// replaced them by six other terms; densities from the revised equation differ in the sixth digit (1500 K,
// 0.5 MPa: 0.138455354 m3/kg here, 0.138455090 m3/kg there), so references built on the revision do not
// reproduce the values of this form.
constexpr std::array<Term, 5> kRegion5 = {{
    {1, 0, -0.12563183589592e-3L},
    {1, 1, 0.21774678714571e-2L},
    {1, 3, -0.45942820899910e-2L},
    {2, 9, -0.39724828359569e-5L},
    {3, 3, 0.12919228289784e-6L},
}};

// IAPWS-IF97 (2007 revision), Table 34: coefficients of the saturation equations, Eqs. 30 and 31.
constexpr std::array<Real, 11> kSat = {0,
                                       0.11670521452767e4L,
                                       -0.72421316703206e6L,
                                       -0.17073846940092e2L,
                                       0.12020824702470e5L,
                                       -0.32325550322333e7L,
                                       0.14915108613530e2L,
                                       -0.48232657361591e4L,
                                       0.40511340542057e6L,
                                       -0.23855557567849L,
                                       0.65017534844798e3L};

// x^0 .. x^N by repeated multiplication.
template <std::size_t N>
std::array<Real, N + 1> powersOf(Real x) {
  std::array<Real, N + 1> p;
  p[0] = 1;
  for (std::size_t k = 1; k <= N; ++k) p[k] = p[k - 1] * x;
  return p;
}

// The Region 3 equation at one temperature: delta * dphi/ddelta = n1 + sum over I of c_I delta^I, a polynomial
// of degree 11 in delta whose coefficients c_I = sum of n_i I_i tau^J_i depend on the temperature only.
struct Region3Isotherm {
  std::array<Real, 12> c{};  // c[0] = n1
  Real T = 0;

  explicit Region3Isotherm(Real temperature) : T(temperature) {
    const auto tau = powersOf<26>(kTc / temperature);
    c[0] = kRegion3LogTerm;
    for (const Term& t : kRegion3) c[static_cast<std::size_t>(t.I)] += t.n * t.I * tau[static_cast<std::size_t>(t.J)];
  }

  // delta * dphi/ddelta, the compressibility factor p / (rho R T).
  Real deltaPhiDelta(Real delta) const {
    Real sum = c[11];
    for (int I = 10; I >= 1; --I) sum = sum * delta + c[static_cast<std::size_t>(I)];
    return c[0] + sum * delta;
  }

  // d/ddelta of delta * dphi/ddelta.
  Real derivative(Real delta) const {
    Real sum = 11 * c[11];
    for (int I = 10; I >= 1; --I) sum = sum * delta + I * c[static_cast<std::size_t>(I)];
    return sum;
  }

  // The residual of the iteration for a pressure given as P = p / (R T) in kg/m3: zero at the solution,
  // with the sign of p(rho) - p for positive densities.
  Real residual(Real rho, Real P) const { return deltaPhiDelta(rho / kRhoc) - P / rho; }
  Real residualSlope(Real rho, Real P) const { return derivative(rho / kRhoc) / kRhoc + P / (rho * rho); }

  // (dp/drho) / (R T) at constant temperature.
  Real pressureSlope(Real rho) const {
    const Real delta = rho / kRhoc;
    return deltaPhiDelta(delta) + delta * derivative(delta);
  }
};

// Start table of the Region 3 iteration: density in kg/m3 by pressure in bar.
constexpr std::array<Real, 14> kStartPressure = {170, 180, 200, 220, 240, 250, 300, 400, 500, 600, 700, 800, 900, 1000};
constexpr std::array<Real, 14> kStartDensity = {77, 84, 101, 120, 149, 167, 358, 523, 578, 612, 639, 660, 678, 693};

// The finite-difference Newton iteration: forward difference with h = 1e-8 kg/m3, ending when a step is
// shorter than 1e-8 kg/m3 or after 100 rounds. NaN after an arithmetic fault (a division by zero or an
// overflow, where extended arithmetic would trap).
Real newtonRegion3(const Region3Isotherm& isotherm, Real P, Real start) {
  constexpr Real h = 1e-8L;
  Real rho = start;
  for (int round = 0; round < 100; ++round) {
    const Real f = isotherm.residual(rho, P);
    const Real slope = (isotherm.residual(rho + h, P) - f) / h;
    const Real next = rho - f / slope;
    if (!std::isfinite(next) || rho == 0) return std::numeric_limits<Real>::quiet_NaN();
    const bool converged = std::fabs(rho - next) < 1e-8L;
    rho = next;
    if (converged) break;
  }
  return rho;
}

// Saturated liquid and vapour densities, a start on the right branch of the Region 3 isotherm: the auxiliary
// equations of the IAPWS Revised Supplementary Release on Saturation Properties of Ordinary Water Substance
// (St. Petersburg, September 1992), Eqs. 2 and 3.
Real saturatedLiquidDensity(Real T) {
  const Real theta = 1 - T / kTc;
  const Real t3 = std::cbrt(theta);  // theta^(1/3)
  return kRhoc * (1 + 1.99274064L * t3 + 1.09965342L * t3 * t3 - 0.510839303L * power(t3, 5) -
                  1.75493479L * power(t3, 16) - 45.5170352L * power(t3, 43) - 6.74694450e5L * power(t3, 110));
}

Real saturatedVapourDensity(Real T) {
  const Real theta = 1 - T / kTc;
  const Real t6 = std::cbrt(std::sqrt(theta));  // theta^(1/6)
  return kRhoc * std::exp(-2.03150240L * power(t6, 2) - 2.68302940L * power(t6, 4) - 5.38626492L * power(t6, 8) -
                          17.2991605L * power(t6, 18) - 44.7586581L * power(t6, 37) - 63.9201063L * power(t6, 71));
}

// Which branch of the isotherm the state belongs to: below the critical temperature the pressure decides
// between liquid and vapour by the saturation pressure; above it there is one branch.
enum class Branch { Liquid, Vapour, Supercritical };

Branch branchOf(Real T, Real p) {
  if (T >= kTc) return Branch::Supercritical;
  return p > Rechne_Dampfdruck(T) ? Branch::Liquid : Branch::Vapour;
}

// A root is physical when it is positive, the pressure rises with the density there, and below the critical
// temperature it lies on the side of the critical density that its branch demands; and it is no denser than
// any state of Region 3 can be (the roots the equation has far beyond that are no states of water).
bool isPhysicalRoot(const Region3Isotherm& isotherm, Real rho, Branch branch, Real densest) {
  if (!std::isfinite(rho) || rho <= 0 || isotherm.pressureSlope(rho) <= 0) return false;
  switch (branch) {
    case Branch::Liquid:
      return rho > kRhoc && rho <= densest;
    case Branch::Vapour:
      return rho < kRhoc;
    case Branch::Supercritical:
      return rho <= densest;
  }
  return false;
}

// The root on the branch by bracketing: from a start on the branch, step towards the pressure sought until the
// residual changes its sign, then close in by Newton steps kept inside the bracket (bisection where a step
// would leave it). NaN when no bracket is found on the branch.
Real bracketedRoot(const Region3Isotherm& isotherm, Real P, Real start) {
  Real a = start;
  Real fa = isotherm.residual(a, P);
  if (!std::isfinite(fa)) return std::numeric_limits<Real>::quiet_NaN();
  if (fa == 0) return a;
  // A residual below zero means the pressure at the start is too low: the root lies at higher density.
  const Real direction = fa < 0 ? 1 : -1;
  Real step = 0.005L * start;
  Real b = a, fb = fa;
  for (int k = 0; k < 200; ++k) {
    b = a + direction * step;
    if (b <= 0) b = a / 2;
    fb = isotherm.residual(b, P);
    if (!std::isfinite(fb) || isotherm.pressureSlope(b) <= 0) return std::numeric_limits<Real>::quiet_NaN();
    if ((fb > 0) != (fa > 0) || fb == 0) break;
    a = b;
    fa = fb;
    step *= 1.5L;
  }
  if ((fb > 0) == (fa > 0) && fb != 0) return std::numeric_limits<Real>::quiet_NaN();
  Real lo = fa < 0 ? a : b, hi = fa < 0 ? b : a;  // residual(lo) < 0 < residual(hi)
  Real rho = (lo + hi) / 2;
  for (int k = 0; k < 200; ++k) {
    const Real f = isotherm.residual(rho, P);
    if (f == 0) return rho;
    (f < 0 ? lo : hi) = rho;
    Real next = rho - f / isotherm.residualSlope(rho, P);
    if (!(next > std::fmin(lo, hi) && next < std::fmax(lo, hi))) next = (lo + hi) / 2;
    if (std::fabs(next - rho) < 1e-12L * rho) return next;
    rho = next;
  }
  return rho;
}

}  // namespace

Real Rechne_Dampfdruck(Real T) {
  const auto& n = kSat;
  const Real theta = T + n[9] / (T - n[10]);
  const Real A = theta * theta + n[1] * theta + n[2];
  const Real B = n[3] * theta * theta + n[4] * theta + n[5];
  const Real C = n[6] * theta * theta + n[7] * theta + n[8];
  const Real x = 2 * C / (-B + std::sqrt(B * B - 4 * A * C));
  const Real x2 = x * x;
  return 10 * x2 * x2;
}

Real Rechne_Siedetemp(Real p) {
  const auto& n = kSat;
  const Real beta = std::sqrt(std::sqrt(p / 10));
  const Real E = beta * beta + n[3] * beta + n[6];
  const Real F = n[1] * beta * beta + n[4] * beta + n[7];
  const Real G = n[2] * beta * beta + n[5] * beta + n[8];
  const Real D = 2 * G / (-F - std::sqrt(F * F - 4 * E * G));
  return (n[10] + D - std::sqrt((n[10] + D) * (n[10] + D) - 4 * (n[9] + n[10] * D))) / 2;
}

Real boundary23Pressure(Real T) {
  return 10 * (kB23[0] + kB23[1] * T + kB23[2] * T * T);
}

Real boundary23Temperature(Real p) {
  return kB23[3] + std::sqrt((p / 10 - kB23[4]) / kB23[2]);
}

Real Rechne_Dichte_Bereich1(Real T, Real p) {
  const Real pMPa = p / 10;
  const Real pi = pMPa / 16.53L;
  const Real tau = 1386 / T;
  const auto a = powersOf<31>(7.1L - pi);
  const Real b = tau - 1.222L;
  const auto up = powersOf<17>(b);
  const auto down = powersOf<41>(1 / b);
  Real gammaPi = 0;
  for (const Term& t : kRegion1) {
    if (t.I == 0) continue;
    const Real bJ = t.J >= 0 ? up[static_cast<std::size_t>(t.J)] : down[static_cast<std::size_t>(-t.J)];
    gammaPi -= t.n * t.I * a[static_cast<std::size_t>(t.I - 1)] * bJ;
  }
  return 1 / (pi * gammaPi * kR * T / pMPa / 1000);
}

Real Rechne_Dichte_Bereich2(Real T, Real p) {
  const Real pMPa = p / 10;
  const Real pi = pMPa;
  const auto piPow = powersOf<23>(pi);
  const auto b = powersOf<58>(540 / T - 0.5L);
  Real S = 0;
  for (const Term& t : kRegion2) {
    S += t.n * t.I * piPow[static_cast<std::size_t>(t.I - 1)] * b[static_cast<std::size_t>(t.J)];
  }
  return 1 / ((1 / pi + S) * pi * kR * T / pMPa / 1000);
}

Real Rechne_Dichte_Bereich5(Real T, Real p) {
  const Real pMPa = p / 10;
  const Real pi = pMPa;
  const auto tau = powersOf<9>(1000 / T);
  Real S = 0;
  for (const Term& t : kRegion5) S += t.n * t.I * power(pi, t.I - 1) * tau[static_cast<std::size_t>(t.J)];
  return 1 / ((1 / pi + S) * pi * kR * T / pMPa / 1000);
}

Real Startdichte_Bereich3(Real p) {
  if (p < kStartPressure.front()) return kStartDensity.front();
  for (std::size_t i = 1; i < kStartPressure.size(); ++i) {
    if (p <= kStartPressure[i]) {
      return Interpolieren(p, kStartPressure[i - 1], kStartPressure[i], kStartDensity[i - 1], kStartDensity[i]);
    }
  }
  return kStartDensity.back();
}

Real region3Pressure(Real rho, Real T) {
  const Region3Isotherm isotherm(T);
  return isotherm.deltaPhiDelta(rho / kRhoc) * rho * kR * T / 100;  // kPa to bar
}

Region3Solution solveRegion3(Real T, Real p) {
  const Region3Isotherm isotherm(T);
  const Real pMPa = p / 10;
  const Real P = pMPa * 1000 / kR / T;
  // Below the saturation pressure of 221 bar and on the liquid side of saturation the iteration starts from the
  // Region 1 density at 623 K; everywhere else from the start table.
  const Real start =
      T < 648 && p < 221 && Rechne_Siedetemp(p) > T ? Rechne_Dichte_Bereich1(623.0L, p) : Startdichte_Bereich3(p);
  Region3Solution solution;
  solution.iterated = newtonRegion3(isotherm, P, start);

  const Branch branch = branchOf(T, p);
  // Region 3 reaches up to 1000 bar; its densest states lie at its lowest temperature, 623.15 K, where it meets
  // Region 1. Two percent allow for the small inconsistency of the two equations along that boundary.
  const Real densest = 1.02L * Rechne_Dichte_Bereich1(std::fmin(T, 623.15L), std::fmax(p, 1000));
  if (isPhysicalRoot(isotherm, solution.iterated, branch, densest)) {
    solution.density = solution.iterated;
    return solution;
  }
  const Real branchStart = branch == Branch::Liquid   ? saturatedLiquidDensity(T)
                           : branch == Branch::Vapour ? saturatedVapourDensity(T)
                                                      : kRhoc;
  const Real rescued = bracketedRoot(isotherm, P, branchStart);
  solution.rescued = true;
  solution.density = isPhysicalRoot(isotherm, rescued, branch, densest) ? rescued : 0;
  return solution;
}

Real Rechne_Dichte_Bereich3(Real T, Real p) {
  return solveRegion3(T, p).density;
}

}  // namespace linecalc
