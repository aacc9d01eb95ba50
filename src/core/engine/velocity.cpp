#include "engine/velocity.h"

#include <numbers>

namespace linecalc {

namespace {

constexpr Real kPi = std::numbers::pi_v<Real>;
constexpr Real k36Pi = 113.09733552923255L;  // 36 * pi, held as one constant

// Velocities in m/s from a flow in m3/h and sizes in mm (free section: m2 and m).
Real circular(Real flow, Real D) {
  return (flow * 4 * 10000) / (kPi * D * D * 36);
}
Real rectangular(Real flow, Real B, Real H) {
  return (flow * 10000) / (B * 36 * H);
}
Real annular(Real flow, Real D, Real Di) {
  return (flow * 4 * 10000) / ((D * D - Di * Di) * k36Pi);
}
Real freeSection(Real flow, Real A) {
  return flow / (A * 3600);
}

Real reynolds(const CalculationState& s, Real velocity, Real lengthScale) {
  return (velocity * s.Dichte * lengthScale * 1000) / s.DynViskositaet;
}

void circularSection(CalculationState& s, Real D) {
  s.w = circular(s.Volumenstrom, D);
  s.Re = reynolds(s, s.w, D);
}

void rectangularSection(CalculationState& s, Real B, Real H) {
  s.w = rectangular(s.Volumenstrom, B, H);
  s.d_hydr = (2 * B * H) / (B + H);
  s.Re = reynolds(s, s.w, s.d_hydr);
}

// The second circular section D2 with the given flow; Re2 from w2 and D2.
void secondCircularSection(CalculationState& s, Real flow, Real D2) {
  s.w2 = circular(flow, D2);
  s.Re2 = reynolds(s, s.w2, D2);
}

// Perforated plates and screens: the velocity in the free opening of `percent` per cent.
void freeOpening(CalculationState& s, Real percent) {
  s.w2 = (s.w / percent) * 100;
}

void straightPipe(CalculationState& s) {
  switch (s.ElementNr) {
    case 1:
    case 5:
      return circularSection(s, s.Va1);
    case 2:
      return rectangularSection(s, s.Va1, s.Va2);
    case 3:
      s.w = annular(s.Volumenstrom, s.Va1, s.Va2);
      s.d_hydr = s.Va1 - s.Va2;
      s.Re = reynolds(s, s.w, s.d_hydr);
      return;
    case 4:  // open channel: the free surface is no wetted circumference
      s.w = rectangular(s.Volumenstrom, s.Va1, s.Va2);
      s.d_hydr = (4 * s.Va1 * s.Va2) / (s.Va1 + 2 * s.Va2);
      s.Re = reynolds(s, s.w, s.d_hydr);
      return;
    case 6:
      s.w = freeSection(s.Volumenstrom, s.Va1);
      s.d_hydr = ((4 * s.Va1) / s.Va2) * 1000;
      s.Re = reynolds(s, s.w, s.d_hydr);
      return;
    default:
      return;
  }
}

bool exists(int first, int last, int nr) {
  return nr >= first && nr <= last;
}

}  // namespace

void Berechnung_w_Re(CalculationState& s) {
  const int nr = s.ElementNr;
  switch (s.ElementGruppe) {
    case 1:
      return straightPipe(s);
    case 2:
      if (exists(1, 4, nr)) circularSection(s, s.Va1);
      return;
    case 3:
      if (!exists(1, 4, nr)) return;
      circularSection(s, s.Va1);
      secondCircularSection(s, s.Volumenstrom, s.Va2);
      return;
    case 4:
      if (nr == 4 || nr == 6) return rectangularSection(s, s.Va1, s.Va2);
      if (exists(1, 5, nr)) circularSection(s, s.Va1);
      return;
    case 5:
      if (!exists(1, 8, nr)) return;
      circularSection(s, s.Va1);
      if (nr == 1) secondCircularSection(s, s.Volumenstrom / 2, s.Va2);  // a tee halves the flow
      if (nr == 5 || nr == 6) secondCircularSection(s, s.Volumenstrom_Z, s.Va2);
      return;
    case 6:
      if (exists(1, 3, nr)) circularSection(s, s.Va1);
      return;
    case 7:
      if (exists(1, 6, nr)) circularSection(s, s.Va1);
      return;
    case 8:
      if (exists(1, 3, nr)) circularSection(s, s.Va1);
      return;
    case 9:
      if (!exists(1, 7, nr)) return;
      circularSection(s, s.Va1);
      s.w2 = circular(s.Volumenstrom, s.Va2);
      s.Re2 = (s.Re * s.Va1) / s.Va2;  // scaled from Re, not formed from w2
      return;
    case 10:
      if (nr == 1 || nr == 3) circularSection(s, s.Va1);
      if (nr == 2 || nr == 4) rectangularSection(s, s.Va1, s.Va2);
      if (exists(1, 4, nr)) freeOpening(s, nr == 1 ? s.Va2 : nr == 2 ? s.Va3 : nr == 3 ? s.Va4 : s.Va5);
      return;
    case 11:
      if (!exists(1, 9, nr)) return;
      if (nr == 2 || nr == 4 || nr == 6) {
        rectangularSection(s, s.Va1, s.Va2);
        freeOpening(s, s.Va3);
      } else {
        circularSection(s, s.Va1);
        if (nr <= 5) freeOpening(s, s.Va2);
      }
      return;
    case 12:
      if (nr == 1) circularSection(s, s.Va1);
      if (nr == 2) rectangularSection(s, s.Va1, s.Va2);
      return;
    case 13:
      if (nr == 1) s.Re = 0;  // a height difference has no flow section
      if (nr == 2) {
        circularSection(s, s.Va1);
        secondCircularSection(s, s.Volumenstrom, s.Va2);
      }
      if (nr == 3) {
        rectangularSection(s, s.Va1, s.Va2);
        s.w2 = rectangular(s.Volumenstrom, s.Va3, s.Va4);
        s.d_hydr = (2 * s.Va3 * s.Va4) / (s.Va3 + s.Va4);
        s.Re2 = reynolds(s, s.w, s.d_hydr);  // the first velocity with the second section's diameter
      }
      return;
    default:
      return;
  }
}

}  // namespace linecalc
