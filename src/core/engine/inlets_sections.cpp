#include "engine/inlets_sections.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <numbers>

#include "base/numbers.h"
#include "engine/table_lookup.h"

namespace linecalc {

namespace {

constexpr Real kNaN = std::numeric_limits<Real>::quiet_NaN();
constexpr Real kPi = std::numbers::pi_v<Real>;

Real radians(Real degrees) {
  return degrees * (kPi / 180);
}

// The angle of a cone lies strictly between 0 and 90 degrees; at 0 the tangent or sine in a denominator
// vanishes, from 90 on the tangent changes sign.
bool coneAngleDefined(Real Winkel) {
  return Winkel > 0 && Winkel < 90;
}

// Laminar sudden contraction: columns of Re2 (the narrow section) with the coefficient referred to the
// narrow section, one row per area ratio (D2/D1)^2 = 0.1 .. 0.6. The rise from column 2000 to column 4000
// belongs to the data, it is not a typing error.
constexpr Real kVerengungRe[] = {10, 20, 30, 40, 50, 100, 200, 500, 1000, 2000, 4000, 5000, 10000};
constexpr Real kVerengungZeta[6][13] = {
    {5, 3.2L, 2.4L, 2, 1.8L, 1.3L, 1.04L, 0.82L, 0.64L, 0.5L, 0.8L, 0.75L, 0.5L},
    {5, 3.1L, 2.3L, 1.84L, 1.62L, 1.2L, 0.95L, 0.7L, 0.5L, 0.4L, 0.6L, 0.6L, 0.4L},
    {5, 2.95L, 2.15L, 1.7L, 1.5L, 1.1L, 0.85L, 0.6L, 0.44L, 0.3L, 0.55L, 0.55L, 0.35L},
    {5, 2.8L, 2, 1.6L, 1.4L, 1, 0.78L, 0.5L, 0.35L, 0.25L, 0.45L, 0.5L, 0.3L},
    {5, 2.7L, 1.8L, 1.46L, 1.3L, 0.9L, 0.65L, 0.42L, 0.3L, 0.2L, 0.4L, 0.42L, 0.25L},
    {5, 2.6L, 1.7L, 1.35L, 1.2L, 0.8L, 0.56L, 0.35L, 0.24L, 0.15L, 0.35L, 0.35L, 0.2L},
};
// From Re2 = 10000 up the last column holds. It differs from the node 10000 of the interpolation in row 1,
// so that row steps from 0.5 to 0.45 at exactly 10000.
constexpr Real kVerengungZetaAb10000[6] = {0.45L, 0.4L, 0.35L, 0.3L, 0.25L, 0.2L};

}  // namespace

Real Zeta_Einlauf_kantig(bool ersteAuswahl) {
  return ersteAuswahl ? 0.5L : 0.25L;
}

Real Zeta_Einlauf_abgerundet() {
  return 0.05L;
}

Real Zeta_Einlauf_Winkel(Real Winkel) {
  const Real c = std::cos(radians(Winkel));
  return 0.5L + 0.3L * c + 0.2L * c * c;
}

Real Zeta_Einlauf_vorstehend(bool ersteAuswahl) {
  return ersteAuswahl ? 3 : 1;
}

Real Zeta_Einlauf_laminar(Real turbulent, Real Re) {
  if (Re == 0) return kNaN;
  return turbulent + 30 / Re;
}

Real Zeta_Erweiterung(Real D1, Real D2) {
  if (D2 == 0) return kNaN;
  // Borda-Carnot: (1 - A1/A2)^2, written as (A1/A2 - 1)^2.
  return power((D1 * D1 / D2 / D2) - 1, 2);
}

Real Zeta_Erweiterung_laminar(Real Re, Real D1, Real D2) {
  if (Re == 0 || D2 == 0) return kNaN;
  if (Re < 10) return 30 / Re;
  const Real f = 1 - power(D1 / D2, 2);
  const Real f2 = f * f;
  const Real f4 = f2 * f2;
  const Real y = std::log10(Re);
  if (Re >= 500) {
    return (-8.44556L - 26.163L * f2 - 5.38086L * f4) + (6.007L + 18.5372L * f2 + 3.9978L * f4) * y +
           (-1.02318L - 3.0916L * f2 - 0.680943L * f4) * y * y;
  }
  return (3.62536L + 10.744L * f2 - 4.41041L * f4) + (-18.13L - 56.77855L * f2 + 33.40344L * f4) / y +
         (30.8558L + 99.9542L * f2 - 62.78L * f4) / (y * y) + (-13.217L - 53.9555L * f2 + 33.8053L * f4) / (y * y * y);
}

Real Zeta_Diffusor(Real D1, Real D2, Real Winkel, Real Lambda) {
  if (!coneAngleDefined(Winkel) || D1 == 0 || D2 == 0 || D1 == D2) return kNaN;
  const Real m = power(D1 / D2, 2);
  // Expansion part: the polynomial terms take the full cone angle a = 2 delta in degrees.
  const Real a = 2 * Winkel;
  const Real c = 1.41L * a / 100;
  const Real t = (std::exp(c) - std::exp(-c)) / (std::exp(c) + std::exp(-c));
  const Real p = 522 * power(a / 100, 4.365L);
  const Real q = std::exp(-8 * a / 100);
  const Real K = p * q + t;
  // Friction part over the cone length l.
  const Real l = ((D2 - D1) / 2) / std::tan(radians(Winkel));
  const Real r = ((1 - m * m) * (Lambda * l / D1) / 4) / (1 / std::sqrt(m) - 1);
  return power(1 - m, 2) * K + r;
}

Real Zeta_Diffusor_laminar(Real D1, Real D2, Real Winkel, Real Re) {
  if (!coneAngleDefined(Winkel) || D1 == 0 || Re == 0) return kNaN;
  const Real n = power(D2 / D1, 2);
  return (20 * power(n, 0.33L) / power(std::tan(radians(Winkel)), 0.75L)) / Re;
}

Real Zeta_Verengung(Real D1, Real D2) {
  if (D1 == 0 || D2 == 0) return kNaN;
  // Idelchik: 0.5 (1 - A2/A1)^0.75 in the narrow section; (D1/D2)^4 refers it to the velocity in D1.
  return 0.5L * power(1 - power(D2 / D1, 2), 0.75L) * power(D1 / D2, 4);
}

Real Zeta_Verengung_laminar(Real Re2, Real D1, Real D2) {
  const Real ratio = 10 * power(D2 / D1, 2);
  if (D1 == 0 || !std::isfinite(ratio) || std::isnan(Re2)) return kNaN;
  // Row by the area ratio, rounded half away from zero and clamped to the rows 1..6.
  const std::int64_t row = ratio >= 6.5L ? 6 : std::max<std::int64_t>(Runden(ratio), 1);
  if (Re2 < 10) return 5;
  if (Re2 >= 10000) return kVerengungZetaAb10000[row - 1];
  return lookupHalfOpen(kVerengungRe, kVerengungZeta[row - 1], Re2);
}

Real Zeta_Konfusor(Real D1, Real D2, Real Winkel, Real Lambda) {
  if (!coneAngleDefined(Winkel) || D1 == 0 || D2 == 0) return kNaN;
  const Real n = power(D2 / D1, 2);
  const Real m = power(D1 / D2, 2);
  // The full cone angle in radians with the rounded factor 0.01745 of the correlation; kept as it is.
  const Real x = 0.01745L * Winkel * 2;
  const Real P = -0.0125L * power(n, 4) + 0.0224L * power(n, 3) - 0.00723L * n * n + 0.00444L * n - 0.00745L;
  const Real A = (x * x * x - 2 * kPi * x * x - 10 * x) * P;
  const Real B = ((1 - 1 / (m * m)) * Lambda / 8) / std::sin(radians(Winkel));
  return ((A + B) / power(D2, 4)) * power(D1, 4);
}

Real Zeta_Konfusor_laminar(Real D1, Real D2, Real Winkel, Real Re2) {
  if (!coneAngleDefined(Winkel) || D1 == 0 || D2 == 0 || Re2 == 0) return kNaN;
  const Real n = power(D2 / D1, 2);
  return (20.5L / power(n, 0.5L) / power(std::tan(radians(Winkel)), 0.75L)) / Re2;
}

}  // namespace linecalc
