#include "engine/branches.h"

#include <cmath>
#include <cstdint>
#include <limits>
#include <numbers>

#include "base/numbers.h"
#include "engine/table_lookup.h"

namespace linecalc {

namespace {

constexpr Real kNaN = std::numeric_limits<Real>::quiet_NaN();

Real degToRad(Real degrees) {
  return degrees * (std::numbers::pi_v<Real> / 180);
}

// Share of the main flow that goes through the branch, q = Vz/V.
Real flowRatio(Real V, Real Vz) {
  return V == 0 ? kNaN : Vz / V;
}

// Ratio of branch to main cross-section, f = (D2/D1)^2.
Real areaRatio(Real D1, Real D2) {
  if (D1 == 0 || D2 == 0) return kNaN;
  const Real ratio = D2 / D1;
  return ratio * ratio;
}

// Laminar dividing flow into a branch not wider than the main pipe: factor A by branch angle, one row per
// flow share i = Runden(10 q), i = 1..10. The first node (0, 0) starts every row; from 90 on the last
// column holds.
constexpr Real kTrennungLaminarWinkel[] = {0, 30, 45, 60, 90};
constexpr Real kTrennungLaminarFaktor[10][5] = {
    {0, 1.35L, 1.35L, 1.2L, 1},      // i = 1
    {0, 1.8L, 1.8L, 1.5L, 1.1L},     // i = 2
    {0, 2.6L, 2.35L, 1.85L, 1.2L},   // i = 3
    {0, 3.4L, 2.9L, 2.2L, 1.3L},     // i = 4
    {0, 4.75L, 3.6L, 2.6L, 1.4L},    // i = 5
    {0, 6.1L, 4.3L, 3, 1.5L},        // i = 6
    {0, 6.65L, 4.3L, 2.85L, 1.45L},  // i = 7
    {0, 7.2L, 4.3L, 2.7L, 1.4L},     // i = 8
    {0, 6.6L, 3.65L, 2.5L, 1.35L},   // i = 9
    {0, 6, 3, 2.3L, 1.3L},           // i = 10
};

// Straight trouser pipe: coefficient by the angle between the legs in degrees.
constexpr Real kHosenrohrGeradeWinkel[] = {0, 10, 30, 45, 60, 90};
constexpr Real kHosenrohrGeradeZeta[] = {0, 0.1L, 0.3L, 0.7L, 1, 1.4L};

// Curved trouser pipe: coefficient by the relative bend radius R/D.
constexpr Real kHosenrohrGekruemmtRadius[] = {0.5L, 0.75L, 1, 1.5L, 2};
constexpr Real kHosenrohrGekruemmtZeta[] = {1.1L, 0.6L, 0.4L, 0.25L, 0.2L};

}  // namespace

Real Zeta_T_Stueck_scharfkantig(Real D1, Real D2) {
  if (D2 == 0) return kNaN;
  const Real flaechen = (D1 * D1) / (D2 * D2);
  return 1 + 0.075L * (flaechen * flaechen);
}

Real Zeta_T_Stueck_kugelfoermig() {
  return 5;
}

Real Zeta_T_Stueck_abgerundet_Boden_gerade() {
  return 0.7L;
}

Real Zeta_T_Stueck_kugelfoermig_Hals_abgerundet() {
  return 0.9L;
}

// Dividing flow after Gardel's empirical tee equations: the main run depends on the flow share only,
// the branch on flow share, area ratio, edge rounding and angle.
Real Zeta_Abzweig_Trennung(bool Durchgang, Real V, Real Vz, Real D1, Real D2, Real R, Real delta) {
  const Real q = flowRatio(V, Vz);
  if (std::isnan(q)) return kNaN;
  if (Durchgang) return 0.35L * q * q + 0.03L * (1 - q) * (1 - q) - 0.2L * q * (1 - q);

  const Real f = areaRatio(D1, D2);
  if (std::isnan(f)) return kNaN;
  const Real r = R / D1;
  if (r < 0) return kNaN;
  // The branch angle enters through its supplement: the tangent is taken of (180 - delta)/2, so an entered
  // 45 works as 135. This replacement stays inside this function; the laminar correlation and the
  // combining-flow correlation take the angle as entered. At 0 the tangent has its pole, at 180 it is 0.
  if (!(delta > 0 && delta < 180)) return kNaN;
  const Real ergaenzung = 180 - delta;
  const Real T = std::tan(degToRad(ergaenzung / 2));

  const Real a = 0.4L * q * (1 - q) * (1 / f + 1) / T;
  const Real b = 0.95L * (1 - q) * (1 - q) + a;
  const Real c = 1.3L / T - 0.3L;
  const Real d = 1 - 0.9L * std::sqrt(r / f);
  const Real e = ((0.4L - 0.1L * f) / (f * f)) * d + c;
  return q * q * e + b;
}

Real Zeta_Abzweig_Trennung_laminar(bool Durchgang, Real V, Real Vz, Real D1, Real D2, Real delta, Real t, Real Re) {
  if (!(Re > 0)) return kNaN;
  if (Durchgang) return 3 * t + 33 / Re;

  const Real q = flowRatio(V, Vz);
  const Real f = areaRatio(D1, D2);
  if (std::isnan(q) || std::isnan(f)) return kNaN;

  Real A = 0;
  if (f > 1) {
    A = q <= 0.4L ? 0.9L : 0;
  } else {
    // Row index from the flow share rounded to tenths; only 0..10 exist (q below 1.05).
    const Real zehntel = q * 10;
    if (!(zehntel > -0.5L && zehntel < 10.5L)) return kNaN;
    const std::int64_t i = Runden(zehntel);
    if (i == 0) {
      A = 0.9L;
    } else {
      if (delta < 0) return kNaN;
      A = lookupHalfOpen(kTrennungLaminarWinkel, kTrennungLaminarFaktor[i - 1], delta);
    }
  }
  return (A + 1) * t + 150 / Re;
}

// Combining flow after Gardel's empirical tee equations; the angle enters as entered (cos delta).
Real Zeta_Abzweig_Vereinigung(bool Durchgang, Real V, Real Vz, Real D1, Real D2, Real R, Real delta) {
  const Real q = flowRatio(V, Vz);
  const Real f = areaRatio(D1, D2);
  if (std::isnan(q) || std::isnan(f)) return kNaN;
  const Real r = R / D1;
  if (r < 0) return kNaN;
  const Real cosDelta = std::cos(degToRad(delta));

  if (Durchgang) {
    const Real a = 1.62L - std::sqrt(r);
    const Real b = ((cosDelta / f - 1) * a + 1) - 0.38L * (1 - f);
    return (0.03L * (1 - q) * (1 - q) + (1 - q) * q * (2 - f)) - q * q * b;
  }
  const Real a = 1.2L - std::sqrt(r);
  const Real b = (cosDelta / f - 1) * a;
  const Real c = (1 - 1 / (f * f)) * 0.8L + b;
  const Real e = c - cosDelta * ((1 - f) / f);
  return (-0.92L * (1 - q) * (1 - q) + (1 - q) * q * (2 - f)) - q * q * e;
}

Real Zeta_Abzweig_Vereinigung_laminar(bool Durchgang, Real V, Real Vz, Real D1, Real D2, Real t, Real Re) {
  if (!Durchgang) {
    if (!(Re > 0)) return kNaN;
    return 2 * t + 150 / Re;
  }
  // Main run: no Reynolds term, only a flow-share correction on twice the turbulent value.
  const Real q = flowRatio(V, Vz);
  const Real n = areaRatio(D1, D2);
  if (std::isnan(q) || std::isnan(n)) return kNaN;
  const Real m = 1 / n;
  Real C = 0;
  if (n <= 0.35L) {
    C = 1.8L - q;
  } else {
    C = q <= 0.2L ? 1.8L - 4 * q : 1.2L - q;
  }
  const Real u = (1 - q) * (1 - q) * C - (m * q) * (m * q) * (1.6L - 0.3L * n);
  return 2 * t + u;
}

Real Zeta_Hosenrohr_gerade(Real delta) {
  if (!(delta >= 0 && delta <= 90)) return kNaN;
  return lookupHalfOpen(kHosenrohrGeradeWinkel, kHosenrohrGeradeZeta, delta);
}

Real Zeta_Hosenrohr_gekruemmt(Real D, Real R) {
  if (D == 0) return kNaN;
  const Real r = R / D;
  if (!(r >= 0.5L && r <= 2)) return kNaN;
  return lookupHalfOpen(kHosenrohrGekruemmtRadius, kHosenrohrGekruemmtZeta, r);
}

}  // namespace linecalc
