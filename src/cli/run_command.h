#pragma once

#include <CLI/CLI.hpp>

#include "cli_context.h"

namespace linecalc::cli {

// `linecalc-cli run FILE.json`: a whole pipe run computed column after column into one table.
void addRunCommand(CLI::App& app, CliContext& context);

}  // namespace linecalc::cli
