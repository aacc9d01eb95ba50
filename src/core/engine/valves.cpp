#include "engine/valves.h"

#include <cmath>
#include <limits>

#include "engine/table_lookup.h"

namespace linecalc {
namespace {

constexpr Real kNaN = std::numeric_limits<Real>::quiet_NaN();

// Friction factor of clean commercial steel pipe in the zone of complete turbulence by nominal size
// (Crane TP-410): 1/2" 0.027 ... 24" 0.012, the sizes given as bores in mm.
constexpr Real kReibungD[] = {15, 20, 25, 32, 40, 50, 65.8L, 100, 125, 150, 200, 250, 300, 400, 450};
constexpr Real kReibungLambda[] = {0.027L, 0.025L, 0.023L, 0.022L, 0.021L, 0.019L, 0.018L, 0.017L,
                                   0.016L, 0.015L, 0.014L, 0.014L, 0.013L, 0.013L, 0.012L};

// Plug cock: coefficient over the turning angle in degrees.
constexpr Real kHahnWinkel[] = {0, 10, 20, 30, 40, 50};
constexpr Real kHahnZeta[] = {0, 0.31L, 1.84L, 6.15L, 20.7L, 95.3L};

// Butterfly valve: coefficient over the turning angle in degrees.
constexpr Real kKlappeWinkel[] = {0, 10, 20, 30, 40, 50, 60, 70};
constexpr Real kKlappeZeta[] = {0, 0.52L, 1.54L, 3.91L, 10.8L, 32.6L, 118, 251};

// U bend: 0.33 for legs of no length falling to 0.21 at L/D = 2, constant beyond.
constexpr Real kUBogenLD[] = {0, 2};
constexpr Real kUBogenZeta[] = {0.33L, 0.21L};

// Two-constant valve form: a/Re for the laminar share, b for the turbulent share, which grows for small
// valves with 1/(D in inches).
Real zweiKonstanten(Real a, Real b, Real D, Real Re) {
  if (D == 0 || Re == 0) return kNaN;
  return a / Re + (1 / (D / 25.4L) + 1) * b;
}

}  // namespace

Real Zeta_Wellrohrausgleicher(Real Wellen) {
  return 0.2L * Wellen;
}

Real Zeta_Lyrabogen(bool ersteAuswahl) {
  return ersteAuswahl ? 0.7L : 1.4L;
}

Real Zeta_U_Bogen(Real D, Real L) {
  if (D == 0) return kNaN;
  const Real r = L / D;
  if (r < 0) return kNaN;
  return lookupHalfOpen(kUBogenLD, kUBogenZeta, r);
}

Real Reibungstabelle(Real D) {
  // The product's table holds 0.14 and 0.13 (ten times Crane's 0.014 and 0.013) in these two ranges; a
  // valve of those sizes gets a tenfold coefficient. Kept on purpose, do not "correct".
  if (D >= 200 && D < 250) return 0.14L;
  if (D >= 300 && D < 400) return 0.13L;
  return lookupHalfOpen(kReibungD, kReibungLambda, D);
}

Real Zeta_Geradsitzventil(Real D, Real Re) {
  return zweiKonstanten(1500, 4, D, Re);
}

Real Zeta_Schraegsitzventil(Real D, Real Re) {
  return zweiKonstanten(1000, 2, D, Re);
}

Real Zeta_Rueckschlag_Geradsitz(Real D, Real Re) {
  return zweiKonstanten(2000, 10, D, Re);
}

Real Zeta_Rueckschlagklappe(Real D, Real Re) {
  return zweiKonstanten(1500, 1.5L, D, Re);
}

Real Zeta_Eckventil(Real D) {
  return Reibungstabelle(D) * 150;
}

Real Zeta_Rueckschlag_Schraegsitz(Real D) {
  return Reibungstabelle(D) * 55;
}

Real Zeta_Schieber(Real D, Real H) {
  if (D == 0) return kNaN;
  const Real h = H / D;
  // Above 1 arccos is undefined; at or below 0 the gate leaves no open area.
  if (!(h > 0 && h <= 1)) return kNaN;
  // Open share of the bore; 0.63661977236758138 is 2/pi rounded to 17 digits, kept as the correlation has it.
  const Real n = 1 - (std::acos(h) - std::sqrt(1 - h * h) * h) * 0.63661977236758138L;
  if (n <= 0) return kNaN;
  const Real k = 1 / n - 1;
  return 3.5L * k * k + 0.78L;
}

Real Zeta_Hahn(Real delta) {
  if (delta < 0 || delta > 50) return kNaN;
  return lookupHalfOpen(kHahnWinkel, kHahnZeta, delta);
}

Real Zeta_Klappe(Real delta) {
  if (delta < 0 || delta > 70) return kNaN;
  return lookupHalfOpen(kKlappeWinkel, kKlappeZeta, delta);
}

}  // namespace linecalc
