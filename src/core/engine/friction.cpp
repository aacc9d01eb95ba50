#include "engine/friction.h"
#include "base/numbers.h"

#include <cfloat>
#include <cmath>
#include <limits>
#include <optional>

#include "engine/table_lookup.h"

namespace linecalc {

namespace {

constexpr Real kNaN = std::numeric_limits<Real>::quiet_NaN();

// Finite-difference Newton: step h for the slope, absolute tolerance on the change of lambda, round limit.
constexpr Real kSlopeStep = 1e-8L;
constexpr Real kTolerance = 1e-8L;
constexpr int kMaxRounds = 100;

// The rounded constants of the Colebrook equation: 0.868588 for 2/ln 10 and 0.269 for 1/3.71.
constexpr Real kTwoOverLn10 = 0.868588L;
constexpr Real kOneOver371 = 0.269L;

// The finite-difference Newton iteration shared by all iterative friction factors. It stops as soon as one
// round changes lambda by less than the tolerance, or after 100 rounds; a result that has not converged by
// then is returned as it stands. Empty when a step leaves the domain lambda > 0 (the next square root would
// fail) or the slope degenerates.
template <class Equation>
std::optional<Real> newtonFiniteDifference(const Equation& F, Real lambda) {
  int rounds = 0;
  Real lambdaOld = 0;
  do {
    const Real a = F(lambda);
    lambdaOld = lambda;
    lambda = lambda - (a * kSlopeStep) / (F(lambda + kSlopeStep) - a);
    ++rounds;
    if (!(lambda > 0) || !std::isfinite(lambda)) return std::nullopt;
  } while (!(kTolerance > std::fabs(lambdaOld - lambda)) && rounds < kMaxRounds);
  return lambda;
}

// Root of an equation F(lambda) = 0 that falls strictly with lambda and tends to +infinity as lambda -> 0+
// (true of the Colebrook and of Prandtl's smooth-pipe equation). First a bracket [lo, hi] with F(lo) > 0 >
// F(hi), then Newton steps that are accepted only while they stay inside the bracket and at least halve the
// step before last; otherwise the bracket is bisected. NaN when the equation has no root with lambda > 0.
template <class Equation>
Real bracketedRoot(const Equation& F) {
  Real hi = 1;
  for (int i = 0; i < 64 && F(hi) > 0; ++i) hi *= 2;
  const Real fHi = F(hi);
  if (std::isnan(fHi) || fHi > 0) return kNaN;
  if (fHi == 0) return hi;
  Real lo = hi / 2;
  for (int i = 0; i < 256; ++i) {
    const Real fLo = F(lo);
    if (std::isnan(fLo)) return kNaN;
    if (fLo > 0) break;
    hi = lo;
    lo /= 2;
  }
  if (!(F(lo) > 0)) return kNaN;

  Real x = (lo + hi) / 2;
  Real step = hi - lo;
  Real stepBefore = step;
  for (int i = 0; i < 1000; ++i) {
    const Real fx = F(x);
    if (std::isnan(fx)) return kNaN;
    if (fx == 0) return x;
    if (fx > 0) {
      lo = x;
    } else {
      hi = x;
    }
    const Real dx = x * 1e-9L;
    const Real slope = (F(x + dx) - fx) / dx;
    Real next = x - fx / slope;
    if (!(next > lo && next < hi && std::fabs(next - x) < std::fabs(stepBefore) / 2)) next = (lo + hi) / 2;
    stepBefore = step;
    step = next - x;
    if (std::fabs(step) <= 4 * LDBL_EPSILON * x || hi - lo <= 4 * LDBL_EPSILON * x) return next;
    x = next;
  }
  return x;
}

// The friction factor of an equation F(lambda) = 0: the finite-difference Newton iteration from the given
// start value where it stays in its domain. Very large Reynolds numbers with smooth or nearly smooth walls
// throw the iteration onto lambda <= 0 (k = 0 above Re of about 6e6, k/d = 1e-5 started at 0.02 above about
// 1.2e7); there the same equation with the same constants is solved by the bracketed method instead.
template <class Equation>
Real frictionRoot(const Equation& F, Real lambda0) {
  if (const auto lambda = newtonFiniteDifference(F, lambda0)) return *lambda;
  return bracketedRoot(F);
}

// Start value of the Colebrook iteration: 0.02 for rough flow, else Nikuradse's smooth-pipe fit.
Real colebrookStart(Real k, Real Re, Real d) {
  if ((Re * k) / d >= 65) return 0.02L;
  return 0.221L * power(Re, -0.237L) + 0.0032L;
}

// Colebrook's equation in the form F(lambda) = 1/sqrt(lambda) + 2 lg(2.51/(Re sqrt(lambda)) + k/(3.71 d)).
auto colebrookEquation(Real k, Real Re, Real d) {
  return [k, Re, d](Real lambda) {
    return 1 / std::sqrt(lambda) + kTwoOverLn10 * std::log(2.51L / (std::sqrt(lambda) * Re) + (k * kOneOver371) / d);
  };
}

bool turbulentInputsDefined(Real k, Real Re, Real d) {
  return Re > 0 && d > 0 && k >= 0;
}

// Laminar factor phi (lambda = phi * 64/Re) of a rectangular duct over the side ratio r = short/long side,
// nodes r = i/10.
constexpr Real kRechteckNodes[] = {0, 0.1L, 0.2L, 0.3L, 0.4L, 0.5L, 0.6L, 0.7L, 0.8L, 0.9L, 1};
constexpr Real kRechteckPhi[] = {1.5L, 1.34L, 1.2L, 1.1L, 1.02L, 0.97L, 0.94L, 0.92L, 0.9L, 0.89L, 0.88L};

// Laminar factor phi of a concentric annulus over the diameter ratio r = D/Di.
constexpr Real kRingspaltNodes[] = {1, 5, 10, 20, 50, 100};
constexpr Real kRingspaltPhi[] = {1.5L, 1.45L, 1.4L, 1.35L, 1.28L, 1.25L};

}  // namespace

Real Rohrreibungszahl(int Methode, Real Rauhigkeit, Real Re, Real d) {
  switch (Methode) {
    case 0:
      return Lambda_Colebrook(Rauhigkeit, Re, d);
    case 1:
      return Lambda_Abschnitte(Rauhigkeit, Re, d);
    case 2:
      return Lambda_Churchill(Rauhigkeit, Re, d);
    default:
      return 0;
  }
}

Real Lambda_Colebrook(Real k, Real Re, Real d) {
  if (!turbulentInputsDefined(k, Re, d)) return kNaN;
  // With 0.269 k/d >= 1 the logarithm stays positive for every lambda: the equation has no root, and the
  // iteration would only wander off to a meaningless large value.
  if ((k * kOneOver371) / d >= 1) return kNaN;
  return frictionRoot(colebrookEquation(k, Re, d), colebrookStart(k, Re, d));
}

Real Lambda_Abschnitte(Real k, Real Re, Real d) {
  if (!turbulentInputsDefined(k, Re, d)) return kNaN;
  // Limit roughness kg below which the wall is hydraulically smooth; k up to kg/4 still takes Colebrook.
  const Real kg = (34.2L * d) / power(Re * 0.5L, 0.875L);
  Real lambda = kNaN;  // k = 0 below Re 2320 is laminar and has no turbulent value
  if (k == 0) {
    if (Re >= 2320 && Re <= 100000) {
      lambda = 0.3164L * power(Re, -0.25L);  // Blasius
    } else if (Re > 100000 && Re <= 1000000) {
      lambda = 0.221L * power(Re, -0.237L) + 0.0032L;  // Nikuradse
    } else if (Re > 1000000) {
      // Prandtl's universal law for smooth pipes: 1/sqrt(lambda) = 2 lg(Re sqrt(lambda)) - 0.8.
      const auto prandtl = [Re](Real l) {
        return 1 / std::sqrt(l) - (kTwoOverLn10 * std::log(std::sqrt(l) * Re) - 0.8L);
      };
      lambda = frictionRoot(prandtl, 0.02L);
    }
  }
  if (k > kg / 4) {
    // Rough: the larger of a power law in k/d and the rough-pipe law of von Karman and Nikuradse.
    const Real a = 0.15L * power(k / d, 1.0L / 3) + 0.0055L;
    const Real denominator = kTwoOverLn10 * std::log(d / k) + 1.14L;
    if (denominator == 0) return kNaN;
    const Real b = power(1 / denominator, 2);
    lambda = b >= a ? b : a;
  }
  if (k > 0 && k <= kg / 4) lambda = frictionRoot(colebrookEquation(k, Re, d), colebrookStart(k, Re, d));
  return lambda;
}

Real Lambda_Churchill(Real k, Real Re, Real d) {
  if (!turbulentInputsDefined(k, Re, d)) return kNaN;
  // Churchill (1977), one equation for laminar, transition and turbulent flow. 0.27 here, not the 0.269 of
  // the Colebrook equation.
  const Real A = power(7 / Re, 0.9L) + (0.27L * k) / d;
  const Real B = power(2.457L * std::log(1 / A), 16);
  const Real C = power(37530 / Re, 16);
  const Real D = power(8 / Re, 12);
  const Real E = 1 / power(B + C, 1.5L);
  return 8 * power(D + E, 1.0L / 12);
}

Real Rohrreibungsverlust(Real Lambda, Real L, Real Dichte, Real w, Real d) {
  if (d == 0) return kNaN;
  // Darcy-Weisbach; 0.01 takes d from mm to m and the result from Pa to bar.
  return (Lambda * L * Dichte * w * w * 0.01L) / (d * 2);
}

Real Lambda_laminar_Rechteck(Real Re, Real B, Real H) {
  const Real r = B < H ? B / H : H / B;
  if (!(r >= 0 && r <= 1) || Re == 0) return kNaN;
  const Real phi = lookupHalfOpen(kRechteckNodes, kRechteckPhi, r);
  return (phi * 64) / Re;
}

Real Lambda_laminar_Ringspalt(Real Re, Real D, Real Di) {
  const Real r = D / Di;
  if (!(r >= 1 && r <= 100) || Re == 0) return kNaN;
  const Real phi = lookupHalfOpen(kRingspaltNodes, kRingspaltPhi, r);
  return (phi * 64) / Re;
}

Real Lambda_Wellrohr(Real D, Real t, Real T, Real Re) {
  if (!(D > 0 && t > 0 && T > 0)) return kNaN;
  const Real tD = t / D;
  const Real tT = t / T;
  // The powers of t/D and t/T share their logarithms: lambda1 = 0.2 ((T/t)^7 (t/D)^6)^0.1 and, for a
  // shallow corrugation, lambda = lambda1 17000 (t/D)^3.53 (t/T)^(230 (t/D)^2.1) Re^n, formed as one
  // power of two (each x87 logarithm or exponential costs tens of nanoseconds).
  const Real lgD = std::log2(tD);
  const Real lgT = std::log2(tT);
  const Real lambda1 = 0.2L * std::exp2(0.1L * (6 * lgD - 7 * lgT));
  if (tT <= 0.6L && tD <= 0.0635L) {
    // Shallow corrugation: the deep-corrugation value scaled down, with a Reynolds dependence.
    const Real n = 0.193L * tT * std::exp(-3300 * std::exp2(2.6L * lgD));
    return lambda1 * 17000 * std::exp2(3.53L * lgD + 230 * std::exp2(2.1L * lgD) * lgT + n * std::log2(Re));
  }
  return lambda1;
}

}  // namespace linecalc
