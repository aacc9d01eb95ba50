#include "element_command.h"

#include <memory>
#include <nlohmann/json.hpp>
#include <ostream>

#include "cli_app.h"
#include "cli_meldungen.h"
#include "element_inputs.h"
#include "table_output.h"
#include "workspace/anwendung.h"

namespace linecalc::cli {

namespace {

nlohmann::json stateJson(const CalculationState& s) {
  const auto n = [](Real value) { return static_cast<double>(value); };
  return {{"w", n(s.w)},
          {"w2", n(s.w2)},
          {"Re", n(s.Re)},
          {"Re2", n(s.Re2)},
          {"d_hydr", n(s.d_hydr)},
          {"laminar", s.laminar},
          {"Lambda", n(s.Lambda)},
          {"Zeta", n(s.Zeta)},
          {"Zeta_Z", n(s.Zeta_Z)},
          {"Delta_P", n(s.Delta_P)},
          {"Delta_P_Z", n(s.Delta_P_Z)},
          {"Volumenstrom", n(s.Volumenstrom)},
          {"Massenstrom", n(s.Massenstrom)},
          {"Normvolumenstrom", n(s.Normvolumenstrom)},
          {"Dichte", n(s.Dichte)},
          {"DynViskositaet", n(s.DynViskositaet)},
          {"KinViskositaet", n(s.KinViskositaet)},
          {"gasdruckzuhoch", s.gasdruckzuhoch},
          {"Kritisches_Laminar_Element", s.Kritisches_Laminar_Element}};
}

void runElement(const ElementInputs& inputs, CliContext& context) {
  CliMeldungen meldungen(context.format == OutputFormat::Json ? nullptr : context.err, Answer::No);
  const std::unique_ptr<Anwendung> started = startApplication(context, meldungen);
  if (!started) return;
  Anwendung& app = *started;
  if (const std::string error = applyElementInputs(app, inputs); !error.empty()) {
    *context.err << "linecalc-cli: " << error << '\n';
    context.exitStatus = kUsage;
    return;
  }

  app.MyWindow.Berechnen(0);
  const TAusgabeneu_Fenster& window = app.Ausgabeneu_Fenster;
  const bool written = window.Anzahl_Berechnungen() == 1;
  context.exitStatus = written ? kComputed : kRefused;
  if (context.format == OutputFormat::Text) {
    if (written) printTable(*context.out, window, window.table());
    return;
  }
  if (context.format == OutputFormat::Csv) {
    if (written) printCsv(*context.out, window, window.table());
    return;
  }
  const nlohmann::json column = written ? columnJson(window, window.table(), 0) : nlohmann::json::array();
  nlohmann::json messages = nlohmann::json::array();
  for (const auto& m : meldungen.messages()) {
    messages.push_back({{"kind", kindName(m.kind)}, {"caption", m.caption}, {"text", m.text}});
  }
  *context.out << nlohmann::json{{"element", app.MyWindow.Statisch_Element_Name1.Caption},
                                 {"messages", messages},
                                 {"column_written", written},
                                 {"state", stateJson(app.state)},
                                 {"column", column}}
                      .dump(2)
               << '\n';
}

}  // namespace

void addElementCommand(CLI::App& app, CliContext& context) {
  auto inputs = std::make_shared<ElementInputs>();
  CLI::App* command = app.add_subcommand("element", "Compute one element as the main window does, as one table column");
  addElementOptions(*command, *inputs);
  command->footer(
      "Unset inputs keep the program's defaults (water at 20 °C, 1 m3/h, the catalogue's element defaults).\n"
      "Texts are read as the input fields read them: comma or point.\n"
      "Examples:\n"
      "  linecalc-cli element -g 1 -e 1 --va1 100 --va2 25 --flow 36 --roughness 0,05\n"
      "  linecalc-cli --format json element -g 4 -e 1 --va1 4 --va1-unit in. --flow 80 --flow-unit gal/min\n"
      "  linecalc-cli element -g 1 -e 1 --state gas --flow 500 --flow-unit Nm3/h --flow-kind standard \\\n"
      "      --density 1,2 --viscosity 18 --inlet-pressure 3 --inlet-temperature 15 --outlet-temperature 15");
  command->callback([inputs, &context] { runElement(*inputs, context); });
}

}  // namespace linecalc::cli
