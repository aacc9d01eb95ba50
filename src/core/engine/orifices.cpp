#include "engine/orifices.h"
#include "base/numbers.h"

#include <cmath>
#include <limits>

#include "engine/table_lookup.h"

namespace linecalc {
namespace {

constexpr Real kNaN = std::numeric_limits<Real>::quiet_NaN();

// Classical venturi nozzle: loss coefficient over the area ratio (d/D)^2, for a 30 deg and a 15 deg
// diffuser.
constexpr Real kVenturiF[] = {0.1L, 0.2L, 0.3L, 0.4L, 0.5L, 0.6L};
constexpr Real kVenturi30[] = {13, 3, 1, 0.5L, 0.27L, 0.15L};
constexpr Real kVenturi15[] = {22, 5, 1.8L, 0.8L, 0.4L, 0.2L};

// Wire screens at low Reynolds numbers: factor on the turbulent coefficient, 1 from Re = 600 on.
constexpr Real kSiebRe[] = {50, 100, 200, 300, 600};
constexpr Real kSiebFaktor[] = {1.4L, 1.2L, 1.08L, 1.05L, 1};

// Y-strainer: coefficient over the bore in mm. Measured values, not monotonic (a peak at 207.3 mm and a flat
// stretch from 309.7 to 341.4 mm).
constexpr Real kSchmutzD[] = {17.3L,  22.3L,  28.5L,  37.2L,  43.1L,  54.5L,  70.3L,  82.5L,
                              107.1L, 131.7L, 159.3L, 207.3L, 260.4L, 309.7L, 341.4L, 392.2L};
constexpr Real kSchmutzZeta[] = {3.07L, 3.25L, 2.14L, 2.58L, 2.83L, 3.11L, 3.51L, 4.02L,
                                 3.92L, 3.49L, 3.26L, 5.5L,  3.8L,  4.2L,  4.2L,  3.5L};

// Section of a round pipe; pi/4 as the 17-digit constant the correlations were fitted with.
Real kreisflaeche(Real D) {
  return 0.78539816339744828L * D * D;
}

// Idelchik's thin orifice / perforated plate at high Reynolds numbers, over the free area ratio f.
Real duennTurbulent(Real f) {
  if (!(f > 0 && f <= 1)) return kNaN;
  const Real s = 0.707L * power(1 - f, 0.375L) + 1 - f;
  return s * s / (f * f);
}

// Low-Reynolds share of a perforated plate or orifice: u/f^2 adds to the turbulent coefficient.
Real reynoldsAnteil(Real f, Real log10Re) {
  return 0.39L * std::exp(-18.34L * power(f, 3.5L)) * std::exp(-1.078L * (log10Re - 3));
}

// Velocity-profile factor on the turbulent share of a thick orifice or plate.
Real profilFaktor(Real log10Re) {
  return 0.74L + 0.26L * std::tanh((log10Re - 4) * 1.04L);
}

// Turbulent share of a thick orifice of free area ratio f and relative length l/d: inlet contraction,
// the jet's re-attachment in the bore (c falls as the bore lengthens), and the expansion behind it.
Real dickK(Real f, Real lZud) {
  const Real c = (1 - std::tanh((lZud - 0.657L) * 2.264L)) * std::sqrt(0.5L);
  return (1 - f) * (1 - f) + (std::sqrt(1 - f) * c + 0.5L) * (1 - f);
}

Real duennLaminar(Real f, Real Re) {
  if (!(f > 0 && f <= 1) || !(Re > 0)) return kNaN;
  if (Re < 10) return 33 / (f * f * Re);
  const Real y = std::log10(Re);
  // Share of the turbulent coefficient that is already developed at this Reynolds number.
  const Real eps = 0.461465L - 0.2648592L * y + 0.2030479L * y * y - 0.06602521L * y * y * y +
                   0.01325519L * y * y * y * y - 0.001058041L * y * y * y * y * y;
  const Real t = duennTurbulent(f);
  if (Re < 30) return 33 / (f * f * Re) + eps * t;
  return reynoldsAnteil(f, y) / (f * f) + eps * t;
}

Real dick(Real f, Real d, Real a, Real Re) {
  if (!(f > 0 && f <= 1) || d == 0 || !(Re > 0)) return kNaN;
  const Real y = std::log10(Re);
  const Real K = dickK(f, a / d);
  return (1 / f) * (1 / f) * (profilFaktor(y) * K + reynoldsAnteil(f, y) + 0.02L * a / d);
}

Real drahtsieb(Real f) {
  if (std::isnan(f) || f == 0) return kNaN;
  const Real k = 1 / f - 1;
  return k * k + 1.3L * (1 - f);
}

Real drahtsiebLaminar(Real f, Real Re) {
  if (!(Re > 0)) return kNaN;
  const Real t = drahtsieb(f);
  if (Re >= 1000) return t;
  if (Re >= 50) return t * lookupHalfOpen(kSiebRe, kSiebFaktor, Re);
  return 22 / Re + t;
}

Real doppelgitter(Real f) {
  if (std::isnan(f) || f == 0) return kNaN;
  return (1.28L * (1 - f)) / (f * f);
}

}  // namespace

Real dischargeLossCoefficient(Real beta, Real C) {
  const Real radikand = 1 - (1 - C * C) * power(beta, 4);
  const Real T = beta * beta * C;
  if (radikand < 0 || T == 0) return kNaN;
  const Real k = std::sqrt(radikand) / T - 1;
  return k * k;
}

Real orificeDischargeCoefficient(Real D, Real d, Real Re) {
  if (!(D > 0 && d > 0 && Re > 0) || d == D) return kNaN;
  const Real b = d / D;
  const Real b4 = power(b, 4);
  const Real A = power(19000 * b / Re, 0.8L);
  const Real C1 = 0.5961L + 0.0261L * b * b - 0.216L * power(b, 8) + 0.000521L * power(1e6L * b / Re, 0.7L);
  const Real C2 = (0.0188L + 0.0063L * A) * power(b, 3.5L) * power(1e6L / Re, 0.3L);
  // Upstream tapping term with the coefficient 0.043 alone (the exponential terms of the tapping distance
  // left out) and no downstream tapping term.
  const Real C3 = (b4 * (1 - 0.11L * A) * 0.043L) / (1 - b4);
  Real C = C1 + C2 + C3;
  if (D < 71.12L) C = C + (0.75L - b) * 0.011L * (2.8L - D / 25.4L);  // small pipes, ISO 5167-2 5.3.2.1
  return C;
}

Real isaNozzleDischargeCoefficient(Real D, Real d, Real Re) {
  if (!(D > 0 && d > 0 && Re > 0)) return kNaN;
  const Real b = d / D;
  return (0.99L - 0.2262L * power(b, 4.1L)) - power(1e6L / Re, 1.15L) * (0.00175L * b * b - 0.0033L * power(b, 4.15L));
}

Real longRadiusNozzleDischargeCoefficient(Real D, Real d, Real Re) {
  if (!(D > 0 && d > 0 && Re > 0)) return kNaN;
  const Real b = d / D;
  // ISO 5167-3 writes 0.00653 beta^0.5 (10^6/Re)^0.5; this correlation takes the root of 0.00653 as well,
  // which lowers C markedly at small Reynolds numbers. Kept as the product's correlation has it.
  return 0.9965L - std::sqrt(1e6L / Re) * std::sqrt(0.00653L * b);
}

Real freeAreaRatio(Real S, Real percent) {
  if (S == 0) return kNaN;
  // Free area first, then its share of the section, exactly in this order (not percent/100): the
  // rounding of the result follows this sequence.
  const Real frei = (S * percent) / 100;
  return frei / S;
}

Real Zeta_Normblende(Real D, Real d, Real Re) {
  const Real C = orificeDischargeCoefficient(D, d, Re);
  if (std::isnan(C)) return kNaN;
  return dischargeLossCoefficient(d / D, C);
}

Real Zeta_Blende_scharfkantig(Real D, Real d) {
  if (D == 0 || d == 0) return kNaN;
  const Real f = (d / D) * (d / D);
  if (f > 1) return kNaN;
  const Real r = (D * D) / (d * d);
  const Real s = 0.707L * power(1 - f, 0.375L) + 1 - f;
  return r * r * s * s;
}

Real Zeta_Blende_rundkantig(Real D, Real d, Real R) {
  if (D == 0 || d == 0) return kNaN;
  const Real f = (d / D) * (d / D);
  if (f > 1) return kNaN;
  // Inlet loss of the rounded edge: 0.5 for a sharp edge, falling towards 0.03 for R/d of 0.2 and more.
  const Real e = 0.5L - 0.47L * std::tanh(13.9L * R / d);
  const Real s = std::sqrt((1 - f) * e) + 1 - f;
  return (1 / f) * (1 / f) * s * s;
}

Real Zeta_Lochscheibe(Real D, Real d, Real l, Real Re2) {
  if (!(D > 0 && d > 0 && Re2 > 0)) return kNaN;
  const Real f = (d / D) * (d / D);
  if (f > 1) return kNaN;
  const Real K = dickK(f, l / d);
  // Friction in the bore: laminar up to 2300 (not the 2320 of the regime decision), above it the
  // correlation's 0.22/Re^0.2.
  const Real lambda = Re2 <= 2300 ? 64 / Re2 : 0.22L / power(Re2, 0.2L);
  const Real Rd = Re2 * (d / D);
  const Real y = std::log10(Rd);
  return (1 / f) * (1 / f) * (profilFaktor(y) * K + reynoldsAnteil(f, y) + lambda * l / d);
}

Real Zeta_Normduese(Real D, Real d, Real Re) {
  const Real C = isaNozzleDischargeCoefficient(D, d, Re);
  if (std::isnan(C)) return kNaN;
  return dischargeLossCoefficient(d / D, C);
}

Real Zeta_Langradiusduese(Real D, Real d, Real Re) {
  const Real C = longRadiusNozzleDischargeCoefficient(D, d, Re);
  if (std::isnan(C)) return kNaN;
  return dischargeLossCoefficient(d / D, C);
}

Real Zeta_Venturi(bool ersteAuswahl, Real D, Real d) {
  if (D == 0) return kNaN;
  const Real f = (d / D) * (d / D);
  if (f < 0.1L || f > 0.6L) return kNaN;
  return lookupHalfOpen(kVenturiF, ersteAuswahl ? kVenturi30 : kVenturi15, f);
}

Real Zeta_Lochplatte_duenn(Real D, Real percent) {
  return duennTurbulent(freeAreaRatio(kreisflaeche(D), percent));
}

Real Zeta_Lochplatte_duenn_R(Real B, Real H, Real percent) {
  return duennTurbulent(freeAreaRatio(B * H, percent));
}

Real Zeta_Lochplatte_duenn_laminar(Real D, Real percent, Real Re) {
  return duennLaminar(freeAreaRatio(kreisflaeche(D), percent), Re);
}

Real Zeta_Lochplatte_duenn_R_laminar(Real B, Real H, Real percent, Real Re) {
  return duennLaminar(freeAreaRatio(B * H, percent), Re);
}

Real Zeta_Lochplatte_dick(Real D, Real d, Real a, Real percent, Real Re) {
  return dick(freeAreaRatio(kreisflaeche(D), percent), d, a, Re);
}

Real Zeta_Lochplatte_dick_R(Real B, Real H, Real d, Real a, Real percent, Real Re) {
  return dick(freeAreaRatio(B * H, percent), d, a, Re);
}

Real Zeta_Drahtsieb(Real D, Real percent) {
  return drahtsieb(freeAreaRatio(kreisflaeche(D), percent));
}

Real Zeta_Drahtsieb_R(Real B, Real H, Real percent) {
  return drahtsieb(freeAreaRatio(B * H, percent));
}

Real Zeta_Drahtsieb_laminar(Real D, Real percent, Real Re) {
  return drahtsiebLaminar(freeAreaRatio(kreisflaeche(D), percent), Re);
}

Real Zeta_Drahtsieb_R_laminar(Real B, Real H, Real percent, Real Re) {
  return drahtsiebLaminar(freeAreaRatio(B * H, percent), Re);
}

Real Zeta_Doppelgitter(Real D, Real percent) {
  return doppelgitter(freeAreaRatio(kreisflaeche(D), percent));
}

Real Zeta_Doppelgitter_R(Real B, Real H, Real percent) {
  return doppelgitter(freeAreaRatio(B * H, percent));
}

Real Zeta_Schmutzfaenger(Real D) {
  return lookupHalfOpen(kSchmutzD, kSchmutzZeta, D);
}

}  // namespace linecalc
