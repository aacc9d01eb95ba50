#pragma once

#include <CLI/CLI.hpp>

#include "cli_context.h"

namespace linecalc::cli {

// `linecalc-cli convert`: one value from one unit to another of the same quantity.
void addConvertCommand(CLI::App& app, CliContext& context);

}  // namespace linecalc::cli
