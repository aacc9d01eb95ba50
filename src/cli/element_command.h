#pragma once

#include <CLI/CLI.hpp>

#include "cli_context.h"

namespace linecalc::cli {

// `linecalc-cli element`: one element computed through the main window's run, as one table column.
void addElementCommand(CLI::App& app, CliContext& context);

}  // namespace linecalc::cli
