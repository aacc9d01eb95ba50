#pragma once

#include <CLI/CLI.hpp>

#include "cli_context.h"

namespace linecalc::cli {

// `linecalc-cli elements`: the element catalogue with its panel rows, in the chosen language.
void addElementsCommand(CLI::App& app, CliContext& context);

}  // namespace linecalc::cli
