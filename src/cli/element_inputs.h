#pragma once

#include <array>
#include <optional>
#include <string>

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include "workspace/anwendung.h"

namespace linecalc::cli {

// The main window's inputs in plain words, as texts exactly as a user would type them. Unset inputs
// keep what the panels hold: the program's defaults.
struct ElementInputs {
  int group = 1, element = 1;
  std::array<std::optional<std::string>, 5> va, vaUnit;
  std::optional<std::string> pieces, roughness, roughnessUnit, choice, designation;
  std::optional<std::string> medium, state, flow, flowUnit, flowKind, branchFlow;
  std::optional<std::string> density, densityUnit, viscosity, viscosityUnit, viscosityKind;
  std::optional<std::string> inletPressure, inletPressureUnit, inletTemperature, inletTemperatureUnit;
  std::optional<std::string> outletTemperature, outletTemperatureUnit;
};

// Adds the options of ElementInputs to a command.
void addElementOptions(CLI::App& command, ElementInputs& inputs);

// Reads the inputs of a run file's object: the same names as the options, with "_" for "-"
// ("va1_unit", "flow_kind"), texts or numbers. Unknown keys are an error (a typing mistake would
// otherwise pass unnoticed); the error text names the key. Keys not given stay as they are.
std::string readElementInputs(const nlohmann::json& object, ElementInputs& inputs);

// Chooses the element and types the inputs into the panels. Returns an error text (a unit the
// element's list does not hold, an element the catalogue lacks), empty when all went in.
std::string applyElementInputs(Anwendung& app, const ElementInputs& inputs);

}  // namespace linecalc::cli
