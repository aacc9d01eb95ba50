// The hot path of every element calculation: velocity, Reynolds number and loss, and a whole run from
// the panel texts. The loss curve repeats these for every point of the curve.
#include <benchmark/benchmark.h>

#include <cmath>
#include <string>

#include "base/meldungen.h"
#include "catalogue/element_catalogue.h"
#include "engine/element_state.h"
#include "engine/loss.h"
#include "engine/velocity.h"
#include "workspace/anwendung.h"

namespace {

using namespace linecalc;

// Water at 20 °C (998.2 kg/m3, 1002e-6 kg/(m s)) in a steel pipe of 0.1 mm roughness.
CalculationState water(int group, int nr, std::initializer_list<Real> va) {
  CalculationState s = test::elementState(group, nr, va, 1002);
  s.Dichte = 998.2L;
  s.Rauhigkeit = 0.1L;
  return s;
}

void StraightPipeColebrook(benchmark::State& bench) {
  CalculationState s = water(1, 1, {100, 10});
  for (auto _ : bench) {
    Berechnung_w_Re(s);
    benchmark::DoNotOptimize(elementLoss(s, {0, false}));
    benchmark::DoNotOptimize(s.Delta_P);
  }
}
BENCHMARK(StraightPipeColebrook);

// Every element of the catalogue with its default inputs (80 mm where a row keeps the user's input) in
// turbulent water. The straight pipes, the diffuser, the contraction and the bends call the friction
// factor's iteration; all others compute without one.
CalculationState catalogueDefaults(const ElementDefinition& element) {
  CalculationState s = water(element.group, element.nr, {});
  Real* rows[] = {&s.Va1, &s.Va2, &s.Va3, &s.Va4, &s.Va5};
  for (std::size_t i = 0; i < element.rows.size(); ++i) {
    const PanelRow& row = element.rows[i];
    if (!row.used()) continue;
    *rows[i] = row.keep || row.copyFrom ? 80 : std::stold(buildDefault(row.defaultText, '.'));
  }
  s.Volumenstrom_Z = 10;
  return s;
}

void Element(benchmark::State& bench, const ElementDefinition* element) {
  CalculationState s = catalogueDefaults(*element);
  for (auto _ : bench) {
    Berechnung_w_Re(s);
    benchmark::DoNotOptimize(elementLoss(s, {0, false}));
    benchmark::DoNotOptimize(s.Delta_P);
  }
  if (!std::isfinite(s.Delta_P)) bench.SkipWithError("no value");
}

const bool kElementsRegistered = [] {
  for (const auto& element : allElements()) {
    const std::string name = "Element/" + std::to_string(element.group) + "," + std::to_string(element.nr);
    benchmark::RegisterBenchmark(name.c_str(), Element, &element);
  }
  return true;
}();

void WholeRunFromPanelTexts(benchmark::State& bench) {
  RecordingMeldungen meldungen;
  Anwendung app(meldungen, ',');
  app.Sprache.Sprachkennung = 'D';
  app.start(LINECALC_BUILD_DATA_DIR);
  app.KennlinieDlg.Visible = true;  // a curve point: no column is written
  app.MyWindow.Va1_Edit.Text = "100";
  app.MyWindow.Va2_Edit.Text = "10";
  app.MyWindow.Eingabe_Volumenstrom.Text = "36";
  for (auto _ : bench) {
    app.MyWindow.Berechnen(0);
    benchmark::DoNotOptimize(app.state.Delta_P);
  }
  if (!meldungen.messages().empty()) bench.SkipWithError("the run raised a message");
}
BENCHMARK(WholeRunFromPanelTexts);

}  // namespace
