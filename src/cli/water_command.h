#pragma once

#include <CLI/CLI.hpp>

#include "cli_context.h"

namespace linecalc::cli {

// `linecalc-cli water`: density, specific volume and viscosity of water or steam at a pressure and temperature,
// through the water dialog of the program.
void addWaterCommand(CLI::App& app, CliContext& context);

// `linecalc-cli water-saturation`: the saturation state from a temperature or a pressure, both phases, through
// the saturation dialog of the program.
void addWaterSaturationCommand(CLI::App& app, CliContext& context);

}  // namespace linecalc::cli
