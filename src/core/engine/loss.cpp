#include "engine/loss.h"

#include <cmath>

#include "engine/bends.h"
#include "engine/branches.h"
#include "engine/friction.h"
#include "engine/inlets_sections.h"
#include "engine/orifices.h"
#include "engine/valves.h"

namespace linecalc {

namespace {

// Straight pipes: friction factor, the coefficient of the pipe's length, and the friction loss.
void pipeLoss(CalculationState& s, Real lambda, Real length, Real diameter) {
  s.Lambda = lambda;
  s.Zeta = lambda * length / diameter * 1000;
  s.Delta_P = Rohrreibungsverlust(lambda, length, s.Dichte, s.w, diameter);
}

// Elements whose coefficient is a turbulent value: their laminar result is only a rough guide.
bool isCriticalWhenLaminar(int group, int nr) {
  switch (group) {
    case 4:
      return nr == 2 || nr == 3;
    case 5:
      return nr <= 4 || nr == 7 || nr == 8;
    case 6:
      return true;
    case 7:
      return nr >= 3;
    case 8:
      return nr == 2;
    case 9:
      return nr != 4;
    case 11:
      return nr >= 5;
    default:
      return false;
  }
}

class Dispatcher {
 public:
  Dispatcher(CalculationState& s, const LossSettings& settings, bool laminar)
      : s_(s), settings_(settings), laminar_(laminar) {}

  LossOutcome run() {
    const int nr = s_.ElementNr;
    switch (s_.ElementGruppe) {
      case 1:
        straightPipe(nr);
        break;
      case 2:
        inlet(nr);
        break;
      case 3:
        changeOfSection(nr);
        break;
      case 4:
        bend(nr);
        break;
      case 5:
        branch(nr);
        break;
      case 6:
        expansionJoint(nr);
        break;
      case 7:
        valve(nr);
        break;
      case 8:
        checkValve(nr);
        break;
      case 9:
        restriction(nr);
        break;
      case 10:
        perforatedPlate(nr);
        break;
      case 11:
        screen(nr);
        break;
      case 12:
        knownCoefficient(nr);
        break;
      case 13:
        reversibleChange(nr);
        break;
      default:
        break;
    }
    if (laminar_ && isCriticalWhenLaminar(s_.ElementGruppe, nr)) s_.Kritisches_Laminar_Element = true;
    outcome_.undefined = !std::isfinite(s_.Zeta) || !std::isfinite(s_.Delta_P) || !std::isfinite(s_.Lambda) ||
                         !std::isfinite(s_.Zeta_Z) || !std::isfinite(s_.Delta_P_Z);
    return outcome_;
  }

 private:
  CalculationState& s_;
  const LossSettings& settings_;
  bool laminar_;
  LossOutcome outcome_;

  Real friction(Real diameter) const { return Rohrreibungszahl(settings_.Methode, s_.Rauhigkeit, s_.Re, diameter); }

  // The loss of a coefficient with the velocity of the reference section.
  void coefficient(Real zeta) {
    s_.Zeta = zeta;
    s_.Delta_P = Dz(zeta, s_.w, s_.Dichte);
  }

  void straightPipe(int nr) {
    switch (nr) {
      case 1:
        return pipeLoss(s_, laminar_ ? 64 / s_.Re : friction(s_.Va1), s_.Va2, s_.Va1);
      case 2:
      case 4:
        return pipeLoss(s_, laminar_ ? Lambda_laminar_Rechteck(s_.Re, s_.Va1, s_.Va2) : friction(s_.d_hydr), s_.Va3,
                        s_.d_hydr);
      case 3:
        return pipeLoss(s_, laminar_ ? Lambda_laminar_Ringspalt(s_.Re, s_.Va1, s_.Va2) : friction(s_.d_hydr), s_.Va3,
                        s_.d_hydr);
      case 5:
        return pipeLoss(s_, laminar_ ? 64 / s_.Re : Lambda_Wellrohr(s_.Va1, s_.Va2, s_.Va3, s_.Re), s_.Va4, s_.Va1);
      case 6:
        pipeLoss(s_, laminar_ ? 64 / s_.Re : friction(s_.d_hydr), s_.Va3, s_.d_hydr);
        // The turbulent coefficient shown is formed from the perimeter and the area, as it always was;
        // the loss itself uses the length and the hydraulic diameter.
        if (!laminar_) s_.Zeta = s_.Lambda * s_.Va2 / s_.Va1 * 1000;
        return;
      default:
        return;
    }
  }

  void inlet(int nr) {
    Real turbulent = 0;
    switch (nr) {
      case 1:
        turbulent = Zeta_Einlauf_kantig(s_.ersteAuswahl);
        break;
      case 2:
        turbulent = Zeta_Einlauf_abgerundet();
        break;
      case 3:
        turbulent = Zeta_Einlauf_Winkel(s_.Va2);
        break;
      case 4:
        turbulent = Zeta_Einlauf_vorstehend(s_.ersteAuswahl);
        break;
      default:
        return;
    }
    coefficient(laminar_ ? Zeta_Einlauf_laminar(turbulent, s_.Re) : turbulent);
  }

  // Laminar losses of a change of section use the velocity of the second section, turbulent ones
  // that of the first.
  void changeOfSection(int nr) {
    if (laminar_) {
      switch (nr) {
        case 1:
          s_.Zeta = Zeta_Erweiterung_laminar(s_.Re, s_.Va1, s_.Va2);
          break;
        case 2:
          s_.Zeta = Zeta_Diffusor_laminar(s_.Va1, s_.Va2, s_.Va3, s_.Re);
          break;
        case 3:
          s_.Zeta = Zeta_Verengung_laminar(s_.Re2, s_.Va1, s_.Va2);
          break;
        case 4:
          s_.Zeta = Zeta_Konfusor_laminar(s_.Va1, s_.Va2, s_.Va3, s_.Re2);
          break;
        default:
          return;
      }
      s_.Delta_P = Dz(s_.Zeta, s_.w2, s_.Dichte);
      return;
    }
    switch (nr) {
      case 1:
        return coefficient(Zeta_Erweiterung(s_.Va1, s_.Va2));
      case 2:
        s_.Lambda = friction(s_.Va1);
        return coefficient(Zeta_Diffusor(s_.Va1, s_.Va2, s_.Va3, s_.Lambda));
      case 3:
        return coefficient(Zeta_Verengung(s_.Va1, s_.Va2));
      case 4:
        s_.Lambda = friction(s_.Va1);
        return coefficient(Zeta_Konfusor(s_.Va1, s_.Va2, s_.Va3, s_.Lambda));
      default:
        return;
    }
  }

  void bend(int nr) {
    const int method = settings_.Methode;
    switch (nr) {
      case 1:
        if (laminar_) return coefficient(Zeta_Kruemmer_laminar(s_.Va1, s_.Va2, s_.Va3, s_.Re));
        s_.Lambda = friction(s_.Va1);
        return coefficient(Zeta_Kreiskruemmer(method, s_.Va1, s_.Va2, s_.Va3, s_.Rauhigkeit, s_.Lambda, s_.Re));
      case 2:
        return coefficient(Zeta_Segmentkruemmer(s_.Va2));
      case 3:
        return coefficient(Zeta_Graugusskruemmer(s_.Va1));
      case 4:
        if (laminar_) return coefficient(Zeta_Kruemmer_laminar(s_.d_hydr, s_.Va3, s_.Va4, s_.Re));
        s_.Lambda = friction(s_.d_hydr);
        return coefficient(
            Zeta_Rechteckkruemmer(method, s_.Va1, s_.Va2, s_.Va3, s_.Va4, s_.d_hydr, s_.Rauhigkeit, s_.Lambda, s_.Re));
      case 5:
        if (laminar_) return coefficient(Zeta_Kniestueck_laminar(s_.Va2, s_.Va1, s_.Re, s_.Rauhigkeit));
        s_.Lambda = friction(s_.Va1);
        return coefficient(Zeta_Kniestueck(s_.Va2, s_.Va1, s_.Rauhigkeit, s_.Re));
      case 6:
        if (laminar_) return coefficient(Zeta_Kniestueck_laminar(s_.Va3, s_.d_hydr, s_.Re, s_.Rauhigkeit));
        s_.Lambda = friction(s_.d_hydr);
        return coefficient(Zeta_Kniestueck(s_.Va3, s_.d_hydr, s_.Rauhigkeit, s_.Re));
      default:
        return;
    }
  }

  // A branch piece gives the coefficient of the main run (Zeta, loss in bar for all pieces) and that
  // of the branch (Zeta_Z, loss Delta_P_Z in mbar for one piece); both losses use the main velocity.
  void branchPiece(bool dividing) {
    const Real V = s_.Volumenstrom, Vz = s_.Volumenstrom_Z;
    const auto coefficientOf = [&](bool Durchgang) {
      const Real t = dividing ? Zeta_Abzweig_Trennung(Durchgang, V, Vz, s_.Va1, s_.Va2, s_.Va3, s_.Va4)
                              : Zeta_Abzweig_Vereinigung(Durchgang, V, Vz, s_.Va1, s_.Va2, s_.Va3, s_.Va4);
      if (!laminar_) return t;
      return dividing ? Zeta_Abzweig_Trennung_laminar(Durchgang, V, Vz, s_.Va1, s_.Va2, s_.Va4, t, s_.Re)
                      : Zeta_Abzweig_Vereinigung_laminar(Durchgang, V, Vz, s_.Va1, s_.Va2, t, s_.Re);
    };
    coefficient(coefficientOf(true));
    s_.Zeta_Z = coefficientOf(false);
    s_.Delta_P_Z = Dz(s_.Zeta_Z, s_.w, s_.Dichte) * 1000;
  }

  void branch(int nr) {
    switch (nr) {
      case 1:
        return coefficient(Zeta_T_Stueck_scharfkantig(s_.Va1, s_.Va2));
      case 2:
        return coefficient(Zeta_T_Stueck_kugelfoermig());
      case 3:
        return coefficient(Zeta_T_Stueck_abgerundet_Boden_gerade());
      case 4:
        return coefficient(Zeta_T_Stueck_kugelfoermig_Hals_abgerundet());
      case 5:
        return branchPiece(true);
      case 6:
        return branchPiece(false);
      case 7:
        return coefficient(Zeta_Hosenrohr_gerade(s_.Va2));
      case 8:
        return coefficient(Zeta_Hosenrohr_gekruemmt(s_.Va1, s_.Va2));
      default:
        return;
    }
  }

  void expansionJoint(int nr) {
    switch (nr) {
      case 1:
        return coefficient(Zeta_Wellrohrausgleicher(s_.Va2));
      case 2:
        // While the loss curve is drawn, a laminar lyre bend keeps its previous coefficient.
        if (laminar_ && settings_.curveDialogVisible) return coefficient(s_.Zeta);
        return coefficient(Zeta_Lyrabogen(s_.ersteAuswahl));
      case 3:
        return coefficient(Zeta_U_Bogen(s_.Va1, s_.Va2));
      default:
        return;
    }
  }

  void valve(int nr) {
    switch (nr) {
      case 1:
        return coefficient(Zeta_Geradsitzventil(s_.Va1, s_.Re));
      case 2:
        return coefficient(Zeta_Schraegsitzventil(s_.Va1, s_.Re));
      case 3:
        return coefficient(Zeta_Eckventil(s_.Va1));
      case 4:
        return coefficient(Zeta_Schieber(s_.Va1, s_.Va2));
      case 5:
        return coefficient(Zeta_Hahn(s_.Va2));
      case 6:
        return coefficient(Zeta_Klappe(s_.Va2));
      default:
        return;
    }
  }

  void checkValve(int nr) {
    switch (nr) {
      case 1:
        return coefficient(Zeta_Rueckschlag_Geradsitz(s_.Va1, s_.Re));
      case 2:
        return coefficient(Zeta_Rueckschlag_Schraegsitz(s_.Va1));
      case 3:
        return coefficient(Zeta_Rueckschlagklappe(s_.Va1, s_.Re));
      default:
        return;
    }
  }

  void note(bool outsideRange, RangeNote note) {
    if (!laminar_ && outsideRange) outcome_.rangeNote = note;
  }

  void restriction(int nr) {
    switch (nr) {
      case 1:
        note(s_.Re < 5000 || s_.Re > 10000000, RangeNote::Bereich1);
        return coefficient(Zeta_Normblende(s_.Va1, s_.Va2, s_.Re));
      case 2:
        note(s_.Re < 100000, RangeNote::Bereich2);
        return coefficient(Zeta_Blende_scharfkantig(s_.Va1, s_.Va2));
      case 3:
        note(s_.Re < 3000, RangeNote::Bereich3);
        return coefficient(Zeta_Blende_rundkantig(s_.Va1, s_.Va2, s_.Va3));
      case 4:
        note(s_.Re2 < 4000, RangeNote::Bereich4);
        return coefficient(Zeta_Lochscheibe(s_.Va1, s_.Va2, s_.Va3, s_.Re2));
      case 5:
        return coefficient(Zeta_Normduese(s_.Va1, s_.Va2, s_.Re));
      case 6:
        return coefficient(Zeta_Langradiusduese(s_.Va1, s_.Va2, s_.Re));
      case 7:
        return coefficient(Zeta_Venturi(s_.ersteAuswahl, s_.Va1, s_.Va2));
      default:
        return;
    }
  }

  // Thin plates and grids in a round pipe (D, percent) or a duct (B, H, percent).
  void thinPlate(bool duct) {
    if (duct) {
      return coefficient(laminar_ ? Zeta_Lochplatte_duenn_R_laminar(s_.Va1, s_.Va2, s_.Va3, s_.Re)
                                  : Zeta_Lochplatte_duenn_R(s_.Va1, s_.Va2, s_.Va3));
    }
    coefficient(laminar_ ? Zeta_Lochplatte_duenn_laminar(s_.Va1, s_.Va2, s_.Re)
                         : Zeta_Lochplatte_duenn(s_.Va1, s_.Va2));
  }

  void perforatedPlate(int nr) {
    switch (nr) {
      case 1:
        return thinPlate(false);
      case 2:
        return thinPlate(true);
      case 3:
        return coefficient(Zeta_Lochplatte_dick(s_.Va1, s_.Va2, s_.Va3, s_.Va4, s_.Re));
      case 4:
        return coefficient(Zeta_Lochplatte_dick_R(s_.Va1, s_.Va2, s_.Va3, s_.Va4, s_.Va5, s_.Re));
      default:
        return;
    }
  }

  void screen(int nr) {
    switch (nr) {
      case 1:
        return thinPlate(false);
      case 2:
        return thinPlate(true);
      case 3:
        return coefficient(laminar_ ? Zeta_Drahtsieb_laminar(s_.Va1, s_.Va2, s_.Re) : Zeta_Drahtsieb(s_.Va1, s_.Va2));
      case 4:
        return coefficient(laminar_ ? Zeta_Drahtsieb_R_laminar(s_.Va1, s_.Va2, s_.Va3, s_.Re)
                                    : Zeta_Drahtsieb_R(s_.Va1, s_.Va2, s_.Va3));
      case 5:
        return coefficient(Zeta_Doppelgitter(s_.Va1, s_.Va2));
      case 6:
        return coefficient(Zeta_Doppelgitter_R(s_.Va1, s_.Va2, s_.Va3));
      case 7:
        return coefficient(Zeta_Schmutzfaenger(s_.Va1));
      case 8:
        return coefficient(1.7L);  // basket strainer
      case 9:
        return coefficient(4);  // cone strainer
      default:
        return;
    }
  }

  void knownCoefficient(int nr) {
    if (nr == 1) coefficient(s_.Va2);
    if (nr == 2) coefficient(s_.Va3);
  }

  // Height differences and changes of velocity: reversible, no coefficient.
  void reversibleChange(int nr) {
    if (nr == 1) s_.Delta_P = ((s_.Dichte * 9.81L) * s_.Va1) / 100000;
    if (nr == 2 || nr == 3) s_.Delta_P = ((s_.w2 * s_.w2 - s_.w * s_.w) * (s_.Dichte / 2)) / 100000;
    if (nr >= 1 && nr <= 3) s_.Zeta = 0;
  }
};

}  // namespace

Real Dz(Real zeta, Real v, Real Dichte) {
  return ((zeta / 2) / 100000) * Dichte * v * v;
}

LossOutcome Berechnung_delta_P_laminar(CalculationState& s, const LossSettings& settings) {
  s.Kritisches_Laminar_Element = false;
  return Dispatcher(s, settings, true).run();
}

LossOutcome Berechnung_delta_P_turbulent(CalculationState& s, const LossSettings& settings) {
  return Dispatcher(s, settings, false).run();
}

LossOutcome elementLoss(CalculationState& s, const LossSettings& settings) {
  const bool contraction = s.ElementGruppe == 3 && (s.ElementNr == 3 || s.ElementNr == 4);
  s.laminar = (contraction ? s.Re2 : s.Re) < 2320;
  s.Delta_P = 0;
  s.Delta_P_2 = 0;
  s.Lambda = 0;
  return s.laminar ? Berechnung_delta_P_laminar(s, settings) : Berechnung_delta_P_turbulent(s, settings);
}

bool gasCorrection(CalculationState& s) {
  const Real p = s.Eintrittsdruck, T1 = s.Eintrittstemperatur, T2 = s.Austrittstemperatur;
  s.gasdruckzuhoch = false;
  if (s.Delta_P > p / 2) {
    s.gasdruckzuhoch = true;
    return false;
  }
  s.Delta_P = (1 - std::sqrt(1 - (((s.Delta_P * 2) / p) * (T1 + T2)) / 2 / T1)) * p;
  return true;
}

}  // namespace linecalc
