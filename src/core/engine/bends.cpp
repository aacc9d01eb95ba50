#include "engine/bends.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

#include "base/numbers.h"
#include "engine/friction.h"
#include "engine/table_lookup.h"

namespace linecalc {
namespace {

constexpr Real kNaN = std::numeric_limits<Real>::quiet_NaN();

// Angle factor A of a smooth circular bend (deflection coefficient at R/D = 1), Idelchik,
// by angle in degrees; the angle is clamped to 90 before the lookup.
constexpr Real kBendAngleNodes[] = {0, 20, 30, 45, 60, 75, 90};
constexpr Real kBendAngleFactor[] = {0, 0.067L, 0.099L, 0.136L, 0.17L, 0.195L, 0.21L};

// Form factor C of a rectangular bend by aspect ratio H/B; 0.6 from H/B = 8 on.
constexpr Real kRectAspectNodes[] = {0.2L, 1, 1.5L, 2, 3, 4, 5, 6, 7, 8};
constexpr Real kRectFormFactor[] = {1.8L, 1, 0.5L, 0.45L, 0.4L, 0.42L, 0.48L, 0.56L, 0.59L, 0.6L};

// Mitred segment bend: coefficient by angle in degrees, 0..90.
constexpr Real kSegmentAngleNodes[] = {0, 30, 45, 60, 90};
constexpr Real kSegmentZeta[] = {0, 0.1L, 0.15L, 0.2L, 0.25L};

// Cast-iron bend: coefficient by nominal size DN; 2.2 from DN 400 on.
constexpr Real kCastIronDN[] = {50, 100, 200, 300, 400};
constexpr Real kCastIronZeta[] = {1.3L, 1.5L, 1.8L, 2.1L, 2.2L};

// Reynolds number above which the bend loss no longer depends on Re (Idelchik's 2e5).
constexpr Real kReSelfSimilar = 200000;
// Relative roughness separating "nearly rough" from "fully rough" walls.
constexpr Real kRoughLimit = 0.001L;

enum class BendRegime { None, Smooth, Transitional, FullyRough, NearlyRough };

// Angle factor of the laminar knee: 6 up to 30°, then linear on the open-closed intervals
// (30, 45], (45, 75] through 3.6 and 1.5, on to 1.3 at 90°, and 1.3 from 90° on. The intervals
// close at their upper node, so the shared half-open lookup does not fit here.
Real kneeLaminarAngleFactor(Real delta) {
  if (delta <= 30) return 6;
  if (delta <= 45) return Interpolieren(delta, 30, 45, 6, 3.6L);
  if (delta <= 75) return Interpolieren(delta, 45, 75, 3.6L, 1.5L);
  if (delta < 90) return Interpolieren(delta, 75, 90, 1.5L, 1.3L);
  return 1.3L;
}

}  // namespace

Real Zeta_Kreiskruemmer(int Methode, Real D, Real R, Real delta, Real k, Real Lambda, Real Re) {
  // Negated tests so that a NaN input is refused as well.
  if (!(D > 0) || !(R > 0) || !(Re > 0) || !(delta >= 0) || !(k >= 0)) return kNaN;

  // Friction along the bend axis: 0.0175 ≈ π/180 turns the angle into the arc length R·δ.
  const Real Zr = 0.0175L * Lambda * R / D * delta;
  const Real A = lookupHalfOpen(kBendAngleNodes, kBendAngleFactor, std::min<Real>(delta, 90));
  const Real e = k / D;
  const Real Rg = power(2.89L / (e * 1000 + 1), 12);
  // The smooth-pipe factor is evaluated whatever the regime; a failed evaluation fails the bend.
  const Real lambda0 = Rohrreibungszahl(Methode, 0, Re, D);
  if (!std::isfinite(lambda0)) return kNaN;

  // Classification: each later test overwrites an earlier one, so a smooth wall below Rg counts
  // as transitional.
  BendRegime regime = BendRegime::None;
  if (e == 0) regime = BendRegime::Smooth;
  if (Re < Rg) regime = BendRegime::Transitional;
  if (Re >= kReSelfSimilar && e >= kRoughLimit) regime = BendRegime::FullyRough;
  if (regime == BendRegime::None) regime = BendRegime::NearlyRough;

  const Real s = std::sqrt(R / D);
  Real Zu = kNaN;
  switch (regime) {
    case BendRegime::Smooth:
      // Re³ here (not the cube root of the transitional branch) is the correlation as adopted;
      // with e = 0 it needs Rg ≤ Re ≤ 2e5, which Rg ≈ 3.4e5 rules out.
      Zu = Re > kReSelfSimilar ? A / s : (58.5L * A / s) / power(Re, 3);
      break;
    case BendRegime::Transitional:
      Zu = (58.5L * A / s) / power(Re, 1.0L / 3);
      break;
    case BendRegime::FullyRough:
      Zu = 2 * A / s;
      break;
    case BendRegime::NearlyRough:
      // Three tests that may each fire; the last one that fires wins.
      if (Re >= kReSelfSimilar && e <= kRoughLimit) Zu = ((e * 1000 + 1) * A) / s;
      if (Rg <= Re && Re <= kReSelfSimilar && e <= kRoughLimit) Zu = (lambda0 * 64 * A * (e * 1000 + 1)) / s;
      if (Re <= kReSelfSimilar && e >= kRoughLimit) Zu = (lambda0 * 128 * A) / s;
      break;
    case BendRegime::None:
      break;
  }
  return Zr + Zu;
}

Real Zeta_Rechteckkruemmer(int Methode, Real B, Real H, Real R, Real delta, Real d_hydr, Real k, Real Lambda, Real Re) {
  if (!(B > 0)) return kNaN;
  const Real aspect = H / B;
  if (!(aspect >= kRectAspectNodes[0])) return kNaN;  // flatter than 0.2: no form factor
  const Real C = lookupHalfOpen(kRectAspectNodes, kRectFormFactor, aspect);
  const Real Zr = 0.0175L * Lambda * R / d_hydr * delta;
  const Real Zk = Zeta_Kreiskruemmer(Methode, d_hydr, R, delta, k, Lambda, Re);
  // Only the deflection part is scaled by the form factor; friction stays that of d_hydr.
  return (Zk - Zr) * C + Zr;
}

Real Zeta_Kruemmer_laminar(Real d, Real R, Real delta, Real Re) {
  if (!(d > 0) || !(R > 0) || !(Re > 0)) return kNaN;
  // Dean number as the correlation defines it, with the extra factor 0.5 on Re.
  const Real De = (Re * 0.5L) * std::sqrt((d / 2) / R);
  // delta enters in degrees (a polynomial term, not an angle of a trigonometric function).
  if (De <= 1000) return ((0.415L * delta / Re) * R / d) * power(De, 0.36L);
  return (0.082L * delta / power(Re, 0.45L)) * power(R / d, 0.725L);
}

Real Zeta_Segmentkruemmer(Real delta) {
  if (!(delta >= 0) || delta > 90) return kNaN;
  return lookupHalfOpen(kSegmentAngleNodes, kSegmentZeta, delta);
}

Real Zeta_Graugusskruemmer(Real DN) {
  if (!(DN >= kCastIronDN[0])) return kNaN;
  return lookupHalfOpen(kCastIronDN, kCastIronZeta, DN);
}

Real Zeta_Kniestueck(Real delta, Real d, Real k, Real Re) {
  if (delta == 0 || !(d > 0) || !(k >= 0) || !(Re > 0)) return kNaN;
  const Real C1 = 33.5L / delta + 0.95L;  // angle factor
  const Real s = std::sin(delta / 2 * std::numbers::pi_v<Real> / 180);
  // Weisbach's mitre-bend coefficient 0.95·sin²(δ/2) + 2.05·sin⁴(δ/2).
  const Real C2 = 0.95L * s * s + 2.05L * s * s * s * s;
  const Real C3 = 4.06L / power(Re, 0.118L);  // Reynolds correction
  // Roughness correction after Idelchik: only above Re = 4e4, at most 1.5.
  const Real e = k / d;
  Real C4 = 1;
  if (e > 0 && e <= kRoughLimit) {
    if (Re / 1000 > 40) C4 = 500 * e + 1;
  } else if (e > kRoughLimit) {
    if (Re / 1000 > 40) C4 = 1.5L;
  }
  return C1 * C2 * C4 * C3;
}

Real Zeta_Kniestueck_laminar(Real delta, Real d, Real Re, Real Rauhigkeit) {
  if (!(Re > 0)) return kNaN;
  const Real A = kneeLaminarAngleFactor(delta);
  // The turbulent coefficient at a fixed Re of one million, whatever the actual Re.
  const Real Z = Zeta_Kniestueck(delta, d, Rauhigkeit, 1000000);
  return (A + 1) * Z + 1200 / Re;
}

}  // namespace linecalc
