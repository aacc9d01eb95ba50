#include "tables/ausgabe_fenster.h"

#include "engine/loss.h"
#include "engine/velocity.h"
#include "workspace/anwendung.h"

namespace linecalc {

namespace {

constexpr int kErrorCaption = 197;  // global word row

}  // namespace

TAusgabeneu_Fenster::TAusgabeneu_Fenster(Anwendung& app) : app_(app) {}

void TAusgabeneu_Fenster::Sprache_anpassen() {
  WordBlock block = app_.Sprache.block("Ausgabeneu_Fenster");
  noteCaption = block.next();
  dp_zu_gross_Gase = block.next();
  SV_Laminar_Zeta_Turbulent = block.next();
  for (int i = 1; i <= 4; ++i) SV_Bereich[static_cast<std::size_t>(i)] = block.next();
  undefinedResultText = block.next();
}

void TAusgabeneu_Fenster::Berechnung_w_Re() {
  linecalc::Berechnung_w_Re(app_.state);
}

void TAusgabeneu_Fenster::Berechnung_delta_P() {
  CalculationState& s = app_.state;
  const CalculationState before = s;
  const bool curveShown = app_.KennlinieDlg.Visible;
  const LossOutcome outcome = elementLoss(s, {app_.EinstellungenDlg.ComboBox4.ItemIndex, curveShown});
  if (outcome.rangeNote != RangeNote::None && !curveShown) {
    app_.meldungen.information(noteCaption, SV_Bereich[static_cast<std::size_t>(outcome.rangeNote)]);
  }
  const std::string elementName = app_.MyWindow.Statisch_Element_Name1.Caption;
  if (outcome.undefined) {
    // A correlation without a value for these inputs: the run stops and the results stay as they were.
    s = before;
    s.undefinedResult = true;
    app_.meldungen.error(app_.Sprache.globalWord(kErrorCaption),
                         elementName + ":\n" + undefinedResultText + "\n" + app_.MyWindow.elementInputsText());
    return;
  }
  if (s.gas && !gasCorrection(s)) {
    app_.meldungen.error(app_.Sprache.globalWord(kErrorCaption), elementName + ":\n" + dp_zu_gross_Gase);
  }
  s.Delta_P = static_cast<Real>(s.VaAnz) * s.Delta_P;
  if (s.laminar && s.Kritisches_Laminar_Element && !curveShown && !s.Pruefmodus && !app_.TabelleAendern.Visible) {
    app_.meldungen.information(noteCaption, SV_Laminar_Zeta_Turbulent);
  }
}

void TAusgabeneu_Fenster::Werte_ausgeben() {}

void TAusgabeneu_Fenster::Neue_Summen_bilden() {}

}  // namespace linecalc
